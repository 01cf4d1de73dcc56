#include "core/texttables.h"

#include <QtCore/QtGlobal>

namespace board {

QVector<TextEntry> toolTexts()
{
    return {
        {"IDS_BOARD_ERASER_STROKES", QT_TRANSLATE_NOOP("board", "Whole strokes")},
        {"IDS_BOARD_ERASER_PARTS", QT_TRANSLATE_NOOP("board", "Parts of strokes")},
        {"IDS_BOARD_LINE_PLAIN", QT_TRANSLATE_NOOP("board", "Straight line")},
        {"IDS_BOARD_LINE_ARROW", QT_TRANSLATE_NOOP("board", "Arrow line")},
        {"IDS_BOARD_LINE_CURVE", QT_TRANSLATE_NOOP("board", "Curved line")},
        {"IDS_BOARD_CONNECTOR_STRAIGHT", QT_TRANSLATE_NOOP("board", "Straight connector")},
        {"IDS_BOARD_CONNECTOR_ANGLED", QT_TRANSLATE_NOOP("board", "Right-angled connector")},
    };
}

} // namespace board
