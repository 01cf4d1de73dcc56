#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>

/// Values one after another, each written by QDataStream in its default version.
template<typename... Values> QByteArray payloadOf(const Values &...values)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    (out << ... << values);
    return bytes;
}
