#include "text/textpainting.h"

#include "grammar/inputlimits.h"
#include "properties/computedstyle.h"
#include "text/fontmeasures.h"
#include "text/textlines.h"

#include <algorithm>
#include <cmath>

namespace Svg {

namespace {

/// Largest distance of two ends that count as one, user units.
constexpr double sameEnd = 1e-6;

/// Metrics shared by all characters of a level.
struct LevelMeasures
{
    FontMeasures font;
    /// Rise of the baseline.
    double raised = 0;
    ComputedStyle paint;
};

struct Line
{
    bool InlineStyle::*wanted;
    double FontMeasures::*height;
    /// Direction in which it grows: 1 down, -1 up, 0 both.
    int away;
};

// Vertical lines whose letters all lie on their sides are laid out as horizontal ones (CSS Writing Modes 4 §4.2).
Baseline usualBaseline(const TextStyle &text)
{
    const bool vertical =
        text.writingMode == WritingMode::Vertical && text.orientation != TextOrientation::Sideways;
    return vertical ? Baseline::Central : Baseline::Alphabetic;
}

class TextPainter
{
public:
    TextPainter(const TextContent &content, QVector<PlacedCluster> clusters)
        : m_content(content)
        , m_clusters(std::move(clusters))
    {
    }

    TextOutlines paint();

private:
    const FontMeasures &measuresOf(const TextLevel &level);
    void measureLevels();
    double shiftOf(const TextLevel &level, const FontMeasures &font) const;
    QTransform glyphTransform(const PlacedCluster &cluster) const;
    void addGlyphs();
    bool isDrawn(const PlacedCluster &cluster) const;
    int addRun(int first);
    void addPictures(const PlacedCluster &cluster);
    void addCells();
    void addLines(const Line &line);
    LinePiece pieceOf(const Line &line, int level, const ComputedStyle &asking) const;
    void addLine(int level, const Line &line, const ComputedStyle &asking, ComputedStyle paint);
    int firstClusterOf(int character) const;

