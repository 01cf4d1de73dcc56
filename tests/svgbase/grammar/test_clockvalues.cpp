#include "grammar/clockvalues.h"

#include <QtTest>

using namespace Svg;

class TestClockValues : public QObject
{
    Q_OBJECT

private slots:
    void clockValues_data();
    void clockValues();
    void textThatIsNoClockValue_data();
    void textThatIsNoClockValue();
    void conditionsAreListed();
    void syncBases_data();
    void syncBases();
    void longTimesAreHeld();
};

void TestClockValues::clockValues_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("milliseconds");
    QTest::newRow("seconds without a unit") << "12.467" << qint64(12467);
    QTest::newRow("seconds") << "1.5s" << qint64(1500);
    QTest::newRow("milliseconds") << "300ms" << qint64(300);
    QTest::newRow("minutes") << "2min" << qint64(120000);
    QTest::newRow("hours") << "1.25h" << qint64(4500000);
    QTest::newRow("partial clock") << "02:30" << qint64(150000);
    QTest::newRow("partial clock with a fraction") << "00:10.5" << qint64(10500);
    QTest::newRow("full clock") << "02:30:03.25" << qint64(9003250);
    QTest::newRow("many hours") << "50:00:10" << qint64(180010000);
    QTest::newRow("white space around") << " 3s " << qint64(3000);
    QTest::newRow("leading dot") << ".5s" << qint64(500);
    QTest::newRow("nothing") << "0" << qint64(0);
}

void TestClockValues::clockValues()
{
    QFETCH(QString, text);
    QFETCH(qint64, milliseconds);
    const std::optional<ClockTime> time = parseClockValue(text);
    QVERIFY(time.has_value());
    QCOMPARE(*time, ClockTime(milliseconds * 1000));
}

void TestClockValues::textThatIsNoClockValue_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"", "s", "1x", "indefinite", "media", "1:2:3:4", "10:60", "00:61:00", "1.5:10", "-1s",
                             "+1s", "1 s", "1e3s", "1.s", "::", "12:", "nan", "inf"})
        QTest::newRow(qPrintable(QStringLiteral("'%1'").arg(QLatin1String(text)))) << QString::fromLatin1(text);
}

void TestClockValues::textThatIsNoClockValue()
{
    QFETCH(QString, text);
    QVERIFY(!parseClockValue(text).has_value());
}

void TestClockValues::conditionsAreListed()
{
    const QVector<TimingCondition> list =
        parseTimingConditions("0.5s; -2s ;+00:03; indefinite;a.click;wallclock(1)");
    QCOMPARE(list.size(), 6);
    QCOMPARE(list.at(0).kind, TimingCondition::Offset);
    QCOMPARE(list.at(0).offset, ClockTime(500000));
    QCOMPARE(list.at(1).offset, ClockTime(-2000000));
    QCOMPARE(list.at(2).offset, ClockTime(3000000));
    QCOMPARE(list.at(3).kind, TimingCondition::Indefinite);
    QCOMPARE(list.at(4).kind, TimingCondition::Never);
    QCOMPARE(list.at(5).kind, TimingCondition::Never);
}

void TestClockValues::syncBases_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("source");
    QTest::addColumn<qint64>("offset");
    QTest::newRow("begin") << "a.begin" << int(TimingCondition::SyncBegin) << "a" << qint64(0);
    QTest::newRow("end") << "a.end" << int(TimingCondition::SyncEnd) << "a" << qint64(0);
    QTest::newRow("offset") << "a.begin+2s" << int(TimingCondition::SyncBegin) << "a" << qint64(2000000);
    QTest::newRow("spaces") << " a.end + 500ms " << int(TimingCondition::SyncEnd) << "a" << qint64(500000);
    QTest::newRow("negative") << "a.end-1s" << int(TimingCondition::SyncEnd) << "a" << qint64(-1000000);
    QTest::newRow("hyphen in the id") << "my-a.begin" << int(TimingCondition::SyncBegin) << "my-a" << qint64(0);
    QTest::newRow("escaped") << "a\\.b.begin" << int(TimingCondition::SyncBegin) << "a.b" << qint64(0);
    QTest::newRow("no number") << "a.begin+x" << int(TimingCondition::Never) << "" << qint64(0);
    QTest::newRow("no sign") << "a.begin2s" << int(TimingCondition::Never) << "" << qint64(0);
    QTest::newRow("no id") << ".begin" << int(TimingCondition::Never) << "" << qint64(0);
}

void TestClockValues::syncBases()
{
    QFETCH(QString, text);
    const QVector<TimingCondition> list = parseTimingConditions(text);
    QCOMPARE(list.size(), 1);
    QTEST(int(list.first().kind), "kind");
    QTEST(list.first().source, "source");
    QTEST(qint64(list.first().offset), "offset");
}

void TestClockValues::longTimesAreHeld()
{
    QCOMPARE(*parseClockValue(u"99999999999999999999h"), longestClockTime);
    QCOMPARE(multiplied(longestClockTime, 1e300), longestClockTime);
    QCOMPARE(multiplied(indefiniteTime, 2), indefiniteTime);
    QCOMPARE(added(longestClockTime, longestClockTime), longestClockTime);
    QCOMPARE(*clockTime(-1e300), -longestClockTime);
    QVERIFY(!clockTime(qQNaN()).has_value());
}

QTEST_APPLESS_MAIN(TestClockValues)
#include "test_clockvalues.moc"
