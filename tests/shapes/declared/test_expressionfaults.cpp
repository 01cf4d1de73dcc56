// Faults of expressions: the code, and the line and column where it stands.

#include "expressioncase.h"

#include <QtTest/QtTest>

using declaredtest::Bench;

class TestExpressionFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faultsOfExpressionsStandWhereTheyAre_data();
    void faultsOfExpressionsStandWhereTheyAre();
    void faultsOfTextsStandWhereTheyAre_data();
    void faultsOfTextsStandWhereTheyAre();
    void faultsOfRangesStandWhereTheyAre_data();
    void faultsOfRangesStandWhereTheyAre();
    void faultsOfLoopsStandWhereTheyAre_data();
    void faultsOfLoopsStandWhereTheyAre();
    void messagesSayWhatWasMeant_data();
    void messagesSayWhatWasMeant();
    void faultOfAFunctionStandsAtItsCall();
    void functionsInACircleAreRefused();
    void nextTextIsReadAfterAFault();
};

#define FAULT_ROWS                                                                                                 \
    QTest::addColumn<QString>("text");                                                                             \
    QTest::addColumn<QString>("fault");                                                                            \
    const auto row = [](const char *text, const char *fault) {                                                     \
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(fault);                                \
    };

namespace {

/// "1:8 C20", or nothing for a text without a fault.
QString described(const declared::Compiler &compiler, const QString &text)
{
    const declared::Fault &fault = compiler.fault();
    if (fault.code.isEmpty())
        return {};
    const declared::Place place = declared::placeOf(text, fault.offset);
    return QStringLiteral("%1:%2 %3").arg(QString::number(place.line), QString::number(place.column), fault.code);
}

} // namespace

void TestExpressionFaults::faultsOfExpressionsStandWhereTheyAre_data()
{
    FAULT_ROWS
    row("", "1:1 C19");
    row("1 +", "1:4 C19");
    row("1 2", "1:3 C19");
    row("(1", "1:3 C19");
    row("1 < 2 < 3", "1:7 C19");
    row("w\n + \n  * 2", "3:3 C19");
    row("'open", "1:1 C19");
    row("1 # 2", "1:3 C19");
    row("p1.z", "1:4 C19");
    row("1 ? 2", "1:6 C19");
    row("1.", "1:3 C19");
    row("end", "1:1 C19");
    row("width", "1:1 C20");
    row("w +\nwdith", "2:1 C20");
    row("sine(3)", "1:1 C21");
    row("1 + middle(2)", "1:5 C21");
    row("sin()", "1:5 C19");
    row("sin(1, 2)", "1:1 C22");
    row("length(w)", "1:1 C22");
    row("1 + clamp(1, 2)", "1:5 C22");
    row("count(w)", "1:1 C22");
    row("count(3)", "1:1 C22");
    row("w + middle", "1:3 C23");
    row("2 * middle", "1:3 C23");
    row("middle / 2", "1:8 C23");
    row("title + title", "1:7 C23");
    row("-title", "1:1 C23");
    row("w.x", "1:2 C23");
    row("middle < p1", "1:1 C23");
    row("w == title", "1:6 C23");
    row("1 and middle", "1:7 C23");
    row("title or 1", "1:1 C23");
    row("not p1", "1:5 C23");
    row("middle ? 1 : 2", "1:1 C23");
    row("1 ? 2 : p1", "1:9 C23");
    row("p[middle]", "1:3 C23");
    row("p", "1:2 C19");
    row("at.x", "1:1 C28");
}

void TestExpressionFaults::faultsOfExpressionsStandWhereTheyAre()
{
    QFETCH(QString, text);
    QFETCH(QString, fault);
    Bench bench;
    declared::Program program;
    declared::Compiler compiler(program, bench.symbols);
    QVERIFY(!compiler.expression(text));
    QCOMPARE(described(compiler, text), fault);
}

void TestExpressionFaults::faultsOfTextsStandWhereTheyAre_data()
{
    FAULT_ROWS
    row("M0 {w", "1:4 C18");
    row("M0 w}", "1:5 C18");
    row("{for k in 0..2}x", "1:1 C18");
    row("a{if w}x{else}y", "1:2 C18");
    row("x{end}", "1:2 C18");
    row("x{else}", "1:2 C18");
    row("{for k in 0..2}{else}{end}", "1:1 C18");
    row("{if w}{else}{else}{end}", "1:1 C18");
    row("{}", "1:2 C19");
    row("{w h}", "1:4 C19");
    row("{for k 0..2}{end}", "1:8 C19");
    row("{for k in 0,2}{end}", "1:12 C19");
    row("{for w in 0..2}{end}", "1:6 C12");
    row("{for end in 0..2}{end}", "1:6 C12");
    row("{for k in 0..2}{for k in 0..2}{end}{end}", "1:21 C12");
    row("{for k in 0..2}{end}{k}", "1:22 C20");
    row("{for k in p1..2}{end}", "1:11 C23");
    row("{if p1}{end}", "1:5 C23");
    row("M0 0\nL{p1.x} {hh}", "2:10 C20");
    row("{for a in 0..1}{for b in 0..1}{for c in 0..1}{for d in 0..1}{end}{end}{end}{end}", "1:46 C26");
}

