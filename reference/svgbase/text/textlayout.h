#pragma once

#include "properties/computedstyle.h"
#include "text/textoutlines.h"
#include "text/textservices.h"
#include "tree/tree.h"

#include <QtCore/QSizeF>
#include <QtGui/QPainterPath>

namespace Svg {

/// Lays out the characters of a text element and its parts. Empty without a QGuiApplication, which fonts need.
/// Problems are reported in the result, not to `services`.
TextOutlines layOutText(const Tree &tree, NodeIndex text, const ComputedStyle &style, const QSizeF &viewport,
                        TextServices services);

} // namespace Svg
