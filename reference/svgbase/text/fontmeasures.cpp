#include "text/fontmeasures.h"

#include "properties/computedstyle.h"
#include "text/fonts.h"
#include "text/fonttables.h"

#include <QtGui/QRawFont>

namespace Svg {

namespace {

// Offsets of values in the tables of a font (OpenType, "head", "hhea", "OS/2" and "post").
constexpr int unitsPerEmOffset = 18;
constexpr int ascenderOffset = 4;
constexpr int descenderOffset = 6;
constexpr int subscriptOffset = 16;
constexpr int superscriptOffset = 24;
constexpr int strikeoutThickness = 26;
constexpr int strikeoutPosition = 28;
constexpr int underlinePosition = 8;
constexpr int underlineThickness = 10;

// Shares of the font size for fonts without these values.
constexpr double usualSubscript = 0.2;
constexpr double usualSuperscript = 0.4;
constexpr double usualUnderline = -0.1;
constexpr double usualThickness = 0.05;

/// For fonts without these values.
constexpr double usualUnitsPerEm = 1000;

// Shares of the ascent (CSS Inline 3, appendix A).
constexpr double hangingShare = 0.8;
constexpr double mathematicalShare = 0.5;

double tableValue(const QByteArray &table, int offset, double unit, double otherwise)
{
    const std::optional<qint16> value = tableNumber<qint16>(table, offset);
    return value ? *value * unit : otherwise;
}

} // namespace

// For fonts without outlines Qt gives the pixels of a bitmap.
double unitsPerEm(const QRawFont &font)
{
    const int units = tableNumber<quint16>(font.fontTable("head"), unitsPerEmOffset).value_or(0);
    return units > 0 ? units : usualUnitsPerEm;
}

FontMeasures fontMeasures(const ComputedStyle &style)
{
    return fontMeasures(QRawFont::fromFont(outlineFont(style.font, textStyleOf(style))), style.font.size);
}

FontMeasures fontMeasures(const QRawFont &font, double size)
{
    const double scale = size / outlineFontSize;
    const double unit = size / unitsPerEm(font);
    const QByteArray hhea = font.fontTable("hhea");
    const QByteArray os2 = font.fontTable("OS/2");
    const QByteArray post = font.fontTable("post");
    FontMeasures measures;
    // The font class rounds to pixels.
    measures.ascent = tableValue(hhea, ascenderOffset, unit, font.ascent() * scale);
    measures.descent = tableValue(hhea, descenderOffset, unit, -font.descent() * scale);
    measures.xHeight = font.xHeight() * scale;
    measures.subscript = -tableValue(os2, subscriptOffset, unit, usualSubscript * size);
    measures.superscript = tableValue(os2, superscriptOffset, unit, usualSuperscript * size);
    measures.thickness = tableValue(post, underlineThickness, unit, usualThickness * size);
    if (!(measures.thickness > 0))
        measures.thickness = usualThickness * size;
    // Fonts give the upper edge of their lines.
    measures.lineThrough = tableValue(os2, strikeoutPosition, unit, measures.xHeight / 2) -
                           tableValue(os2, strikeoutThickness, unit, 0) / 2;
    measures.underline = tableValue(post, underlinePosition, unit, usualUnderline * size) - measures.thickness / 2;
    return measures;
}

double baselineHeight(Baseline baseline, const FontMeasures &measures)
{
    switch (baseline) {
    case Baseline::Auto:
    case Baseline::Alphabetic:
        break;
    case Baseline::Central:
        return (measures.ascent + measures.descent) / 2;
    case Baseline::Hanging:
        return measures.ascent * hangingShare;
    case Baseline::Mathematical:
        return measures.ascent * mathematicalShare;
    case Baseline::Middle:
        return measures.xHeight / 2;
    case Baseline::TextAfterEdge:
        return measures.descent;
    case Baseline::TextBeforeEdge:
        return measures.ascent;
    }
    return 0;
}

} // namespace Svg
