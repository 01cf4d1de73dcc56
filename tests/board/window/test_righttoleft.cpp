// The window for readers of texts that run to the left: all is mirrored but the page, time and numbers.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <core/windowmemory.h>
#include <lessons/lessonbar.h>
#include <lessons/timeline.h>
#include <look/icons.h>
#include <page/pageview.h>
#include <panels/fields/captionedrow.h>
#include <panels/foldtitle.h>
#include <window/dock.h>
#include <window/drawer.h>
#include <window/mainwindow.h>
#include <window/stylebar.h>
#include <window/topbar.h>

#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolButton>

#include <memory>

using namespace boardtest;

namespace {

constexpr QSize pictureSize(24, 24);
constexpr int mostShades = 24;

QImage pictureOf(board::Icon which)
{
    return board::icon(which).pixmap(pictureSize).toImage();
}

/// Smooth edges may differ by a shade.
bool areAlike(const QImage &one, const QImage &other)
{
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            if (qAbs(one.pixelColor(x, y).alpha() - other.pixelColor(x, y).alpha()) > mostShades)
                return false;
    return one.size() == other.size();
}

} // namespace

class TestRightToLeft : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void toolsLieAtTheRight();
    void anEdgeThatNobodyChoseFollowsTheLanguage();
    void anEdgeThatIsChosenStays_data();
    void anEdgeThatIsChosenStays();
    void theBarBeginsAtTheRight();
    void menusHaveTheirRoom();
    void titlesOfThePanelBeginAtTheRight();
    void captionsBeginAtTheRightInAnyLetters();
    void thePanelOpensAtTheLeft();
    void shapesOpenBesideTheTools();
    void theBarAtTheSelectionBeginsAtTheRight();
    void thePageIsNotMirrored();
    void timeRunsToTheRight();
    void arrowsOfButtonsAreMirrored();

private:
    int leftOf(const QWidget *widget) const { return widget->mapTo(&m_board->window(), QPoint()).x(); }

    std::unique_ptr<BoardDriver> m_board;
};

void TestRightToLeft::init()
{
    useOwnFolders();
    QSettings().clear();
    QApplication::setLayoutDirection(Qt::RightToLeft);
    m_board = std::make_unique<BoardDriver>();
}

