#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>

/// The frame of the binary format: a signature, then a sequence of chunks, each a header of 16 bytes (tag, length
/// of the payload, checksum of the payload, checksum of these three) and a payload. Numbers are big-endian.
namespace chunks {

/// Unlike any text, and damaged by every program that treats it as text.
constexpr char signature[] = "\x89"
                             "BRD\r\n\x1a\n";
constexpr int signatureSize = 8;
constexpr int headerSize = 16;
constexpr int tagSize = 4;

constexpr char versionTag[] = "VERS";
constexpr char assetTag[] = "ASST";
constexpr char lessonTag[] = "LESS";
constexpr char membersTag[] = "JSON";
constexpr char pageTag[] = "PAGE";
constexpr char groupTag[] = "GRUP";
constexpr char objectTag[] = "OBJT";
constexpr char endTag[] = "DONE";

/// Larger files are refused before memory runs out: Qt's byte arrays end at 2 GiB.
constexpr int mostBytes = 1 << 30;

/// Of one version of Qt, whatever the default of a later one.
constexpr QDataStream::Version streamVersion = QDataStream::Qt_5_15;

/// Four letters.
bool isTag(const QByteArray &tag);

/// Writes chunks to the end of a byte array.
class Writer
{
public:
    /// Begins with the signature.
    Writer();

    /// Everything streamed until end() is the payload.
    QDataStream &begin(const char *tag);
    /// False when the payload or the whole has become too large; the chunk is then removed.
    bool end();
    /// A chunk with a given payload.
    bool write(const QByteArray &tag, const QByteArray &payload);
    QByteArray bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
    QDataStream m_stream;
    int m_start = 0; ///< of the open chunk's header
};

struct Chunk
{
    QByteArray tag;
    QByteArray payload; ///< refers to the reader's bytes
    qint64 offset = 0;  ///< of the header
    bool isDamaged = false;
};

/// Finds chunks, including damaged ones and those after damage.
class Reader
{
public:
    /// Refers to `bytes`, which must outlive the reader and all chunks.
    explicit Reader(const QByteArray &bytes);

    static bool hasSignature(const QByteArray &bytes);
    /// Whether any chunk that this version writes begins somewhere.
    bool hasKnownChunk() const;
    /// The next chunk; false at the end.
    bool next(Chunk &chunk);
    /// Bytes that next() skipped before the chunk, or before the end, because they are not a chunk.
    QByteArray gap() const { return m_bytes.mid(int(m_gapStart), int(m_gapSize)); }
    qint64 gapStart() const { return m_gapStart; }

private:
    bool isHeader(qint64 offset) const;
    /// Offset of the next header, at `from` or after it; `end` without one.
    qint64 findHeader(qint64 from, qint64 end) const;

    QByteArray m_bytes;
    qint64 m_offset = 0;
    qint64 m_gapStart = 0;
    qint64 m_gapSize = 0;
};

/// Treats bytes that are not a chunk as one with a damaged header. False when nothing in them proves that; else
/// `chunk` refers to the bytes.
bool readDamagedHeader(const QByteArray &bytes, Chunk &chunk);

} // namespace chunks
