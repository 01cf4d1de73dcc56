#pragma once

#include <pagehost/pointer.h>

#include <QtCore/QObject>
#include <QtCore/QPointF>
#include <QtCore/QTimer>

#include <optional>

namespace board {

/// Notices that a pressed finger or pen stays where it came down. One that has gone so far as to drag has not
/// rested, wherever it stays then. Positions are viewport coordinates.
class Resting : public QObject
{
    Q_OBJECT

public:
    explicit Resting(pagehost::Pointer pointer, QObject *parent = nullptr);

    void press(const QPointF &pos);
    void move(const QPointF &pos);
    void end();

Q_SIGNALS:
    void rested(const QPoint &pos);

private:
    pagehost::Pointer m_pointer;
    QTimer m_timer;
    std::optional<QPointF> m_pos;
};

} // namespace board
