#include <framework/cpagebgprop.h>

#include <pagehost/paper.h>

#include <host/pngpicture.h>

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>
#include <QtCore/QJsonObject>

#include <cmath>

namespace {

QByteArray toPng(const QPixmap &picture)
{
    QByteArray bytes;
    if (!picture.isNull()) {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        picture.save(&buffer, "PNG");
    }
    return bytes;
}

/// Null for data that is not an acceptable picture.
QPixmap fromPng(const QByteArray &bytes)
{
    return bytes.isEmpty() ? QPixmap() : QPixmap::fromImage(pngPicture(bytes));
}

bool isFillType(int type)
{
    return type >= CPageBgProp::NoFill && type <= CPageBgProp::PictureFill;
}

bool isPatternNumber(int style)
{
    return (style >= Qt::NoBrush && style <= Qt::DiagCrossPattern) || pagehost::isPaperPattern(style);
}

const QLatin1String followsPageKey("followsPage");
const QLatin1String typeKey("type");
const QLatin1String enabledKey("enabled");
const QLatin1String colorKey("color");
const QLatin1String opacityKey("opacity");
const QLatin1String gradientColorKey("gradientColor");
const QLatin1String gradientAngleKey("gradientAngle");
const QLatin1String patternKey("pattern");
const QLatin1String pictureKey("picture");

} // namespace

bool CPageBgProp::save(QDataStream &out) const
{
    out << m_followsPage << qint32(m_fillType) << m_fillEnabled << quint32(m_color.rgba()) << qint32(m_opacity)
        << quint32(m_gradientColor.rgba()) << m_gradientAngle << qint32(m_pattern) << toPng(m_pixmap);
    return out.status() == QDataStream::Ok;
}

bool CPageBgProp::load(QDataStream &in)
{
    bool followsPage = false;
    bool enabled = false;
    qint32 type = 0;
    qint32 opacity = 0;
    qint32 pattern = 0;
    quint32 color = 0;
    quint32 gradientColor = 0;
    double gradientAngle = 0;
    QByteArray picture;
    in >> followsPage >> type >> enabled >> color >> opacity >> gradientColor >> gradientAngle >> pattern >>
        picture;
    if (in.status() != QDataStream::Ok || !isFillType(type) || !isPatternNumber(pattern) ||
        !std::isfinite(gradientAngle))
        return false;
    QPixmap pixmap;
    if (!picture.isEmpty()) {
        pixmap = fromPng(picture);
        if (pixmap.isNull())
            return false;
    }
    m_followsPage = followsPage;
    m_fillType = type;
    m_fillEnabled = enabled;
    setFillColor(QColor::fromRgba(color));
    setOpacity(opacity);
    m_gradientColor = QColor::fromRgba(gradientColor);
    m_gradientAngle = gradientAngle;
    m_pattern = Qt::BrushStyle(pattern);
    m_pixmap = pixmap;
    return true;
}

bool CPageBgProp::saveJson(QJsonObject &object) const
{
    object[followsPageKey] = m_followsPage;
    object[typeKey] = m_fillType;
    object[enabledKey] = m_fillEnabled;
    object[colorKey] = m_color.name();
    object[opacityKey] = m_opacity;
    object[gradientColorKey] = m_gradientColor.name(QColor::HexArgb);
    object[gradientAngleKey] = m_gradientAngle;
    object[patternKey] = int(m_pattern);
    object[pictureKey] = QString::fromLatin1(toPng(m_pixmap).toBase64());
    return true;
}

bool CPageBgProp::loadJson(const QJsonObject &object)
{
    bool complete = true;
    const auto readBool = [&](QLatin1String key, bool &value) {
        complete &= object.value(key).isBool();
        value = object.value(key).toBool(value);
    };
    const auto readInt = [&](QLatin1String key, int fallback, bool (*valid)(int)) {
        const int value = object.value(key).toInt(-1);
        complete &= valid(value);
        return valid(value) ? value : fallback;
    };
    const auto readColor = [&](QLatin1String key, const QColor &fallback) {
        const QColor value(object.value(key).toString());
        complete &= value.isValid();
        return value.isValid() ? value : fallback;
    };

    readBool(followsPageKey, m_followsPage);
    readBool(enabledKey, m_fillEnabled);
    m_fillType = readInt(typeKey, m_fillType, isFillType);
    m_pattern = Qt::BrushStyle(readInt(patternKey, m_pattern, isPatternNumber));
    setOpacity(readInt(opacityKey, m_opacity, [](int value) { return value >= 0 && value <= 255; }));
    setFillColor(readColor(colorKey, m_color));
    m_gradientColor = readColor(gradientColorKey, m_gradientColor);

    complete &= object.value(gradientAngleKey).isDouble();
    m_gradientAngle = object.value(gradientAngleKey).toDouble(m_gradientAngle);

    const QJsonValue picture = object.value(pictureKey);
    if (!picture.isString())
        return false;
    const QPixmap pixmap = fromPng(QByteArray::fromBase64(picture.toString().toLatin1()));
    if (pixmap.isNull() && !picture.toString().isEmpty())
        return false;
    m_pixmap = pixmap;
    return complete;
}
