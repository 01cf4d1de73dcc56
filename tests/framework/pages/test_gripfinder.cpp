// The grip that a press takes, by the device that points, and what is drawn of it.

#include <pagehost/objectplugin.h>
#include <pagehost/pointer.h>

#include "framework/editor.h"
#include "framework/handlepoints.h"

using pagehost::Grip;
using pagehost::Pointer;

namespace {

const QColor pointColor(0xb4, 0x50, 0x0b);

/// Tells of its control point, and takes presses as far from it as it likes.
class TellingObject : public ControlPointObject
{
public:
    using ControlPointObject::ControlPointObject;

    bool GetSpecialProperty(int id, QDataStream &out) override
    {
        if (id != pagehost::ControlPoints)
            return ControlPointObject::GetSpecialProperty(id, out);
        out << qint32(1) << qint32(1) << QString() << controlPoint << controlPoint << QRectF(0, 0, 200, 150) << true
            << true;
        return true;
    }
    bool CheckHitTestHandlers(const QPointF &scenePos, CObjAction::ACT_Def &action) override
    {
        return isReached(mapFromScene(scenePos)) || ControlPointObject::CheckHitTestHandlers(scenePos, action);
    }
    bool isReached(const QPointF &pos) const
    {
        return QRectF(controlPoint - QPointF(reach, reach), QSizeF(2 * reach, 2 * reach)).contains(pos);
    }

    double reach = 6;
};

/// A desk with a hand that points with any device.
struct Desk : Editor
{
    using Editor::Editor;

    Grip gripAt(const QPointF &pos, Pointer pointer = Pointer::Mouse) const
    {
        return page->scene()->gripAt(pos, pointer);
    }
    CObjAction::ACT_Def handleAt(const QPointF &pos, Pointer pointer = Pointer::Mouse) const
    {
        const Grip grip = gripAt(pos, pointer);
        return grip.kind == Grip::Handle || grip.kind == Grip::FrameHandle ? grip.action : CObjAction::ACT_None;
    }
    void send(QEvent::Type type, const QPointF &pos, Pointer pointer)
    {
        page->scene()->setMadeMouse(pointer);
        const bool isMove = type == QEvent::MouseMove;
        const QPointF local = at(pos);
        QMouseEvent event(type, local, local, view.viewport()->mapToGlobal(local.toPoint()),
                          isMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier,
                          pointer == Pointer::Mouse ? Qt::MouseEventNotSynthesized : Qt::MouseEventSynthesizedByQt);
        QApplication::sendEvent(view.viewport(), &event);
    }
    void dragWith(Pointer pointer, const QPointF &from, const QPointF &to)
    {
        send(QEvent::MouseButtonPress, from, pointer);
        send(QEvent::MouseMove, to, pointer);
        send(QEvent::MouseButtonRelease, to, pointer);
    }
    template<typename Object = TestObject> Object *addSelected(const QSizeF &size = {200, 150})
    {
        auto *object = add<Object>(size, QPointF(100, 100));
        page->select({object});
        return object;
    }
};

void addPointerRows()
{
    QTest::addColumn<int>("pointer");
    QTest::addColumn<double>("least");
}

} // namespace

class TestGripFinder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deviceDecidesHowNearAPressHasToBe_data();
    void deviceDecidesHowNearAPressHasToBe();
    void pointIsReachedAsFarAsAHandle_data();
    void pointIsReachedAsFarAsAHandle();
    void nearestOfTwoHandlesIsTaken();
    void nearestOfPointAndCornerIsTaken();
    void cornerIsDraggedThoughTheObjectTakesItForItsPoint();
    void pressBesideAPointMovesItByTheWayOnly();
    void sideHandlesHideOnShortSides();
    void sideHandlesOfTheCommonFrameHideOnShortSides();
    void sideHandleHidesNearAPoint();
    void frameOfASmallObjectGrows();
    void middleOfASmallObjectMovesIt();
    void turnHandleStandsHigherForFingers();
    void dragStartsWhenThePointerHasMovedEnough_data();
    void dragStartsWhenThePointerHasMovedEnough();
    void pressBesideTheFrameIsMeantForIt_data();
    void pressBesideTheFrameIsMeantForIt();
    void betweenFramedObjectsThePageIsEmpty();
    void handlesAreDrawnLargeForFingers_data();
    void handlesAreDrawnLargeForFingers();
    void pointUnderTheMouseIsFilled();
};

void TestGripFinder::deviceDecidesHowNearAPressHasToBe_data()
{
    addPointerRows();
    QTest::newRow("mouse") << int(Pointer::Mouse) << 12.0;
    QTest::newRow("pen") << int(Pointer::Pen) << 14.0;
    QTest::newRow("finger") << int(Pointer::Finger) << 22.0;
}

