#pragma once

#include <QtCore/QHash>
#include <QtCore/QSharedData>
#include <QtCore/QString>

#include <optional>

namespace Svg {

/// Values of custom properties by their names, "--" included: what an element declares in front of what it
/// inherits, which it shares with the element that declared it.
class CustomProperties
{
public:
    /// The value of a property; null when there is none.
    const QString *find(const QString &name) const;
    /// Declares a property in front of what was copied from the parent.
    void insert(const QString &name, const QString &value);
    /// Replaces what was declared by what its references stand for here, so that children inherit that (CSS Custom
    /// Properties 1 §2.2). What refers to nothing is no value, nor is what takes more than the characters left.
    void settle(int *charactersLeft);

private:
    struct Level;
    QExplicitlySharedDataPointer<Level> m_level;
};

struct CustomProperties::Level : QSharedData
{
    QExplicitlySharedDataPointer<Level> above;
    int depth = 1;
    /// A null text hides a value above without being one.
    QHash<QString, QString> values;
};

inline bool isCustomProperty(QStringView name)
{
    return name.startsWith(QLatin1String("--"));
}

/// The value with every "var()" replaced by what it stands for, or by its fallback (CSS Custom Properties 1 §3).
/// Nothing when one stands for nothing, refers back to itself, or when the result gets too long.
std::optional<QString> withVariables(QStringView value, const CustomProperties &properties);

} // namespace Svg
