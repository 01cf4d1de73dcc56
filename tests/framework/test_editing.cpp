#include <framework/cundoredo.h>

#include <pagehost/selection.h>

#include "editor.h"

#include <cmath>

namespace {

// Distances on screen that the handles promise.
constexpr double frameMargin = 6;
constexpr double stem = 26;
constexpr double hitRadius = 12;

/// Centre of a corner handle of an unrotated object; `side` is -1 or 1 per axis.
QPointF cornerHandle(const CBaseObject &object, const QPointF &side, double zoom = 1)
{
    const QSizeF half = object.getClientRect().size() / 2;
    const QPointF item(half.width() + side.x() * (half.width() + frameMargin / zoom),
                       half.height() + side.y() * (half.height() + frameMargin / zoom));
    return object.mapToScene(item);
}

QPointF outerHandle(const CBaseObject &object, const QPointF &side, double zoom = 1)
{
    const QSizeF half = object.getClientRect().size() / 2;
    const double away = (frameMargin + stem) / zoom;
    const QPointF item(half.width() + side.x() * (half.width() + away),
                       half.height() + side.y() * (half.height() + away));
    return object.mapToScene(item);
}

const QPointF topLeft(-1, -1);
const QPointF topRight(1, -1);
const QPointF bottomLeft(-1, 1);
const QPointF bottomRight(1, 1);

bool isNear(const QPointF &one, const QPointF &other, double tolerance = 1e-9)
{
    return std::hypot(one.x() - other.x(), one.y() - other.y()) <= tolerance;
}

} // namespace

class TestEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clickSelectsOnlyTheObjectUnderTheMouse();
    void clickOnEmptyPageDeselects();
    void shiftClickAddsAndRemoves();
    void controlClickAddsAndRemoves();
    void clickInAMultipleSelectionSelectsOnlyThatOne();
    void rubberBandSelectsWhatItTouches();
    void topmostObjectIsSelected();

    void dragMovesTheObjectByTheMouseWay();
    void dragOfASelectionMovesAllInOneStep();
    void dragOfAnUnselectedObjectMovesOnlyThatOne();
    void tremblingClickMovesNothing();
    void lockedObjectIsSelectedButNotMoved();
    void lockedObjectStaysWhenTheSelectionIsMoved();
    void blockedDocumentRefusesEveryDrag();
    void escapePutsAMovedObjectBack();
    void undoneMoveIsExact();

    void handlesAreHitAtConstantScreenDistance_data();
    void handlesAreHitAtConstantScreenDistance();
    void edgeHandlesResizeOneSide_data();
    void edgeHandlesResizeOneSide();
    void disabledHandleIsNotHit();
    void handlesOfAMultipleSelectionAreNotHit();
    void nearMissOfAHandleKeepsTheSelection();
    void insideOfASmallObjectMovesIt();
    void cornerDragKeepsTheOppositeCorner_data();
    void cornerDragKeepsTheOppositeCorner();
    void resizeNeverTurnsTheObjectInsideOut();
    void resizeOfAStubbornObjectKeepsTheOppositeCorner();
    void undoneResizeIsExact();
    void escapePutsAResizedObjectBack();
    void rotationHandleTurnsAboutTheCentre();
    void shiftRotatesInStepsOf15Degrees();
    void undoneRotationIsExact();
    void clickOnAMirrorHandleMirrors_data();
    void clickOnAMirrorHandleMirrors();
    void mirrorHandleLeftBeforeReleaseDoesNothing();

    void controlPointIsDraggedByTheObject();
    void nearMissOfAControlPointTakesIt();
    void controlPointAtTheEdgeIsTakenFromOutside();
    void escapePutsAControlPointBackAndLeavesNoStep();
    void escapeKeepsWhatCouldBeRedone();
    void controlPointOfAnUnselectedObjectIsNotTaken();

    void cursorFollowsHandleAndRotation_data();
    void cursorFollowsHandleAndRotation();
    void hoverIsKnown();
    void cursorIsShownOnTheView();
    void overlayIsDrawnAtConstantSize_data();
    void overlayIsDrawnAtConstantSize();
    void overlayIsHiddenWhilePresenting();
    void removedObjectEndsItsDrag();
};

void TestEditing::clickSelectsOnlyTheObjectUnderTheMouse()
{
    Editor editor;
    auto *left = editor.add(QSizeF(100, 60), QPointF(50, 50));
    auto *right = editor.add(QSizeF(100, 60), QPointF(300, 50));
    editor.click(QPointF(100, 80));
    QCOMPARE(editor.page->selectedObjects(), QVector<CBaseObject *>{left});
    editor.click(QPointF(350, 80));
    QCOMPARE(editor.page->selectedObjects(), QVector<CBaseObject *>{right});
    QCOMPARE(undoStack()->count(), 0);
}