void TestRightToLeft::cleanup()
{
    m_board.reset();
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestRightToLeft::toolsLieAtTheRight()
{
    const board::Dock *dock = m_board->window().dock();
    QCOMPARE(dock->edge(), Qt::RightEdge);
    QCOMPARE(leftOf(dock) + dock->width(), m_board->window().width());
    QVERIFY(leftOf(&m_board->view()) + m_board->view().width() <= leftOf(dock));
}

void TestRightToLeft::anEdgeThatNobodyChoseFollowsTheLanguage()
{
    m_board.reset();
    QApplication::setLayoutDirection(Qt::LeftToRight);
    m_board = std::make_unique<BoardDriver>();
    QCOMPARE(m_board->window().dock()->edge(), Qt::LeftEdge);
    m_board.reset();
    QApplication::setLayoutDirection(Qt::RightToLeft);
    m_board = std::make_unique<BoardDriver>();
    QCOMPARE(m_board->window().dock()->edge(), Qt::RightEdge);
}

void TestRightToLeft::anEdgeThatIsChosenStays_data()
{
    QTest::addColumn<Qt::Edge>("edge");
    QTest::newRow("left") << Qt::LeftEdge;
    QTest::newRow("right") << Qt::RightEdge;
    QTest::newRow("top") << Qt::TopEdge;
    QTest::newRow("bottom") << Qt::BottomEdge;
}

void TestRightToLeft::anEdgeThatIsChosenStays()
{
    QFETCH(Qt::Edge, edge);
    m_board->window().setDockEdge(edge);
    QCOMPARE(board::rememberedDockEdge(), edge);
    QCoreApplication::processEvents();
    const board::Dock *dock = m_board->window().dock();
    if (edge == Qt::LeftEdge)
        QCOMPARE(leftOf(dock), 0);
    if (edge == Qt::RightEdge)
        QCOMPARE(leftOf(dock) + dock->width(), m_board->window().width());
}

void TestRightToLeft::theBarBeginsAtTheRight()
{
    QVERIFY(leftOf(m_board->window().menus()) > m_board->window().width() / 2);
    QVERIFY(leftOf(m_board->window().topBar()->pages()) < m_board->window().width() / 2);
}

void TestRightToLeft::menusHaveTheirRoom()
{
    QMenuBar *menus = m_board->window().menus();
    QVERIFY(menus->isVisible());
    int end = menus->width();
    const QList<QAction *> titles = menus->actions();
    for (QAction *title : titles) {
        const QRect place = menus->actionGeometry(title);
        QVERIFY2(menus->rect().contains(place), qPrintable(title->text()));
        // One after the other.
        QVERIFY(place.right() < end);
        end = place.left();
    }
    // The button of what has no room.
    for (const QToolButton *button : support::listed(menus->findChildren<QToolButton *>()))
        QVERIFY(!button->isVisible());
}

void TestRightToLeft::titlesOfThePanelBeginAtTheRight()
{
    const auto *title = m_board->window().panel()->findChild<board::FoldTitle *>();
    QVERIFY(title);
    QCOMPARE(title->textPlace().right(), title->width() - 1);
    QCOMPARE(title->arrowPlace().left(), 0);
    QVERIFY(!title->textPlace().intersects(title->arrowPlace()));
}

void TestRightToLeft::captionsBeginAtTheRightInAnyLetters()
{
    const board::CaptionedRow row("Width", new QWidget);
    const auto *caption = row.findChild<QLabel *>();
    QCOMPARE(caption->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight | Qt::AlignAbsolute);
}

void TestRightToLeft::thePanelOpensAtTheLeft()
{
    board::Drawer *panel = m_board->window().panel();
    QVERIFY(panel->isPinned());
    QCOMPARE(leftOf(panel), 0);
    panel->setPinned(false);
    QCOMPARE(leftOf(panel), 0);
}

void TestRightToLeft::shapesOpenBesideTheTools()
{
    m_board->window().commands()->action(board::Command::Shapes)->trigger();
    const board::Drawer *palette = m_board->window().palette();
    QVERIFY(palette->isOpen());
    QCOMPARE(leftOf(palette) + palette->width() + 8, leftOf(m_board->window().dock()));
}

void TestRightToLeft::theBarAtTheSelectionBeginsAtTheRight()
{
    m_board->window().panel()->setOpen(false);
    m_board->draw(rectangle, {500, 300}, {700, 420});
    QCoreApplication::processEvents();
    auto *bar = m_board->view().findChild<board::StyleBar *>();
    QVERIFY(bar->isVisible());
    const auto buttons = bar->findChildren<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(buttons.first()->accessibleName(), QString("Fill colour"));
    QVERIFY(leftOf(buttons.first()) > leftOf(buttons.last()));
}

void TestRightToLeft::thePageIsNotMirrored()
{
    const CBaseObject *box = m_board->draw(rectangle, {500, 300}, {700, 420});
    QCOMPARE(m_board->placeOf(box), QRectF(500, 300, 200, 120));
    const QPoint left = m_board->view().mapFromScene(QPointF(500, 300));
    QCOMPARE(m_board->view().mapFromScene(QPointF(700, 300)) - left, QPoint(200, 0));
    m_board->key(Qt::Key_Right);
    QCOMPARE(m_board->placeOf(box), QRectF(508, 300, 200, 120));
    // The whole page is seen.
    m_board->view().fitPage();
    const QRect page = m_board->view().mapFromScene(m_board->page().rect()).boundingRect();
    QVERIFY(m_board->view().viewport()->rect().contains(page));
}

void TestRightToLeft::timeRunsToTheRight()
{
    QCOMPARE(m_board->window().lessonBar()->timeLine()->layoutDirection(), Qt::LeftToRight);
    QCOMPARE(m_board->window().lessonBar()->layoutDirection(), Qt::RightToLeft);
}

void TestRightToLeft::arrowsOfButtonsAreMirrored()
{
    const QImage mirrored = pictureOf(board::Icon::Previous);
    const QImage other = pictureOf(board::Icon::Lock);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QVERIFY(mirrored != pictureOf(board::Icon::Previous));
    QVERIFY(areAlike(mirrored, pictureOf(board::Icon::Previous).mirrored(true, false)));
    QCOMPARE(other, pictureOf(board::Icon::Lock));
}

QTEST_MAIN(TestRightToLeft)
#include "test_righttoleft.moc"
