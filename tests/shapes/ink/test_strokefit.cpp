// The form that a stroke drawn by hand was meant to have. Strokes are made by formula.

#include <ink/core/strokefit.h>

#include <QtCore/QLineF>
#include <QtTest/QtTest>

#include <algorithm>
#include <cmath>
#include <limits>

using ink::StrokeForm;
using Places = QVector<QPointF>;

namespace {

constexpr double nearly = 1e-6;
constexpr double degree = M_PI / 180;
constexpr int places90 = 90;

/// Along an ellipse around (300, 200); angles in degrees.
Places around(QSizeF radii, double first, double sweep, int count = places90)
{
    Places places;
    for (int i = 0; i <= count; ++i) {
        const double angle = (first + sweep * i / count) * degree;
        places.append({300 + radii.width() * std::cos(angle), 200 + radii.height() * std::sin(angle)});
    }
    return places;
}

Places along(const Places &corners)
{
    constexpr int pieces = 20;
    Places places{corners.first()};
    for (int i = 1; i < corners.size(); ++i)
        for (int piece = 1; piece <= pieces; ++piece)
            places.append(QLineF(corners.at(i - 1), corners.at(i)).pointAt(double(piece) / pieces));
    return places;
}

/// As around(), with the radius changing along it.
Places wavy(QSizeF radii, int waves, double height)
{
    Places places;
    for (int i = 0; i <= 4 * places90; ++i) {
        const double angle = i * degree;
        const double scale = 1 + height * std::cos(waves * angle);
        places.append({radii.width() * scale * std::cos(angle), radii.height() * scale * std::sin(angle)});
    }
    return places;
}

/// Moves each place by up to `size` to and fro across.
Places trembling(Places places, double size)
{
    for (int i = 0; i < places.size(); ++i)
        places[i] += QPointF(size * std::sin(2.3 * i), size * std::sin(1.7 * i + 1));
    return places;
}

Places turnsOfASpiral(double turns, double growth)
{
    Places places;
    for (int i = 0; i <= 2 * places90; ++i) {
        const double angle = 2 * M_PI * turns * i / (2 * places90);
        const double radius = 20 + growth * angle;
        places.append({radius * std::cos(angle), radius * std::sin(angle)});
    }
    return places;
}

Places reversed(Places places)
{
    std::reverse(places.begin(), places.end());
    return places;
}

bool isNear(QPointF one, QPointF other)
{
    return QLineF(one, other).length() <= nearly;
}

bool isNear(double one, double other)
{
    return std::abs(one - other) <= nearly;
}

} // namespace

class TestStrokeFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesAndScrawlsAreStraight_data();
    void linesAndScrawlsAreStraight();
    void partsOfACircleAreArcs_data();
    void partsOfACircleAreArcs();
    void wholeCirclesAreClosed_data();
    void wholeCirclesAreClosed();
    void ovalsAreEllipses_data();
    void ovalsAreEllipses();
    void roundishOvalsAreCircles_data();
    void roundishOvalsAreCircles();
    void aTremblingHandDrawsTheSameCircle();
    void aTremblingHandDrawsTheSameArc();
    void anArcEndsOnItsCircle();
    void aShortWayBackIsStillAnArc();
    void fewPlacesAreEnoughForARoundStroke();
    void aPenThatRestsCountsNoMore();
    void hundredsOfThousandsOfPlacesAreFitted();
    void placesThatAreNoNumbersArePassedOver();
    void farAwayCirclesAreRound();
    void strokesOfAnySizeGiveNumbers_data();
    void strokesOfAnySizeGiveNumbers();
    void onlyStrokesThatGoStraightAreMeantAsLines();
    void writingIsNoLine_data();
    void writingIsNoLine();
};

