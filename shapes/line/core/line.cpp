#include "line/core/line.h"

#include <shapekit/shapeobject.h>

#include <svgbase/qzesvgtinydocument.h>

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

/// A QByteArray: the course as encoded().
constexpr int courseAction = 1191;
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

} // namespace

Line::Line(CSVGObj *owner)
    : ShapeOfType(owner)
    , m_course{{10, 50}, {110, 10}, {0.5, 0}}
    , m_startEnd(this, startText, Plain, {&plainText, &arrowText, &dotText})
    , m_endEnd(this, endText, Plain, {&plainText, &arrowText, &dotText})
    , m_saved(this, courseText)
{
    m_saved.setPanels(false, false);
}

Line *Line::of(CBaseObject *object)
{
    return shapekit::coreOf<Line>(object);
}

void Line::begin(QPointF place, const QColor &color, double width, End end)
{
    setPenColor(color, false);
    setPenWidth(std::max(1, qRound(width)), false);
    m_endEnd.takeAnswer(QString::number(end));
    take({{0, 0}, {0, 0}, {0.5, 0}});
    document->setViewBox(fittingBox());
    shapekit::finishCreation(*owner);
    owner->setPos(place + document->viewBox().topLeft(), false);
}

void Line::drawTo(QPointF end, QPointF bend)
{
    const QPointF origin = owner->getPos() - document->viewBox().topLeft();
    const LineCourse course{m_course.start, end - origin, bend};
    take(course);
    QByteArray record;
    QDataStream out(&record, QIODevice::WriteOnly);
    out << encoded(course);
    RecordDataBuffer(record, courseAction);
}

bool Line::DoPlaybackActionEx(int actionId, QDataStream &in)
{
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

void Line::keep(const LineCourse &course)
{
    m_course = course.rounded();
    m_saved = encoded(m_course);
}

void Line::take(const LineCourse &course)
{
    const QRectF before = fittingBox();
    keep(course);
    ShapeOfType::propertyChanged(nullptr);
    fitBox(before);
    invalidate();
}

void Line::propertyChanged(const shapekit::Property *property)
{
    if (const std::optional<LineCourse> course = decoded(m_saved))
        m_course = *course;
    ShapeOfType::propertyChanged(property);
}

QRectF Line::fittingBox()
{
    const double room = margin();
    return m_course.bounds().adjusted(-room, -room, room, room);
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
        fitBox(before);
    if (refresh)
        invalidate();
    return isPoint;
}

/// By differences, so that a box which the user has stretched comes back exactly when the line does.
void Line::fitBox(const QRectF &before)
{
    const QRectF present = fittingBox();
    if (!owner->isCreateFinished() || present == before)
        return;
    const QRectF box = document->viewBox();
    adjustSvgPosition({box.topLeft() + present.topLeft() - before.topLeft(),
                       box.bottomRight() + present.bottomRight() - before.bottomRight()},
                      true);
}

/// Heads grow with the pen.
void Line::setPenWidth(int width, bool record)
{
    const QRectF before = fittingBox();
    ShapeOfType::setPenWidth(width, record);
    if (!isBeingLoaded)
        fitBox(before);
}

void Line::setSize(QSizeF, QSizeF newSize)
{
    if (!document || newSize.isEmpty())
        return;
    const double room = 2 * margin();
    keep(m_course.stretchedTo(newSize - QSizeF(room, room)));
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

QRectF Line::range(int)
{
    return {-farthest, -farthest, 2 * farthest, 2 * farthest};
}

QPointF Line::wantedPoint(int number)
{
    return number == 1 ? m_course.start : number == 2 ? m_course.end : m_course.bendPoint();
}

void Line::pointMoved(int number, QPointF centre)
{
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
    figure.moveTo(start);
    if (m_course.isStraight())
        figure.lineTo(end);
    else
        figure.curveTo(m_course.controlPoint(), end);
    setPath("figure", figure);
    PathText heads;
    addHead(heads, End(int(m_startEnd)), m_course.start, -m_course.directionAtStart());
    addHead(heads, End(int(m_endEnd)), m_course.end, m_course.directionAtEnd());
    setPath("heads", heads);
}

} // namespace line
