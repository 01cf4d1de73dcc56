#include "panels/colorpopup.h"

#include "core/workspace.h"
#include "look/theme.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QWidgetAction>

#include <array>

namespace board {

namespace {

constexpr int swatchColumns = 8;
constexpr int swatchSide = 20;
constexpr int checkerSide = 4;
constexpr double swatchRadius = 4;

constexpr std::array<QRgb, 32> swatchColors{
    0xff000000, 0xff34495e, 0xff5c6773, 0xff8d97a3, 0xffb9c2cc, 0xffd8dde3, 0xfff0f2f5, 0xffffffff,
    0xffb3261e, 0xffc2570c, 0xffa67c00, 0xff2f7d4f, 0xff2b7f86, 0xff1f5fa8, 0xff5b3fb0, 0xffb23a7b,
    0xffe8483f, 0xfff28c28, 0xfff5c400, 0xff4caf6e, 0xff38b2ac, 0xff3b82e6, 0xff8b6be0, 0xffe66aa8,
    0xfff9c6c2, 0xffffd9b0, 0xfffdeaa0, 0xffbfe6cb, 0xffb2e3e3, 0xffb5d6f8, 0xffd9ccf5, 0xfff8c9e0};

QIcon swatchIcon(const QColor &color)
{
    QPixmap picture(swatchSide * 2, swatchSide * 2);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(2, 2);
    paintSwatch(&painter, QRectF(1, 1, swatchSide - 2, swatchSide - 2), swatchRadius, color);
    return QIcon(picture);
}

} // namespace

void paintSwatch(QPainter *painter, const QRectF &area, double radius, const QColor &color)
{
    QPainterPath shape;
    shape.addRoundedRect(area, radius, radius);
    painter->save();
    if (color.alpha() < 255) {
        painter->setClipPath(shape);
        painter->fillRect(area, Qt::white);
        for (int y = 0; y * checkerSide < area.height(); ++y) {
            for (int x = y % 2; x * checkerSide < area.width(); x += 2)
                painter->fillRect(
                    QRectF(area.topLeft() + QPointF(x, y) * checkerSide, QSizeF(checkerSide, checkerSide)),
                    QColor(0xffc9cfd6));
        }
        painter->setClipping(false);
    }
    painter->setPen(QPen(themeColors().control, 1));
    painter->setBrush(color);
    painter->drawPath(shape);
    painter->restore();
}

ColorPopup::ColorPopup(const Workspace *workspace, QWidget *parent)
    : QMenu(parent)
    , m_workspace(workspace)
{
    auto *action = new QWidgetAction(this);
    action->setDefaultWidget(makeContent());
    addAction(action);
}

QWidget *ColorPopup::makeContent()
{
    auto *content = new QWidget(this);
    auto *grid = new QGridLayout(content);
    grid->setContentsMargins(largeGap, largeGap, largeGap, largeGap);
    grid->setSpacing(smallGap);
    addSwatches(grid);
    const int row = grid->rowCount();
    auto *caption = new QLabel(m_workspace->text("IDS_BOARD_OPACITY"), content);
    m_opacity = new QSlider(Qt::Horizontal, content);
    m_opacity->setRange(0, 100);
    m_opacity->setValue(100);
    m_opacity->setTracking(false);
    m_opacity->setAccessibleName(caption->text());
    caption->setBuddy(m_opacity);
    connect(m_opacity, &QSlider::valueChanged, this, &ColorPopup::pickOpacity);
    grid->addWidget(caption, row, 0, 1, 3);
    grid->addWidget(m_opacity, row, 3, 1, swatchColumns - 3);
    auto *more = new QPushButton(m_workspace->text("IDS_BOARD_MORE_COLORS"), content);
    connect(more, &QPushButton::clicked, this, &ColorPopup::openDialog);
    grid->addWidget(more, row + 1, 0, 1, swatchColumns);
    return content;
}

void ColorPopup::addSwatches(QGridLayout *grid)
{
    int index = 0;
    for (const QRgb rgb : swatchColors) {
        const QColor color(rgb);
        auto *button = new QToolButton(this);
        button->setIcon(swatchIcon(color));
        button->setIconSize(QSize(swatchSide, swatchSide));
        button->setAutoRaise(true);
        button->setToolTip(color.name());
        button->setAccessibleName(color.name());
        connect(button, &QToolButton::clicked, this, [this, color] { pick(color); });
        grid->addWidget(button, index / swatchColumns, index % swatchColumns);
        ++index;
    }
}

void ColorPopup::setColor(const QColor &color)
{
    m_color = color;
    const QSignalBlocker quiet(m_opacity);
    m_opacity->setValue(qRound(color.alphaF() * 100));
}

void ColorPopup::pick(const QColor &opaqueColor)
{
    m_color = opaqueColor;
    m_color.setAlphaF(m_opacity->value() / 100.0);
    close();
    Q_EMIT colorPicked(m_color);
}

void ColorPopup::pickOpacity(int percent)
{
    m_color.setAlphaF(percent / 100.0);
    Q_EMIT colorPicked(m_color);
}

void ColorPopup::openDialog()
{
    close();
    const QColor color = QColorDialog::getColor(m_color, parentWidget(), m_workspace->text("IDS_BOARD_PICK_COLOR"),
                                                QColorDialog::ShowAlphaChannel);
    if (!color.isValid())
        return;
    setColor(color);
    Q_EMIT colorPicked(color);
}

} // namespace board