void TestEditing::clickOnEmptyPageDeselects()
{
    Editor editor;
    auto *object = editor.add(QSizeF(100, 60), QPointF(50, 50));
    object->setSelected(true);
    editor.click(QPointF(400, 400));
    QVERIFY(editor.page->selectedObjects().isEmpty());
}

void TestEditing::shiftClickAddsAndRemoves()
{
    Editor editor;
    auto *left = editor.add(QSizeF(100, 60), QPointF(50, 50));
    auto *right = editor.add(QSizeF(100, 60), QPointF(300, 50));
    editor.click(QPointF(100, 80));
    editor.click(QPointF(350, 80), Qt::ShiftModifier);
    const QVector<CBaseObject *> both{left, right};
    QCOMPARE(editor.page->selectedObjects(), both);
    editor.click(QPointF(100, 80), Qt::ShiftModifier);
    QCOMPARE(editor.page->selectedObjects(), QVector<CBaseObject *>{right});
}

void TestEditing::controlClickAddsAndRemoves()
{
    Editor editor;
    auto *left = editor.add(QSizeF(100, 60), QPointF(50, 50));
    editor.click(QPointF(100, 80), Qt::ControlModifier);
    QCOMPARE(editor.page->selectedObjects(), QVector<CBaseObject *>{left});
    editor.click(QPointF(100, 80), Qt::ControlModifier);
    QVERIFY(editor.page->selectedObjects().isEmpty());
}

void TestEditing::clickInAMultipleSelectionSelectsOnlyThatOne()
{
    Editor editor;
    auto *left = editor.add(QSizeF(100, 60), QPointF(50, 50));
    auto *right = editor.add(QSizeF(100, 60), QPointF(300, 50));
    editor.page->select({left, right});
    editor.click(QPointF(350, 80));
    QCOMPARE(editor.page->selectedObjects(), QVector<CBaseObject *>{right});
}

void TestEditing::rubberBandSelectsWhatItTouches()
{
    Editor editor;
    auto *left = editor.add(QSizeF(100, 60), QPointF(50, 50));
    editor.add(QSizeF(100, 60), QPointF(500, 50));
    editor.drag(QPointF(20, 20), QPointF(200, 200));
    QCOMPARE(editor.page->selectedObjects(), QVector<CBaseObject *>{left});
}

void TestEditing::topmostObjectIsSelected()
{
    Editor editor;
    auto *below = editor.add(QSizeF(100, 60), QPointF(50, 50));
    auto *above = editor.add(QSizeF(100, 60), QPointF(80, 50));
    editor.click(QPointF(100, 80));
    QVERIFY(above->isSelected());
    QVERIFY(!below->isSelected());
}

void TestEditing::dragMovesTheObjectByTheMouseWay()
{
    Editor editor;
    auto *object = editor.add(QSizeF(100, 60), QPointF(50, 50));
    editor.drag(QPointF(100, 80), QPointF(230, 180));
    QCOMPARE(object->getPos(), QPointF(180, 150));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_MOVE")});
    QVERIFY(object->isSelected());
}

void TestEditing::dragOfASelectionMovesAllInOneStep()
{
    Editor editor;
    auto *left = editor.add(QSizeF(100, 60), QPointF(50, 50));
    auto *right = editor.add(QSizeF(100, 60), QPointF(300, 50));
    editor.page->select({left, right});
    editor.drag(QPointF(100, 80), QPointF(110, 120));
    QCOMPARE(left->getPos(), QPointF(60, 90));
    QCOMPARE(right->getPos(), QPointF(310, 90));
    QCOMPARE(undoStack()->count(), 1);
    undoStack()->undo();
    QCOMPARE(left->getPos(), QPointF(50, 50));
    QCOMPARE(right->getPos(), QPointF(300, 50));
    QCOMPARE(editor.page->selectedObjects().size(), 2);
}

void TestEditing::dragOfAnUnselectedObjectMovesOnlyThatOne()
{
    Editor editor;
    auto *left = editor.add(QSizeF(100, 60), QPointF(50, 50));
    auto *right = editor.add(QSizeF(100, 60), QPointF(300, 50));
    left->setSelected(true);
    editor.drag(QPointF(350, 80), QPointF(360, 90));
    QCOMPARE(left->getPos(), QPointF(50, 50));
    QCOMPARE(right->getPos(), QPointF(310, 60));
    QCOMPARE(editor.page->selectedObjects(), QVector<CBaseObject *>{right});
}

