#pragma once

#include <host/handlelayout.h>

class CBaseObject;

/// The layout of the object's handles as its scene shows them.
HandleLayout layoutOf(const CBaseObject &object);
/// The handles that are shown on the object when it is selected alone, in drawing order.
QVector<CObjAction::ACT_Def> shownHandles(CBaseObject &object);
/// Those of a frame around several objects.
QVector<CObjAction::ACT_Def> frameHandles(const HandleLayout &layout);
