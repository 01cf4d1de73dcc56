#include <kit/shape.h>

using namespace shapekit;

/// A closed figure of straight lines whose corners are its control points: as many as the template has, or as a
/// saved polygon brings along.
class Polygon : public Shape
{
public:
    explicit Polygon(CSVGObj *owner)
        : Shape(owner, 9)
    {
    }

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
