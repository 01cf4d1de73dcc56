#pragma once

#include <QtCore/QRect>
#include <QtCore/QVector>
#include <QtGui/QImage>

class QPainter;

namespace Svg {

/// A finished drawing and what it was painted over, kept for the next time that the same list is painted in the
/// same place: what did not change meanwhile, below or in the drawing, is copied instead of painted. That gives the
/// very pixels that painting would.
class KeptPicture
{
public:
    enum Answer {
        /// Paint; the first time in this place nothing is kept, since most lists are painted once.
        Paint,
        /// Call keepBelow(), paint all of it, then call keep(); or just paint.
        PaintAndKeep,
        /// Ask for what changed, restore() the rest, paint what changed, and keep() that.
        Repair
    };

    /// Says what is to be done to have the list on `target`, where it reaches `reach` (pixels).
    Answer prepare(const QImage &target, const QRect &reach, bool withControlPoints);
    /// Keeps what the drawing is going to be painted over.
    void keepBelow(const QImage &target);
    /// Forgets the pixels, but not their place: the next painting there may be kept.
    void drop();
    /// The pixels that are kept.
    const QRect &area() const { return m_area; }
    /// The part of the target that is not as it was below the kept drawing; from now on the present pixels count.
    QRect changedBelow(const QImage &target);
    /// Copies the kept drawing to the target, except for what is to be painted again: there the target is left as
    /// it is below the drawing.
    void restore(QImage *target, const QVector<QRect> &repainted) const;
    /// Puts back what was below a drawing that could not be finished.
    void restoreBelow(QImage *target) const;
    /// Keeps what was painted within a part of the area.
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

/// The picture that a painter paints on, if its pixels can be read and written behind the painter's back with the
/// result that painting has: the painter neither clips nor fades nor maps nor mixes. Null for any other.
QImage *plainTarget(QPainter *painter);

} // namespace Svg
