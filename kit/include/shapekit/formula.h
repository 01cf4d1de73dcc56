#pragma once

#include <shapekit/shapekit_global.h>

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

namespace shapekit {

/// A function of x as people write it: "y = 2x^2 - 1", "f(x) = sin(x) / x", "|x| + 0,5".
///
/// There are + - * / ^, parentheses, bars for the absolute value, numbers with a point or a comma, `pi`, `e`, and
/// the functions of functionNames(), whose arguments stand in parentheses; angles are in radians. Signs of
/// multiplication may be left out before names and parentheses. The size of a formula, and so the time that it
/// takes, is limited.
class SHAPEKIT_EXPORT Formula
{
public:
    /// Why a text is no formula.
    enum Fault {
        None,
        Empty,
        Unexpected,  ///< a sign that can't stand there
        UnknownName, ///< neither x nor a constant nor a function
        NoArgument,  ///< a function without a parenthesis behind it
        Unclosed,    ///< a parenthesis or bar that is never closed
        Incomplete,  ///< the end comes too early
        TooLong      ///< too many characters, or too deep
    };

    /// Longer texts are refused, UTF-16 units.
    static constexpr int mostCharacters = 200;

    /// A formula that isn't readable has a fault and no values.
    explicit Formula(const QString &text = QString());

    /// The first fault of the text.
    Fault fault() const { return m_fault; }
    /// Whether there is a function to draw.
    bool isReadable() const { return m_fault == None; }
    /// Where the fault is: an index into the text, and the sign or name that stands there.
    int faultOffset() const { return m_faultOffset; }
    /// See faultOffset().
    QString faultyText() const { return m_faultyText; }

    /// The value at x; not finite where the function has none.
    double at(double x) const;

    /// Names of the functions that a formula may use.
    static QStringList functionNames();

private:
    friend class FormulaReader;

    struct Step
    {
        enum Kind { Number, Argument, Negate, Add, Subtract, Multiply, Divide, Power, Function };
        Kind kind = Number;
        double number = 0;
        int function = 0;
    };

    static double calculated(Step::Kind kind, double left, double right);

    QVector<Step> m_steps; ///< in the order of a stack machine
    Fault m_fault = None;
    int m_faultOffset = 0;
    QString m_faultyText;
};

} // namespace shapekit
