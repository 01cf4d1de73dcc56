// Expressions of declared shapes: a fault stands inside of its text, and what compiles is evaluated within its
// budget.

#include "grammarinput.h"

#include <declared/expressions/compiler.h>

#include <QtGui/QGuiApplication>

using namespace declared;

namespace {

struct File
{
    File()
    {
        add("w", Type::Number, 120.0);
        add("middle", Type::Point, QPointF(60, 40));
        add("title", Type::Text, QStringLiteral("nut"));
        symbols.names.insert(QStringLiteral("p"), {Symbol::List, Type::Point, 0, 1});
        inputs.lists.append({{30, 10}, {90, 70}});
        symbols.names.insert(QStringLiteral("half"), {Symbol::Function, Type::Number, 0, 0});
        symbols.functions.append({QStringLiteral("half"), {QStringLiteral("v")}, QStringLiteral("v * 0.5")});
    }

    void add(const char *name, Type type, const Value &value)
    {
        symbols.names.insert(QLatin1String(name), {Symbol::Variable, type, inputs.values.size(), 0});
        inputs.values.append(value);
    }

    Symbols symbols;
    Inputs inputs;
};

void evaluate(const Program &program, const File &file, const Expression &expression)
{
    Budget budget;
    const Value value = Evaluator(program, file.inputs, budget).valueOf(expression);
    require(budget.steps >= 0, "no expression takes more steps than there are");
    require(!budget.isExhausted || !value.isFinite(), "nothing is left of what costs too much");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    static int count = 1;
    static char name[] = "fuzz_expressions";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QGuiApplication(count, arguments); // letters need fonts
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    static const File file;
    const QString text = fuzzedText(data, size);
    Program program;
    Compiler compiler(program, file.symbols);
    const auto check = [&](bool compiled) {
        require(compiled == compiler.fault().code.isEmpty(), "a text without result has a fault");
        require(compiler.fault().offset >= 0 && compiler.fault().offset <= text.size(),
                "a fault stands in its text");
    };
    const std::optional<Expression> expression = compiler.expression(text);
    check(expression.has_value());
    if (expression)
        evaluate(program, file, *expression);
    const std::optional<Expression> written = compiler.text(text);
    check(written.has_value());
    if (written)
        evaluate(program, file, *written);
    check(compiler.range(text).has_value());
    check(compiler.call(text).has_value());
    check(compiler.loops(text).has_value());
    return 0;
}
