#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>

/// Why `value` does not follow a JSON schema, with the path to the place; empty when it does. Knows what our
/// schemas use: type, const, minimum, maximum, required, properties, additionalProperties false, items, $ref into
/// definitions.
QString schemaProblem(const QJsonValue &value, const QJsonObject &schema);
