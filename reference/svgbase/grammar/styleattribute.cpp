#include "grammar/styleattribute.h"

namespace Svg {

namespace {

// The ";" that ends a declaration, skipping quotes and parentheses.
qsizetype declarationEnd(QStringView text, qsizetype from)
{
    QChar quote;
    int open = 0;
    for (qsizetype i = from; i < text.size(); ++i) {
        const QChar c = text[i];
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
        } else if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            quote = c;
        } else if (c == QLatin1Char('(')) {
            ++open;
        } else if (c == QLatin1Char(')')) {
            open = qMax(0, open - 1);
        } else if (c == QLatin1Char(';') && open == 0) {
            return i;
        }
    }
    return text.size();
}

QStringView withoutImportance(QStringView value)
{
    const qsizetype mark = value.lastIndexOf(QLatin1Char('!'));
    if (mark < 0 || value.mid(mark + 1).trimmed().compare(QLatin1String("important"), Qt::CaseInsensitive) != 0)
        return value;
    return value.left(mark).trimmed();
}

QStringView withoutLeadingComments(QStringView text)
{
    QStringView rest = text.trimmed();
    while (rest.startsWith(QLatin1String("/*"))) {
        const qsizetype end = rest.indexOf(QLatin1String("*/"), 2);
        if (end < 0)
            return QStringView();
        rest = rest.mid(end + 2).trimmed();
    }
    return rest;
}

} // namespace

QVector<StyleDeclaration> parseStyleAttribute(QStringView text)
{
    QVector<StyleDeclaration> declarations;
    for (qsizetype from = 0; from < text.size();) {
        const qsizetype end = declarationEnd(text, from);
        const QStringView part = withoutLeadingComments(text.mid(from, end - from));
        const qsizetype colon = part.indexOf(QLatin1Char(':'));
        if (colon > 0) {
            const QStringView whole = part.mid(colon + 1).trimmed();
            const QStringView value = withoutImportance(whole);
            declarations.append({part.left(colon).trimmed(), value, value.size() < whole.size()});
        }
        from = end + 1;
    }
    return declarations;
}

} // namespace Svg
