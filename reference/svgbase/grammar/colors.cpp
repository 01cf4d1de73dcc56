#include "grammar/colors.h"

#include "grammar/colorfunctions.h"
#include "grammar/lengths.h"
#include "grammar/numbers.h"

namespace Svg {

namespace {

int hexDigit(char c)
{
    if (isDigit(c))
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

std::optional<QColor> hexColor(Cursor cursor)
{
    int digits[8];
    int count = 0;
    for (; !cursor.atEnd(); ++cursor.at) {
        const int digit = hexDigit(*cursor.at);
        if (digit < 0 || count == 8)
            return std::nullopt;
        digits[count++] = digit;
    }
    int channels[4] = {0, 0, 0, 255};
    if (count == 3 || count == 4)
        for (int i = 0; i < count; ++i)
            channels[i] = digits[i] * 17;
    else if (count == 6 || count == 8)
        for (int i = 0; i < count / 2; ++i)
            channels[i] = digits[2 * i] * 16 + digits[2 * i + 1];
    else
        return std::nullopt;
    return QColor(channels[0], channels[1], channels[2], channels[3]);
}

struct SystemColor
{
    QLatin1String name;
    QRgb color;
};

/// System colours of a plain page of black on white (CSS Color 4 §6.2; deprecated names are mapped as in its
/// appendix A).
const SystemColor systemColors[] = {
    {QLatin1String("accentcolor"), 0xff0078d7},
    {QLatin1String("accentcolortext"), 0xffffffff},
    {QLatin1String("activeborder"), 0xff000000},
    {QLatin1String("activecaption"), 0xffffffff},
    {QLatin1String("activetext"), 0xffff0000},
    {QLatin1String("appworkspace"), 0xffffffff},
    {QLatin1String("background"), 0xffffffff},
    {QLatin1String("buttonborder"), 0xff000000},
    {QLatin1String("buttonface"), 0xffefefef},
    {QLatin1String("buttonhighlight"), 0xffefefef},
    {QLatin1String("buttonshadow"), 0xffefefef},
    {QLatin1String("buttontext"), 0xff000000},
    {QLatin1String("canvas"), 0xffffffff},
    {QLatin1String("canvastext"), 0xff000000},
    {QLatin1String("captiontext"), 0xff000000},
    {QLatin1String("field"), 0xffffffff},
    {QLatin1String("fieldtext"), 0xff000000},
    {QLatin1String("graytext"), 0xff808080},
    {QLatin1String("highlight"), 0xffb5d5ff},
    {QLatin1String("highlighttext"), 0xff000000},
    {QLatin1String("inactiveborder"), 0xff000000},
    {QLatin1String("inactivecaption"), 0xffffffff},
    {QLatin1String("inactivecaptiontext"), 0xff808080},
    {QLatin1String("infobackground"), 0xffffffff},
    {QLatin1String("infotext"), 0xff000000},
    {QLatin1String("linktext"), 0xff0000ee},
    {QLatin1String("mark"), 0xffffff00},
    {QLatin1String("marktext"), 0xff000000},
    {QLatin1String("menu"), 0xffffffff},
    {QLatin1String("menutext"), 0xff000000},
    {QLatin1String("scrollbar"), 0xffffffff},
    {QLatin1String("selecteditem"), 0xff0078d7},
    {QLatin1String("selecteditemtext"), 0xffffffff},
    {QLatin1String("threeddarkshadow"), 0xff000000},
    {QLatin1String("threedface"), 0xffefefef},
    {QLatin1String("threedhighlight"), 0xff000000},
    {QLatin1String("threedlightshadow"), 0xff000000},
    {QLatin1String("threedshadow"), 0xff000000},
    {QLatin1String("visitedtext"), 0xff551a8b},
    {QLatin1String("window"), 0xffffffff},
    {QLatin1String("windowframe"), 0xff000000},
    {QLatin1String("windowtext"), 0xff000000},
};

// A colour of a profile follows the one for screens (SVG 1.1 §11.2).
QStringView withoutProfileColor(QStringView text)
{
    const qsizetype profile = text.indexOf(QLatin1String("icc-color("));
    return profile > 0 ? text.left(profile).trimmed() : text;
}

std::optional<QColor> namedColor(QStringView name)
{
    if (name.compare(QLatin1String("transparent"), Qt::CaseInsensitive) == 0)
        return QColor(0, 0, 0, 0);
    for (const SystemColor &known : systemColors)
        if (name.compare(known.name, Qt::CaseInsensitive) == 0)
            return QColor::fromRgba(known.color);
    if (name.compare(QLatin1String("rebeccapurple"), Qt::CaseInsensitive) == 0)
        return QColor(0x66, 0x33, 0x99);
    // Qt's list of names is that of SVG, which lacks the one above.
    const QColor color(name.toString());
    if (!color.isValid())
        return std::nullopt;
    return color;
}

// Numbers may be calculated (CSS Values 4 §10).
std::optional<double> calculatedOpacity(QStringView text)
{
    const std::optional<Length> result = parseLength(text);
    const bool percent = result && result->unit == Unit::Percent;
    if (!result || result->deferred || result->plusEm != 0 ||
        (percent ? result->plusUser != 0 : result->unit != Unit::User))
        return std::nullopt;
    return percent ? result->value / 100 : result->value + result->plusUser;
}

} // namespace

std::optional<QColor> parseColor(QStringView text, const ColorContext &context)
{
    const QStringView trimmed = withoutProfileColor(text.trimmed());
    const Latin1Text bytes(trimmed);
    Cursor cursor = bytes.cursor();
    if (cursor.take('#'))
        return hexColor(cursor);
    Cursor afterName = cursor;
    afterName.takeWord();
    if (afterName.at == cursor.at)
        return std::nullopt;
    if (afterName.atEnd())
        return namedColor(trimmed);
    return functionColor(cursor, {context.current, context.depth, parseColor});
}

std::optional<double> parseOpacity(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    if (!trimmed.isEmpty() && trimmed.front().isLetter()) {
        const std::optional<double> result = calculatedOpacity(text);
        return result ? std::optional<double>(qBound(0.0, *result, 1.0)) : std::nullopt;
    }
    const Latin1Text bytes(text);
    Cursor cursor = bytes.cursor();
    double value = 0;
    cursor.skipSpace();
    if (!readNumber(cursor, &value))
        return std::nullopt;
    if (cursor.take('%'))
        value /= 100;
    cursor.skipSpace();
    if (!cursor.atEnd())
        return std::nullopt;
    return qBound(0.0, value, 1.0);
}

} // namespace Svg
