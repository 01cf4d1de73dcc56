#include "core/texttables.h"

#include <QtCore/QtGlobal>

namespace board {

QVector<TextEntry> clipboardTexts()
{
    return {
        {"IDS_BOARD_ADD_WORKSHEET", QT_TRANSLATE_NOOP("board", "Add worksheet")},
        {"IDS_BOARD_INSERTABLE", QT_TRANSLATE_NOOP("board", "Pictures, drawings and worksheets")},
        {"IDS_BOARD_WORKSHEETS", QT_TRANSLATE_NOOP("board", "Worksheets")},
        {"IDS_BOARD_READING_PDF", QT_TRANSLATE_NOOP("board", "Reading “%1” …")},
        {"IDS_BOARD_STOP_READING", QT_TRANSLATE_NOOP("board", "Stop")},
        {"IDS_BOARD_NO_PDF_CONVERTER",
         QT_TRANSLATE_NOOP("board",
                           "“%1” could not be read: install “poppler-utils”, which turns PDFs into pages.")},
        {"IDS_BOARD_PDF_UNREADABLE",
         QT_TRANSLATE_NOOP("board",
                           "“%1” could not be read: it is damaged, locked with a password, or too large.")},
        {"IDS_BOARD_PDF_TOO_LONG",
         QT_TRANSLATE_NOOP("board",
                           "“%1” has more than 100 pages. Save those that you need as a PDF of their own.")},
        {"IDS_BOARD_PDF_TOO_SLOW",
         QT_TRANSLATE_NOOP("board", "“%1” could not be read: a page of it takes more than 30 seconds.")},
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
