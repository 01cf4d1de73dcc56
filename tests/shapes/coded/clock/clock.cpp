#include <shapekit/shape.h>

#include <cmath>

using namespace shapekit;

const Text faceText("Face", "Zifferblatt"), digitsText("Digits", "Ziffern"), romanText("Roman", "Römisch"),
    plainText("Plain", "Schlicht");

/// A clock whose hands are dragged from minute to minute; the hour hand follows the minute hand.
class Clock : public ShapeOfType<35, Shape::Stretched>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QPointF settled(int number, QPointF place) override
    {
        const double degrees = angleOf(place, centre);
        if (number == 2)
            return onCircle(centre, 36, 6 * std::round(degrees / 6));
        return onCircle(centre, 22, 30 * std::floor(degrees / 30 + 0.001) + angleOf(point(2), centre) / 12);
    }
    void draw() override
    {
        set("digits", "display", face == 0 ? "inline" : "none");
        set("roman", "display", face == 1 ? "inline" : "none");
        setPath("hour", PathText().line(centre, onCircle(centre, 27, angleOf(point(1), centre))));
        setPath("minute", PathText().line(centre, onCircle(centre, 41, angleOf(point(2), centre))));
    }

private:
    static constexpr QPointF centre{60, 60};
    Choice face{this, faceText, 0, {&digitsText, &romanText, &plainText}};
};

SHAPEKIT_PLUGIN(Clock, "Clock", "Uhr", Mathematics)
