// The board on a screen whose pixels are not those that the program counts in.

#include <board/boarddriver.h>

#include <support/virtualtime.h>

#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>

#include <QtGui/QScreen>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace boardtest;

class TestScaledScreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void partsThatArePaintedAgainLeaveNoLines_data();
    void partsThatArePaintedAgainLeaveNoLines();
};

void TestScaledScreen::partsThatArePaintedAgainLeaveNoLines_data()
{
    QTest::addColumn<double>("zoom");
    for (const double zoom : {0.1, 0.37, 0.4617, 0.5311, 1.0, 1.37})
        QTest::addRow("%g", zoom) << zoom;
}

/// Old and new place of a moved object are repainted, on the canvas around the page as well.
void TestScaledScreen::partsThatArePaintedAgainLeaveNoLines()
{
    QFETCH(double, zoom);
    BoardDriver board;
    board.draw(rectangle, {1200, 640}, {1260, 700});
    board.page().select({});
    board.view().setZoom(zoom);
    QWidget *viewport = board.view().viewport();
    const auto onScreen = [&] {
        support::deliverEvents();
        const QPoint corner = viewport->mapTo(&board.window(), QPoint(0, 0));
        return board.window()
            .screen()
            ->grabWindow(board.window().winId(), corner.x(), corner.y(), viewport->width(), viewport->height())
            .toImage();
    };
    const QImage before = onScreen();
    QVERIFY(!before.isNull());
    for (int step = 0; step < 40; ++step)
        viewport->repaint(QRect(3 + 11 * step, 2 + 7 * step, 120 + step, 90 + step));
    QCOMPARE(onScreen(), before);
}

int main(int argc, char **argv)
{
    qputenv("QT_SCALE_FACTOR", "1.25");
    QApplication application(argc, argv);
    TestScaledScreen test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_scaledscreen.moc"
