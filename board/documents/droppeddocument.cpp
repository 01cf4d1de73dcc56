#include "documents/droppeddocument.h"

#include <QtCore/QMimeData>
#include <QtCore/QUrl>

namespace board {

QString droppedDocument(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.first().isLocalFile())
        return {};
    const QString path = urls.first().toLocalFile();
    const bool isDocument = path.endsWith(QLatin1String(".board"), Qt::CaseInsensitive) ||
                            path.endsWith(QLatin1String(".board.json"), Qt::CaseInsensitive);
    return isDocument ? path : QString();
}

} // namespace board
