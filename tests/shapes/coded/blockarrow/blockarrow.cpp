#include <shapekit/shape.h>

using namespace shapekit;

/// A thick arrow to the right. One control point sets the length of the head and the thickness of the shaft, the
/// other the depth of a notch in its tail; each leaves room for the other.
class BlockArrow : public ShapeOfType<5>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QSizeF smallestSize() const override { return {32, 24}; }
    QRectF range(int number) override
    {
        if (number == 1)
            return between({notch() + shortestShaft, handleDrop}, {width() - 8, middle().y() - 6 + handleDrop});
        return between({handleShift, middle().y()}, {point(1).x() - shortestShaft + handleShift, middle().y()});
    }
    void draw() override
    {
        const QRectF box = frame();
        const double head = point(1).x();
        const double top = std::max(point(1).y() - handleDrop, box.top());
        const double bottom = height() - top;
        setPath("figure", PathText().polygon({{box.left(), top},
                                              {head, top},
                                              {head, box.top()},
                                              {box.right(), middle().y()},
                                              {head, box.bottom()},
                                              {head, bottom},
                                              {box.left(), bottom},
                                              {std::max(notch(), box.left()), middle().y()}}));
    }

private:
    double notch() const { return point(2).x() - handleShift; }

    /// Distance of the control points from the corner of shaft and head, and from the notch: they are always
    /// inside.
    static constexpr double handleDrop = 6, handleShift = 8, shortestShaft = 20;
};

SHAPEKIT_PLUGIN(BlockArrow, "Block arrow", "Blockpfeil", Basic)
