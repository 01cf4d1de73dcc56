#pragma once

#include <QtGui/QImage>

#include <array>

namespace Svg {

/// Pixels beyond the edges of a picture: none, those at the edge, or the picture repeated.
enum class EdgeMode : quint8 { None, Duplicate, Wrap };

/// Operations on pictures of premultiplied colours with alpha; outside of a picture everything is transparent.

/// Blurs by standard deviations in pixels across and down: by weights up to 2, by three box blurs above, as the
/// standard suggests (Filter Effects 1 §9.14). The picture ends at `area` unless edges are transparent.
void blurPicture(QImage *picture, double across, double down, EdgeMode edges = EdgeMode::None,
                 const QRect &area = QRect());
/// Replaces every channel by its largest (or smallest) value within a distance in pixels (Filter Effects 1 §9.18).
void morphPicture(QImage *picture, int across, int down, bool dilates);
/// Multiplies unpremultiplied colours by a matrix of four rows of five (Filter Effects 1 §9.6).
void applyMatrix(QImage *picture, const std::array<double, 20> &matrix);
/// Maps unpremultiplied red, green, blue and alpha by tables of 256 values.
void applyTables(QImage *picture, const std::array<QByteArray, 4> &tables);
/// k1 * source * below + k2 * source + k3 * below + k4 on premultiplied channels, written over the picture below
/// (Filter Effects 1 §9.8).
void combinePictures(QImage *below, const QImage &source, const std::array<double, 4> &coefficients);
/// Converts colours to linear light, or back to their encoding.
void encodeLinear(QImage *picture);
void decodeLinear(QImage *picture);
/// Keeps the alpha and makes all colours black.
void keepAlpha(QImage *picture);

} // namespace Svg
