#include <host/pngpicture.h>

#include <QtCore/QBuffer>
#include <QtGui/QImageReader>

namespace {

constexpr qint64 mostPicturePixels = qint64(1) << 26;

} // namespace

QImage pngPicture(const QByteArray &png)
{
    QBuffer buffer;
    buffer.setData(png);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "PNG");
    const QSize size = reader.size();
    if (!size.isValid() || qint64(size.width()) * size.height() > mostPicturePixels)
        return {};
    return reader.read();
}
