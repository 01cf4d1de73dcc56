// Lines, arcs and ellipses that strokes stand for: their places, and what moving the pointer on makes of them.

#include <ink/core/strokeform.h>

#include <QtCore/QLineF>
#include <QtTest/QtTest>

#include <algorithm>
#include <cmath>
#include <limits>

using ink::StrokeForm;

namespace {

constexpr double nearly = 1e-9;
/// Tangent of a quarter of 180 and of 270 degrees.
constexpr double halfTurn = 1;
const double threeQuarters = 1 + std::sqrt(2);

StrokeForm arc(QPointF start, QPointF end, double bulge)
{
    StrokeForm form = ink::lineBetween(start, end);
    form.kind = StrokeForm::Arc;
    form.bulge = bulge;
    return form;
}

StrokeForm ellipse(QPointF centre, QSizeF radii, double firstAngle = 0, bool isFalling = false)
{
    StrokeForm form;
    form.kind = StrokeForm::Ellipse;
    form.centre = centre;
    form.radii = radii;
    form.firstAngle = firstAngle;
    form.isFalling = isFalling;
    return form;
}

bool isNear(QPointF one, QPointF other)
{
    return QLineF(one, other).length() <= nearly;
}

} // namespace

class TestStrokeForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLineIsItsEnds();
    void anArcRunsAroundItsCentre_data();
    void anArcRunsAroundItsCentre();
    void anEllipseBeginsAndEndsAtItsFirstAngle();
    void anEllipseRunsEitherWay();
    void chordsAreOffByLessThanATenth_data();
    void chordsAreOffByLessThanATenth();
    void smallCirclesAreRoundToo();
    void hugeCirclesHaveABoundedNumberOfPlaces();
    void theEndOfALineFollowsThePointer();
    void anArcKeepsItsStartAndItsBend();
    void aCircleGrowsWithTheDistanceOfThePointer();
    void anEllipseKeepsTheRatioOfItsAxes();
    void aCircleNeverVanishes();
    void placesThatAreNoNumbersMoveNothing();
};

void TestStrokeForm::aLineIsItsEnds()
{
    const QVector<QPointF> ends{{3, 4}, {70, -5}};
    QCOMPARE(ink::placesAlong(ink::lineBetween({3, 4}, {70, -5})), ends);
}

void TestStrokeForm::anArcRunsAroundItsCentre_data()
{
    QTest::addColumn<double>("bulge");
    QTest::addColumn<QPointF>("end");
    QTest::addColumn<QPointF>("middle");
    // Around (100, 100), from the right. The angle rises downwards.
    QTest::newRow("half, falling") << -halfTurn << QPointF(50, 100) << QPointF(100, 50);
    QTest::newRow("half, rising") << halfTurn << QPointF(50, 100) << QPointF(100, 150);
    const double diagonal = 50 * std::sqrt(0.5);
    QTest::newRow("quarter, rising") << std::tan(M_PI / 8) << QPointF(100, 150)
                                     << QPointF(100 + diagonal, 100 + diagonal);
    QTest::newRow("three quarters, rising")
        << threeQuarters << QPointF(100, 50) << QPointF(100 - diagonal, 100 + diagonal);
    QTest::newRow("three quarters, falling")
        << -threeQuarters << QPointF(100, 150) << QPointF(100 - diagonal, 100 - diagonal);
}

void TestStrokeForm::anArcRunsAroundItsCentre()
{
    QFETCH(double, bulge);
    QFETCH(QPointF, end);
    QFETCH(QPointF, middle);
    const QVector<QPointF> places = ink::placesAlong(arc({150, 100}, end, bulge));
    QCOMPARE(places.first(), QPointF(150, 100));
    QCOMPARE(places.last(), end);
    double nearest = std::numeric_limits<double>::max();
    for (const QPointF &place : places) {
        QVERIFY(std::abs(QLineF({100, 100}, place).length() - 50) <= nearly);
        nearest = std::min(nearest, QLineF(place, middle).length());
    }
    // Half a step away at the most: 50 times the angle whose chord is off by a tenth.
    QVERIFY2(nearest <= 50 * std::acos(1 - 0.1 / 50), qPrintable(QString::number(nearest)));
}

void TestStrokeForm::anEllipseBeginsAndEndsAtItsFirstAngle()
{
    const QVector<QPointF> places = ink::placesAlong(ellipse({10, 20}, {60, 30}, M_PI / 2));
    QVERIFY(isNear(places.first(), {10, 50}));
    QCOMPARE(places.last(), places.first());
    for (const QPointF &place : places)
        QVERIFY(std::abs(std::hypot((place.x() - 10) / 60, (place.y() - 20) / 30) - 1) <= nearly);
}

void TestStrokeForm::anEllipseRunsEitherWay()
{
    const QVector<QPointF> rising = ink::placesAlong(ellipse({0, 0}, {50, 50}));
    const QVector<QPointF> falling = ink::placesAlong(ellipse({0, 0}, {50, 50}, 0, true));
    QVERIFY(rising.at(1).y() > 0);
    QCOMPARE(falling.size(), rising.size());
    for (int i = 0; i < rising.size(); ++i)
        QVERIFY(isNear(falling.at(i), {rising.at(i).x(), -rising.at(i).y()}));
}

