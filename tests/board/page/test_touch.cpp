// Fingers, palms and the pen on the page of the board's window.

#include "board/boarddriver.h"
#include "support/virtualtime.h"

#include <core/commands.h>
#include <core/toolchoice.h>
#include <page/labeleditor.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>

#include <QtCore/QSettings>
#include <QtGui/QScreen>
#include <QtGui/QTabletEvent>
#include <QtGui/QTouchEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QUndoStack>

using board::Tool;
using boardtest::BoardDriver;
using boardtest::rectangle;

namespace {

QTouchDevice *glass()
{
    static QTouchDevice *device = QTest::createTouchDevice();
    return device;
}

struct Finger
{
    int id;
    Qt::TouchPointState state;
    QPoint pos; ///< viewport coordinates
};

Finger pressed(int id, const QPoint &pos)
{
    return {id, Qt::TouchPointPressed, pos};
}

Finger moved(int id, const QPoint &pos)
{
    return {id, Qt::TouchPointMoved, pos};
}

Finger lifted(int id, const QPoint &pos)
{
    return {id, Qt::TouchPointReleased, pos};
}

/// The board with a hand on its glass. Positions are scene coordinates; the screen ends at about (690, 390).
struct Desk : BoardDriver
{
    board::ToolChoice &tools() const { return *window().tools(); }
    QWidget *viewport() const { return view().viewport(); }
    QPointF seen(const QPointF &scenePos) const { return view().viewportTransform().map(scenePos); }
    QPoint at(const QPointF &scenePos) const { return seen(scenePos).toPoint(); }
    /// Delivered as those of a touch screen are.
    void touch(const QVector<Finger> &fingers) const
    {
        {
            QTest::QTouchEventSequence sequence = QTest::touchEvent(viewport(), glass(), false);
            for (const Finger &finger : fingers)
                if (finger.state == Qt::TouchPointPressed)
                    sequence.press(finger.id, finger.pos, viewport());
                else if (finger.state == Qt::TouchPointMoved)
                    sequence.move(finger.id, finger.pos, viewport());
                else
                    sequence.release(finger.id, finger.pos, viewport());
            sequence.commit(false);
        }
        QCoreApplication::processEvents();
    }
    void tap(const QPointF &pos) const
    {
        touch({pressed(1, at(pos))});
        touch({lifted(1, at(pos))});
    }
    void drag(const QPointF &from, const QPointF &to) const
    {
        // The page may move under the finger.
        const QPoint start = at(from);
        const QPoint end = at(to);
        touch({pressed(1, start)});
        touch({moved(1, (start + end) / 2)});
        touch({moved(1, end)});
        touch({lifted(1, end)});
    }
    /// A contact that covers so many millimetres.
    void send(QEvent::Type type, Qt::TouchPointState state, const QPointF &pos, double millimetres) const
    {
        QTouchEvent::TouchPoint point(1);
        point.setState(state);
        point.setPos(at(pos));
        const double pixels = millimetres / 25.4 * viewport()->screen()->physicalDotsPerInch();
        point.setEllipseDiameters({pixels, pixels});
        QTouchEvent event(type, glass(), Qt::NoModifier, state, {point});
        QApplication::sendEvent(viewport(), &event);
    }
    bool pen(QEvent::Type type, const QPointF &pos, Qt::MouseButton button, Qt::MouseButtons held,
             QTabletEvent::PointerType end = QTabletEvent::Pen) const
    {
        QTabletEvent event(type, seen(pos), viewport()->mapToGlobal(at(pos)), QTabletEvent::Stylus, end, 0.5, 0, 0,
                           0, 0, 0, Qt::NoModifier, 1, button, held);
        QApplication::sendEvent(viewport(), &event);
        return event.isAccepted();
    }
    /// Without a tool; Qt makes a mouse of it.
    void pressPen(const QPointF &pos) const
    {
        pen(QEvent::TabletPress, pos, Qt::LeftButton, Qt::LeftButton);
        copiedMouse(QEvent::MouseButtonPress, pos);
    }
    QMenu *menu(const char *name) const { return window().findChild<QMenu *>(QLatin1String(name)); }
    void penStroke(const QPointF &from, const QPointF &to, QTabletEvent::PointerType end = QTabletEvent::Pen) const
    {
        pen(QEvent::TabletPress, from, Qt::LeftButton, Qt::LeftButton, end);
        pen(QEvent::TabletMove, to, Qt::NoButton, Qt::LeftButton, end);
        pen(QEvent::TabletRelease, to, Qt::LeftButton, Qt::NoButton, end);
    }
    static void penProximity(QEvent::Type type)
    {
        QTabletEvent event(type, {}, {}, QTabletEvent::Stylus, QTabletEvent::Pen, 0, 0, 0, 0, 0, 0, Qt::NoModifier,
                           1, Qt::NoButton, Qt::NoButton);
        QApplication::sendEvent(qApp, &event);
    }
    void copiedMouse(QEvent::Type type, const QPointF &pos) const
    {
        const QPointF local = at(pos);
        QMouseEvent event(type, local, local, viewport()->mapToGlobal(at(pos)), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier, Qt::MouseEventSynthesizedByQt);
        QApplication::sendEvent(viewport(), &event);
    }
};

bool isNear(const QPointF &one, const QPointF &other, double tolerance)
{
    return QLineF(one, other).length() <= tolerance;
}

/// Scroll bars count whole pixels.
constexpr double halfPixel = 0.71;

} // namespace

