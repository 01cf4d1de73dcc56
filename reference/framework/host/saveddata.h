#pragma once

#include <QtCore/QByteArray>

class CBaseObject;
class CPageBgProp;

namespace pagehost {

/// The bytes that the object saves.
QByteArray savedData(CBaseObject &object);
/// The bytes that the fill saves.
QByteArray savedData(const CPageBgProp &fill);

} // namespace pagehost
