#include "window/windowparts.h"

#include "core/commands.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace board {

namespace {

bool takesTab(const QWidget &widget)
{
    return widget.isVisible() && widget.isEnabled() && widget.focusPolicy() & Qt::TabFocus;
}

} // namespace

WindowParts::WindowParts(Commands *commands, const QVector<QWidget *> &parts, QObject *parent)
    : QObject(parent)
    , m_parts(parts)
    , m_last(parts.size())
{
    commands->perform(Command::NextPart, this, [this] { enterNext(true); });
    commands->perform(Command::PreviousPart, this, [this] { enterNext(false); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { remember(now); });
}

/// The innermost one, since bars lie on the page.
int WindowParts::partOf(const QWidget *widget) const
{
    for (; widget; widget = widget->parentWidget()) {
        const int index = m_parts.indexOf(const_cast<QWidget *>(widget));
        if (index >= 0)
            return index;
    }
    return -1;
}

void WindowParts::remember(QWidget *focused)
{
    const int index = partOf(focused);
    if (index >= 0)
        m_last[index] = focused;
}

/// Null for a part that is hidden, or has nothing to focus.
QWidget *WindowParts::entranceOf(int index) const
{
    QWidget *part = m_parts.at(index);
    QWidget *last = m_last.at(index);
    if (last && takesTab(*last) && partOf(last) == index)
        return last;
    if (takesTab(*part))
        return part;
    for (QWidget *widget = part->nextInFocusChain(); widget != part; widget = widget->nextInFocusChain())
        if (takesTab(*widget) && partOf(widget) == index)
            return widget;
    return nullptr;
}

void WindowParts::enterNext(bool forward)
{
    const int count = m_parts.size();
    const int present = partOf(QApplication::focusWidget());
    const int from = present < 0 && !forward ? 0 : present;
    for (int step = 1; step <= count; ++step) {
        const int index = (from + (forward ? step : count - step) + count) % count;
        if (QWidget *entrance = entranceOf(index)) {
            entrance->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

} // namespace board
