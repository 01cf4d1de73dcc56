#include "tree/attributevalue.h"

#include "grammar/colors.h"
#include "grammar/numbers.h"
#include "grammar/viewboxes.h"

#include <algorithm>

namespace Svg {

namespace {

/// Usual characters of a number, or of a colour.
constexpr int numberCharacters = 9;

int numberCount(const QVector<Length> &lengths)
{
    return lengths.size();
}

int numberCount(const QColor &)
{
    return 1;
}

int numberCount(const PathValue &path)
{
    return path.coordinates.size();
}

int numberCount(const TransformList &list)
{
    return list.size();
}

bool isUserUnits(const Length &length)
{
    return length == Length{length.value};
}

/// The numbers of a list without units; nothing for any other value.
std::optional<QVector<double>> plainNumbers(const AttributeValue &value)
{
    if (const double *number = value.asNumber())
        return QVector<double>{*number};
    const auto *lengths = value.as<QVector<Length>>();
    if (!lengths || !std::all_of(lengths->begin(), lengths->end(), isUserUnits))
        return std::nullopt;
    QVector<double> numbers;
    for (const Length &length : *lengths)
        numbers.append(length.value);
    return numbers;
}

} // namespace

AttributeValue::AttributeValue(const TypedValue &value)
    : m_value(SharedPointer(new Shared(value)))
{
}

bool AttributeValue::isNull() const
{
    const QString *text = asText();
    return text && text->isNull();
}

bool AttributeValue::isEmpty() const
{
    const QString *text = asText();
    return text && text->isEmpty();
}

QString AttributeValue::text() const
{
    if (const QString *text = asText())
        return *text;
    if (const double *number = asNumber())
        return numberText(*number);
    return valueText(std::get<SharedPointer>(m_value)->value);
}

int AttributeValue::characterCount() const
{
    if (const QString *text = asText())
        return text->size();
    if (asNumber())
        return numberCharacters;
    return numberCharacters *
           std::visit([](const auto &held) { return numberCount(held); }, std::get<SharedPointer>(m_value)->value);
}

bool operator==(const AttributeValue &a, const AttributeValue &b)
{
    if (a.m_value.index() != b.m_value.index())
        return a.text() == b.text();
    if (const QString *text = a.asText())
        return *text == *b.asText();
    if (const double *number = a.asNumber())
        return *number == *b.asNumber();
    using SharedPointer = AttributeValue::SharedPointer;
    return std::get<SharedPointer>(a.m_value)->value == std::get<SharedPointer>(b.m_value)->value;
}

std::optional<TypedValue> typedValueOf(const AttributeValue &value)
{
    if (const double *number = value.asNumber())
        return QVector<Length>{{*number}};
    if (const auto *lengths = value.as<QVector<Length>>())
        return *lengths;
    const auto *color = value.as<QColor>();
    return color ? std::optional<TypedValue>(*color) : std::nullopt;
}

std::optional<Length> lengthOf(const AttributeValue &value)
{
    if (const double *number = value.asNumber())
        return Length{*number};
    const auto *lengths = value.as<QVector<Length>>();
    return lengths && lengths->size() == 1 ? lengths->constFirst() : parseLength(value.text());
}

std::optional<double> numberOf(const AttributeValue &value)
{
    const double *number = value.asNumber();
    return number ? *number : parseNumber(value.text());
}

std::optional<QVector<double>> numbersOf(const AttributeValue &value)
{
    const std::optional<QVector<double>> numbers = plainNumbers(value);
    return numbers ? numbers : parseNumberList(value.text());
}

std::optional<double> shareOf(const AttributeValue &value)
{
    if (const double *number = value.asNumber())
        return qBound(0.0, *number, 1.0);
    const auto *lengths = value.as<QVector<Length>>();
    const bool isPercentage = lengths && lengths->size() == 1 &&
                              lengths->constFirst() == Length{lengths->constFirst().value, Unit::Percent};
    return isPercentage ? qBound(0.0, lengths->constFirst().value / 100, 1.0) : parseOpacity(value.text());
}

PathData pathDataOf(const AttributeValue &value, QVector<PathSegment> *segments)
{
    const auto *path = value.as<PathValue>();
    return path ? pathDataOf(*path, segments) : parsePathData(value.text(), segments);
}

Points pointsOf(const AttributeValue &value)
{
    const std::optional<QVector<double>> numbers = plainNumbers(value);
    return numbers ? pointsOf(*numbers) : parsePoints(value.text());
}

std::optional<QRectF> viewBoxOf(const AttributeValue &value)
{
    const std::optional<QVector<double>> numbers = plainNumbers(value);
    return numbers ? viewBoxOf(*numbers) : parseViewBox(value.text());
}

std::optional<QTransform> transformOf(const AttributeValue &value)
{
    const auto *list = value.as<TransformList>();
    return list ? matrixOf(*list) : parseTransform(value.text());
}

} // namespace Svg
