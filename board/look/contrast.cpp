#include "look/contrast.h"

#include <QtGui/QPalette>

#include <cmath>

namespace board {

namespace {

constexpr double leastOfLetters = 7;
constexpr double leastOfAccent = 4.5;
constexpr double leastOfDisabled = 3;
constexpr QRgb badLight = 0xff9b1c15, goodLight = 0xff0e5c2f, warnLight = 0xff6b4500;
constexpr QRgb badDark = 0xffffa8a2, goodDark = 0xff8ee6b3, warnDark = 0xffffd37a;

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor opaque(const QColor &color)
{
    return QColor(color.rgb());
}

QColor readable(const QColor &color, const QColor &ground, double least, const QColor &otherwise)
{
    return contrastOf(color, ground) >= least ? opaque(color) : otherwise;
}

} // namespace

double contrastOf(const QColor &one, const QColor &other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return qMax(first, second) / qMin(first, second);
}

ThemeColors highContrastColors(const QPalette &desktop)
{
    const QColor ground = opaque(desktop.color(QPalette::Active, QPalette::Window));
    const bool isDark = contrastOf(ground, Qt::white) > contrastOf(ground, Qt::black);
    const QColor extreme = isDark ? Qt::white : Qt::black;
    const auto color = [&](QPalette::ColorGroup group, QPalette::ColorRole role) {
        return desktop.color(group, role);
    };
    ThemeColors colors;
    colors.text = readable(color(QPalette::Active, QPalette::WindowText), ground, leastOfLetters, extreme);
    colors.bar = colors.surface = colors.desk = colors.soft = colors.hover = ground;
    colors.field = readable(color(QPalette::Active, QPalette::Base), colors.text, leastOfLetters, ground);
    colors.accent = readable(color(QPalette::Active, QPalette::Highlight), ground, leastOfAccent, colors.text);
    colors.onAccent =
        readable(color(QPalette::Active, QPalette::HighlightedText), colors.accent, leastOfAccent, ground);
    colors.disabled =
        readable(color(QPalette::Disabled, QPalette::WindowText), ground, leastOfDisabled, colors.text);
    colors.faint = colors.border = colors.control = colors.shapePen = colors.text;
    colors.bad = colors.record = QColor(isDark ? badDark : badLight);
    colors.good = QColor(isDark ? goodDark : goodLight);
    colors.warn = QColor(isDark ? warnDark : warnLight);
    colors.shadow = colors.pageShadow = QColor(Qt::transparent);
    return colors;
}

} // namespace board