void TestGripFinder::deviceDecidesHowNearAPressHasToBe()
{
    QFETCH(int, pointer);
    QFETCH(double, least);
    Desk desk;
    const auto *object = desk.addSelected();
    const auto handleAside = [&](double away) {
        return desk.handleAt(cornerHandle(*object, bottomRight) + QPointF(away, 0), Pointer(pointer));
    };
    QCOMPARE(handleAside(least - 0.1), CObjAction::ACT_ResizeBottomRight);
    QCOMPARE(handleAside(least + 0.1), CObjAction::ACT_None);
}

void TestGripFinder::pointIsReachedAsFarAsAHandle_data()
{
    deviceDecidesHowNearAPressHasToBe_data();
}

void TestGripFinder::pointIsReachedAsFarAsAHandle()
{
    QFETCH(int, pointer);
    QFETCH(double, least);
    Desk desk;
    auto *object = desk.addSelected<TellingObject>();
    const QPointF point = object->mapToScene(object->controlPoint);
    const Grip inside = desk.gripAt(point + QPointF(0, least - 0.1), Pointer(pointer));
    QCOMPARE(int(inside.kind), int(Grip::ControlPoint));
    QCOMPARE(inside.point, 0);
    QCOMPARE(int(desk.gripAt(point + QPointF(0, least + 0.1), Pointer(pointer)).kind), int(Grip::Body));
}

void TestGripFinder::nearestOfTwoHandlesIsTaken()
{
    Desk desk;
    // Its frame is 73 high: corner and side stand 36.5 apart.
    const auto *object = desk.addSelected(QSizeF(200, 61));
    const QPointF corner = cornerHandle(*object, topRight);
    const auto handleBelow = [&](double away) { return desk.handleAt(corner + QPointF(0, away), Pointer::Finger); };
    QCOMPARE(handleBelow(18), CObjAction::ACT_ResizeTopRight);
    QCOMPARE(handleBelow(18.25), CObjAction::ACT_ResizeTopRight);
    QCOMPARE(handleBelow(18.5), CObjAction::ACT_ResizeRight);
}

void TestGripFinder::nearestOfPointAndCornerIsTaken()
{
    Desk desk;
    auto *object = desk.addSelected<TellingObject>();
    object->controlPoint = QPointF(6, 6);
    // The corner is at (-6, -6), both are as far from the object's origin.
    QCOMPARE(int(desk.gripAt(object->mapToScene(0, 0)).kind), int(Grip::ControlPoint));
    QCOMPARE(int(desk.gripAt(object->mapToScene(1, 1)).kind), int(Grip::ControlPoint));
    QCOMPARE(desk.handleAt(object->mapToScene(-1, -1)), CObjAction::ACT_ResizeTopLeft);
}

void TestGripFinder::cornerIsDraggedThoughTheObjectTakesItForItsPoint()
{
    Desk desk;
    auto *object = desk.addSelected<TellingObject>();
    object->controlPoint = QPointF(6, 6);
    object->reach = 40;
    const QPointF corner = cornerHandle(*object, topLeft);
    desk.drag(corner, corner + QPointF(20, 10));
    QCOMPARE(object->controlPoint, QPointF(6, 6));
    QCOMPARE(object->getPos(), QPointF(120, 110));
    QCOMPARE(object->getClientRect().size(), QSizeF(180, 140));
}

void TestGripFinder::pressBesideAPointMovesItByTheWayOnly()
{
    Desk desk;
    auto *object = desk.addSelected<TellingObject>();
    const QPointF press = object->mapToScene(object->controlPoint) + QPointF(20, 0);
    desk.dragWith(Pointer::Finger, press, press + QPointF(30, 40));
    QCOMPARE(object->controlPoint, QPointF(80, 70));
    QCOMPARE(object->getPos(), QPointF(100, 100));
    desk.dragWith(Pointer::Pen, press, press + QPointF(30, 40));
    QCOMPARE(object->controlPoint, QPointF(80, 70));
    QCOMPARE(object->getPos(), QPointF(130, 140));
}

void TestGripFinder::sideHandlesHideOnShortSides()
{
    Desk desk;
    auto *object = desk.addSelected(QSizeF(200, 60));
    QCOMPARE(desk.handleAt(cornerHandle(*object, {1, 0})), CObjAction::ACT_ResizeRight);
    object->setSize({200, 59}, false, false);
    QCOMPARE(desk.handleAt(cornerHandle(*object, {1, 0})), CObjAction::ACT_None);
    QCOMPARE(desk.handleAt(cornerHandle(*object, {0, 1})), CObjAction::ACT_ResizeBottom);
    // For fingers, sides need 132 pixels.
    desk.page->scene()->setLargeHandles(true);
    object->setSize({200, 119}, false, false);
    QCOMPARE(desk.handleAt(cornerHandle(*object, {1, 0})), CObjAction::ACT_None);
    object->setSize({200, 120}, false, false);
    QCOMPARE(desk.handleAt(cornerHandle(*object, {1, 0})), CObjAction::ACT_ResizeRight);
}

