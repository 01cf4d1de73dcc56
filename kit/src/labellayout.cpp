#include <shapekit/labellayout.h>

#include <shapekit/pathtext.h>

#include <QtGui/QTransform>

#include <algorithm>
#include <cmath>

namespace shapekit {

namespace {

/// Steps of sizes that are tried for a text that fits its box.
constexpr double sizeStep = 0.5;
constexpr double narrowest = 1; ///< box, in layout pixels
/// Coordinates of letters are whole multiples of 1 / this.
constexpr double letterPrecision = 100;

double scaleOf(double size)
{
    return size / Typesetting::fontPixels;
}

/// The letters for a size of the font: those that are known, where they would come out again.
Typesetting lettersFor(const LabelLook &look, double size, const Typesetting &known)
{
    const QString text = look.text.left(Typesetting::mostLetters);
    const double room = std::max(narrowest, look.box.width() / scaleOf(size));
    const LetterForm form{look.isBold, look.isItalic, look.isUnderlined};
    const bool isSame = known.text == text && known.form == form && known.hasManyLines == look.hasManyLines;
    return isSame && known.isFor(room) ? known : typeset(text, form, look.hasManyLines, room);
}

bool isInBox(const Typesetting &letters, const LabelLook &look, double size)
{
    const double height = letters.lines.size() * letters.lineHeight * scaleOf(size);
    return letters.widest * scaleOf(size) <= look.box.width() && height <= look.box.height() &&
           !letters.breaksWords;
}

double topOf(const Typesetting &letters, const LabelLook &look, double scale)
{
    const double room = look.box.height() - letters.lines.size() * letters.lineHeight * scale;
    return look.vertical == LabelAlignment::Start ? 0 : look.vertical == LabelAlignment::End ? room : room / 2;
}

/// The left end of a line, in layout pixels.
double leftOf(const Typesetting::Line &line, const LabelLook &look, double scale)
{
    const double room = look.box.width() / scale - line.width;
    const bool isAtLeft = (look.alignment == LabelAlignment::Start) != line.isRightToLeft;
    return look.alignment == LabelAlignment::Middle ? room / 2 : isAtLeft ? 0 : room;
}

/// The end of a line, or its middle, that the alignment leaves in place; in layout pixels.
double anchorOf(const Typesetting::Line &line, LabelAlignment alignment, double left)
{
    if (alignment == LabelAlignment::Middle)
        return left + line.width / 2;
    const bool isLeftEnd = (alignment == LabelAlignment::Start) != line.isRightToLeft;
    return isLeftEnd ? left : left + line.width;
}

LabelLayout placed(const Typesetting &letters, const LabelLook &look, double size)
{
    const double scale = scaleOf(size);
    const double top = topOf(letters, look, scale);
    LabelLayout layout;
    layout.size = size;
    layout.letters = letters;
    layout.outline.setFillRule(Qt::WindingFill);
    for (int i = 0; i < letters.lines.size(); ++i) {
        const Typesetting::Line &line = letters.lines.at(i);
        const double left = leftOf(line, look, scale);
        const double baseline = top + (i * letters.lineHeight + letters.ascent) * scale;
        layout.outline.addPath(QTransform(scale, 0, 0, scale, left * scale, baseline).map(line.outline));
        layout.lines.append(
            {line.text, {anchorOf(line, look.alignment, left) * scale, baseline}, line.isRightToLeft});
    }
    return layout;
}

} // namespace

Qt::Alignment LabelLook::flags() const
{
    static constexpr Qt::AlignmentFlag across[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    static constexpr Qt::AlignmentFlag downwards[] = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
    return across[int(alignment)] | downwards[int(vertical)];
}

bool LabelLook::operator==(const LabelLook &other) const
{
    return text == other.text && box.width() == other.box.width() && box.height() == other.box.height() &&
           size == other.size && smallest == other.smallest && isBold == other.isBold &&
           isItalic == other.isItalic && isUnderlined == other.isUnderlined && hasManyLines == other.hasManyLines &&
           alignment == other.alignment && vertical == other.vertical;
}

LabelLayout layOut(const LabelLook &look, const Typesetting &known)
{
    // Most cells of a table are empty.
    if (look.text.isEmpty())
        return {{}, {}, look.size, {}};
    const double smallest = look.smallest > 0 ? std::min(look.smallest, look.size) : look.size;
    Typesetting letters = known;
    // A size that fits has smaller ones that fit: the largest is found by halving.
    int fits = 0;
    int tooMany = int((look.size - smallest) / sizeStep) + 1;
    while (tooMany - fits > 1) {
        const int middle = (fits + tooMany) / 2;
        const double size = smallest + middle * sizeStep;
        letters = lettersFor(look, size, letters);
        (isInBox(letters, look, size) ? fits : tooMany) = middle;
    }
    const double size = smallest + fits * sizeStep;
    return placed(lettersFor(look, size, letters), look, size);
}

QString pathOfLetters(const QPainterPath &outline, QPointF corner)
{
    const auto placed = [&](int i) {
        const QPointF point = corner + QPointF(outline.elementAt(i));
        return QPointF(std::round(point.x() * letterPrecision), std::round(point.y() * letterPrecision)) /
               letterPrecision;
    };
    PathText text;
    for (int i = 0; i < outline.elementCount(); ++i) {
        switch (outline.elementAt(i).type) {
        case QPainterPath::MoveToElement:
            text.moveTo(placed(i));
            break;
        case QPainterPath::LineToElement:
            text.lineTo(placed(i));
            break;
        case QPainterPath::CurveToElement:
            text.curveTo(placed(i), placed(i + 1), placed(i + 2));
            break;
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
    return outline.isEmpty() ? QStringLiteral("M0 0") : text.text();
}

} // namespace shapekit
