#include "style/rules.h"

#include "grammar/inputlimits.h"
#include "grammar/mediaqueries.h"
#include "properties/propertytable.h"
#include "properties/settlingorder.h"
#include "properties/shorthands.h"
#include "style/selectormatching.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <optional>

namespace Svg {

namespace {

/// Most characters of a value quoted in a message.
constexpr int longestQuote = 40;
/// Characters of a value that count as one step of finding rules.
constexpr int charactersPerStep = 2;

bool isStyleSheet(const Node &node)
{
    if (node.kind != ElementKind::Style)
        return false;
    const QString type = node.attributes.value(QStringLiteral("type")).trimmed();
    const bool css = type.isEmpty() || type.compare(QLatin1String("text/css"), Qt::CaseInsensitive) == 0;
    return css && includesScreens(node.attributes.value(QStringLiteral("media")));
}

/// Lines and columns of characters of a style sheet; each search continues from the previous one.
class SheetPlaces
{
public:
    explicit SheetPlaces(const Node &style)
        : m_style(style)
    {
    }

    void report(const StyleProblem &problem, Messages *messages)
    {
        goTo(problem.offset);
        const int column = m_offset - m_lineStart + (m_lines == 0 ? m_style.column : 1);
        messages->warn(problem.tooMany ? Message::TooManyStyleRules : Message::InvalidStyleSheet, problem.text,
                       m_style.line + m_lines, column, m_style.attributes.value(AttributeId::Id));
    }

private:
    void goTo(int offset)
    {
        if (offset < m_offset)
            m_offset = m_lines = m_lineStart = 0;
        for (; m_offset < offset; ++m_offset) {
            if (m_style.text.at(m_offset) != QLatin1Char('\n'))
                continue;
            ++m_lines;
            m_lineStart = m_offset + 1;
        }
    }

