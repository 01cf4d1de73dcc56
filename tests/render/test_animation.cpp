#include <support/shapefixture.h>
#include <support/virtualtime.h>

#include <QtTest/QtTest>

using support::ShapeFixture;
using support::svgText;
using support::twoPointTemplate;

/// The pacemaker of animated shapes.
class TestAnimation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aShapeWithoutAnimationDoesNotStart();
    void aShapeWithoutDocumentDoesNotStart();
    void aNewPacemakerIsIdle();
    void aNewPacemakerHasTheGivenParent();
    void itsSignalAndSlotHaveTheirPlaces();

    void theFirstStartRunsTheDocumentsAnimation();
    void theFirstFrameIsPaintedAtOnce();
    void theFirstFrameIsPaintedRunning();
    void theTimerTicksEveryThirtyThreeMilliseconds();
    void framesKeepComing();
    void aTickPaintsOneFrame();

    void stoppingAnswersFalse();
    void afterStoppingNoFrameComes();
    void stoppingLeavesTheDocumentsAnimationAlone();
    void stoppingBeforeAnyStartIsFine();
    void stoppingAShapeWithoutAnimationLeavesItsPacemakerAlone();

    void aSecondStartStopsTheDocumentsAnimation();
    void aSecondStartKeepsThePacemaker();
    void aStartAfterAStopStopsTheDocumentsAnimationToo();
    void aSecondStartPaintsAFrame();

    void theHostsSignalIsNeverEmitted();
    void aRunningShapeCanBeDeleted();
    void aListenerThatStartsAgainGetsOneFrame();
    void aListenerMayDeleteTheShape();
    void twoShapesThatStartEachOtherGetOneFrameEach();
};

namespace {

constexpr int interval = 33;     ///< milliseconds
constexpr int timerRounding = 2; ///< milliseconds that Qt's coarse timers of that interval may be late

struct Animated : ShapeFixture
{
    Animated()
        : ShapeFixture(svgText("0 0 100 50", "<rect width='10' height='10'><animate/></rect>"))
    {
        load();
    }
    QTimer *timer() const { return shape->animator->findChild<QTimer *>(); }
};

int frames()
{
    return recording::count("object", "OnQPainterDraw");
}

} // namespace

void TestAnimation::aShapeWithoutAnimationDoesNotStart()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QVERIFY(!fixture.shape->startAnimate());
    QVERIFY(!fixture.shape->animator);
    QVERIFY(!fixture.shape->isAnimating());
    QCOMPARE(recording::names(), QStringList());
}

void TestAnimation::aShapeWithoutDocumentDoesNotStart()
{
    ShapeFixture fixture(twoPointTemplate());
    QVERIFY(!fixture.shape->startAnimate());
    QVERIFY(!fixture.shape->stopAnimate());
    QVERIFY(!fixture.shape->animator);
}

void TestAnimation::aNewPacemakerIsIdle()
{
    Animated fixture;
    const CSVGAnimate pacemaker(nullptr, fixture.shape);
    QVERIFY(!pacemaker.isRunning());
    QVERIFY(!pacemaker.findChild<QTimer *>());
    QCOMPARE(recording::names(), QStringList());
}

void TestAnimation::aNewPacemakerHasTheGivenParent()
{
    Animated fixture;
    QObject parent;
    auto *owned = new CSVGAnimate(&parent, fixture.shape);
    QCOMPARE(owned->parent(), &parent);
    fixture.shape->startAnimate();
    QVERIFY(!fixture.shape->animator->parent());
}

void TestAnimation::itsSignalAndSlotHaveTheirPlaces()
{
    const QMetaObject &meta = CSVGAnimate::staticMetaObject;
    QCOMPARE(meta.className(), "CSVGAnimate");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    const QMetaMethod signal = meta.method(meta.methodOffset());
    QCOMPARE(signal.methodSignature(), QByteArray("repaintNeeded()"));
    QCOMPARE(signal.methodType(), QMetaMethod::Signal);
    const QMetaMethod slot = meta.method(meta.methodOffset() + 1);
    QCOMPARE(slot.methodSignature(), QByteArray("doAnimate()"));
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
}

