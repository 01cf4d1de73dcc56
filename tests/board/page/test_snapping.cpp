// Snapping and its guides, with mouse and keys in the board's window.

#include <board/boarddriver.h>

#include <page/pageview.h>

#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>

#include <QtCore/QtMath>
#include <QtTest/QtTest>
#include <QtWidgets/QToolTip>

using namespace boardtest;

namespace {

/// The page is 1280 × 720. Shapes are drawn before snapping is switched on.
struct Desk : BoardDriver
{
    void snap() { key(Qt::Key_N); }
    QColor colorAt(const QPointF &pos) const
    {
        return view().viewport()->grab().toImage().pixelColor(view().mapFromScene(pos));
    }
};

/// A place on a circle around a centre, clockwise from the top.
QPointF around(const QPointF &centre, double degrees)
{
    const double angle = qDegreesToRadians(degrees);
    return centre + 200 * QPointF(std::sin(angle), -std::cos(angle));
}

} // namespace

class TestSnapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void movedShapeCatchesWithItsCentre();
    void movedShapeCatchesAtTheMiddleOfThePage();
    void movedShapeCatchesAtEqualGaps();
    void movedShapeCatchesAtTheGrid();
    void resizedCornerCatchesAtAnotherShape();
    void controlPointCatchesAtAnotherShape();
    void movedShapeCatchesAtAControlPoint();
    void turnedShapeCatchesAtFifteenDegrees();
    void guideIsSeenWhileAShapeIsCaught();
    void altLetsGoWhileItIsHeld();
    void altLeavesTheKeysOnThePage_data();
    void altLeavesTheKeysOnThePage();
};

void TestSnapping::movedShapeCatchesWithItsCentre()
{
    Desk desk;
    desk.draw(rectangle, {500, 300}, {700, 420});
    CBaseObject *shape = desk.draw(rectangle, {100, 560}, {200, 630});
    desk.snap();
    // The centre comes to 603; the other's is at 600.
    desk.drag({150, 595}, {603, 595});
    QCOMPARE(desk.placeOf(shape), QRectF(550, 560, 100, 70));
}

void TestSnapping::movedShapeCatchesAtTheMiddleOfThePage()
{
    Desk desk;
    CBaseObject *shape = desk.draw(rectangle, {100, 100}, {200, 160});
    desk.snap();
    desk.drag({150, 130}, {643, 357});
    QCOMPARE(desk.placeOf(shape), QRectF(590, 330, 100, 60));
}

void TestSnapping::movedShapeCatchesAtEqualGaps()
{
    Desk desk;
    desk.draw(rectangle, {100, 100}, {200, 160});
    desk.draw(rectangle, {260, 100}, {360, 160});
    CBaseObject *shape = desk.draw(rectangle, {700, 100}, {800, 160});
    desk.snap();
    // The gap of the others is 60 wide.
    desk.drag({750, 130}, {474, 130});
    QCOMPARE(desk.placeOf(shape), QRectF(420, 100, 100, 60));
}

void TestSnapping::movedShapeCatchesAtTheGrid()
{
    Desk desk;
    CBaseObject *shape = desk.draw(rectangle, {100, 560}, {196, 624});
    desk.key(Qt::Key_G);
    desk.snap();
    QCOMPARE(desk.scene().grid(), 32.0);
    desk.drag({148, 592}, {148 + 190, 592 - 51});
    QCOMPARE(desk.placeOf(shape), QRectF(288, 512, 96, 64));
    desk.key(Qt::Key_G);
}

void TestSnapping::resizedCornerCatchesAtAnotherShape()
{
    Desk desk;
    desk.draw(rectangle, {500, 300}, {700, 420});
    CBaseObject *shape = desk.draw(rectangle, {100, 560}, {200, 630});
    desk.snap();
    const QPointF corner = desk.handle(CObjAction::ACT_ResizeTopRight);
    // The corner comes to (496, 424).
    desk.drag(corner, corner + QPointF(296, -136));
    QCOMPARE(desk.placeOf(shape), QRectF(100, 420, 400, 210));
}

void TestSnapping::controlPointCatchesAtAnotherShape()
{
    Desk desk;
    desk.draw(rectangle, {580, 560}, {700, 640});
    // The corner of the arms is at 33 of 100 along both sides.
    desk.draw(QStringLiteral("declared.cross"), {500, 100}, {700, 300});
    desk.snap();
    desk.hold({566, 166}, {577, 166});
    QCOMPARE(QToolTip::text(), QStringLiteral("40 \u00d7 68"));
    desk.moveTo({577, 166}, Qt::AltModifier);
    QCOMPARE(QToolTip::text(), QStringLiteral("46 \u00d7 68"));
    desk.release({577, 166});
}

