#pragma once

#include <framework/framework_global.h>

#include <QtCore/QVector>
#include <QtCore/QtGlobal>

class CBaseObject;

namespace pagehost {

class Document;

/// A number that identifies an object in its document. It is saved, so that lessons find the object again. 0 while
/// it has none, as for new and pasted objects.
FRAMEWORK_EXPORT quint32 objectId(const CBaseObject *object);
/// Gives an object this number, which no other object of its document may have.
FRAMEWORK_EXPORT void setObjectId(CBaseObject *object, quint32 id);
/// The object's number; assigns one that is free in the document when it has none.
FRAMEWORK_EXPORT quint32 ensureObjectId(CBaseObject *object, const Document &document);
/// The same for several objects, which may be on no page yet.
FRAMEWORK_EXPORT void ensureObjectIds(const QVector<CBaseObject *> &objects, const Document &document);
/// The object on the document's pages that has this number; null without one.
FRAMEWORK_EXPORT CBaseObject *objectWithId(const Document &document, quint32 id);

/// Lets copies, which are on no page yet, follow the copies of what their originals follow, and nothing where that
/// was not copied along. The followed copies get numbers that are free in the document; without a document the
/// copies follow nothing. `originals` are the numbers of the copied objects in the same order.
FRAMEWORK_EXPORT void followCopies(const QVector<CBaseObject *> &copies, const QVector<quint32> &originals,
                                   const Document *document);

} // namespace pagehost
