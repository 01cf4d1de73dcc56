#include "documents/freenames.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace board {

const QString binarySuffix = QStringLiteral("board");
const QString jsonSuffix = QStringLiteral("board.json");

QString formatSuffixOf(const QString &file)
{
    for (const QString &suffix : {jsonSuffix, binarySuffix})
        if (file.endsWith(QLatin1Char('.') + suffix, Qt::CaseInsensitive))
            return file.right(suffix.size() + 1);
    return {};
}

QString freeNameBeside(const QString &file, const QString &pattern)
{
    const QFileInfo info(file);
    const QString suffix = formatSuffixOf(info.fileName());
    const QString stem = info.fileName().left(info.fileName().size() - suffix.size());
    QString name = pattern.arg(stem);
    const auto path = [&](const QString &candidate) { return info.dir().absoluteFilePath(candidate + suffix); };
    for (int number = 2; QFileInfo::exists(path(name)); ++number)
        name = QStringLiteral("%1 %2").arg(pattern.arg(stem), QString::number(number));
    return path(name);
}

} // namespace board
