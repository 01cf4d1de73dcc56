#include "grammar/mediaqueries.h"

#include "grammar/conditionalrules.h"
#include "grammar/csstext.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace Svg {

namespace {

/// Queries of a list that are evaluated.
constexpr int mostQueries = 100;

struct Feature
{
    QLatin1String name;
    QLatin1String value;
};

/// Features of the screen with keywords as values.
const Feature features[] = {
    {QLatin1String("prefers-color-scheme"), QLatin1String("light")},
    {QLatin1String("prefers-contrast"), QLatin1String("no-preference")},
    {QLatin1String("prefers-reduced-motion"), QLatin1String("no-preference")},
    {QLatin1String("prefers-reduced-transparency"), QLatin1String("no-preference")},
    {QLatin1String("forced-colors"), QLatin1String("none")},
    {QLatin1String("inverted-colors"), QLatin1String("none")},
    {QLatin1String("orientation"), QLatin1String("landscape")},
    {QLatin1String("scripting"), QLatin1String("none")},
    {QLatin1String("hover"), QLatin1String("none")},
    {QLatin1String("any-hover"), QLatin1String("none")},
    {QLatin1String("pointer"), QLatin1String("none")},
    {QLatin1String("any-pointer"), QLatin1String("none")},
    {QLatin1String("color-gamut"), QLatin1String("srgb")},
    {QLatin1String("dynamic-range"), QLatin1String("standard")},
    {QLatin1String("grid"), QLatin1String("0")},
    {QLatin1String("monochrome"), QLatin1String("0")},
    {QLatin1String("color-index"), QLatin1String("0")},
};

bool isSize(const QString &name)
{
    return name == QLatin1String("width") || name == QLatin1String("height") ||
           name == QLatin1String("device-width") || name == QLatin1String("device-height") ||
           name == QLatin1String("color") || name == QLatin1String("resolution");
}

Truth truth(bool yes)
{
    return yes ? Truth::Yes : Truth::No;
}

// A feature without a value holds if it is neither zero nor "none".
Truth bareFeature(const QString &name)
{
    if (isSize(name))
        return Truth::Yes;
    for (const Feature &feature : features) {
        if (name == feature.name)
            return truth(feature.value != QLatin1String("0") && feature.value != QLatin1String("none") &&
                         feature.value != QLatin1String("no-preference"));
    }
    return Truth::Unknown;
}

Truth valuedFeature(const QString &name, const QString &value)
{
    if (isSize(name.mid(4)) && name.startsWith(QLatin1String("min-")))
        return Truth::Yes;
    if (isSize(name) || (isSize(name.mid(4)) && name.startsWith(QLatin1String("max-"))))
        return Truth::No;
    for (const Feature &feature : features)
        if (name == feature.name)
            return truth(value == feature.value);
    return Truth::Unknown;
}

// "100px < width", "width >= 100px": the screen is larger than anything.
Truth rangedFeature(const QString &text)
{
    static const QRegularExpression sides(QStringLiteral("\\s*([<>]=?|=)\\s*"));
    const QStringList parts = text.split(sides);
    const int place = isSize(parts.constFirst()) ? 0 : 1;
    if (parts.size() > 3 || !isSize(parts.at(place)) || (parts.size() == 3 && place == 0))
        return Truth::Unknown;
    if (parts.size() == 3)
        return Truth::No;
    const bool asksForMore = text.contains(QLatin1Char(place == 0 ? '>' : '<'));
    return truth(asksForMore);
}

Truth screenHas(const QString &function, QStringView content)
{
    if (!function.isEmpty())
        return Truth::Unknown;
    const QString text = content.toString().simplified().toLower();
    const auto has = [&text](char c) { return text.contains(QLatin1Char(c)); };
    if (has('<') || has('>') || has('='))
        return rangedFeature(text);
    const int colon = text.indexOf(QLatin1Char(':'));
    if (colon < 0)
        return bareFeature(text);
    return valuedFeature(text.left(colon).trimmed(), text.mid(colon + 1).trimmed());
}

bool isWord(const QString &text, const char *word)
{
    return text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

// "not" before a type negates the whole query.
bool holdsForScreens(QStringView query)
{
    CssCursor cursor(query);
    cursor.skipSpace();
    CssCursor words = cursor;
    QString type = words.takeIdentifier();
    words.skipSpace();
    const bool turned = isWord(type, "not");
    if (turned || isWord(type, "only")) {
        type = words.takeIdentifier();
        words.skipSpace();
    }
    if (type.isEmpty() || isWord(type, "and") || isWord(type, "or"))
        return evaluateCondition({cursor.at, cursor.end}, screenHas) == Truth::Yes;
    std::optional<Truth> result = truth(isWord(type, "all") || isWord(type, "screen"));
    if (!words.atEnd()) {
        if (!isWord(words.takeIdentifier(), "and") || !words.skipSpace())
            return false;
        const std::optional<Truth> condition = evaluateCondition({words.at, words.end}, screenHas);
        if (!condition)
            return false;
        result = std::min(*result, *condition);
    }
    return turned ? *result == Truth::No : *result == Truth::Yes;
}

} // namespace

bool includesScreens(QStringView media)
{
    const QString text = withoutComments(media).trimmed();
    if (text.isEmpty())
        return true;
    CssCursor cursor(text);
    int left = mostQueries;
    do {
        const QChar *begin = cursor.at;
        cursor.skipTo(",");
        if (holdsForScreens(QStringView(begin, cursor.at).trimmed()))
            return true;
    } while (cursor.take(',') && --left > 0);
    return false;
}

} // namespace Svg