void TestSnapping::movedShapeCatchesAtAControlPoint()
{
    Desk desk;
    desk.draw(QStringLiteral("declared.cross"), {500, 100}, {700, 300});
    CBaseObject *shape = desk.draw(rectangle, {100, 560}, {200, 630});
    desk.snap();
    // The left side comes to 569, the point of the cross is at 566.
    desk.drag({150, 595}, {150 + 469, 595});
    QCOMPARE(desk.placeOf(shape), QRectF(566, 560, 100, 70));
}

void TestSnapping::turnedShapeCatchesAtFifteenDegrees()
{
    Desk desk;
    CBaseObject *shape = desk.draw(rectangle, {500, 300}, {700, 420});
    desk.snap();
    const QPointF centre(600, 360);
    desk.drag(desk.handle(CObjAction::ACT_Rotate), around(centre, 43));
    QCOMPARE(shape->rotation(), 45.0);
    desk.key(Qt::Key_Z, Qt::ControlModifier);
    desk.drag(desk.handle(CObjAction::ACT_Rotate), around(centre, 43), Qt::AltModifier);
    QVERIFY2(qAbs(shape->rotation() - 43) < 0.3, qPrintable(QString::number(shape->rotation())));
}

void TestSnapping::guideIsSeenWhileAShapeIsCaught()
{
    Desk desk;
    desk.draw(rectangle, {500, 300}, {700, 420});
    desk.draw(rectangle, {100, 560}, {200, 630});
    desk.snap();
    // Between both shapes, where the guide through both left sides runs.
    const QPointF between(500, 490);
    desk.hold({150, 595}, {540, 595});
    QCOMPARE(desk.colorAt(between), QColor(Qt::white));
    desk.moveTo({553, 595});
    QVERIFY(desk.colorAt(between) != QColor(Qt::white));
    desk.moveTo({553, 595}, Qt::AltModifier);
    QCOMPARE(desk.colorAt(between), QColor(Qt::white));
    desk.moveTo({553, 595});
    desk.key(Qt::Key_Escape);
    QCOMPARE(desk.colorAt(between), QColor(Qt::white));
    desk.release({553, 595});
}

void TestSnapping::altLetsGoWhileItIsHeld()
{
    Desk desk;
    desk.draw(rectangle, {500, 300}, {700, 420});
    CBaseObject *shape = desk.draw(rectangle, {100, 560}, {200, 630});
    desk.snap();
    desk.hold({150, 595}, {553, 595});
    QCOMPARE(desk.placeOf(shape), QRectF(500, 560, 100, 70));
    desk.moveTo({553, 595}, Qt::AltModifier);
    QCOMPARE(desk.placeOf(shape), QRectF(503, 560, 100, 70));
    desk.moveTo({553, 595});
    QCOMPARE(desk.placeOf(shape), QRectF(500, 560, 100, 70));
    desk.moveTo({553, 595}, Qt::AltModifier);
    desk.release({553, 595}, Qt::AltModifier);
    QCOMPARE(desk.placeOf(shape), QRectF(503, 560, 100, 70));
}

void TestSnapping::altLeavesTheKeysOnThePage_data()
{
    QTest::addColumn<bool>("isHeldToTheEnd");
    QTest::newRow("let go after the drag") << true;
    QTest::newRow("let go while the mouse stands still") << false;
}

/// The menus, which Alt chooses otherwise, get nothing.
void TestSnapping::altLeavesTheKeysOnThePage()
{
    Desk desk;
    CBaseObject *shape = desk.draw(rectangle, {500, 300}, {700, 420});
    desk.snap();
    QFETCH(bool, isHeldToTheEnd);
    desk.hold({600, 360}, {633, 341}, Qt::AltModifier);
    if (!isHeldToTheEnd) {
        desk.moveTo({633, 341});
        desk.keyIn(&desk.view(), Qt::Key_Alt);
    }
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(&desk.view()));
    desk.release({633, 341}, Qt::AltModifier);
    QCOMPARE(desk.placeOf(shape), QRectF(533, 281, 200, 120));
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(&desk.view()));
    desk.keyIn(QApplication::focusWidget(), Qt::Key_Right);
    QCOMPARE(desk.placeOf(shape), QRectF(541, 281, 200, 120));
}

QTEST_MAIN(TestSnapping)
#include "test_snapping.moc"
