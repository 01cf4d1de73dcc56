#include "core/texttables.h"

#include <QtCore/QtGlobal>

namespace board {

QVector<TextEntry> formTexts()
{
    return {
        {"IDS_BOARD_PROPERTIES", QT_TRANSLATE_NOOP("board", "Properties")},
        {"IDS_BOARD_NO_NUMBER",
         QT_TRANSLATE_NOOP("board", "“%1” is no number. Type one such as 40, 120/3 or +10.")},
        {"IDS_BOARD_OUT_OF_RANGE", QT_TRANSLATE_NOOP("board", "Numbers from %1 to %2 can be set here.")},
        {"IDS_BOARD_NOTHING_IN_COMMON",
         QT_TRANSLATE_NOOP("board", "There is nothing to set here that all of them have.")},
    };
}

} // namespace board
