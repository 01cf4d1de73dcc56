#include "grammar/csstransforms.h"

#include "grammar/numbers.h"
#include "grammar/transforms.h"

#include <QtCore/QStringList>
#include <QtCore/QtMath>

namespace Svg {

namespace {

constexpr int maximumArguments = 6;
constexpr double fullTurn = 360;
constexpr double gradiansOfTurn = 400;

struct AngleUnit
{
    QLatin1String name;
    double degrees;
};

const AngleUnit angleUnits[] = {
    {QLatin1String("deg"), 1},
    {QLatin1String("grad"), fullTurn / gradiansOfTurn},
    {QLatin1String("rad"), 180 / M_PI},
    {QLatin1String("turn"), fullTurn},
};

struct Function
{
    QString name;
    QStringList arguments;
};

bool takeFunction(Cursor &cursor, Function *function)
{
    function->name = QString(cursor.takeWord()).toLower();
    if (cursor.take('3'))
        function->name += QLatin1Char('3') + QString(cursor.takeWord()).toLower();
    cursor.skipSpace();
    if (!cursor.take('('))
        return false;
    const char *begin = cursor.at;
    while (!cursor.atEnd() && cursor.peek() != ')')
        ++cursor.at;
    QString list = QString::fromLatin1(begin, int(cursor.at - begin)).simplified();
    if (!cursor.take(')'))
        return false;
    list.replace(QLatin1String(" ,"), QLatin1String(",")).replace(QLatin1String(", "), QLatin1String(","));
    function->arguments = list.split(list.contains(QLatin1Char(',')) ? QLatin1Char(',') : QLatin1Char(' '));
    return function->arguments.size() <= maximumArguments;
}

std::optional<double> parseAngle(const QString &text)
{
    if (const std::optional<double> degrees = parseNumber(text))
        return degrees;
    const Latin1Text bytes(text);
    Cursor cursor = bytes.cursor();
    double value = 0;
    if (!readNumber(cursor, &value))
        return std::nullopt;
    const QLatin1String unit = cursor.takeWord();
    for (const AngleUnit &known : angleUnits)
        if (cursor.atEnd() && unit.compare(known.name, Qt::CaseInsensitive) == 0)
            return value * known.degrees;
    return std::nullopt;
}

/// Reads the arguments of one function; an unreadable one makes the whole function fail.
class Arguments
{
public:
    Arguments(const Function &function, const LengthContext &context)
        : m_arguments(function.arguments)
        , m_context(context)
    {
    }

    bool isValid() const { return m_valid; }
    bool hasCount(int least, int most) const { return m_arguments.size() >= least && m_arguments.size() <= most; }
    int count() const { return m_arguments.size(); }
    double number(int i) { return checked(parseNumber(m_arguments.value(i))); }
    double angle(int i) { return checked(parseAngle(m_arguments.value(i))); }
    double length(int i, Axis axis)
    {
        const std::optional<Length> length = parseLength(m_arguments.value(i));
        m_valid = m_valid && length;
        return length ? toUserUnits(*length, axis, m_context) : 0;
    }

private:
    double checked(const std::optional<double> &value)
    {
        m_valid = m_valid && value;
        return value.value_or(0);
    }

