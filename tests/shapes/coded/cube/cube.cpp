#include <shapekit/shape.h>

using namespace shapekit;

/// A box seen from the front, above and to the left; the control point is the upper right corner of its front.
class Cube : public ShapeOfType<11>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QRectF range(int) override { return between({0.25 * width(), 6}, {width() - 6, 0.75 * height()}); }
    void draw() override
    {
        const QRectF box = frame();
        const QPointF front = point(1);
        const QPointF back(box.left() + box.right() - front.x(), box.bottom() + box.top() - front.y());
        const QPointF frontLeft(box.left(), front.y()), frontFoot(front.x(), box.bottom());
        const QPointF topLeft(back.x(), box.top()), foot(box.right(), back.y());
        const QPointF topRight = box.topRight(), bottomLeft = box.bottomLeft();
        setPath("figure", PathText().polygon({bottomLeft, frontLeft, topLeft, topRight, foot, frontFoot}));
        setPath("top", PathText().polygon({frontLeft, topLeft, topRight, front}));
        setPath("side", PathText().polygon({front, topRight, foot, frontFoot}));
        setPath("edges", PathText()
                             .polygon({bottomLeft, frontLeft, topLeft, topRight, foot, frontFoot})
                             .line(frontLeft, front)
                             .lineTo(frontFoot)
                             .line(front, topRight));
    }
};

SHAPEKIT_PLUGIN(Cube, "Cube", "Quader", Mathematics)
