#include "core/texttables.h"

#include <QtCore/QtGlobal>

namespace board {

QVector<TextEntry> commandTexts()
{
    return {
        {"IDS_BOARD_EDIT_TEXT", QT_TRANSLATE_NOOP("board", "Edit text")},
        {"IDS_BOARD_LOCK", QT_TRANSLATE_NOOP("board", "Lock")},
        {"IDS_BOARD_UNLOCK", QT_TRANSLATE_NOOP("board", "Unlock")},
        {"IDS_BOARD_ALIGN", QT_TRANSLATE_NOOP("board", "Align")},
        {"IDS_BOARD_ORDER", QT_TRANSLATE_NOOP("board", "Order")},
        {"IDS_BOARD_ALIGN_LEFT", QT_TRANSLATE_NOOP("board", "Align left edges")},
        {"IDS_BOARD_ALIGN_CENTER", QT_TRANSLATE_NOOP("board", "Align centres across")},
        {"IDS_BOARD_ALIGN_RIGHT", QT_TRANSLATE_NOOP("board", "Align right edges")},
        {"IDS_BOARD_ALIGN_TOP", QT_TRANSLATE_NOOP("board", "Align top edges")},
        {"IDS_BOARD_ALIGN_MIDDLE", QT_TRANSLATE_NOOP("board", "Align centres down")},
        {"IDS_BOARD_ALIGN_BOTTOM", QT_TRANSLATE_NOOP("board", "Align bottom edges")},
        {"IDS_BOARD_DISTRIBUTE_ACROSS", QT_TRANSLATE_NOOP("board", "Equal gaps across")},
        {"IDS_BOARD_DISTRIBUTE_DOWN", QT_TRANSLATE_NOOP("board", "Equal gaps down")},
        {"IDS_BOARD_DISTRIBUTE", QT_TRANSLATE_NOOP("board", "Equal gaps")},
        {"IDS_BOARD_ALL_PROPERTIES", QT_TRANSLATE_NOOP("board", "All properties")},
        {"IDS_BOARD_SAME_SIZE", QT_TRANSLATE_NOOP("board", "Same size")},
        {"IDS_BOARD_DUPLICATE_PAGE", QT_TRANSLATE_NOOP("board", "Duplicate page")},
        {"IDS_BOARD_MOVE_PAGE", QT_TRANSLATE_NOOP("board", "Move page")},
        {"IDS_BOARD_MOVE_PAGE_BACK", QT_TRANSLATE_NOOP("board", "Move page back")},
        {"IDS_BOARD_MOVE_PAGE_ON", QT_TRANSLATE_NOOP("board", "Move page on")},
        {"IDS_BOARD_FIRST_PAGE", QT_TRANSLATE_NOOP("board", "First page")},
        {"IDS_BOARD_LAST_PAGE", QT_TRANSLATE_NOOP("board", "Last page")},
        {"IDS_TOOL_SELECT", QT_TRANSLATE_NOOP("board", "Select")},
        {"IDS_TOOL_PEN", QT_TRANSLATE_NOOP("board", "Pen")},
        {"IDS_TOOL_HIGHLIGHTER", QT_TRANSLATE_NOOP("board", "Highlighter")},
        {"IDS_TOOL_ERASER", QT_TRANSLATE_NOOP("board", "Eraser")},
        {"IDS_TOOL_TEXT", QT_TRANSLATE_NOOP("board", "Text")},
        {"IDS_TOOL_LINE", QT_TRANSLATE_NOOP("board", "Line")},
        {"IDS_TOOL_CONNECTOR", QT_TRANSLATE_NOOP("board", "Connector")},
        {"IDS_TOOL_LASER", QT_TRANSLATE_NOOP("board", "Laser pointer")},
        {"IDS_TOOL_KEEP", QT_TRANSLATE_NOOP("board", "Keep the tool")},
        {"IDS_TOOL_RECTANGLE", QT_TRANSLATE_NOOP("board", "Rectangle")},
        {"IDS_TOOL_ELLIPSE", QT_TRANSLATE_NOOP("board", "Ellipse")},
        {"IDS_TOOL_ARROW", QT_TRANSLATE_NOOP("board", "Arrow")},
        {"IDS_BOARD_INSERT", QT_TRANSLATE_NOOP("board", "Insert")},
        {"IDS_BOARD_ZOOM_SELECTION", QT_TRANSLATE_NOOP("board", "Zoom to the selection")},
        {"IDS_BOARD_GRID", QT_TRANSLATE_NOOP("board", "Grid")},
        {"IDS_BOARD_SNAPPING", QT_TRANSLATE_NOOP("board", "Snapping")},
        {"IDS_BOARD_PANEL", QT_TRANSLATE_NOOP("board", "Panel")},
        {"IDS_BOARD_NEXT_PART", QT_TRANSLATE_NOOP("board", "Next part of the window")},
        {"IDS_BOARD_PREVIOUS_PART", QT_TRANSLATE_NOOP("board", "Previous part of the window")},
        {"IDS_BOARD_MENUS", QT_TRANSLATE_NOOP("board", "Menus")},
        {"IDS_BOARD_PAGE_STRIP", QT_TRANSLATE_NOOP("board", "Page strip")},
        {"IDS_BOARD_CONTEXT_MENU", QT_TRANSLATE_NOOP("board", "Context menu")},
        {"IDS_BOARD_PRESENT", QT_TRANSLATE_NOOP("board", "Present")},
        {"IDS_BOARD_PRESENT_FROM_START", QT_TRANSLATE_NOOP("board", "Present from page 1")},
        {"IDS_BOARD_KEYS", QT_TRANSLATE_NOOP("board", "Keys…")},
        {"IDS_BOARD_FIND_COMMAND", QT_TRANSLATE_NOOP("board", "Find a command or shape…")},
        {"IDS_BOARD_LETTER_KEYS", QT_TRANSLATE_NOOP("board", "Keys without Ctrl")},
    };
}

} // namespace board
