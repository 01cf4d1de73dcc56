#include "noderecord.h"
#include "recordingsvg.h"

#include <recordinghost/log/calllog.h>

#include <QtCore/QXmlStreamReader>
#include <QtGui/QPainter>

using recording::log;

namespace recording {

Svg &svg()
{
    static Svg settings;
    return settings;
}

void resetSvg()
{
    svg() = Svg();
}

bool hasCallback(const QZeSvgTinyDocument *document)
{
    return bool(RecordingDocumentRecord::of(document)->callback);
}

void callCallback(const QZeSvgTinyDocument *document, QPainter *painter)
{
    RecordingDocumentRecord::of(document)->callback(painter);
}

int documentCount()
{
    return RecordingDocumentRecord::alive;
}

} // namespace recording

namespace {

const QString document = QStringLiteral("document");

QMap<QString, QString> attributesOf(const QXmlStreamReader &xml)
{
    QMap<QString, QString> attributes;
    const QXmlStreamAttributes read = xml.attributes();
    for (const QXmlStreamAttribute &attribute : read)
        attributes[attribute.qualifiedName().toString()] = attribute.value().toString();
    return attributes;
}

void adopt(QZeSvgNode *parent, QZeSvgNode *child)
{
    auto *structure = static_cast<QZeSvgStructureNode *>(parent);
    QZeSvgNodePrivate::of(child)->holder = structure;
    QZeSvgNodePrivate::of(child)->shownParent = parent->type() == QZeSvgNode::Document ? nullptr : structure;
    QZeSvgNodePrivate::of(parent)->children.append(child);
}

void readElement(const QXmlStreamReader &xml, QZeSvgTinyDocument *root, QList<QZeSvgNode *> &open)
{
    const QString element = xml.name().toString();
    if (element.startsWith("animate") || element == "set")
        RecordingDocumentRecord::of(root)->animated = true;
    QZeSvgNode *node = QZeSvgNodePrivate::create(element, attributesOf(xml));
    QZeSvgNode *parent = open.last();
    if (node)
        adopt(parent, node);
    open.append(node && node->type() == QZeSvgNode::Group ? node : parent);
}

QZeSvgNode *find(const QZeSvgNode *node, const QString &id)
{
    for (QZeSvgNode *child : qAsConst(QZeSvgNodePrivate::of(node)->children)) {
        if (child->nodeId() == id)
            return child;
        if (QZeSvgNode *found = find(child, id))
            return found;
    }
    return nullptr;
}

void visit(QZeSvgNode *node, const std::function<void(QZeSvgNode *)> &step)
{
    for (QZeSvgNode *child : qAsConst(QZeSvgNodePrivate::of(node)->children)) {
        step(child);
        visit(child, step);
    }
}

/// Writes a presentation attribute to every node whose stroke (or fill) is enabled.
void spread(QZeSvgTinyDocument *root, bool stroke, const QString &attribute, const QString &value)
{
    visit(root, [&](QZeSvgNode *node) {
        if (stroke ? node->isStrokeEnabled() : node->isFillEnabled())
            QZeSvgNodePrivate::of(node)->attributes[attribute] = value;
    });
}

/// The first enabled node's value of a presentation attribute; empty when none has it.
QString firstValue(const QZeSvgTinyDocument *root, bool stroke, const QString &attribute)
{
    QString value;
    visit(const_cast<QZeSvgTinyDocument *>(root), [&](QZeSvgNode *node) {
        if (value.isEmpty() && (stroke ? node->isStrokeEnabled() : node->isFillEnabled()))
            value = QZeSvgNodePrivate::of(node)->attributes.value(attribute);
    });
    return value;
}

} // namespace

QZeSvgTinyDocument *QZeSvgTinyDocument::load(const QByteArray &text, QVector<Message> *)
{
    log(document, "load", {text});
    if (recording::svg().failingLoads > 0) {
        --recording::svg().failingLoads;
        return nullptr;
    }
    QXmlStreamReader xml(text);
    if (!xml.readNextStartElement() || xml.name() != "svg")
        return nullptr;
    QZeSvgTinyDocument *root = QZeSvgNodePrivate::createDocument(attributesOf(xml));
    QList<QZeSvgNode *> open{root};
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            readElement(xml, root, open);
        else if (token == QXmlStreamReader::EndElement && open.size() > 1)
            open.removeLast();
    }
    if (!xml.hasError())
        return root;
    delete root;
    return nullptr;
}

QZeSvgTinyDocument::QZeSvgTinyDocument(std::unique_ptr<QZeSvgNodePrivate> record)
    : QZeSvgStructureNode(std::move(record))
{
}

QZeSvgTinyDocument::~QZeSvgTinyDocument()
{
    log(document, "delete");
}

QVector<QZeSvgTinyDocument::Message> QZeSvgTinyDocument::messages() const
{
    return {};
}

