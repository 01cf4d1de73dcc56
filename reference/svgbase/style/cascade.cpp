#include "style/cascade.h"

#include "grammar/csstext.h"
#include "grammar/inputlimits.h"
#include "grammar/styleattribute.h"
#include "properties/propertytable.h"
#include "properties/settlingorder.h"
#include "properties/shorthands.h"
#include "style/rules.h"

#include <algorithm>
#include <bitset>

namespace Svg {

namespace {

/// One declaration of a property of an element, from any origin.
struct Declaration
{
    AttributeId property;
    /// Empty for a value without text.
    QStringView value;
    /// Declared by the element itself rather than by a rule, whose errors have been reported.
    bool own = true;
    /// Declared by a presentation attribute.
    bool isAttribute = false;
    /// A value without text; null for a text.
    const AttributeValue *held = nullptr;

    QString text() const { return held ? held->text() : value.toString(); }
};

/// Distinguishes a presentation attribute from a style of the same text.
constexpr ushort attributeMark = 0x100;

// From the user agent style sheet of SVG 2 §6.7; the initial value of "overflow" is "visible".
bool hidesOverflow(ElementKind kind)
{
    switch (kind) {
    case ElementKind::NestedSvg:
    case ElementKind::Symbol:
    case ElementKind::Image:
    case ElementKind::Marker:
    case ElementKind::Pattern:
        return true;
    default:
        return false;
    }
}

/// Declarations in increasing order of rank.
class DeclarationList
{
public:
    explicit DeclarationList(const Tree &tree)
        : m_tree(tree)
    {
    }

    /// False when not all rules were tried.
    bool collect(NodeIndex element);
    const QVarLengthArray<Declaration, 16> &list() const { return m_list; }
    bool lacksCustomProperties() const { return m_customLeft < 0; }
    /// Whether any value has no text.
    bool holdsValues() const { return m_holdsValues; }

private:
    /// False once the element has used its share.
    bool takeCustomProperty(QStringView declaration);
    void addMatches(bool important);
    void turnLayers();
    void addStyle(const QString &text, bool important);
    void addAttribute(const Attribute &attribute);
    void addShorthand(const StyleDeclaration &declaration);

