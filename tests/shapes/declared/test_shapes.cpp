// Shapes that come with the plug-in as files. Places are document units, worked out from the rules of the files.

#include "drivenshape.h"

#include <svgobj/csvgbase.h>

#include <QtTest/QtTest>

using namespace declaredtest;

class TestShapes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pointsGoAsFarAsTheirShapeLetsThem_data();
    void pointsGoAsFarAsTheirShapeLetsThem();
    void legOfAnAngleEndsBeforeTheVertex();
    void angleIsCountedFromTheFirstLegToTheSecond();
    void rightAngleHasASquare();
    void wavesReachTheFrame();
    void cloudFillsItsFrame();
    void heartKeepsItsFrameWhenItsNotchGoesDown();
    void fractionBarMarksTheParts();
    void fractionCircleMarksTheSectors();
    void thermometerIsFilledUpToItsPoint();
    void beakerAndTestTubeAreFilledUpToTheirPoint_data();
    void beakerAndTestTubeAreFilledUpToTheirPoint();
    void pansHangFromTheBeam();
    void shorterLeverNeedsMoreForce();
    void blockStandsOnTheRamp();
    void forcesOfTheRampDisappear();
    void lensBulgesOrIsHollow();
    void raysOfTheLensMeetInItsFocus();
    void rayHitsThePrismAtItsPoint();
    void resistorIsABoxOrAZigzag();
    void lampShinesWhenItIsOn();
    void closedSwitchIsALine();
    void batteryHasItsCells();
    void pointerOfTheGaugeFollowsItsPoint();
    void endsOfATerminatorAreRound();
    void documentEndsInAWave();
    void barsOfASubroutineMirrorEachOther();
    void setsOverlapAsFarAsTheirPointSays();
    void markedSetIsTheChosenOne_data();
    void markedSetIsTheChosenOne();
    void plantCellHasAWall();
    void leafIsAsWideAsItsPoint();
    void shapesHaveNamesInBothLanguages();
    void circuitSymbolsReachBothSides_data();
    void circuitSymbolsReachBothSides();
};

namespace {

/// A new shape of its usual size, selected so that its points can be dragged.
class NewShape : public ShapeDriver
{
public:
    explicit NewShape(const char *name)
        : ShapeDriver(QStringLiteral("declared/") + QLatin1String(name))
    {
        createByClick();
        select();
    }

    QPainterPath path(const char *id) const
    {
        painted();
        return pathOf(*this, id);
    }
    QRectF bounds(const char *id) const { return path(id).boundingRect(); }
    bool isVisible(const char *id) const
    {
        painted();
        return document().namedNode(QLatin1String(id))->isVisible();
    }
};

/// The files have ten digits, arcs are drawn as cubic curves.
constexpr double precision = 0.01;

bool areNear(const QRectF &a, const QRectF &b)
{
    return QLineF(a.topLeft(), b.topLeft()).length() < precision &&
           QLineF(a.bottomRight(), b.bottomRight()).length() < precision;
}

QByteArray told(const QRectF &box)
{
    return QStringLiteral("%1, %2, %3, %4").arg(box.x()).arg(box.y()).arg(box.width()).arg(box.height()).toUtf8();
}

#define COMPARE_BOXES(actual, ...)                                                                                 \
    do {                                                                                                           \
        const QRectF box = (actual);                                                                               \
        QVERIFY2(areNear(box, QRectF(__VA_ARGS__)), told(box).constData());                                        \
    } while (false)

} // namespace

