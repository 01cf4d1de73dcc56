#include "animation/model.h"

#include "animation/basevalue.h"
#include "grammar/inputlimits.h"
#include "grammar/paints.h"
#include "properties/propertytable.h"
#include "style/cascade.h"

#include <QtCore/QHash>
#include <QtCore/QMap>

#include <algorithm>

namespace Svg {

namespace {

const QLatin1String transformName("transform");
const QLatin1String currentColor("currentColor");

bool namesCurrentColor(const Attributes &attributes)
{
    const auto names = [&attributes](const char *name) {
        return attributes.value(QLatin1String(name)).contains(currentColor, Qt::CaseInsensitive);
    };
    return names("from") || names("to") || names("by") || names("values");
}

std::optional<Effect> readEffect(const Node &node, const ValueContext &context)
{
    return Effect::read(node.attributes, context, node.kind == ElementKind::SetValue);
}

class ModelReader
{
public:
    ModelReader(const Tree &tree, const FactsOfNode &facts)
        : m_tree(tree)
        , m_facts(facts)
    {
    }

    AnimationModel read();

private:
    void readElement(NodeIndex index);
    NodeIndex targetOf(NodeIndex index) const;
    bool hasRoomFor(NodeIndex target, const QString &name);
    AnimatedAttribute &attributeOf(NodeIndex target, const QString &name, const ValueContext &context);
    ValueContext contextOf(NodeIndex target, const QString &name) const;
    QString baseTextOf(NodeIndex target, const QString &name) const;
    void readBase(AnimatedAttribute *attribute) const;
    bool baseFollowsColor(NodeIndex target, AttributeId id) const;
    bool isStyled(NodeIndex target, AttributeId id) const;
    void readTransform(NodeIndex index, NodeIndex target);
    void readMotion(NodeIndex index, NodeIndex target);
    void readPlain(NodeIndex index, NodeIndex target);

