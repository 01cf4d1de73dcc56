#pragma once

#include "properties/computedstyle.h"
#include "text/filefont.h"
#include "text/fontmeasures.h"
#include "tree/tree.h"

#include <QtCore/QStringList>
#include <QtGui/QPainterPath>

namespace Svg {

/// Joining form of an Arabic letter; `Any` for others.
enum class ArabicForm : quint8 { Any, Isolated, Initial, Medial, Terminal };

/// A glyph of a font inside the document (SVG 1.1 §20.4), font units.
struct FontGlyph
{
    NodeIndex node = noNode;
    /// Characters that it represents; empty for a glyph used only by its name.
    QString characters;
    /// Language tags that it is limited to, in lower case; empty for all.
    QStringList languages;
    /// Keys of its kerning pairs.
    QVector<int> kerningKeys;
    /// Path data, or the outlines of the shapes inside of it; y points up.
    QString data;
    QPainterPath shapes;
    ArabicForm form = ArabicForm::Any;
    bool onHorizontal = true;
    bool onVertical = true;
    double advance = 0;
    double verticalAdvance = 0;
    /// Its origin on a vertical line.
    QPointF verticalOrigin;
};

/// The context in which a glyph is selected.
struct GlyphPlace
{
    /// The characters, from the first to the last one that the glyph may represent.
    QStringView text;
    ArabicForm form = ArabicForm::Isolated;
    bool vertical = false;
    /// Of the text, in lower case; empty when unknown.
    QString language;
    /// Whether a glyph may represent several characters.
    bool ligatures = true;
};

/// A "font" element, or the font file of a style sheet.
class DocumentFont
{
public:
    /// Its kerning pairs, repeated ones included, count towards those of the document.
    DocumentFont(const Tree &tree, NodeIndex font, int *kerningPairsLeft);
    explicit DocumentFont(const std::shared_ptr<FileFont> &file);

    double unitsPerEm() const { return m_unitsPerEm; }
    /// Vertical metrics at a font size in user units.
    FontMeasures measures(double size) const;
    /// The first glyph that fits the context; null without one.
    const FontGlyph *find(const GlyphPlace &place) const;
    /// The glyph for characters without one; null if the font has none.
    const FontGlyph *missing() const { return m_missing.node == noNode ? nullptr : &m_missing; }
    /// The glyph of an element; null when it is not in this font.
    const FontGlyph *glyphOf(NodeIndex node) const;
    /// Kerning of two neighbours, subtracted from the advance, font units.
    double kerning(const FontGlyph &first, const FontGlyph &second, bool vertical) const;
    /// Picture that replaces the outline of a font file's glyph, font units; null for most glyphs.
    const GlyphPicture *picture(const FontGlyph &glyph) const;
    /// The outline in font units, y pointing down, its baseline beginning at the origin.
    const QPainterPath &outline(const FontGlyph &glyph) const;

    /// Whether some of its glyphs or of its kerning exceeded a limit.
    bool leavesOut() const { return m_leavesOut; }
    /// Reports pictures of a file that a limit left out.
    Problem pictureProblem() const { return m_file ? m_file->problem() : Problem(); }

private:
    struct Kerning
    {
        int order;
        double value;
    };
    /// By the keys of both sides.
    using KerningTable = QHash<QPair<int, int>, Kerning>;

    void readFace(const Node &face);
    FontGlyph readGlyph(const Tree &tree, NodeIndex node, const ComputedStyle &style) const;
    void addGlyph(const FontGlyph &glyph);
    void readKerning(const Node &node, KerningTable *table, int *pairsLeft);
    QVector<int> keysOf(const QStringList &names);
    QVector<int> knownKeys(const FontGlyph &glyph, const QString &names) const;
    const FontGlyph *findInFile(QStringView text) const;
    static bool isAllowed(const FontGlyph &glyph, const GlyphPlace &place);

    double m_unitsPerEm = 1000;
    double m_advance = 0;
    double m_originX = 0;
    double m_verticalAdvance = 0;
    QPointF m_verticalOrigin;
    /// At a font size of one font unit per user unit.
    FontMeasures m_measures;
    QVector<FontGlyph> m_glyphs;
    FontGlyph m_missing;
    /// Indexes of glyphs by the first code unit of their characters.
    QHash<QChar, QVector<int>> m_byCharacter;
    /// Of characters and names used by kerning.
    QHash<QString, int> m_keys;
    KerningTable m_horizontalKerning;
    KerningTable m_verticalKerning;
    bool m_leavesOut = false;
    /// Null for an element, whose glyphs are read on first use.
    std::shared_ptr<FileFont> m_file;
    mutable QHash<quint32, std::shared_ptr<FontGlyph>> m_fileGlyphs;
    mutable QHash<NodeIndex, QPainterPath> m_outlines;
};

} // namespace Svg
