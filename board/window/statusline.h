#pragma once

#include <QtCore/QObject>
#include <QtCore/QRectF>

class QLabel;
class QStatusBar;

namespace board {

class Actions;
class PageView;
class Workspace;

/// The status bar of the window: a hint, the mouse position, the size of the selection, and the zoom.
class StatusLine : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    StatusLine(const Workspace *workspace, const Actions *actions, PageView *view, QStatusBar *bar);

    void showHint(const char *textKey);
    /// For a few seconds. `pattern` has one place for `path`, which is shortened in its middle to the room there
    /// is.
    void showMessage(const QString &pattern, const QString &path);
    /// Scene units; null for no selection.
    void showBounds(const QRectF &bounds);

private:
    void showPointer(const QPointF &scenePos);

    const Workspace *m_workspace;
    QStatusBar *m_bar;
    QLabel *m_hint;
    QLabel *m_pointer;
    QLabel *m_size;
};

} // namespace board
