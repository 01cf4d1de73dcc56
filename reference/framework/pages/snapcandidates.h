#pragma once

#include <pages/snapping.h>

#include <vector>

class CBaseObject;

namespace pagehost {

class Page;

/// Objects in view that a drag can catch at, taken when the drag begins.
class SnapCandidates
{
public:
    SnapCandidates() = default;
    /// `moving` are dragged, and objects that follow others move with them.
    SnapCandidates(const Page &page, const QVector<CBaseObject *> &moving);

    /// Those nearest to a box, as many as people can still tell apart.
    QVector<SnapPartner> nearest(const QRectF &box);
    void forget(const CBaseObject *object);

private:
    struct Candidate
    {
        CBaseObject *object;
        QRectF box;
        std::optional<QVector<QPointF>> points; ///< once they have been asked for
    };

    std::vector<Candidate> m_candidates;
};

} // namespace pagehost
