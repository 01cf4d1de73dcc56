#include <lessons/replaying.h>

#include <host/pngpicture.h>

#include <QtCore/QDataStream>
#include <QtGui/QBrush>
#include <QtGui/QColor>

namespace pagehost {

namespace {

constexpr int fillAction = 1005;

/// @name A brush on a stream, bytes
/// Style, colour, what the style asks for, a matrix.
/// @{
constexpr int styleBytes = 1;
/// Its model, and five numbers of 16 bits.
constexpr int colorBytes = 1 + 5 * 2;
constexpr int numberBytes = 4;
constexpr int realBytes = 8;
constexpr int gradientSettings = 4;
constexpr int stopBytes = realBytes + colorBytes;
constexpr int matrixBytes = 9 * realBytes;
constexpr int plainBytes = styleBytes + colorBytes + matrixBytes;
/// @}

/// Qt takes over any number as a colour's model, and trips over it later.
bool isColorModel(char number)
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
    constexpr int typeOffset = styleBytes + colorBytes;
    constexpr int countOffset = typeOffset + gradientSettings * numberBytes;
    constexpr int headBytes = (gradientSettings + 1) * numberBytes;
    const qint64 stops = qint64(numberAt(brush, countOffset)) * stopBytes;
    return brush.size() == plainBytes + headBytes + stops + geometryReals(numberAt(brush, typeOffset)) * realBytes;
}

bool isWholeTexture(const QByteArray &brush)
{
    constexpr int pictureOffset = styleBytes + colorBytes + numberBytes;
    const QByteArray picture = brush.mid(pictureOffset, brush.size() - pictureOffset - matrixBytes);
    if (numberAt(brush, styleBytes + colorBytes) == 0) {
        return brush.size() == plainBytes + numberBytes;
    }
    return picture.endsWith(QByteArray("IEND\xae\x42\x60\x82", 8)) && !pngPicture(picture).isNull();
}

bool isWholeBrush(const QByteArray &brush)
{
    if (brush.size() < plainBytes || !isColorModel(brush.at(styleBytes))) {
        return false;
    }
    switch (const int style = uchar(brush.at(0))) {
    case Qt::LinearGradientPattern:
    case Qt::RadialGradientPattern:
    case Qt::ConicalGradientPattern:
        return isWholeGradient(brush);
    case Qt::TexturePattern:
        return isWholeTexture(brush);
    default:
        return style < Qt::LinearGradientPattern && brush.size() == plainBytes;
    }
}

QByteArray brushOf(const QByteArray &colorData)
{
    QColor color;
    QDataStream in(colorData);
    in >> color;
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << QBrush(color);
    return bytes;
}

} // namespace

std::optional<QByteArray> replayedPayload(int actionId, const QByteArray &recorded)
{
    if (actionId != fillAction) {
        return recorded;
    }
    if (recorded.size() == colorBytes && isColorModel(recorded.at(0))) {
        return brushOf(recorded);
    }
    return isWholeBrush(recorded) ? std::optional(recorded) : std::nullopt;
}

} // namespace pagehost
