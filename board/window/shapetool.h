#pragma once

#include "core/toolchoice.h"

#include <pagehost/creation.h>

#include <QtCore/QObject>

namespace board {

class NewLook;
class PageView;

/// Runs the tool that draws shapes: while it is in use, a kind of shape waits to be drawn.
class ShapeTool : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    ShapeTool(const pagehost::ObjectRegistry *registry, ToolChoice *tools, const NewLook *look, PageView *view,
              QObject *parent);
    ~ShapeTool() override;

    /// Waits for the user to draw a shape of this kind; an empty id for none any more.
    void begin(const QString &kindId);
    /// Puts one of the usual size there (scene coordinates). Null when the kind is unknown.
    CBaseObject *place(const QString &kindId, const QPointF &scenePos);
    /// Stops waiting, and gives an unfinished shape up.
    void cancel() { m_creation.cancel(); }
    /// The kind that waits; empty for none.
    QString waitingKind() const { return m_creation.kindId(); }

Q_SIGNALS:
    void waitingKindChanged();

private:
    void followChoice();
    void wait();
    void rest();
    void takeMade();

    const pagehost::ObjectRegistry *m_registry;
    ToolChoice *m_tools;
    PageView *m_view;
    pagehost::CreationTool m_creation;
    QString m_kindId; ///< drawn last, or waiting
};

} // namespace board
