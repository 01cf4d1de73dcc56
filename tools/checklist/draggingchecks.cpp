// Promises about control points: each of them is dragged over its range under mirror, rotation, size and zoom.

#include <checklist/check.h>
#include <checklist/pose.h>
#include <checklist/shapedriver.h>
#include <checklist/states.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QLineF>
#include <QtWidgets/QUndoStack>

#include <algorithm>
#include <cmath>

namespace checklist {

namespace {

/// Places of a control point along each axis.
constexpr int gridLines = 3;
/// Item units.
constexpr double undoTolerance = 0.01;
constexpr double roundingError = 1e-9;
/// Pixels of the screen between a point and the mouse.
constexpr double mouseTolerance = 0.5;
/// A drawing may leave its frame by this share of the longer side, as a tail or a handle does; more has escaped.
constexpr double escapedShare = 1;
/// Or by the room that every object has for editing aids, pixels.
constexpr double aidsMargin = 50;

bool isFinite(const QRectF &box)
{
    return std::isfinite(box.x()) && std::isfinite(box.y()) && std::isfinite(box.width()) &&
           std::isfinite(box.height());
}

bool hasNumberFault(const QString &geometry)
{
    return geometry.contains(QLatin1String("nan"), Qt::CaseInsensitive) ||
           geometry.contains(QLatin1String("inf"), Qt::CaseInsensitive);
}

/// Targets all over the shape, and outside of it.
QVector<QPointF> targetsOf(const ShapeDriver &shape)
{
    const QRectF frame = shape.object().getClientRect();
    QVector<QPointF> targets;
    for (int row = 0; row < gridLines; ++row)
        for (int column = 0; column < gridLines; ++column)
            targets.append({frame.width() * (1.5 * column / (gridLines - 1) - 0.25),
                            frame.height() * (1.5 * row / (gridLines - 1) - 0.25)});
    return targets;
}

/// One control point of a shape in one pose.
class Dragged
{
public:
    Dragged(ShapeDriver &shape, int number, const Pose &pose, Report &report)
        : m_shape(shape)
        , m_number(number)
        , m_pose(pose)
        , m_report(report)
        , m_start(shape.scenePoint(number))
        , m_pos(shape.object().pos())
        , m_saved(savedBytes(shape))
    {
    }
    void dragEverywhere()
    {
        const QVector<QPointF> targets = targetsOf(m_shape);
        for (const QPointF &target : targets)
            if (!dragTo(target))
                return;
    }

private:
    bool expect(bool holds, const QString &finding)
    {
        return m_report.expect(
            holds, QStringLiteral("control_%1, %2: %3").arg(m_number).arg(QLatin1String(m_pose.name), finding));
    }
    bool dragTo(QPointF target)
    {
        m_shape.dragTo(m_number, target);
        const QPointF end = m_shape.scenePoint(m_number);
        return isSound() && undo() && follows(end) && undo();
    }
    bool isSound()
    {
        const QRectF frame = m_shape.object().getClientRect();
        const QRectF area = m_shape.object().boundingRect();
        const double way =
            std::max(escapedShare * std::max(frame.width(), frame.height()), aidsMargin / m_pose.zoom);
        const QRectF most = frame.adjusted(-way, -way, way, way);
        return expect(!hasNumberFault(m_shape.geometry()) && isFinite(area),
                      QStringLiteral("a number isn't finite")) &&
               expect(most.contains(area), QStringLiteral("the drawing escapes from its frame")) &&
               expect(!m_shape.object().shape().isEmpty(), QStringLiteral("nothing is left of the shape"));
    }
    bool undo()
    {
        m_shape.undoStack().undo();
        // The box of a line follows its ends: a turned object, whose box is turned about its middle, comes back to
        // its place but for a rounding error.
        if (QLineF(m_shape.object().pos(), m_pos).length() < roundingError) {
            m_shape.object().setPos(m_pos + QPointF(1, 1)); // a move by less than that is none
            m_shape.object().setPos(m_pos);
        }
        return expect(QLineF(m_shape.scenePoint(m_number), m_start).length() < undoTolerance &&
                          savedBytes(m_shape) == m_saved,
                      QStringLiteral("undo doesn't restore the shape to the byte"));
    }
    /// A place that a drag has reached is one where the point stands under the mouse.
    bool follows(QPointF place)
    {
        m_shape.dragInScene(m_number, place);
        const double distance = QLineF(m_shape.scenePoint(m_number), place).length() * m_pose.zoom;
        return expect(distance <= mouseTolerance,
                      QStringLiteral("it stands %1 pixels beside the mouse").arg(distance, 0, 'f', 1));
    }

    ShapeDriver &m_shape;
    int m_number;
    const Pose &m_pose;
    Report &m_report;
    QPointF m_start;
    QPointF m_pos;
    QByteArray m_saved;
};

void pointsFollowTheMouse(const Subject &subject, Report &report)
{
    for (const Pose &pose : poses) {
        const ZoomedDocument document(pose.zoom);
        ShapeDriver shape(subject.plugin, subject.kindId);
        createInPose(shape, pose);
        for (int number = 1; number <= shape.controlPointCount(); ++number)
            Dragged(shape, number, pose, report).dragEverywhere();
    }
}

QImage paintedUnselected(ShapeDriver &shape)
{
    shape.object().setSelected(false);
    QImage picture = shape.painted();
    shape.select();
    return picture;
}

/// Points that go in steps stay where they are until a drag is long enough: the targets are far apart.
bool changesThePicture(ShapeDriver &shape, int number)
{
    const QImage before = paintedUnselected(shape);
    const QVector<QPointF> targets = targetsOf(shape);
    return std::any_of(targets.begin(), targets.end(), [&](QPointF target) {
        shape.dragTo(number, target);
        const bool hasChanged = paintedUnselected(shape) != before;
        // Where it is now it may leave other points no room.
        shape.undoStack().undo();
        return hasChanged;
    });
}

void everyControlPointChangesThePicture(const Subject &subject, Report &report)
{
    ShapeDriver shape(subject.plugin, subject.kindId);
    shape.createByClick();
    shape.select();
    for (int number = 1; number <= shape.controlPointCount(); ++number)
        report.expect(changesThePicture(shape, number),
                      QStringLiteral("dragging control_%1 changes nothing").arg(number));
}

// A drawing is made of the present points alone: however they came where they are, it is the same.
void drawingHasNoMemory(const Subject &subject, Report &report)
{
    ShapeDriver shape(subject.plugin, subject.kindId);
    shape.createByClick();
    shape.select();
    const QString before = shape.geometry();
    for (int number = 1; number <= shape.controlPointCount(); ++number) {
        shape.dragControlPoint(number, QPointF(14, 11));
        shape.undoStack().undo();
        report.expect(shape.geometry() == before,
                      QStringLiteral("after control_%1 was dragged and put back, the drawing differs").arg(number));
    }
}

} // namespace

const QVector<Check> &draggingChecks()
{
    static const QVector<Check> checks{
        {"dragging", "points follow the mouse and leave a sound shape", &pointsFollowTheMouse},
        {"dragging-effect", "every control point changes the picture", &everyControlPointChangesThePicture},
        {"dragging-memory", "a drawing depends on the present points alone", &drawingHasNoMemory},
    };
    return checks;
}

} // namespace checklist
