#include "core/texttables.h"

namespace board {

QVector<TextEntry> clipboardTexts()
{
    return {
        {"IDS_BOARD_CUT", "Cut", "Ausschneiden"},
        {"IDS_BOARD_COPY", "Copy", "Kopieren"},
        {"IDS_BOARD_PASTE", "Paste", "Einfügen"},
        {"IDS_BOARD_COPY_STYLE", "Copy look", "Aussehen kopieren"},
        {"IDS_BOARD_PASTE_STYLE", "Paste look", "Aussehen einfügen"},
        {"IDS_BOARD_PASTED_IN_PART", "Not everything could be pasted.", "Nicht alles konnte eingefügt werden."},
        {"IDS_BOARD_NOT_PASTED", "There is nothing on the clipboard that can be pasted here.",
         "In der Zwischenablage ist nichts, was hier eingefügt werden kann."},
        {"IDS_BOARD_NOT_DROPPED", "“%1” is nothing that can be put on a page.",
         "„%1“ kann nicht auf eine Seite gelegt werden."},
    };
}

} // namespace board
