#include <shapekit/shape.h>

using namespace shapekit;

const Text valuesText("Values", "Werte");

/// The graph of a function, smooth through a dozen points: the user drags them up and down, or writes their values,
/// from -10 to 10, as text.
class Curve : public ShapeOfType<31>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QSizeF smallestSize() const override { return {60, 40}; }
    QPointF wantedPoint(int number) override
    {
        const double step = (width() - 2 * margin) / std::max(1, pointCount() - 1);
        return {margin + (number - 1) * step, middle().y() - values.numbers().value(number - 1) * unit()};
    }
    void pointMoved(int number, QPointF centre) override
    {
        values.setNumber(number - 1, (middle().y() - centre.y()) / unit());
    }
    void draw() override
    {
        QVector<QPointF> points;
        for (int number = 1; number <= pointCount(); ++number)
            points.append(point(number));
        setPath("figure", PathText().graph(points));
        setPath("axis", PathText().line({margin, middle().y()}, {width() - margin, middle().y()}));
    }

private:
    double unit() const { return std::max(1.0, height() / 2 - margin) / 10; }

    static constexpr double margin = 8;
    NumberList values{this, valuesText, 12, -10, 10};
};

SHAPEKIT_PLUGIN(Curve, "Curve", "Kurve", Mathematics)
