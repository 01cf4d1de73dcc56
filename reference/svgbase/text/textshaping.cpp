#include "text/textshaping.h"

#include "grammar/inputlimits.h"
#include "properties/computedstyle.h"
#include "text/arabicforms.h"
#include "text/bidiruns.h"
#include "text/fontglyphs.h"
#include "text/fonts.h"

#include <QtGui/QGlyphRun>
#include <QtGui/QRawFont>
#include <QtGui/QTextLayout>

#include <algorithm>

namespace Svg {

namespace {

/// Room for a line that is never broken, layout units.
constexpr double endlessLine = 16777215;
constexpr ushort zeroWidthJoiner = 0x200d;
/// Any letter spacing suppresses ligatures; this is the smallest that fonts accept.
constexpr double leastSpacing = 1.0 / 64;

struct CodeRange
{
    uint first;
    uint last;
};

// Scripts whose characters stay upright on a vertical line (Unicode UAX 50), approximately.
constexpr CodeRange uprightRanges[] = {
    {0x1100, 0x11ff}, {0x2e80, 0xa4cf}, {0xa960, 0xa97f}, {0xac00, 0xd7ff},   {0xf900, 0xfaff},
    {0xfe30, 0xfe4f}, {0xff01, 0xff60}, {0xffe0, 0xffe6}, {0x1f000, 0x1faff}, {0x20000, 0x3ffff},
};

bool isUpright(uint code)
{
    return std::any_of(std::begin(uprightRanges), std::end(uprightRanges),
                       [code](const CodeRange &range) { return code >= range.first && code <= range.last; });
}

// Scripts with joined letters; space between them would tear words apart (CSS Text 3 §8.2.1).
bool isCursive(uint code)
{
    switch (QChar::script(code)) {
    case QChar::Script_Arabic:
    case QChar::Script_Syriac:
    case QChar::Script_Nko:
    case QChar::Script_Mandaic:
    case QChar::Script_Mongolian:
    case QChar::Script_PhagsPa:
    case QChar::Script_Manichaean:
    case QChar::Script_Adlam:
        return true;
    default:
        return false;
    }
}

bool isSetUpright(const TextContent &content, TextOrientation orientation, uint code)
{
    if (textStyleOf(content.levels.first().style).writingMode != WritingMode::Vertical)
        return false;
    if (orientation == TextOrientation::Mixed)
        return isUpright(code);
    return orientation == TextOrientation::Upright && !isCursive(code);
}

/// One line of glyphs in one style and direction.
class Row
{
public:
    Row(const TextContent &content, const BidiRun &run, const ShapingMode &mode, const TextServices &services);

    /// The clusters in logical order, their offsets from the left end of the row.
    QVector<TextCluster> clusters();

private:
    void layOut();
    QVector<TextCluster> systemClusters();
    QVector<TextCluster> separateClusters();
    QVector<TextCluster> fontClusters();
    bool hasPictures(const QList<QGlyphRun> &runs) const;
    void addGlyphs(const QList<QGlyphRun> &runs, double left, TextCluster *cluster) const;
    void space(TextCluster *cluster) const;
    void turnUpright(TextCluster *cluster) const;
    void turnGlyphUpright(const FontGlyph &glyph, TextCluster *cluster) const;
    int place(int character) const { return m_content.characters.at(character).begin - m_textBegin + m_prefix; }

