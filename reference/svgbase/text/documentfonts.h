#pragma once

#include "grammar/inputlimits.h"
#include "properties/computedstyle.h"
#include "text/documentfont.h"

#include <QtCore/QVector>

#include <memory>

namespace Svg {

using DocumentFontPointer = std::shared_ptr<const DocumentFont>;

/// The document's font for a style.
struct FoundFont
{
    /// Null when the style uses fonts of the system.
    DocumentFontPointer font;
    /// Whether the style has further families for characters that the font lacks.
    bool hasOthers = false;
};

/// The "font" elements of a document and the font files in its style sheets, read when a text first needs them.
class DocumentFonts
{
public:
    /// Whether a document has fonts of its own, as elements or in its style sheets.
    static bool areIn(const Tree &tree);

    /// Discards everything when the fonts may have changed.
    void setRevision(quint32 revision);
    /// The font of the first existing family of a style, nearest to its weight, slope and variant.
    FoundFont find(const Tree &tree, const ComputedStyle &style);
    /// The font that a "glyph" element belongs to; null for any other node.
    DocumentFontPointer fontOfGlyph(const Tree &tree, NodeIndex glyph);

    /// Starts counting the outlines of a text again.
    void beginText(NodeIndex text);
    /// Whether the document may show that many more outline elements.
    bool takeOutline(int elements);

private:
    /// Describes a font: its families and the styles that it suits.
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
