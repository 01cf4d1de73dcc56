#include <pagehost/toolsession.h>

#include <framework/cbaseobject.h>

#include <pagehost/objectid.h>
#include <pagehost/objectregistry.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <pages/connectionfinder.h>
#include <pages/followednumber.h>

#include <utility>

namespace pagehost {

ToolSession::ToolSession(Page *page, const ObjectRegistry *registry, TextTest hasTextAt)
    : m_page(page)
    , m_registry(registry)
    , m_hasTextAt(std::move(hasTextAt))
    , m_change(page)
{
}

std::optional<ToolSession::Result> ToolSession::takeResult()
{
    return std::exchange(m_result, std::nullopt);
}

CBaseObject *ToolSession::createObject(const QString &kindId)
{
    return m_registry->createObject(kindId);
}

void ToolSession::add(CBaseObject *object, const CBaseObject *below)
{
    const int index = m_page && below ? m_page->indexOf(below) : -1;
    m_change.add(object, index < 0 ? -1 : index + 1);
}

void ToolSession::remove(CBaseObject *object)
{
    m_change.remove(object);
}

QVector<CBaseObject *> ToolSession::objectsIn(const QRectF &area) const
{
    if (!m_page)
        return {};
    QVector<CBaseObject *> objects;
    const QList<QGraphicsItem *> items =
        m_page->scene()->items(area, Qt::IntersectsItemBoundingRect, Qt::AscendingOrder);
    for (QGraphicsItem *item : items)
        if (auto *object = dynamic_cast<CBaseObject *>(item))
            objects.append(object);
    return objects;
}

void ToolSession::commit(const QString &textKey, Afterwards afterwards)
{
    m_numbered.clear();
    const QVector<CBaseObject *> added = m_change.added();
    if (!m_change.push(textKey))
        return;
    if (afterwards != Stay)
        m_page->select(added);
    m_result = Result{added, afterwards, std::nullopt};
}

bool ToolSession::writeAt(const QPointF &pos)
{
    if (!m_hasTextAt || !m_hasTextAt(pos))
        return false;
    m_result = Result{{}, Write, pos};
    return true;
}

void ToolSession::revert()
{
    m_change.revert();
    const QVector<QPointer<CBaseObject>> numbered = std::exchange(m_numbered, {});
    for (CBaseObject *object : numbered)
        setObjectId(object, 0);
}

ToolPage::Connection ToolSession::connectionAt(const ToolPointer &pointer) const
{
    return pagehost::connectionAt(objectsIn(connectionReach(pointer)), pointer);
}

quint32 ToolSession::numberOf(CBaseObject *object)
{
    return followedNumber(object, m_page ? m_page->document() : nullptr, &m_numbered);
}

void ToolSession::highlight(CBaseObject *object)
{
    if (m_page)
        m_page->scene()->setHighlight(object, PageScene::ObjectAndPlaces);
}

} // namespace pagehost
