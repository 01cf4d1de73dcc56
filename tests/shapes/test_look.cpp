// Pen and fill, as the host's panels set them.

#include <checklist/recordedactions.h>
#include <shapes/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <framework/cpagebgprop.h>
#include <pagehost/style.h>

#include <svgbase/qzesvgtinydocument.h>

#include <support/listed.h>

#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using checklist::RecordedActions;
using shapetest::ShapeDriver;

class TestLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fillColorReachesObjectAndPixels_data();
    void fillColorReachesObjectAndPixels();
    void fillColorIsUndoneAndRedone_data();
    void fillColorIsUndoneAndRedone();
    void blackCanBeChosenAndTakenBack_data();
    void blackCanBeChosenAndTakenBack();
    void fillIsRecordedAsItsColor_data();
    void fillIsRecordedAsItsColor();
    void halfTransparentFillKeepsItsAlpha();
    void hostFillReachesThePictureOfOtherThreads_data();
    void hostFillReachesThePictureOfOtherThreads();
    void gradientOfTheHostIsShownInsideTheFigureOnly();
    void disabledFillShowsThePage_data();
    void disabledFillShowsThePage();
    void noBrushSwitchesTheFillOffAndUndoBringsItBack_data();
    void noBrushSwitchesTheFillOffAndUndoBringsItBack();
    void penIsUndoneAndRedone_data();
    void penIsUndoneAndRedone();
    void penWidthKeepsTheForm_data();
    void penWidthKeepsTheForm();
    void decorationOfTheFlaskKeepsItsLook();
    void marksOfANewFlaskKeepTheirColor();
    void flaskThatIsAboutToBeLoadedKeepsItsDecoration();

private:
    void addShapeRows();
};

namespace {

/// A point that is filled in a new object of default size.
QPoint insideOf(const QString &name)
{
    return name == QLatin1String("flask") ? QPoint(60, 120) : QPoint(60, 45);
}

bool isNear(const QColor &a, const QColor &b)
{
    constexpr int tolerance = 3; // rounding of several layers
    return qAbs(a.red() - b.red()) <= tolerance && qAbs(a.green() - b.green()) <= tolerance &&
           qAbs(a.blue() - b.blue()) <= tolerance;
}

CPageBgProp solidFill(const QColor &color)
{
    CPageBgProp fill(nullptr);
    fill.setFillType(CPageBgProp::SolidFill);
    fill.setFillColor(color);
    fill.setFillEnable(true);
    return fill;
}

} // namespace

void TestLook::addShapeRows()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : support::listed(shapetest::shapeNames()))
        QTest::newRow(qPrintable(name)) << name;
}

void TestLook::fillColorReachesObjectAndPixels_data()
{
    addShapeRows();
}

void TestLook::fillColorReachesObjectAndPixels()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    const QColor red(220, 20, 60);
    QVERIFY(pagehost::setFill({&shape.object()}, red));
    QCOMPARE(shape.object().getFillProp()->fillColor(), red);
    QVERIFY(shape.object().getFillProp()->isFillEnable());
    QCOMPARE(shape.core().getFillBrush().color(), red);
    QCOMPARE(shape.colorAt(insideOf(name)), red);
    QCOMPARE(shape.paintedElsewhere().pixelColor(insideOf(name)), red);
}

void TestLook::fillColorIsUndoneAndRedone_data()
{
    addShapeRows();
}

void TestLook::fillColorIsUndoneAndRedone()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    const QImage first = shape.paintedElsewhere();
    pagehost::setFill({&shape.object()}, QColor(220, 20, 60));
    const QImage second = shape.paintedElsewhere();
    pagehost::setFill({&shape.object()}, QColor(30, 144, 255));
    const QImage third = shape.paintedElsewhere();
    QVERIFY(first != second && second != third);

    shape.undoStack().undo();
    QCOMPARE(shape.paintedElsewhere(), second);
    shape.undoStack().undo();
    QCOMPARE(shape.paintedElsewhere(), first);
    shape.undoStack().redo();
    QCOMPARE(shape.paintedElsewhere(), second);
    shape.undoStack().redo();
    QCOMPARE(shape.paintedElsewhere(), third);
}

