#include "text/textcontent.h"

#include "grammar/inputlimits.h"
#include "properties/computedstyle.h"
#include "style/cascade.h"
#include "text/altglyphs.h"
#include "text/fontmeasures.h"
#include "tree/conditions.h"
#include "tree/references.h"

namespace Svg {

namespace {

constexpr ushort zeroWidthSpace = 0x200b;

bool isWhiteSpace(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r');
}

// The size that makes lower case letters as tall as requested (CSS Fonts 4 §2.6).
double adjustedSize(const TextLevel &level)
{
    const double size = level.emSize;
    const double asked = textStyleOf(level.style).sizeAdjust;
    if (!(asked > 0) || !(size > 0))
        return size;
    const double height = levelMeasures(level).xHeight;
    return height > 0 ? size * asked * size / height : size;
}

class TextCollector
{
public:
    TextCollector(const Tree &tree, const QSizeF &viewport, DocumentFonts *fonts)
        : m_tree(tree)
        , m_viewport(viewport)
        , m_fonts(*fonts)
    {
    }

    TextContent collect(NodeIndex text, const ComputedStyle &style);

private:
    void open(NodeIndex node, const ComputedStyle &style);
    void close();
    void visit(NodeIndex node);
    void append(const QString &characters);
    QString transformed(const QString &characters) const;
    QString capitalized(QString characters) const;
    void appendSpace(bool preserves);
    void appendCharacter(const QString &characters, int at, int length);
    void dropSpaceAtEnd();
    void substituteGlyphs(TextLevel *level);
    void findFont(TextLevel *level);
    NodeIndex referred(const Node &node) const;
    bool hasWay(const Node &textPath) const;
    bool isLink(const TextLevel &level) const { return hasLocalName(m_tree.node(level.node), QStringLiteral("a")); }
    QString referredText(const Node &tref) const;
    bool preservesSpace(const Node &node, const ComputedStyle &style) const;