    const TextContent &m_content;
    BidiRun m_run;
    ShapingMode m_mode;
    const TextServices &m_services;
    const TextLevel &m_level;
    const ComputedStyle &m_style;
    double m_scale;
    int m_textBegin;
    /// Control characters before the text.
    int m_prefix = 0;
    QTextLayout m_layout;
    QTextLine m_line;
    /// Glyphs of a font of the document, by their first character.
    QHash<int, const FontGlyph *> m_fontGlyphs;
};

Row::Row(const TextContent &content, const BidiRun &run, const ShapingMode &mode, const TextServices &services)
    : m_content(content)
    , m_run(run)
    , m_mode(mode)
    , m_services(services)
    , m_level(content.levels.at(content.characters.at(run.begin).level))
    , m_style(m_level.style)
    , m_scale(m_style.font.size / outlineFontSize)
    , m_textBegin(content.characters.at(run.begin).begin)
{
}

void Row::layOut()
{
    const TextCharacter &last = m_content.characters.at(m_run.end - 1);
    QString text = m_content.text.mid(m_textBegin, last.begin + last.length - m_textBegin);
    // Letters join across parts and positions.
    const ArabicForm firstForm = arabicForm(m_content.text, m_textBegin);
    const ArabicForm lastForm = arabicForm(m_content.text, last.begin);
    if (lastForm == ArabicForm::Initial || lastForm == ArabicForm::Medial)
        text.append(QChar(zeroWidthJoiner));
    if (firstForm == ArabicForm::Terminal || firstForm == ArabicForm::Medial) {
        text.prepend(QChar(zeroWidthJoiner));
        ++m_prefix;
    }
    if (m_run.overridden) {
        text.prepend(QChar(m_run.rightToLeft ? rightToLeftOverride : leftToRightOverride));
        ++m_prefix;
    }
    QFont font = outlineFont(m_style.font, textStyleOf(m_style));
    const bool isSplit = textStyleOf(m_style).spacing() != 0 || !textStyleOf(m_style).ligatures;
    if (isSplit && !isCursive(codeOf(m_content.text, m_content.characters.at(m_run.begin))))
        font.setLetterSpacing(QFont::AbsoluteSpacing, leastSpacing);
    QTextOption option;
    option.setUseDesignMetrics(true);
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    option.setTextDirection(m_run.rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    m_layout.setText(text);
    m_layout.setFont(font);
    m_layout.setTextOption(option);
    m_layout.beginLayout();
    m_line = m_layout.createLine();
    m_line.setLineWidth(endlessLine);
    m_layout.endLayout();
}

bool Row::hasPictures(const QList<QGlyphRun> &runs) const
{
    return std::any_of(runs.begin(), runs.end(), [this](const QGlyphRun &run) {
        return !m_services.glyphs->pictures(run.rawFont()).isEmpty();
    });
}

// Pictures have advances of their own, which the layout doesn't know.
void Row::addGlyphs(const QList<QGlyphRun> &runs, double left, TextCluster *cluster) const
{
    QPainterPath outline;
    double advance = 0;
    const QTransform toUser = QTransform::fromScale(m_scale, m_scale);
    const double baseline = m_line.y() + m_line.ascent();
    for (const QGlyphRun &run : runs) {
        const QRawFont font = run.rawFont();
        const QVector<quint32> glyphs = run.glyphIndexes();
        const QVector<QPointF> positions = run.positions();
        FontPictures &pictures = m_services.glyphs->pictures(font);
        for (int i = 0; i < glyphs.size(); ++i) {
            const QPointF at = positions.at(i) - QPointF(left, baseline);
            const GlyphPicture *picture = pictures.find(glyphs.at(i));
            if (!picture) {
                outline.addPath(m_services.glyphs->outline(font, glyphs.at(i)).translated(at));
                continue;
            }
            const QTransform place = QTransform::fromTranslate(at.x(), at.y()) * toUser;
            cluster->pictures.append({picture->shown.content, picture->shown.place * place});
            advance += picture->advance * m_scale;
        }
    }
    cluster->outline.addPath(toUser.map(outline));
    if (advance > 0)
        cluster->advance = advance;
}

void Row::space(TextCluster *cluster) const
{
    const TextStyle &text = textStyleOf(m_style);
    const QChar first = m_content.text.at(m_content.characters.at(cluster->firstCharacter).begin);
    if (!isCursive(codeOf(m_content.text, m_content.characters.at(cluster->firstCharacter))))
        cluster->advance += text.spacing();
    if (first == QLatin1Char(' ') || first == QChar(QChar::Nbsp))
        cluster->advance += text.wordSpacing;
}

void turnGlyphs(const QTransform &turn, TextCluster *cluster)
{
    cluster->outline = turn.map(cluster->outline);
    for (PlacedPicture &picture : cluster->pictures)
        picture.place *= turn;
}

// An upright character fills a square centred on the line; its outline is turned back here so that the whole
// vertical line can be turned alike.
void Row::turnUpright(TextCluster *cluster) const
{
    const FontMeasures measures = levelMeasures(m_level);
    const double height = measures.ascent - measures.descent;
    const double size = m_style.font.size;
    const double baseline = height > 0 ? size * measures.ascent / height : size;
    const double middle = (measures.ascent + measures.descent) / 2;
    QTransform turn;
    turn.translate(0, -middle);
    turn.rotate(-90);
    turn.translate(-cluster->advance / 2, baseline);
    turnGlyphs(turn, cluster);
    cluster->advance = size;
}

// A glyph of the document's own has its own origin.
void Row::turnGlyphUpright(const FontGlyph &glyph, TextCluster *cluster) const
{
    const LevelGlyphs glyphs(m_content, m_level, m_services, true);
    const FontMeasures measures = levelMeasures(m_level);
    const QPointF origin = glyphs.verticalOrigin(glyph);
    QTransform turn;
    turn.translate(0, -(measures.ascent + measures.descent) / 2);
    turn.rotate(-90);
    turn.translate(-origin.x(), origin.y());
    turnGlyphs(turn, cluster);
    cluster->advance = glyphs.verticalAdvance(glyph);
}

bool isSameGlyph(const QList<QGlyphRun> &a, const QList<QGlyphRun> &b)
{
    return !a.isEmpty() && a.size() == b.size() && a.first().glyphIndexes() == b.first().glyphIndexes() &&
           a.first().positions() == b.first().positions();
}

QVector<TextCluster> Row::separateClusters()
{
    QVector<TextCluster> clusters;
    QList<QGlyphRun> before;
    for (int i = m_run.begin; i < m_run.end; ++i) {
        const TextCharacter &character = m_content.characters.at(i);
        const double from = m_line.cursorToX(place(i));
        const double to = m_line.cursorToX(place(i) + character.length);
        const QList<QGlyphRun> runs = m_line.glyphRuns(place(i), character.length);
        const double advance = qAbs(to - from) * m_scale;
        if (!clusters.isEmpty() && (isSameGlyph(runs, before) || !canBePlaced(m_content.text, character))) {
            TextCluster &cluster = clusters.last();
            if (!isSameGlyph(runs, before))
                addGlyphs(runs, qMin(from, to) - cluster.advance / m_scale, &cluster);
            ++cluster.characterCount;
            if (cluster.pictures.isEmpty())
                cluster.advance += advance;
            continue;
        }
        double left = qMin(from, to);
        // The position of a ligature is that of its glyph, not that of its first letter.
        if (m_run.rightToLeft && !runs.isEmpty() && !runs.first().positions().isEmpty())
            left = runs.first().positions().first().x();
        clusters.append({i, 1, character.level, QPainterPath(), advance, 0});
        addGlyphs(runs, left, &clusters.last());
        before = runs;
    }
    return clusters;
}

QVector<TextCluster> Row::systemClusters()
{
    layOut();
    const QList<QGlyphRun> runs = m_line.glyphRuns();
    if (m_mode.separate || hasPictures(runs))
        return separateClusters();
    const int level = m_content.characters.at(m_run.begin).level;
    // The natural width includes the overhang of the last glyph.
    const double begin = m_line.cursorToX(0);
    const double end = m_line.cursorToX(m_layout.text().size());
    TextCluster cluster{m_run.begin,    m_run.end - m_run.begin,     level,
                        QPainterPath(), qAbs(end - begin) * m_scale, 0};
    addGlyphs(runs, qMin(begin, end), &cluster);
    return {cluster};
}

// Characters that the font lacks are laid out together in fonts of the system.
QVector<TextCluster> Row::fontClusters()
{
    const LevelGlyphs glyphs(m_content, m_level, m_services, m_mode.vertical);
    QVector<TextCluster> clusters;
    const FontGlyph *before = nullptr;
    for (int at = m_run.begin; at < m_run.end;) {
        const FontGlyph *glyph = glyphs.find(at, m_run.end);
        if (glyph) {
            if (before)
                clusters.last().advance -= glyphs.kerning(*before, *glyph);
            clusters.append(glyphs.cluster(*glyph, at, m_run.end));
            m_fontGlyphs.insert(at, glyph);
            at += clusters.constLast().characterCount;
        } else {
            const int first = at;
            while (at < m_run.end && !glyphs.find(at, m_run.end))
                ++at;
            clusters += Row(m_content, {first, at, m_run.rightToLeft, m_run.overridden}, m_mode, m_services)
                            .systemClusters();
        }
        before = glyph;
    }
    return clusters;
}

QVector<TextCluster> Row::clusters()
{
    if (!(m_style.font.size > 0))
        return {};
    QVector<TextCluster> clusters = m_level.font.font ? fontClusters() : systemClusters();
    double way = 0;
    for (TextCluster &cluster : clusters) {
        if (m_mode.separate)
            space(&cluster);
        const uint code = codeOf(m_content.text, m_content.characters.at(cluster.firstCharacter));
        if (m_mode.vertical && isSetUpright(m_content, textStyleOf(m_style).orientation, code)) {
            if (const FontGlyph *glyph = m_fontGlyphs.value(cluster.firstCharacter))
                turnGlyphUpright(*glyph, &cluster);
            else
                turnUpright(&cluster);
        }
        cluster.offset = way;
        way += cluster.advance;
    }
    if (m_run.rightToLeft)
        for (TextCluster &cluster : clusters)
            cluster.offset = way - cluster.offset - cluster.advance;
    return clusters;
}

// The run, split before characters that are shifted away from others in the same glyph.
QVector<BidiRun> splitLigatures(const TextContent &content, const BidiRun &run,
                                const QVector<TextCluster> &clusters)
{
    QVector<BidiRun> parts{run};
    for (const TextCluster &cluster : clusters) {
        for (int i = cluster.firstCharacter + 1; i < cluster.firstCharacter + cluster.characterCount; ++i) {
            const TextCharacter &character = content.characters.at(i);
            if (!isMoved(character) || !canBePlaced(content.text, character))
                continue;
            BidiRun rest = parts.constLast();
            parts.last().end = rest.begin = i;
            parts.append(rest);
        }
    }
    if (run.rightToLeft)
        std::reverse(parts.begin(), parts.end());
    return parts;
}

QVector<TextCluster> rowClusters(const TextContent &content, const BidiRun &run, const ShapingMode &mode,
                                 const TextServices &services)
{
    const QVector<TextCluster> whole = Row(content, run, mode, services).clusters();
    const QVector<BidiRun> parts = splitLigatures(content, run, whole);
    if (parts.size() == 1)
        return whole;
    QVector<TextCluster> clusters;
    double left = 0;
    for (const BidiRun &part : parts) {
        double width = 0;
        const QVector<TextCluster> shaped = Row(content, part, mode, services).clusters();
        for (TextCluster cluster : shaped) {
            cluster.offset += left;
            width += cluster.advance;
            clusters.append(cluster);
        }
        left += width;
    }
    return clusters;
}

} // namespace

QVector<TextCluster> shapeChunk(const TextContent &content, int begin, int end, const ShapingMode &mode,
                                const TextServices &services)
{
    QVector<TextCluster> clusters;
    double left = 0;
    const QVector<BidiRun> runs = bidiRuns(content, begin, end);
    for (const BidiRun &run : runs) {
        QVector<TextCluster> row = rowClusters(content, run, mode, services);
        double width = 0;
        for (TextCluster &cluster : row) {
            cluster.offset += left;
            width += cluster.advance;
        }
        left += width;
        clusters += row;
    }
    std::sort(clusters.begin(), clusters.end(),
              [](const TextCluster &a, const TextCluster &b) { return a.firstCharacter < b.firstCharacter; });
    return clusters;
}

} // namespace Svg
