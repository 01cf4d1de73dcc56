#pragma once

#include <QtCore/QPointF>
#include <QtCore/QString>

class CBaseObject;

namespace board {

/// The address that somebody has meant: "example.org" becomes "https://example.org", "a@example.org" a mailto
/// address. Empty for one of another scheme than http, https and mailto.
QString linkAddress(const QString &typed);
/// Opens an address in the program for it; false, without effect, for one that linkAddress() refuses.
bool openLink(const QString &address);
/// The address of the link of an object at a place (scene coordinates); empty for none.
QString linkAt(CBaseObject &object, const QPointF &scenePos);

} // namespace board
