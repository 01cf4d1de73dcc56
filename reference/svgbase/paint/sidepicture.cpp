#include "paint/sidepicture.h"

namespace Svg {

double pixelCount(const QRect &area, double pixelRatio)
{
    return double(area.width()) * area.height() * pixelRatio * pixelRatio;
}

SidePicture::SidePicture(const QRect &area, double pixelRatio, PaintBudget *budget, const QTransform &toCanvas)
    : m_area(area)
    , m_budget(budget)
    , m_pixels(pixelCount(area, pixelRatio))
    , m_isStraight(toCanvas.isIdentity())
    , m_image(area.size() * pixelRatio, QImage::Format_ARGB32_Premultiplied)
{
    m_budget->left -= m_pixels + Limits::layerOverhead;
    m_budget->open += m_pixels;
    ++m_budget->depth;
    m_image.setDevicePixelRatio(pixelRatio);
    m_image.fill(Qt::transparent);
    m_painter.begin(&m_image);
    m_painter.setRenderHints(smoothPainting);
    m_painter.setTransform(toCanvas * QTransform::fromTranslate(-area.x(), -area.y()));
}

SidePicture::~SidePicture()
{
    m_budget->open -= m_pixels;
    --m_budget->depth;
}

std::unique_ptr<SidePicture> SidePicture::make(const QRect &area, double pixelRatio, PaintBudget *budget,
                                               const QTransform &toCanvas)
{
    const double pixels = pixelCount(area, pixelRatio);
    const bool affordable = pixels >= 1 && pixels <= budget->left && budget->open + pixels <= budget->mostOpen &&
                            budget->depth < Limits::layerDepth;
    budget->lacksPixels = budget->lacksPixels || !affordable;
    return affordable ? std::make_unique<SidePicture>(area, pixelRatio, budget, toCanvas) : nullptr;
}

QImage *SidePicture::finished()
{
    if (m_painter.isActive())
        m_painter.end();
    return &m_image;
}

PixelTarget SidePicture::pixels()
{
    const bool alike = m_image.devicePixelRatio() == 1 && m_isStraight;
    return alike ? PixelTarget{&m_image, m_area.topLeft(), m_area} : PixelTarget();
}

} // namespace Svg
