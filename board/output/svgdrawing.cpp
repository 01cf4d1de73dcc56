#include "output/svgdrawing.h"

#include "output/svgfragment.h"

#include <pagehost/objectregistry.h>
#include <pagehost/page.h>
#include <pagehost/pagepainter.h>
#include <pagehost/paper.h>

#include <framework/cbaseobject.h>

#include <QtCore/QBuffer>
#include <QtCore/QXmlStreamWriter>
#include <QtGui/QImage>
#include <QtGui/QPainter>

namespace board {

namespace {

const QString svgMimeType = QStringLiteral("image/svg+xml");
/// Pixels per scene unit of a background that is no plain colour.
constexpr double backgroundScale = 2;

QString numbers(std::initializer_list<double> values)
{
    QStringList texts;
    for (const double value : values)
        texts.append(QString::number(value, 'g', 10));
    return texts.join(QLatin1Char(' '));
}

/// From the object's item coordinates to the scene, mirroring about its centre included, as it is painted.
QTransform placeOf(const CBaseObject *object)
{
    const QPointF centre = object->getClientRect().center();
    QTransform mirror;
    mirror.translate(centre.x(), centre.y());
    mirror.scale(object->isMirrored() ? -1 : 1, object->isFlipped() ? -1 : 1);
    mirror.translate(-centre.x(), -centre.y());
    return mirror * object->sceneTransform();
}

/// One document being written, with as many objects as have been added.
class SvgDrawing
{
public:
    explicit SvgDrawing(const QRectF &area)
        : m_out(&m_bytes)
    {
        m_out.writeStartDocument();
        m_out.writeStartElement(QStringLiteral("svg"));
        m_out.writeAttribute(QStringLiteral("xmlns"), QStringLiteral("http://www.w3.org/2000/svg"));
        m_out.writeAttribute(QStringLiteral("xmlns:xlink"), QStringLiteral("http://www.w3.org/1999/xlink"));
        m_out.writeAttribute(QStringLiteral("width"), numbers({area.width()}));
        m_out.writeAttribute(QStringLiteral("height"), numbers({area.height()}));
        m_out.writeAttribute(QStringLiteral("viewBox"), numbers({area.x(), area.y(), area.width(), area.height()}));
    }

    void addBackground(pagehost::Page *page)
    {
        const CPageBgProp &background = page->background();
        if (!background.isFillEnable())
            return;
        const pagehost::Paper paper = pagehost::paperOf(background);
        if (background.fillType() != CPageBgProp::SolidFill && paper == pagehost::Paper::Blank)
            return addPicture(page);
        m_out.writeEmptyElement(QStringLiteral("rect"));
        addSize(page->size());
        m_out.writeAttribute(QStringLiteral("fill"), background.fillColor().name());
        m_out.writeAttribute(QStringLiteral("fill-opacity"), numbers({background.opacity() / 255.0}));
        addPaper(pagehost::paperLines(paper, page->size(), background.fillColor()), background.opacity() / 255.0);
    }

    bool add(CBaseObject *object, const QByteArray &look)
    {
        const QTransform place = placeOf(object);
        m_out.writeStartElement(QStringLiteral("g"));
        m_out.writeAttribute(QStringLiteral("transform"), QStringLiteral("matrix(%1)")
                                                              .arg(numbers({place.m11(), place.m12(), place.m21(),
                                                                            place.m22(), place.dx(), place.dy()})));
        if (object->effectiveOpacity() < 1)
            m_out.writeAttribute(QStringLiteral("opacity"), numbers({object->effectiveOpacity()}));
        const QString prefix = QStringLiteral("object%1-").arg(++m_count);
        const bool written = writeSvgFragment(m_out, look, object->getClientRect().size(), prefix);
        m_out.writeEndElement();
        return written;
    }

    QByteArray finish()
    {
        m_out.writeEndDocument();
        return m_bytes;
    }

private:
    void addPaper(const QVector<pagehost::PaperLines> &papers, double opacity)
    {
        for (const pagehost::PaperLines &paper : papers) {
            QString path;
            for (const QLineF &line : paper.lines)
                path +=
                    QStringLiteral("M%1L%2").arg(numbers({line.x1(), line.y1()}), numbers({line.x2(), line.y2()}));
            m_out.writeEmptyElement(QStringLiteral("path"));
            m_out.writeAttribute(QStringLiteral("d"), path);
            m_out.writeAttribute(QStringLiteral("stroke"), paper.color.name());
            m_out.writeAttribute(QStringLiteral("stroke-opacity"), numbers({paper.color.alphaF() * opacity}));
            m_out.writeAttribute(QStringLiteral("stroke-width"), numbers({paper.width}));
            m_out.writeAttribute(QStringLiteral("stroke-linecap"), QStringLiteral("round"));
        }
    }

    void addSize(const QSizeF &size)
    {
        m_out.writeAttribute(QStringLiteral("width"), numbers({size.width()}));
        m_out.writeAttribute(QStringLiteral("height"), numbers({size.height()}));
    }

    void addPicture(pagehost::Page *page)
    {
        QImage picture((page->size() * backgroundScale).toSize(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        pagehost::paintPageBackground(page, &painter, picture.rect());
        painter.end();
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        picture.save(&buffer, "PNG");
        m_out.writeEmptyElement(QStringLiteral("image"));
        addSize(page->size());
        m_out.writeAttribute(QStringLiteral("xlink:href"), QStringLiteral("data:image/png;base64,") +
                                                               QString::fromLatin1(buffer.data().toBase64()));
    }

    QByteArray m_bytes;
    QXmlStreamWriter m_out;
    int m_count = 0;
};

QByteArray finished(SvgDrawing &drawing, const QVector<CBaseObject *> &objects,
                    const pagehost::ObjectRegistry &registry)
{
    for (CBaseObject *object : objects)
        if (object->isVisible() && !drawing.add(object, registry.dataOf(object, svgMimeType)))
            return {};
    return drawing.finish();
}

} // namespace

QByteArray svgOf(const QVector<CBaseObject *> &objects, const QRectF &area,
                 const pagehost::ObjectRegistry &registry)
{
    SvgDrawing drawing(area);
    return finished(drawing, objects, registry);
}

QByteArray svgOfPage(pagehost::Page *page, const pagehost::ObjectRegistry &registry)
{
    SvgDrawing drawing(page->rect());
    drawing.addBackground(page);
    return finished(drawing, page->objects(), registry);
}

} // namespace board
