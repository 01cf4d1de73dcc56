#include <pagehost/commands.h>
#include <pagehost/groups.h>
#include <pagehost/objectid.h>
#include <pagehost/selection.h>

#include "framework/editor.h"
#include "framework/files/filetest.h"

// Groups of objects on a page: the model, the commands, and clicks.

using namespace pagehost;

using Objects = QVector<CBaseObject *>;

Q_DECLARE_METATYPE(pagehost::StackingMove)

namespace {

/// A page with objects A to F side by side, bottom to top, 100 apart.
struct Row : Editor
{
    Row()
    {
        for (int i = 0; i < 6; ++i)
            objects.append(addPlain(page, QPointF(110 * i, 100)));
        undoStack()->clear();
    }
    Objects pick(const QString &letters) const
    {
        Objects picked;
        for (const QChar letter : letters)
            picked.append(objects.at(letter.toLatin1() - 'A'));
        return picked;
    }
    QString letters(const Objects &of) const
    {
        QString text;
        for (CBaseObject *object : of)
            text.append(QLatin1Char(char('A' + objects.indexOf(object))));
        return text;
    }
    QString order() const { return letters(page->objects()); }
    QString selection() const { return letters(page->selectedObjects()); }
    /// Nested groups in brackets, bottom to top: "A(B(CD))EF".
    QString tree(quint32 level = 0) const
    {
        QString text;
        const QVector<GroupUnit> units = page->grouping().unitsOf(level);
        for (const GroupUnit &unit : units)
            text += unit.group == 0 ? letters(unit.objects) : QStringLiteral("(%1)").arg(tree(unit.group));
        return text;
    }
    bool group(const QString &letters) { return groupObjects(page, pick(letters)); }
    QPointF middle(char letter) const { return QPointF(110 * (letter - 'A') + 50, 130); }
    void doubleClick(char letter)
    {
        click(middle(letter));
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, at(middle(letter)));
    }

    FileTestRegistry registry;
    Objects objects;
};

} // namespace

class TestGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void groupLiesBelowItsTopmostMember();
    void groupsNest();
    void oneObjectOrOneGroupIsNotGrouped();
    void ungroupingKeepsInnerGroups();
    void groupingIsOneStep();
    void groupOfOneMemberIsNone();
    void removedMembersComeBackIntoTheirGroup();
    void innerGroupEndsInTheOuterOne();
    void numbersOfMembersAreNotGivenAgain();
    void numberedObjectsKeepTheirNumbers();
    void groupsAreNormalized();
    void renumberedGroupsKeepTheirTree();
    void restackingMovesGroupsAsOne_data();
    void restackingMovesGroupsAsOne();
    void copiesAreGroupsOfTheirOwn();
    void copyOfPartOfAGroup();
    void clickSelectsTheOutermostGroup();
    void shiftClickAddsAndTakesAwayGroups();
    void doubleClicksGoIn();
    void selectingOutsideLeavesTheGroup();
    void leavingSelectsTheGroupThatWasLeft();
    void emptySelectionLeavesAllGroups();
    void draggedMemberMovesItsGroup();
    void enteredMemberMovesAlone();
    void undoneGroupIsLeft();
};

void TestGroups::groupLiesBelowItsTopmostMember()
{
    Row row;
    QVERIFY(row.group(QStringLiteral("AD")));
    QCOMPARE(row.order(), QStringLiteral("BCADEF"));
    QCOMPARE(row.tree(), QStringLiteral("BC(AD)EF"));
}

void TestGroups::groupsNest()
{
    Row row;
    row.group(QStringLiteral("AB"));
    QVERIFY(row.group(QStringLiteral("ABC")));
    QVERIFY(row.group(QStringLiteral("ABCF")));
    QCOMPARE(row.tree(), QStringLiteral("DE(((AB)C)F)"));
    const ObjectGroups groups = row.page->grouping().groups();
    QCOMPARE(groups.size(), 3);
    QCOMPARE(groups[0].parent, 0u);
    QCOMPARE(groups[1].parent, groups[0].number);
    QCOMPARE(groups[2].parent, groups[1].number);
    QCOMPARE(groups[0].members, QVector<quint32>{objectId(row.objects[5])});
}

