#pragma once

#include <shapekit/formulavalue.h>
#include <shapekit/shape.h>

namespace curve {

/// The graph of a function: of one that is chosen or written as a formula, in a window of numbers; or smooth
/// through a dozen points that the user drags up and down, or writes as values from -10 to 10.
class Curve : public shapekit::ShapeOfType<31>
{
public:
    explicit Curve(CSVGObj *owner);

    /// Offers the settings of the present kind of curve alone.
    bool GetSettingArray(QJsonArray &settings) override;

protected:
    QSizeF smallestSize() const override { return {60, 40}; }
    QRectF range(int number) override;
    QPointF wantedPoint(int number) override;
    void pointMoved(int number, QPointF centre) override;
    void draw() override;

private:
    /// In the order in which they are saved; known functions follow.
    enum Function { OwnPoints, Written };

    bool hasPoints() const { return m_function == OwnPoints; }
    const shapekit::Formula &function() const;
    /// The numbers that the frame shows.
    QRectF window() const;
    QPointF placed(QPointF number, const QRectF &window) const;
    double unit() const;
    shapekit::PathText graph() const;
    shapekit::PathText graphThroughPoints() const;
    shapekit::PathText axes() const;

    // The values come first: files of earlier versions have no more.
    shapekit::NumberList m_values;
    shapekit::Choice m_function;
    shapekit::FormulaValue m_formula;
    shapekit::RealNumber m_firstX;
    shapekit::RealNumber m_lastX;
    shapekit::RealNumber m_firstY;
    shapekit::RealNumber m_lastY;
};

} // namespace curve
