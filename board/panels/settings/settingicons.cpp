#include "panels/settings/settingicons.h"

#include <framework/cutil.h>

#include <QtCore/QRegularExpression>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>

#include <algorithm>

namespace board {

namespace {

constexpr int sampleWidth = 2;

bool isAllBlack(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        if (!std::all_of(line, line + image.width(), [](QRgb pixel) { return (pixel & RGB_MASK) == 0; }))
            return false;
    }
    return true;
}

} // namespace

QIcon settingIcon(const QString &path, const QColor &color)
{
    static const QRegularExpression lineStyle(QStringLiteral("(^|/)LineStyle([0-4])\\.svg$"));
    const QRegularExpressionMatch match = lineStyle.match(path);
    if (!match.hasMatch())
        return {};
    const int penStyle = match.captured(2).toInt() + 1;
    return QIcon(
        CUtil::genIconForLineStyle(choiceIconSize.width(), choiceIconSize.height(), sampleWidth, penStyle, color));
}

QIcon adaptedIcon(const QPixmap &picture, const QColor &color)
{
    QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (image.isNull() || !isAllBlack(image))
        return QIcon(picture);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    painter.end();
    return QIcon(QPixmap::fromImage(image));
}

} // namespace board
