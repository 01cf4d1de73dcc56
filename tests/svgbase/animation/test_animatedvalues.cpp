#include "animation/effect.h"

#include <QtTest>

using namespace Svg;

namespace {

using Pairs = std::initializer_list<std::pair<const char *, const char *>>;

const LengthContext lengths{QSizeF(200, 100), 10};

std::optional<Effect> effectOf(const QString &name, Pairs pairs)
{
    Attributes attributes;
    for (const auto &[attribute, value] : pairs)
        attributes.set(QString::fromLatin1(attribute), QString::fromLatin1(value));
    return Effect::read(attributes, valueContext(name, lengths, QColor(0, 0, 255)), false);
}

/// The text that an attribute has at a share of a round, over what it has without.
QString textAt(const QString &name, Pairs pairs, double progress, const QString &base = QString(), qint64 round = 0)
{
    const std::optional<Effect> effect = effectOf(name, pairs);
    if (!effect)
        return QStringLiteral("no effect");
    const ValueContext context = valueContext(name, lengths, QColor(0, 0, 255));
    return attributeValue(effect->applied(parseAnimatedValue(base, context), {round, progress}), context).text();
}

QString functionAt(const char *type, Pairs pairs, double progress, qint64 round = 0)
{
    Attributes attributes;
    for (const auto &[attribute, value] : pairs)
        attributes.set(QString::fromLatin1(attribute), QString::fromLatin1(value));
    const std::optional<Effect> effect =
        Effect::read(attributes, transformContext(QString::fromLatin1(type)), false);
    return effect ? transformText({effect->function({round, progress})}) : QStringLiteral("no effect");
}

} // namespace

class TestAnimatedValues : public QObject
{
    Q_OBJECT

private slots:
    void fromTo();
    void fromBy();
    void byAddsToTheAttribute();
    void toStartsFromTheAttribute();
    void listsOfValues();
    void listsOfNumbers();
    void lengthsKeepTheirUnit();
    void lengthsOfDifferentUnitsMeetInUserUnits();
    void colors();
    void colorsThatAreWords();
    void pathsOfEqualStructure();
    void pathsWrittenDifferently();
    void pathsOfDifferentStructureSwitchHalfway();
    void flagsOfArcs();
    void dashesOfDifferentNumberAreRepeated();
    void words();
    void sumsAndRounds();
    void negativeSizesAreNone();
    void discreteValues();
    void pacedValues();
    void keyTimes();
    void keyTimesThatDoNotFit_data();
    void keyTimesThatDoNotFit();
    void keySplines();
    void keySplinesThatDoNotFit();
    void transformFunctions();
    void transformFunctionsThatAreNone();
    void pacedTurnsGoByTheirAngle();
    void nothingGivenIsNoEffect();
};

void TestAnimatedValues::fromTo()
{
    QCOMPARE(textAt("x", {{"from", "10"}, {"to", "20"}}, 0), QString("10"));
    QCOMPARE(textAt("x", {{"from", "10"}, {"to", "20"}}, 0.25), QString("12.5"));
    QCOMPARE(textAt("x", {{"from", "10"}, {"to", "20"}}, 1), QString("20"));
    QCOMPARE(textAt("x", {{"from", "10"}, {"to", "20"}, {"additive", "sum"}}, 0.5, "100"), QString("115"));
    // "values" has the higher rank, "to" a higher one than "by".
    QCOMPARE(textAt("x", {{"from", "1"}, {"to", "2"}, {"by", "50"}, {"values", "5;7"}}, 0.5), QString("6"));
    QCOMPARE(textAt("x", {{"from", "0"}, {"to", "2"}, {"by", "50"}}, 0.5), QString("1"));
}

void TestAnimatedValues::fromBy()
{
    QCOMPARE(textAt("x", {{"from", "10"}, {"by", "20"}}, 0.5, "1000"), QString("20"));
}

