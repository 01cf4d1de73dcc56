// Surfaces over the page and the shadows that they cast on it.

#include <board/boarddriver.h>

#include <core/toolchoice.h>
#include <look/surface.h>
#include <look/surfaceshadow.h>
#include <look/theme.h>
#include <page/pageview.h>
#include <window/drawer.h>
#include <window/mainwindow.h>

#include <support/listed.h>
#include <support/virtualtime.h>

#include <QtCore/QSettings>
#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QMenu>

using namespace boardtest;
using board::SurfaceShadow;
using board::Theme;

namespace {

/// Where the pictures have their surface.
const QRect place(40, 40, 100, 60);

/// The shadow alone, on white.
QImage shadowPicture(const QRect &surface = place)
{
    QImage picture(220, 160, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    board::paintSurfaceShadow(&painter, surface);
    return picture;
}

int shadeAt(const QImage &picture, const QPoint &pos)
{
    return 255 - qRed(picture.pixel(pos));
}

/// The one that is seen around the surface; null without one.
SurfaceShadow *shadowAround(const QWidget &under, const QRect &surface)
{
    for (SurfaceShadow *shadow : support::listed(under.findChildren<SurfaceShadow *>()))
        if (shadow->isVisible() && shadow->geometry().marginsRemoved(board::surfaceShadowMargins()) == surface)
            return shadow;
    return nullptr;
}

SurfaceShadow *shadowOf(const QWidget &surface)
{
    return shadowAround(*surface.parentWidget(), surface.geometry());
}

bool isBelow(QWidget *shadow, QWidget *surface)
{
    const QObjectList &order = surface->parentWidget()->children();
    return order.indexOf(shadow) == order.indexOf(surface) - 1;
}

} // namespace

class TestSurfaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useOwnFolders(); }
    void init() { QSettings().clear(); }
    void cleanup() { board::applyTheme(Theme::Light); }
    void shadowIsSoftAndLiesBelow();
    void shadowIsDarkerInDarkColours();
    void highContrastHasNoShadow();
    void smallSurfacesHaveWholeShadows();
    void barAtTheSelectionCastsAShadow();
    void shelfCastsAShadow();
    void paletteCastsAShadowUntilItIsPinned();
    void finderCastsAShadowAndHasRoundCorners();
    void menusCastAShadowWhileTheyAreOpen();
    void shadowsTakeNoClicks();
};

/// 16 % of black in all, and half of that where the shadow's own edge is, 4 pixels below the surface's.
void TestSurfaces::shadowIsSoftAndLiesBelow()
{
    const QImage picture = shadowPicture();
    QVector<int> below;
    for (const int distance : {0, 3, 4, 8, 16, 23})
        below.append(shadeAt(picture, {90, place.bottom() + 1 + distance}));
    QCOMPARE(below, (QVector<int>{27, 22, 19, 12, 2, 0}));
    QVector<int> above;
    for (const int distance : {0, 4, 8, 15})
        above.append(shadeAt(picture, {90, place.top() - 1 - distance}));
    QCOMPARE(above, (QVector<int>{12, 6, 2, 0}));
    for (const int distance : {0, 4, 8, 19})
        QCOMPARE(shadeAt(picture, {place.left() - 1 - distance, 74}),
                 shadeAt(picture, {place.right() + 1 + distance, 74}));
    QCOMPARE(shadeAt(picture, {90, place.bottom() + 1 + 24}), 0);
}

void TestSurfaces::shadowIsDarkerInDarkColours()
{
    board::applyTheme(Theme::Dark);
    QCOMPARE(shadeAt(shadowPicture(), {90, place.bottom() + 1 + 3}), 67);
}

void TestSurfaces::highContrastHasNoShadow()
{
    board::applyTheme(Theme::HighContrast);
    QImage white(220, 160, QImage::Format_RGB32);
    white.fill(Qt::white);
    QCOMPARE(shadowPicture(), white);
}

