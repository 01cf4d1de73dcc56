#include <core/toolchoice.h>

#include <QtTest/QSignalSpy>
#include <QtTest/QtTest>

using board::Tool;
using board::ToolChoice;

class TestToolChoice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyOfferedToolsCanBeChosen();
    void aToolGivesWayToSelectingOnceItHasMadeSomething();
    void aKeptToolStays();
    void choosingAnotherToolKeepsNothing();
    void selectingIsNeverKept();
    void onlyChangesAreAnnounced();
};

void TestToolChoice::onlyOfferedToolsCanBeChosen()
{
    ToolChoice choice;
    QSignalSpy offers(&choice, &ToolChoice::offersChanged);
    QVERIFY(choice.isOffered(Tool::Select));
    choice.choose(Tool::Pen);
    QCOMPARE(choice.tool(), Tool::Select);
    choice.offer(Tool::Pen);
    choice.offer(Tool::Pen);
    QCOMPARE(offers.count(), 1);
    choice.choose(Tool::Pen);
    QCOMPARE(choice.tool(), Tool::Pen);
}

void TestToolChoice::aToolGivesWayToSelectingOnceItHasMadeSomething()
{
    ToolChoice choice;
    choice.offer(Tool::Line);
    choice.choose(Tool::Line);
    choice.finish();
    QCOMPARE(choice.tool(), Tool::Select);
}

void TestToolChoice::aKeptToolStays()
{
    ToolChoice choice;
    choice.offer(Tool::Line);
    choice.choose(Tool::Line);
    choice.keep(true);
    choice.finish();
    QCOMPARE(choice.tool(), Tool::Line);
    QVERIFY(choice.isKept());
    choice.keep(false);
    choice.finish();
    QCOMPARE(choice.tool(), Tool::Select);
}

void TestToolChoice::choosingAnotherToolKeepsNothing()
{
    ToolChoice choice;
    choice.offer(Tool::Line);
    choice.offer(Tool::Text);
    choice.choose(Tool::Line);
    choice.keep(true);
    choice.choose(Tool::Text);
    QCOMPARE(choice.tool(), Tool::Text);
    QVERIFY(!choice.isKept());
}

void TestToolChoice::selectingIsNeverKept()
{
    ToolChoice choice;
    choice.keep(true);
    QVERIFY(!choice.isKept());
}

void TestToolChoice::onlyChangesAreAnnounced()
{
    ToolChoice choice;
    choice.offer(Tool::Line);
    QSignalSpy changes(&choice, &ToolChoice::changed);
    choice.choose(Tool::Select);
    choice.finish();
    QCOMPARE(changes.count(), 0);
    choice.choose(Tool::Line);
    QCOMPARE(changes.count(), 1);
    choice.keep(true);
    QCOMPARE(changes.count(), 2);
    choice.choose(Tool::Line);
    QCOMPARE(changes.count(), 3);
}

QTEST_GUILESS_MAIN(TestToolChoice)
#include "test_toolchoice.moc"
