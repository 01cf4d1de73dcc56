// How well names fit a sought text.

#include <core/searchwords.h>

#include <QtTest/QtTest>

class TestSearchWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesThatFitBetterRankLower_data();
    void namesThatFitBetterRankLower();
    void everyWordIsNeededWhereverItStands();
};

void TestSearchWords::namesThatFitBetterRankLower_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("rank");
    QTest::newRow("itself") << "Cell" << 0;
    QTest::newRow("begins with it") << "Cellar" << 1;
    QTest::newRow("a word begins with it") << "Solar cells" << 2;
    QTest::newRow("within a word") << "Excellent" << 3;
    QTest::newRow("without it") << "Battery" << 4;
}

void TestSearchWords::namesThatFitBetterRankLower()
{
    QFETCH(QString, name);
    QFETCH(int, rank);
    QCOMPARE(board::nameRank(name, "cell"), rank);
}

void TestSearchWords::everyWordIsNeededWhereverItStands()
{
    QVERIFY(board::hasAllWords("Block arrow direction", "ARROW block"));
    QVERIFY(!board::hasAllWords("Block arrow direction", "arrow curved"));
    QVERIFY(board::hasAllWords("Block arrow", ""));
}

QTEST_MAIN(TestSearchWords)
#include "test_searchwords.moc"
