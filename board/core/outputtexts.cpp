#include "core/texttables.h"

#include <QtCore/QtGlobal>

namespace board {

QVector<TextEntry> outputTexts()
{
    return {
        {"IDS_BOARD_EXPORT", QT_TRANSLATE_NOOP("board", "Export…")},
        {"IDS_BOARD_EXPORT_WHAT", QT_TRANSLATE_NOOP("board", "What")},
        {"IDS_BOARD_EXPORT_PAGE", QT_TRANSLATE_NOOP("board", "This page")},
        {"IDS_BOARD_EXPORT_ALL", QT_TRANSLATE_NOOP("board", "All pages")},
        {"IDS_BOARD_EXPORT_SELECTION", QT_TRANSLATE_NOOP("board", "Selected objects")},
        {"IDS_BOARD_EXPORT_AS", QT_TRANSLATE_NOOP("board", "As")},
        {"IDS_BOARD_EXPORT_PNG", QT_TRANSLATE_NOOP("board", "Picture (PNG)")},
        {"IDS_BOARD_EXPORT_SVG", QT_TRANSLATE_NOOP("board", "Drawing (SVG)")},
        {"IDS_BOARD_EXPORT_PDF", QT_TRANSLATE_NOOP("board", "Document (PDF)")},
        {"IDS_BOARD_EXPORT_WIDTH", QT_TRANSLATE_NOOP("board", "Width")},
        {"IDS_BOARD_EXPORT_SIZE", QT_TRANSLATE_NOOP("board", "Size")},
        {"IDS_BOARD_EXPORT_PIXELS", QT_TRANSLATE_NOOP("board", "%1 × %2 pixels")},
        {"IDS_BOARD_EXPORT_NO_PIXELS", QT_TRANSLATE_NOOP("board", "Sharp at any size")},
        {"IDS_BOARD_EXPORT_GO", QT_TRANSLATE_NOOP("board", "Export")},
        {"IDS_BOARD_EXPORTING", QT_TRANSLATE_NOOP("board", "Writing the pages…")},
        {"IDS_BOARD_EXPORTED", QT_TRANSLATE_NOOP("board", "%1 files written to %2")},
        {"IDS_BOARD_EXPORTED_ONE", QT_TRANSLATE_NOOP("board", "Written to %1")},
        {"IDS_BOARD_NOT_EXPORTED", QT_TRANSLATE_NOOP("board", "Not everything could be exported.")},
        {"IDS_BOARD_EXPORT_CANCELLED", QT_TRANSLATE_NOOP("board", "The export was cancelled.")},
        {"IDS_BOARD_PRINT", QT_TRANSLATE_NOOP("board", "Print…")},
        {"IDS_BOARD_PRINT_LAYOUT", QT_TRANSLATE_NOOP("board", "Layout")},
        {"IDS_BOARD_PAGES_PER_SHEET", QT_TRANSLATE_NOOP("board", "Pages per sheet")},
        {"IDS_BOARD_PRINTING", QT_TRANSLATE_NOOP("board", "Printing the pages…")},
        {"IDS_BOARD_NOT_PRINTED", QT_TRANSLATE_NOOP("board", "The pages could not be printed.")},
    };
}

} // namespace board
