#include "accessible/objectaccess.h"

#include "accessible/gripaccess.h"
#include "accessible/objectwords.h"
#include "core/workspace.h"
#include "page/labeleditor.h"
#include "page/pageview.h"

#include <algorithm>

namespace board {

namespace {

const QString selectAction = QStringLiteral("select");
const QString editAction = QStringLiteral("edit");
const QString menuAction = QStringLiteral("menu");
constexpr int waysOfPoint = 3;

} // namespace

ObjectAccess::ObjectAccess(CBaseObject *object, ReadPage *reader)
    : m_object(object)
    , m_reader(reader)
{
}

ObjectAccess::~ObjectAccess()
{
    for (const QAccessible::Id id : qAsConst(m_ids))
        QAccessible::deleteAccessibleInterface(id);
}

bool ObjectAccess::isValid() const
{
    return m_object && m_reader && m_reader->shows(m_object);
}

QWindow *ObjectAccess::window() const
{
    return isValid() ? m_reader->view()->window()->windowHandle() : nullptr;
}

QAccessibleInterface *ObjectAccess::parent() const
{
    return isValid() ? QAccessible::queryAccessibleInterface(m_reader->view()) : nullptr;
}

/// As the keys walk them.
QVector<ObjectAccess::Grip> ObjectAccess::grips() const
{
    QVector<Grip> grips;
    if (!isValid() || m_object->isLocked())
        return grips;
    const QVector<PointSlider> sliders = slidersOf(*m_object, *m_reader->view(), m_reader->workspace());
    for (const PointSlider &slider : sliders)
        grips.append({KeyHand::Point, slider.number, slider.way});
    if (m_object->canDo(OperationResize))
        grips.append({KeyHand::Size, 0, PointSlider::Meaning});
    if (m_object->canDo(OperationRotate))
        grips.append({KeyHand::Turn, 0, PointSlider::Meaning});
    return grips;
}

QAccessibleInterface *ObjectAccess::interfaceOf(const Grip &grip) const
{
    const int key = (grip.number * (KeyHand::Turn + 1) + grip.part) * waysOfPoint + grip.way;
    QAccessible::Id &id = m_ids[key];
    if (id == 0) {
        QAccessibleInterface *made = nullptr;
        if (grip.part == KeyHand::Point)
            made = new PointAccess(m_object, m_reader, grip.number, grip.way);
        else if (grip.part == KeyHand::Size)
            made = new SizeGripAccess(m_object, m_reader);
        else
            made = new TurnGripAccess(m_object, m_reader);
        id = QAccessible::registerAccessibleInterface(made);
    }
    return QAccessible::accessibleInterface(id);
}

QAccessibleInterface *ObjectAccess::grip(KeyHand::Part part, int number)
{
    const QVector<Grip> present = grips();
    for (const Grip &grip : present)
        if (grip.part == part && grip.number == number)
            return interfaceOf(grip);
    return nullptr;
}

QVector<QAccessibleInterface *> ObjectAccess::slidersOfPoint(int number)
{
    QVector<QAccessibleInterface *> sliders;
    const QVector<Grip> present = grips();
    for (const Grip &grip : present)
        if (grip.part == KeyHand::Point && grip.number == number)
            sliders.append(interfaceOf(grip));
    return sliders;
}

QAccessibleInterface *ObjectAccess::child(int index) const
{
    const QVector<Grip> present = grips();
    return index >= 0 && index < present.size() ? interfaceOf(present.at(index)) : nullptr;
}

int ObjectAccess::childCount() const
{
    return grips().size();
}

int ObjectAccess::indexOfChild(const QAccessibleInterface *child) const
{
    const QVector<Grip> present = grips();
    for (int i = 0; i < present.size(); ++i)
        if (interfaceOf(present.at(i)) == child)
            return i;
    return -1;
}

QAccessibleInterface *ObjectAccess::childAt(int x, int y) const
{
    const QVector<Grip> present = grips();
    for (const Grip &grip : present)
        if (interfaceOf(grip)->rect().contains(x, y))
            return interfaceOf(grip);
    return nullptr;
}

QString ObjectAccess::text(QAccessible::Text kind) const
{
    if (!isValid())
        return {};
    if (kind == QAccessible::Name)
        return nameOf(*m_object, *m_reader->view()->page(), m_reader->workspace());
    return kind == QAccessible::Description ? descriptionOf(*m_object, m_reader->workspace()) : QString();
}

QRect ObjectAccess::rect() const
{
    if (!isValid())
        return {};
    const PageView *view = m_reader->view();
    const QRectF box = m_object->mapToScene(m_object->getClientRect()).boundingRect();
    const QRect shown = view->viewportTransform().mapRect(box).toAlignedRect();
    return shown.translated(view->viewport()->mapToGlobal(QPoint()));
}

QAccessible::State ObjectAccess::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    PageView *view = m_reader->view();
    const bool isEditable = view->isEditable();
    state.selectable = isEditable;
    state.focusable = isEditable;
    state.selected = m_object->isSelected();
    state.focused =
        view->hasFocus() && view->keys()->object() == m_object && view->keys()->part() == KeyHand::Whole;
    state.editable = isEditable && !m_object->isLocked();
    state.readOnly = !state.editable;
    state.movable = state.editable;
    state.invisible = !m_object->isVisible();
    state.offscreen = !rect().intersects(QRect(view->viewport()->mapToGlobal(QPoint()), view->viewport()->size()));
    return state;
}

void *ObjectAccess::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
}

bool ObjectAccess::canWrite() const
{
    return isValid() && m_reader->isEditable() && !m_object->isLocked() && !labelsOf(*m_object).isEmpty();
}

QStringList ObjectAccess::actionNames() const
{
    QStringList names;
    if (!isValid() || !m_reader->isEditable())
        return names;
    names.append(selectAction);
    if (canWrite())
        names.append(editAction);
    if (m_reader->hasMenu())
        names.append(menuAction);
    return names;
}

QString ObjectAccess::localizedActionName(const QString &name) const
{
    if (!m_reader)
        return name;
    if (name == selectAction)
        return m_reader->workspace().text("IDS_TOOL_SELECT");
    if (name == editAction)
        return m_reader->workspace().text("IDS_BOARD_EDIT_TEXT");
    return name == menuAction ? m_reader->workspace().text("IDS_BOARD_CONTEXT_MENU") : name;
}

QString ObjectAccess::localizedActionDescription(const QString &name) const
{
    return localizedActionName(name);
}

QStringList ObjectAccess::keyBindingsForAction(const QString &) const
{
    return {};
}

void ObjectAccess::doAction(const QString &name)
{
    const bool isKnown = actionNames().contains(name) || name == setFocusAction();
    if (!isKnown || !isValid() || !m_reader->view()->keys()->take(m_object))
        return;
    PageView *view = m_reader->view();
    if (name != selectAction)
        view->setFocus();
    if (name == editAction)
        view->writeFirstLabel();
    else if (name == menuAction)
        m_reader->openMenu();
}

} // namespace board
