#pragma once

#include <QtCore/QList>

class QMenu;
class QWidget;

namespace board {

class PageView;

/// While a lesson is shown, nothing but looking makes sense: menus, with their keys, bars and panels are off.
class EditingLock
{
public:
    explicit EditingLock(PageView *view);

    /// A menu, bar or panel that is off meanwhile.
    void add(QMenu *menu) { m_menus.append(menu); }
    void add(QWidget *part) { m_parts.append(part); }
    void setLocked(bool locked);

private:
    PageView *m_view;
    QList<QMenu *> m_menus;
    QList<QWidget *> m_parts;
};

} // namespace board
