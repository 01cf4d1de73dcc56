#include "core/texttables.h"

#include <QtCore/QtGlobal>

namespace board {

QVector<TextEntry> formTexts()
{
    return {
        {"IDS_BOARD_LOOK", QT_TRANSLATE_NOOP("board", "Look")},
        {"IDS_BOARD_FOR_NEW_ONES", QT_TRANSLATE_NOOP("board", "Use for new ones")},
        {"IDS_BOARD_FOR_NEW_ONES_TIP",
         QT_TRANSLATE_NOOP("board", "Shapes that are drawn from now on look like this one")},
        {"IDS_BOARD_NO_NUMBER",
         QT_TRANSLATE_NOOP("board", "“%1” is no number. Type one such as 40, 120/3 or +10.")},
        {"IDS_BOARD_OUT_OF_RANGE", QT_TRANSLATE_NOOP("board", "Numbers from %1 to %2 can be set here.")},
        {"IDS_BOARD_NOTHING_IN_COMMON",
         QT_TRANSLATE_NOOP("board", "There is nothing to set here that all of them have.")},
    };
}

} // namespace board