void TestEditing::tremblingClickMovesNothing()
{
    Editor editor;
    auto *object = editor.add(QSizeF(100, 60), QPointF(50, 50));
    editor.press(QPointF(100, 80));
    editor.moveTo(QPointF(102, 80));
    editor.release(QPointF(102, 80));
    QCOMPARE(object->getPos(), QPointF(50, 50));
    QCOMPARE(undoStack()->count(), 0);
}

void TestEditing::lockedObjectIsSelectedButNotMoved()
{
    Editor editor;
    auto *object = editor.add(QSizeF(100, 60), QPointF(50, 50));
    object->setLocked(true);
    editor.drag(QPointF(100, 80), QPointF(200, 200));
    QVERIFY(object->isSelected());
    QCOMPARE(object->getPos(), QPointF(50, 50));
    editor.drag(cornerHandle(*object, bottomRight), QPointF(300, 300));
    QCOMPARE(object->getClientRect(), QRectF(0, 0, 100, 60));
    QCOMPARE(undoStack()->count(), 0);
}

void TestEditing::lockedObjectStaysWhenTheSelectionIsMoved()
{
    Editor editor;
    auto *locked = editor.add(QSizeF(100, 60), QPointF(50, 50));
    auto *free = editor.add(QSizeF(100, 60), QPointF(300, 50));
    locked->setLocked(true);
    editor.page->select({locked, free});
    editor.drag(QPointF(350, 80), QPointF(360, 90));
    QCOMPARE(locked->getPos(), QPointF(50, 50));
    QCOMPARE(free->getPos(), QPointF(310, 60));
}

void TestEditing::blockedDocumentRefusesEveryDrag()
{
    Editor editor;
    auto *object = editor.add(QSizeF(100, 60), QPointF(50, 50));
    object->setSelected(true);
    editor.document.setEditingBlocked(1);
    editor.drag(QPointF(100, 80), QPointF(200, 200));
    object->setSelected(true);
    editor.drag(cornerHandle(*object, bottomRight), QPointF(300, 300));
    QCOMPARE(object->getPos(), QPointF(50, 50));
    QCOMPARE(object->getClientRect(), QRectF(0, 0, 100, 60));
    QCOMPARE(undoStack()->count(), 0);
}

void TestEditing::escapePutsAMovedObjectBack()
{
    Editor editor;
    auto *object = editor.add(QSizeF(100, 60), QPointF(50.125, 50.3));
    editor.press(QPointF(100, 80));
    editor.moveTo(QPointF(200, 200));
    QCOMPARE(object->getPos(), QPointF(150.125, 170.3));
    QVERIFY(editor.page->scene()->isDragging());
    editor.pressKey(Qt::Key_Escape);
    QVERIFY(!editor.page->scene()->isDragging());
    editor.moveTo(QPointF(220, 220));
    editor.release(QPointF(220, 220));
    QCOMPARE(object->getPos().x(), 50.125);
    QCOMPARE(object->getPos().y(), 50.3);
    QCOMPARE(undoStack()->count(), 0);
}

void TestEditing::undoneMoveIsExact()
{
    Editor editor(3);
    auto *object = editor.add(QSizeF(100, 60), QPointF(0.1, 1.0 / 3));
    editor.drag(QPointF(50, 30), QPointF(70.0 / 3, 91.0 / 3));
    const QPointF moved = object->getPos();
    QVERIFY(moved != QPointF(0.1, 1.0 / 3));
    undoStack()->undo();
    QVERIFY(object->getPos().x() == 0.1 && object->getPos().y() == 1.0 / 3);
    undoStack()->redo();
    QVERIFY(object->getPos().x() == moved.x() && object->getPos().y() == moved.y());
}

void TestEditing::handlesAreHitAtConstantScreenDistance_data()
{
    QTest::addColumn<double>("zoom");
    QTest::newRow("zoom 0.5") << 0.5;
    QTest::newRow("zoom 1") << 1.0;
    QTest::newRow("zoom 3") << 3.0;
}

