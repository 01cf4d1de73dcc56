#pragma once

#include <QtCore/QByteArray>

namespace Svg {

/// Adapts text to Qt's reader, which treats an end of a line from an entity as a letter. Inside a tag, where it is
/// white space (XML 1.0 §3.1), it becomes a space, and a line end is added after the entity's text, so that line
/// numbers stay correct.
QByteArray withEntityMarkupOnOneLine(const QByteArray &xml);

} // namespace Svg
