#pragma once

#include <shapekit/draggedplaces.h>
#include <shapekit/kind.h>
#include <shapekit/pathtext.h>
#include <shapekit/place.h>
#include <shapekit/propertiedshape.h>
#include <shapekit/shapekit_global.h>

#include <QtCore/QMap>

#include <array>

namespace shapekit {

/// Base class for shape authors: a template, rules for its control points, and a drawing.
///
/// The template defines the look and the form of a new shape. Control points are numbered from 1 as in the
/// template; a shape reads their positions (point()) and writes the geometry of template nodes accordingly
/// (draw()). This class does the rest: undo, playback, saving, limits, mirroring and zooming, following the size,
/// the outline, pen and fill, panels.
///
/// Attributes of control points in the template (besides those of the library, such as x_move="0"):
/// - `x_follows`, `y_follows`: how the point follows when the size of a redrawn shape changes (Following);
/// - `x_offset`, `y_offset`: one or two numbers, the distances from the frame at which the point's free travel,
///   which is also the stretch measured when the size changes, begins and ends; the second defaults to the first.
class SHAPEKIT_EXPORT Shape : public PropertiedShape
{
public:
    /// Treatment of the drawing when the page object's size changes.
    enum Sizing {
        Redrawn, ///< drawn anew: lines keep their width, corners stay round; the document is as large as the object
        Stretched ///< stretched like a picture, in its own proportions
    };

    /// Without a document until loadSVG(); `type` decides who fills the shape (StyledShape).
    Shape(CSVGObj *owner, int type, Sizing sizing = Redrawn);

    bool loadSVG(bool initGlobals) override;
    bool load(QDataStream &in) override;
    bool loadJson(QJsonObject &object) override;
    bool updateSVG(QZeSvgNode *node, QPointF delta, bool refresh) override;
    bool updateSVG(bool refresh) override;
    bool updateAllControlPoints(bool refresh, bool finished) override;
    void setSize(QSizeF oldSize, QSizeF newSize) override;
    void notifyObjectCreated() override;
    void setPenWidth(int width, bool record) override;
    QSizeF getMinimizeSize() override;
    /// At a drawing scale the outline shrinks with the drawing.
    void updateOutlineRegion() override;
    /// The region consists of the outline, the pen and the control points, so that each of them can be grabbed.
    bool getOutlinePath(QPainterPath *path) override;
    QRectF paintedArea() override;
    QString dragHint() override;
    QString pointHint(int number) override;
    QByteArray toSvg() override;
    void settleDrawing() override;
    double getXMin(QZeSvgNode *node) override;
    double getXMax(QZeSvgNode *node) override;
    double getYMin(QZeSvgNode *node) override;
    double getYMax(QZeSvgNode *node) override;
    bool CanMoveControlPoint(QZeSvgNode *node, QPointF pos) override;

protected:
    /// @name Overrides for shapes; points and sizes in document units
    /// @{

    /// The range of a control point's centre when dragged: by default as the offsets of the template allow, in a
    /// stretched shape as its limits allow. It may depend on other points.
    virtual QRectF range(int number);
    /// The position of a control point that was put to `centre`, by default the nearest place in its range.
    virtual QPointF settled(int number, QPointF centre);
    /// The smallest size of an object, item units; 24 × 24, or 16 × 16 if it is stretched.
    virtual QSizeF smallestSize() const;
    /// False to refuse a position that a drag would move a control point to; the point then stays where it is.
    virtual bool mayMove(int number, QPointF centre);
    /// Tells the user the effect of the present drag of a point: "Corner radius 12".
    virtual QString hint(int number);
    /// Writes the geometry for the present points, size and properties. Called once before the drawing is needed,
    /// however much has changed since the last time.
    virtual void draw() {}
    /// Called when the user, or a file, has put the centre of a control point there.
    virtual void pointMoved(int number, QPointF centre);
    /// The position of a control point without limits: where it was put, following the size.
    virtual QPointF wantedPoint(int number);
    void propertyChanged(const Property *property) override;
    /// Puts the points where those of a shape were put that this one takes the place of, as far as it had them.
    void inheritPoints(const Shape &former);
    /// Where the points were put, by index.
    const QVector<Place> &places() const { return m_places; }
    /// Puts the points there, as many as the shape has; further ones stay.
    void takePlaces(const QVector<Place> &places);
    QRectF drawnArea() override;
    /// Grows the view box by what the box around the drawing has grown by, from `before` to `after` (document
    /// units), and moves and resizes the page object with it, so that the drawing stays where it is on the page,
    /// however the object is turned and mirrored. In differences, so that a view box which the user has stretched
    /// comes back exactly when the drawing does. Nothing changes while the object is being created.
    void growBox(const QRectF &before, const QRectF &after);
    /// @}