void TestEditing::handlesAreHitAtConstantScreenDistance()
{
    QFETCH(double, zoom);
    Editor editor(zoom);
    auto *object = editor.add(QSizeF(200, 150), QPointF(100, 100));
    object->setSelected(true);
    const QVector<QPair<CObjAction::ACT_Def, QPointF>> handles{
        {CObjAction::ACT_ResizeTopLeft, cornerHandle(*object, topLeft, zoom)},
        {CObjAction::ACT_ResizeTopRight, cornerHandle(*object, topRight, zoom)},
        {CObjAction::ACT_ResizeBottomLeft, cornerHandle(*object, bottomLeft, zoom)},
        {CObjAction::ACT_ResizeBottomRight, cornerHandle(*object, bottomRight, zoom)},
        {CObjAction::ACT_Rotate, outerHandle(*object, QPointF(0, -1), zoom)},
        {CObjAction::ACT_MirrorHorizontal, outerHandle(*object, QPointF(1, 0), zoom)},
        {CObjAction::ACT_MirrorVertical, outerHandle(*object, QPointF(0, 1), zoom)}};
    for (const auto &handle : handles) {
        for (const QPointF &direction : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)}) {
            CObjAction::ACT_Def action = CObjAction::ACT_None;
            const QPointF inside = handle.second + direction * (hitRadius - 0.1) / zoom;
            const QPointF outside = handle.second + direction * (hitRadius + 0.1) / zoom;
            QVERIFY(object->CheckHitTestHandlers(inside, action));
            QCOMPARE(action, handle.first);
            action = CObjAction::ACT_None;
            QVERIFY(!object->CheckHitTestHandlers(outside, action) || action != handle.first);
        }
    }
}

void TestEditing::edgeHandlesResizeOneSide_data()
{
    QTest::addColumn<QPointF>("side");
    QTest::addColumn<QPointF>("expectedPos");
    QTest::addColumn<QSizeF>("expectedSize");
    QTest::newRow("top") << QPointF(0, -1) << QPointF(100, 110) << QSizeF(200, 140);
    QTest::newRow("left") << QPointF(-1, 0) << QPointF(120, 100) << QSizeF(180, 150);
    QTest::newRow("right") << QPointF(1, 0) << QPointF(100, 100) << QSizeF(220, 150);
    QTest::newRow("bottom") << QPointF(0, 1) << QPointF(100, 100) << QSizeF(200, 160);
}

void TestEditing::edgeHandlesResizeOneSide()
{
    QFETCH(QPointF, side);
    QFETCH(QPointF, expectedPos);
    QFETCH(QSizeF, expectedSize);
    Editor editor;
    auto *object = editor.add(QSizeF(200, 150), QPointF(100, 100));
    object->setSelected(true);
    const QPointF handle = cornerHandle(*object, side);
    editor.drag(handle, handle + QPointF(20, 10));
    QCOMPARE(object->getPos(), expectedPos);
    QCOMPARE(object->getClientRect(), QRectF(QPointF(0, 0), expectedSize));
}

void TestEditing::disabledHandleIsNotHit()
{
    Editor editor;
    auto *object = editor.add(QSizeF(200, 150), QPointF(100, 100));
    object->setSelected(true);
    object->setHandlesDisable(CObjAction::ACT_ResizeTop, true);
    CObjAction::ACT_Def action = CObjAction::ACT_Move;
    QVERIFY(!object->CheckHitTestHandlers(cornerHandle(*object, QPointF(0, -1)), action));
    QCOMPARE(action, CObjAction::ACT_Move);
}

void TestEditing::handlesOfAMultipleSelectionAreNotHit()
{
    Editor editor;
    auto *left = editor.add(QSizeF(100, 60), QPointF(50, 50));
    auto *right = editor.add(QSizeF(100, 60), QPointF(300, 50));
    editor.page->select({left, right});
    CObjAction::ACT_Def action = CObjAction::ACT_None;
    QVERIFY(!left->CheckHitTestHandlers(cornerHandle(*left, topLeft), action));
    right->setSelected(false);
    QVERIFY(left->CheckHitTestHandlers(cornerHandle(*left, topLeft), action));
    left->setSelected(false);
    QVERIFY(!left->CheckHitTestHandlers(cornerHandle(*left, topLeft), action));
}

void TestEditing::nearMissOfAHandleKeepsTheSelection()
{
    Editor editor;
    auto *object = editor.add(QSizeF(200, 150), QPointF(100, 100));
    object->setSelected(true);
    editor.click(cornerHandle(*object, topLeft) - QPointF(10, 0));
    QVERIFY(object->isSelected());
    QCOMPARE(object->getClientRect(), QRectF(0, 0, 200, 150));
    QCOMPARE(undoStack()->count(), 0);
}

void TestEditing::insideOfASmallObjectMovesIt()
{
    Editor editor;
    auto *object = editor.add(QSizeF(16, 16), QPointF(100, 100));
    object->setSelected(true);
    editor.drag(QPointF(102, 102), QPointF(152, 142));
    QCOMPARE(object->getPos(), QPointF(150, 140));
    QCOMPARE(object->getClientRect(), QRectF(0, 0, 16, 16));
}

