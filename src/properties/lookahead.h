#pragma once

#include <QtCore/QByteArray>

class QIODevice;

/// Peeks at a device's next bytes without consuming them. Reads only the requested bytes from a device that can
/// seek; from others it copies all bytes up to them.
class Lookahead
{
public:
    explicit Lookahead(QIODevice &device);
    ~Lookahead();
    Lookahead(const Lookahead &) = delete;
    Lookahead &operator=(const Lookahead &) = delete;

    /// Number of bytes that can be peeked at: all, but no more than an array holds.
    qint64 available() const { return m_available; }
    /// The `size` bytes at `offset` bytes ahead; fewer at the end of the device.
    QByteArray bytes(qint64 offset, int size);

private:
    QIODevice &m_device;
    qint64 m_start;
    qint64 m_available;
    QByteArray m_peeked; ///< of a device that cannot seek
};
