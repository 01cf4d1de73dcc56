#include <framework/cundoredo.h>
#include <framework/iframework.h>
#include <framework/ilocalize.h>

#include "framework/testobject.h"

#include <QtTest/QtTest>

namespace {

class CountingCommand : public CWbUndoCmd
{
public:
    explicit CountingCommand(int *counter, const QString &text = QStringLiteral("IDS_COUNT"))
        : m_counter(counter)
    {
        setText(text);
    }
    void redo() override { ++*m_counter; }
    void undo() override { --*m_counter; }

private:
    int *m_counter;
};

class Shouting : public ILocalize
{
public:
    QString text(const QString &key) const override { return key + QLatin1Char('!'); }
};

void push(CWbUndoCmd *command)
{
    CUndoRedo::GetInstance()->push(command);
}

} // namespace

class TestUndo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { undoStack()->clear(); }

    void thereIsOneStack();
    void pushCallsRedoOnce();
    void pushedCommandOutlivesThePush();
    void nullIsIgnored();
    void commandKnowsItsPlaceInTheHistory();
    void commandHasNoPlaceUntilTheHostSetsIt();
    void actionNameIsLocalized();

    void groupUndoesAndRedoesTogether();
    void emptyGroupLeavesNothing();
    void emptyGroupKeepsWhatCouldBeRedone();
    void groupsNest();
    void emptyInnerGroupLeavesNothing();
    void emptyOuterGroupIsOneStepWithItsInnerGroup();
    void endWithoutBeginIsIgnored();
};

void TestUndo::thereIsOneStack()
{
    QVERIFY(CUndoRedo::GetInstance());
    QCOMPARE(CUndoRedo::GetInstance(), CUndoRedo::GetInstance());
    QVERIFY(CUndoRedo::GetInstance()->stack());
}

void TestUndo::pushCallsRedoOnce()
{
    int counter = 0;
    push(new CountingCommand(&counter));
    QCOMPARE(counter, 1);
    undoStack()->undo();
    QCOMPARE(counter, 0);
    undoStack()->redo();
    QCOMPARE(counter, 1);
}

void TestUndo::pushedCommandOutlivesThePush()
{
    int counter = 0;
    auto *command = new CountingCommand(&counter);
    push(command);
    command->setText(QStringLiteral("IDS_LATER"));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_LATER")});
    QCOMPARE(undoStack()->command(0), command);
}

void TestUndo::nullIsIgnored()
{
    push(nullptr);
    QCOMPARE(undoStack()->count(), 0);
}

void TestUndo::commandKnowsItsPlaceInTheHistory()
{
    int counter = 0;
    auto *first = new CountingCommand(&counter);
    auto *second = new CountingCommand(&counter);
    push(first);
    push(second);
    QCOMPARE(first->getIdxCmd(), 0);
    QCOMPARE(second->getIdxCmd(), 1);
    undoStack()->undo();
    auto *other = new CountingCommand(&counter);
    push(other);
    QCOMPARE(other->getIdxCmd(), 1);
}

void TestUndo::commandHasNoPlaceUntilTheHostSetsIt()
{
    int counter = 0;
    CountingCommand command(&counter);
    QCOMPARE(command.getIdxCmd(), -1);
    command.setIdxCmd(7);
    QCOMPARE(command.getIdxCmd(), 7);
}

void TestUndo::actionNameIsLocalized()
{
    int counter = 0;
    const CountingCommand command(&counter);
    Shouting localize;
    QCOMPARE(command.getActionName(&localize), QStringLiteral("IDS_COUNT!"));
    QCOMPARE(command.getActionName(nullptr), QStringLiteral("IDS_COUNT"));
}

void TestUndo::groupUndoesAndRedoesTogether()
{
    int counter = 0;
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_GROUP"));
    push(new CountingCommand(&counter));
    push(new CountingCommand(&counter));
    GetFramework()->endUndoGroup();
    QCOMPARE(counter, 2);
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_GROUP")});
    QCOMPARE(undoStack()->command(0)->childCount(), 2);
    undoStack()->undo();
    QCOMPARE(counter, 0);
    undoStack()->redo();
    QCOMPARE(counter, 2);
}

void TestUndo::emptyGroupLeavesNothing()
{
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_GROUP"));
    GetFramework()->endUndoGroup();
    QCOMPARE(undoStack()->count(), 0);
    QVERIFY(!undoStack()->canUndo());
}

void TestUndo::emptyGroupKeepsWhatCouldBeRedone()
{
    int counter = 0;
    push(new CountingCommand(&counter));
    undoStack()->undo();
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_GROUP"));
    GetFramework()->endUndoGroup();
    QVERIFY(undoStack()->canRedo());
}

void TestUndo::groupsNest()
{
    int counter = 0;
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_OUTER"));
    push(new CountingCommand(&counter));
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_INNER"));
    push(new CountingCommand(&counter));
    GetFramework()->endUndoGroup();
    push(new CountingCommand(&counter));
    GetFramework()->endUndoGroup();
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_OUTER")});
    QCOMPARE(undoStack()->command(0)->childCount(), 3);
    undoStack()->undo();
    QCOMPARE(counter, 0);
}

void TestUndo::emptyInnerGroupLeavesNothing()
{
    int counter = 0;
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_OUTER"));
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_INNER"));
    GetFramework()->endUndoGroup();
    push(new CountingCommand(&counter));
    GetFramework()->endUndoGroup();
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_OUTER")});
    QCOMPARE(undoStack()->command(0)->childCount(), 1);
}

void TestUndo::emptyOuterGroupIsOneStepWithItsInnerGroup()
{
    int counter = 0;
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_OUTER"));
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_INNER"));
    push(new CountingCommand(&counter));
    GetFramework()->endUndoGroup();
    GetFramework()->endUndoGroup();
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_OUTER")});
    undoStack()->undo();
    QCOMPARE(counter, 0);
}

void TestUndo::endWithoutBeginIsIgnored()
{
    int counter = 0;
    GetFramework()->endUndoGroup();
    push(new CountingCommand(&counter));
    QCOMPARE(undoStack()->count(), 1);
    QVERIFY(undoStack()->canUndo());
}

QTEST_MAIN(TestUndo)
#include "test_undo.moc"
