#pragma once

#include <QtCore/QSizeF>
#include <QtGui/QImage>

namespace Svg {

/// Parameters of an "feDisplacementMap" (Filter Effects 1 §9.11).
struct Displacement
{
    enum Channel : quint8 { Red, Green, Blue, Alpha };

    /// How far a channel that is full moves a pixel more than one that is empty, user units.
    QSizeF scale{0, 0};
    Channel across = Alpha;
    Channel down = Alpha;
};

/// Takes every pixel of a picture from where the channels of `map` say; outside of it everything is transparent.
/// The scale is in pixels.
void displacePicture(QImage *picture, const QImage &map, const Displacement &displacement);

} // namespace Svg
