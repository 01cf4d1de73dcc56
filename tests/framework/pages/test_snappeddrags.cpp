#include <pagehost/objectplugin.h>
#include <pagehost/recorder.h>
#include <pagehost/writing.h>

#include "framework/editor.h"
#include "framework/handlepoints.h"
#include "support/virtualtime.h"

#include <cmath>

namespace {

const QColor guideColor(0xc2, 0x18, 0x8f);

/// An object of 100 × 60 at (100, 100), selected, and one at (400, 300) that it can catch at.
struct Desk : Editor
{
    explicit Desk(double zoom = 1)
        : Editor(zoom)
        , object(add(QSizeF(100, 60), QPointF(100, 100)))
        , other(add(QSizeF(100, 60), QPointF(400, 300)))
    {
        page->scene()->setSnapping(true);
        page->select({object});
    }

    /// Presses the object and moves it to this place, as far as nothing catches.
    void carryTo(const QPointF &pos, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        press(object->getPos() + QPointF(50, 30), modifiers);
        moveTo(pos + QPointF(50, 30), modifiers);
    }
    void carryOn(const QPointF &pos, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        moveTo(pos + QPointF(50, 30), modifiers);
    }
    /// Whether the guide colour is seen there, in scene coordinates.
    bool showsGuideAt(const QPointF &pos) const
    {
        const QImage picture = const_cast<QGraphicsView &>(view).viewport()->grab().toImage();
        for (const int aside : {-1, 0, 1})
            for (const QPoint &way : {QPoint(aside, 0), QPoint(0, aside)})
                if (picture.pixelColor(at(pos) + way) == guideColor)
                    return true;
        return false;
    }

    TestObject *object;
    TestObject *other;
};

/// Tells of its control point, which moves as it is told.
class TellingObject : public ControlPointObject
{
public:
    using ControlPointObject::ControlPointObject;

    bool GetSpecialProperty(int id, QDataStream &out) override
    {
        if (id != pagehost::ControlPoints)
            return ControlPointObject::GetSpecialProperty(id, out);
        out << qint32(1) << qint32(1) << QString() << controlPoint << controlPoint << QRectF(0, 0, 200, 100)
            << movesAcross << true;
        return true;
    }

    bool movesAcross = true;
};

/// A place on a circle around the middle of an object, clockwise from the top.
QPointF around(const QPointF &centre, double degrees)
{
    const double angle = degrees * 3.14159265358979323846 / 180;
    return centre + 280 * QPointF(std::sin(angle), -std::cos(angle));
}

} // namespace

class TestSnappedDrags : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void movedObjectCatchesAtAnother_data();
    void movedObjectCatchesAtAnother();
    void caughtObjectIsLetGoAtTenPixels();
    void fingersCatchAtTenPixels();
    void movedSelectionCatchesAsOne();
    void movedObjectsDontCatchAtEachOther();
    void movedObjectCatchesAtTheMiddleOfThePage();
    void movedObjectCatchesAtTheGrid();
    void nothingCatchesWithoutSnapping();
    void altLetsGoWhileItIsHeld();
    void caughtMoveIsRecordedAndUndone();
    void tremblingClickIsNotCaught();
    void resizedCornerCatches();
    void resizedSideCatches();
    void resizedCornerOfATurnedObjectCatches();
    void turningCatchesAtFifteenDegrees_data();
    void turningCatchesAtFifteenDegrees();
    void draggedControlPointCatches();
    void controlPointCatchesOnlyAlongItsAxes();
    void movedObjectCatchesAtAControlPoint();
    void shiftMovesAlongAnAxis();
    void shiftKeepsProportionsAtACorner_data();
    void shiftKeepsProportionsAtACorner();
    void shiftedCornerCatchesInProportion();
    void shiftCountsWithoutAMove();
    void guideIsSeenUntilAMomentAfterTheDrop();
    void writingTakesTheGuideAway();
    void escapeTakesTheGuideAway();
    void gridIsSeen();
};