void TestAnimatedValues::byAddsToTheAttribute()
{
    QCOMPARE(textAt("x", {{"by", "20"}}, 0.5, "7"), QString("17"));
    QCOMPARE(textAt("x", {{"by", "20"}}, 1), QString("20"));
}

void TestAnimatedValues::toStartsFromTheAttribute()
{
    QCOMPARE(textAt("x", {{"to", "30"}}, 0, "10"), QString("10"));
    QCOMPARE(textAt("x", {{"to", "30"}}, 0.5, "10"), QString("20"));
    QCOMPARE(textAt("x", {{"to", "30"}}, 0.5), QString("15"));
    QCOMPARE(textAt("x", {{"to", "30"}, {"calcMode", "discrete"}}, 0, "10"), QString("30"));
    // It neither adds nor accumulates.
    QCOMPARE(textAt("x", {{"to", "30"}, {"additive", "sum"}, {"accumulate", "sum"}}, 0.5, "10", 3), QString("20"));
}

void TestAnimatedValues::listsOfValues()
{
    const Pairs values = {{"values", "0; 10 ;40;"}};
    QCOMPARE(textAt("x", values, 0.25), QString("5"));
    QCOMPARE(textAt("x", values, 0.5), QString("10"));
    QCOMPARE(textAt("x", values, 0.75), QString("25"));
    QCOMPARE(textAt("x", values, 1), QString("40"));
    QCOMPARE(textAt("x", {{"values", "7"}}, 0.6), QString("7"));
}

void TestAnimatedValues::listsOfNumbers()
{
    QCOMPARE(textAt("points", {{"from", "0,0 10,20"}, {"to", "10 0 30 40"}}, 0.5), QString("5 0 20 30"));
    QCOMPARE(textAt("viewBox", {{"from", "0 0 10 10"}, {"to", "10 20 30 40"}}, 0.5), QString("5 10 20 25"));
    // Lists of different length have nothing between them.
    QCOMPARE(textAt("points", {{"from", "0,0"}, {"to", "10 0 30 40"}}, 0.4), QString("0 0"));
    QCOMPARE(textAt("points", {{"from", "0,0"}, {"to", "10 0 30 40"}}, 0.5), QString("10 0 30 40"));
}

void TestAnimatedValues::lengthsKeepTheirUnit()
{
    QCOMPARE(textAt("width", {{"from", "10%"}, {"to", "20%"}}, 0.5), QString("15%"));
    QCOMPARE(textAt("width", {{"from", "1em"}, {"to", "2em"}}, 0.5), QString("1.5em"));
    QCOMPARE(textAt("width", {{"from", "1in"}, {"to", "2in"}}, 0.5), QString("144"));
}

// The viewport is 200 wide and 100 high, an em is 10.
void TestAnimatedValues::lengthsOfDifferentUnitsMeetInUserUnits()
{
    QCOMPARE(textAt("width", {{"from", "10%"}, {"to", "40"}}, 0.5), QString("30"));
    QCOMPARE(textAt("height", {{"from", "10%"}, {"to", "40"}}, 0.5), QString("25"));
    QCOMPARE(textAt("x", {{"values", "10;2em;10%"}}, 0.5), QString("20"));
    QCOMPARE(textAt("x", {{"values", "10;2em;10%"}}, 0.25), QString("15"));
    QCOMPARE(textAt("x", {{"by", "2em"}}, 1, "5"), QString("25"));
}

void TestAnimatedValues::colors()
{
    QCOMPARE(textAt("fill", {{"from", "#000000"}, {"to", "#ff8000"}}, 0.5), QString("#804000"));
    QCOMPARE(textAt("fill", {{"from", "rgba(0,0,0,0)"}, {"to", "rgba(0,0,0,1)"}}, 0.2), QString("#00000033"));
    QCOMPARE(textAt("stroke", {{"by", "#202020"}}, 1, "#f01000"), QString("#ff3020"));
}

