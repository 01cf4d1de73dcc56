#include "shape/drawing.h"

#include <declared/core/pluginmessage.h>
#include <declared/reader/filelimits.h>
#include <declared/reader/plaindrawing.h>

#include <QtCore/QFile>

namespace shapetool {

DrawnShape shapeOfDrawing(const QString &path, const QString &name, const QString &group)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {QStringLiteral("%1 can't be read: %2").arg(path, file.errorString()), {}};
    QVector<declared::Message> messages;
    // One byte more than there may be, so that the reader refuses a file that is too large.
    const QByteArray text = declared::declarationOfDrawing(file.read(declared::limits::fileBytes + 1),
                                                           {{}, {{QStringLiteral("en"), name}}, group}, &messages);
    if (text.isEmpty())
        return {declared::pluginMessage(messages.value(0), path).told(), {}};
    return {{}, text};
}

} // namespace shapetool
