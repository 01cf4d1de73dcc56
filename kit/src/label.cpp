#include <shapekit/label.h>

#include <utility>

namespace shapekit {

namespace {

const QString textKey = QStringLiteral("text");
const QString sizeKey = QStringLiteral("size");
const QString boldKey = QStringLiteral("bold");
const QString colourKey = QStringLiteral("colour");
const QString alignmentKey = QStringLiteral("align");
/// Saved names, in the order of LabelAlignment.
const QStringList alignmentNames{QStringLiteral("start"), QStringLiteral("middle"), QStringLiteral("end")};

const Text textText("Text", "Text");
const Text sizeText("Font size", "Schriftgröße");
const Text boldText("Bold", "Fett");
const Text colourText("Text colour", "Textfarbe");
const Text alignmentText("Alignment", "Ausrichtung");
const Text startText("Start", "Am Anfang");
const Text middleText("Middle", "In der Mitte");
const Text endText("End", "Am Ende");

/// The value of a new shape where none, or none that can be read, was saved.
void take(Property &property, const QJsonValue &saved, const QJsonValue &ofNewShape)
{
    property.fromJson(ofNewShape);
    property.fromJson(saved);
}

} // namespace

const LabelTexts &usualLabelTexts()
{
    static const LabelTexts texts{&textText,   &sizeText,      &boldText,
                                  &colourText, &alignmentText, {&startText, &middleText, &endText}};
    return texts;
}

LabelPlace placeOf(int propertyId, const LabelLook &look, QPointF corner, double fontSize, const QColor &color)
{
    LabelPlace place;
    place.propertyId = propertyId;
    place.text = look.text;
    place.box = {corner, look.box};
    place.fontSize = fontSize;
    place.isBold = look.isBold;
    place.hasManyLines = look.hasManyLines;
    place.color = color;
    place.alignment = look.flags();
    return place;
}

Label::Label(PropertiedShape *shape, const LabelTexts &texts, const LabelLook &look, const QColor &color)
    : m_newLook(look)
    , m_newColor(color)
    , m_text(shape, *texts.text, look.text)
    , m_size(shape, *texts.size, look.size, smallestFont, largestFont, 1)
    , m_bold(shape, *texts.bold, look.isBold)
    , m_color(shape, *texts.colour, color.rgb())
    , m_alignment(shape, *texts.alignment, int(look.alignment), texts.alignments)
{
    for (Property *property : properties())
        property->leaveSavingToShape();
}

LabelLook Label::look(const QSizeF &box) const
{
    LabelLook look = m_newLook;
    look.text = m_text;
    look.box = box;
    look.size = m_size;
    look.isBold = m_bold;
    look.alignment = LabelAlignment(int(m_alignment));
    return look;
}

LabelPlace Label::place(const QRectF &box, double fontSize) const
{
    return placeOf(m_text.id(), look(box.size()), box.topLeft(), fontSize, m_color);
}

std::array<Property *, 5> Label::properties()
{
    return {&m_text, &m_size, &m_bold, &m_color, &m_alignment};
}

std::optional<LetterPart> Label::partOfControl(const QString &id) const
{
    const std::pair<const Property *, LetterPart> parts[] = {{&m_text, LetterPart::Text},
                                                             {&m_size, LetterPart::Size},
                                                             {&m_bold, LetterPart::Bold},
                                                             {&m_color, LetterPart::Colour},
                                                             {&m_alignment, LetterPart::Alignment}};
    for (const auto &[property, part] : parts)
        if (property->controlId() == id)
            return part;
    return {};
}

bool Label::isAsNew() const
{
    return look(m_newLook.box) == m_newLook && QColor(m_color).rgb() == m_newColor.rgb();
}

QJsonObject Label::toJson() const
{
    return {{textKey, m_text.toJson()},
            {sizeKey, m_size.toJson()},
            {boldKey, m_bold.toJson()},
            {colourKey, m_color.toJson()},
            {alignmentKey, alignmentNames.at(m_alignment)}};
}

void Label::fromJson(const QJsonObject &saved)
{
    const int alignment = alignmentNames.indexOf(saved.value(alignmentKey).toString());
    take(m_text, saved.value(textKey), m_newLook.text);
    take(m_size, saved.value(sizeKey), m_newLook.size);
    take(m_bold, saved.value(boldKey), m_newLook.isBold);
    take(m_color, saved.value(colourKey), m_newColor.name());
    take(m_alignment, alignment < 0 ? QJsonValue() : alignment, int(m_newLook.alignment));
}

} // namespace shapekit
