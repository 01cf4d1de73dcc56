// The view of the page: zoom, panning, what an empty page says, how pages look on screen.

#include <board/boarddriver.h>
#include <render/messagecatcher.h>
#include <support/listed.h>
#include <support/virtualtime.h>

#include <core/actions.h>
#include <look/icons.h>
#include <look/theme.h>
#include <page/pageview.h>
#include <panels/fillcontrols.h>
#include <panels/stylepanel.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

using namespace boardtest;

class TestView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void viewHasTheNameThatControlPointsShowIn();
    void wheelWithControlZoomsAboutTheCursor_data();
    void wheelWithControlZoomsAboutTheCursor();
    void zoomStaysInItsRange();
    void objectsLearnTheZoom();
    void fitShowsTheWholePage();
    void presentedPageCoversScreensOfNearlyItsForm_data();
    void presentedPageCoversScreensOfNearlyItsForm();
    void fitFollowsTheWindowUntilTheUserZooms();
    void fullSizeIsOnePixelPerUnit();
    void zoomStepsGoUpAndDown();
    void spaceBarAndMouseDragThePage();
    void emptyPageSaysWhatToDo();
    void laterPagesSayNothing();
    void aBackgroundThatCanBeSeenThroughLiesOnPaper_data();
    void aBackgroundThatCanBeSeenThroughLiesOnPaper();
    void aPatternChosenForAWhitePageIsSeen();
    void iconsFollowTheColours();
    void iconsOfNoSizeAreNoTrouble();
    void everyControlHasANameForScreenReaders();
};

void TestView::viewHasTheNameThatControlPointsShowIn()
{
    BoardDriver board;
    QCOMPARE(board.view().objectName(), QString("mainGraphicsView"));
}

void TestView::wheelWithControlZoomsAboutTheCursor_data()
{
    QTest::addColumn<QPointF>("pos");
    QTest::addColumn<int>("notches");
    QTest::newRow("in, left of the middle") << QPointF(450, 250) << 3;
    QTest::newRow("in, right of the middle") << QPointF(900, 500) << 1;
    QTest::newRow("out") << QPointF(700, 300) << -2;
}

void TestView::wheelWithControlZoomsAboutTheCursor()
{
    QFETCH(QPointF, pos);
    QFETCH(int, notches);
    BoardDriver board;
    const QPoint cursor = board.view().mapFromScene(pos);
    board.wheel(pos, notches, Qt::ControlModifier);
    QVERIFY(notches > 0 ? board.view().zoom() > 1.1 : board.view().zoom() < 0.9);
    const QPointF now = board.view().viewportTransform().map(pos);
    QVERIFY2(QLineF(now, cursor).length() <= 1, qPrintable(QString("%1, %2").arg(now.x()).arg(now.y())));
}

void TestView::zoomStaysInItsRange()
{
    BoardDriver board;
    board.wheel({640, 360}, 60, Qt::ControlModifier);
    QCOMPARE(board.view().zoom(), 8.0);
    board.wheel({640, 360}, -200, Qt::ControlModifier);
    QCOMPARE(board.view().zoom(), 0.1);
}

void TestView::objectsLearnTheZoom()
{
    BoardDriver board;
    CBaseObject *shape = board.draw(rectangle, {500, 300}, {700, 420});
    board.view().setZoom(2);
    QCOMPARE(shape->getCurZoomRate(), 2.0);
    QCOMPARE(board.workspace().document()->zoomRate(), 2.0);
}

void TestView::fitShowsTheWholePage()
{
    BoardDriver board;
    board.window().actions()->fitPage->trigger();
    const QRect page = board.view().mapFromScene(board.page().rect()).boundingRect();
    const QRect window = board.view().viewport()->rect();
    QVERIFY(window.contains(page));
    // As large as it can be: one of the sides has no more than the margin.
    QVERIFY(qMin(window.width() - page.width(), window.height() - page.height()) <= 80);
    QVERIFY(qAbs(page.center().y() - window.center().y()) <= 2);
    // The shelf stands in the margin of the other side.
    const int differs = (window.right() - page.right()) - (page.left() - window.left());
    QVERIFY(qAbs(differs - 12) <= 3);
}

void TestView::presentedPageCoversScreensOfNearlyItsForm_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QVector<int>>("black"); // lines at the left, above, at the right, below
    QTest::newRow("of its form") << QSize(1280, 720) << QVector<int>{0, 0, 0, 0};
    QTest::newRow("0.67 wider") << QSize(1366, 768) << QVector<int>{0, 0, 0, 0};
    QTest::newRow("0.62 higher") << QSize(1366, 769) << QVector<int>{0, 0, 0, 0};
    QTest::newRow("0.75 higher") << QSize(1364, 768) << QVector<int>{0, 0, 0, 0};
    QTest::newRow("a pixel higher") << QSize(1280, 721) << QVector<int>{0, 0, 0, 1};
    QTest::newRow("2 wider") << QSize(1282, 720) << QVector<int>{1, 0, 1, 0};
    QTest::newRow("3 higher") << QSize(1360, 768) << QVector<int>{0, 1, 0, 2};
}

