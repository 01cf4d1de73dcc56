#pragma once

#include <functional>

/// Time that passes only when a test says so. In a program that links `gliololok_virtualtime` the monotonic clock
/// stands still from the start, so that Qt's timers and elapsed timers give the same answers on any machine,
/// however busy.
///
/// Whatever waits for real time (QTest::qWait, QTRY_VERIFY, QSignalSpy::wait) would wait for ever in such a
/// program.
namespace support {

/// Lets `milliseconds` pass, one after the other; events are delivered and due timers fire at each of them.
void pass(int milliseconds);

/// Time that the calling thread takes for itself: no events are delivered.
void spend(int microseconds);

/// Delivers what is waiting, without time passing.
void deliverEvents();

/// Lets time pass until `condition` holds, a minute at the most. Whether it holds.
bool passUntil(const std::function<bool()> &condition);

} // namespace support