void TestExpressionFaults::faultsOfTextsStandWhereTheyAre()
{
    QFETCH(QString, text);
    QFETCH(QString, fault);
    Bench bench;
    declared::Program program;
    declared::Compiler compiler(program, bench.symbols);
    QVERIFY(!compiler.text(text));
    QCOMPARE(described(compiler, text), fault);
}

void TestExpressionFaults::faultsOfRangesStandWhereTheyAre_data()
{
    FAULT_ROWS
    row("1 .. 2 .. 3", "1:8 C29");
    row("1 - 2, 3", "1:6 C29");
    row("1 ..", "1:5 C19");
    row("middle .. 3", "1:1 C23");
    row("1 .. middle", "1:6 C23");
}

void TestExpressionFaults::faultsOfRangesStandWhereTheyAre()
{
    QFETCH(QString, text);
    QFETCH(QString, fault);
    Bench bench;
    declared::Program program;
    declared::Compiler compiler(program, bench.symbols);
    QVERIFY(!compiler.range(text));
    QCOMPARE(described(compiler, text), fault);
}

void TestExpressionFaults::faultsOfLoopsStandWhereTheyAre_data()
{
    FAULT_ROWS
    row("i", "1:2 C19");
    row("i in 3", "1:7 C19");
    row("3 in 0..2", "1:1 C12");
    row("w in 0..2", "1:1 C12");
    row("i in 0..2 k in 0..2", "1:11 C19");
    row("i in p1..2", "1:6 C23");
}

void TestExpressionFaults::faultsOfLoopsStandWhereTheyAre()
{
    QFETCH(QString, text);
    QFETCH(QString, fault);
    Bench bench;
    declared::Program program;
    declared::Compiler compiler(program, bench.symbols);
    QVERIFY(!compiler.loops(text));
    QCOMPARE(described(compiler, text), fault);
}

void TestExpressionFaults::messagesSayWhatWasMeant_data()
{
    FAULT_ROWS
    row("midle.x", "there is no \"midle\" (did you mean \"middle\"?)");
    row("sqr(4)", "there is no function \"sqr\" (did you mean \"sqrt\"?)");
    row("quite_another", "there is no \"quite_another\"");
    row("sin(middle)", "there is no sin(point); look the arguments up");
    row("w + title",
        "number \"+\" text has no meaning; points are added, subtracted, and multiplied by a number on "
        "the right");
    row("w w", "\"w\" is left over");
    row("w +", "a value is expected, not the end");
}

void TestExpressionFaults::messagesSayWhatWasMeant()
{
    QFETCH(QString, text);
    QFETCH(QString, fault);
    Bench bench;
    declared::Program program;
    declared::Compiler compiler(program, bench.symbols);
    QVERIFY(!compiler.expression(text));
    QCOMPARE(compiler.fault().message, fault);
}

void TestExpressionFaults::faultOfAFunctionStandsAtItsCall()
{
    Bench bench;
    bench.addFunction("half", {QStringLiteral("v")}, "v / 2");
    declared::Program program;
    declared::Compiler compiler(program, bench.symbols);
    QVERIFY(!compiler.expression(QStringLiteral("1 + half(p1).x")));
    QCOMPARE(compiler.fault().code, QStringLiteral("C23"));
    QCOMPARE(compiler.fault().offset, 4);
    QVERIFY(compiler.fault().message.startsWith(QLatin1String("in \"half(point)\": ")));
    QVERIFY(!compiler.expression(QStringLiteral("half(1, 2)")));
    QCOMPARE(compiler.fault().code, QStringLiteral("C22"));
}

void TestExpressionFaults::functionsInACircleAreRefused()
{
    Bench bench;
    bench.addFunction("ping", {QStringLiteral("v")}, "pong(v)");
    bench.addFunction("pong", {QStringLiteral("v")}, "ping(v)");
    declared::Program program;
    declared::Compiler compiler(program, bench.symbols);
    QVERIFY(!compiler.expression(QStringLiteral("ping(1)")));
    QCOMPARE(compiler.fault().code, QStringLiteral("C25"));
}

void TestExpressionFaults::nextTextIsReadAfterAFault()
{
    Bench bench;
    declared::Program program;
    declared::Compiler compiler(program, bench.symbols);
    QVERIFY(!compiler.expression(QStringLiteral("1 +")));
    QVERIFY(compiler.expression(QStringLiteral("1 + 1")));
    QCOMPARE(compiler.fault().code, QString());
}

QTEST_MAIN(TestExpressionFaults)
#include "test_expressionfaults.moc"
