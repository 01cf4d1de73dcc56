#include "documents/savefolders.h"

#include <pagehost/filestamp.h>

#include <QtCore/QSettings>
#include <QtCore/QStringList>

namespace board {

namespace {

const QString settingsKey = QStringLiteral("saveFolders");

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
    const QStringList folders = QSettings().value(settingsKey).toStringList();
    for (const QString &folder : folders)
        pagehost::removeUnfinishedSaves(folder);
}

} // namespace board
