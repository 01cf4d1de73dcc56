#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QtEndian>

#include <optional>

namespace Svg {

/// A big-endian number in a table of a font; empty beyond the table's end.
template<typename Number> std::optional<Number> tableNumber(const QByteArray &table, qint64 offset)
{
    if (offset < 0 || offset + qint64(sizeof(Number)) > table.size())
        return std::nullopt;
    return qFromBigEndian<Number>(table.constData() + offset);
}

} // namespace Svg
