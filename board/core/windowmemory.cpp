#include "core/windowmemory.h"

#include "look/desktopwishes.h"

#include <QtCore/QSettings>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QMainWindow>

namespace board {

namespace {

const QString placeKey = QStringLiteral("window/place");
const QString pinnedKeys[] = {QStringLiteral("window/panelPinned"), QStringLiteral("window/palettePinned"),
                              QStringLiteral("window/pagesShown")};
const QString dockKey = QStringLiteral("window/dock");
const QString largeToolsKey = QStringLiteral("window/largeTools");
const QString largeToolsOfferedKey = QStringLiteral("window/largeToolsOffered");
const QString darkKey = QStringLiteral("window/dark");
const QString highContrastKey = QStringLiteral("window/highContrast");
const QString reducedMotionKey = QStringLiteral("window/reducedMotion");
const QString snappingKey = QStringLiteral("window/snapping");
const QString fingersDrawKey = QStringLiteral("window/fingersDraw");
const QString gridKey = QStringLiteral("window/grid");
/// Title bar and borders, which the window manager adds, logical pixels.
constexpr QSize frameRoom(16, 40);

QSize roomOnScreen()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableSize() - frameRoom : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

} // namespace

void restoreWindow(QMainWindow *window)
{
    const QSettings settings;
    if (window->restoreGeometry(settings.value(placeKey).toByteArray()))
        return;
    window->resize(window->size().boundedTo(roomOnScreen()));
}

void rememberWindow(const QMainWindow *window)
{
    QSettings settings;
    settings.setValue(placeKey, window->saveGeometry());
}

Qt::Edge rememberedDockEdge()
{
    const int edge = QSettings().value(dockKey).toInt();
    for (const Qt::Edge known : {Qt::TopEdge, Qt::LeftEdge, Qt::RightEdge, Qt::BottomEdge})
        if (known == edge)
            return known;
    return QGuiApplication::isRightToLeft() ? Qt::RightEdge : Qt::LeftEdge;
}

void rememberDockEdge(Qt::Edge edge)
{
    QSettings().setValue(dockKey, static_cast<int>(edge));
}

bool remembersLargeTools()
{
    return QSettings().value(largeToolsKey).toBool();
}

void rememberLargeTools(bool large)
{
    QSettings().setValue(largeToolsKey, large);
}

bool remembersOfferOfLargeTools()
{
    return QSettings().value(largeToolsOfferedKey).toBool();
}

void rememberOfferOfLargeTools()
{
    QSettings().setValue(largeToolsOfferedKey, true);
}

bool remembersPinned(Pane pane)
{
    return QSettings().value(pinnedKeys[int(pane)]).toBool();
}

void rememberPinned(Pane pane, bool pinned)
{
    QSettings().setValue(pinnedKeys[int(pane)], pinned);
}

bool remembersDarkColors()
{
    return QSettings().value(darkKey).toBool();
}

void rememberDarkColors(bool dark)
{
    QSettings().setValue(darkKey, dark);
}

bool remembersHighContrast()
{
    const QVariant chosen = QSettings().value(highContrastKey);
    return chosen.isValid() ? chosen.toBool() : desktopWantsHighContrast();
}

void rememberHighContrast(bool high)
{
    QSettings().setValue(highContrastKey, high);
}

bool remembersReducedMotion()
{
    const QVariant chosen = QSettings().value(reducedMotionKey);
    return chosen.isValid() ? chosen.toBool() : desktopWantsReducedMotion();
}

void rememberReducedMotion(bool reduced)
{
    QSettings().setValue(reducedMotionKey, reduced);
}

bool remembersSnapping()
{
    return QSettings().value(snappingKey, true).toBool();
}

void rememberSnapping(bool on)
{
    QSettings().setValue(snappingKey, on);
}

bool remembersFingersDraw()
{
    return QSettings().value(fingersDrawKey).toBool();
}

void rememberFingersDraw(bool draw)
{
    QSettings().setValue(fingersDrawKey, draw);
}

bool remembersGrid()
{
    return QSettings().value(gridKey).toBool();
}

void rememberGrid(bool shown)
{
    QSettings().setValue(gridKey, shown);
}

} // namespace board
