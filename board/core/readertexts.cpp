#include "core/texttables.h"

#include <QtCore/QtGlobal>

namespace board {

QVector<TextEntry> readerTexts()
{
    return {
        {"IDS_BOARD_ONE_OBJECT", QT_TRANSLATE_NOOP("board", "1 object")},
        {"IDS_BOARD_COUNTED", QT_TRANSLATE_NOOP("board", "%1 %2")},
        {"IDS_BOARD_SWITCHED_ON", QT_TRANSLATE_NOOP("board", "%1: yes")},
        {"IDS_BOARD_SWITCHED_OFF", QT_TRANSLATE_NOOP("board", "%1: no")},
        {"IDS_BOARD_QUOTED", QT_TRANSLATE_NOOP("board", "“%1”")},
        {"IDS_BOARD_PLACED_AT", QT_TRANSLATE_NOOP("board", "at %1, %2")},
        {"IDS_BOARD_TURNED_BY", QT_TRANSLATE_NOOP("board", "turned by %1°")},
        {"IDS_BOARD_POINT_NAME", QT_TRANSLATE_NOOP("board", "Point %1")},
        {"IDS_BOARD_POINT_ACROSS", QT_TRANSLATE_NOOP("board", "%1, across")},
        {"IDS_BOARD_POINT_DOWN", QT_TRANSLATE_NOOP("board", "%1, down")},
        {"IDS_BOARD_PRESENTING_BEGUN", QT_TRANSLATE_NOOP("board", "Presenting has begun")},
        {"IDS_BOARD_PRESENTING_ENDED", QT_TRANSLATE_NOOP("board", "Presenting has ended")},
        {"IDS_BOARD_PREVIOUS_IS_NONE", QT_TRANSLATE_NOOP("board", "This is the first page")},
        {"IDS_BOARD_CURTAIN_DRAWN", QT_TRANSLATE_NOOP("board", "The curtain is drawn")},
        {"IDS_BOARD_CURTAIN_OPEN", QT_TRANSLATE_NOOP("board", "The curtain is open")},
        {"IDS_BOARD_SIZE_GRIP", QT_TRANSLATE_NOOP("board", "Size")},
    };
}

} // namespace board
