#pragma once

#include "grammar/selectors.h"
#include "tree/tree.h"

#include <bitset>
#include <functional>

namespace Svg {

/// Which names stand on the elements above one, roughly: a name that is there is found, one that is not may be too.
class AncestorNames
{
public:
    AncestorNames(const Tree &tree, NodeIndex element);
    bool mayHold(const QVector<uint> &names) const;

private:
    void add(uint hash);
    void add(const Node &node, int *charactersLeft);

    std::bitset<1024> m_bits;
};

/// What a selector asks of the names of elements above, each as a number for `AncestorNames`.
QVector<uint> ancestorNames(const Selector &selector);

/// Holds selectors against elements. Every step is counted, and once there are none left nothing matches any more.
class SelectorMatcher
{
public:
    SelectorMatcher(const Tree &tree, int steps)
        : m_tree(tree)
        , m_stepsLeft(steps)
    {
    }

    bool matches(NodeIndex element, const Selector &selector);
    /// Counts a selector that was ruled out without a closer look.
    void countPassed() { takeStep(); }
    bool isExhausted() const { return m_stepsLeft <= 0; }

private:
    bool matchesFrom(NodeIndex element, const Selector &selector, int compound);
    bool matchesCompound(NodeIndex element, const Compound &compound);
    bool matchesAttributes(const Node &node, const Compound &compound);
    bool matchesPseudoClass(NodeIndex element, const PseudoClass &pseudo);
    bool matchesAny(NodeIndex element, const QVector<Selector> &selectors);
    bool matchesRelative(NodeIndex element, const Selector &selector);
    bool matchesLanguage(NodeIndex element, const QStringList &languages);
    bool matchesCount(NodeIndex element, const PseudoClass &pseudo, bool fromEnd, bool ofType);
    bool hasSibling(NodeIndex element, bool after, bool ofType);
    NodeIndex step(NodeIndex element, Combinator combinator);
    bool takeStep() { return m_stepsLeft > 0 && m_stepsLeft-- > 0; }
    /// Looking through a text takes the longer the longer it is.
    void takeText(QStringView text) { m_stepsLeft -= int(text.size() / charactersPerStep); }
    void takeText(const AttributeTest &test, const Node &node);

    static constexpr int charactersPerStep = 32;
    /// What finding the name of an attribute costs.
    static constexpr int stepsOfName = 8;

    const Tree &m_tree;
    int m_stepsLeft;
    /// What the ":has()" at hand is asked of.
    NodeIndex m_anchor = noNode;
};

/// Calls a function with the words of a list separated by white space, the first ones up to a number.
void forEachWord(QStringView list, int most, const std::function<void(QStringView)> &use);
/// Whether one of the words of a list separated by white space is `word`; never where that holds white space itself
/// (Selectors 4 §6.1).
bool containsWord(QStringView list, QStringView word);

} // namespace Svg
