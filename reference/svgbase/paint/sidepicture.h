#pragma once

#include "paint/paintbudget.h"
#include "raster/solidfill.h"

#include <QtGui/QPainter>

#include <memory>

namespace Svg {

/// Smoothing of everything that is painted.
constexpr QPainter::RenderHints smoothPainting =
    QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform;

/// Pixels of an area of the painter.
double pixelCount(const QRect &area, double pixelRatio);

/// A layer's picture, in the coordinates of the painter below, or of a canvas.
class SidePicture
{
public:
    SidePicture(const QRect &area, double pixelRatio, PaintBudget *budget, const QTransform &toCanvas);
    ~SidePicture();
    SidePicture(const SidePicture &) = delete;
    SidePicture &operator=(const SidePicture &) = delete;

    /// Null when the budget has no room for it.
    static std::unique_ptr<SidePicture> make(const QRect &area, double pixelRatio, PaintBudget *budget,
                                             const QTransform &toCanvas = QTransform());

    const QRect &area() const { return m_area; }
    QPainter *painter() { return &m_painter; }
    /// The picture, once painting is finished.
    QImage *finished();
    QImage *image() { return &m_image; }
    /// Its pixels for direct writing, when they are those of the painter below.
    PixelTarget pixels();

private:
    QRect m_area;
    PaintBudget *m_budget;
    double m_pixels;
    bool m_isStraight;
    QImage m_image;
    QPainter m_painter;
};

} // namespace Svg
