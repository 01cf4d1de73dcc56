#include <shapekit/pathtext.h>

#include <QtCore/QHash>
#include <QtGui/QFont>
#include <QtGui/QPainterPath>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace shapekit {

namespace {

/// Resolves a thousandth of a pixel on the largest page, and stays readable.
constexpr int numberDigits = 10;
/// Most characters of such a number, sign, point and exponent included.
constexpr int longestNumber = 32;
/// Letters are laid out at this size and then scaled, so that hinting doesn't show.
constexpr int layoutPixels = 100;
/// Letters have many points; their coordinates are whole multiples of 1 / this.
constexpr double letterPrecision = 100;
/// Height of digits relative to the size of their font.
constexpr double digitPart = 0.72;

/// Capacity of the cache of letter outlines; a shape has a label or two.
constexpr int knownTexts = 500;

/// Below this, numbers of hundredths have no more than numberDigits digits.
constexpr double mostHundredths = 1e9;

/// Writes a whole number of hundredths, as the coordinates of letters are, with the text that std::to_chars gives
/// it but several times faster. Returns the end of the text, null for any other number.
char *writeHundredths(char *begin, char *end, double number)
{
    const double hundredths = number * 100;
    if (!(std::abs(hundredths) < mostHundredths))
        return nullptr;
    const auto count = qint64(hundredths + std::copysign(0.5, hundredths));
    if (double(count) / 100 != number)
        return nullptr;
    if (count < 0)
        *begin++ = '-';
    const auto rest = int(std::abs(count) % 100);
    begin = std::to_chars(begin, end, std::abs(count) / 100).ptr;
    if (rest == 0)
        return begin;
    *begin++ = '.';
    *begin++ = char('0' + rest / 10);
    if (rest % 10 != 0)
        *begin++ = char('0' + rest % 10);
    return begin;
}

QPainterPath lettersFromFont(const QString &text)
{
    QFont font(QStringLiteral("sans-serif"));
    font.setPixelSize(layoutPixels);
    QPainterPath letters;
    letters.addText(0, 0, font, text);
    return letters;
}

const QPainterPath &lettersOf(const QString &text)
{
    static QHash<QString, QPainterPath> known;
    auto found = known.find(text);
    if (found != known.end())
        return *found;
    if (known.size() >= knownTexts)
        known.clear();
    return *known.insert(text, lettersFromFont(text));
}

} // namespace

PathText &PathText::moveTo(QPointF point)
{
    append('M');
    append(point);
    return *this;
}

PathText &PathText::lineTo(QPointF point)
{
    append('L');
    append(point);
    return *this;
}

PathText &PathText::curveTo(QPointF control, QPointF end)
{
    append('Q');
    append(control);
    append(end);
    return *this;
}

PathText &PathText::curveTo(QPointF control1, QPointF control2, QPointF end)
{
    append('C');
    append(control1);
    append(control2);
    append(end);
    return *this;
}

PathText &PathText::arcTo(QSizeF radii, QPointF end, bool clockwise, bool large)
{
    if (radii.width() <= 0 || radii.height() <= 0)
        return lineTo(end);
    append('A');
    append(QPointF(radii.width(), radii.height()));
    m_text += QStringLiteral("0 %1 %2 ").arg(int(large)).arg(int(clockwise));
    append(end);
    return *this;
}

PathText &PathText::arcTo(double radius, QPointF end, bool clockwise, bool large)
{
    return arcTo(QSizeF(radius, radius), end, clockwise, large);
}

PathText &PathText::close()
{
    append('Z');
    return *this;
}

PathText &PathText::line(QPointF from, QPointF to)
{
    return moveTo(from).lineTo(to);
}

PathText &PathText::polygon(std::initializer_list<QPointF> corners)
{
    bool isFirst = true;
    for (const QPointF &corner : corners) {
        isFirst ? moveTo(corner) : lineTo(corner);
        isFirst = false;
    }
    return close();
}

PathText &PathText::ellipse(const QRectF &box)
{
    const QPointF left(box.left(), box.center().y());
    const QPointF right(box.right(), box.center().y());
    return moveTo(left).arcTo(box.size() / 2, right).arcTo(box.size() / 2, left).close();
}

PathText &PathText::roundedRectangle(const QRectF &box, double radius)
{
    const double bend = std::max(0.0, radius);
    const double left = box.left();
    const double top = box.top();
    const double right = box.right();
    const double bottom = box.bottom();
    return moveTo({left + bend, top})
        .lineTo({right - bend, top})
        .arcTo(bend, {right, top + bend})
        .lineTo({right, bottom - bend})
        .arcTo(bend, {right - bend, bottom})
        .lineTo({left + bend, bottom})
        .arcTo(bend, {left, bottom - bend})
        .lineTo({left, top + bend})
        .arcTo(bend, {left + bend, top})
        .close();
}

PathText &PathText::text(QPointF centre, const QString &text, double height)
{
    const QPainterPath &letters = lettersOf(text);
    const double scale = height / (layoutPixels * digitPart);
    return outlines(letters, centre, {letters.boundingRect().center().x(), -layoutPixels * digitPart / 2}, scale);
}

PathText &PathText::line(QPointF start, const QString &text, double fontSize, double partBefore)
{
    const QPainterPath &letters = lettersOf(text);
    const QRectF box = letters.boundingRect();
    return outlines(letters, start, {box.left() + partBefore * box.width(), 0}, fontSize / layoutPixels);
}

PathText &PathText::outlines(const QPainterPath &letters, QPointF place, QPointF origin, double scale)
{
    const auto placed = [&](int i) {
        const QPointF point = place + (QPointF(letters.elementAt(i)) - origin) * scale;
        return QPointF(std::round(point.x() * letterPrecision), std::round(point.y() * letterPrecision)) /
               letterPrecision;
    };
    for (int i = 0; i < letters.elementCount(); ++i) {
        switch (letters.elementAt(i).type) {
        case QPainterPath::MoveToElement:
            moveTo(placed(i));
            break;
        case QPainterPath::LineToElement:
            lineTo(placed(i));
            break;
        case QPainterPath::CurveToElement:
            curveTo(placed(i), placed(i + 1), placed(i + 2));
            break;
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
    return *this;
}

void PathText::append(char command)
{
    m_text += QLatin1Char(command);
}

void PathText::append(double number)
{
    char digits[longestNumber];
    char *const limit = digits + longestNumber;
    // Adding zero turns -0 into 0.
    const double written = number + 0.0;
    char *end = writeHundredths(digits, limit, written);
    if (!end)
        end = std::to_chars(digits, limit, written, std::chars_format::general, numberDigits).ptr;
    m_text += QLatin1String(digits, int(end - digits));
    m_text += QLatin1Char(' ');
}

void PathText::append(QPointF point)
{
    append(point.x());
    append(point.y());
}

} // namespace shapekit
