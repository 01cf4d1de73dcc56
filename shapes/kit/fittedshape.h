#pragma once

#include <kit/draggedplaces.h>
#include <kit/hostfilledshape.h>

#include <QtCore/QMap>

namespace shapekit {

/// A shape that is drawn anew for every size instead of being stretched: lines keep their width, corners stay
/// round, and the document's view box is always the page object's size, with its origin at (0, 0).
///
/// The figure is the template's node "figure", a path or a polygon; the template's control points give the form of
/// a new shape. A shape keeps its form in numbers of its own, relative to its size, and says where its control
/// points stand and what the figure is. A size that leaves a number no room only limits what is drawn; the number
/// itself comes back with the size.
class FittedShape : public HostFilledShape
{
public:
    explicit FittedShape(CSVGObj *owner);

    bool loadSVG(bool initGlobals) override;
    bool updateSVG(QZeSvgNode *node, QPointF delta, bool refresh) override;
    bool updateSVG(bool refresh) override;
    bool updateAllControlPoints(bool refresh, bool finished) override;
    void setSize(QSizeF oldSize, QSizeF newSize) override;
    void notifyObjectCreated() override;
    QSizeF getMinimizeSize() override;
    /// The outline is the figure's alone: control points are no part of what the host fills.
    void updateOutlineRegion() override;
    /// The region is the outline, the pen and the control points, so that each of them can be grasped.
    bool getOutlinePath(QPainterPath *path) override;
    double getXMin(QZeSvgNode *node) override;
    double getXMax(QZeSvgNode *node) override;
    double getYMin(QZeSvgNode *node) override;
    double getYMax(QZeSvgNode *node) override;

protected:
    /// Where the centre of a control point (from 0) stands for the present form and size, document units.
    virtual QPointF controlPointCentre(int index) = 0;
    /// The user put the centre of a control point there: change the form.
    virtual void takeControlPoint(int index, QPointF centre) = 0;
    /// Where the centre of a control point may be dragged to, document units.
    virtual QRectF controlPointRange(int index) = 0;
    /// Writes the geometry of the node "figure" for the present form and size.
    virtual void writeFigure() = 0;

    /// Number of control points, never more than there can be.
    int pointCount() const;
    QZeSvgNode *figure() const;
    /// The document's and the page object's size.
    QSizeF size() const;
    double shorterSide() const;
    /// The distance between the frame and the figure's line, so that the pen stays inside the frame.
    double inset() const;

private:
    int indexOf(QZeSvgNode *node) const;
    void fitTo(const QSizeF &newSize);
    void takeMovedControlPoints();
    void placeControlPoint(int index);
    void placeControlPoints();
    void redraw(bool refresh);

    QMap<int, DraggedPlaces> m_dragged; ///< by control point
};

} // namespace shapekit
