#include <shapekit/shape.h>

#include <cmath>

using namespace shapekit;

/// A piece of a pie: the part between its two control points on the rim, clockwise.
class Pie : public ShapeOfType<3>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QPointF settled(int, QPointF centre) override
    {
        return onRim(angle(centre), {width() / 2 - 4, height() / 2 - 4});
    }
    void draw() override
    {
        const QSizeF radii = frame().size() / 2;
        const double sweep = std::fmod(angle(point(2)) - angle(point(1)) + 360, 360);
        PathText figure;
        if (sweep < 0.5)
            figure.ellipse(frame());
        else
            figure.moveTo(middle())
                .lineTo(onRim(angle(point(1)), radii))
                .arcTo(radii, onRim(angle(point(2)), radii), true, sweep > 180)
                .close();
        setPath("figure", figure);
    }

private:
    /// The angle on the circle that the ellipse is stretched from.
    double angle(QPointF place) const
    {
        const QPointF arm = place - middle();
        return angleOf({arm.x() / (width() - 8), arm.y() / (height() - 8)}, {0, 0});
    }
    QPointF onRim(double degrees, QSizeF radii) const
    {
        return middle() + stretched(onCircle({0, 0}, 1, degrees), radii);
    }
};

SHAPEKIT_PLUGIN(Pie, "Pie", "Kreissektor", Mathematics)
