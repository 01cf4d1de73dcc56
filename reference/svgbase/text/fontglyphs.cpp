#include "text/fontglyphs.h"

#include "grammar/inputlimits.h"
#include "properties/computedstyle.h"
#include "text/arabicforms.h"

namespace Svg {

LevelGlyphs::LevelGlyphs(const TextContent &content, const TextLevel &level, const TextServices &services,
                         bool vertical)
    : m_content(content)
    , m_level(level)
    , m_services(services)
    , m_vertical(vertical)
    , m_scale(level.style.font.size / level.font.font->unitsPerEm())
{
    if (level.font.font->leavesOut())
        *services.problem = {
            Message::ListTooLong,
            QStringLiteral("Of a font, glyphs beyond %1 of one character or kerning beyond %2 pairs "
                           "are left out.")
                .arg(Limits::glyphsOfCharacter)
                .arg(Limits::kerningPairs)};
}

// Characters missing in all requested fonts show the missing glyph, if there is one (SVG 1.1 §20.5).
const FontGlyph *LevelGlyphs::find(int at, int end) const
{
    if (!m_level.substitutes.isEmpty())
        return m_level.substitutes.constFirst();
    const TextCharacter &first = m_content.characters.at(at);
    const TextCharacter &last = m_content.characters.at(end - 1);
    GlyphPlace place;
    place.text = QStringView(m_content.text).mid(first.begin, last.begin + last.length - first.begin);
    place.form = arabicForm(m_content.text, first.begin);
    place.vertical = m_vertical;
    place.language = m_level.language;
    place.ligatures = textStyleOf(m_level.style).letterSpacing == 0;
    const FontGlyph *glyph = m_level.font.font->find(place);
    return glyph || m_level.font.hasOthers ? glyph : m_level.font.font->missing();
}

int LevelGlyphs::characterCount(const FontGlyph &glyph, int at, int end) const
{
    if (!m_level.substitutes.isEmpty())
        return end - at;
    const int stop = m_content.characters.at(at).begin + glyph.characters.size();
    int next = at + 1;
    while (next < end && m_content.characters.at(next).begin < stop)
        ++next;
    return next - at;
}

TextCluster LevelGlyphs::cluster(const FontGlyph &glyph, int at, int end) const
{
    TextCluster cluster;
    cluster.firstCharacter = at;
    cluster.characterCount = characterCount(glyph, at, end);
    cluster.level = m_content.characters.at(at).level;
    addGlyph(glyph, &cluster);
    for (int i = 1; i < m_level.substitutes.size(); ++i)
        addGlyph(*m_level.substitutes.at(i), &cluster);
    return cluster;
}

void LevelGlyphs::addGlyph(const FontGlyph &glyph, TextCluster *cluster) const
{
    const QTransform place = QTransform(m_scale, 0, 0, m_scale, cluster->advance, 0);
    cluster->advance += glyph.advance * m_scale;
    if (const GlyphPicture *picture = m_level.font.font->picture(glyph)) {
        cluster->pictures.append({picture->shown.content, picture->shown.place * place});
        return;
    }
    const Problem problem = m_level.font.font->pictureProblem();
    if (!problem.text.isEmpty())
        *m_services.problem = problem;
    const QPainterPath &outline = m_level.font.font->outline(glyph);
    if (m_services.fonts->takeOutline(outline.elementCount()))
        cluster->outline.addPath(place.map(outline));
    else
        *m_services.problem = {Message::TooManyCharacters,
                               QStringLiteral("Of glyphs of the document's fonts, outlines beyond %1 elements are "
                                              "left out.")
                                   .arg(Limits::fontOutlineElements)};
}

double LevelGlyphs::kerning(const FontGlyph &first, const FontGlyph &second) const
{
    if (!textStyleOf(m_level.style).fontKerns())
        return 0;
    return m_level.font.font->kerning(first, second, m_vertical) * m_scale;
}

QPointF LevelGlyphs::verticalOrigin(const FontGlyph &glyph) const
{
    return glyph.verticalOrigin * m_scale;
}

double LevelGlyphs::verticalAdvance(const FontGlyph &glyph) const
{
    return glyph.verticalAdvance * m_scale;
}

} // namespace Svg
