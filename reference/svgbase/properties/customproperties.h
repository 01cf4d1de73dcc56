#pragma once

#include <QtCore/QHash>
#include <QtCore/QSharedData>
#include <QtCore/QString>

#include <optional>

namespace Svg {

/// Values of custom properties by their names, "--" included: an element's own declarations in front of the
/// inherited ones, which it shares with the element that declared them.
class CustomProperties
{
public:
    /// The value of a property; null without one.
    const QString *find(const QString &name) const;
    /// Declares a property in front of those copied from the parent.
    void insert(const QString &name, const QString &value);
    /// Resolves the references in the element's declarations, so that children inherit the results (CSS Custom
    /// Properties 1 §2.2). A declaration with an invalid reference, or with more characters than are left, has no
    /// value.
    void settle(int *charactersLeft);

private:
    struct Level;
    QExplicitlySharedDataPointer<Level> m_level;
};

struct CustomProperties::Level : QSharedData
{
    QExplicitlySharedDataPointer<Level> above;
    int depth = 1;
    /// A null text hides an inherited value without being one.
    QHash<QString, QString> values;
};

inline bool isCustomProperty(QStringView name)
{
    return name.startsWith(QLatin1String("--"));
}

/// The value with every "var()" replaced by its property's value, or by its fallback (CSS Custom Properties 1 §3).
/// Empty when one has neither, refers back to itself, or when the result gets too long.
std::optional<QString> withVariables(QStringView value, const CustomProperties &properties);

} // namespace Svg
