#include <shapekit/shape.h>

using namespace shapekit;

/// A conical laboratory flask, drawn by its template alone and stretched with the page object; its control point
/// sets the level of the liquid. The fill colours the liquid, the pen draws the glass.
class Flask : public ShapeOfType<30, Shape::Stretched>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    void draw() override
    {
        const double level = point(1).y();
        // The glass is 10 wide on each side of its axis at the shoulder and 42.5 where it bends to the ground.
        const double half = 10 + (level - 52) * (42.5 - 10) / (134 - 52);
        setPath("liquid", PathText()
                              .moveTo({60 - half, level})
                              .lineTo({17.5, 134})
                              .curveTo({13, 146}, {25, 146})
                              .lineTo({95, 146})
                              .curveTo({107, 146}, {102.5, 134})
                              .lineTo({60 + half, level})
                              .curveTo({60, level + 4}, {60 - half, level})
                              .close());
    }
};

SHAPEKIT_PLUGIN(Flask, "Flask", "Kolben", Science)
