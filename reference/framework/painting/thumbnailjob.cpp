#include <painting/thumbnailjob.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>
#include <pagehost/pagepainter.h>

#include <QtGui/QPainter>

#include <cmath>

namespace pagehost {

namespace {

/// Largest factor, along each axis, by which a page is painted larger than its thumbnail.
constexpr int mostOversampling = 4;

/// Objects are painted from finished pictures. Sampled at a quarter of their size these lose thin lines, so the
/// page is painted at nearly its own size and averaged.
int oversampling(const QSizeF &pageSize, const QSize &thumbnail)
{
    const double shrinking = pageSize.width() / thumbnail.width();
    return int(std::ceil(qBound(1.0, shrinking, double(mostOversampling))));
}

} // namespace

ThumbnailJob::ThumbnailJob(Page *page, const QSize &size)
    : m_page(page)
    , m_size(size)
{
}

void ThumbnailJob::setSize(const QSize &size)
{
    if (size != m_size) {
        m_size = size;
        m_begun = false;
    }
}

void ThumbnailJob::prepare()
{
    if (!m_begun || m_revision != m_page->revision())
        begin();
}

void ThumbnailJob::begin()
{
    m_begun = true;
    m_revision = m_page->revision();
    m_next = 0;
    m_steps.clear();
    const QSizeF fitted = m_page->size().scaled(m_size, Qt::KeepAspectRatio);
    m_pictureSize = QSize(qMax(1, qRound(fitted.width())), qMax(1, qRound(fitted.height())));
    m_canvas =
        QImage(m_pictureSize * oversampling(m_page->size(), m_pictureSize), QImage::Format_ARGB32_Premultiplied);
    m_canvas.fill(Qt::transparent);
    {
        QPainter painter(&m_canvas);
        paintPageBackground(m_page, &painter, m_canvas.rect());
    }
    const QTransform toPixels = QTransform::fromScale(m_canvas.width() / m_page->size().width(),
                                                      m_canvas.height() / m_page->size().height());
    const QVector<CBaseObject *> objects = m_page->objects();
    for (CBaseObject *object : objects)
        if (object->isVisible())
            m_steps.append({object, object->sceneTransform() * toPixels, object->effectiveOpacity()});
}

QImage ThumbnailJob::picture() const
{
    return m_canvas.scaled(m_pictureSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

void ThumbnailJob::run(const QDeadlineTimer &deadline)
{
    if (isFinished())
        return;
    QPainter painter(&m_canvas);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    do {
        const Step &step = m_steps.at(m_next);
        painter.save();
        painter.setTransform(step.transform);
        painter.setOpacity(step.opacity);
        step.object->OnQPainterDraw(&painter);
        painter.restore();
        ++m_next;
    } while (!isFinished() && !deadline.hasExpired());
}

} // namespace pagehost
