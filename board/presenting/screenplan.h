#pragma once

#include <QtCore/QRect>
#include <QtCore/QVector>

#include <optional>

namespace board {

/// Where a presentation is shown, in coordinates of the desktop.
struct ScreenPlan
{
    QRect page;                     ///< the page alone
    std::optional<QRect> presenter; ///< page, next page and time, for who presents
};

/// With one screen the page covers it. With a second one the page goes there, and the presenter's view to the
/// screen of the window, `own`. Screens that show the same count as one.
ScreenPlan planScreens(const QVector<QRect> &screens, int own);

} // namespace board
