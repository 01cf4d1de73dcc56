// High contrast and reduced motion: their colours and times, and who asks for them.

#include <board/boarddriver.h>

#include <core/actions.h>
#include <core/commands.h>
#include <core/windowmemory.h>
#include <look/contrast.h>
#include <look/desktopwishes.h>
#include <look/motion.h>
#include <look/theme.h>
#include <presenting/lasertrail.h>
#include <window/mainwindow.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>

using namespace boardtest;
using board::Theme;
using board::ThemeColors;

namespace {

QPalette paletteOf(Qt::GlobalColor ground, Qt::GlobalColor letters, Qt::GlobalColor chosen)
{
    QPalette palette(letters, ground, ground, ground, ground, letters, letters, ground, ground);
    palette.setColor(QPalette::Highlight, chosen);
    palette.setColor(QPalette::HighlightedText, ground);
    return palette;
}

void writeDesktopSettings(const QByteArray &lines)
{
    const QString folder = QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME")) + "/gtk-3.0";
    QVERIFY(QDir().mkpath(folder));
    QFile file(folder + "/settings.ini");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Settings]\n" + lines);
}

} // namespace

class TestWishes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useOwnFolders(); }
    void init();
    void cleanup();
    void highContrastHasTheColoursOfTheDesktop();
    void coloursThatCanHardlyBeToldAreReplaced();
    void nothingShinesThrough();
    void fieldsHaveEdgesOfTwoPixels();
    void theDesktopIsFollowed();
    void theUserGoesBeforeTheDesktop();
    void highContrastIsSwitchedInTheWindow();
    void reducedMotionTakesNoTime();
    void reducedMotionIsSwitchedInTheWindow();
};

void TestWishes::init()
{
    qunsetenv("GTK_THEME");
    QSettings().clear();
    writeDesktopSettings({});
}

void TestWishes::cleanup()
{
    board::applyTheme(Theme::Light);
    board::setMotionReduced(false);
}

void TestWishes::highContrastHasTheColoursOfTheDesktop()
{
    const ThemeColors colors = board::highContrastColors(paletteOf(Qt::black, Qt::white, Qt::yellow));
    for (const QColor &ground : {colors.bar, colors.surface, colors.desk, colors.field, colors.soft, colors.hover})
        QCOMPARE(ground, QColor(Qt::black));
    for (const QColor &line : {colors.text, colors.faint, colors.border, colors.control})
        QCOMPARE(line, QColor(Qt::white));
    QCOMPARE(colors.accent, QColor(Qt::yellow));
    QCOMPARE(colors.onAccent, QColor(Qt::black));
    for (const QColor &sign : {colors.bad, colors.good, colors.warn, colors.record})
        QVERIFY(board::contrastOf(sign, colors.bar) >= 7);
    const ThemeColors light = board::highContrastColors(paletteOf(Qt::white, Qt::black, Qt::darkBlue));
    QCOMPARE(light.accent, QColor(Qt::darkBlue));
    for (const QColor &sign : {light.bad, light.good, light.warn, light.record})
        QVERIFY(board::contrastOf(sign, light.bar) >= 7);
}

void TestWishes::coloursThatCanHardlyBeToldAreReplaced()
{
    // Grey on a lighter grey, with a pale accent.
    const ThemeColors colors = board::highContrastColors(paletteOf(Qt::lightGray, Qt::gray, Qt::cyan));
    QCOMPARE(colors.bar, QColor(Qt::lightGray));
    QCOMPARE(colors.text, QColor(Qt::black));
    QCOMPARE(colors.accent, QColor(Qt::black));
    QCOMPARE(colors.onAccent, QColor(Qt::lightGray));
}

void TestWishes::nothingShinesThrough()
{
    const ThemeColors colors = board::highContrastColors(paletteOf(Qt::black, Qt::white, Qt::yellow));
    QCOMPARE(colors.shadow.alpha(), 0);
    QCOMPARE(colors.pageShadow.alpha(), 0);
    for (const QColor &color : {colors.bar, colors.text, colors.accent, colors.disabled, colors.border})
        QCOMPARE(color.alpha(), 255);
}

