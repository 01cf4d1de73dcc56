#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtCore/QVector>

namespace text {

enum class Alignment { Left, Middle, Right };

/// Everything that decides how a text looks but its colour. Document units.
struct TextLook
{
    QString text;
    double fontSize = 24;
    bool isBold = false;
    bool isItalic = false;
    Alignment alignment = Alignment::Left;
    bool isUnderlined = false;
    double wrapWidth = 0; ///< lines are broken to that width; 0 for no breaks but the text's own
    QString family{}; ///< of the letters; empty for the usual one, which also stands for one that is not installed
};

/// A line of the text, with the end or the middle of its baseline that the alignment leaves in place.
struct TextLine
{
    QString text;
    QPointF anchor;
    int start = 0;            ///< of its letters in the text
    QVector<double> advances; ///< from its left end to the left of each letter, and to its right end
    QRectF box;
};

struct TextLayout
{
    QVector<TextLine> lines;
    QSizeF size; ///< of the box, which has room for a cursor even without a letter
};

TextLayout layOut(const TextLook &look);

} // namespace text
