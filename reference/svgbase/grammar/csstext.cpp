#include "grammar/csstext.h"

#include <cstring>

#include <QtCore/QVarLengthArray>

namespace Svg {

namespace {

constexpr int mostEscapeDigits = 6;
/// Far more parts than any value has.
constexpr int mostWords = 100;
constexpr uint lastCodePoint = 0x10ffff;

bool isCssSpace(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r') ||
           c == QLatin1Char('\f');
}

bool isNameStart(QChar c)
{
    const ushort u = c.unicode();
    return (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || u == '_' || u >= 0x80;
}

bool isNamePart(QChar c)
{
    const ushort u = c.unicode();
    return isNameStart(c) || (u >= '0' && u <= '9') || u == '-';
}

int hexDigit(QChar c)
{
    const ushort u = c.unicode();
    if (u >= '0' && u <= '9')
        return u - '0';
    if (u >= 'a' && u <= 'f')
        return u - 'a' + 10;
    if (u >= 'A' && u <= 'F')
        return u - 'A' + 10;
    return -1;
}

bool isComment(const CssCursor &cursor)
{
    return cursor.end - cursor.at >= 2 && cursor.at[0] == QLatin1Char('/') && cursor.at[1] == QLatin1Char('*');
}

void skipComment(CssCursor *cursor)
{
    for (cursor->at += 2; cursor->at != cursor->end; ++cursor->at) {
        if (cursor->at[0] == QLatin1Char('*') && cursor->end - cursor->at >= 2 &&
            cursor->at[1] == QLatin1Char('/')) {
            cursor->at += 2;
            return;
        }
    }
}

// Reads an escape after its backslash (CSS Syntax 3 §4.3.7).
QString takeEscaped(CssCursor *cursor)
{
    uint code = 0;
    int digits = 0;
    while (digits < mostEscapeDigits && !cursor->atEnd() && hexDigit(*cursor->at) >= 0) {
        code = code * 16 + uint(hexDigit(*cursor->at++));
        ++digits;
    }
    if (digits == 0)
        return cursor->atEnd() ? QString() : QString(*cursor->at++);
    if (!cursor->atEnd() && isCssSpace(*cursor->at))
        ++cursor->at;
    const bool valid = code != 0 && code <= lastCodePoint && !QChar::isSurrogate(code);
    return valid ? QString::fromUcs4(&code, 1) : QString(QChar::ReplacementCharacter);
}

bool isEscape(const CssCursor &cursor)
{
    return cursor.end - cursor.at >= 2 && cursor.at[0] == QLatin1Char('\\') && cursor.at[1] != QLatin1Char('\n');
}

char closing(QChar open)
{
    switch (open.unicode()) {
    case '(':
        return ')';
    case '[':
        return ']';
    case '{':
        return '}';
    default:
        return 0;
    }
}

/// Skips the strings of a text. After an unterminated string, no later one in the same quotes is terminated either,
/// so the rest is scanned only once.
class StringPassing
{
public:
    bool pass(CssCursor *cursor)
    {
        bool *isOpen = cursor->peek() == QLatin1Char('"')    ? &m_isDoubleOpen
                       : cursor->peek() == QLatin1Char('\'') ? &m_isSingleOpen
                                                             : nullptr;
        if (!isOpen || *isOpen)
            return false;
        QString ignored;
        *isOpen = !cursor->takeString(&ignored);
        return !*isOpen;
    }

private:
    bool m_isDoubleOpen = false;
    bool m_isSingleOpen = false;
};

bool isOneOf(QChar c, const char *characters)
{
    return c.unicode() != 0 && c.unicode() < 0x80 && strchr(characters, char(c.unicode()));
}

} // namespace

bool CssCursor::take(char expected)
{
    if (atEnd() || *at != QLatin1Char(expected))
        return false;
    ++at;
    return true;
}

bool CssCursor::skipSpace()
{
    const QChar *begin = at;
    for (;;)
        if (!atEnd() && isCssSpace(*at))
            ++at;
        else if (isComment(*this))
            skipComment(this);
        else
            return at != begin;
}

QString CssCursor::takeName()
{
    QString name;
    while (!atEnd()) {
        if (isNamePart(*at)) {
            name += *at++;
        } else if (isEscape(*this)) {
            ++at;
            name += takeEscaped(this);
        } else {
            break;
        }
    }
    return name;
}

QString CssCursor::takeIdentifier()
{
    CssCursor probe = *this;
    probe.take('-');
    if (probe.atEnd() || !(isNameStart(*probe.at) || isEscape(probe) || *probe.at == QLatin1Char('-')))
        return QString();
    return takeName();
}

bool CssCursor::takeString(QString *value)
{
    if (atEnd() || (*at != QLatin1Char('"') && *at != QLatin1Char('\'')))
        return false;
    CssCursor probe = *this;
    const QChar quote = *probe.at++;
    QString text;
    while (!probe.atEnd() && *probe.at != quote) {
        if (*probe.at != QLatin1Char('\\')) {
            text += *probe.at++;
            continue;
        }
        ++probe.at;
        if (!probe.take('\n'))
            text += takeEscaped(&probe);
    }
    if (probe.atEnd())
        return false;
    ++probe.at;
    *this = probe;
    *value = text;
    return true;
}

void CssCursor::skipTo(const char *stops)
{
    QVarLengthArray<char, 32> open;
    StringPassing strings;
    while (!atEnd()) {
        if (isComment(*this)) {
            skipComment(this);
        } else if (open.isEmpty() && isOneOf(*at, stops)) {
            return;
        } else if (!open.isEmpty() && *at == QLatin1Char(open.last())) {
            open.removeLast();
            ++at;
        } else if (closing(*at)) {
            open.append(closing(*at));
            ++at;
        } else if (isEscape(*this)) {
            at += 2;
        } else if (!strings.pass(this)) {
            ++at;
        }
    }
}

QVector<QStringView> cssWords(QStringView text)
{
    QVector<QStringView> words;
    CssCursor cursor(text);
    for (;;) {
        cursor.skipSpace();
        if (cursor.atEnd() || words.size() >= mostWords)
            return words;
        const QChar *begin = cursor.at;
        cursor.skipTo(" \t\n\r\f");
        words.append(QStringView(begin, cursor.at));
    }
}

QString withoutComments(QStringView text)
{
    QString result;
    CssCursor cursor(text);
    StringPassing strings;
    while (!cursor.atEnd()) {
        const QChar *begin = cursor.at;
        if (isComment(cursor)) {
            skipComment(&cursor);
            continue;
        }
        if (!strings.pass(&cursor))
            ++cursor.at;
        result.append(begin, int(cursor.at - begin));
    }
    return result;
}

} // namespace Svg
