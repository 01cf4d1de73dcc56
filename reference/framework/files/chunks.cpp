#include <files/chunks.h>

#include <files/checksum.h>

#include <QtCore/QtEndian>

#include <algorithm>
#include <cstring>

namespace chunks {

namespace {

// Places in a header.
constexpr int lengthPlace = 4;
constexpr int sumPlace = 8;
constexpr int headerSumPlace = 12;

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
    if (payload.size() > mostBytes - m_bytes.size()) {
        return false;
    }
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

bool Reader::isHeader(qint64 offset) const
{
    const char *header = m_bytes.constData() + offset;
    return m_bytes.size() - offset >= headerSize && isTagAt(header) &&
           number(header + headerSumPlace) == checksum(header, headerSumPlace);
}

bool Reader::next(Chunk &chunk)
{
    const qint64 start = m_offset;
    while (m_bytes.size() - m_offset >= headerSize && !isHeader(m_offset)) {
        ++m_offset;
    }
    if (m_bytes.size() - m_offset < headerSize) {
        m_skipped = m_bytes.size() - start;
        m_offset = m_bytes.size();
        m_endsEarly = m_endsEarly || m_skipped > 0;
        return false;
    }
    m_skipped = m_offset - start;
    const char *header = m_bytes.constData() + m_offset;
    const qint64 there = m_bytes.size() - m_offset - headerSize;
    const qint64 length = std::min<qint64>(number(header + lengthPlace), there);
    m_endsEarly = length < number(header + lengthPlace);
    chunk.tag = QByteArray(header, tagSize);
    chunk.payload = QByteArray::fromRawData(header + headerSize, int(length));
    chunk.offset = m_offset;
    chunk.isDamaged = m_endsEarly || number(header + sumPlace) != checksum(header + headerSize, length);
    m_offset += headerSize + length;
    return true;
}

} // namespace chunks
