#include <checklist/states.h>

#include <checklist/shapedriver.h>

#include <svgobj/csvgobj.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonDocument>

namespace checklist {

QByteArray savedBytes(const ShapeDriver &shape)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    shape.object().save(out);
    return bytes;
}

QByteArray savedJson(const ShapeDriver &shape)
{
    QJsonObject object;
    shape.object().saveJson(object);
    return QJsonDocument(object).toJson();
}

bool open(const ShapeDriver &shape, const QByteArray &bytes)
{
    QDataStream in(bytes);
    return shape.object().load(in) && in.atEnd() && in.status() == QDataStream::Ok;
}

QJsonArray settingsOf(const ShapeDriver &shape)
{
    QString json;
    if (!shape.object().GetSettingJson(json))
        return {};
    return QJsonDocument::fromJson(json.toUtf8()).object()[QStringLiteral("settings")].toArray();
}

bool answer(const ShapeDriver &shape, const QJsonObject &values)
{
    return shape.object().SetSettingJson(QString::fromUtf8(QJsonDocument(values).toJson()), true, true);
}

} // namespace checklist
