// Work in steps, with a dialog only when it takes long.

#include <exporting/steps.h>

#include <core/workspace.h>

#include <support/virtualtime.h>

#include <QtTest/QtTest>
#include <QtWidgets/QProgressDialog>
#include <QtWidgets/QPushButton>

namespace {

constexpr int millisecond = 1000; ///< microseconds

/// A window with work of ten steps, each of which takes this time.
struct Work
{
    explicit Work(int milliseconds, const std::function<void()> &during = {})
    {
        window.show();
        const auto take = [=](int index) {
            taken.append(index);
            support::spend(milliseconds * millisecond);
            shown.append(isShown());
            if (isShown() && during)
                during();
        };
        board::takeSteps(workspace, &window, {"Writing…", 10, take, [=](bool cancelled) {
                                                  ++finished;
                                                  wasCancelled = cancelled;
                                              }});
    }
    QProgressDialog *dialog() const { return window.findChild<QProgressDialog *>(); }
    bool isShown() const { return dialog() && dialog()->isVisible(); }
    bool waitForEnd() const
    {
        return support::passUntil([this] { return finished > 0; });
    }

    board::Workspace workspace{QStringLiteral("en")};
    QWidget window;
    QVector<int> taken;
    QVector<bool> shown; ///< the dialog, after each step
    int finished = 0;
    bool wasCancelled = false;
};

} // namespace

class TestSteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstStepIsTakenAtOnce();
    void allStepsAreTakenInOrder();
    void quickWorkShowsNoDialog();
    void workOfMoreThanASecondShowsADialog();
    void cancelEndsTheWork();
    void aWindowThatDiesEndsTheWork();
};

void TestSteps::theFirstStepIsTakenAtOnce()
{
    const Work work(1);
    QCOMPARE(work.taken, QVector<int>{0});
    QCOMPARE(work.finished, 0);
}

void TestSteps::allStepsAreTakenInOrder()
{
    const Work work(1);
    QVERIFY(work.waitForEnd());
    QCOMPARE(work.taken, (QVector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    QCOMPARE(work.finished, 1);
    QVERIFY(!work.wasCancelled);
    QVERIFY(support::passUntil([&] { return !work.dialog(); }));
}

void TestSteps::quickWorkShowsNoDialog()
{
    const Work work(90);
    QVERIFY(work.waitForEnd());
    QCOMPARE(work.shown, QVector<bool>(10, false));
}

void TestSteps::workOfMoreThanASecondShowsADialog()
{
    const Work work(400);
    QVERIFY(work.waitForEnd());
    QCOMPARE(work.shown.first(), false);
    QCOMPARE(work.shown.last(), true);
    QVERIFY(support::passUntil([&] { return !work.dialog(); }));
}

void TestSteps::cancelEndsTheWork()
{
    std::function<void()> cancel;
    const Work work(400, [&] { cancel(); });
    cancel = [&] {
        auto *button = work.dialog()->findChild<QPushButton *>();
        QVERIFY(button);
        QCOMPARE(button->text(), QString("Cancel"));
        QTest::mouseClick(button, Qt::LeftButton);
    };
    QVERIFY(work.waitForEnd());
    QVERIFY(work.wasCancelled);
    QVERIFY(work.taken.size() < 10);
    QCOMPARE(work.shown.count(true), 1);
    QVERIFY(support::passUntil([&] { return !work.dialog(); }));
}

void TestSteps::aWindowThatDiesEndsTheWork()
{
    QVector<int> taken;
    bool finished = false;
    const board::Workspace workspace(QStringLiteral("en"));
    auto window = std::make_unique<QWidget>();
    board::takeSteps(workspace, window.get(),
                     {"Writing…", 3, [&](int index) { taken.append(index); }, [&](bool) { finished = true; }});
    window.reset();
    support::deliverEvents();
    QCOMPARE(taken, QVector<int>{0});
    QVERIFY(!finished);
}

QTEST_MAIN(TestSteps)
#include "test_steps.moc"
