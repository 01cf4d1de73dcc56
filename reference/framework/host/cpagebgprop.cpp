#include <framework/cpagebgprop.h>

#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>

#include <cmath>

namespace {

constexpr int opaque = 255;
constexpr double degreesToRadians = 3.14159265358979323846 / 180;

bool isPattern(Qt::BrushStyle style)
{
    return style >= Qt::Dense1Pattern && style <= Qt::DiagCrossPattern;
}

QColor withAlpha(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

/// A line through the middle of `rect` at `angle` degrees, as long as the rectangle's extent in that direction.
QLinearGradient gradientAcross(const QRectF &rect, double angle)
{
    const double turn = angle * degreesToRadians;
    const QPointF direction(std::cos(turn), -std::sin(turn));
    const double half = (std::abs(direction.x()) * rect.width() + std::abs(direction.y()) * rect.height()) / 2;
    return {rect.center() - direction * half, rect.center() + direction * half};
}

QPixmap faded(const QPixmap &picture, int opacity)
{
    QPixmap result(picture.size());
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.drawPixmap(0, 0, picture);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(result.rect(), withAlpha(Qt::black, opacity));
    return result;
}

QBrush stretchedTexture(const QPixmap &picture, const QRectF &rect)
{
    QBrush brush(picture);
    const QTransform place = QTransform::fromTranslate(rect.x(), rect.y());
    brush.setTransform(QTransform::fromScale(rect.width() / picture.width(), rect.height() / picture.height()) *
                       place);
    return brush;
}

bool samePicture(const QPixmap &one, const QPixmap &other)
{
    return one.cacheKey() == other.cacheKey() || one.toImage() == other.toImage();
}

} // namespace

CPageBgProp::CPageBgProp(IPsPage *page)
    : m_page(page)
{
}

bool CPageBgProp::needCreatBrush(const QRectF &) const
{
    return m_fillEnabled && m_fillType == GradientFill;
}

QBrush CPageBgProp::createBrushByProp(const QRectF &rect, bool forTexture) const
{
    if (!m_fillEnabled)
        return {};
    const QColor color = withAlpha(m_color, m_opacity);
    QBrush brush(color);
    if (m_fillType == NoFill) {
        brush.setStyle(Qt::NoBrush);
    } else if (m_fillType == PatternFill && isPattern(m_pattern)) {
        brush.setStyle(m_pattern);
    } else if (m_fillType == GradientFill) {
        QLinearGradient gradient = gradientAcross(rect, m_gradientAngle);
        gradient.setColorAt(0, color);
        gradient.setColorAt(1, withAlpha(m_gradientColor, m_opacity));
        brush = gradient;
    } else if (m_fillType == PictureFill && forTexture && !m_pixmap.isNull()) {
        brush = stretchedTexture(m_opacity == opaque ? m_pixmap : faded(m_pixmap, m_opacity), rect);
    }
    brush.setColor(color);
    return brush;
}

bool CPageBgProp::operator==(const CPageBgProp &other) const
{
    return m_page == other.m_page && m_followsPage == other.m_followsPage && m_fillType == other.m_fillType &&
           m_fillEnabled == other.m_fillEnabled && m_color == other.m_color && m_opacity == other.m_opacity &&
           m_gradientColor == other.m_gradientColor && m_gradientAngle == other.m_gradientAngle &&
           m_pattern == other.m_pattern && samePicture(m_pixmap, other.m_pixmap);
}
