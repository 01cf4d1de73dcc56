#include "text/documentfonts.h"

#include "grammar/csstext.h"
#include "grammar/datauris.h"
#include "grammar/fontfamilies.h"
#include "grammar/inputlimits.h"
#include "properties/computedstyle.h"
#include "style/rules.h"
#include "text/fonts.h"
#include "tree/references.h"

#include <algorithm>

namespace Svg {

namespace {

// Outweighs any difference of weights.
constexpr int wrongSlope = 10000;
constexpr int wrongVariant = 100000;

/// Weights that a face distinguishes.
constexpr int mostWeights = 9;

QString attribute(const Tree &tree, NodeIndex node, const char *name)
{
    return tree.node(node).attributes.value(QString::fromLatin1(name));
}

QStringList wordsOf(const QString &list)
{
    QStringList words = list.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (QString &word : words)
        word = word.trimmed();
    return words;
}

QVector<int> weightsOf(const QStringList &words)
{
    QVector<int> weights;
    for (const QString &word : words) {
        const int weight = word == QLatin1String("normal") ? 400
                           : word == QLatin1String("bold") ? 700
                                                           : word.toInt();
        if (weight > 0 && weights.size() < mostWeights && !weights.contains(weight))
            weights.append(weight);
    }
    return weights;
}

bool asksFor(const QStringList &words, std::initializer_list<const char *> wanted)
{
    const auto isWanted = [&](const QString &word) {
        return word == QLatin1String("all") || std::any_of(wanted.begin(), wanted.end(), [&](const char *known) {
                   return word == QLatin1String(known);
               });
    };
    return words.isEmpty() || std::any_of(words.begin(), words.end(), isWanted);
}

// The reference of a "url()" in a list of sources, quoted or not; empty for anything else.
QString urlIn(QStringView source)
{
    constexpr int nameLength = 4;
    if (!source.startsWith(QLatin1String("url("), Qt::CaseInsensitive))
        return QString();
    CssCursor cursor(source.mid(nameLength));
    cursor.skipSpace();
    QString quoted;
    if (cursor.takeString(&quoted))
        return quoted;
    const QChar *begin = cursor.at;
    cursor.skipTo(")");
    return QStringView(begin, cursor.at).trimmed().toString();
}

NodeIndex childNamed(const Tree &tree, NodeIndex node, const char *name)
{
    for (NodeIndex at = tree.node(node).firstChild; at != noNode; at = tree.node(at).next)
        if (hasLocalName(tree.node(at), QString::fromLatin1(name)))
            return at;
    return noNode;
}

// The font of this document that a description outside of it refers to; `noNode` without one.
NodeIndex sourceOf(const Tree &tree, NodeIndex face)
{
    const NodeIndex source = childNamed(tree, face, "font-face-src");
    const NodeIndex uri = source == noNode ? noNode : childNamed(tree, source, "font-face-uri");
    if (uri == noNode)
        return noNode;
    const NodeIndex font = tree.findId(hrefTarget(tree.node(uri).attributes));
    return font != noNode && tree.node(font).kind == ElementKind::Font ? font : noNode;
}

} // namespace

void DocumentFonts::setRevision(quint32 revision)
{
    if (revision == m_revision)
        return;
    m_revision = revision;
    m_read = false;
    m_faces.clear();
    m_facesOfFamily.clear();
    m_loadsLeft = Limits::fonts;
    m_kerningPairsLeft = Limits::kerningPairs;
    m_fonts.clear();
}

void DocumentFonts::keepFace(const Face &face)
{
    for (const QString &family : face.families)
        m_facesOfFamily[family].append(m_faces.size());
    m_faces.append(face);
}

void DocumentFonts::addFace(const Tree &tree, NodeIndex face, NodeIndex font)
{
    Face read;
    read.font = font;
    const QVector<FamilyName> names =
        parseFontFamilies(attribute(tree, face, "font-family").left(Limits::familyCharacters));
    for (const FamilyName &name : names)
        read.families.append(name.text.toLower());
    read.weights = weightsOf(wordsOf(attribute(tree, face, "font-weight").left(Limits::glyphListCharacters)));
    const QStringList slopes = wordsOf(attribute(tree, face, "font-style"));
    read.upright = asksFor(slopes, {"normal"});
    read.italic = asksFor(slopes, {"italic", "oblique"});
    read.smallCaps = attribute(tree, face, "font-variant").contains(QLatin1String("small-caps"));
    keepFace(read);
}

void DocumentFonts::readFaces(const Tree &tree)
{
    m_read = true;
    for (NodeIndex at = rootNode; at != noNode && m_faces.size() < Limits::fonts;
         at = tree.following(at, rootNode)) {
        if (tree.node(at).kind != ElementKind::FontFace)
            continue;
        const NodeIndex above = tree.node(at).parent;
        const NodeIndex font = tree.node(above).kind == ElementKind::Font ? above : sourceOf(tree, at);
        if (font != noNode)
            addFace(tree, at, font);
    }
    readSheetFaces(tree);
}

bool DocumentFonts::areIn(const Tree &tree)
{
    return tree.hasFonts() || (tree.rules() && !tree.rules()->fontFaces().isEmpty());
}

// The first usable source: a font of this document or an embedded file. Others are ignored.
void DocumentFonts::addSheetFace(const Tree &tree, const QString &source, const Face &face)
{
    CssCursor cursor(source);
    do {
        const QChar *begin = cursor.at;
        cursor.skipTo(",");
        const QString reference = urlIn(QStringView(begin, cursor.at).trimmed());
        Face found = face;
        if (reference.startsWith(QLatin1Char('#'))) {
            found.font = tree.findId(reference.mid(1));
            if (found.font == noNode || tree.node(found.font).kind != ElementKind::Font)
                continue;
        } else {
            const std::optional<QByteArray> file = parseDataUri(reference);
            const bool isTried = file && --m_loadsLeft >= 0;
            const std::shared_ptr<FileFont> font = isTried ? FileFont::load(*file) : nullptr;
            if (!font)
                continue;
            found.font = noNode - 1 - m_faces.size();
            m_fonts.insert(found.font, std::make_shared<DocumentFont>(font));
        }
        keepFace(found);
        return;
    } while (cursor.take(',') && m_loadsLeft > 0);
}

void DocumentFonts::readSheetFaces(const Tree &tree)
{
    if (!tree.rules())
        return;
    for (const FontFaceRule &rule : tree.rules()->fontFaces()) {
        Face face;
        const QVector<FamilyName> names = parseFontFamilies(rule.family.left(Limits::familyCharacters));
        if (names.isEmpty() || m_faces.size() >= Limits::fonts)
            continue;
        face.families.append(names.constFirst().text.toLower());
        // A range of weights, "100 900", covers all of them.
        face.weights = weightsOf({rule.weight});
        const bool leans =
            rule.style.startsWith(QLatin1String("italic")) || rule.style.startsWith(QLatin1String("oblique"));
        face.upright = !leans;
        face.italic = leans;
        addSheetFace(tree, rule.source, face);
    }
}

// CSS 2.1 §15.6: the slope first, then the nearest weight; for light texts lighter fonts first.
int DocumentFonts::mismatch(const Face &face, const ComputedStyle &style)
{
    int sum = (style.font.italic ? face.italic : face.upright) ? 0 : wrongSlope;
    if (face.smallCaps != (textStyleOf(style).smallCaps != SmallCaps::None))
        sum += wrongVariant;
    const int wanted = style.font.weight;
    int nearest = face.weights.isEmpty() ? 0 : wrongSlope;
    for (const int weight : face.weights) {
        const bool onLikedSide = wanted < 500 ? weight <= wanted : weight >= wanted;
        nearest = qMin(nearest, 2 * qAbs(weight - wanted) + (onLikedSide ? 0 : 1));
    }
    return sum + nearest;
}

const DocumentFonts::Face *DocumentFonts::bestFace(const QString &family, const ComputedStyle &style) const
{
    const Face *best = nullptr;
    for (const int index : m_facesOfFamily.value(family)) {
        const Face &face = m_faces.at(index);
        if (!best || mismatch(face, style) < mismatch(*best, style))
            best = &face;
    }
    return best;
}

DocumentFontPointer DocumentFonts::font(const Tree &tree, NodeIndex index)
{
    DocumentFontPointer &known = m_fonts[index];
    if (!known)
        known = std::make_shared<DocumentFont>(tree, index, &m_kerningPairsLeft);
    return known;
}

FoundFont DocumentFonts::find(const Tree &tree, const ComputedStyle &style)
{
    if (!areIn(tree))
        return {};
    if (!m_read)
        readFaces(tree);
    const QVector<FamilyName> names = parseFontFamilies(style.font.family);
    for (int i = 0; i < names.size(); ++i) {
        if (const Face *face = bestFace(names.at(i).text.toLower(), style))
            return {font(tree, face->font), i + 1 < names.size()};
        if (isInstalled(names.at(i)))
            break;
    }
    return {};
}

DocumentFontPointer DocumentFonts::fontOfGlyph(const Tree &tree, NodeIndex glyph)
{
    if (glyph == noNode || tree.node(glyph).kind != ElementKind::Glyph)
        return nullptr;
    const NodeIndex above = tree.node(glyph).parent;
    return tree.node(above).kind == ElementKind::Font ? font(tree, above) : nullptr;
}

void DocumentFonts::beginText(NodeIndex text)
{
    m_text = text;
    m_allOutlineElements -= m_outlineElements.take(text);
}

bool DocumentFonts::takeOutline(int elements)
{
    if (m_allOutlineElements + elements > Limits::fontOutlineElements)
        return false;
    m_allOutlineElements += elements;
    m_outlineElements[m_text] += elements;
    return true;
}

} // namespace Svg
