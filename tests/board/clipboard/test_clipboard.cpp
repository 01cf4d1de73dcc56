// Cut, copy and paste of shapes and of their look, and what other programs give and take.

#include <board/boarddriver.h>

#include <clipboard/clipboardcontroller.h>
#include <core/notices.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/documentfile.h>
#include <pagehost/page.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>

#include <QtCore/QMimeData>
#include <QtCore/QTemporaryDir>
#include <QtGui/QClipboard>
#include <QtGui/QDropEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QLabel>
#include <QtWidgets/QUndoStack>

using namespace boardtest;

/// A drawing of 40 × 30 units.
static QByteArray svgDrawing()
{
    return "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='30' viewBox='0 0 40 30'>"
           "<rect width='40' height='30' fill='red'/></svg>";
}

/// A board with one shape, 200 × 120 at (500, 300).
struct CopyDesk
{
    CopyDesk()
    {
        QGuiApplication::clipboard()->clear();
        shape = board.draw(rectangle, {500, 300}, {700, 420});
        steps = board.history().count();
        leavePage();
    }
    ~CopyDesk() { QGuiApplication::clipboard()->clear(); }

    void leavePage() { Q_EMIT board.view().pointerLeft(); }
    void copy() { board.key(Qt::Key_C, Qt::ControlModifier); }
    void cut() { board.key(Qt::Key_X, Qt::ControlModifier); }
    void paste() { board.key(Qt::Key_V, Qt::ControlModifier); }
    /// Whether the board took it.
    bool drop(const QMimeData &data, const QPointF &pos)
    {
        QWidget *viewport = board.view().viewport();
        const QPoint at = board.view().mapFromScene(pos);
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &enter);
        QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &drop);
        return enter.isAccepted();
    }
    int newSteps() { return board.history().count() - steps; }
    QVector<CBaseObject *> objects() { return board.page().objects(); }
    QRectF placeOfLast() { return board.placeOf(objects().constLast()); }

    BoardDriver board;
    CBaseObject *shape;
    int steps;
};

static QImage picture(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::green);
    return image;
}

class TestClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pastedShapeStandsBesideTheCopied();
    void pastingAgainGoesFurther();
    void pasteComesToTheMouse();
    void cutAndPasteAreOneStepEach();
    void severalShapesKeepTheirPlaces();
    void pasteIntoAnotherBoard();
    void copyGivesAPictureToOtherPrograms();
    void copyGivesSvgWhenEveryShapeHasIt();
    void pictureOfAnotherProgramIsPasted_data();
    void pictureOfAnotherProgramIsPasted();
    void pictureLargerThanThePageIsMadeSmaller();
    void nothingUsableIsTold();
    void damagedDataDoNotCrash();
    void droppedPictureStandsUnderTheMouse();
    void pictureDroppedNearAnEdgeStandsInsideThePage_data();
    void pictureDroppedNearAnEdgeStandsInsideThePage();
    void severalDroppedFilesStandInsideThePage();
    void drawingPastedAtACornerStandsInsideThePage();
    void largePictureDroppedAtACornerIsScaledDownIntoThePage();
    void pasteIsOfferedOnlyWhenThereIsSomething();
    void lookIsPastedAsOneStep();
    void gradientIsPartOfTheLook();
    void lookOfAnUnfilledShape();
    void nothingSelectedCopiesNothing();
};

void TestClipboard::pastedShapeStandsBesideTheCopied()
{
    CopyDesk desk;
    desk.copy();
    desk.paste();
    QCOMPARE(desk.objects().size(), 2);
    QCOMPARE(desk.placeOfLast(), QRectF(520, 320, 200, 120));
    QCOMPARE(desk.board.selection(), QVector<CBaseObject *>{desk.objects().constLast()});
    QCOMPARE(desk.newSteps(), 1);
}

