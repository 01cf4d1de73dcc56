// Presenting: the page over a whole screen, with keys, clickers, curtain, laser pointer and a bar that fades.

#include "show.h"

#include <support/listed.h>
#include <support/virtualtime.h>

#include <application/commandline.h>
#include <core/commands.h>
#include <core/toolchoice.h>
#include <look/dockbutton.h>
#include <look/theme.h>
#include <page/pageview.h>
#include <presenting/curtain.h>
#include <presenting/fadingdock.h>
#include <presenting/laserpointer.h>
#include <presenting/presentation.h>
#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

using namespace boardtest;
using board::Command;
using board::Tool;

namespace {

void drag(QWidget *widget, const QPoint &from, const QPoint &to)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, from);
    // Positions are the widget's own, which moves along.
    const QPoint target = widget->mapFromGlobal(widget->mapToGlobal(to));
    QMouseEvent move(QEvent::MouseMove, target, widget->mapToGlobal(target), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, QPoint());
}

} // namespace

class TestPresenting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { useOwnFolders(); }
    void pageCoversTheScreenAlone();
    void presentingBeginsAtThePageOrAtTheFirst_data();
    void presentingBeginsAtThePageOrAtTheFirst();
    void keysAndClickersTurnPages_data();
    void keysAndClickersTurnPages();
    void pageTurnedAtTheEndsStays();
    void arrowsMoveASelectedShape();
    void escapeGoesBackStepByStep();
    void presentKeyEndsIt();
    void windowIsAsItWas();
    void shapesAreEditedAndTakenBack();
    void aPenThatRestsGoesOnDragging();
    void curtainKeys_data();
    void curtainKeys();
    void curtainIsDraggedFromItsSides();
    void curtainThatIsDraggedAwayIsOpen();
    void dockShowsThePageNumber();
    void chosenToolOfTheDockIsFilled();
    void buttonsOfTheDockAreAsLargeAsFingersNeed();
    void dockAndCurtainStayWhenThePageIsMoved();
    void keysZoomThePresentedPage();
    void wholePageIsShownAgainByTheDock();
    void curtainOfTheDockIsASwitch();
    void dockFadesAfterThreeSeconds();
    void dockComesBackWhenThePointerIsNear();
    void dockStaysAwayWhenThePointerIsFar();
    void pointerHidesAfterThreeSeconds();
    void laserLeavesATrailThatFades();
    void laserPointsAndMovesNothing();
    void laserIsPutAwayAtTheEnd();
    void trailFadesWithinASecond();
    void presentingFromTheCommandLine();
};

void TestPresenting::pageCoversTheScreenAlone()
{
    const Show t;
    QVERIFY(t.presentation().isRunning());
    QVERIFY(t.stage().window() != &t.board.window() && t.stage().window()->isFullScreen());
    const board::PageView &view = *t.stage().view();
    QCOMPARE(view.page(), &t.board.page());
    const QRect shown = view.mapFromScene(view.page()->rect()).boundingRect();
    QCOMPARE(view.zoom(), view.viewport()->width() / 1280.0);
    QVERIFY(qAbs(shown.left()) <= 1 && qAbs(shown.width() - view.viewport()->width()) <= 2);
    const QImage picture = view.viewport()->grab().toImage();
    QCOMPARE(picture.pixelColor(picture.width() / 2, 5), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(picture.rect().center()), picture.pixelColor(t.at({600, 360})));
}

void TestPresenting::presentingBeginsAtThePageOrAtTheFirst_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<int>("page");
    QTest::newRow("F5") << int(Qt::Key_F5) << false << 1;
    QTest::newRow("F11") << int(Qt::Key_F11) << false << 1;
    QTest::newRow("Shift+F5") << int(Qt::Key_F5) << true << 0;
}

void TestPresenting::presentingBeginsAtThePageOrAtTheFirst()
{
    QFETCH(int, key);
    QFETCH(bool, shift);
    QFETCH(int, page);
    Show t(false);
    t.board.key(static_cast<Qt::Key>(key), shift ? Qt::ShiftModifier : Qt::NoModifier);
    QVERIFY(t.presentation().isRunning());
    QCOMPARE(t.page(), page);
    QCOMPARE(t.stage().view()->page(), t.document().page(page));
}

