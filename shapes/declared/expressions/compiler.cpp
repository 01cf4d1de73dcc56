#include <declared/expressions/compiler.h>

#include <declared/expressions/limits.h>
#include <declared/expressions/parser.h>

namespace declared {

QStringList Symbols::valueNames() const
{
    QStringList found;
    for (auto symbol = names.begin(); symbol != names.end(); ++symbol)
        if (symbol->kind != Symbol::Function)
            found.append(symbol.key());
    found.sort();
    return found;
}

QStringList Symbols::functionNames() const
{
    QStringList found;
    for (const Function &function : functions)
        found.append(function.name);
    return found;
}

Compiler::Compiler(Program &program, const Symbols &symbols)
    : m_program(program)
    , m_symbols(symbols)
{
}

bool Compiler::begin(const QString &text)
{
    m_fault = {};
    if (text.size() > limits::expressionCharacters)
        m_fault = {QStringLiteral("C26"), limits::expressionCharacters,
                   QStringLiteral("the expression is too long")};
    return m_fault.code.isEmpty();
}

std::optional<Expression> Compiler::expression(const QString &text)
{
    if (!begin(text))
        return {};
    Parser parser(*this, text);
    const qint32 step = parser.expression();
    if (step < 0 || !parser.atEnd())
        return {};
    return parser.finished(step);
}

std::optional<Expression> Compiler::expression(const QString &text, Type type)
{
    if (!begin(text))
        return {};
    Parser parser(*this, text);
    const qint32 step = parser.expressionOfType(type);
    if (step < 0 || !parser.atEnd())
        return {};
    return parser.finished(step);
}

std::optional<Expression> Compiler::text(const QString &text)
{
    m_fault = {};
    Parser parser(*this, text);
    const qint32 step = parser.text();
    if (step < 0)
        return {};
    return parser.finished(step);
}

std::optional<RangeExpression> Compiler::range(const QString &text)
{
    RangeExpression range;
    if (!begin(text) || !Parser(*this, text).range(range))
        return {};
    return range;
}

std::optional<CallExpression> Compiler::call(const QString &text)
{
    CallExpression call;
    if (!begin(text) || !Parser(*this, text).call(call))
        return {};
    return call;
}

std::optional<QVector<LoopExpression>> Compiler::loops(const QString &text)
{
    QVector<LoopExpression> loops;
    if (!begin(text) || !Parser(*this, text).loops(loops))
        return {};
    return loops;
}

QStringList namesIn(const QString &text, const QStringList &without)
{
    QStringList names;
    Lexer lexer(text);
    bool isField = false;
    for (Token token = lexer.take(); token.kind != Token::End; token = lexer.take()) {
        if (token.kind == Token::Name && !isField && !without.contains(token.text))
            names.append(token.text);
        isField = token.is(".");
    }
    return names;
}

} // namespace declared