class TestTouch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { boardtest::useOwnFolders(); }
    void init() { QSettings().clear(); }
    void aFingerWritesWithThePen();
    void aFingerSelectsAndMovesShapes();
    void aDoubleTapIsADoubleClick();
    void aFingerTakesAGripFromFurtherAwayThanTheMouse();
    void aFingerMovesThePageWhereThereIsAPen();
    void fingersDrawTooWhenTheMenuSaysSo();
    void twoFingersPullThePage();
    void twoFingersZoomAboutTheirMiddle();
    void twoFingersTakeAStrokeBack();
    void twoFingersPutADraggedShapeBack();
    void theLastFingerGoesOnPulling();
    void aPalmLeavesNoTrace();
    void theNearPenKeepsFingersOff();
    void thePenTakesBackWhatAFingerHasBegun();
    void mouseEventsMadeOfTouchesAreNotUsedTwice();
    void thePensButtonErases();
    void thePensOtherEndErases();
    void erasingEndsWhenThePenIsTakenAway();
    void aFingerThatRestsOpensTheMenu();
    void aFingerThatMovesOpensNoMenu();
    void aFingerThatRestsWithAToolOpensNoMenu();
    void aPenThatRestsOpensTheMenu();
    void aPenThatMovesOpensNoMenu();
    void aPenThatIsLiftedOpensNoMenu();
    void aPenThatRestsWithAToolOpensNoMenu();
    void fingersWorkAfterThePensMenu();
};

void TestTouch::aFingerWritesWithThePen()
{
    Desk desk;
    desk.tools().choose(Tool::Pen);
    desk.drag({500, 300}, {600, 300});
    QCOMPARE(desk.page().objectCount(), 1);
    QCOMPARE(desk.history().count(), 1);
}

void TestTouch::aFingerSelectsAndMovesShapes()
{
    Desk desk;
    CBaseObject *shape = desk.draw(rectangle, {500, 300}, {700, 420});
    desk.tap({300, 250});
    QVERIFY(desk.selection().isEmpty());
    desk.drag({600, 360}, {640, 390});
    QCOMPARE(desk.selection(), QVector<CBaseObject *>{shape});
    QCOMPARE(desk.placeOf(shape), QRectF(540, 330, 200, 120));
}

void TestTouch::aDoubleTapIsADoubleClick()
{
    Desk desk;
    CBaseObject *table = desk.draw(QStringLiteral("shapes.table"), {500, 300}, {680, 390});
    // A real mouse has made each of its presses a single one.
    QApplication::setDoubleClickInterval(400);
    const QPointF cell = table->mapToScene(board::labelsOf(*table).constFirst().box.center());
    desk.tap(cell);
    support::pass(QApplication::doubleClickInterval());
    desk.tap(cell);
    QVERIFY(!desk.view().isWriting());
    support::pass(QApplication::doubleClickInterval() - 1);
    desk.tap(cell + QPointF(2, 0));
    QVERIFY(desk.view().isWriting());
}

