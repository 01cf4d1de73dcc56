#include "core/texttables.h"

#include <QtCore/QtGlobal>

namespace board {

QVector<TextEntry> toolTexts()
{
    return {
        {"IDS_COLOR_BLACK", QT_TRANSLATE_NOOP("board", "Black")},
        {"IDS_COLOR_RED", QT_TRANSLATE_NOOP("board", "Red")},
        {"IDS_COLOR_BLUE", QT_TRANSLATE_NOOP("board", "Blue")},
        {"IDS_COLOR_GREEN", QT_TRANSLATE_NOOP("board", "Green")},
        {"IDS_COLOR_ORANGE", QT_TRANSLATE_NOOP("board", "Orange")},
        {"IDS_COLOR_PURPLE", QT_TRANSLATE_NOOP("board", "Purple")},
        {"IDS_COLOR_YELLOW", QT_TRANSLATE_NOOP("board", "Yellow")},
        {"IDS_COLOR_LIGHT_GREEN", QT_TRANSLATE_NOOP("board", "Light green")},
        {"IDS_COLOR_LIGHT_BLUE", QT_TRANSLATE_NOOP("board", "Light blue")},
        {"IDS_COLOR_PINK", QT_TRANSLATE_NOOP("board", "Pink")},
        {"IDS_COLOR_LIGHT_ORANGE", QT_TRANSLATE_NOOP("board", "Light orange")},
        {"IDS_COLOR_LIGHT_PURPLE", QT_TRANSLATE_NOOP("board", "Light purple")},
        {"IDS_COLOR_GREY", QT_TRANSLATE_NOOP("board", "Grey")},
        {"IDS_COLOR_TEAL", QT_TRANSLATE_NOOP("board", "Teal")},
        {"IDS_COLOR_OLIVE", QT_TRANSLATE_NOOP("board", "Olive")},
        {"IDS_COLOR_BROWN", QT_TRANSLATE_NOOP("board", "Brown")},
        {"IDS_COLOR_MAGENTA", QT_TRANSLATE_NOOP("board", "Magenta")},
        {"IDS_COLOR_WHITE", QT_TRANSLATE_NOOP("board", "White")},
        {"IDS_BOARD_MY_PENS", QT_TRANSLATE_NOOP("board", "My pens")},
        {"IDS_BOARD_MY_PEN", QT_TRANSLATE_NOOP("board", "Pen %1")},
        {"IDS_BOARD_ANY_COLOR", QT_TRANSLATE_NOOP("board", "Any colour")},
        {"IDS_BOARD_PRESSURE", QT_TRANSLATE_NOOP("board", "Pressure changes width")},
        {"IDS_BOARD_STRAIGHTEN", QT_TRANSLATE_NOOP("board", "Straighten when held still")},
        {"IDS_BOARD_TOOL_OPTIONS", QT_TRANSLATE_NOOP("board", "Pen options")},
        {"IDS_BOARD_ERASER_STROKES", QT_TRANSLATE_NOOP("board", "Whole strokes")},
        {"IDS_BOARD_ERASER_PARTS", QT_TRANSLATE_NOOP("board", "Parts of strokes")},
        {"IDS_BOARD_LINE_PLAIN", QT_TRANSLATE_NOOP("board", "Straight line")},
        {"IDS_BOARD_LINE_ARROW", QT_TRANSLATE_NOOP("board", "Arrow line")},
        {"IDS_BOARD_LINE_CURVE", QT_TRANSLATE_NOOP("board", "Curved line")},
        {"IDS_BOARD_CONNECTOR_STRAIGHT", QT_TRANSLATE_NOOP("board", "Straight connector")},
        {"IDS_BOARD_CONNECTOR_ANGLED", QT_TRANSLATE_NOOP("board", "Right-angled connector")},
        {"IDS_BOARD_CONNECTOR_ARROW", QT_TRANSLATE_NOOP("board", "Straight arrow")},
        {"IDS_BOARD_CONNECTOR_ANGLED_ARROW", QT_TRANSLATE_NOOP("board", "Right-angled arrow")},
    };
}

} // namespace board
