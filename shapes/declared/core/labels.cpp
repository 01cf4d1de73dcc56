#include <declared/core/labels.h>

#include <shapekit/pathtext.h>
#include <shapekit/propertiedshape.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

#include <algorithm>
#include <cmath>

namespace declared {

namespace {

constexpr double smallestFont = 2;
constexpr double largestFont = 400;
/// Coordinates of letters are whole multiples of 1 / this.
constexpr double letterPrecision = 100;
const QString nothing = QStringLiteral("M0 0");

QString pathText(const QPainterPath &outline, QPointF corner)
{
    const auto placed = [&](int i) {
        const QPointF point = corner + QPointF(outline.elementAt(i));
        return QPointF(std::round(point.x() * letterPrecision), std::round(point.y() * letterPrecision)) /
               letterPrecision;
    };
    shapekit::PathText text;
    for (int i = 0; i < outline.elementCount(); ++i) {
        switch (outline.elementAt(i).type) {
        case QPainterPath::MoveToElement:
            text.moveTo(placed(i));
            break;
        case QPainterPath::LineToElement:
            text.lineTo(placed(i));
            break;
        case QPainterPath::CurveToElement:
            text.curveTo(placed(i), placed(i + 1), placed(i + 2));
            break;
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
    return outline.isEmpty() ? nothing : text.text();
}

void setAttribute(QZeSvgNode &node, const QString &name, const QString &value)
{
    if (node.attribute(name) != value)
        node.setAttribute(name, value);
}

/// Starts a copy of the reader's element under a name, without the path data of letters.
void writeStart(QXmlStreamWriter &writer, const QXmlStreamReader &reader, const QString &name)
{
    const bool isText = name != reader.name();
    const QXmlStreamNamespaceDeclarations namespaces = reader.namespaceDeclarations();
    for (const QXmlStreamNamespaceDeclaration &declared : namespaces)
        if (declared.prefix().isEmpty())
            writer.writeDefaultNamespace(declared.namespaceUri().toString());
    writer.writeStartElement(reader.namespaceUri().toString(), name);
    for (const QXmlStreamNamespaceDeclaration &declared : namespaces)
        if (!declared.prefix().isEmpty())
            writer.writeNamespace(declared.namespaceUri().toString(), declared.prefix().toString());
    const QXmlStreamAttributes attributes = reader.attributes();
    for (const QXmlStreamAttribute &attribute : attributes)
        if (!isText || attribute.name() != QLatin1String("d"))
            writer.writeAttribute(attribute);
}

QString anchorName(LabelAlignment alignment)
{
    return alignment == LabelAlignment::Start ? QStringLiteral("start")
           : alignment == LabelAlignment::End ? QStringLiteral("end")
                                              : QStringLiteral("middle");
}

Qt::Alignment alignmentOf(const LabelLook &look)
{
    const Qt::Alignment horizontal = look.alignment == LabelAlignment::Start ? Qt::AlignLeft
                                     : look.alignment == LabelAlignment::End ? Qt::AlignRight
                                                                             : Qt::AlignHCenter;
    const Qt::Alignment vertical = look.vertical == LabelAlignment::Start ? Qt::AlignTop
                                   : look.vertical == LabelAlignment::End ? Qt::AlignBottom
                                                                          : Qt::AlignVCenter;
    return horizontal | vertical;
}

} // namespace

Labels::Labels(shapekit::PropertiedShape *shape, const QVector<LabelDeclaration> &declarations,
               const std::vector<LabelTitles> &allTitles)
{
    for (int i = 0; i < declarations.size(); ++i) {
        const LabelDeclaration &declared = declarations.at(i);
        const LabelTitles &titles = allTitles.at(size_t(i));
        Label label;
        label.declared = &declared;
        label.text = std::make_unique<shapekit::TextValue>(shape, *titles.text, declared.text);
        label.size = std::make_unique<shapekit::RealNumber>(shape, *titles.size, declared.size, smallestFont,
                                                            largestFont, 1);
        label.bold = std::make_unique<shapekit::Switch>(shape, *titles.bold, declared.isBold);
        label.colour = std::make_unique<shapekit::ColorValue>(shape, *titles.colour, declared.colour.rgb());
        label.alignment = std::make_unique<shapekit::Choice>(
            shape, *titles.alignment, int(declared.alignment),
            QVector<const shapekit::Text *>{titles.start.get(), titles.middle.get(), titles.end.get()});
        int part = 0;
        for (shapekit::Property *property : std::initializer_list<shapekit::Property *>{
                 label.text.get(), label.size.get(), label.bold.get(), label.colour.get(), label.alignment.get()}) {
            property->setIds(declared.ids[size_t(part)], declared.ids[size_t(part)]);
            ++part;
        }
        m_labels.push_back(std::move(label));
    }
}

LabelLook Labels::lookOf(const Label &label)
{
    LabelLook look;
    look.text = *label.text;
    look.box = label.box.size();
    look.size = *label.size;
    look.smallest = label.declared->smallest;
    look.isBold = *label.bold;
    look.hasManyLines = label.declared->hasManyLines;
    look.alignment = LabelAlignment(int(*label.alignment));
    look.vertical = label.declared->vertical;
    return look;
}

void Labels::draw(QZeSvgTinyDocument &document, ShapeState &state)
{
    for (Label &label : m_labels) {
        QZeSvgNode *node = document.namedNode(label.declared->id);
        if (!node)
            continue;
        double sides[4] = {};
        bool isFinite = true;
        for (int i = 0; i < 4; ++i) {
            const Value side = state.valueOf(label.declared->box.at(i));
            isFinite = isFinite && side.isFinite();
            sides[i] = side.number();
        }
        label.box =
            isFinite ? QRectF(sides[0], sides[1], std::max(0.0, sides[2]), std::max(0.0, sides[3])) : QRectF();
        const LabelLook look = lookOf(label);
        if (isFinite && look != label.look) {
            label.layout = layOut(look);
            label.look = look;
        }
        setAttribute(*node, QStringLiteral("d"),
                     isFinite ? pathText(label.layout.outline, label.box.topLeft()) : nothing);
        setAttribute(*node, QStringLiteral("fill"), QColor(*label.colour).name());
    }
}

QVector<shapekit::LabelPlace> Labels::places() const
{
    QVector<shapekit::LabelPlace> places;
    for (const Label &label : m_labels) {
        if (label.box.isNull())
            continue;
        shapekit::LabelPlace place;
        place.propertyId = label.text->id();
        place.text = *label.text;
        place.box = label.box;
        place.fontSize = label.layout.size;
        place.isBold = *label.bold;
        place.color = *label.colour;
        place.alignment = alignmentOf(label.look);
        place.hasManyLines = label.declared->hasManyLines;
        places.append(place);
    }
    return places;
}

const Labels::Label *Labels::labelWithId(const QString &id) const
{
    const auto found = std::find_if(m_labels.begin(), m_labels.end(),
                                    [&](const Label &label) { return label.declared->id == id; });
    return found == m_labels.end() ? nullptr : &*found;
}

QByteArray Labels::withTexts(const QByteArray &svg) const
{
    if (m_labels.empty())
        return svg;
    QByteArray changed;
    QXmlStreamReader reader(svg);
    QXmlStreamWriter writer(&changed);
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement()) {
            if (!reader.hasError())
                writer.writeCurrentToken(reader);
            continue;
        }
        const Label *label = labelWithId(reader.attributes().value(QLatin1String("id")).toString());
        writeStart(writer, reader, label ? QStringLiteral("text") : reader.name().toString());
        if (!label)
            continue;
        writeText(writer, *label);
        writer.writeEndElement();
        reader.skipCurrentElement();
    }
    return reader.hasError() ? svg : changed;
}

void Labels::writeText(QXmlStreamWriter &writer, const Label &label)
{
    writer.writeAttribute(QStringLiteral("font-family"), QStringLiteral("sans-serif"));
    writer.writeAttribute(QStringLiteral("font-size"), numberText(label.layout.size));
    if (*label.bold)
        writer.writeAttribute(QStringLiteral("font-weight"), QStringLiteral("bold"));
    writer.writeAttribute(QStringLiteral("text-anchor"), anchorName(label.look.alignment));
    for (const LabelLine &line : label.layout.lines) {
        const QPointF anchor = label.box.topLeft() + line.anchor;
        writer.writeStartElement(QStringLiteral("tspan"));
        writer.writeAttribute(QStringLiteral("x"), numberText(anchor.x()));
        writer.writeAttribute(QStringLiteral("y"), numberText(anchor.y()));
        if (line.isRightToLeft)
            writer.writeAttribute(QStringLiteral("direction"), QStringLiteral("rtl"));
        writer.writeCharacters(line.text);
        writer.writeEndElement();
    }
}

QJsonObject Labels::toJson() const
{
    QJsonObject labels;
    for (const Label &label : m_labels)
        labels[label.declared->id] =
            QJsonObject{{QStringLiteral("text"), label.text->toJson()},
                        {QStringLiteral("size"), label.size->toJson()},
                        {QStringLiteral("bold"), label.bold->toJson()},
                        {QStringLiteral("colour"), label.colour->toJson()},
                        {QStringLiteral("align"), anchorName(LabelAlignment(int(*label.alignment)))}};
    return labels;
}

/// Values that are missing keep those of a new shape.
void Labels::fromJson(const QJsonObject &labels)
{
    static const QStringList alignments{QStringLiteral("start"), QStringLiteral("middle"), QStringLiteral("end")};
    for (Label &label : m_labels) {
        const QJsonObject saved = labels.value(label.declared->id).toObject();
        label.text->fromJson(saved.value(QLatin1String("text")));
        label.size->fromJson(saved.value(QLatin1String("size")));
        label.bold->fromJson(saved.value(QLatin1String("bold")));
        label.colour->fromJson(saved.value(QLatin1String("colour")));
        const int alignment = alignments.indexOf(saved.value(QLatin1String("align")).toString());
        if (alignment >= 0)
            label.alignment->fromJson(alignment);
    }
}

} // namespace declared