/// Targets are 44 pixels wide for fingers and 24 for mice.
void TestTouch::aFingerTakesAGripFromFurtherAwayThanTheMouse()
{
    Desk desk;
    CBaseObject *shape = desk.draw(rectangle, {400, 200}, {600, 320});
    const QPointF beside = desk.handle(CObjAction::ACT_ResizeBottomRight) + QPointF(20, 0);
    desk.drag(beside, beside + QPointF(40, 30));
    QCOMPARE(desk.placeOf(shape), QRectF(400, 200, 240, 150));
    desk.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(desk.placeOf(shape), QRectF(400, 200, 200, 120));
    desk.BoardDriver::drag(beside, beside + QPointF(40, 30));
    QCOMPARE(desk.placeOf(shape), QRectF(400, 200, 200, 120));
    desk.page().select({shape});
    desk.BoardDriver::drag(beside - QPointF(10, 0), beside + QPointF(30, 30));
    QCOMPARE(desk.placeOf(shape), QRectF(400, 200, 240, 150));
}

void TestTouch::aFingerMovesThePageWhereThereIsAPen()
{
    Desk desk;
    desk.tools().choose(Tool::Pen);
    desk.penStroke({500, 300}, {600, 300});
    support::pass(300);
    const QPointF before = desk.seen({640, 360});
    desk.drag({500, 350}, {530, 370});
    QCOMPARE(desk.page().objectCount(), 1);
    QCOMPARE(desk.seen({640, 360}), before + QPointF(30, 20));
}

void TestTouch::fingersDrawTooWhenTheMenuSaysSo()
{
    Desk desk;
    desk.tools().choose(Tool::Pen);
    desk.penStroke({500, 300}, {600, 300});
    support::pass(300);
    desk.window().commands()->action(board::Command::FingersDraw)->trigger();
    desk.drag({500, 350}, {600, 350});
    QCOMPARE(desk.page().objectCount(), 2);
    Desk next;
    QVERIFY(next.window().commands()->action(board::Command::FingersDraw)->isChecked());
}

void TestTouch::twoFingersPullThePage()
{
    Desk desk;
    const QPointF before = desk.seen({640, 360});
    const QPoint one = desk.at({500, 300});
    const QPoint other = desk.at({600, 300});
    desk.touch({pressed(1, one), pressed(2, other)});
    desk.touch({moved(1, one + QPoint(20, 30)), moved(2, other + QPoint(20, 30))});
    QCOMPARE(desk.seen({640, 360}), before + QPointF(20, 30));
    QCOMPARE(desk.view().zoom(), 1.0);
    desk.touch({lifted(1, one), lifted(2, other)});
    QCOMPARE(desk.history().count(), 0);
}

void TestTouch::twoFingersZoomAboutTheirMiddle()
{
    Desk desk;
    const QPoint middle = desk.at({500, 300});
    const QPointF place = desk.view().viewportTransform().inverted().map(QPointF(middle));
    desk.touch({pressed(1, middle - QPoint(50, 0)), pressed(2, middle + QPoint(50, 0))});
    for (const int apart : {60, 73, 100, 140, 100}) {
        const QPoint way(apart, apart / 4);
        const QPoint between = middle + QPoint(apart - 100, 7);
        desk.touch({moved(1, between - way), moved(2, between + way)});
        QCOMPARE(desk.view().zoom(), std::hypot(way.x(), way.y()) / 50);
        QVERIFY(isNear(desk.seen(place), between, halfPixel));
    }
}

void TestTouch::twoFingersTakeAStrokeBack()
{
    Desk desk;
    desk.tools().choose(Tool::Pen);
    desk.touch({pressed(1, desk.at({500, 300}))});
    desk.touch({moved(1, desk.at({540, 300}))});
    QCOMPARE(desk.page().objectCount(), 1);
    desk.touch({moved(1, desk.at({540, 300})), pressed(2, desk.at({600, 350}))});
    QCOMPARE(desk.page().objectCount(), 0);
    QCOMPARE(desk.history().count(), 0);
    desk.touch({lifted(1, desk.at({540, 300})), lifted(2, desk.at({600, 350}))});
    QCOMPARE(desk.page().objectCount(), 0);
    QCOMPARE(desk.tools().tool(), Tool::Pen);
}

