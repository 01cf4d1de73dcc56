// The mirrored window in a language of longer texts: everything that can be read is translated, and has room.

#include <board/boarddriver.h>
#include <board/longtexts.h>

#include <application/demopages.h>
#include <commands/finderpopup.h>
#include <commands/keysdialog.h>
#include <core/commands.h>
#include <core/texts.h>
#include <core/toolchoice.h>
#include <core/workspace.h>
#include <exporting/exportdialog.h>
#include <lessons/lessoncontroller.h>
#include <look/theme.h>
#include <page/labeleditor.h>
#include <page/labelwriting.h>
#include <page/pageview.h>
#include <panels/historypanel.h>
#include <panels/outlinepanel.h>
#include <panels/properties/propertypanel.h>
#include <panels/settings/settingspanel.h>
#include <window/dock.h>
#include <window/drawer.h>
#include <window/mainwindow.h>
#include <window/typingbar.h>

#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>

#include <memory>

using board::Command;

/// QCOMPARE() cuts long texts off.
#define VERIFY_NONE(faults)                                                                                        \
    do {                                                                                                           \
        const QString found = faults;                                                                              \
        QVERIFY2(found.isEmpty(), qPrintable(found));                                                              \
    } while (false)

Q_DECLARE_METATYPE(board::Tool)

namespace {

constexpr QSize windowSize(1366, 768);
/// Without a desktop, letters are larger than any desktop's.
constexpr double fontPoints = 9.5;
/// Parts that have just opened are laid out first, then fill themselves, and scroll where they are too high.
constexpr int turnsOfLayouts = 6;

} // namespace

class TestLongTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void bars();
    void toolsWithTheirShelf_data();
    void toolsWithTheirShelf();
    void selectedShapes();
    void textsThatAreWritten();
    void outlineAndHistory();
    void settingsOfThePage();
    void palette();
    void pagesAndLessons();
    void findingAndMessages();
    void dialogs();
    void languagesOfTheBoardHaveRoom_data();
    void languagesOfTheBoardHaveRoom();

private:
    void makeWorkspace(const QString &language);
    void openWindow();
    QString faults() const
    {
        for (int turn = 0; turn < turnsOfLayouts; ++turn)
            QCoreApplication::processEvents();
        return boardtest::untranslatedTexts(*m_window) + boardtest::crampedTexts(*m_window);
    }
    void trigger(Command command) const { m_window->commands()->action(command)->trigger(); }

    std::unique_ptr<board::Workspace> m_workspace;
    std::unique_ptr<board::MainWindow> m_window;
};

void TestLongTexts::initTestCase()
{
    boardtest::useOwnFolders();
    board::applyTheme(board::Theme::Light);
    QFont font = QApplication::font();
    font.setPointSizeF(fontPoints);
    QApplication::setFont(font);
    QApplication::setLayoutDirection(Qt::RightToLeft);
}

void TestLongTexts::init()
{
    QSettings().clear();
    makeWorkspace("en");
    boardtest::lengthenTexts(*m_workspace);
    openWindow();
}

void TestLongTexts::makeWorkspace(const QString &language)
{
    m_window.reset();
    m_workspace.reset();
    m_workspace = std::make_unique<board::Workspace>(language);
    m_workspace->loadPlugins({QStringLiteral(SHAPE_FOLDER)});
}

void TestLongTexts::openWindow()
{
    board::fillWithDemo(*m_workspace);
    m_window = std::make_unique<board::MainWindow>(m_workspace.get());
    m_window->resize(windowSize);
    m_window->show();
    QCoreApplication::processEvents();
    QCOMPARE(m_window->size(), windowSize);
}

void TestLongTexts::cleanup()
{
    m_window.reset();
    m_workspace.reset();
}

