#include <lessons/documentzoom.h>

#include <framework/cbaseobject.h>

#include <pagehost/application.h>
#include <pagehost/document.h>
#include <pagehost/page.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>

namespace pagehost {

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
        for (CBaseObject *object : objects)
            followZoom(*object);
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
