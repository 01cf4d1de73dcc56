#include <support/mouse.h>
#include <support/shapefixture.h>

#include <QtTest/QtTest>

using support::moveTo;
using support::press;
using support::release;
using support::ShapeFixture;
using support::TestObject;
using support::twoPointTemplate;

/// The mouse on an object that is there: control points first, the host's handles after.
class TestMouse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aPressOnAControlPointIsNotTheHosts();
    void aPressThatTheCoreDeclinesIsTheHosts();
    void aPressWithoutCoreIsTheHosts();
    void theMirrorStateReachesTheCoreBeforeThePress_data();
    void theMirrorStateReachesTheCoreBeforeThePress();
    void aMoveOfTheCoreClearsTheLayerCache();
    void aMoveThatTheCoreDeclinesIsTheHosts();
    void aMoveWithoutCoreIsTheHosts();
    void aReleaseOfTheCoreRegeneratesTheRegion();
    void aReleaseThatTheCoreDeclinesIsTheHosts();
    void aReleaseWithoutCoreIsTheHosts();
    void draggingAControlPointNeverMovesTheObject();

    void aPointOnAControlPointLeavesTheActionAlone();
    void theCoreIsAskedInItemCoordinates();
    void theCoreOfAGroupedObjectIsAskedInItemCoordinates();
    void otherPointsAreTheHosts();
    void pointsWithoutCoreAreTheHosts();
};

namespace {

class RegionObject : public TestObject
{
public:
    RegionObject()
    {
        createFinished = true;
        makeCore();
        recording::clear();
    }
    void regenRegionShape(QGraphicsItem *item) override { regenerations.append(item); }
    QList<QGraphicsItem *> regenerations;
};

struct Coreless : TestObject
{
    Coreless()
    {
        createFinished = true;
        recording::clear();
    }
};

} // namespace

void TestMouse::init()
{
    recording::resetFramework();
    recording::clear();
}

void TestMouse::aPressOnAControlPointIsNotTheHosts()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->onMousePress = [](QGraphicsSceneMouseEvent *) { return true; };
    press(fixture.object, {14, 24});
    QCOMPARE(recording::names(), QStringList({"shape.mousePressEvent"}));
}

void TestMouse::aPressThatTheCoreDeclinesIsTheHosts()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->onMousePress = [](QGraphicsSceneMouseEvent *) { return false; };
    press(fixture.object, {14, 24});
    QCOMPARE(recording::names(), QStringList({"shape.mousePressEvent", "object.mousePressEvent"}));
    QCOMPARE(recording::lastArguments("object", "mousePressEvent"), QVariantList({QPointF(14, 24)}));
}

void TestMouse::aPressWithoutCoreIsTheHosts()
{
    Coreless object;
    press(object, {14, 24});
    QCOMPARE(recording::names(), QStringList({"object.mousePressEvent"}));
}

void TestMouse::theMirrorStateReachesTheCoreBeforeThePress_data()
{
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<bool>("vertical");
    QTest::newRow("not") << false << false;
    QTest::newRow("sideways") << true << false;
    QTest::newRow("upside down") << false << true;
    QTest::newRow("both") << true << true;
}

void TestMouse::theMirrorStateReachesTheCoreBeforeThePress()
{
    QFETCH(const bool, horizontal);
    QFETCH(const bool, vertical);
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setFlipOn(!horizontal, !vertical);
    fixture.object.setMirror(horizontal, vertical, false);
    bool seenHorizontal = !horizontal;
    bool seenVertical = !vertical;
    fixture.shape->onMousePress = [&](QGraphicsSceneMouseEvent *) {
        seenHorizontal = fixture.shape->flipHorizontal;
        seenVertical = fixture.shape->flipVertical;
        return true;
    };
    press(fixture.object, {14, 24});
    QCOMPARE(seenHorizontal, horizontal);
    QCOMPARE(seenVertical, vertical);
}

void TestMouse::aMoveOfTheCoreClearsTheLayerCache()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->onMouseMove = [](QGraphicsSceneMouseEvent *) { return true; };
    moveTo(fixture.object, {14, 24});
    QCOMPARE(recording::names(), QStringList({"shape.mouseMoveEvent", "object.clearLayerEffectCache"}));
    QCOMPARE(recording::lastArguments("clearLayerEffectCache"), QVariantList({2}));
}

void TestMouse::aMoveThatTheCoreDeclinesIsTheHosts()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->onMouseMove = [](QGraphicsSceneMouseEvent *) { return false; };
    moveTo(fixture.object, {14, 24});
    QCOMPARE(recording::names(), QStringList({"shape.mouseMoveEvent", "object.mouseMoveEvent"}));
    QCOMPARE(recording::lastArguments("object", "mouseMoveEvent"), QVariantList({QPointF(14, 24)}));
}

