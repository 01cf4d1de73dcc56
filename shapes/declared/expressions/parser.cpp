#include <declared/expressions/parser.h>

#include <declared/expressions/functions.h>
#include <declared/expressions/limits.h>

#include <QtCore/QScopedValueRollback>

#include <algorithm>

namespace declared {

namespace {

const QStringList keywords{QStringLiteral("for"),  QStringLiteral("in"),  QStringLiteral("if"),
                           QStringLiteral("else"), QStringLiteral("end"), QStringLiteral("and"),
                           QStringLiteral("or"),   QStringLiteral("not")};

struct OperatorSign
{
    const char *sign;
    Operation operation;
};

constexpr OperatorSign comparisons[] = {{"<", Operation::Less},    {"<=", Operation::LessOrEqual},
                                        {">", Operation::Greater}, {">=", Operation::GreaterOrEqual},
                                        {"==", Operation::Equal},  {"!=", Operation::NotEqual}};
constexpr OperatorSign calculations[] = {{"+", Operation::Add},       {"-", Operation::Subtract},
                                         {"*", Operation::Multiply},  {"/", Operation::Divide},
                                         {"%", Operation::Remainder}, {"^", Operation::Power}};

/// Levels of binary operators, from the loosest.
enum Level { OrLevel, AndLevel, NotLevel, SumLevel, ProductLevel, UnaryLevel };

template<int count> Operation operationOf(const OperatorSign (&signs)[count], const Token &token)
{
    for (const OperatorSign &entry : signs)
        if (token.is(entry.sign))
            return entry.operation;
    return Operation::Constant;
}

bool continuesLevel(const Token &token, int level)
{
    return level == OrLevel    ? token.isWord("or")
           : level == AndLevel ? token.isWord("and")
           : level == SumLevel ? token.is("+") || token.is("-")
                               : token.is("*") || token.is("/") || token.is("%");
}

QString signatureOf(const QString &name, const QVector<Type> &types)
{
    QString text = name + QLatin1Char('(');
    for (int i = 0; i < types.size(); ++i)
        text += (i ? QStringLiteral(", ") : QString()) + nameOf(types.at(i));
    return text + QLatin1Char(')');
}

QString quoted(const Token &token)
{
    return token.kind == Token::End ? QStringLiteral("the end") : QLatin1Char('"') + token.text + QLatin1Char('"');
}

} // namespace

Parser::Parser(Compiler &compiler, const QString &text)
    : m_compiler(compiler)
    , m_text(text)
    , m_lexer(text)
{
}

qint32 Parser::addLocal(const QString &name, Type type)
{
    const qint32 slot = m_locals.size();
    m_locals.insert(name, {slot, type});
    return slot;
}

Expression Parser::finished(qint32 step)
{
    std::sort(m_inputs.begin(), m_inputs.end());
    m_inputs.erase(std::unique(m_inputs.begin(), m_inputs.end()), m_inputs.end());
    return {step, typeOf(step), m_inputs, {}};
}

bool Parser::atEnd()
{
    const Token &rest = m_lexer.peek();
    if (rest.kind == Token::End)
        return true;
    fail("C19", rest.offset, QStringLiteral("%1 is left over").arg(quoted(rest)));
    return false;
}

qint32 Parser::fail(const char *code, int offset, const QString &message)
{
    // Only the first fault counts; later ones follow from it.
    if (m_compiler.m_fault.code.isEmpty())
        m_compiler.m_fault = {QString::fromLatin1(code), offset, message};
    return -1;
}

qint32 Parser::add(const Step &step, const QVector<qint32> &arguments)
{
    Program &program = m_compiler.m_program;
    Step added = step;
    for (const qint32 argument : arguments) {
        if (argument < 0)
            return -1;
        added.height = qint16(std::max<int>(added.height, program.steps[size_t(argument)].height + 1));
    }
    if (added.height > limits::waitingSteps || program.steps.size() >= size_t(limits::programSteps))
        return fail("C26", m_lexer.peek().offset, QStringLiteral("the expression is too long or too deep"));
    added.firstArgument = qint32(program.arguments.size());
    added.argumentCount = arguments.size();
    program.arguments.insert(program.arguments.end(), arguments.begin(), arguments.end());
    program.steps.push_back(added);
    return qint32(program.steps.size() - 1);
}

bool Parser::isOfType(qint32 step, Type type, int offset)
{
    if (step < 0)
        return false;
    if (typeOf(step) == type)
        return true;
    fail("C23", offset, QStringLiteral("a %1 is expected, not a %2").arg(nameOf(type), nameOf(typeOf(step))));
    return false;
}

bool Parser::expectSign(const char *sign)
{
    if (m_lexer.takeSign(sign))
        return true;
    const Token &found = m_lexer.peek();
    fail("C19", found.offset, QStringLiteral("\"%1\" is expected, not %2").arg(QLatin1String(sign), quoted(found)));
    return false;
}

qint32 Parser::expressionOfType(Type type)
{
    const int offset = m_lexer.peek().offset;
    const qint32 step = expression();
    return isOfType(step, type, offset) ? step : -1;
}

qint32 Parser::expression()
{
    const int offset = m_lexer.peek().offset;
    const QScopedValueRollback<int> depth(m_depth, m_depth + 1);
    if (m_depth > limits::expressionDepth)
        return fail("C26", offset, QStringLiteral("the expression is too deep"));
    const qint32 step = binary(OrLevel);
    if (step < 0 || !m_lexer.peek().is("?"))
        return step;
    return isOfType(step, Type::Number, offset) ? choice(step) : -1;
}

qint32 Parser::choice(qint32 condition)
{
    m_lexer.take();
    const qint32 first = expression();
    if (first < 0 || !expectSign(":"))
        return -1;
    const int offset = m_lexer.peek().offset;
    const qint32 second = expression();
    if (!isOfType(second, typeOf(first), offset))
        return -1;
    Step step;
    step.operation = Operation::Choose;
    step.type = typeOf(first);
    return add(step, {condition, first, second});
}

qint32 Parser::binary(int level)
{
    if (level == NotLevel)
        return comparison();
    if (level == UnaryLevel)
        return unary();
    const int offset = m_lexer.peek().offset;
    qint32 left = binary(level + 1);
    while (left >= 0 && continuesLevel(m_lexer.peek(), level)) {
        const Token sign = m_lexer.take();
        const int rightOffset = m_lexer.peek().offset;
        const qint32 right = binary(level + 1);
        if (right < 0)
            return -1;
        if (level >= SumLevel) {
            left = calculation(sign, left, right);
            continue;
        }
        if (!isOfType(left, Type::Number, offset) || !isOfType(right, Type::Number, rightOffset))
            return -1;
        Step step;
        step.operation = level == OrLevel ? Operation::Or : Operation::And;
        left = add(step, {left, right});
    }
    return left;
}

qint32 Parser::comparison()
{
    const QScopedValueRollback<int> depth(m_depth, m_depth + 1);
    if (m_depth > limits::expressionDepth)
        return fail("C26", m_lexer.peek().offset, QStringLiteral("the expression is too deep"));
    const int offset = m_lexer.peek().offset;
    Step step;
    if (m_lexer.takeWord("not")) {
        const int operandOffset = m_lexer.peek().offset;
        const qint32 operand = comparison();
        step.operation = Operation::Not;
        return isOfType(operand, Type::Number, operandOffset) ? add(step, {operand}) : -1;
    }
    const qint32 left = binary(SumLevel);
    step.operation = operationOf(comparisons, m_lexer.peek());
    if (left < 0 || step.operation == Operation::Constant)
        return left;
    m_lexer.take();
    const int rightOffset = m_lexer.peek().offset;
    const qint32 right = binary(SumLevel);
    const bool isEquality = step.operation == Operation::Equal || step.operation == Operation::NotEqual;
    if (right < 0 || !isOfType(left, isEquality ? typeOf(left) : Type::Number, offset) ||
        !isOfType(right, typeOf(left), rightOffset))
        return -1;
    return add(step, {left, right});
}

qint32 Parser::calculation(const Token &sign, qint32 left, qint32 right)
{
    Step step;
    step.operation = operationOf(calculations, sign);
    step.type = typeOf(left);
    const bool isSum = step.operation == Operation::Add || step.operation == Operation::Subtract;
    const bool isScaling = step.operation == Operation::Multiply;
    const bool fits = isSum       ? typeOf(left) == typeOf(right) && typeOf(left) != Type::Text
                      : isScaling ? typeOf(left) != Type::Text && typeOf(right) == Type::Number
                                  : typeOf(left) == Type::Number && typeOf(right) == Type::Number;
    if (!fits)
        return fail("C23", sign.offset,
                    QStringLiteral("%1 \"%2\" %3 has no meaning; points are added, subtracted, and multiplied by "
                                   "a number on the right")
                        .arg(nameOf(typeOf(left)), sign.text, nameOf(typeOf(right))));
    return add(step, {left, right});
}

qint32 Parser::unary()
{
    const QScopedValueRollback<int> depth(m_depth, m_depth + 1);
    const Token &next = m_lexer.peek();
    if (m_depth > limits::expressionDepth)
        return fail("C26", next.offset, QStringLiteral("the expression is too deep"));
    if (next.is("-")) {
        const Token sign = m_lexer.take();
        const qint32 operand = unary();
        if (operand < 0)
            return -1;
        if (typeOf(operand) == Type::Text)
            return fail("C23", sign.offset, QStringLiteral("a text has no negative"));
        Step step;
        step.operation = Operation::Negate;
        step.type = typeOf(operand);
        return add(step, {operand});
    }
    const qint32 base = postfix(primary());
    if (base < 0 || !m_lexer.peek().is("^"))
        return base;
    const Token sign = m_lexer.take();
    const qint32 exponent = unary();
    return exponent < 0 ? -1 : calculation(sign, base, exponent);
}

qint32 Parser::postfix(qint32 operand)
{
    while (operand >= 0 && m_lexer.peek().is(".")) {
        const Token sign = m_lexer.take();
        const Token field = m_lexer.take();
        const bool isX = field.isWord("x");
        if (!isX && !field.isWord("y"))
            return fail("C19", field.offset,
                        QStringLiteral("\"x\" or \"y\" is expected, not %1").arg(quoted(field)));
        if (!isOfType(operand, Type::Point, sign.offset))
            return -1;
        Step step;
        step.operation = isX ? Operation::XOf : Operation::YOf;
        operand = add(step, {operand});
    }
    return operand;
}

qint32 Parser::primary()
{
    const Token token = m_lexer.take();
    Step step;
    if (token.kind == Token::Number) {
        step.number = token.number;
        return add(step);
    }
    if (token.kind == Token::Text) {
        step.operation = Operation::TextConstant;
        step.type = Type::Text;
        step.slot = qint32(m_compiler.m_program.texts.size());
        m_compiler.m_program.texts.push_back(token.text);
        return add(step);
    }
    if (token.kind == Token::Name && !keywords.contains(token.text))
        return m_lexer.peek().is("(") ? calledFunction(token) : named(token);
    if (token.is("(")) {
        const qint32 inner = expression();
        return inner >= 0 && expectSign(")") ? inner : -1;
    }
    return fail("C19", token.offset, QStringLiteral("a value is expected, not %1").arg(quoted(token)));
}

qint32 Parser::named(const Token &name)
{
    const auto local = m_locals.constFind(name.text);
    if (local != m_locals.constEnd()) {
        Step step;
        step.operation = Operation::Local;
        step.type = local->type;
        step.slot = local->slot;
        return add(step);
    }
    const auto extra = m_compiler.m_extraNames.constFind(name.text);
    if (!m_inFunction && extra != m_compiler.m_extraNames.constEnd())
        return variable(name, *extra);
    const auto symbol = m_compiler.m_symbols.names.constFind(name.text);
    if (symbol != m_compiler.m_symbols.names.constEnd() && symbol->kind != Symbol::Function)
        return variable(name, *symbol);
    if (name.text == QLatin1String("at"))
        return fail("C28", name.offset, QStringLiteral("\"at\" is only known to limits of a control point"));
    const QStringList known =
        m_compiler.m_symbols.valueNames() + QStringList(m_locals.keys()) + m_compiler.m_extraNames.keys();
    return fail("C20", name.offset,
                QStringLiteral("there is no \"%1\"%2").arg(name.text, suggestion(name.text, known)));
}

qint32 Parser::variable(const Token &name, const Symbol &symbol)
{
    m_compiler.m_usedNames.insert(name.text);
    Step step;
    step.type = symbol.type;
    step.slot = symbol.slot;
    if (symbol.kind == Symbol::Undefined)
        return fail("C20", name.offset,
                    QStringLiteral("\"%1\" has no value because of its own fault").arg(name.text));
    if (symbol.kind != Symbol::List) {
        m_inputs.append(symbol.slot);
        step.operation = Operation::Variable;
        return add(step);
    }
    m_inputs.append(-1 - symbol.slot);
    if (!expectSign("["))
        return -1;
    const qint32 index = expressionOfType(Type::Number);
    if (index < 0 || !expectSign("]"))
        return -1;
    step.operation = Operation::Element;
    step.number = symbol.firstIndex;
    return add(step, {index});
}

bool Parser::arguments(QVector<qint32> &arguments)
{
    expectSign("(");
    do {
        const qint32 argument = expression();
        if (argument < 0)
            return false;
        arguments.append(argument);
    } while (m_lexer.takeSign(","));
    return expectSign(")");
}

qint32 Parser::calledFunction(const Token &name)
{
    if (name.text == QLatin1String("count"))
        return listCount(name);
    const Symbol symbol = m_compiler.m_symbols.names.value(name.text);
    const bool isOfFile = symbol.kind == Symbol::Function;
    if (!isOfFile && !builtinNames().contains(name.text)) {
        const QStringList known = builtinNames() + m_compiler.m_symbols.functionNames();
        return fail("C21", name.offset,
                    QStringLiteral("there is no function \"%1\"%2").arg(name.text, suggestion(name.text, known)));
    }
    QVector<qint32> values;
    if (!arguments(values))
        return -1;
    if (isOfFile)
        return fileFunction(name, symbol, values);
    Kinds types;
    for (const qint32 value : qAsConst(values))
        types.append(typeOf(value));
    Step step;
    step.operation = Operation::Builtin;
    step.slot = findBuiltin(name.text, types);
    if (step.slot < 0)
        return fail("C22", name.offset,
                    QStringLiteral("there is no %1; look the arguments up").arg(signatureOf(name.text, types)));
    step.type = builtins().at(step.slot).result;
    return add(step, values);
}

qint32 Parser::listCount(const Token &name)
{
    expectSign("(");
    const Token list = m_lexer.take();
    const Symbol symbol = m_compiler.m_symbols.names.value(list.text);
    if (list.kind != Token::Name || symbol.kind != Symbol::List)
        return fail("C22", name.offset, QStringLiteral("\"count\" takes the name of a list"));
    m_compiler.m_usedNames.insert(list.text);
    m_inputs.append(-1 - symbol.slot);
    Step step;
    step.operation = Operation::Count;
    step.slot = symbol.slot;
    return expectSign(")") ? add(step) : -1;
}

qint32 Parser::fileFunction(const Token &name, const Symbol &symbol, const QVector<qint32> &arguments)
{
    m_compiler.m_usedNames.insert(name.text);
    const Function &function = m_compiler.m_symbols.functions.at(symbol.slot);
    if (arguments.size() != function.parameters.size())
        return fail(
            "C22", name.offset,
            QStringLiteral("\"%1\" takes %2 values, not %3")
                .arg(name.text, QString::number(function.parameters.size()), QString::number(arguments.size())));
    Kinds types;
    for (const qint32 argument : arguments)
        types.append(typeOf(argument));
    Step step;
    step.operation = Operation::Call;
    step.slot = instance(name, function, types);
    if (step.slot < 0)
        return -1;
    const FunctionBody &body = m_compiler.m_program.functions[size_t(step.slot)];
    const Step &last = m_compiler.m_program.steps[size_t(body.step)];
    step.type = last.type;
    step.height = qint16(last.height + 1);
    return add(step, arguments);
}

qint32 Parser::instance(const Token &name, const Function &function, const Kinds &types)
{
    const QString key = signatureOf(function.name, types);
    const auto known = m_compiler.m_instances.constFind(key);
    if (known != m_compiler.m_instances.constEnd()) {
        m_inputs += known->inputs;
        return known->index;
    }
    const QScopedValueRollback<int> depth(m_compiler.m_functionDepth, m_compiler.m_functionDepth + 1);
    if (m_compiler.m_functionDepth > limits::functionDepth)
        return fail("C25", name.offset, QStringLiteral("functions call each other in a circle, or too deep"));
    Parser parser(m_compiler, function.body);
    parser.setInFunction();
    for (int i = 0; i < types.size(); ++i)
        parser.addLocal(function.parameters.at(i), types.at(i));
    const qint32 step = parser.expression();
    if (step < 0 || !parser.atEnd()) {
        // The fault stands in the definition; here is where it matters.
        m_compiler.m_fault.offset = name.offset;
        m_compiler.m_fault.message = QStringLiteral("in \"%1\": %2").arg(key, m_compiler.m_fault.message);
        return -1;
    }
    const QVector<qint32> inputs = parser.finished(step).inputs;
    m_inputs += inputs;
    m_compiler.m_program.functions.push_back({step});
    const qint32 index = qint32(m_compiler.m_program.functions.size() - 1);
    m_compiler.m_instances.insert(key, {index, inputs});
    return index;
}

bool Parser::call(CallExpression &call)
{
    const Token name = m_lexer.take();
    if (name.kind != Token::Name || !m_lexer.peek().is("(")) {
        fail("C19", name.offset, QStringLiteral("a name and parentheses are expected, not %1").arg(quoted(name)));
        return false;
    }
    call.name = name.text;
    QVector<qint32> values;
    if (!arguments(values))
        return false;
    for (const qint32 value : qAsConst(values))
        call.arguments.append(finished(value));
    return atEnd();
}

bool Parser::range(RangeExpression &range)
{
    const qint32 low = expressionOfType(Type::Number);
    const qint32 high = low >= 0 && m_lexer.takeSign("..") ? expressionOfType(Type::Number) : low;
    if (high < 0)
        return false;
    if (m_lexer.peek().kind != Token::End) {
        fail("C29", m_lexer.peek().offset, QStringLiteral("a range is \"low .. high\", or one value"));
        return false;
    }
    range = {finished(low), finished(high)};
    return true;
}

bool Parser::newName(const Token &name)
{
    const bool isKnown = m_locals.contains(name.text) || m_compiler.m_symbols.names.contains(name.text) ||
                         m_compiler.m_extraNames.contains(name.text);
    if (name.kind == Token::Name && !keywords.contains(name.text) && !isKnown)
        return true;
    fail("C12", name.offset, QStringLiteral("%1 is no name, or one that is taken").arg(quoted(name)));
    return false;
}

bool Parser::loops(QVector<LoopExpression> &loops)
{
    do {
        const Token name = m_lexer.take();
        if (!newName(name))
            return false;
        if (!m_lexer.takeWord("in")) {
            fail("C19", m_lexer.peek().offset, QStringLiteral("\"in\" is expected"));
            return false;
        }
        const qint32 from = expressionOfType(Type::Number);
        const qint32 to = from >= 0 && expectSign("..") ? expressionOfType(Type::Number) : -1;
        if (to < 0)
            return false;
        loops.append({name.text, finished(from), finished(to)});
    } while (m_lexer.takeSign(","));
    return atEnd();
}

} // namespace declared
