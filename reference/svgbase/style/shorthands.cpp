#include "style/shorthands.h"

#include "grammar/lengths.h"

#include <QtCore/QStringList>

namespace Svg {

namespace {

bool isOneOf(const QString &word, std::initializer_list<const char *> words)
{
    return std::any_of(words.begin(), words.end(), [&](const char *known) {
        return word.compare(QLatin1String(known), Qt::CaseInsensitive) == 0;
    });
}

bool isFontSize(const QString &word)
{
    return isOneOf(word, {"xx-small", "x-small", "small", "medium", "large", "x-large", "xx-large", "xxx-large",
                          "larger", "smaller"}) ||
           (parseLength(word) && !isOneOf(word, {"0"}));
}

bool isFontWeight(const QString &word)
{
    bool number = false;
    const int weight = word.toInt(&number);
    return isOneOf(word, {"bold", "bolder", "lighter"}) || (number && weight >= 1 && weight <= 1000);
}

bool isFontStretch(const QString &word)
{
    return isOneOf(word, {"ultra-condensed", "extra-condensed", "condensed", "semi-condensed", "semi-expanded",
                          "expanded", "extra-expanded", "ultra-expanded"});
}

/// What a "font" says, as far as it is read.
struct FontWords
{
    QString style = QStringLiteral("normal");
    QString variant = QStringLiteral("normal");
    QString weight = QStringLiteral("normal");
    QString stretch = QStringLiteral("normal");
};

// The words before the size; false for one that has no place there.
bool readFontWord(const QString &word, FontWords *font)
{
    if (isOneOf(word, {"italic", "oblique"}))
        font->style = word;
    else if (isOneOf(word, {"small-caps"}))
        font->variant = word;
    else if (isFontWeight(word))
        font->weight = word;
    else if (isFontStretch(word))
        font->stretch = word;
    else
        return isOneOf(word, {"normal"});
    return true;
}

QVector<Longhand> fontOf(const FontWords &font, const QString &size, const QString &family)
{
    return {{AttributeId::FontStyle, font.style},   {AttributeId::FontVariant, font.variant},
            {AttributeId::FontWeight, font.weight}, {AttributeId::FontStretch, font.stretch},
            {AttributeId::FontSize, size},          {AttributeId::FontFamily, family}};
}

// CSS 2.1 §15.8: words in any order, the size with an optional line height, the families.
QVector<Longhand> fontLonghands(const QString &value)
{
    if (isOneOf(value, {"inherit", "initial", "unset"}))
        return fontOf({value, value, value, value}, value, value);
    FontWords font;
    QStringList words = value.simplified().split(QLatin1Char(' '));
    while (!words.isEmpty()) {
        const QString word = words.takeFirst();
        const QString size = word.left(word.indexOf(QLatin1Char('/')));
        // A number without a unit is a weight as long as a size follows.
        const bool weightComes = isFontWeight(word) && words.size() > 1;
        if (!weightComes && isFontSize(size) && !words.isEmpty()) {
            QString family = words.join(QLatin1Char(' '));
            if (family.startsWith(QLatin1Char('/')))
                family = family.section(QLatin1Char(' '), 2);
            return family.isEmpty() ? QVector<Longhand>() : fontOf(font, size, family);
        }
        if (!readFontWord(word, &font))
            break;
    }
    return {};
}

} // namespace

QVector<Longhand> longhands(const QString &name, const QString &value)
{
    if (name == QLatin1String("font"))
        return fontLonghands(value);
    if (name == QLatin1String("font-variant-caps"))
        return {{AttributeId::FontVariant, value}};
    if (name == QLatin1String("text-decoration-line"))
        return {{AttributeId::TextDecoration, value}};
    return {};
}

bool isStyledAttribute(AttributeId id)
{
    switch (id) {
    case AttributeId::Cx:
    case AttributeId::Cy:
    case AttributeId::D:
    case AttributeId::Height:
    case AttributeId::R:
    case AttributeId::Rotate:
    case AttributeId::Rx:
    case AttributeId::Ry:
    case AttributeId::Scale:
    case AttributeId::Transform:
    case AttributeId::TransformBox:
    case AttributeId::TransformOrigin:
    case AttributeId::Translate:
    case AttributeId::Width:
    case AttributeId::X:
    case AttributeId::Y:
        return true;
    default:
        return false;
    }
}

} // namespace Svg
