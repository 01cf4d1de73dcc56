#pragma once

#include <framework/framework_global.h>

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtCore/QVector>

class CBaseObject;
class QGraphicsView;

namespace pagehost {

class Page;

/// Plays the animated objects of the page that a view shows: those with the special property AnimationRuns.
///
/// Only visible objects play. An object that is scrolled away, hidden or on another page stops, costs nothing, and
/// continues when it is visible again; so does everything while the view is hidden or its window minimised.
class FRAMEWORK_EXPORT AnimationPlayer : public QObject
{
    Q_OBJECT

public:
    /// Starts playing as soon as there is a page. The player must not outlive the view.
    explicit AnimationPlayer(QGraphicsView *view, QObject *parent = nullptr);
    /// Stops all objects.
    ~AnimationPlayer() override;

    /// The page that the view shows; null for none. Animations of the page before stop.
    void setPage(Page *page);
    /// Whether objects play while they are visible; initially true.
    bool isPlaying() const { return m_playing; }
    /// Plays or pauses all objects; paused ones stop where they are.
    void setPlaying(bool playing);
    /// Whether the page has animated objects, playing or not.
    bool hasAnimation() const { return !m_moving.isEmpty(); }
    /// Starts and stops objects by their present visibility, which otherwise happens in the next turn of the event
    /// loop.
    void settle();

    /// Watches the view and its window: what is visible may have changed.
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// setPlaying() has changed it.
    void playingChanged(bool playing);
    /// The first animated object has come, or the last one has gone.
    void hasAnimationChanged(bool hasAnimation);

private:
    void takeObject(CBaseObject *object);
    void dropObject(CBaseObject *object);
    void reportAnimation(bool before);
    void leavePage();

    QGraphicsView *m_view;
    QPointer<Page> m_page;
    QVector<CBaseObject *> m_moving; ///< of the page, in no order
    QTimer m_turn;
    bool m_playing = true;
};

} // namespace pagehost
