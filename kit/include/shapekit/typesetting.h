#pragma once

#include <shapekit/shapekit_global.h>

#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtGui/QPainterPath>

namespace shapekit {

/// Weight, slant and line of letters.
struct LetterForm
{
    bool isBold = false;       ///< weight of the font
    bool isItalic = false;     ///< slant of the font
    bool isUnderlined = false; ///< with a line under each line of text

    /// Whether all three are the same.
    bool operator==(const LetterForm &other) const
    {
        return isBold == other.isBold && isItalic == other.isItalic && isUnderlined == other.isUnderlined;
    }
};

/// A text in lines, at one size of the font: scaled letters don't show hinting. Layout pixels.
struct SHAPEKIT_EXPORT Typesetting
{
    /// Size of the font.
    static constexpr int fontPixels = 100;
    /// Characters of a text that are drawn; those behind them are left out.
    static constexpr int mostLetters = 1000;

    /// A line as it is written.
    struct Line
    {
        QString text;               ///< without the blanks around it
        bool isRightToLeft = false; ///< direction of its paragraph
        double width = 0;           ///< of its letters
        QPainterPath outline;       ///< from the left end of its baseline
    };

    QString text;             ///< as it was given
    LetterForm form;          ///< of all letters
    bool hasManyLines = true; ///< whether lines are broken
    double room = 0;          ///< width at which lines are broken
    QVector<Line> lines;      ///< from top to bottom, 200 at most
    double widest = 0;        ///< width of the widest line
    double lineHeight = 0;    ///< from baseline to baseline
    double ascent = 0;        ///< from the top of a line to its baseline
    bool isBroken = false;    ///< has paragraphs of several lines
    bool breaksWords = false; ///< inside of a word of Latin letters

    /// Whether the same would come out at another width.
    bool isFor(double otherRoom) const;
};

/// Breaks a text into lines of a width (layout pixels) in the font sans-serif. Without many lines its line breaks
/// count as blanks. An empty text gives one empty line.
SHAPEKIT_EXPORT Typesetting typeset(const QString &text, const LetterForm &form, bool hasManyLines, double room);

} // namespace shapekit
