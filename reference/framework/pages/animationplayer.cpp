#include <pagehost/animationplayer.h>

#include <framework/cbaseobject.h>

#include <pagehost/objectplugin.h>
#include <pagehost/page.h>

#include <host/objectplaying.h>
#include <host/payload.h>

#include <QtCore/QDataStream>
#include <QtCore/QEvent>
#include <QtWidgets/QGraphicsView>

#include <optional>

namespace pagehost {

namespace {

/// Empty for an object without animation.
std::optional<bool> isRunning(CBaseObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!object.GetSpecialProperty(AnimationRuns, out))
        return std::nullopt;
    bool running = false;
    QDataStream(bytes) >> running;
    return running;
}

void setRunning(CBaseObject &object, bool running)
{
    if (isRunning(object).value_or(running) == running)
        return;
    setPlayed(object, running);
    const QByteArray bytes = payloadOf(running);
    QDataStream in(bytes);
    object.SetSpecialProperty(AnimationRuns, in, false);
}

QRectF visibleArea(const QGraphicsView &view)
{
    if (!view.isVisible() || view.window()->isMinimized())
        return {};
    return view.mapToScene(view.viewport()->rect()).boundingRect();
}

bool isIn(const CBaseObject &object, const QRectF &area)
{
    return object.QGraphicsItem::isVisible() && object.mapRectToScene(object.getClientRect()).intersects(area);
}

} // namespace

AnimationPlayer::AnimationPlayer(QGraphicsView *view, QObject *parent)
    : QObject(parent)
    , m_view(view)
{
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, &AnimationPlayer::settle);
    m_view->viewport()->installEventFilter(this);
}

AnimationPlayer::~AnimationPlayer()
{
    leavePage();
}

void AnimationPlayer::setPage(Page *page)
{
    if (page == m_page && page)
        return;
    const bool before = hasAnimation();
    leavePage();
    m_page = page;
    if (m_page) {
        connect(m_page, &Page::objectAdded, this, &AnimationPlayer::takeObject);
        connect(m_page, &Page::objectChanged, this, &AnimationPlayer::takeObject);
        connect(m_page, &Page::objectRemoved, this, &AnimationPlayer::dropObject);
        const QVector<CBaseObject *> objects = m_page->objects();
        for (CBaseObject *object : objects)
            if (isRunning(*object))
                m_moving.append(object);
    }
    m_turn.start(0);
    reportAnimation(before);
}

/// A deleted page took its objects with it.
void AnimationPlayer::leavePage()
{
    const QVector<CBaseObject *> moving = m_moving;
    m_moving.clear();
    if (!m_page)
        return;
    disconnect(m_page, nullptr, this, nullptr);
    for (CBaseObject *object : moving)
        setRunning(*object, false);
}

void AnimationPlayer::setPlaying(bool playing)
{
    if (playing == m_playing)
        return;
    m_playing = playing;
    settle();
    Q_EMIT playingChanged(playing);
}

/// Contents decide whether an object has an animation, and they may change.
void AnimationPlayer::takeObject(CBaseObject *object)
{
    if (!object || !m_page->contains(object))
        return;
    const bool before = hasAnimation();
    if (!isRunning(*object)) {
        m_moving.removeOne(object);
    } else {
        if (!m_moving.contains(object))
            m_moving.append(object);
        m_turn.start(0);
    }
    reportAnimation(before);
}

void AnimationPlayer::dropObject(CBaseObject *object)
{
    const bool before = hasAnimation();
    if (m_moving.removeOne(object))
        setRunning(*object, false);
    reportAnimation(before);
}

void AnimationPlayer::reportAnimation(bool before)
{
    if (hasAnimation() != before)
        Q_EMIT hasAnimationChanged(hasAnimation());
}

void AnimationPlayer::settle()
{
    m_turn.stop();
    if (!m_page)
        return;
    const QRectF area = m_playing ? visibleArea(*m_view) : QRectF();
    // Starting paints, and listeners may delete objects.
    const QVector<CBaseObject *> moving = m_moving;
    for (CBaseObject *object : moving)
        if (m_moving.contains(object))
            setRunning(*object, isIn(*object, area));
}

/// Scrolling and zooming appear as repaints.
bool AnimationPlayer::eventFilter(QObject *watched, QEvent *event)
{
    const bool mayMatter = event->type() == QEvent::Paint || event->type() == QEvent::Resize ||
                           event->type() == QEvent::Show || event->type() == QEvent::Hide;
    if (mayMatter && hasAnimation() && !m_turn.isActive())
        m_turn.start(0);
    return QObject::eventFilter(watched, event);
}

} // namespace pagehost
