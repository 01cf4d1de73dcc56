#include "document/presentation.h"

#include "grammar/inputlimits.h"
#include "resolve/viewports.h"

#include <algorithm>

namespace Svg {

Presentation::Presentation(const Document &base)
    : m_document(base)
{
}

void Presentation::takeOver(Document &base)
{
    const quint32 shown = m_document.revision();
    base.settle();
    m_model = readAnimations(base.tree(), [&base](NodeIndex index) { return base.facts(index); });
    m_document = base;
    m_document.raiseRevision(shown);
    m_baseRevision = base.revision();
    m_read = true;
}

DrawReport Presentation::report() const
{
    DrawReport report;
    if (m_model.timeline.isExhausted())
        report.add(
            Message::TooManyAnimationEvents,
            QStringLiteral("Begins and ends of animations beyond %1 from one moment to the next do not happen.")
                .arg(Limits::animationEvents));
    if (m_model.lacksMotions)
        report.add(Message::MotionPathsTooLong,
                   QStringLiteral("Motions beyond paths of %1 elements together are left out.")
                       .arg(Limits::motionElements));
    if (m_model.lacksAttributes)
        report.add(Message::TooManyAttributes,
                   QStringLiteral("Attributes of one element beyond %1 are not animated.").arg(Limits::attributes));
    return report;
}

bool Presentation::update(AnimatedAttribute *attribute)
{
    const bool recolored =
        attribute->followsColor &&
        followColor(attribute, m_document.facts(attribute->target)->style->color, m_document.tree());
    if (!refreshStates(attribute, m_model.timeline) && !recolored)
        return false;
    const std::optional<AttributeValue> value = shownValue(*attribute);
    if (value == attribute->shown)
        return false;
    attribute->shown = value;
    return true;
}

// All animated properties of a node override its style together.
void Presentation::writeStyle(NodeIndex target, const Document &base)
{
    const auto isBefore = [](const AnimatedAttribute &attribute, NodeIndex node) {
        return attribute.target < node;
    };
    auto at = std::lower_bound(m_model.attributes.cbegin(), m_model.attributes.cend(), target, isBefore);
    Attributes values;
    for (; at != m_model.attributes.cend() && at->target == target; ++at)
        if (at->isProperty && at->shown)
            values.append({at->id, QString(), *at->shown});
    m_document.setAnimatedStyle(target, values, base.stylePointer(target));
}

void Presentation::write(const AnimatedAttribute &attribute, const Document &base)
{
    if (attribute.isProperty) {
        writeStyle(attribute.target, base);
        return;
    }
    const Attributes &attributes = base.tree().node(attribute.target).attributes;
    // A null value removes the attribute.
    const AttributeValue &own = attributes.held(attribute.name);
    m_document.setAttribute(attribute.target, attribute.name, attribute.shown.value_or(own));
}

void Presentation::showAttribute(AnimatedAttribute *attribute, const Document &base)
{
    if (update(attribute))
        write(*attribute, base);
}

// Colours first, since others may follow them (SVG 1.1 §19.2.6).
bool Presentation::show(Document &base, ClockTime time)
{
    const quint32 before = m_document.revision();
    if (!m_read || m_baseRevision != base.revision())
        takeOver(base);
    m_model.timeline.goTo(time);
    for (const bool first : {true, false}) {
        for (AnimatedAttribute &attribute : m_model.attributes)
            if ((attribute.id == AttributeId::Color) == first)
                showAttribute(&attribute, base);
    }
    return m_document.revision() != before;
}

std::optional<QRectF> Presentation::viewBox() const
{
    for (const AnimatedAttribute &attribute : m_model.attributes) {
        if (attribute.target != rootNode)
            break;
        if (attribute.id == AttributeId::ViewBox && attribute.shown)
            return rootViewBox(m_document.tree().node(rootNode));
    }
    return std::nullopt;
}

} // namespace Svg
