#pragma once

#include <declared/core/typesetting.h>
#include <declared/reader/declaration.h>

#include <QtCore/QSizeF>
#include <QtGui/QPainterPath>

namespace declared {

/// Everything that decides how a label's text stands in its box. Document units.
struct LabelLook
{
    QString text;
    QSizeF box;
    double size = 12;    ///< of the font; the largest one where it fits the box
    double smallest = 0; ///< above 0: the text gets smaller, down to this, until it fits
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool hasManyLines = true;
    LabelAlignment alignment = LabelAlignment::Middle;
    LabelAlignment vertical = LabelAlignment::Middle;

    bool operator==(const LabelLook &other) const;
    bool operator!=(const LabelLook &other) const { return !(*this == other); }
};

/// A line of a label: the end of its baseline that the alignment leaves in place, from the box's corner.
struct LabelLine
{
    QString text;
    QPointF anchor;
    bool isRightToLeft = false;
};

struct LabelLayout
{
    QVector<LabelLine> lines;
    QPainterPath outline; ///< of all letters, from the box's corner
    double size = 0;      ///< of the font
    Typesetting letters;  ///< what it is made of
};

/// Breaks a text into lines and places them in the box. Start and end of a line are those of its writing direction.
/// Text that has no room stands out of the box. Letters that are known from before are used again where they fit.
LabelLayout layOut(const LabelLook &look, const Typesetting &known = {});

} // namespace declared