void TestTouch::twoFingersPutADraggedShapeBack()
{
    Desk desk;
    CBaseObject *shape = desk.draw(rectangle, {500, 300}, {700, 420});
    CBaseObject *other = desk.draw(rectangle, {800, 300}, {900, 420});
    const int steps = desk.history().count();
    desk.touch({pressed(1, desk.at({600, 360}))});
    desk.touch({moved(1, desk.at({650, 380}))});
    QCOMPARE(desk.placeOf(shape), QRectF(550, 320, 200, 120));
    desk.touch({moved(1, desk.at({650, 380})), pressed(2, desk.at({300, 350}))});
    QCOMPARE(desk.placeOf(shape), QRectF(500, 300, 200, 120));
    QCOMPARE(desk.selection(), QVector<CBaseObject *>{other});
    desk.touch({lifted(1, desk.at({650, 380})), lifted(2, desk.at({300, 350}))});
    QCOMPARE(desk.history().count(), steps);
}

void TestTouch::theLastFingerGoesOnPulling()
{
    Desk desk;
    desk.tools().choose(Tool::Pen);
    const QPoint one = desk.at({500, 300});
    const QPoint other = desk.at({600, 300});
    desk.touch({pressed(1, one), pressed(2, other)});
    desk.touch({moved(1, one), lifted(2, other)});
    const QPointF before = desk.seen({640, 360});
    desk.touch({moved(1, one + QPoint(15, 5))});
    QCOMPARE(desk.seen({640, 360}), before + QPointF(15, 5));
    desk.touch({lifted(1, one + QPoint(15, 5))});
    QCOMPARE(desk.page().objectCount(), 0);
}

void TestTouch::aPalmLeavesNoTrace()
{
    Desk desk;
    desk.tools().choose(Tool::Pen);
    desk.send(QEvent::TouchBegin, Qt::TouchPointPressed, {500, 300}, 31);
    QVERIFY(!desk.scene().isBusy());
    desk.send(QEvent::TouchEnd, Qt::TouchPointReleased, {500, 300}, 31);
    desk.send(QEvent::TouchBegin, Qt::TouchPointPressed, {500, 300}, 29);
    QVERIFY(desk.scene().isBusy());
    // The hand comes down behind the finger.
    desk.send(QEvent::TouchUpdate, Qt::TouchPointMoved, {510, 300}, 31);
    QVERIFY(!desk.scene().isBusy());
    QCOMPARE(desk.page().objectCount(), 0);
}

void TestTouch::theNearPenKeepsFingersOff()
{
    Desk desk;
    desk.tools().choose(Tool::Pen);
    desk.window().commands()->action(board::Command::FingersDraw)->setChecked(true);
    Desk::penProximity(QEvent::TabletEnterProximity);
    support::pass(1000);
    desk.drag({500, 300}, {600, 300});
    QCOMPARE(desk.page().objectCount(), 0);
    Desk::penProximity(QEvent::TabletLeaveProximity);
    support::pass(299);
    desk.drag({500, 300}, {600, 300});
    QCOMPARE(desk.page().objectCount(), 0);
    support::pass(1);
    desk.drag({500, 300}, {600, 300});
    QCOMPARE(desk.page().objectCount(), 1);
}

void TestTouch::thePenTakesBackWhatAFingerHasBegun()
{
    Desk desk;
    desk.tools().choose(Tool::Pen);
    desk.touch({pressed(1, desk.at({500, 300}))});
    desk.touch({moved(1, desk.at({540, 300}))});
    QCOMPARE(desk.page().objectCount(), 1);
    desk.pen(QEvent::TabletMove, {700, 500}, Qt::NoButton, Qt::NoButton);
    QCOMPARE(desk.page().objectCount(), 0);
    desk.penStroke({700, 500}, {800, 500});
    desk.touch({lifted(1, desk.at({540, 300}))});
    QCOMPARE(desk.page().objectCount(), 1);
}