    QStringList m_arguments;
    LengthContext m_context;
    bool m_valid = true;
};

QTransform skewed(double x, double y)
{
    return QTransform(1, std::tan(qDegreesToRadians(y)), std::tan(qDegreesToRadians(x)), 1, 0, 0);
}

QTransform rotated(Arguments &a)
{
    QTransform result;
    const QPointF centre =
        a.count() == 3 ? QPointF(a.length(1, Axis::Horizontal), a.length(2, Axis::Vertical)) : QPointF();
    result.translate(centre.x(), centre.y());
    result.rotate(a.angle(0));
    result.translate(-centre.x(), -centre.y());
    return result;
}

std::optional<QTransform> matrixOf(const QString &name, Arguments &a)
{
    if (name == QLatin1String("matrix") && a.hasCount(6, 6))
        return QTransform(a.number(0), a.number(1), a.number(2), a.number(3), a.length(4, Axis::Horizontal),
                          a.length(5, Axis::Vertical));
    if (name == QLatin1String("translate") && a.hasCount(1, 2))
        return QTransform::fromTranslate(a.length(0, Axis::Horizontal),
                                         a.count() == 2 ? a.length(1, Axis::Vertical) : 0);
    if (name == QLatin1String("translatex") && a.hasCount(1, 1))
        return QTransform::fromTranslate(a.length(0, Axis::Horizontal), 0);
    if (name == QLatin1String("translatey") && a.hasCount(1, 1))
        return QTransform::fromTranslate(0, a.length(0, Axis::Vertical));
    if (name == QLatin1String("scale") && a.hasCount(1, 2))
        return QTransform::fromScale(a.number(0), a.number(a.count() - 1));
    if (name == QLatin1String("scalex") && a.hasCount(1, 1))
        return QTransform::fromScale(a.number(0), 1);
    if (name == QLatin1String("scaley") && a.hasCount(1, 1))
        return QTransform::fromScale(1, a.number(0));
    if (name == QLatin1String("translate3d") && a.hasCount(3, 3))
        return QTransform::fromTranslate(a.length(0, Axis::Horizontal), a.length(1, Axis::Vertical));
    if (name == QLatin1String("scale3d") && a.hasCount(3, 3))
        return QTransform::fromScale(a.number(0), a.number(1));
    if (name == QLatin1String("rotatez") && a.hasCount(1, 1))
        return rotated(a);
    if (name == QLatin1String("rotate") && (a.hasCount(1, 1) || a.hasCount(3, 3)))
        return rotated(a);
    if (name == QLatin1String("skew") && a.hasCount(1, 2))
        return skewed(a.angle(0), a.count() == 2 ? a.angle(1) : 0);
    if (name == QLatin1String("skewx") && a.hasCount(1, 1))
        return skewed(a.angle(0), 0);
    if (name == QLatin1String("skewy") && a.hasCount(1, 1))
        return skewed(0, a.angle(0));
    return std::nullopt;
}

enum class Side { None, Horizontal, Vertical, Centre };

struct OriginWord
{
    Side side = Side::None;
    double share = 0;
};

OriginWord originWord(const QString &word)
{
    if (word == QLatin1String("left"))
        return {Side::Horizontal, 0};
    if (word == QLatin1String("right"))
        return {Side::Horizontal, 1};
    if (word == QLatin1String("top"))
        return {Side::Vertical, 0};
    if (word == QLatin1String("bottom"))
        return {Side::Vertical, 1};
    if (word == QLatin1String("center"))
        return {Side::Centre, 0.5};
    return OriginWord();
}

// Reads one coordinate; false for a keyword of the other axis.
bool readCoordinate(const QString &text, Axis axis, const LengthContext &context, double *value)
{
    const OriginWord word = originWord(text);
    const Side own = axis == Axis::Horizontal ? Side::Horizontal : Side::Vertical;
    const double whole = axis == Axis::Horizontal ? context.viewport.width() : context.viewport.height();
    if (word.side == own || word.side == Side::Centre) {
        *value = word.share * whole;
        return true;
    }
    const std::optional<Length> length = parseLength(text);
    if (!length)
        return false;
    *value = toUserUnits(*length, axis, context);
    return true;
}

} // namespace

std::optional<QTransform> parseCssTransform(QStringView text, const LengthContext &context)
{
    const QStringView trimmed = text.trimmed();
    if (trimmed.compare(QLatin1String("none"), Qt::CaseInsensitive) == 0)
        return QTransform();
    const Latin1Text bytes(trimmed);
    Cursor cursor = bytes.cursor();
    QTransform result;
    while (!cursor.atEnd()) {
        Function function;
        if (!takeFunction(cursor, &function))
            return std::nullopt;
        Arguments arguments(function, context);
        const std::optional<QTransform> matrix = matrixOf(function.name, arguments);
        if (!matrix || !arguments.isValid())
            return std::nullopt;
        result = *matrix * result;
        cursor.skipCommaSpace();
    }
    if (!isFinite(result))
        return std::nullopt;
    return result;
}

QTransform individualTransforms(const QString &translate, const QString &rotate, const QString &scale,
                                const LengthContext &context)
{
    const auto words = [](const QString &text) {
        return text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    };
    const auto transform = [&](const char *function, const QStringList &arguments) {
        const QString text = QLatin1String(function) + arguments.join(QLatin1Char(',')) + QLatin1Char(')');
        return parseCssTransform(text, context).value_or(QTransform());
    };
    QStringList angle = words(rotate);
    if (angle.size() == 2 && angle.constFirst() == QLatin1String("z"))
        angle.removeFirst();
    QTransform result;
    if (!scale.isEmpty())
        result *= transform("scale(", words(scale).mid(0, 2));
    if (angle.size() == 1)
        result *= transform("rotate(", angle);
    if (!translate.isEmpty())
        result *= transform("translate(", words(translate).mid(0, 2));
    return result;
}

std::optional<QPointF> parseTransformOrigin(QStringView text, const LengthContext &context)
{
    QStringList words = text.toString().simplified().toLower().split(QLatin1Char(' '));
    if (words.size() > 3 || words.first().isEmpty())
        return std::nullopt;
    if (words.size() == 1)
        words.append(QStringLiteral("center"));
    const bool swapped =
        originWord(words.at(0)).side == Side::Vertical || originWord(words.at(1)).side == Side::Horizontal;
    QPointF origin;
    if (!readCoordinate(words.at(swapped ? 1 : 0), Axis::Horizontal, context, &origin.rx()) ||
        !readCoordinate(words.at(swapped ? 0 : 1), Axis::Vertical, context, &origin.ry()))
        return std::nullopt;
    return origin;
}

} // namespace Svg
