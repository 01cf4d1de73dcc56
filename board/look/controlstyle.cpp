#include "look/controlstyle.h"

#include "look/motion.h"
#include "look/sizes.h"
#include "look/surfaceoutline.h"
#include "look/theme.h"

#include <QtGui/QPainter>
#include <QtGui/QRegion>
#include <QtGui/QWindow>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOption>

namespace board {

namespace {

constexpr double fieldRadius = 4;
/// Round edges are paler where they cross pixels.
constexpr double roundEdgeWidth = 1.35;
constexpr double focusWidth = 2;
constexpr int boxSide = 16;
/// Least height of what is hit, by mice and by fingers.
constexpr int mouseTarget = 24;
constexpr int fingerTarget = 44;
/// Above and below the text of a row, at least.
constexpr int menuRowEdges = 6;
/// Of a line between entries with the room above and below it, and from its ends to the edges of the menu.
constexpr int separatorHeight = 5;
constexpr int separatorMargin = 5;
constexpr double signWidth = 1.75;
/// Half of a chevron.
constexpr double chevronWidth = 3.5;
constexpr double chevronHeight = 1.75;
constexpr int knobSide = 16;
constexpr double grooveWidth = 4;
/// Part of a box's side that the dot of a chosen one takes.
constexpr double dotShare = 0.5;

bool isEnabled(const QStyleOption &option)
{
    return option.state & QStyle::State_Enabled;
}

bool hasFocus(const QStyleOption &option)
{
    return isEnabled(option) && (option.state & QStyle::State_HasFocus);
}

QColor edgeColor(const QStyleOption &option, const ThemeColors &colors)
{
    if (!isEnabled(option))
        return colors.border;
    return hasFocus(option) ? colors.accent : colors.control;
}

QColor signColor(bool enabled, const ThemeColors &colors)
{
    return enabled ? colors.text : colors.disabled;
}

/// Whole pixels of `rect`, an edge of the option's state around them.
void paintBox(QPainter *painter, const QRect &rect, const QStyleOption &option, const ThemeColors &colors,
              const QColor &background, double radius = fieldRadius)
{
    const double usual = radius > fieldRadius ? roundEdgeWidth * edgeWidth() : edgeWidth();
    const double width = hasFocus(option) ? focusWidth : usual;
    painter->setPen(QPen(edgeColor(option, colors), width));
    painter->setBrush(background);
    painter->drawRoundedRect(QRectF(rect).adjusted(width / 2, width / 2, -width / 2, -width / 2), radius, radius);
}

void paintLine(QPainter *painter, const QVector<QPointF> &line, const QColor &color)
{
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(color, signWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPolyline(line.constData(), line.size());
}

void paintChevron(QPainter *painter, const QRect &rect, bool pointsUp, const QColor &color)
{
    const QPointF centre = QRectF(rect).center();
    const double tip = pointsUp ? -chevronHeight : chevronHeight;
    paintLine(
        painter,
        {centre + QPointF(-chevronWidth, -tip), centre + QPointF(0, tip), centre + QPointF(chevronWidth, -tip)},
        color);
}

/// In the middle of `rect`.
QRect squareIn(const QRect &rect)
{
    const int side = qMin(rect.width(), rect.height());
    QRect square(0, 0, side, side);
    square.moveCenter(rect.center());
    return square;
}

QColor boxBackground(const QStyleOption &option, const ThemeColors &colors)
{
    if (!(option.state & QStyle::State_On))
        return colors.field;
    return isEnabled(option) ? colors.accent : colors.border;
}

QColor markColor(const QStyleOption &option, const ThemeColors &colors)
{
    return isEnabled(option) ? colors.onAccent : colors.disabled;
}

void paintCheckBox(QPainter *painter, const QStyleOption &option, const ThemeColors &colors)
{
    const QRect box = squareIn(option.rect);
    paintBox(painter, box, option, colors, boxBackground(option, colors));
    const QPointF corner = QRectF(box).topLeft();
    const double unit = box.width() / double(boxSide);
    if (option.state & QStyle::State_On)
        paintLine(
            painter,
            {corner + QPointF(4, 8.25) * unit, corner + QPointF(7, 11.25) * unit, corner + QPointF(12, 5) * unit},
            markColor(option, colors));
    else if (option.state & QStyle::State_NoChange)
        paintLine(painter, {corner + QPointF(4.5, 8) * unit, corner + QPointF(11.5, 8) * unit},
                  signColor(isEnabled(option), colors));
}

void paintRadioButton(QPainter *painter, const QStyleOption &option, const ThemeColors &colors)
{
    const QRect box = squareIn(option.rect);
    paintBox(painter, box, option, colors, boxBackground(option, colors), box.width() / 2.0);
    if (!(option.state & QStyle::State_On))
        return;
    const double radius = box.width() * dotShare / 2;
    painter->setPen(Qt::NoPen);
    painter->setBrush(markColor(option, colors));
    painter->drawEllipse(QRectF(box).center(), radius, radius);
}

void paintPushButton(QPainter *painter, const QStyleOption &option, const ThemeColors &colors)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    const bool isFlat = button && (button->features & QStyleOptionButton::Flat);
    const bool isPressed = option.state & (QStyle::State_Sunken | QStyle::State_On);
    const bool isHovered = isEnabled(option) && (option.state & QStyle::State_MouseOver);
    if (isFlat && !isPressed)
        return;
    paintBox(painter, option.rect, option, colors,
             isPressed   ? colors.soft
             : isHovered ? colors.hover
                         : colors.surface);
}

bool isSeparator(const QStyleOption *option)
{
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    return item && item->menuItemType == QStyleOptionMenuItem::Separator;
}

/// In the middle of its place.
void paintSeparator(QPainter *painter, const QStyleOption &option, const ThemeColors &colors)
{
    QRect line = option.rect.adjusted(separatorMargin, 0, -separatorMargin, 0);
    line.setHeight(edgeWidth());
    line.moveTop(option.rect.top() + (option.rect.height() - line.height()) / 2);
    painter->fillRect(line, colors.border);
}

/// The row with its picture and its arrow in the colour of letters on the accent. A picture that is checked has a
/// ground of its own.
QStyleOptionMenuItem onAccent(const QStyleOptionMenuItem &row, int iconSide, const QWidget *widget)
{
    QStyleOptionMenuItem shown = row;
    shown.palette.setColor(QPalette::WindowText, row.palette.color(QPalette::HighlightedText));
    if (row.icon.isNull() || row.checked)
        return shown;
    QWindow *window = widget ? widget->window()->windowHandle() : nullptr;
    shown.icon = QIcon(row.icon.pixmap(window, QSize(iconSide, iconSide), QIcon::Selected));
    return shown;
}

/// The window that a combo box opens has no public class.
bool isListOfCombo(const QWidget *widget)
{
    return widget && widget->inherits("QComboBoxPrivateContainer");
}

} // namespace

ControlStyle::ControlStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

/// Else the rows of a list would cover its edge.
void ControlStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (isListOfCombo(widget))
        widget->setContentsMargins(edgeWidth(), edgeWidth(), edgeWidth(), edgeWidth());
}

void ControlStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                 const QWidget *widget) const
{
    const ThemeColors colors = themeColors(widget);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    switch (element) {
    case PE_IndicatorCheckBox:
        paintCheckBox(painter, *option, colors);
        break;
    case PE_IndicatorRadioButton:
        paintRadioButton(painter, *option, colors);
        break;
    case PE_PanelButtonCommand:
        paintPushButton(painter, *option, colors);
        break;
    case PE_PanelMenu:
        if (isListOfCombo(widget)) {
            painter->fillRect(option->rect, colors.control);
            break;
        }
        paintOutlined(painter, option->rect, colors.surface, colors.border, edgeWidth());
        break;
    case PE_FrameMenu:
        break;
    default:
        painter->restore();
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    painter->restore();
}

void ControlStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                               const QWidget *widget) const
{
    const auto *item = element == CE_MenuItem ? qstyleoption_cast<const QStyleOptionMenuItem *>(option) : nullptr;
    if (item && isSeparator(item))
        return paintSeparator(painter, *item, themeColors(widget));
    const bool isHighlighted = item && isEnabled(*item) && (item->state & State_Selected);
    if (!isHighlighted)
        return QProxyStyle::drawControl(element, option, painter, widget);
    const QStyleOptionMenuItem shown = onAccent(*item, pixelMetric(PM_SmallIconSize, item, widget), widget);
    QProxyStyle::drawControl(element, &shown, painter, widget);
}

void ControlStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                      const QWidget *widget) const
{
    const auto *spinBox = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (control == CC_ComboBox)
        paintCombo(*option, painter, widget);
    else if (control == CC_SpinBox && spinBox)
        paintSpinBox(*spinBox, painter, widget);
    else if (control == CC_Slider && slider && slider->orientation == Qt::Horizontal)
        paintSlider(*slider, painter, widget);
    else {
        painter->restore();
        return QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
    painter->restore();
}

void ControlStyle::paintCombo(const QStyleOptionComplex &option, QPainter *painter, const QWidget *widget) const
{
    const ThemeColors colors = themeColors(widget);
    paintBox(painter, option.rect, option, colors, colors.field);
    const QRect arrow = proxy()->subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget);
    paintChevron(painter, arrow, false, signColor(isEnabled(option), colors));
}

