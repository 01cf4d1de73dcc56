// Numbers that are typed into fields as expressions.

#include <panels/fields/expression.h>

#include <QtTest/QtTest>

#include <cmath>

class TestExpression : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_data();
    void values();
    void faults_data();
    void faults();
};

void TestExpression::values_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<double>("value");
    // The present value is 40.
    QTest::newRow("a number") << "12"
                              << "" << 12.0;
    QTest::newRow("a fraction") << "0.5"
                                << "" << 0.5;
    QTest::newRow("a comma") << "0,5"
                             << "" << 0.5;
    QTest::newRow("spaces") << "  1 + 2 "
                            << "" << 3.0;
    QTest::newRow("below zero") << "-7"
                                << "" << -7.0;
    QTest::newRow("a minus sign") << QString(QChar(0x2212)) + "7"
                                  << "" << -7.0;
    QTest::newRow("division") << "120/3"
                              << "" << 40.0;
    QTest::newRow("products first") << "2+3*4"
                                    << "" << 14.0;
    QTest::newRow("from the left") << "20-5-3"
                                   << "" << 12.0;
    QTest::newRow("parentheses") << "2*(3+4)"
                                 << "" << 14.0;
    QTest::newRow("more") << "+10"
                          << "" << 50.0;
    QTest::newRow("more by a term") << "+2*5"
                                    << "" << 50.0;
    QTest::newRow("times") << "*3"
                           << "" << 120.0;
    QTest::newRow("a part") << "/4"
                            << "" << 10.0;
    QTest::newRow("percent of it") << "50 %"
                                   << "" << 20.0;
    QTest::newRow("percent more") << "+25%"
                                  << "" << 50.0;
    QTest::newRow("percent of a field of percent") << "50 %"
                                                   << "%" << 50.0;
    QTest::newRow("own unit") << "9 V"
                              << "V" << 9.0;
    QTest::newRow("inches") << "2 in"
                            << "px" << 192.0;
    QTest::newRow("centimetres") << "2.54 cm"
                                 << "px" << 96.0;
    QTest::newRow("millimetres") << "25,4mm"
                                 << "px" << 96.0;
    QTest::newRow("points") << "72 pt"
                            << "px" << 96.0;
    QTest::newRow("capital letters") << "1 IN"
                                     << "px" << 96.0;
    QTest::newRow("lengths together") << "1 in + 4"
                                      << "px" << 100.0;
    QTest::newRow("a unit of parentheses") << "(1+1) in"
                                           << "px" << 192.0;
    QTest::newRow("degrees") << "90°"
                             << "°" << 90.0;
}

void TestExpression::values()
{
    QFETCH(QString, text);
    QFETCH(QString, unit);
    QFETCH(double, value);
    const auto result = board::expressionValue(text, {40.0, unit});
    QVERIFY(result);
    QVERIFY2(std::abs(*result - value) < 1e-9, qPrintable(QString::number(*result)));
}

void TestExpression::faults_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << "";
    QTest::newRow("a word") << "wide";
    QTest::newRow("a number with a letter") << "12a";
    QTest::newRow("two numbers") << "1 2";
    QTest::newRow("two points") << "1.2.3";
    QTest::newRow("an operator without a number") << "3*";
    QTest::newRow("an open parenthesis") << "(1+2";
    QTest::newRow("a closed parenthesis") << "1+2)";
    QTest::newRow("division by zero") << "1/0";
    QTest::newRow("division of it by zero") << "/0";
    QTest::newRow("too large") << QString(400, '9');
    QTest::newRow("many parentheses") << QString(100000, '(');
    QTest::newRow("a length in a field of none") << "5 cm";
    QTest::newRow("an unknown unit") << "5 ell";
}

void TestExpression::faults()
{
    QFETCH(QString, text);
    QVERIFY(!board::expressionValue(text, {40.0, QString()}));
}

QTEST_APPLESS_MAIN(TestExpression)
#include "test_expression.moc"
