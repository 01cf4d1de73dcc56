#pragma once

#include <framework/framework_global.h>

#include <QtCore/QJsonObject>
#include <QtCore/QVariant>

/// Converts variants to JSON objects and back.
class IJsonUtil
{
public:
    virtual ~IJsonUtil() = default;
    /// A QRectF gives {"x", "y", "width", "height"}; any other type Qt's own conversion, or an empty object when Qt
    /// has none.
    virtual QJsonObject variantToJson(const QVariant &value) = 0;
    /// The inverse: an object with exactly the four numbers of a rectangle gives a QRectF, any other object Qt's
    /// own conversion.
    virtual QVariant jsonToVariant(const QJsonObject &object) = 0;
};

/// The process-wide service; never null.
FRAMEWORK_EXPORT IJsonUtil *GetJsonUtil();