void TestSnappedDrags::movedObjectCatchesAtAnother_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<QPointF>("place");
    QTest::newRow("left edges") << 1.0 << QPointF(396, 500) << QPointF(400, 500);
    QTest::newRow("top edges") << 1.0 << QPointF(550, 305) << QPointF(550, 300);
    QTest::newRow("both") << 1.0 << QPointF(395, 305) << QPointF(400, 300);
    QTest::newRow("too far") << 1.0 << QPointF(393, 500) << QPointF(393, 500);
    QTest::newRow("pixels of a small page") << 0.5 << QPointF(390, 500) << QPointF(400, 500);
}

void TestSnappedDrags::movedObjectCatchesAtAnother()
{
    QFETCH(double, zoom);
    QFETCH(QPointF, to);
    QFETCH(QPointF, place);
    Desk desk(zoom);
    desk.carryTo(to);
    QCOMPARE(desk.object->getPos(), place);
    desk.release(to + QPointF(50, 30));
    QCOMPARE(desk.object->getPos(), place);
}

void TestSnappedDrags::caughtObjectIsLetGoAtTenPixels()
{
    Desk desk;
    desk.carryTo({403, 500});
    QCOMPARE(desk.object->getPos(), QPointF(400, 500));
    desk.carryOn({409, 500});
    QCOMPARE(desk.object->getPos(), QPointF(400, 500));
    desk.carryOn({410, 500});
    QCOMPARE(desk.object->getPos(), QPointF(410, 500));
    desk.carryOn({407, 500});
    QCOMPARE(desk.object->getPos(), QPointF(407, 500));
}

void TestSnappedDrags::fingersCatchAtTenPixels()
{
    Desk desk;
    desk.press({150, 130});
    const QPointF pos = desk.at({460, 530});
    QMouseEvent move(QEvent::MouseMove, pos, pos, desk.view.viewport()->mapToGlobal(pos.toPoint()), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier, Qt::MouseEventSynthesizedByQt);
    QApplication::sendEvent(desk.view.viewport(), &move);
    QCOMPARE(desk.object->getPos(), QPointF(400, 500));
}

void TestSnappedDrags::movedSelectionCatchesAsOne()
{
    Desk desk;
    auto *second = desk.add(QSizeF(50, 40), QPointF(220, 90));
    desk.page->select({desk.object, second});
    // Together they reach from 100 to 270 across; the right side comes to 503.
    desk.carryTo({333, 500});
    QCOMPARE(desk.object->getPos(), QPointF(330, 500));
    QCOMPARE(second->getPos(), QPointF(450, 490));
}

void TestSnappedDrags::movedObjectsDontCatchAtEachOther()
{
    Desk desk;
    auto *second = desk.add(QSizeF(100, 60), QPointF(104, 200));
    desk.page->select({desk.object, second});
    desk.carryTo({203, 103});
    QCOMPARE(desk.object->getPos(), QPointF(203, 103));
}

void TestSnappedDrags::movedObjectCatchesAtTheMiddleOfThePage()
{
    Desk desk;
    desk.page->removeObject(desk.other);
    // The page is 1280 × 720.
    desk.carryTo({593, 333});
    QCOMPARE(desk.object->getPos(), QPointF(590, 330));
}

void TestSnappedDrags::movedObjectCatchesAtTheGrid()
{
    Desk desk;
    desk.page->removeObject(desk.other);
    desk.page->scene()->setGrid(40);
    desk.carryTo({204, 277});
    QCOMPARE(desk.object->getPos(), QPointF(200, 280));
}

void TestSnappedDrags::nothingCatchesWithoutSnapping()
{
    Desk desk;
    desk.page->scene()->setSnapping(false);
    desk.carryTo({403, 303});
    QCOMPARE(desk.object->getPos(), QPointF(403, 303));
}

