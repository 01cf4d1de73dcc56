#include "panels/colorbutton.h"

#include "look/sizes.h"
#include "panels/colorpopup.h"

#include <QtGui/QPainter>

namespace board {

namespace {

constexpr QSize buttonSize(52, 30);
constexpr int swatchInset = 5;
constexpr double swatchRadius = 4;
/// Of a swatch that stands for an outline.
constexpr double outlineWidth = 4;
constexpr double disabledOpacity = 0.35;
const QString mixedSign = QStringLiteral("—");

} // namespace

ColorButton::ColorButton(const Workspace *workspace, const QString &name, QWidget *parent)
    : QToolButton(parent)
    , m_popup(new ColorPopup(workspace, this))
{
    setToolTip(name);
    setAccessibleName(name);
    setMenu(m_popup);
    setPopupMode(InstantPopup);
    followSizes(this, [this] { updateGeometry(); });
    connect(m_popup, &ColorPopup::colorPicked, this, [this](const QColor &color) {
        setColor(color);
        Q_EMIT colorPicked(color);
    });
}

void ColorButton::setColor(const QColor &color)
{
    m_color = color;
    m_mixed = false;
    m_popup->setColor(color);
    setAccessibleDescription(color.name(QColor::HexArgb));
    update();
}

void ColorButton::setMixed()
{
    m_mixed = true;
    setAccessibleDescription(mixedSign);
    update();
}

void ColorButton::showAsOutline()
{
    m_isOutline = true;
    update();
}

QSize ColorButton::sizeHint() const
{
    return buttonSize.expandedTo({0, sizes().field});
}

void ColorButton::paintEvent(QPaintEvent *event)
{
    QToolButton::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    const QRectF area = QRectF(rect()).adjusted(swatchInset, swatchInset, -swatchInset, -swatchInset);
    if (m_mixed) {
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(rect(), Qt::AlignCenter, mixedSign);
        return;
    }
    paintSwatch(&painter, area.adjusted(0.5, 0.5, -0.5, -0.5), swatchRadius, m_color);
    if (!m_isOutline)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawRoundedRect(area.adjusted(outlineWidth, outlineWidth, -outlineWidth, -outlineWidth), 2, 2);
}

} // namespace board
