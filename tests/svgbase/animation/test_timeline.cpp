#include "animation/timeline.h"

#include <QtTest>

using namespace Svg;

namespace {

using Pairs = std::initializer_list<std::pair<const char *, const char *>>;

AnimationTiming timingOf(Pairs pairs)
{
    Attributes attributes;
    for (const auto &[name, value] : pairs)
        attributes.set(QString::fromLatin1(name), QString::fromLatin1(value));
    return readTiming(attributes);
}

/// A timeline of one animation.
Timeline single(Pairs pairs)
{
    Timeline timeline;
    timeline.add(timingOf(pairs), QString());
    return timeline;
}

Timeline::State stateAt(Timeline &timeline, double seconds, int animation = 0)
{
    timeline.goTo(*clockTime(seconds));
    return timeline.state(animation);
}

/// "-" where nothing applies, else round and progress, as "0:0.5".
QString positionAt(Timeline &timeline, double seconds, int animation = 0)
{
    const Timeline::State state = stateAt(timeline, seconds, animation);
    if (!state.applies)
        return QStringLiteral("-");
    return QStringLiteral("%1:%2").arg(state.position.round).arg(state.position.progress);
}

} // namespace

class TestTimeline : public QObject
{
    Q_OBJECT

private slots:
    void playsOnceAndIsGone();
    void freezesAtItsEnd();
    void beginsBeforeTheDocument();
    void repeatsByCount();
    void repeatsForATime();
    void repeatsForever();
    void theShorterOfCountAndTimeCounts();
    void endCutsARound();
    void endBeforeTheBeginMeansNever();
    void minKeepsItActive();
    void maxCutsIt();
    void contradictingBoundsAreIgnored();
    void durationThatIsNone_data();
    void durationThatIsNone();
    void aListOfBeginsRestarts();
    void restartWhenNotActive();
    void restartNever();
    void neverBegins_data();
    void neverBegins();
    void beginsWithAnother();
    void beginsAfterAnotherWithAnOffset();
    void beginsBeforeAnotherEnds();
    void twoTakeTurns();
    void repeatsAfterItself();
    void endsWithAnother();
    void timeCanGoBack();
    void circlesEnd();
    void boundariesAreExact();
};

void TestTimeline::playsOnceAndIsGone()
{
    Timeline timeline = single({{"begin", "1s"}, {"dur", "4s"}});
    QCOMPARE(positionAt(timeline, 0.999), QString("-"));
    QCOMPARE(positionAt(timeline, 1), QString("0:0"));
    QCOMPARE(positionAt(timeline, 2), QString("0:0.25"));
    QCOMPARE(positionAt(timeline, 4.5), QString("0:0.875"));
    QCOMPARE(positionAt(timeline, 5), QString("-"));
    QCOMPARE(positionAt(timeline, 500), QString("-"));
}

void TestTimeline::freezesAtItsEnd()
{
    Timeline timeline = single({{"dur", "4s"}, {"fill", "freeze"}});
    QCOMPARE(positionAt(timeline, 4), QString("0:1"));
    QCOMPARE(positionAt(timeline, 400), QString("0:1"));
    QVERIFY(stateAt(timeline, 3).moves);
    QVERIFY(!stateAt(timeline, 4).moves);
    Timeline cut = single({{"dur", "4s"}, {"end", "1s"}, {"fill", "freeze"}});
    QCOMPARE(positionAt(cut, 3), QString("0:0.25"));
}

void TestTimeline::beginsBeforeTheDocument()
{
    Timeline timeline = single({{"begin", "-1s"}, {"dur", "4s"}});
    QCOMPARE(positionAt(timeline, 0), QString("0:0.25"));
    Timeline over = single({{"begin", "-5s"}, {"dur", "4s"}, {"fill", "freeze"}});
    QCOMPARE(positionAt(over, 0), QString("-"));
}

