#include "grammar/cursor.h"

namespace Svg {

namespace {

constexpr char notLatin1 = '\x1a';

} // namespace

bool Cursor::take(char expected)
{
    if (peek() != expected || atEnd())
        return false;
    ++at;
    return true;
}

void Cursor::skipSpace()
{
    while (at != end && isSpace(*at))
        ++at;
}

bool Cursor::skipCommaSpace()
{
    skipSpace();
    if (!take(','))
        return false;
    skipSpace();
    return true;
}

QLatin1String Cursor::takeWord()
{
    const char *begin = at;
    while (at != end && isLetter(*at))
        ++at;
    return QLatin1String(begin, int(at - begin));
}

Latin1Text::Latin1Text(QStringView text)
{
    m_bytes.resize(int(text.size()));
    for (int i = 0; i < m_bytes.size(); ++i) {
        const ushort unit = text[i].unicode();
        m_bytes[i] = unit > 0xff ? notLatin1 : char(unit);
    }
}

} // namespace Svg
