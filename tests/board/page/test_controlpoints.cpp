// A control point that is dragged inside its limits ends under the cursor, whatever was done to the shape before:
// every kind of shape × mirroring × rotation × size × zoom, each control point in turn, through the real view. The
// table at the end gives the largest distance of each case in pixels.

#include <board/boarddriver.h>
#include <board/controlpointprobe.h>

#include <objects/objectmaker.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>

#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

#include <cmath>
#include <cstdio>

using namespace boardtest;

namespace {

constexpr double tolerance = 0.5; // pixels
/// At most this part of the room that a control point has, and at most so many pixels.
constexpr double partOfRoom = 0.4;
constexpr double longestDrag = 30;
constexpr double zooms[] = {0.5, 1, 3};
constexpr double rotations[] = {0, 30, 90};

struct Size
{
    const char *name;
    QSizeF factor; ///< of the usual size
};
const Size sizes[] = {{"usual", {1, 1}}, {"wide", {2, 1.25}}, {"tall", {1.2, 1.8}}};

struct Mirroring
{
    const char *name;
    bool horizontally;
    bool vertically;
};
const Mirroring mirrorings[] = {
    {"none", false, false}, {"h", true, false}, {"v", false, true}, {"h and v", true, true}};

double lengthOf(const QPointF &vector)
{
    return std::hypot(vector.x(), vector.y());
}

/// `vector` along the direction `axis`, with its sign.
double along(const QPointF &vector, const QPointF &axis)
{
    return QPointF::dotProduct(vector, axis) / lengthOf(axis);
}

} // namespace

class TestControlPoints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsUnderTheCursor_data();
    void endsUnderTheCursor();
    void isPaintedUnderTheCursor_data();
    void isPaintedUnderTheCursor();
    void isAsLargeOnAShapeDrawnAtAnotherZoom_data();
    void isAsLargeOnAShapeDrawnAtAnotherZoom();
    void dragIsOneStep();
    void escapePutsItBack();
    void nearMissGrabsItToo();
    void oneAxisPointIgnoresTheOtherAxis();
    void cleanupTestCase();

private:
    struct Case
    {
        QString kind, mirroring, size;
        double rotation, zoom;
    };
    CBaseObject *prepare(BoardDriver &board, const QString &kind, const QSizeF &factor, const Mirroring &mirroring,
                         double rotation, double zoom);
    double dragOne(BoardDriver &board, CBaseObject *object, int index);

    /// One for all rows of the table; goes before the application does.
    std::unique_ptr<BoardDriver> m_board;
    QVector<QPair<Case, double>> m_results;
    QPoint m_end; ///< where the last drag ended, viewport coordinates
};

CBaseObject *TestControlPoints::prepare(BoardDriver &board, const QString &kind, const QSizeF &factor,
                                        const Mirroring &mirroring, double rotation, double zoom)
{
    CBaseObject *object = board::makeObject(&board.page(), board.workspace().registry(), kind, {0, 0});
    const QSizeF usual = object->getClientRect().size();
    object->setSize({usual.width() * factor.width(), usual.height() * factor.height()}, false, true);
    object->setPos(QPointF(640, 360) - object->getClientRect().center(), false);
    if (mirroring.horizontally)
        pagehost::mirrorObjects({object}, true);
    if (mirroring.vertically)
        pagehost::mirrorObjects({object}, false);
    pagehost::rotateObjects({object}, rotation);
    board.view().setZoom(zoom);
    board.view().centerOn(QPointF(640, 360));
    board.page().select({object});
    // Painting tells the shape the zoom, and with it the size of its control points.
    board.view().viewport()->grab();
    return object;
}

/// Drags a control point towards where it has most room and gives how far its grabbed spot is from the cursor in
/// the end, in pixels; along the free axis for a point that has only one.
double TestControlPoints::dragOne(BoardDriver &board, CBaseObject *object, int index)
{
    const ControlPointProbe probe(object);
    const QTransform toScreen = board.view().viewportTransform();
    const double zoom = board.view().zoom();
    const auto wayAlong = [&](bool free, double room, const QPointF &step) {
        const double length = qMin(qAbs(room) * partOfRoom * lengthOf(step) * zoom, longestDrag);
        return free ? step / lengthOf(step) * (room < 0 ? -length : length) : QPointF();
    };
    const QPointF axisX = probe.sceneStepX(index);
    const QPointF axisY = probe.sceneStepY(index);
    const QPointF way = wayAlong(probe.canMoveHorizontally(index), probe.roomX(index), axisX) +
                        wayAlong(probe.canMoveVertically(index), probe.roomY(index), axisY);
    const QPointF centre = toScreen.map(probe.sceneCentre(index));
    const QPoint start = centre.toPoint();
    const QPoint end = (start + way).toPoint();
    m_end = end;
    if ((end - start).manhattanLength() < 4)
        return -1;

    board.drag(board.view().mapToScene(start), board.view().mapToScene(end));
    const QPointF miss = toScreen.map(probe.sceneCentre(index)) - centre - (end - start);
    if (!probe.canMoveVertically(index))
        return qAbs(along(miss, axisX));
    if (!probe.canMoveHorizontally(index))
        return qAbs(along(miss, axisY));
    return lengthOf(miss);
}