void TestTouch::mouseEventsMadeOfTouchesAreNotUsedTwice()
{
    Desk desk;
    CBaseObject *shape = desk.draw(rectangle, {500, 300}, {700, 420});
    desk.tap({300, 250});
    desk.copiedMouse(QEvent::MouseButtonPress, {600, 360});
    desk.copiedMouse(QEvent::MouseButtonRelease, {600, 360});
    QVERIFY(desk.selection().isEmpty());
    // Those that Qt makes of a pen without a tool are used.
    desk.pen(QEvent::TabletPress, {600, 360}, Qt::LeftButton, Qt::LeftButton);
    desk.copiedMouse(QEvent::MouseButtonPress, {600, 360});
    desk.copiedMouse(QEvent::MouseButtonRelease, {600, 360});
    QCOMPARE(desk.selection(), QVector<CBaseObject *>{shape});
}

void TestTouch::thePensButtonErases()
{
    Desk desk;
    desk.tools().choose(Tool::Pen);
    desk.tools().keep(true);
    desk.penStroke({500, 300}, {600, 300});
    QVERIFY(desk.pen(QEvent::TabletPress, {550, 250}, Qt::RightButton, Qt::RightButton));
    QCOMPARE(desk.tools().tool(), Tool::Eraser);
    desk.pen(QEvent::TabletPress, {550, 280}, Qt::LeftButton, Qt::LeftButton | Qt::RightButton);
    desk.pen(QEvent::TabletMove, {550, 320}, Qt::NoButton, Qt::LeftButton | Qt::RightButton);
    desk.pen(QEvent::TabletRelease, {550, 320}, Qt::LeftButton, Qt::RightButton);
    QCOMPARE(desk.page().objectCount(), 0);
    QVERIFY(desk.pen(QEvent::TabletRelease, {550, 320}, Qt::RightButton, Qt::NoButton));
    QCOMPARE(desk.tools().tool(), Tool::Pen);
    QVERIFY(desk.tools().isKept());
}

void TestTouch::thePensOtherEndErases()
{
    Desk desk;
    desk.tools().choose(Tool::Pen);
    desk.penStroke({500, 300}, {600, 300});
    desk.penStroke({550, 280}, {550, 320}, QTabletEvent::Eraser);
    QCOMPARE(desk.page().objectCount(), 0);
    QCOMPARE(desk.tools().tool(), Tool::Eraser);
    desk.penStroke({500, 300}, {600, 300});
    QCOMPARE(desk.page().objectCount(), 1);
    QCOMPARE(desk.tools().tool(), Tool::Pen);
}

void TestTouch::erasingEndsWhenThePenIsTakenAway()
{
    Desk desk;
    desk.penStroke({550, 280}, {550, 320}, QTabletEvent::Eraser);
    QCOMPARE(desk.tools().tool(), Tool::Eraser);
    Desk::penProximity(QEvent::TabletLeaveProximity);
    QCOMPARE(desk.tools().tool(), Tool::Select);
}

void TestTouch::aFingerThatRestsOpensTheMenu()
{
    Desk desk;
    CBaseObject *shape = desk.draw(rectangle, {500, 300}, {700, 420});
    desk.tap({300, 250});
    desk.touch({pressed(1, desk.at({600, 360}))});
    desk.touch({moved(1, desk.at({607, 360}))});
    const QMenu *menu = desk.menu("objectMenu");
    support::pass(499);
    QVERIFY(!menu->isVisible());
    support::pass(1);
    QVERIFY(menu->isVisible());
    QCOMPARE(desk.selection(), QVector<CBaseObject *>{shape});
    desk.touch({lifted(1, desk.at({600, 360}))});
    QVERIFY(menu->isVisible());
    QCOMPARE(desk.history().count(), 1);
}

void TestTouch::aFingerThatMovesOpensNoMenu()
{
    Desk desk;
    desk.draw(rectangle, {500, 300}, {700, 420});
    desk.touch({pressed(1, desk.at({600, 360}))});
    desk.touch({moved(1, desk.at({608, 360}))});
    support::pass(1000);
    QVERIFY(!desk.menu("objectMenu")->isVisible());
}

void TestTouch::aFingerThatRestsWithAToolOpensNoMenu()
{
    Desk desk;
    desk.tools().choose(Tool::Eraser);
    desk.touch({pressed(1, desk.at({600, 360}))});
    support::pass(1000);
    QVERIFY(!desk.menu("pageMenu")->isVisible());
    QVERIFY(desk.scene().isBusy());
}

