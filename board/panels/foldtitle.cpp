#include "panels/foldtitle.h"

#include "look/sizes.h"
#include "look/theme.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

namespace board {

namespace {

constexpr int arrowSide = 16;
/// Half of the arrow's length, and of its depth.
constexpr double arrowLength = 4;
constexpr double arrowDepth = 2;
constexpr double arrowPen = 1.75;
constexpr double focusWidth = 2;
constexpr double focusRadius = 4;

/// Around `centre`; one that points along the lines points to the left where they end there.
QPolygonF arrowAround(const QPointF &centre, bool pointsDown, bool isMirrored)
{
    const double tip = isMirrored ? -arrowDepth : arrowDepth;
    if (pointsDown)
        return QPolygonF({{-arrowLength, -arrowDepth}, {0, arrowDepth}, {arrowLength, -arrowDepth}})
            .translated(centre);
    return QPolygonF({{-tip, -arrowLength}, {tip, 0}, {-tip, arrowLength}}).translated(centre);
}

} // namespace

FoldTitle::FoldTitle(const QString &text, QWidget *parent)
    : QToolButton(parent)
{
    setText(text);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    followSizes(this, [this] { updateGeometry(); });
}

void FoldTitle::setOpen(bool open)
{
    m_isOpen = open;
    update();
}

QSize FoldTitle::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + smallGap + arrowSide,
            qMax(sizes().field, fontMetrics().height())};
}

QRect FoldTitle::textPlace() const
{
    const QRect place = rect().adjusted(0, 0, -smallGap - arrowSide, 0);
    return QStyle::visualRect(layoutDirection(), rect(), place);
}

QRect FoldTitle::arrowPlace() const
{
    const QRect place(width() - arrowSide, (height() - arrowSide) / 2, arrowSide, arrowSide);
    return QStyle::visualRect(layoutDirection(), rect(), place);
}

void FoldTitle::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const ThemeColors colors = themeColors();
    if (hasFocus()) {
        painter.setPen(QPen(colors.accent, focusWidth));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), focusRadius, focusRadius);
    }
    painter.setPen(colors.text);
    painter.drawText(textPlace(), QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter),
                     text());
    const QColor arrow = underMouse() ? colors.accent : colors.faint;
    painter.setPen(QPen(arrow, arrowPen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(arrowAround(QRectF(arrowPlace()).center(), m_isOpen, isRightToLeft()));
}

} // namespace board
