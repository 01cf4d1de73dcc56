#pragma once

#include <QtCore/QString>

namespace Svg {

/// Kind of an element.
enum class ElementKind : quint8 {
    /// The root.
    Document,
    Group,
    Switch,
    /// An "svg" inside another.
    NestedSvg,
    Symbol,
    Defs,
    Use,
    Rect,
    Circle,
    Ellipse,
    Line,
    Polyline,
    Polygon,
    Path,
    Text,
    Tspan,
    TextPath,
    /// A deprecated way to show the characters of another element.
    Tref,
    /// Character data of a text; not an element.
    Characters,
    Image,
    LinearGradient,
    RadialGradient,
    Stop,
    Animate,
    AnimateColor,
    AnimateMotion,
    AnimateTransform,
    /// The "set" element.
    SetValue,
    /// The "mpath" of an "animateMotion".
    MotionPath,
    ClipPath,
    Mask,
    Marker,
    Filter,
    // Filter primitives and their parts.
    FeBlend,
    FeColorMatrix,
    FeComponentTransfer,
    FeComposite,
    FeConvolveMatrix,
    FeDiffuseLighting,
    FeDisplacementMap,
    FeDropShadow,
    FeFlood,
    FeGaussianBlur,
    FeImage,
    FeMerge,
    FeMergeNode,
    FeMorphology,
    FeOffset,
    FeSpecularLighting,
    FeTile,
    FeTurbulence,
    FeFuncR,
    FeFuncG,
    FeFuncB,
    FeFuncA,
    FeDistantLight,
    FePointLight,
    FeSpotLight,
    Pattern,
    /// "title" and "desc".
    Description,
    /// A style sheet.
    Style,
    // A font inside the document and its parts.
    Font,
    FontFace,
    Glyph,
    MissingGlyph,
    HorizontalKerning,
    VerticalKerning,
    /// Everything else; kept, never drawn.
    Other
};

ElementKind elementKind(QStringView localName);
/// The name of the kind's elements, the first of several; empty for `Characters` and `Other`.
QLatin1String elementName(ElementKind kind);
/// Whether the kind has children like a structure node.
bool isStructure(ElementKind kind);
/// Whether the kind is drawn directly.
bool isDrawable(ElementKind kind);
/// Drawable and with a geometry of its own.
bool hasGeometry(ElementKind kind);
/// Whether the kind is a part of a text with a style of its own.
bool isTextPart(ElementKind kind);
/// Whether the kind changes an attribute of another element over time.
bool isAnimation(ElementKind kind);
/// Whether other elements refer to the kind for their paint.
bool isPaintServerPart(ElementKind kind);
/// Whether the kind only affects texts set in its font.
bool isFontPart(ElementKind kind);
/// Whether the kind only affects elements that refer to it: clip paths, masks, markers, filters and their parts.
bool isEffectPart(ElementKind kind);

} // namespace Svg
