// Values of expressions in declared shapes, worked out by hand.

#include "expressioncase.h"

#include <QtTest/QtTest>

using declaredtest::Bench;

class TestExpressions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operatorsBindAsInMathematics_data();
    void operatorsBindAsInMathematics();
    void conditionsAreOneOrNothing_data();
    void conditionsAreOneOrNothing();
    void pointsAreAddedAndScaled_data();
    void pointsAreAddedAndScaled();
    void functionsGiveTheirValues_data();
    void functionsGiveTheirValues();
    void namesStandForTheirValues_data();
    void namesStandForTheirValues();
    void functionsOfTheFileTakeValuesOfAnyType();
    void whatIsNotFiniteShowsAsNothing_data();
    void whatIsNotFiniteShowsAsNothing();
    void textIsWrittenAroundExpressions_data();
    void textIsWrittenAroundExpressions();
    void conditionThatIsNotFiniteHolds();
    void rangesHaveTwoEnds();
    void tracksAreNamesWithArguments();
    void loopsAreReadWithTheirBounds();
    void inputsOfAnExpressionAreKnown();
    void expressionsOfOneFileShareAProgram();
};

#define EXPRESSION_ROWS                                                                                            \
    QTest::addColumn<QString>("text");                                                                             \
    QTest::addColumn<QString>("value");                                                                            \
    const auto row = [](const char *text, const char *value) {                                                     \
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(value);                                \
    };

static void compareExpression()
{
    QFETCH(QString, text);
    QFETCH(QString, value);
    QCOMPARE(Bench().asAttribute(text, true), value);
}

void TestExpressions::operatorsBindAsInMathematics_data()
{
    EXPRESSION_ROWS
    row("1 + 2 * 3", "7");
    row("(1 + 2) * 3", "9");
    row("7 - 2 - 1", "4");
    row("12 / 4 / 2", "1.5");
    row("-2 ^ 2", "-4");
    row("2 ^ 3 ^ 2", "512");
    row("2 ^ -1", "0.5");
    row("2 * -3", "-6");
    row("--5", "5");
    row("7 % 3", "1");
    row("-7 % 3", "2");
    row("7 % -3", "-2");
    row("1.5e2 + .5", "150.5");
    row("1 < 2 ? 10 : 20", "10");
    row("0 ? 1 : 0 ? 2 : 3", "3");
    row("1 / 3", "0.3333333333");
    row("0 * -1", "0");
}

void TestExpressions::operatorsBindAsInMathematics()
{
    compareExpression();
}

void TestExpressions::conditionsAreOneOrNothing_data()
{
    EXPRESSION_ROWS
    row("1 < 2", "1");
    row("2 < 2", "0");
    row("2 <= 2", "1");
    row("3 <= 2", "0");
    row("3 > 2", "1");
    row("2 > 2", "0");
    row("2 >= 2", "1");
    row("1 >= 2", "0");
    row("2 == 2", "1");
    row("2 != 2", "0");
    row("1 and 2", "1");
    row("1 and 0", "0");
    row("0 or 3", "1");
    row("0 or 0", "0");
    row("not 0", "1");
    row("not 4", "0");
    row("not 1 == 2", "1");
    row("1 or 0 and 0", "1");
    row("title == 'nut'", "1");
    row("title != 'nut'", "0");
    row("p1 == point(30, 10)", "1");
    row("p1 != point(30, 11)", "1");
    row("0 and 1 / 0", "0");
    row("1 or 1 / 0 < 2", "1");
}

void TestExpressions::conditionsAreOneOrNothing()
{
    compareExpression();
}

void TestExpressions::pointsAreAddedAndScaled_data()
{
    EXPRESSION_ROWS
    row("point(3, 4)", "3 4");
    row("middle + point(1, 2)", "61 42");
    row("middle - p1", "30 30");
    row("p1 * 2", "60 20");
    row("-p1", "-30 -10");
    row("middle.x + middle.y", "100");
    row("(middle - p1).y", "30");
    row("1 ? p1 : middle", "30 10");
}

void TestExpressions::pointsAreAddedAndScaled()
{
    compareExpression();
}

