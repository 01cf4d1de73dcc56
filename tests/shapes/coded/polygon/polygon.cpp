#include <shapekit/shape.h>

using namespace shapekit;

/// A closed figure of straight lines whose corners are its control points: as many as in the template or in the
/// saved polygon.
class Polygon : public ShapeOfType<9>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    void draw() override
    {
        QString corners;
        for (int number = 1; number <= pointCount(); ++number)
            corners +=
                QStringLiteral("%1,%2 ").arg(point(number).x(), 0, 'g', 10).arg(point(number).y(), 0, 'g', 10);
        set("figure", "points", corners);
    }
};

SHAPEKIT_PLUGIN(Polygon, "Polygon", "Vieleck", Basic)
