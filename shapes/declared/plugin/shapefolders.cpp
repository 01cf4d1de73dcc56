#include <declared/plugin/shapefolders.h>

#include <declared/core/shapekind.h>
#include <declared/reader/filelimits.h>
#include <declared/reader/shapereader.h>

#include <QtCore/QDir>
#include <QtCore/QSet>
#include <QtCore/QStandardPaths>

#include <dlfcn.h>

namespace declared {

namespace {

const QString suffix = QStringLiteral(".shape.svg");

QString pluginFolder()
{
    Dl_info info;
    const bool isFound = dladdr(reinterpret_cast<void *>(&shapeFolders), &info) != 0 && info.dli_fname;
    return isFound ? QFileInfo(QFile::decodeName(info.dli_fname)).absolutePath() : QString();
}

/// Null, with lines about it, for a file that can't be used.
SharedDeclaration readFile(const QString &path, QStringList &problems)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        problems.append(QStringLiteral("%1: %2").arg(path, file.errorString()));
        return {};
    }
    QVector<Message> messages;
    const QString name = QFileInfo(path).fileName().chopped(suffix.size());
    // One byte more than there may be, so that a file that is too large is told from one that isn't.
    const SharedDeclaration declaration = readShape(file.read(limits::fileBytes + 1), name, &messages);
    for (const Message &message : qAsConst(messages))
        if (message.severity == Message::Error)
            problems.append(message.told(path));
    return declaration;
}

} // namespace

QStringList shapeFolders()
{
    QStringList folders = qEnvironmentVariable("GLIOLOLOK_SHAPES").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    folders.append(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/shapes"));
    folders.append(pluginFolder());
    return folders;
}

std::vector<std::unique_ptr<ShapeKind>> readFolders(const QStringList &folders, QStringList &problems)
{
    std::vector<std::unique_ptr<ShapeKind>> kinds;
    QSet<QString> ids;
    for (const QString &folder : folders) {
        if (folder.isEmpty())
            continue;
        const QFileInfoList files =
            QDir(folder).entryInfoList({QLatin1Char('*') + suffix}, QDir::Files, QDir::Name);
        for (const QFileInfo &file : files) {
            const SharedDeclaration declaration = readFile(file.absoluteFilePath(), problems);
            if (!declaration)
                continue;
            // Keys of texts are in capitals.
            if (ids.contains(declaration->id.toLower())) {
                problems.append(QStringLiteral("%1: error C05: the id \"%2\" is that of another file")
                                    .arg(file.absoluteFilePath(), declaration->id));
                continue;
            }
            ids.insert(declaration->id.toLower());
            kinds.push_back(std::make_unique<ShapeKind>(declaration));
        }
    }
    return kinds;
}

} // namespace declared
