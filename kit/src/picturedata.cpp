#include <shapekit/picturedata.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QBuffer>
#include <QtCore/QRegularExpression>
#include <QtGui/QImageReader>

#include <memory>

namespace shapekit {

namespace {

const QString svgType = QStringLiteral("image/svg+xml");
/// Pixels; a larger picture would take more than 160 MB while shown.
constexpr qint64 mostPixels = 40'000'000;
constexpr double longestNaturalSide = 1000;
constexpr double shortestNaturalSide = 4;

/// Removes nodes with ids of control points from a picture; they would be taken for the shape's.
QByteArray withoutControlPoints(const QByteArray &svg)
{
    const std::unique_ptr<QZeSvgTinyDocument> document(QZeSvgTinyDocument::load(svg));
    if (!document)
        return {};
    if (!document->namedNode(QStringLiteral("control_1")))
        return svg;
    for (int number = 1; QZeSvgNode *node = document->namedNode(QStringLiteral("control_%1").arg(number));
         ++number) {
        QZeSvgStructureNode *parent = node->parent();
        (parent ? parent : document.get())->removeChild(node);
    }
    return document->toSvg();
}

QByteArray svgOfPixels(const QByteArray &data)
{
    QBuffer buffer;
    buffer.setData(data);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (!size.isValid() || qint64(size.width()) * size.height() > mostPixels)
        return {};
    const QImage image = reader.read();
    if (image.isNull())
        return {};
    QByteArray png;
    QBuffer target(&png);
    if (!image.save(&target, "PNG"))
        return {};
    return QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
                          "viewBox=\"0 0 %1 %2\"><image width=\"%1\" height=\"%2\" "
                          "xlink:href=\"data:image/png;base64,%3\"/></svg>")
        .arg(image.width())
        .arg(image.height())
        .arg(QString::fromLatin1(png.toBase64()))
        .toUtf8();
}

/// Value of a length in plain numbers or pixels; 0 for other units and for empty text.
double pixelsOf(const QString &length)
{
    static const QRegularExpression plain(QStringLiteral("^\\s*(\\d+(?:\\.\\d*)?)(?:px)?\\s*$"));
    return plain.match(length).captured(1).toDouble();
}

} // namespace

QStringList pictureTypes()
{
    QStringList types{svgType};
    const QList<QByteArray> supported = QImageReader::supportedMimeTypes();
    for (const QByteArray &type : supported)
        if (!type.startsWith("image/svg"))
            types.append(QString::fromLatin1(type));
    return types;
}

QByteArray svgOfPicture(const QString &mimeType, const QByteArray &data)
{
    return mimeType == svgType ? withoutControlPoints(data) : svgOfPixels(data);
}

QSizeF naturalSizeOf(const QZeSvgTinyDocument &document)
{
    const QSizeF asked(pixelsOf(document.attribute(QStringLiteral("width"))),
                       pixelsOf(document.attribute(QStringLiteral("height"))));
    QSizeF size = asked.isEmpty() ? document.viewBox().size() : asked;
    if (size.isEmpty())
        return {longestNaturalSide / 10, longestNaturalSide / 10};
    const double longer = std::max(size.width(), size.height());
    if (longer > longestNaturalSide)
        size *= longestNaturalSide / longer;
    return size.expandedTo({shortestNaturalSide, shortestNaturalSide});
}

} // namespace shapekit
