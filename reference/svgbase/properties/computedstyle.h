#pragma once

#include "grammar/paints.h"
#include "properties/customproperties.h"
#include "properties/effectstyle.h"
#include "properties/textstyle.h"
#include "tree/attributes.h"

#include <QtCore/QSharedData>
#include <QtCore/QVector>
#include <QtGui/QColor>

#include <array>

namespace Svg {

enum class PaintStep : quint8 { Fill, Stroke, Markers };
using PaintOrder = std::array<PaintStep, 3>;

enum class TextAnchor : quint8 { Start, Middle, End };

/// The font properties of an element; sizes in user units.
struct FontStyle
{
    QString family;
    double size = 16;
    /// Of the document's root.
    double rootSize = 16;
    int weight = 400;
    bool italic = false;

    bool operator==(const FontStyle &other) const
    {
        return family == other.family && size == other.size && rootSize == other.rootSize &&
               weight == other.weight && italic == other.italic;
    }
};

/// Values that children don't inherit.
struct OwnStyle
{
    double opacity = 1;
    bool displayed = true;
    bool strokeScales = true;
    /// Geometry and transforms from style that replace the attributes of those names.
    QVector<Attribute> attributes;
    QColor stopColor = Qt::black;
    double stopOpacity = 1;
    /// Null for an element without clip path, mask, filter, blending and similar properties.
    QSharedDataPointer<EffectStyle> effects;
    /// Null for most parts of texts.
    QSharedDataPointer<InlineStyle> inlineText;

    bool isInitial() const
    {
        return opacity >= 1 && displayed && strokeScales && attributes.isEmpty() && stopColor == Qt::black &&
               stopOpacity >= 1 && !effects && !inlineText;
    }
};

/// The value of every property of one element after inheritance (SVG 1.1 §6.1). A default-constructed one has
/// initial values.
struct ComputedStyle : OwnStyle
{
    QColor color = Qt::black;
    Paint fill{Paint::Color, Qt::black, QString()};
    Paint stroke;
    double fillOpacity = 1;
    double strokeOpacity = 1;
    /// User units, never negative.
    double strokeWidth = 1;
    double strokeMiterlimit = 4;
    double strokeDashoffset = 0;
    /// User units, an even number of them; empty for a solid line.
    QVector<double> strokeDasharray;
    Qt::PenCapStyle strokeLinecap = Qt::FlatCap;
    Qt::PenJoinStyle strokeLinejoin = Qt::SvgMiterJoin;
    Qt::FillRule fillRule = Qt::WindingFill;
    TextAnchor textAnchor = TextAnchor::Start;
    bool visible = true;
    Qt::FillRule clipRule = Qt::WindingFill;
    /// Whether colours are mixed in linear light: in gradients and masks, and in filters.
    bool mixesLinear = false;
    PaintOrder paintOrder{{PaintStep::Fill, PaintStep::Stroke, PaintStep::Markers}};
    bool filtersLinear = true;
    /// Whether edges of shapes, and of text, are smoothed.
    bool smoothShapes = true;
    bool smoothText = true;
    /// Whether images are magnified with smooth transitions.
    bool smoothImages = true;
    /// Null without markers.
    QSharedDataPointer<MarkerStyle> markers;
    FontStyle font;
    CustomProperties custom;
    /// Null for a text that sets only its font.
    QSharedDataPointer<TextStyle> text;
};

/// A style shared by elements of equal style.
struct SharedStyle : QSharedData, ComputedStyle
{
    SharedStyle() = default;
    explicit SharedStyle(const ComputedStyle &style)
        : ComputedStyle(style)
    {
    }
};
using StylePointer = QExplicitlySharedDataPointer<const SharedStyle>;

/// A style of initial values, shared.
const StylePointer &initialStyle();

/// @name Records of a style, or their initial values when it has none
/// @{
const EffectStyle &effectStyleOf(const ComputedStyle &style);
const InlineStyle &inlineStyleOf(const ComputedStyle &style);
const MarkerStyle &markerStyleOf(const ComputedStyle &style);
const TextStyle &textStyleOf(const ComputedStyle &style);
/// @}

/// Whether two styles give an element of the same attributes the same outlines. False is possible for equal
/// outlines, too.
bool isLaidOutAlike(const ComputedStyle &a, const ComputedStyle &b);

/// The initial style of a child: inherited values of its parent, and initial values for the rest.
ComputedStyle inheritedStyle(const ComputedStyle &parent);

/// Whether a style asks for lines along its text.
bool asksForLines(const ComputedStyle &style);
/// Decoration lines of a group run along all text in it, painted with the group's paint (CSS Text Decoration 3 §2).
/// False when `Limits::decoratingGroups` already apply.
bool decorateTextBelow(ComputedStyle &group);

} // namespace Svg
