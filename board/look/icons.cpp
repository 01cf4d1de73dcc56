#include "look/icons.h"

#include "look/iconshapes.h"
#include "look/theme.h"

#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>

namespace board {

namespace {

constexpr double lineWidth = 1.75;
constexpr int shadeAlpha = 70;

/// Pictures of before and after.
bool pointsAlongText(Icon which)
{
    return which == Icon::Previous || which == Icon::Next || which == Icon::Undo || which == Icon::Redo;
}

class ShapeIconEngine : public QIconEngine
{
public:
    ShapeIconEngine(Icon which, QPalette::ColorRole role)
        : m_which(which)
        , m_role(role)
    {
    }

    QIconEngine *clone() const override { return new ShapeIconEngine(m_which, m_role); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const bool isLive = (m_which == Icon::Record || m_which == Icon::Stop) && mode != QIcon::Disabled;
        const bool isChosen = state == QIcon::On && mode != QIcon::Disabled && m_role == QPalette::ButtonText;
        // Lists ask for it on their selected rows, which have the accent behind them.
        const QPalette::ColorRole role = mode == QIcon::Selected ? QPalette::HighlightedText : m_role;
        const QColor usual = isChosen ? themeColors().accent : QApplication::palette().color(group, role);
        paintIcon(painter, rect, m_which, isLive ? themeColors().record : usual);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        // A button may be squeezed to nothing while its panel is laid out.
        if (size.isEmpty())
            return {};
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return picture;
    }

private:
    Icon m_which;
    QPalette::ColorRole m_role;
};

} // namespace

QIcon icon(Icon which, QPalette::ColorRole role)
{
    return QIcon(new ShapeIconEngine(which, role));
}

void paintIcon(QPainter *painter, const QRect &rect, Icon which, const QColor &color)
{
    QColor shade = color;
    shade.setAlpha(shadeAlpha);
    const IconShape shape = iconShape(which);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / iconGrid, rect.height() / iconGrid);
    if (pointsAlongText(which) && QGuiApplication::isRightToLeft())
        painter->setTransform(QTransform(-1, 0, 0, 1, iconGrid, 0), true);
    painter->fillPath(shape.shades, shade);
    painter->fillPath(shape.areas, color);
    painter->strokePath(shape.lines, QPen(color, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->restore();
}

} // namespace board
