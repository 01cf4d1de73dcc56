#pragma once

#include "lessons/lessonoutline.h"

#include <pagehost/lessonplayer.h>

#include <QtCore/QObject>
#include <QtCore/QTimer>

class QImage;

namespace board {

/// Paints moments of a lesson. Plays it up to them on a document of its own, a step per turn of the event loop, so
/// that a long lesson holds nothing up.
class MomentPainter : public QObject
{
    Q_OBJECT

public:
    /// The registry must outlive this.
    explicit MomentPainter(const pagehost::ObjectRegistry *registry, QObject *parent = nullptr);

    void setLesson(const pagehost::Lesson &lesson, const pagehost::AssetStore &assets);
    /// Replaces the request before. `time` in milliseconds; the picture of the page fits into `size` (pixels).
    void request(qint64 time, const QSize &size);
    void cancel();

Q_SIGNALS:
    void ready(const QImage &picture);

private:
    void work();
    void paint();

    pagehost::LessonPlayer m_player;
    QVector<Gesture> m_gestures;
    qint64 m_wanted = 0;
    QSize m_size;
    QTimer m_turn;
};

} // namespace board
