// The bar at the top of the window.

#include <board/boarddriver.h>

#include <core/actions.h>
#include <look/theme.h>
#include <window/mainwindow.h>
#include <window/topbar.h>
#include <window/zoomcontrol.h>

#include <support/listed.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolButton>

using namespace boardtest;

class TestTopBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageNumberFollowsThePages();
    void savedStateFollowsTheBoard();
    void narrowBarFoldsInOrder();
    void presentStandsOut();
    void hintTellsHowTheWaitingShapeIsDrawn();
};

namespace {

QLabel *label(const BoardDriver &board, const QString &text)
{
    for (QLabel *candidate : support::listed(board.window().findChildren<QLabel *>()))
        if (candidate->text() == text && candidate->isVisible())
            return candidate;
    return nullptr;
}

/// The folds that can be seen, by name.
QStringList foldsOf(board::TopBar &bar)
{
    QStringList folds;
    if (!bar.menus()->isVisible())
        folds.append("menus");
    for (const QLabel *text : support::listed(bar.findChildren<QLabel *>()))
        if (text->text() == "Not saved" && !text->isVisible())
            folds.append("saved");
    for (const QToolButton *button : support::listed(bar.findChildren<QToolButton *>()))
        if (button->text() == "Record" && button->toolButtonStyle() == Qt::ToolButtonIconOnly)
            folds.append("commands");
    const auto *zoom = bar.findChild<board::ZoomControl *>();
    int steps = 0;
    for (const QToolButton *button : support::listed(zoom->findChildren<QToolButton *>()))
        steps += button->isVisible();
    if (steps == 1)
        folds.append("zoom");
    return folds;
}

} // namespace

void TestTopBar::pageNumberFollowsThePages()
{
    BoardDriver board;
    QVERIFY(label(board, "1 / 1"));
    board.window().actions()->addPage->trigger();
    QVERIFY(label(board, "2 / 2"));
    board.key(Qt::Key_PageUp);
    QVERIFY(label(board, "1 / 2"));
}

void TestTopBar::savedStateFollowsTheBoard()
{
    BoardDriver board;
    QVERIFY(!label(board, "Saved") && !label(board, "Not saved"));
    board.draw(rectangle, {500, 300}, {700, 420});
    QVERIFY(label(board, "Not saved"));
    board.key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!label(board, "Not saved"));
}

void TestTopBar::narrowBarFoldsInOrder()
{
    BoardDriver board;
    board::TopBar bar(&board.workspace(), board.window().actions(), &board.view());
    QAction record("Record");
    bar.addCommand(&record);
    for (const char *title : {"File", "Edit", "Arrange", "Page", "Lesson", "View", "Help"})
        bar.addMenu(title);
    bar.showSaved(false, true);
    bar.show();
    const QStringList order{"menus", "saved", "commands", "zoom"};
    QStringList before;
    for (int width = 1200; width >= bar.minimumSizeHint().width(); --width) {
        bar.resize(width, bar.height());
        const QStringList folds = foldsOf(bar);
        QCOMPARE(folds, QStringList(order.mid(0, folds.size())));
        QVERIFY(folds.size() >= before.size());
        before = folds;
    }
    QCOMPARE(before, order);
}

void TestTopBar::presentStandsOut()
{
    board::applyTheme(board::Theme::Light);
    BoardDriver board;
    const QList<QToolButton *> buttons = board.window().topBar()->findChildren<QToolButton *>();
    QStringList primary;
    for (QToolButton *button : buttons)
        if (button->grab().toImage().pixelColor(4, button->height() / 2) == board::themeColors().accent)
            primary.append(button->text());
    QCOMPARE(primary, QStringList{"Present"});
}

void TestTopBar::hintTellsHowTheWaitingShapeIsDrawn()
{
    BoardDriver board;
    board.pick(flask);
    QVERIFY(label(board, "Flask: drag to draw. Esc ends."));
    board.drag({500, 300}, {700, 420});
    QVERIFY(!label(board, "Flask: drag to draw. Esc ends."));
}

QTEST_MAIN(TestTopBar)
#include "test_topbar.moc"