void TestStrokeFit::linesAndScrawlsAreStraight_data()
{
    QTest::addColumn<Places>("stroke");
    QTest::newRow("two places") << Places{{5, 5}, {90, 60}};
    QTest::newRow("one place") << Places{{5, 5}};
    QTest::newRow("equal places") << Places{{5, 5}, {5, 5}, {5, 5}};
    QTest::newRow("equal places but one") << Places{{5, 5}, {5, 5}, {90, 6}, {90, 6}};
    QTest::newRow("level") << along({{0, 50}, {300, 50}});
    QTest::newRow("upright") << along({{50, 0}, {50, 300}});
    QTest::newRow("slanted") << along({{0, 0}, {300, 100.0 / 3}});
    QTest::newRow("trembling") << trembling(along({{0, 0}, {300, 100}}), 2);
    QTest::newRow("short and trembling") << trembling(along({{0, 0}, {30, 10}}), 2);
    // The height of an arc of 22 degrees is 4.8 % of its chord.
    QTest::newRow("hardly bent") << around({400, 400}, 30, 22);
    QTest::newRow("three places") << Places{{500, 300}, {550, 340}, {600, 300}};
    QTest::newRow("corner") << along({{0, 0}, {0, 100}, {60, 100}});
    QTest::newRow("roof") << along({{0, 0}, {50, 50}, {100, 0}});
    QTest::newRow("flat roof") << along({{0, 0}, {50, 10}, {100, 0}});
    QTest::newRow("zig-zag") << along({{0, 0}, {20, 50}, {40, 0}, {60, 50}, {80, 0}, {100, 50}});
    QTest::newRow("to and fro") << along({{0, 0}, {300, 2}, {0, 4}});
    QTest::newRow("square") << along({{0, 0}, {100, 0}, {100, 100}, {0, 100}, {0, 0}});
    QTest::newRow("triangle") << along({{0, 0}, {100, 0}, {50, 87}, {0, 0}});
    QTest::newRow("letter U") << along({{0, 0}, {0, 60}, {14, 95}, {50, 110}, {86, 95}, {100, 60}, {100, 0}});
    QTest::newRow("letter S") << around({25, 25}, -30, -240) + along({{300, 225}, {340, 260}, {270, 280}});
    QTest::newRow("wave") << around({50, 50}, 180, 180) + along({{350, 200}, {400, 250}, {450, 200}});
    QTest::newRow("spiral") << turnsOfASpiral(2, 5);
    QTest::newRow("one turn of a spiral") << turnsOfASpiral(1, 2);
    QTest::newRow("there and back on an arc") << around({100, 100}, 0, 180) + around({100, 100}, 180, -25);
    QTest::newRow("flat scribble") << around({1100, 100}, 0, 360);
    QTest::newRow("lobes") << wavy({100, 100}, 3, 0.2);
}

void TestStrokeFit::linesAndScrawlsAreStraight()
{
    QFETCH(Places, stroke);
    for (const Places &places : {stroke, reversed(stroke)}) {
        const StrokeForm form = ink::formOf(places);
        QCOMPARE(form.kind, StrokeForm::Line);
        QCOMPARE(form.start, places.first());
        QCOMPARE(form.end, places.last());
        QCOMPARE(form.bulge, 0.0);
    }
}

void TestStrokeFit::partsOfACircleAreArcs_data()
{
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("sweep");
    // The height of an arc of 23 degrees is just over 5 % of its chord.
    for (const double sweep : {23.0, 90.0, 180.0, 270.0, 299.0})
        for (const double first : {0.0, 100.0, 200.0, -45.0}) {
            const QByteArray name = QByteArray::number(sweep) + " from " + QByteArray::number(first);
            QTest::newRow(name + " rising") << first << sweep;
            QTest::newRow(name + " falling") << first << -sweep;
        }
}

void TestStrokeFit::partsOfACircleAreArcs()
{
    QFETCH(double, first);
    QFETCH(double, sweep);
    const Places stroke = around({100, 100}, first, sweep);
    const StrokeForm form = ink::formOf(stroke);
    QCOMPARE(form.kind, StrokeForm::Arc);
    QVERIFY(isNear(form.start, stroke.first()));
    QVERIFY(isNear(form.end, stroke.last()));
    QVERIFY(isNear(form.bulge, std::tan(sweep * degree / 4)));
}

