#include "style/cascade.h"

#include "grammar/styleattribute.h"

namespace Svg {

namespace {

/// A property of one element, whether an attribute or the style attribute says it.
struct Declaration
{
    AttributeId property;
    QStringView value;
};

// These have no presentation attribute (SVG 2 §6.6).
bool isForStyleOnly(AttributeId property)
{
    return property == AttributeId::Marker || property == AttributeId::MixBlendMode ||
           property == AttributeId::Isolation;
}

using Declarations = QVarLengthArray<Declaration, 16>;

void appendStyleAttribute(QStringView text, Declarations *declarations)
{
    const QVector<StyleDeclaration> list = parseStyleAttribute(text);
    for (const StyleDeclaration &declaration : list) {
        const AttributeId id = attributeId(declaration.name);
        if (isProperty(id))
            declarations->append({id, declaration.value});
    }
}

Declarations declarationsOf(const Attributes &attributes)
{
    Declarations declarations;
    const Attribute *style = nullptr;
    const Attribute *animated = nullptr;
    for (const Attribute &attribute : attributes) {
        if (isProperty(attribute.id) && !isForStyleOnly(attribute.id))
            declarations.append({attribute.id, attribute.value});
        else if (attribute.id == AttributeId::Style)
            style = &attribute;
        else if (attribute.id == AttributeId::AnimatedStyle)
            animated = &attribute;
    }
    if (style)
        appendStyleAttribute(style->value, &declarations);
    if (animated)
        appendStyleAttribute(animated->value, &declarations);
    return declarations;
}

// "em" and "currentColor" in other properties need these.
bool comesFirst(AttributeId property)
{
    return property == AttributeId::Color || property == AttributeId::FontSize;
}

} // namespace

ComputedStyle cascade(const Attributes &attributes, const PropertyContext &context, QStringList *rejected)
{
    ComputedStyle style = inheritedStyle(context.parent);
    const Declarations declarations = declarationsOf(attributes);
    for (const bool first : {true, false}) {
        for (const Declaration &declaration : declarations) {
            if (comesFirst(declaration.property) != first)
                continue;
            if (!applyProperty(style, declaration.property, declaration.value, context) && rejected)
                rejected->append(declaration.value.toString());
        }
    }
    return style;
}

} // namespace Svg
