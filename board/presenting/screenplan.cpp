#include "presenting/screenplan.h"

namespace board {

ScreenPlan planScreens(const QVector<QRect> &screens, int own)
{
    const QRect here = screens.value(own);
    for (const QRect &screen : screens)
        if (!screen.intersects(here))
            return {screen, here};
    return {here, {}};
}

} // namespace board
