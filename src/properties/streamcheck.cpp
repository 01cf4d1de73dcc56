#include "properties/streamcheck.h"

#include "properties/brushlayout.h"
#include "properties/lookahead.h"

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>
#include <QtCore/QtEndian>
#include <QtGui/QBrush>
#include <QtGui/QColor>

#include <cstring>
#include <limits>

namespace {

using namespace BrushLayout;

/// Capacity of Qt's lists.
constexpr qint64 mostStops = std::numeric_limits<int>::max() / qint64(sizeof(QGradientStop)) - 1;
/// Limits a texture to 256 MiB, larger than any that a person would make.
constexpr qint64 maxTexturePixels = 64 * 1024 * 1024;

constexpr int textureOffset = styleBytes + colorBytes;
constexpr char pngSignature[] = "\x89PNG\r\n\x1a\n";
constexpr int pngSignatureBytes = 8;
/// Length and type precede the data of a chunk, a checksum follows it.
constexpr int chunkHeadBytes = 4 + 4;
constexpr int checksumBytes = 4;
constexpr int imageHeaderBytes = 13;
/// Deflate expands two bits to at most 258 bytes.
constexpr qint64 maxInflation = 1032;
constexpr qint64 inflationSlack = 1024;

bool isKnownStyle(int style)
{
    return style <= Qt::ConicalGradientPattern || style == Qt::TexturePattern;
}

bool isPng(const QByteArray &bytes)
{
    return bytes.size() == pngSignatureBytes && !std::memcmp(bytes, pngSignature, pngSignatureBytes);
}

bool stopsFit(const QDataStream &in, Lookahead &ahead)
{
    const QByteArray bytes = ahead.bytes(stopCountOffset(in), intBytes);
    if (bytes.size() < intBytes)
        return true; // the stream ends here
    const quint32 count = in.byteOrder() == QDataStream::BigEndian ? qFromBigEndian<quint32>(bytes.constData())
                                                                   : qFromLittleEndian<quint32>(bytes.constData());
    return count <= mostStops && qint64(count) * stopBytes(in) <= ahead.available() - stopsOffset(in);
}

/// Contents of a PNG picture's first chunk.
struct ImageHeader
{
    quint32 width = 0;
    quint32 height = 0;
    quint8 depth = 0;
    quint8 colorType = 0;

    int channels() const
    {
        const int colors = colorType & 2 && !(colorType & 1) ? 3 : 1;
        return colorType & 4 ? colors + 1 : colors;
    }
    bool isUsable() const
    {
        return width > 0 && height > 0 && depth > 0 && depth <= 16 && qint64(width) <= maxTexturePixels / height;
    }
    /// Size of the inflated data, each row with its filter byte.
    qint64 rawBytes() const { return qint64(height) * (1 + (qint64(width) * channels() * depth + 7) / 8); }
};

ImageHeader imageHeader(const QByteArray &data)
{
    ImageHeader header;
    QDataStream in(data);
    in >> header.width >> header.height >> header.depth >> header.colorType;
    return header;
}

/// Whether the chunks of the PNG picture, which begins `offset` bytes ahead, hold data for all of its pixels.
bool dataFillsPicture(Lookahead &ahead, qint64 offset)
{
    ImageHeader header;
    qint64 dataBytes = 0;
    for (;;) {
        const QByteArray head = ahead.bytes(offset, chunkHeadBytes);
        if (head.size() < chunkHeadBytes)
            return false;
        const quint32 length = qFromBigEndian<quint32>(head.constData());
        const QByteArray type = head.mid(4);
        const qint64 next = offset + chunkHeadBytes + length + checksumBytes;
        if (next > ahead.available())
            return false;
        if (type == "IHDR" && length == imageHeaderBytes)
            header = imageHeader(ahead.bytes(offset + chunkHeadBytes, imageHeaderBytes));
        else if (type == "IDAT")
            dataBytes += length;
        else if (type == "IEND")
            return header.isUsable() && header.rawBytes() <= dataBytes * maxInflation + inflationSlack;
        offset = next;
    }
}

bool textureFits(Lookahead &ahead)
{
    const QByteArray isThere = ahead.bytes(textureOffset, intBytes);
    if (isThere.count('\0') == isThere.size())
        return true; // not a picture
    constexpr int pictureOffset = textureOffset + intBytes;
    return isPng(ahead.bytes(pictureOffset, pngSignatureBytes)) &&
           dataFillsPicture(ahead, pictureOffset + pngSignatureBytes);
}

} // namespace

bool StreamCheck::hasKnownColorKind(QDataStream &in, int offset)
{
    if (!in.device() || !isModern(in))
        return true;
    const QByteArray kind = in.device()->peek(offset + 1).mid(offset);
    return kind.isEmpty() || (kind.at(0) >= char(QColor::Invalid) && kind.at(0) <= char(QColor::ExtendedRgb));
}

bool StreamCheck::isGradient(QDataStream &in)
{
    char style = 0;
    return in.device() && in.device()->peek(&style, styleBytes) == styleBytes &&
           BrushLayout::isGradient(quint8(style));
}

bool StreamCheck::isReadableBrush(QDataStream &in)
{
    if (!in.device())
        return true;
    Lookahead ahead(*in.device());
    const QByteArray bytes = ahead.bytes(0, styleBytes);
    const int style = bytes.isEmpty() ? int(Qt::NoBrush) : quint8(bytes[0]);
    const bool isPlain = !BrushLayout::isGradient(style) && style != Qt::TexturePattern;
    if (!isKnownStyle(style) || (!isPlain && !isModern(in)))
        return false;
    return isPlain || (style == Qt::TexturePattern ? textureFits(ahead) : stopsFit(in, ahead));
}
