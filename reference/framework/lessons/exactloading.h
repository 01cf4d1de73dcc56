#pragma once

#include <QtCore/QByteArray>

class CBaseObject;

namespace pagehost {

/// Has a new object that was just loaded from `state` come to save exactly that, where it differs by a rounding
/// error.
///
/// Shapes leave a control point where it is when it is to move by less than 1e-7 units. One of a new object may
/// stand that near to its place, so that all are moved away and the state is loaded again. False when the object
/// still saves something else.
bool loadExactly(CBaseObject &object, const QByteArray &state);

} // namespace pagehost
