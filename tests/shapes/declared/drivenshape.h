#pragma once

#include <shapes/shapedriver.h>

#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QLineF>
#include <QtGui/QPainterPath>

namespace declaredtest {

using shapetest::ShapeDriver;

inline QByteArray savedBytes(const ShapeDriver &shape)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    shape.object().save(out);
    return bytes;
}

/// Gives properties their values as a panel does.
inline void answer(const ShapeDriver &shape, const char *json)
{
    shape.object().SetSettingJson(QString::fromUtf8(json), true, true);
}

inline QPainterPath pathOf(const ShapeDriver &shape, const char *id)
{
    return shape.document().namedNode(QLatin1String(id))->path();
}

inline bool isNear(QPointF a, QPointF b)
{
    return QLineF(a, b).length() < 1e-4;
}

} // namespace declaredtest
