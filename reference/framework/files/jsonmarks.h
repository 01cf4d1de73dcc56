#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QVector>

namespace pagehost {

/// A position in a broken text where a part of the document begins.
struct JsonMark
{
    enum Sort { Page, Object, Lesson };
    Sort sort = Page;
    bool isWhole = false; ///< of an object or lesson: its text is complete, up to `end`
    qint64 start = 0;
    qint64 end = 0;
};

/// All marks in order: whole objects and lessons, pages, and the rest of broken ones. Broken ones are recognised by
/// the lines on which this program's writer begins them, in other layouts by their first member.
QVector<JsonMark> findMarks(const QByteArray &text);

/// Whether lines and indentation are those of this program's writer.
bool isInOwnLayout(const QByteArray &text);
/// Spaces at the start of the line that begins there.
int indentationAt(const QByteArray &text, qint64 lineStart);
/// After the line break; the text's size for the last line.
qint64 nextLine(const QByteArray &text, qint64 offset);

/// Spaces before the parts in this program's layout.
constexpr int memberIndentation = 2;
constexpr int pageIndentation = 4;
constexpr int lessonIndentation = 4;
constexpr int pageMemberIndentation = 6;
constexpr int objectIndentation = 8;
constexpr int objectMemberIndentation = 10;

} // namespace pagehost
