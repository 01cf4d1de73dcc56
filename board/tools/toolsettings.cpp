#include "tools/toolsettings.h"

#include <QtCore/QSettings>

#include <algorithm>
#include <cmath>

namespace board {

namespace {

struct Ink
{
    QRgb color;
    const char *nameKey;
};

struct ToolOffer
{
    Tool tool;
    const char *name; ///< in the remembered settings
    QVector<Ink> colors;
    QVector<double> widths; ///< ascending
    int usualWidth;         ///< index
    QVector<QString> variants;
};

const QVector<Ink> inks{{0xff1f2630, "IDS_COLOR_BLACK"},  {0xffc9252d, "IDS_COLOR_RED"},
                        {0xff2563cf, "IDS_COLOR_BLUE"},   {0xff1c7a43, "IDS_COLOR_GREEN"},
                        {0xffd9730d, "IDS_COLOR_ORANGE"}, {0xff7b3fa0, "IDS_COLOR_PURPLE"}};
const QVector<Ink> brightInks{{0xffffd43b, "IDS_COLOR_YELLOW"},       {0xff8ce99a, "IDS_COLOR_LIGHT_GREEN"},
                              {0xff74c0fc, "IDS_COLOR_LIGHT_BLUE"},   {0xfffaa2c1, "IDS_COLOR_PINK"},
                              {0xffffa94d, "IDS_COLOR_LIGHT_ORANGE"}, {0xffb197fc, "IDS_COLOR_LIGHT_PURPLE"}};

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
            setting.color = QColor(offer.colors.first().color);
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
    const QVector<Ink> offered = offerOf(tool).colors;
    for (const Ink &ink : offered)
        colors.append(QColor(ink.color));
    return colors;
}

QString ToolSettings::colorKey(const QColor &color)
{
    const QVector<Ink> all = inks + brightInks;
    for (const Ink &ink : all)
        if (ink.color == color.rgb())
            return QLatin1String(ink.nameKey);
    return {};
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