void TestEditing::cornerDragKeepsTheOppositeCorner_data()
{
    QTest::addColumn<QPointF>("side");
    QTest::addColumn<double>("degrees");
    QTest::addColumn<bool>("mirrored");
    for (const QPointF &side : {topLeft, topRight, bottomLeft, bottomRight}) {
        for (const double degrees : {0.0, 30.0, 90.0, 200.0}) {
            for (const bool mirrored : {false, true}) {
                QTest::addRow("%g,%g at %g degrees%s", side.x(), side.y(), degrees, mirrored ? " mirrored" : "")
                    << side << degrees << mirrored;
            }
        }
    }
}

void TestEditing::cornerDragKeepsTheOppositeCorner()
{
    QFETCH(QPointF, side);
    QFETCH(double, degrees);
    QFETCH(bool, mirrored);
    Editor editor;
    auto *object = editor.add(QSizeF(200, 150), QPointF(300, 250));
    object->setRotateByPoint(degrees, QPointF(100, 75), false);
    object->setMirror(mirrored, mirrored, false);
    object->setSelected(true);
    const QPointF opposite(side.x() < 0 ? 200 : 0, side.y() < 0 ? 150 : 0);
    const QPointF fixedBefore = object->mapToScene(opposite);

    // Pixels are whole, so the way is measured between the pixels that the mouse really meets.
    const QPointF from = editor.view.mapToScene(editor.at(cornerHandle(*object, side)));
    const QPointF way = QTransform().rotate(degrees).map(QPointF(side.x() * 40, side.y() * 24));
    const QPointF to = editor.view.mapToScene(editor.at(from + way));
    editor.drag(from, to);

    const QPointF local = QTransform().rotate(-degrees).map(to - from);
    const QSizeF expected(200 + side.x() * local.x(), 150 + side.y() * local.y());
    const QSizeF size = object->getClientRect().size();
    QVERIFY(qAbs(size.width() - expected.width()) < 1e-9);
    QVERIFY(qAbs(size.height() - expected.height()) < 1e-9);
    const QPointF fixedAfter =
        object->mapToScene(QPointF(opposite.x() > 0 ? size.width() : 0, opposite.y() > 0 ? size.height() : 0));
    QVERIFY(isNear(fixedAfter, fixedBefore));
    QCOMPARE(object->rotation(), degrees);
    QCOMPARE(object->getClientRect().topLeft(), QPointF(0, 0));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_RESIZE")});
}

void TestEditing::resizeNeverTurnsTheObjectInsideOut()
{
    Editor editor;
    auto *object = editor.add(QSizeF(200, 150), QPointF(300, 250));
    object->setSelected(true);
    editor.drag(cornerHandle(*object, bottomRight), QPointF(100, 100));
    QCOMPARE(object->getPos(), QPointF(300, 250));
    QCOMPARE(object->getClientRect(), QRectF(0, 0, 1, 1));
}

void TestEditing::resizeOfAStubbornObjectKeepsTheOppositeCorner()
{
    Editor editor;
    auto *object = editor.add<StubbornObject>(QSizeF(200, 100), QPointF(300, 250));
    object->setSelected(true);
    const QPointF handle = cornerHandle(*object, topLeft);
    editor.press(handle);
    editor.moveTo(handle - QPointF(100, 100));
    editor.release(handle - QPointF(100, 100));
    // 300 × 200 asked for, 2 : 1 kept: 300 × 150, the lower right corner at (500, 350).
    QVERIFY(isNear(object->getPos(), QPointF(200, 200)));
    QVERIFY(isNear(object->mapToScene(object->getClientRect().bottomRight()), QPointF(500, 350)));
}

void TestEditing::undoneResizeIsExact()
{
    Editor editor;
    auto *object = editor.add<StubbornObject>(QSizeF(100.1, 33.3), QPointF(300.7, 250.3));
    object->setRotateByPoint(30, QPointF(50, 20), false);
    object->setSelected(true);
    const QPointF pos = object->getPos();
    const QSizeF size = object->getClientRect().size();
    const double content = object->content;
    const QPointF handle = cornerHandle(*object, topLeft);
    editor.drag(handle, handle - QPointF(37, 41));
    const QSizeF resized = object->getClientRect().size();
    const double resizedContent = object->content;
    QVERIFY(resized.width() > size.width() + 10);

    for (int round = 0; round < 3; ++round) {
        undoStack()->undo();
        QVERIFY(object->getClientRect().width() == size.width());
        QVERIFY(object->getClientRect().height() == size.height());
        QVERIFY(object->getPos().x() == pos.x() && object->getPos().y() == pos.y());
        QVERIFY(object->content == content);
        undoStack()->redo();
        QVERIFY(object->getClientRect().width() == resized.width());
        QVERIFY(object->getClientRect().height() == resized.height());
        QVERIFY(object->content == resizedContent);
    }
}

