#pragma once

#include <QtCore/QString>

class QMimeData;
class QTextCursor;

namespace board {

// Lists in texts without formats: lines that begin with a mark (pagehost::listMark()).

/// The return key at the cursor: a further item, or the end of the list in an item without text. False, without
/// effect, outside of lists.
bool continueList(QTextCursor &cursor);
/// The space bar at the cursor: turns "-" or "*" at the beginning of a line into a bullet. False, without effect,
/// elsewhere.
bool beginList(QTextCursor &cursor);
/// Makes the selected lines items with bullets; such items numbered ones, and those lines without a mark.
void changeList(QTextCursor cursor);
/// The letters of formatted text, with marks for the items of its lists; those of plain text where there is no
/// other.
QString textOf(const QMimeData &data);

} // namespace board