void TestTouch::aPenThatRestsOpensTheMenu()
{
    Desk desk;
    CBaseObject *shape = desk.draw(rectangle, {500, 300}, {700, 420});
    desk.tap({300, 250});
    desk.pressPen({600, 360});
    desk.pen(QEvent::TabletMove, {603.9, 360}, Qt::NoButton, Qt::LeftButton);
    support::pass(499);
    QVERIFY(!desk.menu("objectMenu")->isVisible());
    support::pass(1);
    QVERIFY(desk.menu("objectMenu")->isVisible());
    QCOMPARE(desk.selection(), QVector<CBaseObject *>{shape});
    desk.pen(QEvent::TabletRelease, {600, 360}, Qt::LeftButton, Qt::NoButton);
    QVERIFY(desk.menu("objectMenu")->isVisible());
    desk.menu("objectMenu")->close();
    // The drag that the press has begun does not go on.
    desk.hover({640, 390});
    QCOMPARE(desk.placeOf(shape), QRectF(500, 300, 200, 120));
    QCOMPARE(desk.history().count(), 1);
}

void TestTouch::aPenThatMovesOpensNoMenu()
{
    Desk desk;
    CBaseObject *shape = desk.draw(rectangle, {500, 300}, {700, 420});
    desk.pressPen({600, 360});
    desk.pen(QEvent::TabletMove, {604, 360}, Qt::NoButton, Qt::LeftButton);
    desk.copiedMouse(QEvent::MouseMove, {604, 360});
    // Neither where it rests then, nor back where it was.
    support::pass(1000);
    desk.pen(QEvent::TabletMove, {600, 360}, Qt::NoButton, Qt::LeftButton);
    support::pass(1000);
    QVERIFY(!desk.menu("objectMenu")->isVisible());
    QCOMPARE(desk.placeOf(shape).topLeft(), QPointF(504, 300));
}

void TestTouch::aPenThatIsLiftedOpensNoMenu()
{
    Desk desk;
    desk.pressPen({600, 360});
    support::pass(499);
    desk.pen(QEvent::TabletRelease, {600, 360}, Qt::LeftButton, Qt::NoButton);
    desk.copiedMouse(QEvent::MouseButtonRelease, {600, 360});
    desk.pen(QEvent::TabletMove, {600, 360}, Qt::NoButton, Qt::NoButton);
    support::pass(1000);
    QVERIFY(!desk.menu("pageMenu")->isVisible());
}

void TestTouch::aPenThatRestsWithAToolOpensNoMenu()
{
    Desk desk;
    desk.tools().choose(Tool::Pen);
    desk.pen(QEvent::TabletPress, {500, 300}, Qt::LeftButton, Qt::LeftButton);
    desk.pen(QEvent::TabletMove, {503, 300}, Qt::NoButton, Qt::LeftButton);
    support::pass(1000);
    QVERIFY(!desk.menu("pageMenu")->isVisible());
    desk.pen(QEvent::TabletRelease, {503, 300}, Qt::LeftButton, Qt::NoButton);
    QCOMPARE(desk.page().objectCount(), 1);
    // Neither does the end that erases.
    desk.pen(QEvent::TabletPress, {550, 350}, Qt::LeftButton, Qt::LeftButton, QTabletEvent::Eraser);
    support::pass(1000);
    QVERIFY(!desk.menu("pageMenu")->isVisible());
}

void TestTouch::fingersWorkAfterThePensMenu()
{
    Desk desk;
    CBaseObject *shape = desk.draw(rectangle, {500, 300}, {700, 420});
    desk.window().commands()->action(board::Command::FingersDraw)->setChecked(true);
    desk.pressPen({300, 250});
    support::pass(500);
    QVERIFY(desk.menu("pageMenu")->isVisible());
    desk.pen(QEvent::TabletRelease, {300, 250}, Qt::LeftButton, Qt::NoButton);
    desk.menu("pageMenu")->close();
    support::pass(300);
    desk.tap({600, 360});
    QCOMPARE(desk.selection(), QVector<CBaseObject *>{shape});
}

QTEST_MAIN(TestTouch)
#include "test_touch.moc"
