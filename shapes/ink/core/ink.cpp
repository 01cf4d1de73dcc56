#include "ink/core/ink.h"

#include "ink/core/strokepath.h"

#include <shapekit/shapeobject.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QDataStream>

#include <algorithm>
#include <cmath>

namespace ink {

namespace {

const shapekit::Text pointsText("Points", "Punkte");

/// Replaces the last points: a qint32 of how many stay, and the others as encoded().
constexpr int pointsAction = 1190;
constexpr int widestPen = 40;

} // namespace

Ink::Ink(CSVGObj *owner)
    : ShapeOfType(owner)
    , m_saved(this, pointsText)
{
    m_saved.setPanels(false, false);
}

Ink *Ink::of(CBaseObject *object)
{
    return shapekit::coreOf<Ink>(object);
}

void Ink::begin(const QVector<StrokePoint> &points, const QColor &color, double width)
{
    setPenColor(color, false);
    setPenWidth(std::max(1, qRound(width)), false);
    m_stroke.margin = savedLength(width / 2 * largestWidth);
    const QPointF origin = savedPoint(points.first()).place;
    QVector<StrokePoint> own;
    for (const StrokePoint &point : points)
        own.append(savedPoint({point.place - origin, point.pressure}));
    takePoints(own);
    shapekit::finishCreation(*owner);
    owner->setPos(origin + document->viewBox().topLeft(), false);
}

void Ink::redraw(const QVector<StrokePoint> &points)
{
    const QPointF origin = owner->getPos() - document->viewBox().topLeft();
    QVector<StrokePoint> own;
    for (const StrokePoint &point : points)
        own.append(savedPoint({point.place - origin, point.pressure}));
    const auto differs = std::mismatch(own.begin(), own.end(), m_stroke.points.begin(), m_stroke.points.end());
    const int same = int(differs.first - own.begin());
    const QVector<StrokePoint> tail = own.mid(same);
    if (tail.isEmpty() && same == m_stroke.points.size())
        return;
    replaceFrom(same, tail);
    QByteArray record;
    QDataStream out(&record, QIODevice::WriteOnly);
    out << qint32(same) << encoded({tail, 0});
    RecordDataBuffer(record, pointsAction);
}

void Ink::replaceFrom(int index, const QVector<StrokePoint> &tail)
{
    const QPointF corner = document->viewBox().topLeft();
    takePoints(m_stroke.points.mid(0, index) + tail);
    const QRectF box = document->viewBox();
    owner->setPos(owner->getPos() + box.topLeft() - corner, false);
    owner->setSize2(box.size(), false);
}

void Ink::takePoints(const QVector<StrokePoint> &points)
{
    m_stroke.points = points;
    m_saved = encoded(m_stroke);
    document->setViewBox(boundsOf(m_stroke));
    updateSVG(false);
}

bool Ink::DoPlaybackActionEx(int actionId, QDataStream &in)
{
    if (actionId != pointsAction)
        return ShapeOfType::DoPlaybackActionEx(actionId, in);
    qint32 kept = 0;
    QByteArray tail;
    in >> kept >> tail;
    if (in.status() != QDataStream::Ok || kept < 0 || kept > m_stroke.points.size() || !document)
        return false;
    const QVector<StrokePoint> points = decoded(tail).points;
    if (kept == 0 && points.isEmpty())
        return false;
    replaceFrom(kept, points);
    return true;
}

QVector<StrokePoint> Ink::scenePoints()
{
    const QTransform toScene = seenMapping() * owner->sceneTransform();
    QVector<StrokePoint> points;
    for (const StrokePoint &point : qAsConst(m_stroke.points))
        points.append({toScene.map(point.place), point.pressure});
    return points;
}

double Ink::sceneWidth()
{
    return getPenWidth() * std::sqrt(std::abs((seenMapping() * owner->sceneTransform()).determinant()));
}

QSizeF Ink::getDefaultSVGSize()
{
    return m_stroke.points.isEmpty() ? ShapeOfType::getDefaultSVGSize() : document->viewBox().size();
}

int Ink::getMaxPenWidth()
{
    return widestPen;
}

void Ink::setPenWidth(int width, bool record)
{
    ShapeOfType::setPenWidth(width, record);
    updateSVG(false);
}

void Ink::propertyChanged(const shapekit::Property *property)
{
    m_stroke = decoded(m_saved);
    if (!m_stroke.points.isEmpty())
        document->setViewBox(boundsOf(m_stroke));
    ShapeOfType::propertyChanged(property);
}

bool Ink::hasPressures() const
{
    return std::any_of(m_stroke.points.begin(), m_stroke.points.end(),
                       [](const StrokePoint &point) { return point.pressure >= 0; });
}

void Ink::draw()
{
    if (m_stroke.points.isEmpty())
        return;
    const bool isPressed = hasPressures();
    set("figure", "d", isPressed ? QString() : linePath(m_stroke.points));
    set("figure_pressed", "d", isPressed ? pressedPath(m_stroke.points, getPenWidth()) : QString());
}

} // namespace ink