    const Node &m_style;
    int m_offset = 0;
    int m_lines = 0;
    int m_lineStart = 0;
};

// `complete` is set to false when there are more declarations than the limit.
QVector<QString> classesOf(const Node &node, bool *complete)
{
    QVector<QString> result;
    forEachWord(node.attributes.value(AttributeId::Class), Limits::classes + 1,
                [&result](QStringView name) { result.append(name.toString()); });
    if (result.size() > Limits::classes) {
        *complete = false;
        result.removeLast();
    }
    std::sort(result.begin(), result.end());
    result.erase(std::unique(result.begin(), result.end()), result.end());
    return result;
}

// All of them are valid, so only the last declaration of a property in a block counts.
QVector<RuleDeclaration> withoutOverruled(const QVector<RuleDeclaration> &block)
{
    QSet<int> known;
    QVector<RuleDeclaration> result;
    for (int i = block.size() - 1; i >= 0; --i) {
        const int key = 2 * int(block.at(i).property) + (block.at(i).important ? 1 : 0);
        if (known.contains(key))
            continue;
        // All custom properties have one id.
        if (block.at(i).property != AttributeId::CustomProperty)
            known.insert(key);
        result.append(block.at(i));
    }
    std::reverse(result.begin(), result.end());
    return result;
}

// A value is read again for every element.
int stepsOf(const QVector<RuleDeclaration> &declarations)
{
    return std::accumulate(declarations.begin(), declarations.end(), 0,
                           [](int sum, const RuleDeclaration &declaration) {
                               return sum + 1 + declaration.value.size() / charactersPerStep;
                           });
}

int lastOfAll(const QVector<SheetDeclaration> &declarations, bool important)
{
    for (int i = declarations.size() - 1; i >= 0; --i)
        if (declarations.at(i).important == important && declarations.at(i).name == allProperties)
            return i;
    return -1;
}

// The meaning of a value depends on the element, but not its validity.
bool isAccepted(const RuleDeclaration &declaration)
{
    const bool custom = declaration.property == AttributeId::CustomProperty;
    if (custom || isStyledAttribute(declaration.property) || hasVariables(declaration.value))
        return true;
    static const ComputedStyle initial;
    ComputedStyle style;
    return applyProperty(style, declaration.property, declaration.value, {initial, QSizeF()});
}

bool isSupported(const SheetDeclaration &declaration)
{
    QVector<RuleDeclaration> expanded;
    appendLonghands(declaration.name, declaration.value, false, &expanded);
    return !expanded.isEmpty() && std::all_of(expanded.begin(), expanded.end(), isAccepted);
}

} // namespace

StyleRulesPointer StyleRules::compile(const Tree &tree, Messages *messages)
{
    auto rules = std::make_shared<StyleRules>();
    CascadeLayers layers;
    for (NodeIndex at = rootNode; at != noNode; at = tree.following(at, rootNode)) {
        const Node &node = tree.node(at);
        if (!isStyleSheet(node))
            continue;
        StyleSheet sheet = parseStyleSheet(node.text, {isSupported, &layers});
        for (const StyleRule &rule : qAsConst(sheet.rules))
            rules->add(rule, &sheet);
        for (const QVector<SheetDeclaration> &descriptors : qAsConst(sheet.fontFaces))
            rules->addFontFace(descriptors);
        std::stable_sort(sheet.problems.begin(), sheet.problems.end(),
                         [](const StyleProblem &a, const StyleProblem &b) { return a.offset < b.offset; });
        SheetPlaces places(node);
        for (const StyleProblem &problem : qAsConst(sheet.problems))
            if (messages)
                places.report(problem, messages);
    }
    rules->index(layers.ranks());
    return rules->m_entries.isEmpty() && rules->m_fontFaces.isEmpty() ? nullptr : rules;
}

void StyleRules::addFontFace(const QVector<SheetDeclaration> &descriptors)
{
    FontFaceRule face;
    for (const SheetDeclaration &descriptor : descriptors)
        if (descriptor.name == QLatin1String("font-family"))
            face.family = descriptor.value;
        else if (descriptor.name == QLatin1String("font-weight"))
            face.weight = descriptor.value;
        else if (descriptor.name == QLatin1String("font-style"))
            face.style = descriptor.value;
        else if (descriptor.name == QLatin1String("src"))
            face.source = descriptor.value;
    if (!face.family.isEmpty() && !face.source.isEmpty() && m_fontFaces.size() < Limits::fonts)
        m_fontFaces.append(face);
}

void StyleRules::add(const StyleRule &rule, StyleSheet *sheet)
{
    QVector<RuleDeclaration> block;
    // Of the shorthands for all properties only the last one counts.
    const int lastAll[] = {lastOfAll(rule.declarations, false), lastOfAll(rule.declarations, true)};
    for (int i = 0; i < rule.declarations.size(); ++i) {
        const SheetDeclaration &declaration = rule.declarations.at(i);
        if (declaration.name == allProperties && i < lastAll[declaration.important])
            continue;
        QVector<RuleDeclaration> expanded;
        appendLonghands(declaration.name, declaration.value, declaration.important, &expanded);
        if (std::all_of(expanded.begin(), expanded.end(), isAccepted))
            block += expanded;
        else
            sheet->report({declaration.offset, QStringLiteral("\"%1\" does not take the value \"%2\".")
                                                   .arg(declaration.name, declaration.value.left(longestQuote))});
    }
    if (block.isEmpty())
        return;
    if (m_entries.size() + rule.selectors.size() > Limits::styleRules) {
        if (!m_full)
            sheet->report({rule.declarations.first().offset,
                           QStringLiteral("Selectors beyond %1 are left out.").arg(Limits::styleRules), true});
        m_full = true;
        return;
    }
    const QVector<RuleDeclaration> effective = withoutOverruled(block);
    m_blocks.append({effective, rule.layer, stepsOf(effective)});
    for (const Selector &selector : rule.selectors)
        addEntry(selector);
}

void StyleRules::addEntry(const Selector &selector)
{
    m_entries.append({selector, m_blocks.size() - 1, ancestorNames(selector)});
    noteAttributes(selector);
}

void StyleRules::index(const QVector<int> &layerRanks)
{
    for (RuleBlock &block : m_blocks)
        block.layer = layerRanks.at(block.layer);
    std::stable_sort(m_entries.begin(), m_entries.end(), [this](const Entry &a, const Entry &b) {
        const int layerOfA = m_blocks.at(a.block).layer;
        const int layerOfB = m_blocks.at(b.block).layer;
        return layerOfA != layerOfB ? layerOfA < layerOfB : a.selector.specificity < b.selector.specificity;
    });
    for (int place = 0; place < m_entries.size(); ++place) {
        const Compound &last = m_entries.at(place).selector.compounds.constFirst();
        if (!last.ids.isEmpty())
            m_byId[last.ids.constFirst()].append(place);
        else if (!last.classes.isEmpty())
            m_byClass[last.classes.constFirst()].append(place);
        else if (!last.tag.isEmpty())
            m_byTag[last.tag].append(place);
        else
            m_universal.append(place);
    }
}

// Nested rules repeat each other's selectors many times.
void StyleRules::noteAttributes(const Selector &selector)
{
    if (--m_notesLeft < 0) {
        m_notesLeft = 0;
        m_anyNamespace = true;
    }
    if (m_anyNamespace)
        return;
    for (const Compound &compound : selector.compounds) {
        if (!compound.ids.isEmpty())
            m_attributes.insert(QStringLiteral("id"));
        if (!compound.classes.isEmpty())
            m_attributes.insert(QStringLiteral("class"));
        for (const AttributeTest &test : compound.attributes) {
            m_attributes.insert(test.name);
            m_anyNamespace = m_anyNamespace || test.anyNamespace;
        }
        for (const PseudoClass &pseudo : compound.pseudoClasses) {
            if (pseudo.kind == PseudoClass::Link)
                m_attributes << QStringLiteral("href") << QStringLiteral("xlink:href");
            if (pseudo.kind == PseudoClass::Language)
                m_attributes << QStringLiteral("lang") << QStringLiteral("xml:lang");
            for (const Selector &inner : pseudo.selectors) {
                if (m_anyNamespace)
                    return;
                noteAttributes(inner);
            }
        }
    }
}

bool StyleRules::dependsOn(const QString &attribute) const
{
    return m_anyNamespace || m_attributes.contains(attribute);
}

bool StyleRules::match(const Tree &tree, NodeIndex element, QVector<const RuleBlock *> *matches) const
{
    const Node &node = tree.node(element);
    if (node.kind == ElementKind::Characters)
        return true;
    SelectorMatcher matcher(tree, qMax(Limits::leastSelectorSteps, Limits::selectorSteps / tree.size()));
    QVector<int> found;
    std::optional<AncestorNames> names;
    const auto mayMatch = [&](const Entry &entry) {
        if (entry.above.isEmpty())
            return true;
        if (!names) {
            names.emplace(tree, element);
            matcher.countAncestors(names->elementCount());
        }
        matcher.countNames(entry.above.size());
        return names->mayHold(entry.above);
    };
    // The most specific first: the others get the remaining steps.
    const auto tryAll = [&](const QVector<int> &places) {
        for (int i = places.size() - 1; i >= 0 && !matcher.isExhausted(); --i) {
            const Entry &entry = m_entries.at(places.at(i));
            if (!mayMatch(entry))
                matcher.countPassed();
            else if (matcher.matches(element, entry.selector) && !matcher.isExhausted())
                found.append(places.at(i));
        }
    };
    // The rarest first: the others get the remaining steps.
    const QString id = node.attributes.value(AttributeId::Id);
    if (!id.isEmpty())
        tryAll(m_byId.value(id));
    bool complete = true;
    const QVector<QString> classes = m_byClass.isEmpty() ? QVector<QString>() : classesOf(node, &complete);
    for (const QString &name : classes)
        tryAll(m_byClass.value(name));
    tryAll(m_byTag.value(localName(node)));
    tryAll(m_universal);
    if (!std::is_sorted(found.begin(), found.end(), std::greater<int>()))
        std::sort(found.begin(), found.end(), std::greater<int>());
    for (const int place : qAsConst(found))
        matches->append(&m_blocks.at(m_entries.at(place).block));
    return complete && !matcher.isExhausted();
}

void appendLonghands(const QString &name, const QString &value, bool important, QVector<RuleDeclaration> *list)
{
    const AttributeId property = attributeId(name);
    if (isProperty(property) || isStyledAttribute(property)) {
        list->append({property, value, important});
        return;
    }
    if (isCustomProperty(name)) {
        list->append({AttributeId::CustomProperty, name + QLatin1Char(':') + value, important});
        return;
    }
    const QVector<Longhand> all = longhands(name, value);
    for (const Longhand &longhand : all)
        list->append({longhand.property, longhand.value, important});
}

} // namespace Svg
