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

struct FirstPen
{
    QRgb color;
    double width;
};

struct ToolOffer
{
    Tool tool;
    const char *name; ///< in the remembered settings
    QVector<Ink> colors;
    QVector<double> widths; ///< ascending
    int usualWidth;         ///< index
    QVector<QString> variants;
    QVector<FirstPen> pens; ///< empty for a tool with one
    QVector<Ink> moreColors;
};

const QVector<Ink> inks{{0xff1f2630, "IDS_COLOR_BLACK"},  {0xffc9252d, "IDS_COLOR_RED"},
                        {0xff2563cf, "IDS_COLOR_BLUE"},   {0xff1c7a43, "IDS_COLOR_GREEN"},
                        {0xffd9730d, "IDS_COLOR_ORANGE"}, {0xff7b3fa0, "IDS_COLOR_PURPLE"}};
const QVector<Ink> brightInks{{0xffffd43b, "IDS_COLOR_YELLOW"},       {0xff8ce99a, "IDS_COLOR_LIGHT_GREEN"},
                              {0xff74c0fc, "IDS_COLOR_LIGHT_BLUE"},   {0xfffaa2c1, "IDS_COLOR_PINK"},
                              {0xffffa94d, "IDS_COLOR_LIGHT_ORANGE"}, {0xffb197fc, "IDS_COLOR_LIGHT_PURPLE"}};

/// Beside those on offer at once.
const QVector<Ink> otherInks{{0xff566070, "IDS_COLOR_GREY"},    {0xff0b7285, "IDS_COLOR_TEAL"},
                             {0xff5c7a10, "IDS_COLOR_OLIVE"},   {0xff8f6b00, "IDS_COLOR_BROWN"},
                             {0xffb02a7c, "IDS_COLOR_MAGENTA"}, {0xffffffff, "IDS_COLOR_WHITE"}};

const QVector<ToolOffer> &offers()
{
    static const QVector<ToolOffer> offers{
        {Tool::Pen,
         "pen",
         inks,
         {2, 4, 8, 14},
         1,
         {},
         {{0xff1f2630, 4}, {0xff2563cf, 4}, {0xffc9252d, 8}},
         otherInks},
        {Tool::Highlighter,
         "highlighter",
         brightInks,
         {12, 20, 32},
         1,
         {},
         {{0xffffd43b, 20}, {0xff8ce99a, 20}, {0xfffaa2c1, 32}},
         {}},
        {Tool::Eraser,
         "eraser",
         {},
         {10, 24, 60},
         1,
         {QStringLiteral("IDS_BOARD_ERASER_STROKES"), QStringLiteral("IDS_BOARD_ERASER_PARTS")},
         {},
         {}},
        {Tool::Text, "text", inks, {16, 24, 36, 60}, 1, {}, {}, {}},
        {Tool::Line,
         "line",
         inks,
         {2, 4, 8},
         0,
         {QStringLiteral("IDS_BOARD_LINE_PLAIN"), QStringLiteral("IDS_BOARD_LINE_ARROW"),
          QStringLiteral("IDS_BOARD_LINE_CURVE")},
         {},
         {}},
        {Tool::Connector,
         "connector",
         inks,
         {2, 4, 8},
         0,
         {QStringLiteral("IDS_BOARD_CONNECTOR_STRAIGHT"), QStringLiteral("IDS_BOARD_CONNECTOR_ANGLED"),
          QStringLiteral("IDS_BOARD_CONNECTOR_ARROW"), QStringLiteral("IDS_BOARD_CONNECTOR_ANGLED_ARROW")},
         {},
         {}}};
    return offers;
}

ToolOffer offerOf(Tool tool)
{
    for (const ToolOffer &offer : offers())
        if (offer.tool == tool)
            return offer;
    return {tool, "", {}, {}, 0, {}, {}, {}};
}

/// The values of the first pen have no number.
QString keyOf(const ToolOffer &offer, const char *value, int pen = 0)
{
    const QString key = QStringLiteral("tools/%1/%2").arg(QLatin1String(offer.name), QLatin1String(value));
    return pen == 0 ? key : key + QString::number(pen + 1);
}

PenLook firstLook(const ToolOffer &offer, int pen)
{
    if (!offer.pens.isEmpty())
        return {QColor(offer.pens.at(pen).color), offer.pens.at(pen).width};
    return {offer.colors.isEmpty() ? QColor() : QColor(offer.colors.first().color),
            offer.widths.at(offer.usualWidth)};
}