void TestAnimatedValues::colorsThatAreWords()
{
    QCOMPARE(textAt("fill", {{"from", "black"}, {"to", "currentColor"}}, 1), QString("#0000ff"));
    QCOMPARE(textAt("fill", {{"from", "none"}, {"to", "red"}}, 0.4), QString("none"));
    QCOMPARE(textAt("fill", {{"from", "none"}, {"to", "red"}}, 0.5), QString("#ff0000"));
    QCOMPARE(textAt("fill", {{"from", "url(#a)"}, {"to", "url(#b)"}}, 0.6), QString("url(#b)"));
}

void TestAnimatedValues::pathsOfEqualStructure()
{
    QCOMPARE(textAt("d", {{"from", "M0 0L10 10Z"}, {"to", "M10 0L30 20Z"}}, 0.5), QString("M 5 0L 20 15Z"));
    QCOMPARE(textAt("d", {{"from", "M0 0Q1 2 3 4T5 6"}, {"to", "M0 0Q1 2 3 4T15 6"}}, 0.5),
             QString("M 0 0Q 1 2 3 4Q 5 6 10 6"));
}

void TestAnimatedValues::pathsWrittenDifferently()
{
    QCOMPARE(textAt("d", {{"from", "m1 1 9 0v10h-9z"}, {"to", "M1,1L20,1 20,11 1,11Z"}}, 0),
             QString("M 1 1L 10 1L 10 11L 1 11Z"));
    QCOMPARE(textAt("d", {{"from", "m1 1 9 0v10h-9z"}, {"to", "M1,1L20,1 20,11 1,11Z"}}, 0.5),
             QString("M 1 1L 15 1L 15 11L 1 11Z"));
    QCOMPARE(textAt("d", {{"from", "M0 0c1 2 3 4 5 6s7 8 9 10"}, {"to", "M0 0C1 2 3 4 5 6C7 8 12 14 14 16"}}, 0.5),
             QString("M 0 0C 1 2 3 4 5 6C 7 8 12 14 14 16"));
}

void TestAnimatedValues::pathsOfDifferentStructureSwitchHalfway()
{
    const Pairs paths = {{"from", "M0 0L10 10"}, {"to", "M0 0L10 10L5 5"}};
    QCOMPARE(textAt("d", paths, 0.49), QString("M 0 0L 10 10"));
    QCOMPARE(textAt("d", paths, 0.5), QString("M 0 0L 10 10L 5 5"));
    // A path with an error is kept as it is, and drawn up to the error.
    QCOMPARE(textAt("d", {{"from", "M0 0L10"}, {"to", "M0 0L10 10"}}, 0.2), QString("M0 0L10"));
}

void TestAnimatedValues::flagsOfArcs()
{
    const Pairs arcs = {{"from", "M0 0A5 5 0 0110 0"}, {"to", "M0 0A5 9 30 1 1 10 0"}};
    QCOMPARE(textAt("d", arcs, 0), QString("M 0 0A 5 5 0 0 1 10 0"));
    QCOMPARE(textAt("d", arcs, 0.5), QString("M 0 0A 5 7 15 1 1 10 0"));
}

void TestAnimatedValues::dashesOfDifferentNumberAreRepeated()
{
    QCOMPARE(textAt("stroke-dasharray", {{"from", "2 4"}, {"to", "4 6 8"}}, 0.5), QString("3 5 5 4 4 6"));
}

void TestAnimatedValues::words()
{
    QCOMPARE(textAt("visibility", {{"values", "hidden;visible;hidden"}}, 0.3), QString("hidden"));
    QCOMPARE(textAt("visibility", {{"values", "hidden;visible;hidden"}}, 0.34), QString("visible"));
    QCOMPARE(textAt("visibility", {{"values", "hidden;visible;hidden"}}, 0.67), QString("hidden"));
}

