#pragma once

#include <QtCore/QStringList>

namespace pagehost {
class Document;
class ObjectRegistry;
class Page;
} // namespace pagehost

namespace board {

enum class PageFormat { Png, Svg };

struct ExportFormat
{
    PageFormat format = PageFormat::Png;
    double scale = 1; ///< pixels per scene unit of pictures; drawings have no pixels
};

struct ExportResult
{
    QStringList files;    ///< absolute paths of the files written, in page order
    QStringList problems; ///< what could not be written, a sentence each, in English
};

/// The files that the pages go to, absolute paths in page order: page-1.png or page-1.svg, page-2 ... (as many
/// digits as the last number has) in `folder`.
QStringList exportFiles(const pagehost::Document *document, const QString &folder, PageFormat format);

/// Writes every page into its file of exportFiles(). The folder is made when it does not exist; files that exist
/// are replaced. A page with an object that has no look as SVG can't become a drawing.
ExportResult exportPages(pagehost::Document *document, const pagehost::ObjectRegistry &registry,
                         const QString &folder, const ExportFormat &format);

/// Writes a picture of the page, `longestSide` pixels in the longer direction, as PNG into `path`, which is
/// replaced. The result is a sentence in English about what went wrong, empty if nothing.
QString writeThumbnail(pagehost::Page *page, const QString &path, int longestSide);

} // namespace board
