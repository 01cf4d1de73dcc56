#include "page/keydrag.h"

#include "page/controlpoints.h"

#include <framework/cbaseobject.h>

#include <pagehost/commands.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <cmath>

namespace board {

namespace {

constexpr double smallestSide = 1;
constexpr double fullTurn = 360;

} // namespace

void KeyDrag::begin(Kind kind, CBaseObject *object)
{
    if (m_kind == kind && m_object == object)
        return;
    finish();
    m_kind = kind;
    m_object = object;
    if (kind == Resized)
        m_before = {object, pagehost::GeometrySnapshot::WithContent};
    else if (kind == Turned)
        m_before = {object, pagehost::GeometrySnapshot::PlaceOnly};
}

bool KeyDrag::movePoint(pagehost::Page *page, CBaseObject *object, int number, const QPointF &target)
{
    const bool goesOn = m_kind == PointMoved && m_object == object && m_number == number;
    if (!goesOn) {
        finish();
        const ControlPoint point = controlPointOf(*object, number);
        m_press = object->mapToScene(point.press);
        m_start = object->mapToScene(point.place);
        if (point.number == 0 || !page->scene()->beginPointDrag(object, m_press))
            return false;
        m_page = page;
        m_number = number;
        begin(PointMoved, object);
    }
    page->scene()->dragPointTo(m_press + (target - m_start));
    return true;
}

void KeyDrag::resize(CBaseObject *object, const QSizeF &by)
{
    begin(Resized, object);
    const QSizeF size = object->getClientRect().size() + by;
    object->setSize(size.expandedTo({smallestSide, smallestSide}), true, false);
    object->CPSRootObject::setPos(m_before.pos(), true);
}

void KeyDrag::turn(CBaseObject *object, double degrees)
{
    begin(Turned, object);
    const double turned = object->rotation() + degrees;
    object->setRotateByPoint(turned - fullTurn * std::floor(turned / fullTurn), object->getClientRect().center(),
                             true);
}

void KeyDrag::finish()
{
    const Kind kind = m_kind;
    m_kind = Nothing;
    if (!m_object)
        return;
    if (kind == PointMoved && m_page)
        m_page->scene()->endPointDrag();
    else if (kind == Resized || kind == Turned)
        pagehost::pushGeometryChange({m_before}, kind == Resized ? QStringLiteral("IDS_UNDO_RESIZE")
                                                                 : QStringLiteral("IDS_UNDO_ROTATE"));
    m_object.clear();
}

} // namespace board
