// Every control point of every kind of shape, dragged with the mouse: it goes along, stays within what the shape
// leaves it, ends under the cursor where the cursor is at a place that it can have, and comes back to the byte.

#include <board/boarddriver.h>
#include <board/controlpointprobe.h>

#include <objects/objectmaker.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <QtCore/QDataStream>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

#include <cmath>

using namespace boardtest;

namespace {

/// Pixels. The mouse is at whole ones, half a pixel from the place that is meant along each axis.
constexpr double tolerance = 1;
constexpr double partOfRoom = 0.4;
/// Far enough for points that snap.
constexpr double longestDrag = 60;
constexpr double leastWay = 2;
const QPointF middle(640, 360);

struct Pose
{
    const char *name;
    bool mirrored;
    bool flipped;
    double rotation;
    double zoom;
    QSizeF factor; ///< of the usual size
};

const Pose poses[] = {{"as drawn", false, false, 0, 1, {1, 1}},
                      {"mirrored, turned, tall and small", true, false, 30, 0.75, {1.6, 2.2}},
                      {"upside down, wide and large", false, true, 90, 2, {1.7, 1.2}}};

double lengthOf(const QPointF &vector)
{
    return std::hypot(vector.x(), vector.y());
}

QByteArray savedBytes(CBaseObject *object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object->save(out);
    return bytes;
}

/// A shape in a pose, selected in the middle of the view.
class Posed
{
public:
    Posed(BoardDriver &board, const QString &kind, const Pose &pose)
        : m_board(board)
        , m_object(board::makeObject(&board.page(), board.workspace().registry(), kind, {0, 0}))
        , m_probe(m_object)
    {
        const QSizeF usual = m_object->getClientRect().size();
        m_object->setSize({usual.width() * pose.factor.width(), usual.height() * pose.factor.height()}, false,
                          true);
        m_object->setPos(middle - m_object->getClientRect().center(), false);
        if (pose.mirrored)
            pagehost::mirrorObjects({m_object}, true);
        if (pose.flipped)
            pagehost::mirrorObjects({m_object}, false);
        pagehost::rotateObjects({m_object}, pose.rotation);
        board.view().setZoom(pose.zoom);
        board.view().centerOn(middle);
        board.page().select({m_object});
        // Painting tells the shape the zoom, and with it the size of its control points.
        board.view().viewport()->grab();
        board.history().clear();
    }
    ~Posed()
    {
        m_board.history().clear();
        m_board.page().removeObject(m_object);
    }

    const ControlPointProbe &probe() const { return m_probe; }
    QByteArray bytes() const { return savedBytes(m_object); }
    /// Viewport coordinates.
    QPointF seen(int index) const { return m_board.view().viewportTransform().map(m_probe.sceneCentre(index)); }
    /// From the middle of a control point.
    void drag(int index, const QPointF &way)
    {
        const QPoint start = seen(index).toPoint();
        const QPoint end = (seen(index) + way).toPoint();
        m_board.drag(m_board.view().mapToScene(start), m_board.view().mapToScene(end));
    }
    /// Towards where the point has most room, pixels.
    QPointF wayFor(int index) const
    {
        return wayAlong(m_probe.canMoveHorizontally(index), m_probe.roomX(index), m_probe.sceneStepX(index)) +
               wayAlong(m_probe.canMoveVertically(index), m_probe.roomY(index), m_probe.sceneStepY(index));
    }

private:
    QPointF wayAlong(bool free, double room, const QPointF &step) const
    {
        const double length = qMin(qAbs(room) * partOfRoom * lengthOf(step) * m_board.view().zoom(), longestDrag);
        return free ? step / lengthOf(step) * (room < 0 ? -length : length) : QPointF();
    }

    BoardDriver &m_board;
    CBaseObject *m_object;
    ControlPointProbe m_probe;
};

} // namespace

class TestEveryControlPoint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pointFollowsTheMouseAndComesBack_data();
    void pointFollowsTheMouseAndComesBack();
    void cleanupTestCase();

private:
    void drive(Posed &shape, int index);

    /// One for all rows; goes before the application does.
    std::unique_ptr<BoardDriver> m_board;
};

void TestEveryControlPoint::initTestCase()
{
    m_board = std::make_unique<BoardDriver>();
}

void TestEveryControlPoint::cleanupTestCase()
{
    m_board.reset();
}

void TestEveryControlPoint::pointFollowsTheMouseAndComesBack_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("pose");
    const QVector<pagehost::ObjectKind> drawable = m_board->drawableKinds();
    for (const pagehost::ObjectKind &kind : drawable)
        for (int pose = 0; pose < int(std::size(poses)); ++pose)
            QTest::newRow(qPrintable(QString("%1, %2").arg(kind.id, poses[pose].name))) << kind.id << pose;
}

void TestEveryControlPoint::pointFollowsTheMouseAndComesBack()
{
    QFETCH(QString, kind);
    QFETCH(int, pose);
    Posed shape(*m_board, kind, poses[pose]);
    const QStringList withoutPoints{
        "shapes.ellipse",   "shapes.gears",  "shapes.picture",    "declared.battery",       "declared.cloud",
        "declared.diamond", "declared.lamp", "declared.resistor", "declared.righttriangle", "declared.terminator"};
    QCOMPARE(shape.probe().count() > 0, !withoutPoints.contains(kind));
    for (int index = 0; index < shape.probe().count(); ++index) {
        drive(shape, index);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QString("control point %1").arg(index + 1)));
    }
}

void TestEveryControlPoint::drive(Posed &shape, int index)
{
    const QPointF start = shape.seen(index);
    const QByteArray before = shape.bytes();
    const QPointF way = shape.wayFor(index);
    shape.drag(index, way);
    // A point that goes round something has two ways to go.
    if (lengthOf(shape.seen(index) - start) < leastWay) {
        m_board->history().undo();
        m_board->history().clear();
        shape.drag(index, QPointF(-way.y(), way.x()));
    }
    const QPointF reached = shape.seen(index);
    const QByteArray after = shape.bytes();
    QVERIFY2(lengthOf(reached - start) >= leastWay, "it does not move");
    QVERIFY2(shape.probe().isWithinLimits(index), "it leaves its limits");
    QCOMPARE(m_board->history().index(), 1);
    m_board->history().undo();
    QCOMPARE(shape.bytes(), before);
    QCOMPARE(shape.seen(index), start);
    m_board->history().redo();
    QCOMPARE(shape.bytes(), after);
    m_board->history().undo();
    shape.drag(index, reached - start);
    const double miss = lengthOf(shape.seen(index) - reached);
    QVERIFY2(miss <= tolerance, qPrintable(QString("%1 pixels off").arg(miss)));
    m_board->history().undo();
    m_board->history().clear();
}

QTEST_MAIN(TestEveryControlPoint)
#include "test_everycontrolpoint.moc"
