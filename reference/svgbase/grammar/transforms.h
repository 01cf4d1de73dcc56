#pragma once

#include <QtCore/QStringView>
#include <QtCore/QVector>
#include <QtGui/QTransform>

#include <array>
#include <optional>

namespace Svg {

/// One function of a list of transforms (SVG 1.1 §7.6).
struct TransformFunction
{
    enum Kind : quint8 { Matrix, Translate, Scale, Rotate, SkewX, SkewY };
    Kind kind = Matrix;
    /// How many of the arguments are given.
    int count = 0;
    std::array<double, 6> arguments{};

    bool operator==(const TransformFunction &other) const
    {
        return kind == other.kind && count == other.count && arguments == other.arguments;
    }
};

/// The last one is applied to a point first.
using TransformList = QVector<TransformFunction>;

/// The kind of a function by its name; nothing for any other name.
std::optional<TransformFunction::Kind> transformKind(QLatin1String name);
/// Nothing when the text breaks the grammar.
std::optional<TransformList> parseTransformList(QStringView text);
/// Product of all functions of a list; nothing when it is not finite, or when a function lacks arguments.
std::optional<QTransform> matrixOf(const TransformList &list);
QString transformText(const TransformList &list);

/// Both in one: the transform that a text stands for.
std::optional<QTransform> parseTransform(QStringView text);
bool isFinite(const QTransform &transform);

} // namespace Svg
