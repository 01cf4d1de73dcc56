#include "look/desktopwishes.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>
#include <QtCore/QVariant>

namespace board {

namespace {

const QString fileOfUser = QStringLiteral("gtk-3.0/settings.ini");
const QString fileOfSystem = QStringLiteral("/etc/gtk-3.0/settings.ini");

QVariant settingOf(const QString &key)
{
    const QString user = QStandardPaths::locate(QStandardPaths::GenericConfigLocation, fileOfUser);
    for (const QString &file : {user, fileOfSystem}) {
        if (!QFileInfo(file).isFile())
            continue;
        QVariant value = QSettings(file, QSettings::IniFormat).value(QStringLiteral("Settings/") + key);
        if (value.isValid())
            return value;
    }
    return {};
}

} // namespace

bool desktopWantsHighContrast()
{
    const QString theme = qEnvironmentVariable("GTK_THEME", settingOf(QStringLiteral("gtk-theme-name")).toString());
    return theme.startsWith(QLatin1String("HighContrast"));
}

bool desktopWantsReducedMotion()
{
    const QVariant animations = settingOf(QStringLiteral("gtk-enable-animations"));
    return animations.isValid() && !animations.toBool();
}

} // namespace board