void TestGroups::oneObjectOrOneGroupIsNotGrouped()
{
    Row row;
    QVERIFY(!row.group(QStringLiteral("A")));
    QVERIFY(!row.group(QString()));
    row.group(QStringLiteral("AB"));
    QVERIFY(!row.group(QStringLiteral("AB")));
    QVERIFY(!row.group(QStringLiteral("A")));
    QCOMPARE(row.tree(), QStringLiteral("(AB)CDEF"));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_GROUP")});
}

void TestGroups::ungroupingKeepsInnerGroups()
{
    Row row;
    row.group(QStringLiteral("AB"));
    row.group(QStringLiteral("ABC"));
    QVERIFY(hasGroup(*row.page, row.pick(QStringLiteral("ABC"))));
    QVERIFY(ungroupObjects(row.page, row.pick(QStringLiteral("ABC"))));
    QCOMPARE(row.tree(), QStringLiteral("(AB)CDEF"));
    QVERIFY(ungroupObjects(row.page, row.pick(QStringLiteral("ABC"))));
    QCOMPARE(row.tree(), QStringLiteral("ABCDEF"));
    QVERIFY(!hasGroup(*row.page, row.pick(QStringLiteral("ABC"))));
    QVERIFY(!ungroupObjects(row.page, row.pick(QStringLiteral("ABC"))));
    undoStack()->undo();
    undoStack()->undo();
    QCOMPARE(row.tree(), QStringLiteral("((AB)C)DEF"));
}

void TestGroups::groupingIsOneStep()
{
    Row row;
    row.group(QStringLiteral("AD"));
    undoStack()->undo();
    QCOMPARE(row.tree(), QStringLiteral("ABCDEF"));
    QCOMPARE(row.page->groups(), ObjectGroups());
    undoStack()->redo();
    QCOMPARE(row.tree(), QStringLiteral("BC(AD)EF"));
}

void TestGroups::groupOfOneMemberIsNone()
{
    Row row;
    row.group(QStringLiteral("AB"));
    removeObjects(row.page, row.pick(QStringLiteral("A")));
    QCOMPARE(row.tree(), QStringLiteral("BCDEF"));
    QVERIFY(row.page->grouping().groups().isEmpty());
    QVERIFY(row.group(QStringLiteral("BC")));
    QCOMPARE(row.tree(), QStringLiteral("(BC)DEF"));
}

void TestGroups::removedMembersComeBackIntoTheirGroup()
{
    Row row;
    row.group(QStringLiteral("ABC"));
    row.group(QStringLiteral("ABCD"));
    removeObjects(row.page, row.pick(QStringLiteral("BCD")));
    QCOMPARE(row.tree(), QStringLiteral("AEF"));
    row.group(QStringLiteral("AE"));
    undoStack()->undo();
    undoStack()->undo();
    QCOMPARE(row.tree(), QStringLiteral("((ABC)D)EF"));
}

void TestGroups::innerGroupEndsInTheOuterOne()
{
    Row row;
    row.group(QStringLiteral("AB"));
    row.group(QStringLiteral("ABC"));
    removeObjects(row.page, row.pick(QStringLiteral("A")));
    QCOMPARE(row.tree(), QStringLiteral("(BC)DEF"));
}

void TestGroups::numbersOfMembersAreNotGivenAgain()
{
    Row row;
    row.page->setGroups({{1, 0, QString(), {41, 42}}});
    QCOMPARE(ensureObjectId(row.objects[0], row.document), 43u);
}

void TestGroups::numberedObjectsKeepTheirNumbers()
{
    Row row;
    setObjectId(row.objects[1], 7);
    row.group(QStringLiteral("ABC"));
    QCOMPARE(objectId(row.objects[0]), 8u);
    QCOMPARE(objectId(row.objects[1]), 7u);
    QCOMPARE(objectId(row.objects[2]), 9u);
}

