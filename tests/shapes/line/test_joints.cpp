// Where the ends of joined lines are, and the ways of right-angled lines.

#include <line/core/angledway.h>
#include <line/core/joints.h>

#include <QtTest/QtTest>

using line::JoinedObject;
using line::Joints;
using line::LineCourse;

namespace {

JoinedObject box(const QRectF &rect)
{
    JoinedObject object;
    object.outline.addRect(rect);
    return object;
}

const QPointF toRight(1, 0);
const QPointF toLeft(-1, 0);
const QPointF downwards(0, 1);
const QPointF upwards(0, -1);

} // namespace

class TestJoints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDirectLineEndsWhereItReachesTheOutline();
    void anOutlineWithDentsIsReachedFromOutside();
    void aRightAngledLineEndsInTheMiddleOfASide();
    void aLineEndsAtItsPlace();
    void aPlaceThatIsGoneIsReplacedByTheOutline();
    void anEndWhoseObjectIsGoneStays();
    void facingSidesAreConnectedThroughTheMiddle();
    void sidesInLineAreConnectedWithoutABend();
    void aCornerIsOneBend();
    void aWayGoesRoundRatherThanBack();
    void aWayToItsOwnStartHasADirection();
    void aNarrowGapIsCrossedWithoutTouchingTheOtherShape();
    void aLineGoesRoundItsOwnShapes();
    void aLineBetweenOverlappingShapesGoesRoundBoth();
    void aLineIntoAShapeAroundTheOtherTakesTheSidesThatFace();
    void unusedJointsTakeNoBytes();
    void damagedJointsAreFree();
    void damagedObjectsAreNone();
};

void TestJoints::aDirectLineEndsWhereItReachesTheOutline()
{
    const JoinedObject object = box({0, 0, 100, 60});
    // From its middle (50, 30), 2 to the right on 1 down.
    QCOMPARE(joinedEnd(object, {}, {250, 130}, false).point, QPointF(100, 55));
    // From its middle it leaves by the nearest side.
    QCOMPARE(joinedEnd(object, {}, {50, 30}, false).point, QPointF(50, 60));
}

void TestJoints::anOutlineWithDentsIsReachedFromOutside()
{
    JoinedObject object;
    // A comb whose teeth stand to the right.
    object.outline.addPolygon(
        QPolygonF({{0, 0}, {100, 0}, {100, 10}, {20, 10}, {20, 20}, {100, 20}, {100, 30}, {0, 30}}));
    object.outline.closeSubpath();
    // The ray from the middle (50, 15) along the gap meets nothing, and ends at the box.
    QCOMPARE(joinedEnd(object, {}, {300, 15}, false).point, QPointF(100, 15));
    // Upwards it crosses the inner and the outer edge of a tooth.
    QCOMPARE(joinedEnd(object, {}, {50, -100}, false).point, QPointF(50, 0));
}

void TestJoints::aRightAngledLineEndsInTheMiddleOfASide()
{
    const JoinedObject object = box({0, 0, 100, 60});
    const line::JoinedEnd end = joinedEnd(object, {}, {250, 130}, true);
    QCOMPARE(end.point, QPointF(100, 30));
    QCOMPARE(end.out, toRight);
    QCOMPARE(joinedEnd(object, {}, {60, 200}, true).out, downwards);
    QCOMPARE(joinedEnd(object, {}, {60, -200}, true).out, upwards);
}

void TestJoints::aLineEndsAtItsPlace()
{
    JoinedObject object = box({0, 0, 100, 60});
    object.places = {{QStringLiteral("nose"), {120, 30}, 270}, {QStringLiteral("ear"), {0, 10}, qQNaN()}};
    const line::JoinedEnd nose = joinedEnd(object, QStringLiteral("nose"), {250, 130}, false);
    QCOMPARE(nose.point, QPointF(120, 30));
    QCOMPARE(nose.out, upwards);
    // It leaves a place without a direction on its side.
    QCOMPARE(joinedEnd(object, QStringLiteral("ear"), {250, 130}, false).out, toLeft);
}

void TestJoints::aPlaceThatIsGoneIsReplacedByTheOutline()
{
    QCOMPARE(joinedEnd(box({0, 0, 100, 60}), QStringLiteral("nose"), {250, 130}, false).point, QPointF(100, 55));
}

void TestJoints::anEndWhoseObjectIsGoneStays()
{
    LineCourse course{{7, 8}, {0, 0}};
    Joints joints;
    joints[0].object = 1;
    joints[0].out = upwards;
    joints[1].object = 2;
    follow(course, joints, {std::nullopt, box({100, 0, 100, 16})});
    QCOMPARE(course.start, QPointF(7, 8));
    QCOMPARE(joints[0].out, upwards);
    QCOMPARE(course.end, QPointF(100, 8));
    QCOMPARE(joints[1].out, toLeft);
}

void TestJoints::facingSidesAreConnectedThroughTheMiddle()
{
    QCOMPARE(line::angledWay({0, 0}, toRight, {200, 100}, toLeft),
             (QVector<QPointF>{{0, 0}, {100, 0}, {100, 100}, {200, 100}}));
}

