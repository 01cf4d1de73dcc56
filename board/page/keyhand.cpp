#include "page/keyhand.h"

#include "look/theme.h"
#include "page/controlpoints.h"
#include "page/nudging.h"

#include <framework/cbaseobject.h>

#include <pagehost/document.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <QtCore/QLineF>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QGraphicsView>
#include <QtWidgets/QLineEdit>

#include <optional>

namespace board {

namespace {

constexpr double usualTurn = 15;
constexpr double largeTurn = 90;
constexpr double smallTurn = 1;
/// Drawn grips and the ring around one, logical pixels.
constexpr double gripRadius = 6;
constexpr double ringGap = 2;
constexpr double ringWidth = 2;
constexpr QMargins bubbleInside(10, 5, 10, 5);
constexpr int bubbleGap = 10;
constexpr double bubbleRadius = 8;
constexpr int fieldWidth = 120;
/// Places at which a typed value is looked for.
constexpr int mostTries = 6;
/// The longest step for a point that snaps, in steps of a key.
constexpr int mostSteps = 128;
/// A point that moves by less stands still, item units.
constexpr double standing = 1e-6;

double turnOf(const QKeyEvent &event)
{
    if (event.modifiers() & Qt::AltModifier)
        return smallTurn;
    return event.modifiers() & Qt::ShiftModifier ? largeTurn : usualTurn;
}

/// Where an arrow key points to; null for other keys.
QPointF wayOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

bool beginsNumber(const QString &text)
{
    return !text.isEmpty() && (text.at(0).isDigit() || text.at(0) == QLatin1Char('-'));
}

} // namespace

KeyHand::KeyHand(QGraphicsView *view)
    : QObject(view)
    , m_view(view)
    , m_pointName(QStringLiteral("%1"))
{
}

void KeyHand::setPage(pagehost::Page *page)
{
    finish();
    m_page = page;
}

bool KeyHand::isEditable() const
{
    return m_page && (!m_page->document() || m_page->document()->editingBlocked() == 0);
}

CBaseObject *KeyHand::object() const
{
    const QVector<CBaseObject *> selected = m_page ? m_page->selectedObjects() : QVector<CBaseObject *>();
    return selected.size() == 1 ? selected.first() : nullptr;
}

KeyHand::Part KeyHand::part() const
{
    return m_of && m_of == object() ? m_stop.part : Whole;
}

QVector<KeyHand::Stop> KeyHand::stopsOf(CBaseObject *object)
{
    QVector<Stop> stops{{Whole, 0}};
    if (object->isLocked())
        return stops;
    const QVector<ControlPoint> points = controlPointsOf(*object);
    for (const ControlPoint &point : points)
        stops.append({Point, point.number});
    if (object->canDo(OperationResize))
        stops.append({Size, 0});
    if (object->canDo(OperationRotate))
        stops.append({Turn, 0});
    return stops;
}

bool KeyHand::walk(bool forward)
{
    CBaseObject *present = object();
    if (!present)
        return walkObjects(forward);
    const QVector<Stop> stops = stopsOf(present);
    const int next = stops.indexOf(part() == Whole ? Stop() : m_stop) + (forward ? 1 : -1);
    if (next >= 0 && next < stops.size()) {
        focus(present, stops.at(next));
        return true;
    }
    if (!walkObjects(forward))
        return false;
    if (!forward) {
        const QVector<Stop> others = stopsOf(object());
        focus(object(), others.last());
    }
    return true;
}

bool KeyHand::walkObjects(bool forward)
{
    finish();
    const QVector<CBaseObject *> objects = isEditable() ? m_page->objects() : QVector<CBaseObject *>();
    const QVector<CBaseObject *> selected = isEditable() ? m_page->selectedObjects() : QVector<CBaseObject *>();
    if (objects.isEmpty())
        return false;
    const int count = objects.size();
    const int outside = forward ? -1 : count;
    const int from = selected.isEmpty() ? outside : objects.indexOf(forward ? selected.last() : selected.first());
    focus(objects.at((from + (forward ? 1 : -1) + count) % count), {});
    return true;
}

void KeyHand::focus(CBaseObject *object, const Stop &stop)
{
    finish();
    m_of = object;
    m_stop = stop;
    if (this->object() != object)
        m_page->select({object});
    m_view->viewport()->update();
    Q_EMIT focusMoved();
}

bool KeyHand::goBack()
{
    if (part() == Whole)
        return false;
    focus(object(), {});
    return true;
}

bool KeyHand::keyPress(const QKeyEvent &event)
{
    bool isUsed = false;
    switch (part()) {
    case Whole:
        return false;
    case Point:
        isUsed = movePoint(event);
        break;
    case Size:
        isUsed = resize(event);
        break;
    case Turn:
        isUsed = turn(event);
        break;
    }
    if (!isUsed)
        return false;
    m_view->viewport()->update();
    Q_EMIT focusMoved();
    return true;
}

bool KeyHand::movePoint(const QKeyEvent &event)
{
    const QPointF way = wayOf(event.key());
    if (!way.isNull())
        return moveBy(way * keyStep(*m_page, event.modifiers()));
    const ControlPoint point = controlPointOf(*object(), m_stop.number);
    const QRectF limits = limitsOf(point, *object());
    if (event.key() == Qt::Key_Home)
        return moveTo(limits.topLeft());
    if (event.key() == Qt::Key_End)
        return moveTo(limits.bottomRight());
    if (!beginsNumber(event.text()) || event.modifiers() & (Qt::ControlModifier | Qt::AltModifier))
        return false;
    ask(event.text());
    return true;
}

/// A point that snaps stays where it is for a small step: then the step grows until the point goes to its next
/// place.
bool KeyHand::moveBy(const QPointF &sceneStep)
{
    CBaseObject *moved = object();
    const QPointF before = controlPointOf(*moved, m_stop.number).place;
    const QPointF place = moved->mapToScene(before);
    for (int times = 1; times <= mostSteps; times *= 2) {
        m_drag.movePoint(m_page, moved, m_stop.number, place + sceneStep * times);
        if (QLineF(before, controlPointOf(*moved, m_stop.number).place).length() > standing)
            return true;
    }
    m_drag.movePoint(m_page, moved, m_stop.number, place);
    return true;
}

bool KeyHand::moveTo(const QPointF &place)
{
    CBaseObject *moved = object();
    m_drag.movePoint(m_page, moved, m_stop.number, moved->mapToScene(place));
    return true;
}

bool KeyHand::putPoint(CBaseObject *object, int number, const QPointF &place)
{
    if (!take(object, Point, number))
        return false;
    const bool isMoved = m_drag.movePoint(m_page, object, number, object->mapToScene(place));
    finish();
    m_view->viewport()->update();
    Q_EMIT focusMoved();
    return isMoved;
}

bool KeyHand::take(CBaseObject *object, Part part, int number)
{
    if (!isEditable() || !m_page->contains(object) || !stopsOf(object).contains({part, number}))
        return false;
    focus(object, {part, number});
    return true;
}

bool KeyHand::putValue(CBaseObject *object, int number, double value)
{
    const ControlPoint point = controlPointOf(*object, number);
    if (point.movesAcross == point.movesDown || !numberIn(point.hint) || !take(object, Point, number))
        return false;
    approach(point, value);
    Q_EMIT focusMoved();
    return true;
}

bool KeyHand::turnTo(CBaseObject *object, double degrees)
{
    if (!take(object, Turn))
        return false;
    m_drag.turn(object, degrees - object->rotation());
    finish();
    m_view->viewport()->update();
    Q_EMIT focusMoved();
    return true;
}

bool KeyHand::resize(const QKeyEvent &event)
{
    const QPointF way = wayOf(event.key());
    if (way.isNull())
        return false;
    const QPointF by = way * keyStep(*m_page, event.modifiers());
    m_drag.resize(object(), {by.x(), by.y()});
    return true;
}

/// Right and down turn clockwise.
bool KeyHand::turn(const QKeyEvent &event)
{
    const QPointF way = wayOf(event.key());
    if (way.isNull())
        return false;
    m_drag.turn(object(), (way.x() + way.y()) * turnOf(event));
    return true;
}

void KeyHand::ask(const QString &firstLetter)
{
    finish();
    delete m_field;
    m_field = new QLineEdit(firstLetter, m_view->viewport());
    m_field->setObjectName(QStringLiteral("pointValue"));
    m_field->setAccessibleName(told(object(), m_stop.number));
    m_field->setFixedWidth(fieldWidth);
    m_field->move(m_view->mapFromScene(placeOfFocus()) + QPoint(bubbleGap, bubbleGap));
    connect(m_field, &QLineEdit::returnPressed, this, &KeyHand::answer);
    connect(m_field, &QLineEdit::editingFinished, m_field, &QObject::deleteLater);
    m_field->installEventFilter(this);
    m_field->show();
    m_field->setFocus();
}

void KeyHand::answer()
{
    const ControlPoint point = part() == Point ? controlPointOf(*object(), m_stop.number) : ControlPoint();
    const std::optional<double> wanted = numberIn(m_field->text());
    if (point.number != 0 && wanted && point.movesAcross != point.movesDown && numberIn(point.hint))
        approach(point, *wanted);
    else if (point.number != 0)
        putPoint(object(), point.number, placeFrom(m_field->text(), point));
    m_view->setFocus();
    Q_EMIT focusMoved();
}

bool KeyHand::eventFilter(QObject *watched, QEvent *event)
{
    // The field is asked for last: events of its destruction come here, too, when it is no line edit any more.
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape ||
        watched != m_field)
        return false;
    m_view->setFocus();
    return true;
}

