#pragma once

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QString>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <memory>

using DocumentPointer = std::unique_ptr<QZeSvgTinyDocument>;

/// Text with a root element of the given view box around the content.
inline QByteArray svgText(const QString &content, const QString &viewBox = QStringLiteral("0 0 100 100"))
{
    const QString text = QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' "
                                        "xmlns:xlink='http://www.w3.org/1999/xlink' viewBox='%1'>%2</svg>");
    return text.arg(viewBox, content).toUtf8();
}

inline DocumentPointer loadContent(const QString &content, const QString &viewBox = QStringLiteral("0 0 100 100"))
{
    return DocumentPointer(QZeSvgTinyDocument::load(svgText(content, viewBox)));
}

/// The document over the whole of a transparent picture.
inline QImage drawn(QZeSvgTinyDocument &document, const QSize &size = QSize(100, 100), bool viewFlag = false)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    document.draw(&painter, QRectF(QPointF(), QSizeF(size)), 1, viewFlag);
    return image;
}

/// The picture of content in a view box of 100 × 100, one pixel per unit.
inline QImage drawnContent(const QString &content)
{
    const DocumentPointer document = loadContent(content);
    return document ? drawn(*document) : QImage();
}
