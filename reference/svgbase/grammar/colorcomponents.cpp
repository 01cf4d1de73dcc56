// Conversion of painters' colours to the spaces of CSS Color 4.

#include "grammar/colormatrices.h"
#include "grammar/colorspaces.h"

#include <QtCore/QString>
#include <QtCore/QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace Svg {

namespace {

/// Below this saturation a colour counts as grey; eight-bit colours are not more exact.
constexpr double leastSaturation = 1e-4;
constexpr double leastLabChroma = 0.05;
constexpr double leastOklabChroma = 5e-4;

/// The inverse of a matrix, by its cofactors.
struct Inverse
{
    Matrix matrix;

    explicit Inverse(const Matrix &m)
    {
        const auto cofactor = [&m](int row, int column) {
            const int r1 = (row + 1) % 3;
            const int r2 = (row + 2) % 3;
            const int c1 = (column + 1) % 3;
            const int c2 = (column + 2) % 3;
            return m[r1][c1] * m[r2][c2] - m[r1][c2] * m[r2][c1];
        };
        const double determinant = m[0][0] * cofactor(0, 0) + m[0][1] * cofactor(0, 1) + m[0][2] * cofactor(0, 2);
        for (int row = 0; row < 3; ++row)
            for (int column = 0; column < 3; ++column)
                matrix[row][column] = cofactor(column, row) / determinant;
    }
};

ColorComponents through(const Matrix &matrix, const ColorComponents &components)
{
    return Inverse(matrix).matrix * components;
}

template<typename Function> ColorComponents eachMirrored(const ColorComponents &v, Function function)
{
    const auto mirrored = [&function](double value) { return std::copysign(function(std::abs(value)), value); };
    return each(v, mirrored);
}

ColorComponents srgbEncoding(const ColorComponents &light)
{
    return eachMirrored(light,
                        [](double l) { return l <= 0.0031308 ? 12.92 * l : 1.055 * std::pow(l, 1 / 2.4) - 0.055; });
}

ColorComponents srgbDecoding(const ColorComponents &encoded)
{
    return eachMirrored(encoded,
                        [](double e) { return e <= 0.04045 ? e / 12.92 : std::pow((e + 0.055) / 1.055, 2.4); });
}

ColorComponents proPhotoEncoding(const ColorComponents &light)
{
    return eachMirrored(light, [](double l) { return l < 1.0 / 512 ? 16 * l : std::pow(l, 1 / 1.8); });
}

ColorComponents a98Encoding(const ColorComponents &light)
{
    return eachMirrored(light, [](double l) { return std::pow(l, 256.0 / 563); });
}

ColorComponents rec2020Encoding(const ColorComponents &light)
{
    constexpr double alpha = 1.09929682680944;
    constexpr double beta = 0.018053968510807;
    return eachMirrored(light,
                        [](double l) { return l < beta ? 4.5 * l : alpha * std::pow(l, 0.45) - (alpha - 1); });
}

ColorComponents labOfXyz50(const ColorComponents &xyz)
{
    constexpr double kappa = 24389.0 / 27;
    constexpr double epsilon = 216.0 / 24389;
    const auto f = [](double share) { return share > epsilon ? std::cbrt(share) : (kappa * share + 16) / 116; };
    const double f0 = f(xyz.a / white50.a);
    const double f1 = f(xyz.b / white50.b);
    const double f2 = f(xyz.c / white50.c);
    return {116 * f1 - 16, 500 * (f0 - f1), 200 * (f1 - f2)};
}

ColorComponents oklabOfLight(const ColorComponents &light)
{
    const ColorComponents cones = each(through(srgbOfCones, light), [](double v) { return std::cbrt(v); });
    return through(conesOfOklab, cones);
}

ColorComponents polar(const ColorComponents &lab, double leastChroma)
{
    const double chroma = std::hypot(lab.b, lab.c);
    const double degrees = qRadiansToDegrees(std::atan2(lab.c, lab.b));
    return {lab.a, chroma, chroma > leastChroma ? std::fmod(degrees + 360, 360) : qQNaN()};
}

// Degrees; NaN for a grey.
double hueOf(const ColorComponents &srgb, double greatest, double range)
{
    if (range <= leastSaturation)
        return qQNaN();
    double sixths = 0;
    if (greatest == srgb.a)
        sixths = (srgb.b - srgb.c) / range;
    else if (greatest == srgb.b)
        sixths = (srgb.c - srgb.a) / range + 2;
    else
        sixths = (srgb.a - srgb.b) / range + 4;
    return std::fmod(sixths * 60 + 360, 360);
}

ColorComponents hslOf(const ColorComponents &srgb)
{
    const auto [least, greatest] = std::minmax({srgb.a, srgb.b, srgb.c});
    const double range = greatest - least;
    const double lightness = (greatest + least) / 2;
    const double room = 1 - std::abs(2 * lightness - 1);
    return {hueOf(srgb, greatest, range), room > 0 ? range / room : 0, lightness};
}

ColorComponents hwbOf(const ColorComponents &srgb)
{
    const auto [least, greatest] = std::minmax({srgb.a, srgb.b, srgb.c});
    return {hueOf(srgb, greatest, greatest - least), least, 1 - greatest};
}

} // namespace

std::optional<ColorComponents> componentsIn(const QString &space, const QColor &color)
{
    const ColorComponents srgb{color.redF(), color.greenF(), color.blueF()};
    const ColorComponents light = srgbDecoding(srgb);
    const ColorComponents xyz = through(srgbOfXyz, light);
    const ColorComponents xyz50 = through(d65OfD50, xyz);
    if (space == QLatin1String("srgb"))
        return srgb;
    if (space == QLatin1String("srgb-linear"))
        return light;
    if (space == QLatin1String("hsl"))
        return hslOf(srgb);
    if (space == QLatin1String("hwb"))
        return hwbOf(srgb);
    if (space == QLatin1String("lab"))
        return labOfXyz50(xyz50);
    if (space == QLatin1String("lch"))
        return polar(labOfXyz50(xyz50), leastLabChroma);
    if (space == QLatin1String("oklab"))
        return oklabOfLight(light);
    if (space == QLatin1String("oklch"))
        return polar(oklabOfLight(light), leastOklabChroma);
    if (space == QLatin1String("display-p3"))
        return srgbEncoding(through(xyzOfDisplayP3, xyz));
    if (space == QLatin1String("a98-rgb"))
        return a98Encoding(through(xyzOfA98, xyz));
    if (space == QLatin1String("prophoto-rgb"))
        return proPhotoEncoding(through(xyzOfProPhoto, xyz50));
    if (space == QLatin1String("rec2020"))
        return rec2020Encoding(through(xyzOfRec2020, xyz));
    if (space == QLatin1String("xyz-d50"))
        return xyz50;
    if (space == QLatin1String("xyz") || space == QLatin1String("xyz-d65"))
        return xyz;
    return std::nullopt;
}

} // namespace Svg
