#pragma once

#include <framework/cpagebgprop.h>
#include <framework/framework_global.h>

#include <QtCore/QLineF>
#include <QtCore/QSizeF>
#include <QtCore/QVector>
#include <QtGui/QColor>

namespace pagehost {

/// Lines printed on a page. They are part of its background: a pattern fill with a number of its own, whose colour
/// is that of the paper.
enum class Paper { Blank, Ruled, Squared, Dotted, Music, Millimetre };
/// The pattern number of Paper::Ruled; the others follow. No brush of Qt has such a number, and Qt::BrushStyle can
/// hold it: the type ends with 31.
constexpr int firstPaperPattern = 26;

/// Whether a pattern number (CPageBgProp::pattern()) is that of a paper.
FRAMEWORK_EXPORT bool isPaperPattern(int pattern);
/// Blank for backgrounds of any other kind.
FRAMEWORK_EXPORT Paper paperOf(const CPageBgProp &background);
/// Blank makes the background plain; the colour and the opacity stay.
FRAMEWORK_EXPORT void setPaper(CPageBgProp &background, Paper paper);

/// Lines of one width with round ends, scene units. Dots are lines of hardly any length.
struct PaperLines
{
    QVector<QLineF> lines; ///< scene units
    double width = 1;      ///< scene units
    QColor color;          ///< of the lines
};
/// All that is printed on a page of this size whose paper has this colour.
FRAMEWORK_EXPORT QVector<PaperLines> paperLines(Paper paper, const QSizeF &page, const QColor &ground);

} // namespace pagehost