void TestShapes::pointsGoAsFarAsTheirShapeLetsThem_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("number");
    QTest::addColumn<QPointF>("way");
    QTest::addColumn<QPointF>("place");
    const auto row = [](const char *title, const char *name, int number, QPointF way, QPointF place) {
        QTest::newRow(title) << QString::fromLatin1(name) << number << way << place;
    };
    row("tip of a chevron ends at the side", "chevron", 1, {90, 5}, {112, 8});
    row("tip of a chevron ends in the middle", "chevron", 1, {-90, 0}, {60, 8});
    row("arms of a cross stay apart", "cross", 1, {90, 90}, {46, 46});
    row("arms of a cross stay inside", "cross", 1, {-90, -90}, {8, 8});
    row("parallelogram leans to the end", "parallelogram", 1, {200, 9}, {112, 8});
    row("trapezoid becomes a triangle", "trapezoid", 1, {90, 9}, {60, 8});
    row("waves grow to half of the height", "wave", 1, {5, 60}, {110.4145, 44});
    row("waves become flat", "wave", 1, {0, -60}, {110.4145, 8});
    row("notch of a heart ends in the middle", "heart", 1, {20, 50}, {55, 50});
    row("notch of a heart stays below the top", "heart", 1, {0, -50}, {55, 10});
    row("vertex of an angle goes anywhere", "angle", 1, {30, -20}, {46, 64});
    row("leg of an angle stays inside", "angle", 3, {100, -100}, {126, 4});
    row("mark of a fraction bar goes along it", "fractionbar", 1, {-30, 10}, {82, 22});
    row("all parts of a fraction bar are marked", "fractionbar", 1, {200, 0}, {168, 22});
    row("no part of a fraction bar is marked", "fractionbar", 1, {-200, 0}, {0, 22});
    row("mark of a fraction circle goes round", "fractioncircle", 1, {44.1673, 28.5}, {55, 106});
    row("mark of a fraction circle stays on its rim", "fractioncircle", 1, {69.1673, -75.5}, {77.807935, 9.384213});
    row("level of a thermometer goes up", "thermometer", 1, {9, -11}, {24, 61});
    row("thermometer ends at its highest", "thermometer", 1, {0, -90}, {24, 22});
    row("thermometer ends at its lowest", "thermometer", 1, {0, 90}, {24, 122});
    row("beaker is empty", "beaker", 1, {9, 80}, {55, 102});
    row("beaker is full", "beaker", 1, {0, -80}, {55, 20});
    row("test tube is empty", "testtube", 1, {3, 100}, {23, 131});
    row("test tube is full", "testtube", 1, {0, -100}, {23, 16});
    row("beam sinks by sixteen degrees", "balance", 1, {-10, 60}, {131.908132, 38.884418});
    row("beam rises by sixteen degrees", "balance", 1, {-10, -60}, {131.908132, 9.115582});
    row("fulcrum ends before the force", "lever", 1, {200, 9}, {162, 82});
    row("fulcrum ends before the load", "lever", 1, {-200, 0}, {54, 82});
    row("load ends before the fulcrum", "lever", 2, {200, 0}, {56, 46});
    row("load stays on the beam", "lever", 2, {-200, 9}, {22, 46});
    row("force ends before the fulcrum", "lever", 3, {-200, 0}, {98, 62});
    row("force stays on the beam", "lever", 3, {200, 0}, {186, 62});
    row("ramp becomes nearly flat", "ramp", 1, {-5, 100}, {156, 99});
    row("ramp ends at its steepest", "ramp", 1, {0, -100}, {156, 22});
    // The slope goes from (2, 108) to (158, 30).
    row("block goes up the ramp", "ramp", 2, {100, -30}, {128, 45});
    row("block goes down the ramp", "ramp", 2, {-60, 40}, {72, 73});
    row("lens becomes thick", "lens", 1, {40, 9}, {114, 56});
    row("lens becomes thin", "lens", 1, {-40, 0}, {98, 56});
    row("ray goes up the prism", "prism", 1, {30, -60}, {53.75, 37.6});
    row("ray goes down the prism", "prism", 1, {-30, 60}, {40, 61.8});
    row("switch is closed", "switch", 1, {40, 60}, {91, 42});
    row("switch opens by forty degrees", "switch", 1, {-44, 0}, {78.834311, 8.575044});
    row("gauge ends at its highest", "gauge", 1, {30, 60}, {105, 78});
    row("gauge ends at its lowest", "gauge", 1, {-60, 60}, {45, 78});
    row("wave of a document grows", "document", 1, {9, -90}, {94.641, 42});
    row("wave of a document becomes flat", "document", 1, {0, 90}, {94.641, 78});
    row("bars of a subroutine stay apart", "subprocess", 1, {90, 9}, {54, 36});
    row("bars of a subroutine stay inside", "subprocess", 1, {-90, 0}, {6, 36});
    row("sets lie upon each other", "venn", 1, {-90, 9}, {85, 50});
    row("sets are apart", "venn", 1, {90, 0}, {128, 50});
    row("nucleus stays in the cell", "cell", 1, {100, 100}, {106, 70});
    row("nucleus goes up and left", "cell", 1, {-100, -100}, {44, 34});
    row("leaf is narrow and widest behind the middle", "leaf", 1, {100, 100}, {99.2, 36});
    row("leaf is wide and widest before the middle", "leaf", 1, {-100, -100}, {72, 4});
}

