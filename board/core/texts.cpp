#include "core/texts.h"

#include "core/texttables.h"

namespace board {

namespace {

constexpr TextEntry entries[] = {
    {"IDS_BOARD_TITLE", "Board", "Tafel"},
    {"IDS_BOARD_FILE", "&File", "&Datei"},
    {"IDS_BOARD_EDIT", "&Edit", "&Bearbeiten"},
    {"IDS_BOARD_ARRANGE", "&Arrange", "&Anordnen"},
    {"IDS_BOARD_VIEW", "&View", "A&nsicht"},
    {"IDS_BOARD_PANELS", "&Panels", "&Bereiche"},
    {"IDS_BOARD_HELP", "&Help", "&Hilfe"},
    {"IDS_BOARD_TOOLS", "Tools", "Werkzeuge"},

    {"IDS_BOARD_UNDO", "Undo", "Rückgängig"},
    {"IDS_BOARD_UNDO_STEP", "Undo: %1", "Rückgängig: %1"},
    {"IDS_BOARD_REDO", "Redo", "Wiederholen"},
    {"IDS_BOARD_REDO_STEP", "Redo: %1", "Wiederholen: %1"},
    {"IDS_BOARD_SELECT_ALL", "Select all", "Alles auswählen"},
    {"IDS_BOARD_DESELECT", "Select nothing", "Nichts auswählen"},
    {"IDS_BOARD_DUPLICATE", "Duplicate", "Duplizieren"},
    {"IDS_BOARD_DELETE", "Delete", "Löschen"},
    {"IDS_BOARD_NUDGE", "Move with keys", "Mit Tasten verschieben"},
    {"IDS_BOARD_TO_FRONT", "Bring to front", "Ganz nach vorn"},
    {"IDS_BOARD_FORWARD", "Bring forward", "Nach vorn"},
    {"IDS_BOARD_BACKWARD", "Send backward", "Nach hinten"},
    {"IDS_BOARD_TO_BACK", "Send to back", "Ganz nach hinten"},
    {"IDS_BOARD_MIRROR_H", "Mirror left to right", "Waagerecht spiegeln"},
    {"IDS_BOARD_MIRROR_V", "Mirror top to bottom", "Senkrecht spiegeln"},
    {"IDS_BOARD_ROTATE_LEFT", "Rotate left", "Nach links drehen"},
    {"IDS_BOARD_ROTATE_RIGHT", "Rotate right", "Nach rechts drehen"},
    {"IDS_BOARD_ZOOM", "Zoom", "Zoom"},
    {"IDS_BOARD_ZOOM_IN", "Zoom in", "Vergrößern"},
    {"IDS_BOARD_ZOOM_OUT", "Zoom out", "Verkleinern"},
    {"IDS_BOARD_ACTUAL_SIZE", "100 %", "100 %"},
    {"IDS_BOARD_FIT_PAGE", "Fit page", "Ganze Seite"},
    {"IDS_BOARD_ANIMATION", "Play animations", "Animationen abspielen"},
    {"IDS_BOARD_DARK", "Dark colours", "Dunkle Farben"},
    {"IDS_BOARD_ADD_PAGE", "Add page", "Seite hinzufügen"},
    {"IDS_BOARD_REMOVE_PAGE", "Remove page", "Seite entfernen"},
    {"IDS_BOARD_PREVIOUS_PAGE", "Previous page", "Vorige Seite"},
    {"IDS_BOARD_NEXT_PAGE", "Next page", "Nächste Seite"},
    {"IDS_BOARD_EXPORT", "Export pages as pictures…", "Seiten als Bilder ausgeben…"},
    {"IDS_BOARD_EXPORT_SVG", "Export pages as SVG drawings…", "Seiten als SVG-Zeichnungen ausgeben…"},
    {"IDS_BOARD_NOT_EXPORTED", "Not all pages could be exported.", "Nicht alle Seiten konnten ausgegeben werden."},
    {"IDS_BOARD_EXPORTED", "%1 pages written to %2", "%1 Seiten nach %2 geschrieben"},
    {"IDS_BOARD_QUIT", "Quit", "Beenden"},
    {"IDS_BOARD_ABOUT", "About this board", "Über diese Tafel"},
    {"IDS_BOARD_ABOUT_TEXT", "A board to draw and teach on, version %1.",
     "Eine Tafel zum Zeichnen und Unterrichten, Version %1."},

    {"IDS_BOARD_SHAPES", "Shapes", "Formen"},
    {"IDS_BOARD_SEARCH", "Search shapes", "Formen suchen"},
    {"IDS_BOARD_KIND_TIP", "%1: click, then drag on the page", "%1: anklicken, dann auf der Seite aufziehen"},
    {"IDS_BOARD_NO_SHAPES", "No shapes were found. Start with --plugins and the folder that has them.",
     "Es wurden keine Formen gefunden. Mit --plugins und dem Ordner starten, der sie enthält."},
    {"IDS_BOARD_PAGES", "Pages", "Seiten"},
    {"IDS_BOARD_PAGE_NUMBER", "Page %1", "Seite %1"},
    {"IDS_BOARD_HISTORY", "History", "Verlauf"},
    {"IDS_BOARD_HISTORY_START", "Start", "Anfang"},
    {"IDS_BOARD_STYLE", "Look", "Aussehen"},
    {"IDS_BOARD_PAGE", "Page", "Seite"},
    {"IDS_BOARD_SEVERAL", "%1 objects", "%1 Objekte"},

    {"IDS_BOARD_SELECTED", "selected: %1", "ausgewählt: %1"},

    {"IDS_BOARD_FILL", "Fill", "Füllung"},
    {"IDS_BOARD_FILL_NONE", "No fill", "Keine Füllung"},
    {"IDS_BOARD_FILL_SOLID", "Colour", "Farbe"},
    {"IDS_BOARD_FILL_GRADIENT", "Gradient", "Verlauf"},
    {"IDS_BOARD_FILL_PATTERN", "Pattern", "Muster"},
    {"IDS_BOARD_FILL_PICTURE", "Picture", "Bild"},
    {"IDS_BOARD_FILL_COLOR", "Fill colour", "Füllfarbe"},
    {"IDS_BOARD_FILL_SECOND_COLOR", "Second colour", "Zweite Farbe"},
    {"IDS_BOARD_FILL_ANGLE", "Direction of the gradient", "Richtung des Verlaufs"},
    {"IDS_BOARD_OPACITY", "Opacity", "Deckkraft"},
    {"IDS_BOARD_CHOOSE_PICTURE", "Choose picture…", "Bild wählen…"},
    {"IDS_BOARD_PICTURES", "Pictures", "Bilder"},
    {"IDS_BOARD_NO_PICTURE", "The picture could not be read", "Das Bild konnte nicht gelesen werden"},
    {"IDS_BOARD_MORE_COLORS", "More colours…", "Weitere Farben…"},
    {"IDS_BOARD_PICK_COLOR", "Choose colour", "Farbe wählen"},
    {"IDS_BOARD_PEN", "Outline", "Kontur"},
    {"IDS_BOARD_PEN_COLOR", "Outline colour", "Konturfarbe"},
    {"IDS_BOARD_PEN_WIDTH", "Outline width", "Konturbreite"},
    {"IDS_BOARD_PEN_STYLE", "Outline style", "Konturart"},
    {"IDS_BOARD_PEN_SOLID", "Solid", "Durchgezogen"},
    {"IDS_BOARD_PEN_DASHED", "Dashed", "Gestrichelt"},
    {"IDS_BOARD_PEN_DOTTED", "Dotted", "Gepunktet"},
    {"IDS_BOARD_PEN_DASHDOT", "Dash, dot", "Strich, Punkt"},
    {"IDS_BOARD_PEN_DASHDOTDOT", "Dash, two dots", "Strich, zwei Punkte"},
    {"IDS_BOARD_PEN_NONE", "None", "Keine"},
    {"IDS_BOARD_PLACE", "Position and size", "Lage und Größe"},
    {"IDS_BOARD_LEFT", "Left edge", "Linker Rand"},
    {"IDS_BOARD_TOP", "Top edge", "Oberer Rand"},
    {"IDS_BOARD_WIDTH", "Width", "Breite"},
    {"IDS_BOARD_WIDTH_LETTER", "W", "B"},
    {"IDS_BOARD_HEIGHT", "Height", "Höhe"},
    {"IDS_BOARD_HEIGHT_LETTER", "H", "H"},
    {"IDS_BOARD_ROTATION", "Rotation", "Drehung"},
    {"IDS_BOARD_BACKGROUND", "Background", "Hintergrund"},

    {"IDS_BOARD_HINT_TITLE", "Draw your first shape", "Die erste Form zeichnen"},
    {"IDS_BOARD_HINT_ADVICE", "Pick one on the left, then drag on the page, or drag it here.",
     "Links eine auswählen und auf der Seite aufziehen oder hierher ziehen."},
    {"IDS_BOARD_HINT_IDLE", "Click to select · drag over shapes to select several · Ctrl+wheel zooms",
     "Klick wählt aus · Aufziehen wählt mehrere aus · Strg+Mausrad ändert die Ansichtsgröße"},
    {"IDS_BOARD_HINT_DRAW", "Drag to draw, click for the usual size · Shift: equal sides · Esc: cancel",
     "Ziehen zeichnet, ein Klick nimmt die übliche Größe · Umschalt: gleiche Seiten · Esc: abbrechen"},
    {"IDS_BOARD_HINT_SELECTED",
     "Drag to move · drag handles to reshape · arrow keys: 1, with Shift 10 · Ctrl+D duplicates",
     "Ziehen verschiebt · Griffe verformen · Pfeiltasten: 1, mit Umschalt 10 · Strg+D dupliziert"},

    {"IDS_BOARD_PLUGIN_PROBLEMS", "Plug-ins that could not be loaded", "Nicht geladene Erweiterungen"},
    {"IDS_BOARD_MORE_PROBLEMS", "and %1 more", "und %1 weitere"},
    {"IDS_BOARD_CLOSE", "Close", "Schließen"},
};

} // namespace

QVector<TextEntry> textEntries()
{
    QVector<TextEntry> all(std::begin(entries), std::end(entries));
    all += documentTexts();
    all += clipboardTexts();
    all += formTexts();
    all += lessonTexts();
    return all;
}

pagehost::TextTable boardTexts(const QString &language)
{
    const bool german = language == QLatin1String("de");
    pagehost::TextTable texts;
    if (!german && language != QLatin1String("en"))
        return texts;
    for (const TextEntry &entry : textEntries())
        texts.insert(QLatin1String(entry.key), QString::fromUtf8(german ? entry.german : entry.english));
    return texts;
}

} // namespace board
