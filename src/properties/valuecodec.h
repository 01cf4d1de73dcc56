#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>

class QBrush;
class QColor;

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

/// As Qt reads a colour. One of a kind that QColor does not have acts as black of its alpha, and is read as that.
template<> QColor decodeValue<QColor>(QDataStream &in, QColor start);

/// As Qt reads a brush, its colour as above; but no brush where the bytes claim what nothing can hold
/// (StreamCheck). The stream then has the status ReadCorruptData and stands where it stood.
template<> QBrush decodeValue<QBrush>(QDataStream &in, QBrush start);
