#include <pages/toolinput.h>

#include <QtWidgets/QGraphicsSceneMouseEvent>

#include <cmath>
#include <utility>

namespace pagehost {

namespace {

/// A pointer that stays within this distance rests, pixels.
constexpr double restingPixels = 3;

} // namespace

ToolInput::ToolInput()
{
    m_still.setSingleShot(true);
    connect(&m_still, &QTimer::timeout, this, [this] {
        if (m_tool && m_isPressed)
            m_tool->heldStill();
    });
}

void ToolInput::setTool(PageTool *tool)
{
    m_tool = tool;
    m_isPressed = false;
    m_still.stop();
}

void ToolInput::press(const ToolPointer &pointer)
{
    if (!m_tool)
        return;
    m_isPressed = true;
    m_movesStart = false;
    m_pointer = pointer;
    waitForStillness(pointer);
    m_tool->press(pointer);
}

void ToolInput::move(const ToolPointer &pointer)
{
    if (!m_tool)
        return;
    m_pointer = pointer;
    m_pointer.movesStart = m_movesStart;
    const QPointF way = pointer.pos - m_restingPlace;
    if (m_isPressed && std::hypot(way.x(), way.y()) > restingPixels * pointer.pixel)
        waitForStillness(pointer);
    if (m_isPressed || m_tool->isDrawing())
        m_tool->move(m_pointer);
    else
        m_tool->hover(m_pointer);
}

void ToolInput::leave()
{
    if (m_tool && !m_isPressed && !m_tool->isDrawing())
        m_tool->hoverEnd();
}

void ToolInput::release(const ToolPointer &pointer)
{
    m_still.stop();
    if (!m_tool || !m_isPressed)
        return;
    m_isPressed = false;
    m_pointer = pointer;
    m_pointer.movesStart = std::exchange(m_movesStart, false);
    m_tool->release(m_pointer);
}

bool ToolInput::cancel()
{
    m_still.stop();
    m_isPressed = false;
    return m_tool && m_tool->cancel();
}

bool ToolInput::setModifiers(Qt::KeyboardModifiers modifiers)
{
    if (!m_tool || !m_isPressed || m_pointer.modifiers == modifiers)
        return false;
    m_pointer.modifiers = modifiers;
    m_tool->move(m_pointer);
    return true;
}

bool ToolInput::setMovesStart(bool moves)
{
    if (!m_isPressed && moves)
        return false;
    return std::exchange(m_movesStart, moves) || moves;
}

void ToolInput::waitForStillness(const ToolPointer &pointer)
{
    m_restingPlace = pointer.pos;
    if (m_tool->stillTime() > 0)
        m_still.start(m_tool->stillTime());
}

ToolPointer toolPointer(const QGraphicsSceneMouseEvent &event, double pixel, Pointer kind)
{
    ToolPointer pointer;
    pointer.pos = event.scenePos();
    pointer.pixel = pixel;
    pointer.modifiers = event.modifiers();
    pointer.kind = kind;
    return pointer;
}

} // namespace pagehost
