#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>

class QBrush;
class QColor;

/// Encodes one or more values, one after the other, in QDataStream's default version and byte order, for undo
/// buffers and playback payloads.
template<typename... Values> QByteArray encodeValues(const Values &...values)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    (out << ... << values);
    return bytes;
}

/// Reads a value; `start` is the result when the stream ends early.
template<typename Value> Value decodeValue(QDataStream &in, Value start = Value())
{
    in >> start;
    return start;
}

/// Reads a colour as Qt does. A kind unknown to QColor, which acts as black of its alpha, is read as that.
template<> QColor decodeValue<QColor>(QDataStream &in, QColor start);

/// Reads a brush as Qt does, its colour as above; but no brush when the data makes impossible claims (StreamCheck).
/// The stream then has the status ReadCorruptData, and its position is unchanged.
template<> QBrush decodeValue<QBrush>(QDataStream &in, QBrush start);
