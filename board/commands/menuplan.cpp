#include "commands/menuplan.h"

#include "core/commands.h"
#include "core/workspace.h"

#include <QtWidgets/QMenu>

namespace board {

namespace {

MenuEntry separator()
{
    return {};
}

MenuEntry orderMenu()
{
    return {"IDS_BOARD_ORDER", orderMenuPlan()};
}

MenuEntry alignMenu()
{
    return {"IDS_BOARD_ALIGN",
            {Command::AlignLeft, Command::AlignCenter, Command::AlignRight, separator(), Command::AlignTop,
             Command::AlignMiddle, Command::AlignBottom, separator(), Command::DistributeAcross,
             Command::DistributeDown, separator(), Command::SameSize}};
}

MenuPlan filePlan()
{
    return {Command::NewBoard, Command::OpenBoard, separator(),    Command::SaveBoard, Command::SaveBoardAs,
            separator(),       Command::Export,    Command::Print, separator(),        Command::Quit};
}

MenuPlan editPlan()
{
    return {Command::Undo,        Command::Redo,          separator(),          Command::Cut,
            Command::Copy,        Command::Paste,         Command::Duplicate,   Command::Delete,
            separator(),          Command::CopyLook,      Command::PasteLook,   separator(),
            Command::SelectAll,   Command::SelectNothing, Command::EditText,    Command::ContextMenu,
            separator(),          Command::FindText,      Command::ReplaceText, Command::FindNext,
            Command::FindPrevious};
}

MenuPlan arrangePlan()
{
    return {orderMenu(),       alignMenu(),       Command::BringBack, separator(), Command::MirrorAcross,
            Command::MirrorUp, Command::TurnLeft, Command::TurnRight, separator(), Command::Group,
            Command::Ungroup,  separator(),       Command::Lock};
}

MenuEntry paperMenu()
{
    return {"IDS_BOARD_PAPER",
            {Command::BlankPaper, Command::RuledPaper, Command::SquaredPaper, Command::DottedPaper,
             Command::MusicPaper, Command::MillimetrePaper}};
}

MenuPlan pagePlan()
{
    return {Command::AddPage,      Command::DuplicatePage, Command::RemovePage, separator(),
            Command::MovePageBack, Command::MovePageOn,    separator(),         paperMenu(),
            separator(),           Command::PreviousPage,  Command::NextPage,   Command::FirstPage,
            Command::LastPage};
}

MenuEntry colorMenu()
{
    return {"IDS_TOOL_COLOR_AND_WIDTH",
            {Command::Color1, Command::Color2, Command::Color3, Command::Color4, Command::Color5, Command::Color6,
             separator(), Command::Wider, Command::Narrower, separator(), Command::PenOptions}};
}

MenuPlan toolPlan()
{
    return {Command::SelectTool,    separator(),       Command::PenTool,  Command::HighlighterTool,
            Command::EraserTool,    separator(),       Command::TextTool, Command::LineTool,
            Command::ConnectorTool, separator(),       Command::Shapes,   Command::InsertAnything,
            Command::Rectangle,     Command::Ellipse,  Command::Arrow,    separator(),
            Command::LaserTool,     Command::KeepTool, colorMenu()};
}

MenuPlan lessonPlan()
{
    return {Command::Record,
            Command::PauseRecording,
            separator(),
            Command::PlayLesson,
            Command::CloseLesson,
            Command::TakeOver,
            separator(),
            Command::GestureBack,
            Command::GestureForward,
            Command::ChapterBack,
            Command::ChapterForward,
            Command::SlowerLesson,
            Command::FasterLesson,
            separator(),
            Command::BeginChapter,
            Command::RenameChapter,
            separator(),
            Command::RenameLesson,
            Command::CutLesson,
            Command::RemoveLesson};
}

MenuPlan viewPlan()
{
    return {Command::Present,      Command::PresentFromStart,
            separator(),           Command::ZoomIn,
            Command::ZoomOut,      Command::ActualSize,
            Command::FitPage,      Command::ZoomToSelection,
            separator(),           Command::Grid,
            Command::Snapping,     Command::FingersDraw,
            Command::Animations,   separator(),
            Command::Panel,        Command::AllProperties,
            Command::PageStrip,    Command::Menus,
            Command::NextPart,     Command::PreviousPart,
            separator(),           Command::DarkColors,
            Command::HighContrast, Command::ReducedMotion};
}

MenuPlan helpPlan()
{
    return {Command::ShowKeys, Command::FindCommand, Command::LetterKeys, separator(), Command::About};
}

} // namespace

MenuPlan mainMenuPlan()
{
    return {{"IDS_BOARD_FILE", filePlan()}, {"IDS_BOARD_EDIT", editPlan()},  {"IDS_BOARD_ARRANGE", arrangePlan()},
            {"IDS_BOARD_PAGE", pagePlan()}, {"IDS_BOARD_TOOLS", toolPlan()}, {"IDS_LESSON_MENU", lessonPlan()},
            {"IDS_BOARD_VIEW", viewPlan()}, {"IDS_BOARD_HELP", helpPlan()}};
}

MenuPlan orderMenuPlan()
{
    return {Command::BringToFront, Command::BringForward, Command::SendBackward, Command::SendToBack};
}

MenuPlan objectMenuPlan()
{
    return {Command::EditText,
            separator(),
            Command::Cut,
            Command::Copy,
            Command::Paste,
            Command::Duplicate,
            separator(),
            orderMenu(),
            alignMenu(),
            Command::BringBack,
            Command::Group,
            Command::Ungroup,
            Command::Lock,
            separator(),
            Command::CopyLook,
            Command::PasteLook,
            Command::AllProperties,
            separator(),
            Command::Delete};
}

MenuPlan pageMenuPlan()
{
    return {Command::Paste,  Command::InsertAnything, Command::SelectAll, separator(),
            Command::Grid,   Command::Snapping,       separator(),        paperMenu(),
            Command::AddPage};
}

MenuPlan thumbnailMenuPlan()
{
    const MenuEntry move("IDS_BOARD_MOVE_PAGE", {Command::MovePageBack, Command::MovePageOn});
    return {Command::AddPage, Command::DuplicatePage, move, separator(), Command::RemovePage};
}

void fillMenu(QMenu *menu, const MenuPlan &plan, const Commands &commands, const Workspace &workspace)
{
    for (const MenuEntry &entry : plan)
        if (entry.command)
            menu->addAction(commands.action(*entry.command));
        else if (entry.titleKey)
            fillMenu(menu->addMenu(workspace.text(entry.titleKey)), entry.entries, commands, workspace);
        else
            menu->addSeparator();
}

} // namespace board
