#pragma once

#include <declared/expressions/value.h>

namespace declared {

struct Token
{
    enum Kind { End, Number, Text, Name, Sign, Unknown };

    Kind kind = End;
    int offset = 0; ///< into the whole text
    QString text;   ///< a name, a sign, or a text without its quotes
    double number = 0;

    bool is(const char *sign) const { return kind == Sign && text == QLatin1String(sign); }
    bool isWord(const char *word) const { return kind == Name && text == QLatin1String(word); }
};

/// Takes the tokens of an expression off a text, one by one. An expression inside of braces ends before the brace.
class Lexer
{
public:
    explicit Lexer(const QString &text, int offset = 0);

    /// The next token, which stays the next one.
    const Token &peek() const { return m_next; }
    Token take();
    /// Takes the next token if it is that sign.
    bool takeSign(const char *sign);
    bool takeWord(const char *word);

private:
    Token read();
    Token readNumber();
    Token readName();
    Token readText();
    QChar at(int offset) const { return offset < m_text.size() ? m_text.at(offset) : QChar(); }

    QString m_text;
    int m_offset;
    Token m_next;
};

/// Whether a text is a name: a letter or "_", then letters, digits and "_", of ASCII.
bool isName(const QString &text);

} // namespace declared