void TestStrokeFit::wholeCirclesAreClosed_data()
{
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("sweep");
    // With a gap, exactly, with an overlap, and more than twice around.
    for (const double sweep : {301.0, 330.0, 360.0, 400.0, 800.0})
        for (const double first : {0.0, 60.0, 135.0, -90.0}) {
            const QByteArray name = QByteArray::number(sweep) + " from " + QByteArray::number(first);
            QTest::newRow(name + " rising") << first << sweep;
            QTest::newRow(name + " falling") << first << -sweep;
        }
}

void TestStrokeFit::wholeCirclesAreClosed()
{
    QFETCH(double, first);
    QFETCH(double, sweep);
    const StrokeForm form = ink::formOf(around({100, 100}, first, sweep));
    QCOMPARE(form.kind, StrokeForm::Ellipse);
    QVERIFY(isNear(form.centre, {300, 200}));
    QVERIFY(isNear(form.radii.width(), 100) && isNear(form.radii.height(), 100));
    QVERIFY(isNear(form.firstAngle, first * degree));
    QCOMPARE(form.isFalling, sweep < 0);
}

void TestStrokeFit::ovalsAreEllipses_data()
{
    QTest::addColumn<QSizeF>("radii");
    QTest::addColumn<double>("sweep");
    QTest::newRow("a little wide") << QSizeF(125, 100) << 360.0;
    QTest::newRow("a little high") << QSizeF(100, 125) << 360.0;
    QTest::newRow("wide") << QSizeF(200, 100) << 360.0;
    QTest::newRow("high, falling") << QSizeF(100, 200) << -360.0;
    QTest::newRow("with an overlap") << QSizeF(200, 100) << 400.0;
    QTest::newRow("flat") << QSizeF(900, 100) << 360.0;
}

/// Places at each degree, so that both axes are among them.
void TestStrokeFit::ovalsAreEllipses()
{
    QFETCH(QSizeF, radii);
    QFETCH(double, sweep);
    const StrokeForm form = ink::formOf(around(radii, 30, sweep, int(std::abs(sweep))));
    QCOMPARE(form.kind, StrokeForm::Ellipse);
    QVERIFY(isNear(form.centre, {300, 200}));
    QVERIFY(isNear(form.radii.width(), radii.width()) && isNear(form.radii.height(), radii.height()));
    QVERIFY(isNear(form.firstAngle, 30 * degree));
    QCOMPARE(form.isFalling, sweep < 0);
}

void TestStrokeFit::roundishOvalsAreCircles_data()
{
    QTest::addColumn<Places>("stroke");
    QTest::addColumn<bool>("isCircle");
    QTest::newRow("ratio 1.15") << around({115, 100}, 0, 360) << true;
    QTest::newRow("ratio 1.25") << around({125, 100}, 0, 360) << false;
    // A circle would do, but the ellipse is three times as near.
    QTest::newRow("wavy, ratio 1.25") << wavy({125, 100}, 5, 0.02) << false;
    // Six corners of ratio 1.27: neither is much nearer than the other.
    const Places corners{{110, 0}, {55, 87}, {-55, 87}, {-110, 0}, {-55, -87}, {55, -87}, {110, 0}};
    QTest::newRow("six corners") << along(corners) << true;
    // Of ratio 1.44: no circle, and an ellipse that is not twice as near.
    const Places flat{{125, 0}, {62.5, 87}, {-62.5, 87}, {-125, 0}, {-62.5, -87}, {62.5, -87}, {125, 0}};
    QTest::newRow("six flat corners") << along(flat) << false;
}

void TestStrokeFit::roundishOvalsAreCircles()
{
    QFETCH(Places, stroke);
    QFETCH(bool, isCircle);
    const StrokeForm form = ink::formOf(stroke);
    QCOMPARE(form.kind, StrokeForm::Ellipse);
    QCOMPARE(isNear(form.radii.width(), form.radii.height()), isCircle);
}

