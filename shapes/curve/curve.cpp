#include <shapekit/shape.h>

using namespace shapekit;

const Text valuesText("Values", "Werte");

namespace {

/// The slope at a point between two pieces of these slopes. Where the curve turns it is level, so that no part of
/// it reaches beyond the points: harmonic means as by Fritsch and Butland, "A method for constructing local
/// monotone piecewise cubic interpolants", 1984.
double slopeBetween(double before, double after)
{
    return before * after > 0 ? 2 * before * after / (before + after) : 0;
}

/// The slope at an end, as if the parabola through three points went on there, at most so steep that the piece
/// stays between its points.
double slopeAtEnd(double outer, double inner)
{
    const double slope = (3 * outer - inner) / 2;
    if (slope * outer <= 0)
        return 0;
    return std::abs(slope) > 3 * std::abs(outer) ? 3 * outer : slope;
}

double slopeOf(QPointF from, QPointF to)
{
    return (to.y() - from.y()) / std::max(1.0, to.x() - from.x());
}

/// A smooth curve through the points, which are given from left to right.
PathText curveThrough(const QVector<QPointF> &points)
{
    QVector<double> pieces;
    for (int i = 1; i < points.size(); ++i)
        pieces.append(slopeOf(points[i - 1], points[i]));
    const int last = pieces.size() - 1;
    const auto slopeAt = [&](int i) {
        if (i > 0 && i <= last)
            return slopeBetween(pieces[i - 1], pieces[i]);
        return i == 0 ? slopeAtEnd(pieces[0], pieces[qMin(1, last)])
                      : slopeAtEnd(pieces[last], pieces[qMax(0, last - 1)]);
    };
    PathText path;
    path.moveTo(points.value(0));
    for (int i = 1; i < points.size(); ++i) {
        const double third = (points[i].x() - points[i - 1].x()) / 3;
        path.curveTo(points[i - 1] + QPointF(third, third * slopeAt(i - 1)),
                     points[i] - QPointF(third, third * slopeAt(i)), points[i]);
    }
    return path;
}

} // namespace

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
        setPath("figure", curveThrough(points));
        setPath("axis", PathText().line({margin, middle().y()}, {width() - margin, middle().y()}));
    }

private:
    double unit() const { return std::max(1.0, height() / 2 - margin) / 10; }

    static constexpr double margin = 8;
    NumberList values{this, valuesText, 12, -10, 10};
};

SHAPEKIT_PLUGIN(Curve, "Curve", "Kurve", Mathematics)
