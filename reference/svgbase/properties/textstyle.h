#pragma once

#include <QtCore/QSharedData>
#include <QtCore/QVector>
#include <QtGui/QColor>

#include <memory>
#include <optional>

namespace Svg {

struct ComputedStyle;

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

/// Which characters stand upright on a vertical line (CSS Writing Modes 3 §5.1).
enum class TextOrientation : quint8 { Mixed, Upright, Sideways };

/// How spaces of the text are treated; `Unset` leaves it to "xml:space".
enum class WhiteSpace : quint8 { Unset, Collapse, Preserve };

/// How capitals of a font stand for letters (CSS Fonts 4 §6.6).
enum class SmallCaps : quint8 { None, OfSmallLetters, OfAllLetters };

/// Transformation of letters before they are set (CSS Text 3 §2.1).
enum class TextTransform : quint8 { None, Uppercase, Lowercase, Capitalize };

/// Which way lines of text go (CSS Writing Modes 4 §3.2); `SidewaysLeft` goes up.
enum class WritingMode : quint8 { Horizontal, Vertical, SidewaysRight, SidewaysLeft };

/// How a line that decorates text looks (CSS Text Decoration 3 §2.2).
enum class LineStyle : quint8 { Solid, Double, Dotted, Dashed, Wavy };

/// Inherited properties that few texts have; user units.
struct TextStyle : QSharedData
{
    double letterSpacing = 0;
    double wordSpacing = 0;
    /// Added to the letter spacing in the place of the font's kerning; nothing where the font kerns.
    std::optional<double> kerningSpacing;
    /// Width of the letters in percent, as `QFont` counts it.
    int stretch = 100;
    /// The x-height as a share of the font size that a font is scaled to; 0 leaves fonts as they are.
    double sizeAdjust = 0;
    /// Distance of lines as a share of the font size, or in user units; 0 leaves it to the font.
    double lineHeightShare = 0;
    double lineHeight = 0;
    /// How far the upper edge of an underline lies below the baseline, user units; nothing leaves it to the font.
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
    /// Styles of groups around the text that ask for lines, outermost first.
    QVector<std::shared_ptr<const ComputedStyle>> decorations;
    Baseline dominantBaseline = Baseline::Auto;

    bool fontKerns() const { return kerning && !kerningSpacing; }
    /// Room that follows each letter, user units.
    double spacing() const { return letterSpacing + kerningSpacing.value_or(0); }
};

enum class UnicodeBidi : quint8 { Normal, Embed, Isolate, Plaintext, Override, IsolateOverride };

/// Properties of one part of a text that its children don't inherit.
struct InlineStyle : QSharedData
{
    enum Shift { Length, Sub, Super };

    /// How far the part is raised, user units, unless its font says.
    double baselineShift = 0;
    Shift shift = Length;
    Baseline alignmentBaseline = Baseline::Auto;
    /// Where lines of a text are broken, user units; 0 for lines without end.
    double inlineSize = 0;
    UnicodeBidi unicodeBidi = UnicodeBidi::Normal;
    bool underline = false;
    bool overline = false;
    bool lineThrough = false;
    LineStyle lineStyle = LineStyle::Solid;
    /// Of the lines, where it is not the paint of the part.
    std::optional<QColor> lineColor;
    /// User units, unless the font says.
    std::optional<double> lineThickness;
};

} // namespace Svg
