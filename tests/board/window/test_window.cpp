// The window: how large it opens, what it remembers, which colours it has.

#include <board/boarddriver.h>

#include <support/virtualtime.h>

#include <core/actions.h>
#include <core/notices.h>
#include <core/windowmemory.h>
#include <documents/documentcontroller.h>
#include <look/theme.h>
#include <panels/historypanel.h>
#include <panels/palettebutton.h>
#include <panels/palettepanel.h>
#include <window/mainwindow.h>

#include <pagehost/objectplugin.h>
#include <pagehost/page.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <stdexcept>

using namespace boardtest;

class TestWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void firstWindowFitsTheScreen();
    void windowShowsTwoShapesInARow();
    void windowOpensAsItWasLeft();
    void panelsOpenAsTheyWereLeft();
    void smallestWindowCutsNoPaletteButton_data();
    void smallestWindowCutsNoPaletteButton();
    void darkColoursAreRemembered();
    void shapeWhosePluginFailsIsToldOfAndTheBoardGoesOn();
};

namespace {

/// Promises a shape and throws when it is drawn.
class EmptyPromise : public pagehost::ObjectPlugin
{
public:
    QVector<pagehost::ObjectKind> objectKinds() const override
    {
        return {{QStringLiteral("promise"), QStringLiteral("IDS_PROMISE"), QString()}};
    }
    CBaseObject *createObject(const QString &) const override { throw std::runtime_error("nothing there"); }
    pagehost::TextTable texts(const QString &) const override
    {
        return {{QStringLiteral("IDS_PROMISE"), QStringLiteral("Promise")}};
    }
};

} // namespace

void TestWindow::init()
{
    useOwnFolders();
    QSettings().clear();
    board::applyTheme(board::Theme::Light);
}

/// The offscreen platform's screen is 800 by 800, smaller than the window would like to be.
void TestWindow::firstWindowFitsTheScreen()
{
    board::Workspace workspace("en");
    board::MainWindow window(&workspace);
    QVERIFY(window.width() > 800 && window.height() > 800);
    board::restoreWindow(&window);
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    QVERIFY2(window.minimumSizeHint().width() <= screen.width(), "panels and tools need more than that");
    QCOMPARE(window.size(), screen - QSize(16, 40));
}

void TestWindow::windowShowsTwoShapesInARow()
{
    BoardDriver board;
    const auto *palette = board.window().findChild<board::PalettePanel *>();
    const QWidget *shown = palette->findChild<QScrollArea *>()->viewport();
    const QPoint first = palette->buttons().at(0)->mapTo(shown, QPoint());
    const QPoint second = palette->buttons().at(1)->mapTo(shown, QPoint());
    QCOMPARE(second.y(), first.y());
    QVERIFY(second.x() > first.x());
    const int wanted = 2 * palette->buttons().at(0)->sizeHint().width() + board::smallGap;
    QVERIFY2(shown->width() >= wanted, qPrintable(QStringLiteral("%1 of %2").arg(shown->width()).arg(wanted)));
}

void TestWindow::windowOpensAsItWasLeft()
{
    board::Workspace workspace("en");
    {
        board::MainWindow window(&workspace);
        window.setGeometry(30, 60, 770, 620);
        window.show();
        board::rememberWindow(&window);
    }
    board::MainWindow window(&workspace);
    board::restoreWindow(&window);
    QCOMPARE(window.geometry(), QRect(30, 60, 770, 620));
}

void TestWindow::panelsOpenAsTheyWereLeft()
{
    board::Workspace workspace("en");
    const auto historyDock = [](board::MainWindow &window) {
        return qobject_cast<QDockWidget *>(window.findChild<board::HistoryPanel *>()->parentWidget());
    };
    {
        board::MainWindow window(&workspace);
        window.resize(760, 700);
        window.show();
        historyDock(window)->close();
        board::rememberWindow(&window);
    }
    board::MainWindow window(&workspace);
    board::restoreWindow(&window);
    window.show();
    QVERIFY(!historyDock(window)->isVisible());
    QVERIFY(!historyDock(window)->toggleViewAction()->isChecked());
}

void TestWindow::smallestWindowCutsNoPaletteButton_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << "en";
    QTest::newRow("German") << "de";
}

void TestWindow::smallestWindowCutsNoPaletteButton()
{
    QFETCH(QString, language);
    BoardDriver board(language);
    QMainWindow &window = board.window();
    window.resize(1, 1);
    support::deliverEvents();
    QVERIFY2(window.width() < 800, qPrintable(QString::number(window.width())));
    const QList<board::PaletteButton *> buttons = window.findChildren<board::PaletteButton *>();
    QVERIFY(buttons.size() > 20);
    for (const board::PaletteButton *button : buttons) {
        const QWidget *shown = window.findChild<board::PalettePanel *>()->findChild<QScrollArea *>()->viewport();
        const int left = button->mapTo(shown, QPoint(0, 0)).x();
        const QString place = QStringLiteral("%1: %2 to %3 of %4")
                                  .arg(button->accessibleName())
                                  .arg(left)
                                  .arg(left + button->width())
                                  .arg(shown->width());
        QVERIFY2(left >= 0 && left + button->width() <= shown->width(), qPrintable(place));
    }
}

void TestWindow::darkColoursAreRemembered()
{
    QVERIFY(!board::remembersDarkColors());
    BoardDriver board;
    board.window().actions()->darkColors->trigger();
    QVERIFY(board::remembersDarkColors());
    board.window().actions()->darkColors->trigger();
    QVERIFY(!board::remembersDarkColors());
}

void TestWindow::shapeWhosePluginFailsIsToldOfAndTheBoardGoesOn()
{
    EmptyPromise plugin;
    BoardDriver board;
    QVERIFY(board.workspace().registry().addPlugin(&plugin, "promise.so").loaded);
    board.window().beginCreation("promise");
    board.drag({300, 200}, {420, 280});
    support::deliverEvents();
    QCOMPARE(board.page().objectCount(), 0);
    QStringList notices;
    for (const QLabel *label : board.window().notices()->findChildren<QLabel *>())
        notices.append(label->text());
    const QString told = notices.join('\n');
    QVERIFY2(told.contains("promise.so could be used: createObject(\"promise\") threw an exception: nothing there"),
             qPrintable(told));
    QVERIFY(board.draw(rectangle, {300, 200}, {420, 280}));
    QCOMPARE(board.page().objectCount(), 1);
}

QTEST_MAIN(TestWindow)
#include "test_window.moc"
