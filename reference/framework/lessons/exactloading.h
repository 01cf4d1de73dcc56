#pragma once

#include <QtCore/QByteArray>

class CBaseObject;

namespace pagehost {

/// Makes a new object that was just loaded from `state` save exactly that. False when it still saves something
/// else.
///
/// Shapes turn an invisible fill into a colour. So the host's part of the state is loaded once more, past the
/// object's own load().
bool loadExactly(CBaseObject &object, const QByteArray &state);

} // namespace pagehost
