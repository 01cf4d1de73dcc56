#include "core/texts.h"

#include "core/texttables.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTranslator>

/// Resources of a static library are there once somebody asks for them. Not in a namespace, as Qt wants it.
static void initResource()
{
    Q_INIT_RESOURCE(translations);
}

namespace board {

namespace {

const QString english = QStringLiteral("en");
/// One file per language, named after its code.
const QString translationFolder = QStringLiteral(":/gliololok/board/translations");
/// The context that all texts have in files of Qt Linguist.
constexpr char textContext[] = "board";

constexpr TextEntry entries[] = {
    {"IDS_BOARD_TITLE", QT_TRANSLATE_NOOP("board", "Board")},
    {"IDS_BOARD_FILE", QT_TRANSLATE_NOOP("board", "&File")},
    {"IDS_BOARD_EDIT", QT_TRANSLATE_NOOP("board", "&Edit")},
    {"IDS_BOARD_ARRANGE", QT_TRANSLATE_NOOP("board", "&Arrange")},
    {"IDS_BOARD_VIEW", QT_TRANSLATE_NOOP("board", "&View")},
    {"IDS_BOARD_HELP", QT_TRANSLATE_NOOP("board", "&Help")},
    {"IDS_BOARD_TOOLS", QT_TRANSLATE_NOOP("board", "Tools")},
    {"IDS_BOARD_MORE", QT_TRANSLATE_NOOP("board", "More")},

    {"IDS_BOARD_UNDO", QT_TRANSLATE_NOOP("board", "Undo")},
    {"IDS_BOARD_UNDO_STEP", QT_TRANSLATE_NOOP("board", "Undo: %1")},
    {"IDS_BOARD_REDO", QT_TRANSLATE_NOOP("board", "Redo")},
    {"IDS_BOARD_REDO_STEP", QT_TRANSLATE_NOOP("board", "Redo: %1")},
    {"IDS_BOARD_SELECT_ALL", QT_TRANSLATE_NOOP("board", "Select all")},
    {"IDS_BOARD_DESELECT", QT_TRANSLATE_NOOP("board", "Select nothing")},
    {"IDS_BOARD_DUPLICATE", QT_TRANSLATE_NOOP("board", "Duplicate")},
    {"IDS_BOARD_DELETE", QT_TRANSLATE_NOOP("board", "Delete")},
    {"IDS_BOARD_NUDGE", QT_TRANSLATE_NOOP("board", "Move with keys")},
    {"IDS_BOARD_TO_FRONT", QT_TRANSLATE_NOOP("board", "Bring to front")},
    {"IDS_BOARD_FORWARD", QT_TRANSLATE_NOOP("board", "Bring forward")},
    {"IDS_BOARD_BACKWARD", QT_TRANSLATE_NOOP("board", "Send backward")},
    {"IDS_BOARD_TO_BACK", QT_TRANSLATE_NOOP("board", "Send to back")},
    {"IDS_BOARD_MIRROR_H", QT_TRANSLATE_NOOP("board", "Mirror left to right")},
    {"IDS_BOARD_MIRROR_V", QT_TRANSLATE_NOOP("board", "Mirror top to bottom")},
    {"IDS_BOARD_ROTATE_LEFT", QT_TRANSLATE_NOOP("board", "Rotate left")},
    {"IDS_BOARD_ROTATE_RIGHT", QT_TRANSLATE_NOOP("board", "Rotate right")},
    {"IDS_BOARD_ZOOM", QT_TRANSLATE_NOOP("board", "Zoom")},
    {"IDS_BOARD_ZOOM_IN", QT_TRANSLATE_NOOP("board", "Zoom in")},
    {"IDS_BOARD_ZOOM_OUT", QT_TRANSLATE_NOOP("board", "Zoom out")},
    {"IDS_BOARD_ACTUAL_SIZE", QT_TRANSLATE_NOOP("board", "100 %")},
    {"IDS_BOARD_FIT_PAGE", QT_TRANSLATE_NOOP("board", "Fit page")},
    {"IDS_BOARD_ANIMATION", QT_TRANSLATE_NOOP("board", "Play animations")},
    {"IDS_BOARD_DARK", QT_TRANSLATE_NOOP("board", "Dark colours")},
    {"IDS_BOARD_HIGH_CONTRAST", QT_TRANSLATE_NOOP("board", "High contrast")},
    {"IDS_BOARD_REDUCED_MOTION", QT_TRANSLATE_NOOP("board", "Reduced motion")},
    {"IDS_BOARD_ADD_PAGE", QT_TRANSLATE_NOOP("board", "Add page")},
    {"IDS_BOARD_REMOVE_PAGE", QT_TRANSLATE_NOOP("board", "Remove page")},
    {"IDS_BOARD_PREVIOUS_PAGE", QT_TRANSLATE_NOOP("board", "Previous page")},
    {"IDS_BOARD_NEXT_PAGE", QT_TRANSLATE_NOOP("board", "Next page")},
    {"IDS_BOARD_QUIT", QT_TRANSLATE_NOOP("board", "Quit")},
    {"IDS_BOARD_ABOUT", QT_TRANSLATE_NOOP("board", "About this board")},
    {"IDS_BOARD_ABOUT_TEXT", QT_TRANSLATE_NOOP("board", "A board to draw and teach on, version %1.")},

    {"IDS_BOARD_SHAPES", QT_TRANSLATE_NOOP("board", "Shapes")},
    {"IDS_BOARD_SEARCH", QT_TRANSLATE_NOOP("board", "Search shapes")},
    {"IDS_BOARD_KIND_TIP", QT_TRANSLATE_NOOP("board", "%1: click, then drag on the page")},
    {"IDS_BOARD_NO_SHAPES",
     QT_TRANSLATE_NOOP("board", "No shapes were found. Start with --plugins and the folder that has them.")},
    {"IDS_BOARD_PAGES", QT_TRANSLATE_NOOP("board", "Pages")},
    {"IDS_BOARD_PAGE_NUMBER", QT_TRANSLATE_NOOP("board", "Page %1")},
    {"IDS_BOARD_HISTORY", QT_TRANSLATE_NOOP("board", "History")},
    {"IDS_BOARD_HISTORY_START", QT_TRANSLATE_NOOP("board", "Start")},
    {"IDS_BOARD_PAGE", QT_TRANSLATE_NOOP("board", "Page")},
    {"IDS_BOARD_SEVERAL", QT_TRANSLATE_NOOP("board", "%1 objects")},

    {"IDS_BOARD_FILL", QT_TRANSLATE_NOOP("board", "Fill")},
    {"IDS_BOARD_FILL_NONE", QT_TRANSLATE_NOOP("board", "No fill")},
    {"IDS_BOARD_FILL_SOLID", QT_TRANSLATE_NOOP("board", "Colour")},
    {"IDS_BOARD_FILL_GRADIENT", QT_TRANSLATE_NOOP("board", "Gradient")},
    {"IDS_BOARD_FILL_PATTERN", QT_TRANSLATE_NOOP("board", "Pattern")},
    {"IDS_BOARD_FILL_PICTURE", QT_TRANSLATE_NOOP("board", "Picture")},
    {"IDS_BOARD_FILL_COLOR", QT_TRANSLATE_NOOP("board", "Fill colour")},
    {"IDS_BOARD_FILL_SECOND_COLOR", QT_TRANSLATE_NOOP("board", "Second colour")},
    {"IDS_BOARD_FILL_ANGLE", QT_TRANSLATE_NOOP("board", "Direction of the gradient")},
    {"IDS_BOARD_OPACITY", QT_TRANSLATE_NOOP("board", "Opacity")},
    {"IDS_BOARD_CHOOSE_PICTURE", QT_TRANSLATE_NOOP("board", "Choose picture…")},
    {"IDS_BOARD_PICTURES", QT_TRANSLATE_NOOP("board", "Pictures")},
    {"IDS_BOARD_NO_PICTURE", QT_TRANSLATE_NOOP("board", "The picture could not be read")},
    {"IDS_BOARD_MORE_COLORS", QT_TRANSLATE_NOOP("board", "More colours…")},
    {"IDS_BOARD_PICK_COLOR", QT_TRANSLATE_NOOP("board", "Choose colour")},
    {"IDS_BOARD_PEN", QT_TRANSLATE_NOOP("board", "Outline")},
    {"IDS_BOARD_PEN_COLOR", QT_TRANSLATE_NOOP("board", "Outline colour")},
    {"IDS_BOARD_PEN_WIDTH", QT_TRANSLATE_NOOP("board", "Outline width")},
    {"IDS_BOARD_PEN_STYLE", QT_TRANSLATE_NOOP("board", "Outline style")},
    {"IDS_BOARD_PEN_SOLID", QT_TRANSLATE_NOOP("board", "Solid")},
    {"IDS_BOARD_PEN_DASHED", QT_TRANSLATE_NOOP("board", "Dashed")},
    {"IDS_BOARD_PEN_DOTTED", QT_TRANSLATE_NOOP("board", "Dotted")},
    {"IDS_BOARD_PEN_DASHDOT", QT_TRANSLATE_NOOP("board", "Dash, dot")},
    {"IDS_BOARD_PEN_DASHDOTDOT", QT_TRANSLATE_NOOP("board", "Dash, two dots")},
    {"IDS_BOARD_PEN_NONE", QT_TRANSLATE_NOOP("board", "None")},
    {"IDS_BOARD_PLACE", QT_TRANSLATE_NOOP("board", "Position and size")},
    {"IDS_BOARD_LEFT", QT_TRANSLATE_NOOP("board", "Left edge")},
    {"IDS_BOARD_TOP", QT_TRANSLATE_NOOP("board", "Top edge")},
    {"IDS_BOARD_PAGE_SIZE", QT_TRANSLATE_NOOP("board", "Page size")},
    {"IDS_BOARD_PAGE_WIDTH", QT_TRANSLATE_NOOP("board", "Width of the page")},
    {"IDS_BOARD_PAGE_HEIGHT", QT_TRANSLATE_NOOP("board", "Height of the page")},
    {"IDS_BOARD_SIZE_WIDE_SCREEN", QT_TRANSLATE_NOOP("board", "Screen 16 : 9")},
    {"IDS_BOARD_SIZE_SCREEN", QT_TRANSLATE_NOOP("board", "Screen 4 : 3")},
    {"IDS_BOARD_SIZE_A4_PORTRAIT", QT_TRANSLATE_NOOP("board", "A4 portrait")},
    {"IDS_BOARD_SIZE_A4_LANDSCAPE", QT_TRANSLATE_NOOP("board", "A4 landscape")},
    {"IDS_BOARD_SIZE_LETTER_PORTRAIT", QT_TRANSLATE_NOOP("board", "Letter portrait")},
    {"IDS_BOARD_SIZE_LETTER_LANDSCAPE", QT_TRANSLATE_NOOP("board", "Letter landscape")},
    {"IDS_BOARD_SIZE_OTHER", QT_TRANSLATE_NOOP("board", "Other")},
    {"IDS_BOARD_WIDTH", QT_TRANSLATE_NOOP("board", "Width")},
    {"IDS_BOARD_WIDTH_LETTER", QT_TRANSLATE_NOOP("board", "W")},
    {"IDS_BOARD_HEIGHT", QT_TRANSLATE_NOOP("board", "Height")},
    {"IDS_BOARD_HEIGHT_LETTER", QT_TRANSLATE_NOOP("board", "H")},
    {"IDS_BOARD_ROTATION", QT_TRANSLATE_NOOP("board", "Rotation")},
    {"IDS_BOARD_BACKGROUND", QT_TRANSLATE_NOOP("board", "Background")},

    {"IDS_BOARD_HINT_TITLE", QT_TRANSLATE_NOOP("board", "Start writing")},
    {"IDS_BOARD_HINT_ADVICE",
     QT_TRANSLATE_NOOP("board", "or press T to type, S for shapes, Ctrl+K to find anything")},
    {"IDS_BOARD_HINT_DRAW", QT_TRANSLATE_NOOP("board", "%1: drag to draw. Esc ends.")},

    {"IDS_BOARD_PLUGIN_PROBLEMS", QT_TRANSLATE_NOOP("board", "Plug-ins that could not be loaded")},
    {"IDS_BOARD_MORE_PROBLEMS", QT_TRANSLATE_NOOP("board", "and %1 more")},
    {"IDS_BOARD_CLOSE", QT_TRANSLATE_NOOP("board", "Close")},
};

} // namespace

QVector<TextEntry> textEntries()
{
    QVector<TextEntry> all(std::begin(entries), std::end(entries));
    all += documentTexts();
    all += outputTexts();
    all += clipboardTexts();
    all += commandTexts();
    all += formTexts();
    all += readerTexts();
    all += windowTexts();
    all += lessonTexts();
    all += toolTexts();
    return all;
}

QStringList boardLanguages()
{
    initResource();
    QStringList codes{english};
    const QStringList files = QDir(translationFolder).entryList();
    for (const QString &file : files)
        codes.append(QFileInfo(file).baseName());
    return codes;
}

pagehost::TextTable boardTexts(const QString &language)
{
    initResource();
    QTranslator translator;
    pagehost::TextTable texts;
    if (language != english && !translator.load(language, translationFolder))
        return texts;
    const QVector<TextEntry> entries = textEntries();
    for (const TextEntry &entry : entries) {
        const QString text = language == english ? QString::fromUtf8(entry.english)
                                                 : translator.translate(textContext, entry.english, entry.key);
        if (!text.isEmpty())
            texts.insert(QLatin1String(entry.key), text);
    }
    return texts;
}

} // namespace board