void TestGroups::groupsAreNormalized()
{
    const ObjectGroups said{{2, 3, QString(), {1, 2, 0}},
                            {3, 2, QString(), {2, 4}},
                            {3, 0, QString(), {5}},
                            {0, 0, QString(), {6}},
                            {4, 4, QString(), {7, 7}}};
    const ObjectGroups taken{{2, 0, QString(), {1, 2}}, {3, 2, QString(), {4}}, {4, 0, QString(), {7}}};
    QCOMPARE(normalized(said), taken);
}

void TestGroups::renumberedGroupsKeepTheirTree()
{
    const ObjectGroups groups{{1, 0, QStringLiteral("outer"), {1}}, {5, 1, QString(), {2, 3}}};
    const ObjectGroups expected{{8, 0, QStringLiteral("outer"), {1}}, {9, 8, QString(), {2, 3}}};
    QCOMPARE(renumbered(groups, 7), expected);
}

void TestGroups::restackingMovesGroupsAsOne_data()
{
    QTest::addColumn<QString>("moved");
    QTest::addColumn<StackingMove>("move");
    QTest::addColumn<QString>("tree");
    const QString start = QStringLiteral("A(BC)(DE)F");
    QTest::newRow("group to the front") << "BC" << StackingMove::ToFront << "A(DE)F(BC)";
    QTest::newRow("object over a group") << "A" << StackingMove::Forward << "(BC)A(DE)F";
    QTest::newRow("group over a group") << "BC" << StackingMove::Forward << "A(DE)(BC)F";
    QTest::newRow("object below a group") << "F" << StackingMove::Backward << "A(BC)F(DE)";
    QTest::newRow("group to the back") << "DE" << StackingMove::ToBack << "(DE)A(BC)F";
    QTest::newRow("member in its group") << "B" << StackingMove::ToFront << "A(CB)(DE)F";
    QTest::newRow("topmost member") << "C" << StackingMove::Forward << start;
}

void TestGroups::restackingMovesGroupsAsOne()
{
    QFETCH(QString, moved);
    QFETCH(StackingMove, move);
    Row row;
    row.group(QStringLiteral("BC"));
    row.group(QStringLiteral("DE"));
    restack(row.page, row.pick(moved), move);
    QTEST(row.tree(), "tree");
}

void TestGroups::copiesAreGroupsOfTheirOwn()
{
    Row row;
    row.group(QStringLiteral("AB"));
    row.group(QStringLiteral("ABC"));
    row.page->select(row.pick(QStringLiteral("ABC")));
    row.objects += duplicateSelection(row.page, &row.registry);
    QCOMPARE(row.tree(), QStringLiteral("((AB)C)DEF((GH)I)"));
    QVERIFY(objectId(row.objects[6]) != objectId(row.objects[0]));
    undoStack()->undo();
    QCOMPARE(row.page->grouping().groups().size(), 2);
    undoStack()->redo();
    QCOMPARE(row.tree(), QStringLiteral("((AB)C)DEF((GH)I)"));
}

void TestGroups::copyOfPartOfAGroup()
{
    Row row;
    row.group(QStringLiteral("AB"));
    row.group(QStringLiteral("ABC"));
    row.page->select(row.pick(QStringLiteral("AB")));
    row.objects += duplicateSelection(row.page, &row.registry);
    QCOMPARE(row.tree(), QStringLiteral("((AB)C)DEF(GH)"));
    row.page->select(row.pick(QStringLiteral("BC")));
    row.objects += duplicateSelection(row.page, &row.registry);
    QCOMPARE(row.tree(), QStringLiteral("((AB)C)DEF(GH)(IJ)"));
}

void TestGroups::clickSelectsTheOutermostGroup()
{
    Row row;
    row.group(QStringLiteral("AB"));
    row.group(QStringLiteral("ABC"));
    row.click(row.middle('B'));
    QCOMPARE(row.selection(), QStringLiteral("ABC"));
    row.click(row.middle('E'));
    QCOMPARE(row.selection(), QStringLiteral("E"));
}

