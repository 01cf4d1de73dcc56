// Drawing new shapes: with the palette, the mouse on the page, and undo and redo of it.

#include <board/boarddriver.h>

#include <page/pageview.h>
#include <panels/palettebutton.h>
#include <panels/palettepanel.h>
#include <window/drawer.h>
#include <window/mainwindow.h>

#include <pagehost/objectregistry.h>
#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>

#include <QtCore/QMimeData>
#include <QtCore/QSettings>
#include <QtGui/QTextLayout>
#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

using namespace boardtest;

class TestDrawing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dragInAnyDirectionFillsTheDraggedRectangle_data();
    void dragInAnyDirectionFillsTheDraggedRectangle();
    void shiftKeepsTheDragSquare();
    void clickMakesTheUsualSize_data();
    void clickMakesTheUsualSize();
    void keptProportionsStayInEveryDirection_data();
    void keptProportionsStayInEveryDirection();
    void newShapeIsSelectedAndTheToolRests();
    void escapeDuringTheDragLeavesNothing();
    void escapeBeforeTheDragPutsTheToolAway();
    void secondClickInThePalettePutsTheToolAway();
    void undoAndRedoOfDrawing();
    void returnKeyInThePalettePlacesOneInTheMiddle();
    void kindDroppedOnThePageAppearsThere();
    void everyKindHasAPictureAndAName();
    void searchOfThePaletteHasTheFocus();
    void returnKeyInTheSearchDrawsTheFirstHit();
    void controlAndReturnKeyInTheSearchPutTheFirstHitInTheMiddle();
    void searchWithoutAHitOffersAllShapes();
    void paletteClosesWithEscapeAndWithAPressOutside();
    void pinnedPaletteStaysBesideThePage();
    void lastUsedShapesComeFirst();
    void paletteSearchHidesOtherKinds();
    void paletteSearchKnowsOtherWordsForAShape();
    void paletteBeginsWithTheBasicShapes_data();
    void paletteBeginsWithTheBasicShapes();
    void namesInThePaletteCanBeRead_data();
    void namesInThePaletteCanBeRead();
    void wordsInThePaletteAreNotBroken_data();
    void wordsInThePaletteAreNotBroken();
};

void TestDrawing::dragInAnyDirectionFillsTheDraggedRectangle_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::newRow("right and down") << QPointF(500, 300) << QPointF(700, 420);
    QTest::newRow("left and down") << QPointF(700, 300) << QPointF(500, 420);
    QTest::newRow("right and up") << QPointF(500, 420) << QPointF(700, 300);
    QTest::newRow("left and up") << QPointF(700, 420) << QPointF(500, 300);
}

void TestDrawing::dragInAnyDirectionFillsTheDraggedRectangle()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    for (const QString &kind : {rectangle, arrow, polygon}) {
        BoardDriver board;
        CBaseObject *object = board.draw(kind, from, to);
        QVERIFY(object);
        QCOMPARE(board.placeOf(object), QRectF(500, 300, 200, 120));
        QVERIFY(object->isCreateFinished());
    }
}

void TestDrawing::shiftKeepsTheDragSquare()
{
    BoardDriver board;
    board.pick(rectangle);
    board.drag({500, 300}, {620, 350}, Qt::ShiftModifier);
    QCOMPARE(board.placeOf(board.only()), QRectF(500, 300, 120, 120));
}

void TestDrawing::clickMakesTheUsualSize_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("rounded rectangle") << rectangle << QSizeF(120, 80);
    QTest::newRow("arrow") << arrow << QSizeF(140, 90);
    QTest::newRow("polygon") << polygon << QSizeF(120, 114);
    QTest::newRow("flask") << flask << QSizeF(120, 160);
}

void TestDrawing::clickMakesTheUsualSize()
{
    QFETCH(QString, kind);
    QFETCH(QSizeF, size);
    BoardDriver board;
    board.pick(kind);
    board.click({520, 310});
    QVERIFY(board.only());
    QCOMPARE(board.placeOf(board.only()), QRectF(QPointF(520, 310), size));
}

