#include "documents/recentfiles.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSettings>

#include <algorithm>

namespace board {

namespace {

const QString settingsKey = QStringLiteral("recentFiles");

QStringList stored()
{
    return QSettings().value(settingsKey).toStringList();
}

} // namespace

QStringList RecentFiles::files() const
{
    QStringList existing;
    const QStringList all = stored();
    std::copy_if(all.begin(), all.end(), std::back_inserter(existing),
                 [](const QString &file) { return QFileInfo::exists(file); });
    return existing;
}

void RecentFiles::add(const QString &file)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    QStringList all = stored();
    if (!all.isEmpty() && all.first() == path)
        return;
    all.removeAll(path);
    all.prepend(path);
    QSettings().setValue(settingsKey, QStringList(all.mid(0, most)));
}

void RecentFiles::remove(const QString &file)
{
    QStringList all = stored();
    all.removeAll(QFileInfo(file).absoluteFilePath());
    QSettings().setValue(settingsKey, all);
}

void RecentFiles::clear()
{
    QSettings().remove(settingsKey);
}

} // namespace board
