#pragma once

#include <pagehost/assetstore.h>

#include <QtCore/QByteArray>
#include <QtCore/QSet>
#include <QtCore/QVector>

class CBaseObject;

namespace chunks {
class Writer;
}

namespace pagehost {

class Document;
struct ExtraData;

/// The assets that objects on pages and lessons of a document name. Keeps the texts of the objects first.
AssetStore namedAssets(Document &document);
/// The assets that some objects name, those of placeholders from the document that they belong to.
AssetStore namedAssets(const QVector<CBaseObject *> &objects);

/// As chunks. False when they are too large.
bool writeAssets(chunks::Writer &writer, const AssetStore &assets);

/// Moves assets that another version of this program has kept as an unknown member or as unknown chunks to the
/// store. What is no asset stays.
void takeAssetMembers(ExtraData &extra, AssetStore &store);
void takeAssetChunks(ExtraData &extra, AssetStore &store);

} // namespace pagehost
