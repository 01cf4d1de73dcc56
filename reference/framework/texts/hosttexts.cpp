#include <texts/hosttexts.h>

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
    {"IDS_UNDO_STACKING", "Change order", "Reihenfolge ändern"},
    {"IDS_UNDO_MOVE", "Move", "Verschieben"},
    {"IDS_UNDO_RESIZE", "Resize", "Größe ändern"},
    {"IDS_UNDO_ROTATE", "Rotate", "Drehen"},
    {"IDS_UNDO_MIRROR", "Mirror", "Spiegeln"},
    {"IDS_UNDO_LOCK", "Lock", "Sperren"},
    {"IDS_UNDO_UNLOCK", "Unlock", "Entsperren"},
    {"IDS_UNDO_BACKGROUND", "Change background", "Hintergrund ändern"},
    {"IDS_UNDO_FILL", "Change fill", "Füllung ändern"},
    {"IDS_UNDO_ADD_PAGE", "Add page", "Seite hinzufügen"},
    {"IDS_UNDO_REMOVE_PAGE", "Delete page", "Seite löschen"},
    {"IDS_UNDO_MOVE_PAGE", "Move page", "Seite verschieben"},
};

} // namespace

pagehost::TextTable english()
{
    pagehost::TextTable table;
    for (const Entry &entry : entries) {
        table.insert(QString::fromUtf8(entry.key), QString::fromUtf8(entry.english));
    }
    return table;
}

pagehost::TextTable german()
{
    pagehost::TextTable table;
    for (const Entry &entry : entries) {
        table.insert(QString::fromUtf8(entry.key), QString::fromUtf8(entry.german));
    }
    return table;
}

} // namespace hosttexts