void TestLook::blackCanBeChosenAndTakenBack_data()
{
    addShapeRows();
}

void TestLook::blackCanBeChosenAndTakenBack()
{
    // While a host-filled shape is painted its document holds an empty brush, whose colour is opaque black.
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    const QColor before = shape.colorAt(insideOf(name));
    pagehost::setFill({&shape.object()}, Qt::black);
    QCOMPARE(shape.colorAt(insideOf(name)), QColor(Qt::black));
    shape.undoStack().undo();
    QCOMPARE(shape.colorAt(insideOf(name)), before);
}

void TestLook::fillIsRecordedAsItsColor_data()
{
    addShapeRows();
}

void TestLook::fillIsRecordedAsItsColor()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    QByteArray expected;
    QDataStream out(&expected, QIODevice::WriteOnly);
    out << QColor(220, 20, 60);
    const RecordedActions recorded;
    shape.core().setFillBrush(QColor(220, 20, 60), true, false);
    QCOMPARE(recorded.actions.size(), 1);
    QCOMPARE(recorded.actions.first().first, int(ACT_SVG_FILLCOLOR));
    QCOMPARE(recorded.actions.first().second, expected);
    // The same colour again is no change.
    shape.core().setFillBrush(QColor(220, 20, 60), true, false);
    QCOMPARE(recorded.actions.size(), 1);
}

void TestLook::halfTransparentFillKeepsItsAlpha()
{
    ShapeDriver shape(QStringLiteral("roundedrectangle"));
    shape.createByClick();
    pagehost::setFill({&shape.object()}, QColor(200, 0, 0, 128));
    QCOMPARE(shape.object().getFillProp()->opacity(), 128);
    // 200 and 0 over white at 128/255.
    const QColor seen = shape.colorAt(QPoint(60, 45));
    QVERIFY(qAbs(seen.red() - 227) <= 1);
    QVERIFY(qAbs(seen.green() - 127) <= 1);
}

void TestLook::hostFillReachesThePictureOfOtherThreads_data()
{
    addShapeRows();
}

void TestLook::hostFillReachesThePictureOfOtherThreads()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    CPageBgProp fill = solidFill(QColor(0, 128, 64));
    shape.object().setFillProp(&fill, false);
    shape.core().invalidate();
    QCOMPARE(shape.paintedElsewhere().pixelColor(insideOf(name)), QColor(0, 128, 64));
}

void TestLook::gradientOfTheHostIsShownInsideTheFigureOnly()
{
    ShapeDriver shape(QStringLiteral("roundedrectangle"));
    shape.createByClick();
    CPageBgProp fill = solidFill(Qt::red);
    fill.setFillType(CPageBgProp::GradientFill);
    fill.setGradientColor(Qt::blue);
    fill.setGradientAngle(0);
    shape.object().setFillProp(&fill, false);
    // Without a word to the shape core: it repaints by itself.
    const QImage picture = shape.paintedElsewhere();
    const QColor left = picture.pixelColor(10, 40);
    const QColor right = picture.pixelColor(110, 40);
    QVERIFY(left.red() > left.blue());
    QVERIFY(right.blue() > right.red());
    QCOMPARE(picture.pixelColor(1, 1), QColor(Qt::white));
}

void TestLook::disabledFillShowsThePage_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"roundedrectangle", "blockarrow", "polygon"})
        QTest::newRow(name) << name;
}

void TestLook::disabledFillShowsThePage()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    CPageBgProp fill = solidFill(Qt::red);
    fill.setFillEnable(false);
    shape.object().setFillProp(&fill, false);
    QCOMPARE(shape.core().getFillBrush().style(), Qt::NoBrush);
    QCOMPARE(shape.colorAt(insideOf(name)), QColor(Qt::white));
}

void TestLook::noBrushSwitchesTheFillOffAndUndoBringsItBack_data()
{
    disabledFillShowsThePage_data();
}

void TestLook::noBrushSwitchesTheFillOffAndUndoBringsItBack()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    const QColor before = shape.colorAt(insideOf(name));
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << QBrush(Qt::NoBrush);
    QDataStream in(bytes);
    QVERIFY(shape.core().setInnerProperty(PROP_SVG_FILLCOLOR, in, false, true));
    QVERIFY(!shape.object().getFillProp()->isFillEnable());
    QCOMPARE(shape.colorAt(insideOf(name)), QColor(Qt::white));
    shape.undoStack().undo();
    QCOMPARE(shape.colorAt(insideOf(name)), before);
    QVERIFY(shape.object().getFillProp()->isFillEnable());
}

