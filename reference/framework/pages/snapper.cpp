#include <pages/snapper.h>

#include <pagehost/page.h>

namespace pagehost {

namespace {

constexpr double advantagePixels = 3;
constexpr double catchPixels = 6;
constexpr double letGoPixels = 10;
constexpr double fingerCatchPixels = 10;
constexpr double fingerLetGoPixels = 14;

SnapReach reachOf(Pointer pointer, double pixel)
{
    if (pointer == Pointer::Finger)
        return {fingerCatchPixels * pixel, fingerLetGoPixels * pixel, advantagePixels * pixel};
    return {catchPixels * pixel, letGoPixels * pixel, advantagePixels * pixel};
}

} // namespace

void Snapper::begin(const QVector<CBaseObject *> &moving)
{
    m_isRunning = true;
    m_held = {};
    m_guides = {};
    m_candidates = SnapCandidates(*m_page, moving);
}

QPointF Snapper::offsetOf(const SnapSubject &subject, double pixel, Pointer pointer, bool suspended)
{
    if (!m_isOn || suspended)
        m_held = {};
    else
        m_held = findCatches(subject, groundOf(subject.box), reachOf(pointer, pixel), m_held);
    return offsetTo(m_held, subject);
}

void Snapper::showGuides(const SnapSubject &subject)
{
    m_guides = guidesOf(subject, groundOf(subject.box), fulfilled(m_held, subject));
}

void Snapper::end()
{
    m_isRunning = false;
    m_held = {};
    m_candidates = {};
}

SnapGround Snapper::groundOf(const QRectF &box)
{
    return {m_candidates.nearest(box), m_page->rect(), m_grid};
}

} // namespace pagehost
