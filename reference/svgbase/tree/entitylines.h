#pragma once

#include <QtCore/QByteArray>

namespace Svg {

/// The same text for Qt's reader, which takes an end of a line for a letter where an entity brings it along: inside
/// of a tag, where it counts as white space (XML 1.0 §3.1), it becomes a space and follows the entity's text
/// instead, so that lines keep their numbers.
QByteArray withEntityMarkupOnOneLine(const QByteArray &xml);

} // namespace Svg
