<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>board</name>
    <message>
        <source>Add worksheet</source>
        <translation>Arbeitsblatt hinzufügen</translation>
    </message>
    <message>
        <source>Pictures, drawings and worksheets</source>
        <translation>Bilder, Zeichnungen und Arbeitsblätter</translation>
    </message>
    <message>
        <source>Worksheets</source>
        <translation>Arbeitsblätter</translation>
    </message>
    <message>
        <source>Reading “%1” …</source>
        <translation>„%1“ wird gelesen …</translation>
    </message>
    <message>
        <source>“%1” could not be read: install “poppler-utils”, which turns PDFs into pages.</source>
        <translation>„%1“ konnte nicht gelesen werden: Installieren Sie „poppler-utils“, das aus PDFs Seiten macht.</translation>
    </message>
    <message>
        <source>“%1” could not be read: it is damaged, locked with a password, or too large.</source>
        <translation>„%1“ konnte nicht gelesen werden: Die Datei ist beschädigt, mit einem Kennwort geschützt oder zu groß.</translation>
    </message>
    <message>
        <source>“%1” has more than 100 pages. Save those that you need as a PDF of their own.</source>
        <translation>„%1“ hat mehr als 100 Seiten. Speichern Sie die benötigten als eigenes PDF.</translation>
    </message>
    <message>
        <source>“%1” could not be read: a page of it takes more than 30 seconds.</source>
        <translation>„%1“ konnte nicht gelesen werden: Eine Seite braucht mehr als 30 Sekunden.</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Blank paper</source>
        <translation>Leeres Papier</translation>
    </message>
    <message>
        <source>Ruled paper</source>
        <translation>Liniertes Papier</translation>
    </message>
    <message>
        <source>Squared paper</source>
        <translation>Kariertes Papier</translation>
    </message>
    <message>
        <source>Dotted paper</source>
        <translation>Gepunktetes Papier</translation>
    </message>
    <message>
        <source>Music paper</source>
        <translation>Notenpapier</translation>
    </message>
    <message>
        <source>Millimetre paper</source>
        <translation>Millimeterpapier</translation>
    </message>
    <message>
        <source>lined lines writing background</source>
        <translation>Linien Zeilen Schreiben Hintergrund</translation>
    </message>
    <message>
        <source>grid checked mathematics background</source>
        <translation>Kästchen Raster Mathematik Hintergrund</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Use for new ones</source>
        <translation>Für neue verwenden</translation>
    </message>
    <message>
        <source>Shapes that are drawn from now on look like this one</source>
        <translation>Formen, die ab jetzt gezeichnet werden, sehen aus wie diese</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>Hellgrün</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>Hellblau</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Light orange</source>
        <translation>Hellorange</translation>
    </message>
    <message>
        <source>Light purple</source>
        <translation>Hellviolett</translation>
    </message>
    <message>
        <source>Whole strokes</source>
        <translation>Ganze Striche</translation>
    </message>
    <message>
        <source>Parts of strokes</source>
        <translation>Teile von Strichen</translation>
    </message>
    <message>
        <source>Straight line</source>
        <translation>Gerade Linie</translation>
    </message>
    <message>
        <source>Arrow line</source>
        <translation>Pfeillinie</translation>
    </message>
    <message>
        <source>Curved line</source>
        <translation>Gebogene Linie</translation>
    </message>
    <message>
        <source>Straight connector</source>
        <translation>Gerade Verbindung</translation>
    </message>
    <message>
        <source>Right-angled connector</source>
        <translation>Rechtwinklige Verbindung</translation>
    </message>
    <message>
        <source>Straight arrow</source>
        <translation>Gerader Pfeil</translation>
    </message>
    <message>
        <source>Right-angled arrow</source>
        <translation>Rechtwinkliger Pfeil</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Copy look</source>
        <translation>Aussehen kopieren</translation>
    </message>
    <message>
        <source>Paste look</source>
        <translation>Aussehen einfügen</translation>
    </message>
    <message>
        <source>Not everything could be pasted.</source>
        <translation>Nicht alles konnte eingefügt werden.</translation>
    </message>
    <message>
        <source>There is nothing on the clipboard that can be pasted here.</source>
        <translation>In der Zwischenablage ist nichts, was hier eingefügt werden kann.</translation>
    </message>
    <message>
        <source>“%1” is nothing that can be put on a page.</source>
        <translation>„%1“ kann nicht auf eine Seite gelegt werden.</translation>
    </message>
    <message>
        <source>New board</source>
        <translation>Neue Tafel</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Clear this list</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Speichern unter…</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Boards</source>
        <translation>Tafeln</translation>
    </message>
    <message>
        <source>Board</source>
        <translation>Tafel</translation>
    </message>
    <message>
        <source>Board as readable text</source>
        <translation>Tafel als lesbarer Text</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>Die Änderungen an „%1“ speichern?</translation>
    </message>
    <message>
        <source>Otherwise they are lost.</source>
        <translation>Sonst gehen sie verloren.</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>“%1” exists already. Replace it?</source>
        <translation>„%1“ gibt es schon. Ersetzen?</translation>
    </message>
    <message>
        <source>%1 files exist already. Replace them?</source>
        <translation>%1 Dateien gibt es schon. Ersetzen?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>“%1” was changed by somebody else.</source>
        <translation>„%1“ wurde von jemand anderem geändert.</translation>
    </message>
    <message>
        <source>The file is not what this board was opened from or saved to.</source>
        <translation>Die Datei ist nicht die, aus der diese Tafel geöffnet oder in die sie gespeichert wurde.</translation>
    </message>
    <message>
        <source>Save both</source>
        <translation>Beide behalten</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Meine behalten</translation>
    </message>
    <message>
        <source>Take theirs</source>
        <translation>Andere übernehmen</translation>
    </message>
    <message>
        <source>Decide…</source>
        <translation>Entscheiden…</translation>
    </message>
    <message>
        <source>“%1” is no longer there. Saving writes it again.</source>
        <translation>„%1“ ist nicht mehr da. Speichern schreibt die Datei neu.</translation>
    </message>
    <message>
        <source>Save over “%1”?</source>
        <translation>Über „%1“ speichern?</translation>
    </message>
    <message>
        <source>The file has further names (%1 hard links). Saving gives this name a file of its own: under the others the board stays as it was.</source>
        <translation>Die Datei hat weitere Namen (%1 harte Verweise). Nach dem Speichern hat dieser Name eine eigene Datei: Unter den anderen bleibt die Tafel, wie sie war.</translation>
    </message>
    <message>
        <source>The file belongs to somebody else. Once you have saved it, it is yours.</source>
        <translation>Die Datei gehört jemand anderem. Nach dem Speichern gehört sie dir.</translation>
    </message>
    <message>
        <source>Save here</source>
        <translation>Hier speichern</translation>
    </message>
    <message>
        <source>%1 (repaired)</source>
        <translation>%1 (repariert)</translation>
    </message>
    <message>
        <source>%1 (damaged)</source>
        <translation>%1 (beschädigt)</translation>
    </message>
    <message>
        <source>“%1” was not saved. Your work is still here: save it elsewhere or try again.</source>
        <translation>„%1“ wurde nicht gespeichert. Die Arbeit ist noch da: anderswo speichern oder noch einmal versuchen.</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>„%1“ konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>“%1” could not be read completely.</source>
        <translation>„%1“ konnte nicht vollständig gelesen werden.</translation>
    </message>
    <message>
        <source>The board was not closed properly. Unsaved work can be brought back: %1.</source>
        <translation>Die Tafel wurde nicht ordentlich geschlossen. Ungespeicherte Arbeit ist noch da: %1.</translation>
    </message>
    <message>
        <source>“%1” from %2</source>
        <translation>„%1“ von %2</translation>
    </message>
    <message>
        <source>%1, %2 page</source>
        <translation>%1, %2 Seite</translation>
    </message>
    <message>
        <source>%1, %2 pages</source>
        <translation>%1, %2 Seiten</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Bring back</source>
        <comment>IDS_BOARD_BRING_BACK</comment>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Löschen…</translation>
    </message>
    <message>
        <source>Delete the unsaved work? %1</source>
        <translation>Die ungespeicherte Arbeit löschen? %1</translation>
    </message>
    <message>
        <source>It cannot be brought back then.</source>
        <translation>Danach ist sie nicht mehr wiederherzustellen.</translation>
    </message>
    <message>
        <source>Delete for ever</source>
        <translation>Endgültig löschen</translation>
    </message>
    <message>
        <source>The unsaved work could not be read completely.</source>
        <translation>Die ungespeicherte Arbeit konnte nicht vollständig gelesen werden.</translation>
    </message>
    <message>
        <source>The changes could not be put aside in case of a crash.</source>
        <translation>Die Änderungen konnten nicht für den Fall eines Absturzes gesichert werden.</translation>
    </message>
    <message>
        <source>Files of shapes that cannot be used</source>
        <translation>Nicht verwendbare Dateien von Formen</translation>
    </message>
    <message>
        <source>A shape on the pages is of another version than its file has now.</source>
        <translation>Eine Form auf den Seiten hat eine andere Fassung als ihre Datei jetzt.</translation>
    </message>
    <message>
        <source>%1 shapes on the pages are of another version than their files have now.</source>
        <translation>%1 Formen auf den Seiten haben eine andere Fassung als ihre Dateien jetzt.</translation>
    </message>
    <message>
        <source>Update the shape</source>
        <translation>Die Form aktualisieren</translation>
    </message>
    <message>
        <source>Update %1 shapes</source>
        <translation>%1 Formen aktualisieren</translation>
    </message>
    <message>
        <source>Show all…</source>
        <translation>Alle zeigen…</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>There is nothing to set here that all of them have.</source>
        <translation>Hier gibt es nichts einzustellen, was alle haben.</translation>
    </message>
    <message>
        <source>&amp;Lesson</source>
        <translation>&amp;Lektion</translation>
    </message>
    <message>
        <source>Lesson</source>
        <translation>Lektion</translation>
    </message>
    <message>
        <source>Lesson %1</source>
        <translation>Lektion %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Record a lesson</source>
        <translation>Lektion aufnehmen</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Aufnahme beenden</translation>
    </message>
    <message>
        <source>Pause recording</source>
        <translation>Aufnahme anhalten</translation>
    </message>
    <message>
        <source>Go on recording</source>
        <translation>Aufnahme fortsetzen</translation>
    </message>
    <message>
        <source>Play the lesson</source>
        <translation>Lektion abspielen</translation>
    </message>
    <message>
        <source>Pause the lesson</source>
        <translation>Lektion anhalten</translation>
    </message>
    <message>
        <source>Back to the board</source>
        <translation>Zurück zur Tafel</translation>
    </message>
    <message>
        <source>Delete the lesson</source>
        <translation>Lektion löschen</translation>
    </message>
    <message>
        <source>Cut the lesson off here</source>
        <translation>Lektion hier abschneiden</translation>
    </message>
    <message>
        <source>Rename the lesson</source>
        <translation>Lektion umbenennen</translation>
    </message>
    <message>
        <source>Begin a chapter here</source>
        <translation>Kapitel hier beginnen</translation>
    </message>
    <message>
        <source>Rename the chapter</source>
        <translation>Kapitel umbenennen</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>Kapitel %1</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Name of the chapter</source>
        <translation>Name des Kapitels</translation>
    </message>
    <message>
        <source>%1 has begun</source>
        <translation>%1 hat begonnen</translation>
    </message>
    <message>
        <source>One step back</source>
        <translation>Einen Schritt zurück</translation>
    </message>
    <message>
        <source>One step forward</source>
        <translation>Einen Schritt vor</translation>
    </message>
    <message>
        <source>Chapter before</source>
        <translation>Voriges Kapitel</translation>
    </message>
    <message>
        <source>Next chapter</source>
        <translation>Nächstes Kapitel</translation>
    </message>
    <message>
        <source>Play slower</source>
        <translation>Langsamer abspielen</translation>
    </message>
    <message>
        <source>Play faster</source>
        <translation>Schneller abspielen</translation>
    </message>
    <message>
        <source>Take the page over</source>
        <translation>Seite übernehmen</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Name of the lesson</source>
        <translation>Name der Lektion</translation>
    </message>
    <message>
        <source>Speed of the lesson</source>
        <translation>Geschwindigkeit der Lektion</translation>
    </message>
    <message>
        <source>Which lesson is played</source>
        <translation>Welche Lektion abgespielt wird</translation>
    </message>
    <message>
        <source>Moment of the lesson</source>
        <translation>Stelle der Lektion</translation>
    </message>
    <message>
        <source>A lesson is shown, your board stays as it is · F8 plays and pauses · Shift+F8 goes back</source>
        <translation>Eine Lektion wird gezeigt, die Tafel bleibt, wie sie ist · F8 spielt und hält an · Umschalt+F8 kehrt zurück</translation>
    </message>
    <message>
        <source>Recording  %1</source>
        <translation>Aufnahme läuft  %1</translation>
    </message>
    <message>
        <source>Recording paused  %1</source>
        <translation>Aufnahme angehalten  %1</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>“%1” is damaged and plays up to the damage.</source>
        <translation>„%1“ ist beschädigt und läuft bis zum Schaden.</translation>
    </message>
    <message>
        <source>“%1” cannot be played: its data are damaged or of a newer program.</source>
        <translation>„%1“ kann nicht abgespielt werden: die Daten sind beschädigt oder von einem neueren Programm.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Arrange</source>
        <translation>&amp;Anordnen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;nsicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>Nichts auswählen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Move with keys</source>
        <translation>Mit Tasten verschieben</translation>
    </message>
    <message>
        <source>Bring to front</source>
        <translation>Ganz nach vorn</translation>
    </message>
    <message>
        <source>Bring forward</source>
        <translation>Nach vorn</translation>
    </message>
    <message>
        <source>Send backward</source>
        <translation>Nach hinten</translation>
    </message>
    <message>
        <source>Send to back</source>
        <translation>Ganz nach hinten</translation>
    </message>
    <message>
        <source>Mirror left to right</source>
        <translation>Waagerecht spiegeln</translation>
    </message>
    <message>
        <source>Mirror top to bottom</source>
        <translation>Senkrecht spiegeln</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Play animations</source>
        <translation>Animationen abspielen</translation>
    </message>
    <message>
        <source>Dark colours</source>
        <translation>Dunkle Farben</translation>
    </message>
    <message>
        <source>Add page</source>
        <translation>Seite hinzufügen</translation>
    </message>
    <message>
        <source>Remove page</source>
        <translation>Seite entfernen</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>About this board</source>
        <translation>Über diese Tafel</translation>
    </message>
    <message>
        <source>A board to draw and teach on, version %1.</source>
        <translation>Eine Tafel zum Zeichnen und Unterrichten, Version %1.</translation>
    </message>
    <message>
        <source>Shapes</source>
        <translation>Formen</translation>
    </message>
    <message>
        <source>Search shapes</source>
        <translation>Formen suchen</translation>
    </message>
    <message>
        <source>%1: click, then drag on the page</source>
        <translation>%1: anklicken, dann auf der Seite aufziehen</translation>
    </message>
    <message>
        <source>No shapes were found. Start with --plugins and the folder that has them.</source>
        <translation>Es wurden keine Formen gefunden. Mit --plugins und dem Ordner starten, der sie enthält.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>%1 objects</source>
        <translation>%1 Objekte</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllung</translation>
    </message>
    <message>
        <source>No fill</source>
        <translation>Keine Füllung</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Fill colour</source>
        <translation>Füllfarbe</translation>
    </message>
    <message>
        <source>Second colour</source>
        <translation>Zweite Farbe</translation>
    </message>
    <message>
        <source>Direction of the gradient</source>
        <translation>Richtung des Verlaufs</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Choose picture…</source>
        <translation>Bild wählen…</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>The picture could not be read</source>
        <translation>Das Bild konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>More colours…</source>
        <translation>Weitere Farben…</translation>
    </message>
    <message>
        <source>Choose colour</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>Konturfarbe</translation>
    </message>
    <message>
        <source>Outline width</source>
        <translation>Konturbreite</translation>
    </message>
    <message>
        <source>Outline style</source>
        <translation>Konturart</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Durchgezogen</translation>
    </message>
    <message>
        <source>Dashed</source>
        <translation>Gestrichelt</translation>
    </message>
    <message>
        <source>Dotted</source>
        <translation>Gepunktet</translation>
    </message>
    <message>
        <source>Dash, dot</source>
        <translation>Strich, Punkt</translation>
    </message>
    <message>
        <source>Dash, two dots</source>
        <translation>Strich, zwei Punkte</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Position and size</source>
        <translation>Lage und Größe</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>Top edge</source>
        <translation>Oberer Rand</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>W</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Start writing</source>
        <translation>Einfach losschreiben</translation>
    </message>
    <message>
        <source>or press T to type, S for shapes, Ctrl+K to find anything</source>
        <translation>oder T zum Tippen, S für Formen, Strg+K zum Suchen</translation>
    </message>
    <message>
        <source>Plug-ins that could not be loaded</source>
        <translation>Nicht geladene Erweiterungen</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>Text bearbeiten</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>Suchen…</translation>
    </message>
    <message>
        <source>search text word</source>
        <translation>suchen Text Wort</translation>
    </message>
    <message>
        <source>Replace…</source>
        <translation>Ersetzen…</translation>
    </message>
    <message>
        <source>exchange substitute text word</source>
        <translation>austauschen Text Wort</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Weitersuchen</translation>
    </message>
    <message>
        <source>Find previous</source>
        <translation>Rückwärts suchen</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Entsperren</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>Ausrichten</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Anordnen</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppieren</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Gruppierung aufheben</translation>
    </message>
    <message>
        <source>combine together</source>
        <translation>zusammenfassen verbinden</translation>
    </message>
    <message>
        <source>take apart dissolve</source>
        <translation>trennen auflösen</translation>
    </message>
    <message>
        <source>onto the page outside lost</source>
        <translation>auf die Seite außerhalb verloren</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Einblenden</translation>
    </message>
    <message>
        <source>Group (%1)</source>
        <translation>Gruppe (%1)</translation>
    </message>
    <message>
        <source>Align left edges</source>
        <translation>Linke Kanten ausrichten</translation>
    </message>
    <message>
        <source>Align centres across</source>
        <translation>Waagerecht mittig ausrichten</translation>
    </message>
    <message>
        <source>Align right edges</source>
        <translation>Rechte Kanten ausrichten</translation>
    </message>
    <message>
        <source>Align top edges</source>
        <translation>Obere Kanten ausrichten</translation>
    </message>
    <message>
        <source>Align centres down</source>
        <translation>Senkrecht mittig ausrichten</translation>
    </message>
    <message>
        <source>Align bottom edges</source>
        <translation>Untere Kanten ausrichten</translation>
    </message>
    <message>
        <source>Equal gaps across</source>
        <translation>Waagerecht gleichmäßig verteilen</translation>
    </message>
    <message>
        <source>Equal gaps down</source>
        <translation>Senkrecht gleichmäßig verteilen</translation>
    </message>
    <message>
        <source>Same size</source>
        <translation>Gleiche Größe</translation>
    </message>
    <message>
        <source>Duplicate page</source>
        <translation>Seite duplizieren</translation>
    </message>
    <message>
        <source>Move page</source>
        <translation>Seite verschieben</translation>
    </message>
    <message>
        <source>Move page back</source>
        <translation>Seite nach vorn verschieben</translation>
    </message>
    <message>
        <source>Move page on</source>
        <translation>Seite nach hinten verschieben</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>Bar at the top</source>
        <translation>Leiste am oberen Rand</translation>
    </message>
    <message>
        <source>&amp;Menu</source>
        <translation>&amp;Menü</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>At the left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>At the right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>At the top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Highlighter</source>
        <translation>Textmarker</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Connector</source>
        <translation>Verbinder</translation>
    </message>
    <message>
        <source>Laser pointer</source>
        <translation>Laserpointer</translation>
    </message>
    <message>
        <source>Keep the tool</source>
        <translation>Werkzeug behalten</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Zoom to the selection</source>
        <translation>Auswahl einpassen</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>Einrasten</translation>
    </message>
    <message>
        <source>Fingers draw, too</source>
        <translation>Auch Finger zeichnen</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>Next part of the window</source>
        <translation>Nächster Teil des Fensters</translation>
    </message>
    <message>
        <source>Previous part of the window</source>
        <translation>Voriger Teil des Fensters</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menüs</translation>
    </message>
    <message>
        <source>Page strip</source>
        <translation>Seitenübersicht</translation>
    </message>
    <message>
        <source>Context menu</source>
        <translation>Kontextmenü</translation>
    </message>
    <message>
        <source>Present</source>
        <translation>Vorführen</translation>
    </message>
    <message>
        <source>Curtain</source>
        <translation>Vorhang</translation>
    </message>
    <message>
        <source>End presenting</source>
        <translation>Vorführung beenden</translation>
    </message>
    <message>
        <source>Next: page %1</source>
        <translation>Nächste: Seite %1</translation>
    </message>
    <message>
        <source>This is the last page</source>
        <translation>Dies ist die letzte Seite</translation>
    </message>
    <message>
        <source>since the start</source>
        <translation>seit Beginn</translation>
    </message>
    <message>
        <source>time of day</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>End (Esc)</source>
        <translation>Beenden (Esc)</translation>
    </message>
    <message>
        <source>Presenting on the other screen</source>
        <translation>Vorführung auf dem anderen Bildschirm</translation>
    </message>
    <message>
        <source>Colour 1 of the tool</source>
        <translation>Farbe 1 des Werkzeugs</translation>
    </message>
    <message>
        <source>Colour 2 of the tool</source>
        <translation>Farbe 2 des Werkzeugs</translation>
    </message>
    <message>
        <source>Colour 3 of the tool</source>
        <translation>Farbe 3 des Werkzeugs</translation>
    </message>
    <message>
        <source>Colour 4 of the tool</source>
        <translation>Farbe 4 des Werkzeugs</translation>
    </message>
    <message>
        <source>Colour 5 of the tool</source>
        <translation>Farbe 5 des Werkzeugs</translation>
    </message>
    <message>
        <source>Colour 6 of the tool</source>
        <translation>Farbe 6 des Werkzeugs</translation>
    </message>
    <message>
        <source>Wider</source>
        <translation>Breiter</translation>
    </message>
    <message>
        <source>Narrower</source>
        <translation>Schmaler</translation>
    </message>
    <message>
        <source>Colour and width</source>
        <translation>Farbe und Breite</translation>
    </message>
    <message>
        <source>Present from page 1</source>
        <translation>Von Seite 1 an vorführen</translation>
    </message>
    <message>
        <source>Keys…</source>
        <translation>Tasten…</translation>
    </message>
    <message>
        <source>Find a command or shape…</source>
        <translation>Befehl oder Form suchen…</translation>
    </message>
    <message>
        <source>Keys without Ctrl</source>
        <translation>Tasten ohne Strg</translation>
    </message>
    <message>
        <source>Equal gaps</source>
        <translation>Gleichmäßig verteilen</translation>
    </message>
    <message>
        <source>All properties</source>
        <translation>Alle Eigenschaften</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufnehmen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>%1: drag to draw. Esc ends.</source>
        <translation>%1: Zum Zeichnen ziehen. Esc beendet.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Nothing called “%1”.</source>
        <translation>Nichts heißt „%1“.</translation>
    </message>
    <message>
        <source>Search commands and keys</source>
        <translation>Befehle und Tasten suchen</translation>
    </message>
    <message>
        <source>New key:</source>
        <translation>Neue Taste:</translation>
    </message>
    <message>
        <source>Use it</source>
        <translation>Verwenden</translation>
    </message>
    <message>
        <source>Add it</source>
        <translation>Hinzunehmen</translation>
    </message>
    <message>
        <source>No keys</source>
        <translation>Keine Tasten</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Reset all</source>
        <translation>Alle zurücksetzen</translation>
    </message>
    <message>
        <source>Letters and digits choose tools while nothing is typed</source>
        <translation>Buchstaben und Ziffern wählen Werkzeuge, solange nichts getippt wird</translation>
    </message>
    <message>
        <source>%1 belongs to “%2”, which will lose it.</source>
        <translation>%1 gehört zu „%2“ und wird dort entfernt.</translation>
    </message>
    <message>
        <source>full screen slideshow lecture</source>
        <translation>Vollbild Präsentation Vortrag</translation>
    </message>
    <message>
        <source>clone twice</source>
        <translation>klonen verdoppeln</translation>
    </message>
    <message>
        <source>unlock fix pin protect</source>
        <translation>entsperren fixieren schützen</translation>
    </message>
    <message>
        <source>flip across</source>
        <translation>kippen waagerecht</translation>
    </message>
    <message>
        <source>flip up down</source>
        <translation>kippen senkrecht</translation>
    </message>
    <message>
        <source>turn quarter 90</source>
        <translation>drehen Vierteldrehung 90</translation>
    </message>
    <message>
        <source>remove erase</source>
        <translation>entfernen</translation>
    </message>
    <message>
        <source>shortcuts keyboard hotkeys</source>
        <translation>Tastenkürzel Tastatur</translation>
    </message>
    <message>
        <source>format painter</source>
        <translation>Format übertragen</translation>
    </message>
    <message>
        <source>theme night</source>
        <translation>Thema Nacht</translation>
    </message>
    <message>
        <source>arrow pointer</source>
        <translation>Pfeil Zeiger</translation>
    </message>
    <message>
        <source>zoom whole</source>
        <translation>Zoom ganze</translation>
    </message>
    <message>
        <source>Pin to the window</source>
        <translation>Am Fenster anheften</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>Nothing on this page yet.</source>
        <translation>Noch nichts auf dieser Seite.</translation>
    </message>
    <message>
        <source>Changes will be listed here.</source>
        <translation>Hier werden Änderungen aufgeführt.</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Zuletzt benutzt</translation>
    </message>
    <message>
        <source>No shape called “%1”.</source>
        <translation>Keine Form namens „%1“.</translation>
    </message>
    <message>
        <source>All shapes</source>
        <translation>Alle Formen</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>Suchen und ersetzen</translation>
    </message>
    <message>
        <source>Find in texts</source>
        <translation>In Texten suchen</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>Match ca&amp;se</source>
        <translation>&amp;Groß/klein</translation>
    </message>
    <message>
        <source>&amp;Whole words</source>
        <translation>Gan&amp;ze Wörter</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Repla&amp;ce all</source>
        <translation>Alle e&amp;rsetzen</translation>
    </message>
    <message>
        <source>Replace text</source>
        <translation>Text ersetzen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 of %2, hidden</source>
        <translation>%1 von %2, ausgeblendet</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>%1 replaced</source>
        <translation>%1 ersetzt</translation>
    </message>
    <message>
        <source>%1 replaced, %2 locked</source>
        <translation>%1 ersetzt, %2 gesperrt</translation>
    </message>
    <message>
        <source>Outline</source>
        <comment>IDS_BOARD_OUTLINE</comment>
        <translation>Gliederung</translation>
    </message>
    <message>
        <source>Colours and widths</source>
        <translation>Farben und Breiten</translation>
    </message>
    <message>
        <source>Width %1</source>
        <translation>Breite %1</translation>
    </message>
    <message>
        <source>Letters of size %1</source>
        <translation>Buchstaben der Größe %1</translation>
    </message>
    <message>
        <source>New shape…</source>
        <translation>Neue Form…</translation>
    </message>
    <message>
        <source>Name of the shape</source>
        <translation>Name der Form</translation>
    </message>
    <message>
        <source>Open folder of shapes</source>
        <translation>Ordner der Formen öffnen</translation>
    </message>
    <message>
        <source>The shape could not be written</source>
        <translation>Die Form konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Bar at the selection</source>
        <translation>Leiste an der Auswahl</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verweis</translation>
    </message>
    <message>
        <source>“%1” is no number. Type one such as 40, 120/3 or +10.</source>
        <translation>„%1“ ist keine Zahl. Richtig wäre zum Beispiel 40, 120/3 oder +10.</translation>
    </message>
    <message>
        <source>Numbers from %1 to %2 can be set here.</source>
        <translation>Hier sind Zahlen von %1 bis %2 möglich.</translation>
    </message>
    <message>
        <source>Press %1 and teach: all you do is recorded.</source>
        <translation>Drücken Sie %1 und unterrichten Sie: Alles wird aufgezeichnet.</translation>
    </message>
    <message>
        <source>Large buttons</source>
        <translation>Große Knöpfe</translation>
    </message>
    <message>
        <source>Tools can have large buttons for fingers. View has the way back.</source>
        <translation>Die Werkzeuge können große Knöpfe für Finger haben. Unter „Ansicht“ geht es zurück.</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Ausgeben…</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>Diese Seite</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Alle Seiten</translation>
    </message>
    <message>
        <source>Selected objects</source>
        <translation>Ausgewählte Objekte</translation>
    </message>
    <message>
        <source>As</source>
        <translation>Als</translation>
    </message>
    <message>
        <source>Picture (PNG)</source>
        <translation>Bild (PNG)</translation>
    </message>
    <message>
        <source>Drawing (SVG)</source>
        <translation>Zeichnung (SVG)</translation>
    </message>
    <message>
        <source>Document (PDF)</source>
        <translation>Dokument (PDF)</translation>
    </message>
    <message>
        <source>Presenting has begun</source>
        <translation>Die Vorführung läuft</translation>
    </message>
    <message>
        <source>Presenting has ended</source>
        <translation>Die Vorführung ist beendet</translation>
    </message>
    <message>
        <source>This is the first page</source>
        <translation>Dies ist die erste Seite</translation>
    </message>
    <message>
        <source>The curtain is drawn</source>
        <translation>Der Vorhang ist zu</translation>
    </message>
    <message>
        <source>The curtain is open</source>
        <translation>Der Vorhang ist offen</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 Pixel</translation>
    </message>
    <message>
        <source>Sharp at any size</source>
        <translation>In jeder Größe scharf</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Ausgeben</translation>
    </message>
    <message>
        <source>Writing the pages…</source>
        <translation>Die Seiten werden geschrieben…</translation>
    </message>
    <message>
        <source>%1 files written to %2</source>
        <translation>%1 Dateien nach %2 geschrieben</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Nach %1 geschrieben</translation>
    </message>
    <message>
        <source>Not everything could be exported.</source>
        <translation>Nicht alles konnte ausgegeben werden.</translation>
    </message>
    <message>
        <source>The export was cancelled.</source>
        <translation>Die Ausgabe wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Drucken…</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Seiten je Blatt</translation>
    </message>
    <message>
        <source>Printing the pages…</source>
        <translation>Die Seiten werden gedruckt…</translation>
    </message>
    <message>
        <source>The pages could not be printed.</source>
        <translation>Die Seiten konnten nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>1 object</source>
        <translation>1 Objekt</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1: yes</source>
        <translation>%1: ja</translation>
    </message>
    <message>
        <source>%1: no</source>
        <translation>%1: nein</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>bei %1, %2</translation>
    </message>
    <message>
        <source>turned by %1°</source>
        <translation>um %1° gedreht</translation>
    </message>
    <message>
        <source>Point %1</source>
        <translation>Punkt %1</translation>
    </message>
    <message>
        <source>%1, across</source>
        <translation>%1, waagerecht</translation>
    </message>
    <message>
        <source>%1, down</source>
        <translation>%1, senkrecht</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Hoher Kontrast</translation>
    </message>
    <message>
        <source>Reduced motion</source>
        <translation>Weniger Bewegung</translation>
    </message>
    <message>
        <source>Recording has begun</source>
        <translation>Die Aufnahme läuft</translation>
    </message>
    <message>
        <source>Recording has ended</source>
        <translation>Die Aufnahme ist beendet</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Seitengröße</translation>
    </message>
    <message>
        <source>Width of the page</source>
        <translation>Breite der Seite</translation>
    </message>
    <message>
        <source>Height of the page</source>
        <translation>Höhe der Seite</translation>
    </message>
    <message>
        <source>Screen 16 : 9</source>
        <translation>Bildschirm 16 : 9</translation>
    </message>
    <message>
        <source>Screen 4 : 3</source>
        <translation>Bildschirm 4 : 3</translation>
    </message>
    <message>
        <source>A4 portrait</source>
        <translation>A4 Hochformat</translation>
    </message>
    <message>
        <source>A4 landscape</source>
        <translation>A4 Querformat</translation>
    </message>
    <message>
        <source>Letter portrait</source>
        <translation>Letter Hochformat</translation>
    </message>
    <message>
        <source>Letter landscape</source>
        <translation>Letter Querformat</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Petrol</translation>
    </message>
    <message>
        <source>Olive</source>
        <translation>Oliv</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>My pens</source>
        <translation>Meine Stifte</translation>
    </message>
    <message>
        <source>Pen %1</source>
        <translation>Stift %1</translation>
    </message>
    <message>
        <source>Any colour</source>
        <translation>Beliebige Farbe</translation>
    </message>
    <message>
        <source>Pressure changes width</source>
        <translation>Druck ändert die Breite</translation>
    </message>
    <message>
        <source>Straighten when held still</source>
        <translation>Gerade, wenn man stillhält</translation>
    </message>
    <message>
        <source>Pen options</source>
        <translation>Stiftoptionen</translation>
    </message>
    <message>
        <source>A lesson stays as it is. Take the page over to use “%1” on it.</source>
        <translation>Eine Lektion bleibt, wie sie ist. Übernehmen Sie die Seite, um „%1“ zu benutzen.</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Paste letters alone</source>
        <translation>Nur Buchstaben einfügen</translation>
    </message>
    <message>
        <source>All settings of the text</source>
        <translation>Alle Einstellungen des Textes</translation>
    </message>
</context>
</TS>
