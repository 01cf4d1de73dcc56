#include <shapekit/shape.h>

using namespace shapekit;

/// A circle or an ellipse: it fills its frame.
class Ellipse : public ShapeOfType<0>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QSizeF smallestSize() const override { return {8, 8}; }
    void draw() override { setPath("figure", PathText().ellipse(frame())); }
};

SHAPEKIT_PLUGIN(Ellipse, "Ellipse", "Ellipse", Basic)