void TestAnimation::theFirstStartRunsTheDocumentsAnimation()
{
    Animated fixture;
    QVERIFY(fixture.shape->startAnimate());
    QVERIFY(fixture.shape->isAnimating());
    QCOMPARE(recording::count("document", "startAnimate"), 1);
    QCOMPARE(recording::count("document", "stopAnimate"), 0);
}

void TestAnimation::theFirstFrameIsPaintedAtOnce()
{
    Animated fixture;
    fixture.shape->startAnimate();
    QCOMPARE(recording::names(),
             QStringList({"document.startAnimate", "object.OnQPainterDraw", "object.notifyObjPropertyChanged"}));
    QCOMPARE(recording::lastArguments("notifyObjPropertyChanged"), QVariantList({1002, ""}));
}

void TestAnimation::theFirstFrameIsPaintedRunning()
{
    Animated fixture;
    fixture.object.paints = true;
    bool running = false;
    bool ticking = false;
    recording::svg().drawHook = [&](QPainter *) {
        running = fixture.shape->isAnimating();
        ticking = fixture.timer()->isActive();
    };
    fixture.shape->startAnimate();
    QVERIFY(running);
    QVERIFY(ticking);
}

void TestAnimation::theTimerTicksEveryThirtyThreeMilliseconds()
{
    Animated fixture;
    fixture.shape->startAnimate();
    QCOMPARE(fixture.timer()->interval(), interval);
    QVERIFY(fixture.timer()->isActive());
    QVERIFY(!fixture.timer()->isSingleShot());
    QCOMPARE(fixture.timer()->parent(), fixture.shape->animator);
}

void TestAnimation::framesKeepComing()
{
    Animated fixture;
    fixture.shape->startAnimate();
    QCOMPARE(frames(), 1);
    support::pass(3 * interval + timerRounding);
    QCOMPARE(frames(), 4);
    QCOMPARE(recording::count("notifyObjPropertyChanged"), 4);
}

void TestAnimation::aTickPaintsOneFrame()
{
    Animated fixture;
    CSVGAnimate pacemaker(nullptr, fixture.shape);
    pacemaker.doAnimate();
    QCOMPARE(recording::names(), QStringList({"object.OnQPainterDraw", "object.notifyObjPropertyChanged"}));
}

void TestAnimation::stoppingAnswersFalse()
{
    Animated fixture;
    fixture.shape->startAnimate();
    QVERIFY(!fixture.shape->stopAnimate());
    QVERIFY(!fixture.shape->isAnimating());
}

void TestAnimation::afterStoppingNoFrameComes()
{
    Animated fixture;
    fixture.shape->startAnimate();
    fixture.shape->stopAnimate();
    QVERIFY(!fixture.timer()->isActive());
    recording::clear();
    support::pass(10 * interval);
    QCOMPARE(frames(), 0);
}

void TestAnimation::stoppingLeavesTheDocumentsAnimationAlone()
{
    Animated fixture;
    fixture.shape->startAnimate();
    recording::clear();
    fixture.shape->stopAnimate();
    QCOMPARE(recording::names(), QStringList());
}

void TestAnimation::stoppingBeforeAnyStartIsFine()
{
    Animated fixture;
    QVERIFY(!fixture.shape->stopAnimate());
    QVERIFY(!fixture.shape->animator);
    CSVGAnimate pacemaker(nullptr, fixture.shape);
    pacemaker.stopAnimate();
    QVERIFY(!pacemaker.isRunning());
}

void TestAnimation::stoppingAShapeWithoutAnimationLeavesItsPacemakerAlone()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->animator = new CSVGAnimate(nullptr, fixture.shape);
    fixture.shape->animator->startAnimate();
    QVERIFY(!fixture.shape->stopAnimate());
    QVERIFY(fixture.shape->isAnimating());
}

void TestAnimation::aSecondStartStopsTheDocumentsAnimation()
{
    Animated fixture;
    fixture.shape->startAnimate();
    recording::clear();
    QVERIFY(fixture.shape->startAnimate());
    QCOMPARE(recording::count("document", "stopAnimate"), 1);
    QCOMPARE(recording::count("document", "startAnimate"), 0);
    QVERIFY(fixture.shape->isAnimating());
    QVERIFY(fixture.timer()->isActive());
    QCOMPARE(fixture.timer()->interval(), 33);
}

