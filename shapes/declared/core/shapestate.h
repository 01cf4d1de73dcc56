#pragma once

#include <declared/reader/declaration.h>
#include <declared/reader/message.h>

#include <QtCore/QRectF>
#include <QtGui/QColor>

#include <optional>
#include <utility>

namespace declared {

/// The values that the expressions of one shape read, and their results. Points and sizes are document units.
class ShapeState
{
public:
    explicit ShapeState(const Declaration &declaration);

    void setSize(QSizeF size);
    /// The frame that the middle of a line may reach.
    void setFrame(const QRectF &frame);
    void setStyle(QRgb pen, QRgb fill, double penWidth);
    QColor penColour() const { return QColor(m_pen.value_or(qRgb(0, 0, 0))); }
    void setPoints(const QVector<QPointF> &centres);
    void setProperty(const PropertyDeclaration &property, const Value &value);
    void setList(const PropertyDeclaration &property, const QVector<QPointF> &entries);
    void setLoop(const LoopDeclaration &loop, double value);

    /// Allows for another drawing, or for settling once more.
    void renewBudget()
    {
        // Lets of an exhausted drawing have no values.
        m_letsAreValid = m_letsAreValid && !m_budget.isExhausted;
        m_budget = {};
    }
    bool isExhausted() const { return m_budget.isExhausted; }
    const Budget &budget() const { return m_budget; }
    /// Pays for a part of the drawing that is there already, so that what is drawn does not depend on what was
    /// drawn before. False, without paying, when the budget is too small.
    bool pay(const Budget &cost);

    /// The present values of inputs, in their order: slots, lists as -1 - slot.
    Inputs valuesOf(const QVector<qint32> &inputs);
    /// Notes an expression whose value isn't finite.
    Value valueOf(const Expression &expression);
    bool holds(const Expression &expression);
    /// `limits` with the ranges of a point instead, where it has any; what isn't finite doesn't limit.
    QRectF range(int number, QRectF limits);
    /// Where a point stands that is wanted at `at`, the others standing where they were set to.
    QPointF settled(int number, QPointF at, const QRectF &limits);
    /// Whether a drag may take a point to `at`, where it stands at `stands`.
    bool isAllowed(int number, QPointF at, QPointF stands);
    /// The place on the other side of the middle, for a point that mirrors another one.
    QPointF mirrored(const PointDeclaration &point, QPointF centre) const;

    /// Notes something that is wrong with a part of the present drawing; the same is noted once.
    void note(const char *code, Place place, const QString &text);
    QVector<Message> takeNotes() { return std::exchange(m_notes, {}); }

private:
    void set(qint32 slot, const Value &value);
    void evaluateLets();
    double limitOf(const Expression &expression, double otherwise);
    double steppedFrom(double low, double value, double high, const Expression &step);

    const Declaration &m_declaration;
    Inputs m_inputs;
    Budget m_budget;
    bool m_letsAreValid = false;
    std::optional<QRgb> m_pen; ///< whose name is known
    std::optional<QRgb> m_fill;
    QVector<Message> m_notes;
};

/// To the last bit.
bool areSame(const Inputs &present, const Inputs &others);

} // namespace declared
