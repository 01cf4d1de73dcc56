#pragma once

#include <QtCore/QStringView>
#include <QtGui/QTransform>

#include <optional>

namespace Svg {

/// A list of transform functions (SVG 1.1 §7.6); the last of the list is applied to a point first. No value for
/// invalid text or a result that is not finite.
std::optional<QTransform> parseTransform(QStringView text);
bool isFinite(const QTransform &transform);

} // namespace Svg
