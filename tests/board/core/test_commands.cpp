// The list of commands: their keys, who gets them while something is typed, and the changes that users make.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <core/toolchoice.h>
#include <core/toolcommands.h>
#include <panels/pagepanel.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>

#include <support/listed.h>

#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>

using namespace boardtest;
using board::Command;
using board::Commands;
using board::Tool;

using Keys = QList<QKeySequence>;

Q_DECLARE_METATYPE(board::Command)

namespace {

QVector<Command> allCommands()
{
    QVector<Command> all;
    for (int i = 0; i < board::commandCount; ++i)
        all.append(static_cast<Command>(i));
    return all;
}

/// Commands of a window that does nothing else.
struct Alone
{
    board::Workspace workspace{"en"};
    QWidget window;
    Commands commands{&workspace, &window};

    bool isOn(Command command) const { return commands.action(command)->isEnabled(); }
};

} // namespace

class TestCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyCommandHasItsRowAndAName();
    void keysOfTheList_data();
    void keysOfTheList();
    void noTwoCommandsShareAKey();
    void commandThatNobodyPerformsIsNotShown();
    void commandDoesItsWork();
    void keyOfACommandActsInTheWindow();
    void commandsThatChangeTheBoardAreOffWhileALessonIsShown();
    void toolTipHasNameAndKey();
    void lettersChooseToolsOnThePage();
    void lettersAreTypedIntoFields();
    void lettersSearchLists();
    void switchTurnsLettersOff();
    void toolThatIsNotOfferedHasNoCommand();
    void toolInUseIsChecked();
    void letterQKeepsTheTool();
    void changedKeysActAndAreRemembered();
    void keyIsTakenFromWhoHadIt();
    void keyOfALessonIsTakenOnlyFromWhatActsThen();
    void oneCommandIsReset();
    void allKeysAreReset();
    void settingsWithoutSenseGiveNoKeys();
    void manualListsEveryKey();
};

void TestCommands::init()
{
    useOwnFolders();
    QSettings().clear();
}

void TestCommands::everyCommandHasItsRowAndAName()
{
    const Alone board;
    QStringList ids;
    for (const Command command : support::listed(allCommands())) {
        QCOMPARE(board::factsOf(command).command, command);
        const char *textKey = board::factsOf(command).textKey;
        QVERIFY2(board.workspace.localizer().hasText("en", textKey), textKey);
        QVERIFY(!board.commands.name(command).contains('&'));
        ids.append(board::factsOf(command).id);
    }
    QCOMPARE(ids.removeDuplicates(), 0);
}

void TestCommands::keysOfTheList_data()
{
    QTest::addColumn<Command>("command");
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("pen") << Command::PenTool << QStringList{"P"};
    QTest::newRow("turn") << Command::TurnRight << QStringList{"Ctrl+R"};
    QTest::newRow("mirror") << Command::MirrorAcross << QStringList{"Ctrl+M"};
    QTest::newRow("forward") << Command::BringForward << QStringList{"Ctrl+]", "Ctrl+PgUp"};
    QTest::newRow("present") << Command::Present << QStringList{"F5", "F11"};
    // The platform's Ctrl+D for deleting belongs to duplicating.
    QTest::newRow("delete") << Command::Delete << QStringList{"Del", "Backspace"};
    QTest::newRow("nothing") << Command::SelectNothing << QStringList{"Ctrl+Shift+A"};
    // The platform's keys come after those of the list.
    QTest::newRow("copy") << Command::Copy << QStringList{"Ctrl+C", "Ctrl+Ins"};
    QTest::newRow("about") << Command::About << QStringList{};
}

void TestCommands::keysOfTheList()
{
    QFETCH(Command, command);
    QFETCH(QStringList, keys);
    QStringList found;
    for (const QKeySequence &key : support::listed(board::defaultKeys(command)))
        found.append(key.toString(QKeySequence::PortableText));
    QCOMPARE(found, keys);
}

void TestCommands::noTwoCommandsShareAKey()
{
    const Alone board;
    int keys = 0;
    for (const Command command : support::listed(allCommands())) {
        for (const QKeySequence &key : support::listed(board.commands.keys(command))) {
            QVERIFY2(!board.commands.otherWithKey(command, key), qPrintable(key.toString()));
            ++keys;
        }
    }
    QVERIFY(keys > 60);
}

void TestCommands::commandThatNobodyPerformsIsNotShown()
{
    Alone board;
    QVERIFY(board.commands.performed().isEmpty());
    QVERIFY(!board.commands.action(Command::Grid)->isVisible() && !board.isOn(Command::Grid));
    board.commands.perform(Command::Grid);
    QCOMPARE(board.commands.performed(), QVector<Command>{Command::Grid});
    QVERIFY(board.commands.action(Command::Grid)->isVisible() && board.isOn(Command::Grid));
}

