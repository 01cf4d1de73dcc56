#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QtEndian>

// Changes to files of chunks that keep their sums right, as a faulty program would make them. The layout is that of
// docs/board-format.md: a header is a tag, the payload's length, its sum and that of these twelve bytes.

/// The CRC-32 of ISO 3309, bit by bit.
inline quint32 crcOf(const QByteArray &bytes)
{
    quint32 sum = 0xffffffff;
    for (const char byte : bytes) {
        sum ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ ((sum & 1) ? 0xedb88320 : 0);
    }
    return ~sum;
}

inline QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

inline QByteArray chunkOf(const QByteArray &tag, const QByteArray &payload)
{
    const QByteArray head = tag + bigEndian(quint32(payload.size())) + bigEndian(crcOf(payload));
    return head + bigEndian(crcOf(head)) + payload;
}

/// The payload of the first chunk with that tag.
inline QByteArray payloadOf(const QByteArray &file, const QByteArray &tag)
{
    const int start = file.indexOf(tag);
    return file.mid(start + 16, int(qFromBigEndian<quint32>(file.constData() + start + 4)));
}

/// Gives the first chunk with that tag another payload.
inline QByteArray withPayload(QByteArray file, const QByteArray &tag, const QByteArray &payload)
{
    const QByteArray before = chunkOf(tag, payloadOf(file, tag));
    return file.replace(file.indexOf(tag), before.size(), chunkOf(tag, payload));
}
