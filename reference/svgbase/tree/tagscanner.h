#pragma once

#include <QtCore/QByteArray>

namespace Svg {

/// Where in XML text a tag, or an entity's replacement text, holds more attributes than the limit; -1 when none
/// does. Looked for before Qt's reader sees the text, since its search for duplicates takes quadratic time. Whether
/// the text is well formed is the reader's business.
qint64 findCrowdedTag(const QByteArray &xml);

} // namespace Svg
