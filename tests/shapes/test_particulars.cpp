// Particulars of single shapes. Places are document units at the default size, worked out from the templates.

#include <shapes/shapedriver.h>

#include <shapekit/styledshape.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QJsonObject>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using shapetest::ShapeDriver;

namespace {

QPainterPath pathOf(const ShapeDriver &shape, const char *id)
{
    return shape.document().namedNode(QLatin1String(id))->path();
}

void answer(const ShapeDriver &shape, const char *json)
{
    shape.object().SetSettingJson(QString::fromUtf8(json), true, true);
}

/// Of the labels that are shown.
QStringList textsOf(const ShapeDriver &shape)
{
    QStringList texts;
    const auto labels = dynamic_cast<shapekit::StyledShape &>(shape.core()).labelPlaces();
    for (const shapekit::LabelPlace &label : labels)
        texts.append(label.text);
    return texts;
}

bool isNear(QPointF a, QPointF b)
{
    return QLineF(a, b).length() < 0.01;
}

} // namespace

class TestParticulars : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void triangleRefusesToCollapse();
    void pieIsWhatLiesClockwiseBetweenItsPoints();
    void pieOfNothingIsAllOfIt();
    void pieOfAnEllipseKeepsItsAngles();
    void starHasItsCorners();
    void starKeepsItsDepthWithOtherCorners();
    void holeOfTheRingIsNoPartOfIt();
    void ringIsDrawnToScale();
    void hourHandGoesWithTheMinutes();
    void handsStandOnWholeMinutes();
    void clockShowsTheFaceChosen();
    void protractorGoesByDegrees();
    void protractorEndsAtItsBaseLine();
    void tableHasItsRowsAndColumns();
    void numberLineCountsFromItsFirstNumber();
    void markerOfTheNumberLineGoesFromNumberToNumber();
    void pointOfTheNumberLineStandsAtItsMarker();
    void axesGetMoreTicksNotLongerOnes();
    void axesOfADamagedSizeAreNotDrawn_data();
    void axesOfADamagedSizeAreNotDrawn();
    void springKeepsItsCoilsWhenPulled();
};

void TestParticulars::triangleRefusesToCollapse()
{
    ShapeDriver triangle(QStringLiteral("triangle"));
    triangle.createByClick();
    triangle.select();
    triangle.holdControlPoint(1, QPointF(0, 80));
    QVERIFY(isNear(triangle.controlPoint(1).center(), QPointF(60, 88)));
    // Half a unit above the line between the other two is too near.
    triangle.moveTo(QPointF(60, 95.5));
    QVERIFY(isNear(triangle.controlPoint(1).center(), QPointF(60, 88)));
}

void TestParticulars::pieIsWhatLiesClockwiseBetweenItsPoints()
{
    ShapeDriver pie(QStringLiteral("pie"));
    pie.createByClick();
    // From the top clockwise to the left: all but the upper left quarter.
    QVERIFY(pathOf(pie, "figure").contains(QPointF(80, 30)));
    QVERIFY(pathOf(pie, "figure").contains(QPointF(30, 80)));
    QVERIFY(!pathOf(pie, "figure").contains(QPointF(30, 30)));
    pie.select();
    pie.dragTo(2, QPointF(200, 55));
    // Now to the right: a quarter.
    QVERIFY(isNear(pie.controlPoint(2).center(), QPointF(106, 55)));
    QVERIFY(pathOf(pie, "figure").contains(QPointF(80, 30)));
    QVERIFY(!pathOf(pie, "figure").contains(QPointF(30, 80)));
}

void TestParticulars::pieOfNothingIsAllOfIt()
{
    ShapeDriver pie(QStringLiteral("pie"));
    pie.createByClick();
    pie.select();
    pie.dragTo(2, QPointF(55, 0));
    QVERIFY(isNear(pie.controlPoint(2).center(), QPointF(55, 4)));
    for (const QPointF point : {QPointF(30, 30), QPointF(80, 30), QPointF(30, 80), QPointF(80, 80)})
        QVERIFY(pathOf(pie, "figure").contains(point));
}

