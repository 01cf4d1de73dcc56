#pragma once

#include "text/documentfonts.h"
#include "tree/tree.h"

#include <QtCore/QSizeF>

#include <optional>

namespace Svg {

/// A text element, or a part of one, with its share of the characters.
struct TextLevel
{
    NodeIndex node = noNode;
    /// Index of the level around this one; -1 for the text itself.
    int above = -1;
    ElementKind kind = ElementKind::Text;
    /// With the font size changed by "font-size-adjust".
    ComputedStyle style;
    /// Length of "em", user units.
    double emSize = 0;
    bool preservesSpace = false;
    /// The innermost `textPath` around it, as an index in the list of levels; -1 without one.
    int path = -1;
    int firstCharacter = 0;
    int endCharacter = 0;
    /// Its font when the document has it.
    FoundFont font;
    /// The glyphs that an `altGlyph` shows instead of its characters; empty for everything else.
    QVector<const FontGlyph *> substitutes;
    /// Language tag; empty when unknown.
    QString language;
};

/// An addressable character: collapsed white space is none (SVG 2 §11.1.2).
struct TextCharacter
{
    /// Its code units in the text.
    int begin = 0;
    int length = 1;
    int level = 0;
    /// Position and shift set by its element, user units.
    std::optional<double> x;
    std::optional<double> y;
    double dx = 0;
    double dy = 0;
    /// Degrees.
    double rotate = 0;
};

/// Characters of a text element to lay out, with white space processed.
struct TextContent
{
    QString text;
    QVector<TextCharacter> characters;
    /// In document order, the text element first.
    QVector<TextLevel> levels;
    /// Whether it depends on elements outside of the text.
    bool hasReferences = false;
};

/// Collects the characters of a text element with the style of every part. The text's own style is passed in.
TextContent collectText(const Tree &tree, NodeIndex text, const ComputedStyle &style, const QSizeF &viewport,
                        DocumentFonts *fonts);
/// The vertical metrics of the font of a level.
FontMeasures levelMeasures(const TextLevel &level);

uint codeOf(const QString &text, const TextCharacter &character);
/// Whether a character may have a position of its own; marks and joiners stay with the preceding character.
bool canBePlaced(const QString &text, const TextCharacter &character);
/// Whether it is moved from its natural position after the previous one.
bool isMoved(const TextCharacter &character);

} // namespace Svg