void TestTimeline::repeatsByCount()
{
    Timeline timeline = single({{"dur", "2s"}, {"repeatCount", "2.5"}, {"fill", "freeze"}});
    QCOMPARE(positionAt(timeline, 1), QString("0:0.5"));
    QCOMPARE(positionAt(timeline, 2), QString("1:0"));
    QCOMPARE(positionAt(timeline, 4.5), QString("2:0.25"));
    QCOMPARE(positionAt(timeline, 5), QString("2:0.5"));
    QCOMPARE(positionAt(timeline, 9), QString("2:0.5"));
    Timeline whole = single({{"dur", "2s"}, {"repeatCount", "3"}, {"fill", "freeze"}});
    QCOMPARE(positionAt(whole, 6), QString("2:1"));
}

void TestTimeline::repeatsForATime()
{
    Timeline timeline = single({{"dur", "2s"}, {"repeatDur", "5s"}});
    QCOMPARE(positionAt(timeline, 4.5), QString("2:0.25"));
    QCOMPARE(positionAt(timeline, 5), QString("-"));
}

void TestTimeline::repeatsForever()
{
    Timeline timeline = single({{"dur", "2s"}, {"repeatCount", "indefinite"}});
    QCOMPARE(positionAt(timeline, 2001), QString("1000:0.5"));
    Timeline forTime = single({{"dur", "2s"}, {"repeatDur", "indefinite"}});
    QCOMPARE(positionAt(forTime, 2001), QString("1000:0.5"));
}

void TestTimeline::theShorterOfCountAndTimeCounts()
{
    Timeline timeline = single({{"dur", "2s"}, {"repeatCount", "10"}, {"repeatDur", "3s"}});
    QCOMPARE(positionAt(timeline, 2.5), QString("1:0.25"));
    QCOMPARE(positionAt(timeline, 3), QString("-"));
    Timeline other = single({{"dur", "2s"}, {"repeatCount", "1"}, {"repeatDur", "30s"}});
    QCOMPARE(positionAt(other, 2), QString("-"));
}

void TestTimeline::endCutsARound()
{
    Timeline timeline = single({{"begin", "1s"}, {"dur", "10s"}, {"end", "0s;3s;8s"}});
    QCOMPARE(positionAt(timeline, 2.9), QString("0:0.19"));
    QCOMPARE(positionAt(timeline, 3), QString("-"));
}

void TestTimeline::endBeforeTheBeginMeansNever()
{
    Timeline timeline = single({{"begin", "5s"}, {"dur", "10s"}, {"end", "3s"}});
    QCOMPARE(positionAt(timeline, 6), QString("-"));
}

void TestTimeline::minKeepsItActive()
{
    Timeline cut = single({{"dur", "10s"}, {"end", "1s"}, {"min", "5s"}});
    QCOMPARE(positionAt(cut, 4), QString("0:0.4"));
    QCOMPARE(positionAt(cut, 5), QString("-"));
    // Beyond its rounds it is only there if it freezes.
    Timeline frozen = single({{"dur", "2s"}, {"min", "5s"}, {"fill", "freeze"}});
    QCOMPARE(positionAt(frozen, 3), QString("0:1"));
    Timeline removed = single({{"dur", "2s"}, {"min", "5s"}});
    QCOMPARE(positionAt(removed, 3), QString("-"));
}

void TestTimeline::maxCutsIt()
{
    Timeline timeline = single({{"dur", "10s"}, {"max", "4s"}});
    QCOMPARE(positionAt(timeline, 3), QString("0:0.3"));
    QCOMPARE(positionAt(timeline, 4), QString("-"));
}

void TestTimeline::contradictingBoundsAreIgnored()
{
    Timeline timeline = single({{"dur", "10s"}, {"min", "6s"}, {"max", "4s"}});
    QCOMPARE(positionAt(timeline, 5), QString("0:0.5"));
    QCOMPARE(positionAt(timeline, 10), QString("-"));
}

void TestTimeline::durationThatIsNone_data()
{
    QTest::addColumn<QByteArray>("dur");
    for (const char *dur : {"indefinite", "media", "0s", "-1s", "soon"})
        QTest::newRow(dur) << QByteArray(dur);
}

// The first value stays for as long as the animation is active.
void TestTimeline::durationThatIsNone()
{
    QFETCH(QByteArray, dur);
    Timeline timeline = single({{"dur", dur.constData()}, {"end", "7s"}});
    QCOMPARE(positionAt(timeline, 6.5), QString("0:0"));
    QCOMPARE(positionAt(timeline, 7), QString("-"));
}

