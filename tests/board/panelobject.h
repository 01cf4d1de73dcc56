#pragma once

#include <pagehost/attributestream.h>
#include <pagehost/objectplugin.h>

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>
#include <framework/cwbundocmd.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <functional>

namespace boardtest {

/// One value of an object changed.
class ValueStep : public CWbUndoCmd
{
public:
    using Setter = std::function<void()>;
    ValueStep(const Setter &before, const Setter &after)
        : m_before(before)
        , m_after(after)
    {
    }
    void undo() override { m_before(); }
    void redo() override { m_after(); }

private:
    Setter m_before;
    Setter m_after;
};

/// A page object with a control of every kind in its settings panel, and a property of every data type.
class PanelObject : public CBaseObject
{
public:
    PanelObject()
        : CBaseObject(1, true, nullptr, nullptr)
    {
        CBaseObject::setSize(QSizeF(80, 60), false, false);
        attributeIds = {wholeId, realId, switchId, textId, colorId, dataId, lockedId};
    }

    QString kindName() const override { return QStringLiteral("IDS_TEST_PANEL"); }

    bool GetSettingJson(QString &out) override
    {
        QJsonArray controls;
        QString none;
        const auto add = [&](const QJsonObject &control) { controls.append(control); };
        QString id = "choice", title = "IDS_TEST_CHOICE";
        QStringList icons;
        QStringList texts{"IDS_TEST_FIRST", "IDS_TEST_SECOND"};
        add(GetSettingJsonComboBox(id, title, settings["choice"].toInt(), icons, texts));
        id = "color", title = "IDS_TEST_COLOR";
        QString color = settings["color"];
        add(GetSettingJsonColorPicker(id, title, color));
        id = "name", title = "IDS_TEST_NAME";
        QString name = settings["name"], type = "text";
        add(GetSettingJsonInput(id, title, name, type, none, none, none));
        id = "on", title = "IDS_TEST_ON";
        add(GetSettingJsonSwitch(id, title, settings["on"] == "true"));
        id = "size", title = "IDS_TEST_SIZE";
        QString size = settings["size"], least = "0", most = "100", step = "1", unit = "cm";
        add(GetSettingJsonSlider(id, title, size, least, most, step, unit));
        id = "go", title = "IDS_TEST_GO";
        QString command = "start";
        add(GetSettingJsonCommond(id, title, command));
        out = QString::fromUtf8(QJsonDocument(QJsonObject{{"settings", controls}}).toJson());
        return true;
    }

    bool SetSettingJson(const QString &json, bool record, bool undo) override
    {
        QMap<QString, QString> values;
        ParseSettingJson(json, values);
        for (auto value = values.cbegin(); value != values.cend(); ++value) {
            recorded += record ? 1 : 0;
            change(settings[value.key()], value.value(), undo);
        }
        return true;
    }

    bool GetAttribute(int id, QDataStream &out) override
    {
        const QByteArray bytes = id == dataId ? describedData() : pagehost::writeAttribute(description(id));
        out.writeRawData(bytes.constData(), bytes.size());
        return attributeIds.contains(id);
    }

    bool SetAttribute(int id, QDataStream &in, bool record) override
    {
        recorded += record ? 1 : 0;
        switch (id) {
        case wholeId:
            return take(whole, in);
        case realId:
            return take(real, in);
        case switchId:
            return take(on, in);
        case textId:
            return take(text, in);
        case colorId:
            return take(color, in);
        default:
            return false;
        }
    }

    static constexpr int wholeId = 6001;
    static constexpr int realId = 6002;
    static constexpr int switchId = 6003;
    static constexpr int textId = 6004;
    static constexpr int colorId = 6005;
    static constexpr int dataId = 6006;
    static constexpr int lockedId = 6007;

    QMap<QString, QString> settings{{"choice", "0"}, {"color", "#ff0000ff"}, {"name", "old"},
                                    {"on", "false"}, {"size", "40"},         {"go", ""}};
    qint32 whole = 3;
    double real = 1.5;
    bool on = false;
    QString text = QStringLiteral("old");
    QColor color = Qt::blue;
    int recorded = 0;
    int changes = 0;

private:
    pagehost::AttributeDescription description(int id) const
    {
        using Kind = pagehost::AttributeDescription;
        switch (id) {
        case wholeId:
            return {Kind::WholeRange, id, "IDS_TEST_WHOLE", true, whole, {0, 10, 1}, {}};
        case realId:
            return {Kind::Real, id, "IDS_TEST_REAL", true, real, {}, {}};
        case switchId:
            return {Kind::Switch, id, "IDS_TEST_SWITCH", true, on, {}, {}};
        case textId:
            return {Kind::Text, id, "IDS_TEST_TEXT", true, text, {}, {}};
        case colorId:
            return {Kind::Color, id, "IDS_TEST_PAINT", true, color, {}, {}};
        default:
            return {Kind::Switch, id, "IDS_TEST_LOCKED", false, false, {}, {}};
        }
    }
    /// Bytes that only the object understands.
    static QByteArray describedData()
    {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out << qint32(dataId) << qint32(8) << QString("IDS_TEST_DATA") << true << QByteArray("secret");
        return bytes;
    }

    template<typename Value> void change(Value &place, const Value &value, bool undo)
    {
        const Value before = place;
        const auto setTo = [this, &place](const Value &now) {
            place = now;
            ++changes;
            notifyObjPropertyChanged(AppearanceChanged, {});
        };
        if (undo)
            CUndoRedo::GetInstance()->push(new ValueStep([=] { setTo(before); }, [=] { setTo(value); }));
        else
            setTo(value);
    }
    template<typename Value> bool take(Value &place, QDataStream &in)
    {
        Value value{};
        in >> value;
        change(place, value, true);
        return true;
    }
};

class PanelPlugin : public pagehost::ObjectPlugin
{
public:
    QVector<pagehost::ObjectKind> objectKinds() const override
    {
        return {{QStringLiteral("test.panel"), QStringLiteral("IDS_TEST_PANEL"), {}}};
    }
    CBaseObject *createObject(const QString &) const override { return new PanelObject; }
    pagehost::TextTable texts(const QString &) const override
    {
        return {{"IDS_TEST_PANEL", "Panel"},   {"IDS_TEST_CHOICE", "Choice"}, {"IDS_TEST_FIRST", "First"},
                {"IDS_TEST_SECOND", "Second"}, {"IDS_TEST_COLOR", "Colour"},  {"IDS_TEST_NAME", "Name"},
                {"IDS_TEST_ON", "On"},         {"IDS_TEST_SIZE", "Size"},     {"IDS_TEST_GO", "Go"},
                {"IDS_TEST_WHOLE", "Whole"},   {"IDS_TEST_REAL", "Real"},     {"IDS_TEST_SWITCH", "Switch"},
                {"IDS_TEST_TEXT", "Text"},     {"IDS_TEST_PAINT", "Paint"},   {"IDS_TEST_LOCKED", "Locked"},
                {"IDS_TEST_DATA", "Data"}};
    }
};

} // namespace boardtest
