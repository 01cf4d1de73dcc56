#include "core/texttables.h"

namespace board {

QVector<TextEntry> lessonTexts()
{
    return {
        {"IDS_LESSON_MENU", "&Lesson", "&Lektion"},
        {"IDS_LESSON_BAR", "Lesson", "Lektion"},
        {"IDS_LESSON_NAME", "Lesson %1", "Lektion %1"},
        {"IDS_LESSON_ENTRY", "%1 (%2)", "%1 (%2)"},
        {"IDS_LESSON_RECORD", "Record a lesson", "Lektion aufnehmen"},
        {"IDS_LESSON_STOP_RECORDING", "Stop recording", "Aufnahme beenden"},
        {"IDS_LESSON_PAUSE_RECORDING", "Pause recording", "Aufnahme anhalten"},
        {"IDS_LESSON_RESUME_RECORDING", "Go on recording", "Aufnahme fortsetzen"},
        {"IDS_LESSON_PLAY", "Play the lesson", "Lektion abspielen"},
        {"IDS_LESSON_PAUSE", "Pause the lesson", "Lektion anhalten"},
        {"IDS_LESSON_CLOSE", "Back to the board", "Zurück zur Tafel"},
        {"IDS_LESSON_REMOVE", "Delete the lesson", "Lektion löschen"},
        {"IDS_LESSON_CUT", "Cut the lesson off here", "Lektion hier abschneiden"},
        {"IDS_LESSON_RENAME", "Rename the lesson", "Lektion umbenennen"},
        {"IDS_LESSON_NEW_NAME", "Name of the lesson", "Name der Lektion"},
        {"IDS_LESSON_SPEED", "Speed of the lesson", "Geschwindigkeit der Lektion"},
        {"IDS_LESSON_CHOOSE", "Which lesson is played", "Welche Lektion abgespielt wird"},
        {"IDS_LESSON_TIMELINE", "Moment of the lesson", "Stelle der Lektion"},
        {"IDS_LESSON_HINT",
         "A lesson is shown, your board stays as it is · F8 plays and pauses · Shift+F8 goes back",
         "Eine Lektion wird gezeigt, die Tafel bleibt, wie sie ist · F8 spielt und hält an · Umschalt+F8 kehrt "
         "zurück"},
        {"IDS_LESSON_NONE", "No lesson yet: record one while you draw.",
         "Noch keine Lektion: eine aufnehmen, während gezeichnet wird."},
        {"IDS_LESSON_RECORDING", "Recording  %1", "Aufnahme läuft  %1"},
        {"IDS_LESSON_RECORDING_PAUSED", "Recording paused  %1", "Aufnahme angehalten  %1"},
        {"IDS_LESSON_TIME", "%1 / %2", "%1 / %2"},
        {"IDS_LESSON_PLAYS_IN_PART", "“%1” is damaged and plays up to the damage.",
         "„%1“ ist beschädigt und läuft bis zum Schaden."},
        {"IDS_LESSON_UNREADABLE", "“%1” cannot be played: its data are damaged or of a newer program.",
         "„%1“ kann nicht abgespielt werden: die Daten sind beschädigt oder von einem neueren Programm."},
    };
}

} // namespace board
