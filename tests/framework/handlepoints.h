#pragma once

#include <framework/cbaseobject.h>

#include <QtTest/QtTest>

#include <cmath>

// Distances on screen that the handles promise.
constexpr double frameMargin = 6;
constexpr double stem = 28;
constexpr double hitRadius = 12;

/// Centre of a corner handle of an unrotated object; `side` is -1 or 1 per axis.
inline QPointF cornerHandle(const CBaseObject &object, const QPointF &side, double zoom = 1)
{
    const QSizeF half = object.getClientRect().size() / 2;
    const QPointF item(half.width() + side.x() * (half.width() + frameMargin / zoom),
                       half.height() + side.y() * (half.height() + frameMargin / zoom));
    return object.mapToScene(item);
}

inline QPointF outerHandle(const CBaseObject &object, const QPointF &side, double zoom = 1)
{
    const QSizeF half = object.getClientRect().size() / 2;
    const double away = (frameMargin + stem) / zoom;
    const QPointF item(half.width() + side.x() * (half.width() + away),
                       half.height() + side.y() * (half.height() + away));
    return object.mapToScene(item);
}

inline const QPointF topLeft(-1, -1);
inline const QPointF topRight(1, -1);
inline const QPointF bottomLeft(-1, 1);
inline const QPointF bottomRight(1, 1);

inline bool isNear(const QPointF &one, const QPointF &other, double tolerance = 1e-9)
{
    return std::hypot(one.x() - other.x(), one.y() - other.y()) <= tolerance;
}

/// Rows of a data-driven test: the column "zoom", pixels per scene unit.
inline void addZoomRows()
{
    QTest::addColumn<double>("zoom");
    QTest::newRow("zoom 0.5") << 0.5;
    QTest::newRow("zoom 1") << 1.0;
    QTest::newRow("zoom 3") << 3.0;
}
