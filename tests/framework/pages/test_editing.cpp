#include <framework/cundoredo.h>

#include <pagehost/selection.h>

#include "framework/editor.h"
#include "framework/handlepoints.h"

namespace {

/// Three objects above each other.
struct Pile
{
    static constexpr QPointF place{100, 80};
    CBaseObject *bottom, *middle, *top;

    explicit Pile(Editor &editor)
        : bottom(editor.add(QSizeF(100, 60), QPointF(50, 50)))
        , middle(editor.add(QSizeF(100, 60), QPointF(50, 50)))
        , top(editor.add(QSizeF(100, 60), QPointF(50, 50)))
    {
    }
};

} // namespace

class TestEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMoveRepaintsOnlyItsSurroundings();
    void clickSelectsOnlyTheObjectUnderTheMouse();
    void clickOnEmptyPageDeselects();
    void shiftClickAddsAndRemoves();
    void controlClickAddsAndRemoves();
    void controlClicksGoDownAndBeginAgainAtTheTop();
    void controlClickPassesLockedAndHiddenObjects();
    void controlClickBelowEndsOtherSelections();
    void controlDragOfACoveredObjectCopiesIt();
    void tremblingControlClickTakesTheOneBelow();
    void shiftAndControlAddAnObjectAboveTheSelectedOne();
    void clickInAMultipleSelectionSelectsOnlyThatOne();
    void rubberBandSelectsWhatItTouches();
    void topmostObjectIsSelected();

    void dragMovesTheObjectByTheMouseWay();
    void dragOfASelectionMovesAllInOneStep();
    void dragOfAnUnselectedObjectMovesOnlyThatOne();
    void tremblingClickMovesNothing();
    void selectedObjectIsDraggedWithShiftFromThePressOn();
    void controlDropsACopyAndLeavesTheObject();
    void controlLetGoBeforeTheDropMoves();
    void oldPlaceIsSeenDashedWhileDragging();
    void pressPassesThroughALockedObject();
    void selectedLockedObjectIsNotMoved();
    void lockedObjectStaysWhenTheSelectionIsMoved();
    void blockedDocumentRefusesEveryDrag();
    void escapePutsAMovedObjectBack();
    void undoneMoveIsExact();

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

void TestEditing::controlClicksGoDownAndBeginAgainAtTheTop()
{
    Editor editor;
    const Pile pile(editor);
    editor.click(Pile::place);
    QCOMPARE(editor.page->selectedObjects(), QVector<CBaseObject *>{pile.top});
    for (CBaseObject *next : {pile.middle, pile.bottom, pile.top, pile.middle}) {
        editor.click(Pile::place, Qt::ControlModifier);
        QCOMPARE(editor.page->selectedObjects(), QVector<CBaseObject *>{next});
    }
    QCOMPARE(undoStack()->count(), 0);
    QVERIFY(!editor.page->scene()->isDragging());
}

void TestEditing::controlClickPassesLockedAndHiddenObjects()
{
    Editor editor;
    const Pile pile(editor);
    auto *lowest = editor.add(QSizeF(100, 60), QPointF(50, 50));
    editor.page->moveObject(lowest, 0);
    pile.middle->setLocked(true);
    pile.bottom->QGraphicsItem::setVisible(false);
    editor.click(Pile::place);
    editor.click(Pile::place, Qt::ControlModifier);
    QCOMPARE(editor.page->selectedObjects(), QVector<CBaseObject *>{lowest});
    editor.click(Pile::place, Qt::ControlModifier);
    QCOMPARE(editor.page->selectedObjects(), QVector<CBaseObject *>{pile.top});
}

void TestEditing::controlClickBelowEndsOtherSelections()
{
    Editor editor;
    const Pile pile(editor);
    auto *aside = editor.add(QSizeF(100, 60), QPointF(300, 50));
    editor.page->select({pile.top, aside});
    editor.click(Pile::place, Qt::ControlModifier);
    QCOMPARE(editor.page->selectedObjects(), QVector<CBaseObject *>{pile.middle});
}

void TestEditing::controlDragOfACoveredObjectCopiesIt()
{
    Editor editor;
    const Pile pile(editor);
    editor.page->select({pile.bottom});
    QVector<QPointF> drops;
    connect(editor.page->scene(), &pagehost::PageScene::copyDropped, this,
            [&drops](const QPointF &way) { drops.append(way); });
    editor.drag(Pile::place, Pile::place + QPointF(130, 100), Qt::ControlModifier);
    QCOMPARE(drops, QVector<QPointF>{QPointF(130, 100)});
    QCOMPARE(editor.page->selectedObjects(), QVector<CBaseObject *>{pile.bottom});
}

void TestEditing::tremblingControlClickTakesTheOneBelow()
{
    Editor editor;
    const Pile pile(editor);
    editor.page->select({pile.top});
    QSignalSpy drops(editor.page->scene(), &pagehost::PageScene::copyDropped);
    editor.press(Pile::place, Qt::ControlModifier);
    editor.moveTo(Pile::place + QPointF(2, 0), Qt::ControlModifier);
    editor.release(Pile::place + QPointF(2, 0), Qt::ControlModifier);
    QCOMPARE(drops.count(), 0);
    QCOMPARE(editor.page->selectedObjects(), QVector<CBaseObject *>{pile.middle});
    QCOMPARE(pile.top->getPos(), QPointF(50, 50));
}

