#include "tools/toolsettings.h"

#include <QtCore/QSettings>

#include <algorithm>
#include <cmath>

namespace board {

namespace {

struct ToolOffer
{
    Tool tool;
    const char *name; ///< in the remembered settings
    QVector<QRgb> colors;
    QVector<double> widths; ///< ascending
    int usualWidth;         ///< index
    QVector<QString> variants;
};

const QVector<QRgb> inks{0xff1f2630, 0xffc9252d, 0xff2563cf, 0xff1c7a43, 0xffd9730d, 0xff7b3fa0};
const QVector<QRgb> brightInks{0xffffd43b, 0xff8ce99a, 0xff74c0fc, 0xfffaa2c1, 0xffffa94d, 0xffb197fc};

const QVector<ToolOffer> &offers()
{
    static const QVector<ToolOffer> offers{
        {Tool::Pen, "pen", inks, {2, 4, 8, 14}, 1, {}},
        {Tool::Highlighter, "highlighter", brightInks, {12, 20, 32}, 1, {}},
        {Tool::Eraser,
         "eraser",
         {},
         {10, 24, 60},
         1,
         {QStringLiteral("IDS_BOARD_ERASER_STROKES"), QStringLiteral("IDS_BOARD_ERASER_PARTS")}},
        {Tool::Text, "text", inks, {16, 24, 36, 60}, 1, {}},
        {Tool::Line,
         "line",
         inks,
         {2, 4, 8},
         0,
         {QStringLiteral("IDS_BOARD_LINE_PLAIN"), QStringLiteral("IDS_BOARD_LINE_ARROW"),
          QStringLiteral("IDS_BOARD_LINE_CURVE")}},
        {Tool::Connector,
         "connector",
         inks,
         {2, 4, 8},
         0,
         {QStringLiteral("IDS_BOARD_CONNECTOR_STRAIGHT"), QStringLiteral("IDS_BOARD_CONNECTOR_ANGLED")}}};
    return offers;
}

ToolOffer offerOf(Tool tool)
{
    for (const ToolOffer &offer : offers())
        if (offer.tool == tool)
            return offer;
    return {tool, "", {}, {}, 0, {}};
}

QString keyOf(const ToolOffer &offer, const char *value)
{
    return QStringLiteral("tools/%1/%2").arg(QLatin1String(offer.name), QLatin1String(value));
}

} // namespace

ToolSettings::ToolSettings(QObject *parent)
    : QObject(parent)
{
    const QSettings remembered;
    for (const ToolOffer &offer : offers()) {
        Setting &setting = m_chosen[offer.tool];
        setting.width = offer.widths.at(offer.usualWidth);
        if (!offer.colors.isEmpty())
            setting.color = QColor(offer.colors.first());
        // Each setter remembers all values.
        const QColor color(remembered.value(keyOf(offer, "color")).toString());
        const double width = remembered.value(keyOf(offer, "width"), setting.width).toDouble();
        const int variant = remembered.value(keyOf(offer, "variant")).toInt();
        setColor(offer.tool, color);
        setWidth(offer.tool, width);
        setVariant(offer.tool, variant);
    }
}

QVector<QColor> ToolSettings::colors(Tool tool) const
{
    QVector<QColor> colors;
    for (const QRgb color : offerOf(tool).colors)
        colors.append(QColor(color));
    return colors;
}

QVector<double> ToolSettings::widths(Tool tool) const
{
    return offerOf(tool).widths;
}

QVector<QString> ToolSettings::variants(Tool tool) const
{
    return offerOf(tool).variants;
}

void ToolSettings::setColor(Tool tool, const QColor &color)
{
    if (!color.isValid() || offerOf(tool).colors.isEmpty())
        return;
    Setting setting = m_chosen.value(tool);
    setting.color = color;
    set(tool, setting);
}

void ToolSettings::setWidth(Tool tool, double width)
{
    const QVector<double> offered = widths(tool);
    if (offered.isEmpty() || !std::isfinite(width))
        return;
    Setting setting = m_chosen.value(tool);
    setting.width = qBound(offered.first(), width, offered.last());
    set(tool, setting);
}

void ToolSettings::stepWidth(Tool tool, int direction)
{
    const QVector<double> offered = widths(tool);
    const double present = width(tool);
    if (direction > 0) {
        const auto wider = std::upper_bound(offered.begin(), offered.end(), present);
        if (wider != offered.end())
            setWidth(tool, *wider);
        return;
    }
    const auto notNarrower = std::lower_bound(offered.begin(), offered.end(), present);
    if (notNarrower != offered.begin())
        setWidth(tool, *std::prev(notNarrower));
}

void ToolSettings::setVariant(Tool tool, int variant)
{
    if (variant < 0 || variant >= offerOf(tool).variants.size())
        return;
    Setting setting = m_chosen.value(tool);
    setting.variant = variant;
    set(tool, setting);
}

void ToolSettings::set(Tool tool, const Setting &setting)
{
    const Setting before = m_chosen.value(tool);
    if (before.color == setting.color && before.width == setting.width && before.variant == setting.variant)
        return;
    m_chosen[tool] = setting;
    QSettings remembered;
    const ToolOffer offer = offerOf(tool);
    if (setting.color.isValid())
        remembered.setValue(keyOf(offer, "color"), setting.color.name());
    remembered.setValue(keyOf(offer, "width"), setting.width);
    remembered.setValue(keyOf(offer, "variant"), setting.variant);
    Q_EMIT changed();
}

} // namespace board