void TestClipboard::pastingAgainGoesFurther()
{
    CopyDesk desk;
    desk.copy();
    desk.paste();
    desk.paste();
    QCOMPARE(desk.placeOfLast(), QRectF(540, 340, 200, 120));
    desk.paste();
    QCOMPARE(desk.placeOfLast(), QRectF(560, 360, 200, 120));
    desk.board.page().select({desk.shape});
    desk.copy();
    desk.paste();
    QCOMPARE(desk.placeOfLast(), QRectF(520, 320, 200, 120));
}

void TestClipboard::pasteComesToTheMouse()
{
    CopyDesk desk;
    desk.copy();
    desk.board.hover({300, 200});
    desk.paste();
    QCOMPARE(desk.placeOfLast(), QRectF(200, 140, 200, 120));
    desk.paste();
    QCOMPARE(desk.placeOfLast(), QRectF(220, 160, 200, 120));
    // Beside the page is not over it.
    desk.board.hover({-50, 200});
    desk.paste();
    QCOMPARE(desk.placeOfLast(), QRectF(520, 320, 200, 120));
}

void TestClipboard::cutAndPasteAreOneStepEach()
{
    CopyDesk desk;
    desk.cut();
    QCOMPARE(desk.objects().size(), 0);
    QCOMPARE(desk.newSteps(), 1);
    desk.paste();
    QCOMPARE(desk.objects().size(), 1);
    QCOMPARE(desk.newSteps(), 2);
    QCOMPARE(desk.board.history().text(desk.steps), QString("IDS_BOARD_CUT"));
    QCOMPARE(desk.board.history().text(desk.steps + 1), QString("IDS_BOARD_PASTE"));
    desk.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(desk.objects().size(), 0);
    desk.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(desk.objects(), QVector<CBaseObject *>{desk.shape});
}

void TestClipboard::severalShapesKeepTheirPlaces()
{
    CopyDesk desk;
    desk.board.draw(arrow, {100, 100}, {200, 200});
    desk.board.key(Qt::Key_A, Qt::ControlModifier);
    desk.leavePage();
    desk.copy();
    desk.paste();
    QCOMPARE(desk.objects().size(), 4);
    QCOMPARE(desk.board.placeOf(desk.objects().at(2)), QRectF(520, 320, 200, 120));
    QCOMPARE(desk.board.placeOf(desk.objects().at(3)), QRectF(120, 120, 100, 100));
    QCOMPARE(desk.board.selection().size(), 2);
}

void TestClipboard::pasteIntoAnotherBoard()
{
    QByteArray bytes;
    {
        CopyDesk desk;
        pagehost::setPenColor({desk.shape}, QColor(200, 10, 20));
        desk.copy();
        bytes = QGuiApplication::clipboard()->mimeData()->data(pagehost::objectsMimeType());
    }
    // Another process gets the bytes alone.
    CopyDesk other;
    auto *data = new QMimeData;
    data->setData(pagehost::objectsMimeType(), bytes);
    QGuiApplication::clipboard()->setMimeData(data);
    other.paste();
    QCOMPARE(other.objects().size(), 2);
    QCOMPARE(other.placeOfLast(), QRectF(520, 320, 200, 120));
    QCOMPARE(pagehost::styleOf(other.objects().constLast()).penColor, QColor(200, 10, 20));
}

void TestClipboard::copyGivesAPictureToOtherPrograms()
{
    CopyDesk desk;
    pagehost::setPenWidth({desk.shape}, 1);
    pagehost::setFill({desk.shape}, QColor(10, 200, 30));
    desk.copy();
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    QVERIFY(data->hasImage());
    const auto image = qvariant_cast<QImage>(data->imageData());
    // Twice the size, perhaps with half the outline's width around it.
    QVERIFY2(image.width() >= 396 && image.width() <= 404, qPrintable(QString::number(image.width())));
    QVERIFY2(image.height() >= 236 && image.height() <= 244, qPrintable(QString::number(image.height())));
    QCOMPARE(image.pixelColor(image.rect().center()), QColor(10, 200, 30));
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
}

