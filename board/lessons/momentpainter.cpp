#include "lessons/momentpainter.h"

#include <pagehost/document.h>
#include <pagehost/page.h>
#include <pagehost/pagepainter.h>

#include <QtGui/QImage>

namespace board {

MomentPainter::MomentPainter(const pagehost::ObjectRegistry *registry, QObject *parent)
    : QObject(parent)
    , m_player(registry)
{
    m_turn.setInterval(0);
    connect(&m_turn, &QTimer::timeout, this, &MomentPainter::work);
}

void MomentPainter::setLesson(const pagehost::Lesson &lesson, const pagehost::AssetStore &assets)
{
    cancel();
    m_gestures = gesturesOf(lesson);
    m_player.setAssets(assets);
    m_player.setLesson(lesson);
}

void MomentPainter::request(qint64 time, const QSize &size)
{
    m_wanted = qBound<qint64>(0, time, m_player.duration());
    m_size = size;
    if (m_player.document())
        m_turn.start();
}

void MomentPainter::cancel()
{
    m_turn.stop();
}

void MomentPainter::work()
{
    const qint64 position = m_player.position();
    if (position == m_wanted) {
        cancel();
        return paint();
    }
    // Backwards leads through the start.
    m_player.seek(position > m_wanted ? 0 : qMin(m_wanted, gestureAfter(m_gestures, position, m_wanted)));
}

void MomentPainter::paint()
{
    pagehost::Page *page = m_player.document()->currentPage();
    if (!page)
        return;
    const QSizeF place = page->size().scaled(m_size, Qt::KeepAspectRatio);
    const QImage picture = pagehost::pageImage(page, place.width() / page->size().width());
    Q_EMIT ready(picture);
}

} // namespace board
