// Groups by hand: keys, clicks, rubber bands, the clipboard, pages that are duplicated.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/objectid.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QUndoStack>

using namespace boardtest;
using board::Command;

using Objects = QVector<CBaseObject *>;

namespace {

/// Three rectangles; the first two are a group, and nothing is selected.
struct Grouped
{
    BoardDriver board;
    Objects shapes{board.draw(rectangle, {100, 100}, {200, 160}), board.draw(rectangle, {250, 300}, {450, 420}),
                   board.draw(rectangle, {700, 200}, {760, 240})};

    Grouped()
    {
        board.page().select(pick({0, 1}));
        board.key(Qt::Key_G, Qt::ControlModifier);
        board.page().select({});
        board.history().clear();
    }
    Objects pick(const QVector<int> &indices) const
    {
        Objects picked;
        for (const int index : indices)
            picked.append(shapes.at(index));
        return picked;
    }
    QPointF middle(int index) const { return board.placeOf(shapes.at(index)).center(); }
    void doubleClick(int index)
    {
        board.doubleClick(middle(index));
        board.release(middle(index));
    }
    QAction *action(Command command) const { return board.window().commands()->action(command); }
    int groupCount() const { return board.page().grouping().groups().size(); }
};

} // namespace

class TestGrouping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysGroupAndUngroup();
    void groupingNeedsTwo();
    void clickTakesTheGroup();
    void doubleClickGoesInAndEscapeComesOut();
    void doubleClickInAGroupWritesNoText();
    void bandTakesWholeGroups();
    void rightClickTakesTheGroup();
    void deletedGroupComesBackInOneStep();
    void arrowsMoveTheGroup();
    void groupIsAlignedAsOne();
    void groupsHaveEqualGapsAsOne();
    void lockKeyLocksTheGroup();
    void orderKeysPassTheGroup();
    void pastedGroupIsAGroup();
    void duplicatedGroupIsAGroup();
    void duplicatedPageHasGroupsPaperAndConnectors();
};

