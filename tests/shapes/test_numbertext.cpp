// Shapes that keep their geometry as text: a callout that stretches path data, a curve that keeps a list of
// numbers. Expected texts and places are worked out from the templates and the rules of the two text formats.

#include <shapes/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using shapetest::ShapeDriver;

namespace {

constexpr int valuesId = 5101;

QString calloutPath(const ShapeDriver &shape)
{
    return shape.document().namedNode(QStringLiteral("figure"))->attribute(QStringLiteral("d"));
}

QString valuesOf(const ShapeDriver &shape)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    shape.core().getInnerProperty(valuesId, out);
    QString text;
    QDataStream in(bytes);
    in >> text;
    return text;
}

void writeValues(const ShapeDriver &shape, const QString &text)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << text;
    QDataStream in(bytes);
    shape.core().SetAttribute(valuesId, in, false, true);
}

double heightOf(const ShapeDriver &shape, int number)
{
    return shape.controlPoint(number).center().y();
}

/// Within the digits that path data has.
bool hasNumbers(const QString &text, const QVector<double> &expected)
{
    const QStringList words = text.simplified().split(QLatin1Char(' '));
    bool isEqual = words.size() == expected.size();
    for (int i = 0; isEqual && i < words.size(); ++i)
        isEqual = qAbs(words[i].toDouble() - expected[i]) < 1e-6;
    return isEqual;
}

} // namespace

class TestNumberText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void calloutOfItsOwnSizeIsAsInItsTemplate();
    void calloutGrowsBetweenItsCornersAndItsTail();
    void calloutShrinksToItsMinimum();
    void tailFollowsItsTip();
    void tailKeepsItsRootWidth();
    void widerPenMovesTheBalloonInwards();
    void writtenValuesMoveThePoints();
    void draggedPointWritesItsValue();
    void zeroStaysApartFromTheNumberBeforeIt();
    void valuesBeyondTheFrameAreLimited();
    void wordsAreNoValues();
    void undoOfADragGivesTheTextBack();
    void undoOfATextPutsThePointsBack();
    void valuesKeepTheirMeaningAtAnotherSize();
    void curveIsSmoothAndStaysBetweenItsPoints();
};

void TestNumberText::calloutOfItsOwnSizeIsAsInItsTemplate()
{
    ShapeDriver shape(QStringLiteral("callout"));
    shape.createByClick();
    QCOMPARE(calloutPath(shape), QStringLiteral("M11,1h120a10,10 0 0 1 10,10v60a10,10 0 0 1-10,10h-82l-25,25l5-25"
                                                "l-18,0a10,10 0 0 1-10-10v-60a10,10 0 0 1 10-10z"));
}

void TestNumberText::calloutGrowsBetweenItsCornersAndItsTail()
{
    ShapeDriver shape(QStringLiteral("callout"));
    shape.createByClick();
    shape.object().setSize(QSizeF(242.5, 212), false, false);
    QCOMPARE(calloutPath(shape),
             QStringLiteral("M11,1h220.5a10,10 0 0 1 10,10v160a10,10 0 0 1-10,10h-182.5l-25,25l5-25"
                            "l-18,0a10,10 0 0 1-10-10v-160a10,10 0 0 1 10-10z"));
}

void TestNumberText::calloutShrinksToItsMinimum()
{
    ShapeDriver shape(QStringLiteral("callout"));
    shape.createByClick();
    shape.object().setSize(QSizeF(1, 1), false, false);
    QCOMPARE(shape.object().getClientRect().size(), QSizeF(72, 60));
    // 70 less wide and 52 less high.
    QCOMPARE(calloutPath(shape), QStringLiteral("M11,1h50a10,10 0 0 1 10,10v8a10,10 0 0 1-10,10h-12l-25,25l5-25"
                                                "l-18,0a10,10 0 0 1-10-10v-8a10,10 0 0 1 10-10z"));
}

void TestNumberText::tailFollowsItsTip()
{
    ShapeDriver shape(QStringLiteral("callout"));
    shape.createByClick();
    shape.select();
    // From (24, 106) to (64, 96): 15 right of the root's right end and 15 below it.
    shape.dragControlPoint(1, QPointF(40, -10));
    QVERIFY2(calloutPath(shape).contains(QStringLiteral("h-82l15,15l-35-15l-18,0")),
             qPrintable(calloutPath(shape)));
}

void TestNumberText::tailKeepsItsRootWidth()
{
    ShapeDriver shape(QStringLiteral("callout"));
    shape.createByClick();
    for (const QSizeF size : {QSizeF(142, 112), QSizeF(500, 90), QSizeF(80, 400)}) {
        shape.object().setSize(size, false, false);
        const QPainterPath figure = shape.document().namedNode(QStringLiteral("figure"))->path();
        // Just below the balloon, whose lower edge is 31 above the frame's: inside the tail, and beside it.
        const double y = size.height() - 30.9;
        QVERIFY(figure.contains(QPointF(29.5, y)) && figure.contains(QPointF(48.5, y)));
        QVERIFY(!figure.contains(QPointF(28.5, y)) && !figure.contains(QPointF(49.5, y)));
    }
}

void TestNumberText::widerPenMovesTheBalloonInwards()
{
    ShapeDriver shape(QStringLiteral("callout"));
    shape.createByClick();
    shape.core().setPenWidth(6, false);
    QVERIFY2(calloutPath(shape).startsWith(QStringLiteral("M13,3h116a10,10 0 0 1 10,10v56a")),
             qPrintable(calloutPath(shape)));
}

