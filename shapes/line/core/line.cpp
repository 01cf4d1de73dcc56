#include "line/core/line.h"

#include <shapekit/shapeobject.h>

#include <svgbase/qzesvgtinydocument.h>

#include <framework/operationtype.h>

#include <pagehost/objectplugin.h>

#include <QtCore/QDataStream>

#include <algorithm>
#include <cmath>

namespace line {

namespace {

using shapekit::PathText;
using shapekit::Text;

const Text startText("Start of the line", "Anfang der Linie");
const Text endText("End of the line", "Ende der Linie");
const Text plainText("None", "Ohne");
const Text arrowText("Arrow head", "Pfeilspitze");
const Text dotText("Dot", "Punkt");

const Text courseText("Course", "Verlauf");
const Text wayText("Way", "Führung");
const Text directText("Direct", "Direkt");
const Text angledText("Right-angled", "Rechtwinklig");
const Text jointsText("Joined ends", "Verbundene Enden");
const Text detourText("Way round", "Umweg");
const Text labelText("Label", "Beschriftung");
const Text labelSizeText("Label size", "Schriftgröße");

/// A QByteArray: the course as encoded().
constexpr int courseAction = 1191;
/// Two QByteArrays: the course and the joints, as encoded().
constexpr int jointAction = 1192;
constexpr int widestPen = 40;
/// Reach of the control points, document units.
constexpr double farthest = 1e5;
/// Of an arrow head, in pen widths.
constexpr double headWidths = 4;
constexpr double shortestHead = 10;
/// Half the width of an arrow head, of its length.
constexpr double headSlope = 0.45;
/// The line ends inside of its head.
constexpr double coveredPart = 0.7;
constexpr double dotRadius = 0.4;
/// Room around the ends, so that their control points are inside of the box, document units.
constexpr double smallestMargin = 8;
/// Letters of the label, document units.
constexpr double usualLabelSize = 16;
constexpr double smallestLabelSize = 4;
constexpr double largestLabelSize = 200;

} // namespace

Line::Line(CSVGObj *owner)
    : ShapeOfType(owner)
    , m_course{{10, 50}, {110, 10}, {0.5, 0}}
    , m_startEnd(this, startText, Plain, {&plainText, &arrowText, &dotText})
    , m_endEnd(this, endText, Plain, {&plainText, &arrowText, &dotText})
    , m_saved(this, courseText)
    , m_way(this, wayText, Direct, {&directText, &angledText})
    , m_savedJoints(this, jointsText)
    , m_savedDetour(this, detourText)
    , m_label(this, labelText, QString())
    , m_labelSize(this, labelSizeText, usualLabelSize, smallestLabelSize, largestLabelSize, 1)
{
    m_savedDetour.setPanels(false, false);
    m_saved.setPanels(false, false);
    m_savedJoints.setPanels(false, false);
}

Line *Line::of(CBaseObject *object)
{
    return shapekit::coreOf<Line>(object);
}

void Line::begin(QPointF place, const QColor &color, double width, End end, Way way)
{
    setPenColor(color, false);
    setPenWidth(std::max(1, qRound(width)), false);
    m_endEnd.takeAnswer(QString::number(end));
    m_way.takeAnswer(QString::number(way));
    take({{0, 0}, {0, 0}, {0.5, 0}});
    document->setViewBox(fittingBox());
    shapekit::finishCreation(*owner);
    owner->setPos(place + document->viewBox().topLeft(), false);
}

QPointF Line::origin()
{
    return owner->getPos() - document->viewBox().topLeft();
}

void Line::drawTo(QPointF end, QPointF bend)
{
    LineCourse course = m_course;
    course.end = end - origin();
    course.bend = bend;
    take(course);
    QByteArray record;
    QDataStream out(&record, QIODevice::WriteOnly);
    out << encoded(course);
    RecordDataBuffer(record, courseAction);
}

void Line::join(int end, quint32 object, const QString &place)
{
    Joints joints = m_joints;
    joints[end].object = object;
    joints[end].place = place;
    keepJoints(joints);
}

void Line::drawTo(QPointF end, quint32 object, const QString &place)
{
    join(1, object, place);
    LineCourse course = m_course;
    course.end = end - origin();
    const QByteArray joints = encoded(m_joints);
    take(course);
    QByteArray record;
    QDataStream out(&record, QIODevice::WriteOnly);
    out << encoded(course) << joints;
    RecordDataBuffer(record, jointAction);
}

bool Line::DoPlaybackActionEx(int actionId, QDataStream &in)
{
    if (actionId == jointAction)
        return replayJoint(in);
    if (actionId == endsAction)
        return takeEndState(in);
    if (actionId != courseAction)
        return ShapeOfType::DoPlaybackActionEx(actionId, in);
    QByteArray bytes;
    in >> bytes;
    const std::optional<LineCourse> course = decoded(bytes);
    if (!course || !document)
        return false;
    take(*course);
    return true;
}

bool Line::permits(OperationType operation)
{
    const bool changesPlace = operation == OperationMove || operation == OperationResize ||
                              operation == OperationRotate || operation == OperationMirror;
    return !changesPlace || !isJoined();
}

bool Line::replayJoint(QDataStream &in)
{
    QByteArray bytes;
    QByteArray joints;
    in >> bytes >> joints;
    const std::optional<LineCourse> course = decoded(bytes);
    if (in.status() != QDataStream::Ok || !course || !document)
        return false;
    keepJoints(decodedJoints(joints));
    take(*course);
    return true;
}

bool Line::GetSpecialProperty(int propId, QDataStream &out)
{
    if (propId == pagehost::FollowingEnds) {
        const qint32 count = isUpright() ? 2 : 0;
        out << count;
        for (qint32 number = 1; number <= count; ++number)
            out << number;
        return true;
    }
    if (propId != pagehost::FollowedObjects)
        return ShapeOfType::GetSpecialProperty(propId, out);
    out << qint32(m_joints.size());
    for (const Joint &joint : m_joints)
        out << joint.object;
    return true;
}

bool Line::SetSpecialProperty(int propId, QDataStream &in, bool record)
{
    if (propId == pagehost::FollowedPlaces) {
        follow(readJoinedObjects(in));
        return true;
    }
    if (propId == pagehost::DraggedEnd)
        return dragEnd(in);
    if (propId != pagehost::FollowedObjects)
        return ShapeOfType::SetSpecialProperty(propId, in, record);
    qint32 count = 0;
    in >> count;
    Joints joints = m_joints;
    for (int i = 0; i < std::min(count, qint32(joints.size())); ++i)
        in >> joints[i].object;
    keepJoints(joints);
    return true;
}

void Line::follow(const QVector<std::optional<JoinedObject>> &objects)
{
    const bool wasJoined = isJoined();
    for (int i = 0; i < 2; ++i)
        m_isEndJoined[i] = objects.value(i).has_value();
    if (!document || !isJoined())
        return;
    LineCourse course = m_course;
    if (!wasJoined) {
        const QPointF shift = origin();
        course.start += shift;
        course.end += shift;
        document->setViewBox(document->viewBox().translated(shift));
    }
    Joints joints = m_joints;
    line::follow(course, joints, objects);
    const QVector<QByteArray> before{m_saved, m_savedJoints, m_savedDetour};
    keepJoints(joints);
    keepDetour(course.detour);
    keep(course);
    if (isOnPage() && before == QVector<QByteArray>{m_saved, m_savedJoints, m_savedDetour})
        return;
    putOnPage();
    ShapeOfType::propertyChanged(nullptr);
    invalidate();
}

bool Line::isOnPage()
{
    const QRectF box = fittingBox();
    return document->viewBox() == box && owner->getPos() == box.topLeft() &&
           owner->getClientRect().size() == box.size() && owner->rotation() == 0 && !owner->isMirrored() &&
           !owner->isFlipped();
}

/// Makes document units scene units.
void Line::putOnPage()
{
    if (owner->rotation() != 0)
        owner->setRotateByPoint(0, {0, 0}, false);
    if (owner->isMirrored() || owner->isFlipped())
        owner->setMirror(false, false, false);
    const QRectF present = document->viewBox();
    if (owner->getClientRect().size() != present.size())
        owner->setSize2(present.size(), false);
    owner->setPos(present.topLeft(), false);
    adjustSvgPosition(fittingBox(), true);
}

void Line::keepJoints(const Joints &joints)
{
    m_joints = joints;
    m_savedJoints = encoded(joints);
    for (size_t i = 0; i < joints.size(); ++i)
        m_isEndJoined[i] = m_isEndJoined[i] && joints[i].object != 0;
    completeCourse();
}

void Line::keepDetour(const QVector<QPointF> &detour)
{
    LineCourse course;
    course.detour = detour;
    m_detour = course.rounded().detour;
    m_savedDetour = encoded(m_detour);
    completeCourse();
}

void Line::completeCourse()
{
    m_course.isAngled = m_way == Angled;
    m_course.startOut = m_joints[0].out;
    m_course.endOut = m_joints[1].out;
    m_course.detour = m_detour;
}

void Line::keep(const LineCourse &course)
{
    m_course = course.rounded();
    completeCourse();
    m_saved = encoded(m_course);
}

void Line::take(const LineCourse &course)
{
    const QRectF before = fittingBox();
    keep(course);
    ShapeOfType::propertyChanged(nullptr);
    growBox(before, fittingBox());
    invalidate();
}

void Line::propertyChanged(const shapekit::Property *property)
{
    const bool changesBox =
        (property == &m_way || property == &m_label || property == &m_labelSize) && !isBeingLoaded;
    const QRectF before = changesBox ? fittingBox() : QRectF();
    if (const std::optional<LineCourse> course = decoded(m_saved))
        m_course = *course;
    m_detour = decodedDetour(m_savedDetour);
    keepJoints(decodedJoints(m_savedJoints));
    measureLabel();
    ShapeOfType::propertyChanged(property);
    if (changesBox)
        growBox(before, fittingBox());
}

QRectF Line::fittingBox()
{
    const double room = margin();
    const QRectF box = m_course.bounds().adjusted(-room, -room, room, room);
    return hasLabel() ? box.united(labelBox()) : box;
}

QRectF Line::boxOfSize(const QSizeF &size)
{
    QRectF box = fittingBox();
    if (size.isEmpty())
        return box;
    const QPointF middle = box.center();
    box.setSize(size);
    box.moveCenter(middle);
    return box;
}

bool Line::updateSVG(QZeSvgNode *node, QPointF delta, bool refresh)
{
    const QRectF before = fittingBox();
    const bool isPoint = ShapeOfType::updateSVG(node, delta, false);
    if (isPoint && !isBeingLoaded)
        growBox(before, fittingBox());
    if (refresh)
        invalidate();
    return isPoint;
}

/// Heads grow with the pen.
void Line::setPenWidth(int width, bool record)
{
    const QRectF before = fittingBox();
    ShapeOfType::setPenWidth(width, record);
    if (!isBeingLoaded)
        growBox(before, fittingBox());
}

void Line::setSize(QSizeF, QSizeF newSize)
{
    // Its objects hold it.
    if (!document || newSize.isEmpty() || isJoined())
        return;
    const QSizeF room = fittingBox().size() - m_course.bounds().size();
    const LineCourse course = m_course.stretchedTo(newSize - room);
    keepDetour(course.detour);
    keep(course);
    document->setViewBox(boxOfSize(newSize));
    ShapeOfType::propertyChanged(nullptr);
}

QSizeF Line::getDefaultSVGSize()
{
    return document ? document->viewBox().size() : ShapeOfType::getDefaultSVGSize();
}

int Line::getMaxPenWidth()
{
    return widestPen;
}

/// The middle of a right-angled line. Damaged data may claim further points, which are nobody's.
bool Line::isFixed(int number) const
{
    return number < 1 || number > 3 || (number == 3 && m_course.isAngled);
}

/// An end on an object; a drag that takes it off comes as DraggedEnd.
bool Line::isHeld(int number) const
{
    return (number == 1 || number == 2) && m_isEndJoined[size_t(number) - 1];
}

QRectF Line::range(int number)
{
    if (isFixed(number))
        return {wantedPoint(number), QSizeF(0, 0)};
    return {-farthest, -farthest, 2 * farthest, 2 * farthest};
}

QPointF Line::wantedPoint(int number)
{
    return number == 1 ? m_course.start : number == 2 ? m_course.end : m_course.bendPoint();
}

void Line::pointMoved(int number, QPointF centre)
{
    if (isFixed(number) || isHeld(number))
        return;
    if (number != 3 && !isBeingLoaded)
        keepDetour({});
    LineCourse course = m_course;
    if (number == 1)
        course.start = centre;
    else if (number == 2)
        course.end = centre;
    else
        course.bendThrough(centre);
    keep(course);
}

double Line::headLength()
{
    return std::max(shortestHead, headWidths * getPenWidth());
}

double Line::margin()
{
    // A whole number: the box comes back exactly when the line does.
    return std::ceil(std::max(smallestMargin, headLength() * headSlope + getPenWidth()));
}

void Line::addHead(PathText &path, End end, QPointF tip, QPointF direction)
{
    if (end == Dot) {
        const double radius = headLength() * dotRadius;
        path.ellipse({tip - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)});
    } else if (end == Arrow) {
        const QPointF foot = tip - direction * headLength();
        const QPointF side = QPointF(-direction.y(), direction.x()) * (headLength() * headSlope);
        path.polygon({tip, foot + side, foot - side});
    }
}

void Line::draw()
{
    const bool startsWithArrow = m_startEnd == Arrow;
    const bool endsWithArrow = m_endEnd == Arrow;
    const double covered = headLength() * coveredPart;
    const QPointF start = m_course.start + m_course.directionAtStart() * (startsWithArrow ? covered : 0);
    const QPointF end = m_course.end - m_course.directionAtEnd() * (endsWithArrow ? covered : 0);
    PathText figure;
    addWay(figure, start, end);
    setPath("figure", figure);
    PathText heads;
    addHead(heads, End(int(m_startEnd)), m_course.start, -m_course.directionAtStart());
    addHead(heads, End(int(m_endEnd)), m_course.end, m_course.directionAtEnd());
    setPath("heads", heads);
    // The point in the middle would stand among the letters.
    const bool hasPointInMiddle = !m_course.isAngled && !m_isLabelHidden;
    set("control_3", "visibility", hasPointInMiddle ? QStringLiteral("visible") : QStringLiteral("hidden"));
    drawLabel();
}

} // namespace line
