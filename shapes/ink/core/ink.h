#pragma once

#include "ink/core/strokedata.h"

#include <shapekit/shape.h>

class CBaseObject;

namespace ink {

/// A stroke of a pen, drawn by hand. It keeps the points that the pen touched; a pen with pressure makes an area of
/// changing width of them, any other one a line.
class Ink : public shapekit::ShapeOfType<41, shapekit::Shape::Stretched>
{
public:
    explicit Ink(CSVGObj *owner);

    /// The stroke of a page object; null for an object that is none.
    static Ink *of(CBaseObject *object);

    /// Makes a new object, in the creating state, the stroke through these points (scene coordinates).
    void begin(const QVector<StrokePoint> &points, const QColor &color, double width);
    /// Replaces the points of a stroke that is being drawn (scene coordinates), and records the difference.
    void redraw(const QVector<StrokePoint> &points);

    /// In scene coordinates, as the stroke is now, moved or stretched.
    QVector<StrokePoint> scenePoints();
    /// Of the line under no pressure.
    double sceneWidth();

    bool DoPlaybackActionEx(int actionId, QDataStream &in) override;
    QSizeF getDefaultSVGSize() override;
    void setPenWidth(int width, bool record) override;
    int getMaxPenWidth() override;

protected:
    QSizeF smallestSize() const override { return {1, 1}; }
    void propertyChanged(const shapekit::Property *property) override;
    void draw() override;

private:
    void takePoints(const QVector<StrokePoint> &points);
    /// Replaces the points from an index on.
    void replaceFrom(int index, const QVector<StrokePoint> &tail);
    bool hasPressures() const;

    StrokeData m_stroke; ///< decoded from the property
    shapekit::DataValue m_saved;
};

} // namespace ink
