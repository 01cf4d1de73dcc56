#include "documents/savefolders.h"

#include <pagehost/filestamp.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>
#include <QtCore/QSettings>
#include <QtCore/QStringList>

namespace board {

namespace {

const QString settingsKey = QStringLiteral("saveFolders");

/// Qt writes the settings beside their file, too, under its name with a dot and six letters behind it.
void tidySettings()
{
    const QFileInfo settings(QSettings().fileName());
    QLockFile lock(settings.filePath() + QStringLiteral(".lock")); // which Qt takes while it writes
    if (!lock.tryLock(0))
        return;
    const QDir folder = settings.dir();
    const QStringList remains =
        folder.entryList({settings.fileName() + QStringLiteral(".??????")}, QDir::Files | QDir::Hidden);
    for (const QString &name : remains)
        QFile::remove(folder.filePath(name));
}

} // namespace

void SaveFolders::add(const QString &folder)
{
    QStringList folders = QSettings().value(settingsKey).toStringList();
    if (!folders.isEmpty() && folders.first() == folder)
        return;
    folders.removeAll(folder);
    folders.prepend(folder);
    QSettings settings;
    settings.setValue(settingsKey, QStringList(folders.mid(0, most)));
    settings.sync();
}

void SaveFolders::tidy()
{
    tidySettings();
    const QStringList folders = QSettings().value(settingsKey).toStringList();
    for (const QString &folder : folders)
        pagehost::removeUnfinishedSaves(folder);
}

} // namespace board