    const Tree &m_tree;
    QSizeF m_viewport;
    DocumentFonts &m_fonts;
    TextContent m_content;
    /// Open levels, innermost last.
    QVector<int> m_open;
    /// Whether the last character is white space that collapses with following white space.
    bool m_afterSpace = true;
};

// "white-space" takes precedence (SVG 2 §11.7.4).
bool TextCollector::preservesSpace(const Node &node, const ComputedStyle &style) const
{
    const WhiteSpace asked = textStyleOf(style).whiteSpace;
    if (asked != WhiteSpace::Unset)
        return asked == WhiteSpace::Preserve;
    for (const Node *at = &node;; at = &m_tree.node(at->parent)) {
        const QString space = at->attributes.value(AttributeId::XmlSpace);
        if (!space.isEmpty())
            return space == QLatin1String("preserve");
        if (at->parent == noNode)
            return false;
    }
}

// All glyphs must be of one font.
void TextCollector::substituteGlyphs(TextLevel *level)
{
    const QVector<NodeIndex> nodes = alternateGlyphs(m_tree, level->node);
    const DocumentFontPointer font = nodes.isEmpty() ? nullptr : m_fonts.fontOfGlyph(m_tree, nodes.constFirst());
    for (const NodeIndex node : nodes)
        if (const FontGlyph *glyph = font ? font->glyphOf(node) : nullptr)
            level->substitutes.append(glyph);
    if (!level->substitutes.isEmpty())
        level->font.font = font;
}

void TextCollector::findFont(TextLevel *level)
{
    if (!DocumentFonts::areIn(m_tree))
        return;
    level->font = m_fonts.find(m_tree, level->style);
    if (hasLocalName(m_tree.node(level->node), QStringLiteral("altGlyph")))
        substituteGlyphs(level);
    for (NodeIndex at = level->node; at != noNode && level->language.isEmpty(); at = m_tree.node(at).parent)
        level->language = m_tree.node(at).attributes.value(QStringLiteral("xml:lang"));
    // Characters beyond the longest tag of a glyph have no effect.
    level->language = level->language.left(Limits::glyphListCharacters + 1).toLower();
}

void TextCollector::open(NodeIndex index, const ComputedStyle &style)
{
    const Node &node = m_tree.node(index);
    TextLevel level;
    level.node = index;
    level.kind = node.kind;
    level.style = style;
    level.emSize = style.font.size;
    findFont(&level);
    level.style.font.size = adjustedSize(level);
    level.preservesSpace = preservesSpace(node, style);
    level.firstCharacter = m_content.characters.size();
    if (!m_open.isEmpty()) {
        level.above = m_open.constLast();
        level.path = m_content.levels.at(level.above).path;
    }
    if (node.kind == ElementKind::TextPath)
        level.path = m_content.levels.size();
    m_content.hasReferences |= node.kind == ElementKind::TextPath || node.kind == ElementKind::Tref;
    m_open.append(m_content.levels.size());
    m_content.levels.append(level);
}

void TextCollector::close()
{
    m_content.levels[m_open.takeLast()].endCharacter = m_content.characters.size();
}

void TextCollector::appendCharacter(const QString &characters, int at, int length)
{
    // The capitals of a letter may be several letters.
    if (m_content.characters.size() >= Limits::textCharacters)
        return;
    TextCharacter character;
    character.begin = m_content.text.size();
    character.length = length;
    character.level = m_open.constLast();
    // A line is not broken there.
    const bool separates =
        characters.at(at) == QChar::LineSeparator || characters.at(at) == QChar::ParagraphSeparator;
    if (separates)
        m_content.text += QChar(zeroWidthSpace);
    else
        m_content.text += characters.midRef(at, length);
    m_content.characters.append(character);
}

void TextCollector::appendSpace(bool preserves)
{
    if (m_afterSpace && !preserves)
        return;
    appendCharacter(QStringLiteral(" "), 0, 1);
    m_afterSpace = !preserves;
}

void TextCollector::append(const QString &characters)
{
    const bool preserves = m_content.levels.at(m_open.constLast()).preservesSpace;
    for (int i = 0; i < characters.size(); ++i) {
        // A line break of two characters counts as one.
        if (characters.at(i) == QLatin1Char('\r') && characters.midRef(i + 1).startsWith(QLatin1Char('\n')))
            continue;
        if (isWhiteSpace(characters.at(i))) {
            appendSpace(preserves);
            continue;
        }
        const bool pair = characters.at(i).isHighSurrogate() && i + 1 < characters.size() &&
                          characters.at(i + 1).isLowSurrogate();
        appendCharacter(characters, i, pair ? 2 : 1);
        i += pair ? 1 : 0;
        m_afterSpace = false;
    }
}

// The first letters of words; one may begin in another part (CSS Text 3 §2.1.1).
QString TextCollector::capitalized(QString characters) const
{
    bool inWord = !m_content.text.isEmpty() && m_content.text.back().isLetterOrNumber();
    for (QChar &c : characters) {
        const bool isPart = c.isLetterOrNumber() || c.isMark() || (inWord && c == QLatin1Char('\''));
        if (isPart && !inWord)
            c = c.toTitleCase();
        inWord = isPart;
    }
    return characters;
}

QString TextCollector::transformed(const QString &characters) const
{
    const TextStyle &style = textStyleOf(m_content.levels.at(m_open.constLast()).style);
    QString result = characters;
    if (style.transform == TextTransform::Uppercase)
        result = characters.toUpper();
    else if (style.transform == TextTransform::Lowercase)
        result = characters.toLower();
    else if (style.transform == TextTransform::Capitalize)
        result = capitalized(characters);
    // Capitals become small ones like all letters.
    return style.smallCaps == SmallCaps::OfAllLetters ? result.toLower() : result;
}

// Collapsible white space at the very end is removed.
void TextCollector::dropSpaceAtEnd()
{
    if (!m_afterSpace || m_content.characters.isEmpty())
        return;
    m_content.characters.removeLast();
    m_content.text.chop(1);
    for (TextLevel &level : m_content.levels) {
        level.firstCharacter = qMin(level.firstCharacter, m_content.characters.size());
        level.endCharacter = qMin(level.endCharacter, m_content.characters.size());
    }
}

// Only a text itself contains text on a path (SVG 2 §11.8.1), and the path must exist.
bool TextCollector::hasWay(const Node &textPath) const
{
    for (const int level : m_open)
        if (m_content.levels.at(level).kind != ElementKind::Text && !isLink(m_content.levels.at(level)))
            return false;
    if (!textPath.attributes.value(QStringLiteral("path")).isEmpty())
        return true;
    const NodeIndex shape = referred(textPath);
    return shape != noNode && hasGeometry(m_tree.node(shape).kind);
}

NodeIndex TextCollector::referred(const Node &node) const
{
    return m_tree.findId(hrefTarget(node.attributes));
}

QString TextCollector::referredText(const Node &tref) const
{
    const NodeIndex target = referred(tref);
    QString text;
    for (NodeIndex at = target; at != noNode; at = m_tree.following(at, target))
        if (m_tree.node(at).kind == ElementKind::Characters && text.size() < Limits::trefCharacters)
            text += m_tree.node(at).text;
    return text.left(Limits::trefCharacters);
}

void TextCollector::visit(NodeIndex index)
{
    const Node &node = m_tree.node(index);
    if (node.kind == ElementKind::Characters) {
        append(transformed(node.text));
        return;
    }
    if (!isTextPart(node.kind))
        return;
    const TextLevel &above = m_content.levels.at(m_open.constLast());
    ComputedStyle around = above.style;
    around.font.size = above.emSize;
    ComputedStyle style = cascade(m_tree, index, {around, m_viewport});
    style.displayed =
        style.displayed && passesConditions(node) && (node.kind != ElementKind::TextPath || hasWay(node));
    open(index, style);
    if (node.kind == ElementKind::Tref && style.displayed)
        append(transformed(referredText(node)));
}

TextContent TextCollector::collect(NodeIndex text, const ComputedStyle &style)
{
    open(text, style);
    NodeIndex at = m_tree.following(text, text);
    while (at != noNode) {
        const NodeIndex parent = m_tree.node(at).parent;
        while (m_open.size() > 1 && m_content.levels.at(m_open.constLast()).node != parent)
            close();
        visit(at);
        const TextLevel &level = m_content.levels.at(m_open.constLast());
        // Only displayed parts of a text count. A reference to characters doesn't show its own.
        const bool skipped = !level.style.displayed || level.kind == ElementKind::Tref ||
                             (level.node != at && m_tree.node(at).firstChild != noNode);
        at = skipped ? m_tree.followingBeside(at, text) : m_tree.following(at, text);
    }
    while (!m_open.isEmpty())
        close();
    dropSpaceAtEnd();
    return m_content;
}

} // namespace

FontMeasures levelMeasures(const TextLevel &level)
{
    return level.font.font ? level.font.font->measures(level.style.font.size) : fontMeasures(level.style);
}

TextContent collectText(const Tree &tree, NodeIndex text, const ComputedStyle &style, const QSizeF &viewport,
                        DocumentFonts *fonts)
{
    return TextCollector(tree, viewport, fonts).collect(text, style);
}

uint codeOf(const QString &text, const TextCharacter &character)
{
    const QChar first = text.at(character.begin);
    return character.length == 2 ? QChar::surrogateToUcs4(first, text.at(character.begin + 1)) : first.unicode();
}

bool canBePlaced(const QString &text, const TextCharacter &character)
{
    const uint code = codeOf(text, character);
    switch (QChar::category(code)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return false;
    default:
        return true;
    }
}

bool isMoved(const TextCharacter &character)
{
    return character.dx != 0 || character.dy != 0;
}

} // namespace Svg
