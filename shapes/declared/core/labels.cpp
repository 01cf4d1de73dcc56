#include <declared/core/labels.h>

#include <declared/core/roundids.h>
#include <declared/reader/filelimits.h>

#include <shapekit/propertiedshape.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

#include <algorithm>

namespace declared {

using shapekit::LabelLine;
using shapekit::LabelLook;

namespace {

const QString nothing = shapekit::pathOfLetters({}, {});
/// On the node of a label: the id of its text, until an export replaces the letters.
const QString writingAttribute = QStringLiteral("label-text");
/// In saved JSON. Ids of labels begin with "label_".
const QString lettersKey = QStringLiteral("letters");

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
        if ((!isText || attribute.name() != QLatin1String("d")) && attribute.name() != writingAttribute)
            writer.writeAttribute(attribute);
}

/// A line's box gets higher with its letters, away from the side that they are aligned to.
QRectF grown(const QRectF &box, double growth, LabelAlignment vertical)
{
    const double further = box.height() * (growth - 1);
    const double above = vertical == LabelAlignment::Start ? 0
                         : vertical == LabelAlignment::End ? further
                                                           : further / 2;
    return box.adjusted(0, -above, 0, further - above);
}

QString anchorName(LabelAlignment alignment)
{
    return alignment == LabelAlignment::Start ? QStringLiteral("start")
           : alignment == LabelAlignment::End ? QStringLiteral("end")
                                              : QStringLiteral("middle");
}

LabelLook newLook(const LabelDeclaration &declared)
{
    LabelLook look;
    look.text = declared.text;
    look.size = declared.size;
    look.smallest = declared.smallest;
    look.isBold = declared.isBold;
    look.hasManyLines = declared.hasManyLines;
    look.alignment = declared.alignment;
    look.vertical = declared.vertical;
    return look;
}

} // namespace

Labels::Labels(const QVector<LabelDeclaration> &declarations)
    : m_letters(declarations)
{
    for (const LabelDeclaration &declared : declarations) {
        m_labels.emplace_back();
        m_labels.back().declared = &declared;
    }
}

void Labels::addProperties(shapekit::PropertiedShape *shape, const std::vector<LabelTitles> &titles)
{
    for (size_t i = 0; i < m_labels.size(); ++i)
        if (m_labels.at(i).declared->repeat < 0)
            addProperties(shape, m_labels.at(i), titles.at(i));
}

void Labels::addProperties(shapekit::PropertiedShape *shape, Label &label, const LabelTitles &titles)
{
    const LabelDeclaration &declared = *label.declared;
    const shapekit::LabelTexts texts{
        titles.text.get(),   titles.size.get(),      titles.bold.get(),
        titles.colour.get(), titles.alignment.get(), {titles.start.get(), titles.middle.get(), titles.end.get()}};
    label.own = std::make_unique<shapekit::Label>(shape, texts, newLook(declared), declared.colour);
    size_t part = 0;
    for (shapekit::Property *property : label.own->properties()) {
        property->setIds(declared.ids[part], declared.ids[part]);
        ++part;
    }
    label.writings.resize(1);
    label.writings.front().id = declared.ids.front();
}

LabelLook Labels::lookOf(const Label &label, const QString &text, const QSizeF &box) const
{
    if (label.own)
        return label.own->look(box);
    LabelLook look = newLook(*label.declared);
    look.text = text;
    look.box = box;
    look.size = m_letters.sizeOf(*label.declared);
    look.isBold = m_letters.isBold(*label.declared);
    look.isItalic = m_letters.isItalic();
    look.isUnderlined = m_letters.isUnderlined();
    return look;
}

QColor Labels::colourOf(const Label &label, const ShapeState &state) const
{
    return label.own ? label.own->color() : m_letters.colourOf(*label.declared, state.penColour());
}

void Labels::draw(QZeSvgTinyDocument &document, ShapeState &state)
{
    for (Label &label : m_labels) {
        QZeSvgNode *node = label.own ? document.namedNode(label.declared->id) : nullptr;
        if (node)
            drawWriting(label, label.writings.front(), *node, state);
    }
}

bool Labels::hasChangedRounds(int repeat) const
{
    return std::any_of(m_labels.begin(), m_labels.end(), [repeat](const Label &label) {
        return label.declared->repeat == repeat && label.hasChanged;
    });
}