void TestShapes::pointsGoAsFarAsTheirShapeLetsThem()
{
    QFETCH(QString, name);
    QFETCH(int, number);
    QFETCH(QPointF, way);
    QFETCH(QPointF, place);
    NewShape shape(qPrintable(name));
    shape.dragControlPoint(number, way);
    const QPointF stands = shape.controlPoint(number).center();
    QVERIFY2(isNear(stands, place), qPrintable(QStringLiteral("%1, %2").arg(stands.x()).arg(stands.y())));
}

void TestShapes::legOfAnAngleEndsBeforeTheVertex()
{
    NewShape shape("angle");
    // Half of the way is allowed; the end is only 5.7 from the vertex.
    shape.dragControlPoint(2, {-98, 4});
    QVERIFY(isNear(shape.controlPoint(2).center(), {69, 86}));
}

void TestShapes::angleIsCountedFromTheFirstLegToTheSecond()
{
    NewShape shape("angle");
    // A sector of 45 degrees with a radius of 36, to the right of the vertex and above it.
    COMPARE_BOXES(shape.bounds("figure"), 16, 84 - 25.4558, 36, 25.4558);
    shape.dragControlPoint(1, {50, -40});
    // The legs go from (66, 44) down to (118, 84), and up to (82, 18): half of the shorter one is 15.2643.
    QVERIFY(shape.path("figure").contains(QPointF(74, 42)));
    QVERIFY(!shape.path("figure").contains(QPointF(58, 46)));
    shape.dragControlPoint(3, {0, 60});
    // Now the second leg is the lower one, and the sector goes all the way round.
    QVERIFY(shape.path("figure").contains(QPointF(58, 46)));
    QVERIFY(!shape.path("figure").contains(QPointF(75, 55)));
}

void TestShapes::rightAngleHasASquare()
{
    NewShape shape("angle");
    shape.dragControlPoint(3, {-66, 0});
    // 0.7 of half the shorter leg, which is 66 long.
    COMPARE_BOXES(shape.bounds("figure"), 16, 84 - 23.1, 23.1, 23.1);
    QVERIFY(shape.path("figure").contains(QPointF(38, 62)));
}

void TestShapes::wavesReachTheFrame()
{
    NewShape shape("wave");
    COMPARE_BOXES(shape.bounds("figure"), 1, 1, 138, 78);
    shape.dragControlPoint(1, {0, 15});
    COMPARE_BOXES(shape.bounds("figure"), 1, 1, 138, 78);
    // The sides are as far from the frame as the waves rise: (38 - 1) / 2.
    QCOMPARE(QPointF(shape.path("figure").elementAt(0)), QPointF(1, 19.5));
}

void TestShapes::cloudFillsItsFrame()
{
    NewShape shape("cloud");
    const QRectF box = shape.bounds("figure");
    QVERIFY2(QRectF(0.9, 0.9, 128.2, 82.2).contains(box) && box.contains(QRectF(1.5, 1.5, 127, 81)),
             told(box).constData());
}

void TestShapes::heartKeepsItsFrameWhenItsNotchGoesDown()
{
    NewShape shape("heart");
    QVERIFY(shape.path("figure").contains(QPointF(55, 23)));
    shape.dragControlPoint(1, {0, 20});
    QVERIFY(!shape.path("figure").contains(QPointF(55, 41)));
    QVERIFY(shape.path("figure").contains(QPointF(55, 43)));
    COMPARE_BOXES(shape.bounds("figure"), 1, 1, 108, 98);
}

void TestShapes::fractionBarMarksTheParts()
{
    NewShape shape("fractionbar");
    const double part = 166.0 / 6;
    COMPARE_BOXES(shape.bounds("marked"), 1, 1, 4 * part, 42);
    // A drag to 2.46 parts, and to 2.54 parts.
    shape.dragControlPoint(1, {-43.12, 0});
    COMPARE_BOXES(shape.bounds("marked"), 1, 1, 2 * part, 42);
    shape.dragControlPoint(1, {2.24, 0});
    COMPARE_BOXES(shape.bounds("marked"), 1, 1, 3 * part, 42);
    // 2.54 sixths are 5.08 twelfths.
    answer(shape, R"({"idDeclared_parts": "12"})");
    COMPARE_BOXES(shape.bounds("marked"), 1, 1, 2.5 * part, 42);
}

