#include <shapekit/shape.h>

using namespace shapekit;

/// A rectangle with round corners; its control point sets their radius.
class RoundedRectangle : public ShapeOfType<1>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QRectF range(int) override { return between({handle, 12}, {handle + shorterSide() / 2, 12}); }
    void draw() override
    {
        setPath("figure", PathText().roundedRectangle(frame(), point(1).x() - handle - frame().left()));
    }

private:
    /// Distance of the control point from the end of the top left arc: it is always inside.
    static constexpr double handle = 8;
};

SHAPEKIT_PLUGIN(RoundedRectangle, "Rounded rectangle", "Abgerundetes Rechteck", Basic)
