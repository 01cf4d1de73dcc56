#include <pagehost/commands.h>

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>
#include <framework/iframework.h>

#include <commands/pagecommand.h>
#include <host/geometry.h>
#include <pagehost/objectframe.h>
#include <pagehost/page.h>
#include <pagehost/selection.h>

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

using Objects = QVector<CBaseObject *>;

/// Those that don't just follow others.
Objects movable(const Objects &objects)
{
    Objects found;
    std::copy_if(objects.begin(), objects.end(), std::back_inserter(found),
                 [](CBaseObject *object) { return object->canDo(OperationMove); });
    return found;
}

void rotateAlone(const QVector<GeometrySnapshot> &before, double degrees)
{
    for (const GeometrySnapshot &snapshot : before) {
        CBaseObject *object = snapshot.object();
        object->setRotateByPoint(normalizedDegrees(snapshot.rotation() + degrees), object->getClientRect().center(),
                                 true);
    }
}

void mirrorAlone(const QVector<GeometrySnapshot> &before, bool horizontally)
{
    for (const GeometrySnapshot &snapshot : before)
        snapshot.object()->setMirror(snapshot.isMirrored() != horizontally, snapshot.isFlipped() == horizontally,
                                     true);
}

QVector<Objects> eachAlone(const Objects &objects)
{
    QVector<Objects> units;
    for (CBaseObject *object : objects)
        units.append({object});
    return units;
}

/// Changes objects by `alone` and groups by `together`, which gets their centre too; one step for all.
template<typename Alone, typename Together>
bool changeUnits(const QVector<Objects> &units, const QString &textKey, const Alone &alone,
                 const Together &together)
{
    QVector<GeometrySnapshot> before;
    for (const Objects &unit : units) {
        const bool isGroup = unit.size() > 1;
        const Objects changed = unlocked(isGroup ? movable(unit) : unit);
        const QVector<GeometrySnapshot> snapshots = takeSnapshots(changed, GeometrySnapshot::PlaceOnly);
        isGroup ? together(snapshots, boundsOf(movable(unit)).center()) : alone(snapshots);
        before += snapshots;
    }
    return pushGeometryChange(before, textKey);
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
    return rotateUnits(eachAlone(objects), degrees);
}

bool rotateUnits(const QVector<QVector<CBaseObject *>> &units, double degrees)
{
    return changeUnits(
        units, QStringLiteral("IDS_UNDO_ROTATE"), [=](const auto &before) { rotateAlone(before, degrees); },
        [=](const auto &before, const QPointF &centre) { turnTogether(before, centre, degrees); });
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
    return mirrorUnits(eachAlone(objects), horizontally);
}

bool mirrorUnits(const QVector<QVector<CBaseObject *>> &units, bool horizontally)
{
    return changeUnits(
        units, QStringLiteral("IDS_UNDO_MIRROR"), [=](const auto &before) { mirrorAlone(before, horizontally); },
        [=](const auto &before, const QPointF &centre) { mirrorTogether(before, centre, horizontally); });
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
