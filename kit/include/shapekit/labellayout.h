#pragma once

#include <shapekit/shapekit_global.h>
#include <shapekit/typesetting.h>

#include <QtCore/QSizeF>
#include <QtGui/QPainterPath>

namespace shapekit {

/// Where text stands between two sides; lines start and end as they are written.
enum class LabelAlignment {
    Start,  ///< the left or the upper side; the right one for lines that are written from there
    Middle, ///< between both sides
    End     ///< the other side
};

/// Everything that decides how a label's text stands in its box. Document units.
struct SHAPEKIT_EXPORT LabelLook
{
    QString text;              ///< the first Typesetting::mostLetters characters are drawn
    QSizeF box;                ///< the lines break within it
    double size = 12;          ///< of the font; the largest one where it fits the box
    double smallest = 0;       ///< above 0: the text gets smaller, down to this, until it fits
    bool isBold = false;       ///< weight of the font
    bool isItalic = false;     ///< slant of the font
    bool isUnderlined = false; ///< with a line under each line of text
    bool hasManyLines = true;  ///< whether lines are broken
    LabelAlignment alignment = LabelAlignment::Middle; ///< of each line, across
    LabelAlignment vertical = LabelAlignment::Middle;  ///< of all lines, downwards

    /// Both alignments as Qt has them.
    Qt::Alignment flags() const;
    /// Whether the same would come out, but for the place.
    bool operator==(const LabelLook &other) const;
    /// See operator==().
    bool operator!=(const LabelLook &other) const { return !(*this == other); }
};

/// A line of a label: the end of its baseline that the alignment leaves in place, from the box's corner.
struct LabelLine
{
    QString text;               ///< without the blanks around it
    QPointF anchor;             ///< left end, middle or right end of the baseline
    bool isRightToLeft = false; ///< direction of its paragraph
};

/// A text in its box. Document units.
struct LabelLayout
{
    QVector<LabelLine> lines; ///< from top to bottom
    QPainterPath outline;     ///< of all letters, from the box's corner
    double size = 0;          ///< of the font
    Typesetting letters;      ///< what it is made of
};

/// Breaks a text into lines and places them in the box. Start and end of a line are those of its writing direction.
/// Text that has no room stands out of the box. Letters that are known from before are used again where they fit.
SHAPEKIT_EXPORT LabelLayout layOut(const LabelLook &look, const Typesetting &known = {});

/// Path data of an outline (LabelLayout::outline) in a box with that corner, document units: whole hundredths; a
/// single move for an empty one.
SHAPEKIT_EXPORT QString pathOfLetters(const QPainterPath &outline, QPointF corner);

} // namespace shapekit
