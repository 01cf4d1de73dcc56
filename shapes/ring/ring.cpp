#include <shapekit/shape.h>

using namespace shapekit;

const Text scaleText("Scale 1 :", "Maßstab 1 :");

/// A ring whose control point sets the size of the hole; it can be drawn to scale, smaller than its frame.
class Ring : public ShapeOfType<26>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QRectF range(int) override { return between({0.52 * width(), middle().y()}, {width() - 8, middle().y()}); }
    void draw() override
    {
        const double part = (2 * point(1).x() - width()) / width();
        const QPointF half(middle().x() * part, middle().y() * part);
        const QPointF left(middle().x() - half.x(), middle().y()), right(middle().x() + half.x(), middle().y());
        // Opposite to the direction of the rim, which makes a hole.
        setPath("figure", PathText()
                              .ellipse(frame())
                              .moveTo(left)
                              .arcTo({half.x(), half.y()}, right, false)
                              .arcTo({half.x(), half.y()}, left, false)
                              .close());
    }

private:
    DrawingScale scale{this, scaleText, 1, 1, 5, 0.25};
};

SHAPEKIT_PLUGIN(Ring, "Ring", "Ring", Basic)
