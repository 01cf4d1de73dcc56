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

/// Plays what moves on the page that a view shows: the objects that know the special property AnimationRuns.
///
/// Only what is to be seen runs. An object that is scrolled away, hidden or on another page stands still and costs
/// nothing, and goes on when it is seen again; so does everything while the view is hidden or its window minimised.
class FRAMEWORK_EXPORT AnimationPlayer : public QObject
{
    Q_OBJECT

public:
    /// Plays as soon as there is a page. The player must not outlive the view.
    explicit AnimationPlayer(QGraphicsView *view, QObject *parent = nullptr);
    /// Everything stands still afterwards.
    ~AnimationPlayer() override;

    /// The page that the view shows; null for none. What moved on the page before stands still.
    void setPage(Page *page);
    bool isPlaying() const { return m_playing; }
    void setPlaying(bool playing);
    /// Whether something on the page moves, playing or not.
    bool hasAnimation() const { return !m_moving.isEmpty(); }
    /// Starts and stops objects by what the view shows now, which otherwise happens in the next turn of the event
    /// loop.
    void settle();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void playingChanged(bool playing);
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