void TestGripFinder::sideHandlesOfTheCommonFrameHideOnShortSides()
{
    Desk desk;
    auto *left = desk.add(QSizeF(50, 59), QPointF(100, 100));
    auto *right = desk.add(QSizeF(50, 30), QPointF(300, 100));
    desk.page->select({left, right});
    QCOMPARE(desk.handleAt({356, 129.5}), CObjAction::ACT_None);
    QCOMPARE(desk.handleAt({225, 165}), CObjAction::ACT_ResizeBottom);
    right->setSize({50, 60}, false, false);
    QCOMPARE(desk.handleAt({356, 130}), CObjAction::ACT_ResizeRight);
}

void TestGripFinder::sideHandleHidesNearAPoint()
{
    Desk desk;
    auto *object = desk.addSelected<TellingObject>();
    const QPointF besideTheSide = cornerHandle(*object, {1, 0}) + QPointF(6, 0);
    object->controlPoint = QPointF(193.5, 75);
    QCOMPARE(desk.handleAt(besideTheSide), CObjAction::ACT_ResizeRight);
    object->controlPoint = QPointF(194, 75);
    QCOMPARE(desk.handleAt(besideTheSide), CObjAction::ACT_None);
}

void TestGripFinder::frameOfASmallObjectGrows()
{
    Desk desk;
    const auto *object = desk.addSelected(QSizeF(2, 2));
    const auto corner = [&] {
        return pagehost::PageScene::handlePlace(desk.page->objects().constFirst(),
                                                CObjAction::ACT_ResizeBottomRight);
    };
    QCOMPARE(corner(), object->getPos() + QPointF(13, 13));
    desk.page->scene()->setLargeHandles(true);
    QCOMPARE(corner(), object->getPos() + QPointF(23, 23));
    QCOMPARE(desk.handleAt(corner(), Pointer::Finger), CObjAction::ACT_ResizeBottomRight);
}

void TestGripFinder::middleOfASmallObjectMovesIt()
{
    Desk desk;
    const auto *object = desk.addSelected(QSizeF(16, 16));
    const QPointF middle = object->mapToScene(8, 8);
    QCOMPARE(int(desk.gripAt(middle, Pointer::Finger).kind), int(Grip::Body));
    // From there the corner is 19.8 away: half of the way is 9.9.
    QCOMPARE(int(desk.gripAt(middle + QPointF(6.9, 6.9), Pointer::Finger).kind), int(Grip::Body));
    QCOMPARE(desk.handleAt(middle + QPointF(7.1, 7.1), Pointer::Finger), CObjAction::ACT_ResizeBottomRight);
}

void TestGripFinder::turnHandleStandsHigherForFingers()
{
    Desk desk;
    desk.addSelected();
    QCOMPARE(desk.handleAt({200, 94 - 28 - 11.9}), CObjAction::ACT_Rotate);
    QCOMPARE(desk.handleAt({200, 94 - 28 - 12.1}), CObjAction::ACT_None);
    desk.page->scene()->setLargeHandles(true);
    QCOMPARE(desk.handleAt({200, 94 - 44 - 11.9}), CObjAction::ACT_Rotate);
    QCOMPARE(desk.handleAt({200, 94 - 44 - 12.1}), CObjAction::ACT_None);
}

void TestGripFinder::dragStartsWhenThePointerHasMovedEnough_data()
{
    QTest::addColumn<int>("pointer");
    QTest::addColumn<QPointF>("press");
    QTest::addColumn<int>("least");
    const QPair<const char *, Pointer> pointers[] = {
        {"mouse", Pointer::Mouse}, {"pen", Pointer::Pen}, {"finger", Pointer::Finger}};
    const QPair<const char *, QPointF> places[] = {
        {"body", {200, 200}}, {"corner", {306, 256}}, {"control point", {150, 130}}};
    for (const auto &pointer : pointers)
        for (const auto &place : places)
            QTest::addRow("%s, %s", pointer.first, place.first)
                << int(pointer.second) << place.second << (pointer.second == Pointer::Finger ? 8 : 4);
}

void TestGripFinder::dragStartsWhenThePointerHasMovedEnough()
{
    QFETCH(int, pointer);
    QFETCH(QPointF, press);
    QFETCH(int, least);
    Desk desk;
    auto *object = desk.addSelected<TellingObject>();
    const auto state = [object] {
        return QVector<QPointF>{object->getPos(), object->controlPoint, object->getClientRect().bottomRight()};
    };
    const QVector<QPointF> before = state();
    desk.dragWith(Pointer(pointer), press, press + QPointF(least - 1, 0));
    QCOMPARE(state(), before);
    desk.dragWith(Pointer(pointer), press, press + QPointF(least, 0));
    QVERIFY(state() != before);
}

