#pragma once

#include <declared/expressions/compiler.h>

namespace declaredtest {

using namespace declared;

/// Names and values as a shape of 120 × 80 has them, and something to evaluate with them.
class Bench
{
public:
    Bench()
    {
        addValue("w", Type::Number, 120.0);
        addValue("h", Type::Number, 80.0);
        addValue("middle", Type::Point, QPointF(60, 40));
        addValue("p1", Type::Point, QPointF(30, 10));
        addValue("zero", Type::Number, 0.0);
        addValue("title", Type::Text, QStringLiteral("nut"));
        addList("p", Type::Point, {{30, 10}, {90, 70}}, 1);
        addList("values", Type::Number, {{4, 0}, {2.5, 0}, {8, 0}}, 0);
    }

    void addValue(const char *name, Type type, const Value &value)
    {
        symbols.names.insert(QLatin1String(name), {Symbol::Variable, type, inputs.values.size(), 0});
        inputs.values.append(value);
    }
    void addList(const char *name, Type type, const QVector<QPointF> &entries, int firstIndex)
    {
        symbols.names.insert(QLatin1String(name), {Symbol::List, type, inputs.lists.size(), firstIndex});
        inputs.lists.append(entries);
    }
    void addFunction(const char *name, const QStringList &parameters, const char *body)
    {
        symbols.names.insert(QLatin1String(name), {Symbol::Function, Type::Number, symbols.functions.size(), 0});
        symbols.functions.append({QLatin1String(name), parameters, QString::fromUtf8(body)});
    }

    /// The value as an attribute would have it: "nothing" for one that is not finite, "fault" for a faulty text.
    QString asAttribute(const QString &text, bool isExpression)
    {
        const QString whole = isExpression ? QLatin1Char('{') + text + QLatin1Char('}') : text;
        Program program;
        Compiler compiler(program, symbols);
        const std::optional<Expression> compiled = compiler.text(whole);
        if (!compiled)
            return QStringLiteral("fault");
        const Value value = Evaluator(program, inputs, budget).valueOf(*compiled);
        return value.isFinite() ? value.text : QStringLiteral("nothing");
    }
    QString expression(const char *text) { return asAttribute(QString::fromUtf8(text), true); }
    QString text(const char *text) { return asAttribute(QString::fromUtf8(text), false); }

    Symbols symbols;
    Inputs inputs;
    Budget budget;
};

} // namespace declaredtest
