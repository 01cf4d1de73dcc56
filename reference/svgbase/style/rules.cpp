#include "style/rules.h"

#include "inputlimits.h"
#include "style/properties.h"
#include "style/selectormatching.h"
#include "style/shorthands.h"

#include <algorithm>

namespace Svg {

namespace {

bool isStyleSheet(const Node &node)
{
    if (node.kind != ElementKind::Style)
        return false;
    const QString type = node.attributes.value(QStringLiteral("type")).trimmed();
    const bool css = type.isEmpty() || type.compare(QLatin1String("text/css"), Qt::CaseInsensitive) == 0;
    return css && includesScreens(node.attributes.value(QStringLiteral("media")));
}

// Line and column of a character of a style sheet.
void report(const Node &style, const StyleProblem &problem, Messages *messages)
{
    const QString before = style.text.left(problem.offset);
    const int lines = before.count(QLatin1Char('\n'));
    const int lineStart = before.lastIndexOf(QLatin1Char('\n')) + 1;
    const int column = before.size() - lineStart + (lines == 0 ? style.column : 1);
    messages->warn(problem.text, style.line + lines, column, style.attributes.value(AttributeId::Id));
}

QStringList words(const QString &list)
{
    QStringList result = list.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    result.removeDuplicates();
    return result;
}

// What a value means depends on the element, but not whether it is one.
bool isAccepted(const RuleDeclaration &declaration)
{
    if (isStyledAttribute(declaration.property))
        return true;
    static const ComputedStyle initial;
    ComputedStyle style;
    return applyProperty(style, declaration.property, declaration.value, {initial, QSizeF()});
}

} // namespace

StyleRulesPointer StyleRules::compile(const Tree &tree, Messages *messages)
{
    auto rules = std::make_shared<StyleRules>();
    for (NodeIndex at = rootNode; at != noNode; at = tree.following(at, rootNode)) {
        const Node &node = tree.node(at);
        if (!isStyleSheet(node))
            continue;
        StyleSheet sheet = parseStyleSheet(node.text);
        for (const StyleRule &rule : qAsConst(sheet.rules))
            rules->add(rule, &sheet.problems);
        for (const StyleProblem &problem : qAsConst(sheet.problems)) {
            if (messages)
                report(node, problem, messages);
        }
    }
    return rules->m_entries.isEmpty() ? nullptr : rules;
}

void StyleRules::add(const StyleRule &rule, QVector<StyleProblem> *problems)
{
    QVector<RuleDeclaration> block;
    for (const SheetDeclaration &declaration : rule.declarations) {
        QVector<RuleDeclaration> expanded;
        appendLonghands(declaration.name, declaration.value, declaration.important, &expanded);
        if (std::all_of(expanded.begin(), expanded.end(), isAccepted))
            block += expanded;
        else
            problems->append({declaration.offset, QStringLiteral("\"%1\" does not take the value \"%2\".")
                                                      .arg(declaration.name, declaration.value)});
    }
    if (block.isEmpty() || m_entries.size() + rule.selectors.size() > Limits::styleRules)
        return;
    m_blocks.append(block);
    for (const Selector &selector : rule.selectors)
        addEntry(selector);
}

void StyleRules::addEntry(const Selector &selector)
{
    const int place = m_entries.size();
    m_entries.append({selector, place, m_blocks.size() - 1});
    const Compound &last = selector.compounds.constFirst();
    if (!last.ids.isEmpty())
        m_byId[last.ids.constFirst()].append(place);
    else if (!last.classes.isEmpty())
        m_byClass[last.classes.constFirst()].append(place);
    else if (!last.tag.isEmpty())
        m_byTag[last.tag].append(place);
    else
        m_universal.append(place);
    noteAttributes(selector);
}

void StyleRules::noteAttributes(const Selector &selector)
{
    for (const Compound &compound : selector.compounds) {
        if (!compound.ids.isEmpty())
            m_attributes.insert(QStringLiteral("id"));
        if (!compound.classes.isEmpty())
            m_attributes.insert(QStringLiteral("class"));
        for (const AttributeTest &test : compound.attributes)
            m_attributes.insert(test.name);
        for (const PseudoClass &pseudo : compound.pseudoClasses) {
            if (pseudo.kind == PseudoClass::Link)
                m_attributes << QStringLiteral("href") << QStringLiteral("xlink:href");
            if (pseudo.kind == PseudoClass::Language)
                m_attributes << QStringLiteral("lang") << QStringLiteral("xml:lang");
            for (const Selector &inner : pseudo.selectors)
                noteAttributes(inner);
        }
    }
}

bool StyleRules::dependsOn(const QString &attribute) const
{
    return m_attributes.contains(attribute);
}

bool StyleRules::match(const Tree &tree, NodeIndex element,
                       QVector<const QVector<RuleDeclaration> *> *matches) const
{
    const Node &node = tree.node(element);
    if (node.kind == ElementKind::Characters)
        return true;
    SelectorMatcher matcher(tree, qMax(Limits::leastSelectorSteps, Limits::selectorSteps / tree.size()));
    QVector<int> found;
    const auto tryAll = [&](const QVector<int> &places) {
        for (int i = 0; i < places.size() && !matcher.isExhausted(); ++i) {
            if (matcher.matches(element, m_entries.at(places.at(i)).selector))
                found.append(places.at(i));
        }
    };
    // The rarest first: what is left of the steps goes to the others.
    const QString id = node.attributes.value(AttributeId::Id);
    if (!id.isEmpty())
        tryAll(m_byId.value(id));
    const QStringList classes = words(node.attributes.value(AttributeId::Class));
    for (const QString &name : classes)
        tryAll(m_byClass.value(name));
    tryAll(m_byTag.value(localName(node)));
    tryAll(m_universal);
    std::sort(found.begin(), found.end(), [this](int a, int b) {
        const Entry &first = m_entries.at(a);
        const Entry &second = m_entries.at(b);
        return std::make_pair(first.selector.specificity, a) < std::make_pair(second.selector.specificity, b);
    });
    for (const int place : qAsConst(found))
        matches->append(&m_blocks.at(m_entries.at(place).block));
    return !matcher.isExhausted();
}

void appendLonghands(const QString &name, const QString &value, bool important, QVector<RuleDeclaration> *list)
{
    const AttributeId property = attributeId(name);
    if (isProperty(property) || isStyledAttribute(property)) {
        list->append({property, value, important});
        return;
    }
    for (const Longhand &longhand : longhands(name, value))
        list->append({longhand.property, longhand.value, important});
}

} // namespace Svg