void TestLook::penIsUndoneAndRedone_data()
{
    addShapeRows();
}

void TestLook::penIsUndoneAndRedone()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    const QImage first = shape.paintedElsewhere();
    pagehost::setPenColor({&shape.object()}, Qt::darkGreen);
    const QImage second = shape.paintedElsewhere();
    pagehost::setPenWidth({&shape.object()}, 6);
    const QImage third = shape.paintedElsewhere();
    pagehost::setPenStyle({&shape.object()}, Qt::DashLine);
    const QImage fourth = shape.paintedElsewhere();
    QVERIFY(first != second && second != third && third != fourth);
    QCOMPARE(shape.core().getPenColor(), QColor(Qt::darkGreen));
    QCOMPARE(shape.core().getPenWidth(), 6);
    QCOMPARE(shape.core().getPenStyle(), Qt::DashLine);

    for (const QImage &expected : {third, second, first}) {
        shape.undoStack().undo();
        QCOMPARE(shape.paintedElsewhere(), expected);
    }
    for (const QImage &expected : {second, third, fourth}) {
        shape.undoStack().redo();
        QCOMPARE(shape.paintedElsewhere(), expected);
    }
}

void TestLook::penWidthKeepsTheForm_data()
{
    addShapeRows();
}

void TestLook::penWidthKeepsTheForm()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    shape.select();
    const QString before = shape.geometry();
    const QRectF controlPoint = shape.controlPoint(1);
    shape.core().setPenWidth(8, false);
    QCOMPARE(shape.controlPoint(1), controlPoint);
    shape.core().setPenWidth(name == QLatin1String("flask") ? 3 : 2, false);
    QCOMPARE(shape.geometry(), before);
}

void TestLook::decorationOfTheFlaskKeepsItsLook()
{
    ShapeDriver shape(QStringLiteral("flask"));
    shape.createByClick();
    const QString before =
        shape.document().namedNode(QStringLiteral("bubble_1"))->attribute(QStringLiteral("fill"));
    pagehost::setFill({&shape.object()}, QColor(220, 20, 60));
    pagehost::setPenColor({&shape.object()}, Qt::black);
    // A bubble is white at 55 % over the liquid: 0.55 × 255 + 0.45 × 20 is 149.
    const QColor bubble = shape.colorAt(QPoint(46, 138));
    QVERIFY(qAbs(bubble.green() - 149) <= 2);
    QCOMPARE(shape.document().namedNode(QStringLiteral("bubble_1"))->attribute(QStringLiteral("fill")), before);
    // Above the liquid the tint of the glass stays what it was: #e3f0f8 at 70 % over white.
    const QColor tint = shape.colorAt(QPoint(66, 70));
    QVERIFY(qAbs(tint.red() - 235) <= 2);
}

void TestLook::marksOfANewFlaskKeepTheirColor()
{
    ShapeDriver shape(QStringLiteral("flask"));
    shape.createByClick();
    // The mark covers three quarters of this row at 80 %: 0.6 of #5c7385, 0.4 of the liquid's #7fd0e6.
    const QColor expected(106, 152, 172);
    QVERIFY(isNear(shape.colorAt(QPoint(89, 127)), expected));
    pagehost::setPenColor({&shape.object()}, Qt::red);
    QVERIFY(isNear(shape.colorAt(QPoint(89, 127)), expected));
}

void TestLook::flaskThatIsAboutToBeLoadedKeepsItsDecoration()
{
    ShapeDriver shape(QStringLiteral("flask"));
    shape.createByClick();
    shape.object().createSVGBase(999, false);
    QVERIFY(shape.object().createSVGBase(30, false));
    pagehost::setFill({&shape.object()}, QColor(220, 20, 60));
    QVERIFY(isNear(shape.colorAt(QPoint(46, 138)), QColor(239, 149, 167)));
}

QTEST_MAIN(TestLook)
#include "test_look.moc"
