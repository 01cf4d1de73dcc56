#include <board/hands.h>
#include <board/keyboard.h>

#include <support/patience.h>

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QAbstractNativeEventFilter>
#include <QtGui/QDrag>
#include <QtGui/QTabletEvent>
#include <QtGui/QWindow>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <xcb/xcb.h>
#include <xcb/xcb_keysyms.h>
#include <xcb/xtest.h>

#include <limits>

namespace boardtest {

namespace {

enum Button : std::uint8_t { MainButton = 1, WheelAway = 4, WheelTowards = 5 };

struct Freed
{
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
    void operator()(xcb_key_symbols_t *symbols) const { xcb_key_symbols_free(symbols); }
    void operator()(void *reply) const { std::free(reply); }
};

/// Notices the marks that are sent through the X server to the program's own connection. The server delivers in
/// order: whoever sees a mark has seen what was done before.
class Marks final : public QAbstractNativeEventFilter
{
public:
    Marks() { qApp->installNativeEventFilter(this); }
    ~Marks() override { qApp->removeNativeEventFilter(this); }

    std::uint32_t seen() const { return m_seen; }

    bool nativeEventFilter(const QByteArray &, void *message, long *) override
    {
        const auto *event = static_cast<const xcb_client_message_event_t *>(message);
        if ((event->response_type & ~sentFlag) != XCB_CLIENT_MESSAGE || event->type != kind)
            return false;
        m_seen = event->data.data32[0];
        return true;
    }

    /// Any atom that window managers don't send.
    static constexpr xcb_atom_t kind = XCB_ATOM_CUT_BUFFER0;

private:
    static constexpr std::uint8_t sentFlag = 0x80;
    std::uint32_t m_seen = 0;
};

class RealHands final : public Hands
{
public:
    RealHands();
    ~RealHands() override { holdModifiers(Qt::NoModifier); }

    void move(QWidget *over, const QPoint &pos, Qt::MouseButtons held, Qt::KeyboardModifiers modifiers) override;
    void press(QWidget *on, const QPoint &pos, Qt::KeyboardModifiers modifiers) override;
    void pressAgain(QWidget *on, const QPoint &pos) override;
    void release(QWidget *on, const QPoint &pos, Qt::KeyboardModifiers modifiers) override;
    void wheel(QWidget *over, const QPoint &pos, int notches, Qt::KeyboardModifiers modifiers) override;
    void key(QWidget *focused, Qt::Key key, Qt::KeyboardModifiers modifiers) override;
    void type(QWidget *focused, const QString &text) override;
    bool dragAndDrop(QWidget *in, const QPoint &from, const QPoint &to) override;
    bool pen(QWidget *on, QEvent::Type type, const QPointF &pos, double pressure) override;

private:
    void send(std::uint8_t type, std::uint8_t detail, const QPoint &pos = {});
    void sendKey(std::uint32_t symbol, bool down);
    void holdModifiers(Qt::KeyboardModifiers wanted);
    void pressButton(QWidget *on, const QPoint &pos, Qt::KeyboardModifiers modifiers, int doubleClickInterval);
    void strike(std::uint32_t symbol, Qt::KeyboardModifiers modifiers);
    bool needsShift(std::uint32_t symbol) const;
    xcb_keycode_t codeOf(std::uint32_t symbol) const;
    /// Returns when the program has answered all that was done.
    void settle();

    std::unique_ptr<xcb_connection_t, Freed> m_server{xcb_connect(nullptr, nullptr)};
    std::unique_ptr<xcb_key_symbols_t, Freed> m_symbols;
    xcb_window_t m_root = XCB_NONE;
    Qt::KeyboardModifiers m_held;
    /// Never shown; marks are sent to it.
    QWindow m_target;
    Marks m_marks;
    std::uint32_t m_lastMark = 0;
};

RealHands::RealHands()
{
    if (xcb_connection_has_error(m_server.get()))
        qFatal("no X server answers");
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_server.get())).data->root;
    m_symbols.reset(xcb_key_symbols_alloc(m_server.get()));
    // On a busy machine a pressed key would repeat itself.
    const std::uint32_t off = XCB_AUTO_REPEAT_MODE_OFF;
    xcb_change_keyboard_control(m_server.get(), XCB_KB_AUTO_REPEAT_MODE, &off);
    m_target.create();
}

