#pragma once

#include <QtCore/QObject>

class QAction;

namespace board {

class ClipboardController;
class PageView;
class Workspace;

/// The Edit menu's entries about the clipboard.
class ClipboardMenu : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    ClipboardMenu(const Workspace *workspace, ClipboardController *clipboard, const PageView *view,
                  QObject *parent = nullptr);

    QAction *cut, *copy, *paste, *copyLook, *pasteLook;
    /// Looks at selection and clipboard anew.
    void update();

private:
    const ClipboardController *m_clipboard;
    const PageView *m_view;
};

} // namespace board
