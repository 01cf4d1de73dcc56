// The clock of a document's animation, and the drawing of the document at a moment.

#include "document/documentprivate.h"

using namespace Svg;

namespace {

constexpr ClockTime nanosecondsPerTick = 1000;

} // namespace

void DocumentPrivate::startAnimation()
{
    if (m_clockRuns)
        return;
    m_clockRuns = m_clockUsed = true;
    m_clock.start();
}

void DocumentPrivate::stopAnimation()
{
    m_clockTime = animationTime();
    m_clockRuns = false;
}

ClockTime DocumentPrivate::animationTime() const
{
    return m_clockRuns ? added(m_clockTime, m_clock.nsecsElapsed() / nanosecondsPerTick) : m_clockTime;
}

bool DocumentPrivate::setAnimationTime(ClockTime time)
{
    m_clockTime = time;
    m_clockUsed = true;
    if (m_clockRuns)
        m_clock.start();
    return showMoment();
}

bool DocumentPrivate::showMoment()
{
    if (!m_clockUsed || (!m_presentation && !hasAnimations()))
        return false;
    content.settle();
    if (!m_presentation)
        m_presentation = std::make_unique<Presentation>(content);
    return m_presentation->show(content, animationTime());
}

Document &DocumentPrivate::shown()
{
    return m_presentation ? m_presentation->document() : content;
}

QRectF DocumentPrivate::shownViewBox()
{
    const std::optional<QRectF> animated = m_presentation ? m_presentation->viewBox() : std::nullopt;
    return animated.value_or(settledViewBox());
}