void TestStrokeFit::aTremblingHandDrawsTheSameCircle()
{
    const StrokeForm form = ink::formOf(trembling(around({100, 100}, 0, 350), 4));
    QCOMPARE(form.kind, StrokeForm::Ellipse);
    QVERIFY(QLineF(form.centre, {300, 200}).length() < 1);
    QVERIFY(std::abs(form.radii.width() - 100) < 1);
    QCOMPARE(form.radii.width(), form.radii.height());
}

void TestStrokeFit::aTremblingHandDrawsTheSameArc()
{
    const StrokeForm form = ink::formOf(trembling(around({100, 100}, 0, 120), 2));
    QCOMPARE(form.kind, StrokeForm::Arc);
    QVERIFY(std::abs(form.bulge - std::tan(30 * degree)) < 0.03);
}

/// A hook at the end of a stroke is left out.
void TestStrokeFit::anArcEndsOnItsCircle()
{
    Places stroke = around({100, 100}, 0, 180);
    stroke.append({200, 200});
    stroke.append({205, 200});
    const StrokeForm form = ink::formOf(stroke);
    QCOMPARE(form.kind, StrokeForm::Arc);
    QVERIFY(QLineF(form.end, {200, 200}).length() < 1);
    QVERIFY(std::abs(form.bulge - 1) < 0.02);
}

void TestStrokeFit::aShortWayBackIsStillAnArc()
{
    const StrokeForm form = ink::formOf(around({100, 100}, 0, 180) + around({100, 100}, 180, -9, 9));
    QCOMPARE(form.kind, StrokeForm::Arc);
    QVERIFY(isNear(form.bulge, std::tan(171 * degree / 4)));
}

void TestStrokeFit::fewPlacesAreEnoughForARoundStroke()
{
    const StrokeForm circle = ink::formOf(around({100, 100}, 10, 360, 8));
    QCOMPARE(circle.kind, StrokeForm::Ellipse);
    QVERIFY(isNear(circle.radii.width(), 100));
    const StrokeForm arc = ink::formOf(around({100, 100}, 10, 180, 4));
    QCOMPARE(arc.kind, StrokeForm::Arc);
    QVERIFY(isNear(arc.bulge, 1));
}

/// An oval that passes for a circle: places that count more would pull it.
void TestStrokeFit::aPenThatRestsCountsNoMore()
{
    const Places stroke = around({110, 100}, 0, 360);
    Places rested = stroke;
    for (int i = 0; i < 1000; ++i)
        rested.append(stroke.last());
    const StrokeForm plain = ink::formOf(stroke);
    const StrokeForm form = ink::formOf(rested);
    QCOMPARE(form.kind, StrokeForm::Ellipse);
    QVERIFY(isNear(form.centre, plain.centre));
    QVERIFY(isNear(form.radii.width(), plain.radii.width()));
}

void TestStrokeFit::hundredsOfThousandsOfPlacesAreFitted()
{
    const StrokeForm form = ink::formOf(around({100, 100}, 0, 360, 500000));
    QCOMPARE(form.kind, StrokeForm::Ellipse);
    QVERIFY(isNear(form.centre, {300, 200}));
    QVERIFY(isNear(form.radii.width(), 100));
}

void TestStrokeFit::placesThatAreNoNumbersArePassedOver()
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    const double endless = std::numeric_limits<double>::infinity();
    Places stroke = around({100, 100}, 0, 360);
    for (const int index : {0, 20, 50, int(stroke.size())}) {
        stroke.insert(index, {none, 3});
        stroke.insert(index, {3, -endless});
        stroke.insert(index, {1e300, 3});
    }
    const StrokeForm form = ink::formOf(stroke);
    QCOMPARE(form.kind, StrokeForm::Ellipse);
    QVERIFY(isNear(form.centre, {300, 200}));
    const StrokeForm line = ink::formOf({{none, none}, {3, 4}, {none, 0}, {50, 60}, {0, endless}});
    QCOMPARE(line.start, QPointF(3, 4));
    QCOMPARE(line.end, QPointF(50, 60));
    for (const Places &empty : {Places(), Places{{none, 0}, {0, none}}}) {
        QCOMPARE(ink::formOf(empty).kind, StrokeForm::Line);
        QCOMPARE(ink::formOf(empty).end, QPointF(0, 0));
    }
}

