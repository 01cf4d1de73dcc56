#include "tree/references.h"

#include "grammar/paints.h"

namespace Svg {

QString hrefTarget(const Attributes &attributes)
{
    const AttributeId id = attributes.contains(AttributeId::Href) ? AttributeId::Href : AttributeId::XlinkHref;
    return localReference(attributes.value(id));
}

} // namespace Svg