    const Tree &m_tree;
    const FactsOfNode &m_facts;
    AnimationModel m_model;
    int m_motionRoom = Limits::motionElements;
    QMap<std::pair<NodeIndex, QString>, AnimatedAttribute> m_attributes;
    /// How many of them each element has.
    QHash<NodeIndex, int> m_attributeCounts;
};

NodeIndex ModelReader::targetOf(NodeIndex index) const
{
    const Node &node = m_tree.node(index);
    NodeIndex target = node.parent;
    for (const AttributeId id : {AttributeId::XlinkHref, AttributeId::Href})
        if (node.attributes.contains(id))
            target = m_tree.findId(localReference(node.attributes.value(id)));
    if (target == noNode || isAnimation(m_tree.node(target).kind))
        return noNode;
    return target;
}

AnimatedValue computedValue(const ComputedStyle &style, AttributeId id)
{
    const Property &property = propertyOf(id);
    const std::optional<TypedValue> value =
        property.animation.value ? property.animation.value(style) : std::nullopt;
    return value ? animatedValue(*value) : replacedValue(property.print(style));
}

LengthContext lengthsOf(const Facts &facts)
{
    return {facts.viewport, facts.style->font.size};
}

ValueContext ModelReader::contextOf(NodeIndex target, const QString &name) const
{
    const FactsPointer facts = m_facts(target);
    ValueContext context = valueContext(name, lengthsOf(*facts), facts->style->color);
    const AttributeId id = attributeId(name);
    if (isProperty(id) && facts->parent)
        context.inherited = computedValue(*facts->parent->style, id);
    return context;
}

// Style may set an attribute's value in its place; only style can hide that.
bool ModelReader::isStyled(NodeIndex target, AttributeId id) const
{
    const QVector<Attribute> &styled = m_facts(target)->style->attributes;
    return std::any_of(styled.begin(), styled.end(),
                       [id](const Attribute &attribute) { return attribute.id == id; });
}

QString ModelReader::baseTextOf(NodeIndex target, const QString &name) const
{
    const AttributeId id = attributeId(name);
    const Node &node = m_tree.node(target);
    const QString own = isStyled(target, id) ? styledAttribute(node, *m_facts(target)->style, id).text()
                                             : node.attributes.value(name);
    return own.isEmpty() ? defaultAttributeText(node.kind, id) : own;
}

void ModelReader::readBase(AnimatedAttribute *attribute) const
{
    if (isProperty(attribute->id)) {
        attribute->base = computedValue(*m_facts(attribute->target)->style, attribute->id);
        return;
    }
    const QString text = baseTextOf(attribute->target, attribute->name);
    if (attribute->context.grammar == ValueContext::Transforms)
        attribute->baseTransforms = parseTransformList(text).value_or(TransformList());
    else
        attribute->base = parseAnimatedValue(text, attribute->context);
}

bool ModelReader::baseFollowsColor(NodeIndex target, AttributeId id) const
{
    const ComputedStyle &style = *m_facts(target)->style;
    return (id == AttributeId::Fill && style.fill.followsColor) ||
           (id == AttributeId::Stroke && style.stroke.followsColor);
}

bool ModelReader::hasRoomFor(NodeIndex target, const QString &name)
{
    if (m_attributes.contains({target, name}) || m_attributeCounts.value(target) < Limits::attributes)
        return true;
    m_model.lacksAttributes = true;
    return false;
}

AnimatedAttribute &ModelReader::attributeOf(NodeIndex target, const QString &name, const ValueContext &context)
{
    AnimatedAttribute &attribute = m_attributes[{target, name}];
    if (attribute.target == noNode) {
        ++m_attributeCounts[target];
        attribute.target = target;
        attribute.name = name;
        attribute.id = attributeId(name);
        attribute.isProperty = isProperty(attribute.id) || isStyled(target, attribute.id);
        attribute.context = context;
        readBase(&attribute);
        attribute.baseFollowsColor = baseFollowsColor(target, attribute.id);
        attribute.followsColor = attribute.baseFollowsColor;
    }
    return attribute;
}

void ModelReader::readTransform(NodeIndex index, NodeIndex target)
{
    const Attributes &attributes = m_tree.node(index).attributes;
    const ValueContext context = transformContext(attributes.value(QStringLiteral("type")).trimmed());
    const std::optional<Effect> effect = Effect::read(attributes, context, false);
    QString name = attributes.value(QStringLiteral("attributeName")).trimmed();
    if (name.isEmpty())
        name = transformName;
    if (effect && name.endsWith(transformName, Qt::CaseInsensitive) && hasRoomFor(target, name))
        attributeOf(target, name, context)
            .animations.append({m_model.timeline.size(), effect, std::nullopt, index});
}

void ModelReader::readMotion(NodeIndex index, NodeIndex target)
{
    const std::optional<Motion> motion =
        Motion::read(m_tree, index, lengthsOf(*m_facts(target)), m_facts, &m_motionRoom);
    m_model.lacksMotions = m_model.lacksMotions || m_motionRoom < 0;
    if (!motion || !hasRoomFor(target, transformName))
        return;
    const ValueContext context = transformContext(QString());
    attributeOf(target, transformName, context)
        .animations.append({m_model.timeline.size(), std::nullopt, motion, index});
}

// Neither names nor a whole transform can be animated (SVG 1.1 §19.2.6).
bool isAnimatable(const QString &name)
{
    return !name.isEmpty() && name != QLatin1String("id") && name != QLatin1String("style") &&
           !name.endsWith(transformName, Qt::CaseInsensitive);
}

void ModelReader::readPlain(NodeIndex index, NodeIndex target)
{
    const Node &node = m_tree.node(index);
    const QString name = node.attributes.value(QStringLiteral("attributeName")).trimmed();
    if (!isAnimatable(name) || !hasRoomFor(target, name))
        return;
    const ValueContext context = contextOf(target, name);
    const std::optional<Effect> effect = readEffect(node, context);
    if (!effect)
        return;
    AnimatedAttribute &attribute = attributeOf(target, name, context);
    attribute.animations.append({m_model.timeline.size(), effect, std::nullopt, index});
    attribute.followsColor = attribute.followsColor || namesCurrentColor(node.attributes);
}

void ModelReader::readElement(NodeIndex index)
{
    const Node &node = m_tree.node(index);
    const NodeIndex target = targetOf(index);
    if (target != noNode) {
        if (node.kind == ElementKind::AnimateTransform)
            readTransform(index, target);
        else if (node.kind == ElementKind::AnimateMotion)
            readMotion(index, target);
        else
            readPlain(index, target);
    }
    m_model.timeline.add(readTiming(node.attributes), node.attributes.value(AttributeId::Id));
}

AnimationModel ModelReader::read()
{
    for (NodeIndex at = rootNode; at != noNode; at = m_tree.following(at, rootNode))
        if (isAnimation(m_tree.node(at).kind))
            readElement(at);
    m_model.attributes.reserve(m_attributes.size());
    for (const AnimatedAttribute &attribute : qAsConst(m_attributes))
        m_model.attributes.append(attribute);
    return std::move(m_model);
}

} // namespace

bool followColor(AnimatedAttribute *attribute, const QColor &current, const Tree &tree)
{
    if (!attribute->followsColor || attribute->context.currentColor == current)
        return false;
    attribute->context.currentColor = current;
    if (attribute->baseFollowsColor)
        attribute->base = animatedValue(TypedValue(current));
    for (Animation &animation : attribute->animations)
        if (const std::optional<Effect> effect = readEffect(tree.node(animation.node), attribute->context))
            animation.effect = effect;
    return true;
}

AnimationModel readAnimations(const Tree &tree, const FactsOfNode &facts)
{
    return ModelReader(tree, facts).read();
}

} // namespace Svg