void TestSnappedDrags::altLetsGoWhileItIsHeld()
{
    Desk desk;
    desk.carryTo({403, 500});
    QCOMPARE(desk.object->getPos(), QPointF(400, 500));
    QTest::keyPress(desk.view.viewport(), Qt::Key_Alt);
    QCOMPARE(desk.object->getPos(), QPointF(403, 500));
    desk.carryOn({404, 500}, Qt::AltModifier);
    QCOMPARE(desk.object->getPos(), QPointF(404, 500));
    QTest::keyRelease(desk.view.viewport(), Qt::Key_Alt, Qt::AltModifier);
    QCOMPARE(desk.object->getPos(), QPointF(400, 500));
}

void TestSnappedDrags::caughtMoveIsRecordedAndUndone()
{
    Desk desk;
    desk.object->records.clear();
    desk.carryTo({403, 500});
    desk.release({453, 530});
    QCOMPARE(desk.object->records.last().first, int(pagehost::ActionMoved));
    QPointF recorded;
    QDataStream record(desk.object->records.last().second);
    record >> recorded;
    QCOMPARE(recorded, QPointF(400, 500));
    QCOMPARE(undoStack()->count(), 1);
    undoStack()->undo();
    QCOMPARE(desk.object->getPos(), QPointF(100, 100));
    undoStack()->redo();
    QCOMPARE(desk.object->getPos(), QPointF(400, 500));
}

void TestSnappedDrags::tremblingClickIsNotCaught()
{
    Desk desk;
    desk.object->CPSRootObject::setPos({397, 100}, false);
    desk.carryTo({398, 100});
    desk.release({448, 130});
    QCOMPARE(desk.object->getPos(), QPointF(397, 100));
    QCOMPARE(undoStack()->count(), 0);
}

void TestSnappedDrags::resizedCornerCatches()
{
    Desk desk;
    const QPointF corner = cornerHandle(*desk.object, bottomRight);
    desk.press(corner);
    // The corner comes to (396, 305).
    desk.moveTo(corner + QPointF(196, 145));
    desk.release(corner + QPointF(196, 145));
    QCOMPARE(desk.object->getPos(), QPointF(100, 100));
    QCOMPARE(desk.object->getClientRect(), QRectF(0, 0, 300, 200));
}

void TestSnappedDrags::resizedSideCatches()
{
    Desk desk;
    desk.object->CPSRootObject::setPos({600, 100}, false);
    const QPointF side = cornerHandle(*desk.object, {-1, 0});
    desk.press(side);
    // The left side comes to 503; the other axis is free.
    desk.moveTo(side + QPointF(-97, 170));
    QCOMPARE(desk.object->getPos(), QPointF(500, 100));
    QCOMPARE(desk.object->getClientRect(), QRectF(0, 0, 200, 60));
}

void TestSnappedDrags::resizedCornerOfATurnedObjectCatches()
{
    Desk desk;
    desk.object->setRotateByPoint(30, {0, 0}, false);
    const QPointF corner = cornerHandle(*desk.object, bottomRight);
    const QPointF shown = desk.object->mapToScene(QPointF(100, 60));
    desk.press(corner);
    const QPointF to = corner + (QPointF(397, 303) - shown);
    desk.moveTo(to);
    QVERIFY(isNear(desk.object->mapToScene(desk.object->getClientRect().bottomRight()), QPointF(400, 300), 1e-6));
    QVERIFY(isNear(desk.object->getPos(), QPointF(100, 100), 1e-6));
}

void TestSnappedDrags::turningCatchesAtFifteenDegrees_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<bool>("snapping");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<double>("turned");
    QTest::newRow("near") << 43.0 << true << int(Qt::NoModifier) << 45.0;
    QTest::newRow("near from above") << 47.0 << true << int(Qt::NoModifier) << 45.0;
    QTest::newRow("upright again") << 358.0 << true << int(Qt::NoModifier) << 0.0;
    QTest::newRow("too far") << 42.0 << true << int(Qt::NoModifier) << 42.0;
    QTest::newRow("Alt") << 43.0 << true << int(Qt::AltModifier) << 43.0;
    QTest::newRow("without snapping") << 43.0 << false << int(Qt::NoModifier) << 43.0;
    QTest::newRow("Shift, from anywhere") << 51.0 << false << int(Qt::ShiftModifier) << 45.0;
}

