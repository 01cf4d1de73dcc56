#include <host/hosttexts.h>

namespace hosttexts {

namespace {

struct Entry
{
    const char *key;
    const char *english;
    const char *german;
};

constexpr Entry entries[] = {
    // Properties of shapes
    {"IDS_SVG_PENCOLOR", "Line colour", "Linienfarbe"},
    {"IDS_SVG_PENSTYLE", "Line style", "Linienart"},
    {"IDS_SVG_PENWIDTH", "Line width", "Linienbreite"},
    {"IDS_SVG_FILLCOLOR", "Fill colour", "Füllfarbe"},
    {"IDS_SVG_attribute_adjust", "Change shape", "Form ändern"},
    {"IDS_MATHOBJ_LINESTYLE_TITLE", "Line style", "Linienart"},
    {"IDS_PHYSICSOBJ_OUTLINECOLOR", "Outline colour", "Umrissfarbe"},
    {"IDS_ITEM_SET_ATTRIBUTE", "Change properties", "Eigenschaften ändern"},
    // Steps of this host
    {"IDS_UNDO_ADD_OBJECTS", "Add", "Hinzufügen"},
    {"IDS_UNDO_REMOVE_OBJECTS", "Delete", "Löschen"},
    {"IDS_UNDO_SHAPE_VERSION", "Update shape", "Form aktualisieren"},
    {"IDS_UNDO_STACKING", "Change order", "Reihenfolge ändern"},
    {"IDS_UNDO_GROUP", "Group", "Gruppieren"},
    {"IDS_UNDO_UNGROUP", "Ungroup", "Gruppierung aufheben"},
    {"IDS_UNDO_RENAME", "Rename", "Umbenennen"},
    {"IDS_UNDO_SHOW", "Show", "Einblenden"},
    {"IDS_UNDO_HIDE", "Hide", "Ausblenden"},
    {"IDS_UNDO_MOVE", "Move", "Verschieben"},
    {"IDS_UNDO_RESIZE", "Resize", "Größe ändern"},
    {"IDS_UNDO_ROTATE", "Rotate", "Drehen"},
    {"IDS_UNDO_MIRROR", "Mirror", "Spiegeln"},
    {"IDS_UNDO_LOCK", "Lock", "Sperren"},
    {"IDS_UNDO_UNLOCK", "Unlock", "Entsperren"},
    {"IDS_UNDO_BACKGROUND", "Change background", "Hintergrund ändern"},
    {"IDS_UNDO_PAGE_SIZE", "Change page size", "Seitengröße ändern"},
    {"IDS_UNDO_STYLE", "Change look", "Aussehen ändern"},
    {"IDS_SHAPEGROUP_BASIC", "Basic shapes", "Grundformen"},
    {"IDS_SHAPEGROUP_OWN", "My shapes", "Meine Formen"},
    {"IDS_UNDO_FILL", "Change fill", "Füllung ändern"},
    {"IDS_UNDO_ADD_PAGE", "Add page", "Seite hinzufügen"},
    {"IDS_UNDO_REMOVE_PAGE", "Delete page", "Seite löschen"},
    {"IDS_UNDO_MOVE_PAGE", "Move page", "Seite verschieben"},
    {"IDS_UNDO_ADD_LESSON", "Record lesson", "Lektion aufnehmen"},
    {"IDS_UNDO_REMOVE_LESSON", "Delete lesson", "Lektion löschen"},
    {"IDS_UNDO_RENAME_LESSON", "Rename lesson", "Lektion umbenennen"},
    {"IDS_UNDO_CUT_LESSON", "Cut lesson", "Lektion kürzen"},
    {"IDS_UNDO_CHAPTER", "Change chapters", "Kapitel ändern"},
    // Files
    {"IDS_PLACEHOLDER_OBJECT", "Unreadable object", "Nicht lesbares Objekt"},
    {"IDS_FILE_WHERE_PAGE", "page %1", "Seite %1"},
    {"IDS_FILE_WHERE_OBJECT", "object %1", "Objekt %1"},
    {"IDS_FILE_WHERE_LINE", "line %1, column %2", "Zeile %1, Spalte %2"},
    {"IDS_FILE_WHERE_BYTE", "byte %1", "Byte %1"},
    {"IDS_FILE_CANNOT_READ", "%1 cannot be read: %2.", "%1 kann nicht gelesen werden: %2."},
    {"IDS_FILE_CANNOT_WRITE", "%1 was not saved: %2. What was there is still there.",
     "%1 wurde nicht gespeichert: %2. Was da war, ist noch da."},
    {"IDS_FILE_DISK_FULL", "%1 was not saved: the disk took only part of it. What was there is still there.",
     "%1 wurde nicht gespeichert: Der Datenträger nahm nur einen Teil an. Was da war, ist noch da."},
    {"IDS_FILE_TOO_LARGE", "The document is too large for one file.", "Das Dokument ist zu groß für eine Datei."},
    {"IDS_FILE_NO_DOCUMENT", "The file is no board document.", "Die Datei ist kein Tafel-Dokument."},
    {"IDS_FILE_NO_PAGE", "Nothing in the file can be read.", "Nichts in der Datei ist lesbar."},
    {"IDS_FILE_NEWER_VERSION",
     "The file is of version %1, made by a newer program. This one reads up to version %2.",
     "Die Datei hat die Version %1 eines neueren Programms. Dieses hier liest bis Version %2."},
    {"IDS_FILE_SYNTAX", "The text is not valid JSON here: %1.", "Der Text ist hier kein gültiges JSON: %1."},
    {"IDS_FILE_WRONG_TYPE", "\"%1\" is not what it should be and was left out.",
     "„%1“ ist nicht, was es sein soll, und wurde ausgelassen."},
    {"IDS_FILE_BEYOND_LIMIT", "The file has %1 bytes; files of more than %2 bytes are not opened.",
     "Die Datei hat %1 Bytes; Dateien von mehr als %2 Bytes werden nicht geöffnet."},
    {"IDS_FILE_DAMAGED_PART", "A part of the file, %1 bytes, cannot be understood; the document keeps it unseen.",
     "Ein Teil der Datei, %1 Bytes, ist nicht zu verstehen; das Dokument bewahrt ihn ungesehen auf."},
    {"IDS_FILE_DAMAGED_TOO_MUCH", "A part of the file, %1 bytes, cannot be understood and is too large to be kept.",
     "Ein Teil der Datei, %1 Bytes, ist nicht zu verstehen und zu groß, um ihn aufzubewahren."},
    {"IDS_FILE_ZEROS", "A part of the file was overwritten with %1 zeros.",
     "Ein Teil der Datei wurde mit %1 Nullen überschrieben."},
    {"IDS_FILE_DAMAGED_READ", "The file is damaged here, but could be read.",
     "Die Datei ist hier beschädigt, war aber lesbar."},
    {"IDS_FILE_LESSON_DAMAGED", "The lesson \"%1\" is damaged; it is kept as it is and plays up to the damage.",
     "Die Lektion „%1“ ist beschädigt; sie bleibt, wie sie ist, und läuft bis zum Schaden."},
    {"IDS_FILE_ASSET_DAMAGED", "The text of a shape is damaged or too large.",
     "Der Text einer Form ist beschädigt oder zu groß."},
    {"IDS_FILE_PAGE_DAMAGED", "Size or background of the page cannot be read.",
     "Größe oder Hintergrund der Seite sind nicht lesbar."},
    {"IDS_FILE_GROUPS_DAMAGED", "A group of the page is damaged; its objects are there.",
     "Eine Gruppe der Seite ist beschädigt; ihre Objekte sind da."},
    {"IDS_FILE_OBJECT_BROKEN", "An object of the kind \"%1\" cannot be read; a placeholder keeps it.",
     "Ein Objekt der Art „%1“ ist nicht lesbar; ein Platzhalter bewahrt es auf."},
    {"IDS_FILE_OBJECT_UNKNOWN", "No plug-in knows the kind \"%1\"; a placeholder keeps the object.",
     "Kein Plug-in kennt die Art „%1“; ein Platzhalter bewahrt das Objekt auf."},
    {"IDS_FILE_OBJECT_VERSION",
     "An object of the kind \"%1\" is drawn with another version of its shape than it was saved with.",
     "Ein Objekt der Art „%1“ wird mit einer anderen Fassung seiner Form gezeichnet als der, mit der es "
     "gespeichert "
     "wurde."},
    {"IDS_FILE_OBJECT_TOO_LARGE", "An object of the kind \"%1\" is too large to be shown; a placeholder keeps it.",
     "Ein Objekt der Art „%1“ ist zu groß, um es zu zeigen; ein Platzhalter bewahrt es auf."},
    {"IDS_FILE_OBJECT_DAMAGED", "An object was damaged and may not look as it did.",
     "Ein Objekt wurde beschädigt und sieht vielleicht anders aus."},
    {"IDS_FILE_OBJECT_MEMBERS",
     "The file says more of an object of the kind \"%1\" than is known of this kind; the document keeps it unseen.",
     "Die Datei sagt mehr von einem Objekt der Art „%1“, als von dieser Art bekannt ist; das Dokument bewahrt es "
     "ungesehen auf."},
    {"IDS_FILE_OBJECT_UNREADABLE", "An object cannot be read; a placeholder keeps its bytes.",
     "Ein Objekt ist nicht lesbar; ein Platzhalter bewahrt seine Bytes auf."},
    {"IDS_FILE_OBJECTS_MISSING", "%1 objects are missing.", "%1 Objekte fehlen."},
    {"IDS_FILE_PAGES_MISSING", "%1 pages are missing.", "%1 Seiten fehlen."},
    {"IDS_FILE_LESSONS_MISSING", "%1 lessons are missing.", "%1 Lektionen fehlen."},
    {"IDS_FILE_ENDS_EARLY", "The file ends before the document does.", "Die Datei endet vor dem Dokument."},
    {"IDS_FILE_MORE_PROBLEMS", "There are %1 more problems.", "Es gibt %1 weitere Probleme."},
};

} // namespace

pagehost::TextTable english()
{
    pagehost::TextTable table;
    for (const Entry &entry : entries)
        table.insert(QString::fromUtf8(entry.key), QString::fromUtf8(entry.english));
    return table;
}

pagehost::TextTable german()
{
    pagehost::TextTable table;
    for (const Entry &entry : entries)
        table.insert(QString::fromUtf8(entry.key), QString::fromUtf8(entry.german));
    return table;
}

} // namespace hosttexts
