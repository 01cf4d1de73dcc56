// Colours and widths of the tool in use, beside the dock.

#include <board/boarddriver.h>

#include <core/toolchoice.h>
#include <page/pageview.h>
#include <tools/toolsettings.h>
#include <window/drawer.h>
#include <window/mainwindow.h>
#include <window/shelf.h>
#include <window/shelfbutton.h>

#include <support/listed.h>

#include <QtCore/QSet>
#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QMenu>

using namespace boardtest;
using board::Tool;

class TestShelf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shelfIsThereForToolsWithSomethingToChoose();
    void pressOnAColourGivesItToThePen();
    void pressOnAWidthGivesItToThePen();
    void sizesOfLettersAreShownAsLetters();
    void variantsOfTheEraserAreInItsMenu();
    void shelfCoversNoPartOfThePage_data();
    void shelfCoversNoPartOfThePage();
    void shelfStandsBetweenToolsAndPage();
    void shapesThatOpenTakeItsPlace();
    void coloursHaveNames();
};

namespace {

board::Shelf *shelf(const BoardDriver &board)
{
    return board.window().findChild<board::Shelf *>();
}

board::ShelfButton *button(const BoardDriver &board, const QString &name)
{
    for (board::ShelfButton *candidate : support::listed(shelf(board)->findChildren<board::ShelfButton *>()))
        if (candidate->accessibleName() == name && candidate->isVisible())
            return candidate;
    return nullptr;
}

} // namespace

void TestShelf::init()
{
    useOwnFolders();
    QSettings().clear();
}

void TestShelf::shelfIsThereForToolsWithSomethingToChoose()
{
    BoardDriver board;
    QVERIFY(!shelf(board)->isVisible());
    board.key(Qt::Key_P);
    QVERIFY(shelf(board)->isVisible());
    QVERIFY(button(board, "Black")->isChecked());
    QVERIFY(button(board, "Width 4")->isChecked());
    board.key(Qt::Key_V);
    QVERIFY(!shelf(board)->isVisible());
}

void TestShelf::pressOnAColourGivesItToThePen()
{
    BoardDriver board;
    board.key(Qt::Key_P);
    QTest::mouseClick(button(board, "Red"), Qt::LeftButton);
    QCOMPARE(board.window().toolSettings()->color(Tool::Pen), QColor(0xc9, 0x25, 0x2d));
    QVERIFY(button(board, "Red")->isChecked());
    QVERIFY(!button(board, "Black")->isChecked());
}

void TestShelf::pressOnAWidthGivesItToThePen()
{
    BoardDriver board;
    board.key(Qt::Key_P);
    QTest::mouseClick(button(board, "Width 14"), Qt::LeftButton);
    QCOMPARE(board.window().toolSettings()->width(Tool::Pen), 14.0);
    QVERIFY(button(board, "Width 14")->isChecked());
    QVERIFY(!button(board, "Width 4")->isChecked());
}

void TestShelf::sizesOfLettersAreShownAsLetters()
{
    BoardDriver board;
    board.key(Qt::Key_T);
    const board::ShelfButton *usual = button(board, "Letters of size 24");
    QVERIFY(usual && usual->isChecked());
    QVERIFY(!button(board, "Width 24"));
    const auto inkOf = [&board](const char *name) {
        const QImage drawn = button(board, name)->grab().toImage();
        QRegion ink;
        for (int y = 0; y < drawn.height(); ++y)
            for (int x = 0; x < drawn.width(); ++x)
                if (drawn.pixelColor(x, y).lightness() < 128)
                    ink |= QRect(x, y, 1, 1);
        return ink;
    };
    const QRegion large = inkOf("Letters of size 60");
    const int middling = inkOf("Letters of size 36").boundingRect().height();
    QVERIFY(large.boundingRect().height() > middling);
    QVERIFY(middling > inkOf("Letters of size 16").boundingRect().height());
    // It stands on two feet.
    const QRect box = large.boundingRect();
    QCOMPARE((large & QRect(box.left(), box.bottom(), box.width(), 1)).rectCount(), 2);
}

void TestShelf::variantsOfTheEraserAreInItsMenu()
{
    BoardDriver board;
    board.key(Qt::Key_E);
    QMenu *menu = nullptr;
    for (const QToolButton *candidate : support::listed(shelf(board)->findChildren<QToolButton *>()))
        if (candidate->menu() && candidate->isVisible())
            menu = candidate->menu();
    QVERIFY(menu);
    QCOMPARE(menu->actions().size(), 2);
    QVERIFY(menu->actions().constFirst()->isChecked());
    menu->actions().constLast()->trigger();
    QCOMPARE(board.window().toolSettings()->variant(Tool::Eraser), 1);
}

void TestShelf::shelfCoversNoPartOfThePage_data()
{
    QTest::addColumn<Qt::Edge>("edge");
    QTest::newRow("left") << Qt::LeftEdge;
    QTest::newRow("right") << Qt::RightEdge;
    QTest::newRow("top") << Qt::TopEdge;
    QTest::newRow("bottom") << Qt::BottomEdge;
}

void TestShelf::shelfCoversNoPartOfThePage()
{
    QFETCH(Qt::Edge, edge);
    BoardDriver board;
    board.window().setDockEdge(edge);
    board.key(Qt::Key_P);
    QCoreApplication::processEvents();
    QVERIFY(!shelf(board)->geometry().intersects(board.view().viewport()->geometry()));
    QVERIFY(board.view().rect().contains(shelf(board)->geometry()));
}

void TestShelf::shelfStandsBetweenToolsAndPage()
{
    BoardDriver board;
    board.key(Qt::Key_P);
    board.view().fitPage();
    QCOMPARE(shelf(board)->x(), 4);
    const QPoint page = board.view().viewport()->mapTo(&board.view(), board.view().mapFromScene(QPointF(0, 0)));
    QVERIFY(page.x() >= shelf(board)->geometry().right() + 1 + 4);
}

void TestShelf::shapesThatOpenTakeItsPlace()
{
    BoardDriver board;
    board.key(Qt::Key_P);
    board::Drawer *palette = board.window().palette();
    palette->setOpen(true);
    QVERIFY(!shelf(board)->isVisible());
    palette->setOpen(false);
    QVERIFY(shelf(board)->isVisible());
    // Beside pinned shapes there is room for it.
    palette->setOpen(true);
    palette->setPinned(true);
    QVERIFY(shelf(board)->isVisible());
}

void TestShelf::coloursHaveNames()
{
    BoardDriver board;
    for (const Tool tool : {Tool::Pen, Tool::Highlighter}) {
        board.window().tools()->choose(tool);
        QStringList names;
        for (const auto *one : support::listed(shelf(board)->findChildren<board::ShelfButton *>()))
            if (one->isVisible() && !one->accessibleName().startsWith("Width"))
                names.append(one->accessibleName());
        QCOMPARE(names.size(), 6);
        QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), 6);
        QVERIFY(!names.contains(QString()));
    }
}

QTEST_MAIN(TestShelf)
#include "test_shelf.moc"
