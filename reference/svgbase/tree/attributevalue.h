#pragma once

#include "grammar/points.h"
#include "grammar/typedvalue.h"

#include <QtCore/QRectF>
#include <QtCore/QSharedData>
#include <QtCore/QString>

#include <optional>
#include <variant>

namespace Svg {

/// The value of an attribute: a text, a number of user units, or another value whose text is made when it is asked
/// for.
class AttributeValue
{
public:
    AttributeValue() = default;
    AttributeValue(const QString &text)
        : m_value(text)
    {
    }
    explicit AttributeValue(double number)
        : m_value(number)
    {
    }
    explicit AttributeValue(const TypedValue &value);

    /// A null text: no value at all.
    bool isNull() const;
    bool isEmpty() const;
    QString text() const;
    /// About as many characters as the text has.
    int characterCount() const;

    /// @name One of these, where the value is of that kind; null otherwise
    /// @{
    const QString *asText() const { return std::get_if<QString>(&m_value); }
    const double *asNumber() const { return std::get_if<double>(&m_value); }
    template<typename Held> const Held *as() const;
    /// @}

    /// Whether the texts are the same.
    friend bool operator==(const AttributeValue &a, const AttributeValue &b);

private:
    struct Shared : QSharedData
    {
        explicit Shared(const TypedValue &held)
            : value(held)
        {
        }
        TypedValue value;
    };
    using SharedPointer = QExplicitlySharedDataPointer<const Shared>;

    std::variant<QString, double, SharedPointer> m_value;
};

template<typename Held> const Held *AttributeValue::as() const
{
    const auto *shared = std::get_if<SharedPointer>(&m_value);
    return shared ? std::get_if<Held>(&(*shared)->value) : nullptr;
}

inline bool operator!=(const AttributeValue &a, const AttributeValue &b)
{
    return !(a == b);
}

/// The value as it is assigned to a property; nothing for a text.
std::optional<TypedValue> typedValueOf(const AttributeValue &value);

/// @name Values as the grammar of an attribute reads them
/// The same as of its text, which is not made for values of the right kind.
/// @{
std::optional<Length> lengthOf(const AttributeValue &value);
std::optional<double> numberOf(const AttributeValue &value);
std::optional<QVector<double>> numbersOf(const AttributeValue &value);
/// An opacity, or another number or percentage from 0 to 1.
std::optional<double> shareOf(const AttributeValue &value);
PathData pathDataOf(const AttributeValue &value, QVector<PathSegment> *segments = nullptr);
Points pointsOf(const AttributeValue &value);
std::optional<QRectF> viewBoxOf(const AttributeValue &value);
std::optional<QTransform> transformOf(const AttributeValue &value);
/// @}

} // namespace Svg
