#include "shape/pathtext.h"

#include "shape/constants.h"

#include <algorithm>

namespace {

/// Longest number text that is edited, in characters. Widths deliberately stop earlier than heights.
constexpr int maxWidthCharacters = 19;
constexpr int maxOtherCharacters = 29;

QString numberText(double value)
{
    return QString::number(value, 'g', 6);
}

QString grownNumber(const QString &text, double delta)
{
    const double value = text.toDouble();
    const bool pointsBack = value < 0 && qAbs(value) >= sizeEpsilon;
    return numberText(pointsBack ? value - delta : value + delta);
}

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool isNumberCharacter(QChar c)
{
    return isDigit(c) || c == QLatin1Char('-') || c == QLatin1Char('.');
}

bool isPairCharacter(QChar c)
{
    return isNumberCharacter(c) || c == QLatin1Char(',');
}

bool isBeforeSeparator(QChar c)
{
    return c != QLatin1Char(',') && c != QLatin1Char('-');
}

constexpr int notFound = -1;

/// The index of the first character from `letter + 2` on that `belongs` does not accept; the end of the text counts
/// as such a character. notFound when more than `maximum` characters lie between the letter and it.
template<typename Belongs> int scanEnd(const QString &path, int letter, int maximum, Belongs belongs)
{
    const int lastEnd = letter + 1 + maximum;
    int end = letter + 2;
    while (end < path.size() && end <= lastEnd && belongs(path[end]))
        ++end;
    return end > lastEnd ? notFound : end;
}

/// An edit of one piece: the new path, and where the unedited text goes on in the old one.
struct Edit
{
    QString path;
    int next = notFound;
};

Edit replaced(const QString &path, int begin, int end, const QString &text)
{
    return {path.left(begin) + text + path.mid(end), end};
}

Edit grownSingle(const QString &path, int letter, int maximum, double delta)
{
    const int end = scanEnd(path, letter, maximum, isNumberCharacter);
    if (end == notFound)
        return {path};
    return replaced(path, letter + 1, end, grownNumber(path.mid(letter + 1, end - letter - 1), delta));
}

Edit grownLineX(const QString &path, int letter, double delta)
{
    const int end = scanEnd(path, letter, maxOtherCharacters, isBeforeSeparator);
    if (end == notFound || end >= path.size())
        return {path};
    return replaced(path, letter + 1, end, grownNumber(path.mid(letter + 1, end - letter - 1), delta));
}

Edit grownLineY(const QString &path, int letter, double delta)
{
    const int end = scanEnd(path, letter, maxOtherCharacters, isPairCharacter);
    if (end == notFound)
        return {path};
    const QString pair = path.mid(letter + 1, end - letter - 1);
    int separator = pair.indexOf(QLatin1Char(','));
    if (separator == notFound)
        separator = pair.indexOf(QLatin1Char('-'));
    // A pair without a comma that starts with its sign is lost, as it always was; templates write commas.
    if (separator <= 0)
        return replaced(path, letter + 1, end, QString());
    return replaced(path, letter + 1, end, pair.left(separator + 1) + grownNumber(pair.mid(separator + 1), delta));
}

/// The first `letter` at or after `from`, where it does not open the path.
int findLetter(const QString &path, QChar letter, int from)
{
    const int index = path.indexOf(letter, from);
    return index > 0 ? index : notFound;
}

/// A piece of a path that an edit lengthens.
struct Piece
{
    QChar letter;
    int index = notFound;
};

Piece findPiece(const QString &path, PathText::Axis axis, int from)
{
    const QChar single = QLatin1Char(axis == PathText::Axis::Width ? 'h' : 'v');
    const int index = findLetter(path, single, from);
    if (index != notFound)
        return {single, index};
    return {QLatin1Char('l'), findLetter(path, QLatin1Char('l'), from)};
}

Edit grownPiece(const QString &path, const Piece &piece, PathText::Axis axis, double delta)
{
    const bool width = axis == PathText::Axis::Width;
    if (piece.index == notFound)
        return {path};
    if (piece.letter == QLatin1Char('l'))
        return width ? grownLineX(path, piece.index, delta) : grownLineY(path, piece.index, delta);
    return grownSingle(path, piece.index, width ? maxWidthCharacters : maxOtherCharacters, delta);
}

bool isLetter(QChar c)
{
    return c.isLetter();
}

} // namespace

QString PathText::grown(QString path, Axis axis, double delta, int from, bool all)
{
    for (;;) {
        const Piece piece = findPiece(path, axis, from);
        const Edit edit = grownPiece(path, piece, axis, delta);
        // Indices stay those of the text before the edit, also where the number's length changed.
        const bool more = all && edit.next != notFound && path.indexOf(piece.letter, edit.next) > edit.next;
        if (!more)
            return edit.path;
        path = edit.path;
        from = edit.next;
    }
}

QString PathText::movedStart(const QString &path, double dx, double dy)
{
    if (!path.startsWith(QLatin1Char('M')))
        return path;
    const int signEnd = path.size() > 1 && path[1] == QLatin1Char('-') ? 2 : 1;
    const int comma = path.indexOf(QLatin1Char(','), signEnd);
    const int minus = path.indexOf(QLatin1Char('-'), signEnd);
    if (comma == notFound && minus == notFound)
        return path;
    const bool atComma = comma != notFound && (minus == notFound || comma < minus);
    const int separator = atComma ? comma : minus;
    const int yStart = atComma ? comma + 1 : minus; // a minus belongs to y
    const int yEnd = int(std::find_if(path.cbegin() + yStart, path.cend(), isLetter) - path.cbegin());
    const double x = path.mid(1, separator - 1).toDouble() + dx;
    const double y = path.mid(yStart, yEnd - yStart).toDouble() + dy;
    const QString between = y < 0 ? QString() : QStringLiteral(",");
    return QLatin1Char('M') + numberText(x) + between + numberText(y) + path.mid(yEnd);
}