void TestClipboard::copyGivesSvgWhenEveryShapeHasIt()
{
    CopyDesk desk;
    auto *svg = new QMimeData;
    svg->setData("image/svg+xml", svgDrawing());
    QGuiApplication::clipboard()->setMimeData(svg);
    desk.paste();
    desk.copy();
    const QByteArray drawing = QGuiApplication::clipboard()->mimeData()->data("image/svg+xml");
    QVERIFY2(drawing.contains("fill=\"red\""), drawing.constData());
    QVERIFY(drawing.contains("width=\"40\" height=\"30\""));
    desk.board.page().select(desk.objects());
    desk.copy();
    QVERIFY(QGuiApplication::clipboard()->mimeData()->data("image/svg+xml").count("<g transform=") >= 2);
}

void TestClipboard::pictureOfAnotherProgramIsPasted_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("PNG") << "png" << QSizeF(64, 48);
    QTest::newRow("picture in another format") << "image" << QSizeF(64, 48);
    QTest::newRow("SVG") << "svg" << QSizeF(120, 90);
    QTest::newRow("SVG as text") << "text" << QSizeF(120, 90);
    QTest::newRow("file of a picture") << "file" << QSizeF(64, 48);
    QTest::newRow("file of a picture that is no PNG") << "bmp" << QSizeF(64, 48);
}

void TestClipboard::pictureOfAnotherProgramIsPasted()
{
    QFETCH(QString, what);
    QFETCH(QSizeF, size);
    CopyDesk desk;
    QTemporaryDir folder;
    auto *data = new QMimeData;
    if (what == "png") {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        picture(64, 48).save(&buffer, "PNG");
        data->setData("image/png", bytes);
    } else if (what == "image") {
        data->setImageData(picture(64, 48));
    } else if (what == "svg") {
        data->setData("image/svg+xml", svgDrawing());
    } else if (what == "text") {
        data->setText("<?xml version='1.0'?>\n" + svgDrawing());
    } else {
        const QString path = folder.filePath("picture." + QString(what == "bmp" ? "bmp" : "png"));
        QVERIFY(picture(64, 48).save(path));
        data->setUrls({QUrl::fromLocalFile(path)});
    }
    QGuiApplication::clipboard()->setMimeData(data);
    desk.paste();
    QCOMPARE(desk.objects().size(), 2);
    QCOMPARE(desk.placeOfLast().size(), size);
    // In the middle of what is shown, which is the middle of the page.
    QCOMPARE(desk.placeOfLast().center(), QPointF(640, 360));
    QCOMPARE(desk.newSteps(), 1);
    desk.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(desk.objects().size(), 1);
}

void TestClipboard::pictureLargerThanThePageIsMadeSmaller()
{
    CopyDesk desk;
    desk.board.page().setSize(QSizeF(500, 400));
    auto *data = new QMimeData;
    data->setImageData(picture(800, 200));
    QGuiApplication::clipboard()->setMimeData(data);
    desk.paste();
    QCOMPARE(desk.placeOfLast().size(), QSizeF(500, 125));
}

