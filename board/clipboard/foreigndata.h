#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

class CBaseObject;
class QMimeData;

namespace pagehost {
class ObjectRegistry;
} // namespace pagehost

namespace board {

/// Files larger than this are not read.
constexpr qint64 largestForeignFile = 64 * 1024 * 1024;

/// Whether makeObjects() would have something to try.
bool hasForeignData(const QMimeData &data, const pagehost::ObjectRegistry &registry);
/// Objects in the creating state made of what other programs put on the clipboard or drop: pictures and drawings in
/// the formats that plug-ins take, other pictures as PNG, SVG as text, and files of all these. The caller owns
/// them. `unreadable` gets the names of files that are none of it.
QVector<CBaseObject *> makeObjects(const QMimeData &data, const pagehost::ObjectRegistry &registry,
                                   QStringList &unreadable);

} // namespace board
