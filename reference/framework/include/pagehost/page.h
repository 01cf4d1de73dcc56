#pragma once

#include <pagehost/document.h>
#include <pagehost/groups.h>

#include <framework/cpagebgprop.h>
#include <framework/framework_global.h>
#include <framework/ipspage.h>

#include <QtCore/QHash>
#include <QtCore/QRectF>
#include <QtCore/QSet>
#include <QtCore/QTimer>
#include <QtCore/QVector>

#include <memory>
#include <optional>

class CBaseObject;

namespace pagehost {

class Followers;
class PageScene;

/// One page: its size, its background and its objects, bottom to top, shown by a scene whose rectangle is the page.
///
/// The operations here change the page at once and leave no undo step; pagehost/commands.h has the undoable ones.
class FRAMEWORK_EXPORT Page : public QObject, public IPsPage
{
    Q_OBJECT

public:
    /// `size` in scene units. `document` may be null for a page on its own; documents make their own pages.
    explicit Page(Document *document, const QSizeF &size = Document::defaultPageSize(), QObject *parent = nullptr);
    /// Deletes its objects, retained ones too.
    ~Page() override;

    Document *document() const override { return m_document; }
    /// Never null; owned by the page.
    PageScene *scene() const { return m_scene.get(); }
    /// Scene units.
    QSizeF size() const { return m_size; }
    /// (0, 0) to size(), scene units.
    QRectF rect() const { return {QPointF(0, 0), m_size}; }
    /// Sizes that are not finite and positive are ignored.
    void setSize(const QSizeF &size);
    /// Initially opaque white.
    const CPageBgProp &background() const { return m_background; }
    /// The fill of the whole page.
    void setBackground(const CPageBgProp &background);

    /// Objects in stacking order, the bottom one first.
    QVector<CBaseObject *> objects() const { return m_objects; }
    /// Number of objects on the page.
    int objectCount() const { return m_objects.size(); }
    /// Index in stacking order; -1 for an object that is not on the page.
    int indexOf(const CBaseObject *object) const;
    /// Whether the object is on the page.
    bool contains(const CBaseObject *object) const { return m_members.contains(object); }
    /// The selected objects in stacking order.
    QVector<CBaseObject *> selectedObjects() const;
    /// Selects exactly these objects; those of other pages are skipped. Emits selectionChanged() once, or not at
    /// all when the selection stays the same.
    void select(const QVector<CBaseObject *> &objects);
    /// The topmost visible object whose shape contains `scenePos` (scene coordinates); null without one.
    CBaseObject *objectAt(const QPointF &scenePos) const;

    /// Puts an object on the page, which owns it from then on. `index` is its place in stacking order, -1 the top.
    /// An object that is on the page already stays as it is; one of another page must be removed there first.
    void addObject(CBaseObject *object, int index = -1);
    /// Puts objects on top in the order given and takes ownership. Their stacking numbers (zValue()) are kept if
    /// they are increasing.
    void appendObjects(const QVector<CBaseObject *> &objects);
    /// Takes an object off the page, unselected. It stays alive while retained, else it is deleted when control
    /// returns to the event loop. Returns its index in stacking order, -1 when it was not on the page.
    int removeObject(CBaseObject *object);
    /// Moves the object to `index` (limited to the range) in stacking order.
    void moveObject(CBaseObject *object, int index);
    /// Arranges the page's objects in this order, which must contain the same objects; else nothing changes.
    bool setStackingOrder(const QVector<CBaseObject *> &objects);

    /// Keeps an object alive off the page until the matching release(): undo steps and lessons have plain pointers.
    void retain(CBaseObject *object);
    /// Ends a retain(); an object that nobody retains and that is off the page is deleted later.
    void release(CBaseObject *object);
    /// The objects of the page that are kept off it.
    QVector<CBaseObject *> keptObjects() const { return m_outside; }

    /// @name Groups
    /// @{

    /// Also groups and members that are not there, since undo may bring them back.
    ObjectGroups groups() const { return m_groups; }
    /// Takes them as normalized() makes them.
    void setGroups(const ObjectGroups &groups);
    /// The groups among the objects that are on the page.
    const Grouping &grouping() const;
    /// The group that the user has entered, whose members are selected one by one; 0 for the page. It holds the
    /// selected objects: selecting others leaves it.
    quint32 enteredGroup() const { return m_enteredGroup; }
    /// Enters the group that holds the object next, seen from the entered one, and selects the part of it that a
    /// click takes then. False where the object is no part of such a group.
    bool enterGroupOf(CBaseObject *object);
    /// Goes back to the group around and selects the one that was left. False on the page.
    bool leaveGroup();
    /// The objects that a click on this one takes: all of its group, or itself in the entered group.
    QVector<CBaseObject *> unitOf(CBaseObject *object) const;
    /// @}

    /// Parts of the file that this version does not know.
    ExtraData extraData() const { return m_extraData; }
    /// Replaces them.
    void setExtraData(const ExtraData &extraData) { m_extraData = extraData; }

    /// Increases with every visible change of the page.
    quint64 revision() const { return m_revision; }
    /// Called by objects and commands after a visible change.
    void noteChange();

Q_SIGNALS:
    /// The object is on the page.
    void objectAdded(CBaseObject *object);
    /// The object is off the page and still exists.
    void objectRemoved(CBaseObject *object);
    /// objects() has another order.
    void stackingChanged();
    /// groups() has changed.
    void groupsChanged();
    /// background() has changed.
    void backgroundChanged();
    /// Scene units.
    void sizeChanged(const QSizeF &size);
    /// Once for each select(), addObjects(), removeObjects() and action of the user; at once.
    void selectionChanged();
    /// The page has changed visibly; at most once per turn of the event loop.
    void contentChanged();
    /// The saved data of an object of the page may have changed; at once, possibly several times for one change.
    void objectChanged(CBaseObject *object);
    /// A notification of an object (CPSRootObject::notifyObjPropertyChanged), at once.
    void objectPropertyChanged(CBaseObject *object, int id, const QString &value);

private:
    void renumber();
    void giveStackingNumber(int index);
    void dropIfUnused(CBaseObject *object);
    void followSelection();
    void dropGrouping();

    Document *m_document;
    QSizeF m_size;
    CPageBgProp m_background;
    ExtraData m_extraData;
    ObjectGroups m_groups;
    mutable std::optional<Grouping> m_grouping;
    quint32 m_enteredGroup = 0;
    std::unique_ptr<PageScene> m_scene;
    QVector<CBaseObject *> m_objects;
    QSet<const CBaseObject *> m_members; ///< the same objects, for fast lookup
    QVector<CBaseObject *> m_outside;    ///< owned objects that are off the page
    QHash<CBaseObject *, int> m_retained;
    std::unique_ptr<Followers> m_followers;
    QTimer m_changeTimer;
    quint64 m_revision = 0;
};

} // namespace pagehost
