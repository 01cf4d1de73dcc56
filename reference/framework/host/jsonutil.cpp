#include <framework/ijsonutil.h>

#include <QtCore/QJsonValue>
#include <QtCore/QRectF>
#include <QtCore/QStringList>

#include <algorithm>

namespace {

class JsonUtil : public IJsonUtil
{
public:
    QJsonObject variantToJson(const QVariant &value) override
    {
        if (value.type() != QVariant::RectF)
            return QJsonValue::fromVariant(value).toObject();
        const QRectF rect = value.toRectF();
        return {{QStringLiteral("x"), rect.x()},
                {QStringLiteral("y"), rect.y()},
                {QStringLiteral("width"), rect.width()},
                {QStringLiteral("height"), rect.height()}};
    }

    QVariant jsonToVariant(const QJsonObject &object) override
    {
        if (!isRectangle(object))
            return object.toVariantMap();
        return QRectF(number(object, "x"), number(object, "y"), number(object, "width"), number(object, "height"));
    }

private:
    static bool isRectangle(const QJsonObject &object)
    {
        static const QStringList keys{QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("width"),
                                      QStringLiteral("height")};
        return object.size() == keys.size() && std::all_of(keys.begin(), keys.end(), [&](const QString &key) {
                   return object.value(key).isDouble();
               });
    }

    static double number(const QJsonObject &object, const char *key)
    {
        return object.value(QLatin1String(key)).toDouble();
    }
};

} // namespace

IJsonUtil *GetJsonUtil()
{
    static JsonUtil util;
    return &util;
}
