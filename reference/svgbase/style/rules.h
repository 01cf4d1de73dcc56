#pragma once

#include "grammar/inputlimits.h"
#include "grammar/stylesheets.h"
#include "tree/message.h"
#include "tree/tree.h"

#include <QtCore/QHash>
#include <QtCore/QSet>

namespace Svg {

/// A declaration of a rule with a known property.
struct RuleDeclaration
{
    AttributeId property;
    QString value;
    bool important = false;
};

/// Declarations of a rule, with the rank of its layer.
struct RuleBlock
{
    QVector<RuleDeclaration> declarations;
    int layer = 0;
    /// Steps counted for applying them to an element.
    int steps = 0;
};

/// A font described by a style sheet (CSS Fonts 3 §4), as far as it is supported.
struct FontFaceRule
{
    QString family;
    QString weight;
    QString style;
    /// The list of its sources.
    QString source;
};

/// The rules of all style sheets of a document, indexed so that an element is tested only against rules that may
/// match it.
class StyleRules
{
public:
    /// The rules of a tree's "style" elements, in document order. Null without any. `messages`, when given,
    /// receives what could not be read.
    static StyleRulesPointer compile(const Tree &tree, Messages *messages = nullptr);

    /// Collects the matching rules of an element, in decreasing order of layers and specificity; false if the
    /// search was cut short because it would have taken too long.
    bool match(const Tree &tree, NodeIndex element, QVector<const RuleBlock *> *matches) const;
    /// In the order of the style sheets.
    const QVector<FontFaceRule> &fontFaces() const { return m_fontFaces; }
    /// Whether the value of an attribute may decide which rules match.
    bool dependsOn(const QString &attribute) const;

private:
    struct Entry
    {
        Selector selector;
        int block = 0;
        /// Names that must occur above the element.
        QVector<uint> above;
    };

    void add(const StyleRule &rule, StyleSheet *sheet);
    void addFontFace(const QVector<SheetDeclaration> &descriptors);
    void addEntry(const Selector &selector);
    void index(const QVector<int> &layerRanks);
    void noteAttributes(const Selector &selector);

    /// In increasing order of specificity once they are indexed, else in that of the style sheets.
    QVector<Entry> m_entries;
    QVector<RuleBlock> m_blocks;
    /// Indexes of entries by their last compound: its id, else a class, else its tag, else nothing.
    QHash<QString, QVector<int>> m_byId;
    QHash<QString, QVector<int>> m_byClass;
    QHash<QString, QVector<int>> m_byTag;
    QVector<int> m_universal;
    QSet<QString> m_attributes;
    QVector<FontFaceRule> m_fontFaces;
    /// Whether a rule tests an attribute of any namespace.
    bool m_anyNamespace = false;
    /// Selectors whose attributes may still be noted; those of further ones may be any.
    int m_notesLeft = Limits::styleRules;
    bool m_full = false;
};

/// Appends a declaration, a shorthand as its longhand properties. Unknown properties are left out.
void appendLonghands(const QString &name, const QString &value, bool important, QVector<RuleDeclaration> *list);

} // namespace Svg
