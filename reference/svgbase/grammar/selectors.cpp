#include "grammar/selectors.h"

#include "grammar/csstext.h"

#include <QtCore/QRegularExpression>

namespace Svg {

namespace {

/// Longest chain of compounds, and deepest nesting of ":not" and the like.
constexpr int mostCompounds = 64;
constexpr int deepestNesting = 4;
constexpr int highestSpecificity = 255;

struct PseudoName
{
    QLatin1String name;
    PseudoClass::Kind kind;
};

const PseudoName plainPseudoClasses[] = {
    {QLatin1String("root"), PseudoClass::Root},
    {QLatin1String("empty"), PseudoClass::Empty},
    {QLatin1String("link"), PseudoClass::Link},
    {QLatin1String("any-link"), PseudoClass::Link},
    {QLatin1String("first-child"), PseudoClass::NthChild},
    {QLatin1String("last-child"), PseudoClass::NthLastChild},
    {QLatin1String("first-of-type"), PseudoClass::NthOfType},
    {QLatin1String("last-of-type"), PseudoClass::NthLastOfType},
    {QLatin1String("only-child"), PseudoClass::OnlyChild},
    {QLatin1String("only-of-type"), PseudoClass::OnlyOfType},
    {QLatin1String("visited"), PseudoClass::Never},
    {QLatin1String("hover"), PseudoClass::Never},
    {QLatin1String("active"), PseudoClass::Never},
    {QLatin1String("focus"), PseudoClass::Never},
    {QLatin1String("target"), PseudoClass::Never},
};

const PseudoName countingPseudoClasses[] = {
    {QLatin1String("nth-child"), PseudoClass::NthChild},
    {QLatin1String("nth-last-child"), PseudoClass::NthLastChild},
    {QLatin1String("nth-of-type"), PseudoClass::NthOfType},
    {QLatin1String("nth-last-of-type"), PseudoClass::NthLastOfType},
};

template<size_t count>
std::optional<PseudoClass::Kind> kindOf(const QString &name, const PseudoName (&names)[count])
{
    for (const PseudoName &known : names) {
        if (name.compare(known.name, Qt::CaseInsensitive) == 0)
            return known.kind;
    }
    return std::nullopt;
}

// "2n+1", "even", "3" (Selectors 3 §6.6.5.2).
bool parseSteps(QStringView text, PseudoClass *pseudo)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\s*(?:(even)|(odd)|([+-]?\\d{0,6})n(?:\\s*([+-])\\s*(\\d{1,6}))?|([+-]?\\d{1,6}))\\s*$"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(text.toString());
    if (!match.hasMatch())
        return false;
    if (match.capturedLength(1) > 0 || match.capturedLength(2) > 0) {
        pseudo->step = 2;
        pseudo->offset = match.capturedLength(2) > 0 ? 1 : 0;
        return true;
    }
    if (match.capturedLength(6) > 0) {
        pseudo->step = 0;
        pseudo->offset = match.captured(6).toInt();
        return true;
    }
    const QString step = match.captured(3);
    const bool bare = step.isEmpty() || step == QLatin1String("+") || step == QLatin1String("-");
    pseudo->step = bare ? (step == QLatin1String("-") ? -1 : 1) : step.toInt();
    pseudo->offset = (match.captured(4) + match.captured(5)).toInt();
    return true;
}

bool is(const QString &name, const char *known)
{
    return name.compare(QLatin1String(known), Qt::CaseInsensitive) == 0;
}

class SelectorParser
{
public:
    SelectorParser(QStringView text, int nesting)
        : m_cursor(text)
        , m_nesting(nesting)
    {
    }

