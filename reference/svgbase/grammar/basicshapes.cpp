#include "grammar/basicshapes.h"

#include "grammar/csstransforms.h"
#include "grammar/inputlimits.h"
#include "grammar/lengths.h"
#include "grammar/pathdata.h"

#include <QtCore/QStringList>

#include <array>

namespace Svg {

namespace {

constexpr int cornerCount = 4;
using Sides = std::array<double, cornerCount>;

QStringList words(const QString &text)
{
    return text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

// Missing values repeat the ones of the opposite side.
int repeatedPlace(int place, int count)
{
    if (place < count)
        return place;
    return count == 1 ? 0 : place - 2;
}

class ShapeReader
{
public:
    ShapeReader(const QRectF &box, double fontSize)
        : m_box(box)
        , m_context{box.size(), fontSize}
    {
    }

    std::optional<QPainterPath> read(const QString &name, const QString &arguments) const;

private:
    bool length(const QString &word, Axis axis, double *value) const;
    bool sides(const QStringList &words, Sides *result) const;
    bool radii(const QString &text, Axis axis, Sides *result) const;
    bool round(const QString &text, const QRectF &rect, QPainterPath *path) const;
    bool position(const QString &text, QPointF *result) const;
    bool radius(const QString &word, Axis axis, const QPointF &centre, double *value) const;
    std::optional<QPainterPath> rectangle(const QString &name, const QString &arguments) const;
    std::optional<QRectF> edges(const QString &name, const QStringList &words) const;
    std::optional<QPainterPath> ellipse(const QString &arguments, bool circle) const;
    std::optional<QPainterPath> polygon(const QString &arguments) const;

    QRectF m_box;
    LengthContext m_context;
};

bool ShapeReader::length(const QString &word, Axis axis, double *value) const
{
    const std::optional<Length> length = parseLength(word);
    if (length)
        *value = toUserUnits(*length, axis, m_context);
    return length.has_value();
}

bool ShapeReader::sides(const QStringList &words, Sides *result) const
{
    if (words.isEmpty() || words.size() > cornerCount)
        return false;
    for (int i = 0; i < cornerCount; ++i) {
        const Axis axis = i % 2 == 0 ? Axis::Vertical : Axis::Horizontal;
        if (!length(words.at(repeatedPlace(i, words.size())), axis, &(*result)[size_t(i)]))
            return false;
    }
    return true;
}

bool ShapeReader::radii(const QString &text, Axis axis, Sides *result) const
{
    const QStringList given = words(text);
    if (given.isEmpty() || given.size() > cornerCount)
        return false;
    for (int i = 0; i < cornerCount; ++i) {
        double &radius = (*result)[size_t(i)];
        if (!length(given.at(repeatedPlace(i, given.size())), axis, &radius) || radius < 0)
            return false;
    }
    return true;
}

// Corners from the upper left on, clockwise; too large ones shrink together (CSS Backgrounds 3 §4.5).
void addRounded(const QRectF &rect, Sides across, Sides down, QPainterPath *path)
{
    double share = 1;
    const auto fit = [&share](double a, double b, double side) {
        if (a + b > side && a + b > 0)
            share = qMin(share, side / (a + b));
    };
    fit(across[0], across[1], rect.width());
    fit(across[2], across[3], rect.width());
    fit(down[0], down[3], rect.height());
    fit(down[1], down[2], rect.height());
    for (size_t i = 0; i < cornerCount; ++i) {
        across[i] *= share;
        down[i] *= share;
    }
    const auto corner = [](double x, double y, double rx, double ry) { return QRectF(x, y, 2 * rx, 2 * ry); };
    path->moveTo(rect.left() + across[0], rect.top());
    path->arcTo(corner(rect.right() - 2 * across[1], rect.top(), across[1], down[1]), 90, -90);
    path->arcTo(corner(rect.right() - 2 * across[2], rect.bottom() - 2 * down[2], across[2], down[2]), 0, -90);
    path->arcTo(corner(rect.left(), rect.bottom() - 2 * down[3], across[3], down[3]), 270, -90);
    path->arcTo(corner(rect.left(), rect.top(), across[0], down[0]), 180, -90);
    path->closeSubpath();
}

bool ShapeReader::round(const QString &text, const QRectF &rect, QPainterPath *path) const
{
    const QStringList parts = text.split(QLatin1Char('/'));
    Sides across{};
    Sides down{};
    if (parts.size() > 2 || !radii(parts.first(), Axis::Horizontal, &across) ||
        !radii(parts.last(), Axis::Vertical, &down))
        return false;
    addRounded(rect, across, down, path);
    return true;
}

std::optional<QRectF> ShapeReader::edges(const QString &name, const QStringList &given) const
{
    Sides s{};
    if (name == QLatin1String("xywh")) {
        const bool read = given.size() == cornerCount && length(given.at(0), Axis::Horizontal, &s[0]) &&
                          length(given.at(1), Axis::Vertical, &s[1]) &&
                          length(given.at(2), Axis::Horizontal, &s[2]) &&
                          length(given.at(3), Axis::Vertical, &s[3]);
        return read ? std::optional<QRectF>(QRectF(m_box.topLeft() + QPointF(s[0], s[1]), QSizeF(s[2], s[3])))
                    : std::nullopt;
    }
    if (!sides(given, &s))
        return std::nullopt;
    if (name == QLatin1String("rect"))
        return QRectF(m_box.topLeft() + QPointF(s[3], s[0]), m_box.topLeft() + QPointF(s[1], s[2]));
    return m_box.adjusted(s[3], s[0], -s[1], -s[2]);
}

std::optional<QPainterPath> ShapeReader::rectangle(const QString &name, const QString &arguments) const
{
    const QString rounding = QStringLiteral(" round ");
    const int at = arguments.indexOf(rounding);
    const std::optional<QRectF> rect = edges(name, words(arguments.left(at)));
    if (!rect)
        return std::nullopt;
    QPainterPath path;
    const QRectF held(rect->topLeft(), QSizeF(qMax(0.0, rect->width()), qMax(0.0, rect->height())));
    if (at < 0)
        path.addRect(held);
    else if (!round(arguments.mid(at + rounding.size()), held, &path))
        return std::nullopt;
    return path;
}

bool ShapeReader::position(const QString &text, QPointF *result) const
{
    const QStringList given = words(text);
    if (given.isEmpty() || given.size() > 2)
        return false;
    const std::optional<QPointF> place = parseTransformOrigin(text, m_context);
    if (place)
        *result = m_box.topLeft() + *place;
    return place.has_value();
}

bool ShapeReader::radius(const QString &word, Axis axis, const QPointF &centre, double *value) const
{
    const double left = qAbs(centre.x() - m_box.left());
    const double right = qAbs(m_box.right() - centre.x());
    const double top = qAbs(centre.y() - m_box.top());
    const double bottom = qAbs(m_box.bottom() - centre.y());
    const bool closest = word == QLatin1String("closest-side");
    if (!closest && word != QLatin1String("farthest-side"))
        return length(word, axis, value) && *value >= 0;
    const auto pick = [closest](double a, double b) { return closest ? qMin(a, b) : qMax(a, b); };
    const double across = pick(left, right);
    const double down = pick(top, bottom);
    *value = axis == Axis::Horizontal ? across : axis == Axis::Vertical ? down : pick(across, down);
    return true;
}

std::optional<QPainterPath> ShapeReader::ellipse(const QString &arguments, bool circle) const
{
    const QString spaced = QLatin1Char(' ') + arguments + QLatin1Char(' ');
    const int at = spaced.indexOf(QLatin1String(" at "));
    QPointF centre = m_box.center();
    if (at >= 0 && !position(spaced.mid(at + 4).trimmed(), &centre))
        return std::nullopt;
    QStringList given = words(spaced.left(at));
    const int wanted = circle ? 1 : 2;
    if (given.isEmpty())
        given = QStringList{QStringLiteral("closest-side"), QStringLiteral("closest-side")}.mid(0, wanted);
    double rx = 0;
    double ry = 0;
    if (given.size() != wanted || !radius(given.first(), circle ? Axis::Diagonal : Axis::Horizontal, centre, &rx) ||
        !radius(given.last(), circle ? Axis::Diagonal : Axis::Vertical, centre, &ry))
        return std::nullopt;
    QPainterPath path;
    path.addEllipse(centre, rx, circle ? rx : ry);
    return path;
}

// Removes a fill rule from the front of a list.
Qt::FillRule takeFillRule(QStringList *parts)
{
    const QString first = parts->isEmpty() ? QString() : parts->constFirst().trimmed();
    if (first != QLatin1String("nonzero") && first != QLatin1String("evenodd"))
        return Qt::WindingFill;
    parts->removeFirst();
    return first == QLatin1String("evenodd") ? Qt::OddEvenFill : Qt::WindingFill;
}

std::optional<QPainterPath> ShapeReader::polygon(const QString &arguments) const
{
    QStringList points = arguments.split(QLatin1Char(','));
    const Qt::FillRule rule = takeFillRule(&points);
    QPolygonF polygon;
    if (points.isEmpty() || points.size() > Limits::pathSegments)
        return std::nullopt;
    for (const QString &point : qAsConst(points)) {
        const QStringList given = words(point);
        QPointF place;
        if (given.size() != 2 || !length(given.first(), Axis::Horizontal, &place.rx()) ||
            !length(given.last(), Axis::Vertical, &place.ry()))
            return std::nullopt;
        polygon.append(m_box.topLeft() + place);
    }
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    path.setFillRule(rule);
    return path;
}

std::optional<QPainterPath> pathShape(const QString &arguments, const QPointF &corner)
{
    QStringList parts = arguments.split(QLatin1Char(','));
    const Qt::FillRule rule = takeFillRule(&parts);
    const QString quoted = parts.join(QLatin1Char(',')).trimmed();
    const bool closed = quoted.size() >= 2 && quoted.front() == quoted.back() &&
                        (quoted.front() == QLatin1Char('"') || quoted.front() == QLatin1Char('\''));
    if (!closed)
        return std::nullopt;
    const PathData data = parsePathData(quoted.mid(1, quoted.size() - 2));
    if (data.errorAt >= 0)
        return std::nullopt;
    QPainterPath path = data.path.translated(corner);
    path.setFillRule(rule);
    return path;
}

std::optional<QPainterPath> ShapeReader::read(const QString &name, const QString &arguments) const
{
    if (name == QLatin1String("inset") || name == QLatin1String("xywh") || name == QLatin1String("rect"))
        return rectangle(name, arguments);
    if (name == QLatin1String("circle") || name == QLatin1String("ellipse"))
        return ellipse(arguments, name == QLatin1String("circle"));
    if (name == QLatin1String("polygon"))
        return polygon(arguments);
    if (name == QLatin1String("path"))
        return pathShape(arguments, m_box.topLeft());
    return std::nullopt;
}

} // namespace

std::optional<ShapeBox> parseShapeBox(QStringView word)
{
    const auto is = [word](const char *name) {
        return word.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    };
    if (is("fill-box") || is("content-box") || is("padding-box"))
        return ShapeBox::Fill;
    if (is("stroke-box") || is("border-box") || is("margin-box"))
        return ShapeBox::Stroke;
    if (is("view-box"))
        return ShapeBox::View;
    return std::nullopt;
}

std::optional<ClipShape> parseClipShape(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    const qsizetype open = trimmed.indexOf(QLatin1Char('('));
    const qsizetype close = trimmed.lastIndexOf(QLatin1Char(')'));
    ClipShape shape;
    if (open < 0) {
        const std::optional<ShapeBox> box = parseShapeBox(trimmed);
        shape.box = box.value_or(ShapeBox::Stroke);
        return box ? std::optional<ClipShape>(shape) : std::nullopt;
    }
    const QStringView head = trimmed.left(open);
    const qsizetype space = head.lastIndexOf(QLatin1Char(' '));
    const QStringView before = space < 0 ? QStringView() : head.left(space).trimmed();
    const QStringView after = close < 0 ? QStringView() : trimmed.mid(close + 1).trimmed();
    const QStringView named = before.isEmpty() ? after : before;
    const std::optional<ShapeBox> box = parseShapeBox(named);
    if (close < open || (!named.isEmpty() && !box) || (!before.isEmpty() && !after.isEmpty()))
        return std::nullopt;
    shape.box = box.value_or(ShapeBox::Stroke);
    shape.function = trimmed.mid(space + 1, close - space).toString();
    const QRectF any(0, 0, 1, 1);
    return basicShape(shape.function, any, 1) ? std::optional<ClipShape>(shape) : std::nullopt;
}

std::optional<QPainterPath> basicShape(QStringView text, const QRectF &box, double fontSize)
{
    const QString whole = text.trimmed().toString();
    const int open = whole.indexOf(QLatin1Char('('));
    if (open < 0 || !whole.endsWith(QLatin1Char(')')))
        return std::nullopt;
    const QString arguments = whole.mid(open + 1, whole.size() - open - 2);
    const QString name = whole.left(open).toLower();
    return ShapeReader(box, fontSize)
        .read(name, name == QLatin1String("path") ? arguments : arguments.simplified());
}

} // namespace Svg
