// The decision what fingers, palms and a pen may do, at made-up moments.

#include <page/touchjudge.h>

#include <QtTest/QtTest>

using board::Contact;
using board::TouchJudge;
using Use = board::TouchJudge::Use;

namespace {

constexpr qint64 minute = 60 * 1000;

Contact finger(int id)
{
    return {id, {100, 100}, {8, 9}};
}

Contact palm(int id)
{
    return {id, {100, 100}, {20, 30.1}};
}

QVector<int> idsOf(const QVector<Contact> &contacts)
{
    QVector<int> ids;
    for (const Contact &contact : contacts)
        ids.append(contact.id);
    return ids;
}

} // namespace

class TestTouchJudge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFingerUsesTheToolWhereThereIsNoPen();
    void aFingerMovesTheViewForTenMinutesAfterThePen();
    void fingersMayDrawTooIfTheUserWantsIt();
    void twoFingersMoveTheView();
    void aSecondFingerEndsTheUseOfTheTool();
    void theFingerThatIsLeftGoesOnMovingTheView();
    void anotherFingerUsesTheToolAnew();
    void aPalmDoesNothing();
    void aFingerWritesBesideAPalm();
    void whatHasBecomeAPalmStaysOne();
    void aContactOfThirtyMillimetresIsAFinger();
    void nothingIsTouchedWhileAPenIsNear();
    void touchesAreDroppedAMomentAfterThePen();
    void theComingPenEndsWhatAFingerDoes();
    void droppedFingersDoNothingUntilTheyLeave();
};

void TestTouchJudge::aFingerUsesTheToolWhereThereIsNoPen()
{
    TouchJudge judge;
    QCOMPARE(judge.judge({finger(1)}, 0), Use::Tool);
    QCOMPARE(judge.judge({finger(1)}, 5000), Use::Tool);
    QCOMPARE(judge.judge({}, 5001), Use::Nothing);
}

void TestTouchJudge::aFingerMovesTheViewForTenMinutesAfterThePen()
{
    TouchJudge judge;
    judge.seePen(1000);
    QCOMPARE(judge.judge({finger(1)}, 1000 + 10 * minute - 1), Use::View);
    judge.judge({}, 1000 + 10 * minute - 1);
    QCOMPARE(judge.judge({finger(2)}, 1000 + 10 * minute), Use::Tool);
}

void TestTouchJudge::fingersMayDrawTooIfTheUserWantsIt()
{
    TouchJudge judge;
    judge.seePen(1000);
    judge.setFingersDraw(true);
    QCOMPARE(judge.judge({finger(1)}, 2000), Use::Tool);
    judge.judge({}, 2000);
    judge.setFingersDraw(false);
    QCOMPARE(judge.judge({finger(1)}, 2000), Use::View);
}

void TestTouchJudge::twoFingersMoveTheView()
{
    TouchJudge judge;
    QCOMPARE(judge.judge({finger(1), finger(2)}, 0), Use::View);
    QCOMPARE(idsOf(judge.fingers()), (QVector<int>{1, 2}));
}

void TestTouchJudge::aSecondFingerEndsTheUseOfTheTool()
{
    TouchJudge judge;
    QCOMPARE(judge.judge({finger(1)}, 0), Use::Tool);
    QCOMPARE(judge.judge({finger(1), finger(2)}, 20), Use::View);
}

void TestTouchJudge::theFingerThatIsLeftGoesOnMovingTheView()
{
    TouchJudge judge;
    judge.judge({finger(1), finger(2)}, 0);
    QCOMPARE(judge.judge({finger(2)}, 20), Use::View);
    QCOMPARE(judge.judge({}, 40), Use::Nothing);
    QCOMPARE(judge.judge({finger(3)}, 60), Use::Tool);
}

