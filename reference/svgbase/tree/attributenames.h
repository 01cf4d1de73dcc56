#pragma once

/// @file
/// The names that the library interprets, a line each: its AttributeId and how it stands in a text.

// clang-format off

/// Properties, as presentation attributes or in a style attribute.
#define SVG_STYLE_PROPERTIES(NAME) \
    NAME(Color, "color") \
    NAME(Display, "display") \
    NAME(Fill, "fill") \
    NAME(FillOpacity, "fill-opacity") \
    NAME(FillRule, "fill-rule") \
    NAME(FontFamily, "font-family") \
    NAME(FontSize, "font-size") \
    NAME(FontStyle, "font-style") \
    NAME(FontWeight, "font-weight") \
    NAME(Opacity, "opacity") \
    NAME(PaintOrder, "paint-order") \
    NAME(StopColor, "stop-color") \
    NAME(StopOpacity, "stop-opacity") \
    NAME(Stroke, "stroke") \
    NAME(StrokeDasharray, "stroke-dasharray") \
    NAME(StrokeDashoffset, "stroke-dashoffset") \
    NAME(StrokeLinecap, "stroke-linecap") \
    NAME(StrokeLinejoin, "stroke-linejoin") \
    NAME(StrokeMiterlimit, "stroke-miterlimit") \
    NAME(StrokeOpacity, "stroke-opacity") \
    NAME(StrokeWidth, "stroke-width") \
    NAME(TextAnchor, "text-anchor") \
    NAME(VectorEffect, "vector-effect") \
    NAME(Visibility, "visibility")

/// Properties of effects.
#define SVG_EFFECT_PROPERTIES(NAME) \
    NAME(Clip, "clip") \
    NAME(ClipPath, "clip-path") \
    NAME(ClipRule, "clip-rule") \
    NAME(ColorInterpolation, "color-interpolation") \
    NAME(ColorInterpolationFilters, "color-interpolation-filters") \
    NAME(Filter, "filter") \
    NAME(FloodColor, "flood-color") \
    NAME(FloodOpacity, "flood-opacity") \
    NAME(ImageRendering, "image-rendering") \
    NAME(Isolation, "isolation") \
    NAME(LightingColor, "lighting-color") \
    NAME(Marker, "marker") \
    NAME(MarkerEnd, "marker-end") \
    NAME(MarkerMid, "marker-mid") \
    NAME(MarkerStart, "marker-start") \
    NAME(Mask, "mask") \
    NAME(MaskType, "mask-type") \
    NAME(MixBlendMode, "mix-blend-mode") \
    NAME(Overflow, "overflow") \
    NAME(ShapeRendering, "shape-rendering") \
    NAME(TextRendering, "text-rendering")

/// Properties of text.
#define SVG_TEXT_PROPERTIES(NAME) \
    NAME(AlignmentBaseline, "alignment-baseline") \
    NAME(BaselineShift, "baseline-shift") \
    NAME(Direction, "direction") \
    NAME(DominantBaseline, "dominant-baseline") \
    NAME(FontKerning, "font-kerning") \
    NAME(FontSizeAdjust, "font-size-adjust") \
    NAME(FontStretch, "font-stretch") \
    NAME(FontVariant, "font-variant") \
    NAME(FontVariantLigatures, "font-variant-ligatures") \
    NAME(GlyphOrientationVertical, "glyph-orientation-vertical") \
    NAME(InlineSize, "inline-size") \
    NAME(Kerning, "kerning") \
    NAME(LetterSpacing, "letter-spacing") \
    NAME(LineHeight, "line-height") \
    NAME(TextDecoration, "text-decoration") \
    NAME(TextDecorationColor, "text-decoration-color") \
    NAME(TextDecorationLine, "text-decoration-line") \
    NAME(TextDecorationStyle, "text-decoration-style") \
    NAME(TextDecorationThickness, "text-decoration-thickness") \
    NAME(TextOrientation, "text-orientation") \
    NAME(TextTransform, "text-transform") \
    NAME(TextUnderlineOffset, "text-underline-offset") \
    NAME(TextUnderlinePosition, "text-underline-position") \
    NAME(UnicodeBidi, "unicode-bidi") \
    NAME(WhiteSpace, "white-space") \
    NAME(WordSpacing, "word-spacing") \
    NAME(WritingMode, "writing-mode")

/// Attributes of elements.
#define SVG_ELEMENT_ATTRIBUTES(NAME) \
    NAME(Class, "class") \
    NAME(Cx, "cx") \
    NAME(Cy, "cy") \
    NAME(D, "d") \
    NAME(Dx, "dx") \
    NAME(Dy, "dy") \
    NAME(Fr, "fr") \
    NAME(Fx, "fx") \
    NAME(Fy, "fy") \
    NAME(GradientTransform, "gradientTransform") \
    NAME(GradientUnits, "gradientUnits") \
    NAME(Height, "height") \
    NAME(Href, "href") \
    NAME(Id, "id") \
    NAME(Offset, "offset") \
    NAME(PathLength, "pathLength") \
    NAME(Points, "points") \
    NAME(PreserveAspectRatio, "preserveAspectRatio") \
    NAME(R, "r") \
    NAME(RefX, "refX") \
    NAME(RefY, "refY") \
    NAME(RequiredExtensions, "requiredExtensions") \
    NAME(RequiredFeatures, "requiredFeatures") \
    NAME(Rotate, "rotate") \
    NAME(Rx, "rx") \
    NAME(Ry, "ry") \
    NAME(Scale, "scale") \
    NAME(SpreadMethod, "spreadMethod") \
    NAME(Style, "style") \
    NAME(SystemLanguage, "systemLanguage") \
    NAME(Transform, "transform") \
    NAME(TransformBox, "transform-box") \
    NAME(TransformOrigin, "transform-origin") \
    NAME(Translate, "translate") \
    NAME(ViewBox, "viewBox") \
    NAME(Width, "width") \
    NAME(X, "x") \
    NAME(X1, "x1") \
    NAME(X2, "x2") \
    NAME(XMove, "x_move") \
    NAME(XlinkHref, "xlink:href") \
    NAME(XmlSpace, "xml:space") \
    NAME(Y, "y") \
    NAME(Y1, "y1") \
    NAME(Y2, "y2") \
    NAME(YMove, "y_move")

// clang-format on