void TestStrokeFit::farAwayCirclesAreRound()
{
    Places stroke = around({100, 100}, 0, 360);
    for (QPointF &place : stroke)
        place += QPointF(1e9, -1e9);
    const StrokeForm form = ink::formOf(stroke);
    QCOMPARE(form.kind, StrokeForm::Ellipse);
    QVERIFY(QLineF(form.centre, {1e9 + 300, -1e9 + 200}).length() < 1e-3);
    QVERIFY(std::abs(form.radii.width() - 100) < 1e-3);
}

void TestStrokeFit::strokesOfAnySizeGiveNumbers_data()
{
    QTest::addColumn<double>("size");
    QTest::addColumn<bool>("isRound");
    for (const double size : {1e-90, 1.0, 1e9, 1e90, 1e99})
        QTest::newRow(QByteArray::number(size)) << size << true;
    for (const double size : {1e-310, 1e-200, 1e-101, 1e101, 1e200, 1e308})
        QTest::newRow(QByteArray::number(size)) << size << false;
}

void TestStrokeFit::strokesOfAnySizeGiveNumbers()
{
    QFETCH(double, size);
    QFETCH(bool, isRound);
    for (const double sweep : {10.0, 180.0, 360.0}) {
        Places stroke = around({100, 80}, 0, sweep);
        for (QPointF &place : stroke)
            place = (place - QPointF(300, 200)) / 100 * size;
        const StrokeForm form = ink::formOf(stroke);
        if (sweep == 360)
            QCOMPARE(form.kind == StrokeForm::Ellipse, isRound);
        const Places places = ink::placesAlong(form);
        for (const QPointF &place : places)
            QVERIFY(std::isfinite(place.x()) && std::isfinite(place.y()));
    }
}

void TestStrokeFit::onlyStrokesThatGoStraightAreMeantAsLines()
{
    QVERIFY(ink::runsStraight({{5, 5}, {90, 60}}));
    QVERIFY(ink::runsStraight(trembling(along({{0, 0}, {300, 100}}), 2)));
    // Something less than half of the line beside it is just near enough.
    QVERIFY(ink::runsStraight({{0, 0}, {50, 45}, {100, 0}}));
    QVERIFY(!ink::runsStraight({{0, 0}, {50, 46}, {100, 0}}));
    // So is a way of twice its length.
    QVERIFY(ink::runsStraight({{0, 0}, {100, 0}, {50, 0}, {100, 0}}));
    QVERIFY(!ink::runsStraight({{0, 0}, {100, 0}, {49, 0}, {100, 0}}));
}

void TestStrokeFit::writingIsNoLine_data()
{
    QTest::addColumn<Places>("stroke");
    QTest::newRow("square") << Places{{0, 0}, {100, 0}, {100, 100}, {0, 100}, {0, 10}};
    QTest::newRow("closed square") << Places{{0, 0}, {100, 0}, {100, 100}, {0, 100}, {0, 0}};
    QTest::newRow("letter W") << Places{{0, 0}, {20, 40}, {40, 0}, {60, 40}, {80, 0}};
    QTest::newRow("letter L") << Places{{0, 0}, {0, 60}, {40, 60}};
    QTest::newRow("dot") << Places{{5, 5}, {5, 5}};
    QTest::newRow("nothing") << Places{};
    QTest::newRow("no number") << Places{{std::nan(""), 0}};
    Places word;
    for (int i = 0; i <= 40; ++i)
        word.append({i * 8.0, i % 2 ? 20.0 : 0.0});
    QTest::newRow("low letters of a word") << word;
}

void TestStrokeFit::writingIsNoLine()
{
    QFETCH(Places, stroke);
    QVERIFY(!ink::runsStraight(stroke));
    QVERIFY(!ink::runsStraight(reversed(stroke)));
}

QTEST_APPLESS_MAIN(TestStrokeFit)
#include "test_strokefit.moc"
