#include "properties/streamcheck.h"

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>
#include <QtGui/QColor>

#include <cstring>

namespace {

/// More bytes than stand before the stops of a gradient.
constexpr int headBytes = 64;
/// Qt sorts stops in by comparing each with those before it.
constexpr quint32 maxGradientStops = 16384;
constexpr int colorBytes = 11;
/// A texture that would take more than 256 MiB is none that a person made.
constexpr qint64 maxTexturePixels = 64 * 1024 * 1024;
constexpr qint64 maxTextureBytes = 4 * maxTexturePixels;

constexpr char pngSignature[] = "\x89PNG\r\n\x1a\n";
constexpr int pngSignatureBytes = 8;
constexpr quint32 imageHeaderBytes = 13;
/// Deflate makes at most 258 bytes of two bits; the rest is for the frame around the data.
constexpr qint64 maxInflation = 1032;
constexpr qint64 inflationSlack = 1024;

/// Reads bytes that were looked at ahead as their stream would.
class AheadStream : public QDataStream
{
public:
    AheadStream(const QByteArray &bytes, const QDataStream &model)
        : QDataStream(bytes)
    {
        setVersion(model.version());
        setByteOrder(model.byteOrder());
        setFloatingPointPrecision(model.floatingPointPrecision());
    }
};

bool isGradient(int style)
{
    return style == Qt::LinearGradientPattern || style == Qt::RadialGradientPattern ||
           style == Qt::ConicalGradientPattern;
}

bool isKnownStyle(int style)
{
    return style <= Qt::ConicalGradientPattern || style == Qt::TexturePattern;
}

/// Streams of older versions have colours without a kind and no gradients.
bool isModern(const QDataStream &in)
{
    return in.version() >= QDataStream::Qt_4_6;
}

/// A colour without its kind, which may be a number that the enumeration does not have.
void skipColor(QDataStream &in)
{
    in.skipRawData(colorBytes);
}

/// `head` stands behind the colour.
bool stopsFit(AheadStream &head, qint64 available)
{
    qint32 setting = 0;
    head >> setting >> setting >> setting >> setting; // type, spread, coordinate mode, interpolation
    quint32 count = 0;
    head >> count;
    const bool single = head.floatingPointPrecision() == QDataStream::SinglePrecision;
    const int stopBytes = (single ? 4 : 8) + colorBytes;
    return count <= maxGradientStops && qint64(count) * stopBytes <= available - head.device()->pos();
}

/// The first chunk of a PNG picture.
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
    /// What the data inflates to, each row with its filter byte.
    qint64 rawBytes() const { return qint64(height) * (1 + (qint64(width) * channels() * depth + 7) / 8); }
};

/// `png` stands behind the signature of a picture. Walks over its chunks up to the last.
bool dataFillsPicture(QDataStream &png)
{
    ImageHeader header;
    qint64 dataBytes = 0;
    while (!png.atEnd()) {
        quint32 length = 0;
        char type[4] = {};
        png >> length;
        png.readRawData(type, sizeof type);
        const qint64 next = png.device()->pos() + qint64(length) + qint64(sizeof(quint32)); // behind the checksum
        if (next > png.device()->size())
            return false;
        if (!std::memcmp(type, "IHDR", sizeof type) && length == imageHeaderBytes)
            png >> header.width >> header.height >> header.depth >> header.colorType;
        else if (!std::memcmp(type, "IDAT", sizeof type))
            dataBytes += length;
        else if (!std::memcmp(type, "IEND", sizeof type))
            return header.isUsable() && header.rawBytes() <= dataBytes * maxInflation + inflationSlack;
        png.device()->seek(next);
    }
    return false;
}

/// `head` stands behind the colour.
bool textureFits(AheadStream &head)
{
    qint32 isThere = 0;
    head >> isThere;
    if (isThere == 0)
        return true;
    char signature[pngSignatureBytes] = {};
    head.readRawData(signature, pngSignatureBytes);
    if (std::memcmp(signature, pngSignature, pngSignatureBytes) != 0)
        return false;
    head.setByteOrder(QDataStream::BigEndian); // a PNG picture's own
    return dataFillsPicture(head);
}

} // namespace

bool StreamCheck::hasKnownColorKind(QDataStream &in, int offset)
{
    if (!in.device() || !isModern(in))
        return true;
    const QByteArray kind = in.device()->peek(offset + 1).mid(offset);
    return kind.isEmpty() || (kind.at(0) >= char(QColor::Invalid) && kind.at(0) <= char(QColor::ExtendedRgb));
}

bool StreamCheck::isReadableBrush(QDataStream &in)
{
    QIODevice *device = in.device();
    if (!device)
        return true;
    AheadStream head(device->peek(headBytes), in);
    quint8 style = Qt::NoBrush;
    head >> style;
    const bool isPlain = !isGradient(style) && style != Qt::TexturePattern;
    if (!isKnownStyle(style) || (!isPlain && !isModern(in)))
        return false;
    if (isPlain)
        return true;
    if (isGradient(style)) {
        skipColor(head);
        return stopsFit(head, device->bytesAvailable());
    }
    AheadStream whole(device->peek(qMin(device->bytesAvailable(), maxTextureBytes)), in);
    whole >> style;
    skipColor(whole);
    return textureFits(whole);
}
