#pragma once

#include <framework/cbaseobject.h>

/// The graphics item; null for an object whose item is no CBaseObject.
inline CBaseObject *baseObject(CPSRootObject &object)
{
    return dynamic_cast<CBaseObject *>(&object);
}