void TestMouse::aMoveWithoutCoreIsTheHosts()
{
    Coreless object;
    moveTo(object, {14, 24});
    QCOMPARE(recording::names(), QStringList({"object.mouseMoveEvent"}));
}

void TestMouse::aReleaseOfTheCoreRegeneratesTheRegion()
{
    RegionObject object;
    object.core()->onMouseRelease = [](QGraphicsSceneMouseEvent *) { return true; };
    release(object, {14, 24});
    QCOMPARE(object.regenerations, QList<QGraphicsItem *>({nullptr}));
    QCOMPARE(recording::names(), QStringList({"shape.mouseReleaseEvent"}));
}

void TestMouse::aReleaseThatTheCoreDeclinesIsTheHosts()
{
    RegionObject object;
    object.core()->onMouseRelease = [](QGraphicsSceneMouseEvent *) { return false; };
    release(object, {14, 24});
    QVERIFY(object.regenerations.isEmpty());
    QCOMPARE(recording::names(), QStringList({"shape.mouseReleaseEvent", "object.mouseReleaseEvent"}));
    QCOMPARE(recording::lastArguments("object", "mouseReleaseEvent"), QVariantList({QPointF(14, 24)}));
}

void TestMouse::aReleaseWithoutCoreIsTheHosts()
{
    Coreless object;
    release(object, {14, 24});
    QCOMPARE(recording::names(), QStringList({"object.mouseReleaseEvent"}));
}

void TestMouse::draggingAControlPointNeverMovesTheObject()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.select();
    support::drag(fixture.object, {14, 24}, {34, 29});
    QCOMPARE(recording::calls("object", "mousePressEvent").size(), 0);
    QCOMPARE(recording::calls("object", "mouseMoveEvent").size(), 0);
    QCOMPARE(recording::calls("object", "mouseReleaseEvent").size(), 0);
    QCOMPARE(fixture.shape->pointRect(1), QRectF(30, 25, 8, 8));
    QCOMPARE(recording::count("regenRegionShape"), 1);
}

void TestMouse::aPointOnAControlPointLeavesTheActionAlone()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    recording::framework().baseAnswer = true;
    recording::framework().baseAction = CObjAction::ACT_Rotate;
    CObjAction::ACT_Def action = CObjAction::ACT_Move;
    QVERIFY(fixture.object.CheckHitTestHandlers({14, 24}, action));
    QCOMPARE(action, CObjAction::ACT_Move);
    QCOMPARE(recording::count("object", "CheckHitTestHandlers"), 0);
}

void TestMouse::theCoreIsAskedInItemCoordinates()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.object.QGraphicsItem::setPos(300, 200);
    fixture.object.setRotation(90); // item (x, y) lies at scene (300 − y, 200 + x)
    CObjAction::ACT_Def action = CObjAction::ACT_None;
    fixture.object.CheckHitTestHandlers({280, 210}, action);
    QCOMPARE(recording::lastArguments("shape", "CheckHitTestHandlers").value(0).toPointF(), QPointF(10, 20));
}

void TestMouse::theCoreOfAGroupedObjectIsAskedInItemCoordinates()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QGraphicsRectItem group;
    group.setPos(1000, 500);
    fixture.object.setParentItem(&group);
    fixture.object.QGraphicsItem::setPos(30, 20);
    CObjAction::ACT_Def action = CObjAction::ACT_None;
    fixture.object.CheckHitTestHandlers({1040, 540}, action);
    QCOMPARE(recording::lastArguments("shape", "CheckHitTestHandlers").value(0).toPointF(), QPointF(10, 20));
    fixture.object.setParentItem(nullptr);
}

void TestMouse::otherPointsAreTheHosts()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.object.QGraphicsItem::setPos(300, 200);
    CObjAction::ACT_Def action = CObjAction::ACT_Move;
    QVERIFY(!fixture.object.CheckHitTestHandlers({390, 205}, action));
    QCOMPARE(action, CObjAction::ACT_Move);
    QCOMPARE(recording::lastArguments("object", "CheckHitTestHandlers"), QVariantList({QPointF(390, 205)}));
    recording::framework().baseAnswer = true;
    recording::framework().baseAction = CObjAction::ACT_Rotate;
    QVERIFY(fixture.object.CheckHitTestHandlers({390, 205}, action));
    QCOMPARE(action, CObjAction::ACT_Rotate);
}

void TestMouse::pointsWithoutCoreAreTheHosts()
{
    Coreless object;
    CObjAction::ACT_Def action = CObjAction::ACT_None;
    QVERIFY(!object.CheckHitTestHandlers({1, 2}, action));
    recording::framework().baseAnswer = true;
    QVERIFY(object.CheckHitTestHandlers({1, 2}, action));
    QCOMPARE(recording::count("object", "CheckHitTestHandlers"), 2);
}

QTEST_MAIN(TestMouse)

#include "test_mouse.moc"