/// The value of the point is a number that only the shape can work out. It mostly grows evenly along the way, so
/// that the value at one end leads to the place, or near it.
void KeyHand::approach(const ControlPoint &point, double wanted)
{
    const QRectF limits = limitsOf(point, *object());
    const QPointF farther = point.place.x() + point.place.y() - limits.left() - limits.top() >
                                    limits.right() + limits.bottom() - point.place.x() - point.place.y()
                                ? limits.topLeft()
                                : limits.bottomRight();
    QPointF from = point.place;
    double before = *numberIn(point.hint);
    QPointF to = point.movesAcross ? QPointF(farther.x(), from.y()) : QPointF(from.x(), farther.y());
    for (int i = 0; i < mostTries; ++i) {
        moveTo(to);
        const ControlPoint now = controlPointOf(*object(), point.number);
        const double value = numberIn(now.hint).value_or(before);
        if (value == wanted || value == before)
            break;
        to = from + (now.place - from) * (wanted - before) / (value - before);
        from = now.place;
        before = value;
    }
    finish();
    m_view->viewport()->update();
}

QPointF KeyHand::placeOfFocus() const
{
    CBaseObject *focused = object();
    switch (part()) {
    case Point:
        return focused->mapToScene(controlPointOf(*focused, m_stop.number).place);
    case Size:
        return pagehost::PageScene::handlePlace(focused, CObjAction::ACT_ResizeBottomRight);
    case Turn:
        return pagehost::PageScene::handlePlace(focused, CObjAction::ACT_Rotate);
    default:
        return {};
    }
}

