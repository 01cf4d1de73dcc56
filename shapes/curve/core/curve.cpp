#include "curve/core/curve.h"

#include <shapekit/functiongraph.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QJsonArray>

#include <algorithm>

namespace curve {

namespace {

using shapekit::Formula;
using shapekit::PathText;
using shapekit::Text;

const Text valuesText("Values", "Werte");
const Text functionText("Function", "Funktion");
const Text ownPointsText("Own points", "Eigene Punkte");
const Text formulaText("Formula", "Formel");
const Text firstXText("x from", "x von");
const Text lastXText("x to", "x bis");
const Text firstYText("y from", "y von");
const Text lastYText("y to", "y bis");

const Text lineText("Line: x", "Gerade: x");
const Text parabolaText("Parabola: x²", "Parabel: x²");
const Text cubicText("Cubic parabola: x³", "Kubische Parabel: x³");
const Text absoluteText("Absolute value: |x|", "Betrag: |x|");
const Text rootText("Root: √x", "Wurzel: √x");
const Text hyperbolaText("Hyperbola: 1/x", "Hyperbel: 1/x");
const Text exponentialText("Exponential: e^x", "Exponentialfunktion: e^x");
const Text logarithmText("Logarithm: ln(x)", "Logarithmus: ln(x)");
const Text sineText("Sine: sin(x)", "Sinus: sin(x)");
const Text cosineText("Cosine: cos(x)", "Kosinus: cos(x)");
const Text tangentText("Tangent: tan(x)", "Tangens: tan(x)");

struct KnownFunction
{
    const Text *title;
    Formula formula;
};

/// Saved by their place: new ones go to the end.
const QVector<KnownFunction> &knownFunctions()
{
    static const QVector<KnownFunction> functions{
        {&lineText, Formula(QStringLiteral("x"))},          {&parabolaText, Formula(QStringLiteral("x^2"))},
        {&cubicText, Formula(QStringLiteral("x^3"))},       {&absoluteText, Formula(QStringLiteral("|x|"))},
        {&rootText, Formula(QStringLiteral("sqrt(x)"))},    {&hyperbolaText, Formula(QStringLiteral("1/x"))},
        {&exponentialText, Formula(QStringLiteral("e^x"))}, {&logarithmText, Formula(QStringLiteral("ln(x)"))},
        {&sineText, Formula(QStringLiteral("sin(x)"))},     {&cosineText, Formula(QStringLiteral("cos(x)"))},
        {&tangentText, Formula(QStringLiteral("tan(x)"))}};
    return functions;
}

QVector<const Text *> choices()
{
    QVector<const Text *> texts{&ownPointsText, &formulaText};
    for (const KnownFunction &function : knownFunctions())
        texts.append(function.title);
    return texts;
}

constexpr double margin = 8;
constexpr int valueCount = 12;
constexpr double largestValue = 10;
constexpr double largestNumber = 1000;
constexpr double numberStep = 0.5;
/// Of the window, where its ends leave none.
constexpr double smallestSpan = 0.01;

/// The span between two ends in any order.
QPointF span(double one, double other)
{
    const double first = std::min(one, other);
    return {first, std::max({one, other, first + smallestSpan})};
}

} // namespace

Curve::Curve(CSVGObj *owner)
    : ShapeOfType(owner)
    , m_values(this, valuesText, valueCount, -largestValue, largestValue)
    , m_function(this, functionText, OwnPoints, choices())
    , m_formula(this, formulaText, QStringLiteral("sin(x)"))
    , m_firstX(this, firstXText, -5, -largestNumber, largestNumber, numberStep)
    , m_lastX(this, lastXText, 5, -largestNumber, largestNumber, numberStep)
    , m_firstY(this, firstYText, -3, -largestNumber, largestNumber, numberStep)
    , m_lastY(this, lastYText, 3, -largestNumber, largestNumber, numberStep)
{
}

bool Curve::GetSettingArray(QJsonArray &settings)
{
    m_values.setPanels(true, hasPoints());
    m_formula.setPanels(true, m_function == Written);
    for (shapekit::RealNumber *end : {&m_firstX, &m_lastX, &m_firstY, &m_lastY})
        end->setPanels(true, !hasPoints());
    return ShapeOfType::GetSettingArray(settings);
}

const Formula &Curve::function() const
{
    return m_function == Written ? m_formula.formula() : knownFunctions().at(m_function - Written - 1).formula;
}

QRectF Curve::window() const
{
    const QPointF x = span(m_firstX, m_lastX);
    const QPointF y = span(m_firstY, m_lastY);
    return {QPointF(x.x(), y.x()), QPointF(x.y(), y.y())};
}

QPointF Curve::placed(QPointF number, const QRectF &window) const
{
    return {margin + (number.x() - window.left()) / window.width() * (width() - 2 * margin),
            height() - margin - (number.y() - window.top()) / window.height() * (height() - 2 * margin)};
}

/// Of the values of points, document units.
double Curve::unit() const
{
    return std::max(1.0, height() / 2 - margin) / largestValue;
}

/// The points of a curve that has none stay where the values want them.
QRectF Curve::range(int number)
{
    return hasPoints() ? ShapeOfType::range(number) : QRectF(wantedPoint(number), QSizeF(0, 0));
}

QPointF Curve::wantedPoint(int number)
{
    const double step = (width() - 2 * margin) / std::max(1, pointCount() - 1);
    return {margin + (number - 1) * step, middle().y() - m_values.numbers().value(number - 1) * unit()};
}

void Curve::pointMoved(int number, QPointF centre)
{
    if (hasPoints() || isBeingLoaded)
        m_values.setNumber(number - 1, (middle().y() - centre.y()) / unit());
}

PathText Curve::graphThroughPoints() const
{
    QVector<QPointF> points;
    for (int number = 1; number <= pointCount(); ++number)
        points.append(point(number));
    return PathText().graph(points);
}

PathText Curve::graph() const
{
    const Formula &formula = function();
    const QRectF shown = window();
    const QVector<QVector<QPointF>> pieces =
        shapekit::graphPieces([&formula](double x) { return formula.at(x); }, shown);
    PathText path;
    for (const QVector<QPointF> &piece : pieces) {
        QVector<QPointF> drawn;
        for (const QPointF &point : piece)
            drawn.append(placed(point, shown));
        path.graph(drawn);
    }
    return path;
}

/// Where the window shows them.
PathText Curve::axes() const
{
    const QRectF shown = window();
    const QPointF origin = placed({0, 0}, shown);
    PathText path;
    if (shown.top() <= 0 && shown.bottom() >= 0)
        path.line({margin, origin.y()}, {width() - margin, origin.y()});
    if (shown.left() <= 0 && shown.right() >= 0)
        path.line({origin.x(), margin}, {origin.x(), height() - margin});
    return path;
}

void Curve::draw()
{
    const PathText figure = hasPoints() ? graphThroughPoints() : graph();
    // Without a line there would be no pen to ask for its width.
    if (figure.text().isEmpty())
        document->setAllStrokeWidth(document->getAllStrokeWidth());
    setPath("figure", figure);
    setPath("axis",
            hasPoints() ? PathText().line({margin, middle().y()}, {width() - margin, middle().y()}) : axes());
    // A curve that can't be seen is taken hold of anywhere.
    setPath("area", figure.text().isEmpty() ? PathText().roundedRectangle(frame(), 0) : PathText());
    for (int number = 1; number <= pointCount(); ++number)
        set(QStringLiteral("control_%1").arg(number).toLatin1(), "visibility",
            hasPoints() ? QStringLiteral("visible") : QStringLiteral("hidden"));
}

} // namespace curve
