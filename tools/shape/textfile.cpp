#include "shape/textfile.h"

#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QSaveFile>

namespace shapetool {

QString writeNewFile(const QString &path, const QByteArray &bytes)
{
    if (QFileInfo::exists(path))
        return QStringLiteral("%1 is there already").arg(path);
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return isWritten ? QString() : QStringLiteral("%1 can't be written: %2").arg(path, file.errorString());
}

bool isShapeName(const QString &name)
{
    static const QRegularExpression form(QStringLiteral("\\A[A-Za-z][A-Za-z0-9]*\\z"));
    return form.match(name).hasMatch();
}

} // namespace shapetool