/// The usual one for what is no number.
double limitedWidth(const ToolOffer &offer, double width)
{
    if (!std::isfinite(width))
        return offer.widths.at(offer.usualWidth);
    return qBound(offer.widths.first(), width, offer.widths.last());
}

} // namespace

ToolSettings::ToolSettings(QObject *parent)
    : QObject(parent)
{
    const QSettings remembered;
    for (const ToolOffer &offer : offers()) {
        Setting setting;
        for (int i = 0; i < qMax(1, offer.pens.size()); ++i) {
            PenLook look = firstLook(offer, i);
            const QColor color(remembered.value(keyOf(offer, "color", i)).toString());
            if (color.isValid() && !offer.colors.isEmpty())
                look.color = color;
            look.width = limitedWidth(offer, remembered.value(keyOf(offer, "width", i), look.width).toDouble());
            setting.pens.append(look);
        }
        const int pen = remembered.value(keyOf(offer, "pen")).toInt();
        setting.pen = pen >= 0 && pen < setting.pens.size() ? pen : 0;
        const int variant = remembered.value(keyOf(offer, "variant")).toInt();
        setting.variant = variant >= 0 && variant < offer.variants.size() ? variant : 0;
        setting.usesPressure = remembered.value(keyOf(offer, "pressure"), true).toBool();
        setting.straightens = remembered.value(keyOf(offer, "straightens"), true).toBool();
        m_chosen[offer.tool] = setting;
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

QVector<QColor> ToolSettings::moreColors(Tool tool) const
{
    QVector<QColor> colors = this->colors(tool);
    const QVector<Ink> others = offerOf(tool).moreColors;
    for (const Ink &ink : others)
        colors.append(QColor(ink.color));
    return colors;
}

QString ToolSettings::colorKey(const QColor &color)
{
    const QVector<Ink> all = inks + brightInks + otherInks;
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
    setting.pens[setting.pen].color = color;
    set(tool, setting);
}

void ToolSettings::setWidth(Tool tool, double width)
{
    const ToolOffer offer = offerOf(tool);
    if (offer.widths.isEmpty() || !std::isfinite(width))
        return;
    Setting setting = m_chosen.value(tool);
    setting.pens[setting.pen].width = limitedWidth(offer, width);
    set(tool, setting);
}

void ToolSettings::takePen(Tool tool, int pen)
{
    Setting setting = m_chosen.value(tool);
    if (pen < 0 || pen >= setting.pens.size())
        return;
    setting.pen = pen;
    set(tool, setting);
}

void ToolSettings::setUsesPressure(Tool tool, bool uses)
{
    Setting setting = m_chosen.value(tool);
    setting.usesPressure = uses;
    set(tool, setting);
}

void ToolSettings::setStraightens(Tool tool, bool straightens)
{
    Setting setting = m_chosen.value(tool);
    setting.straightens = straightens;
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

bool ToolSettings::isEqual(const Setting &one, const Setting &other)
{
    const bool hasEqualPens =
        std::equal(one.pens.begin(), one.pens.end(), other.pens.begin(), other.pens.end(),
                   [](const PenLook &a, const PenLook &b) { return a.color == b.color && a.width == b.width; });
    return hasEqualPens && one.pen == other.pen && one.variant == other.variant &&
           one.usesPressure == other.usesPressure && one.straightens == other.straightens;
}

void ToolSettings::set(Tool tool, const Setting &setting)
{
    if (!m_chosen.contains(tool) || isEqual(m_chosen.value(tool), setting))
        return;
    m_chosen[tool] = setting;
    remember(tool, setting);
    Q_EMIT changed();
}

void ToolSettings::remember(Tool tool, const Setting &setting)
{
    QSettings remembered;
    const ToolOffer offer = offerOf(tool);
    for (int i = 0; i < setting.pens.size(); ++i) {
        const PenLook &look = setting.pens.at(i);
        if (look.color.isValid())
            remembered.setValue(keyOf(offer, "color", i), look.color.name());
        remembered.setValue(keyOf(offer, "width", i), look.width);
    }
    remembered.setValue(keyOf(offer, "pen"), setting.pen);
    remembered.setValue(keyOf(offer, "variant"), setting.variant);
    remembered.setValue(keyOf(offer, "pressure"), setting.usesPressure);
    remembered.setValue(keyOf(offer, "straightens"), setting.straightens);
}

} // namespace board