void RealHands::send(std::uint8_t type, std::uint8_t detail, const QPoint &pos)
{
    xcb_test_fake_input(m_server.get(), type, detail, XCB_CURRENT_TIME, m_root, std::int16_t(pos.x()),
                        std::int16_t(pos.y()), 0);
}

xcb_keycode_t RealHands::codeOf(std::uint32_t symbol) const
{
    const std::unique_ptr<xcb_keycode_t, Freed> codes(xcb_key_symbols_get_keycode(m_symbols.get(), symbol));
    if (!codes || *codes == XCB_NO_SYMBOL)
        qFatal("the keyboard lacks the key with the symbol %u", symbol);
    return *codes;
}

bool RealHands::needsShift(std::uint32_t symbol) const
{
    const xcb_keycode_t code = codeOf(symbol);
    return xcb_key_symbols_get_keysym(m_symbols.get(), code, 0) != symbol &&
           xcb_key_symbols_get_keysym(m_symbols.get(), code, 1) == symbol;
}

void RealHands::sendKey(std::uint32_t symbol, bool down)
{
    send(down ? XCB_KEY_PRESS : XCB_KEY_RELEASE, codeOf(symbol));
}

void RealHands::holdModifiers(Qt::KeyboardModifiers wanted)
{
    const std::pair<Qt::KeyboardModifier, Qt::Key> keys[] = {
        {Qt::ShiftModifier, Qt::Key_Shift}, {Qt::ControlModifier, Qt::Key_Control}, {Qt::AltModifier, Qt::Key_Alt}};
    for (const auto &[modifier, key] : keys) {
        if (wanted.testFlag(modifier) == m_held.testFlag(modifier))
            continue;
        sendKey(keySymbol(key), wanted.testFlag(modifier));
    }
    m_held = wanted;
    xcb_flush(m_server.get());
}

void RealHands::settle()
{
    xcb_client_message_event_t mark{};
    mark.response_type = XCB_CLIENT_MESSAGE;
    mark.format = 32;
    mark.window = xcb_window_t(m_target.winId());
    mark.type = Marks::kind;
    mark.data.data32[0] = ++m_lastMark;
    xcb_send_event(m_server.get(), false, mark.window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&mark));
    xcb_flush(m_server.get());
    if (!QTest::qWaitFor([this] { return m_marks.seen() >= m_lastMark; }, support::patience))
        qFatal("the program doesn't answer");
    QCoreApplication::processEvents();
}

void RealHands::move(QWidget *over, const QPoint &pos, Qt::MouseButtons, Qt::KeyboardModifiers modifiers)
{
    holdModifiers(modifiers);
    send(XCB_MOTION_NOTIFY, 0, over->mapToGlobal(pos));
    settle();
}

void RealHands::pressButton(QWidget *on, const QPoint &pos, Qt::KeyboardModifiers modifiers,
                            int doubleClickInterval)
{
    QApplication::setDoubleClickInterval(doubleClickInterval);
    move(on, pos, Qt::NoButton, modifiers);
    send(XCB_BUTTON_PRESS, MainButton);
    settle();
}

void RealHands::press(QWidget *on, const QPoint &pos, Qt::KeyboardModifiers modifiers)
{
    // However quickly one press follows the other.
    pressButton(on, pos, modifiers, 0);
}

void RealHands::pressAgain(QWidget *on, const QPoint &pos)
{
    pressButton(on, pos, Qt::NoModifier, std::numeric_limits<int>::max());
}

