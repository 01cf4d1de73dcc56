#include <shapekit/textplaces.h>

#include <QtTest/QtTest>

using shapekit::TextPlaces;

class TestTextPlaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesAndColumnsCountFromOne_data();
    void linesAndColumnsCountFromOne();
    void placesOutsideTheTextGiveItsFirstOrLastLine();
};

void TestTextPlaces::linesAndColumnsCountFromOne_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("offset");
    QTest::addColumn<qint64>("line");
    QTest::addColumn<qint64>("column");
    QTest::newRow("an empty text") << QString() << 0 << qint64(1) << qint64(1);
    QTest::newRow("the first letter") << QString("ab\ncd") << 0 << qint64(1) << qint64(1);
    QTest::newRow("the end of a line belongs to it") << QString("ab\ncd") << 2 << qint64(1) << qint64(3);
    QTest::newRow("the first letter of a line") << QString("ab\ncd") << 3 << qint64(2) << qint64(1);
    QTest::newRow("behind the last letter") << QString("ab\ncd") << 5 << qint64(2) << qint64(3);
    QTest::newRow("an empty line") << QString("a\n\nb") << 2 << qint64(2) << qint64(1);
    QTest::newRow("behind a line end at the end") << QString("a\n") << 2 << qint64(2) << qint64(1);
}

void TestTextPlaces::linesAndColumnsCountFromOne()
{
    QFETCH(QString, text);
    QFETCH(int, offset);
    const TextPlaces places(text);
    QTEST(places.of(offset).line, "line");
    QTEST(places.of(offset).column, "column");
    QCOMPARE(places.offsetOf(places.of(offset)), offset);
}

void TestTextPlaces::placesOutsideTheTextGiveItsFirstOrLastLine()
{
    const TextPlaces places(QStringLiteral("ab\ncd"));
    QCOMPARE(places.offsetOf({0, 5}), 0);
    QCOMPARE(places.offsetOf({9, 1}), 3);
}

QTEST_GUILESS_MAIN(TestTextPlaces)
#include "test_textplaces.moc"
