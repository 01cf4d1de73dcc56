#include "core/textsearch.h"

namespace board {

namespace {

/// Marks that belong to the letter before them, as the dots of an "ä" that is written as two characters.
constexpr ushort firstCombiningMark = 0x300;
constexpr ushort lastCombiningMark = 0x36f;

bool isCombiningMark(QChar character)
{
    return character.unicode() >= firstCombiningMark && character.unicode() <= lastCombiningMark;
}

/// The character that begins at `index`, in two halves where it is beyond the first 65536.
uint characterAt(const QString &text, int index)
{
    const bool isPair =
        index + 1 < text.size() && text.at(index).isHighSurrogate() && text.at(index + 1).isLowSurrogate();
    return isPair ? QChar::surrogateToUcs4(text.at(index), text.at(index + 1)) : text.at(index).unicode();
}

uint characterBefore(const QString &text, int index)
{
    const bool isPair = index > 1 && text.at(index - 1).isLowSurrogate() && text.at(index - 2).isHighSurrogate();
    return characterAt(text, isPair ? index - 2 : index - 1);
}

bool isOfWords(uint character)
{
    return QChar::isLetterOrNumber(character) || QChar::isMark(character) || character == '_';
}

/// Whether a word goes on across this place.
bool isWithinWord(const QString &text, int index)
{
    return index > 0 && index < text.size() && isOfWords(characterBefore(text, index)) &&
           isOfWords(characterAt(text, index));
}

bool counts(const QString &text, const TextMatch &match, bool wholeWords)
{
    const int end = match.start + match.length;
    if (end < text.size() && isCombiningMark(text.at(end)))
        return false;
    return !wholeWords || (!isWithinWord(text, match.start) && !isWithinWord(text, end));
}

} // namespace

QVector<TextMatch> matchesIn(const QString &text, const QString &sought, const SearchOptions &options)
{
    QVector<TextMatch> matches;
    if (sought.isEmpty())
        return matches;
    const Qt::CaseSensitivity sensitivity = options.matchesCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
    int start = text.indexOf(sought, 0, sensitivity);
    while (start >= 0) {
        const TextMatch match{start, sought.size()};
        const bool isMatch = counts(text, match, options.wholeWords);
        if (isMatch)
            matches.append(match);
        start = text.indexOf(sought, start + (isMatch ? match.length : 1), sensitivity);
    }
    return matches;
}

QString replaced(const QString &text, const QVector<TextMatch> &matches, const QString &replacement)
{
    QString result;
    int end = 0;
    for (const TextMatch &match : matches) {
        result += text.mid(end, match.start - end) + replacement;
        end = match.start + match.length;
    }
    return result + text.mid(end);
}

} // namespace board
