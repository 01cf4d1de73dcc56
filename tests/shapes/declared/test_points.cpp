// Places of control points: what undo, files and lessons bring back after the size has kept a point from its place.

#include "drivenshape.h"

#include "shapefile.h"

#include <checklist/recordedactions.h>

#include <declared/core/declaredshape.h>
#include <declared/core/shapekind.h>

#include <shapekit/shapeobject.h>

#include <QtCore/QDataStream>
#include <QtCore/QFile>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using namespace declaredtest;

class TestPoints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void undoneDragLeavesThePointWhereItWasPut();
    void undoneAndRedoneDragIsTheSameToTheByte();
    void openedShapeTakesItsFormWhenItGetsItsSizeBack_data();
    void openedShapeTakesItsFormWhenItGetsItsSizeBack();
    void lessonEndsWhereThePointWasPut();
    void damagedPlacesLeaveThePointsWhereTheyAre_data();
    void damagedPlacesLeaveThePointsWhereTheyAre();

private:
    /// The head of the arrow begins at 90 of 140: in a width of 40 it has no room.
    const ShapeKind m_kind{readOf([] {
        QFile file(QStringLiteral(EXAMPLE_FOLDER "/blockarrow.shape.svg"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }())};
};

namespace {

constexpr int arrowWidth = 140;
/// The head wants to begin at 17.8, and begins at 20.
constexpr int narrowWidth = 40;
constexpr int arrowHeight = 90;

/// A new arrow of its usual size.
class Arrow : public ShapeDriver
{
public:
    explicit Arrow(const ShapeKind &kind)
        : ShapeDriver(QStringLiteral("star"))
    {
        takeObject(new shapekit::ShapeObject(kind.kind()));
        createByClick();
        select();
        undoStack().clear();
    }

    void setWidth(int width) { object().setSize(QSizeF(width, arrowHeight), false, false); }
    QString look() const
    {
        painted();
        return geometry();
    }
};

QJsonObject jsonOf(const Arrow &arrow)
{
    QJsonObject json;
    arrow.object().saveJson(json);
    return json;
}

bool play(const Arrow &arrow, int action, const QByteArray &bytes)
{
    QDataStream in(bytes);
    return arrow.core().DoPlaybackActionEx(action, in);
}

} // namespace

void TestPoints::undoneDragLeavesThePointWhereItWasPut()
{
    Arrow arrow(m_kind);
    const QString before = arrow.look();
    arrow.setWidth(narrowWidth);
    arrow.dragControlPoint(1, {6, 4});
    QCOMPARE(arrow.undoStack().count(), 1);
    arrow.undoStack().undo();
    arrow.setWidth(arrowWidth);
    QCOMPARE(arrow.look(), before);
}

void TestPoints::undoneAndRedoneDragIsTheSameToTheByte()
{
    Arrow arrow(m_kind);
    arrow.setWidth(narrowWidth);
    const QByteArray before = savedBytes(arrow);
    arrow.dragControlPoint(1, {6, 4});
    const QByteArray after = savedBytes(arrow);
    QVERIFY(after != before);
    arrow.undoStack().undo();
    QCOMPARE(savedBytes(arrow), before);
    arrow.undoStack().redo();
    QCOMPARE(savedBytes(arrow), after);
}

void TestPoints::openedShapeTakesItsFormWhenItGetsItsSizeBack_data()
{
    QTest::addColumn<bool>("isJson");
    QTest::newRow("binary") << false;
    QTest::newRow("JSON") << true;
}

void TestPoints::openedShapeTakesItsFormWhenItGetsItsSizeBack()
{
    QFETCH(bool, isJson);
    Arrow arrow(m_kind);
    const QString before = arrow.look();
    arrow.setWidth(narrowWidth);
    QVERIFY(arrow.look() != before);
    Arrow opened(m_kind);
    if (isJson) {
        QJsonObject json = jsonOf(arrow);
        QVERIFY(opened.object().loadJson(json));
        QCOMPARE(jsonOf(opened), json);
    } else {
        const QByteArray bytes = savedBytes(arrow);
        QDataStream in(bytes);
        QVERIFY(opened.object().load(in));
        QCOMPARE(savedBytes(opened), bytes);
    }
    QCOMPARE(opened.look(), arrow.look());
    opened.setWidth(arrowWidth);
    QCOMPARE(opened.look(), before);
}

void TestPoints::lessonEndsWhereThePointWasPut()
{
    Arrow arrow(m_kind);
    Arrow pupils(m_kind);
    checklist::RecordedActions lesson;
    arrow.dragControlPoint(2, {11, 3});
    QCOMPARE(lesson.actions.size(), 3);
    QCOMPARE(lesson.actions.at(0).first, int(ACT_SVG_CONTROLPOINT));
    QCOMPARE(lesson.actions.at(2).first, int(DeclaredShape::placesAction));
    // The last action alone is enough: at another zoom the corners of the others mean other places.
    QVERIFY(play(pupils, lesson.actions.at(2).first, lesson.actions.at(2).second));
    QCOMPARE(savedBytes(pupils), savedBytes(arrow));
}

void TestPoints::damagedPlacesLeaveThePointsWhereTheyAre_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, qint32 count, double x, double width) {
        QByteArray bytes;
        QDataStream(&bytes, QIODevice::WriteOnly) << count << x << 20.0 << width << 90.0;
        QTest::newRow(name) << bytes;
    };
    row("no point", 0, 30, 140);
    row("fewer than none", -1, 30, 140);
    row("no number", 1, qQNaN(), 140);
    row("farther than any page", 1, 2e6, 140);
    row("of no size", 1, 30, 0);
    QTest::newRow("cut off") << QByteArray("\0\0\0\1\0\0", 6);
    QTest::newRow("nothing") << QByteArray();
}

void TestPoints::damagedPlacesLeaveThePointsWhereTheyAre()
{
    QFETCH(QByteArray, bytes);
    Arrow arrow(m_kind);
    const QByteArray before = savedBytes(arrow);
    QVERIFY(!play(arrow, DeclaredShape::placesAction, bytes));
    QCOMPARE(savedBytes(arrow), before);
}

QTEST_MAIN(TestPoints)
#include "test_points.moc"
