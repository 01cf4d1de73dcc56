#pragma once

#include <QtCore/QRect>
#include <QtCore/QVector>
#include <QtGui/QImage>

class QPainter;

namespace Svg {

/// A finished drawing and its backdrop, kept for the next time that the same list is painted in the same place:
/// unchanged parts of both are copied instead of painted, with exactly the pixels that painting would give.
class KeptPicture
{
public:
    enum Answer {
        /// Paint; the first time in this place nothing is kept, since most lists are painted once.
        Paint,
        /// Call keepBelow(), paint all of it, then call keep(); or just paint.
        PaintAndKeep,
        /// Find the changed area, restore() the rest, paint the changes, and keep() them.
        Repair
    };

    /// Tells what to do to have the list on `target`, where it covers `reach` (pixels).
    Answer prepare(const QImage &target, const QRect &reach, bool withControlPoints);
    /// Keeps the backdrop of the drawing.
    void keepBelow(const QImage &target);
    /// Discards the pixels, but not their place: the next painting there may be kept.
    void drop();
    /// The pixels that are kept.
    const QRect &area() const { return m_area; }
    /// The part of the target where the backdrop has changed since it was kept; the present pixels become the kept
    /// ones.
    QRect changedBelow(const QImage &target);
    /// Copies the kept drawing to the target, except for the area to be painted again, which gets the backdrop.
    void restore(QImage *target, const QVector<QRect> &repainted) const;
    /// Restores the backdrop of a drawing that could not be finished.
    void restoreBelow(QImage *target) const;
    /// Keeps the pixels painted within a part of the area.
    void keep(const QImage &target, const QRect &part);
    void clear() { *this = KeptPicture(); }
    int bytes() const { return int(m_picture.sizeInBytes() + m_below.sizeInBytes()); }

private:
    bool fits(const QImage &target, const QRect &reach, bool withControlPoints) const;
    void restart(const QImage &target, const QRect &reach, bool withControlPoints);

    QImage m_picture;
    /// Null where the drawing was painted over nothing.
    QImage m_below;
    QRect m_area;
    bool m_withControlPoints = false;
    QImage::Format m_format = QImage::Format_Invalid;
};

/// The picture that a painter paints on, if its pixels can be read and written directly with the same result as
/// painting: without clip, opacity, mapping and special composition. Null for any other.
QImage *plainTarget(QPainter *painter);

} // namespace Svg
