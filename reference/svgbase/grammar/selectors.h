#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <optional>

namespace Svg {

/// [name], [name=value] and their kin (Selectors 3 §6.3).
struct AttributeTest
{
    enum Relation { Exists, Equals, Includes, StartsWithWord, Starts, Ends, Contains };
    QString name;
    QString value;
    Relation relation = Exists;
    /// Whether the name is a local one, of any namespace.
    bool anyNamespace = false;
    Qt::CaseSensitivity caseSensitivity = Qt::CaseSensitive;
};

struct Selector;

/// A pseudo-class (Selectors 3 §6.6); those about what a user does never match a picture.
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
        /// Whether something below or behind the element matches, which the selectors tell from `Anchor` on.
        Has,
        /// The element that a ":has()" is asked of.
        Anchor,
        Language
    };
    Kind kind = Never;
    /// Of the "a n + b" of the counting kinds.
    int step = 0;
    int offset = 1;
    /// Of `Is`, `Not` and `Has`: whether one of them matches decides. Of the counting kinds: what is counted, all
    /// siblings where there are none.
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

/// A compound with those before it, right to left: `combinators[i]` stands between `compounds[i + 1]` and
/// `compounds[i]`.
struct Selector
{
    QVector<Compound> compounds;
    QVector<Combinator> combinators;
    /// Ids, then classes and the like, then tags, a byte each.
    int specificity = 0;
};

/// The selectors of a rule, comments taken out. Nothing when one of them is not understood: the rule is dropped
/// then. Inside a rule with the selectors `around` they are relative to it, and "&" stands for what it matches (CSS
/// Nesting 1 §3).
std::optional<QVector<Selector>> parseSelectors(QStringView text, const QVector<Selector> *around = nullptr);

} // namespace Svg
