#include "grammar/colormixing.h"

#include "grammar/colorspaces.h"
#include "grammar/numbers.h"

#include <QtCore/QtNumeric>

#include <cmath>

namespace Svg {

namespace {

/// Deepest nesting of colours.
constexpr int deepestColor = 8;

enum class HueWay { Shorter, Longer, Increasing, Decreasing };

struct MixedColor
{
    QColor color;
    /// Share of the mixture, 0 to 1.
    std::optional<double> share;
};

// Skips to the closing bracket; the end of the text closes it, too.
void skipBrackets(Cursor &cursor)
{
    int open = 0;
    while (!cursor.atEnd()) {
        const char c = *cursor.at++;
        if (c == '(')
            ++open;
        if (c == ')' && --open == 0)
            return;
    }
}

bool takeShare(Cursor &cursor, MixedColor *mixed)
{
    Cursor probe = cursor;
    double percent = 0;
    if (!readNumber(probe, &percent))
        return true;
    if (!probe.take('%') || percent < 0 || percent > 100 || mixed->share)
        return false;
    mixed->share = percent / 100;
    cursor = probe;
    cursor.skipSpace();
    return true;
}

// The share may precede or follow its colour.
bool readMixed(Cursor &cursor, const ColorContext &context, MixedColor *mixed)
{
    cursor.skipSpace();
    if (!takeShare(cursor, mixed))
        return false;
    const std::optional<QColor> color = readInnerColor(cursor, context);
    cursor.skipSpace();
    if (!color || !takeShare(cursor, mixed))
        return false;
    mixed->color = *color;
    return true;
}

bool takeHueWay(Cursor &cursor, HueWay *way)
{
    const QString word = QString(cursor.takeWord()).toLower();
    if (word.isEmpty())
        return true;
    if (word == QLatin1String("longer"))
        *way = HueWay::Longer;
    else if (word == QLatin1String("increasing"))
        *way = HueWay::Increasing;
    else if (word == QLatin1String("decreasing"))
        *way = HueWay::Decreasing;
    else if (word != QLatin1String("shorter"))
        return false;
    cursor.skipSpace();
    return cursor.takeWord().compare(QLatin1String("hue"), Qt::CaseInsensitive) == 0;
}

// Change of hue from one to the other, degrees (CSS Color 4 §12.4).
double turn(double from, double to, HueWay way)
{
    const double forward = std::fmod(std::fmod(to - from, 360) + 360, 360);
    switch (way) {
    case HueWay::Increasing:
        return forward;
    case HueWay::Decreasing:
        return forward > 0 ? forward - 360 : 0;
    case HueWay::Longer:
        return forward > 0 && forward < 180 ? forward - 360 : forward;
    case HueWay::Shorter:
        break;
    }
    return forward > 180 ? forward - 360 : forward;
}

// A missing hue is replaced by the other's.
double mixedHue(double from, double to, double share, HueWay way)
{
    if (qIsNaN(from))
        return qIsNaN(to) ? 0 : to;
    return qIsNaN(to) ? from : from + turn(from, to, way) * share;
}

enum class HuePlace { None, First, Last };

HuePlace huePlace(const QString &space)
{
    if (space == QLatin1String("hsl") || space == QLatin1String("hwb"))
        return HuePlace::First;
    return space.endsWith(QLatin1String("lch")) ? HuePlace::Last : HuePlace::None;
}

// Components are premultiplied by their colour's alpha (CSS Color 4 §12.3).
std::optional<QColor> mixture(const QString &space, HueWay way, const MixedColor &first, const MixedColor &second,
                              double share)
{
    const std::optional<ColorComponents> a = componentsIn(space, first.color);
    const std::optional<ColorComponents> b = componentsIn(space, second.color);
    if (!a || !b)
        return std::nullopt;
    const double alpha = first.color.alphaF() * (1 - share) + second.color.alphaF() * share;
    const auto mixed = [&](double from, double to) {
        const double sum = from * first.color.alphaF() * (1 - share) + to * second.color.alphaF() * share;
        return alpha > 0 ? sum / alpha : 0;
    };
    const HuePlace place = huePlace(space);
    const ColorComponents result{place == HuePlace::First ? mixedHue(a->a, b->a, share, way) : mixed(a->a, b->a),
                                 mixed(a->b, b->b),
                                 place == HuePlace::Last ? mixedHue(a->c, b->c, share, way) : mixed(a->c, b->c)};
    std::optional<QColor> color = colorIn(space, result);
    if (color)
        color->setAlphaF(qBound(0.0, alpha, 1.0));
    return color;
}

// Omitted shares complete the sum; a sum below 100 % makes the mixture more transparent.
std::optional<QColor> mixtureOfShares(const QString &space, HueWay way, const MixedColor &first,
                                      const MixedColor &second)
{
    const double own = first.share.value_or(second.share ? 1 - *second.share : 0.5);
    const double other = second.share.value_or(1 - own);
    const double sum = own + other;
    if (!(sum > 0))
        return std::nullopt;
    std::optional<QColor> color = mixture(space, way, first, second, other / sum);
    if (color && sum < 1)
        color->setAlphaF(color->alphaF() * sum);
    return color;
}

} // namespace

QString takeSpaceName(Cursor &cursor)
{
    const char *begin = cursor.at;
    while (isLetter(cursor.peek()) || isDigit(cursor.peek()) || cursor.peek() == '-')
        ++cursor.at;
    QString name = QString::fromLatin1(begin, int(cursor.at - begin)).toLower();
    cursor.skipSpace();
    return name;
}

std::optional<QColor> readInnerColor(Cursor &cursor, const ColorContext &context)
{
    if (context.depth >= deepestColor)
        return std::nullopt;
    const char *begin = cursor.at;
    cursor.take('#');
    while (isLetter(cursor.peek()) || isDigit(cursor.peek()) || cursor.peek() == '-')
        ++cursor.at;
    if (cursor.peek() == '(')
        skipBrackets(cursor);
    const QString text = QString::fromLatin1(begin, int(cursor.at - begin));
    if (text.compare(QLatin1String("currentColor"), Qt::CaseInsensitive) == 0)
        return context.current.isValid() ? std::make_optional(context.current) : std::nullopt;
    return context.parse(text, {context.current, context.depth + 1, context.parse});
}

std::optional<QColor> readColorMix(Cursor &cursor, const ColorContext &context)
{
    cursor.skipSpace();
    if (cursor.takeWord().compare(QLatin1String("in"), Qt::CaseInsensitive) != 0)
        return std::nullopt;
    cursor.skipSpace();
    const QString space = takeSpaceName(cursor);
    HueWay way = HueWay::Shorter;
    MixedColor first;
    MixedColor second;
    if (!takeHueWay(cursor, &way) || !cursor.skipCommaSpace() || !readMixed(cursor, context, &first) ||
        !cursor.skipCommaSpace() || !readMixed(cursor, context, &second))
        return std::nullopt;
    if (!cursor.take(')') && !cursor.atEnd())
        return std::nullopt;
    return mixtureOfShares(space, way, first, second);
}

} // namespace Svg
