#include <pages/enddrag.h>

#include <framework/cbaseobject.h>

#include <pagehost/objectid.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/specialproperty.h>

#include <host/controlpointplaces.h>
#include <pages/connectionfinder.h>
#include <pages/followednumber.h>

#include <QtCore/QDataStream>
#include <QtCore/QLineF>

#include <algorithm>

namespace pagehost {

namespace {

QVector<int> endsOf(CBaseObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!object.GetSpecialProperty(FollowingEnds, out))
        return {};
    QDataStream in(bytes);
    qint32 count = 0;
    in >> count;
    QVector<int> ends;
    for (qint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        qint32 number = 0;
        in >> number;
        ends.append(number);
    }
    return ends;
}

} // namespace

std::unique_ptr<EndDrag> EndDrag::begin(Page *page, CBaseObject *object, const QPointF &press)
{
    const QVector<int> ends = endsOf(*object);
    if (ends.isEmpty())
        return nullptr;
    const QVector<ControlPointPlace> places = controlPointPlaces(*object);
    const auto isNearer = [&press](const ControlPointPlace &one, const ControlPointPlace &other) {
        return QLineF(one.centre, press).length() < QLineF(other.centre, press).length();
    };
    const auto nearest = std::min_element(places.begin(), places.end(), isNearer);
    if (nearest == places.end() || !ends.contains(nearest->number))
        return nullptr;
    std::unique_ptr<EndDrag> drag(new EndDrag(page, object, nearest->number, nearest->centre, press));
    return drag->send(BeginEndDrag, nearest->centre, 0, QString()) ? std::move(drag) : nullptr;
}

EndDrag::EndDrag(Page *page, CBaseObject *object, int number, const QPointF &centre, const QPointF &press)
    : m_page(page)
    , m_object(object)
    , m_number(number)
    , m_press(press)
    , m_offset(centre - press)
{
}

void EndDrag::moveTo(const QPointF &pointer, const QPointF &led, double pixel)
{
    // A click must not take the end off its object.
    m_hasMoved = m_hasMoved || led != m_press;
    if (!m_hasMoved || !m_object)
        return;
    const ToolPage::Connection connection = connectionAt(pointer, pixel);
    m_followed = connection.object ? numberOf(connection.object) : 0;
    const QPointF place = m_followed ? pointer : led + m_offset;
    const bool isTaken = send(MoveEnd, place, m_followed, connection.place);
    if (!isTaken) {
        m_followed = 0;
        send(MoveEnd, led + m_offset, 0, QString());
    }
    m_page->scene()->setHighlight(m_followed ? connection.object : nullptr, PageScene::ObjectAndPlaces);
}

void EndDrag::finish()
{
    m_page->scene()->setHighlight(nullptr);
    forgetNumbers(m_followed);
    if (m_object && m_hasMoved)
        send(FinishEndDrag, {}, 0, QString());
}

void EndDrag::cancel()
{
    m_page->scene()->setHighlight(nullptr);
    if (m_object && m_hasMoved)
        send(CancelEndDrag, {}, 0, QString());
    forgetNumbers(0);
}

ToolPage::Connection EndDrag::connectionAt(const QPointF &pointer, double pixel) const
{
    ToolPointer at;
    at.pos = pointer;
    at.pixel = pixel;
    QVector<CBaseObject *> objects;
    const QList<QGraphicsItem *> items =
        m_page->scene()->items(connectionReach(at), Qt::IntersectsItemBoundingRect, Qt::AscendingOrder);
    for (QGraphicsItem *item : items)
        if (auto *object = dynamic_cast<CBaseObject *>(item))
            objects.append(object);
    return pagehost::connectionAt(objects, at);
}

quint32 EndDrag::numberOf(CBaseObject *object)
{
    return followedNumber(object, m_page->document(), &m_numbered);
}

bool EndDrag::send(int phase, const QPointF &place, quint32 followed, const QString &name)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << qint32(phase) << qint32(m_number) << place << followed << name;
    QDataStream in(bytes);
    return m_object->SetSpecialProperty(DraggedEnd, in, true);
}

/// Objects that were only passed keep none.
void EndDrag::forgetNumbers(quint32 kept)
{
    for (const QPointer<CBaseObject> &object : qAsConst(m_numbered))
        if (object && objectId(object) != kept)
            setObjectId(object, 0);
    m_numbered.clear();
}

} // namespace pagehost
