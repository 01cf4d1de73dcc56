#include <shapekit/shape.h>

#include <cmath>

using namespace shapekit;

const Text firstText("First number", "Erste Zahl");
const Text stepText("Step", "Schritt");
const Text markerText("Marker", "Marke");
const Text snapText("Marker goes", "Marke springt");
const Text numbersText("From number to number", "Von Zahl zu Zahl");
const Text tenthsText("To tenths between them", "Auch auf Zehntel");
const Text anywhereText("Anywhere", "Überallhin");

/// A number line of ten steps with a movable marker.
class NumberLine : public ShapeOfType<32>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QSizeF smallestSize() const override { return {48, 36}; }
    QRectF range(int) override
    {
        return between({margin, middle().y() - 8}, {width() - 2 * margin, middle().y() - 8});
    }
    QPointF settled(int number, QPointF centre) override
    {
        const QPointF place = ShapeOfType::settled(number, centre);
        const double gap = (width() - 3 * margin) / (snap == 1 ? 100 : 10);
        return snap == 2 ? place : QPointF(margin + std::round((place.x() - margin) / gap) * gap, place.y());
    }
    void draw() override
    {
        const double y = middle().y() + 2, end = width() - 3;
        PathText ticks, labels;
        const bool wide = width() > 160; // otherwise there is no room for every number
        for (int i = 0; i <= 10; i += wide ? 1 : 5) {
            const double x = margin + (width() - 3 * margin) * i / 10;
            ticks.line({x, y - 5}, {x, y + 5});
            if (width() > 70)
                labels.text({x, y + 14}, QString::number(first + i * step), wide ? std::min(9.0, width() / 34) : 7);
        }
        setPath("figure", PathText().line({3, y}, {end - 2, y}));
        setPath("area", PathText().roundedRectangle({3, 3, end - 3, height() - 6}, 0));
        setPath("ticks", ticks);
        setPath("labels", labels);
        setPath("arrow", PathText().polygon({{end, y}, {end - 10, y - 5}, {end - 10, y + 5}}));
        setPath("marker", PathText().polygon(
                              {{point(1).x(), y - 2}, {point(1).x() - 6, y - 14}, {point(1).x() + 6, y - 14}}));
        set("marker", "fill", QColor(marker).name());
    }

private:
    static constexpr double margin = 12;
    WholeNumber first{this, firstText, 0, -1000, 1000};
    RealNumber step{this, stepText, 1, 0.1, 100, 0.1};
    ColorValue marker{this, markerText, 0xffd9534f};
    Choice snap{this, snapText, 0, {&numbersText, &tenthsText, &anywhereText}};
};

SHAPEKIT_PLUGIN(NumberLine, "Number line", "Zahlenstrahl", Mathematics)
