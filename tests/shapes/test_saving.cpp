// Persistence of every shape: saved and opened, undone and redone, recorded and played back, it is the same to the
// byte.

#include <shapes/randomedits.h>
#include <shapes/recordedactions.h>
#include <shapes/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QJsonDocument>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

#include <cmath>

using shapetest::RandomEdits;
using shapetest::RecordedActions;
using shapetest::ShapeDriver;

namespace {

constexpr unsigned startValue = 20240229;
constexpr int editCount = 25;
constexpr int damagedCount = 12;
constexpr int undoneEditCount = 30;

QByteArray savedBytes(const ShapeDriver &shape)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    shape.object().save(out);
    return bytes;
}

QByteArray savedJson(const ShapeDriver &shape)
{
    QJsonObject object;
    shape.object().saveJson(object);
    return QJsonDocument(object).toJson();
}

/// A fill is recorded as its colour and replayed as a brush: whoever plays converts it.
QByteArray payloadToReplay(int action, const QByteArray &payload)
{
    if (action != ACT_SVG_FILLCOLOR)
        return payload;
    QColor color;
    QDataStream in(payload);
    in >> color;
    QByteArray converted;
    QDataStream out(&converted, QIODevice::WriteOnly);
    out << QBrush(color);
    return converted;
}

void makeEdited(ShapeDriver &shape, int edits)
{
    shape.createByDrag(QSizeF(183.5, 147.25));
    shape.select();
    RandomEdits(shape, startValue).edit(edits);
}

} // namespace

class TestSaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void openedBytesSaveTheSame_data() { addShapeRows(); }
    void openedBytesSaveTheSame();
    void openedPointNextToItsNewPlaceSavesTheSame_data() { addShapeRows(); }
    void openedPointNextToItsNewPlaceSavesTheSame();
    void openedJsonSavesTheSame_data() { addShapeRows(); }
    void openedJsonSavesTheSame();
    void openedShapeLooksTheSame_data() { addShapeRows(); }
    void openedShapeLooksTheSame();
    void openedShapeIsHitWhereItWas_data() { addShapeRows(); }
    void openedShapeIsHitWhereItWas();
    void editsAreUndoneAndRedoneToTheByte_data() { addShapeRows(); }
    void editsAreUndoneAndRedoneToTheByte();
    void formOfBeforeComesBackAfterOtherSizes_data() { addShapeRows(); }
    void formOfBeforeComesBackAfterOtherSizes();
    void playbackEqualsTheLesson_data() { addShapeRows(); }
    void playbackEqualsTheLesson();
    void damagedBytesAreSurvived_data() { addShapeRows(); }
    void damagedBytesAreSurvived();

private:
    void addShapeRows();
};

void TestSaving::addShapeRows()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : shapetest::allShapeNames())
        QTest::newRow(qPrintable(name)) << name;
}

void TestSaving::openedBytesSaveTheSame()
{
    QFETCH(QString, name);
    ShapeDriver original(name);
    makeEdited(original, editCount);
    const QByteArray saved = savedBytes(original);
    ShapeDriver copy(name);
    QDataStream in(saved);
    QVERIFY(copy.object().load(in));
    QVERIFY(in.atEnd());
    QCOMPARE(in.status(), QDataStream::Ok);
    QCOMPARE(savedBytes(copy), saved);
}

void TestSaving::openedPointNextToItsNewPlaceSavesTheSame()
{
    // Corners a rounding error away from those of a new shape, as zooming leaves them.
    QFETCH(QString, name);
    ShapeDriver original(name);
    original.createByClick();
    for (int number = 1; number <= original.controlPointCount(); ++number) {
        QZeSvgNode *point = original.document().namedNode(QStringLiteral("control_%1").arg(number));
        const QPointF corner = point->boundingRect().topLeft();
        point->setNumericAttribute(QStringLiteral("x"), std::nextafter(corner.x(), 1e6));
        point->setNumericAttribute(QStringLiteral("y"), std::nextafter(corner.y(), -1e6));
        QVERIFY(point->boundingRect().x() > corner.x());
        QVERIFY(point->boundingRect().y() < corner.y());
    }
    const QByteArray saved = savedBytes(original);
    ShapeDriver copy(name);
    QDataStream in(saved);
    QVERIFY(copy.object().load(in));
    QCOMPARE(savedBytes(copy), saved);
}

void TestSaving::openedJsonSavesTheSame()
{
    QFETCH(QString, name);
    ShapeDriver original(name);
    makeEdited(original, editCount);
    const QByteArray saved = savedJson(original);
    ShapeDriver copy(name);
    QJsonObject object = QJsonDocument::fromJson(saved).object();
    QVERIFY(copy.object().loadJson(object));
    QCOMPARE(savedJson(copy), saved);
}

