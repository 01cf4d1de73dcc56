#include "grammar/transforms.h"

#include "grammar/numbers.h"

#include <QtCore/QStringList>
#include <QtCore/QtMath>

namespace Svg {

namespace {

struct KindName
{
    TransformFunction::Kind kind;
    QLatin1String name;
};

const KindName kindNames[] = {
    {TransformFunction::Matrix, QLatin1String("matrix")},
    {TransformFunction::Translate, QLatin1String("translate")},
    {TransformFunction::Scale, QLatin1String("scale")},
    {TransformFunction::Rotate, QLatin1String("rotate")},
    {TransformFunction::SkewX, QLatin1String("skewX")},
    {TransformFunction::SkewY, QLatin1String("skewY")},
};

bool readArguments(Cursor &cursor, TransformFunction *function)
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
        if (function->count == int(function->arguments.size()))
            return false;
        function->arguments[size_t(function->count++)] = value;
    }
    cursor.skipSpace();
    return cursor.take(')');
}

bool hasItsArguments(const TransformFunction &function)
{
    switch (function.kind) {
    case TransformFunction::Matrix:
        return function.count == 6;
    case TransformFunction::Translate:
    case TransformFunction::Scale:
        return function.count == 1 || function.count == 2;
    case TransformFunction::Rotate:
        return function.count == 1 || function.count == 3;
    case TransformFunction::SkewX:
    case TransformFunction::SkewY:
        break;
    }
    return function.count == 1;
}

bool readFunction(Cursor &cursor, TransformFunction *function)
{
    const std::optional<TransformFunction::Kind> kind = transformKind(cursor.takeWord());
    if (!kind)
        return false;
    function->kind = *kind;
    return readArguments(cursor, function) && hasItsArguments(*function);
}

template<typename Visit> bool forEachFunction(QStringView text, Visit visit)
{
    const Latin1Text bytes(text);
    Cursor cursor = bytes.cursor();
    cursor.skipSpace();
    while (!cursor.atEnd()) {
        TransformFunction function;
        if (!readFunction(cursor, &function))
            return false;
        visit(function);
        cursor.skipCommaSpace();
    }
    return true;
}

QTransform rotation(double degrees, const QPointF &center)
{
    QTransform result;
    result.translate(center.x(), center.y());
    result.rotate(degrees);
    result.translate(-center.x(), -center.y());
    return result;
}

QTransform matrixOf(const TransformFunction &function)
{
    const auto &a = function.arguments;
    switch (function.kind) {
    case TransformFunction::Translate:
        return QTransform::fromTranslate(a[0], a[1]);
    case TransformFunction::Scale:
        return QTransform::fromScale(a[0], function.count == 2 ? a[1] : a[0]);
    case TransformFunction::Rotate:
        return rotation(a[0], QPointF(a[1], a[2]));
    case TransformFunction::SkewX:
        return QTransform(1, 0, std::tan(qDegreesToRadians(a[0])), 1, 0, 0);
    case TransformFunction::SkewY:
        return QTransform(1, std::tan(qDegreesToRadians(a[0])), 0, 1, 0, 0);
    case TransformFunction::Matrix:
        break;
    }
    return QTransform(a[0], a[1], a[2], a[3], a[4], a[5]);
}

std::optional<QTransform> finite(const QTransform &t)
{
    return isFinite(t) ? std::optional<QTransform>(t) : std::nullopt;
}

} // namespace

bool isFinite(const QTransform &transform)
{
    const QTransform &t = transform;
    return qIsFinite(t.m11() + t.m12() + t.m21() + t.m22() + t.dx() + t.dy());
}

std::optional<TransformFunction::Kind> transformKind(QLatin1String name)
{
    for (const KindName &known : kindNames)
        if (known.name == name)
            return known.kind;
    return std::nullopt;
}

std::optional<TransformList> parseTransformList(QStringView text)
{
    TransformList list;
    const bool complete =
        forEachFunction(text, [&list](const TransformFunction &function) { list.append(function); });
    return complete ? std::optional<TransformList>(list) : std::nullopt;
}

std::optional<QTransform> matrixOf(const TransformList &list)
{
    QTransform result;
    for (const TransformFunction &function : list) {
        if (!hasItsArguments(function))
            return std::nullopt;
        result = matrixOf(function) * result;
    }
    return finite(result);
}

QString transformText(const TransformList &list)
{
    QStringList functions;
    for (const TransformFunction &function : list) {
        QStringList numbers;
        for (int i = 0; i < function.count; ++i)
            numbers.append(numberText(function.arguments[size_t(i)]));
        functions.append(kindNames[function.kind].name + QLatin1Char('(') + numbers.join(QLatin1Char(' ')) +
                         QLatin1Char(')'));
    }
    return functions.join(QLatin1Char(' '));
}

std::optional<QTransform> parseTransform(QStringView text)
{
    QTransform result;
    const bool complete = forEachFunction(
        text, [&result](const TransformFunction &function) { result = matrixOf(function) * result; });
    return complete ? finite(result) : std::nullopt;
}

} // namespace Svg
