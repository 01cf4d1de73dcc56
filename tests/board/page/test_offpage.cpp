// Objects that hang off the page: faded, and brought back by one click.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <look/theme.h>
#include <page/pageview.h>
#include <window/drawer.h>
#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/page.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QUndoStack>

using namespace boardtest;
using board::Command;

class TestOffPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void objectComesBackOntoThePage_data();
    void objectComesBackOntoThePage();
    void commandIsOfferedOffThePageOnly();
    void barHasTheButtonOffThePageOnly();
    void groupComesBackAsOne();
    void partsOffThePageAreFaded();
    void theShadowBesideAnObjectOnThePageStays();
    void whatIsDraggedOffThePageComesBackByOneClick();
};

void TestOffPage::objectComesBackOntoThePage_data()
{
    QTest::addColumn<QPointF>("way");
    QTest::addColumn<QRectF>("place");
    // The page is 1280 × 720, the object stands at (100, 100) and is 200 × 100.
    QTest::newRow("left") << QPointF(-150, 0) << QRectF(0, 100, 200, 100);
    QTest::newRow("above") << QPointF(0, -500) << QRectF(100, 0, 200, 100);
    QTest::newRow("right and below") << QPointF(1100, 650) << QRectF(1080, 620, 200, 100);
}

void TestOffPage::objectComesBackOntoThePage()
{
    QFETCH(QPointF, way);
    BoardDriver board;
    CBaseObject *object = board.draw(rectangle, {100, 100}, {300, 200});
    pagehost::moveObjects({object}, way);
    board.history().clear();
    board.page().select({});
    board.page().select({object});
    board.window().commands()->action(Command::BringBack)->trigger();
    QTEST(board.placeOf(object), "place");
    QCOMPARE(board.history().count(), 1);
    board.history().undo();
    QCOMPARE(board.placeOf(object), QRectF(100, 100, 200, 100).translated(way));
}

void TestOffPage::commandIsOfferedOffThePageOnly()
{
    BoardDriver board;
    CBaseObject *object = board.draw(rectangle, {100, 100}, {300, 200});
    const QAction *action = board.window().commands()->action(Command::BringBack);
    QVERIFY(!action->isEnabled());
    pagehost::moveObjects({object}, {-101, 0});
    board.page().select({});
    board.page().select({object});
    QVERIFY(action->isEnabled());
}

void TestOffPage::barHasTheButtonOffThePageOnly()
{
    BoardDriver board;
    CBaseObject *object = board.draw(rectangle, {100, 100}, {300, 200});
    board.window().panel()->setOpen(false);
    QCoreApplication::processEvents();
    const auto button = [&]() -> QToolButton * {
        const QList<QToolButton *> buttons = board.view().findChildren<QToolButton *>();
        for (QToolButton *candidate : buttons)
            if (candidate->isVisible() && candidate->text() == QLatin1String("Bring back"))
                return candidate;
        return nullptr;
    };
    QVERIFY(!button());
    pagehost::moveObjects({object}, {-150, 0});
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QVERIFY(button());
    QTest::mouseClick(button(), Qt::LeftButton);
    QCOMPARE(board.placeOf(object), QRectF(0, 100, 200, 100));
}

void TestOffPage::groupComesBackAsOne()
{
    BoardDriver board;
    CBaseObject *first = board.draw(rectangle, {100, 100}, {200, 200});
    CBaseObject *second = board.draw(rectangle, {300, 100}, {400, 200});
    board.page().select({first, second});
    board.key(Qt::Key_G, Qt::ControlModifier);
    pagehost::moveObjects({first, second}, {-150, 0});
    board.window().commands()->action(Command::BringBack)->trigger();
    QCOMPARE(board.placeOf(first), QRectF(0, 100, 100, 100));
    QCOMPARE(board.placeOf(second), QRectF(200, 100, 100, 100));
}

void TestOffPage::partsOffThePageAreFaded()
{
    BoardDriver board;
    CBaseObject *object = board.draw(rectangle, {500, 20}, {700, 120});
    pagehost::setFill({object}, QColor(255, 0, 0));
    pagehost::moveObjects({object}, {0, -60});
    board.page().select({});
    const QImage picture = board.view().viewport()->grab().toImage();
    const auto colorAt = [&](const QPointF &pos) { return picture.pixelColor(board.view().mapFromScene(pos)); };
    QCOMPARE(colorAt({600, 30}), QColor(255, 0, 0));
    // Four tenths red, six tenths desk.
    const QColor desk = board::themeColors().desk;
    const QColor faded = colorAt({600, -20});
    QVERIFY(qAbs(faded.red() - (0.4 * 255 + 0.6 * desk.red())) <= 2);
    QVERIFY(qAbs(faded.green() - 0.6 * desk.green()) <= 2);
    QVERIFY(qAbs(faded.blue() - 0.6 * desk.blue()) <= 2);
}

void TestOffPage::theShadowBesideAnObjectOnThePageStays()
{
    BoardDriver board;
    // Its hands turn, so that it may paint farther than its face.
    CBaseObject *clock = board.draw("shapes.clock", {500, 20}, {600, 120});
    QVERIFY(clock->sceneBoundingRect().top() < 0);
    board.page().select({});
    const QImage picture = board.view().viewport()->grab().toImage();
    const QPoint edge = board.view().mapFromScene(QPointF(550, 0)) - QPoint(0, 2);
    const QPoint elsewhere = board.view().mapFromScene(QPointF(200, 0)) - QPoint(0, 2);
    QVERIFY(picture.pixelColor(elsewhere) != board::themeColors().desk);
    QCOMPARE(picture.pixelColor(edge), picture.pixelColor(elsewhere));
}

void TestOffPage::whatIsDraggedOffThePageComesBackByOneClick()
{
    BoardDriver board;
    CBaseObject *object = board.draw(rectangle, {100, 300}, {300, 400});
    pagehost::setFill({object}, QColor(255, 0, 0));
    board.window().panel()->setOpen(false);
    QCoreApplication::processEvents();
    const auto colorAt = [&](const QPointF &pos) {
        return board.view().viewport()->grab().toImage().pixelColor(board.view().mapFromScene(pos));
    };
    board.drag({280, 380}, {130, 380});
    QCOMPARE(board.placeOf(object), QRectF(-50, 300, 200, 100));
    QCOMPARE(colorAt({20, 350}), QColor(255, 0, 0));
    QVERIFY(colorAt({-20, 350}) != QColor(255, 0, 0));
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    for (QToolButton *button : support::listed(board.view().findChildren<QToolButton *>())) {
        if (button->isVisible() && button->text() == QLatin1String("Bring back")) {
            board.clickOn(button);
            break;
        }
    }
    QCOMPARE(board.placeOf(object), QRectF(0, 300, 200, 100));
    QCOMPARE(colorAt({20, 350}), QColor(255, 0, 0));
    board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(board.placeOf(object), QRectF(-50, 300, 200, 100));
}

QTEST_MAIN(TestOffPage)
#include "test_offpage.moc"
