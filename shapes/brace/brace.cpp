#include <shapekit/shape.h>

using namespace shapekit;

/// A curly brace that opens to the right; the control point moves its tip along the side.
class Brace : public ShapeOfType<28>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QSizeF smallestSize() const override { return {12, 24}; }
    void draw() override
    {
        const QRectF box = frame();
        const double spine = middle().x();
        const double tip = point(1).y();
        const double bend = std::min({width() / 2, (tip - box.top()) / 2, (box.bottom() - tip) / 2});
        setPath("figure", PathText()
                              .moveTo(box.topRight())
                              .curveTo({spine, box.top()}, {spine, box.top() + bend})
                              .lineTo({spine, tip - bend})
                              .curveTo({spine, tip}, {box.left(), tip})
                              .curveTo({spine, tip}, {spine, tip + bend})
                              .lineTo({spine, box.bottom() - bend})
                              .curveTo({spine, box.bottom()}, box.bottomRight()));
    }
};

SHAPEKIT_PLUGIN(Brace, "Brace", "Geschweifte Klammer", Mathematics)