void TestShapes::fractionCircleMarksTheSectors()
{
    NewShape shape("fractioncircle");
    QVERIFY(shape.path("marked").contains(QPointF(40, 80)));  // 211 degrees from the top; 240 are marked
    QVERIFY(!shape.path("marked").contains(QPointF(30, 45))); // 292 degrees
    shape.dragControlPoint(1, {44.1673, 28.5});
    COMPARE_BOXES(shape.bounds("marked"), 55, 1, 54, 108);
    // Five degrees from the top are nearer to all sectors than to the first.
    shape.dragControlPoint(1, {5, -105});
    COMPARE_BOXES(shape.bounds("marked"), 1, 1, 108, 108);
}

void TestShapes::thermometerIsFilledUpToItsPoint()
{
    NewShape shape("thermometer");
    // The column is arched by 1.5.
    QVERIFY(qAbs(shape.bounds("liquid").top() - 70.5) < precision);
    shape.dragControlPoint(1, {0, -90});
    QVERIFY(qAbs(shape.bounds("liquid").top() - 20.5) < precision);
}

void TestShapes::beakerAndTestTubeAreFilledUpToTheirPoint_data()
{
    QTest::addColumn<QRectF>("full");
    QTest::addColumn<QRectF>("low");
    QTest::newRow("beaker") << QRectF(17, 54, 76, 60) << QRectF(17, 94, 76, 20);
    QTest::newRow("testtube") << QRectF(12, 70, 22, 72) << QRectF(12, 110, 22, 32);
}

void TestShapes::beakerAndTestTubeAreFilledUpToTheirPoint()
{
    QFETCH(QRectF, full);
    QFETCH(QRectF, low);
    NewShape shape(QTest::currentDataTag());
    COMPARE_BOXES(shape.bounds("figure_liquid"), full);
    shape.dragControlPoint(1, {0, 40});
    COMPARE_BOXES(shape.bounds("figure_liquid"), low);
}

void TestShapes::pansHangFromTheBeam()
{
    NewShape shape("balance");
    COMPARE_BOXES(shape.bounds("figure_pans"), 3, 70, 154, 11);
    shape.dragControlPoint(1, {-10, 60});
    // 46 below the ends of the beam at (28.091868, 9.115582) and (131.908132, 38.884418), 23 to each side.
    COMPARE_BOXES(shape.bounds("figure_pans"), 5.091868, 55.115582, 149.816264, 40.768836);
}

void TestShapes::shorterLeverNeedsMoreForce()
{
    NewShape shape("lever");
    // 20 N at 50 against an arm of 100: 10 N, shown by an arrow of least length that ends 4.5 above the beam.
    COMPARE_BOXES(shape.bounds("effort"), 174, 44, 12, 13.5);
    shape.dragControlPoint(1, {40, 0});
    // 20 N at 90 against 60: 30 N, one and a half times the load, which would be 26 long.
    COMPARE_BOXES(shape.bounds("effort"), 174, 23, 12, 34.5);
}

void TestShapes::blockStandsOnTheRamp()
{
    NewShape shape("ramp");
    shape.dragControlPoint(1, {0, 69});
    // The slope goes from (2, 108) to (158, 99); the block stays at its place along it.
    const QPointF stands = shape.controlPoint(2).center();
    QVERIFY(qAbs((108 - stands.y()) / (stands.x() - 2) - 9.0 / 156) < 1e-6);
    const QPainterPath block = shape.path("figure_block");
    QVERIFY(block.contains(stands - QPointF(0, 5)));
    QVERIFY(!block.contains(stands + QPointF(0, 1)));
}

void TestShapes::forcesOfTheRampDisappear()
{
    NewShape shape("ramp");
    QVERIFY(shape.isVisible("forces"));
    answer(shape, R"({"idDeclared_forces": "false"})");
    QVERIFY(!shape.isVisible("forces"));
}

void TestShapes::lensBulgesOrIsHollow()
{
    NewShape shape("lens");
    COMPARE_BOXES(shape.bounds("figure"), 81, 10, 28, 92);
    shape.dragControlPoint(1, {-40, 0});
    // 3 to each side in the middle, and 13 at the rim.
    COMPARE_BOXES(shape.bounds("figure"), 82, 10, 26, 92);
    QVERIFY(!shape.path("figure").contains(QPointF(99, 56)));
    QVERIFY(shape.path("figure").contains(QPointF(97, 56)));
}

