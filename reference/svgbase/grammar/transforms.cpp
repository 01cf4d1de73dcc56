#include "grammar/transforms.h"

#include "grammar/numbers.h"

#include <QtCore/QtMath>

namespace Svg {

namespace {

constexpr int maximumArguments = 6;

struct Function
{
    QLatin1String name;
    double arguments[maximumArguments] = {};
    int count = 0;
};

bool readArguments(Cursor &cursor, Function *function)
{
    cursor.skipSpace();
    if (!cursor.take('('))
        return false;
    cursor.skipSpace();
    if (!readNumber(cursor, &function->arguments[0]))
        return false;
    function->count = 1;
    double value = 0;
    while (readNextNumber(cursor, &value)) {
        if (function->count == maximumArguments)
            return false;
        function->arguments[function->count++] = value;
    }
    cursor.skipSpace();
    return cursor.take(')');
}

QTransform rotation(const Function &f)
{
    QTransform result;
    result.translate(f.arguments[1], f.arguments[2]);
    result.rotate(f.arguments[0]);
    result.translate(-f.arguments[1], -f.arguments[2]);
    return result;
}

std::optional<QTransform> matrixOf(const Function &f)
{
    const double *a = f.arguments;
    if (f.name == QLatin1String("matrix") && f.count == 6)
        return QTransform(a[0], a[1], a[2], a[3], a[4], a[5]);
    if (f.name == QLatin1String("translate") && f.count <= 2)
        return QTransform::fromTranslate(a[0], a[1]);
    if (f.name == QLatin1String("scale") && f.count <= 2)
        return QTransform::fromScale(a[0], f.count == 2 ? a[1] : a[0]);
    if (f.name == QLatin1String("rotate") && (f.count == 1 || f.count == 3))
        return rotation(f);
    if (f.name == QLatin1String("skewX") && f.count == 1)
        return QTransform(1, 0, std::tan(qDegreesToRadians(a[0])), 1, 0, 0);
    if (f.name == QLatin1String("skewY") && f.count == 1)
        return QTransform(1, std::tan(qDegreesToRadians(a[0])), 0, 1, 0, 0);
    return std::nullopt;
}

} // namespace

bool isFinite(const QTransform &transform)
{
    const QTransform &t = transform;
    return qIsFinite(t.m11() + t.m12() + t.m21() + t.m22() + t.dx() + t.dy());
}

std::optional<QTransform> parseTransform(QStringView text)
{
    const Latin1Text bytes(text);
    Cursor cursor = bytes.cursor();
    QTransform result;
    cursor.skipSpace();
    while (!cursor.atEnd()) {
        Function function;
        function.name = cursor.takeWord();
        if (!readArguments(cursor, &function))
            return std::nullopt;
        const std::optional<QTransform> matrix = matrixOf(function);
        if (!matrix)
            return std::nullopt;
        result = *matrix * result;
        cursor.skipCommaSpace();
    }
    if (!isFinite(result))
        return std::nullopt;
    return result;
}

} // namespace Svg
