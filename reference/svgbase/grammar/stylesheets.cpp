#include "grammar/stylesheets.h"

#include "grammar/csstext.h"
#include "inputlimits.h"

#include <QtCore/QRegularExpression>

namespace Svg {

namespace {

constexpr int deepestMedia = 8;
constexpr int longestQuote = 40;

QString quoted(QStringView text)
{
    return text.trimmed().left(longestQuote).toString().simplified();
}

bool takeImportance(QString *value)
{
    static const QRegularExpression pattern(QStringLiteral("\\s*!\\s*important\\s*$"),
                                            QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(*value);
    if (!match.hasMatch())
        return false;
    value->truncate(match.capturedStart());
    return true;
}

bool parseDeclaration(QStringView text, SheetDeclaration *declaration)
{
    CssCursor cursor(text);
    cursor.skipSpace();
    declaration->name = cursor.takeIdentifier();
    // Names of custom properties are exact.
    if (!declaration->name.startsWith(QLatin1String("--")))
        declaration->name = declaration->name.toLower();
    cursor.skipSpace();
    if (declaration->name.isEmpty() || !cursor.take(':'))
        return false;
    declaration->value = withoutComments(QStringView(cursor.at, cursor.end)).trimmed();
    declaration->important = takeImportance(&declaration->value);
    return !declaration->value.isEmpty();
}

// A rule inside a block, which has no effect, ends with its own block (CSS Syntax 3 §5.4.4).
void skipDeclaration(CssCursor *cursor)
{
    const QChar *begin = cursor->at;
    cursor->skipTo("{;");
    const bool isRule =
        cursor->peek() == QLatin1Char('{') && !QStringView(begin, cursor->at).startsWith(QLatin1String("--"));
    if (!isRule) {
        cursor->skipTo(";");
        return;
    }
    cursor->take('{');
    cursor->skipTo("}");
    cursor->take('}');
}

bool isBlank(QStringView text)
{
    CssCursor cursor(text);
    cursor.skipSpace();
    return cursor.atEnd();
}

// A screen is wide and high enough for what asks, has colours, and shows dark on light.
bool isTrueOfScreens(const QString &condition)
{
    static const QStringList truths{
        QStringLiteral("all"),
        QStringLiteral("screen"),
        QStringLiteral("only all"),
        QStringLiteral("only screen"),
        QStringLiteral("not print"),
        QStringLiteral("(color)"),
        QStringLiteral("(prefers-color-scheme:light)"),
    };
    QString text = condition.trimmed();
    text.replace(QLatin1String(": "), QLatin1String(":"));
    return truths.contains(text) || text.startsWith(QLatin1String("(min-width:")) ||
           text.startsWith(QLatin1String("(min-height:"));
}

class SheetParser
{
public:
    SheetParser(QStringView text, StyleSheet *sheet)
        : m_begin(text.begin())
        , m_cursor(text)
        , m_sheet(sheet)
    {
    }

    void parse();

private:
    void parseRule();
    void parseAtRule();
    void enterMedia(QStringView media);
    bool takeMark(QLatin1String mark);
    void report(const QChar *at, const QString &text, bool tooMany = false);

    const QChar *m_begin;
    CssCursor m_cursor;
    StyleSheet *m_sheet;
    int m_openMedia = 0;
};

void SheetParser::report(const QChar *at, const QString &text, bool tooMany)
{
    m_sheet->report({int(at - m_begin), text, tooMany});
}

bool SheetParser::takeMark(QLatin1String mark)
{
    const QStringView rest(m_cursor.at, m_cursor.end);
    if (!rest.startsWith(mark))
        return false;
    m_cursor.at += mark.size();
    return true;
}

void SheetParser::parseRule()
{
    const QChar *begin = m_cursor.at;
    m_cursor.skipTo("{}");
    const QStringView prelude(begin, m_cursor.at);
    if (!m_cursor.take('{')) {
        report(begin, QStringLiteral("A rule has no block: %1").arg(quoted(prelude)));
        m_cursor.take('}');
        return;
    }
    const QChar *block = m_cursor.at;
    m_cursor.skipTo("}");
    const QStringView body(block, m_cursor.at);
    m_cursor.take('}');
    const std::optional<QVector<Selector>> selectors = parseSelectors(prelude);
    if (!selectors) {
        report(begin, QStringLiteral("The selector \"%1\" is not understood.").arg(quoted(prelude)));
        return;
    }
    if (m_sheet->rules.size() >= Limits::styleRules) {
        report(begin, QStringLiteral("Rules beyond %1 are left out.").arg(Limits::styleRules), true);
        m_cursor.at = m_cursor.end;
        return;
    }
    QVector<StyleProblem> problems;
    m_sheet->rules.append({*selectors, parseDeclarations(body, &problems, int(block - m_begin))});
    for (const StyleProblem &problem : qAsConst(problems))
        m_sheet->report(problem);
}

// What applies is read as if it stood outside; its closing brace is passed when it comes.
void SheetParser::enterMedia(QStringView media)
{
    if (includesScreens(media) && m_openMedia < deepestMedia) {
        ++m_openMedia;
        return;
    }
    m_cursor.skipTo("}");
    m_cursor.take('}');
}

void SheetParser::parseAtRule()
{
    const QChar *begin = m_cursor.at;
    m_cursor.take('@');
    const QString name = m_cursor.takeIdentifier();
    const QChar *prelude = m_cursor.at;
    m_cursor.skipTo("{;}");
    const QStringView condition(prelude, m_cursor.at);
    const bool media = name.compare(QLatin1String("media"), Qt::CaseInsensitive) == 0;
    const bool block = m_cursor.take('{');
    if (block && media) {
        enterMedia(condition);
        return;
    }
    if (block) {
        m_cursor.skipTo("}");
        m_cursor.take('}');
    } else {
        m_cursor.take(';');
    }
    const bool silent = name.compare(QLatin1String("charset"), Qt::CaseInsensitive) == 0 ||
                        name.compare(QLatin1String("namespace"), Qt::CaseInsensitive) == 0;
    if (!silent)
        report(begin, QStringLiteral("\"@%1\" has no effect.").arg(name));
}

void SheetParser::parse()
{
    for (;;) {
        m_cursor.skipSpace();
        if (m_cursor.atEnd())
            return;
        if (takeMark(QLatin1String("<!--")) || takeMark(QLatin1String("-->")))
            continue;
        if (m_openMedia > 0 && m_cursor.take('}'))
            --m_openMedia;
        else if (m_cursor.peek() == QLatin1Char('@'))
            parseAtRule();
        else
            parseRule();
    }
}

} // namespace

void StyleSheet::report(const StyleProblem &problem)
{
    if (problem.tooMany || problems.size() < Limits::messages)
        problems.append(problem);
}

QVector<SheetDeclaration> parseDeclarations(QStringView text, QVector<StyleProblem> *problems, int offset)
{
    QVector<SheetDeclaration> declarations;
    CssCursor cursor(text);
    while (!cursor.atEnd()) {
        cursor.skipSpace();
        const QChar *begin = cursor.at;
        skipDeclaration(&cursor);
        const QStringView part(begin, cursor.at);
        cursor.take(';');
        SheetDeclaration declaration;
        declaration.offset = offset + int(begin - text.begin());
        if (parseDeclaration(part, &declaration))
            declarations.append(declaration);
        else if (problems && problems->size() < Limits::messages && !isBlank(part))
            problems->append({declaration.offset, QStringLiteral("\"%1\" is no declaration.").arg(quoted(part))});
    }
    return declarations;
}

StyleSheet parseStyleSheet(QStringView text)
{
    StyleSheet sheet;
    SheetParser(text, &sheet).parse();
    return sheet;
}

bool includesScreens(QStringView media)
{
    const QString text = withoutComments(media).trimmed().toLower();
    if (text.isEmpty())
        return true;
    const QStringList queries = text.split(QLatin1Char(','));
    return std::any_of(queries.begin(), queries.end(), [](const QString &query) {
        const QStringList parts = query.simplified().split(QLatin1String(" and "));
        return std::all_of(parts.begin(), parts.end(), isTrueOfScreens);
    });
}

} // namespace Svg