void TestControlPoints::endsUnderTheCursor_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("mirroring");
    QTest::addColumn<double>("rotation");
    QTest::addColumn<int>("size");
    QTest::addColumn<double>("zoom");
    for (const QString &kind : {rectangle, arrow, polygon, flask}) {
        for (int mirroring = 0; mirroring < 4; ++mirroring) {
            for (const double rotation : rotations) {
                for (int size = 0; size < 3; ++size) {
                    for (const double zoom : zooms)
                        QTest::newRow(qPrintable(QString("%1, mirrored %2, %3°, %4, zoom %5")
                                                     .arg(kind, mirrorings[mirroring].name)
                                                     .arg(rotation)
                                                     .arg(sizes[size].name)
                                                     .arg(zoom)))
                            << kind << mirroring << rotation << size << zoom;
                }
            }
        }
    }
}

void TestControlPoints::endsUnderTheCursor()
{
    QFETCH(QString, kind);
    QFETCH(int, mirroring);
    QFETCH(double, rotation);
    QFETCH(int, size);
    QFETCH(double, zoom);
    if (!m_board)
        m_board = std::make_unique<BoardDriver>();
    BoardDriver &board = *m_board;
    CBaseObject *object = prepare(board, kind, sizes[size].factor, mirrorings[mirroring], rotation, zoom);
    const int points = ControlPointProbe(object).count();
    double worst = points > 0 ? 0 : INFINITY;
    for (int index = 0; index < points; ++index) {
        const double miss = dragOne(board, object, index);
        worst = miss < 0 ? INFINITY : qMax(worst, miss);
    }
    m_results.append({{kind, mirrorings[mirroring].name, sizes[size].name, rotation, zoom}, worst});
    board.history().clear();
    board.page().removeObject(object);
    QVERIFY2(worst <= tolerance, qPrintable(QString("%1 pixels off").arg(worst)));
}

void TestControlPoints::isPaintedUnderTheCursor_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("mirroring");
    QTest::addColumn<double>("rotation");
    QTest::addColumn<double>("zoom");
    for (const QString &kind : {rectangle, arrow, polygon, flask}) {
        QTest::newRow(qPrintable(kind)) << kind << 0 << 0.0 << 1.0;
        QTest::newRow(qPrintable(kind + ", mirrored and turned")) << kind << 1 << 30.0 << 1.0;
        QTest::newRow(qPrintable(kind + ", upside down and small")) << kind << 2 << 0.0 << 0.5;
        QTest::newRow(qPrintable(kind + ", mirrored, turned and large")) << kind << 3 << 90.0 << 3.0;
    }
}

void TestControlPoints::isPaintedUnderTheCursor()
{
    QFETCH(QString, kind);
    QFETCH(int, mirroring);
    QFETCH(double, rotation);
    QFETCH(double, zoom);
    BoardDriver board;
    CBaseObject *object = prepare(board, kind, {1.5, 1.2}, mirrorings[mirroring], rotation, zoom);
    QVERIFY(dragOne(board, object, 0) >= 0);
    board.hover(board.view().mapToScene(QPoint(5, 5)));
    const QImage picture = board.view().viewport()->grab().toImage();
    // White inside, the orange edge around it: 8 pixels wide at every zoom, so the edge is 4 pixels from the
    // middle.
    QCOMPARE(picture.pixelColor(m_end), QColor(Qt::white));
    for (const QPoint &side : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)}) {
        int orange = 0;
        for (int distance = 3; distance <= 5; ++distance) {
            const QColor color = picture.pixelColor(m_end + side * distance);
            orange = qMax(orange, color.red() - color.blue());
        }
        QVERIFY2(orange > 60, qPrintable(QString("%1, %2").arg(side.x()).arg(side.y())));
    }
}

void TestControlPoints::isAsLargeOnAShapeDrawnAtAnotherZoom_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<double>("zoom");
    for (const QString &kind : {rectangle, arrow, polygon, flask}) {
        QTest::newRow(qPrintable(kind + ", half")) << kind << 0.5;
        QTest::newRow(qPrintable(kind + ", double")) << kind << 2.0;
    }
}