void TestWishes::fieldsHaveEdgesOfTwoPixels()
{
    for (const Theme theme : {Theme::Light, Theme::HighContrast}) {
        board::applyTheme(theme);
        QLineEdit field;
        field.resize(160, 32);
        const QImage picture = field.grab().toImage();
        const QColor edge = board::themeColors().control;
        int width = 0;
        while (picture.pixelColor(width, 16) == edge)
            ++width;
        QCOMPARE(width, theme == Theme::HighContrast ? 2 : 1);
        QCOMPARE(width, board::edgeWidth());
    }
}

void TestWishes::theDesktopIsFollowed()
{
    QVERIFY(!board::remembersHighContrast());
    QVERIFY(!board::remembersReducedMotion());
    writeDesktopSettings("gtk-theme-name=HighContrastInverse\ngtk-enable-animations=false\n");
    QVERIFY(board::desktopWantsHighContrast());
    QVERIFY(board::desktopWantsReducedMotion());
    QVERIFY(board::remembersHighContrast());
    QVERIFY(board::remembersReducedMotion());
    writeDesktopSettings("gtk-theme-name=Adwaita\ngtk-enable-animations=1\n");
    QVERIFY(!board::desktopWantsHighContrast());
    QVERIFY(!board::desktopWantsReducedMotion());
    qputenv("GTK_THEME", "HighContrast");
    QVERIFY(board::desktopWantsHighContrast());
}

void TestWishes::theUserGoesBeforeTheDesktop()
{
    writeDesktopSettings("gtk-theme-name=HighContrast\ngtk-enable-animations=0\n");
    board::rememberHighContrast(false);
    board::rememberReducedMotion(false);
    QVERIFY(!board::remembersHighContrast());
    QVERIFY(!board::remembersReducedMotion());
    writeDesktopSettings({});
    board::rememberHighContrast(true);
    board::rememberReducedMotion(true);
    QVERIFY(board::remembersHighContrast());
    QVERIFY(board::remembersReducedMotion());
}

void TestWishes::highContrastIsSwitchedInTheWindow()
{
    BoardDriver board;
    QAction *high = board.window().commands()->action(board::Command::HighContrast);
    board.window().actions()->darkColors->trigger();
    QCOMPARE(board::currentTheme(), Theme::Dark);
    high->trigger();
    QCOMPARE(board::currentTheme(), Theme::HighContrast);
    QVERIFY(board::remembersHighContrast());
    high->trigger();
    QCOMPARE(board::currentTheme(), Theme::Dark);
    QVERIFY(!board::remembersHighContrast());
}

void TestWishes::reducedMotionTakesNoTime()
{
    board::applyTheme(Theme::Light);
    QCOMPARE(board::timeOf(board::Motion::PresentingBar), 300);
    QCOMPARE(board::timeOf(board::Motion::LaserTrail), 1000);
    board::LaserTrail trail;
    trail.add({10, 10}, 0);
    QCOMPARE(trail.places(5).size(), 1);
    board::setMotionReduced(true);
    QCOMPARE(board::timeOf(board::Motion::PresentingBar), 0);
    QCOMPARE(board::timeOf(board::Motion::LaserTrail), 0);
    QCOMPARE(trail.places(5).size(), 0);
    QCOMPARE(QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration), 0);
}

void TestWishes::reducedMotionIsSwitchedInTheWindow()
{
    BoardDriver board;
    QAction *reduced = board.window().commands()->action(board::Command::ReducedMotion);
    reduced->trigger();
    QVERIFY(board::isMotionReduced());
    QVERIFY(board::remembersReducedMotion());
    reduced->trigger();
    QVERIFY(!board::isMotionReduced());
    QVERIFY(!board::remembersReducedMotion());
}

QTEST_MAIN(TestWishes)
#include "test_wishes.moc"