void TestCommands::commandDoesItsWork()
{
    Alone board;
    int done = 0;
    {
        const QObject receiver;
        board.commands.perform(Command::Cut, &receiver, [&] { ++done; });
        board.commands.action(Command::Cut)->trigger();
        QCOMPARE(done, 1);
    }
    board.commands.action(Command::Cut)->trigger();
    QCOMPARE(done, 1);
}

void TestCommands::keyOfACommandActsInTheWindow()
{
    BoardDriver board;
    QSignalSpy grids(board.window().commands()->perform(Command::Shapes), &QAction::triggered);
    board.key(Qt::Key_S);
    QCOMPARE(grids.count(), 1);
}

void TestCommands::commandsThatChangeTheBoardAreOffWhileALessonIsShown()
{
    Alone board;
    for (const Command command : {Command::Undo, Command::Redo, Command::AddPage, Command::ZoomIn})
        board.commands.perform(command);
    board.commands.action(Command::Redo)->setEnabled(false);
    board.commands.setEditingBlocked(true);
    board.commands.action(Command::Undo)->setEnabled(true);
    QVERIFY(!board.isOn(Command::Undo) && !board.isOn(Command::AddPage) && board.isOn(Command::ZoomIn));
    board.commands.setEditingBlocked(false);
    QVERIFY(board.isOn(Command::Undo) && board.isOn(Command::AddPage));
    QVERIFY(!board.isOn(Command::Redo));
}

void TestCommands::toolTipHasNameAndKey()
{
    Alone board;
    QCOMPARE(board.commands.action(Command::Duplicate)->toolTip(), QString("Duplicate (Ctrl+D)"));
    board.commands.setKeys(Command::Duplicate, {QKeySequence("F3")});
    QCOMPARE(board.commands.action(Command::Duplicate)->toolTip(), QString("Duplicate (F3)"));
    board.commands.setKeys(Command::Duplicate, {});
    QCOMPARE(board.commands.action(Command::Duplicate)->toolTip(), QString("Duplicate"));
}

void TestCommands::lettersChooseToolsOnThePage()
{
    BoardDriver board;
    board.window().tools()->offer(Tool::Pen);
    board.key(Qt::Key_P);
    QCOMPARE(board.window().tools()->tool(), Tool::Pen);
    board.key(Qt::Key_V);
    QCOMPARE(board.window().tools()->tool(), Tool::Select);
}

void TestCommands::lettersAreTypedIntoFields()
{
    BoardDriver board;
    board.window().tools()->offer(Tool::Pen);
    QLineEdit field(&board.window());
    field.show();
    board.window().activateWindow();
    field.setFocus();
    QTest::keyClicks(&field, "Pp1+");
    QCOMPARE(field.text(), QString("Pp1+"));
    QCOMPARE(board.window().tools()->tool(), Tool::Select);
}

void TestCommands::lettersSearchLists()
{
    BoardDriver board;
    board.window().tools()->offer(Tool::Pen);
    QListWidget list(&board.window());
    list.addItems({"Angle", "Prism"});
    list.show();
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_P);
    QCOMPARE(list.currentRow(), 1);
    QCOMPARE(board.window().tools()->tool(), Tool::Select);
}

