#include "output/pageexport.h"

#include "output/svgdrawing.h"

#include <pagehost/document.h>
#include <pagehost/page.h>
#include <pagehost/pagepainter.h>

#include <QtCore/QBuffer>
#include <QtCore/QDir>
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

void exportPage(pagehost::Page *page, const pagehost::ObjectRegistry &registry, const QString &path,
                const ExportFormat &format, ExportResult &result)
{
    const bool isSvg = format.format == PageFormat::Svg;
    const QByteArray data =
        isSvg ? svgOfPage(page, registry) : encodedAsPng(pagehost::pageImage(page, format.scale));
    const QString reason = isSvg ? QStringLiteral("%1 was not written: an object on the page has no look as SVG.")
                                 : QStringLiteral("%1 would be too large a picture.");
    const QString problem = data.isEmpty() ? reason.arg(path) : writeFile(path, data);
    if (problem.isEmpty())
        result.files.append(path);
    else
        result.problems.append(problem);
}

} // namespace

QStringList exportFiles(const pagehost::Document *document, const QString &folder, PageFormat format)
{
    const QDir target(QDir(folder).absolutePath());
    const QString suffix = format == PageFormat::Svg ? QStringLiteral("svg") : QStringLiteral("png");
    const int digits = QString::number(document->pageCount()).size();
    QStringList files;
    for (int i = 1; i <= document->pageCount(); ++i)
        files.append(
            target.filePath(QStringLiteral("page-%1.%2").arg(i, digits, 10, QLatin1Char('0')).arg(suffix)));
    return files;
}

ExportResult exportPages(pagehost::Document *document, const pagehost::ObjectRegistry &registry,
                         const QString &folder, const ExportFormat &format)
{
    ExportResult result;
    const QDir target(QDir(folder).absolutePath());
    if (!target.mkpath(QStringLiteral("."))) {
        result.problems.append(QStringLiteral("The folder %1 could not be made.").arg(target.path()));
        return result;
    }
    const QStringList files = exportFiles(document, folder, format.format);
    for (int i = 0; i < files.size(); ++i)
        exportPage(document->page(i), registry, files[i], format, result);
    return result;
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
