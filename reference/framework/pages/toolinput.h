#pragma once

#include <pagehost/pagetool.h>

#include <QtCore/QObject>
#include <QtCore/QTimer>

class QGraphicsSceneMouseEvent;

namespace pagehost {

/// Hands the pointer to the tool of a scene, and tells the tool when it is held still.
class ToolInput : public QObject
{
public:
    ToolInput();

    PageTool *tool() const { return m_tool; }
    /// Not owned; null for none. A press that is going on is forgotten.
    void setTool(PageTool *tool);
    void press(const ToolPointer &pointer);
    /// With and without a press.
    void move(const ToolPointer &pointer);
    /// The pointer leaves the view.
    void leave();
    void release(const ToolPointer &pointer);
    bool cancel();
    /// The keys that modify a drawing have changed. False where nothing is drawn.
    bool setModifiers(Qt::KeyboardModifiers modifiers);
    /// From now on moves move the start, too. False where nothing is drawn.
    bool setMovesStart(bool moves);

private:
    void waitForStillness(const ToolPointer &pointer);

    PageTool *m_tool = nullptr;
    bool m_isPressed = false;
    bool m_movesStart = false;
    ToolPointer m_pointer; ///< last one of the press that is going on
    QTimer m_still;
    QPointF m_restingPlace; ///< scene coordinates
};

/// `pixel` is a pixel of the view, scene units.
ToolPointer toolPointer(const QGraphicsSceneMouseEvent &event, double pixel, Pointer kind);

} // namespace pagehost