void TestExpressions::functionsGiveTheirValues_data()
{
    EXPRESSION_ROWS
    row("sin(30)", "0.5");
    row("sin(180)", "0");
    row("sin(-90)", "-1");
    row("sin(450)", "1");
    row("cos(60)", "0.5");
    row("cos(90)", "0");
    row("cos(-180)", "-1");
    row("cos(720)", "1");
    row("tan(45)", "1");
    row("asin(1)", "90");
    row("acos(0)", "90");
    row("atan(1)", "45");
    row("atan2(1, -1)", "135");
    row("sqrt(9)", "3");
    row("abs(-3)", "3");
    row("sign(-3)", "-1");
    row("sign(0)", "0");
    row("sign(5)", "1");
    row("floor(-1.5)", "-2");
    row("ceil(1.2)", "2");
    row("round(2.5)", "3");
    row("round(-2.5)", "-3");
    row("min(3, 1, 2)", "1");
    row("max(3, 1, 5)", "5");
    row("min(4)", "4");
    row("clamp(5, 0, 3)", "3");
    row("clamp(-1, 0, 3)", "0");
    row("clamp(5, 7, 3)", "3");
    row("mix(10, 20, 0.25)", "12.5");
    row("mix(p1, middle, 0.5)", "45 25");
    row("mod(-30, 360)", "330");
    row("polar(middle, 10, 90)", "60 50");
    row("polar(middle, 10, 180)", "50 40");
    row("length(point(3, -4))", "5");
    row("distance(point(1, 1), point(4, 5))", "5");
    row("angle(middle, middle + point(0, 5))", "90");
    row("angle(middle, middle - point(0, 5))", "270");
    row("angle(middle, middle)", "0");
    row("turn(point(70, 40), middle, 90)", "60 50");
    row("cross(point(1, 2), point(3, 4))", "-2");
    row("dot(point(1, 2), point(3, 4))", "11");
    row("join('a', join(digits(45, 0), '°'))", "a45°");
    row("digits(2.456, 1)", "2.5");
    row("digits(2, 3)", "2");
    row("digits(100, 0)", "100");
    row("digits(-0.01, 1)", "0");
    row("digits(1.5, -4)", "2");
    row("box(0, 0, 10, 20, 3)",
        "M3 0 L7 0 A3 3 0 0 1 10 3 L10 17 A3 3 0 0 1 7 20 L3 20 A3 3 0 0 1 0 17 L0 3 A3 3 0 0 1 3 0 Z");
    row("box(0, 0, 10, 20, 0)", "M0 0 L10 0 L10 0 L10 20 L10 20 L0 20 L0 20 L0 0 L0 0 Z");
    row("oval(point(20, 30), 10, 5)", "M10 30 A10 5 0 0 1 30 30 A10 5 0 0 1 10 30 Z");
    row("oval(point(20, 30), 10, -5)", "M10 30 A10 5 0 0 0 30 30 A10 5 0 0 0 10 30 Z");
    row("letters('', middle, 10)", "");
}

void TestExpressions::functionsGiveTheirValues()
{
    compareExpression();
}

void TestExpressions::namesStandForTheirValues_data()
{
    EXPRESSION_ROWS
    row("w - h", "40");
    row("title", "nut");
    row("p[2]", "90 70");
    row("p[1].x", "30");
    row("values[0] + values[2]", "12");
    row("count(values)", "3");
    row("count(p)", "2");
    row("pi", "fault");
}

void TestExpressions::namesStandForTheirValues()
{
    compareExpression();
}

void TestExpressions::functionsOfTheFileTakeValuesOfAnyType()
{
    Bench bench;
    bench.addFunction("half", {QStringLiteral("v")}, "v * 0.5");
    bench.addFunction("between", {QStringLiteral("a"), QStringLiteral("b")}, "half(a + b)");
    QCOMPARE(bench.expression("half(w)"), QStringLiteral("60"));
    QCOMPARE(bench.expression("half(p1)"), QStringLiteral("15 5"));
    QCOMPARE(bench.expression("between(p1, middle)"), QStringLiteral("45 25"));
    QCOMPARE(bench.expression("between(half(4), half(8)) + half(2)"), QStringLiteral("4"));
}

void TestExpressions::whatIsNotFiniteShowsAsNothing_data()
{
    EXPRESSION_ROWS
    row("1 / zero", "nothing");
    row("sqrt(-1)", "nothing");
    row("p[3]", "nothing");
    row("p[0].x", "nothing");
    row("values[-1]", "nothing");
    row("point(1, 1 / zero)", "nothing");
    row("1 / zero < 2 ? 1 : 2", "nothing");
    row("not 1 / zero", "nothing");
    row("1 and 1 / zero", "nothing");
    row("digits(1 / zero, 1)", "nothing");
    row("box(0, 0, 1 / zero, 1, 1)", "nothing");
    row("letters('a', p[3], 10)", "nothing");
    row("1 ? 2 : 1 / zero", "2");
    row("max(1 / zero - 1 / zero, 3)", "nothing");
    row("min(3, 0 / zero)", "nothing");
}

void TestExpressions::whatIsNotFiniteShowsAsNothing()
{
    compareExpression();
}

void TestExpressions::textIsWrittenAroundExpressions_data()
{
    EXPRESSION_ROWS
    row("plain", "plain");
    row("", "");
    row("M{p1}L{w} 0Z", "M30 10L120 0Z");
    row("{{{1 + 1}}}", "{2}");
    row("a}}b{{c", "a}b{c");
    row("{for k in 1..3}{k * 2} {end}Z", "2 4 6 Z");
    row("{for k in 3..1}x{end}|", "|");
    row("{for i in 0..1}{for k in 0..1}{i}{k};{end}|{end}", "00;01;|10;11;|");
    row("{if w > h}wide{else}high{end}", "wide");
    row("{if w < h}wide{else}high{end}", "high");
    row("{if w < h}wide{end}.", ".");
    row("{if 1}{if 0}a{else}b{end}{end}", "b");
    row("{ w > h ? 'a}b' : 'c' }", "a}b");
    row("{for k in 0..1}{k}{end}{for k in 5..5}{k}{end}", "015");
    row("a{1 / zero}b", "nothing");
    row("{for k in 0..1 / zero}x{end}", "nothing");
}

