#include "text/core/magnification.h"

#include <algorithm>

namespace text {

namespace {

/// Of which a step of many undone ones is seldom out of reach.
constexpr int mostFits = 256;

/// Unlike Qt's, to the bit.
bool isSame(const QSizeF &one, const QSizeF &other)
{
    return one.width() == other.width() && one.height() == other.height();
}

} // namespace

QSizeF Magnification::sizeFor(const QSizeF &after, const QSizeF &before, const QSizeF &size)
{
    const double factor = factorOf(before, size);
    const auto known = std::find_if(m_fits.cbegin(), m_fits.cend(), [&](const Fit &fit) {
        return fit.factor == factor && isSame(fit.drawing, after);
    });
    if (known != m_fits.cend())
        return known->size;
    remember({after, after * factor, factor});
    return after * factor;
}

double Magnification::factorOf(const QSizeF &drawing, const QSizeF &size)
{
    const auto known = std::find_if(m_fits.cbegin(), m_fits.cend(), [&](const Fit &fit) {
        return isSame(fit.drawing, drawing) && isSame(fit.size, size);
    });
    if (known != m_fits.cend())
        return known->factor;
    const double factor = size.width() / drawing.width();
    remember({drawing, size, factor});
    return factor;
}

void Magnification::remember(const Fit &fit)
{
    if (m_fits.size() == mostFits)
        m_fits.removeFirst();
    m_fits.append(fit);
}

} // namespace text
