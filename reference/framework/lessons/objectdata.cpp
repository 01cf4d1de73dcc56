#include <lessons/objectdata.h>

#include <framework/cbaseobject.h>

#include <pagehost/application.h>
#include <pagehost/document.h>
#include <pagehost/page.h>

#include <QtCore/QDataStream>
#include <QtGui/QImage>
#include <QtGui/QPainter>

namespace pagehost {

QByteArray savedData(CBaseObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object.save(out);
    return bytes;
}

QByteArray savedData(const CPageBgProp &fill)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    fill.save(out);
    return bytes;
}

void followZoom(CBaseObject &object)
{
    QImage pixel(1, 1, QImage::Format_ARGB32_Premultiplied);
    pixel.fill(Qt::transparent);
    QPainter painter(&pixel);
    object.OnQPainterDraw(&painter);
}

void followZoom(const Document &document)
{
    const QVector<Page *> pages = document.pages();
    for (const Page *page : pages) {
        const QVector<CBaseObject *> objects = page->objects();
        for (CBaseObject *object : objects) {
            followZoom(*object);
        }
    }
}

CurrentDocument::CurrentDocument(IDocument *document)
    : m_before(setCurrentDocument(document))
{
}

CurrentDocument::~CurrentDocument()
{
    setCurrentDocument(m_before);
}

} // namespace pagehost
