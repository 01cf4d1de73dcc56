#include "clipboard/clipboardmenu.h"

#include "clipboard/clipboardcontroller.h"
#include "core/shortcuts.h"
#include "core/workspace.h"
#include "look/icons.h"
#include "page/pageview.h"

#include <pagehost/page.h>

#include <QtWidgets/QAction>

namespace board {

ClipboardMenu::ClipboardMenu(const Workspace *workspace, ClipboardController *clipboard, const PageView *view,
                             QObject *parent)
    : QObject(parent)
    , m_clipboard(clipboard)
    , m_view(view)
{
    const auto make = [&](const char *textKey, const QList<QKeySequence> &keys, auto work) {
        auto *action = new QAction(workspace->text(textKey), this);
        action->setShortcuts(keys);
        describe(action);
        connect(action, &QAction::triggered, clipboard, work);
        return action;
    };
    cut = make("IDS_BOARD_CUT", keysFor(QKeySequence::Cut, {Qt::CTRL | Qt::Key_X}), &ClipboardController::cut);
    copy = make("IDS_BOARD_COPY", keysFor(QKeySequence::Copy, {Qt::CTRL | Qt::Key_C}), &ClipboardController::copy);
    paste =
        make("IDS_BOARD_PASTE", keysFor(QKeySequence::Paste, {Qt::CTRL | Qt::Key_V}), &ClipboardController::paste);
    copyLook = make("IDS_BOARD_COPY_STYLE", {Qt::CTRL | Qt::ALT | Qt::Key_C}, &ClipboardController::copyLook);
    pasteLook = make("IDS_BOARD_PASTE_STYLE", {Qt::CTRL | Qt::ALT | Qt::Key_V}, &ClipboardController::pasteLook);
    cut->setIcon(icon(Icon::Cut));
    copy->setIcon(icon(Icon::Copy));
    paste->setIcon(icon(Icon::Paste));
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
