#include <shapekit/shape.h>

#include <cmath>

using namespace shapekit;

/// A triangle whose corners can be dragged anywhere unless it would become a line.
class Triangle : public ShapeOfType<7>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    bool mayMove(int number, QPointF centre) override
    {
        const QPointF a = point(number % 3 + 1) - centre;
        const QPointF b = point((number + 1) % 3 + 1) - centre;
        return std::abs(a.x() * b.y() - a.y() * b.x()) >= 0.02 * width() * height();
    }
    void draw() override { setPath("figure", PathText().polygon({point(1), point(2), point(3)})); }
};

SHAPEKIT_PLUGIN(Triangle, "Triangle", "Dreieck", Basic)