void TestTouchJudge::anotherFingerUsesTheToolAnew()
{
    TouchJudge judge;
    judge.judge({finger(1)}, 0);
    // The first has left and the second come in the same moment.
    QCOMPARE(judge.judge({finger(2)}, 20), Use::Tool);
    QCOMPARE(idsOf(judge.fingers()), QVector<int>{2});
}

void TestTouchJudge::aPalmDoesNothing()
{
    TouchJudge judge;
    QCOMPARE(judge.judge({palm(1)}, 0), Use::Nothing);
    QCOMPARE(judge.judge({palm(1), palm(2)}, 20), Use::Nothing);
}

void TestTouchJudge::aFingerWritesBesideAPalm()
{
    TouchJudge judge;
    judge.judge({palm(1)}, 0);
    QCOMPARE(judge.judge({palm(1), finger(2)}, 20), Use::Tool);
    QCOMPARE(idsOf(judge.fingers()), QVector<int>{2});
    QCOMPARE(judge.judge({palm(1)}, 40), Use::Nothing);
    QCOMPARE(judge.judge({palm(1), finger(3)}, 60), Use::Tool);
}

void TestTouchJudge::whatHasBecomeAPalmStaysOne()
{
    TouchJudge judge;
    QCOMPARE(judge.judge({finger(1)}, 0), Use::Tool);
    QCOMPARE(judge.judge({palm(1)}, 20), Use::Nothing);
    QCOMPARE(judge.judge({finger(1)}, 40), Use::Nothing);
    judge.judge({}, 60);
    QCOMPARE(judge.judge({finger(1)}, 80), Use::Tool);
}

void TestTouchJudge::aContactOfThirtyMillimetresIsAFinger()
{
    TouchJudge judge;
    QCOMPARE(judge.judge({{1, {}, {30, 30}}}, 0), Use::Tool);
    judge.judge({}, 10);
    QCOMPARE(judge.judge({{1, {}, {30.1, 5}}}, 20), Use::Nothing);
}

void TestTouchJudge::nothingIsTouchedWhileAPenIsNear()
{
    TouchJudge judge;
    judge.setFingersDraw(true);
    judge.setPenNear(true, 0);
    QCOMPARE(judge.judge({finger(1)}, minute), Use::Nothing);
    QCOMPARE(judge.judge({finger(1), finger(2)}, minute), Use::Nothing);
}

void TestTouchJudge::touchesAreDroppedAMomentAfterThePen()
{
    TouchJudge judge;
    judge.setPenNear(true, 0);
    judge.setPenNear(false, 1000);
    QCOMPARE(judge.judge({finger(1), finger(2)}, 1299), Use::Nothing);
    judge.judge({}, 1299);
    QCOMPARE(judge.judge({finger(1), finger(2)}, 1300), Use::View);
    judge.judge({}, 1300);
    // A pen that doesn't tell when it comes near.
    judge.seePen(2000);
    QCOMPARE(judge.judge({finger(1), finger(2)}, 2299), Use::Nothing);
}

void TestTouchJudge::theComingPenEndsWhatAFingerDoes()
{
    TouchJudge judge;
    QCOMPARE(judge.judge({finger(1)}, 0), Use::Tool);
    judge.seePen(20);
    QCOMPARE(judge.judge({finger(1)}, 30), Use::Nothing);
    QCOMPARE(judge.judge({finger(1)}, 20 * minute), Use::Nothing);
}

void TestTouchJudge::droppedFingersDoNothingUntilTheyLeave()
{
    TouchJudge judge;
    judge.judge({finger(1)}, 0);
    judge.drop();
    QCOMPARE(judge.use(), Use::Nothing);
    QCOMPARE(judge.judge({finger(1), finger(2)}, 20), Use::Nothing);
    QCOMPARE(judge.judge({finger(2)}, 40), Use::Nothing);
    judge.judge({}, 60);
    QCOMPARE(judge.judge({finger(2)}, 80), Use::Tool);
}

QTEST_MAIN(TestTouchJudge)
#include "test_touchjudge.moc"
