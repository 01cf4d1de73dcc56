#include <declared/expressions/lexer.h>

#include <algorithm>

namespace declared {

namespace {

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool startsName(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) || (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) ||
           c == QLatin1Char('_');
}

bool continuesName(QChar c)
{
    return startsName(c) || isDigit(c);
}

/// Longer signs come first.
constexpr const char *signTexts[] = {"..", "<=", ">=", "==", "!=", "<", ">", "+", "-", "*", "/", "%",
                                     "^",  "?",  ":",  "(",  ")",  "[", "]", ",", ".", "{", "}"};

} // namespace

Lexer::Lexer(const QString &text, int offset)
    : m_text(text)
    , m_offset(offset)
    , m_next(read())
{
}

Token Lexer::take()
{
    Token taken = m_next;
    if (taken.kind != Token::End)
        m_next = read();
    return taken;
}

bool Lexer::takeSign(const char *sign)
{
    const bool isNext = m_next.is(sign);
    if (isNext)
        take();
    return isNext;
}

bool Lexer::takeWord(const char *word)
{
    const bool isNext = m_next.isWord(word);
    if (isNext)
        take();
    return isNext;
}

Token Lexer::read()
{
    while (at(m_offset).isSpace())
        ++m_offset;
    Token token;
    token.offset = m_offset;
    if (m_offset >= m_text.size())
        return token;
    const QChar first = at(m_offset);
    if (isDigit(first) || (first == QLatin1Char('.') && isDigit(at(m_offset + 1))))
        return readNumber();
    if (startsName(first))
        return readName();
    if (first == QLatin1Char('\''))
        return readText();
    for (const char *sign : signTexts) {
        if (m_text.midRef(m_offset).startsWith(QLatin1String(sign))) {
            token.kind = Token::Sign;
            token.text = QLatin1String(sign);
            m_offset += token.text.size();
            return token;
        }
    }
    token.kind = Token::Unknown;
    token.text = first;
    ++m_offset;
    return token;
}

Token Lexer::readNumber()
{
    Token token;
    token.kind = Token::Number;
    token.offset = m_offset;
    const auto skipDigits = [this] {
        while (isDigit(at(m_offset)))
            ++m_offset;
    };
    skipDigits();
    // In "0..4" the points are no part of the number.
    if (at(m_offset) == QLatin1Char('.') && isDigit(at(m_offset + 1))) {
        ++m_offset;
        skipDigits();
    }
    const bool isSigned = at(m_offset + 1) == QLatin1Char('-') || at(m_offset + 1) == QLatin1Char('+');
    if (at(m_offset).toLower() == QLatin1Char('e') && isDigit(at(m_offset + (isSigned ? 2 : 1)))) {
        m_offset += isSigned ? 2 : 1;
        skipDigits();
    }
    token.text = m_text.mid(token.offset, m_offset - token.offset);
    token.number = token.text.toDouble();
    return token;
}

Token Lexer::readName()
{
    Token token;
    token.kind = Token::Name;
    token.offset = m_offset;
    while (continuesName(at(m_offset)))
        ++m_offset;
    token.text = m_text.mid(token.offset, m_offset - token.offset);
    return token;
}

Token Lexer::readText()
{
    Token token;
    token.offset = m_offset;
    const int end = m_text.indexOf(QLatin1Char('\''), m_offset + 1);
    token.kind = end < 0 ? Token::Unknown : Token::Text;
    token.text = m_text.mid(m_offset + 1, end < 0 ? -1 : end - m_offset - 1);
    m_offset = end < 0 ? m_text.size() : end + 1;
    return token;
}

bool isName(const QString &text)
{
    return !text.isEmpty() && startsName(text.at(0)) && std::all_of(text.begin(), text.end(), continuesName);
}

} // namespace declared