QZeSvgNode *QZeSvgTinyDocument::namedNode(const QString &id) const
{
    log(document, "namedNode", {id});
    return find(this, id);
}

QRectF QZeSvgTinyDocument::viewBox() const
{
    QRectF &box = RecordingDocumentRecord::of(this)->viewBox;
    if (box.isNull())
        box = transformedBounds();
    return box;
}

void QZeSvgTinyDocument::setViewBox(const QRectF &box)
{
    log(document, "setViewBox", {box});
    RecordingDocumentRecord::of(this)->viewBox = box;
}

void QZeSvgTinyDocument::setCallback(const std::function<void(QPainter *)> &callback)
{
    log(document, "setCallback", {bool(callback)});
    RecordingDocumentRecord::of(this)->callback = callback;
}

void QZeSvgTinyDocument::setAllStrokeColor(QColor color)
{
    log(document, "setAllStrokeColor", {color});
    RecordingDocumentRecord::of(this)->strokeColor = color;
    spread(this, true, "stroke", color.name(QColor::HexArgb));
}

void QZeSvgTinyDocument::setAllStrokeStyle(Qt::PenStyle style)
{
    log(document, "setAllStrokeStyle", {int(style)});
    RecordingDocumentRecord::of(this)->strokeStyle = int(style);
}

void QZeSvgTinyDocument::setAllStrokeWidth(double width)
{
    log(document, "setAllStrokeWidth", {width});
    RecordingDocumentRecord::of(this)->strokeWidth = width;
    spread(this, true, "stroke-width", QString::number(width, 'g', 17));
}

void QZeSvgTinyDocument::setAllFillBrush(const QBrush &brush)
{
    log(document, "setAllFillBrush", {brush});
    RecordingDocumentRecord::of(this)->fillBrush = brush;
    spread(this, false, "fill", brush.style() == Qt::NoBrush ? "none" : brush.color().name(QColor::HexArgb));
}

QColor QZeSvgTinyDocument::getAllStrokeColor() const
{
    const QVariant &stored = RecordingDocumentRecord::of(this)->strokeColor;
    if (stored.isValid())
        return stored.value<QColor>();
    const QString text = firstValue(this, true, "stroke");
    return text.isEmpty() ? QColor(Qt::black) : QColor(text);
}

Qt::PenStyle QZeSvgTinyDocument::getAllStrokeStyle() const
{
    const QVariant &stored = RecordingDocumentRecord::of(this)->strokeStyle;
    return stored.isValid() ? Qt::PenStyle(stored.toInt()) : Qt::SolidLine;
}

double QZeSvgTinyDocument::getAllStrokeWidth() const
{
    const QVariant &stored = RecordingDocumentRecord::of(this)->strokeWidth;
    if (stored.isValid())
        return stored.toDouble();
    const QString text = firstValue(this, true, "stroke-width");
    return text.isEmpty() ? 1 : text.toDouble();
}

QBrush QZeSvgTinyDocument::getAllFillBrush() const
{
    const QVariant &stored = RecordingDocumentRecord::of(this)->fillBrush;
    if (stored.isValid())
        return stored.value<QBrush>();
    const QString text = firstValue(this, false, "fill");
    return text.isEmpty() || text == "none" ? QBrush() : QBrush(QColor(text));
}

void QZeSvgTinyDocument::draw(QPainter *painter, const QRectF &target, float scale, bool viewFlag)
{
    RecordingDocumentRecord *record = RecordingDocumentRecord::of(this);
    log(document, "draw", {target, scale, viewFlag, record->selectionState, record->beforeDraw});
    record->lastDraw = {target, scale, viewFlag};
    record->beforeDraw = false;
    if (record->callback)
        record->callback(painter);
    if (recording::svg().drawHook)
        recording::svg().drawHook(painter);
}

int QZeSvgTinyDocument::selectionState() const
{
    return RecordingDocumentRecord::of(this)->selectionState;
}

void QZeSvgTinyDocument::setSelectionState(int state)
{
    log(document, "setSelectionState", {state});
    RecordingDocumentRecord::of(this)->selectionState = state;
}

bool QZeSvgTinyDocument::isBeforeDraw() const
{
    return RecordingDocumentRecord::of(this)->beforeDraw;
}

void QZeSvgTinyDocument::setBeforeDraw(bool on)
{
    log(document, "setBeforeDraw", {on});
    RecordingDocumentRecord::of(this)->beforeDraw = on;
}

QZeSvgTinyDocument::DrawRecord QZeSvgTinyDocument::lastDraw() const
{
    return RecordingDocumentRecord::of(this)->lastDraw;
}

bool QZeSvgTinyDocument::animated() const
{
    return RecordingDocumentRecord::of(this)->animated;
}

void QZeSvgTinyDocument::startAnimate()
{
    log(document, "startAnimate");
}

void QZeSvgTinyDocument::stopAnimate()
{
    log(document, "stopAnimate");
}
