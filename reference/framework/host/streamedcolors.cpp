#include <host/streamedcolors.h>

#include <host/pngpicture.h>

#include <QtCore/QDataStream>

namespace pagehost {

namespace {

/// @name A brush on a stream, bytes
/// Style, colour, the data of the style, a matrix.
/// @{
constexpr int styleBytes = colorInBrush;
constexpr int numberBytes = 4;
constexpr int realBytes = 8;
constexpr int gradientSettings = 4;
constexpr int stopBytes = realBytes + streamedColorBytes;
constexpr int matrixBytes = 9 * realBytes;
constexpr int plainBytes = styleBytes + streamedColorBytes + matrixBytes;
/// @}

bool isColorKind(char number)
{
    return uchar(number) <= QColor::ExtendedRgb;
}

quint32 numberAt(const QByteArray &bytes, int offset)
{
    quint32 number = 0;
    QDataStream(bytes.mid(offset, numberBytes)) >> number;
    return number;
}

/// Two points, two points and a radius, or a point and an angle.
int geometryReals(quint32 gradientType)
{
    switch (gradientType) {
    case QGradient::LinearGradient:
        return 4;
    case QGradient::RadialGradient:
        return 5;
    default:
        return 3;
    }
}

bool isWholeGradient(const QByteArray &brush)
{
    constexpr int typeOffset = styleBytes + streamedColorBytes;
    constexpr int countOffset = typeOffset + gradientSettings * numberBytes;
    constexpr int headBytes = (gradientSettings + 1) * numberBytes;
    const qint64 stops = qint64(numberAt(brush, countOffset)) * stopBytes;
    return brush.size() == plainBytes + headBytes + stops + geometryReals(numberAt(brush, typeOffset)) * realBytes;
}

bool isWholeTexture(const QByteArray &brush)
{
    constexpr int pictureOffset = styleBytes + streamedColorBytes + numberBytes;
    const QByteArray picture = brush.mid(pictureOffset, brush.size() - pictureOffset - matrixBytes);
    if (numberAt(brush, styleBytes + streamedColorBytes) == 0)
        return brush.size() == plainBytes + numberBytes;
    return picture.endsWith(QByteArray("IEND\xae\x42\x60\x82", 8)) && !pngPicture(picture).isNull();
}

} // namespace

std::optional<QColor> readColor(QDataStream &in)
{
    char kind = 0;
    if (!in.device() || in.device()->peek(&kind, 1) != 1 || !isColorKind(kind))
        return {};
    QColor color;
    in >> color;
    return in.status() == QDataStream::Ok ? std::optional(color) : std::nullopt;
}

std::optional<QColor> colorFrom(const QByteArray &bytes)
{
    QDataStream in(bytes);
    return bytes.size() == streamedColorBytes ? readColor(in) : std::nullopt;
}

bool isWholeBrush(const QByteArray &bytes)
{
    if (bytes.size() < plainBytes || !isColorKind(bytes.at(colorInBrush)))
        return false;
    switch (const int style = uchar(bytes.at(0))) {
    case Qt::LinearGradientPattern:
    case Qt::RadialGradientPattern:
    case Qt::ConicalGradientPattern:
        return isWholeGradient(bytes);
    case Qt::TexturePattern:
        return isWholeTexture(bytes);
    default:
        return style < Qt::LinearGradientPattern && bytes.size() == plainBytes;
    }
}

std::optional<QBrush> brushFrom(const QByteArray &bytes)
{
    if (!isWholeBrush(bytes))
        return {};
    QBrush brush;
    QDataStream in(bytes);
    in >> brush;
    return brush;
}

} // namespace pagehost
