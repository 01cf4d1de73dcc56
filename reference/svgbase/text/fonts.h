#pragma once

#include "grammar/fontfamilies.h"
#include "properties/computedstyle.h"

#include <QtGui/QFont>

namespace Svg {

/// Outlines are taken at this size, pixels, and scaled: painters support whole pixel sizes only.
constexpr int outlineFontSize = 512;

/// The font of a style at `outlineFontSize`, without hinting, so that it scales evenly.
QFont outlineFont(const FontStyle &style, const TextStyle &text = TextStyle());
/// Whether the system has a family, or a replacement for a generic one.
bool isInstalled(const FamilyName &name);
/// Qt's number for a CSS font weight.
int qtFontWeight(int weight);

} // namespace Svg