void TestEditing::escapePutsAResizedObjectBack()
{
    Editor editor;
    auto *object = editor.add<StubbornObject>(QSizeF(100.1, 33.3), QPointF(300.7, 250.3));
    object->setSelected(true);
    const double content = object->content;
    const QPointF handle = cornerHandle(*object, topLeft);
    editor.press(handle);
    editor.moveTo(handle - QPointF(37, 41));
    editor.moveTo(handle - QPointF(57, 61));
    QVERIFY(object->content != content);
    editor.pressKey(Qt::Key_Escape);
    QVERIFY(object->getClientRect().width() == 100.1 && object->getClientRect().height() == 33.3);
    QVERIFY(object->getPos().x() == 300.7 && object->getPos().y() == 250.3);
    QVERIFY(object->content == content);
    QCOMPARE(undoStack()->count(), 0);
}

void TestEditing::rotationHandleTurnsAboutTheCentre()
{
    Editor editor;
    auto *object = editor.add(QSizeF(200, 100), QPointF(200, 200));
    object->setSelected(true);
    // From above the centre (300, 250) to its right: a quarter turn.
    editor.drag(outerHandle(*object, QPointF(0, -1)), QPointF(500, 250));
    QCOMPARE(object->rotation(), 90.0);
    QVERIFY(isNear(object->mapToScene(QPointF(100, 50)), QPointF(300, 250)));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_ROTATE")});
}

void TestEditing::shiftRotatesInStepsOf15Degrees()
{
    Editor editor;
    auto *object = editor.add(QSizeF(200, 100), QPointF(200, 200));
    object->setSelected(true);
    const QPointF handle = outerHandle(*object, QPointF(0, -1));
    editor.press(handle);
    // 36.9 degrees from the vertical.
    editor.moveTo(QPointF(300 + 150, 250 - 200), Qt::ShiftModifier);
    QCOMPARE(object->rotation(), 30.0);
    // 45 degrees to the left: 315, counted from 0 to 360.
    editor.moveTo(QPointF(300 - 100, 250 - 100), Qt::ShiftModifier);
    QCOMPARE(object->rotation(), 315.0);
    editor.release(QPointF(300 - 100, 250 - 100), Qt::ShiftModifier);
    QVERIFY(isNear(object->mapToScene(QPointF(100, 50)), QPointF(300, 250)));
}

void TestEditing::undoneRotationIsExact()
{
    Editor editor;
    auto *object = editor.add(QSizeF(200.3, 100.7), QPointF(200.1, 200.9));
    object->setSelected(true);
    editor.drag(outerHandle(*object, QPointF(0, -1)), QPointF(437, 211));
    QVERIFY(object->rotation() > 1);
    const QPointF turnedPos = object->getPos();
    const double turned = object->rotation();
    undoStack()->undo();
    QVERIFY(object->rotation() == 0);
    QVERIFY(object->getPos().x() == 200.1 && object->getPos().y() == 200.9);
    undoStack()->redo();
    QVERIFY(object->rotation() == turned);
    QVERIFY(object->getPos().x() == turnedPos.x() && object->getPos().y() == turnedPos.y());
}

void TestEditing::clickOnAMirrorHandleMirrors_data()
{
    QTest::addColumn<QPointF>("side");
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("right") << QPointF(1, 0) << true;
    QTest::newRow("bottom") << QPointF(0, 1) << false;
}

void TestEditing::clickOnAMirrorHandleMirrors()
{
    QFETCH(QPointF, side);
    QFETCH(bool, mirrored);
    Editor editor;
    auto *object = editor.add(QSizeF(200, 100), QPointF(200, 200));
    object->setSelected(true);
    editor.click(outerHandle(*object, side));
    QCOMPARE(object->isMirrored(), mirrored);
    QCOMPARE(object->isFlipped(), !mirrored);
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_MIRROR")});
    undoStack()->undo();
    QVERIFY(!object->isMirrored() && !object->isFlipped());
    undoStack()->redo();
    editor.click(outerHandle(*object, side));
    QVERIFY(!object->isMirrored() && !object->isFlipped());
    QCOMPARE(undoStack()->count(), 2);
}

