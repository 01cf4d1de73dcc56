// Outlines of strokes: what a pen covers along lines, corners, curves and dashes.

#include "geometry/stroking.h"

#include <QtGui/QPolygonF>
#include <QtTest/QtTest>

#include <cmath>

using namespace Svg;

namespace {

constexpr double exact = 1e-9;
constexpr double accuracy = 0.01;

QPainterPath lines(const QVector<QPointF> &points)
{
    QPainterPath path;
    path.addPolygon(QPolygonF(points));
    return path;
}

QPen pen(double width, Qt::PenCapStyle cap = Qt::FlatCap, Qt::PenJoinStyle join = Qt::SvgMiterJoin)
{
    QPen result(Qt::black, width, Qt::SolidLine, cap, join);
    result.setMiterLimit(4);
    return result;
}

QVector<QPolygonF> outlined(const QPainterPath &path, const QPen &pen, const QTransform &transform = QTransform())
{
    StrokeOutline outline;
    if (!outlineStroke(path, pen, transform, {accuracy, 1000}, &outline))
        return {};
    QVector<QPolygonF> polygons;
    int begin = 0;
    for (const int end : outline.ends) {
        QPolygonF polygon;
        for (int i = begin; i < end; ++i)
            polygon.append(outline.points[size_t(i)]);
        polygons.append(polygon);
        begin = end;
    }
    return polygons;
}

QPainterPath area(const QVector<QPolygonF> &polygons)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const QPolygonF &polygon : polygons) {
        path.addPolygon(polygon);
        path.closeSubpath();
    }
    return path;
}

bool hasPoint(const QPolygonF &polygon, const QPointF &wanted)
{
    for (const QPointF &point : polygon)
        if (std::hypot(point.x() - wanted.x(), point.y() - wanted.y()) < exact)
            return true;
    return false;
}

double distanceFrom(const QPointF &centre, const QPointF &point)
{
    return std::hypot(point.x() - centre.x(), point.y() - centre.y());
}

/// Twice the area within, positive where it is gone around clockwise on the screen.
double turning(const QPolygonF &polygon)
{
    double sum = 0;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF a = polygon.at(i);
        const QPointF b = polygon.at((i + 1) % polygon.size());
        sum += a.x() * b.y() - a.y() * b.x();
    }
    return sum;
}

} // namespace

class TestStroking : public QObject
{
    Q_OBJECT

private slots:
    void aLineIsAsWideAsItsPen();
    void squareCapsReachHalfAWidthFurther();
    void roundCapsAreHalfCircles();
    void aMiterEndsInATip();
    void aMiterBeyondItsLimitIsABevel();
    void aClippedMiterEndsAtItsLimit();
    void aBevelCutsTheCorner();
    void aRoundJoinIsAnArc();
    void aLineThatTurnsBackHasOneJoin();
    void innerSidesMeetInAPoint();
    void piecesShorterThanThePenArePaintedWhole();
    void aMovedCornerLeavesFartherPiecesAlone();
    void aClosedLineHasTwoEdgesThatTurnAgainstEachOther();
    void aLineToTheSamePlaceIsNone();
    void aCurveIsFollowedOnBothSides();
    void aCurveTighterThanThePenIsFilled();
    void curvesEndWithTheirOwnDirection();
    void dashesFollowThePattern();
    void theDashOffsetBeginsWithinThePattern();
    void dashesGoAroundCorners();
    void aDashLongerThanAClosedLineLeavesItClosed();
    void theMappingDistortsTheStroke();
    void tooManyPointsAreRefused();
};

void TestStroking::aLineIsAsWideAsItsPen()
{
    const QVector<QPolygonF> stroke = outlined(lines({{1, 5}, {9, 5}}), pen(2));
    QCOMPARE(stroke.size(), 1);
    QCOMPARE(stroke.first(), QPolygonF({{1, 6}, {9, 6}, {9, 4}, {1, 4}}));
}

void TestStroking::squareCapsReachHalfAWidthFurther()
{
    const QVector<QPolygonF> stroke = outlined(lines({{1, 5}, {9, 5}}), pen(2, Qt::SquareCap));
    QCOMPARE(area(stroke).boundingRect(), QRectF(0, 4, 10, 2));
    QVERIFY(hasPoint(stroke.first(), {10, 6}));
    QVERIFY(hasPoint(stroke.first(), {0, 4}));
}

void TestStroking::roundCapsAreHalfCircles()
{
    const QVector<QPolygonF> stroke = outlined(lines({{0, 0}, {10, 0}}), pen(4, Qt::RoundCap));
    QVERIFY(area(stroke).contains(QPointF(11.9, 0)));
    QVERIFY(area(stroke).contains(QPointF(-1.9, 0)));
    for (const QPointF &point : stroke.first())
        QVERIFY(qAbs(distanceFrom({qBound(0.0, point.x(), 10.0), 0}, point) - 2) < exact);
}

// The path goes right and then down: its left side is above and to the right.
void TestStroking::aMiterEndsInATip()
{
    const QVector<QPolygonF> stroke = outlined(lines({{0, 0}, {10, 0}, {10, 10}}), pen(2));
    QVERIFY(hasPoint(stroke.first(), {11, -1}));
}

