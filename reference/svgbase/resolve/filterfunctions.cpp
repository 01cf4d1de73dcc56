#include "resolve/filterfunctions.h"

#include <QtCore/QtMath>

namespace Svg {

namespace {

using Matrix = std::array<double, 20>;

Matrix sepiaMatrix(double amount)
{
    const double s = 1 - amount;
    return {0.393 + 0.607 * s,
            0.769 - 0.769 * s,
            0.189 - 0.189 * s,
            0,
            0,
            0.349 - 0.349 * s,
            0.686 + 0.314 * s,
            0.168 - 0.168 * s,
            0,
            0,
            0.272 - 0.272 * s,
            0.534 - 0.534 * s,
            0.131 + 0.869 * s,
            0,
            0,
            0,
            0,
            0,
            1,
            0};
}

Matrix grayscaleMatrix(double amount)
{
    const double s = 1 - amount;
    return {0.2126 + 0.7874 * s,
            0.7152 - 0.7152 * s,
            0.0722 - 0.0722 * s,
            0,
            0,
            0.2126 - 0.2126 * s,
            0.7152 + 0.2848 * s,
            0.0722 - 0.0722 * s,
            0,
            0,
            0.2126 - 0.2126 * s,
            0.7152 - 0.7152 * s,
            0.0722 + 0.9278 * s,
            0,
            0,
            0,
            0,
            0,
            1,
            0};
}

template<typename Function> void transferColors(FilterPrimitive *primitive, Function function)
{
    const QByteArray table = transferTable(function);
    primitive->kind = ElementKind::FeComponentTransfer;
    primitive->tables = {table, table, table, transferTable([](double c) { return c; })};
}

void transferAlpha(FilterPrimitive *primitive, double amount)
{
    const QByteArray same = transferTable([](double c) { return c; });
    primitive->kind = ElementKind::FeComponentTransfer;
    primitive->tables = {same, same, same, transferTable([amount](double a) { return a * amount; })};
}

void setMatrix(FilterPrimitive *primitive, const Matrix &matrix)
{
    primitive->kind = ElementKind::FeColorMatrix;
    primitive->matrix = matrix;
}

double userUnits(const Length &length, const ComputedStyle &style)
{
    return toUserUnits(length, Axis::Diagonal, {QSizeF(), style.font.size});
}

void setBlur(FilterPrimitive *primitive, const Length &deviation, const ComputedStyle &style)
{
    const double size = userUnits(deviation, style);
    primitive->kind = ElementKind::FeGaussianBlur;
    primitive->extent = QSizeF(size, size);
}

void setShadow(FilterPrimitive *primitive, const FilterFunction &function, const ComputedStyle &style)
{
    setBlur(primitive, function.lengths[2], style);
    primitive->kind = ElementKind::FeDropShadow;
    primitive->offset = QPointF(userUnits(function.lengths[0], style), userUnits(function.lengths[1], style));
    primitive->color = function.color.isValid() ? function.color : style.color;
}

} // namespace

Matrix identityMatrix()
{
    return {1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0};
}

Matrix saturateMatrix(double s)
{
    return {0.213 + 0.787 * s,
            0.715 - 0.715 * s,
            0.072 - 0.072 * s,
            0,
            0,
            0.213 - 0.213 * s,
            0.715 + 0.285 * s,
            0.072 - 0.072 * s,
            0,
            0,
            0.213 - 0.213 * s,
            0.715 - 0.715 * s,
            0.072 + 0.928 * s,
            0,
            0,
            0,
            0,
            0,
            1,
            0};
}

Matrix hueRotateMatrix(double degrees)
{
    const double c = std::cos(qDegreesToRadians(degrees));
    const double s = std::sin(qDegreesToRadians(degrees));
    return {0.213 + c * 0.787 - s * 0.213,
            0.715 - c * 0.715 - s * 0.715,
            0.072 - c * 0.072 + s * 0.928,
            0,
            0,
            0.213 - c * 0.213 + s * 0.143,
            0.715 + c * 0.285 + s * 0.140,
            0.072 - c * 0.072 - s * 0.283,
            0,
            0,
            0.213 - c * 0.213 - s * 0.787,
            0.715 - c * 0.715 + s * 0.715,
            0.072 + c * 0.928 + s * 0.072,
            0,
            0,
            0,
            0,
            0,
            1,
            0};
}

Matrix luminanceToAlphaMatrix()
{
    return {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0.2125, 0.7154, 0.0721, 0, 0};
}

FilterPrimitive functionPrimitive(const FilterFunction &function, const ComputedStyle &style)
{
    FilterPrimitive primitive;
    primitive.linear = false;
    const double amount = function.amount;
    switch (function.kind) {
    case FilterFunction::Reference:
        break;
    case FilterFunction::Blur:
        setBlur(&primitive, function.lengths[0], style);
        break;
    case FilterFunction::DropShadow:
        setShadow(&primitive, function, style);
        break;
    case FilterFunction::Brightness:
        transferColors(&primitive, [amount](double c) { return c * amount; });
        break;
    case FilterFunction::Contrast:
        transferColors(&primitive, [amount](double c) { return (c - 0.5) * amount + 0.5; });
        break;
    case FilterFunction::Invert:
        transferColors(&primitive, [a = qMin(1.0, amount)](double c) { return a + c * (1 - 2 * a); });
        break;
    case FilterFunction::Opacity:
        transferAlpha(&primitive, qMin(1.0, amount));
        break;
    case FilterFunction::Grayscale:
        setMatrix(&primitive, grayscaleMatrix(qMin(1.0, amount)));
        break;
    case FilterFunction::Sepia:
        setMatrix(&primitive, sepiaMatrix(qMin(1.0, amount)));
        break;
    case FilterFunction::Saturate:
        setMatrix(&primitive, saturateMatrix(amount));
        break;
    case FilterFunction::HueRotate:
        setMatrix(&primitive, hueRotateMatrix(amount));
        break;
    }
    return primitive;
}

QVector<FilterFunction> filterFunctions(const ComputedStyle &style)
{
    return parseFilterList(style.effects->filter, style.effects->filterUnits).value_or(QVector<FilterFunction>());
}

} // namespace Svg
