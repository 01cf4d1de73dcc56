// State of a shape in a stream: view box, control points, pen. The template belongs to the class, and the
// fill to the page object.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include "properties/penstyle.h"
#include "properties/valuecodec.h"
#include "shape/controlpoints.h"
#include "shape/viewbox.h"

bool CSVGBase::save(QDataStream &out)
{
    if (rawControlPoints)
        out << settledViewBox(document);
    // Without a document there are no points, whatever count was loaded.
    const quint32 count = document ? controlPointCount : 0;
    out << qint32(count);
    for (quint32 i = 1; i <= count; ++i)
        if (const QZeSvgNode *node = document->namedNode(controlPointId(i)))
            out << node->boundingRect().x() << node->boundingRect().y();
    out << propFillEnabled;
    out << propPenEnabled;
    if (propPenEnabled)
        out << getPenColor();
    out << propPenStyleEnabled;
    if (propPenStyleEnabled)
        out << qint32(getPenStyle());
    out << propPenWidthEnabled;
    if (propPenWidthEnabled)
        out << qint32(getPenWidth());
    return true;
}

bool CSVGBase::load(QDataStream &in)
{
    if (rawControlPoints)
        setViewBoxOf(document, decodeValue<QRectF>(in));
    const qint32 storedCount = decodeValue<qint32>(in);
    controlPointCount = quint32(qBound(0, storedCount, int(maxControlPoints)));
    for (qint32 i = 1; i <= storedCount; ++i) {
        const bool beyondTable = i > int(maxControlPoints);
        if (beyondTable && in.status() != QDataStream::Ok)
            break; // a count that the stream cannot hold
        QZeSvgNode *node = beyondTable ? nullptr : storedControlPoint(quint32(i));
        // A missing first point is skipped without its numbers, which then count as the next one's.
        if (!node && i == 1)
            continue;
        const double x = decodeValue<double>(in);
        const double y = decodeValue<double>(in);
        if (node)
            placeStoredControlPoint(node, QPointF(x, y));
    }
    if (rawControlPoints)
        updateAllControlPoints(false, false);
    decodeValue<bool>(in); // whether there was a fill; the page object restores it
    if (decodeValue<bool>(in))
        setPenColor(decodeValue<QColor>(in), false);
    if (decodeValue<bool>(in))
        setPenStyle(penStyleFromInt(decodeValue<qint32>(in)), false);
    if (decodeValue<bool>(in))
        setPenWidth(decodeValue<qint32>(in), false);
    takeFillOfOwner();
    return true;
}

QZeSvgNode *CSVGBase::storedControlPoint(quint32 number)
{
    const QString id = controlPointId(number);
    if (QZeSvgNode *node = document ? document->namedNode(id) : nullptr)
        return node;
    if (number == 1 || !controlPoints[0])
        return nullptr;
    QZeSvgNode *copy = controlPoints[0]->clone();
    if (!copy)
        return nullptr;
    copy->setAttribute(QStringLiteral("id"), id);
    addNode(copy, id);
    controlPoints[number - 1] = copy;
    return copy;
}

void CSVGBase::placeStoredControlPoint(QZeSvgNode *node, QPointF pos)
{
    if (!rawControlPoints) {
        updateSVGControlPoint(node, pos, false, false, false);
        return;
    }
    node->setNumericAttribute(QStringLiteral("x"), pos.x());
    node->setNumericAttribute(QStringLiteral("y"), pos.y());
}

void CSVGBase::takeFillOfOwner()
{
    const CPageBgProp *prop = owner ? owner->getFillProp() : nullptr;
    if (!prop || !prop->isFillEnable())
        return;
    QColor color = prop->fillColor();
    color.setAlphaF(prop->opacity() / 255.0);
    setFillBrush(QBrush(color), false, true);
}
