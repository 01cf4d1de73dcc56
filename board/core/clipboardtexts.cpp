#include "core/texttables.h"

#include <QtCore/QtGlobal>

namespace board {

QVector<TextEntry> clipboardTexts()
{
    return {
        {"IDS_BOARD_CUT", QT_TRANSLATE_NOOP("board", "Cut")},
        {"IDS_BOARD_COPY", QT_TRANSLATE_NOOP("board", "Copy")},
        {"IDS_BOARD_PASTE", QT_TRANSLATE_NOOP("board", "Paste")},
        {"IDS_BOARD_COPY_STYLE", QT_TRANSLATE_NOOP("board", "Copy look")},
        {"IDS_BOARD_PASTE_STYLE", QT_TRANSLATE_NOOP("board", "Paste look")},
        {"IDS_BOARD_PASTED_IN_PART", QT_TRANSLATE_NOOP("board", "Not everything could be pasted.")},
        {"IDS_BOARD_NOT_PASTED",
         QT_TRANSLATE_NOOP("board", "There is nothing on the clipboard that can be pasted here.")},
        {"IDS_BOARD_NOT_DROPPED", QT_TRANSLATE_NOOP("board", "“%1” is nothing that can be put on a page.")},
    };
}

} // namespace board