// Between lines that turn by 90 degrees a tip is 1.41 widths long.
void TestStroking::aMiterBeyondItsLimitIsABevel()
{
    QPen limited = pen(2);
    limited.setMiterLimit(1.4);
    const QVector<QPolygonF> stroke = outlined(lines({{0, 0}, {10, 0}, {10, 10}}), limited);
    QVERIFY(!hasPoint(stroke.first(), {11, -1}));
    QVERIFY(hasPoint(stroke.first(), {10, -1}));
    QVERIFY(hasPoint(stroke.first(), {11, 0}));
}

// A line that turns back has an endless tip, which ends at 4 times half the width.
void TestStroking::aClippedMiterEndsAtItsLimit()
{
    const QVector<QPolygonF> stroke =
        outlined(lines({{0, 0}, {10, 0}, {0, 0}, {-1, 0}}), pen(2, Qt::FlatCap, Qt::MiterJoin));
    QVERIFY(hasPoint(stroke.first(), {14, -1}));
    QVERIFY(hasPoint(stroke.first(), {14, 1}));
}

void TestStroking::aBevelCutsTheCorner()
{
    const QVector<QPolygonF> stroke =
        outlined(lines({{0, 0}, {10, 0}, {10, 10}}), pen(2, Qt::FlatCap, Qt::BevelJoin));
    QVERIFY(!hasPoint(stroke.first(), {11, -1}));
    QVERIFY(hasPoint(stroke.first(), {10, -1}));
    QVERIFY(hasPoint(stroke.first(), {11, 0}));
}

void TestStroking::aRoundJoinIsAnArc()
{
    const QVector<QPolygonF> stroke =
        outlined(lines({{0, 0}, {10, 0}, {10, 10}}), pen(2, Qt::FlatCap, Qt::RoundJoin));
    int onArc = 0;
    for (const QPointF &point : stroke.first())
        if (point.x() >= 10 && point.y() <= 0 && qAbs(distanceFrom({10, 0}, point) - 1) < exact)
            ++onArc;
    // Steps of at most 0.28 (a hundredth of a pixel beside the arc) over a quarter of a turn are six.
    QCOMPARE(onArc, 7);
}

void TestStroking::aLineThatTurnsBackHasOneJoin()
{
    const QVector<QPolygonF> stroke =
        outlined(lines({{0, 0}, {10, 0}, {5, 0}}), pen(2, Qt::FlatCap, Qt::RoundJoin));
    int beyond = 0;
    for (const QPointF &point : stroke.first())
        beyond += point.x() > 10 + exact;
    // Half a turn has twelve steps; both ends are at 10.
    QCOMPARE(beyond, 11);
}

void TestStroking::innerSidesMeetInAPoint()
{
    const QVector<QPolygonF> stroke = outlined(lines({{0, 0}, {10, 0}, {10, 10}}), pen(2));
    QCOMPARE(stroke.first(),
             QPolygonF({{0, 1}, {10, 1}, {9, 1}, {9, 0}, {9, 10}, {11, 10}, {11, 0}, {11, -1}, {10, -1}, {0, -1}}));
}

void TestStroking::piecesShorterThanThePenArePaintedWhole()
{
    const QPainterPath stroke = area(outlined(lines({{0, 0}, {20, 0}, {20, 2}}), pen(10)));
    QVERIFY(stroke.contains(QPointF(1, 4.9)));
    QVERIFY(stroke.contains(QPointF(15.1, 1.9)));
    QVERIFY(stroke.contains(QPointF(24.9, 1.9)));
    QVERIFY(!stroke.contains(QPointF(10, 5.1)));
}

void TestStroking::aMovedCornerLeavesFartherPiecesAlone()
{
    for (const QPointF &moved : {QPointF(20, 0), QPointF(23, 7), QPointF(16, -9)}) {
        const QVector<QPolygonF> stroke = outlined(lines({moved, {10, 0}, {10, 10}, {0, 10}}), pen(2));
        for (const QPointF &end : {QPointF(9, 0), QPointF(11, 0), QPointF(9, 10), QPointF(11, 10)})
            QVERIFY(hasPoint(stroke.first(), end));
    }
}

void TestStroking::aClosedLineHasTwoEdgesThatTurnAgainstEachOther()
{
    const QVector<QPolygonF> stroke = outlined(lines({{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}}), pen(2));
    QCOMPARE(stroke.size(), 2);
    QCOMPARE(qAbs(turning(stroke.first())), 2 * 64.0);
    QCOMPARE(qAbs(turning(stroke.last())), 2 * 144.0);
    QVERIFY(turning(stroke.first()) * turning(stroke.last()) < 0);
    QVERIFY(!area(stroke).contains(QPointF(5, 5)));
}

void TestStroking::aLineToTheSamePlaceIsNone()
{
    QCOMPARE(outlined(lines({{3, 3}, {3, 3}}), pen(2, Qt::RoundCap)).size(), 0);
    QCOMPARE(outlined(lines({{1, 5}, {1, 5}, {9, 5}, {9, 5}}), pen(2)).value(0),
             QPolygonF({{1, 6}, {9, 6}, {9, 4}, {1, 4}}));
}

