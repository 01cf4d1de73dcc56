#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

#include <optional>

namespace Svg {

/// Values of custom properties by their names, "--" included.
using CustomProperties = QHash<QString, QString>;

inline bool isCustomProperty(QStringView name)
{
    return name.startsWith(QLatin1String("--"));
}

/// Whether a value refers to custom properties.
bool hasVariables(QStringView value);
/// The value with every "var()" replaced by what it stands for, or by its fallback (CSS Custom Properties 1 §3).
/// Nothing when one stands for nothing, refers back to itself, or when the result gets too long.
std::optional<QString> withVariables(QStringView value, const CustomProperties &properties);

} // namespace Svg
