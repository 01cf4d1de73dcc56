#include <framework/cpsrootobject.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QStringList>

#include <cmath>

// A control of the settings panel is {"type", "id", "title", ...}; numbers that the caller gives as text stay text.

namespace {

QJsonObject control(QLatin1String type, const QString &id, const QString &title)
{
    return {{QStringLiteral("type"), type}, {QStringLiteral("id"), id}, {QStringLiteral("title"), title}};
}

QJsonArray toArray(const QList<QString> &texts)
{
    return QJsonArray::fromStringList(QStringList(texts));
}

/// Null text for a value that no control sends.
QString answerText(const QJsonValue &value)
{
    if (value.isString())
        return value.toString().isNull() ? QLatin1String("") : value.toString();
    if (value.isBool())
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    if (value.isDouble() && std::isfinite(value.toDouble()))
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    return {};
}

bool readMembers(const QJsonObject &answer, QMap<QString, QString> &values)
{
    for (auto member = answer.begin(); member != answer.end(); ++member) {
        const QString text = answerText(member.value());
        if (text.isNull())
            return false;
        values.insert(member.key(), text);
    }
    return true;
}

bool readEntries(const QJsonArray &answer, QMap<QString, QString> &values)
{
    for (const QJsonValue &entry : answer) {
        const QString id = entry[QLatin1String("id")].toString();
        const QString text = answerText(entry[QLatin1String("value")]);
        if (id.isEmpty() || text.isNull())
            return false;
        values.insert(id, text);
    }
    return true;
}

} // namespace

QJsonObject CPSRootObject::GetSettingJsonComboBox(QString &id, QString &title, int index, QList<QString> &icons,
                                                  QList<QString> &texts)
{
    QJsonObject box = control(QLatin1String("combobox"), id, title);
    box[QLatin1String("index")] = index;
    box[QLatin1String("icons")] = toArray(icons);
    box[QLatin1String("texts")] = toArray(texts);
    return box;
}

QJsonObject CPSRootObject::GetSettingJsonColorPicker(QString &id, QString &title, QString &color)
{
    QJsonObject picker = control(QLatin1String("colorpicker"), id, title);
    picker[QLatin1String("color")] = color;
    return picker;
}

QJsonObject CPSRootObject::GetSettingJsonInput(QString &id, QString &title, QString &value, QString &type,
                                               QString &minimum, QString &maximum, QString &unit)
{
    QJsonObject input = control(QLatin1String("input"), id, title);
    input[QLatin1String("value")] = value;
    input[QLatin1String("valueType")] = type;
    input[QLatin1String("minimum")] = minimum;
    input[QLatin1String("maximum")] = maximum;
    input[QLatin1String("unit")] = unit;
    return input;
}

QJsonObject CPSRootObject::GetSettingJsonSwitch(QString &id, QString &title, bool on)
{
    QJsonObject toggle = control(QLatin1String("switch"), id, title);
    toggle[QLatin1String("on")] = on;
    return toggle;
}

QJsonObject CPSRootObject::GetSettingJsonSlider(QString &id, QString &title, QString &value, QString &minimum,
                                                QString &maximum, QString &step, QString &unit)
{
    QJsonObject slider = control(QLatin1String("slider"), id, title);
    slider[QLatin1String("value")] = value;
    slider[QLatin1String("minimum")] = minimum;
    slider[QLatin1String("maximum")] = maximum;
    slider[QLatin1String("step")] = step;
    slider[QLatin1String("unit")] = unit;
    return slider;
}

QJsonObject CPSRootObject::GetSettingJsonCommond(QString &id, QString &title, QString &command)
{
    QJsonObject button = control(QLatin1String("command"), id, title);
    button[QLatin1String("command")] = command;
    return button;
}

bool CPSRootObject::ParseSettingJson(const QString &json, QMap<QString, QString> &values)
{
    const QJsonDocument answer = QJsonDocument::fromJson(json.toUtf8());
    QMap<QString, QString> read;
    const bool understood = answer.isObject() ? readMembers(answer.object(), read)
                                              : answer.isArray() && readEntries(answer.array(), read);
    if (understood)
        values = read;
    return understood;
}

bool CPSRootObject::GetSettingJson(QString &)
{
    return false;
}

bool CPSRootObject::SetSettingJson(const QString &, bool, bool)
{
    return false;
}
