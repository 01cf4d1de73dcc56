#pragma once

#include "grammar/inputlimits.h"
#include "svgbase/svgdrawing.h"

#include <QtCore/QBuffer>
#include <QtGui/QImage>

/// Contents of documents that come near a limit, or beyond it; what they limit shows where the green is.
namespace limitdocuments {

using namespace Svg;

inline QString rect(const QString &attributes = "fill='#0f0'")
{
    return "<rect width='94' height='94' " + attributes + "/>";
}

inline QString nested(const QString &open, const QString &close, int levels, const QString &content)
{
    return open.repeated(levels) + content + close.repeated(levels);
}

inline QString numbered(const QString &text, int count, int first = 0)
{
    QString result;
    for (int i = first; i < first + count; ++i)
        result += QString(text).replace("#N", QString::number(i)).replace("#P", QString::number(i - 1));
    return result;
}

inline QString attributes(int count)
{
    return numbered(" a#N='1'", count);
}

inline QString pathOf(int segments)
{
    // The last one makes a triangle of the line.
    return "<path fill='#0f0' d='M0 0" + QString("L0 0").repeated(segments - 3) + "H100V100'/>";
}

inline QString pointsOf(int points)
{
    return "<polygon fill='#0f0' points='" + QString("0,0 ").repeated(points - 2) + "100,0 100,100'/>";
}

// The last stop is what a gradient without length shows.
inline QString gradientOf(int stops)
{
    return "<linearGradient id='g' x2='0'>" + QString("<stop stop-color='red'/>").repeated(stops - 1) +
           "<stop stop-color='#0f0'/></linearGradient>" + rect("fill='url(#g)'");
}

inline QString gradientChain(int gradients)
{
    return numbered("<linearGradient id='g#N' href='#g#P'/>", gradients - 1, 1) +
           "<linearGradient id='g0'><stop stop-color='#0f0'/></linearGradient>" +
           rect(QString("fill='url(#g%1)'").arg(gradients - 1));
}

inline QString dashesOf(int entries)
{
    return "<path stroke='#0f0' stroke-width='50' d='M0 25H94' stroke-dasharray='200 0 " +
           QString("1 1 ").repeated((entries - 2) / 2) + "'/>";
}

inline QString rulesOf(int rules)
{
    return "<style>" + QString(".x{fill:red}").repeated(rules - 1) + "#p{fill:#0f0}</style>" + rect("id='p'");
}

// More elements than selectorSteps / leastSelectorSteps leave each of them the least number of steps.
inline QString selectorsOf(int selectors)
{
    return "<style>" + QString("rect:root{fill:red}").repeated(selectors - 1) + "rect{fill:#0f0}</style>" +
           rect("") + QString("<desc/>").repeated(Limits::selectorSteps / Limits::leastSelectorSteps);
}

inline QString classesOf(int classes)
{
    return "<style>.c{fill:#0f0}</style>" + rect("class='" + QString("x ").repeated(classes - 1) + "c'");
}

/// One that begins and ends every second.
inline QString recurring(int times)
{
    return "<rect><animate attributeName='x' to='1' dur='.5s' begin='" + numbered("#Ns;", times - 1) +
           QString("%1s'/></rect>").arg(times - 1);
}

inline QString motion(int elements)
{
    return "<rect x='-200' width='94' height='94' fill='#0f0'><animateMotion dur='9s' path='M200 0" +
           QString("h1h-1").repeated((elements - 1) / 2) + (elements % 2 ? "" : "h1") + "'/></rect>";
}

inline QString layersOf(int layers)
{
    return "<style>" + numbered("@layer l#N{}", layers) + "</style>" + rect();
}

inline QString boxesInBoxes(int levels)
{
    return nested("<g style='transform-box:fill-box;transform:translate(0)'>", "</g>", levels, rect());
}

inline QString boxAround(int shapes)
{
    return "<g style='transform-box:fill-box;transform:translate(0)'>" +
           QString("<rect width='1' height='1'/>").repeated(shapes - 1) + rect() + "</g>";
}

inline QString patternsOf(int patterns)
{
    return numbered("<pattern id='p#N' width='1' height='1'><rect width='94' height='94' fill='#0f0'/></pattern>"
                    "<rect width='.1' height='.1' fill='url(#p#N)'/>",
                    patterns - 1) +
           "<pattern id='p' width='1' height='1'><rect width='94' height='94' fill='#0f0'/></pattern>" +
           rect("fill='url(#p)'");
}

inline QString largePatternsOf(int patterns)
{
    return "<g transform='scale(1000)'>" +
           numbered("<pattern id='p#N' width='100' height='100' patternUnits='userSpaceOnUse'>"
                    "<rect width='100' height='100' fill='#0f0'/></pattern>",
                    patterns) +
           numbered("<rect x='-9' width='.1' height='.1' fill='url(#p#N)'/>", patterns - 1) +
           QString("<rect width='.094' height='.094' fill='url(#p%1)'/></g>").arg(patterns - 1);
}

inline QString useChain(int uses)
{
    return "<defs><rect id='u0' width='94' height='94' fill='#0f0'/>" +
           numbered("<use id='u#N' href='#u#P'/>", uses - 1, 1) +
           QString("</defs><use href='#u%1'/>").arg(uses - 1);
}

inline QString usesOf(int groups, const QString &used)
{
    return "<defs><g id='u'>" + used + "</g>" + rect("id='last' fill='#0f0'") + "</defs>" +
           QString("<use href='#u'/>").repeated(groups) + "<use href='#last'/>";
}

inline QString textOf(int characters, const QString &character = QStringLiteral("i"))
{
    return "<text x='9' y='9' font-size='.001'>" + character.repeated(characters) + "</text>" + rect();
}

inline QString textPathsOf(int paths)
{
    return "<text font-size='.001'>" + QString("<textPath path='M0 0H9'>i</textPath>").repeated(paths) + "</text>" +
           rect();
}

inline QString textPathOf(int elements)
{
    return "<text font-size='.001'><textPath path='M0 0" + QString("l1 1").repeated(elements - 1) +
           "'>i</textPath></text>" + rect();
}

// Each letter of the font is a line with a thousand segments.
inline QString glyphsOf(int characters)
{
    return "<font horiz-adv-x='1'><font-face font-family='Long'/><glyph unicode='a' d='M0 0" +
           QString("h1").repeated(999) + "'/></font><text y='9' font-size='.001' font-family='Long'>" +
           QString(characters, 'a') + "</text>" + rect();
}

inline QString trefsOf(int trefs)
{
    return "<text id='t' font-size='.001'>i</text>" +
           QString("<text font-size='.001'><tref href='#t'/></text>").repeated(trefs) + rect();
}

inline QString textLengthsOf(int lengths)
{
    return "<text font-size='.001'>" + QString("<tspan textLength='1'>ii</tspan>").repeated(lengths) + "</text>" +
           rect();
}

inline QString referredText(int characters)
{
    return "<text id='t' font-size='.001'>" + QString(characters, 'i') +
           "</text><text font-size='.001'><tref href='#t'/></text>" + rect();
}

inline QString tinyDashes(double length)
{
    return QString("<path stroke='red' d='M10 98H90' stroke-dasharray='%1'/>").arg(length) + rect();
}

// A mean of equal pixels.
inline QString convolved(int across, int down)
{
    return QString("<filter id='f' filterUnits='userSpaceOnUse' x='0' y='0' width='94' "
                   "height='94'><feConvolveMatrix order='%1 %2' kernelMatrix='%3'/></filter>")
               .arg(across)
               .arg(down)
               .arg(QString("1 ").repeated(across * down)) +
           rect("fill='#0f0' filter='url(#f)'");
}

inline QString fontWith(const QString &content, const QString &face = QString())
{
    return "<font><font-face font-family='f' " + face + "/>" + content +
           "</font><text font-family='f' font-size='.001'>a</text>" + rect();
}

inline QString glyphWith(const QString &attributes, const QString &content = QString())
{
    return fontWith("<glyph unicode='a'/><glyph " + attributes + ">" + content + "</glyph>");
}

inline QString commas(const QString &what, int count)
{
    return (what + ',').repeated(count - 1) + what;
}

inline QString kernedPairs(const QString &more = QString())
{
    static_assert(Limits::kerningPairs == 1000 * 500);
    return fontWith("<glyph unicode='a'/><hkern k='1' g1='" + numbered("a#N,", 1000) + "' g2='" +
                    numbered("b#N,", 500) + "'/>" + more);
}

/// A pair behind others that are paired with nothing.
inline QString kernedWithNothing(int characters)
{
    return fontWith("<glyph unicode='a'/><hkern k='1' g1='" + commas("a", characters) +
                    "'/><hkern k='1' g1='a' g2='b'/>");
}

inline QString underlinedGroups(int groups)
{
    return nested("<g text-decoration='underline'>", "</g>", groups, "<text font-size='.001'>a</text>") + rect();
}

inline QString scaled(double scale)
{
    return QString("<g transform='scale(%1)'><rect width='%2' height='%2' fill='#0f0'/></g>")
        .arg(scale, 0, 'g', 17)
        .arg(94 / scale, 0, 'g', 17);
}

inline QString clipChain(int clips)
{
    return "<clipPath id='c0'><rect width='94' height='94'/></clipPath>" +
           numbered("<clipPath id='c#N' clip-path='url(#c#P)'><rect width='94' height='94'/></clipPath>", clips - 1,
                    1) +
           rect(QString("fill='#0f0' clip-path='url(#c%1)'").arg(clips - 1));
}

// Each group measures all that is below it.
inline QString measured(int groups, int rects)
{
    return "<clipPath id='c' clipPathUnits='objectBoundingBox'><rect width='1' height='1'/></clipPath>" +
           nested("<g clip-path='url(#c)'>", "</g>", groups,
                  QString("<rect width='94' height='94'/>").repeated(rects)) +
           rect();
}

inline QString isolated(int groups)
{
    return QString("<g style='isolation:isolate'><rect width='100' height='93'/></g>").repeated(groups - 1) +
           "<g style='isolation:isolate'>" + rect() + "</g>";
}

inline QString deeplyIsolated(int levels)
{
    return nested("<g style='isolation:isolate'>", "</g>", levels, rect());
}

inline QString filterOf(int primitives)
{
    return "<filter id='f' x='0' y='0' width='1' height='1'>" +
           QString("<feFlood flood-color='#0f0'/>").repeated(primitives) + "</filter>" +
           rect("fill='red' filter='url(#f)'");
}

inline QString picture(const QImage &image)
{
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return "data:image/png;base64," + QString::fromLatin1(buffer.data().toBase64());
}

inline QString imageShown(int times)
{
    QImage image(2048, 2048, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    return "<defs><image id='i' width='.1' height='.1' href='" + picture(image) + "'/></defs>" +
           QString("<use href='#i'/>").repeated(times) + rect();
}

inline QString documentsInImages(int levels)
{
    QByteArray text = svgText(rect());
    for (int i = 1; i < levels; ++i)
        text =
            svgText("<image width='100' height='100' href='data:image/svg+xml;base64," + text.toBase64() + "'/>");
    return "<image width='100' height='100' href='data:image/svg+xml;base64," + text.toBase64() + "'/>";
}

inline QString animated(const QString &attributes)
{
    return "<rect width='94' height='94' fill='#0f0'><animate attributeName='x' dur='9s' " + attributes +
           "/></rect>";
}

inline QString values(int count)
{
    return animated("values='" + QString("0;").repeated(count - 1) + "0'");
}

inline QString begins(int count)
{
    return animated("to='0' begin='" + QString("1s;").repeated(count - 1) + "2s'");
}

inline QString skewedStrokes(int strokes)
{
    return "<g transform='skewX(1e-3)' fill='none'>" +
           QString("<path stroke='red' stroke-width='.01' stroke-dasharray='.01' d='M0 0H99'/>").repeated(strokes) +
           "</g>" + rect();
}

} // namespace limitdocuments
