// Fills that are more than a colour, and the colours that replace them.

#include <shapes/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <framework/cpagebgprop.h>

#include <support/listed.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtGui/QPixmap>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using namespace shapetest;

namespace {

CPageBgProp richFill(int type)
{
    CPageBgProp fill(nullptr);
    fill.setFillType(type);
    fill.setFillColor(Qt::red);
    fill.setGradientColor(Qt::blue);
    fill.setPattern(Qt::CrossPattern);
    QPixmap picture(2, 2);
    picture.fill(Qt::yellow);
    fill.setPixmap(picture);
    fill.setFillEnable(true);
    return fill;
}

QByteArray savedBytes(const ShapeDriver &shape)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    shape.object().save(out);
    return bytes;
}

void fillWith(const ShapeDriver &shape, const QColor &color)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << QBrush(color);
    QDataStream in(&bytes, QIODevice::ReadWrite);
    shape.object().SetAttribute(PROP_SVG_FILLCOLOR, in, true);
}

void answerWith(const ShapeDriver &shape, const QColor &color)
{
    const QJsonObject answer{{QStringLiteral("idFillColor"), color.name(QColor::HexArgb)}};
    shape.object().SetSettingJson(QString::fromUtf8(QJsonDocument(answer).toJson()), true, true);
}

void offersFills()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    for (const QString &name : support::listed(allShapeNames())) {
        ShapeDriver shape(name);
        shape.createByClick();
        if (!shape.core().findPropItemByPropID(PROP_SVG_FILLCOLOR))
            continue;
        QTest::newRow(qPrintable(name + ", gradient")) << name << int(CPageBgProp::GradientFill);
        QTest::newRow(qPrintable(name + ", pattern")) << name << int(CPageBgProp::PatternFill);
        QTest::newRow(qPrintable(name + ", picture")) << name << int(CPageBgProp::PictureFill);
    }
}

/// Replaces the fill by green, and goes back and forth.
void replaceAndUndo(const ShapeDriver &shape, void (*fill)(const ShapeDriver &, const QColor &))
{
    const QByteArray before = savedBytes(shape);
    const QImage look = shape.painted();
    const QImage kept = shape.paintedElsewhere();
    fill(shape, Qt::green);
    QCOMPARE(shape.undoStack().count(), 1);
    const QByteArray after = savedBytes(shape);
    const QImage greenLook = shape.painted();
    QVERIFY(after != before);
    QVERIFY(greenLook != look);
    for (int round = 0; round < 2; ++round) {
        shape.undoStack().undo();
        QCOMPARE(savedBytes(shape), before);
        QCOMPARE(shape.painted(), look);
        QCOMPARE(shape.paintedElsewhere(), kept);
        shape.undoStack().redo();
        QCOMPARE(savedBytes(shape), after);
        QCOMPARE(shape.painted(), greenLook);
    }
}

/// The same of a new shape with a fill of that type.
void replaceRichFillAndUndo(const QString &name, int type, void (*fill)(const ShapeDriver &, const QColor &))
{
    ShapeDriver shape(name);
    shape.createByClick();
    CPageBgProp rich = richFill(type);
    shape.object().setFillProp(&rich, false);
    shape.core().invalidate();
    shape.undoStack().clear();
    replaceAndUndo(shape, fill);
}

} // namespace

class TestFills : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aColourThatReplacesARichFillIsUndone_data() { offersFills(); }
    void aColourThatReplacesARichFillIsUndone();
    void anAnswerThatReplacesARichFillIsUndone_data() { offersFills(); }
    void anAnswerThatReplacesARichFillIsUndone();
    void aRichFillThatIsSwitchedOffIsNotSwitchedOn_data();
    void aRichFillThatIsSwitchedOffIsNotSwitchedOn();
    void oneGradientRunsOverBothGears();
    void theGradientStaysWhenTeethChange();
    void aDamagedFillDoesNotBlackenAShape_data();
    void aDamagedFillDoesNotBlackenAShape();
};

