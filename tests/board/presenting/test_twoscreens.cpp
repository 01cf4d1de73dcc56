// Presenting on a second screen: what the audience sees, and the window of who presents.

#include "show.h"

#include <support/listed.h>
#include <support/virtualtime.h>

#include <look/dockbutton.h>
#include <look/theme.h>
#include <presenting/curtain.h>
#include <presenting/laserpointer.h>
#include <presenting/pagepictures.h>
#include <presenting/screenplan.h>

#include <pagehost/page.h>

#include <QtTest/QtTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

using namespace boardtest;
using board::Command;

using Rects = QVector<QRect>;

class TestTwoScreens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { useOwnFolders(); }
    void cleanup() { board::applyTheme(board::Theme::Light); }
    void pageGoesToTheOtherScreen_data();
    void pageGoesToTheOtherScreen();
    void audienceSeesThePageAlone();
    void audienceFollowsThePresenter();
    void audienceSeesCurtainAndLaser();
    void barOfThePresenterFitsASmallScreen();
    void presenterIsDarkInEveryTheme_data();
    void presenterIsDarkInEveryTheme();
    void windowBehindThePresenterStaysLight();
    void presenterHasTheDesktopsColoursInHighContrast();
    void presenterHidesThePagesForALargerPage();
    void presenterSeesTheNextPage();
    void shownPageIsFramedInThePictures();
    void presenterTurnsToAPageByAClick();
    void presenterSeesTheTimeSinceTheStart();
    void timeSinceTheStart_data();
    void timeSinceTheStart();
    void escapeEndsBothScreens();
};

void TestTwoScreens::pageGoesToTheOtherScreen_data()
{
    QTest::addColumn<Rects>("screens");
    QTest::addColumn<int>("own");
    QTest::addColumn<QRect>("page");
    QTest::addColumn<QRect>("presenter");
    const QRect laptop(0, 0, 1366, 768);
    const QRect projector(1366, 0, 1920, 1080);
    QTest::newRow("one screen") << Rects{laptop} << 0 << laptop << QRect();
    QTest::newRow("window on the first") << Rects{laptop, projector} << 0 << projector << laptop;
    QTest::newRow("window on the second") << Rects{laptop, projector} << 1 << laptop << projector;
    QTest::newRow("three") << Rects{laptop, projector, {-1024, 0, 1024, 768}} << 1 << laptop << projector;
    QTest::newRow("the same on both") << Rects{laptop, {0, 0, 1024, 768}} << 0 << laptop << QRect();
}

void TestTwoScreens::pageGoesToTheOtherScreen()
{
    QFETCH(Rects, screens);
    QFETCH(int, own);
    QFETCH(QRect, page);
    QFETCH(QRect, presenter);
    const board::ScreenPlan plan = board::planScreens(screens, own);
    QCOMPARE(plan.page, page);
    QCOMPARE(plan.presenter.value_or(QRect()), presenter);
}

void TestTwoScreens::audienceSeesThePageAlone()
{
    TwoScreens t;
    t.show.board.page().select({t.show.shape});
    board::AudienceView &view = *t.audience().view();
    QCOMPARE(view.page(), &t.show.board.page());
    const double rate = qMin(view.viewport()->width() / 1280.0, view.viewport()->height() / 720.0);
    QCOMPARE(view.transform().m11(), rate);
    // The corner of the selected shape has a handle in the presenter's view.
    const QPointF beside(497, 297);
    const QImage picture = view.viewport()->grab().toImage();
    QCOMPARE(picture.pixelColor(view.mapFromScene(beside)),
             picture.pixelColor(view.mapFromScene(QPointF(100, 100))));
    const QImage presented = t.show.viewport()->grab().toImage();
    QVERIFY(presented.pixelColor(t.show.at(beside)) != presented.pixelColor(t.show.at({100, 100})));
}

void TestTwoScreens::audienceFollowsThePresenter()
{
    TwoScreens t;
    t.show.press(Qt::Key_PageDown);
    QCOMPARE(t.show.page(), 2);
    QCOMPARE(t.audience().view()->page(), t.show.document().page(2));
    // Not the audience's: handles have the size of the presenter's view.
    QCOMPARE(t.show.document().zoomRate(), t.show.stage().view()->zoom());
}

