#include <board/hands.h>

#include <QtGui/QTabletEvent>
#include <QtGui/QWheelEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

namespace boardtest {

namespace {

/// Degrees of a notch times eight.
constexpr int notchAngle = 120;

class SentHands final : public Hands
{
public:
    void move(QWidget *over, const QPoint &pos, Qt::MouseButtons held, Qt::KeyboardModifiers modifiers) override
    {
        QMouseEvent event(QEvent::MouseMove, pos, over->mapToGlobal(pos), Qt::NoButton, held, modifiers);
        QApplication::sendEvent(over, &event);
    }
    void press(QWidget *on, const QPoint &pos, Qt::KeyboardModifiers modifiers) override
    {
        QTest::mousePress(on, Qt::LeftButton, modifiers, pos);
    }
    void pressAgain(QWidget *on, const QPoint &pos) override { QTest::mouseDClick(on, Qt::LeftButton, {}, pos); }
    void release(QWidget *on, const QPoint &pos, Qt::KeyboardModifiers modifiers) override
    {
        QTest::mouseRelease(on, Qt::LeftButton, modifiers, pos);
    }
    void wheel(QWidget *over, const QPoint &pos, int notches, Qt::KeyboardModifiers modifiers) override
    {
        QWheelEvent event(pos, over->mapToGlobal(pos), QPoint(), QPoint(0, notchAngle * notches), Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(over, &event);
    }
    void key(QWidget *focused, Qt::Key key, Qt::KeyboardModifiers modifiers) override
    {
        QTest::keyClick(focused, key, modifiers);
    }
    void type(QWidget *focused, const QString &text) override { QTest::keyClicks(focused, text); }
    bool dragAndDrop(QWidget *, const QPoint &, const QPoint &) override { return false; }
    bool pen(QWidget *on, QEvent::Type type, const QPointF &pos, double pressure) override
    {
        const bool isMove = type == QEvent::TabletMove;
        QTabletEvent event(type, pos, on->mapToGlobal(pos.toPoint()), QTabletEvent::Stylus, QTabletEvent::Pen,
                           pressure, 0, 0, 0, 0, 0, Qt::NoModifier, 1, isMove ? Qt::NoButton : Qt::LeftButton,
                           Qt::LeftButton);
        QApplication::sendEvent(on, &event);
        return event.isAccepted();
    }
};

} // namespace

std::unique_ptr<Hands> sentHands()
{
    return std::make_unique<SentHands>();
}

std::unique_ptr<Hands> hands()
{
    return qgetenv("BOARD_TEST_HANDS") == "real" ? realHands() : sentHands();
}

} // namespace boardtest
