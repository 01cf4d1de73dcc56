// Attributes of a document's nodes: reading, writing, and invalidation by writing.

#include "document/document.h"

#include "geometry/shapegeometry.h"
#include "grammar/styleattribute.h"
#include "style/rules.h"

namespace Svg {

namespace {

QString titleOf(const Tree &tree, NodeIndex index)
{
    for (NodeIndex child = tree.node(index).firstChild; child != noNode; child = tree.node(child).next) {
        const Node &node = tree.node(child);
        if (node.kind == ElementKind::Description && !node.text.isEmpty())
            return node.text.trimmed();
    }
    return QString();
}

bool isRound(ElementKind kind)
{
    return kind == ElementKind::Circle || kind == ElementKind::Ellipse;
}

bool isBoxSide(AttributeId id)
{
    switch (id) {
    case AttributeId::X:
    case AttributeId::Y:
    case AttributeId::Width:
    case AttributeId::Height:
    case AttributeId::Rx:
    case AttributeId::Ry:
        return true;
    default:
        return false;
    }
}

// Moves or resizes a box and keeps its corner in place.
void adjustBox(QRectF &box, AttributeId side, double value)
{
    switch (side) {
    case AttributeId::X:
        box.moveLeft(value);
        break;
    case AttributeId::Y:
        box.moveTop(value);
        break;
    case AttributeId::Width:
        box.setWidth(qMax(0.0, value));
        break;
    case AttributeId::Height:
        box.setHeight(qMax(0.0, value));
        break;
    case AttributeId::Rx:
        box.setWidth(qMax(0.0, 2 * value));
        break;
    case AttributeId::Ry:
        box.setHeight(qMax(0.0, 2 * value));
        break;
    default:
        break;
    }
}

bool setsHeight(AttributeId side)
{
    return side == AttributeId::Height || side == AttributeId::Ry;
}

bool setsSize(AttributeId side)
{
    return side != AttributeId::X && side != AttributeId::Y;
}

} // namespace

QString Document::attribute(NodeIndex index, const QString &name) const
{
    QString value = m_tree.node(index).attributes.value(name);
    if (value.isEmpty() && name == QLatin1String("title"))
        return titleOf(m_tree, index);
    return value;
}

void Document::setAttribute(NodeIndex index, const QString &name, const AttributeValue &value)
{
    settle();
    const AttributeId id = attributeId(name);
    // A property takes effect again where document-wide styling has overridden it.
    const Attributes &present = std::as_const(m_tree).node(index).attributes;
    const bool isThere = !value.isNull() && present.contains(name) && present.held(name) == value;
    if (isThere && changeBy(id) != StyleChange)
        return;
    m_tree.edit(index).attributes.set(name, value);
    if (isAnimation(m_tree.node(index).kind) || m_tree.node(index).kind == ElementKind::MotionPath) {
        ++m_revision;
        ++m_animationRevision;
    }
    if (m_tree.node(index).kind == ElementKind::Style || (m_tree.rules() && m_tree.rules()->dependsOn(name)))
        structureChanged();
    const ElementKind kind = m_tree.node(index).kind;
    const bool inText = kind == ElementKind::Text || isTextPart(kind);
    if (id == AttributeId::Unknown && !isEffectPart(kind) && !isFontPart(kind) && !inText)
        return;
    if (id == AttributeId::Id) {
        m_tree.forgetIds();
        structureChanged();
    }
    // Needed by the texts below.
    if (id == AttributeId::XmlSpace)
        m_facts.fill(FactsPointer());
    dropOverriddenStyle(index, id, value);
    nodeChanged(index, changeBy(id));
}

void Document::setAnimatedStyle(NodeIndex index, const Attributes &values, const StyleOverridePointer &override)
{
    settle();
    setStyleOverride(index, override);
    m_tree.setAnimatedStyle(index, values);
    for (const Attribute &attribute : values)
        dropOverriddenStyle(index, attribute.id, attribute.value);
    nodeChanged(index, StyleChange);
}

Document::Change Document::changeBy(AttributeId attribute)
{
    if (isProperty(attribute))
        return StyleChange;
    switch (attribute) {
    case AttributeId::Style:
    case AttributeId::Class:
        return StyleChange;
    case AttributeId::Transform:
    case AttributeId::TransformOrigin:
        return PlaceChange;
    default:
        return GeometryChange;
    }
}

void Document::noteChange(NodeIndex index, quint8 change)
{
    if (m_changes.size() <= index)
        m_changes.resize(m_tree.size());
    m_changes[index] |= change;
}

void Document::nodeChanged(NodeIndex index, Change change)
{
    ++m_revision;
    m_changed = true;
    // Stops inherit from the elements around their gradient.
    const ElementKind kind = m_tree.node(index).kind;
    // Text may follow any shape.
    const bool isWay = m_tree.hasTextReferences() && hasGeometry(kind);
    if (m_measuring.used || isWay || isPaintServerPart(kind) || isFontPart(kind) || isStructure(kind))
        ++m_referenceRevision;
    // A text is laid out as a whole, whatever part of it changed.
    NodeIndex at = index;
    while (isTextPart(m_tree.node(at).kind) && m_tree.node(at).parent != noNode)
        at = m_tree.node(at).parent;
    if (at != index)
        noteChange(at, AnyChange);
    noteChange(index, change);
}

void Document::setNumericAttribute(NodeIndex index, const QString &name, double value)
{
    if (!qIsFinite(value))
        return;
    const AttributeId id = attributeId(name);
    if (isRound(m_tree.node(index).kind) && isBoxSide(id))
        setEllipseBox(index, id, value);
    else
        setAttribute(index, name, AttributeValue(value));
}

void Document::setEllipseBox(NodeIndex index, AttributeId side, double value)
{
    const FactsPointer before = facts(index);
    QRectF box = ellipseBox(m_tree.node(index), *before->style, before->viewport);
    adjustBox(box, side, value);
    if (m_tree.node(index).attributes.held(side) == AttributeValue(value) &&
        box == ellipseBox(m_tree.node(index), *before->style, before->viewport))
        return;
    Node &node = m_tree.edit(index);
    // Kept so that the value reads back as it was written.
    node.attributes.set(side, AttributeValue(value));
    if (node.kind == ElementKind::Circle) {
        if (setsSize(side))
            box.setSize(setsHeight(side) ? QSizeF(box.height(), box.height()) : QSizeF(box.width(), box.width()));
        node.attributes.set(AttributeId::R, AttributeValue(box.width() / 2));
    } else if (setsSize(side)) {
        node.attributes.set(AttributeId::Rx, AttributeValue(box.width() / 2));
        node.attributes.set(AttributeId::Ry, AttributeValue(box.height() / 2));
    }
    node.attributes.set(AttributeId::Cx, AttributeValue(box.x() + box.width() / 2));
    node.attributes.set(AttributeId::Cy, AttributeValue(box.y() + box.height() / 2));
    nodeChanged(index, GeometryChange);
}

void Document::dropOverriddenStyle(NodeIndex index, AttributeId attribute, const AttributeValue &value)
{
    StyleOverridePointer override = stylePointer(index);
    if (!override)
        return;
    if (attribute == AttributeId::Style) {
        const QString text = value.text();
        const QVector<StyleDeclaration> declarations = parseStyleAttribute(text);
        for (const StyleDeclaration &declaration : declarations)
            if (override)
                override = withoutProperty(override, attributeId(declaration.name));
    } else {
        override = withoutProperty(override, attribute);
    }
    setStyleOverride(index, override);
}

} // namespace Svg
