#pragma once

#include <pagehost/assetstore.h>

class CBaseObject;

namespace pagehost {

/// The texts that an object is made of (pagehost::NeededTexts), by key.
QMap<QByteArray, QByteArray> textsOf(CBaseObject &object);
/// Keeps these texts in a store, and gives their keys.
QSet<QByteArray> keepTextsOf(CBaseObject &object, AssetStore &store);

} // namespace pagehost