void TestParticulars::pieOfAnEllipseKeepsItsAngles()
{
    ShapeDriver pie(QStringLiteral("pie"));
    pie.createByClick();
    pie.object().setSize(QSizeF(310, 110), false, true);
    QVERIFY(isNear(pie.controlPoint(1).center(), QPointF(155, 4)));
    QVERIFY(isNear(pie.controlPoint(2).center(), QPointF(4, 55)));
}

void TestParticulars::starHasItsCorners()
{
    ShapeDriver star(QStringLiteral("star"));
    star.createByClick();
    QCOMPARE(pathOf(star, "figure").elementCount(), 11);
    answer(star, "{\"idCorners\": \"7\"}");
    QCOMPARE(pathOf(star, "figure").elementCount(), 15);
    answer(star, "{\"idCorners\": \"99\"}");
    QCOMPARE(pathOf(star, "figure").elementCount(), 49);
}

void TestParticulars::starKeepsItsDepthWithOtherCorners()
{
    ShapeDriver star(QStringLiteral("star"));
    star.createByClick();
    answer(star, "{\"idCorners\": \"6\"}");
    // Of six corners the first between two is at 30 degrees: 0.42 of the half sides 60 and 58.
    QVERIFY(isNear(star.controlPoint(1).center(), QPointF(60 + 0.42 * 60 * 0.5, 58 - 0.42 * 58 * std::sqrt(0.75))));
}

void TestParticulars::holeOfTheRingIsNoPartOfIt()
{
    ShapeDriver ring(QStringLiteral("ring"));
    ring.createByClick();
    QCOMPARE(ring.colorAt(QPoint(55, 55)), QColor(Qt::white));
    QCOMPARE(ring.colorAt(QPoint(12, 55)), ring.core().getFillBrush().color());
    QVERIFY(!ring.object().shape().contains(QPointF(55, 55)));
}

void TestParticulars::ringIsDrawnToScale()
{
    ShapeDriver ring(QStringLiteral("ring"));
    ring.createByClick();
    answer(ring, "{\"idScale1\": \"2\"}");
    // Half as large about the middle at 55: from 27.5 to 82.5, the hole from 40 to 70.
    QCOMPARE(ring.colorAt(QPoint(12, 55)), QColor(Qt::white));
    QCOMPARE(ring.colorAt(QPoint(34, 55)), ring.core().getFillBrush().color());
    QVERIFY(!ring.object().shape().contains(QPointF(12, 55)));
    QVERIFY(ring.object().shape().contains(QPointF(34, 55)));
}

void TestParticulars::hourHandGoesWithTheMinutes()
{
    ShapeDriver clock(QStringLiteral("clock"));
    clock.createByClick();
    clock.select();
    // Ten past ten at first; to half past: the hour hand is half way from ten to eleven, at 315 degrees, 22 out.
    clock.dragTo(2, QPointF(60, 96));
    const double diagonal = 22 * std::sqrt(0.5);
    QVERIFY(isNear(clock.controlPoint(1).center(), QPointF(60 - diagonal, 60 - diagonal)));
    // The full hour: it is at ten.
    clock.dragTo(2, QPointF(60, 20));
    QVERIFY(isNear(clock.controlPoint(1).center(), QPointF(60 - 22 * std::sqrt(0.75), 60 - 11)));
}

void TestParticulars::handsStandOnWholeMinutes()
{
    ShapeDriver clock(QStringLiteral("clock"));
    clock.createByClick();
    clock.select();
    // 8 degrees from the right are nearest to 16 minutes, 96 degrees from the top.
    clock.dragTo(2, QPointF(60 + 30 * std::cos(8 * M_PI / 180), 60 + 30 * std::sin(8 * M_PI / 180)));
    QVERIFY(isNear(clock.controlPoint(2).center(),
                   QPointF(60 + 36 * std::cos(6 * M_PI / 180), 60 + 36 * std::sin(6 * M_PI / 180))));
}

void TestParticulars::clockShowsTheFaceChosen()
{
    ShapeDriver clock(QStringLiteral("clock"));
    clock.createByClick();
    const auto shows = [&](const char *id) { return clock.document().namedNode(QLatin1String(id))->isVisible(); };
    QVERIFY(shows("digits") && !shows("roman"));
    QCOMPARE(textsOf(clock).join(QLatin1Char(' ')), QStringLiteral("1 2 3 4 5 6 7 8 9 10 11 12"));
    answer(clock, "{\"idFace\": \"1\"}");
    QVERIFY(!shows("digits") && shows("roman"));
    QCOMPARE(textsOf(clock).join(QLatin1Char(' ')), QStringLiteral("I II III IV V VI VII VIII IX X XI XII"));
    answer(clock, "{\"idFace\": \"2\"}");
    QCOMPARE(textsOf(clock), QStringList());
    QVERIFY(!shows("digits") && !shows("roman"));
}

