#include "core/commandlist.h"

#include <QtCore/QString>

#include <iterator>

namespace board {

namespace {

using Group = CommandGroup;
using Keys = QKeySequence;

/// Acts while a lesson is shown in place of the page.
constexpr CommandFacts ofLesson(Command command, const char *id, const char *textKey, const char *keys,
                                std::optional<Icon> icon = {})
{
    return {command, Group::Lesson, id, textKey, keys, icon, Keys::UnknownKey, false, KeyScope::LessonPage};
}

/// In the order of the enumeration.
constexpr CommandFacts commands[] = {
    {Command::NewBoard, Group::File, "new", "IDS_BOARD_NEW", "Ctrl+N", {}, Keys::New},
    {Command::OpenBoard, Group::File, "open", "IDS_BOARD_OPEN", "Ctrl+O", Icon::Open, Keys::Open},
    {Command::SaveBoard, Group::File, "save", "IDS_BOARD_SAVE", "Ctrl+S", Icon::Save, Keys::Save},
    {Command::SaveBoardAs, Group::File, "saveAs", "IDS_BOARD_SAVE_AS", "Ctrl+Shift+S", {}, Keys::SaveAs},
    {Command::Export, Group::File, "export", "IDS_BOARD_EXPORT", "Ctrl+E"},
    {Command::Print, Group::File, "print", "IDS_BOARD_PRINT", "Ctrl+P", {}, Keys::Print},
    {Command::Quit, Group::File, "quit", "IDS_BOARD_QUIT", "Ctrl+Q", {}, Keys::Quit},

    {Command::Undo, Group::Edit, "undo", "IDS_BOARD_UNDO", "Ctrl+Z", Icon::Undo, Keys::Undo},
    {Command::Redo, Group::Edit, "redo", "IDS_BOARD_REDO", "Ctrl+Shift+Z Ctrl+Y", Icon::Redo, Keys::Redo},
    {Command::Cut, Group::Edit, "cut", "IDS_BOARD_CUT", "Ctrl+X", Icon::Cut, Keys::Cut},
    {Command::Copy, Group::Edit, "copy", "IDS_BOARD_COPY", "Ctrl+C", Icon::Copy, Keys::Copy},
    {Command::Paste, Group::Edit, "paste", "IDS_BOARD_PASTE", "Ctrl+V", Icon::Paste, Keys::Paste},
    {Command::Duplicate, Group::Edit, "duplicate", "IDS_BOARD_DUPLICATE", "Ctrl+D", Icon::Duplicate},
    {Command::Delete, Group::Edit, "delete", "IDS_BOARD_DELETE", "Del Backspace", Icon::Delete, Keys::Delete},
    {Command::CopyLook, Group::Edit, "copyLook", "IDS_BOARD_COPY_STYLE", "Ctrl+Alt+C"},
    {Command::PasteLook, Group::Edit, "pasteLook", "IDS_BOARD_PASTE_STYLE", "Ctrl+Alt+V"},
    {Command::SelectAll, Group::Edit, "selectAll", "IDS_BOARD_SELECT_ALL", "Ctrl+A", {}, Keys::SelectAll},
    {Command::SelectNothing,
     Group::Edit,
     "selectNothing",
     "IDS_BOARD_DESELECT",
     "Ctrl+Shift+A",
     {},
     Keys::Deselect},
    {Command::EditText,
     Group::Edit,
     "editText",
     "IDS_BOARD_EDIT_TEXT",
     "Return Enter F2",
     {},
     Keys::UnknownKey,
     false,
     KeyScope::Page},
    {Command::FindText, Group::Edit, "findText", "IDS_BOARD_FIND_TEXT", "Ctrl+F", {}, Keys::Find},
    {Command::ReplaceText, Group::Edit, "replaceText", "IDS_BOARD_REPLACE_TEXT", "Ctrl+H", {}, Keys::Replace},
    {Command::FindNext, Group::Edit, "findNext", "IDS_BOARD_FIND_NEXT", "F3", Icon::Next, Keys::FindNext},
    {Command::FindPrevious, Group::Edit, "findPrevious", "IDS_BOARD_FIND_PREVIOUS", "Shift+F3", Icon::Previous,
     Keys::FindPrevious},

    {Command::BringToFront, Group::Arrange, "bringToFront", "IDS_BOARD_TO_FRONT", "Ctrl+Shift+] Ctrl+Shift+PgUp",
     Icon::ToFront},
    {Command::BringForward, Group::Arrange, "bringForward", "IDS_BOARD_FORWARD", "Ctrl+] Ctrl+PgUp", Icon::Forward},
    {Command::SendBackward, Group::Arrange, "sendBackward", "IDS_BOARD_BACKWARD", "Ctrl+[ Ctrl+PgDown",
     Icon::Backward},
    {Command::SendToBack, Group::Arrange, "sendToBack", "IDS_BOARD_TO_BACK", "Ctrl+Shift+[ Ctrl+Shift+PgDown",
     Icon::ToBack},
    {Command::MirrorAcross, Group::Arrange, "mirrorAcross", "IDS_BOARD_MIRROR_H", "Ctrl+M", Icon::MirrorHorizontal},
    {Command::MirrorUp, Group::Arrange, "mirrorUp", "IDS_BOARD_MIRROR_V", "Ctrl+Shift+M", Icon::MirrorVertical},
    {Command::TurnLeft, Group::Arrange, "turnLeft", "IDS_BOARD_ROTATE_LEFT", "Ctrl+Shift+R", Icon::RotateLeft},
    {Command::TurnRight, Group::Arrange, "turnRight", "IDS_BOARD_ROTATE_RIGHT", "Ctrl+R", Icon::RotateRight},
    {Command::BringBack, Group::Arrange, "bringBack", "IDS_BOARD_BRING_BACK", "", Icon::BringBack},
    {Command::Group, Group::Arrange, "group", "IDS_BOARD_GROUP", "Ctrl+G"},
    {Command::Ungroup, Group::Arrange, "ungroup", "IDS_BOARD_UNGROUP", "Ctrl+Shift+G"},
    {Command::Lock, Group::Arrange, "lock", "IDS_BOARD_LOCK", "Ctrl+L", Icon::Lock},
    {Command::AlignLeft, Group::Arrange, "alignLeft", "IDS_BOARD_ALIGN_LEFT", "", Icon::AlignLeft},
    {Command::AlignCenter, Group::Arrange, "alignCenter", "IDS_BOARD_ALIGN_CENTER", "", Icon::AlignCenter},
    {Command::AlignRight, Group::Arrange, "alignRight", "IDS_BOARD_ALIGN_RIGHT", "", Icon::AlignRight},
    {Command::AlignTop, Group::Arrange, "alignTop", "IDS_BOARD_ALIGN_TOP", "", Icon::AlignTop},
    {Command::AlignMiddle, Group::Arrange, "alignMiddle", "IDS_BOARD_ALIGN_MIDDLE", "", Icon::AlignMiddle},
    {Command::AlignBottom, Group::Arrange, "alignBottom", "IDS_BOARD_ALIGN_BOTTOM", "", Icon::AlignBottom},
    {Command::DistributeAcross, Group::Arrange, "distributeAcross", "IDS_BOARD_DISTRIBUTE_ACROSS", "",
     Icon::DistributeAcross},
    {Command::DistributeDown, Group::Arrange, "distributeDown", "IDS_BOARD_DISTRIBUTE_DOWN", "",
     Icon::DistributeDown},
    {Command::SameSize, Group::Arrange, "sameSize", "IDS_BOARD_SAME_SIZE", "", Icon::SameSize},

    {Command::AddPage, Group::Page, "addPage", "IDS_BOARD_ADD_PAGE", "Ctrl+Shift+N", Icon::Add},
    {Command::DuplicatePage, Group::Page, "duplicatePage", "IDS_BOARD_DUPLICATE_PAGE", "Ctrl+Shift+D"},
    {Command::RemovePage, Group::Page, "removePage", "IDS_BOARD_REMOVE_PAGE", "", Icon::Remove},
    {Command::MovePageBack, Group::Page, "movePageBack", "IDS_BOARD_MOVE_PAGE_BACK", ""},
    {Command::MovePageOn, Group::Page, "movePageOn", "IDS_BOARD_MOVE_PAGE_ON", ""},
    {Command::PreviousPage, Group::Page, "previousPage", "IDS_BOARD_PREVIOUS_PAGE", "PgUp", Icon::Previous},
    {Command::NextPage, Group::Page, "nextPage", "IDS_BOARD_NEXT_PAGE", "PgDown", Icon::Next},
    {Command::FirstPage, Group::Page, "firstPage", "IDS_BOARD_FIRST_PAGE", "Ctrl+Home"},
    {Command::LastPage, Group::Page, "lastPage", "IDS_BOARD_LAST_PAGE", "Ctrl+End"},
    {Command::BlankPaper, Group::Page, "blankPaper", "IDS_PAPER_BLANK", "", Icon::BlankPaper, Keys::UnknownKey,
     true},
    {Command::RuledPaper, Group::Page, "ruledPaper", "IDS_PAPER_RULED", "", Icon::RuledPaper, Keys::UnknownKey,
     true},
    {Command::SquaredPaper, Group::Page, "squaredPaper", "IDS_PAPER_SQUARED", "", Icon::SquaredPaper,
     Keys::UnknownKey, true},
    {Command::DottedPaper, Group::Page, "dottedPaper", "IDS_PAPER_DOTTED", "", Icon::DottedPaper, Keys::UnknownKey,
     true},
    {Command::MusicPaper, Group::Page, "musicPaper", "IDS_PAPER_MUSIC", "", Icon::MusicPaper, Keys::UnknownKey,
     true},
    {Command::MillimetrePaper, Group::Page, "millimetrePaper", "IDS_PAPER_MILLIMETRE", "", Icon::MillimetrePaper,
     Keys::UnknownKey, true},

    {Command::SelectTool, Group::Tools, "selectTool", "IDS_TOOL_SELECT", "V", Icon::Select, Keys::UnknownKey, true},
    {Command::PenTool, Group::Tools, "penTool", "IDS_TOOL_PEN", "P", Icon::Pen, Keys::UnknownKey, true},
    {Command::HighlighterTool, Group::Tools, "highlighterTool", "IDS_TOOL_HIGHLIGHTER", "H", Icon::Highlighter,
     Keys::UnknownKey, true},
    {Command::EraserTool, Group::Tools, "eraserTool", "IDS_TOOL_ERASER", "E", Icon::Eraser, Keys::UnknownKey, true},
    {Command::TextTool, Group::Tools, "textTool", "IDS_TOOL_TEXT", "T", Icon::Text, Keys::UnknownKey, true},
    {Command::LineTool, Group::Tools, "lineTool", "IDS_TOOL_LINE", "L", Icon::Line, Keys::UnknownKey, true},
    {Command::ConnectorTool, Group::Tools, "connectorTool", "IDS_TOOL_CONNECTOR", "C", Icon::Connector,
     Keys::UnknownKey, true},
    {Command::LaserTool, Group::Tools, "laserTool", "IDS_TOOL_LASER", "K", Icon::Laser, Keys::UnknownKey, true},
    {Command::KeepTool, Group::Tools, "keepTool", "IDS_TOOL_KEEP", "Q", {}, Keys::UnknownKey, true},
    {Command::Color1, Group::Tools, "color1", "IDS_TOOL_COLOR_1", "1"},
    {Command::Color2, Group::Tools, "color2", "IDS_TOOL_COLOR_2", "2"},
    {Command::Color3, Group::Tools, "color3", "IDS_TOOL_COLOR_3", "3"},
    {Command::Color4, Group::Tools, "color4", "IDS_TOOL_COLOR_4", "4"},
    {Command::Color5, Group::Tools, "color5", "IDS_TOOL_COLOR_5", "5"},
    {Command::Color6, Group::Tools, "color6", "IDS_TOOL_COLOR_6", "6"},
    {Command::Wider, Group::Tools, "wider", "IDS_TOOL_WIDER", "+"},
    {Command::Narrower, Group::Tools, "narrower", "IDS_TOOL_NARROWER", "-"},
    {Command::PenOptions, Group::Tools, "penOptions", "IDS_BOARD_TOOL_OPTIONS", "Shift+P"},
    {Command::Shapes, Group::Tools, "shapes", "IDS_BOARD_SHAPES", "S", Icon::Shapes},
    {Command::InsertAnything, Group::Tools, "insert", "IDS_BOARD_INSERT", "I", Icon::Insert},
    {Command::Rectangle, Group::Tools, "rectangle", "IDS_TOOL_RECTANGLE", "R"},
    {Command::Ellipse, Group::Tools, "ellipse", "IDS_TOOL_ELLIPSE", "O"},
    {Command::Arrow, Group::Tools, "arrow", "IDS_TOOL_ARROW", "A"},

    {Command::Record, Group::Lesson, "record", "IDS_LESSON_RECORD", "F9", Icon::Record},
    {Command::PauseRecording, Group::Lesson, "pauseRecording", "IDS_LESSON_PAUSE_RECORDING", "Shift+F9",
     Icon::Pause},
    {Command::PlayLesson, Group::Lesson, "playLesson", "IDS_LESSON_PLAY", "F8", Icon::Play},
    {Command::CloseLesson, Group::Lesson, "closeLesson", "IDS_LESSON_CLOSE", "Shift+F8"},
    {Command::RenameLesson,
     Group::Lesson,
     "renameLesson",
     "IDS_LESSON_RENAME",
     "F2",
     {},
     Keys::UnknownKey,
     false,
     KeyScope::LessonBar},
    {Command::CutLesson, Group::Lesson, "cutLesson", "IDS_LESSON_CUT", ""},
    {Command::RemoveLesson, Group::Lesson, "removeLesson", "IDS_LESSON_REMOVE", "", Icon::Delete},
    {Command::BeginChapter, Group::Lesson, "beginChapter", "IDS_LESSON_BEGIN_CHAPTER", "Ctrl+F9", Icon::Chapter},
    {Command::RenameChapter, Group::Lesson, "renameChapter", "IDS_LESSON_RENAME_CHAPTER", ""},
    ofLesson(Command::GestureBack, "gestureBack", "IDS_LESSON_GESTURE_BACK", "Left", Icon::GestureBack),
    ofLesson(Command::GestureForward, "gestureForward", "IDS_LESSON_GESTURE_FORWARD", "Right",
             Icon::GestureForward),
    ofLesson(Command::ChapterBack, "chapterBack", "IDS_LESSON_CHAPTER_BACK", "Ctrl+Left"),
    ofLesson(Command::ChapterForward, "chapterForward", "IDS_LESSON_CHAPTER_FORWARD", "Ctrl+Right"),
    ofLesson(Command::SlowerLesson, "slowerLesson", "IDS_LESSON_SLOWER", "-"),
    ofLesson(Command::FasterLesson, "fasterLesson", "IDS_LESSON_FASTER", "+"),
    ofLesson(Command::TakeOver, "takeOver", "IDS_LESSON_TAKE_OVER", "Return Enter", Icon::TakeOver),

    {Command::ZoomIn, Group::View, "zoomIn", "IDS_BOARD_ZOOM_IN", "Ctrl++ Ctrl+=", Icon::ZoomIn, Keys::ZoomIn},
    {Command::ZoomOut, Group::View, "zoomOut", "IDS_BOARD_ZOOM_OUT", "Ctrl+-", Icon::ZoomOut, Keys::ZoomOut},
    {Command::ActualSize, Group::View, "actualSize", "IDS_BOARD_ACTUAL_SIZE", "Ctrl+0"},
    {Command::FitPage, Group::View, "fitPage", "IDS_BOARD_FIT_PAGE", "Ctrl+9", Icon::ZoomFit},
    {Command::ZoomToSelection, Group::View, "zoomToSelection", "IDS_BOARD_ZOOM_SELECTION", "Ctrl+8"},
    {Command::Grid, Group::View, "grid", "IDS_BOARD_GRID", "G", {}, Keys::UnknownKey, true},
    {Command::Snapping, Group::View, "snapping", "IDS_BOARD_SNAPPING", "N", {}, Keys::UnknownKey, true},
    {Command::FingersDraw, Group::View, "fingersDraw", "IDS_BOARD_FINGERS_DRAW", "", {}, Keys::UnknownKey, true},
    {Command::Animations, Group::View, "animations", "IDS_BOARD_ANIMATION", "F7", Icon::Animation, Keys::UnknownKey,
     true},
    {Command::DarkColors, Group::View, "darkColors", "IDS_BOARD_DARK", "", {}, Keys::UnknownKey, true},
    {Command::HighContrast, Group::View, "highContrast", "IDS_BOARD_HIGH_CONTRAST", "", {}, Keys::UnknownKey, true},
    {Command::ReducedMotion,
     Group::View,
     "reducedMotion",
     "IDS_BOARD_REDUCED_MOTION",
     "",
     {},
     Keys::UnknownKey,
     true},
    {Command::Panel, Group::View, "panel", "IDS_BOARD_PANEL", "F4", Icon::Panel, Keys::UnknownKey, true},
    {Command::AllProperties, Group::View, "allProperties", "IDS_BOARD_ALL_PROPERTIES", ""},
    {Command::NextPart, Group::View, "nextPart", "IDS_BOARD_NEXT_PART", "F6"},
    {Command::PreviousPart, Group::View, "previousPart", "IDS_BOARD_PREVIOUS_PART", "Shift+F6"},
    {Command::Menus, Group::View, "menus", "IDS_BOARD_MENUS", "F10"},
    {Command::PageStrip, Group::View, "pageStrip", "IDS_BOARD_PAGE_STRIP", "F12", Icon::Pages, Keys::UnknownKey,
     true},
    {Command::ContextMenu, Group::View, "contextMenu", "IDS_BOARD_CONTEXT_MENU", "Menu Shift+F10"},

    {Command::Present, Group::Present, "present", "IDS_BOARD_PRESENT", "F5 F11", Icon::Present},
    {Command::PresentFromStart, Group::Present, "presentFromStart", "IDS_BOARD_PRESENT_FROM_START", "Shift+F5"},

    {Command::ShowKeys, Group::Help, "showKeys", "IDS_BOARD_KEYS", "F1", {}, Keys::HelpContents},
    {Command::FindCommand, Group::Help, "findCommand", "IDS_BOARD_FIND_COMMAND", "Ctrl+K", Icon::Search},
    {Command::LetterKeys, Group::Help, "letterKeys", "IDS_BOARD_LETTER_KEYS", "", {}, Keys::UnknownKey, true},
    {Command::About, Group::Help, "about", "IDS_BOARD_ABOUT", ""},
};
static_assert(std::size(commands) == commandCount, "each command has its row");

QList<QKeySequence> listedKeys(const CommandFacts &facts)
{
    QList<QKeySequence> keys;
    const QStringList texts = QString::fromLatin1(facts.keys).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &text : texts)
        keys.append(QKeySequence(text, QKeySequence::PortableText));
    return keys;
}

bool isListed(const QKeySequence &keys)
{
    for (const CommandFacts &facts : commands)
        if (listedKeys(facts).contains(keys))
            return true;
    return false;
}

} // namespace

