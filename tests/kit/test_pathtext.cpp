// Numbers in the path data of shapes: ten digits, with the text that they had in every file so far.

#include <shapekit/pathtext.h>

#include <QtTest/QtTest>

#include <cmath>
#include <limits>

using shapekit::PathText;

namespace {

QString written(double number)
{
    return PathText().moveTo({number, 0}).text();
}

QString expected(double number)
{
    return QLatin1Char('M') + QString::number(number, 'g', 10) + QLatin1String(" 0 ");
}

} // namespace

class TestPathText : public QObject
{
    Q_OBJECT

private slots:
    void hundredthsHaveTheirShortestText_data();
    void hundredthsHaveTheirShortestText();
    void hundredthsAndTheirNeighboursHaveTenDigits();
    void largeHundredthsHaveTenDigits();
};

void TestPathText::hundredthsHaveTheirShortestText_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0.0 << "0";
    QTest::newRow("minus zero") << -0.0 << "0";
    QTest::newRow("whole") << 120.0 << "120";
    QTest::newRow("tenths") << 12.5 << "12.5";
    QTest::newRow("hundredths") << 7.25 << "7.25";
    QTest::newRow("a zero behind the point") << 3.05 << "3.05";
    QTest::newRow("below one") << -0.01 << "-0.01";
    QTest::newRow("negative") << -12.34 << "-12.34";
    QTest::newRow("thousandths") << 0.125 << "0.125";
}

void TestPathText::hundredthsHaveTheirShortestText()
{
    QFETCH(double, number);
    QFETCH(QString, text);
    QCOMPARE(written(number), QLatin1Char('M') + text + QLatin1String(" 0 "));
}

void TestPathText::hundredthsAndTheirNeighboursHaveTenDigits()
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (int count = -20000; count <= 20000; ++count) {
        const double number = count / 100.0;
        QCOMPARE(written(number + 0.0), expected(number + 0.0));
        if (count == 0)
            continue;
        QCOMPARE(written(std::nextafter(number, infinity)), expected(std::nextafter(number, infinity)));
        QCOMPARE(written(number + 0.004), expected(number + 0.004));
    }
}

void TestPathText::largeHundredthsHaveTenDigits()
{
    for (const double number : {9999999.99, -9999999.99, 10000000.01, 99999999.99, 123456789.12, 1e10, 1e300})
        QCOMPARE(written(number), expected(number));
}

QTEST_APPLESS_MAIN(TestPathText)
#include "test_pathtext.moc"
