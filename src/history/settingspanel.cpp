// The settings panel: its description as JSON, and the user's answers.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <framework/iframework.h>

#include "properties/namedcolor.h"
#include "properties/valuecodec.h"

#include <QtCore/QJsonDocument>

#include <limits>

namespace {

const QString settingsKey = QStringLiteral("settings");
const QString lineStyleId = QStringLiteral("idLineStyle");
const QString outlineColorId = QStringLiteral("idOutlineColor");
const QString fillColorId = QStringLiteral("idFillColor");

constexpr int lineStyleIcons = 5;

QJsonObject lineStyleControl(CSVGObj *owner, Qt::PenStyle style)
{
    QString id = lineStyleId;
    QString title = QStringLiteral("IDS_MATHOBJ_LINESTYLE_TITLE");
    QList<QString> icons;
    for (int i = 0; i < lineStyleIcons; ++i)
        icons.append(QStringLiteral("items/mathobject/LineStyle%1.svg").arg(i));
    QList<QString> texts;
    return owner->GetSettingJsonComboBox(id, title, style - 1, icons, texts); // the solid line is entry 0
}

QJsonObject colorControl(CSVGObj *owner, QString id, QString title, const QColor &color)
{
    QString name = color.name(QColor::HexArgb);
    return owner->GetSettingJsonColorPicker(id, title, name);
}

/// The pen style of a list index given as text; text that isn't a number selects the first entry.
qint32 lineStyleOfAnswer(const QString &text)
{
    return qint32(qMin<qint64>(qint64(text.toInt()) + 1, std::numeric_limits<qint32>::max()));
}

/// Groups the undo steps pushed while it lives.
class UndoGroup
{
public:
    explicit UndoGroup(bool wanted)
        : m_framework(wanted ? GetFramework() : nullptr)
    {
        if (m_framework)
            m_framework->beginUndoGroup(QStringLiteral("IDS_ITEM_SET_ATTRIBUTE"));
    }
    ~UndoGroup()
    {
        if (m_framework)
            m_framework->endUndoGroup();
    }
    Q_DISABLE_COPY(UndoGroup)

private:
    IFramework *m_framework;
};

} // namespace

bool CSVGBase::GetSettingJson(QString &out)
{
    QJsonArray settings;
    if (owner && document) {
        if (propPenStyleEnabled)
            settings.append(lineStyleControl(owner, getPenStyle()));
        if (propPenEnabled)
            settings.append(
                colorControl(owner, outlineColorId, QStringLiteral("IDS_PHYSICSOBJ_OUTLINECOLOR"), getPenColor()));
        if (propFillEnabled)
            settings.append(
                colorControl(owner, fillColorId, QStringLiteral("IDS_SVG_FILLCOLOR"), getFillBrush().color()));
    }
    GetSettingArray(settings);
    QJsonObject root;
    root[settingsKey] = settings;
    out = QString::fromUtf8(QJsonDocument(root).toJson());
    return true;
}

bool CSVGBase::SetSettingJson(const QString &json, bool record, bool undo)
{
    QMap<QString, QString> values;
    if (!owner || !owner->ParseSettingJson(json, values))
        return true;
    const UndoGroup group(undo && values.size() >= 2);
    const auto apply = [&](PropId propId, const QByteArray &value) {
        QByteArray bytes = value;
        QDataStream in(&bytes, QIODevice::ReadWrite);
        SetAttribute(propId, in, record, undo);
    };
    if (propPenStyleEnabled && values.contains(lineStyleId))
        apply(PROP_SVG_PENSTYLE, encodeValues(lineStyleOfAnswer(values.value(lineStyleId))));
    if (propPenEnabled && values.contains(outlineColorId))
        apply(PROP_SVG_PENCOLOR, encodeValues(namedColor(values.value(outlineColorId))));
    if (document && propFillEnabled && values.contains(fillColorId)) {
        QBrush brush = getFillBrush(); // its style stays
        brush.setColor(namedColor(values.value(fillColorId)));
        apply(PROP_SVG_FILLCOLOR, encodeValues(brush));
    }
    SetSettingArray(values, record, undo);
    return true;
}
