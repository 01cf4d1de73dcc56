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

#include <functional>

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
    /// Also of a shape that is turned.
    QPointF centre(int index) const
    {
        return shapes.at(index)->mapToScene(shapes.at(index)->getClientRect().center());
    }
    QPointF middle(int index) const { return board.placeOf(shapes.at(index)).center(); }
    void doubleClick(int index) { board.doubleClick(middle(index)); }
    QAction *action(Command command) const { return board.window().commands()->action(command); }
    int groupCount() const { return board.page().grouping().groups().size(); }
};

} // namespace

Q_DECLARE_METATYPE(std::function<void(Grouped &)>)

class TestGrouping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysGroupAndUngroup();
    void groupsAreNestedAndOpenedLevelByLevel();
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
    void controlClickTakesTheGroupBelow();
    void quickControlClicksStayOutsideOfTheGroup();
    void keyTurnsTheGroupAboutItsMiddle();
    void keyMirrorsTheGroupAsOne();
    void mirroredGroupHasTurnedMembersMirrored();
    void groupTurnsAsOneBesideOthersThatTurnAlone();
    void lockedMemberStaysWhenTheGroupTurns();
    void connectorOfATurnedGroupFollowsIt();
    void memberOfAnEnteredGroupTurnsAlone();
    void sameSizeScalesTheGroupAsOne();
    void sameSizeTakesTheSizeOfTheGroup();
    void copyMadeInAGroupBelongsToIt_data();
    void copyMadeInAGroupBelongsToIt();
    void groupCopiedInAGroupIsAGroupInIt();
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