void TestTwoScreens::audienceSeesCurtainAndLaser()
{
    TwoScreens t;
    t.show.press(Qt::Key_B);
    QVERIFY(t.audience().curtain()->isVisible());
    t.show.stage().curtain()->setPart({0, 0.5, 1, 0.5});
    QCOMPARE(t.audience().curtain()->part(), QRectF(0, 0.5, 1, 0.5));
    t.show.press(Qt::Key_B);
    QVERIFY(!t.audience().curtain()->isVisible());
    t.show.press(Qt::Key_K);
    t.show.movePointer(t.show.at({100, 100}));
    QCOMPARE(t.audience().laser()->trail().size(), 1);
    QCOMPARE(t.audience().laser()->trail().first().pos, t.show.stage().laser()->trail().first().pos);
}

void TestTwoScreens::barOfThePresenterFitsASmallScreen()
{
    TwoScreens t({800, 600});
    support::deliverEvents();
    QWidget *window = t.show.presentation().presenter();
    QCOMPARE(window->size(), QSize(800, 600));
    const auto placeOf = [window](const QWidget *widget) {
        return QRect(widget->mapTo(window, QPoint()), widget->size());
    };
    const QRect pictures = placeOf(t.show.presentation().presenter()->pictures());
    int right = 0;
    int count = 0;
    const QList<QToolButton *> buttons = window->findChildren<QToolButton *>();
    for (const QToolButton *button : buttons) {
        if (!button->isVisible())
            continue;
        const QRect place = placeOf(button);
        QVERIFY(place.left() >= right);
        QVERIFY(place.right() < pictures.left());
        QVERIFY(place.width() >= 36 && place.height() == place.width());
        right = place.right() + 1;
        ++count;
    }
    QCOMPARE(count, 10);
}

void TestTwoScreens::presenterIsDarkInEveryTheme_data()
{
    QTest::addColumn<int>("theme");
    QTest::newRow("light") << int(board::Theme::Light);
    QTest::newRow("dark") << int(board::Theme::Dark);
}

void TestTwoScreens::presenterIsDarkInEveryTheme()
{
    QFETCH(int, theme);
    board::applyTheme(board::Theme(theme));
    TwoScreens t;
    support::deliverEvents();
    board::PresenterWindow &window = *t.show.presentation().presenter();
    const QImage picture = window.grab().toImage();
    // The head, the line below it, and the desk around page and pages.
    const int middle = window.width() / 2;
    QCOMPARE(picture.pixelColor(middle, 3), QColor(0x22, 0x26, 0x2d));
    QCOMPARE(picture.pixelColor(middle, 39), QColor(0x3c, 0x43, 0x4e));
    QCOMPARE(picture.pixelColor(8, 400), QColor(0x16, 0x19, 0x1e));
    QCOMPARE(picture.pixelColor(window.width() - 8, window.height() - 8), QColor(0x16, 0x19, 0x1e));
    const QPoint abovePage = t.show.viewport()->mapTo(&window, t.show.at({640, 0})) - QPoint(0, 4);
    QCOMPARE(picture.pixelColor(abovePage), QColor(0x16, 0x19, 0x1e));
    QWidget *bar = window.findChild<board::DockButton *>()->parentWidget();
    QCOMPARE(bar->height(), 72);
    const QImage barPicture = bar->grab().toImage();
    QCOMPARE(barPicture.pixelColor(bar->width() / 2, 0), QColor(0x3c, 0x43, 0x4e));
    QCOMPARE(barPicture.pixelColor(bar->width() / 2, 2), QColor(0x2a, 0x2f, 0x37));
    const QColor letters(0xe6, 0xea, 0xf0);
    for (const QLabel *label : support::listed(window.findChildren<QLabel *>()))
        if (label->foregroundRole() == QPalette::WindowText)
            QCOMPARE(label->palette().color(QPalette::WindowText), letters);
    QCOMPARE(window.findChild<QPushButton *>()->palette().color(QPalette::ButtonText), letters);
}

void TestTwoScreens::windowBehindThePresenterStaysLight()
{
    TwoScreens t;
    QCOMPARE(board::themeColors(&t.show.board.window()).bar, QColor(0xf7, 0xf8, 0xfa));
    QCOMPARE(board::themeColors(t.show.presentation().presenter()).bar, QColor(0x22, 0x26, 0x2d));
    QCOMPARE(board::themeColors().bar, QColor(0xf7, 0xf8, 0xfa));
}