void TestEditing::mirrorHandleLeftBeforeReleaseDoesNothing()
{
    Editor editor;
    auto *object = editor.add(QSizeF(200, 100), QPointF(200, 200));
    object->setSelected(true);
    editor.drag(outerHandle(*object, QPointF(1, 0)), QPointF(600, 500));
    QVERIFY(!object->isMirrored() && !object->isFlipped());
    QCOMPARE(object->getPos(), QPointF(200, 200));
    QCOMPARE(undoStack()->count(), 0);
}

void TestEditing::controlPointIsDraggedByTheObject()
{
    Editor editor;
    auto *object = editor.add<ControlPointObject>(QSizeF(200, 100), QPointF(200, 200));
    object->setSelected(true);
    editor.drag(QPointF(250, 230), QPointF(280, 250));
    QCOMPARE(object->controlPoint, QPointF(80, 50));
    QCOMPARE(object->getPos(), QPointF(200, 200));
    QCOMPARE(undoStack()->count(), 1);
}

void TestEditing::nearMissOfAControlPointTakesIt()
{
    Editor editor;
    auto *object = editor.add<ControlPointObject>(QSizeF(200, 100), QPointF(200, 200));
    object->setSelected(true);
    // The point answers 6 units around (250, 230); the mouse misses that by 4 pixels.
    editor.drag(QPointF(250 + 10, 230), QPointF(250 + 40, 230 + 20));
    QCOMPARE(object->controlPoint, QPointF(80, 50));
    QVERIFY(object->isSelected());
    QCOMPARE(object->getPos(), QPointF(200, 200));
}

void TestEditing::controlPointAtTheEdgeIsTakenFromOutside()
{
    Editor editor;
    auto *object = editor.add<ControlPointObject>(QSizeF(200, 100), QPointF(200, 200));
    object->setSelected(true);
    object->controlPoint = QPointF(0, 50);
    editor.drag(QPointF(196, 250), QPointF(226, 260));
    QCOMPARE(object->controlPoint, QPointF(30, 60));
    QCOMPARE(object->getPos(), QPointF(200, 200));
}

void TestEditing::escapePutsAControlPointBackAndLeavesNoStep()
{
    Editor editor;
    auto *object = editor.add<ControlPointObject>(QSizeF(200, 100), QPointF(200, 200));
    object->setSelected(true);
    editor.press(QPointF(250, 230));
    editor.moveTo(QPointF(280, 250));
    QCOMPARE(object->controlPoint, QPointF(80, 50));
    editor.pressKey(Qt::Key_Escape);
    QCOMPARE(object->controlPoint, QPointF(50, 30));
    editor.release(QPointF(280, 250));
    QCOMPARE(undoStack()->count(), 0);
}

void TestEditing::escapeKeepsWhatCouldBeRedone()
{
    Editor editor;
    auto *object = editor.add<ControlPointObject>(QSizeF(200, 100), QPointF(200, 200));
    object->setSelected(true);
    pagehost::nudgeSelection(editor.page, QPointF(1, 0));
    undoStack()->undo();
    editor.press(QPointF(250, 230));
    editor.moveTo(QPointF(280, 250));
    editor.pressKey(Qt::Key_Escape);
    QVERIFY(undoStack()->canRedo());
    undoStack()->redo();
    QCOMPARE(object->getPos(), QPointF(201, 200));
}

void TestEditing::controlPointOfAnUnselectedObjectIsNotTaken()
{
    Editor editor;
    auto *object = editor.add<ControlPointObject>(QSizeF(200, 100), QPointF(200, 200));
    editor.drag(QPointF(250, 230), QPointF(280, 250));
    QCOMPARE(object->controlPoint, QPointF(50, 30));
    QCOMPARE(object->getPos(), QPointF(230, 220));
}

void TestEditing::cursorFollowsHandleAndRotation_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QPointF>("itemPos");
    QTest::addColumn<int>("shape");
    const QPointF corner(206, 106);
    const QPointF right(206, 50);
    QTest::newRow("corner") << 0.0 << corner << int(Qt::SizeFDiagCursor);
    QTest::newRow("corner turned by a quarter") << 90.0 << corner << int(Qt::SizeBDiagCursor);
    QTest::newRow("corner turned by an eighth") << 45.0 << corner << int(Qt::SizeVerCursor);
    QTest::newRow("edge") << 0.0 << right << int(Qt::SizeHorCursor);
    QTest::newRow("edge turned by a quarter") << 90.0 << right << int(Qt::SizeVerCursor);
    QTest::newRow("rotation") << 0.0 << QPointF(100, -32) << int(Qt::OpenHandCursor);
    QTest::newRow("mirror") << 0.0 << QPointF(232, 50) << int(Qt::PointingHandCursor);
    QTest::newRow("body") << 0.0 << QPointF(150, 50) << int(Qt::SizeAllCursor);
    QTest::newRow("control point") << 0.0 << QPointF(50, 30) << int(Qt::CrossCursor);
    QTest::newRow("empty page") << 0.0 << QPointF(400, 300) << int(Qt::ArrowCursor);
}

