#include "paint/keptpicture.h"

#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>

#include <cstring>

namespace Svg {

namespace {

constexpr int bytesPerPixel = 4;
/// A drawing that grows a little with each change need not be kept anew each time.
constexpr int roomShare = 8;
constexpr int leastRoom = 8;
constexpr int comparedBlock = 32;

bool isPlainPainter(const QPainter *painter)
{
    return painter->paintEngine()->type() == QPaintEngine::Raster && !painter->hasClipping() &&
           painter->opacity() == 1 && painter->compositionMode() == QPainter::CompositionMode_SourceOver &&
           painter->deviceTransform() == painter->worldTransform();
}

const QRgb *pixelsAt(const QImage &image, int x, int y)
{
    return reinterpret_cast<const QRgb *>(image.constScanLine(y)) + x;
}

QRgb *pixelsAt(QImage *image, int x, int y)
{
    return reinterpret_cast<QRgb *>(image->scanLine(y)) + x;
}

bool isBlankRow(const QRgb *row, int count)
{
    return row[0] == 0 && memcmp(row, row + 1, size_t(count - 1) * bytesPerPixel) == 0;
}

bool isBlank(const QImage &image, const QRect &area)
{
    for (int y = area.top(); y <= area.bottom(); ++y)
        if (!isBlankRow(pixelsAt(image, area.left(), y), area.width()))
            return false;
    return true;
}

void copyRows(const QImage &source, const QPoint &from, QImage *target, const QRect &to)
{
    for (int y = 0; y < to.height(); ++y) {
        memcpy(pixelsAt(target, to.left(), to.top() + y), pixelsAt(source, from.x(), from.y() + y),
               size_t(to.width()) * bytesPerPixel);
    }
}

void clearRows(QImage *target, const QRect &area)
{
    for (int y = area.top(); y <= area.bottom(); ++y)
        memset(pixelsAt(target, area.left(), y), 0, size_t(area.width()) * bytesPerPixel);
}

bool isSame(const QRgb *a, const QRgb *b, int count)
{
    return memcmp(a, b, size_t(count) * bytesPerPixel) == 0;
}

/// The range in which two rows differ; `first` is `count` where they are equal.
struct Difference
{
    int first;
    int last;
};

// Compare whole blocks at once: rows are long, and differences in them short.
Difference differenceOf(const QRgb *a, const QRgb *b, int count)
{
    if (isSame(a, b, count))
        return {count, -1};
    Difference result{0, count - 1};
    while (result.first + comparedBlock < count && isSame(a + result.first, b + result.first, comparedBlock))
        result.first += comparedBlock;
    while (a[result.first] == b[result.first])
        ++result.first;
    for (int start = result.last + 1 - comparedBlock; start >= 0 && isSame(a + start, b + start, comparedBlock);
         start -= comparedBlock)
        result.last = start - 1;
    while (a[result.last] == b[result.last])
        --result.last;
    return result;
}

} // namespace

bool KeptPicture::fits(const QImage &target, const QRect &reach, bool withControlPoints) const
{
    return m_format == target.format() && m_withControlPoints == withControlPoints && m_area.contains(reach) &&
           target.rect().contains(m_area);
}

void KeptPicture::restart(const QImage &target, const QRect &reach, bool withControlPoints)
{
    clear();
    const int x = leastRoom + reach.width() / roomShare;
    const int y = leastRoom + reach.height() / roomShare;
    m_area = reach.adjusted(-x, -y, x, y) & target.rect();
    m_format = target.format();
    m_withControlPoints = withControlPoints;
}

KeptPicture::Answer KeptPicture::prepare(const QImage &target, const QRect &reach, bool withControlPoints)
{
    if (!fits(target, reach, withControlPoints)) {
        restart(target, reach, withControlPoints);
        return Paint;
    }
    return m_picture.isNull() ? PaintAndKeep : Repair;
}

void KeptPicture::keepBelow(const QImage &target)
{
    m_below = isBlank(target, m_area) ? QImage() : target.copy(m_area);
}

void KeptPicture::drop()
{
    m_picture = QImage();
    m_below = QImage();
}

QRect KeptPicture::changedBelow(const QImage &target)
{
    if (m_below.isNull()) {
        if (isBlank(target, m_area))
            return QRect();
        m_below = QImage(m_area.size(), m_format);
        m_below.fill(0);
    }
    QRect changed;
    for (int y = 0; y < m_area.height(); ++y) {
        const QRgb *now = pixelsAt(target, m_area.left(), m_area.top() + y);
        QRgb *before = pixelsAt(&m_below, 0, y);
        const Difference difference = differenceOf(now, before, m_area.width());
        if (difference.last < 0)
            continue;
        const int length = difference.last - difference.first + 1;
        memcpy(before + difference.first, now + difference.first, size_t(length) * bytesPerPixel);
        changed |= QRect(m_area.left() + difference.first, m_area.top() + y, length, 1);
    }
    return changed;
}

void KeptPicture::restore(QImage *target, const QVector<QRect> &repainted) const
{
    copyRows(m_picture, QPoint(), target, m_area);
    for (const QRect &rect : repainted)
        if (m_below.isNull())
            clearRows(target, rect);
        else
            copyRows(m_below, rect.topLeft() - m_area.topLeft(), target, rect);
}

void KeptPicture::restoreBelow(QImage *target) const
{
    restore(target, {m_area});
}

void KeptPicture::keep(const QImage &target, const QRect &part)
{
    if (part == m_area && m_picture.isNull()) {
        m_picture = target.copy(m_area);
        return;
    }
    copyRows(target, part.topLeft(), &m_picture, part.translated(-m_area.topLeft()));
}

QImage *plainTarget(QPainter *painter)
{
    if (!painter->device() || painter->device()->devType() != QInternal::Image)
        return nullptr;
    auto *image = static_cast<QImage *>(painter->device());
    const bool knownFormat =
        image->format() == QImage::Format_ARGB32 || image->format() == QImage::Format_ARGB32_Premultiplied;
    return knownFormat && image->isDetached() && isPlainPainter(painter) ? image : nullptr;
}

} // namespace Svg