void Labels::beginRounds(int repeat)
{
    for (Label &label : m_labels)
        if (label.declared->repeat == repeat)
            label.shownRounds = 0;
}

void Labels::endRounds(int repeat)
{
    for (Label &label : m_labels) {
        if (label.declared->repeat != repeat)
            continue;
        label.writings.resize(label.shownRounds);
        label.hasChanged = false;
    }
}

void Labels::drawRound(int repeat, QZeSvgNode &copy, const QVector<double> &values, ShapeState &state)
{
    for (Label &label : m_labels) {
        QZeSvgNode *node = label.declared->repeat == repeat ? partOf(&copy, label.declared->path) : nullptr;
        if (!node)
            continue;
        if (label.shownRounds == label.writings.size())
            label.writings.emplace_back();
        Writing &writing = label.writings.at(label.shownRounds++);
        writing.id = idOfRound(*label.declared, values);
        writing.givenText = label.declared->text;
        if (label.declared->content.isValid())
            writing.givenText = state.valueOf(label.declared->content).text.left(limits::textCharacters);
        writing.text = label.ownTexts.value(writing.id, writing.givenText);
        drawWriting(label, writing, *node, state);
    }
}

std::optional<QRectF> Labels::boxOf(const Label &label, ShapeState &state) const
{
    double sides[4] = {};
    for (int i = 0; i < 4; ++i) {
        const Value side = state.valueOf(label.declared->box.at(i));
        if (!side.isFinite())
            return {};
        sides[i] = side.number();
    }
    const QRectF box(sides[0], sides[1], std::max(0.0, sides[2]), std::max(0.0, sides[3]));
    const bool growsAlong = !label.own && !label.declared->hasManyLines && m_letters.growth() > 1;
    return growsAlong ? grown(box, m_letters.growth(), label.declared->vertical) : box;
}

/// Most steps of a drag leave most texts where they are.
void Labels::layOutWriting(const Label &label, Writing &writing, const QRectF &box) const
{
    const LabelLook look = lookOf(label, writing.text, box.size());
    const bool isAtPlace = writing.corner.x() == box.x() && writing.corner.y() == box.y();
    if (isAtPlace && look == writing.look && !writing.path.isEmpty())
        return;
    if (look != writing.look)
        writing.layout = layOut(look, writing.layout.letters);
    writing.look = look;
    writing.corner = box.topLeft();
    writing.path = shapekit::pathOfLetters(writing.layout.outline, writing.corner);
}

void Labels::drawWriting(const Label &label, Writing &writing, QZeSvgNode &node, ShapeState &state) const
{
    const std::optional<QRectF> box = boxOf(label, state);
    if (box)
        layOutWriting(label, writing, *box);
    writing.box = box && isShown(node) ? *box : QRectF();
    writing.colour = colourOf(label, state);
    // Empty cells of a table share their node with all tables.
    if (writing.look.text.isEmpty() && node.attribute(QStringLiteral("d")).isEmpty())
        return;
    setAttribute(node, QStringLiteral("d"), box && writing.id != m_hidden ? writing.path : nothing);
    setAttribute(node, QStringLiteral("fill"), writing.colour.name());
    setAttribute(node, writingAttribute, QString::number(writing.id));
}

QVector<shapekit::LabelPlace> Labels::places() const
{
    QVector<shapekit::LabelPlace> places;
    for (const Label &label : m_labels) {
        for (const Writing &writing : label.writings) {
            if (writing.box.isNull() || writing.id == 0)
                continue;
            places.append(
                shapekit::placeOf(writing.id, writing.look, writing.corner, writing.layout.size, writing.colour));
        }
    }
    return places;
}

Labels::Found Labels::writingWithId(int id) const
{
    for (const Label &label : m_labels)
        for (const Writing &writing : label.writings)
            if (writing.id == id)
                return {&label, &writing};
    return {};
}

Labels::Label *Labels::labelOfRound(int id)
{
    const auto found = std::find_if(m_labels.begin(), m_labels.end(),
                                    [&](const Label &label) { return isRoundOf(*label.declared, id); });
    return found == m_labels.end() ? nullptr : &*found;
}

bool Labels::hasRound(int id) const
{
    return labelOfRound(id) != nullptr;
}

QString Labels::textOfRound(int id) const
{
    const Label *label = labelOfRound(id);
    if (label && label->ownTexts.contains(id))
        return label->ownTexts.value(id);
    const Found shown = writingWithId(id);
    return shown.writing ? shown.writing->givenText : label ? label->declared->text : QString();
}

