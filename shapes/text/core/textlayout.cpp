#include "text/core/textlayout.h"

#include <pagehost/listmark.h>

#include <QtGui/QFont>
#include <QtGui/QFontMetricsF>
#include <QtGui/QTextLayout>

#include <algorithm>

namespace text {

namespace {

/// Text is measured at this size and then scaled, so that sizes are in proportion.
constexpr int layoutPixels = 100;
constexpr int mostLines = 1000;
/// Width of lines that aren't broken, layout pixels.
constexpr double unlimited = 1e6;
/// Width of a box without a letter, in font sizes.
constexpr double emptyWidth = 0.5;

QFont fontOf(const TextLook &look)
{
    QFont font(QStringLiteral("sans-serif"));
    font.setPixelSize(layoutPixels);
    font.setBold(look.isBold);
    font.setItalic(look.isItalic);
    return font;
}

struct MeasuredLine
{
    QString text;
    double width = 0;  ///< layout pixels
    double indent = 0; ///< layout pixels
};

QVector<MeasuredLine> linesOf(const TextLook &look, const QFont &font, double lineWidth)
{
    QVector<MeasuredLine> lines;
    const QStringList paragraphs = look.text.split(QLatin1Char('\n'));
    for (const QString &paragraph : paragraphs) {
        QTextLayout layout(paragraph, font);
        QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
        option.setWrapMode(look.wrapWidth > 0 ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
        layout.setTextOption(option);
        // Further lines of an item of a list begin below its text.
        const bool hangs = look.alignment == Alignment::Left;
        const double hang = hangs ? QFontMetricsF(font).horizontalAdvance(pagehost::listMark(paragraph)) : 0;
        double indent = 0;
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid() && lines.size() < mostLines;
             line = layout.createLine()) {
            line.setLineWidth(std::max(lineWidth - indent, 1.0));
            lines.append({paragraph.mid(line.textStart(), line.textLength()), line.naturalTextWidth(), indent});
            indent = hang;
        }
        layout.endLayout();
    }
    return lines;
}

} // namespace

TextLayout layOut(const TextLook &look)
{
    const QFont font = fontOf(look);
    const QFontMetricsF metrics(font);
    const double scale = look.fontSize / layoutPixels;
    const bool wraps = look.wrapWidth > 0;
    const QVector<MeasuredLine> lines = linesOf(look, font, wraps ? look.wrapWidth / scale : unlimited);
    double width = emptyWidth * look.fontSize;
    for (const MeasuredLine &line : lines)
        width = std::max(width, (line.indent + line.width) * scale);
    if (wraps)
        width = std::max(emptyWidth * look.fontSize, look.wrapWidth);
    const double x = look.alignment == Alignment::Left ? 0 : look.alignment == Alignment::Right ? width : width / 2;
    TextLayout layout;
    layout.size = {width, lines.size() * metrics.height() * scale};
    for (int i = 0; i < lines.size(); ++i)
        layout.lines.append({lines.at(i).text,
                             {x + lines.at(i).indent * scale, (i * metrics.height() + metrics.ascent()) * scale}});
    return layout;
}

} // namespace text
