#include "svgbase/goldencases.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QMultiMap>

#include <algorithm>

namespace {

using PathsByName = QMultiMap<QString, QString>;

PathsByName foundPaths()
{
    PathsByName paths;
    QDirIterator files(QStringLiteral(GOLDEN_DIR), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        paths.insert(files.fileName(), files.filePath());
    }
    return paths;
}

const PathsByName &paths()
{
    static const PathsByName all = foundPaths();
    return all;
}

} // namespace

QStringList goldencases::namesWith(const QString &suffix)
{
    QStringList names = paths().uniqueKeys();
    const auto endsOtherwise = [&](const QString &name) { return !name.endsWith(suffix); };
    names.erase(std::remove_if(names.begin(), names.end(), endsOtherwise), names.end());
    return names;
}

QString goldencases::caseOf(const QString &name)
{
    return name.left(name.indexOf(QLatin1Char('.')));
}

QStringList goldencases::all()
{
    QStringList cases;
    const QStringList names = namesWith(QStringLiteral(".svg"));
    for (const QString &name : names)
        if (!name.endsWith(QLatin1String(".same.svg")))
            cases.append(caseOf(name));
    return cases;
}

bool goldencases::exists(const QString &name)
{
    return paths().contains(name);
}

QByteArray goldencases::contents(const QString &name)
{
    QFile file(paths().value(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList goldencases::namesInSeveralFolders()
{
    QStringList names;
    const QStringList found = paths().uniqueKeys();
    for (const QString &name : found)
        if (paths().count(name) > 1)
            names.append(name);
    return names;
}