void TestStrokeForm::chordsAreOffByLessThanATenth_data()
{
    QTest::addColumn<double>("radius");
    QTest::addColumn<int>("count");
    // Chords of the angle 2 acos(1 - 0.1 / radius) are off by a tenth.
    QTest::newRow("5") << 5.0 << 17;
    QTest::newRow("50") << 50.0 << 51;
    QTest::newRow("500") << 500.0 << 159;
    QTest::newRow("1300") << 1300.0 << 255;
}

void TestStrokeForm::chordsAreOffByLessThanATenth()
{
    QFETCH(double, radius);
    QFETCH(int, count);
    const QVector<QPointF> places = ink::placesAlong(ellipse({0, 0}, {radius, radius}));
    QCOMPARE(places.size(), count);
    for (int i = 1; i < places.size(); ++i) {
        const QPointF middle = (places.at(i - 1) + places.at(i)) / 2;
        QVERIFY(radius - std::hypot(middle.x(), middle.y()) <= 0.1 + nearly);
    }
}

void TestStrokeForm::smallCirclesAreRoundToo()
{
    QCOMPARE(ink::placesAlong(ellipse({0, 0}, {0.5, 0.5})).size(), 17);
    QCOMPARE(ink::placesAlong(ellipse({0, 0}, {0.01, 0.01})).size(), 17);
    QCOMPARE(ink::placesAlong(arc({0, 0}, {1, 0}, halfTurn)).size(), 9);
}

void TestStrokeForm::hugeCirclesHaveABoundedNumberOfPlaces()
{
    QCOMPARE(ink::placesAlong(ellipse({0, 0}, {1e5, 1})).size(), 257);
    QCOMPARE(ink::placesAlong(ellipse({0, 0}, {1e99, 1e99})).size(), 257);
    QCOMPARE(ink::placesAlong(arc({0, 0}, {1e99, 0}, halfTurn)).size(), 257);
}

void TestStrokeForm::theEndOfALineFollowsThePointer()
{
    const StrokeForm line = ink::draggedForm(ink::lineBetween({0, 0}, {100, 0}), {100, 0}, {130, 40});
    QCOMPARE(line.kind, StrokeForm::Line);
    QCOMPARE(line.start, QPointF(0, 0));
    QCOMPARE(line.end, QPointF(130, 40));
}

void TestStrokeForm::anArcKeepsItsStartAndItsBend()
{
    // The pen was held still 2 units beside the end of the arc.
    const StrokeForm form = ink::draggedForm(arc({0, 0}, {100, 0}, 0.5), {102, 0}, {52, 80});
    QCOMPARE(form.kind, StrokeForm::Arc);
    QCOMPARE(form.start, QPointF(0, 0));
    QCOMPARE(form.end, QPointF(50, 80));
    QCOMPARE(form.bulge, 0.5);
    // Back at its start it is a dot.
    const QVector<QPointF> places = ink::placesAlong(ink::draggedForm(form, {50, 80}, {0, 0}));
    for (const QPointF &place : places)
        QCOMPARE(place, QPointF(0, 0));
}

void TestStrokeForm::aCircleGrowsWithTheDistanceOfThePointer()
{
    // Held still inside of the circle, 40 from the centre; 60 is half as much again.
    const StrokeForm circle = ink::draggedForm(ellipse({10, 10}, {50, 50}, 1), {50, 10}, {10, -50});
    QCOMPARE(circle.centre, QPointF(10, 10));
    QCOMPARE(circle.radii, QSizeF(75, 75));
    QCOMPARE(circle.firstAngle, 1.0);
    const StrokeForm smaller = ink::draggedForm(ellipse({10, 10}, {50, 50}), {50, 10}, {10, 30});
    QCOMPARE(smaller.radii, QSizeF(25, 25));
}

void TestStrokeForm::anEllipseKeepsTheRatioOfItsAxes()
{
    // From the end of its long axis to twice the short one.
    const StrokeForm form = ink::draggedForm(ellipse({0, 0}, {80, 20}), {80, 0}, {0, 40});
    QCOMPARE(form.radii, QSizeF(160, 40));
}

void TestStrokeForm::aCircleNeverVanishes()
{
    QCOMPARE(ink::draggedForm(ellipse({0, 0}, {50, 50}), {50, 0}, {0, 0}).radii, QSizeF(0.5, 0.5));
    QCOMPARE(ink::draggedForm(ellipse({0, 0}, {50, 50}), {0, 0}, {90, 0}).radii, QSizeF(50, 50));
}

void TestStrokeForm::placesThatAreNoNumbersMoveNothing()
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    const double endless = std::numeric_limits<double>::infinity();
    for (const QPointF &place : {QPointF(none, 0), QPointF(0, none), QPointF(endless, 0), QPointF(0, -1e200)}) {
        QVERIFY(!ink::isMeasurable(place));
        QCOMPARE(ink::draggedForm(ink::lineBetween({0, 0}, {9, 0}), {9, 0}, place).end, QPointF(9, 0));
        QCOMPARE(ink::draggedForm(ink::lineBetween({0, 0}, {9, 0}), place, {9, 0}).end, QPointF(9, 0));
        QCOMPARE(ink::draggedForm(ellipse({0, 0}, {5, 5}), {5, 0}, place).radii, QSizeF(5, 5));
    }
    QVERIFY(ink::isMeasurable({1e100, -1e100}));
}

QTEST_APPLESS_MAIN(TestStrokeForm)
#include "test_strokeform.moc"
