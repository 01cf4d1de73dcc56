#pragma once

#include <QtCore/QPointer>
#include <QtCore/QVector>

class CBaseObject;

namespace pagehost {

class Document;

/// The number by which a line follows the object; 0 without a document. An object that has had none gets one, is
/// appended to `numbered`, and a lesson learns of it, so that the object is followed by its number there, too.
quint32 followedNumber(CBaseObject *object, const Document *document, QVector<QPointer<CBaseObject>> *numbered);

} // namespace pagehost
