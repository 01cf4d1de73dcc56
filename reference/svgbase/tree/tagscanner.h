#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QLatin1String>

#include <optional>

namespace Svg {

/// The only remaining attribute of a tag with too many.
const QLatin1String crowdedMark("gliololok-crowded-tag");

/// Replaces the attributes of tags with more than the limit by `crowdedMark`. No value if such a tag doesn't end,
/// or an entity's replacement text has so many. Qt's reader needs this, since its search for duplicates takes
/// quadratic time. The text need not be well formed.
std::optional<QByteArray> withoutCrowdedTags(const QByteArray &xml);

} // namespace Svg
