#pragma once

#include <QtCore/QString>
#include <QtCore/QVarLengthArray>

namespace Svg {

/// White space as XML and the SVG grammars know it.
inline bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

inline bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

inline bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// A reading position in one-byte text. Grammars move it forward as far as they understand the text.
struct Cursor
{
    const char *at;
    const char *end;

    bool atEnd() const { return at == end; }
    /// The next character; a null character at the end.
    char peek() const { return at == end ? '\0' : *at; }
    bool take(char expected);
    void skipSpace();
    /// White space around at most one comma; true when there was a comma.
    bool skipCommaSpace();
    /// Letters up to the next character that is none.
    QLatin1String takeWord();
};

/// A copy of text in one byte per character, on the stack while it is short. Characters beyond Latin-1, which no
/// grammar here accepts, become control characters.
class Latin1Text
{
public:
    explicit Latin1Text(QStringView text);
    Cursor cursor() const { return {m_bytes.constData(), m_bytes.constData() + m_bytes.size()}; }

private:
    QVarLengthArray<char, 128> m_bytes;
};

} // namespace Svg
