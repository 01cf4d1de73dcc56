#pragma once

#include <declared/expressions/lexer.h>
#include <declared/expressions/program.h>

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QStringList>

#include <optional>

namespace declared {

/// A name of a file and the thing that it stands for.
struct Symbol
{
    enum Kind { Variable, List, Function, Undefined };

    Kind kind = Variable;
    Type type = Type::Number; ///< of the value, or of the entries of a list
    qint32 slot = 0;          ///< of a value or list; of a function its index in Symbols::functions
    int firstIndex = 0;       ///< of a list
};

/// A function of a file: an expression of its parameters.
struct Function
{
    QString name;
    QStringList parameters;
    QString body;
};

struct Symbols
{
    QHash<QString, Symbol> names;
    QVector<Function> functions;

    QStringList valueNames() const;
    QStringList functionNames() const;
};

/// Two ends of a range; one value is a range of both.
struct RangeExpression
{
    Expression low;
    Expression high;
};

/// A name and the expressions in the parentheses behind it.
struct CallExpression
{
    QString name;
    QVector<Expression> arguments;
};

/// A loop over whole numbers: "i in a..b".
struct LoopExpression
{
    QString name;
    Expression from;
    Expression to;
};

/// Compiles the texts of one file into a program. A result without value has left a fault: the first one.
class Compiler
{
public:
    Compiler(Program &program, const Symbols &symbols);

    /// A whole text that is one expression, of any type.
    std::optional<Expression> expression(const QString &text);
    /// One of that type.
    std::optional<Expression> expression(const QString &text, Type type);
    /// Text with expressions, loops and conditions in braces.
    std::optional<Expression> text(const QString &text);
    std::optional<RangeExpression> range(const QString &text);
    std::optional<CallExpression> call(const QString &text);
    /// Loops, with commas between them.
    std::optional<QVector<LoopExpression>> loops(const QString &text);
    /// Values that may be named besides those of the file, such as "at"; kept until they are set anew.
    void setExtraNames(const QHash<QString, Symbol> &names) { m_extraNames = names; }

    const Fault &fault() const { return m_fault; }
    /// Names of the file that some expression has mentioned.
    const QSet<QString> &usedNames() const { return m_usedNames; }

private:
    friend class Parser;

    struct Instance
    {
        qint32 index;
        QVector<qint32> inputs;
    };

    /// False, with a fault, for a text that is too long.
    bool begin(const QString &text);

    Program &m_program;
    const Symbols &m_symbols;
    QHash<QString, Symbol> m_extraNames;
    QHash<QString, Instance> m_instances; ///< by function and types of its arguments
    QSet<QString> m_usedNames;
    int m_functionDepth = 0;
    Fault m_fault;
};

/// The names that an expression mentions, parameters and texts left out; for putting definitions in order.
QStringList namesIn(const QString &text, const QStringList &without);

} // namespace declared