/// The given text isn't kept, so that it goes on following what it is made of.
void Labels::setTextOfRound(int id, const QString &text)
{
    Label *label = labelOfRound(id);
    if (!label)
        return;
    const QString own = text.left(limits::textCharacters);
    label->ownTexts.remove(id);
    if (own != textOfRound(id))
        label->ownTexts.insert(id, own);
    label->hasChanged = true;
}

void Labels::setLetters(const LetterStyle &letters)
{
    m_letters = letters;
    drawAllAgain();
}

void Labels::hide(int id)
{
    m_hidden = id;
    drawAllAgain();
}

void Labels::drawAllAgain()
{
    for (Label &label : m_labels)
        label.hasChanged = true;
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
        const int id = reader.attributes().value(writingAttribute).toInt();
        const Found found = id == 0 ? Found() : writingWithId(id);
        writeStart(writer, reader, found.writing ? QStringLiteral("text") : reader.name().toString());
        if (!found.writing)
            continue;
        writeText(writer, found);
        writer.writeEndElement();
        reader.skipCurrentElement();
    }
    return reader.hasError() ? svg : changed;
}

void Labels::writeText(QXmlStreamWriter &writer, const Found &found)
{
    const Writing &writing = *found.writing;
    writer.writeAttribute(QStringLiteral("font-family"), QStringLiteral("sans-serif"));
    writer.writeAttribute(QStringLiteral("font-size"), numberText(writing.layout.size));
    if (writing.look.isBold)
        writer.writeAttribute(QStringLiteral("font-weight"), QStringLiteral("bold"));
    if (writing.look.isItalic)
        writer.writeAttribute(QStringLiteral("font-style"), QStringLiteral("italic"));
    if (writing.look.isUnderlined)
        writer.writeAttribute(QStringLiteral("text-decoration"), QStringLiteral("underline"));
    writer.writeAttribute(QStringLiteral("text-anchor"), anchorName(writing.look.alignment));
    for (const LabelLine &line : writing.layout.lines) {
        const QPointF anchor = writing.box.topLeft() + line.anchor;
        writer.writeStartElement(QStringLiteral("tspan"));
        writer.writeAttribute(QStringLiteral("x"), numberText(anchor.x()));
        writer.writeAttribute(QStringLiteral("y"), numberText(anchor.y()));
        if (line.isRightToLeft)
            writer.writeAttribute(QStringLiteral("direction"), QStringLiteral("rtl"));
        writer.writeCharacters(line.text);
        writer.writeEndElement();
    }
}

std::optional<shapekit::LetterPart> Labels::partOfControl(const QString &id) const
{
    for (const Label &label : m_labels)
        if (const auto part = label.own ? label.own->partOfControl(id) : std::nullopt)
            return part;
    return {};
}

QJsonObject Labels::toJson(Saved saved) const
{
    QJsonObject labels;
    for (const Label &label : m_labels) {
        for (auto own = label.ownTexts.begin(); own != label.ownTexts.end(); ++own)
            labels[nameOfRound(*label.declared, own.key())] = QJsonObject{{QStringLiteral("text"), *own}};
        if (label.own && (saved == AllSingle || !label.own->isAsNew()))
            labels[label.declared->id] = label.own->toJson();
    }
    const QJsonObject letters = m_letters.toJson();
    if (!letters.isEmpty())
        labels[lettersKey] = letters;
    return labels;
}

/// Values that are missing keep those of a new shape.
void Labels::fromJson(const QJsonObject &labels)
{
    m_letters.fromJson(labels.value(lettersKey).toObject());
    for (Label &label : m_labels) {
        label.ownTexts.clear();
        label.hasChanged = true;
        if (label.own)
            label.own->fromJson(labels.value(label.declared->id).toObject());
        else
            readRounds(label, labels);
    }
}

void Labels::readRounds(Label &label, const QJsonObject &labels)
{
    for (auto saved = labels.begin(); saved != labels.end(); ++saved) {
        const int id = roundNamed(*label.declared, saved.key());
        const QJsonValue text = saved->toObject().value(QLatin1String("text"));
        if (id != 0 && text.isString())
            label.ownTexts.insert(id, text.toString().left(limits::textCharacters));
    }
}

} // namespace declared
