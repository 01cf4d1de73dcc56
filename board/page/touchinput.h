#pragma once

#include "page/resting.h"
#include "page/touchjudge.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QEvent>
#include <QtCore/QObject>

#include <optional>

class QMouseEvent;
class QTouchEvent;
class QWidget;

namespace board {

/// Makes of touches on a viewport what they may do: mouse events of one finger, and signals of several.
class TouchInput : public QObject
{
    Q_OBJECT

public:
    /// The viewport must outlive this.
    explicit TouchInput(QWidget *viewport);

    void setFingersDraw(bool draw) { m_judge.setFingersDraw(draw); }
    void touch(const QTouchEvent &event);
    /// The pen has done something: fingers make way for it.
    void seePen();
    /// Whether Qt or the platform has made the event of a touch that touch() gets, too.
    bool isCopy(const QMouseEvent &event) const;
    /// Takes back what a finger does. Until it leaves, it does nothing any more.
    void drop();

Q_SIGNALS:
    /// The use of a finger as a mouse is to be taken back.
    void withdrawn();
    /// Fingers hold the page, `middle` being that between them; viewport coordinates.
    void held(const QPointF &middle);
    /// Those have moved: their middle is there, and they are so many times as far apart as at held().
    void pulled(const QPointF &middle, double factor);
    /// A finger has rested; viewport coordinates.
    void restedLong(const QPoint &pos);
    /// The pen has left the screen.
    void penLeft();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Contact contactOf(int id, const QPointF &pos, const QSizeF &pixels) const;
    void lift(const std::optional<QPointF> &pos);
    void press(const Contact &finger);
    void move(const Contact &finger);
    void pull(const QVector<Contact> &fingers);
    void waitForRest(const QVector<Contact> &fingers);
    void send(QEvent::Type type, const QPointF &pos);

    QWidget *m_viewport;
    TouchJudge m_judge;
    QElapsedTimer m_clock;
    bool m_hasTouches = false;
    std::optional<int> m_finger; ///< that is a mouse with its button held
    QPointF m_pressed;           ///< viewport coordinates
    QPointF m_pos;
    bool m_isTap = false;                ///< the finger has not moved
    std::optional<qint64> m_lastTapTime; ///< milliseconds
    QPointF m_lastTap;
    QVector<int> m_holding; ///< fingers that hold the page
    double m_spread = 0;    ///< their distance from their middle at held(), pixels
    Resting m_rest;
};

} // namespace board