void TestAnimatedValues::sumsAndRounds()
{
    const Pairs rounds = {{"from", "0"}, {"to", "10"}, {"accumulate", "sum"}};
    QCOMPARE(textAt("x", rounds, 0.5, "1000", 2), QString("25"));
    QCOMPARE(textAt("x", rounds, 1, "1000", 2), QString("30"));
    const Pairs listed = {{"values", "5;8;20"}, {"accumulate", "sum"}, {"additive", "sum"}};
    QCOMPARE(textAt("x", listed, 0.5, "1000", 1), QString("1028"));
    // Words can't be added.
    const Pairs text = {{"values", "hidden;visible"}, {"accumulate", "sum"}, {"additive", "sum"}};
    QCOMPARE(textAt("visibility", text, 0.9, "hidden", 1), QString("visible"));
}

void TestAnimatedValues::negativeSizesAreNone()
{
    QCOMPARE(textAt("width", {{"from", "-10"}, {"to", "10"}}, 0.25), QString("0"));
    QCOMPARE(textAt("x", {{"from", "-10"}, {"to", "10"}}, 0.25), QString("-5"));
}

void TestAnimatedValues::discreteValues()
{
    const Pairs values = {{"values", "1;2;3;4"}, {"calcMode", "discrete"}};
    QCOMPARE(textAt("x", values, 0.24), QString("1"));
    QCOMPARE(textAt("x", values, 0.25), QString("2"));
    QCOMPARE(textAt("x", values, 0.99), QString("4"));
    QCOMPARE(textAt("x", values, 1), QString("4"));
    QCOMPARE(textAt("x", {{"from", "1"}, {"to", "2"}, {"calcMode", "discrete"}}, 0.5), QString("2"));
}

void TestAnimatedValues::pacedValues()
{
    const Pairs values = {{"values", "0;10;40"}, {"calcMode", "paced"}};
    QCOMPARE(textAt("x", values, 0.25), QString("10"));
    QCOMPARE(textAt("x", values, 0.5), QString("20"));
    // Key times have no meaning then.
    const Pairs timed = {{"values", "0;10;40"}, {"calcMode", "paced"}, {"keyTimes", "0;0.9;1"}};
    QCOMPARE(textAt("x", timed, 0.5), QString("20"));
    QCOMPARE(textAt("x", {{"values", "3;3;3"}, {"calcMode", "paced"}}, 0.5), QString("3"));
}

void TestAnimatedValues::keyTimes()
{
    const Pairs values = {{"values", "0;10;40"}, {"keyTimes", "0; .8 ;1"}};
    QCOMPARE(textAt("x", values, 0.4), QString("5"));
    QCOMPARE(textAt("x", values, 0.9), QString("25"));
    const Pairs discrete = {{"values", "1;2;3"}, {"keyTimes", "0;0.2;0.6"}, {"calcMode", "discrete"}};
    QCOMPARE(textAt("x", discrete, 0.19), QString("1"));
    QCOMPARE(textAt("x", discrete, 0.2), QString("2"));
    QCOMPARE(textAt("x", discrete, 0.7), QString("3"));
    // A jump: two values at one time.
    const Pairs jump = {{"values", "0;10;20;30"}, {"keyTimes", "0;0.5;0.5;1"}};
    QCOMPARE(textAt("x", jump, 0.25), QString("5"));
    QCOMPARE(textAt("x", jump, 0.5), QString("20"));
}

void TestAnimatedValues::keyTimesThatDoNotFit_data()
{
    QTest::addColumn<QByteArray>("times");
    QTest::newRow("too few") << QByteArray("0;1");
    QTest::newRow("too many") << QByteArray("0;0.2;0.6;1");
    QTest::newRow("not from 0") << QByteArray("0.1;0.5;1");
    QTest::newRow("not to 1") << QByteArray("0;0.5;0.9");
    QTest::newRow("backwards") << QByteArray("0;0.6;0.5");
    QTest::newRow("beyond") << QByteArray("0;0.6;1.5");
    QTest::newRow("no numbers") << QByteArray("0;half;1");
}

void TestAnimatedValues::keyTimesThatDoNotFit()
{
    QFETCH(QByteArray, times);
    QVERIFY(!effectOf("x", {{"values", "0;10;40"}, {"keyTimes", times.constData()}}));
}

