#include "properties/valuecodec.h"

#include "properties/brushlayout.h"
#include "properties/gradientreading.h"
#include "properties/streamcheck.h"

#include <QtGui/QBrush>
#include <QtGui/QColor>

template<> QColor decodeValue<QColor>(QDataStream &in, QColor start)
{
    const bool isKnown = StreamCheck::hasKnownColorKind(in);
    in >> start;
    return isKnown ? start : start.toRgb();
}

template<> QBrush decodeValue<QBrush>(QDataStream &in, QBrush start)
{
    if (!StreamCheck::isReadableBrush(in)) {
        in.setStatus(QDataStream::ReadCorruptData);
        return QBrush();
    }
    const bool isKnown = StreamCheck::hasKnownColorKind(in, BrushLayout::styleBytes);
    if (StreamCheck::isGradient(in))
        start = readGradient(in);
    else
        in >> start;
    if (!isKnown)
        start.setColor(start.color().toRgb());
    return start;
}
