#pragma once

#include "grammar/selectors.h"
#include "tree/tree.h"

namespace Svg {

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
    bool isExhausted() const { return m_stepsLeft <= 0; }

private:
    bool matchesFrom(NodeIndex element, const Selector &selector, int compound);
    bool matchesCompound(NodeIndex element, const Compound &compound);
    bool matchesPseudoClass(NodeIndex element, const PseudoClass &pseudo);
    bool matchesAny(NodeIndex element, const QVector<Selector> &selectors);
    bool matchesLanguage(NodeIndex element, const QStringList &languages);
    bool matchesCount(NodeIndex element, const PseudoClass &pseudo, bool fromEnd, bool ofType);
    bool hasSibling(NodeIndex element, bool after, bool ofType);
    NodeIndex step(NodeIndex element, Combinator combinator);
    bool takeStep() { return m_stepsLeft > 0 && m_stepsLeft-- > 0; }

    const Tree &m_tree;
    int m_stepsLeft;
};

/// Whether one of the words of a list separated by white space is `word`.
bool containsWord(QStringView list, QStringView word);

} // namespace Svg
