#pragma once

#include <QtCore/QRectF>

#include <functional>
#include <optional>

class CBaseObject;
class QPainterPath;

/// How far an object reaches, item coordinates: the bounding rectangle that the scene knows, and whether the region
/// is of the present size and look. Every operation takes the object that owns the bounds.
class ObjectBounds
{
public:
    /// The bounding rectangle of now.
    QRectF rectangle(CBaseObject &object);
    /// The region of now; empty when the object has none of its own.
    QPainterPath region(CBaseObject &object);

    /// Works the bounding rectangle out from client rectangle, region and editing aids; outside of a scene it waits
    /// until somebody asks for it. True when it is another one than before; `aboutToChange` runs before it is.
    bool refresh(CBaseObject &object, const std::function<void()> &aboutToChange);
    /// The object may answer otherwise to pagehost::PaintedArea.
    void dropPaintedArea() { m_paintedArea.reset(); }
    /// Size or look have changed. Making a region is expensive: it waits until somebody asks for it.
    void dropRegion();
    /// The object has made its region anew.
    void takeRegion() { m_regionIsStale = false; }

private:
    QRectF wanted(CBaseObject &object);

    QRectF m_rectangle; ///< as the scene knows it
    bool m_rectangleIsStale = false;
    bool m_regionIsStale = false;
    /// Whoever asks for the region may be looking through the scene, which must not be rearranged then.
    bool m_isFixed = false;
    /// The object's answer to pagehost::PaintedArea; null before asking, empty without an answer.
    std::optional<QRectF> m_paintedArea;
};
