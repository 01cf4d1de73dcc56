#pragma once

#include "text/documentfonts.h"
#include "text/glyphoutlines.h"
#include "tree/message.h"
#include "tree/tree.h"

#include <QtCore/QSizeF>
#include <QtGui/QTransform>

#include <functional>

namespace Svg {

/// An element's own transform, with percentages of the given view.
using OwnTransform = std::function<QTransform(NodeIndex node, const QSizeF &viewport)>;

/// Services needed to lay out a text.
struct TextServices
{
    GlyphOutlines *glyphs;
    DocumentFonts *fonts;
    OwnTransform transformOf;
    /// Receives what was left out because of a limit.
    Problem *problem = nullptr;
};

} // namespace Svg
