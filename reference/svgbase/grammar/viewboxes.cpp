#include "grammar/viewboxes.h"

#include "grammar/inputlimits.h"
#include "grammar/numbers.h"

#include <algorithm>

namespace Svg {

namespace {

struct Alignment
{
    QLatin1String name;
    double share;
};

const Alignment alignments[] = {
    {QLatin1String("Min"), 0},
    {QLatin1String("Mid"), 0.5},
    {QLatin1String("Max"), 1},
};

bool parseShare(QStringView text, double *share)
{
    for (const Alignment &alignment : alignments) {
        if (text == alignment.name) {
            *share = alignment.share;
            return true;
        }
    }
    return false;
}

bool parseAlignment(QStringView word, AspectRatio *ratio)
{
    if (word == QLatin1String("none")) {
        ratio->stretch = true;
        return true;
    }
    if (word.size() != 8 || word[0] != QLatin1Char('x') || word[4] != QLatin1Char('Y'))
        return false;
    return parseShare(word.mid(1, 3), &ratio->alignX) && parseShare(word.mid(5, 3), &ratio->alignY);
}

} // namespace

std::optional<QRectF> parseViewBox(QStringView text)
{
    const std::optional<QVector<double>> numbers = parseNumberList(text);
    return numbers ? viewBoxOf(*numbers) : std::nullopt;
}

std::optional<QRectF> viewBoxOf(const QVector<double> &numbers)
{
    if (numbers.size() != 4)
        return std::nullopt;
    const auto drawable = [](double value) { return qAbs(value) <= Limits::coordinate; };
    if (!std::all_of(numbers.begin(), numbers.end(), drawable) || numbers.at(2) < 0 || numbers.at(3) < 0)
        return std::nullopt;
    return QRectF(numbers.at(0), numbers.at(1), numbers.at(2), numbers.at(3));
}

AspectRatio parseAspectRatio(QStringView text)
{
    AspectRatio ratio;
    QStringView trimmed = text.trimmed();
    // SVG 1.1's keyword for the ratio of an image itself; SVG 2 §8.6 removed it.
    const QLatin1String defer("defer ");
    if (trimmed.startsWith(defer))
        trimmed = trimmed.mid(defer.size()).trimmed();
    const qsizetype space = trimmed.indexOf(QLatin1Char(' '));
    const QStringView rest = space < 0 ? QStringView() : trimmed.mid(space + 1).trimmed();
    if (!parseAlignment(space < 0 ? trimmed : trimmed.left(space), &ratio))
        return AspectRatio();
    ratio.slice = rest == QLatin1String("slice");
    if (!rest.isEmpty() && !ratio.slice && rest != QLatin1String("meet"))
        return AspectRatio();
    return ratio;
}

QTransform boxMapping(const QRectF &box, const QRectF &target)
{
    const double sx = target.width() / box.width();
    const double sy = target.height() / box.height();
    return QTransform(sx, 0, 0, sy, target.x() - box.x() * sx, target.y() - box.y() * sy);
}

std::optional<QTransform> viewBoxTransform(const QRectF &viewBox, const QRectF &viewport, const AspectRatio &ratio)
{
    if (viewBox.isEmpty() || viewport.isEmpty())
        return std::nullopt;
    if (ratio.stretch)
        return boxMapping(viewBox, viewport);
    const double sx = viewport.width() / viewBox.width();
    const double sy = viewport.height() / viewBox.height();
    const double scale = ratio.slice ? std::max(sx, sy) : std::min(sx, sy);
    const double x = viewport.x() + (viewport.width() - scale * viewBox.width()) * ratio.alignX;
    const double y = viewport.y() + (viewport.height() - scale * viewBox.height()) * ratio.alignY;
    return QTransform(scale, 0, 0, scale, x - scale * viewBox.x(), y - scale * viewBox.y());
}

} // namespace Svg
