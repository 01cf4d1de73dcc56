#include "core/texttables.h"

#include <QtCore/QtGlobal>

namespace board {

QVector<TextEntry> documentTexts()
{
    return {
        {"IDS_BOARD_NEW", QT_TRANSLATE_NOOP("board", "New board")},
        {"IDS_BOARD_OPEN", QT_TRANSLATE_NOOP("board", "Open…")},
        {"IDS_BOARD_RECENT", QT_TRANSLATE_NOOP("board", "Open recent")},
        {"IDS_BOARD_CLEAR_RECENT", QT_TRANSLATE_NOOP("board", "Clear this list")},
        {"IDS_BOARD_SAVE", QT_TRANSLATE_NOOP("board", "Save")},
        {"IDS_BOARD_SAVE_AS", QT_TRANSLATE_NOOP("board", "Save as…")},
        {"IDS_BOARD_UNTITLED", QT_TRANSLATE_NOOP("board", "Untitled")},
        {"IDS_BOARD_ALL_BOARDS", QT_TRANSLATE_NOOP("board", "Boards")},
        {"IDS_BOARD_BINARY_BOARDS", QT_TRANSLATE_NOOP("board", "Board")},
        {"IDS_BOARD_JSON_BOARDS", QT_TRANSLATE_NOOP("board", "Board as readable text")},
        {"IDS_BOARD_ALL_FILES", QT_TRANSLATE_NOOP("board", "All files")},

        {"IDS_BOARD_KEEP_TITLE", QT_TRANSLATE_NOOP("board", "Save the changes to “%1”?")},
        {"IDS_BOARD_KEEP_TEXT", QT_TRANSLATE_NOOP("board", "Otherwise they are lost.")},
        {"IDS_BOARD_KEEP_DISCARD", QT_TRANSLATE_NOOP("board", "Don't save")},
        {"IDS_BOARD_KEEP_CANCEL", QT_TRANSLATE_NOOP("board", "Cancel")},
        {"IDS_BOARD_REPLACE_TITLE", QT_TRANSLATE_NOOP("board", "“%1” exists already. Replace it?")},
        {"IDS_BOARD_REPLACE_SEVERAL", QT_TRANSLATE_NOOP("board", "%1 files exist already. Replace them?")},
        {"IDS_BOARD_REPLACE", QT_TRANSLATE_NOOP("board", "Replace")},

        {"IDS_BOARD_CONFLICT_TITLE", QT_TRANSLATE_NOOP("board", "“%1” was changed by somebody else.")},
        {"IDS_BOARD_CONFLICT_TEXT",
         QT_TRANSLATE_NOOP("board", "The file is not what this board was opened from or saved to.")},
        {"IDS_BOARD_CONFLICT_BOTH", QT_TRANSLATE_NOOP("board", "Save both")},
        {"IDS_BOARD_CONFLICT_MINE", QT_TRANSLATE_NOOP("board", "Keep mine")},
        {"IDS_BOARD_CONFLICT_THEIRS", QT_TRANSLATE_NOOP("board", "Take theirs")},
        {"IDS_BOARD_CONFLICT_DECIDE", QT_TRANSLATE_NOOP("board", "Decide…")},
        {"IDS_BOARD_FILE_GONE", QT_TRANSLATE_NOOP("board", "“%1” is no longer there. Saving writes it again.")},
        {"IDS_BOARD_SHARED_TITLE", QT_TRANSLATE_NOOP("board", "Save over “%1”?")},
        {"IDS_BOARD_LINKS_TEXT",
         QT_TRANSLATE_NOOP("board", "The file has further names (%1 hard links). Saving gives this name a file of "
                                    "its own: under the others the board stays as it was.")},
        {"IDS_BOARD_OWNER_TEXT",
         QT_TRANSLATE_NOOP("board", "The file belongs to somebody else. Once you have saved it, it is yours.")},
        {"IDS_BOARD_SAVE_HERE", QT_TRANSLATE_NOOP("board", "Save here")},
        {"IDS_BOARD_REPAIRED_NAME", QT_TRANSLATE_NOOP("board", "%1 (repaired)")},
        {"IDS_BOARD_DAMAGED_NAME", QT_TRANSLATE_NOOP("board", "%1 (damaged)")},

        {"IDS_BOARD_NOT_SAVED",
         QT_TRANSLATE_NOOP("board",
                           "“%1” was not saved. Your work is still here: save it elsewhere or try again.")},
        {"IDS_BOARD_NOT_OPENED", QT_TRANSLATE_NOOP("board", "“%1” could not be opened.")},
        {"IDS_BOARD_OPENED_IN_PART", QT_TRANSLATE_NOOP("board", "“%1” could not be read completely.")},
        {"IDS_BOARD_RECOVERABLE",
         QT_TRANSLATE_NOOP("board", "The board was not closed properly. Unsaved work can be brought back: %1.")},
        {"IDS_BOARD_RECOVERY_NAME", QT_TRANSLATE_NOOP("board", "“%1” from %2")},
        {"IDS_BOARD_RECOVERY_ONE_PAGE", QT_TRANSLATE_NOOP("board", "%1, %2 page")},
        {"IDS_BOARD_RECOVERY_PAGES", QT_TRANSLATE_NOOP("board", "%1, %2 pages")},
        {"IDS_BOARD_RECOVER", QT_TRANSLATE_NOOP("board", "Bring back")},
        {"IDS_BOARD_FORGET", QT_TRANSLATE_NOOP("board", "Delete…")},
        {"IDS_BOARD_FORGET_TITLE", QT_TRANSLATE_NOOP("board", "Delete the unsaved work? %1")},
        {"IDS_BOARD_FORGET_TEXT", QT_TRANSLATE_NOOP("board", "It cannot be brought back then.")},
        {"IDS_BOARD_FORGET_FOR_EVER", QT_TRANSLATE_NOOP("board", "Delete for ever")},
        {"IDS_BOARD_RECOVERED_IN_PART",
         QT_TRANSLATE_NOOP("board", "The unsaved work could not be read completely.")},
        {"IDS_BOARD_AUTOSAVE_FAILED",
         QT_TRANSLATE_NOOP("board", "The changes could not be put aside in case of a crash.")},
        {"IDS_BOARD_SHAPE_FAULTS", QT_TRANSLATE_NOOP("board", "Files of shapes that cannot be used")},
        {"IDS_BOARD_SHAPE_VERSION",
         QT_TRANSLATE_NOOP("board", "A shape on the pages is of another version than its file has now.")},
        {"IDS_BOARD_SHAPE_VERSIONS",
         QT_TRANSLATE_NOOP("board", "%1 shapes on the pages are of another version than their files have now.")},
        {"IDS_BOARD_UPDATE_SHAPE", QT_TRANSLATE_NOOP("board", "Update the shape")},
        {"IDS_BOARD_UPDATE_SHAPES", QT_TRANSLATE_NOOP("board", "Update %1 shapes")},
        {"IDS_BOARD_ALL_MESSAGES", QT_TRANSLATE_NOOP("board", "Show all…")},
        {"IDS_BOARD_MESSAGES", QT_TRANSLATE_NOOP("board", "Messages")},
    };
}

} // namespace board
