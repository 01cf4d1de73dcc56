#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <optional>

namespace Svg {

/// [name], [name=value] and related forms (Selectors 3 §6.3).
struct AttributeTest
{
    enum Relation { Exists, Equals, Includes, StartsWithWord, Starts, Ends, Contains };
    QString name;
    QString value;
    Relation relation = Exists;
    /// Whether the name is a local name in any namespace.
    bool anyNamespace = false;
    Qt::CaseSensitivity caseSensitivity = Qt::CaseSensitive;
};

struct Selector;

/// A pseudo-class (Selectors 3 §6.6); those about user actions never match in a picture.
struct PseudoClass
{
    enum Kind {
        Never,
        Root,
        Empty,
        Link,
        NthChild,
        NthLastChild,
        NthOfType,
        NthLastOfType,
        OnlyChild,
        OnlyOfType,
        /// ":is()" and ":where()".
        Is,
        Not,
        /// Whether a descendant or later sibling matches; its selectors begin at `Anchor`.
        Has,
        /// The element tested by ":has()".
        Anchor,
        Language
    };
    Kind kind = Never;
    /// Of the "a n + b" of the counting kinds.
    int step = 0;
    int offset = 1;
    /// Alternatives of `Is`, `Not` and `Has`; for the counting kinds, the counted siblings, all if empty.
    QVector<Selector> selectors;
    QStringList languages;
};

/// Tests of one element: all of them must hold.
struct Compound
{
    /// Empty for any element.
    QString tag;
    QStringList ids;
    QStringList classes;
    QVector<AttributeTest> attributes;
    QVector<PseudoClass> pseudoClasses;
};

enum class Combinator : quint8 { Descendant, Child, NextSibling, LaterSibling };

/// A compound and those before it, right to left: `combinators[i]` is between `compounds[i + 1]` and
/// `compounds[i]`.
struct Selector
{
    QVector<Compound> compounds;
    QVector<Combinator> combinators;
    /// Ids, then classes and the like, then tags, a byte each.
    int specificity = 0;
};

/// The selectors of a rule, without comments. No value if one of them is invalid, since the rule is then dropped.
/// Inside a rule with the selectors `around` they are relative to it, and "&" represents its elements (CSS Nesting
/// 1 §3).
std::optional<QVector<Selector>> parseSelectors(QStringView text, const QVector<Selector> *around = nullptr);

} // namespace Svg
