#include "documents/documenttexts.h"

namespace board {

QVector<TextEntry> documentTexts()
{
    return {
        {"IDS_BOARD_NEW", "New board", "Neue Tafel"},
        {"IDS_BOARD_OPEN", "Open…", "Öffnen…"},
        {"IDS_BOARD_RECENT", "Open recent", "Zuletzt geöffnet"},
        {"IDS_BOARD_CLEAR_RECENT", "Clear this list", "Liste leeren"},
        {"IDS_BOARD_SAVE", "Save", "Speichern"},
        {"IDS_BOARD_SAVE_AS", "Save as…", "Speichern unter…"},
        {"IDS_BOARD_UNTITLED", "Untitled", "Unbenannt"},
        {"IDS_BOARD_ALL_BOARDS", "Boards", "Tafeln"},
        {"IDS_BOARD_BINARY_BOARDS", "Board", "Tafel"},
        {"IDS_BOARD_JSON_BOARDS", "Board as readable text", "Tafel als lesbarer Text"},
        {"IDS_BOARD_ALL_FILES", "All files", "Alle Dateien"},

        {"IDS_BOARD_KEEP_TITLE", "Save the changes to “%1”?", "Die Änderungen an „%1“ speichern?"},
        {"IDS_BOARD_KEEP_TEXT", "Otherwise they are lost.", "Sonst gehen sie verloren."},
        {"IDS_BOARD_KEEP_DISCARD", "Don't save", "Nicht speichern"},
        {"IDS_BOARD_KEEP_CANCEL", "Cancel", "Abbrechen"},
        {"IDS_BOARD_REPLACE_TITLE", "“%1” exists already. Replace it?", "„%1“ gibt es schon. Ersetzen?"},
        {"IDS_BOARD_REPLACE_SEVERAL", "%1 files exist already. Replace them?",
         "%1 Dateien gibt es schon. Ersetzen?"},
        {"IDS_BOARD_REPLACE", "Replace", "Ersetzen"},

        {"IDS_BOARD_SAVED", "Saved: %1", "Gespeichert: %1"},
        {"IDS_BOARD_NOT_SAVED", "“%1” was not saved. Your work is still here: save it elsewhere or try again.",
         "„%1“ wurde nicht gespeichert. Die Arbeit ist noch da: anderswo speichern oder noch einmal versuchen."},
        {"IDS_BOARD_NOT_OPENED", "“%1” could not be opened.", "„%1“ konnte nicht geöffnet werden."},
        {"IDS_BOARD_OPENED_IN_PART", "“%1” could not be read completely.",
         "„%1“ konnte nicht vollständig gelesen werden."},
        {"IDS_BOARD_RECOVERABLE",
         "The board was not closed properly. Unsaved work of “%1” from %2 can be brought back.",
         "Die Tafel wurde nicht ordentlich geschlossen. Ungespeicherte Arbeit an „%1“ von %2 ist noch da."},
        {"IDS_BOARD_RECOVER", "Bring back", "Wiederherstellen"},
        {"IDS_BOARD_FORGET", "Delete", "Löschen"},
        {"IDS_BOARD_RECOVERED_IN_PART", "The unsaved work could not be read completely.",
         "Die ungespeicherte Arbeit konnte nicht vollständig gelesen werden."},
        {"IDS_BOARD_AUTOSAVE_FAILED", "The changes could not be put aside in case of a crash.",
         "Die Änderungen konnten nicht für den Fall eines Absturzes gesichert werden."},
        {"IDS_BOARD_ALL_MESSAGES", "Show all…", "Alle zeigen…"},
        {"IDS_BOARD_MESSAGES", "Messages", "Meldungen"},
    };
}

} // namespace board