void TestParticulars::protractorGoesByDegrees()
{
    ShapeDriver protractor(QStringLiteral("protractor"));
    protractor.createByClick();
    protractor.select();
    // 60.4 degrees are 60; 78 out from the middle at 100, 94.
    const double angle = 60.4 * M_PI / 180;
    protractor.dragTo(1, QPointF(100 + 50 * std::cos(angle), 94 - 50 * std::sin(angle)));
    QVERIFY(isNear(protractor.controlPoint(1).center(), QPointF(139, 94 - 78 * std::sqrt(0.75))));
}

void TestParticulars::protractorEndsAtItsBaseLine()
{
    ShapeDriver protractor(QStringLiteral("protractor"));
    protractor.createByClick();
    protractor.select();
    protractor.dragTo(1, QPointF(150, 108));
    QVERIFY(isNear(protractor.controlPoint(1).center(), QPointF(178, 94)));
    protractor.dragTo(1, QPointF(50, 108));
    QVERIFY(isNear(protractor.controlPoint(1).center(), QPointF(22, 94)));
}

void TestParticulars::tableHasItsRowsAndColumns()
{
    ShapeDriver table(QStringLiteral("table"));
    table.createByClick();
    // The head's line, and two each between three rows and three columns; a line has two elements.
    QCOMPARE(pathOf(table, "lines").elementCount(), 2 * 5);
    answer(table, "{\"idRows\": \"6\", \"idColumns\": \"1\"}");
    QCOMPARE(pathOf(table, "lines").elementCount(), 2 * 6);
    QCOMPARE(table.undoStack().count(), 1);
}

void TestParticulars::numberLineCountsFromItsFirstNumber()
{
    ShapeDriver line(QStringLiteral("numberline"));
    line.createByClick();
    QCOMPARE(pathOf(line, "ticks").elementCount(), 22);
    QCOMPARE(textsOf(line).join(QLatin1Char(' ')), QStringLiteral("0 1 2 3 4 5 6 7 8 9 10"));
    answer(line, "{\"idFirstNumber\": \"-100\", \"idStep\": \"0.5\"}");
    QCOMPARE(textsOf(line).mid(0, 3).join(QLatin1Char(' ')), QStringLiteral("-100 -99.5 -99"));
    // Where there is no room each fifth number stays, and none in the end.
    line.object().setSize(QSizeF(150, 52), false, true);
    QCOMPARE(textsOf(line).join(QLatin1Char(' ')), QStringLiteral("-100 -97.5 -95"));
    line.object().setSize(QSizeF(70, 52), false, true);
    QCOMPARE(textsOf(line), QStringList());
}

void TestParticulars::markerOfTheNumberLineGoesFromNumberToNumber()
{
    ShapeDriver line(QStringLiteral("numberline"));
    line.createByClick();
    line.select();
    // Its numbers are 26.4 apart, the first one at 12.
    QVERIFY(isNear(line.controlPoint(1).center(), {91.2, 18}));
    line.dragControlPoint(1, QPointF(40, 0));
    QVERIFY(isNear(line.controlPoint(1).center(), {144, 18}));
    line.dragControlPoint(1, QPointF(500, 0));
    QVERIFY(isNear(line.controlPoint(1).center(), {276, 18}));
    answer(line, "{\"idMarkerGoes\": \"1\"}");
    line.dragControlPoint(1, QPointF(-4, 0));
    QVERIFY(isNear(line.controlPoint(1).center(), {270.72, 18}));
    // It goes to where it was put, 4 before the end.
    answer(line, "{\"idMarkerGoes\": \"2\"}");
    QVERIFY(isNear(line.controlPoint(1).center(), {272, 18}));
    line.dragControlPoint(1, QPointF(-1, 0));
    QVERIFY(isNear(line.controlPoint(1).center(), {271, 18}));
}

