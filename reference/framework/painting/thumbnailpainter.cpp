#include <pagehost/thumbnailpainter.h>

#include <pagehost/page.h>

#include <painting/thumbnailjob.h>

#include <QtCore/QRunnable>
#include <QtCore/QThread>

#include <algorithm>

namespace pagehost {

namespace {

constexpr int mostDefaultWorkers = 4;
constexpr int windowMilliseconds = 4;
/// Pause between windows, so that the GUI thread has most of its time for the user.
constexpr int pauseMilliseconds = 12;

class JobRun : public QRunnable
{
public:
    JobRun(ThumbnailJob &job, const QDeadlineTimer &deadline)
        : m_job(job)
        , m_deadline(deadline)
    {
    }
    void run() override { m_job.run(m_deadline); }

private:
    ThumbnailJob &m_job;
    QDeadlineTimer m_deadline;
};

} // namespace

ThumbnailPainter::ThumbnailPainter(QObject *parent)
    : QObject(parent)
{
    setWorkerCount(qMin(QThread::idealThreadCount(), mostDefaultWorkers));
    m_timer.setInterval(pauseMilliseconds);
    connect(&m_timer, &QTimer::timeout, this, [this] { paintWindow(windowMilliseconds); });
}

ThumbnailPainter::~ThumbnailPainter() = default;

void ThumbnailPainter::request(Page *page, const QSize &size)
{
    if (!page || size.isEmpty())
        return;
    const auto waiting =
        std::find_if(m_jobs.begin(), m_jobs.end(), [&](const auto &job) { return job->page() == page; });
    if (waiting != m_jobs.end()) {
        (*waiting)->setSize(size);
        return;
    }
    m_jobs.push_back(std::make_unique<ThumbnailJob>(page, size));
    m_timer.start();
}

void ThumbnailPainter::finish()
{
    while (!isIdle())
        paintWindow(windowMilliseconds);
}

void ThumbnailPainter::setWorkerCount(int count)
{
    m_workers.setMaxThreadCount(qMax(1, count));
}

void ThumbnailPainter::paintWindow(int milliseconds)
{
    dropOrphans();
    const QDeadlineTimer deadline(milliseconds);
    const std::size_t active = qMin(m_jobs.size(), std::size_t(m_workers.maxThreadCount()));
    for (std::size_t i = 0; i < active; ++i)
        m_jobs[i]->prepare();
    for (std::size_t i = 0; i < active; ++i)
        m_workers.start(new JobRun(*m_jobs[i], deadline));
    m_workers.waitForDone();
    deliverFinished();
    if (isIdle())
        m_timer.stop();
}

void ThumbnailPainter::dropOrphans()
{
    m_jobs.erase(std::remove_if(m_jobs.begin(), m_jobs.end(), [](const auto &job) { return !job->page(); }),
                 m_jobs.end());
}

void ThumbnailPainter::deliverFinished()
{
    // Listeners may request more, so update the list first.
    std::vector<std::unique_ptr<ThumbnailJob>> finished;
    const auto firstFinished =
        std::stable_partition(m_jobs.begin(), m_jobs.end(), [](const auto &job) { return !job->isFinished(); });
    std::move(firstFinished, m_jobs.end(), std::back_inserter(finished));
    m_jobs.erase(firstFinished, m_jobs.end());
    for (const auto &job : finished)
        if (job->page())
            Q_EMIT ready(job->page(), job->picture());
}

} // namespace pagehost
