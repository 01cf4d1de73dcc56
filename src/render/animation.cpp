// Timer of animated shapes. The document animates itself; it only needs to be repainted steadily.

#include <svgobj/csvganimate.h>
#include <svgobj/csvgbase.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QTimer>

namespace {

constexpr int millisecondsPerSecond = 1000;

/// Marks that an animator is requesting a repaint. Lives on the stack, since the repaint may destroy the animator.
class RepaintRequest
{
public:
    explicit RepaintRequest(const CSVGAnimate *animator)
        : m_animator(animator)
        , m_outer(innermost)
    {
        innermost = this;
    }
    ~RepaintRequest() { innermost = m_outer; }
    Q_DISABLE_COPY(RepaintRequest)

    static bool isRunning(const CSVGAnimate *animator)
    {
        const RepaintRequest *request = innermost;
        while (request && request->m_animator != animator)
            request = request->m_outer;
        return request;
    }

private:
    static thread_local const RepaintRequest *innermost;

    const CSVGAnimate *m_animator;
    const RepaintRequest *m_outer;
};

thread_local const RepaintRequest *RepaintRequest::innermost = nullptr;

} // namespace

CSVGAnimate::CSVGAnimate(QObject *parent, CSVGBase *shape)
    : QObject(parent)
    , m_shape(shape)
{
}

// The shape's document is already destroyed: only the timer may be touched.
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
        if (m_shape->document)
            m_shape->document->stopAnimate();
    } else {
        m_timer = new QTimer(this);
        connect(m_timer, SIGNAL(timeout()), this, SLOT(doAnimate()));
        if (m_shape->document)
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

// Repainting may destroy the shape, and this with it: no member may be touched afterwards. Whoever is notified of
// the repaint may restart the animation, which requests a frame at once: the one being shown suffices.
void CSVGAnimate::doAnimate()
{
    if (RepaintRequest::isRunning(this))
        return;
    const RepaintRequest request(this);
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
