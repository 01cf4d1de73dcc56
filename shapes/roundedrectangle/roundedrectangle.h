#pragma once

#include <kit/fittedshape.h>

/// A rectangle with round corners; its control point sets their radius.
class RoundedRectangle : public shapekit::FittedShape
{
public:
    using FittedShape::FittedShape;

    QString getSVG() override;
    int getSVGType() override { return 1; }

protected:
    QPointF controlPointCentre(int index) override;
    void takeControlPoint(int index, QPointF centre) override;
    QRectF controlPointRange(int index) override;
    void writeFigure() override;

private:
    /// Of the frame's corners, document units; the pen runs inside them.
    double radius() const { return m_roundness * shorterSide(); }

    /// The radius as a part of the shorter side, 0 to 0.5.
    double m_roundness = 0.2;
};
