#include "grammar/selectors.h"

#include "grammar/csstext.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

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
    {QLatin1String("scope"), PseudoClass::Root},
    {QLatin1String("visited"), PseudoClass::Never},
    {QLatin1String("hover"), PseudoClass::Never},
    {QLatin1String("active"), PseudoClass::Never},
    {QLatin1String("focus"), PseudoClass::Never},
    {QLatin1String("focus-visible"), PseudoClass::Never},
    {QLatin1String("focus-within"), PseudoClass::Never},
    {QLatin1String("target"), PseudoClass::Never},
    {QLatin1String("target-within"), PseudoClass::Never},
    {QLatin1String("enabled"), PseudoClass::Never},
    {QLatin1String("disabled"), PseudoClass::Never},
    {QLatin1String("checked"), PseudoClass::Never},
    {QLatin1String("indeterminate"), PseudoClass::Never},
    {QLatin1String("fullscreen"), PseudoClass::Never},
};

/// Pictures have none; the four legacy ones may be written with one colon (Selectors 4 §3.6).
const char *const pseudoElements[] = {"before",    "after",  "first-line",  "first-letter",
                                      "selection", "marker", "placeholder", "backdrop"};
constexpr int oldPseudoElements = 4;

const PseudoName countingPseudoClasses[] = {
    {QLatin1String("nth-child"), PseudoClass::NthChild},
    {QLatin1String("nth-last-child"), PseudoClass::NthLastChild},
    {QLatin1String("nth-of-type"), PseudoClass::NthOfType},
    {QLatin1String("nth-last-of-type"), PseudoClass::NthLastOfType},
};

