#include "style/cascade.h"

#include "grammar/csstext.h"
#include "grammar/styleattribute.h"
#include "style/rules.h"
#include "style/shorthands.h"
#include "style/textproperties.h"

#include <algorithm>
#include <bitset>

namespace Svg {

namespace {

/// A property of one element, wherever it is said.
struct Declaration
{
    AttributeId property;
    QStringView value;
    /// Said by the element itself rather than by a rule, whose errors are known already.
    bool own = true;
};

// These have no presentation attribute (SVG 2 §6.6).
bool isForStyleOnly(AttributeId property)
{
    return property == AttributeId::Marker || property == AttributeId::MixBlendMode ||
           property == AttributeId::Isolation;
}

/// Declarations in rising order of rank.
class DeclarationList
{
public:
    explicit DeclarationList(const Tree &tree)
        : m_tree(tree)
    {
    }

    /// False when not all rules were looked at.
    bool collect(NodeIndex element);
    const QVarLengthArray<Declaration, 16> &list() const { return m_list; }

private:
    void addMatches(bool important);
    void addStyle(const QString &text, bool important);
    void addShorthand(const StyleDeclaration &declaration);

    const Tree &m_tree;
    QVarLengthArray<Declaration, 16> m_list;
    QVector<const QVector<RuleDeclaration> *> m_matches;
    /// Texts that the list's views look at.
    QVector<QString> m_texts;
};

// From the highest rank down: what rules say was accepted already, so that only the first on a property counts.
void DeclarationList::addMatches(bool important)
{
    std::bitset<256> known;
    const int before = m_list.size();
    for (const QVector<RuleDeclaration> *block : qAsConst(m_matches)) {
        for (const RuleDeclaration &declaration : *block) {
            if (declaration.important != important || known.test(size_t(declaration.property)))
                continue;
            known.set(size_t(declaration.property));
            m_list.append({declaration.property, declaration.value, false});
        }
    }
    std::reverse(m_list.begin() + before, m_list.end());
}

void DeclarationList::addShorthand(const StyleDeclaration &declaration)
{
    QVector<RuleDeclaration> expanded;
    appendLonghands(declaration.name.toString().toLower(), declaration.value.toString(), false, &expanded);
    for (const RuleDeclaration &longhand : qAsConst(expanded)) {
        m_texts.append(longhand.value);
        m_list.append({longhand.property, m_texts.constLast()});
    }
}

void DeclarationList::addStyle(const QString &text, bool important)
{
    QStringView view(text);
    if (text.contains(QLatin1String("/*"))) {
        m_texts.append(withoutComments(text));
        view = m_texts.constLast();
    }
    const QVector<StyleDeclaration> declarations = parseStyleAttribute(view);
    for (const StyleDeclaration &declaration : declarations) {
        if (declaration.important != important)
            continue;
        const AttributeId id = attributeId(declaration.name);
        if (isProperty(id) || isStyledAttribute(id)) {
            m_list.append({id, declaration.value});
        } else if (isCustomProperty(declaration.name)) {
            m_texts.append(declaration.name.toString() + QLatin1Char(':') + declaration.value.toString());
            m_list.append({AttributeId::CustomProperty, m_texts.constLast()});
        } else {
            addShorthand(declaration);
        }
    }
}

bool DeclarationList::collect(NodeIndex element)
{
    bool complete = true;
    const Attributes &attributes = m_tree.node(element).attributes;
    const Attribute *style = nullptr;
    const Attribute *animated = nullptr;
    for (const Attribute &attribute : attributes) {
        if (isProperty(attribute.id) && !isForStyleOnly(attribute.id))
            m_list.append({attribute.id, attribute.value});
        else if (attribute.id == AttributeId::Style)
            style = &attribute;
        else if (attribute.id == AttributeId::AnimatedStyle)
            animated = &attribute;
    }
    if (m_tree.rules())
        complete = m_tree.rules()->match(m_tree, element, &m_matches);
    addMatches(false);
    if (style)
        addStyle(style->value, false);
    addMatches(true);
    if (style && style->value.contains(QLatin1Char('!')))
        addStyle(style->value, true);
    if (animated)
        addStyle(animated->value, false);
    return complete;
}

// "em" and "currentColor" in other properties need these.
bool comesFirst(AttributeId property)
{
    return property == AttributeId::Color || property == AttributeId::FontSize;
}

bool isTextElement(ElementKind kind)
{
    return kind == ElementKind::Text || isTextPart(kind);
}

// Inherited as the keyword that it is (CSS Color 4, the "currentcolor" keyword).
void followColor(const QColor &color, Paint *paint)
{
    if (paint->followsColor)
        paint->color = color;
}

void addStyledAttribute(ComputedStyle *style, const Declaration &declaration)
{
    for (Attribute &known : style->attributes) {
        if (known.id == declaration.property) {
            known.value = declaration.value.toString();
            return;
        }
    }
    style->attributes.append({declaration.property, QString(), declaration.value.toString()});
}

void declare(const Declaration &declaration, ComputedStyle *style)
{
    const qsizetype colon = declaration.value.indexOf(QLatin1Char(':'));
    const QStringView value = declaration.value.mid(colon + 1).trimmed();
    style->custom.insert(declaration.value.left(colon).toString(), value.toString());
}

// What refers to nothing counts as "unset" (CSS Custom Properties 1 §3.1).
bool applyDeclaration(const Declaration &declaration, const PropertyContext &context, ComputedStyle *style)
{
    Declaration used = declaration;
    QString text;
    if (hasVariables(declaration.value)) {
        text = withVariables(declaration.value, style->custom).value_or(QStringLiteral("unset"));
        used.value = text;
    }
    if (!isStyledAttribute(declaration.property))
        return applyProperty(*style, used.property, used.value, context);
    addStyledAttribute(style, used);
    return true;
}

} // namespace

ComputedStyle cascade(const Tree &tree, NodeIndex element, const PropertyContext &context, CascadeNotes *notes)
{
    ComputedStyle style = inheritedStyle(context.parent);
    DeclarationList declarations(tree);
    const bool complete = declarations.collect(element);
    if (notes)
        notes->rulesLeftOut = !complete;
    for (const Declaration &declaration : declarations.list()) {
        if (declaration.property == AttributeId::CustomProperty)
            declare(declaration, &style);
    }
    for (const bool first : {true, false}) {
        for (const Declaration &declaration : declarations.list()) {
            if (comesFirst(declaration.property) != first || declaration.property == AttributeId::CustomProperty)
                continue;
            if (!applyDeclaration(declaration, context, &style) && notes && declaration.own)
                notes->rejected.append({declaration.property, declaration.value.toString()});
        }
    }
    if (element == rootNode)
        style.font.rootSize = style.font.size;
    followColor(style.color, &style.fill);
    followColor(style.color, &style.stroke);
    if (asksForLines(style) && !isTextElement(tree.node(element).kind))
        decorateTextBelow(style);
    return style;
}

ComputedStyle styleInTree(const Tree &tree, NodeIndex element)
{
    QVarLengthArray<NodeIndex, 16> chain;
    for (NodeIndex at = element; at != noNode; at = tree.node(at).parent)
        chain.append(at);
    ComputedStyle style;
    for (int i = chain.size() - 1; i >= 0; --i) {
        const ComputedStyle parent = style;
        style = cascade(tree, chain[i], {parent, QSizeF()});
    }
    return style;
}

QString styledAttribute(const Attributes &attributes, const QVector<Attribute> &styled, AttributeId id)
{
    for (const Attribute &given : styled) {
        if (given.id == id)
            return given.value;
    }
    return attributes.value(id);
}

} // namespace Svg
