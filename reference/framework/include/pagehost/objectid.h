#pragma once

#include <framework/framework_global.h>

#include <QtCore/QtGlobal>

class CBaseObject;

namespace pagehost {

class Document;

/// A number that tells an object from all others of its document, kept in files, so that lessons find it again.
/// 0 while it has none, as objects have when they are made and when they are pasted.
FRAMEWORK_EXPORT quint32 objectId(const CBaseObject *object);
FRAMEWORK_EXPORT void setObjectId(CBaseObject *object, quint32 id);
/// The object's number; gives it one that no object on the document's pages has when it has none.
FRAMEWORK_EXPORT quint32 ensureObjectId(CBaseObject *object, const Document &document);
/// The object on the document's pages that has this number; null when none has.
FRAMEWORK_EXPORT CBaseObject *objectWithId(const Document &document, quint32 id);

} // namespace pagehost