void TestGroups::shiftClickAddsAndTakesAwayGroups()
{
    Row row;
    row.group(QStringLiteral("AB"));
    row.click(row.middle('F'));
    row.click(row.middle('A'), Qt::ShiftModifier);
    QCOMPARE(row.selection(), QStringLiteral("ABF"));
    row.click(row.middle('B'), Qt::ShiftModifier);
    QCOMPARE(row.selection(), QStringLiteral("F"));
}

void TestGroups::doubleClicksGoIn()
{
    Row row;
    row.group(QStringLiteral("AB"));
    row.group(QStringLiteral("ABC"));
    row.doubleClick('A');
    QCOMPARE(row.selection(), QStringLiteral("AB"));
    row.click(row.middle('C'));
    QCOMPARE(row.selection(), QStringLiteral("C"));
    row.doubleClick('B');
    QCOMPARE(row.selection(), QStringLiteral("B"));
    row.click(row.middle('A'));
    QCOMPARE(row.selection(), QStringLiteral("A"));
}

void TestGroups::selectingOutsideLeavesTheGroup()
{
    Row row;
    row.group(QStringLiteral("AB"));
    row.group(QStringLiteral("ABC"));
    row.doubleClick('A');
    row.doubleClick('A');
    const quint32 inner = row.page->enteredGroup();
    row.click(row.middle('C'));
    QCOMPARE(row.page->enteredGroup(), row.page->grouping().parentOf(inner));
    row.click(row.middle('D'));
    QCOMPARE(row.page->enteredGroup(), 0u);
    QCOMPARE(row.selection(), QStringLiteral("D"));
}

void TestGroups::leavingSelectsTheGroupThatWasLeft()
{
    Row row;
    row.group(QStringLiteral("AB"));
    row.group(QStringLiteral("ABC"));
    row.doubleClick('A');
    row.doubleClick('A');
    QVERIFY(row.page->leaveGroup());
    QCOMPARE(row.selection(), QStringLiteral("AB"));
    QVERIFY(row.page->leaveGroup());
    QCOMPARE(row.selection(), QStringLiteral("ABC"));
    QVERIFY(!row.page->leaveGroup());
}

void TestGroups::emptySelectionLeavesAllGroups()
{
    Row row;
    row.group(QStringLiteral("AB"));
    row.doubleClick('A');
    row.page->select({});
    QCOMPARE(row.page->enteredGroup(), 0u);
    row.click(row.middle('A'));
    QCOMPARE(row.selection(), QStringLiteral("AB"));
}

void TestGroups::draggedMemberMovesItsGroup()
{
    Row row;
    row.group(QStringLiteral("AB"));
    row.drag(row.middle('A'), row.middle('A') + QPointF(0, 200));
    QCOMPARE(row.objects[0]->getPos(), QPointF(0, 300));
    QCOMPARE(row.objects[1]->getPos(), QPointF(110, 300));
    QCOMPARE(row.objects[2]->getPos(), QPointF(220, 100));
    undoStack()->undo();
    QCOMPARE(row.objects[1]->getPos(), QPointF(110, 100));
}

void TestGroups::enteredMemberMovesAlone()
{
    Row row;
    row.group(QStringLiteral("AB"));
    row.doubleClick('A');
    row.drag(row.middle('A'), row.middle('A') + QPointF(0, 200));
    QCOMPARE(row.objects[0]->getPos(), QPointF(0, 300));
    QCOMPARE(row.objects[1]->getPos(), QPointF(110, 100));
}

void TestGroups::undoneGroupIsLeft()
{
    Row row;
    row.group(QStringLiteral("AB"));
    row.doubleClick('A');
    undoStack()->undo();
    QCOMPARE(row.page->enteredGroup(), 0u);
    QVERIFY(!row.page->leaveGroup());
    row.click(row.middle('B'));
    QCOMPARE(row.selection(), QStringLiteral("B"));
}

QTEST_MAIN(TestGroups)
#include "test_groups.moc"
