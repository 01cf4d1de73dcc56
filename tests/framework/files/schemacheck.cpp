#include "framework/files/schemacheck.h"

#include <QtCore/QJsonArray>
#include <QtCore/QSet>
#include <QtCore/QStringList>

#include <cmath>

namespace {

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

bool hasType(const QJsonValue &value, const QString &type)
{
    const QHash<QString, QJsonValue::Type> types{
        {key("object"), QJsonValue::Object}, {key("array"), QJsonValue::Array},
        {key("string"), QJsonValue::String}, {key("boolean"), QJsonValue::Bool},
        {key("number"), QJsonValue::Double}, {key("integer"), QJsonValue::Double}};
    const bool isWhole = type != key("integer") || std::floor(value.toDouble()) == value.toDouble();
    return types.contains(type) && value.type() == types.value(type) && isWhole;
}

class Checker
{
public:
    explicit Checker(const QJsonObject &root)
        : m_definitions(root.value(key("definitions")).toObject())
    {
    }

    QString problem(const QJsonValue &value, QJsonObject schema, const QString &path) const
    {
        const QStringList known{key("$schema"), key("title"),       key("type"),     key("const"),
                                key("minimum"), key("maximum"),     key("required"), key("properties"),
                                key("items"),   key("definitions"), key("$ref"),     key("additionalProperties")};
        const QStringList used = schema.keys();
        for (const QString &word : used)
            if (!known.contains(word))
                return path + key(": the schema uses ") + word;
        if (schema.contains(key("$ref"))) {
            const QString name = schema.value(key("$ref")).toString().section(QLatin1Char('/'), -1);
            schema = m_definitions.value(name).toObject();
            if (schema.isEmpty())
                return path + key(": no definition of ") + name;
        }
        const QString own = plainProblem(value, schema);
        if (!own.isEmpty())
            return path + key(": ") + own;
        const QString inside = value.isArray() ? itemProblem(value.toArray(), schema, path) : QString();
        return value.isObject() ? memberProblem(value.toObject(), schema, path) : inside;
    }

private:
    static QString plainProblem(const QJsonValue &value, const QJsonObject &schema)
    {
        if (schema.contains(key("type")) && !hasType(value, schema.value(key("type")).toString()))
            return key("no ") + schema.value(key("type")).toString();
        if (schema.contains(key("const")) && value != schema.value(key("const")))
            return key("another value");
        if (schema.contains(key("minimum")) && value.toDouble() < schema.value(key("minimum")).toDouble())
            return key("too small");
        if (schema.contains(key("maximum")) && value.toDouble() > schema.value(key("maximum")).toDouble())
            return key("too large");
        return {};
    }

    QString itemProblem(const QJsonArray &items, const QJsonObject &schema, const QString &path) const
    {
        for (int i = 0; schema.contains(key("items")) && i < items.size(); ++i) {
            QString found =
                problem(items[i], schema.value(key("items")).toObject(), path + QStringLiteral("[%1]").arg(i));
            if (!found.isEmpty())
                return found;
        }
        return {};
    }

    QString memberProblem(const QJsonObject &object, const QJsonObject &schema, const QString &path) const
    {
        const QJsonArray required = schema.value(key("required")).toArray();
        for (const QJsonValue &name : required)
            if (!object.contains(name.toString()))
                return path + key(": lacks ") + name.toString();
        const QJsonObject properties = schema.value(key("properties")).toObject();
        const bool isClosed = schema.value(key("additionalProperties")) == QJsonValue(false);
        const QStringList names = object.keys();
        for (const QString &name : names) {
            if (!properties.contains(name)) {
                if (isClosed)
                    return path + key(": knows no ") + name;
                continue;
            }
            QString found =
                problem(object.value(name), properties.value(name).toObject(), path + QLatin1Char('/') + name);
            if (!found.isEmpty())
                return found;
        }
        return {};
    }

    QJsonObject m_definitions;
};

} // namespace

QString schemaProblem(const QJsonValue &value, const QJsonObject &schema)
{
    return Checker(schema).problem(value, schema, QString());
}