void TestSnappedDrags::turningCatchesAtFifteenDegrees()
{
    QFETCH(double, degrees);
    QFETCH(bool, snapping);
    QFETCH(int, modifiers);
    QFETCH(double, turned);
    Desk desk;
    desk.page->scene()->setSnapping(snapping);
    desk.object->CPSRootObject::setPos({400, 320}, false);
    const QPointF centre(450, 350);
    desk.press(outerHandle(*desk.object, {0, -1}));
    desk.moveTo(around(centre, degrees), Qt::KeyboardModifiers(modifiers));
    if (std::fmod(turned, 15) == 0)
        QCOMPARE(desk.object->rotation(), turned);
    else // the mouse stands on whole pixels
        QVERIFY2(std::abs(desk.object->rotation() - turned) < 0.3,
                 qPrintable(QString::number(desk.object->rotation())));
    QVERIFY(isNear(desk.object->mapToScene(QPointF(50, 30)), centre, 1e-6));
}

void TestSnappedDrags::draggedControlPointCatches()
{
    Desk desk;
    auto *object = desk.add<TellingObject>(QSizeF(200, 100), QPointF(250, 450));
    desk.page->select({object});
    // The point is at (300, 480); the press misses its middle by (2, 1).
    desk.press({302, 481});
    desk.moveTo({302 + 97, 481 - 20});
    QCOMPARE(object->controlPoint, QPointF(150, 10));
    desk.moveTo({302 + 97, 481 - 20}, Qt::AltModifier);
    QCOMPARE(object->controlPoint, QPointF(147, 10));
}

void TestSnappedDrags::controlPointCatchesOnlyAlongItsAxes()
{
    Desk desk;
    auto *object = desk.add<TellingObject>(QSizeF(200, 100), QPointF(250, 450));
    object->movesAcross = false;
    desk.page->select({object});
    desk.press({300, 480});
    desk.moveTo({300 + 97, 480 - 118});
    QCOMPARE(object->controlPoint, QPointF(147, 30 - 120));
}

void TestSnappedDrags::movedObjectCatchesAtAControlPoint()
{
    Desk desk;
    desk.page->removeObject(desk.other);
    auto *partner = desk.add<TellingObject>(QSizeF(200, 100), QPointF(700, 500));
    partner->controlPoint = {70, 30};
    // The left side comes near the point at 770.
    desk.carryTo({773, 300});
    QCOMPARE(desk.object->getPos(), QPointF(770, 300));
}

void TestSnappedDrags::shiftMovesAlongAnAxis()
{
    Desk desk;
    desk.page->scene()->setSnapping(false);
    desk.carryTo({180, 130});
    QCOMPARE(desk.object->getPos(), QPointF(180, 130));
    desk.carryOn({181, 130}, Qt::ShiftModifier);
    QCOMPARE(desk.object->getPos(), QPointF(181, 100));
    desk.carryOn({120, 190}, Qt::ShiftModifier);
    QCOMPARE(desk.object->getPos(), QPointF(100, 190));
    desk.release({170, 220}, Qt::ShiftModifier);
    QCOMPARE(desk.object->getPos(), QPointF(100, 190));
}

void TestSnappedDrags::shiftKeepsProportionsAtACorner_data()
{
    QTest::addColumn<QPointF>("side");
    QTest::addColumn<QPointF>("way");
    QTest::addColumn<QPointF>("pos");
    QTest::addColumn<QSizeF>("size");
    // The axis that grows more decides: 50 of 100, 60 of 60.
    QTest::newRow("across") << bottomRight << QPointF(50, 6) << QPointF(100, 100) << QSizeF(150, 90);
    QTest::newRow("down") << bottomRight << QPointF(50, 60) << QPointF(100, 100) << QSizeF(200, 120);
    QTest::newRow("from the other corner") << topLeft << QPointF(-50, 0) << QPointF(50, 70) << QSizeF(150, 90);
    QTest::newRow("smaller") << bottomRight << QPointF(-50, -30) << QPointF(100, 100) << QSizeF(50, 30);
}

