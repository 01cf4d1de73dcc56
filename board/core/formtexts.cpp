#include "core/texttables.h"

#include <QtCore/QtGlobal>

namespace board {

QVector<TextEntry> formTexts()
{
    return {
        {"IDS_BOARD_PROPERTIES", QT_TRANSLATE_NOOP("board", "Properties")},
        {"IDS_BOARD_NOTHING_IN_COMMON",
         QT_TRANSLATE_NOOP("board", "There is nothing to set here that all of them have.")},
    };
}

} // namespace board
