#include "core/texttables.h"

namespace board {

QVector<TextEntry> formTexts()
{
    return {
        {"IDS_BOARD_SETTINGS", "Settings", "Einstellungen"},
        {"IDS_BOARD_PROPERTIES", "Properties", "Eigenschaften"},
        {"IDS_BOARD_SETTINGS_ADVICE", "Select shapes to see what they let you set.",
         "Formen auswählen, um zu sehen, was sich an ihnen einstellen lässt."},
        {"IDS_BOARD_PROPERTIES_ADVICE", "Select shapes to see their properties.",
         "Formen auswählen, um ihre Eigenschaften zu sehen."},
        {"IDS_BOARD_NOTHING_IN_COMMON", "There is nothing to set here that all of them have.",
         "Hier gibt es nichts einzustellen, was alle haben."},
    };
}

} // namespace board
