#include "text/documentfont.h"

#include "grammar/inputlimits.h"
#include "grammar/numbers.h"
#include "grammar/pathdata.h"
#include "style/cascade.h"
#include "text/fonts.h"
#include "text/glyphshapes.h"

namespace Svg {

namespace {

// Shares of the em for fonts without these values (SVG 1.1 §20.8.3 leaves most of them to the program).
constexpr double usualAscent = 0.8;
constexpr double usualDescent = 0.2;
constexpr double usualXHeight = 0.5;
constexpr double usualSubscript = 0.2;
constexpr double usualSuperscript = 0.4;
constexpr double usualUnderline = 0.1;
constexpr double usualThickness = 0.05;

/// Fonts with fewer units per em would be magnified without bounds.
constexpr double leastUnitsPerEm = 0.01;

struct FormName
{
    QLatin1String name;
    ArabicForm form;
};

const FormName formNames[] = {
    {QLatin1String("isolated"), ArabicForm::Isolated},
    {QLatin1String("initial"), ArabicForm::Initial},
    {QLatin1String("medial"), ArabicForm::Medial},
    {QLatin1String("terminal"), ArabicForm::Terminal},
};

ArabicForm formNamed(const QString &name)
{
    for (const FormName &known : formNames)
        if (name == known.name)
            return known.form;
    return ArabicForm::Any;
}

const QString characterKey = QStringLiteral("u");
const QString nameKey = QStringLiteral("g");

/// Most characters of a range in a kerning list.
constexpr int longestRange = 256;

bool isCodeRange(const QString &text)
{
    return text.trimmed().startsWith(QLatin1String("U+"), Qt::CaseInsensitive);
}

// "U+" with a code, with two of them, or with wildcard digits at its end (SVG 1.1 §20.7).
QStringList keysOfRange(const QString &range)
{
    const QString codes = range.mid(2);
    const QString first = codes.section(QLatin1Char('-'), 0, 0).replace(QLatin1Char('?'), QLatin1Char('0'));
    const QString last = codes.section(QLatin1Char('-'), -1).replace(QLatin1Char('?'), QLatin1Char('f'));
    bool known = false;
    const uint from = first.toUInt(&known, 16);
    const uint to = known ? last.toUInt(&known, 16) : 0;
    QStringList keys;
    for (uint code = from; known && code <= qMin(to, uint(QChar::LastValidCodePoint)); ++code) {
        if (keys.size() >= longestRange)
            break;
        keys.append(characterKey + QString::fromUcs4(&code, 1));
    }
    return keys;
}

// Keys in the list of one side of a pair, characters or names of glyphs; not many more than `most`.
QStringList sideOf(const QString &characters, const QString &names, int most)
{
    QStringList keys;
    const QStringList listed = characters.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &part : listed) {
        if (keys.size() > most)
            return keys;
        if (isCodeRange(part))
            keys += keysOfRange(part.trimmed());
        else
            keys.append(characterKey + (part.size() > 1 ? part.trimmed() : part));
    }
    const QStringList named = names.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &part : named) {
        if (keys.size() > most)
            return keys;
        keys.append(nameKey + part.trimmed());
    }
    return keys;
}

bool speaks(QStringView language, const QString &tag)
{
    if (!language.startsWith(tag))
        return false;
    return language.size() == tag.size() || language.at(tag.size()) == QLatin1Char('-');
}

QStringList tagsOf(const QString &list)
{
    QStringList tags = list.split(QLatin1Char(','), Qt::SkipEmptyParts).mid(0, Limits::glyphLanguages);
    for (QString &tag : tags)
        tag = tag.trimmed().toLower();
    return tags;
}

bool isForLanguage(const QStringList &tags, QStringView language)
{
    return tags.isEmpty() ||
           std::any_of(tags.begin(), tags.end(), [&](const QString &tag) { return speaks(language, tag); });
}

QString textOf(const Node &node, const char *name)
{
    return node.attributes.value(QString::fromLatin1(name));
}

double numberOf(const Node &node, const char *name, double otherwise)
{
    const double value = parseNumber(textOf(node, name)).value_or(otherwise);
    return qBound(-Limits::coordinate, value, Limits::coordinate);
}

const Node *faceOf(const Tree &tree, const Node &font)
{
    for (NodeIndex at = font.firstChild; at != noNode; at = tree.node(at).next)
        if (tree.node(at).kind == ElementKind::FontFace)
            return &tree.node(at);
    return nullptr;
}

} // namespace

