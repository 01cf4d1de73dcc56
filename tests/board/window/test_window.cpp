// The window: how large it opens, what it remembers, which colours it has.

#include <board/boarddriver.h>
#include <board/desk.h>

#include <support/listed.h>
#include <support/virtualtime.h>

#include <core/actions.h>
#include <core/commands.h>
#include <core/notices.h>
#include <core/windowmemory.h>
#include <documents/documentcontroller.h>
#include <lessons/lessonbar.h>
#include <look/theme.h>
#include <page/pageview.h>
#include <panels/pagepanel.h>
#include <panels/palettebutton.h>
#include <panels/palettepanel.h>
#include <window/drawer.h>
#include <window/mainwindow.h>

#include <pagehost/objectplugin.h>
#include <pagehost/page.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <stdexcept>

using namespace boardtest;

class TestWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void firstWindowFitsTheScreen();
    void paletteShowsThreeShapesInARow();
    void shapesUsedMostComeFirstInTheirGroup();
    void windowOpensAsItWasLeft();
    void onlyPinnedPartsOpenAgain();
    void pageTakesFourFifthsOfASmallScreen();
    void smallWindowCutsNothingOff_data();
    void smallWindowCutsNothingOff();
    void drawingOfAFileIsInsertedInTheMiddle();
    void darkColoursAreRemembered();
    void shapeWhosePluginFailsIsToldOfAndTheBoardGoesOn();
};

namespace {

/// Promises a shape and throws when it is drawn.
class EmptyPromise : public pagehost::ObjectPlugin
{
public:
    QVector<pagehost::ObjectKind> objectKinds() const override
    {
        return {{QStringLiteral("promise"), QStringLiteral("IDS_PROMISE"), QString()}};
    }
    CBaseObject *createObject(const QString &) const override { throw std::runtime_error("nothing there"); }
    pagehost::TextTable texts(const QString &) const override
    {
        return {{QStringLiteral("IDS_PROMISE"), QStringLiteral("Promise")}};
    }
};

/// As layouts take it: what was set, else what the widget needs.
QSize leastSize(const QWidget &widget)
{
    const QSize hint = widget.minimumSizeHint();
    const QSize set = widget.minimumSize();
    return {set.width() > 0 ? set.width() : hint.width(), set.height() > 0 ? set.height() : hint.height()};
}

/// Scrolled parts may be larger than their part of the window.
bool isInScrollArea(const QWidget *widget)
{
    for (const QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget())
        if (qobject_cast<const QAbstractScrollArea *>(parent))
            return true;
    return false;
}

} // namespace

void TestWindow::init()
{
    useOwnFolders();
    QSettings().clear();
    board::applyTheme(board::Theme::Light);
}

void TestWindow::firstWindowFitsTheScreen()
{
    board::Workspace workspace("en");
    board::MainWindow window(&workspace);
    QVERIFY(window.width() > 800 && window.height() > 800);
    QVERIFY2(window.minimumSizeHint().width() <= 800, "panels and tools need more than a small screen has");
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    window.resize(screen + QSize(1, 1));
    board::restoreWindow(&window);
    QCOMPARE(window.size(), screen - QSize(16, 40));
}

void TestWindow::paletteShowsThreeShapesInARow()
{
    BoardDriver board;
    board.window().commands()->action(board::Command::Shapes)->trigger();
    support::deliverEvents();
    const auto *palette = board.window().palettePanel();
    const QWidget *shown = palette->findChild<QScrollArea *>()->viewport();
    const QPoint first = palette->buttons().at(0)->mapTo(shown, QPoint());
    const QPoint third = palette->buttons().at(2)->mapTo(shown, QPoint());
    QCOMPARE(third.y(), first.y());
    QVERIFY(third.x() > first.x());
    const int wanted = 3 * palette->buttons().at(0)->sizeHint().width() + 2 * board::smallGap;
    QVERIFY2(shown->width() >= wanted, qPrintable(QStringLiteral("%1 of %2").arg(shown->width()).arg(wanted)));
}