void TestSnappedDrags::shiftKeepsProportionsAtACorner()
{
    QFETCH(QPointF, side);
    QFETCH(QPointF, way);
    QFETCH(QPointF, pos);
    QFETCH(QSizeF, size);
    Desk desk;
    desk.page->scene()->setSnapping(false);
    const QPointF corner = cornerHandle(*desk.object, side);
    desk.press(corner);
    desk.moveTo(corner + way, Qt::ShiftModifier);
    QVERIFY(isNear(desk.object->getPos(), pos));
    QCOMPARE(desk.object->getClientRect().size(), size);
}

void TestSnappedDrags::shiftedCornerCatchesInProportion()
{
    Desk desk;
    const QPointF corner = cornerHandle(*desk.object, bottomRight);
    desk.press(corner);
    // 296 wide without snapping; the right side catches at 400.
    desk.moveTo(corner + QPointF(196, 0), Qt::ShiftModifier);
    QVERIFY(isNear(desk.object->getPos(), QPointF(100, 100)));
    QCOMPARE(desk.object->getClientRect().size(), QSizeF(300, 180));
}

void TestSnappedDrags::shiftCountsWithoutAMove()
{
    Desk desk;
    desk.page->scene()->setSnapping(false);
    desk.carryTo({180, 130});
    QTest::keyPress(desk.view.viewport(), Qt::Key_Shift);
    QCOMPARE(desk.object->getPos(), QPointF(180, 100));
    QTest::keyRelease(desk.view.viewport(), Qt::Key_Shift, Qt::ShiftModifier);
    QCOMPARE(desk.object->getPos(), QPointF(180, 130));
}

void TestSnappedDrags::guideIsSeenUntilAMomentAfterTheDrop()
{
    Desk desk;
    desk.carryTo({403, 500});
    QCoreApplication::processEvents();
    QVERIFY(desk.showsGuideAt({400, 420}));
    desk.release({453, 530});
    support::pass(390);
    QVERIFY(desk.showsGuideAt({400, 420}));
    support::pass(20);
    QVERIFY(!desk.showsGuideAt({400, 420}));
}

/// Whoever looks at the object behind the letters sees it without.
void TestSnappedDrags::writingTakesTheGuideAway()
{
    Desk desk;
    desk.carryTo({403, 500});
    desk.release({453, 530});
    QVERIFY(desk.showsGuideAt({400, 420}));
    pagehost::setBeingWritten(*desk.object, true);
    QVERIFY(!desk.showsGuideAt({400, 420}));
}

void TestSnappedDrags::escapeTakesTheGuideAway()
{
    Desk desk;
    desk.carryTo({403, 500});
    desk.pressKey(Qt::Key_Escape);
    QCoreApplication::processEvents();
    QVERIFY(!desk.showsGuideAt({400, 420}));
    QCOMPARE(desk.object->getPos(), QPointF(100, 100));
}

void TestSnappedDrags::gridIsSeen()
{
    Desk desk;
    const auto shown = [&desk](const QPointF &pos) {
        return desk.view.viewport()->grab().toImage().pixelColor(desk.at(pos)) != QColor(Qt::white);
    };
    QVERIFY(!shown({600, 220}));
    desk.page->scene()->setGrid(40);
    QVERIFY(shown({600, 220}));
    QVERIFY(!shown({610, 220}));
    desk.document.setDocumentState(1);
    QVERIFY(!shown({600, 220}));
}

QTEST_MAIN(TestSnappedDrags)
#include "test_snappeddrags.moc"
