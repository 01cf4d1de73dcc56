#include <files/chunks.h>

#include <QtCore/QtEndian>

#include <zlib.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <numeric>

namespace chunks {

namespace {

// Offsets in a header.
constexpr int lengthPlace = 4;
constexpr int sumPlace = 8;
constexpr int headerSumPlace = 12;

constexpr const char *knownTags[] = {versionTag, assetTag, lessonTag, membersTag, pageTag, objectTag, endTag};

quint32 checksum(const char *bytes, qint64 size)
{
    return quint32(crc32_z(0, reinterpret_cast<const Bytef *>(bytes), z_size_t(size)));
}

void writeHeader(char *header, const char *tag, const char *payload, int size)
{
    std::memcpy(header, tag, tagSize);
    qToBigEndian<quint32>(quint32(size), header + lengthPlace);
    qToBigEndian<quint32>(checksum(payload, size), header + sumPlace);
    qToBigEndian<quint32>(checksum(header, headerSumPlace), header + headerSumPlace);
}

bool isTagAt(const char *bytes)
{
    return std::all_of(bytes, bytes + tagSize,
                       [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); });
}

quint32 number(const char *bytes)
{
    return qFromBigEndian<quint32>(bytes);
}

/// The tag that differs from this one in at most one letter; empty without one.
QByteArray nearestTag(const char *bytes)
{
    for (const char *tag : knownTags)
        if (std::inner_product(tag, tag + tagSize, bytes, 0, std::plus<>(), std::not_equal_to<>()) <= 1)
            return QByteArray(tag, tagSize);
    return {};
}

} // namespace

bool isTag(const QByteArray &tag)
{
    return tag.size() == tagSize && isTagAt(tag.constData());
}

Writer::Writer()
    : m_bytes(signature, signatureSize)
    , m_stream(&m_bytes, QIODevice::WriteOnly | QIODevice::Append)
{
    m_stream.setVersion(streamVersion);
}

QDataStream &Writer::begin(const char *tag)
{
    m_start = m_bytes.size();
    char header[headerSize] = {};
    std::memcpy(header, tag, tagSize);
    m_stream.writeRawData(header, headerSize);
    return m_stream;
}

bool Writer::end()
{
    if (m_stream.status() != QDataStream::Ok || m_bytes.size() > mostBytes) {
        m_bytes.truncate(m_start);
        m_stream.device()->seek(m_start);
        return false;
    }
    char *header = m_bytes.data() + m_start;
    const QByteArray tag(header, tagSize);
    writeHeader(header, tag.constData(), header + headerSize, m_bytes.size() - m_start - headerSize);
    return true;
}

bool Writer::write(const QByteArray &tag, const QByteArray &payload)
{
    if (payload.size() > mostBytes - m_bytes.size())
        return false;
    begin(tag.constData()).writeRawData(payload.constData(), payload.size());
    return end();
}

Reader::Reader(const QByteArray &bytes)
    : m_bytes(bytes)
    , m_offset(hasSignature(bytes) ? signatureSize : 0)
{
}

bool Reader::hasSignature(const QByteArray &bytes)
{
    return bytes.startsWith(QByteArray::fromRawData(signature, signatureSize));
}

bool Reader::hasKnownChunk() const
{
    for (const char *tag : knownTags) {
        for (int place = m_bytes.indexOf(tag); place >= 0; place = m_bytes.indexOf(tag, place + 1))
            if (isHeader(place))
                return true;
    }
    return false;
}

bool Reader::isHeader(qint64 offset) const
{
    const char *header = m_bytes.constData() + offset;
    return m_bytes.size() - offset >= headerSize && isTagAt(header) &&
           number(header + headerSumPlace) == checksum(header, headerSumPlace);
}

qint64 Reader::findHeader(qint64 from, qint64 end) const
{
    while (from < end && !isHeader(from))
        ++from;
    return from;
}

bool Reader::next(Chunk &chunk)
{
    const qint64 size = m_bytes.size();
    m_gapStart = m_offset;
    m_offset = findHeader(m_offset, size);
    m_gapSize = m_offset - m_gapStart;
    if (m_offset == size)
        return false;
    const char *header = m_bytes.constData() + m_offset;
    const qint64 start = m_offset + headerSize;
    const qint64 claimed = number(header + lengthPlace);
    qint64 length = std::min(claimed, size - start);
    chunk.isDamaged = length < claimed || number(header + sumPlace) != checksum(header + headerSize, length);
    if (chunk.isDamaged) {
        // Bytes may be missing from the payload, so that the following ones have moved up.
        length = findHeader(start, start + length) - start;
    }
    chunk.tag = QByteArray(header, tagSize);
    chunk.payload = QByteArray::fromRawData(header + headerSize, int(length));
    chunk.offset = m_offset;
    m_offset = start + length;
    return true;
}

bool readDamagedHeader(const QByteArray &bytes, Chunk &chunk)
{
    if (bytes.size() < headerSize)
        return false;
    const char *const header = bytes.constData();
    const QByteArray tag = nearestTag(header);
    const qint64 length = bytes.size() - headerSize;
    const bool hasSum = number(header + sumPlace) == checksum(header + headerSize, length);
    const bool hasLength = number(header + lengthPlace) == length;
    if (tag.isEmpty() || !(hasSum || hasLength))
        return false;
    chunk.tag = tag;
    chunk.payload = QByteArray::fromRawData(header + headerSize, int(length));
    chunk.isDamaged = !hasSum;
    return true;
}

} // namespace chunks