DocumentFont::DocumentFont(const Tree &tree, NodeIndex index, int *kerningPairsLeft)
{
    const Node &font = tree.node(index);
    m_advance = numberOf(font, "horiz-adv-x", 0);
    m_originX = numberOf(font, "horiz-origin-x", 0);
    static const Node plain;
    const Node *face = faceOf(tree, font);
    readFace(face ? *face : plain);
    m_verticalAdvance = numberOf(font, "vert-adv-y", m_unitsPerEm);
    m_verticalOrigin = {numberOf(font, "vert-origin-x", m_advance / 2),
                        numberOf(font, "vert-origin-y", m_measures.ascent)};
    for (NodeIndex at = font.firstChild; at != noNode; at = tree.node(at).next) {
        const ElementKind kind = tree.node(at).kind;
        if (kind == ElementKind::HorizontalKerning)
            readKerning(tree.node(at), &m_horizontalKerning, kerningPairsLeft);
        else if (kind == ElementKind::VerticalKerning)
            readKerning(tree.node(at), &m_verticalKerning, kerningPairsLeft);
    }
    const ComputedStyle style = styleInTree(tree, index);
    for (NodeIndex at = font.firstChild; at != noNode; at = tree.node(at).next) {
        const ElementKind kind = tree.node(at).kind;
        if (kind == ElementKind::Glyph)
            addGlyph(readGlyph(tree, at, style));
        else if (kind == ElementKind::MissingGlyph && m_missing.node == noNode)
            m_missing = readGlyph(tree, at, style);
    }
}

DocumentFont::DocumentFont(const std::shared_ptr<FileFont> &file)
    : m_unitsPerEm(outlineFontSize)
    , m_measures(file->measures())
    , m_file(file)
{
}

void DocumentFont::readFace(const Node &face)
{
    const double units = numberOf(face, "units-per-em", m_unitsPerEm);
    if (units >= leastUnitsPerEm)
        m_unitsPerEm = units;
    const double em = m_unitsPerEm;
    m_measures.ascent = numberOf(face, "ascent", usualAscent * em);
    // Fonts write it with either sign.
    m_measures.descent = -qAbs(numberOf(face, "descent", usualDescent * em));
    m_measures.xHeight = numberOf(face, "x-height", usualXHeight * em);
    m_measures.subscript = -usualSubscript * em;
    m_measures.superscript = usualSuperscript * em;
    m_measures.underline = numberOf(face, "underline-position", -usualUnderline * em);
    m_measures.thickness = numberOf(face, "underline-thickness", usualThickness * em);
    m_measures.lineThrough = numberOf(face, "strikethrough-position", m_measures.xHeight / 2);
}

FontMeasures DocumentFont::measures(double size) const
{
    const double scale = size / m_unitsPerEm;
    FontMeasures scaled = m_measures;
    for (double FontMeasures::*height :
         {&FontMeasures::ascent, &FontMeasures::descent, &FontMeasures::xHeight, &FontMeasures::subscript,
          &FontMeasures::superscript, &FontMeasures::underline, &FontMeasures::thickness,
          &FontMeasures::lineThrough})
        scaled.*height *= scale;
    return scaled;
}

FontGlyph DocumentFont::readGlyph(const Tree &tree, NodeIndex index, const ComputedStyle &style) const
{
    const Node &node = tree.node(index);
    FontGlyph glyph;
    glyph.node = index;
    glyph.characters = textOf(node, "unicode").left(Limits::glyphCharacters);
    glyph.languages = tagsOf(textOf(node, "lang").left(Limits::glyphListCharacters));
    glyph.kerningKeys = knownKeys(glyph, textOf(node, "glyph-name").left(Limits::glyphListCharacters));
    glyph.form = formNamed(textOf(node, "arabic-form"));
    glyph.data = node.attributes.value(AttributeId::D);
    if (glyph.data.isEmpty() && node.firstChild != noNode)
        glyph.shapes = glyphShapes(tree, index, style);
    const QString orientation = textOf(node, "orientation");
    glyph.onHorizontal = orientation != QLatin1String("v");
    glyph.onVertical = orientation != QLatin1String("h");
    glyph.advance = numberOf(node, "horiz-adv-x", m_advance);
    glyph.verticalAdvance = numberOf(node, "vert-adv-y", m_verticalAdvance);
    glyph.verticalOrigin = {numberOf(node, "vert-origin-x", m_verticalOrigin.x()),
                            numberOf(node, "vert-origin-y", m_verticalOrigin.y())};
    return glyph;
}

void DocumentFont::addGlyph(const FontGlyph &glyph)
{
    m_glyphs.append(glyph);
    if (glyph.characters.isEmpty())
        return;
    QVector<int> &known = m_byCharacter[glyph.characters.front()];
    if (known.size() < Limits::glyphsOfCharacter)
        known.append(m_glyphs.size() - 1);
    else
        m_leavesOut = true;
}

bool DocumentFont::isAllowed(const FontGlyph &glyph, const GlyphPlace &place)
{
    if (!place.text.startsWith(glyph.characters) || !(place.vertical ? glyph.onVertical : glyph.onHorizontal))
        return false;
    const bool single = glyph.characters.size() == (glyph.characters.front().isHighSurrogate() ? 2 : 1);
    if (!single && !place.ligatures)
        return false;
    if (glyph.form != ArabicForm::Any && glyph.form != place.form)
        return false;
    return isForLanguage(glyph.languages, place.language);
}

