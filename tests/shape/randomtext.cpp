#include <shape/randomtext.h>

#include <iterator>
#include <limits>

namespace {

constexpr int mostPieces = 14;
constexpr int mostDigits = 34;
/// More than a number may have characters.
constexpr int veryManyDigits = 300;
constexpr int utf16Units = 0x10000;

const char *const commands[] = {"h", "v", "l", "h", "v", "l", "M", "H", "V", "L", "c", "z", "m", "q"};
const char *const separators[] = {",", " ", "-", "+", ".", "e", "E", "\t", ",,", "--", " , "};
/// A digit and a letter of other scripts, spaces, half a surrogate pair, the end of a C string.
const ushort unusual[] = {0x0000, 0xd800, 0xdbff, 0xdc00, 0xdfff, 0xfffe, 0xffff, 0x00a0, 0x0085, 0x2003,
                          0x2028, 0x3000, 0x180e, 0x200b, 0x0660, 0xff11, 0x00b2, 0x00e9, 0x0391, 0x2170};

} // namespace

QString RandomText::next()
{
    QString text;
    if (below(2))
        text = QLatin1Char('M');
    for (int pieces = below(mostPieces); pieces > 0; --pieces)
        text += piece();
    return text;
}

comparison::Edit RandomText::nextEdit(const QString &path)
{
    const int from = below(4) ? 0 : below(path.size() + 8) - 4;
    return {delta(), delta(), from};
}

QString RandomText::digits(int most)
{
    QString text;
    for (int count = below(most + 1); count > 0; --count)
        text += QChar('0' + below(10));
    return text;
}

QString RandomText::number()
{
    QString text;
    if (below(3) == 0)
        text += QLatin1Char(below(4) ? '-' : '+');
    text += below(200) == 0 ? digits(veryManyDigits) : digits(below(8) == 0 ? mostDigits : 4);
    if (below(3) == 0)
        text += QLatin1Char('.') + digits(below(8) == 0 ? mostDigits : 3);
    if (below(10) == 0) {
        text += QLatin1Char(below(2) ? 'e' : 'E');
        if (below(2))
            text += QLatin1Char(below(2) ? '-' : '+');
        text += digits(3);
    }
    return text;
}

QString RandomText::piece()
{
    switch (below(12)) {
    case 0:
    case 1:
    case 2:
    case 3:
        return number();
    case 4:
    case 5:
    case 6:
        return QLatin1String(commands[below(std::size(commands))]) + number();
    case 7:
    case 8:
        return QLatin1String(commands[below(std::size(commands))]) + number() + QLatin1Char(',') + number();
    case 9:
        return QLatin1String(separators[below(std::size(separators))]);
    case 10:
        return QChar(unusual[below(std::size(unusual))]);
    default:
        return QChar(ushort(below(utf16Units)));
    }
}

double RandomText::delta()
{
    switch (below(8)) {
    case 0:
        return 0;
    case 1:
        return 2;
    case 2:
        return -2;
    case 3:
        return -995;
    case 4:
        return 1e-7;
    case 5:
        return 123456.789;
    case 6:
        return std::numeric_limits<double>::infinity();
    default:
        return (below(2001) - 1000) / 8.0;
    }
}
