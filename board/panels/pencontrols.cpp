#include "panels/pencontrols.h"

#include "core/workspace.h"
#include "look/theme.h"
#include "panels/colorbutton.h"
#include "panels/fields/captionedrow.h"
#include "panels/fields/numberfield.h"

#include <framework/cutil.h>

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>

#include <algorithm>
#include <array>

namespace board {

namespace {

struct NamedStyle
{
    Qt::PenStyle style;
    const char *nameKey;
};

constexpr std::array<NamedStyle, 6> penStyles{{{Qt::SolidLine, "IDS_BOARD_PEN_SOLID"},
                                               {Qt::DashLine, "IDS_BOARD_PEN_DASHED"},
                                               {Qt::DotLine, "IDS_BOARD_PEN_DOTTED"},
                                               {Qt::DashDotLine, "IDS_BOARD_PEN_DASHDOT"},
                                               {Qt::DashDotDotLine, "IDS_BOARD_PEN_DASHDOTDOT"},
                                               {Qt::NoPen, "IDS_BOARD_PEN_NONE"}}};

constexpr QSize sampleSize(48, 16);
constexpr int sampleWidth = 2;
/// Between a sample line and its name.
constexpr int sampleGap = 8;

const QString mixedSign = QStringLiteral("—");

template<typename Value> bool areAlike(const QVector<Value> &values)
{
    return std::all_of(values.begin(), values.end(), [&](const Value &value) { return value == values.first(); });
}

QPixmap sampleLine(int penStyle, const QColor &color)
{
    QPixmap picture(sampleSize.width() + sampleGap, sampleSize.height());
    picture.fill(Qt::transparent);
    QPainter(&picture).drawPixmap(
        0, 0, CUtil::genIconForLineStyle(sampleSize.width(), sampleSize.height(), sampleWidth, penStyle, color));
    return picture;
}

} // namespace

PenControls::PenControls(const Workspace *workspace, QWidget *parent)
    : QWidget(parent)
    , m_color(new ColorButton(workspace, workspace->text("IDS_BOARD_PEN_COLOR"), this))
    , m_width(new NumberField(workspace, {1, 1, 1, 0}, QStringLiteral("px"), this))
    , m_style(new QComboBox(this))
{
    m_width->setAccessibleName(workspace->text("IDS_BOARD_PEN_WIDTH"));
    m_width->setToolTip(m_width->accessibleName());
    m_style->setIconSize(sampleSize + QSize(sampleGap, 0));
    m_style->setAccessibleName(workspace->text("IDS_BOARD_PEN_STYLE"));
    m_style->setToolTip(m_style->accessibleName());
    for (const NamedStyle &entry : penStyles)
        m_style->addItem(workspace->text(entry.nameKey), static_cast<int>(entry.style));
    makeStyleIcons();

    // Names that are too long for the panel stay whole in the list.
    m_style->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto *line = new QWidget(this);
    auto *lineRow = new QHBoxLayout(line);
    lineRow->setContentsMargins(0, 0, 0, 0);
    lineRow->setSpacing(mediumGap);
    lineRow->addWidget(m_color);
    lineRow->addWidget(m_style, 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(mediumGap);
    column->addWidget(new CaptionedRow(workspace->text("IDS_BOARD_PEN"), line, this));
    column->addWidget(new CaptionedRow(workspace->text("IDS_BOARD_WIDTH"), m_width, this));

    connect(m_color, &ColorButton::colorPicked, this, &PenControls::colorPicked);
    connect(m_width, &NumberField::numberPicked, this, [this](double width) { Q_EMIT widthPicked(qRound(width)); });
    connect(m_style, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { Q_EMIT stylePicked(static_cast<Qt::PenStyle>(m_style->itemData(index).toInt())); });
}

void PenControls::showStyles(const QVector<pagehost::ObjectStyle> &styles)
{
    QVector<QColor> colors;
    QVector<int> widths;
    QVector<Qt::PenStyle> penStyles;
    int largestWidth = 0;
    for (const pagehost::ObjectStyle &style : styles) {
        if (style.hasPenColor)
            colors.append(style.penColor);
        if (style.hasPenStyle)
            penStyles.append(style.penStyle);
        if (!style.hasPenWidth)
            continue;
        largestWidth = widths.isEmpty() ? style.maxPenWidth : qMin(largestWidth, style.maxPenWidth);
        widths.append(style.penWidth);
    }
    showColor(colors);
    showWidth(widths, largestWidth);
    showPenStyle(penStyles);
}

void PenControls::showColor(const QVector<QColor> &colors)
{
    m_color->setEnabled(!colors.isEmpty());
    if (!areAlike(colors))
        m_color->setMixed();
    else if (!colors.isEmpty())
        m_color->setColor(colors.first());
}

void PenControls::showWidth(const QVector<int> &widths, int largest)
{
    const QSignalBlocker quiet(m_width);
    m_width->setEnabled(!widths.isEmpty());
    m_width->setRange(1, qMax(1, largest));
    if (areAlike(widths))
        m_width->showNumber(widths.value(0));
    else
        m_width->showMixed();
}

void PenControls::showPenStyle(const QVector<Qt::PenStyle> &styles)
{
    const bool alike = areAlike(styles);
    m_style->setEnabled(!styles.isEmpty());
    m_style->setPlaceholderText(alike ? QString() : mixedSign);
    m_style->setCurrentIndex(alike ? m_style->findData(static_cast<int>(styles.value(0))) : -1);
}

void PenControls::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        makeStyleIcons();
    QWidget::changeEvent(event);
}

void PenControls::makeStyleIcons()
{
    const QColor color = palette().color(QPalette::Text);
    for (int i = 0; i < m_style->count(); ++i)
        m_style->setItemIcon(i, sampleLine(m_style->itemData(i).toInt(), color));
}

} // namespace board
