#include <shapekit/shape.h>

#include <cmath>

using namespace shapekit;

/// A pendulum that swings as far as its control point, the bob, is pulled; a longer one swings more slowly.
class Pendulum : public ShapeOfType<36, Shape::Stretched>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QPointF settled(int, QPointF place) override
    {
        const double length = std::clamp(std::hypot(place.x() - pivot.x(), place.y() - pivot.y()), 50.0, 108.0);
        return onCircle(pivot, length, std::clamp(angleOf(place, pivot), 135.0, 225.0));
    }
    void draw() override
    {
        const double angle = angleOf(point(1), pivot) - 180;
        const double length = std::hypot(point(1).x() - pivot.x(), point(1).y() - pivot.y());
        setPath("figure_rod", PathText().line(pivot, onCircle(pivot, length, 180 + angle)));
        setPath("figure_bob", PathText().ellipse(QRectF(-14, -14, 28, 28).translated(point(1))));
        setPath("path", PathText().moveTo(point(1)).arcTo(length, onCircle(pivot, length, 180 - angle), angle < 0));
        set("swing", "values", QStringLiteral("0 70 16;%1 70 16;0 70 16").arg(-2 * angle));
        set("swing", "dur", QStringLiteral("%1s").arg(0.2 * std::sqrt(length)));
    }

private:
    static constexpr QPointF pivot{70, 16};
};

SHAPEKIT_PLUGIN(Pendulum, "Pendulum", "Pendel", Science)
