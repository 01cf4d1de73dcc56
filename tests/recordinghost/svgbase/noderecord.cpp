#include "noderecord.h"

#include "recordingsvg.h"

#include <QtCore/QRegularExpression>

int RecordingDocumentRecord::alive = 0;

RecordingDocumentRecord::RecordingDocumentRecord()
{
    ++alive;
}

RecordingDocumentRecord::~RecordingDocumentRecord()
{
    --alive;
}

namespace {

const QMap<QString, QZeSvgNode::Type> &drawnElements()
{
    static const QMap<QString, QZeSvgNode::Type> types{
        {"g", QZeSvgNode::Group},         {"circle", QZeSvgNode::Circle},
        {"ellipse", QZeSvgNode::Ellipse}, {"line", QZeSvgNode::Line},
        {"path", QZeSvgNode::Path},       {"polygon", QZeSvgNode::Polygon},
        {"rect", QZeSvgNode::Rect},       {"polyline", QZeSvgNode::Polyline},
        {"text", QZeSvgNode::Text},       {"image", QZeSvgNode::Image},
        {"use", QZeSvgNode::Use}};
    return types;
}

class GroupNode final : public QZeSvgStructureNode
{
public:
    explicit GroupNode(std::unique_ptr<QZeSvgNodePrivate> record)
        : QZeSvgStructureNode(std::move(record))
    {
    }
};

} // namespace

QZeSvgNodePrivate::~QZeSvgNodePrivate()
{
    qDeleteAll(children);
    qDeleteAll(removed);
}

QZeSvgNode *QZeSvgNodePrivate::wrap(std::unique_ptr<QZeSvgNodePrivate> record)
{
    if (record->type == QZeSvgNode::Group)
        return new GroupNode(std::move(record));
    return new QZeSvgNode(std::move(record));
}

QZeSvgNode *QZeSvgNodePrivate::create(const QString &element, const QMap<QString, QString> &attributes)
{
    const auto type = drawnElements().find(element);
    if (type == drawnElements().end())
        return nullptr;
    auto record = std::make_unique<QZeSvgNodePrivate>();
    record->type = *type;
    record->attributes = attributes;
    return wrap(std::move(record));
}

QZeSvgTinyDocument *QZeSvgNodePrivate::createDocument(const QMap<QString, QString> &attributes)
{
    auto record = std::make_unique<RecordingDocumentRecord>();
    record->type = QZeSvgNode::Document;
    record->attributes = attributes;
    const QStringList box = attributes.value("viewBox").simplified().split(' ');
    if (box.size() == 4)
        record->viewBox = {box[0].toDouble(), box[1].toDouble(), box[2].toDouble(), box[3].toDouble()};
    return new QZeSvgTinyDocument(std::move(record));
}

QZeSvgNode *QZeSvgNodePrivate::clone(const QZeSvgNode *node)
{
    const QZeSvgNodePrivate *source = of(node);
    auto record = std::make_unique<QZeSvgNodePrivate>();
    record->type = source->type;
    record->attributes = source->attributes;
    record->shownParent = source->shownParent;
    QZeSvgNode *copy = wrap(std::move(record));
    copy->setFillEnabled(node->isFillEnabled());
    copy->setStrokeEnabled(node->isStrokeEnabled());
    for (const QZeSvgNode *child : source->children) {
        QZeSvgNode *childCopy = clone(child);
        of(childCopy)->holder = static_cast<QZeSvgStructureNode *>(copy);
        of(childCopy)->shownParent = static_cast<QZeSvgStructureNode *>(copy);
        of(copy)->children.append(childCopy);
    }
    return copy;
}

QString QZeSvgNodePrivate::name() const
{
    if (type == QZeSvgNode::Document)
        return QStringLiteral("document");
    const QString id = attributes.value("id");
    return id.isEmpty() ? '<' + drawnElements().key(type) + '>' : id;
}

