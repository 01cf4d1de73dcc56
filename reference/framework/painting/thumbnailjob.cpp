#include <painting/thumbnailjob.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>
#include <pagehost/pagepainter.h>

#include <QtGui/QPainter>

namespace pagehost {

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
    if (!m_begun || m_revision != m_page->revision()) {
        begin();
    }
}

void ThumbnailJob::begin()
{
    m_begun = true;
    m_revision = m_page->revision();
    m_next = 0;
    m_steps.clear();
    const QSizeF fitted = m_page->size().scaled(m_size, Qt::KeepAspectRatio);
    m_picture = QImage(qMax(1, qRound(fitted.width())), qMax(1, qRound(fitted.height())),
                       QImage::Format_ARGB32_Premultiplied);
    m_picture.fill(Qt::transparent);
    {
        QPainter painter(&m_picture);
        paintPageBackground(m_page, &painter, m_picture.rect());
    }
    const QTransform toPixels = QTransform::fromScale(m_picture.width() / m_page->size().width(),
                                                      m_picture.height() / m_page->size().height());
    const QVector<CBaseObject *> objects = m_page->objects();
    for (CBaseObject *object : objects) {
        if (object->isVisible()) {
            m_steps.append({object, object->sceneTransform() * toPixels, object->effectiveOpacity()});
        }
    }
}

void ThumbnailJob::run(const QDeadlineTimer &deadline)
{
    if (isFinished()) {
        return;
    }
    QPainter painter(&m_picture);
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
