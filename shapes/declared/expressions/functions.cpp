#include <declared/expressions/functions.h>

#include <shapekit/pathtext.h>

#include <QtCore/QRectF>
#include <QtCore/QtMath>

#include <algorithm>
#include <cmath>
#include <limits>

namespace declared {

namespace {

constexpr double fullCircle = 360;
constexpr int mostDigits = 10;
/// Texts drawn as letters are cut there: each letter becomes some hundred characters of path text.
constexpr int mostLetters = 1000;
constexpr int longestJoined = 10000;

QPointF turned(QPointF arm, double degrees)
{
    const double sine = sineOf(degrees);
    const double cosine = cosineOf(degrees);
    return {arm.x() * cosine - arm.y() * sine, arm.x() * sine + arm.y() * cosine};
}

double angleTo(QPointF arm)
{
    const double degrees = qRadiansToDegrees(std::atan2(arm.y(), arm.x()));
    return degrees < 0 ? degrees + fullCircle : degrees + 0.0;
}

Value smallest(const Value *arguments, int count)
{
    double value = arguments[0].number();
    for (int i = 1; i < count; ++i)
        value = std::isnan(arguments[i].number()) ? arguments[i].number() : std::min(value, arguments[i].number());
    return value;
}

Value largest(const Value *arguments, int count)
{
    double value = arguments[0].number();
    for (int i = 1; i < count; ++i)
        value = std::isnan(arguments[i].number()) ? arguments[i].number() : std::max(value, arguments[i].number());
    return value;
}

/// Where the bounds leave no room the upper one wins.
Value clamped(const Value *a, int)
{
    return std::min(std::max(a[0].number(), a[1].number()), a[2].number());
}

Value signOf(const Value *a, int)
{
    const double number = a[0].number();
    return std::isnan(number) ? number : double(number > 0) - double(number < 0);
}

Value mixedPoints(const Value *a, int)
{
    return a[0].point + (a[1].point - a[0].point) * a[2].number();
}

bool areFinite(const Value *arguments, int from, int count)
{
    return std::all_of(arguments + from, arguments + count, [](const Value &value) { return value.isFinite(); });
}

Value boxPath(const Value *a, int count)
{
    if (!areFinite(a, 0, count))
        return Value::notFinite();
    const QRectF box(QPointF(a[0].number(), a[1].number()), QPointF(a[2].number(), a[3].number()));
    const double widest = std::min(box.width(), box.height()) / 2;
    return shapekit::PathText().roundedRectangle(box, std::min(a[4].number(), widest)).text();
}

Value ovalPath(const Value *a, int count)
{
    if (!areFinite(a, 0, count))
        return Value::notFinite();
    const bool isClockwise = a[2].number() >= 0;
    const QSizeF radii(a[1].number(), std::abs(a[2].number()));
    const QPointF left = a[0].point - QPointF(radii.width(), 0);
    const QPointF right = a[0].point + QPointF(radii.width(), 0);
    return shapekit::PathText()
        .moveTo(left)
        .arcTo(radii, right, isClockwise)
        .arcTo(radii, left, isClockwise)
        .close()
        .text();
}

/// Cut, so that texts made of texts stay bounded.
Value joinedText(const Value *a, int)
{
    return (a[0].text + a[1].text).left(longestJoined);
}

Value lettersPath(const Value *a, int count)
{
    if (!areFinite(a, 1, count))
        return Value::notFinite();
    return shapekit::PathText().text(a[1].point, a[0].text.left(mostLetters), a[2].number()).text();
}

} // namespace

double sineOf(double degrees)
{
    const double turn = std::fmod(degrees, fullCircle);
    if (std::fmod(turn, 90) == 0) {
        const int quarter = (int(turn / 90) + 4) % 4;
        return quarter == 1 ? 1 : quarter == 3 ? -1 : 0;
    }
    return std::sin(qDegreesToRadians(turn));
}

double cosineOf(double degrees)
{
    const double turn = std::fmod(degrees, fullCircle);
    return std::fmod(turn, 90) == 0 ? sineOf(turn + 90) : std::cos(qDegreesToRadians(turn));
}

double wholeOf(double number)
{
    return std::round(number);
}

double remainderOf(double number, double divisor)
{
    return number - divisor * std::floor(number / divisor);
}

Value digitsText(double number, double digits)
{
    if (!qIsFinite(number) || !qIsFinite(digits))
        return Value::notFinite();
    QString text = QString::number(number, 'f', int(std::clamp(digits, 0.0, double(mostDigits))));
    if (text.contains(QLatin1Char('.'))) {
        while (text.endsWith(QLatin1Char('0')))
            text.chop(1);
        if (text.endsWith(QLatin1Char('.')))
            text.chop(1);
    }
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

bool Builtin::takes(const QVector<Type> &arguments) const
{
    const QString letters = QString::fromLatin1(parameters);
    const bool repeats = letters.endsWith(QLatin1Char('+'));
    const int fixed = repeats ? letters.size() - 1 : letters.size();
    if (repeats ? arguments.size() < fixed : arguments.size() != fixed)
        return false;
    for (int i = 0; i < arguments.size(); ++i) {
        const QChar letter = letters.at(std::min(i, fixed - 1));
        const Type wanted = letter == QLatin1Char('p')   ? Type::Point
                            : letter == QLatin1Char('t') ? Type::Text
                                                         : Type::Number;
        if (arguments.at(i) != wanted)
            return false;
    }
    return true;
}

const QVector<Builtin> &builtins()
{
    using A = const Value *;
    static const QVector<Builtin> all{
        {"sin", "n", Type::Number, [](A a, int) -> Value { return sineOf(a[0].number()); }},
        {"cos", "n", Type::Number, [](A a, int) -> Value { return cosineOf(a[0].number()); }},
        {"tan", "n", Type::Number,
         [](A a, int) -> Value { return sineOf(a[0].number()) / cosineOf(a[0].number()); }},
        {"asin", "n", Type::Number, [](A a, int) -> Value { return qRadiansToDegrees(std::asin(a[0].number())); }},
        {"acos", "n", Type::Number, [](A a, int) -> Value { return qRadiansToDegrees(std::acos(a[0].number())); }},
        {"atan", "n", Type::Number, [](A a, int) -> Value { return qRadiansToDegrees(std::atan(a[0].number())); }},
        {"atan2", "nn", Type::Number,
         [](A a, int) -> Value { return qRadiansToDegrees(std::atan2(a[0].number(), a[1].number())); }},
        {"sqrt", "n", Type::Number, [](A a, int) -> Value { return std::sqrt(a[0].number()); }},
        {"abs", "n", Type::Number, [](A a, int) -> Value { return std::fabs(a[0].number()); }},
        {"sign", "n", Type::Number, signOf},
        {"floor", "n", Type::Number, [](A a, int) -> Value { return std::floor(a[0].number()); }},
        {"ceil", "n", Type::Number, [](A a, int) -> Value { return std::ceil(a[0].number()); }},
        {"round", "n", Type::Number, [](A a, int) -> Value { return wholeOf(a[0].number()); }},
        {"min", "n+", Type::Number, smallest},
        {"max", "n+", Type::Number, largest},
        {"clamp", "nnn", Type::Number, clamped},
        {"mix", "nnn", Type::Number,
         [](A a, int) -> Value { return a[0].number() + (a[1].number() - a[0].number()) * a[2].number(); }},
        {"mix", "ppn", Type::Point, mixedPoints},
        {"mod", "nn", Type::Number, [](A a, int) -> Value { return remainderOf(a[0].number(), a[1].number()); }},
        {"point", "nn", Type::Point, [](A a, int) -> Value { return QPointF(a[0].number(), a[1].number()); }},
        {"polar", "pnn", Type::Point,
         [](A a, int) -> Value {
             return a[0].point + turned({a[1].number(), 0}, a[2].number());
         }},
        {"length", "p", Type::Number, [](A a, int) -> Value { return std::hypot(a[0].point.x(), a[0].point.y()); }},
        {"distance", "pp", Type::Number,
         [](A a, int) -> Value {
             const QPointF way = a[1].point - a[0].point;
             return std::hypot(way.x(), way.y());
         }},
        {"angle", "pp", Type::Number, [](A a, int) -> Value { return angleTo(a[1].point - a[0].point); }},
        {"turn", "ppn", Type::Point,
         [](A a, int) -> Value { return a[1].point + turned(a[0].point - a[1].point, a[2].number()); }},
        {"cross", "pp", Type::Number,
         [](A a, int) -> Value { return a[0].point.x() * a[1].point.y() - a[0].point.y() * a[1].point.x(); }},
        {"dot", "pp", Type::Number, [](A a, int) -> Value { return QPointF::dotProduct(a[0].point, a[1].point); }},
        {"digits", "nn", Type::Text, [](A a, int) -> Value { return digitsText(a[0].number(), a[1].number()); }},
        {"join", "tt", Type::Text, joinedText},
        {"box", "nnnnn", Type::Text, boxPath},
        {"oval", "pnn", Type::Text, ovalPath},
        {"letters", "tpn", Type::Text, lettersPath},
    };
    return all;
}

QStringList builtinNames()
{
    QStringList names;
    for (const Builtin &function : builtins())
        names.append(QString::fromLatin1(function.name));
    names.append(QStringLiteral("count"));
    return names;
}

int findBuiltin(const QString &name, const QVector<Type> &arguments)
{
    const QVector<Builtin> &all = builtins();
    const auto found = std::find_if(all.begin(), all.end(), [&](const Builtin &function) {
        return name == QLatin1String(function.name) && function.takes(arguments);
    });
    return found == all.end() ? -1 : int(found - all.begin());
}

} // namespace declared
