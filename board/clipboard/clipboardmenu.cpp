#include "clipboard/clipboardmenu.h"

#include "clipboard/clipboardcontroller.h"
#include "core/commands.h"
#include "page/pageview.h"

#include <pagehost/page.h>

#include <QtWidgets/QAction>

namespace board {

ClipboardMenu::ClipboardMenu(Commands *commands, ClipboardController *clipboard, const PageView *view,
                             QObject *parent)
    : QObject(parent)
    , m_clipboard(clipboard)
    , m_view(view)
{
    cut = commands->perform(Command::Cut, clipboard, [clipboard] { clipboard->cut(); });
    copy = commands->perform(Command::Copy, clipboard, [clipboard] { clipboard->copy(); });
    paste = commands->perform(Command::Paste, clipboard, [clipboard] { clipboard->paste(); });
    copyLook = commands->perform(Command::CopyLook, clipboard, [clipboard] { clipboard->copyLook(); });
    pasteLook = commands->perform(Command::PasteLook, clipboard, [clipboard] { clipboard->pasteLook(); });
    connect(clipboard, &ClipboardController::stateChanged, this, &ClipboardMenu::update);
    update();
}

void ClipboardMenu::update()
{
    const bool isAnySelected = m_view->page() && !m_view->page()->selectedObjects().isEmpty();
    for (QAction *action : {cut, copy, copyLook})
        action->setEnabled(isAnySelected);
    paste->setEnabled(m_clipboard->canPaste() && m_view->isEditable());
    pasteLook->setEnabled(isAnySelected && m_clipboard->hasLook());
}

} // namespace board
