// Digits, + and − set the colour and the width of the tool in use.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <core/toolchoice.h>
#include <tools/toolsettings.h>
#include <window/mainwindow.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>

using namespace boardtest;
using board::Command;
using board::Tool;

namespace {

/// The pen is in use.
struct Writing
{
    BoardDriver board;
    board::ToolSettings &settings = *board.window().toolSettings();

    Writing() { board.window().tools()->choose(Tool::Pen); }
    bool isOn(Command command) const { return board.window().commands()->action(command)->isEnabled(); }
};

} // namespace

class TestToolKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void digitsChooseTheColour();
    void plusAndMinusChangeTheWidth();
    void keysConcernTheToolInUse();
};

void TestToolKeys::init()
{
    useOwnFolders();
    QSettings().clear();
}

void TestToolKeys::digitsChooseTheColour()
{
    Writing t;
    t.board.key(Qt::Key_3);
    QCOMPARE(t.settings.color(Tool::Pen), QColor(0xff2563cf));
    t.board.key(Qt::Key_6);
    QCOMPARE(t.settings.color(Tool::Pen), QColor(0xff7b3fa0));
}

void TestToolKeys::plusAndMinusChangeTheWidth()
{
    Writing t;
    t.settings.setWidth(Tool::Pen, 4);
    t.board.key(Qt::Key_Plus);
    QCOMPARE(t.settings.width(Tool::Pen), 8.0);
    t.board.key(Qt::Key_Minus);
    t.board.key(Qt::Key_Minus);
    QCOMPARE(t.settings.width(Tool::Pen), 2.0);
}

void TestToolKeys::keysConcernTheToolInUse()
{
    Writing t;
    const QColor pen = t.settings.color(Tool::Pen);
    t.board.window().tools()->choose(Tool::Highlighter);
    t.board.key(Qt::Key_2);
    QCOMPARE(t.settings.color(Tool::Highlighter), QColor(0xff8ce99a));
    QCOMPARE(t.settings.color(Tool::Pen), pen);
    t.board.window().tools()->choose(Tool::Eraser);
    QVERIFY(!t.isOn(Command::Color1) && t.isOn(Command::Wider));
    t.board.window().tools()->choose(Tool::Select);
    QVERIFY(!t.isOn(Command::Color1) && !t.isOn(Command::Wider));
}

QTEST_MAIN(TestToolKeys)
#include "test_toolkeys.moc"