void TestGrouping::keysGroupAndUngroup()
{
    BoardDriver board;
    board.draw(rectangle, {100, 100}, {200, 160});
    board.draw(rectangle, {250, 300}, {450, 420});
    board.key(Qt::Key_A, Qt::ControlModifier);
    board.history().clear();
    board.key(Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(board.page().grouping().groups().size(), 1);
    QCOMPARE(board.history().undoText(), QStringLiteral("IDS_UNDO_GROUP"));
    board.key(Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(board.page().grouping().groups().isEmpty());
    QCOMPARE(board.history().count(), 2);
    board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(board.page().grouping().groups().size(), 1);
    board.key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(board.page().grouping().groups().isEmpty());
}

void TestGrouping::groupingNeedsTwo()
{
    Grouped t;
    QVERIFY(!t.action(Command::Group)->isEnabled());
    QVERIFY(!t.action(Command::Ungroup)->isEnabled());
    t.board.click(t.middle(2));
    QVERIFY(!t.action(Command::Group)->isEnabled());
    QVERIFY(!t.action(Command::Ungroup)->isEnabled());
    t.board.click(t.middle(0));
    QVERIFY(!t.action(Command::Group)->isEnabled());
    QVERIFY(t.action(Command::Ungroup)->isEnabled());
    t.board.click(t.middle(2), Qt::ShiftModifier);
    QVERIFY(t.action(Command::Group)->isEnabled());
}

void TestGrouping::clickTakesTheGroup()
{
    Grouped t;
    t.board.click(t.middle(1));
    QCOMPARE(t.board.selection(), t.pick({0, 1}));
}

void TestGrouping::doubleClickGoesInAndEscapeComesOut()
{
    Grouped t;
    t.doubleClick(1);
    QCOMPARE(t.board.selection(), t.pick({1}));
    t.board.click(t.middle(0));
    QCOMPARE(t.board.selection(), t.pick({0}));
    t.board.key(Qt::Key_Escape);
    QCOMPARE(t.board.selection(), t.pick({0, 1}));
    t.board.key(Qt::Key_Escape);
    QCOMPARE(t.board.selection(), Objects{});
    QCOMPARE(t.board.history().count(), 0);
}

void TestGrouping::doubleClickInAGroupWritesNoText()
{
    BoardDriver board;
    board.draw(rectangle, {100, 100}, {200, 160});
    const QPointF cell(530, 315);
    board.draw(QStringLiteral("shapes.table"), {500, 300}, {700, 400});
    board.key(Qt::Key_A, Qt::ControlModifier);
    board.key(Qt::Key_G, Qt::ControlModifier);
    board.doubleClick(cell);
    board.release(cell);
    QVERIFY(!board.view().isWriting());
    board.doubleClick(cell);
    board.release(cell);
    QVERIFY(board.view().isWriting());
}

void TestGrouping::bandTakesWholeGroups()
{
    Grouped t;
    t.board.drag({80, 80}, {220, 180});
    QCOMPARE(t.board.selection(), t.pick({0, 1}));
}

void TestGrouping::rightClickTakesTheGroup()
{
    Grouped t;
    const QPoint pos = t.board.view().mapFromScene(t.middle(0));
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, t.board.view().viewport()->mapToGlobal(pos));
    QApplication::sendEvent(t.board.view().viewport(), &event);
    QCOMPARE(t.board.selection(), t.pick({0, 1}));
}

void TestGrouping::deletedGroupComesBackInOneStep()
{
    Grouped t;
    t.board.click(t.middle(0));
    t.board.key(Qt::Key_Delete);
    QCOMPARE(t.board.page().objects(), t.pick({2}));
    QCOMPARE(t.board.history().count(), 1);
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    t.board.click(t.middle(2));
    t.board.click(t.middle(1));
    QCOMPARE(t.board.selection(), t.pick({0, 1}));
}

void TestGrouping::arrowsMoveTheGroup()
{
    Grouped t;
    t.board.click(t.middle(0));
    const QPointF way = [&] {
        const QPointF before = t.shapes[0]->getPos();
        t.board.key(Qt::Key_Right);
        return t.shapes[0]->getPos() - before;
    }();
    QVERIFY(way.x() > 0);
    QCOMPARE(t.board.placeOf(t.shapes[1]), QRectF(250, 300, 200, 120).translated(way));
    QCOMPARE(t.board.placeOf(t.shapes[2]), QRectF(700, 200, 60, 40));
}

void TestGrouping::groupIsAlignedAsOne()
{
    Grouped t;
    t.board.key(Qt::Key_A, Qt::ControlModifier);
    t.action(Command::AlignRight)->trigger();
    // The box around the group ends at 450, that around all at 760.
    QCOMPARE(t.board.placeOf(t.shapes[0]), QRectF(410, 100, 100, 60));
    QCOMPARE(t.board.placeOf(t.shapes[1]), QRectF(560, 300, 200, 120));
    QCOMPARE(t.board.placeOf(t.shapes[2]), QRectF(700, 200, 60, 40));
    QCOMPARE(t.board.history().count(), 1);
}

void TestGrouping::groupsHaveEqualGapsAsOne()
{
    Grouped t;
    CBaseObject *last = t.board.draw(rectangle, {1000, 100}, {1100, 160});
    t.board.key(Qt::Key_A, Qt::ControlModifier);
    t.action(Command::DistributeAcross)->trigger();
    // The group ends at 450, the last one begins at 1000, and the one of 60 between them comes to the middle.
    QCOMPARE(t.board.placeOf(t.shapes[0]), QRectF(100, 100, 100, 60));
    QCOMPARE(t.board.placeOf(t.shapes[1]), QRectF(250, 300, 200, 120));
    QCOMPARE(t.board.placeOf(t.shapes[2]), QRectF(695, 200, 60, 40));
    QCOMPARE(t.board.placeOf(last), QRectF(1000, 100, 100, 60));
}

void TestGrouping::lockKeyLocksTheGroup()
{
    Grouped t;
    t.board.click(t.middle(0));
    t.board.key(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(t.shapes[0]->isLocked() && t.shapes[1]->isLocked());
    QVERIFY(!t.shapes[2]->isLocked());
}

void TestGrouping::orderKeysPassTheGroup()
{
    Grouped t;
    t.board.click(t.middle(2));
    t.board.key(Qt::Key_BracketLeft, Qt::ControlModifier);
    QCOMPARE(t.board.page().objects(), t.pick({2, 0, 1}));
    t.board.click(t.middle(0));
    t.board.key(Qt::Key_BracketLeft, Qt::ControlModifier);
    QCOMPARE(t.board.page().objects(), t.pick({0, 1, 2}));
}

void TestGrouping::pastedGroupIsAGroup()
{
    Grouped t;
    t.board.click(t.middle(0));
    t.board.key(Qt::Key_C, Qt::ControlModifier);
    t.board.key(Qt::Key_V, Qt::ControlModifier);
    const Objects pasted = t.board.selection();
    QCOMPARE(pasted.size(), 2);
    QCOMPARE(t.groupCount(), 2);
    QCOMPARE(t.board.page().unitOf(pasted[0]), pasted);
    QCOMPARE(t.board.history().count(), 1);
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.groupCount(), 1);
}

void TestGrouping::duplicatedGroupIsAGroup()
{
    Grouped t;
    t.board.click(t.middle(0));
    t.board.key(Qt::Key_D, Qt::ControlModifier);
    const Objects copies = t.board.selection();
    QCOMPARE(t.board.page().unitOf(copies.first()), copies);
    QCOMPARE(t.groupCount(), 2);
    QCOMPARE(t.board.history().count(), 1);
}

void TestGrouping::duplicatedPageHasGroupsPaperAndConnectors()
{
    Grouped t;
    t.action(Command::SquaredPaper)->trigger();
    const CPageBgProp paper = t.board.page().background();
    t.board.key(Qt::Key_C);
    t.board.drag(t.middle(1), t.middle(2));
    const QRectF line = t.board.placeOf(t.board.page().objects().last());
    t.board.key(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
    const Objects copies = t.board.page().objects();
    QCOMPARE(copies.size(), 4);
    QVERIFY(t.board.page().background() == paper);
    QCOMPARE(t.board.page().unitOf(copies[0]), copies.mid(0, 2));
    QCOMPARE(t.board.placeOf(copies[3]), line);
    // The connector of the copy follows the copies, the other one doesn't.
    const CBaseObject *original = t.board.workspace().document()->page(0)->objects().last();
    pagehost::moveObjects({copies[2]}, {0, 200});
    QVERIFY(t.board.placeOf(copies[3]).bottom() > line.bottom());
    QCOMPARE(t.board.placeOf(original), line);
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.board.workspace().document()->pageCount(), 1);
}

QTEST_MAIN(TestGrouping)
#include "test_grouping.moc"