void TestShapes::raysOfTheLensMeetInItsFocus()
{
    NewShape shape("lens");
    // Bulges of 12 have their focus 50 behind the middle; each ray comes in at its height and crosses there.
    const QPainterPath rays = shape.path("rays");
    QCOMPARE(rays.elementCount(), 12);
    for (int ray = 0; ray < 4; ++ray) {
        const QPointF bend = rays.elementAt(3 * ray + 1);
        const QPointF end = rays.elementAt(3 * ray + 2);
        QCOMPARE(bend.x(), 95.0);
        const double slope = (end.y() - bend.y()) / (end.x() - bend.x());
        QVERIFY(qAbs(bend.y() + 50 * slope - 56) < precision);
    }
    shape.dragControlPoint(1, {-40, 0});
    const QPainterPath spread = shape.path("rays");
    QVERIFY(spread.elementAt(2).y < spread.elementAt(1).y); // upwards, away from the axis
    answer(shape, R"({"idDeclared_rays": "false"})");
    QVERIFY(!shape.isVisible("rays"));
}

void TestShapes::rayHitsThePrismAtItsPoint()
{
    NewShape shape("prism");
    shape.dragControlPoint(1, {-30, 60});
    QVERIFY(isNear(QPointF(shape.path("ray").elementAt(0)), {4, 81.8}));
    QVERIFY(isNear(QPointF(shape.path("ray").elementAt(1)), {40, 61.8}));
}

void TestShapes::resistorIsABoxOrAZigzag()
{
    NewShape shape("resistor");
    QVERIFY(shape.isVisible("figure"));
    COMPARE_BOXES(shape.bounds("figure"), 33, 14, 64, 22);
    COMPARE_BOXES(shape.bounds("figure_wire"), 1, 25, 128, 0);
    answer(shape, R"({"idDeclared_look": "1"})");
    QVERIFY(!shape.isVisible("figure"));
    COMPARE_BOXES(shape.bounds("figure_wire"), 1, 14, 128, 22);
}

void TestShapes::lampShinesWhenItIsOn()
{
    NewShape shape("lamp");
    QVERIFY(shape.isVisible("rays"));
    answer(shape, R"({"idDeclared_on": "false"})");
    QVERIFY(!shape.isVisible("rays"));
}

void TestShapes::closedSwitchIsALine()
{
    NewShape shape("switch");
    QVERIFY(shape.bounds("figure").height() > 20);
    shape.dragControlPoint(1, {40, 60});
    COMPARE_BOXES(shape.bounds("figure"), 1, 42, 128, 0);
}

void TestShapes::batteryHasItsCells()
{
    NewShape shape("battery");
    // Two wires and a line for each cell.
    QCOMPARE(shape.path("figure").elementCount(), 8);
    answer(shape, R"({"idDeclared_cells": "6"})");
    QCOMPARE(shape.path("figure").elementCount(), 16);
}

void TestShapes::pointerOfTheGaugeFollowsItsPoint()
{
    NewShape shape("gauge");
    shape.dragControlPoint(1, {-60, 60});
    // 58 to the left of (75, 78), 6 wide at its root.
    COMPARE_BOXES(shape.bounds("pointer"), 17, 75, 58, 6);
}

void TestShapes::endsOfATerminatorAreRound()
{
    NewShape shape("terminator");
    const QPainterPath figure = shape.path("figure");
    COMPARE_BOXES(figure.boundingRect(), 1, 1, 118, 54);
    // Arcs of 27 about (28, 28).
    QVERIFY(figure.contains(QPointF(28 - 19, 28 - 19)));
    QVERIFY(!figure.contains(QPointF(28 - 19.2, 28 - 19.2)));
}

void TestShapes::documentEndsInAWave()
{
    NewShape shape("document");
    COMPARE_BOXES(shape.bounds("figure"), 1, 1, 118, 82);
    // The crest is at the control point's height, 0.788675 along the bottom.
    QVERIFY(shape.path("figure").contains(QPointF(94.07, 64.8)));
    QVERIFY(!shape.path("figure").contains(QPointF(94.07, 65.2)));
}