void TestTimeline::aListOfBeginsRestarts()
{
    Timeline timeline = single({{"begin", "6s;0s;2s"}, {"dur", "4s"}});
    QCOMPARE(positionAt(timeline, 1), QString("0:0.25"));
    QCOMPARE(positionAt(timeline, 2), QString("0:0"));
    QCOMPARE(positionAt(timeline, 5), QString("0:0.75"));
    QCOMPARE(positionAt(timeline, 6), QString("0:0"));
    QCOMPARE(positionAt(timeline, 9), QString("0:0.75"));
    QCOMPARE(positionAt(timeline, 10), QString("-"));
}

void TestTimeline::restartWhenNotActive()
{
    Timeline timeline = single({{"begin", "0s;2s;5s"}, {"dur", "4s"}, {"restart", "whenNotActive"}});
    QCOMPARE(positionAt(timeline, 3), QString("0:0.75"));
    QCOMPARE(positionAt(timeline, 4.5), QString("-"));
    QCOMPARE(positionAt(timeline, 6), QString("0:0.25"));
}

void TestTimeline::restartNever()
{
    Timeline timeline = single({{"begin", "0s;2s;5s"}, {"dur", "4s"}, {"restart", "never"}});
    QCOMPARE(positionAt(timeline, 3), QString("0:0.75"));
    QCOMPARE(positionAt(timeline, 6), QString("-"));
}

void TestTimeline::neverBegins_data()
{
    QTest::addColumn<QByteArray>("begin");
    for (const char *begin :
         {"indefinite", "click", "nobody.begin", "nobody.end+1s", "accessKey(a)", "wallclock(0)"})
        QTest::newRow(begin) << QByteArray(begin);
}

void TestTimeline::neverBegins()
{
    QFETCH(QByteArray, begin);
    Timeline timeline = single({{"begin", begin.constData()}, {"dur", "4s"}, {"fill", "freeze"}});
    QCOMPARE(positionAt(timeline, 0), QString("-"));
    QCOMPARE(positionAt(timeline, 1000), QString("-"));
}

void TestTimeline::beginsWithAnother()
{
    Timeline timeline;
    timeline.add(timingOf({{"begin", "a.begin"}, {"dur", "2s"}}), QString());
    timeline.add(timingOf({{"begin", "3s"}, {"dur", "1s"}}), QStringLiteral("a"));
    QCOMPARE(positionAt(timeline, 2.5), QString("-"));
    QCOMPARE(positionAt(timeline, 3), QString("0:0"));
    QCOMPARE(positionAt(timeline, 4), QString("0:0.5"));
}

void TestTimeline::beginsAfterAnotherWithAnOffset()
{
    Timeline timeline;
    timeline.add(timingOf({{"dur", "1s"}, {"repeatCount", "2"}}), QStringLiteral("a"));
    timeline.add(timingOf({{"begin", "a.end+2s"}, {"dur", "2s"}}), QStringLiteral("b"));
    timeline.add(timingOf({{"begin", "b.end"}, {"dur", "2s"}}), QString());
    QCOMPARE(positionAt(timeline, 3.9, 1), QString("-"));
    QCOMPARE(positionAt(timeline, 5, 1), QString("0:0.5"));
    QCOMPARE(positionAt(timeline, 6, 1), QString("-"));
    QCOMPARE(positionAt(timeline, 7, 2), QString("0:0.5"));
}

void TestTimeline::beginsBeforeAnotherEnds()
{
    Timeline timeline;
    timeline.add(timingOf({{"begin", "4s"}, {"dur", "4s"}}), QStringLiteral("a"));
    timeline.add(timingOf({{"begin", "a.begin-2s"}, {"dur", "4s"}}), QString());
    timeline.add(timingOf({{"begin", "a.end-1s"}, {"dur", "4s"}}), QString());
    QCOMPARE(positionAt(timeline, 1.5, 1), QString("-"));
    QCOMPARE(positionAt(timeline, 3, 1), QString("0:0.25"));
    QCOMPARE(positionAt(timeline, 6.5, 2), QString("-"));
    QCOMPARE(positionAt(timeline, 9, 2), QString("0:0.5"));
}

