#include <kit/templatetext.h>

#include <QtCore/QFile>

namespace shapekit {

QString templateText(const QString &resource)
{
    QFile file(resource);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll());
}

} // namespace shapekit
