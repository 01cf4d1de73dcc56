#pragma once

#include <QtCore/QObject>

class QWidget;

namespace board {

class Commands;
class PageView;
class Workspace;

/// Makes all views of pages, and widgets that were given a role (look/accessiblerole.h), known to screen readers.
/// Costs nothing until a reader asks. Works for one window at a time.
class ScreenReading : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this. `view` is the one whose objects have a menu.
    ScreenReading(const Workspace *workspace, Commands *commands, PageView *view, QObject *parent);
    ~ScreenReading() override;

    const Workspace *workspace() const { return m_workspace; }
    /// Opens the menu of the selected objects of the view.
    void openMenu() const;
    bool hasMenu(const PageView *view) const { return view == m_view; }

private:
    const Workspace *m_workspace;
    Commands *m_commands;
    PageView *m_view;
};

} // namespace board
