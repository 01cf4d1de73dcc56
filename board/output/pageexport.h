#pragma once

#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <memory>

class CBaseObject;

namespace pagehost {
class Document;
class ObjectRegistry;
class Page;
} // namespace pagehost

namespace board {

class PdfFile;

enum class PageFormat { Png, Svg, Pdf };

struct ExportFormat
{
    PageFormat format = PageFormat::Png;
    double scale = 1; ///< pixels per scene unit of pictures; the others have no pixels
};

struct ExportResult
{
    QStringList files;    ///< absolute paths of the files written, in page order
    QStringList problems; ///< what could not be written, a sentence each, in English
};

/// Pages to write, or objects of one page alone on nothing.
struct ExportContent
{
    QVector<QPointer<pagehost::Page>> pages;
    QVector<CBaseObject *> objects; ///< bottom to top; in place of the pages unless empty
};

/// All pages of the document.
ExportContent allPages(const pagehost::Document *document);
/// "png", "svg" or "pdf".
QString suffixOf(PageFormat format);
/// The files that the pages go to, absolute paths in page order: page-1.png or page-1.svg, page-2 ... (as many
/// digits as the last number has) in `folder`; for PDF the one file pages.pdf.
QStringList exportFiles(const pagehost::Document *document, const QString &folder, PageFormat format);

/// Writes content in steps, a page or all objects each, so that a program can answer its user in between. Files
/// that exist are replaced. Pages that are deleted before their step are a problem of the result.
class ExportJob
{
public:
    /// `files` are one for each page or for the objects; of PDF one for all. The registry must outlive this, and
    /// objects must live until the first step.
    ExportJob(const ExportContent &content, const QStringList &files, const pagehost::ObjectRegistry &registry,
              const ExportFormat &format);
    ~ExportJob();

    int stepCount() const;
    int stepsDone() const { return m_done; }
    bool isDone() const { return m_done == stepCount(); }
    /// Writes the next one. A PDF is written with the last.
    void step();
    const ExportResult &result() const { return m_result; }

private:
    void exportPage(pagehost::Page *page, const QString &path);
    void exportObjects(const QString &path);
    void addToPdf(pagehost::Page *page);
    void finishPdf();
    void write(const QString &path, const QByteArray &data, const QString &reasonIfEmpty);

    ExportContent m_content;
    QStringList m_files;
    const pagehost::ObjectRegistry &m_registry;
    ExportFormat m_format;
    int m_done = 0;
    std::unique_ptr<PdfFile> m_pdf;
    ExportResult m_result;
};

/// Writes every page into its file of exportFiles(). The folder is made when it does not exist; files that exist
/// are replaced. A page with an object that has no look as SVG can't become a drawing.
ExportResult exportPages(pagehost::Document *document, const pagehost::ObjectRegistry &registry,
                         const QString &folder, const ExportFormat &format);

/// Writes a picture of the page, `longestSide` pixels in the longer direction, as PNG into `path`, which is
/// replaced. The result is a sentence in English about what went wrong, empty if nothing.
QString writeThumbnail(pagehost::Page *page, const QString &path, int longestSide);

} // namespace board
