#include <shapekit/shape.h>

#include <cmath>

using namespace shapekit;

/// A protractor: the control point turns its pointer in steps of a degree, and the angle is shown beside the
/// middle.
class Protractor : public ShapeOfType<34, Shape::Stretched>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QPointF settled(int, QPointF centre) override
    {
        return at(std::clamp(std::round(angle(centre)), 0.0, 180.0), 78);
    }
    void draw() override
    {
        const double degrees = std::round(angle(point(1)));
        setPath("pointer", PathText().line(centre, at(degrees, 90)));
        setPath("sector", PathText().moveTo(centre).lineTo(at(0, 30)).arcTo(30, at(degrees, 30), false).close());
        setPath("number", PathText().text({100, 100.8}, QStringLiteral("%1°").arg(degrees), 6.5));
    }

private:
    static constexpr QPointF centre{100, 94};
    /// Counter-clockwise from the right, as usual in mathematics; below the base line, the nearer end.
    static double angle(QPointF place)
    {
        if (place.y() > centre.y())
            return place.x() > centre.x() ? 0 : 180;
        return 90 - std::remainder(angleOf(place, centre), 360);
    }
    static QPointF at(double degrees, double radius) { return onCircle(centre, radius, 90 - degrees); }
};

SHAPEKIT_PLUGIN(Protractor, "Protractor", "Winkelmesser", Mathematics)
