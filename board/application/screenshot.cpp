#include "application/screenshot.h"

#include "application/demopages.h"
#include "core/commands.h"
#include "core/toolchoice.h"
#include "core/workspace.h"
#include "documents/documentcontroller.h"
#include "lessons/lessonbar.h"
#include "lessons/lessoncontroller.h"
#include "lessons/timeline.h"
#include "look/theme.h"
#include "page/pageview.h"
#include "panels/outlinepanel.h"
#include "panels/pagepanel.h"
#include "panels/properties/propertypanel.h"
#include "panels/settings/settingjson.h"
#include "panels/settings/settingspanel.h"
#include "presenting/fadingdock.h"
#include "presenting/pagepictures.h"
#include "presenting/presentation.h"
#include "presenting/presenterwindow.h"
#include "presenting/stage.h"
#include "window/drawer.h"
#include "window/mainwindow.h"

#include <pagehost/commands.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>

#include <QtCore/QDir>
#include <QtCore/QEventLoop>
#include <QtCore/QSettings>
#include <QtCore/QTextStream>
#include <QtCore/QTimer>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGraphicsEffect>
#include <QtWidgets/QGraphicsItem>
#include <QtWidgets/QGraphicsView>
#include <QtWidgets/QTextEdit>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace board {

namespace {

/// Without a desktop Qt takes a font that is larger than any desktop's.
constexpr double fontPoints = 9.5;
const QString allSituations = QStringLiteral("all");
/// Of the whole window.
constexpr QSize pictureSize(1366, 768);

/// A window of this size, in this state and theme, with so many pixels to a logical one.
struct Situation
{
    const char *name;
    const char *state;
    QSize size = pictureSize;
    Theme theme = Theme::Light;
    double pixels = 1;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

constexpr Situation situations[] = {
    {"01-first-start", "empty"},
    {"02-shapes", "shapes"},
    {"03-selected", "selected"},
    {"04-panel", "settings"},
    {"05-all-properties", "properties"},
    {"06-palette", "palette"},
    {"07-pages", "pages"},
    {"08-ink", "writing"},
    {"09-text", "text"},
    {"10-recording", "recording"},
    {"11-lesson-playing", "playing"},
    {"12-presenting", "presenting"},
    {"13-dark", "selected", pictureSize, Theme::Dark},
    {"14-dark-palette", "palette", pictureSize, Theme::Dark},
    {"15-1024x600", "settings", QSize(1024, 600)},
    {"16-200-percent", "selected", QSize(960, 540), Theme::Light, 2},
    {"17-large-buttons", "large", QSize(1920, 1080)},
    {"18-one-large-bar", "onebar", QSize(1920, 1080)},
    {"19-right-to-left", "settings", pictureSize, Theme::Light, 1, Qt::RightToLeft},
    {"20-high-contrast", "selected", pictureSize, Theme::HighContrast},
    {"21-right-to-left-palette", "palette", pictureSize, Theme::Light, 1, Qt::RightToLeft},
    {"22-dragging", "dragging"},
    {"23-outline", "outline"},
    {"24-finding", "finding"},
    {"25-presenter", "presenter"},
    {"26-pen-options", "penoptions"}};
/// Milliseconds.
constexpr int lessonStep = 450;
constexpr int lessonSteps = 5;
constexpr int chapterSteps = 2;

void useDesktopFont()
{
    QFont font = QApplication::font();
    font.setPointSizeF(fontPoints);
    QApplication::setFont(font);
}

void sendMouse(PageView *view, QEvent::Type type, const QPointF &scenePos)
{
    const QPoint pos = view->mapFromScene(scenePos);
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, pos, view->viewport()->mapToGlobal(pos), button, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &event);
}

/// Leaves the mouse down, over a shape that is being drawn.
void startDrawing(MainWindow &window, const QString &kindId)
{
    window.beginCreation(kindId);
    sendMouse(window.view(), QEvent::MouseButtonPress, {400, 220});
    for (int step = 1; step <= 10; ++step)
        sendMouse(window.view(), QEvent::MouseMove, {400 + step * 42.0, 220 + step * 26.0});
}

void waitFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void drag(PageView *view, const QPointF &from, const QPointF &to)
{
    sendMouse(view, QEvent::MouseButtonPress, from);
    for (int step = 1; step <= 10; ++step)
        sendMouse(view, QEvent::MouseMove, from + (to - from) * step / 10.0);
}

void drawBox(MainWindow &window, const QRectF &box)
{
    window.beginCreation(QStringLiteral("shapes.roundedrectangle"));
    drag(window.view(), box.topLeft(), box.bottomRight());
    sendMouse(window.view(), QEvent::MouseButtonRelease, box.bottomRight());
}

/// Leaves the mouse down, over a connector that is about to reach the second of two boxes.
void startConnecting(MainWindow &window)
{
    drawBox(window, {280, 200, 240, 130});
    drawBox(window, {760, 380, 240, 130});
    waitFor(lessonStep); // until the guides of the last drag are gone
    window.tools()->choose(Tool::Connector);
    drag(window.view(), {500, 265}, {764, 445});
}

/// How far the object is from the middle of its page, scene units.
double distanceFromMiddle(const CBaseObject *object, const pagehost::Page *page)
{
    return QLineF(object->sceneBoundingRect().center(), page->rect().center()).length();
}

CBaseObject *middleOf(pagehost::Page *page)
{
    const QVector<CBaseObject *> objects = page->objects();
    return *std::min_element(objects.begin(), objects.end(), [page](CBaseObject *one, CBaseObject *other) {
        return distanceFromMiddle(one, page) < distanceFromMiddle(other, page);
    });
}

/// Selects a shape that has been worked on, so that the history has something to show.
void changeMiddle(pagehost::Page *page)
{
    CBaseObject *object = middleOf(page);
    pagehost::rotateObjects({object}, -8);
    pagehost::moveObjects({object}, {10, -14});
    page->select({object});
}

int settingCount(CBaseObject *object)
{
    QString json;
    return object->GetSettingJson(json) ? parseSettings(json).size() : 0;
}

double areaOf(const CBaseObject *object)
{
    return object->sceneBoundingRect().width() * object->sceneBoundingRect().height();
}

/// The one with the most settings; of several such, the largest.
void selectRichest(pagehost::Page *page)
{
    const QVector<CBaseObject *> objects = page->objects();
    page->select({*std::max_element(objects.begin(), objects.end(), [](CBaseObject *one, CBaseObject *other) {
        return std::make_pair(settingCount(one), areaOf(one)) < std::make_pair(settingCount(other), areaOf(other));
    })});
}

/// Leaves the recorder running.
void recordLesson(MainWindow &window, pagehost::Page *page)
{
    window.lessons()->recordOrStop();
    for (int step = 0; step < lessonSteps; ++step) {
        if (step % chapterSteps == 0)
            window.lessons()->beginChapter();
        waitFor(lessonStep);
        CBaseObject *object = page->objects().at(step % page->objectCount());
        pagehost::moveObjects({object}, {14, -9});
        pagehost::rotateObjects({object}, 3);
    }
    waitFor(lessonStep);
}

/// At an earlier moment than the one that is shown.
void pointAtTimeLine(MainWindow &window)
{
    TimeLine *line = window.lessonBar()->timeLine();
    const QPoint place(line->width() / 4, line->height() / 2);
    QMouseEvent event(QEvent::MouseMove, place, line->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QApplication::sendEvent(line, &event);
}

/// Leaves the mouse down, over a line that is being written.
void startWriting(MainWindow &window)
{
    window.tools()->choose(Tool::Pen);
    sendMouse(window.view(), QEvent::MouseButtonPress, {400, 320});
    for (int step = 1; step <= 60; ++step)
        sendMouse(window.view(), QEvent::MouseMove, {400 + step * 6.0, 320 + 60 * std::sin(step / 6.0)});
}

/// Leaves the text unfinished.
void startText(MainWindow &window)
{
    window.tools()->choose(Tool::Text);
    sendMouse(window.view(), QEvent::MouseButtonPress, {400, 300});
    sendMouse(window.view(), QEvent::MouseButtonRelease, {400, 300});
    if (auto *editor = window.view()->findChild<QTextEdit *>())
        editor->insertPlainText(QStringLiteral("3/4 + 1/4 = 1"));
}

/// Widgets with an effect are left out of pictures.
void startPresenting(MainWindow &window)
{
    window.presentation()->start({QRect(QPoint(), window.size()), {}});
    window.presentation()->stage()->findChild<FadingDock *>()->graphicsEffect()->setEnabled(false);
}

/// Leaves the mouse down, over a shape that is being moved.
void startDragging(MainWindow &window, pagehost::Page *page)
{
    const CBaseObject *object = middleOf(page);
    const QPointF middle = object->sceneBoundingRect().center();
    drag(window.view(), middle, middle + QPointF(60, 24));
}

void pinPanel(MainWindow &window, const QWidget *part)
{
    window.panel()->setPinned(true);
    window.raisePanel(part);
    QApplication::processEvents();
}

/// States in which a page of few shapes shows more of the window's parts.
bool needsFewShapes(const QString &state)
{
    return state == QLatin1String("playing") || state == QLatin1String("palette") ||
           state == QLatin1String("presenting") || state == QLatin1String("dragging") ||
           state == QLatin1String("outline") || state == QLatin1String("presenter");
}

bool isAboutOneShape(const QString &state)
{
    return state == QLatin1String("selection") || state == QLatin1String("selected") ||
           state == QLatin1String("settings") || state == QLatin1String("properties") ||
           state == QLatin1String("large");
}

void bring(MainWindow &window, Workspace &workspace, const QString &state)
{
    pagehost::Page *page = workspace.document()->currentPage();
    const bool isAboutPanels = state == QLatin1String("settings") || state == QLatin1String("properties") ||
                               state == QLatin1String("large");
    if (state == QLatin1String("selection") && page->objectCount() > 1) {
        changeMiddle(page);
        pinPanel(window, window.settings());
    }
    if (isAboutPanels && page->objectCount() > 0)
        selectRichest(page);
    const bool isAboutOne = state == QLatin1String("selected") || state == QLatin1String("onebar");
    if (isAboutOne && page->objectCount() > 1)
        changeMiddle(page);
    if (state == QLatin1String("empty"))
        window.tools()->choose(Tool::Pen);
    if (state == QLatin1String("connecting"))
        startConnecting(window);
    if (state == QLatin1String("dragging") && page->objectCount() > 1)
        startDragging(window, page);
    if (state == QLatin1String("outline"))
        pinPanel(window, window.findChild<OutlinePanel *>());
    if (state == QLatin1String("finding"))
        window.commands()->action(Command::ReplaceText)->trigger();
    if (state == QLatin1String("penoptions"))
        window.commands()->action(Command::PenOptions)->trigger();
    if (state == QLatin1String("presenter"))
        window.presentation()->start({QRect(QPoint(), window.size()), QRect(QPoint(), window.size())});
    if (state == QLatin1String("text"))
        startText(window);
    if (state == QLatin1String("presenting"))
        startPresenting(window);
    if (state == QLatin1String("settings"))
        pinPanel(window, window.settings());
    if (state == QLatin1String("properties"))
        pinPanel(window, window.properties());
    if (state == QLatin1String("palette"))
        window.commands()->action(Command::Shapes)->trigger();
    if (state == QLatin1String("large")) {
        window.setLargeTools(true);
        window.commands()->action(Command::PageStrip)->trigger();
        pinPanel(window, window.settings());
        window.commands()->action(Command::Shapes)->trigger();
    }
    if (state == QLatin1String("onebar")) {
        window.setLargeTools(true);
        window.setDockEdge(Qt::BottomEdge);
    }
    if (state == QLatin1String("pages"))
        window.commands()->action(Command::PageStrip)->trigger();
    if (state == QLatin1String("writing"))
        startWriting(window);
    if (state == QLatin1String("recording") && page->objectCount() > 1)
        recordLesson(window, page);
    if (state == QLatin1String("playing") && page->objectCount() > 1) {
        recordLesson(window, page);
        window.lessons()->recordOrStop();
        window.lessons()->playOrPause();
        pointAtTimeLine(window);
        waitFor(3 * lessonStep + lessonStep / 4);
    }
    if (state == QLatin1String("drag") && !workspace.registry().kinds().isEmpty())
        startDrawing(window, workspace.registry().kinds().first().id);
}

} // namespace

QStringList screenshotStates()
{
    return {QStringLiteral("empty"),
            QStringLiteral("shapes"),
            QStringLiteral("selection"),
            QStringLiteral("settings"),
            QStringLiteral("properties"),
            QStringLiteral("palette"),
            QStringLiteral("pages"),
            QStringLiteral("writing"),
            QStringLiteral("drag"),
            QStringLiteral("recording"),
            QStringLiteral("playing"),
            QStringLiteral("selected"),
            QStringLiteral("text"),
            QStringLiteral("connecting"),
            QStringLiteral("presenting"),
            QStringLiteral("large"),
            QStringLiteral("onebar"),
            QStringLiteral("dragging"),
            QStringLiteral("outline"),
            QStringLiteral("finding"),
            QStringLiteral("presenter"),
            QStringLiteral("penoptions"),
            allSituations};
}

namespace {

bool save(const QPixmap &picture, const QString &file)
{
    if (picture.save(file))
        return true;
    QTextStream(stderr) << file << " could not be written.\n";
    return false;
}

/// Views keep pictures of objects in the pixels of the screen.
void setKeepsPictures(const QWidget &window, bool keeps)
{
    const QList<QGraphicsView *> views = window.findChildren<QGraphicsView *>();
    for (const QGraphicsView *view : views) {
        const QList<QGraphicsItem *> items = view->items();
        for (QGraphicsItem *item : items)
            item->setCacheMode(keeps ? QGraphicsItem::DeviceCoordinateCache : QGraphicsItem::NoCache);
    }
}

QPixmap pictureOf(QWidget *window, double pixels)
{
    QPixmap picture(window->size() * pixels);
    picture.setDevicePixelRatio(pixels);
    setKeepsPictures(*window, false);
    window->render(&picture);
    setKeepsPictures(*window, true);
    return picture;
}

/// That of the presentation while there is one; with two screens the presenter's.
QWidget *shownWindow(MainWindow &window)
{
    const Presentation *presentation = window.presentation();
    if (presentation->presenter())
        return presentation->presenter();
    return presentation->isRunning() ? presentation->stage()->window() : &window;
}

bool take(Workspace &workspace, const Situation &situation, const QString &file, const QString &document)
{
    const QString state = QLatin1String(situation.state);
    // The window as it is at first, whatever the user has made of it.
    QCoreApplication::setApplicationName(QStringLiteral("gliololok-board-picture"));
    QSettings().clear();
    const QStringList emptyStates{QStringLiteral("empty"), QStringLiteral("drag"), QStringLiteral("writing"),
                                  QStringLiteral("text"), QStringLiteral("connecting")};
    if (document.isEmpty() && !emptyStates.contains(state)) {
        fillWithDemo(workspace);
        // The last page shows few shapes, and the selected one large.
        if (isAboutOneShape(state) || needsFewShapes(state))
            workspace.document()->setCurrentIndex(workspace.document()->pageCount() - 1);
    }
    useDesktopFont();
    MainWindow window(&workspace);
    window.resize(situation.size);
    window.show();
    QApplication::processEvents();
    if (!document.isEmpty())
        window.documents()->openNow(document);
    bring(window, workspace, state);
    // Parts that have just opened are laid out first, then fill themselves.
    QApplication::processEvents();
    window.pages()->thumbnails()->finish();
    const QList<PagePictures *> pictures = shownWindow(window)->findChildren<PagePictures *>();
    for (PagePictures *one : pictures)
        one->thumbnails()->finish();
    QApplication::processEvents();
    QWidget *shown = shownWindow(window);
    shown->setFixedSize(situation.size);
    QApplication::processEvents();
    return save(pictureOf(shown, situation.pixels), file);
}

bool takeAll(Workspace &workspace, const QString &folder)
{
    if (!QDir().mkpath(folder)) {
        QTextStream(stderr) << folder << " could not be made.\n";
        return false;
    }
    bool areTaken = true;
    for (const Situation &situation : situations) {
        applyLargeSizes(false);
        applyTheme(situation.theme);
        QApplication::setLayoutDirection(situation.direction);
        workspace.replaceDocument(std::make_unique<pagehost::Document>());
        const QString file = QDir(folder).filePath(QLatin1String(situation.name) + QStringLiteral(".png"));
        areTaken &= take(workspace, situation, file, {});
    }
    return areTaken;
}

} // namespace

bool takeScreenshot(Workspace &workspace, const QString &state, const QString &file, const QString &document)
{
    if (state == allSituations)
        return takeAll(workspace, file);
    const QByteArray name = state.toLatin1();
    Situation situation{"", name.constData()};
    situation.theme = currentTheme();
    return take(workspace, situation, file, document);
}

} // namespace board
