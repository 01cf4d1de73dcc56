#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>
#include <QtCore/QIODevice>

namespace support {

/// The values, one after the other, as a QDataStream of default version writes them.
template<typename... Values> QByteArray bytesOf(const Values &...values)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    (stream << ... << values);
    return bytes;
}

/// One value read from the start of the bytes.
template<typename Value> Value valueOf(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    Value value{};
    stream >> value;
    return value;
}

/// A stream to read the given values from, for operations that take a QDataStream.
class Input
{
public:
    explicit Input(const QByteArray &bytes)
        : m_bytes(bytes)
        , m_stream(m_bytes)
    {
    }
    operator QDataStream &() { return m_stream; }
    /// How many bytes were read so far.
    qint64 consumed() const { return m_stream.device()->pos(); }
    QDataStream::Status status() const { return m_stream.status(); }

private:
    QByteArray m_bytes;
    QDataStream m_stream;
};

/// An Input that holds the given values.
template<typename... Values> Input inputOf(const Values &...values)
{
    return Input(bytesOf(values...));
}

/// A stream to write into, for operations that take a QDataStream.
class Output
{
public:
    Output()
        : m_stream(&m_bytes, QIODevice::WriteOnly)
    {
    }
    operator QDataStream &() { return m_stream; }
    QByteArray bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
    QDataStream m_stream;
};

} // namespace support
