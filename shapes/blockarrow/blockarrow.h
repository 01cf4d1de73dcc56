#pragma once

#include <kit/fittedshape.h>

/// A thick arrow to the right. One control point sets the length of the head and the thickness of the shaft, the
/// other the depth of a notch in its tail; each leaves the other its room.
class BlockArrow : public shapekit::FittedShape
{
public:
    using FittedShape::FittedShape;

    QString getSVG() override;
    int getSVGType() override { return 5; }
    QSizeF getMinimizeSize() override;

protected:
    QPointF controlPointCentre(int index) override;
    void takeControlPoint(int index, QPointF centre) override;
    QRectF controlPointRange(int index) override;
    void writeFigure() override;

private:
    enum ControlPoint { Head, Notch };

    // Document units.
    double notchDepth() const;
    double headLength() const;
    double headStart() const;
    double shaftHalf() const;
    double middle() const;

    // Parts of the shorter side.
    double m_head = 0.5;
    double m_notch = 0;
    /// Half the shaft's thickness as a part of the height.
    double m_shaft = 0.25;
};
