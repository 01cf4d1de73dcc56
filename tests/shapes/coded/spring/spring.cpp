#include <shapekit/shape.h>

using namespace shapekit;

const Text coilsText("Coils", "Windungen");

/// A spring between a wall and a weight that the control point pulls.
class Spring : public ShapeOfType<37>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QSizeF smallestSize() const override { return {40, 16}; }
    QRectF range(int) override
    {
        return between({24 + 0.6 * height(), middle().y()}, {width() - 4 - 0.35 * height(), middle().y()});
    }
    void draw() override
    {
        const double y = middle().y(), reach = 0.35 * height(), end = point(1).x() - reach;
        const double step = (end - 20) / coils;
        PathText wire;
        wire.moveTo({8, y}).lineTo({12, y});
        for (int i = 0; i < coils; ++i)
            wire.lineTo({12 + (i + 0.25) * step, y - reach}).lineTo({12 + (i + 0.75) * step, y + reach});
        setPath("figure", wire.lineTo({end - 8, y}).lineTo({end, y}));
        setPath("figure_wall", PathText().roundedRectangle({2, 1, 6, height() - 2}, 1));
        setPath("figure_weight", PathText().roundedRectangle({end, y - reach, 2 * reach, 2 * reach}, 3));
    }

private:
    WholeNumber coils{this, coilsText, 8, 3, 20};
};

SHAPEKIT_PLUGIN(Spring, "Spring", "Feder", Science)
