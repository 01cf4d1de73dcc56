#include "images/images.h"

#include "document/prototype.h"
#include "grammar/datauris.h"
#include "grammar/inputlimits.h"
#include "resolve/viewports.h"
#include "tree/gunzip.h"

#include <QtCore/QBuffer>
#include <QtCore/QCache>
#include <QtGui/QImageReader>

#include <mutex>

namespace Svg {

namespace {

/// CSS's default size of content without its own.
constexpr QSizeF defaultSize(300, 150);
constexpr int bytesPerKibibyte = 1024;

bool isPictureFormat(const QByteArray &format)
{
    return format == "png" || format == "jpeg" || format == "jpg" || format == "gif";
}

bool looksLikeDocument(const QByteArray &bytes)
{
    const QByteArray start = bytes.left(bytesPerKibibyte);
    return start.trimmed().startsWith('<') || start.startsWith("\xef\xbb\xbf");
}

bool isRelative(const Node &root, AttributeId side)
{
    const std::optional<Length> length = parseLength(root.attributes.value(side));
    return !length || length->unit == Unit::Percent;
}

ImagePointer readDocument(const QByteArray &bytes, Problem *problem)
{
    Messages messages;
    const PrototypePointer prototype = makePrototype(bytes, &messages);
    if (!prototype) {
        *problem = {Message::InvalidImage, QStringLiteral("The document inside the image can't be read.")};
        return nullptr;
    }
    const Node &root = prototype->tree().node(rootNode);
    const auto content = std::make_shared<ImageContent>();
    content->document = prototype;
    const QRectF viewBox = rootViewBox(root);
    const QSizeF window = viewBox.isEmpty() ? defaultSize : viewBox.size();
    content->window = window;
    content->takesSize =
        viewBox.isEmpty() && isRelative(root, AttributeId::Width) && isRelative(root, AttributeId::Height);
    content->box = shownArea(root, window);
    const LengthReader lengths(root.attributes, {window, ComputedStyle().font.size});
    content->size = QSizeF(lengths.size(AttributeId::Width, Axis::Horizontal, window.width()),
                           lengths.size(AttributeId::Height, Axis::Vertical, window.height()));
    return content;
}

QCache<const ImageContent *, QPair<ImagePointer, QImage>> &decodedPictures()
{
    static QCache<const ImageContent *, QPair<ImagePointer, QImage>> cache(Limits::keptPictureBytes /
                                                                           bytesPerKibibyte);
    return cache;
}

std::mutex decodedMutex;

QImage decode(const ImageContent &content)
{
    QImage picture;
    picture.loadFromData(content.picture);
    if (QSizeF(picture.size()) != content.size)
        return QImage();
    return picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

ImagePointer readPicture(const QByteArray &bytes, Problem *problem)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (!isPictureFormat(reader.format()) || size.isEmpty()) {
        *problem = {Message::InvalidImage, QStringLiteral("The image is none that can be shown.")};
        return nullptr;
    }
    if (qint64(size.width()) * size.height() > Limits::imagePixels) {
        *problem = {Message::TooManyImagePixels,
                    QStringLiteral("The image has more than %1 pixels.").arg(Limits::imagePixels)};
        return nullptr;
    }
    const auto content = std::make_shared<ImageContent>();
    content->size = size;
    content->box = QRectF(QPointF(), content->size);
    content->picture = bytes;
    return content;
}

ImagePointer readImage(const QString &reference, Problem *problem)
{
    const std::optional<QByteArray> data = parseDataUri(reference);
    if (!data) {
        *problem = {Message::ForeignReference, QStringLiteral("Only images in \"data:\" references are shown.")};
        return nullptr;
    }
    if (!isGzip(*data))
        return looksLikeDocument(*data) ? readDocument(*data, problem) : readPicture(*data, problem);
    const std::optional<QByteArray> text = gunzip(*data, Limits::textBytes);
    if (text)
        return readDocument(*text, problem);
    *problem = {Message::DamagedCompression, QStringLiteral("The compressed image is damaged or too large.")};
    return nullptr;
}

QImage decodedPicture(const ImagePointer &content)
{
    {
        const std::lock_guard lock(decodedMutex);
        if (const auto *known = decodedPictures().object(content.get()))
            return known->second;
    }
    const QImage picture = decode(*content);
    const std::lock_guard lock(decodedMutex);
    decodedPictures().insert(content.get(), new QPair<ImagePointer, QImage>(content, picture),
                             int(picture.sizeInBytes() / bytesPerKibibyte) + 1);
    return picture;
}

QTransform contentFit(const ImageContent &content, const QRectF &box, const AspectRatio &ratio)
{
    if (content.takesSize)
        return QTransform::fromTranslate(box.x(), box.y());
    return viewBoxTransform(content.box, box, ratio).value_or(QTransform(0, 0, 0, 0, 0, 0));
}

ImagePlacement imagePlacement(const Node &node, const LengthReader &lengths, const ImageContent *content)
{
    const bool hasWidth = lengths.has(AttributeId::Width);
    const bool hasHeight = lengths.has(AttributeId::Height);
    QSizeF size(lengths.size(AttributeId::Width, Axis::Horizontal),
                lengths.size(AttributeId::Height, Axis::Vertical));
    const QSizeF own = content ? content->size : QSizeF();
    if (!hasWidth && !hasHeight)
        size = own;
    else if (!hasWidth && !own.isEmpty())
        size.setWidth(size.height() * own.width() / own.height());
    else if (!hasHeight && !own.isEmpty())
        size.setHeight(size.width() * own.height() / own.width());
    ImagePlacement result;
    result.box = QRectF(
        QPointF(lengths.value(AttributeId::X, Axis::Horizontal), lengths.value(AttributeId::Y, Axis::Vertical)),
        size);
    const AspectRatio ratio = parseAspectRatio(node.attributes.value(AttributeId::PreserveAspectRatio));
    if (content)
        result.fit = contentFit(*content, result.box, ratio);
    return result;
}

} // namespace Svg
