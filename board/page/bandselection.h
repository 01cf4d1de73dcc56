#pragma once

#include <QtCore/QPoint>
#include <QtCore/QVector>
#include <QtWidgets/QRubberBand>

class CBaseObject;
class QGraphicsView;

namespace pagehost {
class Page;
} // namespace pagehost

namespace board {

/// Selecting with a rubber band: whatever the band touches is selected while the mouse is still down.
class BandSelection
{
public:
    /// The view must outlive the band.
    explicit BandSelection(QGraphicsView *view);

    /// A press at `pos` (viewport coordinates). With `extend` what is selected now stays selected. A pointer that
    /// has not moved by `least` (pixels) clicks.
    void begin(pagehost::Page *page, const QPoint &pos, bool extend, double least);
    void moveTo(const QPoint &pos);
    void finish();
    /// Brings the selection back that was there at the press.
    void cancel();
    bool isActive() const { return m_page != nullptr; }
    /// Whether the mouse has moved far enough to mean a band rather than a click.
    bool isBand() const { return m_band.isVisible(); }

private:
    void selectTouched();

    QGraphicsView *m_view;
    QRubberBand m_band;
    pagehost::Page *m_page = nullptr;
    QPoint m_start; ///< viewport coordinates
    double m_least = 0;
    QVector<CBaseObject *> m_before;
    QVector<CBaseObject *> m_kept;
};

} // namespace board