void TestSaving::openedShapeLooksTheSame()
{
    QFETCH(QString, name);
    ShapeDriver original(name);
    makeEdited(original, editCount);
    ShapeDriver copy(name);
    const QByteArray saved = savedBytes(original);
    QDataStream in(saved);
    copy.object().load(in);
    QCOMPARE(copy.geometry(), original.geometry());
    original.object().setSelected(false);
    QCOMPARE(copy.painted(), original.painted());
}

void TestSaving::openedShapeIsHitWhereItWas()
{
    QFETCH(QString, name);
    ShapeDriver original(name);
    makeEdited(original, editCount);
    ShapeDriver copy(name);
    const QByteArray saved = savedBytes(original);
    QDataStream in(saved);
    copy.object().load(in);
    const QRectF bounds = copy.object().boundingRect();
    const QPainterPath region = copy.object().shape();
    // Whoever asks may be looking through the scene, which must not be rearranged then.
    QCOMPARE(copy.object().boundingRect(), bounds);
    original.object().notifyOutlineRegionChanged();
    QCOMPARE(region, original.object().shape());
}

void TestSaving::editsAreUndoneAndRedoneToTheByte()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByDrag(QSizeF(183.5, 147.25));
    shape.select();
    RandomEdits edits(shape, startValue);
    QVector<QByteArray> states{savedBytes(shape)};
    while (states.size() <= undoneEditCount) {
        const int before = shape.undoStack().count();
        edits.edit();
        // Properties that the shape doesn't offer make no step.
        if (shape.undoStack().count() == before)
            continue;
        QCOMPARE(shape.undoStack().count(), before + 1);
        states.append(savedBytes(shape));
    }
    // Back and forth at random, and all the way in the end.
    std::mt19937 random(startValue);
    int present = states.size() - 1;
    for (int i = 0; i < 4 * undoneEditCount; ++i) {
        const bool back = i < 2 * undoneEditCount ? random() % 2 : i < 3 * undoneEditCount;
        if (back ? present == 0 : present == states.size() - 1)
            continue;
        back ? shape.undoStack().undo() : shape.undoStack().redo();
        present += back ? -1 : 1;
        if (savedBytes(shape) != states.at(present))
            QFAIL(qPrintable(QStringLiteral("state %1 after %2 steps").arg(present).arg(i)));
    }
}

void TestSaving::formOfBeforeComesBackAfterOtherSizes()
{
    // The page object grows between edit and undo: the form of before comes back, at the new size.
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByDrag(QSizeF(150, 150));
    shape.select();
    const QString before = shape.geometry();
    const QSizeF size = shape.object().getClientRect().size();
    RandomEdits(shape, startValue).edit(editCount);
    shape.object().setSize(size * 2, false, true);
    shape.object().setSize(size, false, true);
    while (shape.undoStack().canUndo())
        shape.undoStack().undo();
    QCOMPARE(shape.geometry(), before);
}

void TestSaving::playbackEqualsTheLesson()
{
    QFETCH(QString, name);
    ShapeDriver live(name);
    live.createByDrag(QSizeF(183.5, 147.25));
    live.select();
    QByteArray start;
    QDataStream out(&start, QIODevice::WriteOnly);
    live.object().SavePropertyForPlayback(out);
    const QByteArray saved = savedBytes(live);

    RecordedActions lesson;
    RandomEdits(live, startValue).edit(editCount);
    QVERIFY(lesson.actions.size() >= editCount / 2);

    ShapeDriver player(name);
    QDataStream in(saved);
    player.object().load(in);
    QDataStream snapshot(start);
    QVERIFY(player.object().LoadPropertyForPlayback(snapshot));
    QCOMPARE(savedBytes(player), saved);
    const int recorded = lesson.actions.size();
    for (int i = 0; i < recorded; ++i) {
        const int action = lesson.actions.at(i).first;
        pagehost::replayAction(&player.object(), action, payloadToReplay(action, lesson.actions.at(i).second));
    }
    QCOMPARE(lesson.actions.size(), recorded);
    QCOMPARE(savedBytes(player), savedBytes(live));
    live.object().setSelected(false);
    player.core().invalidate();
    live.core().invalidate();
    QCOMPARE(player.painted(), live.painted());
    QCOMPARE(player.paintedElsewhere(), live.paintedElsewhere());
}

void TestSaving::damagedBytesAreSurvived()
{
    QFETCH(QString, name);
    ShapeDriver original(name);
    makeEdited(original, editCount);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    original.core().save(out);
    std::mt19937 random(startValue);
    for (int i = 0; i < damagedCount; ++i) {
        QByteArray damaged = bytes;
        if (i % 2)
            damaged.truncate(int(random() % unsigned(bytes.size())));
        else
            damaged[int(random() % unsigned(bytes.size()))] = char(random());
        ShapeDriver shape(name);
        shape.createByClick();
        QDataStream in(damaged);
        QVERIFY(shape.core().load(in));
        shape.core().invalidate();
        shape.object().setSize(QSizeF(100, 100), false, false);
        QVERIFY(shape.object().getClientRect().isValid());
    }
}

QTEST_MAIN(TestSaving)
#include "test_saving.moc"
