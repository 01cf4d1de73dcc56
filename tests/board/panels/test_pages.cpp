// Several pages: thumbnails, adding, removing, moving, turning over.

#include <board/boarddriver.h>

#include <support/virtualtime.h>

#include <core/actions.h>
#include <page/pageview.h>
#include <panels/pagepanel.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QListWidget>

using namespace boardtest;

class TestPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thumbnailShowsThePage();
    void thumbnailFollowsChanges();
    void addAndRemoveAPage();
    void lastPageStays();
    void clickOnAThumbnailTurnsToThatPage();
    void escapeAfterAClickOnAThumbnailDeselects();
    void pageKeysTurnPages();
    void draggedThumbnailMovesThePage();
    void drawingGoesToTheCurrentPage();
    void undoTurnsToThePageThatItChanges();
};

static QListWidget *listOf(BoardDriver &board)
{
    return board.window().pages()->list();
}

static QImage thumbnail(BoardDriver &board, int row)
{
    board.window().pages()->thumbnails()->finish();
    return listOf(board)->item(row)->data(Qt::DecorationRole).value<QImage>();
}

/// The thumbnail's colour at a point of the page.
static QColor thumbnailColor(BoardDriver &board, int row, const QPointF &pos)
{
    const QImage picture = thumbnail(board, row);
    return picture.pixelColor(int(pos.x() * picture.width() / 1280), int(pos.y() * picture.height() / 720));
}

void TestPages::thumbnailShowsThePage()
{
    BoardDriver board;
    CBaseObject *shape = board.draw(rectangle, {400, 200}, {800, 500});
    pagehost::setFill({shape}, QColor(200, 30, 40));
    support::deliverEvents();
    QCOMPARE(thumbnail(board, 0).size(), QSize(119, 67));
    QCOMPARE(thumbnailColor(board, 0, {600, 350}), QColor(200, 30, 40));
    QCOMPARE(thumbnailColor(board, 0, {100, 100}), QColor(Qt::white));
}

void TestPages::thumbnailFollowsChanges()
{
    BoardDriver board;
    CBaseObject *shape = board.draw(rectangle, {400, 200}, {800, 500});
    pagehost::setFill({shape}, QColor(200, 30, 40));
    support::deliverEvents();
    QCOMPARE(thumbnailColor(board, 0, {600, 350}), QColor(200, 30, 40));
    board.drag({600, 350}, {1000, 350});
    support::deliverEvents();
    QCOMPARE(thumbnailColor(board, 0, {600, 350}), QColor(Qt::white));
    QCOMPARE(thumbnailColor(board, 0, {1000, 350}), QColor(200, 30, 40));
}

void TestPages::addAndRemoveAPage()
{
    BoardDriver board;
    pagehost::Document *document = board.workspace().document();
    pagehost::Page *first = &board.page();
    board.window().actions()->addPage->trigger();
    QCOMPARE(document->pageCount(), 2);
    QCOMPARE(listOf(board)->count(), 2);
    QCOMPARE(board.view().page(), document->page(1));
    board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(document->pages(), QVector<pagehost::Page *>{first});
    QCOMPARE(board.view().page(), first);
    board.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(listOf(board)->count(), 2);
    board.window().actions()->removePage->trigger();
    QCOMPARE(document->pages(), QVector<pagehost::Page *>{first});
    QCOMPARE(listOf(board)->count(), 1);
}

void TestPages::lastPageStays()
{
    BoardDriver board;
    QVERIFY(!board.window().actions()->removePage->isEnabled());
    board.window().actions()->removePage->trigger();
    QCOMPARE(board.workspace().document()->pageCount(), 1);
}

void TestPages::clickOnAThumbnailTurnsToThatPage()
{
    BoardDriver board;
    board.window().actions()->addPage->trigger();
    QListWidget *list = listOf(board);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualItemRect(list->item(0)).center());
    QCOMPARE(board.view().page(), board.workspace().document()->page(0));
}

void TestPages::escapeAfterAClickOnAThumbnailDeselects()
{
    BoardDriver board;
    board.key(Qt::Key_F12);
    board.draw(rectangle, {500, 300}, {700, 420});
    QCoreApplication::processEvents();
    QListWidget *list = listOf(board);
    QVERIFY(list->isVisible());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualItemRect(list->item(0)).center());
    QCOMPARE(board.selection().size(), 1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QCOMPARE(board.selection().size(), 0);
    board.key(Qt::Key_F12);
}

void TestPages::pageKeysTurnPages()
{
    BoardDriver board;
    board.window().actions()->addPage->trigger();
    board.key(Qt::Key_PageUp);
    QCOMPARE(board.workspace().document()->currentIndex(), 0);
    QCOMPARE(listOf(board)->currentRow(), 0);
    board.key(Qt::Key_PageDown);
    QCOMPARE(board.workspace().document()->currentIndex(), 1);
    QCOMPARE(listOf(board)->currentRow(), 1);
}

void TestPages::draggedThumbnailMovesThePage()
{
    BoardDriver board;
    pagehost::Document *document = board.workspace().document();
    board.window().actions()->addPage->trigger();
    board.window().actions()->addPage->trigger();
    const QVector<pagehost::Page *> before = document->pages();
    board.key(Qt::Key_F12);
    QCoreApplication::processEvents();
    QListWidget *list = listOf(board);
    QVERIFY(list->isVisible());
    const QRect last = list->visualItemRect(list->item(2));
    const QPoint behindAll(last.right() - 1, last.center().y());
    // Offscreen there is no drag and drop: there the list is told of its effect.
    if (!board.user().dragAndDrop(list->viewport(), list->visualItemRect(list->item(0)).center(), behindAll))
        QVERIFY(list->model()->moveRow(QModelIndex(), 0, QModelIndex(), 3));
    QCOMPARE(document->pages(), (QVector<pagehost::Page *>{before.at(1), before.at(2), before.at(0)}));
    board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(document->pages(), before);
    board.key(Qt::Key_F12);
}

void TestPages::drawingGoesToTheCurrentPage()
{
    BoardDriver board;
    board.window().actions()->addPage->trigger();
    board.draw(rectangle, {500, 300}, {700, 420});
    QCOMPARE(board.workspace().document()->page(0)->objectCount(), 0);
    QCOMPARE(board.workspace().document()->page(1)->objectCount(), 1);
}

void TestPages::undoTurnsToThePageThatItChanges()
{
    BoardDriver board;
    board.draw(rectangle, {500, 300}, {700, 420});
    board.window().actions()->addPage->trigger();
    board.workspace().document()->setCurrentIndex(0);
    board.key(Qt::Key_Right);
    board.workspace().document()->setCurrentIndex(1);
    board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(board.workspace().document()->currentIndex(), 0);
    QCOMPARE(board.placeOf(board.only()), QRectF(500, 300, 200, 120));
}

QTEST_MAIN(TestPages)
#include "test_pages.moc"
