#pragma once

#include "grammar/selectors.h"
#include "tree/tree.h"

#include <bitset>
#include <functional>

namespace Svg {

/// The names of an element's ancestors, approximately: a name that occurs is found, one that does not may be found,
/// too.
class AncestorNames
{
public:
    AncestorNames(const Tree &tree, NodeIndex element);
    bool mayHold(const QVector<uint> &names) const;
    /// How many elements were examined.
    int elementCount() const { return m_elementCount; }

private:
    void add(uint hash);
    void add(const Node &node, int *charactersLeft);

    std::bitset<1024> m_bits;
    int m_elementCount = 0;
};

/// Names of ancestors that a selector requires, each as a number for `AncestorNames`.
QVector<uint> ancestorNames(const Selector &selector);

/// Matches selectors against elements. Every step is counted, and once none are left nothing matches.
class SelectorMatcher
{
public:
    SelectorMatcher(const Tree &tree, int steps)
        : m_tree(tree)
        , m_stepsLeft(steps)
    {
    }

    bool matches(NodeIndex element, const Selector &selector);
    /// Counts looking up names of ancestors, and a selector that they ruled out without a closer look.
    void countAncestors(int elements) { takeSteps(elements); }
    void countNames(int names) { takeSteps(names / testsPerStep); }
    void countPassed() { takeStep(); }
    bool isExhausted() const { return m_stepsLeft <= 0; }

private:
    bool matchesFrom(NodeIndex element, const Selector &selector, int compound);
    bool matchesCompound(NodeIndex element, const Compound &compound);
    bool matchesNames(const Node &node, const Compound &compound);
    bool matchesAttribute(const Node &node, const AttributeTest &test);
    bool matchesPseudoClass(NodeIndex element, const PseudoClass &pseudo);
    bool matchesAny(NodeIndex element, const QVector<Selector> &selectors);
    bool matchesRelative(NodeIndex element, const Selector &selector);
    bool matchesLanguage(NodeIndex element, const QStringList &languages);
    bool speaks(const QString &own, const QStringList &languages);
    bool matchesCount(NodeIndex element, const PseudoClass &pseudo, bool fromEnd, bool ofType);
    bool hasSibling(NodeIndex element, bool after, bool ofType);
    NodeIndex step(NodeIndex element, Combinator combinator);
    bool takeStep() { return m_stepsLeft > 0 && m_stepsLeft-- > 0; }
    /// False, with no steps left, when it takes more than are left.
    bool takeSteps(qsizetype steps);
    /// Searching a text takes time proportional to its length.
    bool takeText(qsizetype characters) { return takeSteps(characters / charactersPerStep); }
    /// Looking for an attribute takes time proportional to their number.
    bool takeLook(const Attributes &attributes) { return takeSteps(attributes.count() / attributesPerStep); }

    static constexpr int charactersPerStep = 32;
    static constexpr int attributesPerStep = 4;
    static constexpr int testsPerStep = 4;

    const Tree &m_tree;
    int m_stepsLeft;
    /// The element tested by the present ":has()".
    NodeIndex m_anchor = noNode;
};

/// Calls a function with the words of a list separated by white space, at most a number of them.
void forEachWord(QStringView list, int most, const std::function<void(QStringView)> &use);
/// Whether a text contains another one.
bool containsText(QStringView text, QStringView part);
/// Whether `word` is one of the words of a list separated by white space; never when it contains white space itself
/// (Selectors 4 §6.1).
bool containsWord(QStringView list, QStringView word);

} // namespace Svg
