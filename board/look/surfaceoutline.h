#pragma once

class QColor;
class QPainter;
class QRect;
class QRegion;

namespace board {

/// Of the corners of surfaces that float over the page, logical pixels.
int surfaceRadius();
/// The pixels of a surface at `rect`, for windows that can't be seen through.
QRegion surfaceRegion(const QRect &rect);
/// Fills a surface at `rect`, with a border of `edge` pixels inside.
void paintOutlined(QPainter *painter, const QRect &rect, const QColor &fill, const QColor &border, int edge);

} // namespace board
