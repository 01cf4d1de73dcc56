#include "text/core/textlayout.h"

#include <pagehost/listmark.h>

#include <QtGui/QFont>
#include <QtGui/QFontInfo>
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

/// As drawings choose: the family if there is one of this very name.
bool isInstalled(const QString &family)
{
    QFont font(family);
    font.setPixelSize(layoutPixels);
    return QFontInfo(font).family().compare(family, Qt::CaseInsensitive) == 0;
}

QFont fontOf(const TextLook &look)
{
    const QString usual = QStringLiteral("sans-serif");
    QFont font(usual);
    if (!look.family.isEmpty() && isInstalled(look.family))
        font.setFamilies({look.family, usual});
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
    int start = 0;
    QVector<double> advances; ///< layout pixels
};

QVector<double> advancesOf(const QTextLine &line)
{
    QVector<double> advances;
    for (int i = 0; i <= line.textLength(); ++i)
        advances.append(line.cursorToX(line.textStart() + i) - line.cursorToX(line.textStart()));
    return advances;
}

QVector<MeasuredLine> linesOf(const TextLook &look, const QFont &font, double lineWidth)
{
    QVector<MeasuredLine> lines;
    int paragraphStart = 0;
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
            lines.append({paragraph.mid(line.textStart(), line.textLength()), line.naturalTextWidth(), indent,
                          paragraphStart + line.textStart(), advancesOf(line)});
            indent = hang;
        }
        layout.endLayout();
        paragraphStart += paragraph.size() + 1;
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
    for (int i = 0; i < lines.size(); ++i) {
        const MeasuredLine &measured = lines.at(i);
        TextLine line{measured.text,
                      {x + measured.indent * scale, (i * metrics.height() + metrics.ascent()) * scale},
                      measured.start,
                      {},
                      {}};
        for (const double advance : measured.advances)
            line.advances.append(advance * scale);
        const double before = look.alignment == Alignment::Left    ? 0
                              : look.alignment == Alignment::Right ? measured.width
                                                                   : measured.width / 2;
        line.box = {line.anchor.x() - before * scale, i * metrics.height() * scale, measured.width * scale,
                    metrics.height() * scale};
        layout.lines.append(line);
    }
    return layout;
}

} // namespace text
