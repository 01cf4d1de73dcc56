#include "output/pageexport.h"

#include <pagehost/document.h>
#include <pagehost/page.h>
#include <pagehost/pagepainter.h>

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QSaveFile>

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

void exportPage(pagehost::Page *page, const QString &path, double scale, ExportResult &result)
{
    const QByteArray data = encodedAsPng(pagehost::pageImage(page, scale));
    const QString problem =
        data.isEmpty() ? QStringLiteral("%1 would be too large a picture.").arg(path) : writeFile(path, data);
    if (problem.isEmpty())
        result.files.append(path);
    else
        result.problems.append(problem);
}

} // namespace

ExportResult exportPages(pagehost::Document *document, const QString &folder, double scale)
{
    ExportResult result;
    const QDir target(QDir(folder).absolutePath());
    if (!target.mkpath(QStringLiteral("."))) {
        result.problems.append(QStringLiteral("The folder %1 could not be made.").arg(target.path()));
        return result;
    }
    const int digits = QString::number(document->pageCount()).size();
    for (int i = 0; i < document->pageCount(); ++i) {
        const QString name = QStringLiteral("page-%1.png").arg(i + 1, digits, 10, QLatin1Char('0'));
        exportPage(document->page(i), target.filePath(name), scale, result);
    }
    return result;
}

} // namespace board
