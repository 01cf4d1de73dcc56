#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtGui/QPainterPath>

namespace declared {

struct LetterForm
{
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;

    bool operator==(const LetterForm &other) const
    {
        return isBold == other.isBold && isItalic == other.isItalic && isUnderlined == other.isUnderlined;
    }
};

/// A text in lines, at one size of the font: scaled letters don't show hinting. Layout pixels.
struct Typesetting
{
    static constexpr int fontPixels = 100;

    struct Line
    {
        QString text;
        bool isRightToLeft = false;
        double width = 0;
        QPainterPath outline; ///< from the left end of its baseline
    };

    QString text;
    LetterForm form;
    bool hasManyLines = true;
    double room = 0; ///< width at which lines are broken
    QVector<Line> lines;
    double widest = 0;
    double lineHeight = 0;
    double ascent = 0;
    bool isBroken = false;    ///< has paragraphs of several lines
    bool breaksWords = false; ///< inside of a word of Latin letters

    /// Whether the same would come out at another width.
    bool isFor(double otherRoom) const;
};

Typesetting typeset(const QString &text, const LetterForm &form, bool hasManyLines, double room);

} // namespace declared
