#pragma once

#include <kit/fittedshape.h>

#include <QtCore/QVector>

/// A closed figure of straight lines whose corners are its control points: as many as the template has, or as a
/// saved polygon brings along.
class Polygon : public shapekit::FittedShape
{
public:
    using FittedShape::FittedShape;

    QString getSVG() override;
    int getSVGType() override { return 9; }

protected:
    QPointF controlPointCentre(int index) override;
    void takeControlPoint(int index, QPointF centre) override;
    QRectF controlPointRange(int index) override;
    void writeFigure() override;

private:
    /// As parts of the width and height that corners may take up.
    QVector<QPointF> m_corners;
};
