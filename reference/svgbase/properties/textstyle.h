#pragma once

#include <QtCore/QSharedData>
#include <QtCore/QVector>
#include <QtGui/QColor>

#include <memory>
#include <optional>

namespace Svg {

struct ComputedStyle;

/// Which line of the glyphs lies on the baseline (CSS Inline 3 §4).
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

/// Which characters are upright on a vertical line (CSS Writing Modes 3 §5.1).
enum class TextOrientation : quint8 { Mixed, Upright, Sideways };

/// Treatment of white space; `Unset` leaves it to "xml:space".
enum class WhiteSpace : quint8 { Unset, Collapse, Preserve };

/// How capitals of a font represent letters (CSS Fonts 4 §6.6).
enum class SmallCaps : quint8 { None, OfSmallLetters, OfAllLetters };

/// Transformation of letters before layout (CSS Text 3 §2.1).
enum class TextTransform : quint8 { None, Uppercase, Lowercase, Capitalize };

/// Direction of lines of text (CSS Writing Modes 4 §3.2); `SidewaysLeft` goes up.
enum class WritingMode : quint8 { Horizontal, Vertical, SidewaysRight, SidewaysLeft };

/// Style of a decoration line (CSS Text Decoration 3 §2.2).
enum class LineStyle : quint8 { Solid, Double, Dotted, Dashed, Wavy };

/// Inherited properties that few texts have; user units.
struct TextStyle : QSharedData
{
    double letterSpacing = 0;
    double wordSpacing = 0;
    /// Added to the letter spacing instead of the font's kerning; empty where the font kerns.
    std::optional<double> kerningSpacing;
    /// Width of the letters in percent, as in `QFont`.
    int stretch = 100;
    /// The x-height that fonts are scaled to, as a share of the font size; 0 leaves fonts unscaled.
    double sizeAdjust = 0;
    /// Distance of lines as a share of the font size, or in user units; 0 leaves it to the font.
    double lineHeightShare = 0;
    double lineHeight = 0;
    /// Distance of the upper edge of an underline below the baseline, user units; empty leaves it to the font.
    std::optional<double> underlineOffset;
    /// Whether underlines go below all letters.
    bool underlineUnder = false;
    SmallCaps smallCaps = SmallCaps::None;
    TextTransform transform = TextTransform::None;
    /// Whether the font may kern, unless a distance is given above.
    bool kerning = true;
    bool ligatures = true;
    bool rightToLeft = false;
    WritingMode writingMode = WritingMode::Horizontal;
    TextOrientation orientation = TextOrientation::Mixed;
    WhiteSpace whiteSpace = WhiteSpace::Unset;
    /// Styles of groups around the text with decoration lines, outermost first.
    QVector<std::shared_ptr<const ComputedStyle>> decorations;
    Baseline dominantBaseline = Baseline::Auto;

    bool fontKerns() const { return kerning && !kerningSpacing; }
    /// Space after each letter, user units.
    double spacing() const { return letterSpacing + kerningSpacing.value_or(0); }
};

enum class UnicodeBidi : quint8 { Normal, Embed, Isolate, Plaintext, Override, IsolateOverride };

/// Properties of one part of a text that its children don't inherit.
struct InlineStyle : QSharedData
{
    enum Shift { Length, Sub, Super };

    /// Rise of the part, user units, unless the font decides.
    double baselineShift = 0;
    Shift shift = Length;
    Baseline alignmentBaseline = Baseline::Auto;
    /// Width at which lines are broken, user units; 0 for lines of any length.
    double inlineSize = 0;
    UnicodeBidi unicodeBidi = UnicodeBidi::Normal;
    bool underline = false;
    bool overline = false;
    bool lineThrough = false;
    LineStyle lineStyle = LineStyle::Solid;
    /// Of the lines, unless it is the paint of the part.
    std::optional<QColor> lineColor;
    /// User units, unless the font decides.
    std::optional<double> lineThickness;
};

} // namespace Svg
