#pragma once

#include "board/boarddriver.h"

#include <core/toolchoice.h>
#include <look/dockbutton.h>
#include <page/labeleditor.h>
#include <page/pageview.h>
#include <window/dock.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>

#include <support/listed.h>

namespace boardtest {

/// The board's window with the Text tool in hand, and keys that write.
struct TextDesk : BoardDriver
{
    TextDesk() { tools().choose(board::Tool::Text); }
    board::ToolChoice &tools() const { return *window().tools(); }
    board::DockButton *button(board::Tool tool) const { return window().dock()->buttonOf(tool); }
    /// The editor that is open; null for none.
    board::LabelEditor *editor() const
    {
        for (auto *editor : support::listed(view().findChildren<board::LabelEditor *>()))
            if (editor->isVisible())
                return editor;
        return nullptr;
    }
    void type(const QString &text) { BoardDriver::type(editor(), text); }
    /// With a click and keys.
    void write(const QPointF &pos, const QString &text)
    {
        click(pos);
        type(text);
        end();
    }
    void end() { strike(Qt::Key_Escape); }
    void strike(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { keyIn(editor(), key, modifiers); }
    /// The first label of the page's object.
    QString written(int index) const
    {
        CBaseObject *object = page().objects().value(index);
        return object ? board::labelsOf(*object).constFirst().text : QString("no text");
    }
};

} // namespace boardtest
