#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

/// Searching one text. Characters are compared as they are: "a" finds no "ä", written as one character or as two.
namespace board {

struct SearchOptions
{
    bool matchesCase = false;
    /// Neither side of a match goes on with a letter, a digit or an underscore. A side on which the sought text has
    /// another character ends by itself.
    bool wholeWords = false;
};

/// A part of a text that is like the sought one.
struct TextMatch
{
    int start = 0;
    int length = 0;
};

inline bool operator==(const TextMatch &one, const TextMatch &other)
{
    return one.start == other.start && one.length == other.length;
}

/// From the beginning, without overlaps; none of an empty text.
QVector<TextMatch> matchesIn(const QString &text, const QString &sought, const SearchOptions &options);

/// The text with `replacement` in place of these matches, which are in order.
QString replaced(const QString &text, const QVector<TextMatch> &matches, const QString &replacement);

} // namespace board