void TestAnimation::aSecondStartKeepsThePacemaker()
{
    Animated fixture;
    fixture.shape->startAnimate();
    const CSVGAnimate *pacemaker = fixture.shape->animator;
    const QTimer *timer = fixture.timer();
    fixture.shape->startAnimate();
    QCOMPARE(static_cast<const CSVGAnimate *>(fixture.shape->animator), pacemaker);
    QCOMPARE(fixture.shape->animator->findChildren<QTimer *>().size(), 1);
    QCOMPARE(static_cast<const QTimer *>(fixture.timer()), timer);
}

void TestAnimation::aStartAfterAStopStopsTheDocumentsAnimationToo()
{
    Animated fixture;
    fixture.shape->startAnimate();
    fixture.shape->stopAnimate();
    recording::clear();
    QVERIFY(fixture.shape->startAnimate());
    QVERIFY(fixture.shape->isAnimating());
    QVERIFY(fixture.timer()->isActive());
    QCOMPARE(recording::count("document", "stopAnimate"), 1);
    QCOMPARE(recording::count("document", "startAnimate"), 0);
}

void TestAnimation::aSecondStartPaintsAFrame()
{
    Animated fixture;
    fixture.shape->startAnimate();
    recording::clear();
    fixture.shape->startAnimate();
    QCOMPARE(frames(), 1);
    QCOMPARE(recording::count("notifyObjPropertyChanged"), 1);
}

void TestAnimation::theHostsSignalIsNeverEmitted()
{
    Animated fixture;
    fixture.shape->startAnimate();
    QSignalSpy spy(fixture.shape->animator, &CSVGAnimate::repaintNeeded);
    recording::clear();
    fixture.shape->startAnimate();
    support::pass(2 * interval + timerRounding);
    QCOMPARE(frames(), 3);
    fixture.shape->stopAnimate();
    QCOMPARE(spy.count(), 0);
}

void TestAnimation::aRunningShapeCanBeDeleted()
{
    Animated fixture;
    fixture.shape->startAnimate();
    const QPointer<CSVGAnimate> pacemaker(fixture.shape->animator);
    const QPointer<QTimer> timer(fixture.timer());
    delete fixture.object.svgBase;
    fixture.object.svgBase = nullptr;
    QVERIFY(!pacemaker);
    QVERIFY(!timer);
    recording::clear();
    support::pass(10 * interval);
    QCOMPARE(frames(), 0);
}

void TestAnimation::aListenerThatStartsAgainGetsOneFrame()
{
    Animated fixture;
    fixture.object.onNotify = [&](int) { fixture.shape->startAnimate(); };
    fixture.shape->startAnimate();
    QCOMPARE(frames(), 1);
    QVERIFY(fixture.shape->isAnimating());
    QVERIFY(fixture.timer()->isActive());
    support::pass(interval + timerRounding);
    QCOMPARE(frames(), 2);
}

void TestAnimation::aListenerMayDeleteTheShape()
{
    Animated fixture;
    const QPointer<CSVGAnimate> pacemaker = [&] {
        fixture.shape->startAnimate();
        return fixture.shape->animator;
    }();
    fixture.object.onNotify = [&](int) {
        delete fixture.object.svgBase;
        fixture.object.svgBase = nullptr;
    };
    pacemaker->doAnimate();
    QVERIFY(!pacemaker);
}

void TestAnimation::twoShapesThatStartEachOtherGetOneFrameEach()
{
    Animated first;
    Animated second;
    first.object.onNotify = [&](int) { second.shape->startAnimate(); };
    second.object.onNotify = [&](int) { first.shape->startAnimate(); };
    recording::clear();
    first.shape->startAnimate();
    QCOMPARE(frames(), 2);
    first.shape->startAnimate();
    QCOMPARE(frames(), 4);
}

QTEST_MAIN(TestAnimation)

#include "test_animation.moc"