// Glyphs of elements are known by their nodes, glyphs of files by negative numbers.
const FontGlyph *DocumentFont::findInFile(QStringView text) const
{
    const bool pair = text.size() > 1 && text.front().isHighSurrogate();
    const uint character = pair ? QChar::surrogateToUcs4(text.front(), text[1]) : text.front().unicode();
    const quint32 index = m_file->glyph(character);
    if (index == 0)
        return nullptr;
    std::shared_ptr<FontGlyph> &glyph = m_fileGlyphs[character];
    if (!glyph) {
        glyph = std::make_shared<FontGlyph>();
        glyph->node = noNode - 1 - NodeIndex(index);
        glyph->characters = text.left(pair ? 2 : 1).toString();
        glyph->kerningKeys.append(int(index));
        glyph->advance = m_file->advance(index);
        glyph->verticalAdvance = m_unitsPerEm;
        glyph->verticalOrigin = {glyph->advance / 2, m_measures.ascent};
    }
    return glyph.get();
}

const FontGlyph *DocumentFont::find(const GlyphPlace &place) const
{
    if (place.text.isEmpty())
        return nullptr;
    if (m_file)
        return findInFile(place.text);
    const QVector<int> known = m_byCharacter.value(place.text.front());
    for (const int i : known)
        if (isAllowed(m_glyphs.at(i), place))
            return &m_glyphs.at(i);
    return nullptr;
}

const FontGlyph *DocumentFont::glyphOf(NodeIndex node) const
{
    const auto found = std::find_if(m_glyphs.begin(), m_glyphs.end(),
                                    [node](const FontGlyph &glyph) { return glyph.node == node; });
    return found == m_glyphs.end() ? nullptr : found;
}

// Of several elements for a pair the first counts (SVG 1.1 §20.7). Looking up a known pair takes as long as storing
// a new one, and so do characters without a pair.
void DocumentFont::readKerning(const Node &node, KerningTable *table, int *pairsLeft)
{
    const double value = numberOf(node, "k", 0);
    const QVector<int> firsts = keysOf(sideOf(textOf(node, "u1"), textOf(node, "g1"), *pairsLeft));
    if (firsts.isEmpty())
        return;
    const QVector<int> seconds = keysOf(sideOf(textOf(node, "u2"), textOf(node, "g2"), *pairsLeft));
    if (seconds.isEmpty())
        *pairsLeft = qMax(0, *pairsLeft - firsts.size());
    for (const int first : firsts) {
        for (const int second : seconds) {
            if (*pairsLeft == 0) {
                m_leavesOut = true;
                return;
            }
            --*pairsLeft;
            if (!table->contains({first, second}))
                table->insert({first, second}, {table->size(), value});
        }
    }
}

QVector<int> DocumentFont::keysOf(const QStringList &names)
{
    QVector<int> keys;
    for (const QString &name : names) {
        if (!m_keys.contains(name))
            m_keys.insert(name, m_keys.size());
        keys.append(m_keys.value(name));
    }
    return keys;
}

QVector<int> DocumentFont::knownKeys(const FontGlyph &glyph, const QString &names) const
{
    QVector<int> keys;
    const QStringList all =
        QStringList(characterKey + glyph.characters) + sideOf(QString(), names, Limits::glyphNames);
    for (const QString &name : all) {
        const auto known = m_keys.constFind(name);
        if (known != m_keys.constEnd() && keys.size() < Limits::glyphNames)
            keys.append(*known);
    }
    return keys;
}

double DocumentFont::kerning(const FontGlyph &first, const FontGlyph &second, bool vertical) const
{
    if (m_file)
        return vertical ? 0
                        : m_file->kerning(quint32(first.kerningKeys.first()), quint32(second.kerningKeys.first()));
    const KerningTable &table = vertical ? m_verticalKerning : m_horizontalKerning;
    if (table.isEmpty())
        return 0;
    Kerning found{Limits::kerningPairs, 0};
    for (const int from : first.kerningKeys) {
        for (const int to : second.kerningKeys) {
            const Kerning pair = table.value({from, to}, found);
            if (pair.order < found.order)
                found = pair;
        }
    }
    return found.value;
}

const GlyphPicture *DocumentFont::picture(const FontGlyph &glyph) const
{
    return m_file ? m_file->picture(quint32(glyph.kerningKeys.first())) : nullptr;
}

const QPainterPath &DocumentFont::outline(const FontGlyph &glyph) const
{
    auto known = m_outlines.find(glyph.node);
    if (known == m_outlines.end() && m_file)
        known = m_outlines.insert(glyph.node, m_file->outline(quint32(glyph.kerningKeys.first())));
    if (known == m_outlines.end()) {
        const QPainterPath path = glyph.data.isEmpty() ? glyph.shapes : parsePathData(glyph.data).path;
        const QTransform upright = QTransform::fromScale(1, -1);
        known = m_outlines.insert(glyph.node, upright.map(path.translated(-m_originX, 0)));
    }
    return *known;
}

} // namespace Svg