// The curve (0, 1, 1, 0) has x(t) = 3t(1-t)² · 0 + 3t²(1-t) · 1 + t³ and is at its middle after half the time. The
// curve (0, 0, 0, 1) has x = t³ and y = 3t²(1-t) + t³: after 1/8 of the time t is 1/2 and y is 1/2.
void TestAnimatedValues::keySplines()
{
    const auto at = [](const char *spline, double progress) {
        return textAt("x", {{"from", "0"}, {"to", "100"}, {"calcMode", "spline"}, {"keySplines", spline}}, progress)
            .toDouble();
    };
    QCOMPARE(at("0 1 1 0", 0.5), 50.0);
    QCOMPARE(at("0 0 0 1", 0.125), 50.0);
    QCOMPARE(at("0 0 1 1", 0.3), 30.0);
    QCOMPARE(at("0,0,0,1", 1), 100.0);
    const Pairs two = {{"values", "0;100;200"},
                       {"calcMode", "spline"},
                       {"keyTimes", "0;0.8;1"},
                       {"keySplines", "0 0 0 1;0 0 1 1"}};
    QCOMPARE(textAt("x", two, 0.1).toDouble(), 50.0);
    QCOMPARE(textAt("x", two, 0.9).toDouble(), 150.0);
}

void TestAnimatedValues::keySplinesThatDoNotFit()
{
    for (const char *splines : {"", "0 0 1", "0 0 1 1;0 0 1 1", "0 0 2 1", "0 0 1 -1", "a"})
        QVERIFY2(!effectOf("x", {{"from", "0"}, {"to", "1"}, {"calcMode", "spline"}, {"keySplines", splines}}),
                 splines);
}

void TestAnimatedValues::transformFunctions()
{
    QCOMPARE(functionAt("translate", {{"from", "10"}, {"to", "30,40"}}, 0.5), QString("translate(20 20)"));
    QCOMPARE(functionAt("scale", {{"from", "1"}, {"to", "3 5"}}, 0.5), QString("scale(2 3)"));
    QCOMPARE(functionAt("rotate", {{"from", "0"}, {"to", "90 10 20"}}, 0.5), QString("rotate(45 5 10)"));
    QCOMPARE(functionAt("skewX", {{"from", "0"}, {"to", "30"}}, 0.5), QString("skewX(15)"));
    QCOMPARE(functionAt("skewY", {{"values", "0;30;0"}}, 0.5), QString("skewY(30)"));
    QCOMPARE(functionAt("", {{"by", "10 4"}}, 0.5), QString("translate(5 2)"));
    QCOMPARE(functionAt("rotate", {{"from", "0"}, {"to", "90"}, {"accumulate", "sum"}}, 0.5, 2),
             QString("rotate(225 0 0)"));
    QCOMPARE(functionAt("scale", {{"to", "3"}}, 0.5), QString("scale(2 2)"));
}

void TestAnimatedValues::transformFunctionsThatAreNone()
{
    QCOMPARE(functionAt("rotate", {{"from", "0"}, {"to", "90 10"}}, 0.5), QString("no effect"));
    QCOMPARE(functionAt("translate", {{"from", "0"}, {"to", "1 2 3"}}, 0.5), QString("no effect"));
    QCOMPARE(functionAt("scale", {{"from", "none"}, {"to", "1"}}, 0.5), QString("no effect"));
}

void TestAnimatedValues::pacedTurnsGoByTheirAngle()
{
    QCOMPARE(functionAt("rotate", {{"values", "0 100 100;10 0 0;40 0 0"}, {"calcMode", "paced"}}, 0.25),
             QString("rotate(10 0 0)"));
}

void TestAnimatedValues::nothingGivenIsNoEffect()
{
    QVERIFY(!effectOf("x", {}));
    QVERIFY(!effectOf("x", {{"from", "3"}}));
    QVERIFY(!effectOf("x", {{"values", " ; "}}));
}

QTEST_APPLESS_MAIN(TestAnimatedValues)
#include "test_animatedvalues.moc"
