#pragma once

#include <QtCore/QByteArray>

class CBaseObject;
class CPageBgProp;

namespace pagehost {

/// The object's saved bytes.
QByteArray savedData(CBaseObject &object);
/// The saved bytes of the fill.
QByteArray savedData(const CPageBgProp &fill);

} // namespace pagehost