double QZeSvgNodePrivate::number(const char *attribute, double fallback) const
{
    const QString text = attributes.value(QLatin1String(attribute));
    return text.isEmpty() ? fallback : text.toDouble();
}

QRectF QZeSvgNodePrivate::bounds() const
{
    return frozen && !recording::svg().boundsFollow ? frozenBounds : geometryBounds();
}

QRectF QZeSvgNodePrivate::roundBounds() const
{
    const double radius = number("r");
    const double rx = number("rx", radius);
    const double ry = number("ry", radius);
    return {number("cx") - rx, number("cy") - ry, 2 * rx, 2 * ry};
}

QRectF QZeSvgNodePrivate::geometryBounds() const
{
    switch (type) {
    case QZeSvgNode::Circle:
    case QZeSvgNode::Ellipse:
        return roundBounds();
    case QZeSvgNode::Line:
        return QRectF({number("x1"), number("y1")}, QPointF(number("x2"), number("y2"))).normalized();
    case QZeSvgNode::Path:
        return simplePath(attributes.value("d")).boundingRect();
    case QZeSvgNode::Polygon:
    case QZeSvgNode::Polyline:
        return simplePolygon(attributes.value("points")).boundingRect();
    case QZeSvgNode::Document:
    case QZeSvgNode::Group:
        return {};
    default:
        return {number("x"), number("y"), number("width"), number("height")};
    }
}

void QZeSvgNodePrivate::setNumber(const QString &attribute, double value)
{
    if (!recording::svg().boundsFollow && !frozen) {
        frozenBounds = geometryBounds();
        frozen = true;
    }
    if (isRound())
        setRoundNumber(attribute, value);
    else
        attributes[attribute] = QString::number(value, 'g', 17);
}

void QZeSvgNodePrivate::setRoundNumber(const QString &attribute, double value)
{
    QRectF box = roundBounds();
    if (attribute == "x")
        box.moveLeft(value);
    else if (attribute == "y")
        box.moveTop(value);
    else if (attribute == "width")
        box.setWidth(value);
    else if (attribute == "height")
        box.setHeight(value);
    else if (attribute == "rx")
        box.setWidth(2 * value);
    else if (attribute == "ry")
        box.setHeight(2 * value);
    else
        attributes[attribute] = QString::number(value, 'g', 17);
    attributes["cx"] = QString::number(box.x() + 0.5 * box.width(), 'g', 17);
    attributes["cy"] = QString::number(box.y() + 0.5 * box.height(), 'g', 17);
    attributes["rx"] = QString::number(0.5 * box.width(), 'g', 17);
    attributes["ry"] = QString::number(0.5 * box.height(), 'g', 17);
}

QPolygonF simplePolygon(const QString &points)
{
    static const QRegularExpression separator("[\\s,]+");
    const QStringList numbers = points.split(separator, Qt::SkipEmptyParts);
    QPolygonF polygon;
    for (int i = 0; i + 1 < numbers.size(); i += 2)
        polygon.append({numbers[i].toDouble(), numbers[i + 1].toDouble()});
    return polygon;
}

QPainterPath simplePath(const QString &data)
{
    static const QRegularExpression step("([MLHVZ])([^MLHVZ]*)");
    QPainterPath path;
    auto steps = step.globalMatch(data);
    while (steps.hasNext()) {
        const QRegularExpressionMatch match = steps.next();
        const QChar command = match.captured(1).at(0);
        const QString arguments = match.captured(2);
        if (command == 'Z')
            path.closeSubpath();
        else if (command == 'H')
            path.lineTo(arguments.toDouble(), path.currentPosition().y());
        else if (command == 'V')
            path.lineTo(path.currentPosition().x(), arguments.toDouble());
        const QPolygonF points = simplePolygon(arguments);
        for (int i = 0; i < points.size(); ++i)
            if (command == 'M' && i == 0)
                path.moveTo(points[i]);
            else if (command == 'M' || command == 'L')
                path.lineTo(points[i]);
    }
    return path;
}
