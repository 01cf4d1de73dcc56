#pragma once

#include <pagehost/assetstore.h>
#include <pagehost/lesson.h>
#include <pagehost/lessonclock.h>
#include <pagehost/pagescene.h>

#include <framework/framework_global.h>

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include <memory>

class CBaseObject;

namespace pagehost {

class Document;
class LessonStage;
class ObjectRegistry;

/// Plays a lesson on a document of its own, which nobody can edit: in real time, as fast as possible, or up to any
/// moment.
///
/// In real time the object that changes is highlighted (PageScene::setHighlight()).
class FRAMEWORK_EXPORT LessonPlayer : public QObject
{
    Q_OBJECT

public:
    /// The registry makes the objects and must outlive the player.
    explicit LessonPlayer(const ObjectRegistry *registry, QObject *parent = nullptr);
    /// Deletes the document.
    ~LessonPlayer() override;

    /// Sets the source of time from the next setLesson() on.
    void setTimeSource(const MillisecondSource &source) { m_source = source; }

    /// The assets that lessons from the next setLesson() on name: those of the document that holds them.
    void setAssets(const AssetStore &assets) { m_assets = assets; }
    /// Stops, and shows the start of this lesson in a new document.
    void setLesson(const Lesson &lesson);
    /// The lesson that is played; without events before the first setLesson().
    const Lesson &lesson() const { return m_lesson; }
    /// The lesson's pages at position(); null before the first setLesson(). Deleted when a new one replaces it
    /// (documentReplaced()).
    Document *document() const;

    /// Continues from position(), or from the start when that is the end.
    void play();
    /// Stops at position(), where play() goes on.
    void pause();
    /// Whether the lesson is playing in real time.
    bool isPlaying() const { return m_clock.isRunning(); }
    /// Milliseconds of the lesson per millisecond of real time, positive; initially 1. Other rates are ignored.
    void setSpeed(double speed);
    /// See setSpeed().
    double speed() const { return m_clock.rate(); }
    /// Shows the lesson at this moment, in milliseconds, limited to 0 to duration(); continues playing if it was.
    void seek(qint64 time);
    /// Plays the rest as fast as possible, and stops.
    void playToEnd();

    qint64 position() const { return m_position; } ///< milliseconds
    /// Milliseconds.
    qint64 duration() const { return m_lesson.duration; }

Q_SIGNALS:
    /// Another document shows the lesson; the previous one still exists while this is emitted.
    void documentReplaced();
    /// Milliseconds, as position() gives them.
    void positionChanged(qint64 time);
    /// See isPlaying().
    void playingChanged(bool playing);
    /// The end has been reached.
    void finished();

private:
    void tick();
    CBaseObject *advance(qint64 time);
    void showStart();
    void setPosition(qint64 time);
    void pointOut(CBaseObject *object);
    void stopPlaying();

    const ObjectRegistry *m_registry;
    MillisecondSource m_source;
    LessonClock m_clock;
    QTimer m_timer;
    AssetStore m_assets;
    Lesson m_lesson;
    std::unique_ptr<LessonStage> m_stage;
    int m_played = 0; ///< events that have happened
    qint64 m_position = 0;
    QPointer<PageScene> m_highlighted;
    qint64 m_highlightEnd = 0; ///< position at which the highlight ends
};

} // namespace pagehost
