#include "document/xmltext.h"

#include <algorithm>

namespace Svg {

namespace {

// XML 1.0 §2.2.
bool isXmlCharacter(ushort unit)
{
    return unit >= 0x20 ? unit < 0xfffe : unit == '\t' || unit == '\n' || unit == '\r';
}

void appendEscaped(QString *result, QChar c, bool inAttribute)
{
    switch (c.unicode()) {
    case '&':
        *result += QLatin1String("&amp;");
        return;
    case '<':
        *result += QLatin1String("&lt;");
        return;
    case '>':
        *result += QLatin1String("&gt;");
        return;
    case '"':
        *result += QLatin1String("&quot;");
        return;
    case '\r':
        *result += QLatin1String("&#13;");
        return;
    case '\t':
    case '\n':
        // Readers turn white space of attributes into plain spaces.
        if (inAttribute)
            *result += QStringLiteral("&#%1;").arg(c.unicode());
        else
            *result += c;
        return;
    default:
        *result += c;
    }
}

// An unpaired surrogate would not survive UTF-8.
bool isLoneSurrogate(const QString &text, int at)
{
    const QChar c = text.at(at);
    if (c.isHighSurrogate())
        return at + 1 == text.size() || !text.at(at + 1).isLowSurrogate();
    return c.isLowSurrogate() && (at == 0 || !text.at(at - 1).isHighSurrogate());
}

void appendText(QString *result, const QString &text, bool inAttribute)
{
    for (int i = 0; i < text.size(); ++i)
        if (isXmlCharacter(text.at(i).unicode()) && !isLoneSurrogate(text, i))
            appendEscaped(result, text.at(i), inAttribute);
}

bool isNameStart(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) || (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) ||
           c == QLatin1Char('_');
}

bool isNamePart(QChar c)
{
    return isNameStart(c) || (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('-') ||
           c == QLatin1Char('.');
}

bool isPlainName(QStringView name)
{
    return !name.isEmpty() && isNameStart(name.front()) && std::all_of(name.begin(), name.end(), isNamePart);
}

} // namespace

void XmlText::attribute(const QString &name, const QString &value)
{
    m_text += QLatin1Char(' ') + name + QLatin1String("=\"");
    appendText(&m_text, value, true);
    m_text += QLatin1Char('"');
}

void XmlText::characters(const QString &text)
{
    appendText(&m_text, text, false);
}

bool isXmlName(const QString &name)
{
    const int colon = name.indexOf(QLatin1Char(':'));
    const QStringView view(name);
    if (colon < 0)
        return isPlainName(view);
    return isPlainName(view.left(colon)) && isPlainName(view.mid(colon + 1));
}

} // namespace Svg