const CommandFacts &factsOf(Command command)
{
    return commands[int(command)];
}

const char *groupTextKey(CommandGroup group)
{
    constexpr const char *keys[] = {"IDS_BOARD_FILE", "IDS_BOARD_EDIT",    "IDS_BOARD_ARRANGE",
                                    "IDS_BOARD_PAGE", "IDS_BOARD_TOOLS",   "IDS_LESSON_MENU",
                                    "IDS_BOARD_VIEW", "IDS_BOARD_PRESENT", "IDS_BOARD_HELP"};
    return keys[int(group)];
}

QList<QKeySequence> defaultKeys(Command command)
{
    const CommandFacts &facts = factsOf(command);
    QList<QKeySequence> keys = listedKeys(facts);
    const QList<QKeySequence> bindings = QKeySequence::keyBindings(facts.standard);
    for (const QKeySequence &binding : bindings)
        if (!isListed(binding) && !keys.contains(binding))
            keys.append(binding);
    return keys;
}

bool isLetterKey(const QKeySequence &keys)
{
    if (keys.count() != 1)
        return false;
    const int key = keys[0] & ~Qt::KeyboardModifierMask;
    const int modifiers = keys[0] & (Qt::KeyboardModifierMask & ~Qt::SHIFT & ~Qt::KeypadModifier);
    // Keys beyond are those without a character, such as Del and F1.
    return modifiers == 0 && key > Qt::Key_Space && key < Qt::Key_Escape;
}

} // namespace board