template<size_t count>
std::optional<PseudoClass::Kind> kindOf(const QString &name, const PseudoName (&names)[count])
{
    for (const PseudoName &known : names)
        if (name.compare(known.name, Qt::CaseInsensitive) == 0)
            return known.kind;
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

// The specificity of a list is that of its most specific selector (Selectors 4 §17).
int highestOf(const QVector<Selector> &selectors)
{
    int most = 0;
    for (const Selector &selector : selectors)
        most = qMax(most, selector.specificity);
    return most;
}

/// The selectors of the enclosing rule; null outside of rules.
struct Around
{
    const QVector<Selector> *selectors = nullptr;
    int specificity = 0;
};

class SelectorParser
{
public:
    SelectorParser(QStringView text, int nesting, const Around &around)
        : m_cursor(text)
        , m_nesting(nesting)
        , m_around(around)
    {
    }

    std::optional<QVector<Selector>> parseList();
    /// Leaves out only the invalid selectors (Selectors 4 §4.1).
    QVector<Selector> parseForgivingList();
    /// Selectors that begin with a combinator, by default the descendant combinator.
    std::optional<QVector<Selector>> parseRelativeList();

private:
    bool parseSelector(Selector *selector);
    bool parseRelative(Selector *selector, const PseudoClass &origin);
    bool parseChain(Selector *selector, Combinator combinator);
    void finish(Selector *selector) const;
    bool leads() const;
    PseudoClass whatIsAround();
    bool parseCompound(Compound *compound);
    bool parsePart(Compound *compound);
    void skipNamespace();
    bool parseTag(Compound *compound);
    bool parseAttribute(Compound *compound);
    bool parseRelation(AttributeTest *test);
    void takeFlag(AttributeTest *test);
    bool takeAttributeName(AttributeTest *test);
    bool parsePseudoClass(Compound *compound);
    bool parsePseudoElement(Compound *compound);
    bool parseFunction(const QString &name, Compound *compound);
    bool parseCount(PseudoClass::Kind kind, QStringView argument, Compound *compound);
    bool parseSelectorFunction(const QString &name, QStringView argument, Compound *compound);
    bool parseLanguages(QStringView argument, Compound *compound);
    void addSpecificity(int specificity);
    bool takeCombinator(Combinator *combinator);

    CssCursor m_cursor;
    int m_nesting;
    Around m_around;
    bool m_namesAround = false;
    int m_ids = 0;
    int m_classes = 0;
    int m_tags = 0;
};

// Skips the namespace of a tag: names of elements suffice, since only SVG is drawn.
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

// Prefixes are kept as in the names of attributes.
bool SelectorParser::takeAttributeName(AttributeTest *test)
{
    test->anyNamespace = m_cursor.take('*');
    if (!test->anyNamespace)
        test->name = m_cursor.takeIdentifier();
    CssCursor probe = m_cursor;
    if (!probe.take('|') || probe.peek() == QLatin1Char('='))
        return !test->name.isEmpty();
    m_cursor = probe;
    const QString local = m_cursor.takeIdentifier();
    test->name = test->name.isEmpty() ? local : test->name + QLatin1Char(':') + local;
    return !local.isEmpty();
}

// "i" ignores case (Selectors 4 §6.3).
void SelectorParser::takeFlag(AttributeTest *test)
{
    if (m_cursor.take('i') || m_cursor.take('I'))
        test->caseSensitivity = Qt::CaseInsensitive;
    else if (!m_cursor.take('s'))
        m_cursor.take('S');
    m_cursor.skipSpace();
}

bool SelectorParser::parseAttribute(Compound *compound)
{
    AttributeTest test;
    m_cursor.skipSpace();
    if (!takeAttributeName(&test))
        return false;
    m_cursor.skipSpace();
    if (!m_cursor.take(']')) {
        if (!parseRelation(&test))
            return false;
        m_cursor.skipSpace();
        takeFlag(&test);
        if (!m_cursor.take(']'))
            return false;
    }
    ++m_classes;
    compound->attributes.append(test);
    return true;
}

// "2n+1 of .a": counts only matching elements.
bool SelectorParser::parseCount(PseudoClass::Kind kind, QStringView argument, Compound *compound)
{
    static const QRegularExpression separator(QStringLiteral("\\sof\\s"),
                                              QRegularExpression::CaseInsensitiveOption);
    PseudoClass pseudo;
    pseudo.kind = kind;
    ++m_classes;
    const bool countsTypes = kind == PseudoClass::NthOfType || kind == PseudoClass::NthLastOfType;
    const QRegularExpressionMatch of = separator.match(argument.toString());
    QStringView steps = argument;
    if (of.hasMatch() && !countsTypes && m_nesting < deepestNesting) {
        steps = argument.left(of.capturedStart());
        const auto counted = SelectorParser(argument.mid(of.capturedEnd()), m_nesting + 1, m_around).parseList();
        if (!counted)
            return false;
        pseudo.selectors = *counted;
        addSpecificity(highestOf(*counted));
    }
    compound->pseudoClasses.append(pseudo);
    return parseSteps(steps, &compound->pseudoClasses.last());
}

bool SelectorParser::parseFunction(const QString &name, Compound *compound)
{
    const QChar *begin = m_cursor.at;
    m_cursor.skipTo(")");
    const QStringView argument(begin, m_cursor.at);
    if (!m_cursor.take(')'))
        return false;
    if (const auto kind = kindOf(name, countingPseudoClasses))
        return parseCount(*kind, argument, compound);
    if (is(name, "lang"))
        return parseLanguages(argument, compound);
    return m_nesting < deepestNesting && parseSelectorFunction(name, argument, compound);
}

bool SelectorParser::parseSelectorFunction(const QString &name, QStringView argument, Compound *compound)
{
    SelectorParser inner(argument, m_nesting + 1, m_around);
    PseudoClass pseudo;
    if (is(name, "is") || is(name, "where") || is(name, "matches")) {
        pseudo.kind = PseudoClass::Is;
        pseudo.selectors = inner.parseForgivingList();
    } else if (is(name, "not") || is(name, "has")) {
        pseudo.kind = is(name, "not") ? PseudoClass::Not : PseudoClass::Has;
        const auto selectors = pseudo.kind == PseudoClass::Not ? inner.parseList() : inner.parseRelativeList();
        if (!selectors)
            return false;
        pseudo.selectors = *selectors;
    } else {
        return false;
    }
    m_namesAround = m_namesAround || inner.m_namesAround;
    compound->pseudoClasses.append(pseudo);
    if (!is(name, "where"))
        addSpecificity(highestOf(pseudo.selectors));
    return true;
}

void SelectorParser::addSpecificity(int specificity)
{
    m_ids += specificity >> 16;
    m_classes += (specificity >> 8) & 0xff;
    m_tags += specificity & 0xff;
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

bool SelectorParser::parsePseudoElement(Compound *compound)
{
    const QString name = m_cursor.takeIdentifier();
    const bool known = std::any_of(std::begin(pseudoElements), std::end(pseudoElements),
                                   [&](const char *element) { return is(name, element); });
    compound->pseudoClasses.append(PseudoClass());
    ++m_tags;
    return known || name.startsWith(QLatin1String("-webkit-"), Qt::CaseInsensitive);
}

bool SelectorParser::parsePseudoClass(Compound *compound)
{
    if (m_cursor.take(':'))
        return parsePseudoElement(compound);
    const CssCursor before = m_cursor;
    const QString name = m_cursor.takeIdentifier();
    if (m_cursor.take('('))
        return parseFunction(name, compound);
    if (std::any_of(pseudoElements, pseudoElements + oldPseudoElements,
                    [&](const char *element) { return is(name, element); })) {
        m_cursor = before;
        return parsePseudoElement(compound);
    }
    const auto kind = kindOf(name, plainPseudoClasses);
    if (!kind)
        return false;
    ++m_classes;
    PseudoClass pseudo;
    pseudo.kind = *kind;
    compound->pseudoClasses.append(pseudo);
    return true;
}

// Outside of rules, "&" is the scope of all (CSS Nesting 1 §3.1).
PseudoClass SelectorParser::whatIsAround()
{
    PseudoClass pseudo;
    pseudo.kind = m_around.selectors ? PseudoClass::Is : PseudoClass::Root;
    if (m_around.selectors) {
        pseudo.selectors = *m_around.selectors;
        addSpecificity(m_around.specificity);
    }
    m_namesAround = true;
    return pseudo;
}

bool SelectorParser::parsePart(Compound *compound)
{
    if (m_cursor.take('&')) {
        compound->pseudoClasses.append(whatIsAround());
        return true;
    }
    if (m_cursor.take('#')) {
        compound->ids.append(m_cursor.takeIdentifier());
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
    return c == QLatin1Char('#') || c == QLatin1Char('.') || c == QLatin1Char('[') || c == QLatin1Char(':') ||
           c == QLatin1Char('&');
}

bool SelectorParser::parseCompound(Compound *compound)
{
    if (!startsPart(m_cursor.peek()) && !parseTag(compound))
        return false;
    while (startsPart(m_cursor.peek()))
        if (!parsePart(compound))
            return false;
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

// Compounds and combinators up to the end; the first combinator follows the existing compounds.
bool SelectorParser::parseChain(Selector *selector, Combinator combinator)
{
    do {
        Compound compound;
        if (!parseCompound(&compound) || selector->compounds.size() >= mostCompounds)
            return false;
        if (!selector->compounds.isEmpty())
            selector->combinators.prepend(combinator);
        selector->compounds.prepend(compound);
    } while (takeCombinator(&combinator));
    return true;
}

void SelectorParser::finish(Selector *selector) const
{
    selector->specificity = (qMin(m_ids, highestSpecificity) << 16) | (qMin(m_classes, highestSpecificity) << 8) |
                            qMin(m_tags, highestSpecificity);
}

bool SelectorParser::leads() const
{
    const QChar c = m_cursor.peek();
    return c == QLatin1Char('>') || c == QLatin1Char('+') || c == QLatin1Char('~');
}

// Anchored at an implicit origin.
bool SelectorParser::parseRelative(Selector *selector, const PseudoClass &origin)
{
    Compound first;
    first.pseudoClasses.append(origin);
    selector->compounds.append(first);
    Combinator combinator = Combinator::Descendant;
    if (leads())
        takeCombinator(&combinator);
    return parseChain(selector, combinator);
}

// Inside a rule, a selector without "&" is relative to the enclosing rule's elements.
bool SelectorParser::parseSelector(Selector *selector)
{
    m_ids = m_classes = m_tags = 0;
    m_namesAround = false;
    m_cursor.skipSpace();
    const CssCursor begin = m_cursor;
    const bool nested = m_around.selectors && m_nesting == 0;
    if (!(nested && leads()) && !parseChain(selector, Combinator::Descendant))
        return false;
    if (nested && !m_namesAround) {
        m_cursor = begin;
        *selector = Selector();
        m_ids = m_classes = m_tags = 0;
        if (!parseRelative(selector, whatIsAround()))
            return false;
    }
    finish(selector);
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

std::optional<QVector<Selector>> SelectorParser::parseRelativeList()
{
    QVector<Selector> list;
    PseudoClass anchor;
    anchor.kind = PseudoClass::Anchor;
    do {
        m_ids = m_classes = m_tags = 0;
        m_cursor.skipSpace();
        Selector selector;
        if (!parseRelative(&selector, anchor))
            return std::nullopt;
        finish(&selector);
        list.append(selector);
    } while (m_cursor.take(','));
    if (!m_cursor.atEnd())
        return std::nullopt;
    return list;
}

QVector<Selector> SelectorParser::parseForgivingList()
{
    QVector<Selector> list;
    do {
        const QChar *begin = m_cursor.at;
        m_cursor.skipTo(",");
        SelectorParser one(QStringView(begin, m_cursor.at), m_nesting, m_around);
        if (const auto selectors = one.parseList())
            list += *selectors;
        m_namesAround = m_namesAround || one.m_namesAround;
    } while (m_cursor.take(','));
    return list;
}

} // namespace

std::optional<QVector<Selector>> parseSelectors(QStringView text, const QVector<Selector> *around)
{
    return SelectorParser(text, 0, {around, around ? highestOf(*around) : 0}).parseList();
}

} // namespace Svg
