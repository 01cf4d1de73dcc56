#pragma once

#include <pagehost/pagetool.h>

#include <pages/snapping.h>

namespace pagehost {

class Snapper;

/// The box that a new object is drawn in, from the press on. Shift makes it square, Ctrl draws it about the start.
class CreationCourse
{
public:
    CreationCourse(const ToolPointer &press, Snapper &snapper);

    /// Follows the pointer; false as long as it may be a click.
    bool follow(const ToolPointer &pointer);
    bool isDrag() const { return m_isDrag; }
    /// Scene coordinates.
    QPointF start() const { return m_start; }
    QRectF box() const;
    /// Where an object of this client rectangle stands, so that the start stays, scene coordinates.
    QPointF placeOf(const QRectF &clientRect) const;
    /// Shows guides of an object that lies in this box.
    void showGuides(const QRectF &box);

private:
    SnapSubject subjectOf(const QRectF &box) const;
    QPointF snapOffset(const SnapSubject &subject, const ToolPointer &pointer);
    QPointF cornerOf(const QRectF &box) const;

    Snapper &m_snapper;
    QPointF m_pressed; ///< scene coordinates, of the pointer
    QPointF m_last;    ///< the pointer's last place
    QPointF m_start;   ///< corner that stays, or the centre
    QPointF m_way;     ///< from there to the dragged corner
    bool m_isDrag = false;
    bool m_isCentred = false;
    bool m_isSquare = false;
};

} // namespace pagehost
