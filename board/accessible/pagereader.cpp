#include "accessible/pagereader.h"

#include "accessible/objectaccess.h"
#include "accessible/objectwords.h"
#include "page/pageview.h"

#include <pagehost/page.h>

#include <QtCore/QEvent>

namespace board {

namespace {

void tell(QAccessibleInterface *interface, QAccessible::Event type)
{
    QAccessibleEvent event(interface, type);
    QAccessible::updateAccessibility(&event);
}

/// The words or the number that change while keys change it.
QString presentTextOf(QAccessibleInterface *interface)
{
    if (auto *value =
            static_cast<QAccessibleValueInterface *>(interface->interface_cast(QAccessible::ValueInterface)))
        return value->currentValue().toString();
    return interface->text(QAccessible::Description);
}

} // namespace

PageReader::PageReader(const Workspace *workspace, PageView *view)
    : ReadPage(workspace, view)
    , m_tellPage([this] { tellPage(); })
    , m_refocus([this] { refocus(); })
{
    view->installEventFilter(this);
    connect(view, &PageView::pageShown, this, &PageReader::followPage);
    connect(view->keys(), &KeyHand::focusMoved, this, &PageReader::tellFocus);
    followPage();
    // Whoever has just found the view reads its name.
    m_toldPage = pageName();
}

PageReader::~PageReader()
{
    for (const QAccessible::Id id : qAsConst(m_ids))
        QAccessible::deleteAccessibleInterface(id);
}

QVector<CBaseObject *> PageReader::objects() const
{
    return view()->page() ? view()->page()->objects() : QVector<CBaseObject *>();
}

/// A new object may lie where one was that is gone.
QAccessibleInterface *PageReader::interfaceOf(CBaseObject *object)
{
    if (!object)
        return nullptr;
    QAccessible::Id &id = m_ids[object];
    auto *present = static_cast<ObjectAccess *>(id ? QAccessible::accessibleInterface(id) : nullptr);
    if (present && present->isOf(object))
        return present;
    if (present)
        QAccessible::deleteAccessibleInterface(id);
    id = QAccessible::registerAccessibleInterface(new ObjectAccess(object, this));
    return QAccessible::accessibleInterface(id);
}

QAccessibleInterface *PageReader::focused()
{
    const KeyHand *keys = view()->keys();
    CBaseObject *object = keys->object();
    auto *interface = static_cast<ObjectAccess *>(interfaceOf(object));
    if (!interface || keys->part() == KeyHand::Whole)
        return interface;
    return interface->grip(keys->part(), keys->point());
}

bool PageReader::eventFilter(QObject *, QEvent *event)
{
    // Qt names the view itself at the end of this.
    if (event->type() != QEvent::FocusIn)
        return false;
    m_focused = 0;
    m_refocus.request();
    return false;
}

void PageReader::followPage()
{
    if (m_page)
        disconnect(m_page, nullptr, this, nullptr);
    m_page = view()->page();
    dropDead();
    m_selected.clear();
    m_focused = 0;
    m_tellPage.request();
    if (!m_page)
        return;
    connect(m_page, &pagehost::Page::objectAdded, this, &PageReader::tellAdded);
    connect(m_page, &pagehost::Page::objectRemoved, this, &PageReader::tellRemoved);
    connect(m_page, &pagehost::Page::selectionChanged, this, &PageReader::tellSelection);
    connect(m_page, &pagehost::Page::contentChanged, this, &PageReader::tellChanges);
    if (!m_page->document())
        return;
    const pagehost::Document *document = m_page->document();
    disconnect(document, nullptr, this, nullptr);
    connect(document, &pagehost::Document::pageInserted, this, [this] { m_tellPage.request(); });
    connect(document, &pagehost::Document::pageRemoved, this, [this] { m_tellPage.request(); });
}

/// Objects of other pages keep theirs.
void PageReader::dropDead()
{
    for (auto entry = m_ids.begin(); entry != m_ids.end();) {
        const auto *interface = static_cast<ObjectAccess *>(QAccessible::accessibleInterface(*entry));
        if (interface && interface->isAlive()) {
            ++entry;
            continue;
        }
        QAccessible::deleteAccessibleInterface(*entry);
        entry = m_ids.erase(entry);
    }
}

void PageReader::tellAdded(CBaseObject *object)
{
    tell(interfaceOf(object), QAccessible::ObjectCreated);
    m_tellPage.request();
}

void PageReader::tellRemoved(CBaseObject *object)
{
    setLeaving(object);
    if (m_ids.contains(object))
        tell(interfaceOf(object), QAccessible::ObjectDestroyed);
    setLeaving(nullptr);
    m_tellPage.request();
}

QString PageReader::pageName() const
{
    return m_page ? nameOf(*m_page, workspace()) : QString();
}

void PageReader::tellPage()
{
    if (pageName() == m_toldPage)
        return;
    m_toldPage = pageName();
    QAccessibleEvent event(view(), QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

void PageReader::tellSelection()
{
    QSet<QAccessible::Id> selected;
    const QVector<CBaseObject *> objects = m_page->selectedObjects();
    for (CBaseObject *object : objects)
        selected.insert(QAccessible::uniqueId(interfaceOf(object)));
    QAccessible::State change;
    change.selected = true;
    const QSet<QAccessible::Id> changed = (selected - m_selected) + (m_selected - selected);
    m_selected = selected;
    for (const QAccessible::Id id : changed) {
        QAccessibleInterface *interface = QAccessible::accessibleInterface(id);
        if (!interface || !interface->isValid())
            continue;
        QAccessibleStateChangeEvent event(interface, change);
        QAccessible::updateAccessibility(&event);
    }
    tellFocus();
}

void PageReader::refocus()
{
    if (m_focused == 0 && focused())
        tellFocus();
}

void PageReader::tellFocus()
{
    if (!view()->hasFocus())
        return;
    QAccessibleInterface *interface = focused();
    const QAccessible::Id id = interface ? QAccessible::uniqueId(interface) : 0;
    if (id == m_focused)
        return tellChanges();
    m_focused = id;
    m_told.clear();
    if (!interface)
        interface = QAccessible::queryAccessibleInterface(view());
    tell(interface, QAccessible::Focus);
    tellChanges();
}

/// Of what has the focus, and of the other way of a point.
void PageReader::tellChanges()
{
    QAccessibleInterface *present = focused();
    if (!present || QAccessible::uniqueId(present) != m_focused)
        return;
    const KeyHand *keys = view()->keys();
    if (keys->part() != KeyHand::Point)
        return tellChange(present);
    const auto sliders = static_cast<ObjectAccess *>(interfaceOf(keys->object()))->slidersOfPoint(keys->point());
    for (QAccessibleInterface *slider : sliders)
        tellChange(slider);
}

/// The first time, it has just been told.
void PageReader::tellChange(QAccessibleInterface *interface)
{
    const QAccessible::Id id = QAccessible::uniqueId(interface);
    const QString text = presentTextOf(interface);
    const bool isNews = m_told.contains(id) && m_told.value(id) != text;
    m_told.insert(id, text);
    if (!isNews)
        return;
    auto *value = static_cast<QAccessibleValueInterface *>(interface->interface_cast(QAccessible::ValueInterface));
    if (!value)
        return tell(interface, QAccessible::DescriptionChanged);
    QAccessibleValueChangeEvent event(interface, value->currentValue());
    QAccessible::updateAccessibility(&event);
}

} // namespace board
