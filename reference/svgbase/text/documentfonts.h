#pragma once

#include "grammar/inputlimits.h"
#include "properties/computedstyle.h"
#include "text/documentfont.h"

#include <QtCore/QVector>

#include <memory>

namespace Svg {

using DocumentFontPointer = std::shared_ptr<const DocumentFont>;

/// A font that a style finds in the document.
struct FoundFont
{
    /// Null where the style asks for fonts of the system.
    DocumentFontPointer font;
    /// Whether the style names other families for characters that the font lacks.
    bool hasOthers = false;
};

/// The "font" elements of a document and the font files in its style sheets, read when a text first asks for them.
class DocumentFonts
{
public:
    /// Whether a document has fonts of its own, as elements or in its style sheets.
    static bool areIn(const Tree &tree);

    /// Forgets everything when fonts may be others than before.
    void setRevision(quint32 revision);
    /// The font of the first family of a style that there is, nearest to its weight, slope and variant.
    FoundFont find(const Tree &tree, const ComputedStyle &style);
    /// The font that a "glyph" element belongs to; null for any other node.
    DocumentFontPointer fontOfGlyph(const Tree &tree, NodeIndex glyph);

    /// Begins to count the outlines of a text anew.
    void beginText(NodeIndex text);
    /// Whether the document may show so many more outline elements.
    bool takeOutline(int elements);

private:
    /// A description of a font: the family that it gives it, and for what styles it is meant.
    struct Face
    {
        NodeIndex font = noNode;
        QStringList families;
        QVector<int> weights;
        bool upright = true;
        bool italic = true;
        bool smallCaps = false;
    };

    void readFaces(const Tree &tree);
    void keepFace(const Face &face);
    void addFace(const Tree &tree, NodeIndex face, NodeIndex font);
    void readSheetFaces(const Tree &tree);
    void addSheetFace(const Tree &tree, const QString &source, const Face &face);
    const Face *bestFace(const QString &family, const ComputedStyle &style) const;
    static int mismatch(const Face &face, const ComputedStyle &style);
    DocumentFontPointer font(const Tree &tree, NodeIndex index);

    quint32 m_revision = 0;
    bool m_read = false;
    /// Files that may still be tried.
    int m_loadsLeft = Limits::fonts;
    int m_kerningPairsLeft = Limits::kerningPairs;
    QVector<Face> m_faces;
    QHash<QString, QVector<int>> m_facesOfFamily;
    /// By their elements; those of style sheets by numbers below `noNode`.
    QHash<NodeIndex, DocumentFontPointer> m_fonts;
    QHash<NodeIndex, int> m_outlineElements;
    NodeIndex m_text = noNode;
    int m_allOutlineElements = 0;
};

} // namespace Svg