void TestFills::aColourThatReplacesARichFillIsUndone()
{
    QFETCH(QString, name);
    QFETCH(int, type);
    replaceRichFillAndUndo(name, type, fillWith);
}

void TestFills::anAnswerThatReplacesARichFillIsUndone()
{
    QFETCH(QString, name);
    QFETCH(int, type);
    replaceRichFillAndUndo(name, type, answerWith);
}

void TestFills::aDamagedFillDoesNotBlackenAShape_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("filled by the page object") << "roundedrectangle";
    QTest::newRow("filled by its document") << "gears";
}

void TestFills::aDamagedFillDoesNotBlackenAShape()
{
    QFETCH(const QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    fillWith(shape, Qt::yellow);
    shape.undoStack().clear();
    const QByteArray before = savedBytes(shape);
    const QImage look = shape.painted();
    QByteArray solid;
    QDataStream out(&solid, QIODevice::WriteOnly);
    out << QBrush(Qt::green);
    const QByteArray noStyle = QByteArray(1, char(200)) + solid.mid(1);
    for (const QByteArray &damaged : {QByteArray(), solid.left(5), solid.chopped(1), noStyle}) {
        QDataStream replayed(damaged);
        QVERIFY(!shape.core().DoPlaybackActionEx(1005, replayed));
        QDataStream set(damaged);
        QVERIFY(!shape.core().SetAttribute(PROP_SVG_FILLCOLOR, set, true, true));
        QDataStream special(damaged);
        QVERIFY(!shape.core().SetSpecialProperty(PROP_SVG_FILLCOLOR, special, false));
        QCOMPARE(savedBytes(shape), before);
        QCOMPARE(shape.painted(), look);
        QCOMPARE(shape.undoStack().count(), 0);
    }
    QDataStream whole(solid);
    QVERIFY(shape.core().DoPlaybackActionEx(1005, whole));
    QVERIFY(shape.painted() != look);
}

void TestFills::aRichFillThatIsSwitchedOffIsNotSwitchedOn_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("filled by the page object") << "roundedrectangle";
    QTest::newRow("filled by its document") << "gears";
}

void TestFills::aRichFillThatIsSwitchedOffIsNotSwitchedOn()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    CPageBgProp fill = richFill(CPageBgProp::GradientFill);
    fill.setFillEnable(false);
    shape.object().setFillProp(&fill, false);
    shape.core().invalidate();
    shape.undoStack().clear();
    const QImage look = shape.painted();
    fillWith(shape, Qt::green);
    QVERIFY(shape.painted() != look);
    shape.undoStack().undo();
    QCOMPARE(shape.painted(), look);
}

// Red at the left edge of 140 units, blue at the right one.
void TestFills::oneGradientRunsOverBothGears()
{
    ShapeDriver shape(QStringLiteral("gears"));
    shape.createByClick();
    QCOMPARE(shape.object().getClientRect().size(), QSizeF(140, 96));
    CPageBgProp fill = richFill(CPageBgProp::GradientFill);
    shape.object().setFillProp(&fill, false);
    for (const QPoint point : {QPoint(20, 55), QPoint(45, 40), QPoint(80, 60), QPoint(110, 50)}) {
        const QColor color = shape.colorAt(point);
        const double share = (point.x() + 0.5) / 140;
        constexpr int rounding = 3;
        QVERIFY(qAbs(color.red() - 255 * (1 - share)) <= rounding);
        QVERIFY(qAbs(color.blue() - 255 * share) <= rounding);
    }
}

void TestFills::theGradientStaysWhenTeethChange()
{
    ShapeDriver shape(QStringLiteral("gears"));
    shape.createByClick();
    CPageBgProp fill = richFill(CPageBgProp::GradientFill);
    shape.object().setFillProp(&fill, false);
    const QColor before = shape.colorAt(QPoint(80, 60));
    shape.object().SetSettingJson(QStringLiteral("{\"idDrivingteeth\": \"20\"}"), false, false);
    QCOMPARE(shape.colorAt(QPoint(80, 60)), before);
}

QTEST_MAIN(TestFills)
#include "test_fills.moc"