void TestJoints::sidesInLineAreConnectedWithoutABend()
{
    QCOMPARE(line::angledWay({0, 0}, toRight, {200, 0}, toLeft), (QVector<QPointF>{{0, 0}, {200, 0}}));
}

void TestJoints::aCornerIsOneBend()
{
    QCOMPARE(line::angledWay({0, 0}, toRight, {200, 100}, upwards),
             (QVector<QPointF>{{0, 0}, {200, 0}, {200, 100}}));
    QCOMPARE(line::angledWay({0, 0}, {0, 0}, {200, 100}, upwards),
             (QVector<QPointF>{{0, 0}, {200, 0}, {200, 100}}));
}

/// Both ends are left to the toRight, the second one to the left of the first: 20 out, and round.
void TestJoints::aWayGoesRoundRatherThanBack()
{
    QCOMPARE(line::angledWay({0, 0}, toRight, {-200, 100}, toRight),
             (QVector<QPointF>{{0, 0}, {20, 0}, {20, 100}, {-200, 100}}));
}

/// Ten between them: stubs of five, not of twenty.
void TestJoints::aNarrowGapIsCrossedWithoutTouchingTheOtherShape()
{
    QCOMPARE(line::angledWay({100, 30}, toRight, {110, 30}, toLeft), (QVector<QPointF>{{100, 30}, {110, 30}}));
    QCOMPARE(line::angledWay({100, 30}, toRight, {110, 50}, toLeft),
             (QVector<QPointF>{{100, 30}, {105, 30}, {105, 50}, {110, 50}}));
}

/// From the top of a box to the one below it: the side that faces would lead down through the first one.
void TestJoints::aLineGoesRoundItsOwnShapes()
{
    LineCourse course{{0, 0}, {50, 200}};
    course.isAngled = true;
    Joints joints;
    joints[0].object = 1;
    joints[0].place = "top";
    joints[1].object = 2;
    JoinedObject above = box({0, 0, 100, 60});
    above.places = {{"top", {50, 0}, -90}};
    follow(course, joints, {above, box({0, 160, 100, 60})});
    course.startOut = joints[0].out;
    course.endOut = joints[1].out;
    QCOMPARE(course.corners(), (QVector<QPointF>{{50, 0}, {50, -20}, {120, -20}, {120, 190}, {100, 190}}));
}

void TestJoints::aLineBetweenOverlappingShapesGoesRoundBoth()
{
    LineCourse course{{0, 0}, {50, 200}};
    course.isAngled = true;
    Joints joints;
    joints[0].object = 1;
    joints[1].object = 2;
    follow(course, joints, {box({0, 0, 100, 60}), box({20, 10, 100, 60})});
    course.startOut = joints[0].out;
    course.endOut = joints[1].out;
    QCOMPARE(course.corners(), (QVector<QPointF>{{0, 30}, {-20, 30}, {-20, 90}, {70, 90}, {70, 70}}));
}

void TestJoints::aLineIntoAShapeAroundTheOtherTakesTheSidesThatFace()
{
    LineCourse course{{0, 0}, {50, 200}};
    course.isAngled = true;
    Joints joints;
    joints[0].object = 1;
    joints[1].object = 2;
    follow(course, joints, {box({0, 0, 200, 200}), box({50, 60, 20, 20})});
    QCOMPARE(joints[0].out, toLeft);
    QCOMPARE(joints[1].out, toRight);
}

void TestJoints::aWayToItsOwnStartHasADirection()
{
    LineCourse course{{5, 5}, {5, 5}};
    course.isAngled = true;
    QCOMPARE(course.directionAtStart(), toRight);
    QCOMPARE(course.directionAtEnd(), toRight);
    QCOMPARE(course.bounds(), QRectF(5, 5, 0, 0));
}

void TestJoints::unusedJointsTakeNoBytes()
{
    QCOMPARE(encoded(Joints()), QByteArray());
    Joints joints;
    joints[1] = {7, QStringLiteral("nose"), upwards};
    const Joints read = line::decodedJoints(encoded(joints));
    QCOMPARE(read[0].object, 0u);
    QCOMPARE(read[1].object, 7u);
    QCOMPARE(read[1].place, QStringLiteral("nose"));
    QCOMPARE(read[1].out, upwards);
    // The end of an object that is gone keeps its direction.
    joints[1].object = 0;
    QCOMPARE(line::decodedJoints(encoded(joints)).at(1).out, upwards);
}

void TestJoints::damagedJointsAreFree()
{
    Joints joints;
    joints[0] = {7, QStringLiteral("nose"), upwards};
    const QByteArray bytes = encoded(joints);
    for (int size = 0; size < bytes.size(); ++size)
        QCOMPARE(line::decodedJoints(bytes.left(size)).at(0).object, 0u);
    joints[0].out = {3, qQNaN()};
    QCOMPARE(line::decodedJoints(encoded(joints)).at(0).out, downwards);
}

void TestJoints::damagedObjectsAreNone()
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << qint32(0x7fffffff) << true << QPainterPath() << qint32(0x7fffffff);
    QDataStream in(bytes);
    QVERIFY(line::readJoinedObjects(in).isEmpty());
}

QTEST_MAIN(TestJoints)
#include "test_joints.moc"