    /// @name Tools for drawing
    /// @{

    /// The centre of a control point; (0, 0) for one that the template lacks.
    QPointF point(int number) const;
    /// Number of control points.
    int pointCount() const;
    /// Size of the drawing, document units.
    QSizeF size() const;
    /// Width of the drawing, document units.
    double width() const { return size().width(); }
    /// Height of the drawing, document units.
    double height() const { return size().height(); }
    /// The smaller of width() and height(), document units.
    double shorterSide() const;
    /// Middle of the drawing, document units.
    QPointF middle() const { return {width() / 2, height() / 2}; }
    /// The frame inset by half the pen, so that lines along it stay inside.
    QRectF frame() const;
    /// Gives a node of the template this path data. An unknown id is reported, once for all shapes of the kind.
    void setPath(const char *id, const PathText &path);
    /// Sets an attribute of a node of the template, with the same report.
    void set(const char *id, const char *attribute, const QString &value);
    /// The same from a number.
    void set(const char *id, const char *attribute, double value);
    /// Turns a node clockwise about a point.
    void rotate(const char *id, double degrees, QPointF about);
    /// @}

private:
    int indexOf(QZeSvgNode *node) const;
    bool isPoint(int number) const;
    void reportMissingPoint(const QString &id) const;
    QRectF templateRange(int number);
    static Following readFollowing(const QZeSvgNode &point, const QString &axis);
    const Following &followingOf(int number, Qt::Orientation axis);
    /// False when the drawing already has that size, or can't have it.
    bool fitTo(const QSizeF &newSize);
    bool isDrawable() const;
    void takeMovedControlPoints();
    /// Positions all points, each within the limits that the others leave it.
    void settlePoints();
    QVector<QPointF> moveControlPointsAway();
    void bringControlPointsBack(const QVector<QPointF> &corners);
    void placeControlPoint(int index);
    void placeControlPoints();
    void redraw(bool refresh);
    void finishLoading();

    bool m_redrawn;
    bool m_isDrawn = true;
    /// Rules of the template for each point, by index: along x, along y.
    QVector<std::array<Following, 2>> m_following;
    QVector<Place> m_places;            ///< where the points were put, by index
    QVector<QPointF> m_points;          ///< where they stand
    QMap<int, DraggedPlaces> m_dragged; ///< by index
};

/// A shape with its type number, which is saved with it and decides who fills it (StyledShape).
template<int Type, Shape::Sizing sizing = Shape::Redrawn> class ShapeOfType : public Shape
{
public:
    /// The core of this page object.
    explicit ShapeOfType(CSVGObj *object)
        : Shape(object, Type, sizing)
    {
    }
};

/// The rectangle between two points in any order; limits that leave no room give the second point's.
SHAPEKIT_EXPORT QRectF between(QPointF first, QPointF second);
/// The point of a circle at an angle in degrees, clockwise from the top.
SHAPEKIT_EXPORT QPointF onCircle(QPointF centre, double radius, double degrees);
/// A vector with each coordinate multiplied by a side.
SHAPEKIT_EXPORT QPointF stretched(QPointF vector, QSizeF factor);
/// The angle of a point seen from a centre, degrees clockwise from the top, 0 to 360.
SHAPEKIT_EXPORT double angleOf(QPointF point, QPointF centre);

} // namespace shapekit
