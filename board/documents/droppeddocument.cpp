#include "documents/droppeddocument.h"

#include <QtCore/QMimeData>
#include <QtCore/QUrl>

namespace board {

namespace {

/// Empty unless exactly one file is dropped.
QString droppedFile(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 && urls.first().isLocalFile() ? urls.first().toLocalFile() : QString();
}

} // namespace

QString droppedDocument(const QMimeData &data)
{
    const QString path = droppedFile(data);
    const bool isDocument = path.endsWith(QLatin1String(".board"), Qt::CaseInsensitive) ||
                            path.endsWith(QLatin1String(".board.json"), Qt::CaseInsensitive);
    return isDocument ? path : QString();
}

QString droppedPdf(const QMimeData &data)
{
    const QString path = droppedFile(data);
    return isPdf(path) ? path : QString();
}

bool isPdf(const QString &path)
{
    return path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive);
}

} // namespace board
