#include "grammar/colors.h"

#include "grammar/numbers.h"

#include <QtCore/QtMath>

#include <cmath>

namespace Svg {

namespace {

constexpr int maximumComponents = 4;

struct Component
{
    double value = 0;
    bool percent = false;
};

struct ColorFunction
{
    QLatin1String name;
    Component components[maximumComponents];
    int count = 0;
};

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
    if (count == 3 || count == 4) {
        for (int i = 0; i < count; ++i)
            channels[i] = digits[i] * 17;
    } else if (count == 6 || count == 8) {
        for (int i = 0; i < count / 2; ++i)
            channels[i] = digits[2 * i] * 16 + digits[2 * i + 1];
    } else {
        return std::nullopt;
    }
    return QColor(channels[0], channels[1], channels[2], channels[3]);
}

// Hues may have a unit (CSS Color 4 §4.2).
bool takeAngleUnit(Cursor &cursor, double *value)
{
    const QLatin1String unit = cursor.takeWord();
    const auto is = [unit](const char *name) {
        return unit.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    };
    if (is("turn"))
        *value *= 360;
    else if (is("grad"))
        *value *= 0.9;
    else if (is("rad"))
        *value = qRadiansToDegrees(*value);
    else
        return unit.isEmpty() || is("deg");
    return true;
}

bool readComponent(Cursor &cursor, Component *component)
{
    if (!readNumber(cursor, &component->value))
        return false;
    component->percent = cursor.take('%');
    return component->percent || takeAngleUnit(cursor, &component->value);
}

// Components are separated by commas or spaces, the alpha also by a slash.
bool readFunction(Cursor cursor, ColorFunction *function)
{
    function->name = cursor.takeWord();
    if (!cursor.take('('))
        return false;
    cursor.skipSpace();
    while (function->count < maximumComponents) {
        if (!readComponent(cursor, &function->components[function->count]))
            return false;
        ++function->count;
        cursor.skipSpace();
        if (cursor.take(')')) {
            cursor.skipSpace();
            return cursor.atEnd() && function->count >= 3;
        }
        if (!cursor.take('/'))
            cursor.skipCommaSpace();
        cursor.skipSpace();
    }
    return false;
}

int channel(const Component &component)
{
    const double value = component.percent ? component.value * 255 / 100 : component.value;
    return int(std::lround(qBound(0.0, value, 255.0)));
}

// Saturation and lightness are percentages with or without the sign (CSS Color 4 §7).
double percentage(const Component &component)
{
    return qBound(0.0, component.value / 100, 1.0);
}

double fraction(const Component &component)
{
    return qBound(0.0, component.percent ? component.value / 100 : component.value, 1.0);
}

std::optional<QColor> functionColor(const Cursor &cursor)
{
    ColorFunction function;
    if (!readFunction(cursor, &function))
        return std::nullopt;
    const Component *c = function.components;
    const double alpha = function.count == 4 ? fraction(c[3]) : 1;
    const QString name = QString(function.name).toLower();
    if (name == QLatin1String("rgb") || name == QLatin1String("rgba")) {
        QColor color(channel(c[0]), channel(c[1]), channel(c[2]));
        color.setAlphaF(alpha);
        return color;
    }
    if (name == QLatin1String("hsl") || name == QLatin1String("hsla")) {
        const double turn = c[0].value / 360 - std::floor(c[0].value / 360);
        return QColor::fromHslF(qBound(0.0, turn, 1.0), percentage(c[1]), percentage(c[2]), alpha).toRgb();
    }
    return std::nullopt;
}

struct SystemColor
{
    QLatin1String name;
    QRgb color;
};

/// What documents take from the user's surroundings, as of a plain page of black on white (CSS Color 4 §6.2; the
/// older names are mapped as its appendix A says).
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

// A colour of a profile stands behind the one that screens use (SVG 1.1 §11.2).
QStringView withoutProfileColor(QStringView text)
{
    const qsizetype profile = text.indexOf(QLatin1String("icc-color("));
    return profile > 0 ? text.left(profile).trimmed() : text;
}

std::optional<QColor> namedColor(QStringView name)
{
    if (name.compare(QLatin1String("transparent"), Qt::CaseInsensitive) == 0)
        return QColor(0, 0, 0, 0);
    for (const SystemColor &known : systemColors) {
        if (name.compare(known.name, Qt::CaseInsensitive) == 0)
            return QColor::fromRgba(known.color);
    }
    // Qt's list of names is SVG's.
    const QColor color(name.toString());
    if (!color.isValid())
        return std::nullopt;
    return color;
}

} // namespace

std::optional<QColor> parseColor(QStringView text)
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
    return afterName.atEnd() ? namedColor(trimmed) : functionColor(cursor);
}

std::optional<double> parseOpacity(QStringView text)
{
    const Latin1Text bytes(text);
    Cursor cursor = bytes.cursor();
    Component component;
    cursor.skipSpace();
    if (!readComponent(cursor, &component))
        return std::nullopt;
    cursor.skipSpace();
    if (!cursor.atEnd())
        return std::nullopt;
    return fraction(component);
}

} // namespace Svg