    const TextContent &m_content;
    /// Their outlines are released once they are part of a run.
    QVector<PlacedCluster> m_clusters;
    QHash<QString, FontMeasures> m_fonts;
    QVector<LevelMeasures> m_levels;
    TextOutlines m_result;
    int m_repetitionsLeft = Limits::dashes;
};

// The surrounding font positions sub- and superscript.
double TextPainter::shiftOf(const TextLevel &level, const FontMeasures &around) const
{
    const InlineStyle &style = inlineStyleOf(level.style);
    if (style.shift == InlineStyle::Length)
        return style.baselineShift;
    return style.shift == InlineStyle::Sub ? around.subscript : around.superscript;
}

// There are many parts and few fonts, so look each font up once.
const FontMeasures &TextPainter::measuresOf(const TextLevel &level)
{
    const ComputedStyle &style = level.style;
    const FontStyle &font = style.font;
    const QString key = QStringLiteral("%1 %2 %3 %4 ")
                            .arg(font.size)
                            .arg(font.weight)
                            .arg(font.italic)
                            .arg(textStyleOf(style).stretch) +
                        QString::number(quintptr(level.font.font.get()), 16) + QLatin1Char(' ') + font.family;
    auto known = m_fonts.find(key);
    if (known == m_fonts.end())
        known = m_fonts.insert(key, levelMeasures(level));
    return *known;
}

void TextPainter::measureLevels()
{
    QVector<double> shifts;
    for (const TextLevel &level : m_content.levels) {
        LevelMeasures measures;
        measures.font = measuresOf(level);
        const bool isText = level.above < 0;
        const double shift = isText ? 0 : shifts.at(level.above) + shiftOf(level, m_levels.at(level.above).font);
        shifts.append(shift);
        const TextStyle &text = textStyleOf(level.style);
        Baseline aligned = inlineStyleOf(level.style).alignmentBaseline;
        if (aligned == Baseline::Auto || isText)
            aligned = text.dominantBaseline;
        if (aligned == Baseline::Auto)
            aligned = usualBaseline(textStyleOf(m_content.levels.first().style));
        measures.raised = shift - baselineHeight(aligned, measures.font);
        measures.paint = level.style;
        measures.paint.fillRule = textFillRule;
        // Opacity of a part applies to it directly, that of the whole text to its picture.
        if (!isText) {
            const ComputedStyle &above = m_levels.at(level.above).paint;
            const double faded = level.above == 0 ? 1 : above.opacity;
            measures.paint.opacity = level.style.opacity * faded;
            measures.paint.fillOpacity = level.style.fillOpacity * measures.paint.opacity;
            measures.paint.strokeOpacity = level.style.strokeOpacity * measures.paint.opacity;
        }
        m_levels.append(measures);
    }
}

QTransform TextPainter::glyphTransform(const PlacedCluster &cluster) const
{
    QTransform transform = cluster.line;
    transform.translate(0, -m_levels.at(cluster.glyphs.level).raised);
    transform.rotate(m_content.characters.at(cluster.glyphs.firstCharacter).rotate);
    transform.scale(cluster.widening, 1);
    return transform;
}

void TextPainter::addGlyphs()
{
    for (int i = 0; i < m_clusters.size();)
        if (isDrawn(m_clusters.at(i)))
            i = addRun(i);
        else
            ++i;
}

bool TextPainter::isDrawn(const PlacedCluster &cluster) const
{
    return cluster.shown && m_content.levels.at(cluster.glyphs.level).style.visible &&
           !(cluster.glyphs.outline.isEmpty() && cluster.glyphs.pictures.isEmpty());
}

// The glyphs from one that is drawn up to those of another level. Returns where the next run may begin.
int TextPainter::addRun(int first)
{
    const int level = m_clusters.at(first).glyphs.level;
    int elements = 0;
    int end = first;
    while (end < m_clusters.size() && elements < Limits::textRunElements) {
        const PlacedCluster &cluster = m_clusters.at(end);
        if (isDrawn(cluster) && cluster.glyphs.level != level)
            break;
        elements += isDrawn(cluster) ? cluster.glyphs.outline.elementCount() : 0;
        ++end;
    }
    QPainterPath path;
    for (int i = first; i < end; ++i) {
        if (!isDrawn(m_clusters.at(i)))
            continue;
        path.addPath(glyphTransform(m_clusters.at(i)).map(m_clusters.at(i).glyphs.outline));
        m_clusters[i].glyphs.outline = QPainterPath();
        // Not earlier: an empty path takes over an added path together with its room.
        path.reserve(elements);
    }
    if (!path.isEmpty())
        m_result.runs.append({m_levels.at(level).paint, path});
    for (int i = first; i < end; ++i)
        if (isDrawn(m_clusters.at(i)))
            addPictures(m_clusters.at(i));
    return end;
}

void TextPainter::addPictures(const PlacedCluster &cluster)
{
    for (const PlacedPicture &picture : cluster.glyphs.pictures) {
        const PlacedPicture placed{picture.content, picture.place * glyphTransform(cluster)};
        QPainterPath box;
        box.addRect(QRectF(QPointF(), picture.content->size));
        m_result.runs.append({m_levels.at(cluster.glyphs.level).paint, placed.place.map(box),
                              std::make_shared<const PlacedPicture>(placed)});
    }
}

// The bounding box of a text is that of its character cells (SVG 2 §8.10).
void TextPainter::addCells()
{
    for (const PlacedCluster &cluster : qAsConst(m_clusters)) {
        if (!cluster.shown)
            continue;
        const FontMeasures &font = m_levels.at(cluster.glyphs.level).font;
        const QRectF cell(0, -font.ascent, cluster.glyphs.advance, font.ascent - font.descent);
        const QRectF placed = glyphTransform(cluster).mapRect(cell);
        m_result.cells = m_result.cells.isNull() ? placed : m_result.cells.united(placed);
    }
}

int TextPainter::firstClusterOf(int character) const
{
    const auto isBefore = [](const PlacedCluster &cluster, int place) {
        return cluster.glyphs.firstCharacter < place;
    };
    return int(std::lower_bound(m_clusters.begin(), m_clusters.end(), character, isBefore) - m_clusters.begin());
}

// A thicker line keeps the edge that is nearer to the letters (CSS Text Decoration 4 §2.3).
LinePiece TextPainter::pieceOf(const Line &line, int level, const ComputedStyle &asking) const
{
    const FontMeasures &font = m_levels.at(level).font;
    const InlineStyle &style = inlineStyleOf(asking);
    const TextStyle &text = textStyleOf(asking);
    LinePiece piece;
    piece.style = style.lineStyle;
    piece.away = line.away;
    piece.thickness = style.lineThickness.value_or(font.thickness);
    piece.height = font.*(line.height) + line.away * (font.thickness - piece.thickness) / 2;
    if (line.away > 0 && (text.underlineOffset || text.underlineUnder)) {
        const double edge = text.underlineUnder ? font.descent : 0;
        piece.height = edge - text.underlineOffset.value_or(0) - piece.thickness / 2;
    }
    return piece;
}

// A line runs along characters that follow each other without a step.
void TextPainter::addLine(int level, const Line &line, const ComputedStyle &asking, ComputedStyle paint)
{
    if (const auto &color = inlineStyleOf(asking).lineColor) {
        paint.fill = Paint{Paint::Color, *color, QString()};
        paint.fillOpacity = level == 0 ? 1 : paint.opacity;
        paint.stroke = Paint();
    }
    const LinePiece whole = pieceOf(line, level, asking);
    const double middle = whole.height + m_levels.at(level).raised;
    QPainterPath path;
    const PlacedCluster *first = nullptr;
    double end = 0;
    const auto addPiece = [&](const QTransform &place, double height, double length) {
        LinePiece piece = whole;
        piece.length = length;
        piece.height = height;
        path.addPath(place.map(lineOutline(piece, &m_repetitionsLeft)));
    };
    const auto finish = [&] {
        if (first)
            addPiece(first->line, middle, end - first->along);
        first = nullptr;
    };
    const int stop = firstClusterOf(m_content.levels.at(level).endCharacter);
    for (int i = firstClusterOf(m_content.levels.at(level).firstCharacter); i < stop; ++i) {
        const PlacedCluster &cluster = m_clusters.at(i);
        const bool decorated = cluster.shown && m_content.levels.at(cluster.glyphs.level).style.visible;
        const bool onWay = m_content.levels.at(cluster.glyphs.level).path >= 0;
        // Lines turn with rotated characters.
        if (decorated && m_content.characters.at(cluster.glyphs.firstCharacter).rotate != 0) {
            finish();
            addPiece(glyphTransform(cluster), middle - m_levels.at(cluster.glyphs.level).raised,
                     cluster.glyphs.advance);
            continue;
        }
        const bool follows = decorated && first && !onWay && std::fabs(cluster.along - end) < sameEnd &&
                             cluster.aside == first->aside;
        if (!follows)
            finish();
        if (!decorated)
            continue;
        if (!first)
            first = &cluster;
        end = cluster.along + cluster.glyphs.advance * cluster.widening;
    }
    finish();
    path.setFillRule(Qt::WindingFill);
    if (!path.isEmpty())
        m_result.runs.append({paint, path});
}

void TextPainter::addLines(const Line &line)
{
    const auto &around = textStyleOf(m_content.levels.first().style).decorations;
    for (const std::shared_ptr<const ComputedStyle> &group : around) {
        ComputedStyle paint = *group;
        paint.fillRule = textFillRule;
        if (inlineStyleOf(paint).*(line.wanted))
            addLine(0, line, *group, paint);
    }
    for (int level = 0; level < m_content.levels.size(); ++level)
        if (inlineStyleOf(m_content.levels.at(level).style).*(line.wanted))
            addLine(level, line, m_content.levels.at(level).style, m_levels.at(level).paint);
}

TextOutlines TextPainter::paint()
{
    measureLevels();
    // Lines over the letters lie on top of them (CSS Text Decoration 3 §2.1).
    addLines({&InlineStyle::underline, &FontMeasures::underline, 1});
    addLines({&InlineStyle::overline, &FontMeasures::ascent, -1});
    addGlyphs();
    addLines({&InlineStyle::lineThrough, &FontMeasures::lineThrough, 0});
    addCells();
    return m_result;
}

} // namespace

TextOutlines paintedText(const TextContent &content, QVector<PlacedCluster> clusters)
{
    return TextPainter(content, std::move(clusters)).paint();
}

} // namespace Svg