void RealHands::release(QWidget *on, const QPoint &pos, Qt::KeyboardModifiers modifiers)
{
    move(on, pos, Qt::LeftButton, modifiers);
    send(XCB_BUTTON_RELEASE, MainButton);
    settle();
    holdModifiers(Qt::NoModifier);
    settle();
}

void RealHands::wheel(QWidget *over, const QPoint &pos, int notches, Qt::KeyboardModifiers modifiers)
{
    move(over, pos, Qt::NoButton, modifiers);
    for (int notch = 0; notch < qAbs(notches); ++notch) {
        send(XCB_BUTTON_PRESS, notches > 0 ? WheelAway : WheelTowards);
        send(XCB_BUTTON_RELEASE, notches > 0 ? WheelAway : WheelTowards);
        settle();
    }
    holdModifiers(Qt::NoModifier);
    settle();
}

void RealHands::strike(std::uint32_t symbol, Qt::KeyboardModifiers modifiers)
{
    const Qt::KeyboardModifiers before = m_held;
    holdModifiers(before | modifiers | (needsShift(symbol) ? Qt::ShiftModifier : Qt::NoModifier));
    sendKey(symbol, true);
    settle();
    sendKey(symbol, false);
    holdModifiers(before);
    settle();
}

void RealHands::key(QWidget *, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    strike(keySymbol(key), modifiers);
}

void RealHands::type(QWidget *, const QString &text)
{
    for (const QChar character : text)
        strike(character.unicode(), Qt::NoModifier);
}

/// A drag has an event loop of its own, in which the hand goes on.
bool RealHands::dragAndDrop(QWidget *in, const QPoint &from, const QPoint &to)
{
    const auto isDragging = [in] { return in->window()->findChild<QDrag *>() != nullptr; };
    bool isOnItsWay = false;
    bool isDropped = false;
    const auto drop = [&] {
        move(in, (from + to) / 2, Qt::LeftButton, Qt::NoModifier);
        move(in, to, Qt::LeftButton, Qt::NoModifier);
        release(in, to, Qt::NoModifier);
        isDropped = true;
    };
    const auto goOn = [&] {
        if (isOnItsWay || !isDragging())
            return;
        isOnItsWay = true;
        QMetaObject::invokeMethod(in, drop, Qt::QueuedConnection);
    };
    // Timers don't run where the tests' clock stands still.
    const QMetaObject::Connection waiting =
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, in, goOn);
    press(in, from, Qt::NoModifier);
    const int step = QApplication::startDragDistance() + 2;
    // The first move takes hold of it.
    for (const int moves : {1, 2})
        move(in, from + QPoint(moves * step, 0), Qt::LeftButton, Qt::NoModifier);
    const bool isDone = QTest::qWaitFor([&] { return isDropped && !isDragging(); }, support::patience);
    QObject::disconnect(waiting);
    if (!isDone)
        qFatal("nothing was dragged");
    return true;
}

bool RealHands::pen(QWidget *on, QEvent::Type type, const QPointF &pos, double pressure)
{
    QWindow *window = on->window()->windowHandle();
    const bool isMove = type == QEvent::TabletMove;
    const QPointF way = QPointF(on->mapTo(on->window(), QPoint()));
    QTabletEvent event(type, pos + way, pos + on->mapToGlobal(QPoint()), QTabletEvent::Stylus, QTabletEvent::Pen,
                       pressure, 0, 0, 0, 0, 0, Qt::NoModifier, 1, isMove ? Qt::NoButton : Qt::LeftButton,
                       type == QEvent::TabletRelease ? Qt::NoButton : Qt::LeftButton);
    QApplication::sendEvent(window, &event);
    return event.isAccepted();
}

} // namespace

std::unique_ptr<Hands> realHands()
{
    return std::make_unique<RealHands>();
}

} // namespace boardtest
