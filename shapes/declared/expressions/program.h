#pragma once

#include <declared/expressions/limits.h>
#include <declared/expressions/value.h>

#include <QtCore/QVarLengthArray>

#include <vector>

namespace declared {

/// The kinds of steps of an expression.
enum class Operation : quint8 {
    Constant,
    TextConstant,
    Variable,
    Local,
    Element,
    Count,
    XOf,
    YOf,
    Negate,
    Add,
    Subtract,
    Multiply,
    Divide,
    Remainder,
    Power,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    Equal,
    NotEqual,
    And,
    Or,
    Not,
    Choose,
    Call,
    Builtin,
    Join,
    Repeat
};

/// A step of an expression and the steps that give its arguments.
struct Step
{
    Operation operation = Operation::Constant;
    Type type = Type::Number;
    qint16 height = 1;        ///< how many steps wait for each other here
    qint32 slot = 0;          ///< of a variable, list, local, function or text
    qint32 firstArgument = 0; ///< into Program::arguments
    qint32 argumentCount = 0;
    double number = 0; ///< a constant; the index that the first entry of a list has
};

/// A compiled expression: its last step in a program.
struct Expression
{
    qint32 step = -1; ///< negative: none
    Type type = Type::Number;
    QVector<qint32> inputs; ///< slots that it reads, in order; lists follow as -1 - slot
    Place place;            ///< in the file

    bool isValid() const { return step >= 0; }
};

/// A function of a file, compiled for arguments of certain types.
struct FunctionBody
{
    qint32 step = -1;
};

/// The compiled expressions of one file; never changed afterwards, so that threads may share it.
struct Program
{
    std::vector<Step> steps;
    std::vector<qint32> arguments; ///< indexes of steps
    std::vector<QString> texts;
    std::vector<FunctionBody> functions;
};

/// Values that expressions read, by slot.
struct Inputs
{
    QVector<Value> values;
    QVector<QVector<QPointF>> lists; ///< numbers stand in x
};

/// The evaluation cost that is left; expressions of one drawing share it.
struct Budget
{
    int steps = limits::stepsOfDrawing;
    int characters = limits::charactersOfDrawing;
    bool isExhausted = false;
};

/// The rest of `whole` without `part`; the cost of an evaluation, where `part` is what it left.
inline Budget operator-(const Budget &whole, const Budget &part)
{
    return {whole.steps - part.steps, whole.characters - part.characters, whole.isExhausted};
}

/// Evaluates expressions of a program for given inputs.
class Evaluator
{
public:
    /// All of them outlive the evaluator.
    Evaluator(const Program &program, const Inputs &inputs, Budget &budget);

    /// Not finite when a part of it isn't, and when the budget is exhausted.
    Value valueOf(const Expression &expression);
    /// Whether a condition holds; one that isn't finite does.
    bool holds(const Expression &expression);

private:
    Value run(qint32 index);
    Value resultOf(const Step &step);
    void payFor(int characters);
    Value argument(const Step &step, int index);
    Value elementOf(const Step &step);
    Value compared(const Step &step);
    Value combined(const Step &step);
    Value calculated(const Step &step);
    Value called(const Step &step);
    Value builtin(const Step &step);
    Value joined(const Step &step);
    Value repeated(const Step &step);
    /// False for a part that is not finite.
    bool appendPart(QString &text, const Value &part, Type type);
    bool exhausted();

    const Program &m_program;
    const Inputs &m_inputs;
    Budget &m_budget;
    int m_stepsLeft = 0; ///< of the present expression
    QVarLengthArray<Value, 32> m_locals;
    int m_frame = 0; ///< where the locals of the present function begin
};

} // namespace declared
