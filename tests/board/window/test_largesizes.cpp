// "Large buttons": every part of the window as large as fingers need it.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <lessons/lessonbar.h>
#include <look/sizes.h>
#include <look/theme.h>
#include <panels/colorbutton.h>
#include <panels/fields/numberfield.h>
#include <panels/historylist.h>
#include <panels/historypanel.h>
#include <panels/outlinepanel.h>
#include <panels/outlinetree.h>
#include <panels/pagepanel.h>
#include <panels/palettebutton.h>
#include <panels/palettepanel.h>
#include <window/drawer.h>
#include <window/mainwindow.h>
#include <window/stylebar.h>

#include <pagehost/pagescene.h>

#include <support/listed.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QToolButton>

using board::Command;
using boardtest::BoardDriver;

namespace {

constexpr double fontPoints = 9.5;

/// The board with a selected shape.
struct Desk : BoardDriver
{
    explicit Desk(bool large)
    {
        window().setLargeTools(large);
        draw(boardtest::rectangle, {500, 300}, {700, 420});
        QCoreApplication::processEvents();
    }
    board::StyleBar *styleBar() const
    {
        window().panel()->setOpen(false);
        QCoreApplication::processEvents();
        return window().findChild<board::StyleBar *>();
    }
    /// Brought to the front of the panel.
    const board::OutlineTree &outline() const
    {
        auto *panel = window().findChild<board::OutlinePanel *>();
        window().raisePanel(panel);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        return *panel->tree();
    }
    const board::HistoryList &historyList() const
    {
        auto *panel = window().findChild<board::HistoryPanel *>();
        window().raisePanel(panel);
        QCoreApplication::processEvents();
        return *panel->list();
    }
    QToolButton *buttonOf(const QWidget *part, Command command) const
    {
        const QList<QToolButton *> buttons = part->findChildren<QToolButton *>();
        for (QToolButton *button : buttons)
            if (button->defaultAction() == window().commands()->action(command))
                return button;
        return nullptr;
    }
};

#define VERIFY_NONE(texts)                                                                                         \
    do {                                                                                                           \
        const QStringList found = texts;                                                                           \
        QVERIFY2(found.isEmpty(), qPrintable(found.join('\n')));                                                   \
    } while (false)

/// Visible controls that are narrower or lower than this, as texts.
QStringList controlsBelow(int least, const QWidget &window)
{
    QStringList small;
    for (const auto *control : support::listed(window.findChildren<QWidget *>())) {
        const bool isControl = qobject_cast<const QAbstractButton *>(control) ||
                               qobject_cast<const QComboBox *>(control) ||
                               qobject_cast<const QAbstractSpinBox *>(control) ||
                               qobject_cast<const QLineEdit *>(control) || qobject_cast<const QSlider *>(control);
        // Fields are parts of boxes, which have their height.
        const bool isPart = qobject_cast<const QAbstractSpinBox *>(control->parentWidget()) ||
                            qobject_cast<const QComboBox *>(control->parentWidget()) ||
                            qobject_cast<const QLineEdit *>(control->parentWidget());
        if (isControl && !isPart && control->isVisible() && qMin(control->width(), control->height()) < least)
            small.append(QStringLiteral("%1 “%2” in %3: %4 × %5")
                             .arg(QLatin1String(control->metaObject()->className()), control->toolTip(),
                                  QLatin1String(control->parentWidget()->metaObject()->className()))
                             .arg(control->width())
                             .arg(control->height()));
    }
    small.removeDuplicates();
    return small;
}

void addSizeRows()
{
    QTest::addColumn<bool>("large");
    QTest::newRow("usual") << false;
    QTest::newRow("large") << true;
}

} // namespace

class TestLargeSizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void styleBar_data() { addSizeRows(); }
    void styleBar();
    void styleBarDeletesInsteadOfLocking();
    void panel_data() { addSizeRows(); }
    void panel();
    void palette_data() { addSizeRows(); }
    void palette();
    void pageStrip_data() { addSizeRows(); }
    void pageStrip();
    void lessonBar_data() { addSizeRows(); }
    void lessonBar();
    void menuRows_data() { addSizeRows(); }
    void menuRows();
    void rowsOfOutlineAndHistory_data() { addSizeRows(); }
    void rowsOfOutlineAndHistory();
    void rowsGrowWhileTheyAreShown();
    void lettersGrowAndShrinkAgain();
    void handlesOnThePage();
    void everyControlCanBeHit_data() { addSizeRows(); }
    void everyControlCanBeHit();
};

void TestLargeSizes::initTestCase()
{
    boardtest::useOwnFolders();
    // Without a desktop, letters are larger than any desktop's.
    QFont font = QApplication::font();
    font.setPointSizeF(fontPoints);
    QApplication::setFont(font);
    board::applyTheme(board::Theme::Light);
}

void TestLargeSizes::init()
{
    QSettings().clear();
    board::applyLargeSizes(false);
}

void TestLargeSizes::styleBar()
{
    QFETCH(bool, large);
    const Desk desk(large);
    const board::StyleBar *bar = desk.styleBar();
    QCOMPARE(bar->height(), large ? 64 : 40);
    const int side = large ? 56 : 32;
    QCOMPARE(desk.buttonOf(bar, Command::Duplicate)->size(), QSize(side, side));
    for (const board::ColorButton *button : support::listed(bar->findChildren<board::ColorButton *>()))
        QVERIFY(button->height() >= side);
}

void TestLargeSizes::styleBarDeletesInsteadOfLocking()
{
    const Desk desk(true);
    const board::StyleBar *bar = desk.styleBar();
    QVERIFY(!desk.buttonOf(bar, Command::Lock)->isVisible());
    QVERIFY(desk.buttonOf(bar, Command::Delete)->isVisible());
    desk.window().setLargeTools(false);
    QVERIFY(desk.buttonOf(bar, Command::Lock)->isVisible());
    QVERIFY(!desk.buttonOf(bar, Command::Delete)->isVisible());
}

void TestLargeSizes::panel()
{
    QFETCH(bool, large);
    const Desk desk(large);
    const board::Drawer *panel = desk.window().panel();
    QCOMPARE(panel->width(), large ? 360 : 296);
    QCoreApplication::processEvents();
    const auto fields = panel->findChildren<board::NumberField *>();
    QVERIFY(!fields.isEmpty());
    for (const board::NumberField *field : fields)
        if (field->isVisible())
            QVERIFY(field->height() >= (large ? 44 : 28));
}

void TestLargeSizes::palette()
{
    QFETCH(bool, large);
    const Desk desk(large);
    desk.window().commands()->action(Command::Shapes)->trigger();
    QCoreApplication::processEvents();
    QCOMPARE(desk.window().palette()->width(), large ? 440 : 320);
    const board::PaletteButton *button = desk.window().palettePanel()->buttons().first();
    QCOMPARE(button->sizeHint().width(), large ? 124 : 92);
    // Names of two lines stand below the picture.
    const int below = button->sizeHint().height() - button->iconSize().height();
    QVERIFY(below >= 2 * button->fontMetrics().lineSpacing());
    // Three beside each other.
    QSet<int> columns;
    for (const board::PaletteButton *one : support::listed(desk.window().palettePanel()->buttons()))
        columns.insert(one->x());
    QCOMPARE(columns.size(), 3);
}

void TestLargeSizes::pageStrip()
{
    QFETCH(bool, large);
    const Desk desk(large);
    desk.window().commands()->action(Command::PageStrip)->trigger();
    QCoreApplication::processEvents();
    QCOMPARE(desk.window().pages()->height(), large ? 144 : 104);
    QCOMPARE(desk.buttonOf(desk.window().pages(), Command::AddPage)->height(), large ? 44 : 32);
}

