#include <shapekit/shape.h>

using namespace shapekit;

const Text drivingText("Driving teeth", "Zähne treibend"), drivenText("Driven teeth", "Zähne getrieben");

/// Two gears that turn each other; their numbers of teeth determine their sizes and speeds.
class Gears : public ShapeOfType<38, Shape::Stretched>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    void draw() override
    {
        const double module = std::min(128 / (driving + driven + tip), 86 / (std::max<int>(driving, driven) + tip));
        const double left = 70 - module * (driven + 0.0) / 2;
        const double right = left + module * (driving + driven) / 2;
        drawGear("driving", driving, module, {left, 48}, 0, 0);
        drawGear("driven", driven, module, {right, 48}, driven % 2 ? 0 : 180.0 / driven, 360);
    }

private:
    void drawGear(const QByteArray &id, int teeth, double module, QPointF centre, double turned, int start)
    {
        PathText rim;
        for (int i = 0; i < 4 * teeth; ++i) {
            const double radius = module * (teeth + (i % 4 < 2 ? tip : root)) / 2;
            const QPointF corner = onCircle(centre, radius, turned + 90 + 360.0 / teeth * (corners[i % 4] + i / 4));
            i == 0 ? rim.moveTo(corner) : rim.lineTo(corner);
        }
        setPath("figure_" + id, rim.close().ellipse(QRectF(-3.5, -3.5, 7, 7).translated(centre)));
        // No translation, only the rotation: a gradient runs over both gears as one.
        const QString turn = QStringLiteral("%1 %2 %3");
        set(id + "_turn", "from", turn.arg(start).arg(centre.x()).arg(centre.y()));
        set(id + "_turn", "to", turn.arg(360 - start).arg(centre.x()).arg(centre.y()));
        set(id + "_turn", "dur", QStringLiteral("%1s").arg(teeth * 0.5));
    }
    /// Height of the teeth above the pitch circle and depth below it, in modules of the diameter.
    static constexpr double tip = 1.4, root = -2.2;
    /// Corners of a tooth, relative to the distance of two teeth: slim, so that the gears' outlines don't cross.
    static constexpr double corners[] = {-0.1, 0.1, 0.23, 0.77};
    WholeNumber driving{this, drivingText, 12, 6, 40}, driven{this, drivenText, 18, 6, 40};
};

SHAPEKIT_PLUGIN(Gears, "Gears", "Zahnräder", Science)
