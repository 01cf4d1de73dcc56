#pragma once

#include <QtCore/QObject>

class QAction;

namespace board {

class ClipboardController;
class Commands;
class PageView;

/// The Edit menu's entries about the clipboard.
class ClipboardMenu : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    ClipboardMenu(Commands *commands, ClipboardController *clipboard, const PageView *view,
                  QObject *parent = nullptr);

    QAction *cut, *copy, *paste, *copyLook, *pasteLook;
    /// Looks at selection and clipboard anew.
    void update();

private:
    const ClipboardController *m_clipboard;
    const PageView *m_view;
};

} // namespace board
