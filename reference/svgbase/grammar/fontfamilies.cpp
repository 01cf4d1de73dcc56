#include "grammar/fontfamilies.h"

#include "grammar/inputlimits.h"

namespace Svg {

namespace {

bool isQuote(QChar c)
{
    return c == QLatin1Char('"') || c == QLatin1Char('\'');
}

// The end of the name that begins at `from`: a comma outside of quotes, or the end of the list.
int endOfName(const QString &list, int from)
{
    QChar quote;
    for (int i = from; i < list.size(); ++i) {
        const QChar c = list.at(i);
        if (!quote.isNull())
            quote = c == quote ? QChar() : quote;
        else if (isQuote(c))
            quote = c;
        else if (c == QLatin1Char(','))
            return i;
    }
    return list.size();
}

FamilyName readName(const QString &text)
{
    const QString name = text.trimmed();
    if (!name.isEmpty() && isQuote(name.front())) {
        const int end = name.indexOf(name.front(), 1);
        return {name.mid(1, end < 0 ? -1 : end - 1), true};
    }
    return {name.simplified(), false};
}

} // namespace

bool hasTooManyFamilies(QStringView list)
{
    return list.size() > Limits::familyCharacters ||
           std::count(list.begin(), list.end(), QLatin1Char(',')) >= Limits::listedFamilies;
}

QVector<FamilyName> parseFontFamilies(const QString &list)
{
    QVector<FamilyName> names;
    for (int at = 0; at < list.size() && names.size() < Limits::listedFamilies;) {
        const int end = endOfName(list, at);
        const FamilyName name = readName(list.mid(at, end - at));
        if (!name.text.isEmpty())
            names.append(name);
        at = end + 1;
    }
    return names;
}

} // namespace Svg