void TestClipboard::nothingUsableIsTold()
{
    CopyDesk desk;
    QTemporaryDir folder;
    QFile file(folder.filePath("letter.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("Dear Sir or Madam,");
    file.close();
    auto *data = new QMimeData;
    data->setUrls({QUrl::fromLocalFile(file.fileName())});
    QGuiApplication::clipboard()->setMimeData(data);
    desk.paste();
    QCOMPARE(desk.objects().size(), 1);
    QCOMPARE(desk.newSteps(), 0);
    QStringList texts;
    for (const QLabel *label : support::listed(desk.board.window().notices()->findChildren<QLabel *>()))
        texts.append(label->text());
    QVERIFY2(texts.join(' ').contains("letter.txt"), qPrintable(texts.join(' ')));
}

void TestClipboard::damagedDataDoNotCrash()
{
    CopyDesk desk;
    desk.copy();
    const QByteArray whole = QGuiApplication::clipboard()->mimeData()->data(pagehost::objectsMimeType());
    QVERIFY(whole.size() > 40);
    for (int size = 0; size < whole.size(); size += 7) {
        auto *data = new QMimeData;
        data->setData(pagehost::objectsMimeType(), whole.left(size));
        QGuiApplication::clipboard()->setMimeData(data);
        const int before = desk.objects().size();
        desk.paste();
        QVERIFY(desk.objects().size() <= before + 1);
    }
}

void TestClipboard::droppedPictureStandsUnderTheMouse()
{
    CopyDesk desk;
    QMimeData data;
    data.setImageData(picture(64, 48));
    QVERIFY(desk.drop(data, {300, 200}));
    QCOMPARE(desk.placeOfLast(), QRectF(268, 176, 64, 48));
    QCOMPARE(desk.newSteps(), 1);
}

void TestClipboard::pictureDroppedNearAnEdgeStandsInsideThePage_data()
{
    QTest::addColumn<QPointF>("mouse");
    QTest::addColumn<QRectF>("place");
    QTest::newRow("left") << QPointF(10, 200) << QRectF(0, 176, 64, 48);
    QTest::newRow("top") << QPointF(300, 5) << QRectF(268, 0, 64, 48);
    QTest::newRow("right") << QPointF(1270, 200) << QRectF(1216, 176, 64, 48);
    QTest::newRow("bottom") << QPointF(300, 715) << QRectF(268, 672, 64, 48);
    QTest::newRow("corner") << QPointF(1275, 715) << QRectF(1216, 672, 64, 48);
    QTest::newRow("beside the page") << QPointF(-20, 200) << QRectF(0, 176, 64, 48);
    QTest::newRow("just inside") << QPointF(32, 24) << QRectF(0, 0, 64, 48);
}

void TestClipboard::pictureDroppedNearAnEdgeStandsInsideThePage()
{
    QFETCH(QPointF, mouse);
    QFETCH(QRectF, place);
    CopyDesk desk;
    QMimeData data;
    data.setImageData(picture(64, 48));
    QVERIFY(desk.drop(data, mouse));
    QCOMPARE(desk.placeOfLast(), place);
    QCOMPARE(desk.newSteps(), 1);
}

/// The smaller one stands at the corner of the larger, as they lie on the page before they are placed.
void TestClipboard::severalDroppedFilesStandInsideThePage()
{
    CopyDesk desk;
    QTemporaryDir folder;
    QVERIFY(picture(64, 48).save(folder.filePath("large.png")) &&
            picture(20, 10).save(folder.filePath("small.png")));
    QMimeData data;
    data.setUrls(
        {QUrl::fromLocalFile(folder.filePath("large.png")), QUrl::fromLocalFile(folder.filePath("small.png"))});
    QVERIFY(desk.drop(data, {1275, 715}));
    QCOMPARE(desk.objects().size(), 3);
    QCOMPARE(desk.board.placeOf(desk.objects().at(1)), QRectF(1216, 672, 64, 48));
    QCOMPARE(desk.board.placeOf(desk.objects().at(2)), QRectF(1216, 672, 20, 10));
}

void TestClipboard::drawingPastedAtACornerStandsInsideThePage()
{
    CopyDesk desk;
    auto *data = new QMimeData;
    data->setData("image/svg+xml", svgDrawing());
    QGuiApplication::clipboard()->setMimeData(data);
    Q_EMIT desk.board.view().pointerMoved(QPointF(1279, 1));
    desk.paste();
    // Small drawings come in a size that can be taken hold of.
    QCOMPARE(desk.placeOfLast(), QRectF(1160, 0, 120, 90));
}

void TestClipboard::largePictureDroppedAtACornerIsScaledDownIntoThePage()
{
    CopyDesk desk;
    QMimeData data;
    desk.board.page().setSize(QSizeF(500, 400));
    data.setImageData(picture(800, 200));
    QVERIFY(desk.drop(data, {480, 390}));
    QCOMPARE(desk.placeOfLast(), QRectF(0, 275, 500, 125));
}

void TestClipboard::pasteIsOfferedOnlyWhenThereIsSomething()
{
    CopyDesk desk;
    const QAction *paste = desk.board.action("Paste");
    QVERIFY(!paste->isEnabled());
    auto *data = new QMimeData;
    data->setText("Dear Sir or Madam,");
    QGuiApplication::clipboard()->setMimeData(data);
    QVERIFY(!paste->isEnabled());
    desk.copy();
    QVERIFY(paste->isEnabled());
}

void TestClipboard::lookIsPastedAsOneStep()
{
    CopyDesk desk;
    pagehost::setPenColor({desk.shape}, QColor(200, 10, 20));
    pagehost::setPenWidth({desk.shape}, 6);
    pagehost::setPenStyle({desk.shape}, Qt::DotLine);
    pagehost::setFill({desk.shape}, QColor(1, 2, 3));
    desk.board.page().select({desk.shape});
    desk.board.key(Qt::Key_C, Qt::ControlModifier | Qt::AltModifier);
    CBaseObject *one = desk.board.draw(arrow, {100, 100}, {200, 200});
    CBaseObject *other = desk.board.draw(flask, {800, 100}, {900, 250});
    const pagehost::StyleMap before = pagehost::styleMapOf(one);
    desk.board.page().select({one, other});
    const int steps = desk.board.history().count();
    desk.board.key(Qt::Key_V, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(desk.board.history().count(), steps + 1);
    for (CBaseObject *object : {one, other}) {
        const pagehost::ObjectStyle style = pagehost::styleOf(object);
        QCOMPARE(style.penColor, QColor(200, 10, 20));
        QCOMPARE(style.penWidth, 6);
        QCOMPARE(style.penStyle, Qt::DotLine);
        QCOMPARE(style.fill.color(), QColor(1, 2, 3));
    }
    QCOMPARE(desk.board.placeOf(one), QRectF(100, 100, 100, 100));
    desk.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(pagehost::styleMapOf(one), before);
    desk.board.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(pagehost::styleOf(other).penWidth, 6);
}

void TestClipboard::gradientIsPartOfTheLook()
{
    CopyDesk desk;
    CPageBgProp fill = *desk.shape->getFillProp();
    fill.setFillEnable(true);
    fill.setFillType(CPageBgProp::GradientFill);
    fill.setFillColor(Qt::red);
    fill.setGradientColor(Qt::blue);
    pagehost::setObjectsFill({desk.shape}, fill);
    desk.board.page().select({desk.shape});
    desk.board.key(Qt::Key_C, Qt::ControlModifier | Qt::AltModifier);
    CBaseObject *other = desk.board.draw(arrow, {100, 100}, {200, 200});
    const CPageBgProp before = *other->getFillProp();
    const int steps = desk.board.history().count();
    desk.board.key(Qt::Key_V, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(*other->getFillProp(), fill);
    QCOMPARE(desk.board.history().count(), steps + 1);
    desk.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(*other->getFillProp(), before);
}

void TestClipboard::lookOfAnUnfilledShape()
{
    CopyDesk desk;
    pagehost::setFill({desk.shape}, Qt::transparent);
    desk.board.page().select({desk.shape});
    desk.board.key(Qt::Key_C, Qt::ControlModifier | Qt::AltModifier);
    CBaseObject *other = desk.board.draw(arrow, {100, 100}, {200, 200});
    pagehost::setFill({other}, Qt::red);
    desk.board.key(Qt::Key_V, Qt::ControlModifier | Qt::AltModifier);
    const QBrush brush = pagehost::styleOf(other).fill;
    QVERIFY(brush.style() == Qt::NoBrush || brush.color().alpha() == 0);
}

void TestClipboard::nothingSelectedCopiesNothing()
{
    CopyDesk desk;
    desk.copy();
    desk.board.page().select({});
    desk.copy();
    QVERIFY(QGuiApplication::clipboard()->mimeData()->hasFormat(pagehost::objectsMimeType()));
    QVERIFY(!desk.board.action("Copy")->isEnabled());
    desk.cut();
    QCOMPARE(desk.objects().size(), 1);
}

QTEST_MAIN(TestClipboard)
#include "test_clipboard.moc"
