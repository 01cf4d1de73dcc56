// Text with expressions, loops and conditions in braces.

#include <declared/expressions/limits.h>
#include <declared/expressions/parser.h>

#include <QtCore/QScopedValueRollback>

namespace declared {

namespace {

const QString endWord = QStringLiteral("end");
const QString elseWord = QStringLiteral("else");

} // namespace

qint32 Parser::text()
{
    QString closing;
    const qint32 step = textUntil(closing);
    if (step < 0 || closing.isEmpty())
        return step;
    return fail("C18", m_position, QStringLiteral("\"{%1}\" has nothing that it closes").arg(closing));
}

QString Parser::closingWordAt(int offset) const
{
    Lexer lexer(m_text, offset + 1);
    const Token word = lexer.take();
    return (word.text == endWord || word.text == elseWord) && lexer.peek().is("}") ? word.text : QString();
}

/// Stops at the brace of "{end}" or "{else}", which `closing` names.
qint32 Parser::textUntil(QString &closing)
{
    const QScopedValueRollback<int> depth(m_depth, m_depth + 1);
    if (m_depth > limits::expressionDepth)
        return fail("C26", m_position, QStringLiteral("loops and conditions are too deep"));
    QVector<qint32> parts;
    QString literal;
    const auto flush = [&] {
        if (literal.isEmpty())
            return;
        Step step;
        step.operation = Operation::TextConstant;
        step.type = Type::Text;
        step.slot = qint32(m_compiler.m_program.texts.size());
        m_compiler.m_program.texts.push_back(literal);
        literal.clear();
        parts.append(add(step));
    };
    while (m_position < m_text.size()) {
        const QChar character = m_text.at(m_position);
        const bool isBrace = character == QLatin1Char('{') || character == QLatin1Char('}');
        const bool isDouble = isBrace && m_position + 1 < m_text.size() && m_text.at(m_position + 1) == character;
        if (!isBrace || isDouble) {
            literal += character;
            m_position += isDouble ? 2 : 1;
            continue;
        }
        if (character == QLatin1Char('}'))
            return fail("C18", m_position, QStringLiteral("\"}\" has no partner; write \"}}\" for the character"));
        closing = closingWordAt(m_position);
        if (!closing.isEmpty())
            break;
        flush();
        const qint32 part = braced(m_position);
        if (part < 0)
            return -1;
        parts.append(part);
    }
    flush();
    Step step;
    step.operation = Operation::Join;
    step.type = Type::Text;
    return add(step, parts);
}

qint32 Parser::braced(int brace)
{
    m_lexer = Lexer(m_text, brace + 1);
    if (m_lexer.takeWord("for"))
        return loopText(brace);
    if (m_lexer.takeWord("if"))
        return conditionText(brace);
    const qint32 step = expression();
    return step >= 0 && closeBrace() ? step : -1;
}

/// Goes on behind the brace that ends an expression.
bool Parser::closeBrace()
{
    const Token &next = m_lexer.peek();
    if (next.is("}")) {
        if (next.offset - m_position > limits::expressionCharacters) {
            fail("C26", m_position, QStringLiteral("the expression is too long"));
            return false;
        }
        m_position = next.offset + 1;
        return true;
    }
    if (next.kind == Token::End)
        fail("C18", m_position, QStringLiteral("\"{\" has no partner; write \"{{\" for the character"));
    else
        fail("C19", next.offset, QStringLiteral("\"%1\" is left over").arg(next.text));
    return false;
}

qint32 Parser::loopText(int brace)
{
    const Token name = m_lexer.take();
    if (!newName(name))
        return -1;
    if (!m_lexer.takeWord("in"))
        return fail("C19", m_lexer.peek().offset, QStringLiteral("\"in\" is expected"));
    const qint32 from = expressionOfType(Type::Number);
    const qint32 to = from >= 0 && expectSign("..") ? expressionOfType(Type::Number) : -1;
    if (to < 0 || !closeBrace())
        return -1;
    if (m_locals.size() >= limits::loopDepth)
        return fail("C26", brace, QStringLiteral("more than three loops in each other"));
    Step step;
    step.operation = Operation::Repeat;
    step.type = Type::Text;
    step.slot = addLocal(name.text, Type::Number);
    QString closing;
    const qint32 body = textUntil(closing);
    m_locals.remove(name.text);
    if (body < 0)
        return -1;
    if (closing != endWord)
        return fail("C18", brace, QStringLiteral("\"{for ...}\" has no \"{end}\""));
    m_position = m_text.indexOf(QLatin1Char('}'), m_position) + 1;
    return add(step, {from, to, body});
}

qint32 Parser::conditionText(int brace)
{
    const qint32 condition = expressionOfType(Type::Number);
    if (condition < 0 || !closeBrace())
        return -1;
    QString closing;
    const qint32 first = textUntil(closing);
    if (first < 0)
        return -1;
    qint32 second = -1;
    if (closing == elseWord) {
        m_position = m_text.indexOf(QLatin1Char('}'), m_position) + 1;
        closing.clear();
        second = textUntil(closing);
        if (second < 0)
            return -1;
    }
    if (closing != endWord)
        return fail("C18", brace, QStringLiteral("\"{if ...}\" has no \"{end}\""));
    m_position = m_text.indexOf(QLatin1Char('}'), m_position) + 1;
    Step step;
    step.type = Type::Text;
    step.operation = Operation::Join;
    if (second < 0)
        second = add(step);
    step.operation = Operation::Choose;
    return add(step, {condition, first, second});
}

} // namespace declared
