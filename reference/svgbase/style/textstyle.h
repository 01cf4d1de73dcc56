#pragma once

#include <QtCore/QSharedData>

namespace Svg {

/// Where the line runs along the glyphs (CSS Inline 3 §4).
enum class Baseline : quint8 {
    Auto,
    Alphabetic,
    Central,
    Hanging,
    Mathematical,
    Middle,
    TextAfterEdge,
    TextBeforeEdge
};

/// How spaces of the text are treated; `Unset` leaves it to "xml:space".
enum class WhiteSpace : quint8 { Unset, Collapse, Preserve };

/// Inherited properties that few texts have; user units.
struct TextStyle : QSharedData
{
    double letterSpacing = 0;
    double wordSpacing = 0;
    /// Width of the letters in percent, as `QFont` counts it.
    int stretch = 100;
    bool smallCaps = false;
    bool kerning = true;
    bool rightToLeft = false;
    bool vertical = false;
    WhiteSpace whiteSpace = WhiteSpace::Unset;
    Baseline dominantBaseline = Baseline::Auto;
};

enum class UnicodeBidi : quint8 { Normal, Embed, Override };

/// Properties of one part of a text that its children don't inherit.
struct InlineStyle : QSharedData
{
    enum Shift { Length, Sub, Super };

    /// How far the part is raised, user units, unless its font says.
    double baselineShift = 0;
    Shift shift = Length;
    Baseline alignmentBaseline = Baseline::Auto;
    UnicodeBidi unicodeBidi = UnicodeBidi::Normal;
    bool underline = false;
    bool overline = false;
    bool lineThrough = false;
};

} // namespace Svg
