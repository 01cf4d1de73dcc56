#include <host/shownhandles.h>

#include <framework/cbaseobject.h>

#include <pagehost/pagescene.h>

#include <host/controlpointplaces.h>
#include <host/objectpage.h>

#include <algorithm>

namespace {

OperationType operationOf(CObjAction::ACT_Def handle)
{
    if (HandleLayout::isResize(handle))
        return OperationResize;
    return handle == CObjAction::ACT_Rotate ? OperationRotate : OperationMirror;
}

bool isOffered(CBaseObject &object, CObjAction::ACT_Def handle)
{
    return !object.isHandleDisabled(handle) && object.canDo(operationOf(handle));
}

/// Of the object's control points, item coordinates.
QVector<QPointF> pointsOf(CBaseObject &object)
{
    QVector<QPointF> points;
    const QVector<ControlPointPlace> places = controlPointPlaces(object);
    for (const ControlPointPlace &place : places)
        points.append(object.mapFromScene(place.centre));
    return points;
}

} // namespace

HandleLayout layoutOf(const CBaseObject &object)
{
    const pagehost::PageScene *scene = pageSceneOf(object);
    return {object.getClientRect(), object.getCurZoomRate(), scene && scene->hasLargeHandles()};
}

QVector<CObjAction::ACT_Def> shownHandles(CBaseObject &object)
{
    QVector<CObjAction::ACT_Def> offered;
    for (const CObjAction::ACT_Def handle : HandleLayout::handles())
        if (isOffered(object, handle))
            offered.append(handle);
    // Most shapes have no handles that could hide.
    const bool hasSides = std::any_of(offered.begin(), offered.end(), HandleLayout::isSide);
    return hasSides ? layoutOf(object).unhidden(offered, pointsOf(object)) : offered;
}

QVector<CObjAction::ACT_Def> frameHandles(const HandleLayout &layout)
{
    QVector<CObjAction::ACT_Def> handles;
    for (const CObjAction::ACT_Def handle : HandleLayout::handles())
        if (operationOf(handle) != OperationMirror)
            handles.append(handle);
    return layout.unhidden(handles, {});
}