QString KeyHand::told(CBaseObject *object, int number) const
{
    const ControlPoint point = controlPointOf(*object, number);
    if (!point.hint.isEmpty())
        return point.hint;
    return m_pointName.arg(point.number) + QStringLiteral(": ") + valueOf(point);
}

void KeyHand::paint(QPainter *painter) const
{
    if (part() == Whole || !m_view->hasFocus() || !isEditable())
        return;
    painter->setRenderHint(QPainter::Antialiasing);
    paintRing(painter, m_view->mapFromScene(placeOfFocus()));
    const QRect frame = m_view->mapFromScene(m_page->scene()->frameBounds()).boundingRect();
    if (part() == Point)
        paintBubble(painter, {frame.center().x(), frame.bottom() + bubbleGap});
}

void KeyHand::paintRing(QPainter *painter, const QPoint &middle) const
{
    const double radius = gripRadius + ringGap + ringWidth / 2;
    painter->setPen(QPen(themeColors().accent, ringWidth));
    painter->setBrush(Qt::NoBrush);
    painter->drawEllipse(QPointF(middle), radius, radius);
}

void KeyHand::paintBubble(QPainter *painter, const QPoint &top) const
{
    const QString text = told(object(), m_stop.number);
    const QPalette palette = m_view->palette();
    QRect bubble = painter->fontMetrics().boundingRect(text).marginsAdded(bubbleInside);
    bubble.moveTopLeft(
        {top.x() - bubble.width() / 2, qMin(top.y(), m_view->viewport()->height() - bubble.height())});
    painter->setPen(Qt::NoPen);
    painter->setBrush(palette.color(QPalette::ToolTipBase));
    painter->drawRoundedRect(bubble, bubbleRadius, bubbleRadius);
    painter->setPen(palette.color(QPalette::ToolTipText));
    painter->drawText(bubble, Qt::AlignCenter, text);
}

} // namespace board
