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

Message errorAt(Place place, const char *code, const QString &text)
{
    return {Message::Error, QLatin1String(code), place.line, place.column, text};
}

/// Null, after telling the listener, for a file that can't be used.
SharedDeclaration readFile(const QString &path, const pagehost::MessageListener &listener)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        listener({pagehost::PluginMessage::Error, QStringLiteral("C01"), path, 0, 0, QString(),
                  QStringLiteral("the file can't be read: ") + file.errorString()});
        return {};
    }
    QVector<Message> messages;
    const QString name = QFileInfo(path).fileName().chopped(suffix.size());
    // One byte more than there may be, so that a file that is too large is told from one that isn't.
    SharedDeclaration declaration = readShape(file.read(limits::fileBytes + 1), name, &messages);
    for (const Message &message : qAsConst(messages))
        if (message.severity == Message::Error)
            listener(pluginMessage(message, path));
    return declaration;
}

} // namespace

QString installedFolder()
{
    Dl_info info;
    const bool isFound = dladdr(reinterpret_cast<void *>(&shapeFolders), &info) != 0 && info.dli_fname;
    return isFound ? QFileInfo(QFile::decodeName(info.dli_fname)).absolutePath() : QString();
}

QString userFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/shapes");
}

QStringList shapeFolders()
{
    QStringList folders = qEnvironmentVariable("GLIOLOLOK_SHAPES").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    folders.append(userFolder());
    folders.append(installedFolder());
    return folders;
}

QFileInfoList shapeFilesIn(const QString &folder)
{
    return QDir(folder).entryInfoList({QLatin1Char('*') + suffix}, QDir::Files, QDir::Name);
}

std::vector<std::unique_ptr<ShapeKind>> readFolders(const QStringList &folders, const FaultListeners &listeners,
                                                    GoodFiles &good, const QString &installed)
{
    std::vector<std::unique_ptr<ShapeKind>> kinds;
    QSet<QString> ids;
    for (const QString &folder : folders) {
        if (folder.isEmpty())
            continue;
        const QFileInfoList files = shapeFilesIn(folder);
        for (const QFileInfo &file : files) {
            const QString path = file.absoluteFilePath();
            SharedDeclaration &declaration = good[path];
            if (const SharedDeclaration read = readFile(path, listeners.ofFile))
                declaration = read;
            if (!declaration)
                continue;
            if (declaration->isSuccessor() && folder != installed) {
                listeners.ofFile(pluginMessage(
                    errorAt(declaration->layoutPlace, "C51",
                            QStringLiteral("only shapes that come with the plug-in have a type and a layout")),
                    path));
                continue;
            }
            auto kind = std::make_unique<ShapeKind>(declaration);
            // Keys of texts are in capitals.
            const QString id = kind->kind().id().toLower();
            if (ids.contains(id)) {
                listeners.ofFile(pluginMessage(
                    errorAt(declaration->idPlace, "C05",
                            QStringLiteral("the id \"%1\" is that of another file").arg(declaration->id)),
                    path));
                continue;
            }
            ids.insert(id);
            kind->setListener([path, listener = listeners.ofDrawing](const Message &message) {
                if (listener)
                    listener(pluginMessage(message, path));
            });
            kinds.push_back(std::move(kind));
        }
    }
    return kinds;
}

} // namespace declared