void TestNumberText::writtenValuesMoveThePoints()
{
    ShapeDriver shape(QStringLiteral("curve"));
    shape.createByClick();
    writeValues(shape, QStringLiteral("0 5,-5 10 1e1 2.5-1"));
    QCOMPARE(valuesOf(shape), QStringLiteral("0 5 -5 10 10 2.5 -1 0 0 0 0 0"));
    // 120 high, 8 free at both ends: 5.2 for each unit from the middle at 60.
    const double heights[] = {60, 34, 86, 8, 8, 47, 65.2, 60};
    for (int i = 0; i < 8; ++i)
        QVERIFY(qAbs(heightOf(shape, i + 1) - heights[i]) < 1e-6);
}

void TestNumberText::draggedPointWritesItsValue()
{
    ShapeDriver shape(QStringLiteral("curve"));
    shape.createByClick();
    shape.select();
    writeValues(shape, QString());
    shape.dragControlPoint(3, QPointF(15, -13));
    QCOMPARE(valuesOf(shape), QStringLiteral("0 0 2.5 0 0 0 0 0 0 0 0 0"));
    QCOMPARE(shape.controlPoint(3).center(), QPointF(48, 47));
}

void TestNumberText::zeroStaysApartFromTheNumberBeforeIt()
{
    ShapeDriver shape(QStringLiteral("curve"));
    shape.createByClick();
    shape.select();
    writeValues(shape, QStringLiteral("5 2.5"));
    shape.dragControlPoint(2, QPointF(0, 13));
    QCOMPARE(valuesOf(shape), QStringLiteral("5 0 0 0 0 0 0 0 0 0 0 0"));
    QCOMPARE(heightOf(shape, 1), 34.0);
}

void TestNumberText::valuesBeyondTheFrameAreLimited()
{
    ShapeDriver shape(QStringLiteral("curve"));
    shape.createByClick();
    writeValues(shape, QStringLiteral("50 -1e999 -0 0.00004 0.00006"));
    QCOMPARE(valuesOf(shape), QStringLiteral("10 -10 0 0 0.0001 0 0 0 0 0 0 0"));
    QCOMPARE(heightOf(shape, 2), 112.0);
}

void TestNumberText::wordsAreNoValues()
{
    ShapeDriver shape(QStringLiteral("curve"));
    shape.createByClick();
    writeValues(shape, QStringLiteral("3 four 5"));
    QCOMPARE(valuesOf(shape), QStringLiteral("3 0 0 0 0 0 0 0 0 0 0 0"));
}

void TestNumberText::undoOfADragGivesTheTextBack()
{
    ShapeDriver shape(QStringLiteral("curve"));
    shape.createByClick();
    shape.select();
    writeValues(shape, QStringLiteral("0.1234 9.8765 -3.3333"));
    const QString before = valuesOf(shape);
    shape.dragControlPoint(2, QPointF(0, 33.3));
    QVERIFY(valuesOf(shape) != before);
    shape.undoStack().undo();
    QCOMPARE(valuesOf(shape), before);
}

void TestNumberText::undoOfATextPutsThePointsBack()
{
    ShapeDriver shape(QStringLiteral("curve"));
    shape.createByClick();
    const QString before = shape.geometry();
    writeValues(shape, QStringLiteral("1 2 3"));
    QVERIFY(shape.geometry() != before);
    shape.undoStack().undo();
    QCOMPARE(shape.geometry(), before);
}

void TestNumberText::valuesKeepTheirMeaningAtAnotherSize()
{
    ShapeDriver shape(QStringLiteral("curve"));
    shape.createByClick();
    writeValues(shape, QStringLiteral("5 -10"));
    shape.object().setSize(QSizeF(456, 216), false, false);
    // 10 for each unit from the middle at 108; 40 from one point to the next.
    QCOMPARE(shape.controlPoint(1).center(), QPointF(8, 58));
    QCOMPARE(shape.controlPoint(2).center(), QPointF(48, 208));
    QCOMPARE(valuesOf(shape), QStringLiteral("5 -10 0 0 0 0 0 0 0 0 0 0"));
}

// A third of the way between points is 20 / 3. At the left end the parabola through (8, 60), (28, 8) and (48, 8)
// has the slope -3.9; beside level pieces and where it turns the curve is level. Between slopes of -2.6 and -1.3 it
// has their harmonic mean, -26 / 15, and the right end -0.65.
void TestNumberText::curveIsSmoothAndStaysBetweenItsPoints()
{
    ShapeDriver shape(QStringLiteral("curve"));
    shape.createByClick();
    writeValues(shape, QStringLiteral("0 10 10 0 0 0 0 0 0 -10 0 5"));
    QString path = shape.document().namedNode(QStringLiteral("figure"))->attribute(QStringLiteral("d"));
    const QStringList pieces = path.remove(QLatin1Char('M')).split(QLatin1Char('C'));
    QCOMPARE(pieces.size(), 12);
    QVERIFY(hasNumbers(pieces[0], {8, 60}));
    QVERIFY(hasNumbers(pieces[1], {8 + 20 / 3.0, 34, 28 - 20 / 3.0, 8, 28, 8}));
    QVERIFY(hasNumbers(pieces[2], {28 + 20 / 3.0, 8, 48 - 20 / 3.0, 8, 48, 8}));
    QVERIFY(hasNumbers(pieces[3], {48 + 20 / 3.0, 8, 68 - 20 / 3.0, 60, 68, 60}));
    const double rise = 20 / 3.0 * 26 / 15;
    QVERIFY(hasNumbers(pieces[10], {188 + 20 / 3.0, 112, 208 - 20 / 3.0, 60 + rise, 208, 60}));
    QVERIFY(hasNumbers(pieces[11], {208 + 20 / 3.0, 60 - rise, 228 - 20 / 3.0, 34 + 13 / 3.0, 228, 34}));
}

QTEST_MAIN(TestNumberText)
#include "test_numbertext.moc"