void TestEditing::cursorFollowsHandleAndRotation()
{
    QFETCH(double, degrees);
    QFETCH(QPointF, itemPos);
    QFETCH(int, shape);
    Editor editor;
    auto *object = editor.add<ControlPointObject>(QSizeF(200, 100), QPointF(200, 200));
    object->setRotateByPoint(degrees, QPointF(100, 50), false);
    object->setSelected(true);
    QCOMPARE(int(editor.page->scene()->cursorAt(object->mapToScene(itemPos)).shape()), shape);
}

void TestEditing::hoverIsKnown()
{
    Editor editor;
    auto *object = editor.add(QSizeF(200, 100), QPointF(200, 200));
    object->setSelected(true);
    editor.hover(cornerHandle(*object, topLeft));
    QCOMPARE(editor.page->scene()->hoveredHandle(), CObjAction::ACT_ResizeTopLeft);
    editor.hover(QPointF(600, 500));
    QCOMPARE(editor.page->scene()->hoveredHandle(), CObjAction::ACT_None);
    QCOMPARE(int(editor.page->scene()->hovered().kind), int(pagehost::Grip::Nothing));
}

void TestEditing::cursorIsShownOnTheView()
{
    Editor editor;
    editor.add(QSizeF(200, 100), QPointF(200, 200));
    editor.hover(QPointF(250, 250));
    QCOMPARE(int(editor.view.viewport()->cursor().shape()), int(Qt::SizeAllCursor));
    editor.hover(QPointF(600, 500));
    QCOMPARE(int(editor.view.viewport()->cursor().shape()), int(Qt::ArrowCursor));
}

void TestEditing::overlayIsDrawnAtConstantSize_data()
{
    handlesAreHitAtConstantScreenDistance_data();
}

void TestEditing::overlayIsDrawnAtConstantSize()
{
    QFETCH(double, zoom);
    Editor editor(zoom);
    auto *object = editor.add(QSizeF(100, 60), QPointF(60, 60));
    const auto picture = [&] { return editor.view.viewport()->grab().toImage(); };
    const QPoint handle = editor.at(cornerHandle(*object, bottomRight, zoom));
    QCOMPARE(picture().pixelColor(handle + QPoint(4, 4)), QColor(Qt::white));
    object->setSelected(true);
    const QImage selected = picture();
    const QColor accent = editor.page->scene()->palette().color(QPalette::Highlight);
    // A white square of 9 pixels with an accented border: white in the middle, accent at its edge, page beyond.
    QCOMPARE(selected.pixelColor(handle), QColor(Qt::white));
    const QColor edge = selected.pixelColor(handle + QPoint(4, 2));
    QVERIFY2(qAbs(edge.red() - accent.red()) < 100 && edge != QColor(Qt::white), qPrintable(edge.name()));
    QCOMPARE(selected.pixelColor(handle + QPoint(8, 2)), QColor(Qt::white));
}

void TestEditing::overlayIsHiddenWhilePresenting()
{
    Editor editor;
    auto *object = editor.add(QSizeF(100, 60), QPointF(60, 60));
    editor.document.setDocumentState(1);
    const QImage unselected = editor.view.viewport()->grab().toImage();
    object->setSelected(true);
    QCOMPARE(editor.view.viewport()->grab().toImage(), unselected);
    editor.document.setDocumentState(0);
    QVERIFY(editor.view.viewport()->grab().toImage() != unselected);
}

void TestEditing::removedObjectEndsItsDrag()
{
    Editor editor;
    auto *object = editor.add(QSizeF(100, 60), QPointF(60, 60));
    editor.press(QPointF(100, 80));
    editor.moveTo(QPointF(150, 80));
    editor.page->removeObject(object);
    QVERIFY(!editor.page->scene()->isDragging());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    editor.moveTo(QPointF(170, 80));
    editor.release(QPointF(170, 80));
    QCOMPARE(undoStack()->count(), 0);
}

QTEST_MAIN(TestEditing)
#include "test_editing.moc"
