#include "shape/pathtext.h"

#include "shape/constants.h"
#include "shape/numbertext.h"

#include <algorithm>

namespace {

/// Longest editable number text, in characters. The limit of widths is deliberately lower than that of heights.
constexpr int maxWidthCharacters = 19;
constexpr int maxOtherCharacters = 29;

QString grownNumber(const QString &text, double delta)
{
    const double value = text.toDouble();
    const bool pointsBack = value < 0 && qAbs(value) >= sizeEpsilon;
    return NumberText::write(pointsBack ? value - delta : value + delta);
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

/// The index of the first character from `letter + 2` on that `belongs` rejects; the end of the text counts as one.
/// notFound when more than `maximum` characters lie between the letter and it.
template<typename Belongs> int scanEnd(const QString &path, int letter, int maximum, Belongs belongs)
{
    const int lastEnd = letter + 1 + maximum;
    int end = letter + 2;
    while (end < path.size() && end <= lastEnd && belongs(path[end]))
        ++end;
    return end > lastEnd ? notFound : end;
}

/// An edit of one piece: replaces the characters from `begin` up to `end` by `text`.
struct Edit
{
    int begin = 0;
    int end = notFound;
    QString text;

    bool isDone() const { return end != notFound; }
    int shortening() const { return end - begin - text.size(); }
};

Edit grownSingle(const QString &path, int letter, int maximum, double delta)
{
    const int end = scanEnd(path, letter, maximum, isNumberCharacter);
    if (end == notFound)
        return {};
    return {letter + 1, end, grownNumber(path.mid(letter + 1, end - letter - 1), delta)};
}

Edit grownLineX(const QString &path, int letter, double delta)
{
    const int end = scanEnd(path, letter, maxOtherCharacters, isBeforeSeparator);
    if (end == notFound || end >= path.size())
        return {};
    return {letter + 1, end, grownNumber(path.mid(letter + 1, end - letter - 1), delta)};
}

Edit grownLineY(const QString &path, int letter, double delta)
{
    const int end = scanEnd(path, letter, maxOtherCharacters, isPairCharacter);
    if (end == notFound)
        return {};
    const QString pair = path.mid(letter + 1, end - letter - 1);
    int separator = pair.indexOf(QLatin1Char(','));
    if (separator == notFound)
        separator = pair.indexOf(QLatin1Char('-'));
    // A pair without a comma that starts with its sign is lost, deliberately as in all versions; templates write
    // commas.
    if (separator <= 0)
        return {letter + 1, end, QString()};
    return {letter + 1, end, pair.left(separator + 1) + grownNumber(pair.mid(separator + 1), delta)};
}

/// Finds the pieces of a path, each search starting at or after the end of the previous one. Never searches again
/// for a letter that was missing once, so that a long path of lines is read only once.
class PieceFinder
{
public:
    PieceFinder(const QString &path, PathText::Axis axis)
        : m_path(path)
        , m_single(QLatin1Char(axis == PathText::Axis::Width ? 'h' : 'v'))
    {
    }

    bool find(int from)
    {
        return (!m_singlesEnded && findLetter(m_single, from)) || findLetter(QLatin1Char('l'), from);
    }
    bool isLine() const { return m_letter == QLatin1Char('l'); }
    QChar letter() const { return m_letter; }
    int index() const { return m_index; }

private:
    /// A letter that opens the path does not count.
    bool findLetter(QChar letter, int from)
    {
        m_letter = letter;
        m_index = m_path.indexOf(letter, from);
        m_singlesEnded = m_singlesEnded || (letter == m_single && m_index == notFound);
        return m_index > 0;
    }

    const QString &m_path;
    QChar m_single;
    QChar m_letter;
    int m_index = notFound;
    bool m_singlesEnded = false;
};

Edit grownPiece(const QString &path, const PieceFinder &piece, PathText::Axis axis, double delta)
{
    const bool width = axis == PathText::Axis::Width;
    if (piece.isLine())
        return width ? grownLineX(path, piece.index(), delta) : grownLineY(path, piece.index(), delta);
    return grownSingle(path, piece.index(), width ? maxWidthCharacters : maxOtherCharacters, delta);
}

bool isLetter(QChar c)
{
    return c.isLetter();
}

} // namespace

QString PathText::grown(const QString &path, Axis axis, double delta, int from, bool all)
{
    QString result;
    int copied = 0;
    PieceFinder piece(path, axis);
    while (piece.find(from)) {
        const Edit edit = grownPiece(path, piece, axis, delta);
        if (!edit.isDone())
            break;
        result += path.midRef(copied, edit.begin - copied) + edit.text;
        copied = edit.end;
        if (!all || path.indexOf(piece.letter(), edit.end) <= edit.end)
            break;
        // The next search starts at the end of the edit as it was before the edit: after a number that became
        // shorter, as many characters are skipped.
        from = edit.end + qMax(0, edit.shortening());
    }
    return copied == 0 ? path : result + path.midRef(copied);
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
    const double x = path.midRef(1, separator - 1).toDouble() + dx;
    const double y = path.midRef(yStart, yEnd - yStart).toDouble() + dy;
    const QString between = y < 0 ? QString() : QStringLiteral(",");
    return QLatin1Char('M') + NumberText::write(x) + between + NumberText::write(y) + path.mid(yEnd);
}