/// As dark beside their corners as larger ones.
void TestSurfaces::smallSurfacesHaveWholeShadows()
{
    const QImage large = shadowPicture();
    const QImage small = shadowPicture({40, 40, 24, 24});
    for (const QPoint &pos : {QPoint(39, 39), QPoint(35, 42), QPoint(42, 30)})
        QCOMPARE(shadeAt(small, pos), shadeAt(large, pos));
}

void TestSurfaces::barAtTheSelectionCastsAShadow()
{
    BoardDriver board;
    board.window().panel()->setOpen(false);
    board.draw(rectangle, {500, 300}, {700, 420});
    support::deliverEvents();
    QWidget *bar = board.view().findChild<QWidget *>("styleBar");
    QVERIFY(bar->isVisible());
    SurfaceShadow *shadow = shadowOf(*bar);
    QVERIFY(shadow);
    QVERIFY(isBelow(shadow, bar));
    board.page().select({});
    support::deliverEvents();
    QVERIFY(!shadow->isVisible());
}

void TestSurfaces::shelfCastsAShadow()
{
    BoardDriver board;
    board.window().tools()->choose(board::Tool::Pen);
    QWidget *shelf = board.window().findChild<QWidget *>("shelf");
    QVERIFY(shelf->isVisible());
    SurfaceShadow *shadow = shadowOf(*shelf);
    QVERIFY(shadow);
    QVERIFY(isBelow(shadow, shelf));
    board.window().tools()->choose(board::Tool::Select);
    QVERIFY(!shadow->isVisible());
}

void TestSurfaces::paletteCastsAShadowUntilItIsPinned()
{
    BoardDriver board;
    board.key(Qt::Key_S);
    board::Drawer *palette = board.window().palette();
    QVERIFY(palette->isVisible());
    SurfaceShadow *shadow = shadowOf(*palette);
    QVERIFY(shadow);
    QVERIFY(isBelow(shadow, palette));
    palette->setPinned(true);
    QVERIFY(!shadow->isVisible());
    palette->setPinned(false);
    QCOMPARE(shadowOf(*palette), shadow);
}

/// In the window below, since not all desktops let windows be seen through.
void TestSurfaces::finderCastsAShadowAndHasRoundCorners()
{
    BoardDriver board;
    board.key(Qt::Key_K, Qt::ControlModifier);
    QWidget *popup = QApplication::activePopupWidget();
    QVERIFY(popup);
    const QRect inWindow(board.window().mapFromGlobal(popup->pos()), popup->size());
    const QPointer<SurfaceShadow> shadow = shadowAround(board.window(), inWindow);
    QVERIFY(shadow);
    QVERIFY(!popup->mask().contains(QPoint(0, 0)));
    QVERIFY(popup->mask().contains(QPoint(10, 0)) && popup->mask().contains(popup->rect().center()));
    popup->close();
    support::deliverEvents();
    QVERIFY(!shadow);
}

void TestSurfaces::menusCastAShadowWhileTheyAreOpen()
{
    BoardDriver board;
    QMenu menu(&board.window());
    menu.addAction("One");
    QMenu *more = menu.addMenu("More");
    more->addAction("Two");
    menu.popup(board.window().mapToGlobal({200, 200}));
    QVERIFY(shadowAround(board.window(), QRect(QPoint(200, 200), menu.size())));
    QVERIFY(!menu.mask().contains(QPoint(0, 0)) && menu.mask().contains(QPoint(12, 0)));
    more->popup(board.window().mapToGlobal({400, 220}));
    QVERIFY(shadowAround(board.window(), QRect(QPoint(400, 220), more->size())));
    more->close();
    menu.close();
    support::deliverEvents();
    QVERIFY(!shadowAround(board.window(), QRect(QPoint(200, 200), menu.size())));
}

void TestSurfaces::shadowsTakeNoClicks()
{
    BoardDriver board;
    board.key(Qt::Key_S);
    const board::Drawer &palette = *board.window().palette();
    const QPoint beside(palette.geometry().right() + 6, palette.geometry().center().y());
    QCOMPARE(board.window().childAt(palette.parentWidget()->mapTo(&board.window(), beside)),
             board.view().viewport());
}

QTEST_MAIN(TestSurfaces)
#include "test_surfaces.moc"
