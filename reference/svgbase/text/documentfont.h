#pragma once

#include "properties/computedstyle.h"
#include "text/filefont.h"
#include "text/fontmeasures.h"
#include "tree/tree.h"

#include <QtCore/QStringList>
#include <QtGui/QPainterPath>

namespace Svg {

/// How an Arabic letter joins its neighbours; `Any` where that does not matter.
enum class ArabicForm : quint8 { Any, Isolated, Initial, Medial, Terminal };

/// A glyph of a font inside the document (SVG 1.1 §20.4), font units.
struct FontGlyph
{
    NodeIndex node = noNode;
    /// Characters that it represents; empty for a glyph that is reached only by its name.
    QString characters;
    /// Language tags that it is for, in small letters; empty for one that is for all.
    QStringList languages;
    /// Keys of its kerning pairs.
    QVector<int> kerningKeys;
    /// Path data, or what the shapes inside of it amount to; y points up.
    QString data;
    QPainterPath shapes;
    ArabicForm form = ArabicForm::Any;
    bool onHorizontal = true;
    bool onVertical = true;
    double advance = 0;
    double verticalAdvance = 0;
    /// Where it is held on a vertical line.
    QPointF verticalOrigin;
};

/// Where a glyph is looked for.
struct GlyphPlace
{
    /// The characters, from the one that the glyph begins with up to the last that it may take.
    QStringView text;
    ArabicForm form = ArabicForm::Isolated;
    bool vertical = false;
    /// Of the text, in small letters; empty where it is not said.
    QString language;
    /// Whether a glyph may stand for several characters.
    bool ligatures = true;
};

/// A "font" element, or the font file of a style sheet.
class DocumentFont
{
public:
    /// Takes the pairs that it kerns, repeated ones included, from those that are left to the document.
    DocumentFont(const Tree &tree, NodeIndex font, int *kerningPairsLeft);
    explicit DocumentFont(const std::shared_ptr<FileFont> &file);

    double unitsPerEm() const { return m_unitsPerEm; }
    /// Heights at a font size in user units.
    FontMeasures measures(double size) const;
    /// The first glyph that the place allows; null when there is none.
    const FontGlyph *find(const GlyphPlace &place) const;
    /// The glyph for characters without one; null if the font has none.
    const FontGlyph *missing() const { return m_missing.node == noNode ? nullptr : &m_missing; }
    /// The glyph that an element describes; null when it is none of this font.
    const FontGlyph *glyphOf(NodeIndex node) const;
    /// How much closer than their advance two neighbours stand, font units.
    double kerning(const FontGlyph &first, const FontGlyph &second, bool vertical) const;
    /// Picture that a font file shows in the place of the outline, font units; null for most glyphs.
    const GlyphPicture *picture(const FontGlyph &glyph) const;
    /// The outline in font units, y pointing down, its baseline beginning at the origin.
    const QPainterPath &outline(const FontGlyph &glyph) const;

    /// Whether some of its glyphs or of its kerning were beyond a limit.
    bool leavesOut() const { return m_leavesOut; }
    /// Tells which pictures of a file a limit left out.
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
    /// Places of glyphs by the first unit of their characters.
    QHash<QChar, QVector<int>> m_byCharacter;
    /// Of characters and names that kerning speaks of.
    QHash<QString, int> m_keys;
    KerningTable m_horizontalKerning;
    KerningTable m_verticalKerning;
    bool m_leavesOut = false;
    /// Null for an element; its glyphs are read when they are asked for.
    std::shared_ptr<FileFont> m_file;
    mutable QHash<quint32, std::shared_ptr<FontGlyph>> m_fileGlyphs;
    mutable QHash<NodeIndex, QPainterPath> m_outlines;
};

} // namespace Svg
