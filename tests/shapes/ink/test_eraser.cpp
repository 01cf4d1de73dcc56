// Rubbing out strokes, whole or in parts. The eraser is 20 wide.

#include "shapes/writingdesk.h"

#include <support/listed.h>

using pagehost::ToolRole;

namespace {

/// Three level strokes, 100 apart, from x = 100 to x = 300.
struct Lines : WritingDesk
{
    explicit Lines(int variant)
        : WritingDesk(ToolRole::Pen)
    {
        for (const double y : {100.0, 200.0, 300.0})
            drawAlong({{100, y}, {200, y}, {300, y}});
        take(ToolRole::Eraser, {QColor(), 20, variant});
    }
    QVector<QRectF> places() const
    {
        QVector<QRectF> places;
        for (const CBaseObject *object : support::listed(page->objects()))
            places.append(placeOf(object));
        return places;
    }
};

} // namespace

class TestEraser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickTakesTheStrokeUnderIt();
    void aMissTakesNothing();
    void aDragIsOneStep();
    void aFastDragMissesNothing();
    void partsAreLeftWhereTheyStood();
    void shiftDoesTheOtherOfTheTwo();
    void otherObjectsAndLockedStrokesStay();
    void escapeBringsBackWhatIsRubbedOut();
    void aTurnedStrokeIsRubbedWhereItIsSeen();
};

void TestEraser::aClickTakesTheStrokeUnderIt()
{
    Lines desk(pagehost::WholeStrokes);
    // 10 of the eraser and 2.5 of the line.
    desk.click({250, 212});
    QCOMPARE(desk.places(), QVector<QRectF>({{96, 96, 208, 8}, {96, 296, 208, 8}}));
    undoStack()->undo();
    QCOMPARE(desk.places(), QVector<QRectF>({{96, 96, 208, 8}, {96, 196, 208, 8}, {96, 296, 208, 8}}));
}

void TestEraser::aMissTakesNothing()
{
    Lines desk(pagehost::WholeStrokes);
    desk.click({250, 213});
    QCOMPARE(desk.page->objectCount(), 3);
    QCOMPARE(undoStack()->count(), 3);
}

void TestEraser::aDragIsOneStep()
{
    Lines desk(pagehost::WholeStrokes);
    desk.drawAlong({{200, 80}, {200, 150}, {200, 320}});
    QCOMPARE(desk.page->objectCount(), 0);
    QCOMPARE(undoStack()->count(), 4);
    undoStack()->undo();
    QCOMPARE(desk.page->objectCount(), 3);
}

void TestEraser::aFastDragMissesNothing()
{
    Lines desk(pagehost::WholeStrokes);
    desk.drawAlong({{200, 50}, {200, 400}});
    QCOMPARE(desk.page->objectCount(), 0);
}

void TestEraser::partsAreLeftWhereTheyStood()
{
    Lines desk(pagehost::StrokeParts);
    CBaseObject *below = desk.object(0);
    CBaseObject *above = desk.object(2);
    desk.click({200, 200});
    QCOMPARE(desk.page->objectCount(), 4);
    QCOMPARE(desk.object(0), below);
    QCOMPARE(desk.object(3), above);
    // Cut a little outside of the eraser's edge, at pieces of a quarter of its radius.
    const QVector<QRectF> places = desk.places();
    for (const QRectF &place : {places[1], places[2]}) {
        QCOMPARE(place.top(), 196.0);
        QVERIFY(place.width() > 93 && place.width() < 98.5);
    }
    QCOMPARE(qMin(places[1].left(), places[2].left()), 96.0);
    QCOMPARE(qMax(places[1].right(), places[2].right()), 304.0);
    undoStack()->undo();
    QCOMPARE(desk.page->objectCount(), 3);
    undoStack()->redo();
    QCOMPARE(desk.places(), places);
}

void TestEraser::shiftDoesTheOtherOfTheTwo()
{
    Lines desk(pagehost::WholeStrokes);
    desk.click({200, 200}, Qt::ShiftModifier);
    QCOMPARE(desk.page->objectCount(), 4);
}

void TestEraser::otherObjectsAndLockedStrokesStay()
{
    Lines desk(pagehost::WholeStrokes);
    CBaseObject *arrow = shapes().createObject(QStringLiteral("shapes.blockarrow"));
    desk.page->addObject(arrow);
    arrow->setPos({150, 150}, false);
    QVERIFY(pagehost::setObjectsLocked({desk.object(1)}, true));
    desk.drawAlong({{200, 50}, {200, 400}});
    QCOMPARE(desk.page->objectCount(), 2);
    QVERIFY(desk.page->contains(arrow));
}

void TestEraser::escapeBringsBackWhatIsRubbedOut()
{
    Lines desk(pagehost::StrokeParts);
    const QVector<QRectF> before = desk.places();
    desk.press({200, 100});
    desk.moveTo({200, 310});
    QCOMPARE(desk.page->objectCount(), 6);
    desk.pressKey(Qt::Key_Escape);
    desk.release({200, 310});
    QCOMPARE(desk.places(), before);
    QCOMPARE(undoStack()->count(), 3);
}

void TestEraser::aTurnedStrokeIsRubbedWhereItIsSeen()
{
    Lines desk(pagehost::WholeStrokes);
    // About its middle, (200, 200), so that it stands upright.
    QVERIFY(pagehost::rotateObjects({desk.object(1)}, 90));
    desk.click({290, 200});
    QCOMPARE(desk.page->objectCount(), 3);
    desk.click({200, 270});
    QCOMPARE(desk.page->objectCount(), 2);
}

QTEST_MAIN(TestEraser)
#include "test_eraser.moc"
