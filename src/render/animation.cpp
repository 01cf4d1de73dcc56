// The pacemaker of animated shapes. The document animates itself; what it needs is a steady repaint.

#include <svgobj/csvganimate.h>
#include <svgobj/csvgbase.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QTimer>

namespace {

constexpr int millisecondsPerSecond = 1000;

} // namespace

CSVGAnimate::CSVGAnimate(QObject *parent, CSVGBase *shape)
    : QObject(parent)
    , m_shape(shape)
{
}

// The shape's document is gone by now: only the timer may be touched.
CSVGAnimate::~CSVGAnimate()
{
    stopAnimate();
    delete m_timer;
}

void CSVGAnimate::startAnimate()
{
    if (m_timer) {
        m_timer->stop();
        // Deliberate: a restart stops the document's animation and restarts only the repainting.
        m_shape->document->stopAnimate();
    } else {
        m_timer = new QTimer(this);
        connect(m_timer, SIGNAL(timeout()), this, SLOT(doAnimate()));
        m_shape->document->startAnimate();
    }
    m_timer->start(millisecondsPerSecond / m_frameRate);
    m_running = true;
    doAnimate();
}

void CSVGAnimate::stopAnimate()
{
    if (m_timer)
        m_timer->stop();
    m_running = false;
}

// Repainting may destroy the shape, and this with it: nothing may follow.
void CSVGAnimate::doAnimate()
{
    m_shape->invalidate();
}

bool CSVGBase::startAnimate()
{
    if (!document || !document->animated())
        return false;
    if (!animator)
        animator = new CSVGAnimate(nullptr, this);
    animator->startAnimate();
    return true;
}

bool CSVGBase::stopAnimate()
{
    if (document && document->animated() && animator)
        animator->stopAnimate();
    return false;
}

bool CSVGBase::isAnimating()
{
    return animator && animator->isRunning();
}
