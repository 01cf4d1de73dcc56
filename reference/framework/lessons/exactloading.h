#pragma once

#include <QtCore/QByteArray>

class CBaseObject;

namespace pagehost {

/// Has a new object that was just loaded from `state` come to save exactly that. False when it still saves
/// something else.
///
/// Shapes take a fill that is there but shows nothing for a colour. So the part of the state that the host keeps is
/// loaded once more, past the object's own load().
bool loadExactly(CBaseObject &object, const QByteArray &state);

} // namespace pagehost
