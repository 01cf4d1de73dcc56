#include "grammar/colorspaces.h"

#include "grammar/colormatrices.h"

#include <QtCore/QString>
#include <QtCore/QtMath>

#include <algorithm>
#include <cmath>

namespace Svg {

namespace {

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

// Transfer functions are odd: negative light mirrors positive (CSS Color 4 §10).
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

QColor colorOfHsl(const ColorComponents &hueSaturationLightness)
{
    const ColorComponents &c = hueSaturationLightness;
    const double turn = c.a / 360 - std::floor(c.a / 360);
    return QColor::fromHslF(qBound(0.0, turn, 1.0), held(c.b), held(c.c)).toRgb();
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

std::optional<QColor> colorIn(const QString &space, const ColorComponents &c)
{
    if (space == QLatin1String("hsl"))
        return colorOfHsl(c);
    if (space == QLatin1String("hwb"))
        return colorOfHwb(c);
    if (space == QLatin1String("lab"))
        return colorOfLab(c);
    if (space == QLatin1String("lch"))
        return colorOfLab(rectangular(c));
    if (space == QLatin1String("oklab"))
        return colorOfOklab(c);
    if (space == QLatin1String("oklch"))
        return colorOfOklab(rectangular(c));
    return colorOfSpace(space, c);
}

ColorComponents rectangular(const ColorComponents &lightnessChromaHue)
{
    const double hue = qDegreesToRadians(lightnessChromaHue.c);
    return {lightnessChromaHue.a, lightnessChromaHue.b * std::cos(hue), lightnessChromaHue.b * std::sin(hue)};
}

} // namespace Svg
