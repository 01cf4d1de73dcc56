// Path data of shapes: numbers of ten digits, with the text that they had in every file so far, and graphs.

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
    void graphsAreSmoothAndStayBetweenTheirPoints_data();
    void graphsAreSmoothAndStayBetweenTheirPoints();
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

// Points are 30 apart, so that the ends of tangents are 10 from them.
void TestPathText::graphsAreSmoothAndStayBetweenTheirPoints_data()
{
    QTest::addColumn<QVector<QPointF>>("points");
    QTest::addColumn<QString>("text");
    using Points = QVector<QPointF>;
    QTest::newRow("none") << Points{} << "";
    QTest::newRow("one") << Points{{0, 5}} << "";
    QTest::newRow("a line") << Points{{0, 0}, {30, 60}} << "M0 0 C10 20 20 40 30 60 ";
    QTest::newRow("a line through three")
        << Points{{0, 0}, {30, 60}, {60, 120}} << "M0 0 C10 20 20 40 30 60 C40 80 50 100 60 120 ";
    QTest::newRow("level at the top") << Points{{0, 0}, {30, 60}, {60, 0}}
                                      << "M0 0 C10 40 20 60 30 60 C40 60 50 40 60 0 ";
    // Slopes of 1 and 3: 3 / 2 between them, 0 at the left end and 4 at the right one.
    QTest::newRow("steeper") << Points{{0, 0}, {30, 30}, {60, 120}}
                             << "M0 0 C10 0 20 15 30 30 C40 45 50 80 60 120 ";
    // Slopes of 1 and -9 would be 6 at the left end: three times its own is the most.
    QTest::newRow("limited at the end")
        << Points{{0, 0}, {30, 30}, {60, -240}} << "M0 0 C10 30 20 30 30 30 C40 30 50 -100 60 -240 ";
    // Slopes of 1 and 6 would be -1.5 at the left end, below the points.
    QTest::newRow("level at the end") << Points{{0, 0}, {30, 30}, {60, 210}}
                                      << "M0 0 C10 0 20 12.85714286 30 30 C40 47.14285714 50 125 60 210 ";
}

void TestPathText::graphsAreSmoothAndStayBetweenTheirPoints()
{
    QFETCH(QVector<QPointF>, points);
    QFETCH(QString, text);
    QCOMPARE(PathText().graph(points).text(), text);
}

QTEST_APPLESS_MAIN(TestPathText)
#include "test_pathtext.moc"
