#pragma once

#include <QtCore/QRectF>

#include <functional>
#include <optional>

class CBaseObject;
class QPainterPath;

/// Bounds of an object, item coordinates: the bounding rectangle that the scene knows, and whether the region
/// matches the present size and look. Every operation takes the object that owns the bounds.
class ObjectBounds
{
public:
    /// The current bounding rectangle.
    QRectF rectangle(CBaseObject &object);
    /// The current region; empty when the object has none.
    QPainterPath region(CBaseObject &object);

    /// Computes the bounding rectangle from client rectangle, region and editing aids; outside of a scene only when
    /// it is asked for. True when it has changed; `aboutToChange` runs before that.
    bool refresh(CBaseObject &object, const std::function<void()> &aboutToChange);
    /// The object's answer to pagehost::PaintedArea may have changed.
    void dropPaintedArea() { m_paintedArea.reset(); }
    /// Size or look have changed. Making a region is expensive and waits until it is asked for.
    void dropRegion();
    /// The object has made a new region.
    void takeRegion() { m_regionIsStale = false; }

private:
    QRectF wanted(CBaseObject &object);

    QRectF m_rectangle; ///< as the scene knows it
    bool m_rectangleIsStale = false;
    bool m_regionIsStale = false;
    /// The caller may be in the middle of a search of the scene, which must not be rearranged then.
    bool m_isFixed = false;
    /// The object's answer to pagehost::PaintedArea; null before asking, empty without an answer.
    std::optional<QRectF> m_paintedArea;
};