void TestTwoScreens::presenterHasTheDesktopsColoursInHighContrast()
{
    board::applyTheme(board::Theme::HighContrast);
    TwoScreens t;
    const board::ThemeColors colors = board::themeColors(t.show.presentation().presenter());
    QCOMPARE(colors.bar, board::themeColors().bar);
    QCOMPARE(t.show.presentation().presenter()->grab().toImage().pixelColor(8, 400), colors.desk);
}

void TestTwoScreens::presenterHidesThePagesForALargerPage()
{
    TwoScreens t;
    support::deliverEvents();
    const board::PagePictures &pictures = *t.show.presentation().presenter()->pictures();
    const double zoom = t.show.stage().view()->zoom();
    QVERIFY(pictures.isVisible());
    t.show.press(Qt::Key_F12);
    support::deliverEvents();
    QVERIFY(!pictures.isVisible());
    QCOMPARE(t.show.stage().width(), t.show.presentation().presenter()->width() - 24);
    QVERIFY(t.show.stage().view()->zoom() > zoom);
    t.show.press(Qt::Key_F12);
    support::deliverEvents();
    QVERIFY(pictures.isVisible());
    QCOMPARE(t.show.stage().view()->zoom(), zoom);
}

void TestTwoScreens::presenterSeesTheNextPage()
{
    TwoScreens t;
    const board::PagePictures &pictures = *t.show.presentation().presenter()->pictures();
    QCOMPARE(pictures.nextName()->text(), QString("Next: page 3"));
    QCOMPARE(pictures.list()->count(), 3);
    QCOMPARE(pictures.list()->currentRow(), 1);
    t.show.press(Qt::Key_PageDown);
    QCOMPARE(pictures.nextName()->text(), QString("This is the last page"));
    QCOMPARE(pictures.list()->currentRow(), 2);
    t.show.run(Command::AddPage);
    QCOMPARE(pictures.list()->count(), 4);
    QCOMPARE(pictures.list()->currentRow(), 3);
}

void TestTwoScreens::shownPageIsFramedInThePictures()
{
    TwoScreens t;
    QListWidget *list = t.show.presentation().presenter()->pictures()->list();
    const auto picture = [list](int row) { return list->item(row)->data(Qt::DecorationRole).value<QImage>(); };
    QVERIFY(support::passUntil([&] { return !picture(0).isNull() && !picture(1).isNull(); }));
    const QImage painted = list->viewport()->grab().toImage();
    const auto edge = [&](int row) {
        const QRect place = list->visualItemRect(list->item(row));
        return painted.pixelColor(place.center().x(), place.top() + 3);
    };
    QCOMPARE(edge(1), QColor(0x7a, 0xa9, 0xff));
    QVERIFY(edge(0) != edge(1));
}

void TestTwoScreens::presenterTurnsToAPageByAClick()
{
    TwoScreens t;
    QListWidget *list = t.show.presentation().presenter()->pictures()->list();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualItemRect(list->item(0)).center());
    QCOMPARE(t.show.page(), 0);
}

void TestTwoScreens::presenterSeesTheTimeSinceTheStart()
{
    const TwoScreens t;
    const QLabel *elapsed = t.show.presentation().presenter()->elapsed();
    QCOMPARE(elapsed->text(), QString("00:00"));
    support::pass(61000);
    QCOMPARE(elapsed->text(), QString("01:01"));
}

void TestTwoScreens::timeSinceTheStart_data()
{
    QTest::addColumn<qint64>("time");
    QTest::addColumn<QString>("text");
    QTest::newRow("start") << qint64(999) << "00:00";
    QTest::newRow("minutes") << qint64(1450000) << "24:10";
    QTest::newRow("just below an hour") << qint64(3599999) << "59:59";
    QTest::newRow("hours") << qint64(5050000) << "1:24:10";
}

void TestTwoScreens::timeSinceTheStart()
{
    QFETCH(qint64, time);
    QFETCH(QString, text);
    QCOMPARE(board::elapsedText(time), text);
}

void TestTwoScreens::escapeEndsBothScreens()
{
    TwoScreens t;
    t.show.press(Qt::Key_Escape);
    QVERIFY(!t.show.presentation().isRunning());
    support::deliverEvents();
    QCOMPARE(t.show.board.window().findChildren<board::AudienceWindow *>().size(), 0);
    QCOMPARE(t.show.board.window().findChildren<board::PresenterWindow *>().size(), 0);
    QCOMPARE(t.show.document().zoomRate(), t.show.board.view().zoom());
}

QTEST_MAIN(TestTwoScreens)
#include "test_twoscreens.moc"
