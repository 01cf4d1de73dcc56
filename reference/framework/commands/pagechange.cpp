#include <pagehost/pagechange.h>

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>

#include <commands/pagecommand.h>
#include <pagehost/page.h>

#include <QtCore/QSet>

#include <utility>

namespace pagehost {

namespace {

QVector<CBaseObject *> objectsOf(const QVector<PageChangeItem> &items)
{
    QVector<CBaseObject *> objects;
    QSet<CBaseObject *> seen;
    for (const PageChangeItem &item : items) {
        if (!seen.contains(item.object))
            objects.append(item.object);
        seen.insert(item.object);
    }
    return objects;
}

void redo(Page &page, const QVector<PageChangeItem> &items)
{
    for (const PageChangeItem &item : items)
        item.added ? page.addObject(item.object, item.index) : (void)page.removeObject(item.object);
}

void undo(Page &page, const QVector<PageChangeItem> &items)
{
    for (auto item = items.rbegin(); item != items.rend(); ++item)
        item->added ? (void)page.removeObject(item->object) : page.addObject(item->object, item->index);
}

class PageChangeCommand : public PageCommand
{
public:
    PageChangeCommand(Page *page, const QVector<PageChangeItem> &items, const QString &textKey)
        : PageCommand(page, objectsOf(items), textKey, true)
        , m_items(items)
    {
    }

    void undo() override { pagehost::undo(*page(), m_items); }

protected:
    void apply() override { pagehost::redo(*page(), m_items); }

private:
    QVector<PageChangeItem> m_items;
};

} // namespace

PageChange::PageChange(Page *page)
    : m_page(page)
{
}

PageChange::~PageChange()
{
    revert();
}

void PageChange::add(CBaseObject *object, int index)
{
    if (!m_page || !object || m_page->contains(object))
        return;
    m_page->retain(object);
    m_page->addObject(object, index);
    m_items.append({object, m_page->indexOf(object), true});
}

void PageChange::remove(CBaseObject *object)
{
    if (!m_page || !m_page->contains(object))
        return;
    m_page->retain(object);
    m_items.append({object, m_page->removeObject(object), false});
}

QVector<CBaseObject *> PageChange::added() const
{
    QVector<CBaseObject *> present;
    for (const PageChangeItem &item : m_items)
        if (item.added && m_page && m_page->contains(item.object))
            present.append(item.object);
    return present;
}

bool PageChange::push(const QString &textKey)
{
    if (!m_page || isEmpty())
        return false;
    CUndoRedo::GetInstance()->push(new PageChangeCommand(m_page, m_items, textKey));
    releaseObjects();
    return true;
}

void PageChange::revert()
{
    if (m_page)
        undo(*m_page, m_items);
    releaseObjects();
}

/// Each item holds its object once.
void PageChange::releaseObjects()
{
    const QVector<PageChangeItem> items = std::exchange(m_items, {});
    if (!m_page)
        return;
    for (const PageChangeItem &item : items)
        m_page->release(item.object);
}

} // namespace pagehost
