#include <framework/cundoredo.h>

#include <pagehost/selection.h>

#include "framework/editor.h"
#include "framework/handlepoints.h"

class TestHandles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

void TestHandles::handlesAreHitAtConstantScreenDistance_data()
{
    addZoomRows();
}

void TestHandles::handlesAreHitAtConstantScreenDistance()
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

void TestHandles::edgeHandlesResizeOneSide_data()
{
    QTest::addColumn<QPointF>("side");
    QTest::addColumn<QPointF>("expectedPos");
    QTest::addColumn<QSizeF>("expectedSize");
    QTest::newRow("top") << QPointF(0, -1) << QPointF(100, 110) << QSizeF(200, 140);
    QTest::newRow("left") << QPointF(-1, 0) << QPointF(120, 100) << QSizeF(180, 150);
    QTest::newRow("right") << QPointF(1, 0) << QPointF(100, 100) << QSizeF(220, 150);
    QTest::newRow("bottom") << QPointF(0, 1) << QPointF(100, 100) << QSizeF(200, 160);
}

void TestHandles::edgeHandlesResizeOneSide()
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

void TestHandles::disabledHandleIsNotHit()
{
    Editor editor;
    auto *object = editor.add(QSizeF(200, 150), QPointF(100, 100));
    object->setSelected(true);
    object->setHandlesDisable(CObjAction::ACT_ResizeTop, true);
    CObjAction::ACT_Def action = CObjAction::ACT_Move;
    QVERIFY(!object->CheckHitTestHandlers(cornerHandle(*object, QPointF(0, -1)), action));
    QCOMPARE(action, CObjAction::ACT_Move);
}

void TestHandles::handlesOfAMultipleSelectionAreNotHit()
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

void TestHandles::nearMissOfAHandleKeepsTheSelection()
{
    Editor editor;
    auto *object = editor.add(QSizeF(200, 150), QPointF(100, 100));
    object->setSelected(true);
    editor.click(cornerHandle(*object, topLeft) - QPointF(10, 0));
    QVERIFY(object->isSelected());
    QCOMPARE(object->getClientRect(), QRectF(0, 0, 200, 150));
    QCOMPARE(undoStack()->count(), 0);
}

void TestHandles::insideOfASmallObjectMovesIt()
{
    Editor editor;
    auto *object = editor.add(QSizeF(16, 16), QPointF(100, 100));
    object->setSelected(true);
    editor.drag(QPointF(102, 102), QPointF(152, 142));
    QCOMPARE(object->getPos(), QPointF(150, 140));
    QCOMPARE(object->getClientRect(), QRectF(0, 0, 16, 16));
}

void TestHandles::cornerDragKeepsTheOppositeCorner_data()
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

void TestHandles::cornerDragKeepsTheOppositeCorner()
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

void TestHandles::resizeNeverTurnsTheObjectInsideOut()
{
    Editor editor;
    auto *object = editor.add(QSizeF(200, 150), QPointF(300, 250));
    object->setSelected(true);
    editor.drag(cornerHandle(*object, bottomRight), QPointF(100, 100));
    QCOMPARE(object->getPos(), QPointF(300, 250));
    QCOMPARE(object->getClientRect(), QRectF(0, 0, 1, 1));
}

void TestHandles::resizeOfAStubbornObjectKeepsTheOppositeCorner()
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

void TestHandles::undoneResizeIsExact()
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

void TestHandles::escapePutsAResizedObjectBack()
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

void TestHandles::rotationHandleTurnsAboutTheCentre()
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

void TestHandles::shiftRotatesInStepsOf15Degrees()
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

void TestHandles::undoneRotationIsExact()
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

void TestHandles::clickOnAMirrorHandleMirrors_data()
{
    QTest::addColumn<QPointF>("side");
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("right") << QPointF(1, 0) << true;
    QTest::newRow("bottom") << QPointF(0, 1) << false;
}

void TestHandles::clickOnAMirrorHandleMirrors()
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

void TestHandles::mirrorHandleLeftBeforeReleaseDoesNothing()
{
    Editor editor;
    auto *object = editor.add(QSizeF(200, 100), QPointF(200, 200));
    object->setSelected(true);
    editor.drag(outerHandle(*object, QPointF(1, 0)), QPointF(600, 500));
    QVERIFY(!object->isMirrored() && !object->isFlipped());
    QCOMPARE(object->getPos(), QPointF(200, 200));
    QCOMPARE(undoStack()->count(), 0);
}

QTEST_MAIN(TestHandles)
#include "test_handles.moc"
