// Formulas as people write them. Values are worked out by hand.

#include <shapekit/formula.h>

#include <QtTest/QtTest>

#include <cmath>

using shapekit::Formula;

class TestFormula : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formulasHaveTheirValues_data();
    void formulasHaveTheirValues();
    void placesWithoutAValueAreNotFinite_data();
    void placesWithoutAValueAreNotFinite();
    void mistakesAreFoundWhereTheyAre_data();
    void mistakesAreFoundWhereTheyAre();
    void longAndDeepFormulasAreRefused();
    void theLongestFormulaIsReadAndEvaluated();
    void everyFunctionThatIsNamedCanBeWritten();
};

void TestFormula::formulasHaveTheirValues_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("value");
    const auto row = [](const char *text, double x, double value) {
        QTest::newRow(text) << QString::fromUtf8(text) << x << value;
    };
    row("x", 3, 3);
    row("y = x + 1", 3, 4);
    row("f(x) = 2x", 3, 6);
    row("x^2 - 3", 3, 6);
    row("-x^2", 3, -9);
    row("2^3^2", 0, 512);
    row("2^-x", 1, 0.5);
    row("8/4/2", 0, 1);
    row("10 - 4 - 3", 0, 3);
    row("2 + 3 * 4", 0, 14);
    row("0,5 x", 3, 1.5);
    row(".5x", 3, 1.5);
    row("2(x+1)(x-1)", 3, 16);
    row("|x - 5|", 3, 2);
    row("2|x|", -3, 6);
    row("|3 - |x - 5||", 3, 1);
    row("x²+x³", 2, 12);
    row("√x", 9, 3);
    row("√(x + 7)", 9, 4);
    row("3·x÷2 − 1", 4, 5);
    row("e^0 + ln(e) + lg(100)", 0, 4);
    row("SQRT(X)", 16, 4);
    row("abs(x) sgn(x)", -3, -3);
    row("floor(x) + ceil(x) + round(x)", 1.25, 4);
    row("sin(pi / 2) + cos(0) + tan(0)", 0, 2);
    row("+x", 3, 3);
    row("--x", 3, 3);
}

void TestFormula::formulasHaveTheirValues()
{
    QFETCH(QString, text);
    QFETCH(double, x);
    QFETCH(double, value);
    const Formula formula(text);
    QCOMPARE(formula.fault(), Formula::None);
    QVERIFY2(std::abs(formula.at(x) - value) < 1e-12, qPrintable(QString::number(formula.at(x))));
}

void TestFormula::placesWithoutAValueAreNotFinite_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("x");
    QTest::newRow("1/x") << "1/x" << 0.0;
    QTest::newRow("ln(x)") << "ln(x)" << -1.0;
    QTest::newRow("sqrt(x)") << "sqrt(x)" << -1.0;
    QTest::newRow("0/0") << "x/x" << 0.0;
    QTest::newRow("too large") << "10^10^10^x" << 3.0;
}

void TestFormula::placesWithoutAValueAreNotFinite()
{
    QFETCH(QString, text);
    QFETCH(double, x);
    QVERIFY(Formula(text).isReadable());
    QVERIFY(!std::isfinite(Formula(text).at(x)));
}

void TestFormula::mistakesAreFoundWhereTheyAre_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("fault");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("faulty");
    const auto row = [](const char *text, Formula::Fault fault, int offset, const char *faulty) {
        QTest::newRow(text) << QString::fromUtf8(text) << int(fault) << offset << QString::fromUtf8(faulty);
    };
    row("", Formula::Empty, 0, "");
    row("   ", Formula::Empty, 0, " ");
    row("y =", Formula::Empty, 0, "y");
    row("x +", Formula::Incomplete, 3, "");
    row("x + * 2", Formula::Unexpected, 4, "*");
    row("x^^2", Formula::Unexpected, 2, "^");
    row("2 + foo(x)", Formula::UnknownName, 4, "foo");
    row("a x", Formula::UnknownName, 0, "a");
    row("sin x", Formula::NoArgument, 0, "sin");
    row("2 (x + 1", Formula::Unclosed, 2, "(");
    row("|x", Formula::Unclosed, 0, "|");
    row("x)", Formula::Unexpected, 1, ")");
    row("x 2", Formula::Unexpected, 2, "2");
    row("1.2.3", Formula::Unexpected, 3, ".");
    row(".", Formula::Unexpected, 0, ".");
    row("x $ 2", Formula::Unexpected, 2, "$");
    row("()", Formula::Unexpected, 1, ")");
    row("x = 3", Formula::Unexpected, 2, "=");
}

void TestFormula::mistakesAreFoundWhereTheyAre()
{
    QFETCH(QString, text);
    QFETCH(int, fault);
    QFETCH(int, offset);
    QFETCH(QString, faulty);
    const Formula formula(text);
    QCOMPARE(int(formula.fault()), fault);
    QCOMPARE(formula.faultOffset(), offset);
    QCOMPARE(formula.faultyText(), faulty);
    QVERIFY(!std::isfinite(formula.at(1)));
}

void TestFormula::longAndDeepFormulasAreRefused()
{
    const Formula tooLong(QString(Formula::mostCharacters, QLatin1Char('-')) + QLatin1Char('x'));
    QCOMPARE(tooLong.fault(), Formula::TooLong);
    for (const char *sign : {"(", "-", "|", "2^", "√", "sin("}) {
        QString text;
        while (text.size() < Formula::mostCharacters - 3)
            text += QString::fromUtf8(sign);
        QVERIFY2(!Formula(text).isReadable(), sign);
    }
    QCOMPARE(Formula(QString(90, QLatin1Char('(')) + QLatin1Char('x') + QString(90, QLatin1Char(')'))).fault(),
             Formula::TooLong);
}

void TestFormula::theLongestFormulaIsReadAndEvaluated()
{
    QString text(QStringLiteral("x"));
    while (text.size() + 2 <= Formula::mostCharacters)
        text += QLatin1String("+x");
    QVERIFY(Formula(text).isReadable());
    QCOMPARE(Formula(text).at(2), 2.0 * ((Formula::mostCharacters + 1) / 2));
}

void TestFormula::everyFunctionThatIsNamedCanBeWritten()
{
    const QStringList names = Formula::functionNames();
    QVERIFY(names.contains(QStringLiteral("sin")));
    for (const QString &name : names)
        QVERIFY2(std::isfinite(Formula(name + QLatin1String("(x)")).at(0.5)), qPrintable(name));
}

QTEST_APPLESS_MAIN(TestFormula)
#include "test_formula.moc"