void TestControlPoints::isAsLargeOnAShapeDrawnAtAnotherZoom()
{
    QFETCH(QString, kind);
    QFETCH(double, zoom);
    BoardDriver board;
    board.view().setZoom(zoom);
    board.view().centerOn(QPointF(640, 360));
    board.pick(kind);
    board.click({600, 320});
    QVERIFY(board.only());
    board.view().viewport()->grab();
    // 8 pixels; a new object is as large as its document.
    QCOMPARE(ControlPointProbe(board.only()).documentSide(0) * zoom, 8.0);
}

void TestControlPoints::dragIsOneStep()
{
    BoardDriver board;
    CBaseObject *object = board.draw(arrow, {500, 300}, {700, 420});
    board.view().viewport()->grab();
    const ControlPointProbe probe(object);
    const QPointF before = probe.sceneCentre(0);
    const QPointF from(qRound(before.x()), qRound(before.y()));
    const int steps = board.history().count();
    board.drag(from, from + QPointF(-30, -8));
    QCOMPARE(board.history().count(), steps + 1);
    QCOMPARE(probe.sceneCentre(0), before + QPointF(-30, -8));
    board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(probe.sceneCentre(0), before);
    board.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(probe.sceneCentre(0), before + QPointF(-30, -8));
    QCOMPARE(board.placeOf(object), QRectF(500, 300, 200, 120));
}

void TestControlPoints::escapePutsItBack()
{
    BoardDriver board;
    CBaseObject *object = board.draw(arrow, {500, 300}, {700, 420});
    board.view().viewport()->grab();
    const ControlPointProbe probe(object);
    const QPointF before = probe.sceneCentre(0);
    const int steps = board.history().count();
    board.hold(before, before + QPointF(-30, -8));
    QVERIFY(QLineF(probe.sceneCentre(0), before).length() > 20);
    board.key(Qt::Key_Escape);
    board.release(before + QPointF(-30, -8));
    QVERIFY(QLineF(probe.sceneCentre(0), before).length() < 1e-6);
    QCOMPARE(board.history().count(), steps);
}

void TestControlPoints::nearMissGrabsItToo()
{
    BoardDriver board;
    CBaseObject *object = board.draw(rectangle, {500, 300}, {700, 420});
    board.view().viewport()->grab();
    const ControlPointProbe probe(object);
    const QPointF before = probe.sceneCentre(0);
    // 12 pixels below the middle of a point that is 8 wide.
    const QPointF from(qRound(before.x()), qRound(before.y()) + 12);
    board.drag(from, from + QPointF(15, 0));
    QCOMPARE(probe.sceneCentre(0), before + QPointF(15, 0));
    QCOMPARE(board.placeOf(object), QRectF(500, 300, 200, 120));
}

void TestControlPoints::oneAxisPointIgnoresTheOtherAxis()
{
    BoardDriver board;
    CBaseObject *object = board.draw(rectangle, {500, 300}, {700, 420});
    board.view().viewport()->grab();
    const ControlPointProbe probe(object);
    QVERIFY(probe.canMoveHorizontally(0) && !probe.canMoveVertically(0));
    const QPointF before = probe.sceneCentre(0);
    const QPointF from(qRound(before.x()), qRound(before.y()));
    board.drag(from, from + QPointF(10, 40));
    QCOMPARE(probe.sceneCentre(0), before + QPointF(10, 0));
}

void TestControlPoints::cleanupTestCase()
{
    m_board.reset();
    std::printf("\nLargest distance between control point and cursor, pixels (at most %.1f)\n\n", tolerance);
    std::printf("%-26s %-8s %8s %-6s |", "shape", "mirrored", "rotation", "size");
    for (const double zoom : zooms)
        std::printf(" zoom %-3g ", zoom);
    std::printf("\n");
    for (int i = 0; i < m_results.size(); ++i) {
        const Case &c = m_results.at(i).first;
        if (c.zoom == zooms[0])
            std::printf("%-26s %-8s %7g° %-6s |", qPrintable(c.kind), qPrintable(c.mirroring), c.rotation,
                        qPrintable(c.size));
        const double worst = m_results.at(i).second;
        std::printf(" %8.1e%s", worst, worst <= tolerance ? " " : "!");
        if (c.zoom == zooms[2])
            std::printf("\n");
    }
    std::fflush(stdout);
}

QTEST_MAIN(TestControlPoints)
#include "test_controlpoints.moc"
