// Labels: texts in boxes that the user writes.

#include <declared/reader/filelimits.h>
#include <declared/reader/filereader.h>

#include <QtCore/QRegularExpression>

namespace declared {

namespace {

const QStringList alignments{QStringLiteral("start"), QStringLiteral("middle"), QStringLiteral("end")};
const QStringList verticals{QStringLiteral("top"), QStringLiteral("middle"), QStringLiteral("bottom")};
const QStringList lineCounts{QStringLiteral("many"), QStringLiteral("one")};
const QStringList labelAttributes{QStringLiteral("box"),    QStringLiteral("align"), QStringLiteral("valign"),
                                  QStringLiteral("size"),   QStringLiteral("lines"), QStringLiteral("title"),
                                  QStringLiteral("visible")};
/// Of a repeated label.
const QStringList furtherAttributes{QStringLiteral("text"), QStringLiteral("fill")};
/// Ids of the texts of repeated labels lie above those of all properties; the label takes the bits above its loops.
constexpr int firstOfRounds = 1 << 30;
constexpr int loopBits = 20;
constexpr int labelBits = 10;
constexpr double smallestSize = 2;
constexpr double largestSize = 400;

} // namespace

bool FileReader::isLabel(const Element &element) const
{
    return isSvg(element) && element.name == QLatin1String("text") &&
           element.value("id").startsWith(QLatin1String("label_"));
}

void FileReader::readLabel(int index, int repeat, const QVector<int> &path)
{
    const Element &element = m_elements.at(index);
    const bool isRepeated = repeat >= 0;
    if (m_shape.labels.size() == limits::labels) {
        error("C17", element, QStringLiteral("a file has at most 256 labels"));
        return;
    }
    for (const Attribute &attribute : element.attributes)
        if (attribute.namespaceUri == shapeNamespace &&
            !labelAttributes.contains(attribute.name.section(QLatin1Char('.'), 0, 0)) &&
            !(isRepeated && furtherAttributes.contains(attribute.name)))
            error("C38", attribute,
                  QStringLiteral("a label has no \"%1\"%2")
                      .arg(attribute.name, suggestion(attribute.name, labelAttributes)));
    LabelDeclaration label;
    label.id = element.value("id");
    const char *const parts[] = {"label", "label-size", "label-bold", "label-colour", "label-align"};
    for (size_t i = 0; i < label.ids.size(); ++i)
        label.ids[i] = propertyId(QLatin1String(parts[i]), label.id);
    for (const SourceContent &content : element.contents)
        label.text += content.element < 0 ? content.text : m_elements.at(content.element).contents.value(0).text;
    label.text = label.text.simplified();
    label.isBold = inheritedValue(element, "font-weight") == QLatin1String("bold");
    const QColor colour(inheritedValue(element, "fill"));
    label.colour = colour.isValid() ? colour : QColor(Qt::black);
    label.title = textsOf(element, "title", shapeNamespace);
    readLabelBox(element, label);
    readLabelLook(element, label);
    label.repeat = repeat;
    label.path = path;
    if (isRepeated)
        readRepeatedLabel(element, label);
    m_shape.labels.append(label);
    TemplateElement written = m_written.value(index);
    written.isLetters = true;
    written.kept = QStringList{QStringLiteral("fill"), QStringLiteral("stroke")};
    written.dropped = QStringList{QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("font-size"),
                                  QStringLiteral("font-weight"), QStringLiteral("text-anchor")};
    m_written.insert(index, written);
}

void FileReader::readRepeatedLabel(const Element &element, LabelDeclaration &label)
{
    label.loops = m_shape.repeats.at(label.repeat).loops.size();
    label.firstRound = firstOfRounds + ((label.ids.front() & ((1 << labelBits) - 1)) << loopBits);
    if (const Attribute *content = shapeAttribute(element, "text"))
        take(m_compiler.text(content->value), label.content, *content);
    const Attribute *fill = shapeAttribute(element, "fill");
    if (fill && !isPen(fill->value))
        error("C43", *fill, QStringLiteral("the \"fill\" of a label is {pen}, or the colour in the file"));
    label.followsPen = isFilledByPen(element);
}

/// Also by a group around it.
bool FileReader::isFilledByPen(const Element &element) const
{
    for (const Element *holder = &element; holder; holder = parentOf(*holder)) {
        const Attribute *fill = shapeAttribute(*holder, "fill");
        if (fill && isPen(fill->value))
            return true;
    }
    return false;
}

/// Texts of a repeated label have ids and names of their own, which those of another label must not be.
void FileReader::checkLabelIds()
{
    for (const LabelDeclaration &label : qAsConst(m_shape.labels)) {
        for (const LabelDeclaration &other : qAsConst(m_shape.labels)) {
            const bool isOther = &other != &label && label.repeat >= 0;
            const Element &element = m_elements.at(m_ids.value(other.id));
            if (isOther && other.id.startsWith(label.id + QLatin1Char('_')))
                error("C11", element, QStringLiteral("\"%1\" may be a round of \"%2\"").arg(other.id, label.id));
            if (isOther && other.repeat >= 0 && other.firstRound == label.firstRound && other.id < label.id)
                error("C14", element,
                      QStringLiteral("texts of \"%1\" and \"%2\" would get the same ids: rename one")
                          .arg(other.id, label.id));
        }
    }
}

/// Four numbers with semicolons between them.
void FileReader::readLabelBox(const Element &element, LabelDeclaration &label)
{
    const Attribute *box = shapeAttribute(element, "box");
    if (!box) {
        error("C43", element, QStringLiteral("a label needs its \"box\": \"x; y; width; height\""));
        return;
    }
    const QStringList sides = box->value.split(QLatin1Char(';'));
    if (sides.size() != 4) {
        error("C43", *box, QStringLiteral("a box is \"x; y; width; height\", with semicolons between them"));
        return;
    }
    int offset = 0;
    for (const QString &side : sides) {
        Expression expression;
        take(m_compiler.expression(side, Type::Number), expression, *box, offset);
        label.box.append(expression);
        offset += side.size() + 1;
    }
}

void FileReader::readLabelLook(const Element &element, LabelDeclaration &label)
{
    int index = 0;
    if (readChoice(shapeAttribute(element, "align"), alignments, index, "C43"))
        label.alignment = LabelAlignment(index);
    if (readChoice(shapeAttribute(element, "valign"), verticals, index, "C43"))
        label.vertical = LabelAlignment(index);
    if (readChoice(shapeAttribute(element, "lines"), lineCounts, index, "C43"))
        label.hasManyLines = index == 0;
    bool isNumber = false;
    const double fontSize = inheritedValue(element, "font-size").toDouble(&isNumber);
    if (isNumber && fontSize >= smallestSize && fontSize <= largestSize)
        label.size = fontSize;
    const Attribute *size = shapeAttribute(element, "size");
    if (!size)
        return;
    static const QRegularExpression form(
        QStringLiteral("\\A\\s*(?:fit\\s+([0-9.]+)\\s*\\.\\.\\s*)?([0-9.]+)\\s*\\z"));
    const QRegularExpressionMatch match = form.match(size->value);
    const QString smallest = match.captured(1);
    label.size = match.captured(2).toDouble(&isNumber);
    label.smallest = smallest.toDouble();
    const bool isFit = smallest.isEmpty() || (label.smallest >= smallestSize && label.smallest < label.size);
    if (!match.hasMatch() || !isNumber || !isFit || label.size < smallestSize || label.size > largestSize)
        error("C43", *size, QStringLiteral("a size is a number from 2 to 400, or \"fit 6 .. 24\""));
}

} // namespace declared
