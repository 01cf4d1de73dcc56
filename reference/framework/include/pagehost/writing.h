#pragma once

#include <framework/framework_global.h>

class CBaseObject;

namespace pagehost {

/// Says whether a text of the object is being written by the user. While it is, the selected object has its frame
/// but no grips, which letters would cover; guides of the drag before are gone. Not saved.
FRAMEWORK_EXPORT void setBeingWritten(CBaseObject &object, bool isWritten);
/// As told by setBeingWritten(), at first false.
FRAMEWORK_EXPORT bool isBeingWritten(const CBaseObject &object);

} // namespace pagehost