void TestDrawing::keptProportionsStayInEveryDirection_data()
{
    dragInAnyDirectionFillsTheDraggedRectangle_data();
}

void TestDrawing::keptProportionsStayInEveryDirection()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    BoardDriver board;
    const QRectF place = board.placeOf(board.draw(flask, from, to));
    // 3 to 4, as its template is, and never larger than what was dragged over.
    QCOMPARE(place.width() * 4, place.height() * 3);
    QVERIFY(place.width() <= 200 && place.height() <= 120);
    // The corner where the drag began stays.
    QCOMPARE(from.x() < to.x() ? place.left() : place.right(), from.x());
    QCOMPARE(from.y() < to.y() ? place.top() : place.bottom(), from.y());
}

void TestDrawing::newShapeIsSelectedAndTheToolRests()
{
    BoardDriver board;
    CBaseObject *object = board.draw(rectangle, {500, 300}, {700, 420});
    QCOMPARE(board.selection(), QVector<CBaseObject *>{object});
    for (const board::PaletteButton *button : support::listed(board.window().palettePanel()->buttons()))
        QVERIFY(!button->isChecked());
    board.drag({800, 500}, {900, 600});
    QCOMPARE(board.page().objectCount(), 1);
}

void TestDrawing::escapeDuringTheDragLeavesNothing()
{
    BoardDriver board;
    board.pick(rectangle);
    board.hold({500, 300}, {700, 420});
    board.key(Qt::Key_Escape);
    board.release({700, 420});
    QCOMPARE(board.page().objectCount(), 0);
    QCOMPARE(board.history().count(), 0);
}

void TestDrawing::escapeBeforeTheDragPutsTheToolAway()
{
    BoardDriver board;
    board.pick(rectangle);
    board.key(Qt::Key_Escape);
    board.drag({500, 300}, {700, 420});
    QCOMPARE(board.page().objectCount(), 0);
}

void TestDrawing::secondClickInThePalettePutsTheToolAway()
{
    BoardDriver board;
    board.pick(rectangle);
    board.pick(rectangle);
    board.drag({500, 300}, {700, 420});
    QCOMPARE(board.page().objectCount(), 0);
}

void TestDrawing::undoAndRedoOfDrawing()
{
    BoardDriver board;
    CBaseObject *object = board.draw(rectangle, {500, 300}, {700, 420});
    QCOMPARE(board.history().count(), 1);
    board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(board.page().objectCount(), 0);
    board.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(board.only(), object);
    QCOMPARE(board.placeOf(object), QRectF(500, 300, 200, 120));
}

void TestDrawing::returnKeyInThePalettePlacesOneInTheMiddle()
{
    BoardDriver board;
    QTest::keyClick(board.window().palettePanel()->buttons().first(), Qt::Key_Return);
    QVERIFY(board.only());
    const QPointF middle = board.view().mapToScene(board.view().viewport()->rect().center());
    QVERIFY(board.placeOf(board.only()).contains(middle));
    QCOMPARE(board.history().count(), 1);
}

