#pragma once

#include <QtCore/QByteArray>

class CBaseObject;

namespace pagehost {

/// Has a new object that was just loaded from `state` come to save exactly that. False when it still saves
/// something else.
///
/// Two things may be in the way. Shapes take a fill that is there but shows nothing for a colour, so that the
/// host's part is loaded once more. And they leave a control point where it is when it is to move by less than 1e-7
/// units; one of a new object may stand that near to its place, so that all are moved away and the state is loaded
/// again.
bool loadExactly(CBaseObject &object, const QByteArray &state);

} // namespace pagehost
