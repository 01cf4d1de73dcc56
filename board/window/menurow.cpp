#include "window/menurow.h"

#include <QtWidgets/QStyle>

namespace board {

/// Qt takes the right end of the titles, which is the bar's own where they begin at the right.
QSize MenuRow::sizeHint() const
{
    const QSize usual = QMenuBar::sizeHint();
    if (!isRightToLeft())
        return usual;
    QRect titles;
    const QList<QAction *> all = actions();
    for (QAction *action : all)
        titles |= actionGeometry(action);
    const int edge = style()->pixelMetric(QStyle::PM_MenuBarPanelWidth, nullptr, this) +
                     style()->pixelMetric(QStyle::PM_MenuBarHMargin, nullptr, this) +
                     style()->pixelMetric(QStyle::PM_MenuBarItemSpacing, nullptr, this);
    return {titles.width() + 2 * edge, usual.height()};
}

} // namespace board
