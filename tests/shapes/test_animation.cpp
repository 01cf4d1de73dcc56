// The shapes that move, at chosen moments. Places are document units, worked out from the templates.

#include <shapes/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <support/listed.h>

#include <QtTest/QtTest>

using shapetest::ShapeDriver;

namespace {

constexpr int tolerance = 8; // of any channel; edges are smooth

/// The shape as it is seen that many seconds after its start.
QImage at(const ShapeDriver &shape, double seconds)
{
    shape.document().startAnimate();
    shape.document().stopAnimate();
    shape.document().setAnimationTime(seconds);
    return shape.painted();
}

bool isReddish(const QColor &color)
{
    return color.red() > color.blue() + 60;
}

int differentPixels(const QImage &a, const QImage &b)
{
    int different = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor one = a.pixelColor(x, y);
            const QColor other = b.pixelColor(x, y);
            different += qAbs(one.red() - other.red()) > tolerance || qAbs(one.blue() - other.blue()) > tolerance;
        }
    }
    return different;
}

} // namespace

class TestAnimation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clockPendulumAndGearsMove_data();
    void clockPendulumAndGearsMove();
    void secondHandTurnsOnceAMinute();
    void pendulumSwingsToTheOtherSideAndBack();
    void pendulumSwingsAsFarAsItIsPulled();
    void gearsTurnToothByTooth();
    void gearsTurnAsTheirTeethSay();
    void movingShapeIsSavedAsItStands();
};

void TestAnimation::clockPendulumAndGearsMove_data()
{
    QTest::addColumn<bool>("moves");
    for (const QString &name : support::listed(shapetest::allShapeNames()))
        QTest::newRow(qPrintable(name)) << QStringList{"clock", "gears", "pendulum"}.contains(name);
}

void TestAnimation::clockPendulumAndGearsMove()
{
    QFETCH(bool, moves);
    ShapeDriver shape(QString::fromLatin1(QTest::currentDataTag()));
    shape.createByClick();
    QVERIFY(!shape.core().isAnimating());
    QCOMPARE(shape.core().startAnimate(), moves);
    QCOMPARE(shape.core().isAnimating(), moves);
    shape.core().stopAnimate();
    QVERIFY(!shape.core().isAnimating());
}

void TestAnimation::secondHandTurnsOnceAMinute()
{
    ShapeDriver clock(QStringLiteral("clock"));
    clock.createByClick();
    // 30 from the middle at 60, 60: up, right, down, and up again.
    QVERIFY(isReddish(at(clock, 0).pixelColor(60, 30)));
    QVERIFY(isReddish(at(clock, 15).pixelColor(90, 60)));
    QVERIFY(!isReddish(at(clock, 15).pixelColor(60, 30)));
    QVERIFY(isReddish(at(clock, 30).pixelColor(60, 90)));
    QCOMPARE(differentPixels(at(clock, 60), at(clock, 0)), 0);
}

void TestAnimation::pendulumSwingsToTheOtherSideAndBack()
{
    ShapeDriver pendulum(QStringLiteral("pendulum"));
    pendulum.createByClick();
    const QColor bob = pendulum.core().getFillBrush().color();
    // 90 long, 30 degrees to the right of the pivot at 70, 16; its period is a fifth of the root of 90.
    const double period = 0.2 * std::sqrt(90.0);
    QCOMPARE(at(pendulum, 0).pixelColor(115, 94), bob);
    QCOMPARE(at(pendulum, period / 2).pixelColor(25, 94), bob);
    QVERIFY(at(pendulum, period / 2).pixelColor(115, 94) != bob);
    QCOMPARE(at(pendulum, period / 4).pixelColor(70, 106), bob);
    QCOMPARE(at(pendulum, period * 2).pixelColor(115, 94), bob);
}

void TestAnimation::pendulumSwingsAsFarAsItIsPulled()
{
    ShapeDriver pendulum(QStringLiteral("pendulum"));
    pendulum.createByClick();
    pendulum.select();
    // To 60 below the pivot and 25 beside it, which is 65 long.
    pendulum.dragTo(1, QPointF(95, 76));
    pendulum.object().setSelected(false);
    const QColor bob = pendulum.core().getFillBrush().color();
    QCOMPARE(at(pendulum, 0).pixelColor(95, 76), bob);
    QCOMPARE(at(pendulum, 0.1 * std::sqrt(65.0)).pixelColor(45, 76), bob);
    QVERIFY(at(pendulum, 0.1 * std::sqrt(65.0)).pixelColor(25, 94) != bob);
}

void TestAnimation::gearsTurnToothByTooth()
{
    ShapeDriver gears(QStringLiteral("gears"));
    gears.createByClick();
    // 12 and 18 teeth in 6 and 9 seconds: every half second each gear is one tooth further.
    const QImage start = at(gears, 0);
    QVERIFY(differentPixels(at(gears, 0.25), start) > 200);
    QVERIFY(differentPixels(at(gears, 0.5), start) < 20);
}

void TestAnimation::gearsTurnAsTheirTeethSay()
{
    ShapeDriver gears(QStringLiteral("gears"));
    gears.createByClick();
    gears.object().SetSettingJson(QStringLiteral("{\"idDrivingTeeth\": \"24\", \"idDrivenTeeth\": \"8\"}"), true,
                                  true);
    const QImage start = at(gears, 0);
    QVERIFY(differentPixels(at(gears, 0.25), start) > 200);
    QVERIFY(differentPixels(at(gears, 0.5), start) < 20);
}

void TestAnimation::movingShapeIsSavedAsItStands()
{
    ShapeDriver gears(QStringLiteral("gears"));
    gears.createByClick();
    const auto saved = [&] {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        gears.object().save(out);
        return bytes;
    };
    const QByteArray resting = saved();
    at(gears, 1.3);
    QCOMPARE(saved(), resting);
}

QTEST_MAIN(TestAnimation)
#include "test_animation.moc"