void ControlStyle::paintSpinBox(const QStyleOptionSpinBox &option, QPainter *painter, const QWidget *widget) const
{
    const ThemeColors colors = themeColors(widget);
    paintBox(painter, option.rect, option, colors, colors.field);
    if (option.buttonSymbols == QAbstractSpinBox::NoButtons)
        return;
    for (const SubControl button : {SC_SpinBoxUp, SC_SpinBoxDown}) {
        const bool isUp = button == SC_SpinBoxUp;
        const bool isUsable =
            option.stepEnabled & (isUp ? QAbstractSpinBox::StepUpEnabled : QAbstractSpinBox::StepDownEnabled);
        const QRect place = proxy()->subControlRect(CC_SpinBox, &option, button, widget);
        paintChevron(painter, place, isUp, signColor(isUsable && isEnabled(option), colors));
    }
}

/// The groove is filled up to the knob.
void ControlStyle::paintSlider(const QStyleOptionSlider &option, QPainter *painter, const QWidget *widget) const
{
    const ThemeColors colors = themeColors(widget);
    const QColor filled = isEnabled(option) ? colors.accent : colors.border;
    const QRectF knob = squareIn(proxy()->subControlRect(CC_Slider, &option, SC_SliderHandle, widget));
    QRectF groove(option.rect.left(), 0, option.rect.width(), grooveWidth);
    groove.moveCenter(QRectF(option.rect).center());
    QRectF way = groove;
    if (option.upsideDown)
        way.setLeft(knob.center().x());
    else
        way.setRight(knob.center().x());
    painter->setPen(Qt::NoPen);
    painter->setBrush(isEnabled(option) ? colors.control : colors.border);
    painter->drawRoundedRect(groove, grooveWidth / 2, grooveWidth / 2);
    painter->setBrush(filled);
    painter->drawRoundedRect(way, grooveWidth / 2, grooveWidth / 2);
    painter->setPen(QPen(filled, focusWidth));
    painter->setBrush(hasFocus(option) ? filled : colors.field);
    painter->drawEllipse(knob.adjusted(1, 1, -1, -1));
}

int ControlStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return boxSide;
    case PM_SliderLength:
    case PM_SliderThickness:
    case PM_SliderControlThickness:
        return knobSide;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int ControlStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *returned) const
{
    auto *mask = qstyleoption_cast<QStyleHintReturnMask *>(returned);
    // Without corners cut off, it draws its panel itself.
    if (hint == SH_Menu_Mask && isListOfCombo(widget))
        return false;
    if (hint == SH_Menu_Mask && option && mask) {
        mask->region = surfaceRegion(option->rect);
        return true;
    }
    // Else menus that are too long for the screen have columns, beside it.
    if (hint == SH_Menu_Scrollable)
        return true;
    const bool isMotion = hint == SH_Widget_Animate || hint == SH_Widget_Animation_Duration;
    return isMotion && isMotionReduced() ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
}

QSize ControlStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                     const QWidget *widget) const
{
    const QSize usual = QProxyStyle::sizeFromContents(type, option, size, widget);
    const bool isField = type == CT_ComboBox || type == CT_PushButton;
    if (type == CT_MenuItem && isSeparator(option))
        return {usual.width(), separatorHeight};
    if (type == CT_MenuItem)
        return {usual.width(), qMax(sizes().menuRow, option->fontMetrics.height() + menuRowEdges)};
    const bool isTarget = type == CT_CheckBox || type == CT_RadioButton || type == CT_Slider;
    if (isTarget)
        return usual.expandedTo({0, areSizesLarge() ? fingerTarget : mouseTarget});
    return isField ? usual.expandedTo({0, sizes().field}) : usual;
}

/// A press above or below the box and its words counts, too.
QRect ControlStyle::subElementRect(SubElement element, const QStyleOption *option, const QWidget *widget) const
{
    const QRect usual = QProxyStyle::subElementRect(element, option, widget);
    const bool isTarget = element == SE_CheckBoxClickRect || element == SE_RadioButtonClickRect;
    return isTarget ? QRect(usual.left(), option->rect.top(), usual.width(), option->rect.height()) : usual;
}

} // namespace board