/// A page of 1280 × 720.
void TestView::presentedPageCoversScreensOfNearlyItsForm()
{
    QFETCH(QSize, screen);
    QFETCH(QVector<int>, black);
    BoardDriver board;
    board::PageView view;
    view.setBare(true);
    view.setPage(&board.page());
    view.resize(screen);
    view.show();
    QCoreApplication::processEvents();
    QCOMPARE(view.viewport()->size(), screen);
    const QImage picture = view.viewport()->grab().toImage();
    const auto linesFrom = [&picture](QPoint at, const QPoint &step) {
        int lines = 0;
        for (; picture.pixelColor(at) == QColor(Qt::black); at += step)
            ++lines;
        // No line between black and the white page.
        return picture.pixelColor(at) == QColor(Qt::white) ? lines : -1;
    };
    const QPoint middle(screen.width() / 2, screen.height() / 2);
    const QVector<int> found{linesFrom({0, middle.y()}, {1, 0}), linesFrom({middle.x(), 0}, {0, 1}),
                             linesFrom({screen.width() - 1, middle.y()}, {-1, 0}),
                             linesFrom({middle.x(), screen.height() - 1}, {0, -1})};
    QCOMPARE(found, black);
    view.setPage(nullptr);
}

void TestView::fitFollowsTheWindowUntilTheUserZooms()
{
    BoardDriver board;
    board.view().fitPage();
    const double before = board.view().zoom();
    board.window().resize(1300, 800);
    support::deliverEvents();
    QVERIFY(board.view().zoom() < before);
    board.view().setZoom(1);
    board.window().resize(1600, 1100);
    support::deliverEvents();
    QCOMPARE(board.view().zoom(), 1.0);
}

void TestView::fullSizeIsOnePixelPerUnit()
{
    BoardDriver board;
    board.view().fitPage();
    board.key(Qt::Key_0, Qt::ControlModifier);
    const QPointF a = board.view().viewportTransform().map(QPointF(100, 100));
    const QPointF b = board.view().viewportTransform().map(QPointF(300, 100));
    QCOMPARE(b - a, QPointF(200, 0));
}

void TestView::zoomStepsGoUpAndDown()
{
    BoardDriver board;
    board.key(Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(board.view().zoom(), 1.25);
    board.key(Qt::Key_Minus, Qt::ControlModifier);
    board.key(Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(board.view().zoom(), 0.75);
}

void TestView::spaceBarAndMouseDragThePage()
{
    BoardDriver board;
    CBaseObject *shape = board.draw(rectangle, {500, 300}, {700, 420});
    const QPointF before = board.view().mapToScene(QPoint(100, 100));
    const QPoint start = board.view().mapFromScene(QPointF(600, 360));
    QTest::keyPress(&board.view(), Qt::Key_Space);
    QTest::mousePress(board.view().viewport(), Qt::LeftButton, Qt::NoModifier, start);
    const QPoint end = start + QPoint(40, 25);
    QMouseEvent move(QEvent::MouseMove, end, board.view().viewport()->mapToGlobal(end), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(board.view().viewport(), &move);
    QTest::mouseRelease(board.view().viewport(), Qt::LeftButton, Qt::NoModifier, end);
    QTest::keyRelease(&board.view(), Qt::Key_Space);
    QCOMPARE(board.view().mapToScene(QPoint(100, 100)), before - QPointF(40, 25));
    QCOMPARE(board.placeOf(shape), QRectF(500, 300, 200, 120));
}

void TestView::emptyPageSaysWhatToDo()
{
    BoardDriver board;
    const QRect page = board.view().mapFromScene(board.page().rect()).boundingRect();
    const QRect middle = QRect(page.center() - QPoint(150, 80), QSize(300, 160));
    const auto hasInk = [&] {
        const QImage picture = board.view().viewport()->grab(middle).toImage();
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixelColor(x, y).lightness() < 150)
                    return true;
        }
        return false;
    };
    QVERIFY(hasInk());
    // A lesson that is shown may begin with an empty page, too.
    board.workspace().document()->setEditingBlocked(1);
    QVERIFY(!hasInk());
    board.workspace().document()->setEditingBlocked(0);
    QVERIFY(hasInk());
    board.draw(rectangle, {20, 20}, {80, 80});
    board.page().select({});
    support::deliverEvents();
    QVERIFY(!hasInk());
}

void TestView::laterPagesSayNothing()
{
    BoardDriver board;
    board.key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    support::deliverEvents();
    const QRect page = board.view().mapFromScene(board.page().rect()).boundingRect().adjusted(4, 4, -4, -4);
    QImage blank(page.size(), QImage::Format_RGB32);
    blank.fill(Qt::white);
    QCOMPARE(board.view().viewport()->grab(page).toImage().convertToFormat(blank.format()), blank);
}

void TestView::aBackgroundThatCanBeSeenThroughLiesOnPaper_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<int>("fillType");
    for (const bool isDark : {false, true}) {
        const char *name = isDark ? "dark, %s" : "light, %s";
        QTest::addRow(name, "none") << isDark << int(CPageBgProp::NoFill);
        QTest::addRow(name, "pattern") << isDark << int(CPageBgProp::PatternFill);
        QTest::addRow(name, "half transparent") << isDark << int(CPageBgProp::SolidFill);
    }
}

