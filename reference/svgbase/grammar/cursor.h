#pragma once

#include <QtCore/QString>
#include <QtCore/QVarLengthArray>

namespace Svg {

/// White space of XML and the SVG grammars.
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

/// A reading position in one-byte text. Grammars advance it over the text that they accept.
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
    /// Letters up to the next other character.
    QLatin1String takeWord();
};

/// A copy of text in one byte per character, on the stack if short. Characters beyond Latin-1, which no grammar
/// here accepts, become control characters.
class Latin1Text
{
public:
    explicit Latin1Text(QStringView text);
    Cursor cursor() const { return {m_bytes.constData(), m_bytes.constData() + m_bytes.size()}; }

private:
    QVarLengthArray<char, 128> m_bytes;
};

} // namespace Svg
