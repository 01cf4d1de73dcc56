#include "accessible/gripaccess.h"

#include "accessible/objectwords.h"
#include "core/workspace.h"
#include "page/controlpoints.h"
#include "page/pageview.h"

#include <pagehost/pagescene.h>

#include <cmath>

namespace board {

namespace {

/// Around the middle of a grip, logical pixels.
constexpr int gripReach = 12;
constexpr double lastDegree = 359;
constexpr double degreesOfStep = 15;
constexpr double fullTurn = 360;
const QString selectAction = QStringLiteral("select");

} // namespace

GripAccess::GripAccess(CBaseObject *object, ReadPage *reader, KeyHand::Part part, int number)
    : m_object(object)
    , m_reader(reader)
    , m_part(part)
    , m_number(number)
{
}

bool GripAccess::isValid() const
{
    return m_object && m_reader && m_reader->shows(m_object) && !m_object->isLocked();
}

QWindow *GripAccess::window() const
{
    return isValid() ? m_reader->view()->window()->windowHandle() : nullptr;
}

QAccessibleInterface *GripAccess::parent() const
{
    return isValid() ? m_reader->interfaceOf(m_object) : nullptr;
}

QRect GripAccess::rect() const
{
    if (!isValid())
        return {};
    const PageView *view = m_reader->view();
    const QPoint middle = view->viewport()->mapToGlobal(view->mapFromScene(place()));
    return {middle - QPoint(gripReach, gripReach), middle + QPoint(gripReach, gripReach)};
}

QAccessible::State GripAccess::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const PageView *view = m_reader->view();
    const KeyHand *keys = m_reader->view()->keys();
    state.focusable = view->isEditable();
    state.disabled = !view->isEditable();
    state.active = keys->object() == m_object && keys->part() == m_part && keys->point() == m_number;
    state.focused = state.active && view->hasFocus();
    state.invisible = !m_object->isVisible();
    return state;
}

void *GripAccess::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
}

QStringList GripAccess::actionNames() const
{
    return {selectAction};
}

QString GripAccess::localizedActionName(const QString &name) const
{
    return m_reader && name == selectAction ? m_reader->workspace().text("IDS_TOOL_SELECT") : name;
}

void GripAccess::doAction(const QString &name)
{
    if (!isValid() || (name != selectAction && name != setFocusAction()))
        return;
    if (name == setFocusAction())
        m_reader->view()->setFocus();
    m_reader->view()->keys()->take(m_object, m_part, m_number);
}

SizeGripAccess::SizeGripAccess(CBaseObject *object, ReadPage *reader)
    : GripAccess(object, reader, KeyHand::Size, 0)
{
}

QString SizeGripAccess::text(QAccessible::Text kind) const
{
    if (!isValid())
        return {};
    if (kind == QAccessible::Name)
        return reader()->workspace().text("IDS_BOARD_SIZE_GRIP");
    return kind == QAccessible::Description ? sizeOf(*owner()) : QString();
}

QPointF SizeGripAccess::place() const
{
    return pagehost::PageScene::handlePlace(owner(), CObjAction::ACT_ResizeBottomRight);
}

QString SliderAccess::text(QAccessible::Text kind) const
{
    if (!isValid())
        return {};
    if (kind == QAccessible::Name)
        return slider().name;
    if (kind == QAccessible::Description && part() == KeyHand::Point)
        return controlPointOf(*owner(), number()).hint;
    return {};
}

void *SliderAccess::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return GripAccess::interface_cast(type);
}

QVariant SliderAccess::currentValue() const
{
    return isValid() ? slider().value : QVariant();
}

void SliderAccess::setCurrentValue(const QVariant &value)
{
    if (isValid() && reader()->isEditable())
        set(value.toDouble());
}

QVariant SliderAccess::maximumValue() const
{
    return isValid() ? slider().maximum : QVariant();
}

QVariant SliderAccess::minimumValue() const
{
    return isValid() ? slider().minimum : QVariant();
}

QVariant SliderAccess::minimumStepSize() const
{
    return isValid() ? slider().step : QVariant();
}

TurnGripAccess::TurnGripAccess(CBaseObject *object, ReadPage *reader)
    : SliderAccess(object, reader, KeyHand::Turn, 0)
{
}

QPointF TurnGripAccess::place() const
{
    return pagehost::PageScene::handlePlace(owner(), CObjAction::ACT_Rotate);
}

PointSlider TurnGripAccess::slider() const
{
    PointSlider slider;
    slider.name = reader()->workspace().text("IDS_BOARD_ROTATION");
    slider.value = angleOf(*owner());
    slider.maximum = lastDegree;
    slider.step = degreesOfStep;
    return slider;
}

void TurnGripAccess::set(double value)
{
    if (std::isfinite(value))
        reader()->view()->keys()->turnTo(owner(), value - fullTurn * std::floor(value / fullTurn));
}

PointAccess::PointAccess(CBaseObject *object, ReadPage *reader, int number, PointSlider::Way way)
    : SliderAccess(object, reader, KeyHand::Point, number)
    , m_way(way)
{
}

bool PointAccess::isValid() const
{
    return SliderAccess::isValid() && slider().number != 0;
}

QPointF PointAccess::place() const
{
    return owner()->mapToScene(controlPointOf(*owner(), number()).place);
}

PointSlider PointAccess::slider() const
{
    return sliderOf(*owner(), number(), m_way, *reader()->view(), reader()->workspace());
}

void PointAccess::set(double value)
{
    setSlider(*owner(), slider(), value, *reader()->view()->keys());
}

} // namespace board