/// The page's shadow lies around the page only.
void TestView::aBackgroundThatCanBeSeenThroughLiesOnPaper()
{
    QFETCH(bool, isDark);
    QFETCH(int, fillType);
    board::applyTheme(isDark ? board::Theme::Dark : board::Theme::Light);
    BoardDriver board;
    board.view().setEmptyHint({});
    CPageBgProp fill(&board.page());
    fill.setFillEnable(fillType != CPageBgProp::NoFill);
    fill.setFillType(fillType);
    fill.setFillColor(Qt::white);
    fill.setPattern(Qt::BDiagPattern);
    fill.setOpacity(fillType == CPageBgProp::SolidFill ? 128 : 255);
    board.page().setBackground(fill);
    const QRect page = board.view().mapFromScene(board.page().rect()).boundingRect();
    const QImage picture = board.view().viewport()->grab(page.adjusted(20, 20, -20, -20)).toImage();
    for (int y = 0; y < 200; ++y)
        for (int x = 0; x < 200; ++x)
            QCOMPARE(picture.pixelColor(x, y), QColor(Qt::white));
    board::applyTheme(board::Theme::Light);
}

void TestView::aPatternChosenForAWhitePageIsSeen()
{
    BoardDriver board;
    QCoreApplication::processEvents();
    const auto chooseFill = [&](const QString &name) {
        for (QToolButton *button :
             support::listed(board.window().findChild<board::StylePanel *>()->findChildren<QToolButton *>()))
            if (button->isVisible() && button->accessibleName() == name)
                button->click();
    };
    chooseFill("Pattern");
    QCOMPARE(board.page().background().fillType(), int(CPageBgProp::PatternFill));
    QCOMPARE(board.page().background().fillColor(), QColor(0xb4, 0xbf, 0xcc));
    // Whoever wants another colour, however light, gets it.
    CPageBgProp light = board.page().background();
    light.setFillColor(QColor(250, 250, 240));
    Q_EMIT board.window()
        .findChild<board::StylePanel *>()
        ->findChildren<board::FillControls *>()
        .last()
        ->fillPicked(light);
    QCOMPARE(board.page().background().fillColor(), QColor(250, 250, 240));
    board.history().undo();
    board.history().undo();
    CPageBgProp dark = board.page().background();
    dark.setFillColor(QColor(40, 60, 80));
    board.page().setBackground(dark);
    QCoreApplication::processEvents();
    chooseFill("Pattern");
    QCOMPARE(board.page().background().fillColor(), QColor(40, 60, 80));
}

void TestView::iconsFollowTheColours()
{
    const auto brightest = [] {
        const QImage picture = board::icon(board::Icon::Delete).pixmap(32, 32).toImage();
        int value = -1;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixelColor(x, y).alpha() > 250)
                    value = qMax(value, picture.pixelColor(x, y).lightness());
        }
        return value;
    };
    board::applyTheme(board::Theme::Dark);
    QVERIFY(brightest() > 180);
    board::applyTheme(board::Theme::Light);
    QVERIFY(brightest() >= 0 && brightest() < 90);
}

void TestView::iconsOfNoSizeAreNoTrouble()
{
    const MessageCatcher catcher;
    QVERIFY(board::icon(board::Icon::Delete).pixmap(nullptr, QSize(0, 0)).isNull());
    QCOMPARE(catcher.messages(), QStringList());
}

void TestView::everyControlHasANameForScreenReaders()
{
    BoardDriver board;
    board.draw(rectangle, {500, 300}, {700, 420});
    QStringList nameless;
    for (QWidget *widget : support::listed(board.window().findChildren<QWidget *>())) {
        const bool isControl = qobject_cast<QToolButton *>(widget) || qobject_cast<QAbstractSpinBox *>(widget) ||
                               qobject_cast<QComboBox *>(widget) || qobject_cast<QAbstractSlider *>(widget) ||
                               qobject_cast<QGraphicsView *>(widget) || qobject_cast<QListView *>(widget);
        // Qt's own parts of a control speak through it.
        if (!isControl || qobject_cast<QScrollBar *>(widget) || widget->objectName().startsWith("qt_") ||
            !widget->isVisible())
            continue;
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
        if (!accessible || accessible->text(QAccessible::Name).isEmpty())
            nameless.append(
                QString("%1 in %2")
                    .arg(widget->metaObject()->className(), widget->parentWidget()->metaObject()->className()));
    }
    QCOMPARE(nameless, QStringList());
}

QTEST_MAIN(TestView)
#include "test_view.moc"
