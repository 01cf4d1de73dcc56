#pragma once

#include <QtCore/QSizeF>
#include <QtGui/QImage>

namespace Svg {

/// Parameters of an "feDisplacementMap" (Filter Effects 1 §9.11).
struct Displacement
{
    enum Channel : quint8 { Red, Green, Blue, Alpha };

    /// Displacement by a full channel relative to an empty one, user units.
    QSizeF scale{0, 0};
    Channel across = Alpha;
    Channel down = Alpha;
};

/// Takes every pixel from the position given by the channels of `map`; outside of the picture everything is
/// transparent. The scale is in pixels.
void displacePicture(QImage *picture, const QImage &map, const Displacement &displacement);

} // namespace Svg
