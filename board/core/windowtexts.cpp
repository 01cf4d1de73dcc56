#include "core/texttables.h"

#include <QtCore/QtGlobal>

namespace board {

QVector<TextEntry> windowTexts()
{
    return {
        {"IDS_BOARD_TOP_BAR", QT_TRANSLATE_NOOP("board", "Bar at the top")},
        {"IDS_BOARD_MENU", QT_TRANSLATE_NOOP("board", "&Menu")},
        {"IDS_BOARD_IS_SAVED", QT_TRANSLATE_NOOP("board", "Saved")},
        {"IDS_BOARD_UNSAVED", QT_TRANSLATE_NOOP("board", "Not saved")},
        {"IDS_BOARD_PAGE_OF", QT_TRANSLATE_NOOP("board", "Page %1 of %2")},
        {"IDS_BOARD_SHELF", QT_TRANSLATE_NOOP("board", "Colours and widths")},
        {"IDS_BOARD_TOOL_WIDTH", QT_TRANSLATE_NOOP("board", "Width %1")},
        {"IDS_BOARD_TOOL_LETTERS", QT_TRANSLATE_NOOP("board", "Letters of size %1")},
        {"IDS_BOARD_STYLE_BAR", QT_TRANSLATE_NOOP("board", "Bar at the selection")},
        {"IDS_BOARD_LINK", QT_TRANSLATE_NOOP("board", "Link")},
        {"IDS_BOARD_USUAL_FONT", QT_TRANSLATE_NOOP("board", "Standard")},
        {"IDS_BOARD_PASTE_PLAIN", QT_TRANSLATE_NOOP("board", "Paste letters alone")},
        {"IDS_BOARD_TEXT_SETTINGS", QT_TRANSLATE_NOOP("board", "All settings of the text")},
        {"IDS_BOARD_NEW_SHAPE", QT_TRANSLATE_NOOP("board", "New shape…")},
        {"IDS_BOARD_SHAPE_NAME", QT_TRANSLATE_NOOP("board", "Name of the shape")},
        {"IDS_BOARD_OPEN_SHAPES", QT_TRANSLATE_NOOP("board", "Open folder of shapes")},
        {"IDS_BOARD_SHAPE_NOT_WRITTEN", QT_TRANSLATE_NOOP("board", "The shape could not be written")},
        {"IDS_BOARD_PIN", QT_TRANSLATE_NOOP("board", "Pin to the window")},
        {"IDS_BOARD_OBJECT", QT_TRANSLATE_NOOP("board", "Object")},
        {"IDS_BOARD_OUTLINE", QT_TRANSLATE_NOOP("board", "Outline")},
        {"IDS_BOARD_HIDE", QT_TRANSLATE_NOOP("board", "Hide")},
        {"IDS_BOARD_SHOW", QT_TRANSLATE_NOOP("board", "Show")},
        {"IDS_BOARD_GROUP_OF", QT_TRANSLATE_NOOP("board", "Group (%1)")},
        {"IDS_BOARD_OUTLINE_EMPTY", QT_TRANSLATE_NOOP("board", "Nothing on this page yet.")},
        {"IDS_BOARD_HISTORY_EMPTY", QT_TRANSLATE_NOOP("board", "Changes will be listed here.")},
        {"IDS_BOARD_LAST_USED", QT_TRANSLATE_NOOP("board", "Last used")},
        {"IDS_BOARD_NO_SUCH_SHAPE", QT_TRANSLATE_NOOP("board", "No shape called “%1”.")},
        {"IDS_BOARD_ALL_SHAPES", QT_TRANSLATE_NOOP("board", "All shapes")},
        {"IDS_FIND_BAR", QT_TRANSLATE_NOOP("board", "Find and replace")},
        {"IDS_FIND_SOUGHT", QT_TRANSLATE_NOOP("board", "Find in texts")},
        {"IDS_FIND_REPLACEMENT", QT_TRANSLATE_NOOP("board", "Replace with")},
        {"IDS_FIND_CASE", QT_TRANSLATE_NOOP("board", "Match ca&se")},
        {"IDS_FIND_WORDS", QT_TRANSLATE_NOOP("board", "&Whole words")},
        {"IDS_FIND_REPLACE", QT_TRANSLATE_NOOP("board", "&Replace")},
        {"IDS_FIND_REPLACE_ALL", QT_TRANSLATE_NOOP("board", "Repla&ce all")},
        {"IDS_FIND_REPLACE_STEP", QT_TRANSLATE_NOOP("board", "Replace text")},
        {"IDS_FIND_PLACE", QT_TRANSLATE_NOOP("board", "%1 of %2")},
        {"IDS_FIND_HIDDEN_PLACE", QT_TRANSLATE_NOOP("board", "%1 of %2, hidden")},
        {"IDS_FIND_COUNT", QT_TRANSLATE_NOOP("board", "%1 found")},
        {"IDS_FIND_NOTHING", QT_TRANSLATE_NOOP("board", "Not found")},
        {"IDS_FIND_REPLACED", QT_TRANSLATE_NOOP("board", "%1 replaced")},
        {"IDS_FIND_REPLACED_SOME", QT_TRANSLATE_NOOP("board", "%1 replaced, %2 locked")},
        {"IDS_BOARD_DOCK", QT_TRANSLATE_NOOP("board", "Tools")},
        {"IDS_BOARD_DOCK_LEFT", QT_TRANSLATE_NOOP("board", "At the left")},
        {"IDS_BOARD_DOCK_RIGHT", QT_TRANSLATE_NOOP("board", "At the right")},
        {"IDS_BOARD_DOCK_TOP", QT_TRANSLATE_NOOP("board", "At the top")},
        {"IDS_BOARD_DOCK_BOTTOM", QT_TRANSLATE_NOOP("board", "At the bottom")},
        {"IDS_BOARD_LARGE_TOOLS", QT_TRANSLATE_NOOP("board", "Large buttons")},
        {"IDS_BOARD_LARGE_TOOLS_OFFER",
         QT_TRANSLATE_NOOP("board", "Tools can have large buttons for fingers. View has the way back.")},
    };
}

} // namespace board
