// Texts of strangers cost a bounded time and memory.

#include "expressioncase.h"

#include <QtTest/QtTest>

using declaredtest::Bench;

class TestExpressionLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expressionHasTwoThousandCharacters();
    void expressionInsideOfTextHasTwoThousandCharacters();
    void expressionsNestSixtyFourTimes();
    void signsNestAsDeepAsParentheses();
    void sumHasTwoHundredAndFiftyTerms();
    void functionsCallEachOtherEightTimes();
    void loopHasTwoThousandRounds();
    void expressionTakesTwentyThousandSteps();
    void drawingTakesTwoHundredThousandSteps();
    void textOfADrawingEndsAtOneMebibyte();
    void programOfAFileIsBounded();
};

namespace {

QString codeOf(const QString &text)
{
    Bench bench;
    declared::Program program;
    declared::Compiler compiler(program, bench.symbols);
    compiler.expression(text);
    return compiler.fault().code;
}

QString repeated(const char *text, int times)
{
    return QString::fromLatin1(text).repeated(times);
}

} // namespace

void TestExpressionLimits::expressionHasTwoThousandCharacters()
{
    const QString longest = QStringLiteral("1") + repeated(" ", 1999);
    QCOMPARE(codeOf(longest), QString());
    QCOMPARE(codeOf(longest + QLatin1Char(' ')), QStringLiteral("C26"));
}

void TestExpressionLimits::expressionInsideOfTextHasTwoThousandCharacters()
{
    Bench bench;
    const QString open = QStringLiteral("{1");
    QCOMPARE(bench.asAttribute(open + repeated(" ", 1998) + QStringLiteral("}"), false), QStringLiteral("1"));
    QCOMPARE(bench.asAttribute(open + repeated(" ", 2000) + QStringLiteral("}"), false), QStringLiteral("fault"));
}

void TestExpressionLimits::expressionsNestSixtyFourTimes()
{
    // A pair of parentheses is an expression in a comparison in a sign: three levels.
    QCOMPARE(codeOf(repeated("(", 20) + QStringLiteral("1") + repeated(")", 20)), QString());
    QCOMPARE(codeOf(repeated("(", 22) + QStringLiteral("1") + repeated(")", 22)), QStringLiteral("C26"));
}

void TestExpressionLimits::signsNestAsDeepAsParentheses()
{
    QCOMPARE(codeOf(repeated("-", 61) + QStringLiteral("1")), QString());
    QCOMPARE(codeOf(repeated("-", 62) + QStringLiteral("1")), QStringLiteral("C26"));
    QCOMPARE(codeOf(repeated("not ", 63) + QStringLiteral("1")), QStringLiteral("C26"));
}

void TestExpressionLimits::sumHasTwoHundredAndFiftyTerms()
{
    QCOMPARE(codeOf(QStringLiteral("1") + repeated("+1", 255)), QString());
    QCOMPARE(codeOf(QStringLiteral("1") + repeated("+1", 256)), QStringLiteral("C26"));
}

void TestExpressionLimits::functionsCallEachOtherEightTimes()
{
    Bench bench;
    bench.addFunction("f0", {QStringLiteral("v")}, "v + 1");
    for (int i = 1; i < 9; ++i) {
        const QByteArray name = "f" + QByteArray::number(i);
        const QByteArray body = "f" + QByteArray::number(i - 1) + "(v) + 1";
        bench.addFunction(name, {QStringLiteral("v")}, body);
    }
    QCOMPARE(bench.expression("f7(0)"), QStringLiteral("8"));
    QCOMPARE(bench.expression("f8(0)"), QStringLiteral("fault"));
}

void TestExpressionLimits::loopHasTwoThousandRounds()
{
    Bench bench;
    QCOMPARE(bench.text("{for k in 1..2000}.{end}").size(), 2000);
    QVERIFY(!bench.budget.isExhausted);
    QCOMPARE(bench.text("{for k in 1..2001}.{end}"), QStringLiteral("nothing"));
    QVERIFY(bench.budget.isExhausted);
}

void TestExpressionLimits::expressionTakesTwentyThousandSteps()
{
    Bench bench;
    // A round of the inner loop takes a join and a constant.
    QCOMPARE(bench.text("{for i in 1..9}{for k in 1..1000}.{end}{end}").size(), 9000);
    QCOMPARE(bench.text("{for i in 1..11}{for k in 1..1000}.{end}{end}"), QStringLiteral("nothing"));
}

void TestExpressionLimits::drawingTakesTwoHundredThousandSteps()
{
    Bench bench;
    // 18,001 joins and constants, and what is around them: ten of them are within the budget, an eleventh isn't.
    for (int i = 0; i < 11; ++i)
        QCOMPARE(bench.text("{for i in 1..9}{for k in 1..1000}.{end}{end}").size(), 9000);
    QCOMPARE(bench.text("{for i in 1..9}{for k in 1..1000}.{end}{end}"), QStringLiteral("nothing"));
    QVERIFY(bench.budget.isExhausted);
}

void TestExpressionLimits::textOfADrawingEndsAtOneMebibyte()
{
    Bench bench;
    const QString line = repeated("x", 1024);
    QCOMPARE(bench.asAttribute(QStringLiteral("{for k in 1..1024}%1{end}").arg(line), false).size(), 1 << 20);
    QVERIFY(!bench.budget.isExhausted);
    QCOMPARE(bench.text("y"), QStringLiteral("nothing"));
    QVERIFY(bench.budget.isExhausted);
}

void TestExpressionLimits::programOfAFileIsBounded()
{
    Bench bench;
    declared::Program program;
    declared::Compiler compiler(program, bench.symbols);
    const QString sum = QStringLiteral("1") + repeated("+1", 200);
    int compiled = 0;
    while (compiler.expression(sum))
        ++compiled;
    QCOMPARE(compiler.fault().code, QStringLiteral("C26"));
    QCOMPARE(compiled, 200000 / 401);
    QCOMPARE(program.steps.size(), size_t(200000));
}

QTEST_MAIN(TestExpressionLimits)
#include "test_expressionlimits.moc"
