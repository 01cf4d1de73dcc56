#pragma once

#include <QtCore/QStringList>

namespace pagehost {
class Document;
} // namespace pagehost

namespace board {

struct ExportResult
{
    QStringList files;    ///< absolute paths of the pictures written, in page order
    QStringList problems; ///< what could not be written, a sentence each, in English
};

/// Paints every page at `scale` pixels per scene unit into page-1.png, page-2.png ... (as many digits as the last
/// number has) in `folder`, which is made when it does not exist. Files of these names are replaced.
ExportResult exportPages(pagehost::Document *document, const QString &folder, double scale);

} // namespace board