void TestStroking::aCurveIsFollowedOnBothSides()
{
    QPainterPath circle;
    circle.addEllipse(QPointF(0, 0), 10, 10);
    const QVector<QPolygonF> stroke = outlined(circle, pen(4));
    QCOMPARE(stroke.size(), 2);
    for (const QPolygonF &edge : stroke) {
        const double radius = turning(edge) * turning(stroke.first()) > 0 ? 8 : 12;
        for (int i = 0; i < edge.size(); ++i) {
            // Cubic curves stray from a circle by up to three thousandths of its radius.
            const QPointF middle = (edge.at(i) + edge.at((i + 1) % edge.size())) / 2;
            QVERIFY2(qAbs(distanceFrom({}, edge.at(i)) - radius) < 0.025, qPrintable(QString::number(i)));
            QVERIFY2(qAbs(distanceFrom({}, middle) - radius) < 0.025, qPrintable(QString::number(i)));
        }
    }
}

void TestStroking::aCurveTighterThanThePenIsFilled()
{
    QPainterPath circle;
    circle.addEllipse(QPointF(0, 0), 2, 2);
    const QPainterPath stroke = area(outlined(circle, pen(10)));
    for (int x = -6; x <= 6; ++x)
        QVERIFY2(stroke.contains(QPointF(x, 0.5)), qPrintable(QString::number(x)));
    QVERIFY(!stroke.contains(QPointF(7.1, 0.5)));
}

// It begins straight down, however coarse its pieces are.
void TestStroking::curvesEndWithTheirOwnDirection()
{
    QPainterPath curve(QPointF(0, 0));
    curve.cubicTo(0, 4, 0, 10, 10, 10);
    const QPolygonF stroke = outlined(curve, pen(2)).value(0);
    QCOMPARE(stroke.first(), QPointF(-1, 0));
    QCOMPARE(stroke.last(), QPointF(1, 0));
    QVERIFY(hasPoint(stroke, {10, 11}));
    QVERIFY(hasPoint(stroke, {10, 9}));
}

void TestStroking::dashesFollowThePattern()
{
    QPen dashed = pen(2);
    dashed.setDashPattern({1.5, 1});
    const QVector<QPolygonF> stroke = outlined(lines({{0, 0}, {9, 0}}), dashed);
    QCOMPARE(stroke, QVector<QPolygonF>({QPolygonF({{0, 1}, {3, 1}, {3, -1}, {0, -1}}),
                                         QPolygonF({{5, 1}, {8, 1}, {8, -1}, {5, -1}})}));
}

void TestStroking::theDashOffsetBeginsWithinThePattern()
{
    QPen dashed = pen(2);
    dashed.setDashPattern({1.5, 1});
    dashed.setDashOffset(2);
    const QVector<QPolygonF> behind = outlined(lines({{0, 0}, {4, 0}}), dashed);
    QCOMPARE(behind, QVector<QPolygonF>({QPolygonF({{1, 1}, {4, 1}, {4, -1}, {1, -1}})}));
    dashed.setDashOffset(-0.5);
    QCOMPARE(outlined(lines({{0, 0}, {4, 0}}), dashed), behind);
}

void TestStroking::dashesGoAroundCorners()
{
    QPen dashed = pen(2);
    dashed.setDashPattern({4, 4});
    const QVector<QPolygonF> stroke = outlined(lines({{0, 0}, {5, 0}, {5, 9}}), dashed);
    QCOMPARE(stroke.size(), 1);
    QCOMPARE(stroke.first(),
             QPolygonF({{0, 1}, {5, 1}, {4, 1}, {4, 0}, {4, 3}, {6, 3}, {6, 0}, {6, -1}, {5, -1}, {0, -1}}));
}

void TestStroking::aDashLongerThanAClosedLineLeavesItClosed()
{
    const QPainterPath square = lines({{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}});
    QPen dashed = pen(2);
    dashed.setDashPattern({20, 20});
    QCOMPARE(outlined(square, dashed), outlined(square, pen(2)));
    dashed.setDashPattern({19.5, 20});
    QCOMPARE(outlined(square, dashed).size(), 1);
}

void TestStroking::theMappingDistortsTheStroke()
{
    const QVector<QPolygonF> stroke =
        outlined(lines({{1, 5}, {9, 5}}), pen(2), QTransform::fromScale(10, 0.5) * QTransform::fromTranslate(1, 0));
    QCOMPARE(stroke.value(0), QPolygonF({{11, 3}, {91, 3}, {91, 2}, {11, 2}}));
}

void TestStroking::tooManyPointsAreRefused()
{
    QPainterPath path;
    for (int i = 0; i < 250; ++i)
        path.addPath(lines({{0, double(i)}, {10, double(i)}}));
    QCOMPARE(outlined(path, pen(2)).size(), 250);
    path.addPath(lines({{0, 0}, {10, 0}}));
    QCOMPARE(outlined(path, pen(2)).size(), 0);
}

QTEST_APPLESS_MAIN(TestStroking)
#include "test_stroking.moc"