void TestLongTexts::cleanupTestCase()
{
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestLongTexts::bars()
{
    VERIFY_NONE(faults());
    // Of a board that has been changed.
    trigger(Command::AddPage);
    VERIFY_NONE(faults());
}

void TestLongTexts::toolsWithTheirShelf_data()
{
    QTest::addColumn<board::Tool>("tool");
    QTest::newRow("pen") << board::Tool::Pen;
    QTest::newRow("highlighter") << board::Tool::Highlighter;
    QTest::newRow("eraser") << board::Tool::Eraser;
    QTest::newRow("text") << board::Tool::Text;
    QTest::newRow("line") << board::Tool::Line;
    QTest::newRow("connector") << board::Tool::Connector;
}

void TestLongTexts::toolsWithTheirShelf()
{
    QFETCH(board::Tool, tool);
    m_window->tools()->choose(tool);
    VERIFY_NONE(faults());
}

void TestLongTexts::selectedShapes()
{
    const pagehost::Page *page = m_workspace->document()->currentPage();
    const QVector<CBaseObject *> objects = page->objects();
    QVERIFY(objects.size() > 40);
    m_window->panel()->setPinned(true);
    m_window->raisePanel(m_window->properties());
    for (CBaseObject *object : objects) {
        m_workspace->document()->currentPage()->select({object});
        VERIFY_NONE(faults());
    }
    // The bar at the selection.
    m_window->panel()->setOpen(false);
    VERIFY_NONE(faults());
}

void TestLongTexts::textsThatAreWritten()
{
    trigger(Command::AddPage);
    m_window->tools()->choose(board::Tool::Text);
    QTest::mouseClick(m_window->view()->viewport(), Qt::LeftButton, {},
                      m_window->view()->viewport()->rect().center());
    const auto *bar = m_window->findChild<board::TypingBar *>();
    QVERIFY(bar && bar->isVisible());
    VERIFY_NONE(boardtest::untranslatedTexts(*bar));
    board::LabelEditor *editor = m_window->view()->writing()->editor();
    QTest::keyClicks(editor, QStringLiteral("1"));
    QTest::keyClick(editor, Qt::Key_Escape);
    QVERIFY(!bar->isVisible());
    m_window->panel()->setPinned(true);
    m_window->raisePanel(m_window->settings());
    VERIFY_NONE(faults());
}

void TestLongTexts::outlineAndHistory()
{
    m_window->panel()->setPinned(true);
    m_window->raisePanel(m_window->findChild<board::OutlinePanel *>());
    VERIFY_NONE(faults());
    m_window->raisePanel(m_window->findChild<board::HistoryPanel *>());
    VERIFY_NONE(faults());
}

void TestLongTexts::settingsOfThePage()
{
    m_window->panel()->setPinned(true);
    m_window->raisePanel(m_window->settings());
    VERIFY_NONE(faults());
}

void TestLongTexts::palette()
{
    trigger(Command::Shapes);
    VERIFY_NONE(faults());
}

void TestLongTexts::pagesAndLessons()
{
    trigger(Command::PageStrip);
    m_window->lessons()->recordOrStop();
    VERIFY_NONE(faults());
    m_window->lessons()->recordOrStop();
    m_window->lessons()->playOrPause();
    VERIFY_NONE(faults());
}

void TestLongTexts::findingAndMessages()
{
    trigger(Command::ReplaceText);
    Q_EMIT m_window->dock()->touched();
    QCoreApplication::processEvents();
    VERIFY_NONE(faults());
}

void TestLongTexts::dialogs()
{
    trigger(Command::ShowKeys);
    trigger(Command::Export);
    trigger(Command::FindCommand);
    QCoreApplication::processEvents();
    const auto *keys = m_window->findChild<board::KeysDialog *>();
    const auto *exporting = m_window->findChild<board::ExportDialog *>();
    QVERIFY(keys && keys->isVisible() && exporting && exporting->isVisible());
    for (const QWidget *dialog : {static_cast<const QWidget *>(keys), static_cast<const QWidget *>(exporting)}) {
        VERIFY_NONE(boardtest::untranslatedTexts(*dialog));
        VERIFY_NONE(boardtest::crampedTexts(*dialog));
    }
    QVERIFY(m_window->findChild<board::FinderPopup *>()->isVisible());
    VERIFY_NONE(faults());
}

void TestLongTexts::languagesOfTheBoardHaveRoom_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &code : support::listed(board::boardLanguages()))
        QTest::newRow(qPrintable(code)) << code;
}

void TestLongTexts::languagesOfTheBoardHaveRoom()
{
    QFETCH(QString, language);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    makeWorkspace(language);
    openWindow();
    QApplication::setLayoutDirection(Qt::RightToLeft);
    const auto cramped = [this] {
        faults();
        return boardtest::crampedTexts(*m_window);
    };
    trigger(Command::PageStrip);
    trigger(Command::Shapes);
    VERIFY_NONE(cramped());
    m_window->panel()->setPinned(true);
    m_window->raisePanel(m_window->properties());
    VERIFY_NONE(cramped());
    const QVector<CBaseObject *> objects = m_workspace->document()->currentPage()->objects();
    for (CBaseObject *object : objects) {
        m_workspace->document()->currentPage()->select({object});
        VERIFY_NONE(cramped());
    }
}

QTEST_MAIN(TestLongTexts)
#include "test_longtexts.moc"