void TestEditing::shiftAndControlAddAnObjectAboveTheSelectedOne()
{
    Editor editor;
    const Pile pile(editor);
    editor.page->select({pile.bottom});
    editor.click(Pile::place, Qt::ShiftModifier | Qt::ControlModifier);
    QCOMPARE(editor.page->selectedObjects(), (QVector<CBaseObject *>{pile.bottom, pile.top}));
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

void TestEditing::selectedObjectIsDraggedWithShiftFromThePressOn()
{
    Editor editor;
    auto *object = editor.add(QSizeF(100, 60), QPointF(50, 50));
    object->setSelected(true);
    editor.drag({100, 80}, {200, 110}, Qt::ShiftModifier);
    QVERIFY(object->isSelected());
    QCOMPARE(object->getPos(), QPointF(150, 50));
}

void TestEditing::controlDropsACopyAndLeavesTheObject()
{
    Editor editor;
    auto *object = editor.add(QSizeF(100, 60), QPointF(50, 50));
    object->setSelected(true);
    QVector<QPointF> drops;
    connect(editor.page->scene(), &pagehost::PageScene::copyDropped, this,
            [&drops](const QPointF &way) { drops.append(way); });
    editor.drag({100, 80}, {230, 180}, Qt::ControlModifier);
    QCOMPARE(drops, QVector<QPointF>{QPointF(130, 100)});
    QCOMPARE(object->getPos(), QPointF(50, 50));
    // The return is recorded, so that a lesson shows the object at its place.
    QPointF recorded;
    QDataStream record(object->records.last().second);
    record >> recorded;
    QCOMPARE(recorded, QPointF(50, 50));
    QCOMPARE(undoStack()->count(), 0);
    QVERIFY(!editor.page->scene()->isDragging());
}

void TestEditing::controlLetGoBeforeTheDropMoves()
{
    Editor editor;
    auto *object = editor.add(QSizeF(100, 60), QPointF(50, 50));
    QVector<QPointF> drops;
    connect(editor.page->scene(), &pagehost::PageScene::copyDropped, this,
            [&drops](const QPointF &way) { drops.append(way); });
    editor.press({100, 80});
    editor.moveTo({200, 180}, Qt::ControlModifier);
    QCOMPARE(int(editor.view.viewport()->cursor().shape()), int(Qt::DragCopyCursor));
    QTest::keyRelease(editor.view.viewport(), Qt::Key_Control, Qt::ControlModifier);
    editor.release({200, 180});
    QVERIFY(drops.isEmpty());
    QCOMPARE(object->getPos(), QPointF(150, 150));
    QCOMPARE(undoStack()->count(), 1);
}

void TestEditing::oldPlaceIsSeenDashedWhileDragging()
{
    Editor editor;
    editor.add(QSizeF(100, 60), QPointF(60, 60));
    const auto colorsOfUpperSide = [&editor] {
        const QImage picture = editor.view.viewport()->grab().toImage();
        QSet<QRgb> colors;
        for (int x = 70; x < 150; ++x)
            colors.insert(picture.pixel(editor.at(QPointF(x, 60))));
        return colors;
    };
    editor.press({100, 80});
    editor.moveTo({500, 480});
    // Dashes and the page between them.
    QVERIFY(colorsOfUpperSide().size() > 1);
    editor.release({500, 480});
    QCoreApplication::processEvents();
    QCOMPARE(colorsOfUpperSide(), QSet<QRgb>{QColor(Qt::white).rgb()});
}

void TestEditing::pressPassesThroughALockedObject()
{
    Editor editor;
    auto *below = editor.add(QSizeF(100, 60), QPointF(50, 50));
    auto *locked = editor.add(QSizeF(100, 60), QPointF(50, 50));
    locked->setLocked(true);
    editor.drag(QPointF(100, 80), QPointF(110, 90));
    QVERIFY(!locked->isSelected());
    QCOMPARE(below->getPos(), QPointF(60, 60));
    QCOMPARE(locked->getPos(), QPointF(50, 50));
}

void TestEditing::selectedLockedObjectIsNotMoved()
{
    Editor editor;
    auto *object = editor.add(QSizeF(100, 60), QPointF(50, 50));
    object->setLocked(true);
    object->setSelected(true);
    editor.drag(QPointF(100, 80), QPointF(200, 200));
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
    QTest::newRow("rotation") << 0.0 << QPointF(100, -34) << int(Qt::OpenHandCursor);
    QTest::newRow("mirror") << 0.0 << QPointF(234, 50) << int(Qt::PointingHandCursor);
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
    addZoomRows();
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

/// Nothing is selected, so that there are no frames to repaint either.
void TestEditing::aMoveRepaintsOnlyItsSurroundings()
{
    Editor editor;
    auto *object = editor.add(QSizeF(100, 60), QPointF(200, 100));
    QCoreApplication::processEvents();
    QRectF repainted;
    connect(editor.page->scene(), &QGraphicsScene::changed, this, [&repainted](const QList<QRectF> &areas) {
        for (const QRectF &area : areas)
            repainted |= area;
    });
    object->CPSRootObject::setPos({210, 100}, false);
    QCoreApplication::processEvents();
    QVERIFY(repainted.contains(QRectF(200, 100, 110, 60)));
    QVERIFY(QRectF(150, 50, 220, 160).contains(repainted));
}

QTEST_MAIN(TestEditing)
#include "test_editing.moc"
