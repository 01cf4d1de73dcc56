#include <pages/guidepainter.h>

#include <pagehost/page.h>

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>

#include <cmath>

namespace pagehost {

namespace {

constexpr QRgb guideOnLight = 0xffc2188f;
constexpr QRgb guideOnDark = 0xffff7ad1;
constexpr QRgb gridOnLight = 0x281f2630;
constexpr QRgb gridOnDark = 0x28e6eaf0;
constexpr int lightGround = 128;
constexpr double tickPixels = 4; ///< at each end of a span, to either side
constexpr int fontPixels = 11;
constexpr double labelPadding = 3; ///< pixels
constexpr double labelRadius = 4;  ///< pixels
/// The longest label reaches this far from the middle of its span, pixels.
constexpr double labelReach = 48;

bool isLight(const Page &page)
{
    return page.background().fillColor().lightness() >= lightGround;
}

double pixelOf(const QPainter &painter)
{
    const double scale = std::sqrt(std::abs(painter.combinedTransform().determinant()));
    return scale > 0 ? 1 / scale : 1;
}

void drawTick(QPainter &painter, const QPointF &end, const QLineF &span, double pixel)
{
    const QPointF aside = QPointF(-span.dy(), span.dx()) / span.length() * tickPixels * pixel;
    painter.drawLine(end - aside, end + aside);
}

void drawLength(QPainter &painter, const QLineF &span, double pixel, const QColor &color, const QColor &ground)
{
    painter.save();
    painter.translate(span.center());
    painter.scale(pixel, pixel);
    QFont font = painter.font();
    font.setPixelSize(fontPixels);
    painter.setFont(font);
    const QString text = QString::number(qRound(span.length()));
    const QFontMetricsF metrics(font);
    const QSizeF size(metrics.horizontalAdvance(text) + 2 * labelPadding, metrics.height());
    const QRectF label({-size.width() / 2, -size.height() / 2}, size);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(label, labelRadius, labelRadius);
    painter.setPen(ground);
    painter.drawText(label, Qt::AlignCenter, text);
    painter.restore();
}

} // namespace

void paintGuides(QPainter &painter, const SnapGuides &guides, const Page &page)
{
    if (guides.lines.isEmpty() && guides.spans.isEmpty())
        return;
    const QColor color(isLight(page) ? guideOnLight : guideOnDark);
    const double pixel = pixelOf(painter);
    painter.save();
    QPen pen(color, 1);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.drawLines(guides.lines);
    for (const QLineF &span : guides.spans) {
        painter.drawLine(span);
        drawTick(painter, span.p1(), span, pixel);
        drawTick(painter, span.p2(), span, pixel);
        drawLength(painter, span, pixel, color, isLight(page) ? Qt::white : Qt::black);
    }
    painter.restore();
}

QRectF guideBounds(const SnapGuides &guides, double pixel)
{
    QRectF bounds;
    const double lineReach = pixel;
    for (const QLineF &line : guides.lines)
        bounds |= QRectF(line.p1(), line.p2()).normalized().adjusted(-lineReach, -lineReach, lineReach, lineReach);
    const double reach = labelReach * pixel;
    for (const QLineF &span : guides.spans)
        bounds |= QRectF(span.p1(), span.p2()).normalized().adjusted(-reach, -reach, reach, reach);
    return bounds;
}

void paintGrid(QPainter &painter, const Page &page, double distance)
{
    QVector<QLineF> lines;
    const QSizeF size = page.size();
    for (int i = 1; i * distance < size.width(); ++i)
        lines.append({i * distance, 0, i * distance, size.height()});
    for (int i = 1; i * distance < size.height(); ++i)
        lines.append({0, i * distance, size.width(), i * distance});
    painter.save();
    QPen pen(QColor::fromRgba(isLight(page) ? gridOnLight : gridOnDark), 1);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.drawLines(lines);
    painter.restore();
}

} // namespace pagehost
