#pragma once

#include <QtCore/QSize>
#include <QtGui/QPixmap>

namespace pagehost {
class ObjectRegistry;
} // namespace pagehost

namespace board {

/// A picture of a new object of the kind, as the object paints itself, fitted into `size` (logical pixels) with a
/// small margin, in outlines that go with the current theme. `pixelRatio` is that of the screen. Null for an
/// unknown kind.
QPixmap pictureOfKind(const pagehost::ObjectRegistry &registry, const QString &kindId, const QSize &size,
                      double pixelRatio);

} // namespace board
