#include <pages/creationcourse.h>

#include <host/geometry.h>
#include <pages/snapper.h>

#include <algorithm>
#include <cmath>

namespace pagehost {

namespace {

/// Limited to the largest size of an object.
QPointF possibleWay(const QPointF &way)
{
    return {qBound(-longestSide, way.x(), longestSide), qBound(-longestSide, way.y(), longestSide)};
}

QPointF withSide(const QPointF &way, double side)
{
    return {std::copysign(side, way.x()), std::copysign(side, way.y())};
}

SnapSubject point(const QPointF &pos)
{
    return {{pos, QSizeF(0, 0)}, NearPart, NearPart};
}

} // namespace

CreationCourse::CreationCourse(const ToolPointer &press, Snapper &snapper)
    : m_snapper(snapper)
    , m_pressed(press.pos)
    , m_last(press.pos)
{
    m_snapper.begin({});
    m_start = press.pos + snapOffset(point(press.pos), press);
}

bool CreationCourse::follow(const ToolPointer &pointer)
{
    const QPointF away = pointer.pos - m_pressed;
    const QPointF step = pointer.pos - m_last;
    m_last = pointer.pos;
    m_isDrag = m_isDrag || std::hypot(away.x(), away.y()) >= dragStart(pointer.kind) * pointer.pixel;
    if (!m_isDrag)
        return false;
    if (pointer.movesStart)
        m_start += step;
    m_isCentred = pointer.modifiers.testFlag(Qt::ControlModifier);
    m_isSquare = pointer.modifiers.testFlag(Qt::ShiftModifier);
    m_way = possibleWay(pointer.pos - m_start);
    if (m_isSquare)
        m_way = withSide(m_way, std::max(std::abs(m_way.x()), std::abs(m_way.y())));
    m_way += snapOffset(subjectOf(box()), pointer);
    if (m_isSquare)
        m_way = withSide(m_way, std::abs(m_way.x()));
    return true;
}

QRectF CreationCourse::box() const
{
    return QRectF(m_isCentred ? m_start - m_way : m_start, m_start + m_way).normalized();
}

QPointF CreationCourse::placeOf(const QRectF &clientRect) const
{
    if (m_isCentred)
        return m_start - clientRect.center();
    const double left = m_way.x() < 0 ? clientRect.right() : clientRect.left();
    const double top = m_way.y() < 0 ? clientRect.bottom() : clientRect.top();
    return m_start - QPointF(left, top);
}

void CreationCourse::showGuides(const QRectF &box)
{
    m_snapper.showGuides(subjectOf(box));
}

/// Of a box about its centre, only the corner: both sides move. Of a square, only the width is free.
SnapSubject CreationCourse::subjectOf(const QRectF &box) const
{
    const int down = m_way.y() < 0 ? NearPart : FarPart;
    SnapSubject subject =
        m_isCentred ? point(cornerOf(box)) : SnapSubject{box, m_way.x() < 0 ? NearPart : FarPart, down};
    if (m_isSquare)
        subject.down = 0;
    return subject;
}

/// The dragged one.
QPointF CreationCourse::cornerOf(const QRectF &box) const
{
    return {m_way.x() < 0 ? box.left() : box.right(), m_way.y() < 0 ? box.top() : box.bottom()};
}

QPointF CreationCourse::snapOffset(const SnapSubject &subject, const ToolPointer &pointer)
{
    // Whoever moves the start looks at both corners.
    const bool isSuspended = pointer.movesStart || pointer.modifiers.testFlag(Qt::AltModifier);
    return m_snapper.offsetOf(subject, pointer.pixel, pointer.kind, isSuspended);
}

} // namespace pagehost