    const Tree &m_tree;
    int m_customLeft = 0;
    /// Declarations of rules that may still be examined.
    int m_stepsLeft = 0;
    QVarLengthArray<Declaration, 16> m_list;
    bool m_holdsValues = false;
    /// Texts and values that the list refers to, besides the attributes of the element.
    QString m_style;
    Attributes m_animated;
    QVector<const RuleBlock *> m_matches;
    QVector<QString> m_texts;
};

// The more elements there are, the fewer declarations each may have; only the root gets all.
int mostCustomProperties(const Tree &tree, NodeIndex element)
{
    return element == rootNode ? Limits::rootCustomProperties
                               : qMax(Limits::leastCustomProperties, Limits::customProperties / tree.size());
}

bool DeclarationList::takeCustomProperty(QStringView declaration)
{
    m_customLeft = qMax(m_customLeft - 1 - int(declaration.size()) / Limits::customPropertyCharacters, -1);
    return m_customLeft >= 0;
}

// Among important declarations, earlier layers win (CSS Cascade 5 §6.4.4).
void DeclarationList::turnLayers()
{
    const auto isLower = [](const RuleBlock *a, const RuleBlock *b) { return a->layer < b->layer; };
    if (!std::is_sorted(m_matches.begin(), m_matches.end(), isLower))
        std::stable_sort(m_matches.begin(), m_matches.end(), isLower);
}

// From the highest rank down: the declarations of rules are valid, so only the first one of a property counts. All
// custom properties have one id.
void DeclarationList::addMatches(bool important)
{
    std::bitset<256> known;
    const int before = m_list.size();
    if (important)
        turnLayers();
    for (const RuleBlock *block : qAsConst(m_matches)) {
        m_stepsLeft -= important ? 0 : block->steps;
        if (m_stepsLeft < 0)
            break;
        for (int i = block->declarations.size() - 1; i >= 0; --i) {
            const RuleDeclaration &declaration = block->declarations.at(i);
            if (declaration.important != important || known.test(size_t(declaration.property)))
                continue;
            if (declaration.property == AttributeId::CustomProperty && !takeCustomProperty(declaration.value))
                continue;
            known.set(size_t(declaration.property), declaration.property != AttributeId::CustomProperty);
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
    // Of the shorthands for all properties only the last one counts.
    const auto isAll = [important](const StyleDeclaration &declaration) {
        return declaration.important == important &&
               declaration.name.compare(allProperties, Qt::CaseInsensitive) == 0;
    };
    const auto lastAll = std::find_if(declarations.rbegin(), declarations.rend(), isAll);
    for (const StyleDeclaration &declaration : declarations) {
        const bool isOverruled = isAll(declaration) && lastAll != declarations.rend() && &declaration != &*lastAll;
        if (declaration.important != important || isOverruled)
            continue;
        const AttributeId id = attributeId(declaration.name);
        if (isProperty(id) || isStyledAttribute(id)) {
            m_list.append({id, declaration.value});
        } else if (isCustomProperty(declaration.name)) {
            const QString text = declaration.name.toString() + QLatin1Char(':') + declaration.value.toString();
            if (!takeCustomProperty(text))
                continue;
            m_texts.append(text);
            m_list.append({AttributeId::CustomProperty, m_texts.constLast()});
        } else {
            addShorthand(declaration);
        }
    }
}

void DeclarationList::addAttribute(const Attribute &attribute)
{
    const QString *text = attribute.value.asText();
    m_list.append(
        {attribute.id, text ? QStringView(*text) : QStringView(), true, true, text ? nullptr : &attribute.value});
    m_holdsValues = m_holdsValues || !text;
}

bool DeclarationList::collect(NodeIndex element)
{
    static const QString hidden = QStringLiteral("hidden");
    bool complete = true;
    m_customLeft = mostCustomProperties(m_tree, element);
    m_stepsLeft = qMax(Limits::leastSelectorSteps, Limits::selectorSteps / m_tree.size());
    if (hidesOverflow(m_tree.node(element).kind))
        m_list.append({AttributeId::Overflow, hidden, false});
    const Attributes &attributes = m_tree.node(element).attributes;
    for (const Attribute &attribute : attributes)
        if (isProperty(attribute.id) && !propertyOf(attribute.id).isForStyleOnly)
            addAttribute(attribute);
        else if (attribute.id == AttributeId::Style)
            m_style = attribute.value.text();
    if (m_tree.rules())
        complete = m_tree.rules()->match(m_tree, element, &m_matches);
    addMatches(false);
    if (!m_style.isEmpty())
        addStyle(m_style, false);
    addMatches(true);
    if (m_style.contains(QLatin1Char('!')))
        addStyle(m_style, true);
    m_animated = m_tree.animatedStyle(element);
    for (const Attribute &attribute : m_animated)
        addAttribute(attribute);
    return complete && m_stepsLeft >= 0;
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

// Inherited as the keyword itself (CSS Color 4, the "currentcolor" keyword).
void followColor(const QColor &color, Paint *paint)
{
    if (paint->followsColor)
        paint->color = color;
}

void addStyledAttribute(ComputedStyle *style, const Declaration &declaration)
{
    const AttributeValue value =
        declaration.held ? *declaration.held : AttributeValue(declaration.value.toString());
    for (Attribute &known : style->attributes) {
        if (known.id == declaration.property) {
            known.value = value;
            return;
        }
    }
    style->attributes.append({declaration.property, QString(), value});
}

void declare(const Declaration &declaration, ComputedStyle *style)
{
    const qsizetype colon = declaration.value.indexOf(QLatin1Char(':'));
    const QStringView value = declaration.value.mid(colon + 1).trimmed();
    style->custom.insert(declaration.value.left(colon).toString(), value.toString());
}

// A reference to nothing counts as "unset" (CSS Custom Properties 1 §3.1), and so does a text that gets too long.
QString substituted(QStringView value, const CustomProperties &properties, int *charactersLeft)
{
    const QString unset = QStringLiteral("unset");
    const QString text = *charactersLeft < 0 ? unset : withVariables(value, properties).value_or(unset);
    *charactersLeft = qMax(*charactersLeft - text.size(), -1);
    return *charactersLeft < 0 ? unset : text;
}

bool applyDeclaration(const Declaration &declaration, const PropertyContext &context, int *charactersLeft,
                      ComputedStyle *style)
{
    Declaration used = declaration;
    QString text;
    if (hasVariables(declaration.value)) {
        text = substituted(declaration.value, style->custom, charactersLeft);
        used.value = text;
    }
    if (isStyledAttribute(declaration.property)) {
        addStyledAttribute(style, used);
        return true;
    }
    const PropertyContext own{context.parent, context.viewport, declaration.isAttribute};
    return used.held ? assignProperty(*style, used.property, *used.held, own)
                     : applyProperty(*style, used.property, used.value, own);
}

void declareAll(const DeclarationList &declarations, int *charactersLeft, ComputedStyle *style)
{
    bool declares = false;
    for (const Declaration &declaration : declarations.list()) {
        if (declaration.property != AttributeId::CustomProperty)
            continue;
        declare(declaration, style);
        declares = true;
    }
    if (declares)
        style->custom.settle(charactersLeft);
}

/// The element whose style is computed.
struct StyledElement
{
    const Tree &tree;
    NodeIndex index;

    bool isText() const { return isTextElement(tree.node(index).kind); }
};

ComputedStyle applied(const DeclarationList &declarations, const StyledElement &element,
                      const PropertyContext &context, CascadeNotes *notes)
{
    ComputedStyle style = inheritedStyle(context.parent);
    int charactersLeft =
        qMax(Limits::leastSubstitutedCharacters, Limits::substitutedCharacters / element.tree.size());
    declareAll(declarations, &charactersLeft, &style);
    for (const bool first : {true, false}) {
        for (const Declaration &declaration : declarations.list()) {
            if (comesFirst(declaration.property) != first || declaration.property == AttributeId::CustomProperty)
                continue;
            if (!applyDeclaration(declaration, context, &charactersLeft, &style) && notes && declaration.own)
                notes->rejected.append({declaration.property, declaration.text()});
        }
    }
    followColor(style.color, &style.fill);
    followColor(style.color, &style.stroke);
    if (asksForLines(style) && !element.isText() && !decorateTextBelow(style) && notes)
        notes->linesLeftOut = true;
    if (charactersLeft < 0 && notes)
        notes->substitutesLeftOut = true;
    return style;
}

void collect(NodeIndex element, DeclarationList *declarations, CascadeNotes *notes)
{
    const bool complete = declarations->collect(element);
    if (!notes)
        return;
    notes->rulesLeftOut = !complete;
    notes->propertiesLeftOut = declarations->lacksCustomProperties();
}

// With the length of each value, so that no two lists give the same text.
QString textOf(const DeclarationList &declarations)
{
    QString text;
    for (const Declaration &declaration : declarations.list()) {
        const auto length = uint(declaration.value.size());
        text += QChar(ushort(ushort(declaration.property) | (declaration.isAttribute ? attributeMark : 0)));
        text += QChar(ushort(length));
        text += QChar(ushort(length >> 16));
        text += declaration.value;
    }
    return text;
}

} // namespace

ComputedStyle cascade(const Tree &tree, NodeIndex element, const PropertyContext &context, CascadeNotes *notes)
{
    DeclarationList declarations(tree);
    collect(element, &declarations, notes);
    ComputedStyle style = applied(declarations, {tree, element}, context, notes);
    if (element == rootNode)
        style.font.rootSize = style.font.size;
    return style;
}

StylePointer sharedCascade(const Tree &tree, NodeIndex element, const StylePointer &parent, const QSizeF &viewport,
                           StyleCache *cache, CascadeNotes *notes)
{
    if (element == rootNode)
        return StylePointer(new SharedStyle(cascade(tree, element, {*parent, viewport}, notes)));
    DeclarationList declarations(tree);
    collect(element, &declarations, notes);
    if (declarations.list().isEmpty() && parent->isInitial())
        return parent;
    const StyledElement styled{tree, element};
    // Values without text change with the next frame, so other elements cannot share the result.
    if (declarations.holdsValues())
        return StylePointer(new SharedStyle(applied(declarations, styled, {*parent, viewport}, notes)));
    const StyleOrigin origin{parent, viewport, styled.isText(), textOf(declarations)};
    StylePointer style = cache->find(origin);
    if (style)
        return style;
    style = StylePointer(new SharedStyle(applied(declarations, styled, {*parent, viewport}, notes)));
    // Errors must be reported for every element.
    if (!notes || (notes->rejected.isEmpty() && !notes->substitutesLeftOut))
        cache->insert(origin, style);
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

const AttributeValue &styledAttribute(const Attributes &attributes, const QVector<Attribute> &styled,
                                      AttributeId id)
{
    for (const Attribute &given : styled)
        if (given.id == id)
            return given.value;
    return attributes.held(id);
}

} // namespace Svg
