// The palette while files of shapes change.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <panels/palettebutton.h>
#include <panels/palettepanel.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>

#include <QtCore/QPointer>
#include <QtGui/QDrag>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>

using namespace boardtest;

class TestPalettePanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shapeIsDrawnFromAPaletteThatWasBuiltAnew();
    void buttonMayGoWhileItsShapeIsDraggedOut();
};

void TestPalettePanel::shapeIsDrawnFromAPaletteThatWasBuiltAnew()
{
    BoardDriver board;
    board.window().commands()->action(board::Command::Shapes)->trigger();
    const QPointer<board::PaletteButton> former = board.paletteButton(rectangle);
    QVERIFY(former);
    QMetaObject::invokeMethod(board.window().palettePanel(), &board::PalettePanel::showKinds, Qt::QueuedConnection);
    board.draw(rectangle, {500, 300}, {700, 420});
    QVERIFY(!former);
    QCOMPARE(board.page().objectCount(), 1);
}

/// A drag has an event loop of its own in a real window; offscreen it ends at once, and the button goes later.
void TestPalettePanel::buttonMayGoWhileItsShapeIsDraggedOut()
{
    BoardDriver board;
    board.window().commands()->action(board::Command::Shapes)->trigger();
    const QPointer<board::PaletteButton> dragged = board.paletteButton(rectangle);
    QVERIFY(dragged);
    const QPoint start = dragged->rect().center();
    QTest::mousePress(dragged, Qt::LeftButton, {}, start);
    const auto changeFiles = [&] {
        board.window().palettePanel()->showKinds();
        QVERIFY(!dragged);
        QVERIFY(board.window().findChild<QDrag *>());
        QTest::keyClick(&board.window(), Qt::Key_Escape);
    };
    QMetaObject::invokeMethod(&board.window(), changeFiles, Qt::QueuedConnection);
    const QPoint far = start + QPoint(2 * QApplication::startDragDistance(), 0);
    QMouseEvent move(QEvent::MouseMove, far, dragged->mapToGlobal(far), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(dragged, &move);
    QCoreApplication::processEvents();
    QVERIFY(!dragged);
    QCOMPARE(board.page().objectCount(), 0);
    board.draw(rectangle, {500, 300}, {700, 420});
    QCOMPARE(board.page().objectCount(), 1);
}

QTEST_MAIN(TestPalettePanel)
#include "test_palettepanel.moc"
