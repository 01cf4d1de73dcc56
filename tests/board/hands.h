#pragma once

#include <QtCore/QEvent>
#include <QtCore/QPoint>
#include <QtCore/QString>

#include <memory>

class QWidget;

namespace boardtest {

/// A user at mouse, keys and pen; the main button alone. Positions are pixels of the widget.
/// Each function returns after the program has answered, so that a test can look at once.
class Hands
{
public:
    Hands() = default;
    Hands(const Hands &) = delete;
    Hands &operator=(const Hands &) = delete;
    virtual ~Hands() = default;

    virtual void move(QWidget *over, const QPoint &pos, Qt::MouseButtons held, Qt::KeyboardModifiers modifiers) = 0;
    virtual void press(QWidget *on, const QPoint &pos, Qt::KeyboardModifiers modifiers) = 0;
    /// The second press of a double click, however long after the first.
    virtual void pressAgain(QWidget *on, const QPoint &pos) = 0;
    virtual void release(QWidget *on, const QPoint &pos, Qt::KeyboardModifiers modifiers) = 0;
    /// Turns the wheel; away from the user for +1.
    virtual void wheel(QWidget *over, const QPoint &pos, int notches, Qt::KeyboardModifiers modifiers) = 0;
    /// Presses and releases a key. The widget has the focus.
    virtual void key(QWidget *focused, Qt::Key key, Qt::KeyboardModifiers modifiers) = 0;
    /// Types characters that a keyboard of the United States has.
    virtual void type(QWidget *focused, const QString &text) = 0;
    /// Drags something out of a widget and drops it there, which takes a window system: false where there is none.
    virtual bool dragAndDrop(QWidget *in, const QPoint &from, const QPoint &to) = 0;
    /// Touches the widget with a pen, 0 to 1 hard. True if the program has used the event as one of a pen.
    virtual bool pen(QWidget *on, QEvent::Type type, const QPointF &pos, double pressure) = 0;
};

/// Hands whose events Qt makes, without a window system.
std::unique_ptr<Hands> sentHands();
/// Hands at the mouse and the keyboard of the X server that the program is shown on: its events reach the program
/// as those of users do. Pens, which such a server hasn't, touch the program's windows directly.
std::unique_ptr<Hands> realHands();
/// Real ones where the variable BOARD_TEST_HANDS is "real".
std::unique_ptr<Hands> hands();

} // namespace boardtest
