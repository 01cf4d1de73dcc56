#include "animation/basevalue.h"

namespace Svg {

QString defaultAttributeText(ElementKind kind, AttributeId attribute)
{
    if (kind == ElementKind::LinearGradient && attribute == AttributeId::X2)
        return QStringLiteral("100%");
    const bool circle = attribute == AttributeId::Cx || attribute == AttributeId::Cy || attribute == AttributeId::R;
    return kind == ElementKind::RadialGradient && circle ? QStringLiteral("50%") : QString();
}

} // namespace Svg
