#include "core/texttables.h"

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

        {"IDS_BOARD_CONFLICT_TITLE", "“%1” was changed by somebody else.",
         "„%1“ wurde von jemand anderem geändert."},
        {"IDS_BOARD_CONFLICT_TEXT", "The file is not what this board was opened from or saved to.",
         "Die Datei ist nicht die, aus der diese Tafel geöffnet oder in die sie gespeichert wurde."},
        {"IDS_BOARD_CONFLICT_BOTH", "Save both", "Beide behalten"},
        {"IDS_BOARD_CONFLICT_MINE", "Keep mine", "Meine behalten"},
        {"IDS_BOARD_CONFLICT_THEIRS", "Take theirs", "Andere übernehmen"},
        {"IDS_BOARD_CONFLICT_DECIDE", "Decide…", "Entscheiden…"},
        {"IDS_BOARD_FILE_GONE", "“%1” is no longer there. Saving writes it again.",
         "„%1“ ist nicht mehr da. Speichern schreibt die Datei neu."},
        {"IDS_BOARD_SHARED_TITLE", "Save over “%1”?", "Über „%1“ speichern?"},
        {"IDS_BOARD_LINKS_TEXT",
         "The file has further names (%1 hard links). Saving gives this name a file of its own: under the others "
         "the "
         "board stays as it was.",
         "Die Datei hat weitere Namen (%1 harte Verweise). Nach dem Speichern hat dieser Name eine eigene Datei: "
         "Unter "
         "den anderen bleibt die Tafel, wie sie war."},
        {"IDS_BOARD_OWNER_TEXT", "The file belongs to somebody else. Once you have saved it, it is yours.",
         "Die Datei gehört jemand anderem. Nach dem Speichern gehört sie dir."},
        {"IDS_BOARD_SAVE_HERE", "Save here", "Hier speichern"},
        {"IDS_BOARD_REPAIRED_NAME", "%1 (repaired)", "%1 (repariert)"},
        {"IDS_BOARD_DAMAGED_NAME", "%1 (damaged)", "%1 (beschädigt)"},

        {"IDS_BOARD_SAVED", "Saved: %1", "Gespeichert: %1"},
        {"IDS_BOARD_NOT_SAVED", "“%1” was not saved. Your work is still here: save it elsewhere or try again.",
         "„%1“ wurde nicht gespeichert. Die Arbeit ist noch da: anderswo speichern oder noch einmal versuchen."},
        {"IDS_BOARD_NOT_OPENED", "“%1” could not be opened.", "„%1“ konnte nicht geöffnet werden."},
        {"IDS_BOARD_OPENED_IN_PART", "“%1” could not be read completely.",
         "„%1“ konnte nicht vollständig gelesen werden."},
        {"IDS_BOARD_RECOVERABLE", "The board was not closed properly. Unsaved work can be brought back: %1.",
         "Die Tafel wurde nicht ordentlich geschlossen. Ungespeicherte Arbeit ist noch da: %1."},
        {"IDS_BOARD_RECOVERY_NAME", "“%1” from %2", "„%1“ von %2"},
        {"IDS_BOARD_RECOVERY_ONE_PAGE", "%1, %2 page", "%1, %2 Seite"},
        {"IDS_BOARD_RECOVERY_PAGES", "%1, %2 pages", "%1, %2 Seiten"},
        {"IDS_BOARD_RECOVER", "Bring back", "Wiederherstellen"},
        {"IDS_BOARD_FORGET", "Delete…", "Löschen…"},
        {"IDS_BOARD_FORGET_TITLE", "Delete the unsaved work? %1", "Die ungespeicherte Arbeit löschen? %1"},
        {"IDS_BOARD_FORGET_TEXT", "It cannot be brought back then.",
         "Danach ist sie nicht mehr wiederherzustellen."},
        {"IDS_BOARD_FORGET_FOR_EVER", "Delete for ever", "Endgültig löschen"},
        {"IDS_BOARD_RECOVERED_IN_PART", "The unsaved work could not be read completely.",
         "Die ungespeicherte Arbeit konnte nicht vollständig gelesen werden."},
        {"IDS_BOARD_AUTOSAVE_FAILED", "The changes could not be put aside in case of a crash.",
         "Die Änderungen konnten nicht für den Fall eines Absturzes gesichert werden."},
        {"IDS_BOARD_ALL_MESSAGES", "Show all…", "Alle zeigen…"},
        {"IDS_BOARD_MESSAGES", "Messages", "Meldungen"},
    };
}

} // namespace board
