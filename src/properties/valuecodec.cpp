#include "properties/valuecodec.h"

#include "properties/streamcheck.h"

#include <QtGui/QBrush>
#include <QtGui/QColor>

namespace {

template<typename Value> Value decodeChecked(QDataStream &in, Value start, bool isReadable)
{
    if (!isReadable) {
        in.setStatus(QDataStream::ReadCorruptData);
        return Value();
    }
    in >> start;
    return start;
}

} // namespace

template<> QColor decodeValue<QColor>(QDataStream &in, QColor start)
{
    return decodeChecked(in, start, StreamCheck::isReadableColor(in));
}

template<> QBrush decodeValue<QBrush>(QDataStream &in, QBrush start)
{
    return decodeChecked(in, start, StreamCheck::isReadableBrush(in));
}