void TestDrawing::kindDroppedOnThePageAppearsThere()
{
    BoardDriver board;
    QMimeData data;
    data.setData(board::kindMimeType, arrow.toUtf8());
    const QPoint pos = board.view().mapFromScene(QPointF(640, 360));
    QDragEnterEvent enter(pos, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(board.view().viewport(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(pos, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(board.view().viewport(), &drop);
    QVERIFY(board.only());
    QCOMPARE(pagehost::kindIdOf(board.only()), arrow);
    QVERIFY(board.placeOf(board.only()).contains(QPointF(640, 360)));
}

void TestDrawing::everyKindHasAPictureAndAName()
{
    BoardDriver board;
    const QVector<board::PaletteButton *> buttons = board.window().palettePanel()->buttons();
    QCOMPARE(buttons.size(), board.drawableKinds().size());
    QVERIFY(buttons.size() >= 4);
    for (const board::PaletteButton *button : buttons) {
        QVERIFY(!button->text().isEmpty() && !button->text().startsWith("IDS_"));
        const QImage picture = button->icon().pixmap(button->iconSize()).toImage();
        // The corners are free, the figure is not.
        QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
        int opaque = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                opaque += picture.pixelColor(x, y).alpha() > 200;
        QVERIFY2(opaque >= 50, qPrintable(button->kindId()));
    }
}

/// Of the palette, which the key of shapes opens.
static QLineEdit *searchOf(BoardDriver &board)
{
    board.key(Qt::Key_S);
    QCoreApplication::processEvents();
    return qobject_cast<QLineEdit *>(QApplication::focusWidget());
}

void TestDrawing::searchOfThePaletteHasTheFocus()
{
    BoardDriver board;
    const QLineEdit *search = searchOf(board);
    QVERIFY(search && board.window().palette()->isAncestorOf(search));
}

void TestDrawing::returnKeyInTheSearchDrawsTheFirstHit()
{
    BoardDriver board;
    QLineEdit *search = searchOf(board);
    QTest::keyClicks(search, "flas");
    QTest::keyClick(search, Qt::Key_Return);
    QVERIFY(!board.window().palette()->isOpen());
    board.drag({500, 300}, {590, 420});
    QCOMPARE(pagehost::kindIdOf(board.only()), flask);
}

void TestDrawing::controlAndReturnKeyInTheSearchPutTheFirstHitInTheMiddle()
{
    BoardDriver board;
    QLineEdit *search = searchOf(board);
    QTest::keyClicks(search, "flas");
    QTest::keyClick(search, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(pagehost::kindIdOf(board.only()), flask);
    QVERIFY(board.placeOf(board.only()).contains(QPointF(640, 360)));
}

void TestDrawing::searchWithoutAHitOffersAllShapes()
{
    BoardDriver board;
    QLineEdit *search = searchOf(board);
    QTest::keyClicks(search, "xyzzy");
    QStringList shown;
    for (const QLabel *label : support::listed(board.window().palettePanel()->findChildren<QLabel *>()))
        if (label->isVisible())
            shown.append(label->text());
    QCOMPARE(shown, QStringList{"No shape called “xyzzy”."});
    QTest::mouseClick(board.button("All shapes"), Qt::LeftButton);
    for (const board::PaletteButton *button : support::listed(board.window().palettePanel()->buttons()))
        QVERIFY(button->isVisible());
}

void TestDrawing::paletteClosesWithEscapeAndWithAPressOutside()
{
    BoardDriver board;
    QTest::keyClick(searchOf(board), Qt::Key_Escape);
    QVERIFY(!board.window().palette()->isOpen());
    searchOf(board);
    QVERIFY(board.window().palette()->isOpen());
    board.click({640, 500});
    QVERIFY(!board.window().palette()->isOpen());
}

void TestDrawing::pinnedPaletteStaysBesideThePage()
{
    BoardDriver board;
    searchOf(board);
    const int before = board.view().width();
    QTest::mouseClick(board.window().palettePanel()->pin(), Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(board.view().width(), before - board.window().palette()->width());
    board.click({640, 500});
    board.draw(flask, {500, 300}, {590, 420});
    QVERIFY(board.window().palette()->isOpen());
    QTest::mouseClick(board.window().palettePanel()->pin(), Qt::LeftButton);
}

void TestDrawing::lastUsedShapesComeFirst()
{
    QSettings().clear();
    BoardDriver board;
    QCOMPARE(board.window().palettePanel()->recentButtons().size(), 0);
    board.draw(flask, {500, 300}, {590, 420});
    board.draw(arrow, {100, 300}, {200, 420});
    board.draw(flask, {700, 300}, {790, 420});
    QCoreApplication::processEvents();
    QStringList recent;
    for (const board::PaletteButton *button : support::listed(board.window().palettePanel()->recentButtons()))
        recent.append(button->kindId());
    QCOMPARE(recent, QStringList({flask, arrow}));
}

void TestDrawing::paletteSearchHidesOtherKinds()
{
    BoardDriver board;
    QLineEdit *search = searchOf(board);
    QVERIFY(search);
    QTest::keyClicks(search, "flas");
    for (const board::PaletteButton *button : support::listed(board.window().palettePanel()->buttons()))
        QCOMPARE(button->isVisible(), button->kindId() == flask);
    search->clear();
    for (const board::PaletteButton *button : support::listed(board.window().palettePanel()->buttons()))
        QVERIFY(button->isVisible());
}

void TestDrawing::paletteSearchKnowsOtherWordsForAShape()
{
    BoardDriver board;
    QLineEdit *search = searchOf(board);
    QVERIFY(search);
    QTest::keyClicks(search, "Plus");
    for (const board::PaletteButton *button : support::listed(board.window().palettePanel()->buttons()))
        QCOMPARE(button->isVisible(), button->kindId() == QLatin1String("declared.cross"));
}

void TestDrawing::paletteBeginsWithTheBasicShapes_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("groups");
    QTest::addColumn<QStringList>("firstNames");
    QTest::newRow("English") << "en" << QStringList{"Basic shapes", "Diagrams", "Mathematics", "Science"}
                             << QStringList{"Rounded rectangle", "Ellipse", "Triangle"};
    // By use in every language: by name the picture would come before the ellipse.
    QTest::newRow("German") << "de" << QStringList{"Grundformen", "Diagramme", "Mathematik", "Naturwissenschaft"}
                            << QStringList{"Abgerundetes Rechteck", "Ellipse", "Dreieck"};
}

void TestDrawing::paletteBeginsWithTheBasicShapes()
{
    QFETCH(QString, language);
    QFETCH(QStringList, groups);
    QFETCH(QStringList, firstNames);
    QSettings().clear();
    BoardDriver board(language);
    QStringList captions;
    const auto *scrolled = board.window().palettePanel()->findChild<QScrollArea *>();
    for (const QLabel *label : support::listed(scrolled->findChildren<QLabel *>()))
        captions.append(label->text());
    QCOMPARE(captions, groups);
    QStringList names;
    for (const board::PaletteButton *button : support::listed(board.window().palettePanel()->buttons().mid(0, 3)))
        names.append(button->text());
    QCOMPARE(names, firstNames);
}

void TestDrawing::namesInThePaletteCanBeRead_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << "en";
    QTest::newRow("German") << "de";
}

void TestDrawing::namesInThePaletteCanBeRead()
{
    QFETCH(QString, language);
    BoardDriver board(language);
    QFont usual = QApplication::font();
    usual.setPointSizeF(9.5); // of a desktop
    for (board::PaletteButton *button : support::listed(board.window().palettePanel()->buttons())) {
        button->setFont(usual);
        const QFont font = button->nameFont();
        QVERIFY2(font.pointSizeF() >= 8, qPrintable(button->text()));
        for (const QString &word : support::listed(button->text().split(' ')))
            QVERIFY2(QFontMetrics(font).horizontalAdvance(word) <= button->width(), qPrintable(word));
    }
}

void TestDrawing::wordsInThePaletteAreNotBroken_data()
{
    namesInThePaletteCanBeRead_data();
}

/// With the letters of any desktop that fit at all.
void TestDrawing::wordsInThePaletteAreNotBroken()
{
    QFETCH(QString, language);
    BoardDriver board(language);
    for (board::PaletteButton *button : support::listed(board.window().palettePanel()->buttons()))
        for (double size = 8; size <= 14; size += 0.5) {
            QFont usual = QApplication::font();
            usual.setPointSizeF(size);
            button->setFont(usual);
            QTextLayout layout(button->text(), button->nameFont());
            QTextOption wrapped;
            wrapped.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
            layout.setTextOption(wrapped);
            layout.beginLayout();
            constexpr int edges = 10;
            for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
                line.setLineWidth(button->width() - edges);
                const int end = line.textStart() + line.textLength();
                const bool isWhole = end == button->text().size() || button->text().at(end - 1) == ' ' ||
                                     button->text().at(end - 1) == '-';
                QVERIFY2(isWhole || button->nameFont().pointSizeF() <= 8, qPrintable(button->text()));
            }
            layout.endLayout();
        }
}

QTEST_MAIN(TestDrawing)
#include "test_drawing.moc"