void TestCommands::switchTurnsLettersOff()
{
    BoardDriver board;
    board.window().tools()->offer(Tool::Pen);
    board.window().commands()->setLettersAct(false);
    board.key(Qt::Key_P);
    QCOMPARE(board.window().tools()->tool(), Tool::Select);
    QCOMPARE(board.window().commands()->action(Command::PenTool)->toolTip(), QString("Pen"));
    board.draw(rectangle, {500, 300}, {700, 420});
    board.key(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(board.page().objectCount(), 2);
    QVERIFY(!Alone().commands.lettersAct());
    board.window().commands()->setLettersAct(true);
    board.key(Qt::Key_P);
    QCOMPARE(board.window().tools()->tool(), Tool::Pen);
    QVERIFY(Alone().commands.lettersAct());
}

void TestCommands::toolThatIsNotOfferedHasNoCommand()
{
    Alone board;
    board::ToolChoice tools;
    const board::ToolCommands toolCommands(&board.commands, &tools, nullptr);
    QVERIFY(board.commands.isPerformed(Command::SelectTool));
    QVERIFY(!board.commands.isPerformed(Command::EraserTool));
    tools.offer(Tool::Eraser);
    QVERIFY(board.commands.isPerformed(Command::EraserTool));
}

void TestCommands::toolInUseIsChecked()
{
    Alone board;
    board::ToolChoice tools;
    const board::ToolCommands toolCommands(&board.commands, &tools, nullptr);
    tools.offer(Tool::Eraser);
    const auto isChecked = [&](Command command) { return board.commands.action(command)->isChecked(); };
    QVERIFY(isChecked(Command::SelectTool) && !isChecked(Command::EraserTool));
    tools.choose(Tool::Eraser);
    QVERIFY(!isChecked(Command::SelectTool) && isChecked(Command::EraserTool));
    board.commands.action(Command::EraserTool)->trigger();
    QVERIFY(isChecked(Command::EraserTool));
    tools.finish();
    QVERIFY(isChecked(Command::SelectTool) && !isChecked(Command::EraserTool));
}

void TestCommands::letterQKeepsTheTool()
{
    BoardDriver board;
    board.window().tools()->offer(Tool::Pen);
    board.key(Qt::Key_Q);
    QVERIFY(!board.window().tools()->isKept());
    board.key(Qt::Key_P);
    board.key(Qt::Key_Q);
    QVERIFY(board.window().tools()->isKept());
    board.key(Qt::Key_Q);
    QVERIFY(!board.window().tools()->isKept());
}

void TestCommands::changedKeysActAndAreRemembered()
{
    {
        BoardDriver board;
        board.draw(rectangle, {500, 300}, {700, 420});
        board.window().commands()->setKeys(Command::Duplicate, {QKeySequence("Ctrl+J")});
        board.key(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(board.page().objectCount(), 1);
        board.key(Qt::Key_J, Qt::ControlModifier);
        QCOMPARE(board.page().objectCount(), 2);
    }
    const Alone later;
    QCOMPARE(later.commands.keys(Command::Duplicate), Keys{QKeySequence("Ctrl+J")});
    QCOMPARE(later.commands.keys(Command::Undo), board::defaultKeys(Command::Undo));
}

void TestCommands::keyIsTakenFromWhoHadIt()
{
    Alone board;
    QCOMPARE(board.commands.otherWithKey(Command::Duplicate, QKeySequence("Ctrl+Y")).value(), Command::Redo);
    board.commands.setKeys(Command::Duplicate, {QKeySequence("Ctrl+Y")});
    QVERIFY(!board.commands.keys(Command::Redo).contains(QKeySequence("Ctrl+Y")));
    QVERIFY(board.commands.keys(Command::Redo).contains(QKeySequence("Ctrl+Shift+Z")));
    QVERIFY(!Alone().commands.keys(Command::Redo).contains(QKeySequence("Ctrl+Y")));
}

/// While a lesson is shown, nothing changes the board.
void TestCommands::keyOfALessonIsTakenOnlyFromWhatActsThen()
{
    Alone board;
    const auto holder = [&](const char *key) { return board.commands.otherWithKey(Command::FasterLesson, {key}); };
    QVERIFY(!holder("P"));
    QVERIFY(!holder("Ctrl+D"));
    QVERIFY(!holder("F2"));
    QCOMPARE(holder("F9").value(), Command::Record);
    QCOMPARE(holder("Left").value(), Command::GestureBack);
    QVERIFY(!board.commands.otherWithKey(Command::PenTool, QKeySequence("Left")));
    QCOMPARE(board.commands.otherWithKey(Command::Record, QKeySequence("Left")).value(), Command::GestureBack);
}

void TestCommands::oneCommandIsReset()
{
    Alone board;
    board.commands.setKeys(Command::Redo, {QKeySequence("Ctrl+D")});
    board.commands.resetKeys(Command::Duplicate);
    QCOMPARE(board.commands.keys(Command::Duplicate), Keys{QKeySequence("Ctrl+D")});
    QCOMPARE(board.commands.keys(Command::Redo), Keys());
    QCOMPARE(Alone().commands.keys(Command::Redo), Keys());
}

void TestCommands::allKeysAreReset()
{
    Alone board;
    board.commands.setKeys(Command::Redo, {QKeySequence("Ctrl+D")});
    board.commands.setKeys(Command::Cut, {});
    QSignalSpy changes(&board.commands, &Commands::keysChanged);
    board.commands.resetAllKeys();
    QCOMPARE(changes.count(), 1);
    for (const Command command : support::listed(allCommands()))
        QCOMPARE(board.commands.keys(command), board::defaultKeys(command));
    QVERIFY(QSettings().allKeys().filter("keys/of").isEmpty());
}

void TestCommands::settingsWithoutSenseGiveNoKeys()
{
    QSettings().setValue("keys/of/cut", QStringList{"no key at all", "", "F3"});
    QCOMPARE(Alone().commands.keys(Command::Cut), Keys{QKeySequence("F3")});
}

void TestCommands::manualListsEveryKey()
{
    QFile file(QStringLiteral(PROJECT_DIR "/docs/board.md"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    const Alone board;
    for (const Command command : support::listed(allCommands())) {
        const QString keys = QString(board::factsOf(command).keys).replace(' ', ", ");
        if (keys.isEmpty())
            continue;
        const QString line =
            QStringLiteral("| %1 | %2 |").arg(board.commands.name(command).remove(QChar(0x2026)), keys);
        QVERIFY2(lines.contains(line), qPrintable(line));
    }
}

QTEST_MAIN(TestCommands)
#include "test_commands.moc"
