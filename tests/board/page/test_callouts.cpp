// The tail of a callout on the page, with the mouse: it leaves the balloon's frame, and is all there wherever the
// callout is shown. The balloon stands at (500, 300).

#include <board/boarddriver.h>
#include <board/controlpointprobe.h>

#include <output/objectsimage.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>
#include <pagehost/thumbnailpainter.h>

#include <framework/cbaseobject.h>

#include <QtCore/QDataStream>
#include <QtGui/QPaintEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

#include <utility>

using namespace boardtest;

namespace {

const QColor balloonColor(0xff, 0xf3, 0xc9);
/// Right of the frame; the tail comes from the middle of the balloon's right side.
const QPointF farTip(840, 345);
/// In the tail to it, out of the frame.
const QPointF inTail(740, 345);
/// In the box of callout and tail, on neither of them.
const QPointF besideTail(780, 400);

QByteArray savedBytes(CBaseObject *object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object->save(out);
    return bytes;
}

/// Collects the parts of a widget that are repainted, its coordinates.
class Repaints : public QObject
{
public:
    explicit Repaints(QWidget *widget) { widget->installEventFilter(this); }
    QRegion take()
    {
        QCoreApplication::processEvents();
        return std::exchange(m_region, {});
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_region += static_cast<QPaintEvent *>(event)->region();
        return false;
    }

private:
    QRegion m_region;
};

/// A board with a callout of 200 × 120 that is selected.
struct Desk
{
    Desk()
        : callout(board.draw(QStringLiteral("shapes.callout"), {500, 300}, {700, 420}))
    {
        // Painting tells the shape the zoom, and with it the size of its control points.
        board.view().viewport()->grab();
        board.history().clear();
    }
    QPointF tip() const { return ControlPointProbe(callout).sceneCentre(0); }
    void dragTip(const QPointF &to) { board.drag(tip(), to); }
    /// In the viewport.
    QRect seen(const QRectF &scene) const
    {
        return board.view().mapFromScene(scene.adjusted(1, 1, -1, -1)).boundingRect();
    }

    BoardDriver board;
    CBaseObject *callout;
};

} // namespace

class TestCallouts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tipIsDraggedOutOfTheFrame();
    void dragIsOneStepThatComesBack();
    void escapeBringsTheTipBack();
    void tailIsRepaintedWhereItIsAndWas();
    void clickOnTheTailSelects();
    void copyHasATailOfItsOwn();
    void tailIsInPicturesAndThumbnails();
};

void TestCallouts::tipIsDraggedOutOfTheFrame()
{
    Desk desk;
    desk.dragTip(farTip);
    QCOMPARE(desk.tip(), farTip);
    // There are 4 around the tip.
    QCOMPARE(desk.board.placeOf(desk.callout), QRectF(500, 300, 344, 120));
    const QPointF above(560, 200);
    desk.dragTip(above);
    QCOMPARE(desk.tip(), above);
    QCOMPARE(desk.board.placeOf(desk.callout), QRectF(500, 196, 200, 224));
}

void TestCallouts::dragIsOneStepThatComesBack()
{
    Desk desk;
    const QByteArray before = savedBytes(desk.callout);
    desk.dragTip(farTip);
    QCOMPARE(desk.board.history().count(), 1);
    const QByteArray after = savedBytes(desk.callout);
    QVERIFY(after != before);
    desk.board.history().undo();
    QCOMPARE(savedBytes(desk.callout), before);
    desk.board.history().redo();
    QCOMPARE(savedBytes(desk.callout), after);
}

void TestCallouts::escapeBringsTheTipBack()
{
    Desk desk;
    const QByteArray before = savedBytes(desk.callout);
    desk.board.hold(desk.tip(), farTip);
    QVERIFY(savedBytes(desk.callout) != before);
    desk.board.key(Qt::Key_Escape);
    desk.board.release(farTip);
    QCOMPARE(savedBytes(desk.callout), before);
    QCOMPARE(desk.board.history().count(), 0);
}

void TestCallouts::tailIsRepaintedWhereItIsAndWas()
{
    Desk desk;
    Repaints repaints(desk.board.view().viewport());
    const QRect far = desk.seen({500, 300, 344, 120});
    repaints.take();
    desk.dragTip(farTip);
    QCOMPARE(QRegion(far) - repaints.take(), QRegion());
    desk.dragTip({524, 414});
    QCOMPARE(desk.board.placeOf(desk.callout), QRectF(500, 300, 200, 120));
    QCOMPARE(QRegion(far) - repaints.take(), QRegion());
    desk.board.history().undo();
    QCOMPARE(QRegion(far) - repaints.take(), QRegion());
}

void TestCallouts::clickOnTheTailSelects()
{
    Desk desk;
    desk.dragTip(farTip);
    desk.board.page().select({});
    desk.board.click(besideTail);
    QCOMPARE(desk.board.selection(), {});
    desk.board.click(inTail);
    QCOMPARE(desk.board.selection(), {desk.callout});
}

void TestCallouts::copyHasATailOfItsOwn()
{
    Desk desk;
    desk.dragTip(farTip);
    const QByteArray before = savedBytes(desk.callout);
    desk.board.key(Qt::Key_D, Qt::ControlModifier);
    CBaseObject *copy = desk.board.page().objects().constLast();
    QVERIFY(copy != desk.callout);
    QCOMPARE(copy->getClientRect().size(), QSizeF(344, 120));
    const QPointF tip = ControlPointProbe(copy).sceneCentre(0);
    const QPointF shift = desk.board.placeOf(copy).topLeft() - QPointF(500, 300);
    QCOMPARE(tip, farTip + shift);
    desk.board.drag(tip, tip + QPointF(60, 0));
    QCOMPARE(desk.board.placeOf(copy), QRectF(500, 300, 404, 120).translated(shift));
    QCOMPARE(savedBytes(desk.callout), before);
}

void TestCallouts::tailIsInPicturesAndThumbnails()
{
    Desk desk;
    desk.dragTip(farTip);
    desk.board.page().select({});
    const board::ObjectsImage picture = board::imageOf({desk.callout}, 1);
    QVERIFY(picture.area.left() <= 501 && picture.area.right() >= farTip.x());
    QCOMPARE(picture.image.pixelColor((inTail - picture.area.topLeft()).toPoint()), balloonColor);
    QImage thumbnail;
    pagehost::ThumbnailPainter painter;
    connect(&painter, &pagehost::ThumbnailPainter::ready, this,
            [&](pagehost::Page *, const QImage &made) { thumbnail = made; });
    painter.request(&desk.board.page(), QSize(1280, 720));
    painter.finish();
    QCOMPARE(thumbnail.size(), QSize(1280, 720));
    QCOMPARE(thumbnail.pixelColor(inTail.toPoint()), balloonColor);
}

QTEST_MAIN(TestCallouts)
#include "test_callouts.moc"