void TestPresenting::keysAndClickersTurnPages_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<int>("page");
    QTest::newRow("Page down") << int(Qt::Key_PageDown) << false << 2;
    QTest::newRow("right") << int(Qt::Key_Right) << false << 2;
    QTest::newRow("down") << int(Qt::Key_Down) << false << 2;
    QTest::newRow("space") << int(Qt::Key_Space) << false << 2;
    QTest::newRow("Page up") << int(Qt::Key_PageUp) << false << 0;
    QTest::newRow("left") << int(Qt::Key_Left) << false << 0;
    QTest::newRow("up") << int(Qt::Key_Up) << false << 0;
    QTest::newRow("Shift+space") << int(Qt::Key_Space) << true << 0;
    QTest::newRow("Home") << int(Qt::Key_Home) << false << 0;
    QTest::newRow("End") << int(Qt::Key_End) << false << 2;
}

void TestPresenting::keysAndClickersTurnPages()
{
    QFETCH(int, key);
    QFETCH(bool, shift);
    QFETCH(int, page);
    Show t;
    t.press(static_cast<Qt::Key>(key), shift ? Qt::ShiftModifier : Qt::NoModifier);
    QCOMPARE(t.page(), page);
    QCOMPARE(t.stage().view()->page(), t.document().page(page));
    // Handles have the size of this view, not of the window's.
    QCOMPARE(t.document().zoomRate(), t.stage().view()->zoom());
}

void TestPresenting::pageTurnedAtTheEndsStays()
{
    Show t;
    t.press(Qt::Key_End);
    t.press(Qt::Key_Space);
    QCOMPARE(t.page(), 2);
    t.press(Qt::Key_Home);
    t.press(Qt::Key_PageUp);
    QCOMPARE(t.page(), 0);
    QVERIFY(t.presentation().isRunning());
}

void TestPresenting::arrowsMoveASelectedShape()
{
    Show t;
    t.board.page().select({t.shape});
    t.press(Qt::Key_Right);
    QCOMPARE(t.page(), 1);
    QCOMPARE(t.board.placeOf(t.shape), QRectF(508, 300, 200, 120));
}

void TestPresenting::escapeGoesBackStepByStep()
{
    Show t;
    t.board.page().select({t.shape});
    t.board.window().tools()->choose(Tool::Laser);
    t.press(Qt::Key_Escape);
    QCOMPARE(t.board.window().tools()->tool(), Tool::Select);
    QCOMPARE(t.board.selection().size(), 1);
    t.press(Qt::Key_Escape);
    QCOMPARE(t.board.selection().size(), 0);
    QVERIFY(t.presentation().isRunning());
    t.press(Qt::Key_Escape);
    QVERIFY(!t.presentation().isRunning());
}

void TestPresenting::presentKeyEndsIt()
{
    const Show t;
    t.press(Qt::Key_F11);
    QVERIFY(!t.presentation().isRunning());
}

void TestPresenting::windowIsAsItWas()
{
    Show t(false);
    t.board.view().setZoom(2);
    t.board.view().centerOn(700, 400);
    const QPointF corner = t.board.view().mapToScene(QPoint());
    const QRect place = t.board.window().geometry();
    t.board.key(Qt::Key_F5);
    QVERIFY(t.document().zoomRate() < 2);
    t.press(Qt::Key_Escape);
    QCOMPARE(t.board.view().zoom(), 2.0);
    QCOMPARE(t.document().zoomRate(), 2.0);
    QCOMPARE(t.board.view().mapToScene(QPoint()), corner);
    QCOMPARE(t.board.window().geometry(), place);
    support::deliverEvents();
    QCOMPARE(t.board.window().findChildren<board::Stage *>().size(), 0);
}