/// The tip of the marker is 2 above the line, 2 below the middle; its point stands 8 higher.
void TestParticulars::pointOfTheNumberLineStandsAtItsMarker()
{
    ShapeDriver line(QStringLiteral("numberline"));
    line.createByClick();
    for (const QSizeF size : {QSizeF(300, 52), QSizeF(300, 200), QSizeF(500, 40)}) {
        line.object().setSize(size, false, true);
        line.painted();
        const QPointF centre = line.controlPoint(1).center();
        QVERIFY(pathOf(line, "marker").contains(centre));
        QVERIFY(isNear(centre, {12 + (size.width() - 36) * 0.3, size.height() / 2 - 8}));
    }
}

void TestParticulars::axesGetMoreTicksNotLongerOnes()
{
    ShapeDriver axes(QStringLiteral("axes"));
    axes.createByClick();
    const QPainterPath before = pathOf(axes, "ticks");
    axes.object().setSize(QSizeF(400, 180), false, true);
    // 200 more to the right are ten more ticks of two elements each, whatever moves with the origin.
    const int more = pathOf(axes, "ticks").elementCount() - before.elementCount();
    QVERIFY2(more >= 18 && more <= 22, qPrintable(QString::number(more)));
    answer(axes, "{\"idGrid\": \"false\"}");
    QVERIFY(pathOf(axes, "grid").isEmpty());
}

void TestParticulars::axesOfADamagedSizeAreNotDrawn_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<QRectF>("figure");
    const QRectF drawn(QPointF(3, 5), QPointF(395, 297));
    QTest::newRow("whole") << QSizeF(400, 300) << QPointF(40, 100) << drawn;
    // Control points come back to where they may be.
    QTest::newRow("far to the left") << QSizeF(400, 300) << QPointF(-1e13, 100) << drawn;
    QTest::newRow("far up") << QSizeF(400, 300) << QPointF(40, -1e13) << drawn;
    // A tick every 20 units would take the memory of several machines. What is not drawn is the template's.
    const QRectF templates(QPointF(3, 5), QPointF(195, 177));
    QTest::newRow("wide") << QSizeF(1e13, 300) << QPointF(40, 100) << templates;
    QTest::newRow("high") << QSizeF(400, 1e13) << QPointF(40, 100) << templates;
    QTest::newRow("without a width") << QSizeF(0, 300) << QPointF(40, 100) << templates;
    QTest::newRow("of a negative height") << QSizeF(400, -300) << QPointF(40, 100) << templates;
}

void TestParticulars::axesOfADamagedSizeAreNotDrawn()
{
    QFETCH(QSizeF, size);
    QFETCH(QPointF, place);
    QFETCH(QRectF, figure);
    ShapeDriver original(QStringLiteral("axes"));
    original.createByClick();
    QJsonObject saved;
    original.object().saveJson(saved);
    saved[QStringLiteral("SVG_viewBox")] =
        QJsonObject{{"x", 0}, {"y", 0}, {"width", size.width()}, {"height", size.height()}};
    saved[QStringLiteral("SVG_PosX_1")] = place.x();
    saved[QStringLiteral("SVG_PosY_1")] = place.y();
    ShapeDriver axes(QStringLiteral("axes"));
    axes.object().loadJson(saved);
    axes.painted();
    QCOMPARE(axes.document().viewBox().size(), size);
    QCOMPARE(pathOf(axes, "figure").controlPointRect(), figure);
}

void TestParticulars::springKeepsItsCoilsWhenPulled()
{
    ShapeDriver spring(QStringLiteral("spring"));
    spring.createByClick();
    spring.select();
    const QPainterPath before = pathOf(spring, "figure");
    spring.dragControlPoint(1, QPointF(-40, 0));
    QCOMPARE(pathOf(spring, "figure").elementCount(), before.elementCount());
    QVERIFY(qAbs(before.boundingRect().width() - pathOf(spring, "figure").boundingRect().width() - 40) < 0.01);
    answer(spring, "{\"idCoils\": \"12\"}");
    QCOMPARE(pathOf(spring, "figure").elementCount(), before.elementCount() + 2 * 4);
}

QTEST_MAIN(TestParticulars)
#include "test_particulars.moc"
