#include <shapekit/shape.h>

using namespace shapekit;

/// A standing cylinder; the control point opens and closes the ellipse of its top.
class Cylinder : public ShapeOfType<12>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QRectF range(int) override { return between({middle().x(), 8}, {middle().x(), 0.9 * height()}); }
    void draw() override
    {
        const QRectF box = frame();
        const QSizeF radii(box.width() / 2, (point(1).y() - box.top()) / 2);
        const double top = box.top() + radii.height();
        const double bottom = box.bottom() - radii.height();
        PathText side;
        side.moveTo({box.left(), top}).arcTo(radii, {box.right(), top}).lineTo({box.right(), bottom});
        side.arcTo(radii, {box.left(), bottom}).close();
        setPath("figure", side);
        setPath("top", PathText().ellipse({box.left(), box.top(), box.width(), 2 * radii.height()}));
        setPath("edges", side.moveTo({box.right(), top}).arcTo(radii, {box.left(), top}));
    }
};

SHAPEKIT_PLUGIN(Cylinder, "Cylinder", "Zylinder", Mathematics)
