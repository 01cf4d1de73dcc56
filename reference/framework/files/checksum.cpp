#include <files/checksum.h>

#include <QtCore/QtEndian>

#include <array>

namespace {

constexpr quint32 polynomial = 0xedb88320;
/// Bytes taken at a time.
constexpr int stride = 8;

using Tables = std::array<std::array<quint32, 256>, stride>;

constexpr quint32 afterByte(quint32 value)
{
    for (int bit = 0; bit < 8; ++bit) {
        value = (value >> 1) ^ ((value & 1) ? polynomial : 0);
    }
    return value;
}

/// Table n holds what a byte does to the sum when n more bytes follow it.
constexpr Tables makeTables()
{
    Tables tables{};
    for (quint32 byte = 0; byte < 256; ++byte) {
        tables[0][byte] = afterByte(byte);
    }
    for (int further = 1; further < stride; ++further) {
        for (quint32 byte = 0; byte < 256; ++byte) {
            const quint32 before = tables[further - 1][byte];
            tables[further][byte] = (before >> 8) ^ tables[0][before & 0xff];
        }
    }
    return tables;
}

constexpr Tables tables = makeTables();

quint32 afterEightBytes(quint32 sum, const char *bytes)
{
    const quint32 low = qFromLittleEndian<quint32>(bytes) ^ sum;
    const quint32 high = qFromLittleEndian<quint32>(bytes + 4);
    return tables[7][low & 0xff] ^ tables[6][(low >> 8) & 0xff] ^ tables[5][(low >> 16) & 0xff] ^
           tables[4][low >> 24] ^ tables[3][high & 0xff] ^ tables[2][(high >> 8) & 0xff] ^
           tables[1][(high >> 16) & 0xff] ^ tables[0][high >> 24];
}

} // namespace

quint32 checksum(const char *bytes, qint64 size)
{
    quint32 sum = 0xffffffff;
    for (; size >= stride; size -= stride, bytes += stride) {
        sum = afterEightBytes(sum, bytes);
    }
    for (; size > 0; --size, ++bytes) {
        sum = (sum >> 8) ^ tables[0][(sum ^ quint8(*bytes)) & 0xff];
    }
    return ~sum;
}