void TestPresenting::shapesAreEditedAndTakenBack()
{
    Show t;
    QTest::mousePress(t.viewport(), Qt::LeftButton, Qt::NoModifier, t.at({600, 360}));
    QTest::mouseRelease(t.viewport(), Qt::LeftButton, Qt::NoModifier, t.at({600, 360}));
    QCOMPARE(t.board.selection(), QVector<CBaseObject *>{t.shape});
    t.press(Qt::Key_Delete);
    QCOMPARE(t.board.page().objectCount(), 0);
    t.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.board.page().objectCount(), 1);
}

/// Elsewhere it would open a menu.
void TestPresenting::aPenThatRestsGoesOnDragging()
{
    const Show t;
    const QPoint from = t.at({600, 360});
    const QPoint to = t.at({640, 400});
    Hands &user = t.board.user();
    user.pen(t.viewport(), QEvent::TabletPress, from, 0.5);
    user.press(t.viewport(), from, Qt::NoModifier);
    support::pass(600);
    user.move(t.viewport(), to, Qt::LeftButton, Qt::NoModifier);
    user.release(t.viewport(), to, Qt::NoModifier);
    QCOMPARE(t.board.placeOf(t.shape), QRectF(540, 340, 200, 120));
}

void TestPresenting::curtainKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("B") << int(Qt::Key_B);
    QTest::newRow("full stop") << int(Qt::Key_Period);
}

void TestPresenting::curtainKeys()
{
    QFETCH(int, key);
    const Show t;
    const board::Curtain &curtain = *t.stage().curtain();
    QVERIFY(!curtain.isVisible());
    t.press(static_cast<Qt::Key>(key));
    QVERIFY(curtain.isVisible());
    QCOMPARE(curtain.geometry(), t.viewport()->rect());
    t.press(static_cast<Qt::Key>(key));
    QVERIFY(!curtain.isVisible());
}

void TestPresenting::curtainIsDraggedFromItsSides()
{
    const Show t;
    board::Curtain &curtain = *t.stage().curtain();
    curtain.setDrawn(true);
    const QSize size = t.viewport()->size();
    drag(&curtain, {size.width() / 2, 3}, {size.width() / 2, size.height() / 2});
    QCOMPARE(curtain.part(), QRectF(0, 0.5, 1, 0.5));
    QCOMPARE(curtain.geometry(), QRect(0, size.height() / 2, size.width(), size.height() / 2));
    // From the right, in the curtain's own coordinates.
    drag(&curtain, {size.width() - 3, size.height() / 4}, {size.width() / 4, size.height() / 4});
    QCOMPARE(curtain.part(), QRectF(0, 0.5, 0.25, 0.5));
    // In its middle nothing is dragged.
    drag(&curtain, {size.width() / 8, size.height() / 4}, {size.width() / 2, 0});
    QCOMPARE(curtain.part(), QRectF(0, 0.5, 0.25, 0.5));
}

void TestPresenting::curtainThatIsDraggedAwayIsOpen()
{
    const Show t;
    board::Curtain &curtain = *t.stage().curtain();
    curtain.setDrawn(true);
    const QSize size = t.viewport()->size();
    drag(&curtain, {size.width() / 2, 3}, {size.width() / 2, size.height()});
    QVERIFY(!curtain.isDrawn());
    curtain.setDrawn(true);
    QCOMPARE(curtain.part(), QRectF(0, 0, 1, 1));
}

void TestPresenting::dockShowsThePageNumber()
{
    const Show t;
    QCOMPARE(t.dock().findChild<QLabel *>()->text(), QString("2 / 3"));
    t.press(Qt::Key_PageDown);
    QCOMPARE(t.dock().findChild<QLabel *>()->text(), QString("3 / 3"));
    const QRect under = t.viewport()->rect();
    QCOMPARE(t.dock().geometry().left(), 24);
    QCOMPARE(t.dock().geometry().bottom(), under.bottom() - 24);
}

