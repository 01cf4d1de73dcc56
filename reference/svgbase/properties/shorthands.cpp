#include "properties/shorthands.h"

#include "grammar/csstext.h"
#include "grammar/lengths.h"

#include <QtCore/QStringList>

namespace Svg {

namespace {

/// Characters of a list of features that are read.
constexpr int longestFeatures = 1000;

bool isOneOf(const QString &word, std::initializer_list<const char *> words)
{
    return std::any_of(words.begin(), words.end(), [&](const char *known) {
        return word.compare(QLatin1String(known), Qt::CaseInsensitive) == 0;
    });
}

// Keywords that every property accepts.
bool isWideKeyword(const QString &value)
{
    return isOneOf(value, {"inherit", "initial", "unset", "revert"});
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

/// Words of a "font" read so far.
struct FontWords
{
    QString style = QStringLiteral("normal");
    QString variant = QStringLiteral("normal");
    QString weight = QStringLiteral("normal");
    QString stretch = QStringLiteral("normal");
    QString size;
    QString lineHeight = QStringLiteral("normal");
    QString family;
};

// The words before the size; false for one that is not allowed there.
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

// Longhands that the shorthand cannot express get their initial values (CSS Fonts 4 §2.7).
QVector<Longhand> fontOf(const FontWords &font, const QString &kerning, const QString &sizeAdjust)
{
    return {{AttributeId::FontStyle, font.style},     {AttributeId::FontVariant, font.variant},
            {AttributeId::FontWeight, font.weight},   {AttributeId::FontStretch, font.stretch},
            {AttributeId::FontSize, font.size},       {AttributeId::LineHeight, font.lineHeight},
            {AttributeId::FontFamily, font.family},   {AttributeId::FontKerning, kerning},
            {AttributeId::FontSizeAdjust, sizeAdjust}};
}

// "12px/1.5", "12px / 1.5" or "12px". Returns the rest, the families.
void readBehindSize(const QVector<QStringView> &words, int size, QStringView text, FontWords *font)
{
    int last = size;
    const auto slash = QLatin1Char('/');
    if (words.at(last).endsWith(slash))
        ++last;
    else if (last + 1 < words.size() && words.at(last + 1).startsWith(slash))
        last += words.at(last + 1).size() > 1 ? 1 : 2;
    if (last >= words.size())
        return;
    const QStringView behind(words.at(size).begin() + font->size.size(), words.at(last).end());
    if (behind.contains(slash))
        font->lineHeight = behind.mid(behind.indexOf(slash) + 1).trimmed().toString();
    font->family = text.mid(words.at(last).end() - text.begin()).trimmed().toString();
}

// CSS 2.1 §15.8: words in any order, the size with an optional line height, the families.
QVector<Longhand> fontLonghands(const QString &value)
{
    if (isWideKeyword(value))
        return fontOf({value, value, value, value, value, value, value}, value, value);
    FontWords font;
    const QVector<QStringView> words = cssWords(value);
    for (int i = 0; i < words.size(); ++i) {
        const QString word = words.at(i).toString();
        const bool isSum = word.startsWith(QLatin1String("calc("), Qt::CaseInsensitive);
        const QString size =
            isSum ? word.left(word.lastIndexOf(QLatin1Char(')')) + 1) : word.left(word.indexOf(QLatin1Char('/')));
        // A number without a unit is a weight as long as a size follows.
        const bool weightComes = isFontWeight(word) && i + 2 < words.size();
        if (!weightComes && isFontSize(size)) {
            font.size = size;
            readBehindSize(words, i, value, &font);
            return font.family.isEmpty() ? QVector<Longhand>()
                                         : fontOf(font, QStringLiteral("auto"), QStringLiteral("none"));
        }
        if (!readFontWord(word, &font))
            break;
    }
    return {};
}

// An alignment baseline, a shift, or both (CSS Inline 3 §4.2).
QVector<Longhand> alignmentLonghands(const QString &value)
{
    const QString usual = QStringLiteral("baseline");
    if (isWideKeyword(value))
        return {{AttributeId::AlignmentBaseline, value}, {AttributeId::BaselineShift, value}};
    QString alignment = usual;
    QString shift = usual;
    const QVector<QStringView> words = cssWords(value);
    for (const QStringView word : words) {
        const QString text = word.toString();
        const bool shifts = parseLength(text) || isOneOf(text, {"sub", "super"});
        (shifts ? shift : alignment) = text;
    }
    return {{AttributeId::AlignmentBaseline, alignment}, {AttributeId::BaselineShift, shift}};
}

QVector<Longhand> whiteSpaceLonghands(const QString &value)
{
    if (isOneOf(value, {"preserve", "preserve-spaces"}))
        return {{AttributeId::WhiteSpace, QStringLiteral("pre")}};
    if (isOneOf(value, {"collapse"}))
        return {{AttributeId::WhiteSpace, QStringLiteral("normal")}};
    if (isOneOf(value, {"preserve-breaks"}))
        return {{AttributeId::WhiteSpace, QStringLiteral("pre-line")}};
    return isWideKeyword(value) || isOneOf(value, {"break-spaces"})
               ? QVector<Longhand>{{AttributeId::WhiteSpace, value}}
               : QVector<Longhand>();
}

// The font features that Qt can select: "'liga' 0, 'kern' off".
QVector<Longhand> featureLonghands(const QString &value)
{
    if (isWideKeyword(value) || isOneOf(value, {"normal"}))
        return {};
    QVector<Longhand> result;
    const QStringList features = value.left(longestFeatures).split(QLatin1Char(','));
    for (const QString &feature : features) {
        const QVector<QStringView> words = cssWords(feature);
        const bool isOff = words.size() == 2 && isOneOf(words.at(1).toString(), {"0", "off"});
        if (isOff && words.constFirst().mid(1).startsWith(QLatin1String("liga")))
            result.append({AttributeId::FontVariantLigatures, QStringLiteral("none")});
        if (isOff && words.constFirst().mid(1).startsWith(QLatin1String("kern")))
            result.append({AttributeId::FontKerning, QStringLiteral("none")});
    }
    return result;
}

// Every property except the direction of writing and custom ones (CSS Cascade 4 §3.2).
QVector<Longhand> allLonghands(const QString &value)
{
    if (!isWideKeyword(value))
        return {};
    QVector<Longhand> result;
    for (int id = int(firstProperty); id <= int(lastProperty); ++id)
        if (AttributeId(id) != AttributeId::Direction && AttributeId(id) != AttributeId::UnicodeBidi)
            result.append({AttributeId(id), value});
    return result;
}

} // namespace

QVector<Longhand> longhands(const QString &name, const QString &value)
{
    if (name == QLatin1String("font"))
        return fontLonghands(value);
    if (name == QLatin1String("font-variant-caps"))
        return {{AttributeId::FontVariant, value}};
    if (name == QLatin1String("vertical-align"))
        return alignmentLonghands(value);
    if (name == QLatin1String("white-space-collapse"))
        return whiteSpaceLonghands(value);
    if (name == QLatin1String("font-feature-settings"))
        return featureLonghands(value);
    if (name == allProperties)
        return allLonghands(value);
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