void TestGripFinder::pressBesideTheFrameIsMeantForIt_data()
{
    addPointerRows();
    QTest::newRow("mouse") << int(Pointer::Mouse) << 6.0;
    QTest::newRow("pen") << int(Pointer::Pen) << 6.0;
    QTest::newRow("finger") << int(Pointer::Finger) << 12.0;
}

void TestGripFinder::pressBesideTheFrameIsMeantForIt()
{
    QFETCH(int, pointer);
    QFETCH(double, least);
    Desk desk(2);
    desk.addSelected();
    // At 200 % the frame is 3 units from the object.
    const auto isNear = [&](double away) {
        return desk.page->scene()->isNearFrame({303 + away / 2, 130}, Pointer(pointer));
    };
    QVERIFY(isNear(least - 0.1));
    QVERIFY(!isNear(least + 0.1));
}

void TestGripFinder::betweenFramedObjectsThePageIsEmpty()
{
    Desk desk;
    auto *left = desk.add(QSizeF(50, 50), QPointF(100, 100));
    auto *right = desk.add(QSizeF(50, 50), QPointF(300, 200));
    desk.page->select({left, right});
    QVERIFY(!desk.page->scene()->isNearFrame({225, 175}, Pointer::Mouse));
    QVERIFY(desk.page->scene()->isNearFrame({225, 94 + 5.9}, Pointer::Mouse));
    QVERIFY(desk.page->scene()->isNearFrame({225, 94 - 5.9}, Pointer::Mouse));
    QVERIFY(!desk.page->scene()->isNearFrame({225, 94 + 6.1}, Pointer::Mouse));
}

void TestGripFinder::handlesAreDrawnLargeForFingers_data()
{
    QTest::addColumn<bool>("isLarge");
    QTest::addColumn<double>("corner");
    QTest::addColumn<double>("point");
    QTest::addColumn<double>("turn");
    QTest::newRow("usual") << false << 9.0 << 12.0 << 20.0;
    QTest::newRow("large") << true << 16.0 << 20.0 << 36.0;
}

void TestGripFinder::handlesAreDrawnLargeForFingers()
{
    QFETCH(bool, isLarge);
    QFETCH(double, corner);
    QFETCH(double, point);
    QFETCH(double, turn);
    Desk desk;
    auto *object = desk.addSelected<TellingObject>();
    desk.page->scene()->setLargeHandles(isLarge);
    const QImage picture = desk.view.viewport()->grab().toImage();
    const QColor accent = desk.page->scene()->palette().color(QPalette::Highlight);
    const auto isMostly = [&](const QPointF &pos, const QColor &color) {
        const QColor seen = picture.pixelColor(desk.at(pos));
        return qAbs(seen.red() - color.red()) < 100 && seen != QColor(Qt::white);
    };
    const QPointF right(1, 0);
    const QPointF handle = cornerHandle(*object, bottomRight);
    QVERIFY(isMostly(handle + right * (corner / 2 - 0.5), accent));
    QCOMPARE(picture.pixelColor(desk.at(handle + right * (corner / 2 + 2))), QColor(Qt::white));
    const QPointF turnHandle = pagehost::PageScene::handlePlace(object, CObjAction::ACT_Rotate);
    QVERIFY(isMostly(turnHandle + right * (turn / 2 - 0.5), accent));
    QCOMPARE(picture.pixelColor(desk.at(turnHandle + right * (turn / 2 + 2))), QColor(Qt::white));
    const QPointF middle = object->mapToScene(object->controlPoint);
    QCOMPARE(picture.pixelColor(desk.at(middle)), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(desk.at(middle + right * (point / 2 - 2))), pointColor);
    QVERIFY(picture.pixelColor(desk.at(middle + right * (point / 2 + 1))) != pointColor);
}

void TestGripFinder::pointUnderTheMouseIsFilled()
{
    Desk desk;
    auto *object = desk.addSelected<TellingObject>();
    const QPointF middle = object->mapToScene(object->controlPoint);
    desk.hover(middle);
    QCOMPARE(desk.view.viewport()->grab().toImage().pixelColor(desk.at(middle)), pointColor);
    desk.hover(middle + QPointF(40, 0));
    QCOMPARE(desk.view.viewport()->grab().toImage().pixelColor(desk.at(middle)), QColor(Qt::white));
}

QTEST_MAIN(TestGripFinder)
#include "test_gripfinder.moc"
