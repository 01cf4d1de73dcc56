#pragma once

#include <framework/cobjaction.h>

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QVector>

class CPSRootObject;

/// Positions of the handles of a selected object: around its client rectangle, in item coordinates, at distances
/// that are constant on screen.
class HandleLayout
{
public:
    /// `zoom`: screen pixels per scene unit.
    HandleLayout(const QRectF &clientRect, double zoom);

    /// All handles in drawing order.
    static const QVector<CObjAction::ACT_Def> &handles();
    static bool isResize(CObjAction::ACT_Def handle);
    /// -1, 0 or 1 per axis: the side of the rectangle on which the handle stands.
    static QPoint side(CObjAction::ACT_Def handle);

    /// Centre of a handle, item coordinates.
    QPointF position(CObjAction::ACT_Def handle) const;
    /// The handle whose hit area contains `itemPos`, the nearest of several; ACT_None without one. Inside a small
    /// object the body wins, so that it can be moved.
    CObjAction::ACT_Def hit(const QPointF &itemPos, const QVector<CObjAction::ACT_Def> &enabled) const;
    /// The frame drawn around the object, item coordinates.
    QRectF frame() const;
    /// Bounds of the object's editing aids, item coordinates.
    QRectF bounds() const;
    /// A length in screen pixels, in item units.
    double fromPixels(double pixels) const { return pixels / m_zoom; }

    static constexpr double handlePixels = 9;        ///< side or diameter of a drawn handle
    static constexpr double hitRadiusPixels = 12;    ///< radius of a handle's hit area
    static constexpr double frameMarginPixels = 6;   ///< distance of the frame from the client rectangle
    static constexpr double stemPixels = 26;         ///< distance of the rotation and mirror handles from the frame
    static constexpr double controlPointPixels = 50; ///< largest control point on screen

private:
    QRectF m_rect;
    double m_zoom;
};

/// The handles that the object offers, in drawing order.
QVector<CObjAction::ACT_Def> offeredHandles(CPSRootObject &object);
/// Those of a frame around several objects.
QVector<CObjAction::ACT_Def> frameHandles();
