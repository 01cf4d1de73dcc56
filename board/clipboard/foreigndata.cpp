#include "clipboard/foreigndata.h"

#include <pagehost/objectregistry.h>

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QMimeDatabase>
#include <QtCore/QUrl>
#include <QtGui/QImage>
#include <QtGui/QImageReader>

namespace board {

namespace {

const QString pngType = QStringLiteral("image/png");
const QString svgType = QStringLiteral("image/svg+xml");

QByteArray asPng(const QImage &image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return !image.isNull() && image.save(&buffer, "PNG") ? buffer.data() : QByteArray();
}

bool looksLikeSvg(const QString &text)
{
    const QString start = text.left(4096);
    return start.trimmed().startsWith(QLatin1Char('<')) && start.contains(QLatin1String("<svg"));
}

/// Reads a picture in any format that Qt knows, unless it is absurdly large.
QImage readPicture(const QByteArray &bytes)
{
    constexpr qint64 mostPixels = 64 * 1024 * 1024;
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    return qint64(size.width()) * size.height() > mostPixels ? QImage() : reader.read();
}

CBaseObject *fromBytes(const QByteArray &bytes, const QString &type, const pagehost::ObjectRegistry &registry)
{
    if (CBaseObject *object = registry.createFromData(type, bytes))
        return object;
    const QByteArray png = asPng(readPicture(bytes));
    return png.isEmpty() ? nullptr : registry.createFromData(pngType, png);
}

CBaseObject *fromFile(const QString &path, const pagehost::ObjectRegistry &registry)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > largestForeignFile || !file.open(QIODevice::ReadOnly))
        return nullptr;
    const QByteArray bytes = file.readAll();
    return fromBytes(bytes, QMimeDatabase().mimeTypeForFileNameAndData(path, bytes).name(), registry);
}

QVector<CBaseObject *> fromFiles(const QMimeData &data, const pagehost::ObjectRegistry &registry,
                                 QStringList &unreadable)
{
    QVector<CBaseObject *> objects;
    const QList<QUrl> urls = data.urls();
    for (const QUrl &url : urls) {
        CBaseObject *object = url.isLocalFile() ? fromFile(url.toLocalFile(), registry) : nullptr;
        if (object)
            objects.append(object);
        else
            unreadable.append(url.isLocalFile() ? QFileInfo(url.toLocalFile()).fileName() : url.toDisplayString());
    }
    return objects;
}

CBaseObject *fromFormats(const QMimeData &data, const pagehost::ObjectRegistry &registry)
{
    const QStringList types = registry.dataTypes();
    for (const QString &type : types) {
        if (!data.hasFormat(type))
            continue;
        if (CBaseObject *object = registry.createFromData(type, data.data(type)))
            return object;
    }
    return nullptr;
}

CBaseObject *fromPictureOrText(const QMimeData &data, const pagehost::ObjectRegistry &registry)
{
    if (data.hasImage()) {
        const QByteArray png = asPng(qvariant_cast<QImage>(data.imageData()));
        if (CBaseObject *object = png.isEmpty() ? nullptr : registry.createFromData(pngType, png))
            return object;
    }
    return looksLikeSvg(data.text()) ? registry.createFromData(svgType, data.text().toUtf8()) : nullptr;
}

} // namespace

bool hasForeignData(const QMimeData &data, const pagehost::ObjectRegistry &registry)
{
    const QStringList types = registry.dataTypes();
    for (const QString &type : types)
        if (data.hasFormat(type))
            return true;
    return !types.isEmpty() && (data.hasUrls() || data.hasImage() || looksLikeSvg(data.text()));
}

QVector<CBaseObject *> makeObjects(const QMimeData &data, const pagehost::ObjectRegistry &registry,
                                   QStringList &unreadable)
{
    if (CBaseObject *object = fromFormats(data, registry))
        return {object};
    // Before the picture: file managers offer a file's icon beside it.
    if (data.hasUrls())
        return fromFiles(data, registry, unreadable);
    CBaseObject *object = fromPictureOrText(data, registry);
    return object ? QVector<CBaseObject *>{object} : QVector<CBaseObject *>();
}

} // namespace board
