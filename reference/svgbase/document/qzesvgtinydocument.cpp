#include <svgbase/qzesvgtinydocument.h>

#include "document/documentprivate.h"
#include "document/prototypecache.h"
#include "document/writer.h"

using namespace Svg;

QZeSvgTinyDocument::QZeSvgTinyDocument(std::unique_ptr<QZeSvgNodePrivate> record)
    : QZeSvgStructureNode(std::move(record))
{
    DocumentPrivate::of(this)->publicDocument = this;
}

QZeSvgTinyDocument::~QZeSvgTinyDocument() = default;

QZeSvgTinyDocument *QZeSvgTinyDocument::load(const QByteArray &text, QVector<Message> *messages)
{
    Messages collected;
    const PrototypePointer prototype = knownPrototype(text, &collected);
    if (messages)
        *messages = prototype ? prototype->settled().messages : collected.list();
    return prototype ? new QZeSvgTinyDocument(std::make_unique<DocumentPrivate>(prototype)) : nullptr;
}

QZeSvgTinyDocument *QZeSvgNodePrivate::cloneDocument(DocumentPrivate *document)
{
    document->storeFlags(rootNode);
    return new QZeSvgTinyDocument(std::make_unique<DocumentPrivate>(*document));
}

QVector<QZeSvgTinyDocument::Message> QZeSvgTinyDocument::messages() const
{
    const DocumentPrivate *record = DocumentPrivate::of(this);
    return record->content.messages() + record->drawMessages;
}

QZeSvgNode *QZeSvgTinyDocument::namedNode(const QString &id) const
{
    DocumentPrivate *record = DocumentPrivate::of(this);
    const NodeIndex index = record->content.tree().findId(id);
    return index == noNode ? nullptr : record->nodeObject(index);
}

QRectF QZeSvgTinyDocument::viewBox() const
{
    return DocumentPrivate::of(this)->settledViewBox();
}

void QZeSvgTinyDocument::setViewBox(const QRectF &box)
{
    DocumentPrivate *record = DocumentPrivate::of(this);
    record->viewBox = box;
    record->viewBoxMeasured = false;
}

void QZeSvgTinyDocument::setCallback(const std::function<void(QPainter *)> &callback)
{
    DocumentPrivate::of(this)->callback = callback;
}

void QZeSvgTinyDocument::setAllStrokeColor(QColor color)
{
    DocumentPrivate *record = DocumentPrivate::of(this);
    record->lastSet.strokeColor = color;
    record->restyle(&DocumentPrivate::takesStroke, [&](StyleOverride *style) { style->strokeColor = color; });
}

void QZeSvgTinyDocument::setAllStrokeStyle(Qt::PenStyle penStyle)
{
    DocumentPrivate *record = DocumentPrivate::of(this);
    record->lastSet.strokeStyle = penStyle;
    record->restyle(&DocumentPrivate::takesStroke, [&](StyleOverride *style) { style->strokeStyle = penStyle; });
}

void QZeSvgTinyDocument::setAllStrokeWidth(double width)
{
    DocumentPrivate *record = DocumentPrivate::of(this);
    record->lastSet.strokeWidth = width;
    record->restyle(&DocumentPrivate::takesStroke, [&](StyleOverride *style) { style->strokeWidth = width; });
}

void QZeSvgTinyDocument::setAllFillBrush(const QBrush &brush)
{
    DocumentPrivate *record = DocumentPrivate::of(this);
    record->lastSet.fill = brush;
    record->restyle(&DocumentPrivate::takesFill, [&](StyleOverride *style) { style->fill = brush; });
}

QColor QZeSvgTinyDocument::getAllStrokeColor() const
{
    DocumentPrivate *record = DocumentPrivate::of(this);
    if (record->lastSet.strokeColor)
        return *record->lastSet.strokeColor;
    const NodeIndex index = record->firstStroked();
    return index == noNode ? QColor(Qt::black) : record->drawnOutline(index).strokePaint.color();
}

Qt::PenStyle QZeSvgTinyDocument::getAllStrokeStyle() const
{
    DocumentPrivate *record = DocumentPrivate::of(this);
    if (record->lastSet.strokeStyle)
        return *record->lastSet.strokeStyle;
    const NodeIndex index = record->firstStroked();
    const bool dashed = index != noNode && !record->content.facts(index)->style->strokeDasharray.isEmpty();
    return dashed ? Qt::CustomDashLine : Qt::SolidLine;
}

double QZeSvgTinyDocument::getAllStrokeWidth() const
{
    DocumentPrivate *record = DocumentPrivate::of(this);
    if (record->lastSet.strokeWidth)
        return *record->lastSet.strokeWidth;
    const NodeIndex index = record->firstStroked();
    return index == noNode ? 1 : record->content.facts(index)->style->strokeWidth;
}

QBrush QZeSvgTinyDocument::getAllFillBrush() const
{
    DocumentPrivate *record = DocumentPrivate::of(this);
    if (record->lastSet.fill)
        return *record->lastSet.fill;
    const NodeIndex index = record->firstFilled();
    return index == noNode ? QBrush() : record->drawnOutline(index).fill;
}

void QZeSvgTinyDocument::draw(QPainter *painter, const QRectF &target, float scale, bool viewFlag)
{
    DocumentPrivate::of(this)->draw(painter, target, scale, viewFlag);
}

int QZeSvgTinyDocument::selectionState() const
{
    return DocumentPrivate::of(this)->selectionState;
}

void QZeSvgTinyDocument::setSelectionState(int state)
{
    DocumentPrivate::of(this)->selectionState = state;
}

bool QZeSvgTinyDocument::isBeforeDraw() const
{
    return DocumentPrivate::of(this)->beforeDraw;
}

void QZeSvgTinyDocument::setBeforeDraw(bool on)
{
    DocumentPrivate::of(this)->beforeDraw = on;
}

QZeSvgTinyDocument::DrawRecord QZeSvgTinyDocument::lastDraw() const
{
    return DocumentPrivate::of(this)->lastDraw;
}

bool QZeSvgTinyDocument::animated() const
{
    return DocumentPrivate::of(this)->hasAnimations();
}

void QZeSvgTinyDocument::startAnimate()
{
    DocumentPrivate::of(this)->startAnimation();
}

void QZeSvgTinyDocument::stopAnimate()
{
    DocumentPrivate::of(this)->stopAnimation();
}

bool QZeSvgTinyDocument::setAnimationTime(double seconds)
{
    const std::optional<ClockTime> time = clockTime(seconds);
    return time && DocumentPrivate::of(this)->setAnimationTime(*time);
}

double QZeSvgTinyDocument::animationTime() const
{
    return double(DocumentPrivate::of(this)->animationTime()) / double(clockSecond);
}

void QZeSvgTinyDocument::drawFitted(QPainter *painter, const QRectF &viewport)
{
    DocumentPrivate::of(this)->drawFitted(painter, viewport);
}

QByteArray QZeSvgTinyDocument::toSvg() const
{
    return documentText(*DocumentPrivate::of(this));
}
