#include "style/selectormatching.h"

#include <algorithm>

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
    return value.compare(word, sensitivity) == 0 || value.startsWith(word + QLatin1Char('-'), sensitivity);
}

bool includesWord(QStringView list, const QString &word, Qt::CaseSensitivity sensitivity)
{
    if (sensitivity == Qt::CaseSensitive)
        return containsWord(list, word);
    return containsWord(list.toString().toLower(), word.toLower());
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
        return !test.value.isEmpty() && value.contains(test.value, sensitivity);
    }
    return false;
}

QString nameOf(const Attribute &attribute)
{
    return attribute.id == AttributeId::Unknown ? attribute.name : QString(attributeName(attribute.id));
}

bool matchesAttribute(const Node &node, const AttributeTest &test)
{
    if (!test.anyNamespace)
        return node.attributes.contains(test.name) && matchesValue(node.attributes.value(test.name), test);
    return std::any_of(node.attributes.begin(), node.attributes.end(), [&](const Attribute &attribute) {
        const QString name = nameOf(attribute);
        return name.mid(name.indexOf(QLatin1Char(':')) + 1) == test.name && matchesValue(attribute.value, test);
    });
}

bool isLink(const Node &node)
{
    return hasLocalName(node, QStringLiteral("a")) &&
           (node.attributes.contains(AttributeId::Href) || node.attributes.contains(AttributeId::XlinkHref));
}

// Whether "a n + b" gives the position for some n of 0 or more.
bool isCounted(int position, const PseudoClass &pseudo)
{
    const int rest = position - pseudo.offset;
    return pseudo.step == 0 ? rest == 0 : rest % pseudo.step == 0 && rest / pseudo.step >= 0;
}

/// Tags, ids and classes of the same text are different names.
enum NameSpace : uint { TagNames = 1, IdNames = 2, ClassNames = 3 };

/// Longest ids and classes of all elements above that are looked at.
constexpr int mostNameCharacters = 1024;

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

bool containsWord(QStringView list, QStringView word)
{
    if (word.isEmpty() || std::any_of(word.begin(), word.end(), isSpaceCharacter))
        return false;
    qsizetype from = 0;
    while ((from = list.indexOf(word, from)) >= 0) {
        const qsizetype end = from + word.size();
        const bool startsThere = from == 0 || isSpaceCharacter(list[from - 1]);
        if (startsThere && (end == list.size() || isSpaceCharacter(list[end])))
            return true;
        from = end;
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
    for (NodeIndex at = tree.node(element).parent; at != noNode; at = tree.node(at).parent)
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
    if (node.name.isEmpty())
        add(tagHash(elementName(node.kind)));
    else
        add(tagHash(localName(node)));
    const QStringView id = node.attributes.view(AttributeId::Id);
    const QStringView classes = node.attributes.view(AttributeId::Class);
    *charactersLeft -= int(id.size() + classes.size());
    if (*charactersLeft < 0)
        return;
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
    while (at != noNode && takeStep()) {
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
    while (at != noNode && takeStep()) {
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
    return std::any_of(selectors.begin(), selectors.end(),
                       [&](const Selector &selector) { return matches(element, selector); });
}

// The last combinator of the chain tells where to look: below the element, or at and below what comes after it.
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

// The nearest element that names its language decides.
bool SelectorMatcher::matchesLanguage(NodeIndex element, const QStringList &languages)
{
    for (NodeIndex at = element; at != noNode && takeStep(); at = m_tree.node(at).parent) {
        const Attributes &attributes = m_tree.node(at).attributes;
        const QString plain = attributes.value(QStringLiteral("lang"));
        const QString own = plain.isEmpty() ? attributes.value(QStringLiteral("xml:lang")) : plain;
        if (!own.isEmpty())
            return std::any_of(languages.begin(), languages.end(), [&](const QString &language) {
                return language == QLatin1String("*") || startsWithWord(own, language);
            });
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
        return isLink(m_tree.node(element));
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

void SelectorMatcher::takeText(const AttributeTest &test, const Node &node)
{
    if (!test.anyNamespace) {
        takeText(node.attributes.value(test.name));
        return;
    }
    for (const Attribute &attribute : node.attributes) {
        m_stepsLeft -= stepsOfName;
        takeText(attribute.value);
    }
}

bool SelectorMatcher::matchesAttributes(const Node &node, const Compound &compound)
{
    for (const QString &wanted : compound.ids) {
        if (node.attributes.view(AttributeId::Id) != wanted)
            return false;
    }
    for (const QString &wanted : compound.classes) {
        const QStringView classes = node.attributes.view(AttributeId::Class);
        takeText(classes);
        if (!containsWord(classes, wanted))
            return false;
    }
    for (const AttributeTest &test : compound.attributes) {
        takeText(test, node);
        if (!matchesAttribute(node, test))
            return false;
    }
    return true;
}

bool SelectorMatcher::matchesCompound(NodeIndex element, const Compound &compound)
{
    const Node &node = m_tree.node(element);
    if (!takeStep() || !isElement(node))
        return false;
    if (!compound.tag.isEmpty() && !hasLocalName(node, compound.tag))
        return false;
    if (!matchesAttributes(node, compound))
        return false;
    for (const PseudoClass &pseudo : compound.pseudoClasses) {
        if (!matchesPseudoClass(element, pseudo))
            return false;
    }
    return true;
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

// Right to left; "descendant" and "later sibling" try every place, which the budget of steps keeps in bounds.
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
