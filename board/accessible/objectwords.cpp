#include "accessible/objectwords.h"

#include "core/objectnames.h"
#include "core/workspace.h"
#include "page/labeleditor.h"
#include "panels/settings/ownsettings.h"

#include <pagehost/page.h>
#include <pagehost/selection.h>

#include <framework/cbaseobject.h>

#include <QtCore/QLocale>
#include <QtCore/QStringList>

#include <cmath>

namespace board {

namespace {

constexpr double fullTurn = 360;
constexpr double largestCount = 100;
const QString comma = QStringLiteral(", ");

/// A caption within a sentence. German writes nouns with a capital.
QString lowered(const QString &caption, const Workspace &workspace)
{
    const bool isGerman = workspace.localizer().language().startsWith(QLatin1String("de"));
    return isGerman || caption.isEmpty() ? caption : caption.at(0).toLower() + caption.mid(1);
}

QString entryOf(const SettingControl &setting, const Workspace &workspace)
{
    const int entry = setting.value.toInt();
    const QString text = workspace.text(setting.texts.value(entry));
    return text.isEmpty() ? QString::number(entry + 1) : text;
}

/// Of things that are never missing, and can be counted at a glance.
bool isCount(const SettingControl &setting)
{
    return setting.range.decimals == 0 && setting.unit.isEmpty() && setting.range.minimum >= 1 &&
           setting.range.maximum <= largestCount;
}

/// "7 corners", "step 0.5", "grid: yes", "symbol: Box"; empty for a colour, which needs eyes.
QString toldSetting(const SettingControl &setting, const Workspace &workspace)
{
    const QString caption = lowered(workspace.text(setting.titleKey), workspace);
    switch (setting.kind) {
    case SettingControl::Number:
    case SettingControl::Slider: {
        const QString number = QLocale().toString(setting.value.toDouble());
        if (isCount(setting))
            return workspace.text("IDS_BOARD_COUNTED").arg(number, caption);
        return QStringList{caption, number, setting.unit}.join(QLatin1Char(' ')).trimmed();
    }
    case SettingControl::Switch:
        return workspace.text(setting.value.toBool() ? "IDS_BOARD_SWITCHED_ON" : "IDS_BOARD_SWITCHED_OFF")
            .arg(caption);
    case SettingControl::Choice:
        return caption + QStringLiteral(": ") + entryOf(setting, workspace);
    default:
        return {};
    }
}

QString joined(QStringList parts)
{
    parts.removeAll(QString());
    return parts.join(comma);
}

} // namespace

QString nameOf(const pagehost::Page &page, const Workspace &workspace)
{
    const pagehost::Document *document = page.document();
    const int index = document ? document->indexOf(&page) : -1;
    const QString place = index < 0 ? workspace.text("IDS_BOARD_PAGE")
                                    : workspace.text("IDS_BOARD_PAGE_OF").arg(index + 1).arg(document->pageCount());
    const int count = page.objectCount();
    const QString objects =
        count == 1 ? workspace.text("IDS_BOARD_ONE_OBJECT") : workspace.text("IDS_BOARD_SEVERAL").arg(count);
    return place + comma + objects;
}

QString nameOf(CBaseObject &object, const pagehost::Page &page, const Workspace &workspace)
{
    const std::optional<SettingControl> setting = firstOwnSetting(object);
    const QString title = titleOf(workspace, page, pagehost::GroupUnit{0, {&object}});
    return joined({title, setting ? toldSetting(*setting, workspace) : QString()});
}

QString descriptionOf(CBaseObject &object, const Workspace &workspace)
{
    QStringList parts;
    const QVector<EditableLabel> labels = labelsOf(object);
    for (const EditableLabel &label : labels)
        if (!label.text.isEmpty())
            parts.append(workspace.text("IDS_BOARD_QUOTED").arg(label.text));
    const QPointF place = pagehost::boundsOf({&object}).topLeft();
    parts.append(workspace.text("IDS_BOARD_PLACED_AT").arg(qRound(place.x())).arg(qRound(place.y())));
    parts.append(sizeOf(object));
    if (angleOf(object) != 0)
        parts.append(workspace.text("IDS_BOARD_TURNED_BY").arg(angleOf(object)));
    return joined(parts);
}

QString sizeOf(const CBaseObject &object)
{
    const QSizeF size = object.getClientRect().size();
    return QStringLiteral("%1 × %2").arg(qRound(size.width())).arg(qRound(size.height()));
}

int angleOf(const CBaseObject &object)
{
    const double turn = object.rotation();
    return qRound(turn - fullTurn * std::floor(turn / fullTurn)) % int(fullTurn);
}

} // namespace board
