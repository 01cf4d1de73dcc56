#include "panels/settings/settingjson.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QLocale>
#include <QtGui/QColor>

#include <cmath>
#include <optional>

namespace board {

namespace {

constexpr int mostControls = 1000;

using Reading = std::optional<SettingControl>;

/// Objects give numbers as text.
std::optional<double> numberIn(const QJsonValue &value)
{
    bool isNumber = value.isDouble();
    const double number = isNumber ? value.toDouble() : value.toString().trimmed().toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
}

QStringList textsIn(const QJsonValue &value)
{
    QStringList texts;
    const QJsonArray entries = value.toArray();
    for (const QJsonValue &entry : entries)
        texts.append(entry.toString());
    return texts;
}

Reading readChoice(SettingControl control, const QJsonObject &object)
{
    control.kind = SettingControl::Choice;
    control.icons = textsIn(object[QLatin1String("icons")]);
    control.texts = textsIn(object[QLatin1String("texts")]);
    const bool hasBoth = !control.icons.isEmpty() && !control.texts.isEmpty();
    if (control.entryCount() == 0 || (hasBoth && control.icons.size() != control.texts.size()))
        return {};
    const int index = object[QLatin1String("index")].toInt(-1);
    control.value = index >= 0 && index < control.entryCount() ? index : -1;
    return control;
}

Reading readColor(SettingControl control, const QJsonObject &object)
{
    control.kind = SettingControl::Color;
    const QColor color(object[QLatin1String("color")].toString());
    control.value = color;
    return color.isValid() ? Reading(control) : Reading();
}

/// False when the value is none or the bounds are the wrong way round.
bool readNumber(SettingControl &control, const QJsonObject &object)
{
    const std::optional<double> value = numberIn(object[QLatin1String("value")]);
    control.range.minimum = numberIn(object[QLatin1String("minimum")]).value_or(control.range.minimum);
    control.range.maximum = numberIn(object[QLatin1String("maximum")]).value_or(control.range.maximum);
    control.unit = object[QLatin1String("unit")].toString();
    if (!value || control.range.minimum > control.range.maximum)
        return false;
    control.value = qBound(control.range.minimum, *value, control.range.maximum);
    return true;
}

Reading readInput(SettingControl control, const QJsonObject &object)
{
    const QString type = object[QLatin1String("valueType")].toString();
    if (type != QLatin1String("int") && type != QLatin1String("double")) {
        control.kind = type == QLatin1String("font") ? SettingControl::Font : SettingControl::Text;
        control.value = object[QLatin1String("value")].toString();
        return control;
    }
    control.kind = SettingControl::Number;
    control.range.decimals = type == QLatin1String("int") ? 0 : NumberRange::usualDecimals;
    return readNumber(control, object) ? Reading(control) : Reading();
}

Reading readSwitch(SettingControl control, const QJsonObject &object)
{
    control.kind = SettingControl::Switch;
    control.value = object[QLatin1String("on")].toBool();
    return object[QLatin1String("on")].isBool() ? Reading(control) : Reading();
}

Reading readSlider(SettingControl control, const QJsonObject &object)
{
    control.kind = SettingControl::Slider;
    const bool hasBounds = numberIn(object[QLatin1String("minimum")]) && numberIn(object[QLatin1String("maximum")]);
    if (!hasBounds || !readNumber(control, object) || control.range.minimum == control.range.maximum)
        return {};
    control.range.step = qMax(0.0, numberIn(object[QLatin1String("step")]).value_or(0));
    control.range.decimals =
        control.range.step > 0 ? NumberRange::decimalsOf(control.range.step) : NumberRange::usualDecimals;
    return control;
}

Reading readCommand(SettingControl control, const QJsonObject &object)
{
    control.kind = SettingControl::Command;
    control.value = object[QLatin1String("command")].toString();
    return control;
}

Reading readControl(const QJsonObject &object)
{
    SettingControl control;
    control.id = object[QLatin1String("id")].toString();
    control.titleKey = object[QLatin1String("title")].toString();
    control.section = object[QLatin1String("section")].toString();
    control.role = object[QLatin1String("role")].toString();
    control.messageKey = object[QLatin1String("message")].toString();
    control.messageArguments = textsIn(object[QLatin1String("arguments")]);
    if (control.id.isEmpty())
        return {};
    const QString type = object[QLatin1String("type")].toString();
    if (type == QLatin1String("combobox"))
        return readChoice(control, object);
    if (type == QLatin1String("colorpicker"))
        return readColor(control, object);
    if (type == QLatin1String("input"))
        return readInput(control, object);
    if (type == QLatin1String("switch"))
        return readSwitch(control, object);
    if (type == QLatin1String("slider"))
        return readSlider(control, object);
    return type == QLatin1String("command") ? readCommand(control, object) : Reading();
}

QString answerText(const SettingControl &control, const QVariant &value)
{
    switch (control.kind) {
    case SettingControl::Choice:
        return QString::number(value.toInt());
    case SettingControl::Color:
        return value.value<QColor>().name(QColor::HexArgb);
    case SettingControl::Switch:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case SettingControl::Number:
    case SettingControl::Slider:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    default:
        return value.toString();
    }
}

} // namespace

QVector<SettingControl> parseSettings(const QString &json)
{
    QVector<SettingControl> controls;
    const QJsonObject panel = QJsonDocument::fromJson(json.toUtf8()).object();
    const QJsonArray settings = panel.value(QLatin1String("settings")).toArray();
    for (const QJsonValue &entry : settings) {
        if (controls.size() == mostControls)
            break;
        if (const Reading control = readControl(entry.toObject()))
            controls.append(*control);
    }
    return controls;
}

QString filledIn(const QString &text, const QStringList &arguments)
{
    QString filled;
    for (int i = 0; i < text.size(); ++i) {
        const bool isPlace = text.at(i) == QLatin1Char('%') && i + 1 < text.size() && text.at(i + 1).isDigit();
        filled += isPlace ? arguments.value(text.at(i + 1).digitValue() - 1) : QString(text.at(i));
        i += isPlace ? 1 : 0;
    }
    return filled;
}

QString settingAnswer(const SettingControl &control, const QVariant &value)
{
    const QJsonObject answer{{control.id, answerText(control, value)}};
    return QString::fromUtf8(QJsonDocument(answer).toJson(QJsonDocument::Compact));
}

} // namespace board
