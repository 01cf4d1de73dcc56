#include <shapekit/shape.h>

#include <cmath>

using namespace shapekit;

const Text cornersText("Corners", "Zacken");

/// A star: the user sets the number of its corners, the control point the depth between them.
class Star : public ShapeOfType<8>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QPointF settled(int, QPointF centre) override { return corner(1, depth(centre), QRectF(QPointF(), size())); }
    void draw() override
    {
        PathText figure;
        figure.moveTo(corner(0, 1, frame()));
        for (int i = 1; i < 2 * corners; ++i)
            figure.lineTo(corner(i, i % 2 ? depth(point(1)) : 1, frame()));
        setPath("figure", figure.close());
    }

private:
    /// Relative distance from the middle, in steps of a thousandth: independent of the number of corners.
    double depth(QPointF place) const
    {
        const QPointF arm = place - middle();
        const double part = std::hypot(arm.x() / width(), arm.y() / height()) * 2;
        return std::clamp(std::round(part * 1000) / 1000, 0.15, 0.95);
    }
    /// Outer and inner corners by turns, from the top; `depth` is the relative distance from the middle.
    QPointF corner(int index, double depth, const QRectF &box) const
    {
        return middle() + stretched(onCircle({0, 0}, depth, index * 180.0 / corners), box.size() / 2);
    }
    WholeNumber corners{this, cornersText, 5, 3, 24};
};

SHAPEKIT_PLUGIN(Star, "Star", "Stern", Basic)
