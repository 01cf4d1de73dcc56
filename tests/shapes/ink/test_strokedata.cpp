// The saved form of strokes.

#include <ink/core/strokedata.h>

#include <QtTest/QtTest>

using ink::decoded;
using ink::encoded;
using ink::StrokeData;
using ink::StrokePoint;

class TestStrokeData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bytesAreThoseOfTheFormat();
    void pressureTakesOneByteAPoint();
    void whatIsSavedComesBack();
    void farPlacesAreLimited();
    void cutBytesGiveThePointsBefore();
    void nonsenseGivesNoPoints_data();
    void nonsenseGivesNoPoints();
};

void TestStrokeData::bytesAreThoseOfTheFormat()
{
    // Margin 0.5 = 32 steps; to (1, -1): 64 and -64 steps; on to (1, 1): 0 and 128 steps.
    const StrokeData data{{{QPointF(1, -1)}, {QPointF(1, 1)}}, 0.5};
    QCOMPARE(encoded(data).toHex(), QByteArray("0100"
                                               "40"
                                               "8001"
                                               "7f"
                                               "00"
                                               "8002"));
}

void TestStrokeData::pressureTakesOneByteAPoint()
{
    const StrokeData data{{{QPointF(0, 0), 1}, {QPointF(0, 0), 0.2}}, 0};
    QCOMPARE(encoded(data).toHex(), QByteArray("010100"
                                               "0000ff"
                                               "000033"));
}

void TestStrokeData::whatIsSavedComesBack()
{
    StrokeData data{{}, 3.25};
    for (int i = 0; i < 300; ++i)
        data.points.append(ink::savedPoint({QPointF(i * 7.3 - 900, 400 - i * i / 3.1), (i % 11) / 10.0}));
    const StrokeData back = decoded(encoded(data));
    QCOMPARE(back.margin, 3.25);
    QVERIFY(back.points == data.points);
}

void TestStrokeData::farPlacesAreLimited()
{
    const StrokeData data{{{QPointF(1e300, qQNaN())}}, 0};
    QCOMPARE(decoded(encoded(data)).points.first().place, QPointF(1e6, 0));
}

void TestStrokeData::cutBytesGiveThePointsBefore()
{
    const QByteArray bytes = encoded({{{QPointF(1, 2)}, {QPointF(300, 400)}}, 1});
    QCOMPARE(bytes.size(), 14);
    for (int size = 8; size < bytes.size(); ++size)
        QVERIFY(decoded(bytes.left(size)).points == QVector<StrokePoint>{StrokePoint{QPointF(1, 2)}});
}

void TestStrokeData::nonsenseGivesNoPoints_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("another version") << QByteArray::fromHex("0200000202");
    QTest::newRow("a number without an end") << QByteArray::fromHex("0100ffffffffffffffffffffffffffff");
    QTest::newRow("a place off all paper") << QByteArray::fromHex("010000ffffffffffff7f00");
}

void TestStrokeData::nonsenseGivesNoPoints()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(decoded(bytes).points.isEmpty());
}

QTEST_MAIN(TestStrokeData)
#include "test_strokedata.moc"
