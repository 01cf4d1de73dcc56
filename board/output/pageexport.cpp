#include "output/pageexport.h"

#include "output/objectsimage.h"
#include "output/pagedrawing.h"
#include "output/pdffile.h"
#include "output/svgdrawing.h"

#include <pagehost/document.h>
#include <pagehost/page.h>
#include <pagehost/pagepainter.h>

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtGui/QPainter>

namespace board {

namespace {

QByteArray encodedAsPng(const QImage &picture)
{
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    return picture.save(&buffer, "PNG") ? data : QByteArray();
}

/// Empty when all went well. On a full disk a write may take less than it was given and yet be committed, so the
/// count is looked at.
QString writeFile(const QString &path, const QByteArray &data)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size() || !file.flush() || !file.commit())
        return QStringLiteral("%1 could not be written: %2").arg(path, file.errorString());
    return {};
}

const QString noLook = QStringLiteral("%1 was not written: an object on the page has no look as SVG.");
const QString tooLarge = QStringLiteral("%1 would be too large a picture.");
const QString nothingToSee = QStringLiteral("%1 was not written: there is nothing to see.");
const QString pageGone = QStringLiteral("%1 is not complete: a page was deleted before it was written.");

} // namespace

ExportContent allPages(const pagehost::Document *document)
{
    ExportContent content;
    for (int i = 0; i < document->pageCount(); ++i)
        content.pages.append(document->page(i));
    return content;
}

QString suffixOf(PageFormat format)
{
    switch (format) {
    case PageFormat::Svg:
        return QStringLiteral("svg");
    case PageFormat::Pdf:
        return QStringLiteral("pdf");
    default:
        return QStringLiteral("png");
    }
}

QStringList exportFiles(const pagehost::Document *document, const QString &folder, PageFormat format)
{
    const QDir target(QDir(folder).absolutePath());
    if (format == PageFormat::Pdf)
        return {target.filePath(QStringLiteral("pages.pdf"))};
    const int digits = QString::number(document->pageCount()).size();
    QStringList files;
    for (int i = 1; i <= document->pageCount(); ++i)
        files.append(target.filePath(
            QStringLiteral("page-%1.%2").arg(i, digits, 10, QLatin1Char('0')).arg(suffixOf(format))));
    return files;
}

ExportJob::ExportJob(const ExportContent &content, const QStringList &files,
                     const pagehost::ObjectRegistry &registry, const ExportFormat &format)
    : m_content(content)
    , m_files(files)
    , m_registry(registry)
    , m_format(format)
{
    if (format.format == PageFormat::Pdf)
        m_pdf = std::make_unique<PdfFile>(QFileInfo(files.value(0)).completeBaseName());
}

ExportJob::~ExportJob() = default;

int ExportJob::stepCount() const
{
    return m_content.objects.isEmpty() ? m_content.pages.size() : 1;
}

void ExportJob::step()
{
    if (isDone())
        return;
    const int index = m_done++;
    if (!m_content.objects.isEmpty())
        return exportObjects(m_files.first());
    pagehost::Page *page = m_content.pages[index];
    const QString path = m_files[m_pdf ? 0 : index];
    if (!page)
        m_result.problems.append(pageGone.arg(path));
    else if (m_pdf)
        addToPdf(page);
    else
        exportPage(page, path);
    if (m_pdf && isDone())
        finishPdf();
}

void ExportJob::exportPage(pagehost::Page *page, const QString &path)
{
    if (m_format.format == PageFormat::Svg)
        write(path, svgOfPage(page, m_registry), noLook);
    else
        write(path, encodedAsPng(pagehost::pageImage(page, m_format.scale)), tooLarge);
}

void ExportJob::exportObjects(const QString &path)
{
    const ObjectsImage picture = imageOf(m_content.objects, m_format.scale);
    if (picture.image.isNull())
        return m_result.problems.append(nothingToSee.arg(path));
    switch (m_format.format) {
    case PageFormat::Png:
        return write(path, encodedAsPng(picture.image), tooLarge);
    case PageFormat::Svg:
        return write(path, svgOf(m_content.objects, picture.area, m_registry), noLook);
    case PageFormat::Pdf:
        m_pdf->add(picture.area.size(), [&](QPainter *painter, const QRectF &target) {
            drawObjects(m_content.objects, picture.area, m_registry, painter, target);
        });
        return finishPdf();
    }
}

void ExportJob::addToPdf(pagehost::Page *page)
{
    m_pdf->add(page->size(),
               [&](QPainter *painter, const QRectF &target) { drawPage(page, m_registry, painter, target); });
}

void ExportJob::finishPdf()
{
    write(m_files.first(), m_pdf->finish(), nothingToSee);
}

void ExportJob::write(const QString &path, const QByteArray &data, const QString &reasonIfEmpty)
{
    const QString problem = data.isEmpty() ? reasonIfEmpty.arg(path) : writeFile(path, data);
    if (problem.isEmpty())
        m_result.files.append(path);
    else
        m_result.problems.append(problem);
}

ExportResult exportPages(pagehost::Document *document, const pagehost::ObjectRegistry &registry,
                         const QString &folder, const ExportFormat &format)
{
    const QDir target(QDir(folder).absolutePath());
    if (!target.mkpath(QStringLiteral(".")))
        return {{}, {QStringLiteral("The folder %1 could not be made.").arg(target.path())}};
    ExportJob job(allPages(document), exportFiles(document, folder, format.format), registry, format);
    while (!job.isDone())
        job.step();
    return job.result();
}

QString writeThumbnail(pagehost::Page *page, const QString &path, int longestSide)
{
    const QSizeF size = page->size().scaled(longestSide, longestSide, Qt::KeepAspectRatio);
    QImage picture(size.toSize().expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    pagehost::paintPage(page, &painter, picture.rect());
    painter.end();
    return writeFile(path, encodedAsPng(picture));
}

} // namespace board
