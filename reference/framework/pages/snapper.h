#pragma once

#include <pagehost/pointer.h>

#include <pages/snapcandidates.h>
#include <pages/snapping.h>

namespace pagehost {

/// Snaps the drags of one page, and keeps the guides that are shown.
class Snapper
{
public:
    explicit Snapper(const Page *page)
        : m_page(page)
    {
    }

    bool isOn() const { return m_isOn; }
    void setOn(bool on) { m_isOn = on; }
    /// Distance of the lines of the grid that is shown, scene units; 0 without grid.
    double grid() const { return m_grid; }
    void setGrid(double grid) { m_grid = grid; }

    /// A drag of these objects begins, or of nothing that is on the page yet.
    void begin(const QVector<CBaseObject *> &moving);
    bool isRunning() const { return m_isRunning; }
    /// The offset that brings the subject to its caught place; none while `suspended`. `pixel` is a pixel of the
    /// view, scene units.
    QPointF offsetOf(const SnapSubject &subject, double pixel, Pointer pointer, bool suspended);
    /// Shows the guides of the last offsetOf(), as far as the subject has come to lie there.
    void showGuides(const SnapSubject &subject);
    /// The drag has ended; its guides stay.
    void end();
    void clearGuides() { m_guides = {}; }
    const SnapGuides &guides() const { return m_guides; }
    void forget(const CBaseObject *object) { m_candidates.forget(object); }

private:
    SnapGround groundOf(const QRectF &box);

    const Page *m_page;
    bool m_isOn = false;
    bool m_isRunning = false;
    double m_grid = 0;
    SnapCandidates m_candidates;
    SnapCatches m_held;
    SnapGuides m_guides;
};

} // namespace pagehost