void TestPresenting::chosenToolOfTheDockIsFilled()
{
    const Show t;
    const auto pixels = [&](Command command) {
        const QAction *action = t.board.window().commands()->action(command);
        for (board::DockButton *button : support::listed(t.dock().findChildren<board::DockButton *>()))
            if (button->defaultAction() == action)
                return button->grab().toImage();
        return QImage();
    };
    const board::ThemeColors colors = board::themeColors();
    const QPoint besideThePicture(22, 3);
    t.press(Qt::Key_K);
    QCOMPARE(pixels(Command::LaserTool).pixelColor(besideThePicture), colors.accent);
    // The dot in the middle of the picture.
    QCOMPARE(pixels(Command::LaserTool).pixelColor(22, 22), colors.onAccent);
    t.press(Qt::Key_Escape);
    QCOMPARE(pixels(Command::SelectTool).pixelColor(besideThePicture), colors.accent);
    QVERIFY(pixels(Command::LaserTool).pixelColor(besideThePicture) != colors.accent);
}

void TestPresenting::buttonsOfTheDockAreAsLargeAsFingersNeed()
{
    Show t(false);
    board::applyLargeSizes(true);
    t.board.key(Qt::Key_F5);
    QCOMPARE(t.dock().height(), 80);
    for (const board::DockButton *button : support::listed(t.dock().findChildren<board::DockButton *>()))
        QCOMPARE(button->size(), QSize(64, 64));
    board::applyLargeSizes(false);
}

void TestPresenting::dockAndCurtainStayWhenThePageIsMoved()
{
    const Show t;
    t.press(Qt::Key_B);
    t.stage().view()->setZoom(3);
    t.stage().view()->centerOn(0, 0);
    t.stage().view()->centerOn(1280, 720);
    QCOMPARE(t.dock().geometry().left(), 24);
    QCOMPARE(t.dock().geometry().bottom(), t.viewport()->rect().bottom() - 24);
    QCOMPARE(t.stage().curtain()->geometry(), t.viewport()->rect());
}

