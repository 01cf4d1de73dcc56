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
    /// Place of the level around this one; -1 for the text itself.
    int above = -1;
    ElementKind kind = ElementKind::Text;
    /// With the size that "font-size-adjust" makes of the font's.
    ComputedStyle style;
    /// Length of "em", user units.
    double emSize = 0;
    bool preservesSpace = false;
    /// The innermost `textPath` that holds it, as a place in the list of levels; -1 without one.
    int path = -1;
    int firstCharacter = 0;
    int endCharacter = 0;
    /// Its font where the document has it.
    FoundFont font;
    /// The glyphs that an `altGlyph` shows in place of its characters; empty for everything else.
    QVector<const FontGlyph *> substitutes;
    /// Language tag; empty where none is said.
    QString language;
};

/// A character that can be given a place: white space that was collapsed is none (SVG 2 §11.1.2).
struct TextCharacter
{
    /// Its code units in the text.
    int begin = 0;
    int length = 1;
    int level = 0;
    /// Where its element says it stands or moves to, user units.
    std::optional<double> x;
    std::optional<double> y;
    double dx = 0;
    double dy = 0;
    /// Degrees.
    double rotate = 0;
};

/// Characters of a text element to set, with white space processed.
struct TextContent
{
    QString text;
    QVector<TextCharacter> characters;
    /// In document order, the text element first.
    QVector<TextLevel> levels;
    /// Whether it depends on elements outside of the text.
    bool hasReferences = false;
};

/// Collects the characters of a text element with the style of every part. The text's own style is at hand already.
TextContent collectText(const Tree &tree, NodeIndex text, const ComputedStyle &style, const QSizeF &viewport,
                        DocumentFonts *fonts);
/// The heights of the font of a level.
FontMeasures levelMeasures(const TextLevel &level);

uint codeOf(const QString &text, const TextCharacter &character);
/// Whether a character may be given a place; marks and joiners stay with what they follow.
bool canBePlaced(const QString &text, const TextCharacter &character);
/// Whether it is moved from where it would stand behind the one before.
bool isMoved(const TextCharacter &character);

} // namespace Svg
