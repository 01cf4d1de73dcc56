#pragma once

#include <framework/framework_global.h>

#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QVector>

class CBaseObject;

namespace pagehost {

class Page;

/// An object that came to a page or left it.
struct PageChangeItem
{
    CBaseObject *object = nullptr; ///< not owned
    int index = 0;                 ///< in stacking order, when it came or before it left
    bool added = false;            ///< came, rather than left
};

/// Objects put on a page and taken off while the user is still at it, as one undo step in the end.
class FRAMEWORK_EXPORT PageChange
{
public:
    /// Without a change. What happens to the page otherwise meanwhile is not part of it.
    explicit PageChange(Page *page);
    /// Reverts what has not been pushed.
    ~PageChange();
    PageChange(const PageChange &) = delete;
    PageChange &operator=(const PageChange &) = delete;

    /// Whether nothing has changed yet.
    bool isEmpty() const { return m_items.isEmpty(); }
    /// The page takes ownership of the object. `index` is its place in stacking order, -1 the top.
    void add(CBaseObject *object, int index = -1);
    /// Takes an object off the page and keeps it for undo; ignored where it isn't there.
    void remove(CBaseObject *object);
    /// The objects that were added and are still there, in the order in which they came.
    QVector<CBaseObject *> added() const;
    /// Makes one undo step of everything so far; false without a change.
    bool push(const QString &textKey);
    /// Takes back everything since the last push().
    void revert();

private:
    void releaseObjects();

    QPointer<Page> m_page;
    QVector<PageChangeItem> m_items;
};

} // namespace pagehost