void TestPresenting::keysZoomThePresentedPage()
{
    const Show t;
    board::PageView &view = *t.stage().view();
    const double behind = t.board.view().zoom();
    const double fitted = view.zoom();
    t.press(Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(view.zoom(), 1.0);
    t.press(Qt::Key_Equal, Qt::ControlModifier);
    QCOMPARE(view.zoom(), 1.25);
    t.press(Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(view.zoom(), 1.0);
    t.press(Qt::Key_9, Qt::ControlModifier);
    QCOMPARE(view.zoom(), fitted);
    QCOMPARE(t.board.view().zoom(), behind);
}

void TestPresenting::wholePageIsShownAgainByTheDock()
{
    const Show t;
    board::PageView &view = *t.stage().view();
    const double fitted = view.zoom();
    board::DockButton *fit = nullptr;
    for (board::DockButton *button : support::listed(t.dock().findChildren<board::DockButton *>()))
        if (button->defaultAction() == t.stage().fit())
            fit = button;
    QVERIFY(fit);
    QVERIFY2(!fit->isEnabled(), "nothing to do yet");
    view.setZoom(3);
    QVERIFY(fit->isEnabled());
    QTest::mouseClick(fit, Qt::LeftButton);
    QCOMPARE(view.zoom(), fitted);
    QVERIFY(!fit->isEnabled());
}

/// Only the tool in use is filled.
void TestPresenting::curtainOfTheDockIsASwitch()
{
    const Show t;
    t.press(Qt::Key_B);
    for (board::DockButton *button : support::listed(t.dock().findChildren<board::DockButton *>()))
        if (button->isChecked() && button->isSwitch()) {
            QCOMPARE(button->text(), QString("Curtain"));
            QCOMPARE(button->grab().toImage().pixelColor(22, 3), board::themeColors().soft);
            return;
        }
    QFAIL("The curtain's button isn't on.");
}

void TestPresenting::dockFadesAfterThreeSeconds()
{
    const Show t;
    t.dock().appear();
    support::pass(2999);
    QVERIFY(t.dock().isShown() && t.dock().isVisible());
    support::pass(1);
    QVERIFY(!t.dock().isShown());
    QVERIFY2(t.dock().isVisible(), "it still fades");
    support::pass(400);
    QVERIFY(!t.dock().isVisible());
}

void TestPresenting::dockComesBackWhenThePointerIsNear()
{
    const Show t;
    support::pass(4000);
    QVERIFY(!t.dock().isVisible());
    t.movePointer({t.dock().geometry().right() + 120, t.dock().geometry().top()});
    QVERIFY(t.dock().isShown() && t.dock().isVisible());
    support::pass(3000);
    QVERIFY(!t.dock().isShown());
}

void TestPresenting::dockStaysAwayWhenThePointerIsFar()
{
    const Show t;
    support::pass(4000);
    t.movePointer({t.dock().geometry().right() + 121, t.dock().geometry().top()});
    t.movePointer(t.farAway());
    QVERIFY(!t.dock().isShown() && !t.dock().isVisible());
}

void TestPresenting::pointerHidesAfterThreeSeconds()
{
    const Show t;
    t.movePointer(t.farAway());
    support::pass(2999);
    QVERIFY(t.viewport()->cursor().shape() != Qt::BlankCursor);
    support::pass(1);
    QCOMPARE(t.viewport()->cursor().shape(), Qt::BlankCursor);
    t.movePointer(t.farAway() - QPoint(5, 0));
    QVERIFY(t.viewport()->cursor().shape() != Qt::BlankCursor);
}

void TestPresenting::laserLeavesATrailThatFades()
{
    const Show t;
    t.press(Qt::Key_K);
    QCOMPARE(t.board.window().tools()->tool(), Tool::Laser);
    t.movePointer(t.at({100, 100}));
    support::pass(400);
    t.movePointer(t.at({200, 100}));
    QCOMPARE(t.stage().laser()->trail().size(), 2);
    QCOMPARE(t.stage().laser()->trail().first().opacity, 0.6);
    support::pass(600);
    QCOMPARE(t.stage().laser()->trail().size(), 1);
    support::pass(400);
    QVERIFY(t.stage().laser()->trail().isEmpty());
    support::pass(100);
    QVERIFY2(t.stage().laser()->isVisible(), "the dot stays");
}

void TestPresenting::laserPointsAndMovesNothing()
{
    const Show t;
    t.press(Qt::Key_K);
    const QPoint from = t.at({600, 360});
    QTest::mousePress(t.viewport(), Qt::LeftButton, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, from + QPoint(80, 0), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(t.viewport(), &move);
    QTest::mouseRelease(t.viewport(), Qt::LeftButton, Qt::NoModifier, from + QPoint(80, 0));
    QCOMPARE(t.board.placeOf(t.shape), QRectF(500, 300, 200, 120));
    QVERIFY(t.board.selection().isEmpty());
    QCOMPARE(t.stage().laser()->trail().size(), 2);
}

void TestPresenting::laserIsPutAwayAtTheEnd()
{
    const Show t;
    t.press(Qt::Key_K);
    t.press(Qt::Key_F5);
    QVERIFY(!t.presentation().isRunning());
    QCOMPARE(t.board.window().tools()->tool(), Tool::Select);
}

void TestPresenting::trailFadesWithinASecond()
{
    board::LaserTrail trail;
    trail.add({1, 2}, 5000);
    trail.add({3, 4}, 5250);
    const QVector<board::LaserTrail::Place> places = trail.places(5750);
    QCOMPARE(places.size(), 2);
    QCOMPARE(places.at(0).pos, QPointF(1, 2));
    QCOMPARE(places.at(0).opacity, 0.25);
    QCOMPARE(places.at(1).opacity, 0.5);
    QCOMPARE(trail.places(5999).size(), 2);
    QCOMPARE(trail.places(6000).size(), 1);
    QCOMPARE(trail.places(6250).size(), 0);
}

void TestPresenting::presentingFromTheCommandLine()
{
    const board::Options options = board::parseCommandLine({"board", "--present", "lesson.board"});
    QVERIFY(options.present && options.action == board::Options::OpenWindow);
    QCOMPARE(options.file, QString("lesson.board"));
    QVERIFY(!board::parseCommandLine({"board", "lesson.board"}).present);
}

QTEST_MAIN(TestPresenting)
#include "test_presenting.moc"