void TestGrouping::groupsAreNestedAndOpenedLevelByLevel()
{
    Grouped t;
    t.board.click(t.middle(1));
    t.board.click(t.middle(2), Qt::ShiftModifier);
    t.board.key(Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(t.groupCount(), 2);
    t.board.key(Qt::Key_Escape);
    t.board.click(t.middle(0));
    QCOMPARE(t.board.selection(), t.shapes);
    t.doubleClick(0);
    QCOMPARE(t.board.selection(), t.pick({0, 1}));
    t.doubleClick(0);
    QCOMPARE(t.board.selection(), t.pick({0}));
    t.board.key(Qt::Key_Escape);
    QCOMPARE(t.board.selection(), t.pick({0, 1}));
    t.board.key(Qt::Key_Escape);
    QCOMPARE(t.board.selection(), t.shapes);
    t.board.key(Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(t.groupCount(), 1);
    t.board.click(t.middle(2));
    QCOMPARE(t.board.selection(), t.pick({2}));
    t.board.click(t.middle(0));
    QCOMPARE(t.board.selection(), t.pick({0, 1}));
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
    QVERIFY(!board.view().isWriting());
    board.doubleClick(cell);
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

void TestGrouping::controlClickTakesTheGroupBelow()
{
    Grouped t;
    CBaseObject *above = t.board.draw(rectangle, {80, 80}, {220, 180});
    QCOMPARE(t.board.selection(), Objects{above});
    t.board.click(t.middle(0), Qt::ControlModifier);
    QCOMPARE(t.board.selection(), t.pick({0, 1}));
    t.board.click(t.middle(0), Qt::ControlModifier);
    QCOMPARE(t.board.selection(), Objects{above});
}

void TestGrouping::quickControlClicksStayOutsideOfTheGroup()
{
    Grouped t;
    CBaseObject *above = t.board.draw(rectangle, {80, 80}, {220, 180});
    t.board.click(t.middle(0), Qt::ControlModifier);
    const QPoint pos = t.board.view().mapFromScene(t.middle(0));
    QTest::mouseDClick(t.board.view().viewport(), Qt::LeftButton, Qt::ControlModifier, pos);
    QTest::mouseRelease(t.board.view().viewport(), Qt::LeftButton, Qt::ControlModifier, pos);
    QCOMPARE(t.board.selection(), Objects{above});
    QCOMPARE(t.board.page().enteredGroup(), 0u);
}

/// The box around the group is (100, 100) to (450, 420), its middle (275, 260).
void TestGrouping::keyTurnsTheGroupAboutItsMiddle()
{
    Grouped t;
    t.board.click(t.middle(0));
    t.board.key(Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(t.shapes[0]->rotation(), 90.0);
    QCOMPARE(t.shapes[1]->rotation(), 90.0);
    // (-125, -130) from the middle turns to (130, -125), (75, 100) to (-100, 75).
    QCOMPARE(t.centre(0), QPointF(405, 135));
    QCOMPARE(t.centre(1), QPointF(175, 335));
    QCOMPARE(t.centre(2), QPointF(730, 220));
    QCOMPARE(t.board.history().count(), 1);
    t.board.key(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(t.board.placeOf(t.shapes[0]), QRectF(100, 100, 100, 60));
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.shapes[1]->rotation(), 0.0);
    QCOMPARE(t.centre(1), QPointF(350, 360));
}

void TestGrouping::keyMirrorsTheGroupAsOne()
{
    Grouped t;
    t.board.click(t.middle(0));
    t.board.key(Qt::Key_M, Qt::ControlModifier);
    QVERIFY(t.shapes[0]->isMirrored() && t.shapes[1]->isMirrored());
    QCOMPARE(t.board.placeOf(t.shapes[0]), QRectF(350, 100, 100, 60));
    QCOMPARE(t.board.placeOf(t.shapes[1]), QRectF(100, 300, 200, 120));
    t.board.key(Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(t.shapes[0]->isFlipped() && t.shapes[1]->isFlipped());
    QCOMPARE(t.board.placeOf(t.shapes[0]), QRectF(350, 360, 100, 60));
    QCOMPARE(t.board.placeOf(t.shapes[1]), QRectF(100, 100, 200, 120));
    QCOMPARE(t.board.history().count(), 2);
}

void TestGrouping::mirroredGroupHasTurnedMembersMirrored()
{
    Grouped t;
    pagehost::rotateObjects({t.shapes[1]}, 90);
    t.board.click(t.middle(0));
    t.board.key(Qt::Key_M, Qt::ControlModifier);
    // The turned one covers (290, 260) to (410, 460), so that the middle of the group is at 255 across.
    QCOMPARE(t.shapes[1]->rotation(), 270.0);
    QVERIFY(t.shapes[1]->isMirrored());
    QCOMPARE(t.centre(1), QPointF(160, 360));
    QCOMPARE(t.board.placeOf(t.shapes[0]), QRectF(310, 100, 100, 60));
}

void TestGrouping::groupTurnsAsOneBesideOthersThatTurnAlone()
{
    Grouped t;
    t.board.key(Qt::Key_A, Qt::ControlModifier);
    t.board.key(Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(t.centre(0), QPointF(405, 135));
    QCOMPARE(t.centre(2), QPointF(730, 220));
    QCOMPARE(t.shapes[2]->rotation(), 90.0);
    QCOMPARE(t.board.history().count(), 1);
}

void TestGrouping::lockedMemberStaysWhenTheGroupTurns()
{
    Grouped t;
    pagehost::setObjectsLocked({t.shapes[1]}, true);
    t.board.page().select(t.pick({0, 1}));
    t.board.key(Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(t.centre(0), QPointF(405, 135));
    QCOMPARE(t.board.placeOf(t.shapes[1]), QRectF(250, 300, 200, 120));
    QCOMPARE(t.shapes[1]->rotation(), 0.0);
}

void TestGrouping::connectorOfATurnedGroupFollowsIt()
{
    Grouped t;
    t.board.key(Qt::Key_C);
    t.board.drag(t.middle(0), t.middle(1));
    CBaseObject *connector = t.board.page().objects().last();
    t.board.page().select(t.pick({0, 1}) + Objects{connector});
    t.board.key(Qt::Key_G, Qt::ControlModifier);
    t.board.key(Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(t.centre(0), QPointF(405, 135));
    QCOMPARE(t.centre(1), QPointF(175, 335));
    QCOMPARE(connector->rotation(), 0.0);
}

void TestGrouping::memberOfAnEnteredGroupTurnsAlone()
{
    Grouped t;
    t.doubleClick(0);
    t.board.key(Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(t.centre(0), QPointF(150, 130));
    QCOMPARE(t.shapes[0]->rotation(), 90.0);
    QCOMPARE(t.board.placeOf(t.shapes[1]), QRectF(250, 300, 200, 120));
}

/// The large one is twice as long on each side as the box around the group.
void TestGrouping::sameSizeScalesTheGroupAsOne()
{
    Grouped t;
    CBaseObject *large = t.board.draw(rectangle, {500, 40}, {1200, 680});
    t.board.page().select(t.pick({0, 1}) + Objects{large});
    t.action(Command::SameSize)->trigger();
    QCOMPARE(t.board.placeOf(t.shapes[0]), QRectF(100, 100, 200, 120));
    QCOMPARE(t.board.placeOf(t.shapes[1]), QRectF(400, 500, 400, 240));
    QCOMPARE(t.board.placeOf(large), QRectF(500, 40, 700, 640));
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.board.placeOf(t.shapes[1]), QRectF(250, 300, 200, 120));
}

void TestGrouping::sameSizeTakesTheSizeOfTheGroup()
{
    Grouped t;
    t.board.key(Qt::Key_A, Qt::ControlModifier);
    t.action(Command::SameSize)->trigger();
    QCOMPARE(t.board.placeOf(t.shapes[0]), QRectF(100, 100, 100, 60));
    QCOMPARE(t.board.placeOf(t.shapes[1]), QRectF(250, 300, 200, 120));
    QCOMPARE(t.board.placeOf(t.shapes[2]), QRectF(700, 200, 350, 320));
}

void TestGrouping::copyMadeInAGroupBelongsToIt_data()
{
    using Copy = std::function<void(Grouped &)>;
    QTest::addColumn<Copy>("copy");
    QTest::newRow("Ctrl+D") << Copy([](Grouped &t) { t.board.key(Qt::Key_D, Qt::ControlModifier); });
    QTest::newRow("paste") << Copy([](Grouped &t) {
        t.board.key(Qt::Key_C, Qt::ControlModifier);
        t.board.key(Qt::Key_V, Qt::ControlModifier);
    });
    QTest::newRow("drag with Ctrl") << Copy(
        [](Grouped &t) { t.board.drag(t.middle(0), t.middle(0) + QPointF(0, 200), Qt::ControlModifier); });
}

void TestGrouping::copyMadeInAGroupBelongsToIt()
{
    QFETCH(std::function<void(Grouped &)>, copy);
    Grouped t;
    t.doubleClick(0);
    copy(t);
    QCOMPARE(t.board.selection().size(), 1);
    CBaseObject *made = t.board.selection().constFirst();
    QVERIFY(!t.shapes.contains(made));
    QCOMPARE(t.board.page().objects(), (Objects{t.shapes[0], t.shapes[1], made, t.shapes[2]}));
    QVERIFY(t.board.page().enteredGroup() != 0);
    QCOMPARE(t.board.history().count(), 1);
    t.board.key(Qt::Key_Escape);
    QCOMPARE(t.board.selection(), (Objects{t.shapes[0], t.shapes[1], made}));
    t.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.board.page().objects(), t.shapes);
    t.board.click(t.middle(0));
    QCOMPARE(t.board.selection(), t.pick({0, 1}));
    t.board.key(Qt::Key_Y, Qt::ControlModifier);
    t.board.click(t.middle(1));
    QCOMPARE(t.board.selection(), (Objects{t.shapes[0], t.shapes[1], made}));
}

void TestGrouping::groupCopiedInAGroupIsAGroupInIt()
{
    Grouped t;
    t.board.key(Qt::Key_A, Qt::ControlModifier);
    t.board.key(Qt::Key_G, Qt::ControlModifier);
    t.doubleClick(0);
    QCOMPARE(t.board.selection(), t.pick({0, 1}));
    t.board.key(Qt::Key_D, Qt::ControlModifier);
    const Objects copies = t.board.selection();
    QCOMPARE(copies.size(), 2);
    QCOMPARE(t.groupCount(), 3);
    QCOMPARE(t.board.page().unitOf(copies.first()), copies);
    t.board.key(Qt::Key_Escape);
    QCOMPARE(t.board.selection().size(), 5);
}

QTEST_MAIN(TestGrouping)
#include "test_grouping.moc"
