#include "images/images.h"

#include "grammar/datauris.h"
#include "grammar/inputlimits.h"
#include "tree/gunzip.h"

#include <QtCore/QBuffer>
#include <QtCore/QCache>
#include <QtGui/QImageReader>

#include <mutex>

namespace Svg {

namespace {

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

ImagePointer readImage(const QString &reference, const DocumentReader &documents, Problem *problem)
{
    const std::optional<QByteArray> data = parseDataUri(reference);
    if (!data) {
        *problem = {Message::ForeignReference, QStringLiteral("Only images in \"data:\" references are shown.")};
        return nullptr;
    }
    if (!isGzip(*data))
        return looksLikeDocument(*data) ? documents.read(*data, problem) : readPicture(*data, problem);
    const std::optional<QByteArray> text = gunzip(*data, Limits::textBytes);
    if (text)
        return documents.read(*text, problem);
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
    QImage picture = decode(*content);
    const std::lock_guard lock(decodedMutex);
    decodedPictures().insert(content.get(), new QPair<ImagePointer, QImage>(content, picture),
                             int(picture.sizeInBytes() / bytesPerKibibyte) + 1);
    return picture;
}

} // namespace Svg
