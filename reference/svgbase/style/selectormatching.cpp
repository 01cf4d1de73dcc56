#include "style/selectormatching.h"

#include <algorithm>
#include <vector>

namespace Svg {

namespace {

bool isElement(const Node &node)
{
    return node.kind != ElementKind::Characters;
}

bool isSpaceCharacter(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r') ||
           c == QLatin1Char('\f');
}

bool startsWithWord(const QString &value, const QString &word,
                    Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive)
{
    if (!value.startsWith(word, sensitivity))
        return false;
    return value.size() == word.size() || value.at(word.size()) == QLatin1Char('-');
}

bool includesWord(QStringView list, const QString &word, Qt::CaseSensitivity sensitivity)
{
    if (sensitivity == Qt::CaseSensitive)
        return containsWord(list, word);
    return containsWord(list.toString().toLower(), word.toLower());
}

bool contains(const QString &value, const QString &part, Qt::CaseSensitivity sensitivity)
{
    if (sensitivity == Qt::CaseSensitive)
        return containsText(value, part);
    return containsText(value.toLower(), part.toLower());
}

bool matchesValue(const QString &value, const AttributeTest &test)
{
    const Qt::CaseSensitivity sensitivity = test.caseSensitivity;
    switch (test.relation) {
    case AttributeTest::Exists:
        return true;
    case AttributeTest::Equals:
        return value.compare(test.value, sensitivity) == 0;
    case AttributeTest::Includes:
        return includesWord(value, test.value, sensitivity);
    case AttributeTest::StartsWithWord:
        return startsWithWord(value, test.value, sensitivity);
    case AttributeTest::Starts:
        return !test.value.isEmpty() && value.startsWith(test.value, sensitivity);
    case AttributeTest::Ends:
        return !test.value.isEmpty() && value.endsWith(test.value, sensitivity);
    case AttributeTest::Contains:
        return !test.value.isEmpty() && contains(value, test.value, sensitivity);
    }
    return false;
}

// How many characters of a value its test may examine, those of the test included where it examines all of them.
qsizetype charactersOfTest(const QString &value, const AttributeTest &test)
{
    if (test.relation == AttributeTest::Exists)
        return 0;
    if (test.relation == AttributeTest::Includes || test.relation == AttributeTest::Contains)
        return qsizetype(value.size()) + test.value.size();
    return qMin(value.size(), test.value.size());
}

bool isNamed(const Attribute &attribute, AttributeId id, const QString &name)
{
    return id == AttributeId::Unknown ? attribute.id == id && attribute.name == name : attribute.id == id;
}

bool isNamedLocally(const Attribute &attribute, AttributeId id, const QString &name)
{
    switch (attribute.id) {
    case AttributeId::Unknown:
        return QStringView(attribute.name).mid(attribute.name.indexOf(QLatin1Char(':')) + 1) == name;
    case AttributeId::XlinkHref:
        return id == AttributeId::Href;
    case AttributeId::XmlSpace:
        return name == QLatin1String("space");
    default:
        return attribute.id == id;
    }
}

bool isLink(const Node &node)
{
    return hasLocalName(node, QStringLiteral("a")) &&
           (node.attributes.contains(AttributeId::Href) || node.attributes.contains(AttributeId::XlinkHref));
}

int testCount(const Compound &compound)
{
    return compound.ids.size() + compound.classes.size() + compound.attributes.size() +
           compound.pseudoClasses.size();
}

// Whether "a n + b" gives the position for some n of 0 or more.
bool isCounted(int position, const PseudoClass &pseudo)
{
    const int rest = position - pseudo.offset;
    return pseudo.step == 0 ? rest == 0 : rest % pseudo.step == 0 && rest / pseudo.step >= 0;
}

/// Tags, ids and classes of the same text are different names.
enum NameSpace : uint { TagNames = 1, IdNames = 2, ClassNames = 3 };

/// Limits on the length of the tags, ids and classes of all elements above together.
constexpr int mostNameCharacters = 8192;

uint tagHash(const QString &tag)
{
    return qHash(tag, TagNames);
}

uint idHash(QStringView id)
{
    return qHash(id, IdNames);
}

uint classHash(QStringView name)
{
    return qHash(name, ClassNames);
}

} // namespace

// Knuth, Morris and Pratt: as many steps as there are characters, whatever these are.
bool containsText(QStringView text, QStringView part)
{
    if (part.isEmpty() || part.size() > text.size())
        return part.isEmpty();
    // For each prefix of the part, the length of its longest proper suffix that is also a prefix.
    std::vector<int> borders(size_t(part.size()), 0);
    for (int at = 1, border = 0; at < int(part.size()); ++at) {
        while (border > 0 && part[at] != part[border])
            border = borders[size_t(border) - 1];
        border += part[at] == part[border] ? 1 : 0;
        borders[size_t(at)] = border;
    }
    int matched = 0;
    for (const QChar c : text) {
        while (matched > 0 && c != part[matched])
            matched = borders[size_t(matched) - 1];
        matched += c == part[matched] ? 1 : 0;
        if (matched == int(part.size()))
            return true;
    }
    return false;
}

bool containsWord(QStringView list, QStringView word)
{
    if (word.isEmpty() || std::any_of(word.begin(), word.end(), isSpaceCharacter))
        return false;
    const QChar *at = list.begin();
    while (at != list.end()) {
        const QChar *end = std::find_if(at, list.end(), isSpaceCharacter);
        if (QStringView(at, end) == word)
            return true;
        at = end == list.end() ? end : end + 1;
    }
    return false;
}

void forEachWord(QStringView list, int most, const std::function<void(QStringView)> &use)
{
    qsizetype at = 0;
    for (int count = 0; count < most; ++count) {
        while (at < list.size() && isSpaceCharacter(list[at]))
            ++at;
        const qsizetype begin = at;
        while (at < list.size() && !isSpaceCharacter(list[at]))
            ++at;
        if (at == begin)
            return;
        use(list.mid(begin, at - begin));
    }
}

AncestorNames::AncestorNames(const Tree &tree, NodeIndex element)
{
    int charactersLeft = mostNameCharacters;
    for (NodeIndex at = tree.node(element).parent; at != noNode && charactersLeft >= 0;
         at = tree.node(at).parent, ++m_elementCount)
        add(tree.node(at), &charactersLeft);
    if (charactersLeft < 0)
        m_bits.set();
}

void AncestorNames::add(uint hash)
{
    m_bits.set(hash % m_bits.size());
}

void AncestorNames::add(const Node &node, int *charactersLeft)
{
    const QString tag = localName(node);
    const QString id = node.attributes.value(AttributeId::Id);
    const QString classes = node.attributes.value(AttributeId::Class);
    *charactersLeft -= int(tag.size() + id.size() + classes.size());
    if (*charactersLeft < 0)
        return;
    add(tagHash(tag));
    if (!id.isEmpty())
        add(idHash(id));
    forEachWord(classes, mostNameCharacters, [this](QStringView name) { add(classHash(name)); });
}

bool AncestorNames::mayHold(const QVector<uint> &names) const
{
    return std::all_of(names.begin(), names.end(), [this](uint hash) { return m_bits.test(hash % m_bits.size()); });
}

QVector<uint> ancestorNames(const Selector &selector)
{
    QVector<uint> names;
    for (int i = 0; i < selector.combinators.size(); ++i) {
        const Combinator combinator = selector.combinators.at(i);
        if (combinator != Combinator::Descendant && combinator != Combinator::Child)
            continue;
        const Compound &above = selector.compounds.at(i + 1);
        if (!above.tag.isEmpty())
            names.append(tagHash(above.tag));
        for (const QString &id : above.ids)
            names.append(idHash(id));
        for (const QString &name : above.classes)
            names.append(classHash(name));
    }
    return names;
}

bool SelectorMatcher::hasSibling(NodeIndex element, bool after, bool ofType)
{
    const QString name = ofType ? localName(m_tree.node(element)) : QString();
    NodeIndex at = after ? m_tree.node(element).next : m_tree.node(element).previous;
    while (at != noNode && takeStep() && takeText(name.size())) {
        const Node &node = m_tree.node(at);
        if (isElement(node) && (!ofType || hasLocalName(node, name)))
            return true;
        at = after ? node.next : node.previous;
    }
    return false;
}

bool SelectorMatcher::matchesCount(NodeIndex element, const PseudoClass &pseudo, bool fromEnd, bool ofType)
{
    const bool countsSome = !pseudo.selectors.isEmpty();
    if (countsSome && !matchesAny(element, pseudo.selectors))
        return false;
    if (pseudo.step == 0 && pseudo.offset == 1 && !countsSome)
        return !hasSibling(element, fromEnd, ofType);
    const QString name = ofType ? localName(m_tree.node(element)) : QString();
    int position = 1;
    NodeIndex at = fromEnd ? m_tree.node(element).next : m_tree.node(element).previous;
    while (at != noNode && takeStep() && takeText(name.size())) {
        const Node &node = m_tree.node(at);
        const bool counts = isElement(node) && (!ofType || hasLocalName(node, name));
        if (counts && (!countsSome || matchesAny(at, pseudo.selectors)))
            ++position;
        at = fromEnd ? node.next : node.previous;
    }
    return isCounted(position, pseudo);
}

bool SelectorMatcher::matchesAny(NodeIndex element, const QVector<Selector> &selectors)
{
    for (const Selector &selector : selectors) {
        if (isExhausted())
            return false;
        if (matches(element, selector))
            return true;
    }
    return false;
}

// The last combinator of the chain tells where to search: below the element, or at and below its later siblings.
bool SelectorMatcher::matchesRelative(NodeIndex element, const Selector &selector)
{
    const NodeIndex anchorBefore = m_anchor;
    m_anchor = element;
    const Combinator first = selector.combinators.constLast();
    const bool below = first == Combinator::Descendant || first == Combinator::Child;
    bool found = false;
    for (NodeIndex top = below ? element : m_tree.node(element).next; top != noNode && !found && takeStep();
         top = below ? noNode : m_tree.node(top).next) {
        found = !below && matches(top, selector);
        NodeIndex at = m_tree.following(top, top);
        for (; at != noNode && !found && !isExhausted(); at = m_tree.following(at, top))
            found = matches(at, selector);
    }
    m_anchor = anchorBefore;
    return found;
}

bool SelectorMatcher::speaks(const QString &own, const QStringList &languages)
{
    for (const QString &language : languages) {
        if (!takeStep() || !takeText(qMin(own.size(), language.size())))
            return false;
        if (language == QLatin1String("*") || startsWithWord(own, language))
            return true;
    }
    return false;
}

// The nearest element that declares its language decides.
bool SelectorMatcher::matchesLanguage(NodeIndex element, const QStringList &languages)
{
    for (NodeIndex at = element; at != noNode && takeStep(); at = m_tree.node(at).parent) {
        const Attributes &attributes = m_tree.node(at).attributes;
        if (!takeLook(attributes))
            return false;
        const QString plain = attributes.value(QStringLiteral("lang"));
        const QString own = plain.isEmpty() ? attributes.value(QStringLiteral("xml:lang")) : plain;
        if (!own.isEmpty())
            return speaks(own, languages);
    }
    return false;
}

bool SelectorMatcher::matchesPseudoClass(NodeIndex element, const PseudoClass &pseudo)
{
    switch (pseudo.kind) {
    case PseudoClass::Never:
        return false;
    case PseudoClass::Root:
        return element == rootNode;
    case PseudoClass::Empty:
        return m_tree.node(element).firstChild == noNode && m_tree.node(element).text.isEmpty();
    case PseudoClass::Link:
        return takeLook(m_tree.node(element).attributes) && isLink(m_tree.node(element));
    case PseudoClass::NthChild:
        return matchesCount(element, pseudo, false, false);
    case PseudoClass::NthLastChild:
        return matchesCount(element, pseudo, true, false);
    case PseudoClass::NthOfType:
        return matchesCount(element, pseudo, false, true);
    case PseudoClass::NthLastOfType:
        return matchesCount(element, pseudo, true, true);
    case PseudoClass::OnlyChild:
        return !hasSibling(element, false, false) && !hasSibling(element, true, false);
    case PseudoClass::OnlyOfType:
        return !hasSibling(element, false, true) && !hasSibling(element, true, true);
    case PseudoClass::Is:
        return matchesAny(element, pseudo.selectors);
    case PseudoClass::Not:
        return !matchesAny(element, pseudo.selectors);
    case PseudoClass::Has:
        return std::any_of(pseudo.selectors.begin(), pseudo.selectors.end(),
                           [&](const Selector &selector) { return matchesRelative(element, selector); });
    case PseudoClass::Anchor:
        return element == m_anchor;
    case PseudoClass::Language:
        return matchesLanguage(element, pseudo.languages);
    }
    return false;
}

bool SelectorMatcher::takeSteps(qsizetype steps)
{
    if (steps > m_stepsLeft) {
        m_stepsLeft = 0;
        return false;
    }
    m_stepsLeft -= int(steps);
    return true;
}

bool SelectorMatcher::matchesAttribute(const Node &node, const AttributeTest &test)
{
    if (!takeLook(node.attributes))
        return false;
    const AttributeId id = attributeId(test.name);
    for (const Attribute &attribute : node.attributes) {
        if (attribute.id == AttributeId::Unknown && !takeText(qMin(attribute.name.size(), test.name.size())))
            return false;
        const bool isMeant =
            test.anyNamespace ? isNamedLocally(attribute, id, test.name) : isNamed(attribute, id, test.name);
        if (!isMeant)
            continue;
        const QString value = attribute.value.text();
        if (takeText(charactersOfTest(value, test)) && matchesValue(value, test))
            return true;
    }
    return false;
}

bool SelectorMatcher::matchesNames(const Node &node, const Compound &compound)
{
    const QString id = node.attributes.value(AttributeId::Id);
    for (const QString &wanted : compound.ids)
        if (!takeText(qMin(id.size(), wanted.size())) || id != wanted)
            return false;
    const QString classes = node.attributes.value(AttributeId::Class);
    for (const QString &wanted : compound.classes)
        if (!takeText(classes.size()) || !containsWord(classes, wanted))
            return false;
    return true;
}

bool SelectorMatcher::matchesCompound(NodeIndex element, const Compound &compound)
{
    const Node &node = m_tree.node(element);
    if (!takeStep() || !isElement(node) || !takeSteps(testCount(compound) / testsPerStep))
        return false;
    if (!compound.tag.isEmpty() && !(takeText(compound.tag.size()) && hasLocalName(node, compound.tag)))
        return false;
    if (!matchesNames(node, compound))
        return false;
    return std::all_of(compound.attributes.begin(), compound.attributes.end(),
                       [&](const AttributeTest &test) { return matchesAttribute(node, test); }) &&
           std::all_of(compound.pseudoClasses.begin(), compound.pseudoClasses.end(),
                       [&](const PseudoClass &pseudo) { return matchesPseudoClass(element, pseudo); });
}

NodeIndex SelectorMatcher::step(NodeIndex element, Combinator combinator)
{
    if (combinator == Combinator::Descendant || combinator == Combinator::Child)
        return m_tree.node(element).parent;
    NodeIndex at = m_tree.node(element).previous;
    while (at != noNode && !isElement(m_tree.node(at)) && takeStep())
        at = m_tree.node(at).previous;
    return at;
}

// Right to left; "descendant" and "later sibling" try every candidate, which the budget of steps limits.
bool SelectorMatcher::matchesFrom(NodeIndex element, const Selector &selector, int compound)
{
    if (!matchesCompound(element, selector.compounds.at(compound)))
        return false;
    if (compound + 1 == selector.compounds.size())
        return true;
    const Combinator combinator = selector.combinators.at(compound);
    const bool once = combinator == Combinator::Child || combinator == Combinator::NextSibling;
    for (NodeIndex at = step(element, combinator); at != noNode && !isExhausted(); at = step(at, combinator)) {
        if (matchesFrom(at, selector, compound + 1))
            return true;
        if (once)
            return false;
    }
    return false;
}

bool SelectorMatcher::matches(NodeIndex element, const Selector &selector)
{
    return matchesFrom(element, selector, 0);
}

} // namespace Svg
