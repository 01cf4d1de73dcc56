#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <pagehost/pagescene.h>

#include <host/geometry.h>
#include <pages/followers.h>

#include <algorithm>
#include <limits>

namespace pagehost {

namespace {

bool isPageSize(const QSizeF &size)
{
    return isFinite(size) && size.width() > 0 && size.height() > 0;
}

CPageBgProp paper(IPsPage *page)
{
    CPageBgProp background(page);
    background.setFillEnable(true);
    return background;
}

QSet<QGraphicsItem *> toSet(const QList<QGraphicsItem *> &items)
{
    return {items.begin(), items.end()};
}

QVector<CBaseObject *> sorted(QVector<CBaseObject *> objects)
{
    std::sort(objects.begin(), objects.end());
    return objects;
}

} // namespace

Page::Page(Document *document, const QSizeF &size, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_size(isPageSize(size) ? size : Document::defaultPageSize())
    , m_background(paper(this))
    , m_scene(std::make_unique<PageScene>(this))
    , m_followers(std::make_unique<Followers>(this))
{
    m_changeTimer.setSingleShot(true);
    connect(&m_changeTimer, &QTimer::timeout, this, &Page::contentChanged);
    connect(m_scene.get(), &QGraphicsScene::selectionChanged, this, &Page::followSelection);
    connect(m_scene.get(), &QGraphicsScene::selectionChanged, this, &Page::selectionChanged);
}

Page::~Page()
{
    // Objects being deleted must not notify a page that is being deleted.
    m_scene->disconnect(this);
    const QVector<CBaseObject *> owned = m_objects + m_outside;
    for (CBaseObject *object : owned)
        object->SetPage(nullptr);
    qDeleteAll(owned);
}

void Page::setSize(const QSizeF &size)
{
    if (!isPageSize(size) || size == m_size)
        return;
    m_size = size;
    m_scene->setSceneRect(rect());
    noteChange();
    Q_EMIT sizeChanged(size);
}

void Page::setBackground(const CPageBgProp &background)
{
    if (background == m_background)
        return;
    m_background = background;
    m_scene->update();
    noteChange();
    Q_EMIT backgroundChanged();
}

int Page::indexOf(const CBaseObject *object) const
{
    return contains(object) ? m_objects.indexOf(const_cast<CBaseObject *>(object)) : -1;
}

QVector<CBaseObject *> Page::selectedObjects() const
{
    QVector<CBaseObject *> objects;
    const QList<QGraphicsItem *> items = m_scene->selectedItems();
    for (QGraphicsItem *item : items) {
        auto *object = dynamic_cast<CBaseObject *>(item);
        if (object && object->GetPage() == this)
            objects.append(object);
    }
    std::sort(objects.begin(), objects.end(),
              [](const CBaseObject *one, const CBaseObject *other) { return one->zValue() < other->zValue(); });
    return objects;
}

void Page::select(const QVector<CBaseObject *> &objects)
{
    const QSet<QGraphicsItem *> wanted(objects.begin(), objects.end());
    const QList<QGraphicsItem *> before = m_scene->selectedItems();
    {
        // Otherwise the scene would notify of each object, and listeners would examine all of them each time.
        const QSignalBlocker quiet(m_scene.get());
        for (QGraphicsItem *item : before)
            item->setSelected(wanted.contains(item));
        for (CBaseObject *object : objects)
            if (object->scene() == m_scene.get())
                object->setSelected(true);
    }
    const QList<QGraphicsItem *> after = m_scene->selectedItems();
    if (toSet(after) != toSet(before))
        Q_EMIT m_scene->selectionChanged();
}

CBaseObject *Page::objectAt(const QPointF &scenePos) const
{
    const QList<QGraphicsItem *> items = m_scene->items(scenePos);
    for (QGraphicsItem *item : items) {
        auto *object = dynamic_cast<CBaseObject *>(item);
        if (object && object->GetPage() == this)
            return object;
    }
    return nullptr;
}

void Page::addObject(CBaseObject *object, int index)
{
    if (!object || contains(object))
        return;
    m_outside.removeOne(object);
    const int place = index < 0 ? m_objects.size() : qMin(index, m_objects.size());
    dropGrouping();
    m_objects.insert(place, object);
    m_members.insert(object);
    object->SetPage(this);
    giveStackingNumber(place);
    if (object->scene() != m_scene.get())
        m_scene->addItem(object);
    noteChange();
    Q_EMIT objectAdded(object);
}

void Page::appendObjects(const QVector<CBaseObject *> &objects)
{
    double top = m_objects.isEmpty() ? -std::numeric_limits<double>::infinity() : m_objects.last()->zValue();
    m_objects.reserve(m_objects.size() + objects.size());
    for (CBaseObject *object : objects) {
        if (!object || contains(object))
            continue;
        m_outside.removeOne(object);
        dropGrouping();
        m_objects.append(object);
        m_members.insert(object);
        object->SetPage(this);
        if (!(object->zValue() > top))
            giveStackingNumber(m_objects.size() - 1);
        top = object->zValue();
        m_scene->addItem(object);
        noteChange();
        Q_EMIT objectAdded(object);
    }
}

int Page::removeObject(CBaseObject *object)
{
    const int index = indexOf(object);
    if (index < 0)
        return -1;
    object->setSelected(false);
    dropGrouping();
    m_objects.removeAt(index);
    m_members.remove(object);
    m_outside.append(object);
    m_scene->forget(object);
    m_scene->removeItem(object);
    noteChange();
    Q_EMIT objectRemoved(object);
    dropIfUnused(object);
    return index;
}

void Page::moveObject(CBaseObject *object, int index)
{
    const int from = indexOf(object);
    const int to = qBound(0, index, m_objects.size() - 1);
    if (from < 0 || from == to)
        return;
    dropGrouping();
    m_objects.move(from, to);
    giveStackingNumber(to);
    noteChange();
    Q_EMIT stackingChanged();
}

bool Page::setStackingOrder(const QVector<CBaseObject *> &objects)
{
    if (sorted(objects) != sorted(m_objects))
        return false;
    if (objects == m_objects)
        return true;
    dropGrouping();
    m_objects = objects;
    renumber();
    noteChange();
    Q_EMIT stackingChanged();
    return true;
}

void Page::renumber()
{
    for (int index = 0; index < m_objects.size(); ++index)
        m_objects[index]->setZValue(index);
}

/// Only the order of the numbers matters, so an object is moved without changing the others'.
void Page::giveStackingNumber(int index)
{
    const bool isTop = index + 1 == m_objects.size();
    const double below = index > 0 ? m_objects[index - 1]->zValue() : (isTop ? 0 : m_objects[1]->zValue()) - 2;
    const double above = isTop ? below + 2 : m_objects[index + 1]->zValue();
    const auto fits = [&](double number) { return below < number && number < above; };
    const double present = m_objects[index]->zValue();
    const double number = fits(present) ? present : (below + above) / 2;
    if (!fits(number)) {
        renumber();
        return;
    }
    m_objects[index]->setZValue(number);
}

void Page::retain(CBaseObject *object)
{
    ++m_retained[object];
}

void Page::release(CBaseObject *object)
{
    const auto count = m_retained.find(object);
    if (count == m_retained.end() || --*count > 0)
        return;
    m_retained.erase(count);
    dropIfUnused(object);
}

void Page::dropIfUnused(CBaseObject *object)
{
    if (!m_retained.contains(object) && m_outside.removeOne(object)) {
        object->SetPage(nullptr);
        object->deleteLater();
    }
}

void Page::setGroups(const ObjectGroups &groups)
{
    const ObjectGroups taken = normalized(groups);
    if (taken == m_groups)
        return;
    m_groups = taken;
    dropGrouping();
    followSelection();
    noteChange();
    Q_EMIT groupsChanged();
}

const Grouping &Page::grouping() const
{
    if (!m_grouping)
        m_grouping.emplace(m_groups, m_objects);
    return *m_grouping;
}

void Page::dropGrouping()
{
    m_grouping.reset();
}

bool Page::enterGroupOf(CBaseObject *object)
{
    const quint32 group = grouping().unitOf(object, m_enteredGroup);
    if (group == 0 || !grouping().holds(m_enteredGroup, object))
        return false;
    m_enteredGroup = group;
    select(unitOf(object));
    m_scene->updateOverlay();
    return true;
}

bool Page::leaveGroup()
{
    const quint32 left = m_enteredGroup;
    if (left == 0)
        return false;
    m_enteredGroup = grouping().parentOf(left);
    select(grouping().objectsOf(left));
    m_scene->updateOverlay();
    return true;
}

QVector<CBaseObject *> Page::unitOf(CBaseObject *object) const
{
    quint32 level = m_enteredGroup;
    while (!grouping().holds(level, object))
        level = grouping().parentOf(level);
    const quint32 group = grouping().unitOf(object, level);
    return group == 0 ? QVector<CBaseObject *>{object} : grouping().objectsOf(group);
}

/// The entered group holds what is selected, or is left.
void Page::followSelection()
{
    if (m_enteredGroup == 0)
        return;
    const QVector<CBaseObject *> selected = selectedObjects();
    if (selected.isEmpty() || !grouping().contains(m_enteredGroup))
        m_enteredGroup = 0;
    for (const CBaseObject *object : selected)
        while (!grouping().holds(m_enteredGroup, object))
            m_enteredGroup = grouping().parentOf(m_enteredGroup);
}

void Page::noteChange()
{
    ++m_revision;
    if (!m_changeTimer.isActive())
        m_changeTimer.start(0);
}

} // namespace pagehost