void TestExpressions::textIsWrittenAroundExpressions()
{
    QFETCH(QString, text);
    QFETCH(QString, value);
    QCOMPARE(Bench().asAttribute(text, false), value);
}

void TestExpressions::conditionThatIsNotFiniteHolds()
{
    Bench bench;
    declared::Program program;
    declared::Compiler compiler(program, bench.symbols);
    const auto unknown = compiler.expression(QStringLiteral("w / zero < 3"), declared::Type::Number);
    const auto untrue = compiler.expression(QStringLiteral("w < h"), declared::Type::Number);
    const auto whole = compiler.expression(QStringLiteral("w > h"), declared::Type::Number);
    QVERIFY(unknown && untrue && whole);
    declared::Evaluator evaluator(program, bench.inputs, bench.budget);
    QVERIFY(evaluator.holds(*unknown));
    QVERIFY(!evaluator.holds(*untrue));
    QVERIFY(evaluator.holds(*whole));
}

void TestExpressions::rangesHaveTwoEnds()
{
    Bench bench;
    declared::Program program;
    declared::Compiler compiler(program, bench.symbols);
    const auto range = compiler.range(QStringLiteral("8 .. 8 + min(w, h) / 2"));
    const auto fixed = compiler.range(QStringLiteral("h / 4"));
    QVERIFY(range && fixed);
    declared::Evaluator evaluator(program, bench.inputs, bench.budget);
    QCOMPARE(evaluator.valueOf(range->low).number(), 8.0);
    QCOMPARE(evaluator.valueOf(range->high).number(), 48.0);
    QCOMPARE(evaluator.valueOf(fixed->low).number(), 20.0);
    QCOMPARE(evaluator.valueOf(fixed->high).number(), 20.0);
}

void TestExpressions::tracksAreNamesWithArguments()
{
    Bench bench;
    declared::Program program;
    declared::Compiler compiler(program, bench.symbols);
    const auto track = compiler.call(QStringLiteral("circle(middle, h / 2)"));
    QVERIFY(track);
    QCOMPARE(track->name, QStringLiteral("circle"));
    QCOMPARE(track->arguments.size(), 2);
    declared::Evaluator evaluator(program, bench.inputs, bench.budget);
    QCOMPARE(evaluator.valueOf(track->arguments.at(0)).point, QPointF(60, 40));
    QCOMPARE(evaluator.valueOf(track->arguments.at(1)).number(), 40.0);
}

void TestExpressions::loopsAreReadWithTheirBounds()
{
    Bench bench;
    declared::Program program;
    declared::Compiler compiler(program, bench.symbols);
    const auto loops = compiler.loops(QStringLiteral("row in 1..3, column in 0..w / 40"));
    QVERIFY(loops);
    QCOMPARE(loops->size(), 2);
    QCOMPARE(loops->at(1).name, QStringLiteral("column"));
    declared::Evaluator evaluator(program, bench.inputs, bench.budget);
    QCOMPARE(evaluator.valueOf(loops->at(0).from).number(), 1.0);
    QCOMPARE(evaluator.valueOf(loops->at(1).to).number(), 3.0);
}

void TestExpressions::inputsOfAnExpressionAreKnown()
{
    Bench bench;
    bench.addFunction("lower", {QStringLiteral("v")}, "v + h");
    declared::Program program;
    declared::Compiler compiler(program, bench.symbols);
    const auto direct = compiler.expression(QStringLiteral("w + values[0] + w"));
    const auto through = compiler.expression(QStringLiteral("lower(zero)"));
    const auto again = compiler.expression(QStringLiteral("lower(1)"));
    QVERIFY(direct && through && again);
    QCOMPARE(direct->inputs, QVector<qint32>({-2, 0}));
    QCOMPARE(through->inputs, QVector<qint32>({1, 4}));
    QCOMPARE(again->inputs, QVector<qint32>({1}));
}

void TestExpressions::expressionsOfOneFileShareAProgram()
{
    Bench bench;
    declared::Program program;
    declared::Compiler compiler(program, bench.symbols);
    const auto first = compiler.expression(QStringLiteral("w * 2"));
    const auto second = compiler.text(QStringLiteral("{h}px"));
    QVERIFY(first && second);
    declared::Evaluator evaluator(program, bench.inputs, bench.budget);
    QCOMPARE(evaluator.valueOf(*first).number(), 240.0);
    QCOMPARE(evaluator.valueOf(*second).text, QStringLiteral("80px"));
}

QTEST_MAIN(TestExpressions)
#include "test_expressions.moc"