void TestShapes::barsOfASubroutineMirrorEachOther()
{
    NewShape shape("subprocess");
    shape.dragControlPoint(1, {16, 0});
    COMPARE_BOXES(shape.bounds("bars"), 30, 1, 60, 70);
}

void TestShapes::setsOverlapAsFarAsTheirPointSays()
{
    NewShape shape("venn");
    // Circles of 38 about (63, 50) and (107, 50) meet at the root of 38² - 22² above the middle.
    COMPARE_BOXES(shape.bounds("marked"), 69, 50 - 30.983867, 32, 61.967734);
    COMPARE_BOXES(shape.bounds("figure"), 25, 12, 120, 76);
    shape.dragControlPoint(1, {90, 0});
    QVERIFY(shape.path("marked").isEmpty());
    COMPARE_BOXES(shape.bounds("figure"), 4, 12, 162, 76);
}

void TestShapes::markedSetIsTheChosenOne_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QVector<bool>>("marked"); // in the first set only, in both, in the second only
    QTest::newRow("nothing") << 0 << QVector<bool>{false, false, false};
    QTest::newRow("intersection") << 1 << QVector<bool>{false, true, false};
    QTest::newRow("union") << 2 << QVector<bool>{true, true, true};
    QTest::newRow("first only") << 3 << QVector<bool>{true, false, false};
    QTest::newRow("second only") << 4 << QVector<bool>{false, false, true};
}

void TestShapes::markedSetIsTheChosenOne()
{
    QFETCH(int, entry);
    QFETCH(QVector<bool>, marked);
    NewShape shape("venn");
    answer(shape, qPrintable(QStringLiteral(R"({"idDeclared_marked": "%1"})").arg(entry)));
    QPainterPath area = shape.path("marked");
    area.setFillRule(Qt::WindingFill);
    const double places[] = {40, 85, 130};
    for (int i = 0; i < 3; ++i)
        QCOMPARE(area.contains(QPointF(places[i], 50)), marked.at(i));
}

void TestShapes::plantCellHasAWall()
{
    NewShape shape("cell");
    QVERIFY(!shape.path("figure").contains(QPointF(8, 8)));
    answer(shape, R"({"idDeclared_kind": "1"})");
    COMPARE_BOXES(shape.bounds("figure"), 4, 4, 142, 98);
    QVERIFY(shape.path("figure").contains(QPointF(8, 8)));
}

void TestShapes::leafIsAsWideAsItsPoint()
{
    NewShape shape("leaf");
    QRectF leaf = shape.bounds("figure");
    QVERIFY(qAbs(leaf.top() - 10) < precision && qAbs(leaf.bottom() - 74) < precision);
    shape.dragControlPoint(1, {10, 20});
    leaf = shape.bounds("figure");
    QVERIFY(qAbs(leaf.top() - 30) < precision && qAbs(leaf.bottom() - 54) < precision);
    // The outline goes through the point itself.
    QVERIFY(shape.path("figure").contains(QPointF(90, 30.05)));
    QVERIFY(!shape.path("figure").contains(QPointF(90, 29.95)));
}

void TestShapes::shapesHaveNamesInBothLanguages()
{
    const ShapeDriver shape(QStringLiteral("declared/chevron"));
    const pagehost::TextTable german = shape.plugin()->texts(QStringLiteral("de"));
    QCOMPARE(german.value(QStringLiteral("IDS_DECLARED_CHEVRON")), QStringLiteral("Winkelpfeil"));
    QCOMPARE(german.keys(), shape.plugin()->texts(QStringLiteral("en")).keys());
}

void TestShapes::circuitSymbolsReachBothSides_data()
{
    QTest::addColumn<QString>("wires");
    QTest::newRow("resistor") << "figure_wire";
    QTest::newRow("lamp") << "figure_wire";
    QTest::newRow("switch") << "figure";
    QTest::newRow("battery") << "figure";
}

void TestShapes::circuitSymbolsReachBothSides()
{
    QFETCH(QString, wires);
    NewShape shape(QTest::currentDataTag());
    shape.object().setSize(QSizeF(300, 60), false, true);
    const QRectF box = shape.bounds(qPrintable(wires));
    QCOMPARE(box.left(), 1.0);
    QCOMPARE(box.right(), 299.0);
}

QTEST_MAIN(TestShapes)
#include "test_shapes.moc"
