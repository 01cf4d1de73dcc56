#pragma once

#include <framework/framework_global.h>

#include <QtGui/QColor>
#include <QtGui/QPixmap>

/// Small drawing helpers of the host.
class FRAMEWORK_EXPORT CUtil
{
public:
    /// A transparent pixmap of `width` × `height` pixels with a horizontal sample line of the given width and
    /// Qt::PenStyle number across its middle. Style 0 (no pen) and unknown numbers leave it empty.
    static QPixmap genIconForLineStyle(int width, int height, int lineWidth, int penStyle, const QColor &color);
};