void TestTimeline::twoTakeTurns()
{
    Timeline timeline;
    timeline.add(timingOf({{"begin", "0s;b.end"}, {"dur", "1s"}}), QStringLiteral("a"));
    timeline.add(timingOf({{"begin", "a.end"}, {"dur", "3s"}}), QStringLiteral("b"));
    QCOMPARE(positionAt(timeline, 40.5, 0), QString("0:0.5"));
    QCOMPARE(positionAt(timeline, 40.5, 1), QString("-"));
    QCOMPARE(positionAt(timeline, 42.5, 0), QString("-"));
    QCOMPARE(positionAt(timeline, 42.5, 1), QString("0:0.5"));
}

void TestTimeline::repeatsAfterItself()
{
    Timeline timeline;
    timeline.add(timingOf({{"begin", "1s;a.end+2s"}, {"dur", "2s"}}), QStringLiteral("a"));
    QCOMPARE(positionAt(timeline, 2), QString("0:0.5"));
    QCOMPARE(positionAt(timeline, 4), QString("-"));
    QCOMPARE(positionAt(timeline, 6), QString("0:0.5"));
    QCOMPARE(positionAt(timeline, 402), QString("0:0.5"));
}

void TestTimeline::endsWithAnother()
{
    Timeline timeline;
    timeline.add(timingOf({{"begin", "2s"}, {"dur", "1s"}}), QStringLiteral("a"));
    timeline.add(timingOf({{"dur", "10s"}, {"end", "a.begin"}}), QString());
    timeline.add(timingOf({{"dur", "10s"}, {"end", "a.end+1s"}, {"fill", "freeze"}}), QString());
    QCOMPARE(positionAt(timeline, 1, 1), QString("0:0.1"));
    QCOMPARE(positionAt(timeline, 2, 1), QString("-"));
    QCOMPARE(positionAt(timeline, 3.5, 2), QString("0:0.35"));
    QCOMPARE(positionAt(timeline, 30, 2), QString("0:0.4"));
}

void TestTimeline::timeCanGoBack()
{
    Timeline timeline;
    timeline.add(timingOf({{"dur", "1s"}}), QStringLiteral("a"));
    timeline.add(timingOf({{"begin", "a.end"}, {"dur", "1s"}}), QString());
    QCOMPARE(positionAt(timeline, 1.5, 1), QString("0:0.5"));
    QCOMPARE(positionAt(timeline, 0.5, 1), QString("-"));
    QCOMPARE(positionAt(timeline, 0.5, 0), QString("0:0.5"));
    QCOMPARE(positionAt(timeline, 1.25, 1), QString("0:0.25"));
}

// Neither may take longer than the limit of events allows.
void TestTimeline::circlesEnd()
{
    Timeline timeline;
    timeline.add(timingOf({{"begin", "0s;b.begin"}, {"end", "0s"}, {"dur", "1s"}}), QStringLiteral("a"));
    timeline.add(timingOf({{"begin", "a.begin-1s"}, {"dur", "1s"}}), QStringLiteral("b"));
    timeline.add(timingOf({{"begin", "c.begin-1s"}}), QStringLiteral("c"));
    timeline.add(timingOf({{"begin", "0s;d.end"}, {"dur", "0.000001s"}, {"fill", "freeze"}}), QStringLiteral("d"));
    timeline.goTo(*clockTime(1e9));
    QVERIFY(!timeline.state(2).applies);
    QVERIFY(timeline.state(3).applies);
}

// Tenths of seconds have no exact double; an animation must still end when the next one begins.
void TestTimeline::boundariesAreExact()
{
    Timeline timeline = single({{"dur", "0.1s"}, {"repeatCount", "10"}});
    QCOMPARE(positionAt(timeline, 0.3), QString("3:0"));
    QCOMPARE(positionAt(timeline, 0.7), QString("7:0"));
}

QTEST_APPLESS_MAIN(TestTimeline)
#include "test_timeline.moc"
