#include <declared/expressions/program.h>

#include <declared/expressions/functions.h>

#include <QtCore/QScopedValueRollback>

#include <cmath>
#include <limits>

namespace declared {

namespace {

/// A condition of numbers that are not finite is neither true nor false.
constexpr double unknown = std::numeric_limits<double>::quiet_NaN();

/// Whether the result is a text made of the texts of other steps.
bool isComposed(Operation operation)
{
    return operation == Operation::Join || operation == Operation::Repeat || operation == Operation::Choose ||
           operation == Operation::Call;
}

double truth(bool holds)
{
    return holds ? 1 : 0;
}

} // namespace

Evaluator::Evaluator(const Program &program, const Inputs &inputs, Budget &budget)
    : m_program(program)
    , m_inputs(inputs)
    , m_budget(budget)
{
}

Value Evaluator::valueOf(const Expression &expression)
{
    if (!expression.isValid() || m_budget.isExhausted)
        return Value::notFinite();
    m_stepsLeft = std::min(limits::stepsOfExpression, m_budget.steps);
    const int before = m_stepsLeft;
    m_locals.clear();
    m_locals.resize(limits::loopDepth);
    m_frame = 0;
    const Value value = run(expression.step);
    m_budget.steps -= before - m_stepsLeft;
    return m_budget.isExhausted ? Value::notFinite() : value;
}

bool Evaluator::holds(const Expression &expression)
{
    const Value value = valueOf(expression);
    return !value.isFinite() || value.number() != 0;
}

bool Evaluator::exhausted()
{
    m_budget.isExhausted = m_budget.isExhausted || m_stepsLeft <= 0;
    return m_budget.isExhausted;
}

Value Evaluator::argument(const Step &step, int index)
{
    return run(m_program.arguments[size_t(step.firstArgument) + size_t(index)]);
}

Value Evaluator::run(qint32 index)
{
    if (exhausted())
        return Value::notFinite();
    --m_stepsLeft;
    const Step &step = m_program.steps[size_t(index)];
    Value result = resultOf(step);
    // Charge each piece of text once, where it is made.
    if (step.type == Type::Text && !isComposed(step.operation))
        payFor(result.text.size());
    return result;
}

void Evaluator::payFor(int characters)
{
    m_budget.characters -= characters;
    m_budget.isExhausted = m_budget.isExhausted || m_budget.characters < 0;
}

Value Evaluator::resultOf(const Step &step)
{
    switch (step.operation) {
    case Operation::Constant:
        return step.number;
    case Operation::TextConstant:
        return m_program.texts[size_t(step.slot)];
    case Operation::Variable:
        return m_inputs.values.value(step.slot);
    case Operation::Local:
        return m_locals[m_frame + step.slot];
    case Operation::Element:
        return elementOf(step);
    case Operation::Count:
        return m_inputs.lists.value(step.slot).size();
    case Operation::XOf:
        return argument(step, 0).point.x();
    case Operation::YOf:
        return argument(step, 0).point.y();
    case Operation::Less:
    case Operation::LessOrEqual:
    case Operation::Greater:
    case Operation::GreaterOrEqual:
    case Operation::Equal:
    case Operation::NotEqual:
        return compared(step);
    case Operation::And:
    case Operation::Or:
    case Operation::Not:
    case Operation::Choose:
        return combined(step);
    case Operation::Call:
        return called(step);
    case Operation::Builtin:
        return builtin(step);
    case Operation::Join:
        return joined(step);
    case Operation::Repeat:
        return repeated(step);
    default:
        return calculated(step);
    }
}

Value Evaluator::elementOf(const Step &step)
{
    const double index = wholeOf(argument(step, 0).number() - step.number);
    const QVector<QPointF> list = m_inputs.lists.value(step.slot);
    return index >= 0 && index < list.size() ? Value(list.at(int(index))) : Value::notFinite();
}

Value Evaluator::compared(const Step &step)
{
    const Value left = argument(step, 0);
    const Value right = argument(step, 1);
    if (!left.isFinite() || !right.isFinite())
        return unknown;
    const bool alike =
        left.point.x() == right.point.x() && left.point.y() == right.point.y() && left.text == right.text;
    switch (step.operation) {
    case Operation::Less:
        return truth(left.number() < right.number());
    case Operation::LessOrEqual:
        return truth(left.number() <= right.number());
    case Operation::Greater:
        return truth(left.number() > right.number());
    case Operation::GreaterOrEqual:
        return truth(left.number() >= right.number());
    case Operation::Equal:
        return truth(alike);
    default:
        return truth(!alike);
    }
}

Value Evaluator::combined(const Step &step)
{
    const double first = argument(step, 0).number();
    if (step.operation == Operation::Choose)
        return qIsFinite(first) ? argument(step, first != 0 ? 1 : 2) : Value::notFinite();
    if (step.operation == Operation::Not)
        return qIsFinite(first) ? truth(first == 0) : unknown;
    // One side decides "and" when it is false, "or" when it is true, whatever the other side is.
    const bool deciding = step.operation == Operation::Or;
    if (qIsFinite(first) && (first != 0) == deciding)
        return truth(deciding);
    const double second = argument(step, 1).number();
    if (qIsFinite(second) && (second != 0) == deciding)
        return truth(deciding);
    return qIsFinite(first) && qIsFinite(second) ? truth(!deciding) : unknown;
}

Value Evaluator::calculated(const Step &step)
{
    const Value left = argument(step, 0);
    if (step.operation == Operation::Negate)
        return step.type == Type::Point ? Value(-left.point) : Value(-left.number());
    const Value right = argument(step, 1);
    switch (step.operation) {
    case Operation::Add:
        return left.point + right.point;
    case Operation::Subtract:
        return left.point - right.point;
    case Operation::Multiply:
        return left.point * right.number();
    case Operation::Divide:
        return left.number() / right.number();
    case Operation::Remainder:
        return remainderOf(left.number(), right.number());
    default:
        return std::pow(left.number(), right.number());
    }
}

Value Evaluator::called(const Step &step)
{
    const FunctionBody &function = m_program.functions[size_t(step.slot)];
    QVarLengthArray<Value, 8> arguments;
    for (int i = 0; i < step.argumentCount; ++i)
        arguments.append(argument(step, i));
    const QScopedValueRollback<int> frame(m_frame, m_locals.size());
    m_locals.append(arguments.constData(), arguments.size());
    Value result = run(function.step);
    m_locals.resize(m_frame);
    return result;
}

Value Evaluator::builtin(const Step &step)
{
    QVarLengthArray<Value, 8> arguments;
    for (int i = 0; i < step.argumentCount; ++i)
        arguments.append(argument(step, i));
    return builtins().at(step.slot).body(arguments.constData(), arguments.size());
}

Value Evaluator::joined(const Step &step)
{
    QString text;
    bool isFinite = true;
    for (int i = 0; i < step.argumentCount && !m_budget.isExhausted; ++i) {
        const qint32 part = m_program.arguments[size_t(step.firstArgument) + size_t(i)];
        isFinite &= appendPart(text, run(part), m_program.steps[size_t(part)].type);
    }
    return isFinite ? Value(text) : Value::notFinite();
}

Value Evaluator::repeated(const Step &step)
{
    const double from = wholeOf(argument(step, 0).number());
    const double to = wholeOf(argument(step, 1).number());
    if (!qIsFinite(from) || !qIsFinite(to))
        return Value::notFinite();
    if (to - from >= limits::loopRounds) {
        m_budget.isExhausted = true;
        return Value::notFinite();
    }
    QString text;
    bool isFinite = true;
    for (double round = from; round <= to && !m_budget.isExhausted; ++round) {
        m_locals[m_frame + step.slot] = round;
        isFinite &= appendPart(text, argument(step, 2), Type::Text);
    }
    return isFinite ? Value(text) : Value::notFinite();
}

bool Evaluator::appendPart(QString &text, const Value &part, Type type)
{
    if (!part.isFinite())
        return false;
    if (type == Type::Text) {
        text += part.text;
        return true;
    }
    const int before = text.size();
    appendNumber(text, part.point.x());
    if (type == Type::Point) {
        text += QLatin1Char(' ');
        appendNumber(text, part.point.y());
    }
    payFor(text.size() - before);
    return true;
}

} // namespace declared