void TestWindow::shapesUsedMostComeFirstInTheirGroup()
{
    BoardDriver board;
    QStringList kinds;
    for (const board::PaletteButton *button : support::listed(board.window().palettePanel()->buttons()))
        kinds.append(button->kindId());
    QCOMPARE(QStringList(kinds.mid(0, 7)),
             QStringList({"shapes.roundedrectangle", "shapes.ellipse", "shapes.triangle", "shapes.blockarrow",
                          "shapes.callout", "shapes.star", "shapes.polygon"}));
    // Those without a place follow by name: cross, diamond.
    QVERIFY(kinds.indexOf("declared.cross") < kinds.indexOf("declared.diamond"));
    QVERIFY(kinds.indexOf("shapes.star") < kinds.indexOf("declared.cross"));
    // Boxes of flow charts have a group of their own, before that of mathematics.
    const int terminator = kinds.indexOf("declared.terminator");
    QCOMPARE(QStringList(kinds.mid(terminator, 5)),
             QStringList({"declared.terminator", "declared.subprocess", "declared.document", "declared.chevron",
                          "shapes.numberline"}));
}

void TestWindow::windowOpensAsItWasLeft()
{
    board::Workspace workspace("en");
    {
        board::MainWindow window(&workspace);
        window.setGeometry(30, 60, 770, 620);
        window.show();
        board::rememberWindow(&window);
    }
    board::MainWindow window(&workspace);
    board::restoreWindow(&window);
    QCOMPARE(window.geometry(), QRect(30, 60, 770, 620));
}

void TestWindow::onlyPinnedPartsOpenAgain()
{
    board::Workspace workspace("en");
    {
        board::MainWindow window(&workspace);
        window.show();
        QVERIFY(!window.panel()->isOpen());
        window.panel()->setOpen(true);
        window.palette()->setOpen(true);
        window.palette()->setPinned(true);
        window.commands()->action(board::Command::PageStrip)->trigger();
    }
    board::MainWindow window(&workspace);
    window.show();
    QVERIFY(!window.panel()->isOpen());
    QVERIFY(window.palette()->isOpen() && window.palette()->isPinned());
    QVERIFY(window.pages()->isVisible());
}

/// Of the largest page that an area of 1366 × 768 could hold.
void TestWindow::pageTakesFourFifthsOfASmallScreen()
{
    board::Workspace workspace("en");
    board::MainWindow window(&workspace);
    window.resize(1366, 768);
    window.show();
    support::deliverEvents();
    QCOMPARE(window.size(), QSize(1366, 768));
    const QRectF page = window.view()->mapFromScene(window.view()->page()->rect()).boundingRect();
    const double largest = 768.0 * 768 * 16 / 9;
    const double share = page.width() * page.height() / largest;
    QVERIFY2(share >= 0.8, qPrintable(QString::number(share)));
    // Beside the dock, 56, and the strip for its shelf, 48; 16 remain at the other side.
    const QPoint corner = window.view()->viewport()->mapTo(&window, page.topLeft().toPoint());
    QCOMPARE(corner.x(), 104);
    QVERIFY(qAbs(corner.x() + page.width() - 1350) <= 1);
}

void TestWindow::smallWindowCutsNothingOff_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("takes");
    QTest::addColumn<Qt::Edge>("edge");
    QTest::addColumn<bool>("large");
    // Half of 1920 × 1080, and two thirds of 1366 × 768.
    const QSize sizes[] = {{960, 540}, {910, 512}};
    for (const char *language : {"en", "de"}) {
        for (const QSize &size : sizes) {
            const int width = size.width();
            QTest::addRow("%s %d", language, width) << language << size << 0 << Qt::LeftEdge << false;
            QTest::addRow("%s %d while recording", language, width)
                << language << size << 1 << Qt::LeftEdge << false;
            QTest::addRow("%s %d with a lesson", language, width) << language << size << 2 << Qt::LeftEdge << false;
            QTest::addRow("%s %d in one bar", language, width) << language << size << 0 << Qt::BottomEdge << false;
        }
        QTest::addRow("%s for fingers", language) << language << sizes[0] << 0 << Qt::LeftEdge << true;
        QTest::addRow("%s for fingers in one bar", language) << language << sizes[0] << 0 << Qt::TopEdge << true;
    }
}

