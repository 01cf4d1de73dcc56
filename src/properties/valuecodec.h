#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>

/// The bytes of one or more values, one after the other, in QDataStream's default version and byte order: what undo
/// buffers and playback payloads are made of.
template<typename... Values> QByteArray encodeValues(const Values &...values)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    (out << ... << values);
    return bytes;
}

/// Reads a value; `start` is what it is when the stream ends early.
template<typename Value> Value decodeValue(QDataStream &in, Value start = Value())
{
    in >> start;
    return start;
}
