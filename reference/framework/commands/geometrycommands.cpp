#include <pagehost/commands.h>

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>
#include <framework/iframework.h>

#include <commands/pagecommand.h>
#include <host/geometry.h>
#include <pagehost/page.h>

#include <algorithm>
#include <cmath>

namespace pagehost {

namespace {

class GeometryCommand : public AppliedCommand
{
public:
    GeometryCommand(const QVector<GeometrySnapshot> &before, const QVector<GeometrySnapshot> &after,
                    const QString &textKey)
        : AppliedCommand(textKey, true)
        , m_before(before)
        , m_after(after)
    {
    }

    void undo() override { restore(m_before); }

protected:
    void apply() override { restore(m_after); }

private:
    static void restore(const QVector<GeometrySnapshot> &snapshots)
    {
        for (const GeometrySnapshot &snapshot : snapshots)
            snapshot.restore();
    }

    QVector<GeometrySnapshot> m_before;
    QVector<GeometrySnapshot> m_after;
};

class LockCommand : public AppliedCommand
{
public:
    LockCommand(const QVector<CBaseObject *> &objects, bool locked)
        : AppliedCommand(locked ? QStringLiteral("IDS_UNDO_LOCK") : QStringLiteral("IDS_UNDO_UNLOCK"), false)
        , m_objects(objects)
        , m_locked(locked)
    {
    }

    void undo() override { setAll(!m_locked); }

protected:
    void apply() override { setAll(m_locked); }

private:
    void setAll(bool locked)
    {
        for (CBaseObject *object : qAsConst(m_objects))
            object->setLocked(locked);
    }

    QVector<CBaseObject *> m_objects;
    bool m_locked;
};

QVector<CBaseObject *> unlocked(const QVector<CBaseObject *> &objects)
{
    QVector<CBaseObject *> found;
    std::copy_if(objects.begin(), objects.end(), std::back_inserter(found),
                 [](const CBaseObject *object) { return !object->isLocked(); });
    return found;
}

} // namespace

bool pushGeometryChange(const QVector<GeometrySnapshot> &before, const QString &textKey)
{
    QVector<GeometrySnapshot> changed;
    QVector<GeometrySnapshot> after;
    for (const GeometrySnapshot &snapshot : before) {
        const auto content = snapshot.hasContent() ? GeometrySnapshot::WithContent : GeometrySnapshot::PlaceOnly;
        const GeometrySnapshot now(snapshot.object(), content);
        if (!now.hasSameGeometry(snapshot)) {
            changed.append(snapshot);
            after.append(now);
        }
    }
    if (changed.isEmpty())
        return false;
    CUndoRedo::GetInstance()->push(new GeometryCommand(changed, after, textKey));
    return true;
}

bool moveObjects(const QVector<CBaseObject *> &objects, const QPointF &delta)
{
    const QVector<GeometrySnapshot> before = takeSnapshots(unlocked(objects), GeometrySnapshot::PlaceOnly);
    for (const GeometrySnapshot &snapshot : before)
        snapshot.object()->CPSRootObject::setPos(snapshot.pos() + delta, true);
    return pushGeometryChange(before, QStringLiteral("IDS_UNDO_MOVE"));
}

bool rotateObjects(const QVector<CBaseObject *> &objects, double degrees)
{
    const QVector<GeometrySnapshot> before = takeSnapshots(unlocked(objects), GeometrySnapshot::PlaceOnly);
    for (const GeometrySnapshot &snapshot : before) {
        CBaseObject *object = snapshot.object();
        object->setRotateByPoint(normalizedDegrees(snapshot.rotation() + degrees), object->getClientRect().center(),
                                 true);
    }
    return pushGeometryChange(before, QStringLiteral("IDS_UNDO_ROTATE"));
}

bool resizeObject(CBaseObject *object, const QSizeF &size)
{
    if (object->isLocked() || !isFinite(size))
        return false;
    const QVector<GeometrySnapshot> before{{object, GeometrySnapshot::WithContent}};
    object->setSize(possibleSize(size), true, false);
    object->CPSRootObject::setPos(before.first().pos(), true);
    return pushGeometryChange(before, QStringLiteral("IDS_UNDO_RESIZE"));
}

bool mirrorObjects(const QVector<CBaseObject *> &objects, bool horizontally)
{
    const QVector<GeometrySnapshot> before = takeSnapshots(unlocked(objects), GeometrySnapshot::PlaceOnly);
    for (const GeometrySnapshot &snapshot : before) {
        snapshot.object()->setMirror(snapshot.isMirrored() != horizontally, snapshot.isFlipped() == horizontally,
                                     true);
    }
    return pushGeometryChange(before, QStringLiteral("IDS_UNDO_MIRROR"));
}

bool setObjectsLocked(const QVector<CBaseObject *> &objects, bool locked)
{
    QVector<CBaseObject *> changed;
    std::copy_if(objects.begin(), objects.end(), std::back_inserter(changed),
                 [&](const CBaseObject *object) { return object->isLocked() != locked; });
    if (changed.isEmpty())
        return false;
    CUndoRedo::GetInstance()->push(new LockCommand(changed, locked));
    return true;
}

} // namespace pagehost
