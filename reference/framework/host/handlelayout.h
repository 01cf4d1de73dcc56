#pragma once

#include <framework/cobjaction.h>

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QVector>

/// Sizes of what is drawn around selected objects, pixels on screen.
struct HandleSizes
{
    double hit;    ///< the least distance of two corners
    double corner; ///< side of the square
    QSizeF side;   ///< of the pill in the middle of the upper or lower side
    double round;  ///< diameter of the rotation and mirror handles
    double stem;   ///< distance of these from the frame
    double point;  ///< diameter of a control point
};

/// Positions of the handles of a selected object: around its client rectangle, in item coordinates, at distances
/// that are constant on screen.
class HandleLayout
{
public:
    /// The handle that a press takes, and its distance in pixels on screen.
    struct Hit
    {
        CObjAction::ACT_Def handle = CObjAction::ACT_None;
        double distance = 0;
    };

    /// `zoom`: screen pixels per scene unit; `isLarge`: for fingers.
    HandleLayout(const QRectF &clientRect, double zoom, bool isLarge = false);

    /// All handles in drawing order.
    static const QVector<CObjAction::ACT_Def> &handles();
    static bool isResize(CObjAction::ACT_Def handle);
    static bool isSide(CObjAction::ACT_Def handle);
    /// Of several handles that are equally near, the one of the lowest rank is taken.
    static int rank(CObjAction::ACT_Def handle);
    /// -1, 0 or 1 per axis: the side of the rectangle on which the handle stands.
    static QPoint side(CObjAction::ACT_Def handle);

    const HandleSizes &sizes() const { return m_sizes; }
    /// Centre of a handle, item coordinates.
    QPointF position(CObjAction::ACT_Def handle) const;
    /// Leaves out handles in the middle of sides that are short, or near one of `points` (item coordinates).
    QVector<CObjAction::ACT_Def> unhidden(const QVector<CObjAction::ACT_Def> &handles,
                                          const QVector<QPointF> &points) const;
    /// The nearest of these handles, not farther away than half of `hitSize` (pixels). Without one, and inside the
    /// client rectangle nearer to its centre, there is no hit: the body can be moved.
    Hit hit(const QPointF &itemPos, const QVector<CObjAction::ACT_Def> &shown, double hitSize) const;
    /// The frame drawn around the object, item coordinates. Around a small object it is larger.
    QRectF frame() const;
    /// Bounds of the object's editing aids, item coordinates.
    QRectF bounds() const;
    /// A length in screen pixels, in item units.
    double fromPixels(double pixels) const { return pixels / m_zoom; }

    static constexpr double frameMarginPixels = 6;   ///< distance of the frame from the client rectangle
    static constexpr double controlPointPixels = 50; ///< largest control point on screen

private:
    bool isHidden(CObjAction::ACT_Def handle, const QVector<QPointF> &points) const;

    QRectF m_rect;
    double m_zoom;
    const HandleSizes &m_sizes;
};
