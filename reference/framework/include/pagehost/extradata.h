#pragma once

#include <framework/framework_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QVector>

namespace pagehost {

/// Parts of a file that this version does not know, kept and written back on saving.
struct ExtraData
{
    /// A part of a file in the binary format.
    struct Chunk
    {
        QByteArray tag;  ///< four characters
        QByteArray data; ///< its payload
    };
    QVector<Chunk> chunks; ///< of the binary format
    QJsonObject members;   ///< of the JSON format

    /// Whether there is nothing unknown.
    bool isEmpty() const { return chunks.isEmpty() && members.isEmpty(); }
};

/// Same tag, same bytes.
inline bool operator==(const ExtraData::Chunk &one, const ExtraData::Chunk &other)
{
    return one.tag == other.tag && one.data == other.data;
}

/// Same chunks in the same order, same members.
inline bool operator==(const ExtraData &one, const ExtraData &other)
{
    return one.chunks == other.chunks && one.members == other.members;
}

} // namespace pagehost
