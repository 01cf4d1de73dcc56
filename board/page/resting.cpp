#include "page/resting.h"

#include <QtCore/QLineF>

namespace board {

namespace {

constexpr int restTime = 500; ///< milliseconds

} // namespace

Resting::Resting(pagehost::Pointer pointer, QObject *parent)
    : QObject(parent)
    , m_pointer(pointer)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, [this] { Q_EMIT rested(m_pos->toPoint()); });
}

void Resting::press(const QPointF &pos)
{
    m_pos = pos;
    m_timer.start(restTime);
}

void Resting::move(const QPointF &pos)
{
    if (m_pos && QLineF(*m_pos, pos).length() >= pagehost::dragStart(m_pointer))
        end();
}

void Resting::end()
{
    m_pos.reset();
    m_timer.stop();
}

} // namespace board
