#include <declared/core/iconpicture.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QBuffer>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <memory>

namespace declared {

namespace {

/// Of the longer side, pixels: large enough for every palette.
constexpr int iconSide = 256;

} // namespace

QByteArray iconPicture(const QByteArray &svg)
{
    const std::unique_ptr<QZeSvgTinyDocument> drawing(svg.isEmpty() ? nullptr : QZeSvgTinyDocument::load(svg));
    if (!drawing || drawing->viewBox().isEmpty())
        return {};
    const QSizeF size = drawing->viewBox().size().scaled(iconSide, iconSide, Qt::KeepAspectRatio);
    QImage picture(size.toSize().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing->draw(&painter, picture.rect(), 1, false);
    painter.end();
    QBuffer png;
    picture.save(&png, "PNG");
    return png.data();
}

} // namespace declared
