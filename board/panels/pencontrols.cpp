#include "panels/pencontrols.h"

#include "application/workspace.h"
#include "look/theme.h"
#include "panels/colorbutton.h"

#include <framework/cutil.h>

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QSpinBox>

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
    , m_width(new QSpinBox(this))
    , m_style(new QComboBox(this))
{
    m_width->setMinimum(1);
    m_width->setSuffix(QStringLiteral(" px"));
    m_width->setKeyboardTracking(false);
    m_width->setAccessibleName(workspace->text("IDS_BOARD_PEN_WIDTH"));
    m_width->setToolTip(m_width->accessibleName());
    m_style->setIconSize(sampleSize + QSize(sampleGap, 0));
    m_style->setAccessibleName(workspace->text("IDS_BOARD_PEN_STYLE"));
    m_style->setToolTip(m_style->accessibleName());
    for (const NamedStyle &entry : penStyles)
        m_style->addItem(workspace->text(entry.nameKey), static_cast<int>(entry.style));
    makeStyleIcons();

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(mediumGap);
    grid->addWidget(m_color, 0, 0);
    grid->addWidget(m_width, 0, 1);
    grid->addWidget(m_style, 1, 0, 1, 2);
    grid->setColumnStretch(1, 1);

    connect(m_color, &ColorButton::colorPicked, this, &PenControls::colorPicked);
    connect(m_width, QOverload<int>::of(&QSpinBox::valueChanged), this, &PenControls::widthPicked);
    connect(m_style, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { Q_EMIT stylePicked(static_cast<Qt::PenStyle>(m_style->itemData(index).toInt())); });
}

void PenControls::showStyle(const pagehost::ObjectStyle &style)
{
    const QSignalBlocker quiet(m_width);
    m_color->setEnabled(style.hasPenColor);
    m_width->setEnabled(style.hasPenWidth);
    m_style->setEnabled(style.hasPenStyle);
    m_color->setColor(style.penColor);
    m_width->setMaximum(style.maxPenWidth);
    m_width->setValue(style.penWidth);
    m_style->setCurrentIndex(m_style->findData(static_cast<int>(style.penStyle)));
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
