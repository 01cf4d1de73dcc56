#pragma once

#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtGui/QVector3D>

#include <optional>

namespace Svg {

struct LightSource
{
    enum Kind { None, Distant, Point, Spot };
    Kind kind = None;
    /// Direction towards a distant light, degrees.
    double azimuth = 0;
    double elevation = 0;
    /// Position of the others, in pixels once a picture is lit.
    QVector3D place;
    QVector3D pointsAt;
    double focus = 1;
    /// Cone of a spot light, degrees from its axis.
    std::optional<double> cone;
};

/// Lighting of a height map by "feDiffuseLighting" and "feSpecularLighting" (Filter Effects 1 §9.9, §9.20).
struct Lighting
{
    bool specular = false;
    double surfaceScale = 1;
    /// kd or ks.
    double reflection = 1;
    double shininess = 1;
    QColor color = Qt::white;
    LightSource light;
};

/// Replaces a picture, whose alpha is the height of a surface, by the light that the surface reflects. Its edges
/// are those of `area`.
void lightPicture(QImage *picture, const Lighting &lighting, const QRect &area);

} // namespace Svg
