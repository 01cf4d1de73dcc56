#pragma once

#include <files/objectrecord.h>

#include <QtCore/QDataStream>

namespace pagehost {

/// The payload of an object's chunk. False when the object could not be saved.
bool writeObject(QDataStream &out, CBaseObject *object);
/// The record refers to the payload's bytes. False when the payload is too short for one.
bool readRecord(const QByteArray &payload, ObjectRecord &record);

/// The same; keeps the whole payload when it cannot be read.
ObjectRecord recordOf(const QByteArray &payload);

} // namespace pagehost
