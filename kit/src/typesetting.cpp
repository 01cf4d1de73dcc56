#include <shapekit/typesetting.h>

#include <QtGui/QFont>
#include <QtGui/QFontMetricsF>
#include <QtGui/QGlyphRun>
#include <QtGui/QRawFont>
#include <QtGui/QTextLayout>

#include <algorithm>

namespace shapekit {

namespace {

constexpr int mostLines = 200;
/// Width of text that isn't broken.
constexpr double unlimited = 1e6;
/// Qt rounds widths to less than this.
constexpr double tolerance = 1;

QFont fontFor(const LetterForm &form)
{
    QFont font(QStringLiteral("sans-serif"));
    font.setPixelSize(Typesetting::fontPixels);
    font.setBold(form.isBold);
    font.setItalic(form.isItalic);
    return font;
}

/// Twice the area inside, below 0 where it lies left of the way.
double signedArea(const QPainterPath &path)
{
    double area = 0;
    const QList<QPolygonF> polygons = path.toSubpathPolygons();
    for (const QPolygonF &polygon : polygons)
        for (int i = 1; i < polygon.size(); ++i)
            area += polygon.at(i - 1).x() * polygon.at(i).y() - polygon.at(i).x() * polygon.at(i - 1).y();
    return area;
}

/// Goes round as the letters do: where both lie above each other nothing is left out.
QPainterPath underlineOf(const QPainterPath &letters, double width, const QFontMetricsF &metrics)
{
    QPainterPath line;
    line.addRect(0, metrics.underlinePos() - metrics.lineWidth() / 2, width, metrics.lineWidth());
    return signedArea(letters) * signedArea(line) < 0 ? line.toReversed() : line;
}

QPainterPath outlineOf(const QTextLine &line, QPointF origin)
{
    QPainterPath outline;
    const QList<QGlyphRun> runs = line.glyphRuns();
    for (const QGlyphRun &run : runs) {
        const QVector<quint32> glyphs = run.glyphIndexes();
        const QVector<QPointF> places = run.positions();
        for (int i = 0; i < glyphs.size(); ++i)
            outline.addPath(run.rawFont().pathForGlyph(glyphs.at(i)).translated(places.at(i) + origin));
    }
    return outline;
}

bool breaksWord(const QString &text, int end)
{
    const QChar before = text.at(end - 1);
    return end < text.size() && text.at(end).isLetterOrNumber() && before.isLetterOrNumber() &&
           before.script() == QChar::Script_Latin;
}

void addLine(Typesetting &setting, const QString &text, const QTextLine &line)
{
    const int end = line.textStart() + line.textLength();
    setting.breaksWords = setting.breaksWords || (line.textLength() > 0 && breaksWord(text, end));
    const double width = line.naturalTextWidth();
    setting.widest = std::max(setting.widest, width);
    QPainterPath outline = outlineOf(line, {-line.naturalTextRect().left(), -line.ascent()});
    if (setting.form.isUnderlined && width > 0)
        outline.addPath(underlineOf(outline, width, QFontMetricsF(fontFor(setting.form))));
    setting.lines.append(
        {text.mid(line.textStart(), line.textLength()).trimmed(), text.isRightToLeft(), width, outline});
}

void addParagraph(Typesetting &setting, const QString &text, const QFont &font)
{
    QTextLayout layout(text, font);
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(setting.hasManyLines ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    const int first = setting.lines.size();
    for (QTextLine line = layout.createLine(); line.isValid() && setting.lines.size() < mostLines;
         line = layout.createLine()) {
        line.setLineWidth(setting.hasManyLines ? setting.room : unlimited);
        line.setPosition({0, 0});
        addLine(setting, text, line);
    }
    layout.endLayout();
    setting.isBroken = setting.isBroken || setting.lines.size() > first + 1;
}

} // namespace

bool Typesetting::isFor(double otherRoom) const
{
    return room == otherRoom || !hasManyLines || (!isBroken && widest + tolerance <= otherRoom);
}

Typesetting typeset(const QString &text, const LetterForm &form, bool hasManyLines, double room)
{
    const QFont font = fontFor(form);
    const QFontMetricsF metrics(font);
    Typesetting setting;
    setting.text = text;
    setting.form = form;
    setting.hasManyLines = hasManyLines;
    setting.room = room;
    setting.lineHeight = metrics.height();
    setting.ascent = metrics.ascent();
    if (!hasManyLines) {
        addParagraph(setting, QString(text).replace(QLatin1Char('\n'), QLatin1Char(' ')), font);
        return setting;
    }
    const QStringList paragraphs = text.split(QLatin1Char('\n'));
    for (const QString &paragraph : paragraphs)
        addParagraph(setting, paragraph, font);
    return setting;
}

} // namespace shapekit
