#include "grammar/colorspaces.h"

#include <QtCore/QString>
#include <QtCore/QtMath>

#include <algorithm>
#include <cmath>

namespace Svg {

namespace {

using Matrix = double[3][3];

// The matrices are those of CSS Color 4, chapters on predefined colour spaces and on conversions.

constexpr Matrix srgbOfXyz = {
    {3.2409699419045226, -1.537383177570094, -0.4986107602930034},
    {-0.9692436362808796, 1.8759675015077202, 0.04155505740717559},
    {0.05563007969699366, -0.20397695888897652, 1.0569715142428786},
};

/// Between the white points D50 and D65.
constexpr Matrix d65OfD50 = {
    {0.9554734527042182, -0.023098536874261423, 0.0632593086610217},
    {-0.028369706963208136, 1.0099954580058226, 0.021041398966943008},
    {0.012314001688319899, -0.020507696433477912, 1.3303659366080753},
};

constexpr Matrix xyzOfDisplayP3 = {
    {0.4865709486482162, 0.26566769316909306, 0.1982172852343625},
    {0.2289745640697488, 0.6917385218365064, 0.079286914093745},
    {0, 0.04511338185890264, 1.043944368900976},
};

constexpr Matrix xyzOfA98 = {
    {0.5766690429101305, 0.1855582379065463, 0.1882286462349947},
    {0.29734497525053605, 0.6273635662554661, 0.07529145849399788},
    {0.02703136138641234, 0.07068885253582723, 0.9913375368376388},
};

/// Of the white point D50.
constexpr Matrix xyzOfProPhoto = {
    {0.7977604896723027, 0.13518583717574031, 0.0313493495815248},
    {0.2880711282292934, 0.7118432178101014, 0.00008565396060525902},
    {0, 0, 0.8251046025104601},
};

constexpr Matrix xyzOfRec2020 = {
    {0.6369580483012914, 0.14461690358620832, 0.1688809751641721},
    {0.2627002120112671, 0.6779980715188708, 0.05930171646986196},
    {0, 0.028072693049087428, 1.060985057710791},
};

constexpr Matrix conesOfOklab = {
    {1, 0.3963377773761749, 0.2158037573099136},
    {1, -0.1055613458156586, -0.0638541728258133},
    {1, -0.0894841775298119, -1.2914855480194092},
};

constexpr Matrix srgbOfCones = {
    {4.0767416360759583, -3.3077115392580629, 0.2309699031821043},
    {-1.2684379732850315, 2.6097573492876882, -0.341319376002657},
    {-0.0041960761386756, -0.7034186179359362, 1.7076146940746117},
};

/// The white point D50.
constexpr ColorComponents white50{0.3457 / 0.3585, 1, (1 - 0.3457 - 0.3585) / 0.3585};

ColorComponents operator*(const Matrix &m, const ColorComponents &v)
{
    return {m[0][0] * v.a + m[0][1] * v.b + m[0][2] * v.c, m[1][0] * v.a + m[1][1] * v.b + m[1][2] * v.c,
            m[2][0] * v.a + m[2][1] * v.b + m[2][2] * v.c};
}

template<typename Function> ColorComponents each(const ColorComponents &v, Function function)
{
    return {function(v.a), function(v.b), function(v.c)};
}

// Written so that NaN becomes 0.
double held(double share)
{
    return share > 0 ? qMin(share, 1.0) : 0;
}

QColor colorOfSrgb(const ColorComponents &encoded)
{
    constexpr int highest = 255;
    const auto component = [](double share) { return qRound(held(share) * highest); };
    return QColor(component(encoded.a), component(encoded.b), component(encoded.c));
}

// Functions of negative light are those of its mirror image (CSS Color 4 §10).
template<typename Function> double mirrored(double value, Function function)
{
    return std::copysign(function(std::abs(value)), value);
}

double srgbEncoded(double light)
{
    return mirrored(light,
                    [](double l) { return l <= 0.0031308 ? 12.92 * l : 1.055 * std::pow(l, 1 / 2.4) - 0.055; });
}

double srgbDecoded(double encoded)
{
    return mirrored(encoded,
                    [](double e) { return e <= 0.04045 ? e / 12.92 : std::pow((e + 0.055) / 1.055, 2.4); });
}

double a98Decoded(double encoded)
{
    return mirrored(encoded, [](double e) { return std::pow(e, 563.0 / 256); });
}

double proPhotoDecoded(double encoded)
{
    return mirrored(encoded, [](double e) { return e < 16.0 / 512 ? e / 16 : std::pow(e, 1.8); });
}

double rec2020Decoded(double encoded)
{
    constexpr double alpha = 1.09929682680944;
    constexpr double beta = 0.018053968510807;
    return mirrored(
        encoded, [](double e) { return e < beta * 4.5 ? e / 4.5 : std::pow((e + alpha - 1) / alpha, 1 / 0.45); });
}

QColor colorOfLight(const ColorComponents &linearSrgb)
{
    return colorOfSrgb(each(linearSrgb, srgbEncoded));
}

QColor colorOfXyz(const ColorComponents &xyz)
{
    return colorOfLight(srgbOfXyz * xyz);
}

} // namespace

QColor colorOfHwb(const ColorComponents &hueWhiteBlack)
{
    const double white = hueWhiteBlack.b;
    const double black = hueWhiteBlack.c;
    if (white + black >= 1) {
        const double grey = white / (white + black);
        return colorOfSrgb({grey, grey, grey});
    }
    const double sixth = (hueWhiteBlack.a / 360 - std::floor(hueWhiteBlack.a / 360)) * 6;
    const auto component = [&](double shift) {
        const double place = std::fmod(sixth + shift, 6.0);
        const double pure = qBound(0.0, qMin(place, 4 - place), 1.0);
        return pure * (1 - white - black) + white;
    };
    return colorOfSrgb({component(2), component(0), component(4)});
}

QColor colorOfLab(const ColorComponents &lab)
{
    constexpr double kappa = 24389.0 / 27;
    constexpr double epsilon = 216.0 / 24389;
    const double f1 = (lab.a + 16) / 116;
    const double f0 = lab.b / 500 + f1;
    const double f2 = f1 - lab.c / 200;
    const auto share = [&](double f) { return f * f * f > epsilon ? f * f * f : (116 * f - 16) / kappa; };
    const ColorComponents xyz{share(f0) * white50.a, lab.a > kappa * epsilon ? f1 * f1 * f1 : lab.a / kappa,
                              share(f2) * white50.c};
    return colorOfXyz(d65OfD50 * xyz);
}

QColor colorOfOklab(const ColorComponents &lab)
{
    return colorOfLight(srgbOfCones * each(conesOfOklab * lab, [](double v) { return v * v * v; }));
}

std::optional<QColor> colorOfSpace(const QString &space, const ColorComponents &components)
{
    if (space == QLatin1String("srgb"))
        return colorOfSrgb(components);
    if (space == QLatin1String("srgb-linear"))
        return colorOfLight(components);
    if (space == QLatin1String("display-p3"))
        return colorOfXyz(xyzOfDisplayP3 * each(components, srgbDecoded));
    if (space == QLatin1String("a98-rgb"))
        return colorOfXyz(xyzOfA98 * each(components, a98Decoded));
    if (space == QLatin1String("prophoto-rgb"))
        return colorOfXyz(d65OfD50 * (xyzOfProPhoto * each(components, proPhotoDecoded)));
    if (space == QLatin1String("rec2020"))
        return colorOfXyz(xyzOfRec2020 * each(components, rec2020Decoded));
    if (space == QLatin1String("xyz-d50"))
        return colorOfXyz(d65OfD50 * components);
    if (space == QLatin1String("xyz") || space == QLatin1String("xyz-d65"))
        return colorOfXyz(components);
    return std::nullopt;
}

ColorComponents rectangular(const ColorComponents &lightnessChromaHue)
{
    const double hue = qDegreesToRadians(lightnessChromaHue.c);
    return {lightnessChromaHue.a, lightnessChromaHue.b * std::cos(hue), lightnessChromaHue.b * std::sin(hue)};
}

} // namespace Svg