void TestLargeSizes::lessonBar()
{
    QFETCH(bool, large);
    const Desk desk(large);
    desk.window().commands()->action(Command::Record)->trigger();
    QCoreApplication::processEvents();
    QVERIFY(desk.window().lessonBar()->isVisible());
    QCOMPARE(desk.window().lessonBar()->height(), large ? 88 : 64);
    QCOMPARE(desk.buttonOf(desk.window().lessonBar(), Command::Record)->height(), large ? 44 : 32);
}

void TestLargeSizes::menuRows()
{
    QFETCH(bool, large);
    const Desk desk(large);
    QMenu *menu = desk.window().menus()->actions().first()->menu();
    menu->popup({0, 0});
    QCOMPARE(menu->actionGeometry(desk.window().commands()->action(Command::SaveBoard)).height(), large ? 48 : 28);
    menu->close();
}

void TestLargeSizes::rowsOfOutlineAndHistory()
{
    QFETCH(bool, large);
    const Desk desk(large);
    const int side = large ? 44 : 28;
    const board::OutlineTree &tree = desk.outline();
    QCOMPARE(tree.visualItemRect(tree.topLevelItem(0)).height(), side);
    QCOMPARE(tree.columnWidth(board::OutlineTree::EyeColumn), side);
    QCOMPARE(tree.columnWidth(board::OutlineTree::LockColumn), side);
    QCOMPARE(tree.indentation(), large ? 44 : 24);
    const board::HistoryList &history = desk.historyList();
    for (int row = 0; row < 2; ++row)
        QCOMPARE(history.visualRect(history.model()->index(row, 0)).height(), side);
}

void TestLargeSizes::rowsGrowWhileTheyAreShown()
{
    const Desk desk(false);
    const board::OutlineTree &tree = desk.outline();
    desk.window().setLargeTools(true);
    QCOMPARE(tree.visualItemRect(tree.topLevelItem(0)).height(), 44);
    const board::HistoryList &history = desk.historyList();
    desk.window().setLargeTools(false);
    QCOMPARE(history.visualRect(history.model()->index(0, 0)).height(), 28);
    QCOMPARE(tree.visualItemRect(tree.topLevelItem(0)).height(), 28);
}

void TestLargeSizes::lettersGrowAndShrinkAgain()
{
    const QFont usual = QApplication::font();
    const Desk desk(true);
    QCOMPARE(QFontInfo(desk.window().font()).pixelSize(), 18);
    desk.window().setLargeTools(false);
    QCOMPARE(desk.window().font(), usual);
}

void TestLargeSizes::handlesOnThePage()
{
    Desk desk(true);
    QVERIFY(desk.scene().hasLargeHandles());
    desk.window().setLargeTools(false);
    QVERIFY(!desk.scene().hasLargeHandles());
    // Pages that are shown later have them, too.
    desk.window().setLargeTools(true);
    desk.window().commands()->action(Command::AddPage)->trigger();
    QVERIFY(desk.scene().hasLargeHandles());
}

/// By mice and by fingers.
void TestLargeSizes::everyControlCanBeHit()
{
    QFETCH(bool, large);
    const int least = large ? 44 : 24;
    Desk desk(large);
    board::MainWindow &window = desk.window();
    const auto run = [&window](Command command) { window.commands()->action(command)->trigger(); };
    run(Command::PageStrip);
    run(Command::Record);
    run(Command::FindText);
    QCoreApplication::processEvents();
    const auto small = [&] {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        return controlsBelow(least, window);
    };
    VERIFY_NONE(small());
    window.raisePanel(window.findChild<board::OutlinePanel *>());
    VERIFY_NONE(small());
    window.raisePanel(window.findChild<board::HistoryPanel *>());
    VERIFY_NONE(small());
    run(Command::Shapes);
    VERIFY_NONE(small());
    window.panel()->setOpen(false);
    VERIFY_NONE(small());
    run(Command::Record);
    run(Command::PageStrip);
}

QTEST_MAIN(TestLargeSizes)
#include "test_largesizes.moc"
