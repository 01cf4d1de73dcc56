#pragma once

#include "look/icons.h"

#include <QtCore/QVector>
#include <QtGui/QKeySequence>

#include <optional>

namespace board {

/// Everything that the board does at a user's request. Menus, keys, buttons and the finder are made from these.
enum class Command {
    NewBoard,
    OpenBoard,
    SaveBoard,
    SaveBoardAs,
    Export,
    Print,
    Quit,

    Undo,
    Redo,
    Cut,
    Copy,
    Paste,
    Duplicate,
    Delete,
    CopyLook,
    PasteLook,
    SelectAll,
    SelectNothing,
    EditText,
    FindText,
    ReplaceText,
    FindNext,
    FindPrevious,

    BringToFront,
    BringForward,
    SendBackward,
    SendToBack,
    MirrorAcross,
    MirrorUp,
    TurnLeft,
    TurnRight,
    BringBack,
    Group,
    Ungroup,
    Lock,
    AlignLeft,
    AlignCenter,
    AlignRight,
    AlignTop,
    AlignMiddle,
    AlignBottom,
    DistributeAcross,
    DistributeDown,
    SameSize,

    AddPage,
    DuplicatePage,
    RemovePage,
    MovePageBack,
    MovePageOn,
    PreviousPage,
    NextPage,
    FirstPage,
    LastPage,
    BlankPaper,
    RuledPaper,
    SquaredPaper,
    DottedPaper,
    MusicPaper,
    MillimetrePaper,

    SelectTool,
    PenTool,
    HighlighterTool,
    EraserTool,
    TextTool,
    LineTool,
    ConnectorTool,
    LaserTool,
    KeepTool,
    Color1,
    Color2,
    Color3,
    Color4,
    Color5,
    Color6,
    Wider,
    Narrower,
    PenOptions,
    Shapes,
    InsertAnything,
    Rectangle,
    Ellipse,
    Arrow,

    Record,
    PauseRecording,
    PlayLesson,
    CloseLesson,
    RenameLesson,
    CutLesson,
    RemoveLesson,
    BeginChapter,
    RenameChapter,
    GestureBack,
    GestureForward,
    ChapterBack,
    ChapterForward,
    SlowerLesson,
    FasterLesson,
    TakeOver,

    ZoomIn,
    ZoomOut,
    ActualSize,
    FitPage,
    ZoomToSelection,
    Grid,
    Snapping,
    FingersDraw,
    Animations,
    DarkColors,
    HighContrast,
    ReducedMotion,
    Panel,
    AllProperties,
    NextPart,
    PreviousPart,
    Menus,
    PageStrip,
    ContextMenu,

    Present,
    PresentFromStart,

    ShowKeys,
    FindCommand,
    LetterKeys,
    About
};
constexpr int commandCount = int(Command::About) + 1;

enum class CommandGroup { File, Edit, Arrange, Page, Tools, Lesson, View, Present, Help };

/// The keys that are given to a command act there.
enum class KeyScope {
    Window,
    Page,       ///< only while the page has the focus
    LessonBar,  ///< only while a part of that bar has the focus
    LessonPage, ///< only while the page has the focus and shows a lesson, when nothing can be edited
};

/// Constant facts of a command.
struct CommandFacts
{
    Command command;
    CommandGroup group;
    const char *id;      ///< in settings and as the action's object name; never changes
    const char *textKey; ///< localisation key of the name
    const char *keys;    ///< portable texts, separated by spaces; the first one is shown
    std::optional<Icon> icon = {};
    QKeySequence::StandardKey standard = QKeySequence::UnknownKey;
    bool isCheckable = false;
    KeyScope scope = KeyScope::Window;
};

const CommandFacts &factsOf(Command command);
const char *groupTextKey(CommandGroup group);

/// The keys of the list, then those of the platform for the same thing that no other command of the list has.
QList<QKeySequence> defaultKeys(Command command);

/// One key that types a character: acts only while nothing is typed, and can be switched off with all others.
bool isLetterKey(const QKeySequence &keys);

} // namespace board
