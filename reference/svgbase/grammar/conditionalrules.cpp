#include "grammar/conditionalrules.h"

#include "grammar/csstext.h"

#include <algorithm>

namespace Svg {

namespace {

constexpr int deepestCondition = 16;
constexpr int mostTerms = 100;

Truth opposite(Truth truth)
{
    return truth == Truth::Yes ? Truth::No : truth == Truth::No ? Truth::Yes : Truth::Unknown;
}

class ConditionReader
{
public:
    ConditionReader(QStringView text, const ConditionLeaf &leaf, int depth)
        : m_cursor(text)
        , m_leaf(leaf)
        , m_depth(depth)
    {
    }

    std::optional<Truth> read();

private:
    std::optional<Truth> readTerm();
    std::optional<Truth> readContent(const QString &function, QStringView content);
    bool takeWord(const char *word);

    CssCursor m_cursor;
    const ConditionLeaf &m_leaf;
    int m_depth;
};

// A word directly followed by a parenthesis is the name of a function.
bool ConditionReader::takeWord(const char *word)
{
    CssCursor probe = m_cursor;
    if (probe.takeIdentifier().compare(QLatin1String(word), Qt::CaseInsensitive) != 0 || !probe.skipSpace())
        return false;
    m_cursor = probe;
    return true;
}

std::optional<Truth> ConditionReader::readContent(const QString &function, QStringView content)
{
    CssCursor inner(content);
    inner.skipSpace();
    CssCursor word = inner;
    const bool isNot = word.takeIdentifier().compare(QLatin1String("not"), Qt::CaseInsensitive) == 0;
    const bool isCondition = inner.peek() == QLatin1Char('(') || (isNot && word.skipSpace());
    if (!function.isEmpty() || !isCondition)
        return m_leaf(function, content);
    if (m_depth >= deepestCondition)
        return std::nullopt;
    return ConditionReader(content, m_leaf, m_depth + 1).read();
}

std::optional<Truth> ConditionReader::readTerm()
{
    const QString function = m_cursor.takeIdentifier();
    if (!m_cursor.take('('))
        return std::nullopt;
    const QChar *begin = m_cursor.at;
    m_cursor.skipTo(")");
    const QStringView content(begin, m_cursor.at);
    if (!m_cursor.take(')'))
        return std::nullopt;
    const std::optional<Truth> truth = readContent(function, content);
    m_cursor.skipSpace();
    return truth;
}

// "and" and "or" can't be mixed without parentheses.
std::optional<Truth> ConditionReader::read()
{
    m_cursor.skipSpace();
    if (takeWord("not")) {
        const std::optional<Truth> term = readTerm();
        return term && m_cursor.atEnd() ? std::optional<Truth>(opposite(*term)) : std::nullopt;
    }
    std::optional<Truth> result = readTerm();
    const char *joint = nullptr;
    for (int terms = 1; result && !m_cursor.atEnd(); ++terms) {
        if (terms >= mostTerms)
            return std::nullopt;
        const bool isAnd = takeWord("and");
        if (!isAnd && !takeWord("or"))
            return std::nullopt;
        const char *word = isAnd ? "and" : "or";
        if (joint && qstrcmp(joint, word) != 0)
            return std::nullopt;
        joint = word;
        const std::optional<Truth> term = readTerm();
        if (!term)
            return std::nullopt;
        result = isAnd ? std::min(*result, *term) : std::max(*result, *term);
    }
    return result;
}

} // namespace

std::optional<Truth> evaluateCondition(QStringView text, const ConditionLeaf &leaf)
{
    return ConditionReader(text, leaf, 0).read();
}

} // namespace Svg
