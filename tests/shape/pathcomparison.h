#pragma once

#include <QtCore/QString>

/// Holds the library's text operations against the literal ones, on texts that end where their memory ends, so that
/// a sanitizer sees a read past the end. Each gives an empty text when everything agrees to the last bit, else what
/// does not.
namespace comparison {

/// Every number that is read from the text one after the other, the text as a list, and that list written again.
QString numbersDifference(const QString &text);

/// The values that the edits of a path take besides the path.
struct Edit
{
    double dx = 0; ///< also by how much widths grow
    double dy = 0; ///< also by how much heights grow
    int from = 0;
};

/// The five edits of the text as a path.
QString stretchingDifference(const QString &text, const Edit &edit);
/// Those that read it once, for long texts.
QString singleStretchingDifference(const QString &text, const Edit &edit);

} // namespace comparison
