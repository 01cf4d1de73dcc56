#include "core/texttables.h"

#include <QtCore/QtGlobal>

namespace board {

QVector<TextEntry> lessonTexts()
{
    return {
        {"IDS_LESSON_MENU", QT_TRANSLATE_NOOP("board", "&Lesson")},
        {"IDS_LESSON_BAR", QT_TRANSLATE_NOOP("board", "Lesson")},
        {"IDS_LESSON_NONE", QT_TRANSLATE_NOOP("board", "Press %1 and teach: all you do is recorded.")},
        {"IDS_LESSON_NAME", QT_TRANSLATE_NOOP("board", "Lesson %1")},
        {"IDS_LESSON_ENTRY", QT_TRANSLATE_NOOP("board", "%1 (%2)")},
        {"IDS_LESSON_RECORD", QT_TRANSLATE_NOOP("board", "Record a lesson")},
        {"IDS_LESSON_RECORD_SHORT", QT_TRANSLATE_NOOP("board", "Record")},
        {"IDS_LESSON_STOP_SHORT", QT_TRANSLATE_NOOP("board", "Stop")},
        {"IDS_LESSON_STOP_RECORDING", QT_TRANSLATE_NOOP("board", "Stop recording")},
        {"IDS_LESSON_PAUSE_RECORDING", QT_TRANSLATE_NOOP("board", "Pause recording")},
        {"IDS_LESSON_RESUME_RECORDING", QT_TRANSLATE_NOOP("board", "Go on recording")},
        {"IDS_LESSON_PLAY", QT_TRANSLATE_NOOP("board", "Play the lesson")},
        {"IDS_LESSON_PAUSE", QT_TRANSLATE_NOOP("board", "Pause the lesson")},
        {"IDS_LESSON_CLOSE", QT_TRANSLATE_NOOP("board", "Back to the board")},
        {"IDS_LESSON_REMOVE", QT_TRANSLATE_NOOP("board", "Delete the lesson")},
        {"IDS_LESSON_CUT", QT_TRANSLATE_NOOP("board", "Cut the lesson off here")},
        {"IDS_LESSON_RENAME", QT_TRANSLATE_NOOP("board", "Rename the lesson")},
        {"IDS_LESSON_BEGIN_CHAPTER", QT_TRANSLATE_NOOP("board", "Begin a chapter here")},
        {"IDS_LESSON_RENAME_CHAPTER", QT_TRANSLATE_NOOP("board", "Rename the chapter")},
        {"IDS_LESSON_CHAPTERS", QT_TRANSLATE_NOOP("board", "Chapters")},
        {"IDS_LESSON_CHAPTER", QT_TRANSLATE_NOOP("board", "Chapter %1")},
        {"IDS_LESSON_CHAPTER_ENTRY", QT_TRANSLATE_NOOP("board", "%1 · %2")},
        {"IDS_LESSON_CHAPTER_NAME", QT_TRANSLATE_NOOP("board", "Name of the chapter")},
        {"IDS_LESSON_CHAPTER_BEGUN", QT_TRANSLATE_NOOP("board", "%1 has begun")},
        {"IDS_LESSON_GESTURE_BACK", QT_TRANSLATE_NOOP("board", "One step back")},
        {"IDS_LESSON_GESTURE_FORWARD", QT_TRANSLATE_NOOP("board", "One step forward")},
        {"IDS_LESSON_CHAPTER_BACK", QT_TRANSLATE_NOOP("board", "Chapter before")},
        {"IDS_LESSON_CHAPTER_FORWARD", QT_TRANSLATE_NOOP("board", "Next chapter")},
        {"IDS_LESSON_SLOWER", QT_TRANSLATE_NOOP("board", "Play slower")},
        {"IDS_LESSON_FASTER", QT_TRANSLATE_NOOP("board", "Play faster")},
        {"IDS_LESSON_TAKE_OVER", QT_TRANSLATE_NOOP("board", "Take the page over")},
        {"IDS_LESSON_TAKE_OVER_SHORT", QT_TRANSLATE_NOOP("board", "Take over")},
        {"IDS_LESSON_TOOLS_WAIT",
         QT_TRANSLATE_NOOP("board", "A lesson stays as it is. Take the page over to use “%1” on it.")},
        {"IDS_LESSON_NEW_NAME", QT_TRANSLATE_NOOP("board", "Name of the lesson")},
        {"IDS_LESSON_SPEED", QT_TRANSLATE_NOOP("board", "Speed of the lesson")},
        {"IDS_LESSON_CHOOSE", QT_TRANSLATE_NOOP("board", "Which lesson is played")},
        {"IDS_LESSON_TIMELINE", QT_TRANSLATE_NOOP("board", "Moment of the lesson")},
        {"IDS_LESSON_HINT",
         QT_TRANSLATE_NOOP(
             "board", "A lesson is shown, your board stays as it is · F8 plays and pauses · Shift+F8 goes back")},
        {"IDS_LESSON_BEGUN", QT_TRANSLATE_NOOP("board", "Recording has begun")},
        {"IDS_LESSON_ENDED", QT_TRANSLATE_NOOP("board", "Recording has ended")},
        {"IDS_LESSON_RECORDING", QT_TRANSLATE_NOOP("board", "Recording  %1")},
        {"IDS_LESSON_RECORDING_PAUSED", QT_TRANSLATE_NOOP("board", "Recording paused  %1")},
        {"IDS_LESSON_TIME", QT_TRANSLATE_NOOP("board", "%1 / %2")},
        {"IDS_LESSON_PLAYS_IN_PART", QT_TRANSLATE_NOOP("board", "“%1” is damaged and plays up to the damage.")},
        {"IDS_LESSON_UNREADABLE",
         QT_TRANSLATE_NOOP("board", "“%1” cannot be played: its data are damaged or of a newer program.")},
    };
}

} // namespace board
