#pragma once

#include <QtCore/QObject>
#include <QtGui/QAccessible>

#include <functional>

class CBaseObject;

namespace board {

class PageView;
class Workspace;

/// The page of a view, as the interfaces of its objects know it.
class ReadPage : public QObject
{
    Q_OBJECT

public:
    /// A child of the view.
    ReadPage(const Workspace *workspace, PageView *view);

    const Workspace &workspace() const { return *m_workspace; }
    PageView *view() const { return m_view; }
    bool isEditable() const;
    /// Whether the object is on the page now.
    bool shows(const CBaseObject *object) const;
    /// Opens the menu of the selected objects; empty for none.
    void setMenu(const std::function<void()> &open) { m_openMenu = open; }
    bool hasMenu() const { return bool(m_openMenu); }
    void openMenu() const { m_openMenu(); }
    /// Null for no object.
    virtual QAccessibleInterface *interfaceOf(CBaseObject *object) = 0;

protected:
    /// An object that goes is shown until everybody has been told; null afterwards.
    void setLeaving(const CBaseObject *object) { m_leaving = object; }

private:
    const Workspace *m_workspace;
    PageView *m_view;
    const CBaseObject *m_leaving = nullptr;
    std::function<void()> m_openMenu;
};

} // namespace board
