#pragma once

#include <QtCore/QRect>
#include <QtGui/QImage>

class QPainter;

namespace Svg {

/// A finished drawing, kept for the next time that the same list is painted in the same way. It is only used where
/// it gives the very pixels that painting would: in a picture, over an area where nothing has been painted yet.
class KeptPicture
{
public:
    /// Copies the kept drawing into the painter's picture. False, with nothing done, when there is none for it.
    bool paint(QPainter *painter, const QRect &area, bool withControlPoints) const;
    /// Keeps what was just painted over an area that had been blank, from the second time on: most lists are
    /// painted once.
    void keep(QPainter *painter, const QRect &area, bool withControlPoints);
    void clear() { *this = KeptPicture(); }
    int bytes() const { return int(m_picture.sizeInBytes()); }

private:
    bool fits(const QImage &target, const QRect &area, bool withControlPoints) const;

    QImage m_picture;
    QRect m_area;
    bool m_withControlPoints = false;
    /// Whether the list was painted once in this way; the picture may follow.
    bool m_seen = false;
    QImage::Format m_format = QImage::Format_Invalid;
};

/// The part of the painter's picture that painting within `bounds` (painter units) may change, pixels. Empty when
/// the painter paints anything but plain pixels of a picture, when it clips or fades, or when the part is not
/// blank.
QRect blankArea(QPainter *painter, const QRectF &bounds);

} // namespace Svg
