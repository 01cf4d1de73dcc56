#pragma once

#include <QtCore/QByteArray>

class QIODevice;

/// Looks at bytes that a device is going to give, and takes none of them. Where the device can seek, only the bytes
/// that are asked for are read; elsewhere they are copied together with those before them.
class Lookahead
{
public:
    explicit Lookahead(QIODevice &device);
    ~Lookahead();
    Lookahead(const Lookahead &) = delete;
    Lookahead &operator=(const Lookahead &) = delete;

    /// So many bytes can be looked at: all there are, but no more than an array holds.
    qint64 available() const { return m_available; }
    /// So many bytes from `offset` bytes ahead on; fewer where the device has no more.
    QByteArray bytes(qint64 offset, int size);

private:
    QIODevice &m_device;
    qint64 m_start;
    qint64 m_available;
    QByteArray m_peeked; ///< of a device that cannot seek
};