    std::optional<QVector<Selector>> parseList();

private:
    bool parseSelector(Selector *selector);
    bool parseCompound(Compound *compound);
    bool parsePart(Compound *compound);
    void skipNamespace();
    bool parseTag(Compound *compound);
    bool parseAttribute(Compound *compound);
    bool parseRelation(AttributeTest *test);
    bool parsePseudoClass(Compound *compound);
    bool parseFunction(const QString &name, Compound *compound);
    bool parseLanguages(QStringView argument, Compound *compound);
    void addSpecificity(const QVector<Selector> &selectors);
    bool takeCombinator(Combinator *combinator);

    CssCursor m_cursor;
    int m_nesting;
    int m_ids = 0;
    int m_classes = 0;
    int m_tags = 0;
};

// A namespace before a tag is passed over: names of elements say enough where all that is drawn is SVG.
void SelectorParser::skipNamespace()
{
    CssCursor probe = m_cursor;
    if (!probe.take('*'))
        probe.takeIdentifier();
    if (probe.take('|'))
        m_cursor = probe;
}

bool SelectorParser::parseTag(Compound *compound)
{
    skipNamespace();
    if (m_cursor.take('*'))
        return true;
    compound->tag = m_cursor.takeIdentifier();
    if (compound->tag.isEmpty())
        return false;
    ++m_tags;
    return true;
}

bool SelectorParser::parseRelation(AttributeTest *test)
{
    static const QPair<char, AttributeTest::Relation> relations[] = {
        {'~', AttributeTest::Includes}, {'|', AttributeTest::StartsWithWord}, {'^', AttributeTest::Starts},
        {'$', AttributeTest::Ends},     {'*', AttributeTest::Contains},
    };
    test->relation = AttributeTest::Equals;
    for (const auto &relation : relations) {
        if (m_cursor.take(relation.first)) {
            test->relation = relation.second;
            break;
        }
    }
    if (!m_cursor.take('='))
        return false;
    m_cursor.skipSpace();
    if (m_cursor.takeString(&test->value))
        return true;
    test->value = m_cursor.takeIdentifier();
    return !test->value.isEmpty();
}

bool SelectorParser::parseAttribute(Compound *compound)
{
    AttributeTest test;
    m_cursor.skipSpace();
    test.name = m_cursor.takeIdentifier();
    m_cursor.skipSpace();
    if (test.name.isEmpty())
        return false;
    if (!m_cursor.take(']')) {
        if (!parseRelation(&test))
            return false;
        m_cursor.skipSpace();
        if (!m_cursor.take(']'))
            return false;
    }
    ++m_classes;
    compound->attributes.append(test);
    return true;
}

bool SelectorParser::parseFunction(const QString &name, Compound *compound)
{
    const QChar *begin = m_cursor.at;
    m_cursor.skipTo(")");
    const QStringView argument(begin, m_cursor.at);
    if (!m_cursor.take(')'))
        return false;
    PseudoClass pseudo;
    if (const auto kind = kindOf(name, countingPseudoClasses)) {
        pseudo.kind = *kind;
        compound->pseudoClasses.append(pseudo);
        ++m_classes;
        return parseSteps(argument, &compound->pseudoClasses.last());
    }
    if (is(name, "lang"))
        return parseLanguages(argument, compound);
    const bool negates = is(name, "not");
    const bool counts = negates || is(name, "is");
    if ((!counts && !is(name, "where")) || m_nesting >= deepestNesting)
        return false;
    const std::optional<QVector<Selector>> selectors = SelectorParser(argument, m_nesting + 1).parseList();
    if (!selectors)
        return false;
    pseudo.kind = negates ? PseudoClass::Not : PseudoClass::Is;
    pseudo.selectors = *selectors;
    compound->pseudoClasses.append(pseudo);
    if (counts)
        addSpecificity(*selectors);
    return true;
}

// That of the most specific one of a list (Selectors 4 §17).
void SelectorParser::addSpecificity(const QVector<Selector> &selectors)
{
    int most = 0;
    for (const Selector &selector : selectors)
        most = qMax(most, selector.specificity);
    m_ids += most >> 16;
    m_classes += (most >> 8) & 0xff;
    m_tags += most & 0xff;
}

bool SelectorParser::parseLanguages(QStringView argument, Compound *compound)
{
    PseudoClass pseudo;
    pseudo.kind = PseudoClass::Language;
    CssCursor cursor(argument);
    do {
        QString language;
        cursor.skipSpace();
        if (!cursor.takeString(&language))
            language = cursor.takeIdentifier();
        cursor.skipSpace();
        if (language.isEmpty())
            return false;
        pseudo.languages.append(language);
    } while (cursor.take(','));
    if (!cursor.atEnd())
        return false;
    ++m_classes;
    compound->pseudoClasses.append(pseudo);
    return true;
}

bool SelectorParser::parsePseudoClass(Compound *compound)
{
    const QString name = m_cursor.takeIdentifier();
    if (m_cursor.take('('))
        return parseFunction(name, compound);
    const auto kind = kindOf(name, plainPseudoClasses);
    if (!kind)
        return false;
    ++m_classes;
    PseudoClass pseudo;
    pseudo.kind = *kind;
    compound->pseudoClasses.append(pseudo);
    return true;
}

bool SelectorParser::parsePart(Compound *compound)
{
    if (m_cursor.take('#')) {
        compound->ids.append(m_cursor.takeName());
        ++m_ids;
        return !compound->ids.constLast().isEmpty();
    }
    if (m_cursor.take('.')) {
        compound->classes.append(m_cursor.takeIdentifier());
        ++m_classes;
        return !compound->classes.constLast().isEmpty();
    }
    if (m_cursor.take('['))
        return parseAttribute(compound);
    return m_cursor.take(':') && parsePseudoClass(compound);
}

bool startsPart(QChar c)
{
    return c == QLatin1Char('#') || c == QLatin1Char('.') || c == QLatin1Char('[') || c == QLatin1Char(':');
}

bool SelectorParser::parseCompound(Compound *compound)
{
    if (!startsPart(m_cursor.peek()) && !parseTag(compound))
        return false;
    while (startsPart(m_cursor.peek())) {
        if (!parsePart(compound))
            return false;
    }
    return true;
}

// False at the end of a selector.
bool SelectorParser::takeCombinator(Combinator *combinator)
{
    const bool space = m_cursor.skipSpace();
    if (m_cursor.atEnd() || m_cursor.peek() == QLatin1Char(','))
        return false;
    *combinator = Combinator::Descendant;
    if (m_cursor.take('>'))
        *combinator = Combinator::Child;
    else if (m_cursor.take('+'))
        *combinator = Combinator::NextSibling;
    else if (m_cursor.take('~'))
        *combinator = Combinator::LaterSibling;
    else
        return space;
    m_cursor.skipSpace();
    return true;
}

bool SelectorParser::parseSelector(Selector *selector)
{
    m_ids = m_classes = m_tags = 0;
    m_cursor.skipSpace();
    Combinator combinator = Combinator::Descendant;
    do {
        Compound compound;
        if (!parseCompound(&compound) || selector->compounds.size() >= mostCompounds)
            return false;
        if (!selector->compounds.isEmpty())
            selector->combinators.prepend(combinator);
        selector->compounds.prepend(compound);
    } while (takeCombinator(&combinator));
    selector->specificity = (qMin(m_ids, highestSpecificity) << 16) | (qMin(m_classes, highestSpecificity) << 8) |
                            qMin(m_tags, highestSpecificity);
    return true;
}

std::optional<QVector<Selector>> SelectorParser::parseList()
{
    QVector<Selector> list;
    do {
        Selector selector;
        if (!parseSelector(&selector))
            return std::nullopt;
        list.append(selector);
    } while (m_cursor.take(','));
    if (!m_cursor.atEnd())
        return std::nullopt;
    return list;
}

} // namespace

std::optional<QVector<Selector>> parseSelectors(QStringView text)
{
    return SelectorParser(text, 0).parseList();
}

} // namespace Svg
