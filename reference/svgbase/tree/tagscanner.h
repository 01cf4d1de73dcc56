#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QLatin1String>

#include <optional>

namespace Svg {

/// The one attribute that is left to a tag with too many.
const QLatin1String crowdedMark("gliololok-crowded-tag");

/// XML text with all attributes of tags that have more than the limit replaced by `crowdedMark`. Nothing when such
/// a tag does not end, or an entity's replacement text holds so many. Done before Qt's reader sees the text, since
/// its search for duplicates takes quadratic time. Whether the text is well formed is the reader's business.
std::optional<QByteArray> withoutCrowdedTags(const QByteArray &xml);

} // namespace Svg