void TestWindow::smallWindowCutsNothingOff()
{
    QFETCH(QString, language);
    QFETCH(QSize, size);
    QFETCH(Qt::Edge, edge);
    QFETCH(bool, large);
    QFETCH(int, takes); // presses of the key that begins and ends recording
    board::Workspace workspace(language);
    workspace.loadPlugins({});
    board::MainWindow window(&workspace);
    window.setDockEdge(edge);
    window.setLargeTools(large);
    window.resize(size);
    window.show();
    QVERIFY(activate(window));
    window.panel()->setOpen(true);
    for (int take = 0; take < takes; ++take) {
        support::pass(100);
        QTest::keyClick(&window, Qt::Key_F9);
    }
    support::deliverEvents();
    QCOMPARE(window.lessonBar()->isVisible(), takes > 0);
    QCOMPARE(window.size(), size);
    QStringList cut;
    for (const QWidget *widget : support::listed(window.findChildren<QWidget *>())) {
        const QWidget *parent = widget->parentWidget();
        if (!widget->isVisible() || widget->isWindow() || isInScrollArea(widget))
            continue;
        const QSize least = leastSize(*widget);
        if (!parent->rect().contains(widget->geometry()) || widget->width() < least.width() ||
            widget->height() < least.height())
            cut.append(QStringLiteral("%1 %2").arg(widget->metaObject()->className(), widget->accessibleName()));
    }
    QCOMPARE(cut.join('\n'), QString());
}

void TestWindow::drawingOfAFileIsInsertedInTheMiddle()
{
    Desk desk;
    QFile file(desk.path("drop.svg"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 80 60'><path d='M2 2H78V58Z' fill='#a00'/></svg>");
    file.close();
    desk.board.key(Qt::Key_I);
    desk.answerFile(desk.path("drop.svg"));
    QCOMPARE(desk.objectCount(), 1);
    const QPointF middle = desk.board.view().mapToScene(desk.board.view().viewport()->rect().center());
    QVERIFY(desk.board.placeOf(desk.board.only()).contains(middle));
}

void TestWindow::darkColoursAreRemembered()
{
    QVERIFY(!board::remembersDarkColors());
    BoardDriver board;
    board.window().actions()->darkColors->trigger();
    QVERIFY(board::remembersDarkColors());
    board.window().actions()->darkColors->trigger();
    QVERIFY(!board::remembersDarkColors());
}

void TestWindow::shapeWhosePluginFailsIsToldOfAndTheBoardGoesOn()
{
    EmptyPromise plugin;
    BoardDriver board;
    QVERIFY(board.workspace().registry().addPlugin(&plugin, "promise.so").loaded);
    board.window().beginCreation("promise");
    board.drag({300, 200}, {420, 280});
    support::deliverEvents();
    QCOMPARE(board.page().objectCount(), 0);
    QStringList notices;
    for (const QLabel *label : support::listed(board.window().notices()->findChildren<QLabel *>()))
        notices.append(label->text());
    const QString told = notices.join('\n');
    QVERIFY2(told.contains("promise.so could be used: createObject(\"promise\") threw an exception: nothing there"),
             qPrintable(told));
    QVERIFY(board.draw(rectangle, {300, 200}, {420, 280}));
    QCOMPARE(board.page().objectCount(), 1);
}

QTEST_MAIN(TestWindow)
#include "test_window.moc"
