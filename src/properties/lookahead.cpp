#include "properties/lookahead.h"

#include <QtCore/QIODevice>

#include <limits>

Lookahead::Lookahead(QIODevice &device)
    : m_device(device)
    , m_start(device.pos())
    , m_available(qMin(device.bytesAvailable(), qint64(std::numeric_limits<int>::max())))
{
}

Lookahead::~Lookahead()
{
    if (!m_device.isSequential() && m_device.pos() != m_start)
        m_device.seek(m_start);
}

QByteArray Lookahead::bytes(qint64 offset, int size)
{
    // Seeking a writable device past its end would extend it.
    if (offset >= m_available)
        return {};
    if (!m_device.isSequential()) {
        m_device.seek(m_start + offset);
        return m_device.read(size);
    }
    // Doubles the window, so that many small steps don't copy the same bytes again and again.
    const qint64 end = qMin(offset + size, m_available);
    if (end > m_peeked.size())
        m_peeked = m_device.peek(qMin(qMax(end, qint64(m_peeked.size()) * 2), m_available));
    return m_peeked.mid(int(offset), size);
}
