#pragma once

#include <QtCore/QDeadlineTimer>
#include <QtCore/QPointer>
#include <QtCore/QSize>
#include <QtCore/QVector>
#include <QtGui/QImage>
#include <QtGui/QTransform>

class CBaseObject;

namespace pagehost {

class Page;

/// One thumbnail in progress: the list of what to paint, taken in the GUI thread, and the picture so far.
class ThumbnailJob
{
public:
    ThumbnailJob(Page *page, const QSize &size);

    Page *page() const { return m_page; }
    void setSize(const QSize &size);
    bool isFinished() const { return m_begun && m_next >= m_steps.size(); }
    /// As large as the requested size and the page's aspect ratio allow.
    QImage picture() const;

    /// In the GUI thread, before each run: starts again when the page has changed since the last.
    void prepare();
    /// In any thread, while the GUI thread waits: paints objects until done or the time is up, at least one.
    void run(const QDeadlineTimer &deadline);

private:
    struct Step
    {
        CBaseObject *object;
        QTransform transform; ///< item coordinates to pixels
        double opacity;
    };
    void begin();

    QPointer<Page> m_page;
    QSize m_size;
    bool m_begun = false;
    quint64 m_revision = 0;
    QVector<Step> m_steps;
    int m_next = 0;
    QSize m_pictureSize;
    QImage m_canvas; ///< the page so far, larger than the thumbnail
};

} // namespace pagehost
