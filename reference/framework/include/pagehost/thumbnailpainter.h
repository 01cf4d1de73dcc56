#pragma once

#include <framework/framework_global.h>

#include <QtCore/QObject>
#include <QtCore/QSize>
#include <QtCore/QThreadPool>
#include <QtCore/QTimer>
#include <QtGui/QImage>

#include <memory>
#include <vector>

namespace pagehost {

class Page;
class ThumbnailJob;

/// Pictures of whole pages, painted by worker threads from the pictures that objects keep of themselves.
///
/// An object that paints in another thread reads its own rectangle and picture, which nothing may change meanwhile.
/// So workers run only in short windows during which the GUI thread waits for them: between windows objects may be
/// resized and deleted freely, and no lock is held while an object paints in the GUI thread.
class FRAMEWORK_EXPORT ThumbnailPainter : public QObject
{
    Q_OBJECT

public:
    /// Without a request, idle.
    explicit ThumbnailPainter(QObject *parent = nullptr);
    ~ThumbnailPainter() override;

    /// Requests a picture of the page that fits into `size` (pixels), at the page's aspect ratio. A page that is
    /// already waiting keeps its place with the new size; one that changes while it is being painted is started
    /// again.
    void request(Page *page, const QSize &size);
    /// Whether no page waits.
    bool isIdle() const { return m_jobs.empty(); }
    /// Paints all waiting pages before it returns.
    void finish();
    /// Number of threads that paint at the same time; by default the number of cores, at most 4.
    void setWorkerCount(int count);

Q_SIGNALS:
    /// Emitted in the GUI thread.
    void ready(pagehost::Page *page, const QImage &picture);

private:
    void paintWindow(int milliseconds);
    void dropOrphans();
    void deliverFinished();

    QThreadPool m_workers;
    QTimer m_timer;
    std::vector<std::unique_ptr<ThumbnailJob>> m_jobs;
};

} // namespace pagehost
