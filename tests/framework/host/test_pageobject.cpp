#include <framework/cbaseobject.h>

#include <pagehost/document.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/recorder.h>

#include "framework/testobject.h"

#include <QtCore/QJsonObject>
#include <QtTest/QtTest>
#include <QtWidgets/QGraphicsView>

#include <limits>

namespace {

const double infinity = std::numeric_limits<double>::infinity();

template<typename Value> Value recordedValue(const QByteArray &payload)
{
    Value value{};
    QDataStream in(payload);
    in >> value;
    return value;
}

/// The object's picture, 20 × 10 pixels at its origin.
QImage painted(CBaseObject &object)
{
    QImage image(20, 10, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    object.OnQPainterDraw(&painter);
    return image;
}

/// Its left half is red.
class HalfRed : public TestObject
{
public:
    using TestObject::TestObject;
    void OnQPainterDraw(QPainter *painter) override
    {
        if (!painter)
            return;
        beginPaint(painter);
        painter->fillRect(QRectF(0, 0, clientRect.width() / 2, clientRect.height() / 2), Qt::red);
        endPaint(painter);
    }
};

} // namespace

class TestPageObject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsFinishedUnlockedAndUnmirrored();
    void offersTheHostsAttributes();
    void hostTypeIsTheItemTypeLessUserType();
    void keepsItsKindNumber();
    void canDoTheHostsOperationsOnly();
    void paintPaintsTheContentAndNothingElse();
    void shapeIsTheRegionOrElseTheClientRectangle();
    void boundingRectangleHoldsRegionAndClientRectangle();

    void paintingIsBracketedBySaveAndRestore();
    void inactivePainterIsLeftAloneSilently();
    void mirroringTurnsTheContentAboutTheCentre();
    void flippingTurnsTheContentUpsideDown();
    void mirroringLeavesTheItemTransformAlone();
    void mirroringRendersThePictureAndTellsTheHost();
    void mirroringIsRecordedWhenAsked();

    void positionIsThatOfTheOrigin();
    void positionOfAChildIsInSceneCoordinates();
    void positionThatIsNoNumberIsIgnored();
    void moveIsRecordedWhenAsked();
    void sizeKeepsTheTopLeftCorner();
    void sizeThatIsNoNumberIsIgnored();
    void negativeSizeBecomesEmpty();
    void sizeIsRecordedWhenAskedAndNotifiesNobody();
    void dragRectangleFollowsTheSize();
    void rotationByAPointKeepsThatPoint_data();
    void rotationByAPointKeepsThatPoint();
    void rotationByAPointFromARotationKeepsThatPoint();
    void rotationThatIsNoNumberIsIgnored();
    void rotationIsRecordedWithThePositionAfterwards();

    void zoomIsThatOfThePagesDocument();
    void findsTheFirstVisibleView();
    void handlesCanBeDisabledAndEnabled();
    void penColorIsKeptAndNotifiedWhenAsked();
    void subTypeIsKept();
    void visibilityIsThatOfTheItem();
    void notificationsReachThePage();
    void replaysItsOwnActions();
    void refusesToReplayWhatItDoesNotKnow();
    void refusesToReplayShortPayloads_data();
    void refusesToReplayShortPayloads();
    void refusesToReplayAColourOfAnUnknownKind();
};

void TestPageObject::beginsFinishedUnlockedAndUnmirrored()
{
    const TestObject object;
    QVERIFY(object.isCreateFinished());
    QVERIFY(!object.isLocked());
    QVERIFY(!object.isMirrored());
    QVERIFY(!object.isFlipped());
    QVERIFY(!object.getFillProp()->isFillEnable());
    QCOMPARE(object.getHostFillBrush(), QBrush());
    QCOMPARE(object.getRegionPath(), nullptr);
    QCOMPARE(object.getSubType(), 0);
    QCOMPARE(object.GetPage(), nullptr);
}

void TestPageObject::offersTheHostsAttributes()
{
    const QList<int> expected{2001, 2002, 2003, 2004, 2010, 2011, 2012, 2013, 2014, 2015, 2050, 2051};
    QCOMPARE(TestObject().getAttributeIds(), expected);
}

void TestPageObject::hostTypeIsTheItemTypeLessUserType()
{
    const TestObject object;
    QCOMPARE(object.type(), int(QGraphicsItem::UserType) + 1000);
    QCOMPARE(object.GetType(), 1000);
}

void TestPageObject::keepsItsKindNumber()
{
    QCOMPARE(TestObject().kind(), 1);
}

void TestPageObject::canDoTheHostsOperationsOnly()
{
    TestObject object;
    const QVector<int> can{0, 1, 2, 10, 11, 20, 21, 22, 23, 24, 36};
    for (int operation = -1; operation <= 1300; ++operation)
        QCOMPARE(object.canDo(OperationType(operation)), can.contains(operation));
}

void TestPageObject::paintPaintsTheContentAndNothingElse()
{
    TestObject object(QSizeF(10, 10));
    object.fillWith(Qt::red);
    object.setSelected(true);
    QImage image(20, 10, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    object.paint(&painter, nullptr, nullptr);
    QCOMPARE(object.paints, 1);
    QCOMPARE(image.pixelColor(5, 5), QColor(Qt::red));
    QCOMPARE(image.pixelColor(12, 5).alpha(), 0);
}

void TestPageObject::shapeIsTheRegionOrElseTheClientRectangle()
{
    TestObject object(QSizeF(10, 10));
    QVERIFY(object.contains(QPointF(9, 9)));
    QVERIFY(!object.contains(QPointF(11, 5)));
    object.regionPath = new QPainterPath;
    QVERIFY(object.contains(QPointF(9, 9)));
    object.regionPath->addRect(0, 0, 4, 4);
    QVERIFY(object.contains(QPointF(3, 3)));
    QVERIFY(!object.contains(QPointF(9, 9)));
}

void TestPageObject::boundingRectangleHoldsRegionAndClientRectangle()
{
    TestObject object(QSizeF(10, 10));
    QVERIFY(object.boundingRect().contains(QRectF(0, 0, 10, 10)));
    QVERIFY(!object.boundingRect().contains(QPointF(30, 5)));
    object.regionPath = new QPainterPath;
    object.regionPath->addRect(-20, -5, 60, 8);
    object.regenRegionShape(nullptr);
    QVERIFY(object.boundingRect().contains(QRectF(-20, -5, 60, 15)));
}

void TestPageObject::paintingIsBracketedBySaveAndRestore()
{
    TestObject object(QSizeF(10, 10));
    QImage image(4, 4, QImage::Format_ARGB32);
    QPainter painter(&image);
    painter.setPen(Qt::blue);
    object.setMirror(true, false, false);
    object.beginPaint(&painter);
    QVERIFY(!painter.transform().isIdentity());
    painter.setPen(Qt::red);
    object.endPaint(&painter);
    QCOMPARE(painter.pen().color(), QColor(Qt::blue));
    QVERIFY(painter.transform().isIdentity());
}

void TestPageObject::inactivePainterIsLeftAloneSilently()
{
    TestObject object;
    QPainter inactive;
    QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
            qFatal("unexpected message: %s", qPrintable(text));
        });
    object.setMirror(true, true, false);
    object.beginPaint(&inactive);
    object.endPaint(&inactive);
    object.beginPaint(nullptr);
    object.endPaint(nullptr);
    qInstallMessageHandler(previous);
    QVERIFY(!inactive.isActive());
}

void TestPageObject::mirroringTurnsTheContentAboutTheCentre()
{
    HalfRed object(QSizeF(20, 10));
    QCOMPARE(painted(object).pixelColor(2, 2), QColor(Qt::red));
    object.setMirror(true, false, false);
    const QImage image = painted(object);
    QCOMPARE(image.pixelColor(2, 2).alpha(), 0);
    QCOMPARE(image.pixelColor(17, 2), QColor(Qt::red));
    QCOMPARE(image.pixelColor(17, 7).alpha(), 0);
}

void TestPageObject::flippingTurnsTheContentUpsideDown()
{
    HalfRed object(QSizeF(20, 10));
    object.setMirror(false, true, false);
    const QImage image = painted(object);
    QCOMPARE(image.pixelColor(2, 2).alpha(), 0);
    QCOMPARE(image.pixelColor(2, 7), QColor(Qt::red));
    QCOMPARE(image.pixelColor(17, 7).alpha(), 0);
}

void TestPageObject::mirroringLeavesTheItemTransformAlone()
{
    TestObject object(QSizeF(20, 10), QPointF(5, 6));
    object.setMirror(true, true, false);
    QCOMPARE(object.sceneTransform(), QTransform::fromTranslate(5, 6));
}

void TestPageObject::mirroringRendersThePictureAndTellsTheHost()
{
    TestObject object;
    object.setMirror(true, false, false);
    QCOMPARE(object.renderings, 1);
    QCOMPARE(object.notifications, QList<int>{1002});
    QVERIFY(object.records.isEmpty());
}

void TestPageObject::mirroringIsRecordedWhenAsked()
{
    TestObject object;
    object.setMirror(false, true, true);
    QCOMPARE(object.records.size(), 1);
    QCOMPARE(object.records.first().first, 104);
    QCOMPARE(object.records.first().second, QByteArray::fromHex("0001"));
}

void TestPageObject::positionIsThatOfTheOrigin()
{
    TestObject object(QSizeF(20, 10), QPointF(5, 6));
    object.setRotation(90);
    QCOMPARE(object.getPos(), QPointF(5, 6));
    QCOMPARE(object.mapToScene(QPointF(0, 0)), QPointF(5, 6));
}

void TestPageObject::positionOfAChildIsInSceneCoordinates()
{
    TestObject parent(QSizeF(20, 10), QPointF(100, 200));
    auto *child = new TestObject(QSizeF(5, 5));
    child->setParentItem(&parent);
    child->CPSRootObject::setPos(QPointF(110, 220), false);
    QCOMPARE(child->pos(), QPointF(10, 20));
    QCOMPARE(child->getPos(), QPointF(110, 220));
}

void TestPageObject::positionThatIsNoNumberIsIgnored()
{
    TestObject object(QSizeF(20, 10), QPointF(5, 6));
    object.CPSRootObject::setPos(QPointF(qQNaN(), 1), true);
    object.CPSRootObject::setPos(QPointF(1, infinity), true);
    QCOMPARE(object.getPos(), QPointF(5, 6));
    QVERIFY(object.records.isEmpty());
}

void TestPageObject::moveIsRecordedWhenAsked()
{
    TestObject object;
    object.CPSRootObject::setPos(QPointF(1, 2), false);
    QVERIFY(object.records.isEmpty());
    object.CPSRootObject::setPos(QPointF(3, 4), true);
    QCOMPARE(object.records.size(), 1);
    QCOMPARE(object.records.first().first, 101);
    QCOMPARE(recordedValue<QPointF>(object.records.first().second), QPointF(3, 4));
}

void TestPageObject::sizeKeepsTheTopLeftCorner()
{
    TestObject object(QSizeF(20, 10), QPointF(5, 6));
    object.setSize(QSizeF(40.5, 30.25), false, true);
    QCOMPARE(object.getClientRect(), QRectF(0, 0, 40.5, 30.25));
    QCOMPARE(object.getPos(), QPointF(5, 6));
}

void TestPageObject::sizeThatIsNoNumberIsIgnored()
{
    TestObject object(QSizeF(20, 10));
    object.setSize(QSizeF(qQNaN(), 5), true, true);
    object.setSize(QSizeF(5, infinity), true, true);
    QCOMPARE(object.getClientRect(), QRectF(0, 0, 20, 10));
    QVERIFY(object.records.isEmpty());
}

void TestPageObject::negativeSizeBecomesEmpty()
{
    TestObject object(QSizeF(20, 10));
    object.setSize(QSizeF(-3, 5), false, false);
    QCOMPARE(object.getClientRect(), QRectF(0, 0, 0, 5));
}

void TestPageObject::sizeIsRecordedWhenAskedAndNotifiesNobody()
{
    TestObject object;
    object.setSize(QSizeF(7, 8), false, true);
    QVERIFY(object.records.isEmpty());
    object.setSize(QSizeF(9, 8), true, true);
    QCOMPARE(object.records.size(), 1);
    QCOMPARE(object.records.first().first, 102);
    QCOMPARE(recordedValue<QSizeF>(object.records.first().second), QSizeF(9, 8));
    QVERIFY(object.notifications.isEmpty());
}

void TestPageObject::dragRectangleFollowsTheSize()
{
    TestObject object;
    object.setSize(QSizeF(7, 8), false, true);
    QCOMPARE(object.dragStart, QPointF(0, 0));
    QCOMPARE(object.dragEnd, QPointF(7, 8));
}

void TestPageObject::rotationByAPointKeepsThatPoint_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<QPointF>("expectedPos");
    // The origin turns about the point: pos + point - R(point).
    QTest::newRow("quarter turn about the centre") << 90.0 << QPointF(50, 30) << QPointF(80 + 100, -20 + 200);
    QTest::newRow("half turn about the centre") << 180.0 << QPointF(50, 30) << QPointF(200, 260);
    QTest::newRow("about the origin") << 90.0 << QPointF(0, 0) << QPointF(100, 200);
    QTest::newRow("about a corner") << 270.0 << QPointF(100, 0) << QPointF(200, 300);
}

void TestPageObject::rotationByAPointKeepsThatPoint()
{
    QFETCH(double, degrees);
    QFETCH(QPointF, point);
    QFETCH(QPointF, expectedPos);
    TestObject object(QSizeF(100, 60), QPointF(100, 200));
    object.setRotateByPoint(degrees, point, false);
    QCOMPARE(object.rotation(), degrees);
    QCOMPARE(object.getPos(), expectedPos);
    QCOMPARE(object.mapToScene(point), QPointF(100, 200) + point);
}

void TestPageObject::rotationByAPointFromARotationKeepsThatPoint()
{
    TestObject object(QSizeF(100, 60), QPointF(100, 200));
    object.setRotateByPoint(90, QPointF(50, 30), false);
    object.setRotateByPoint(0, QPointF(50, 30), false);
    QCOMPARE(object.getPos(), QPointF(100, 200));
}

void TestPageObject::rotationThatIsNoNumberIsIgnored()
{
    TestObject object(QSizeF(100, 60), QPointF(100, 200));
    object.setRotateByPoint(qQNaN(), QPointF(50, 30), true);
    object.setRotateByPoint(10, QPointF(infinity, 30), true);
    QCOMPARE(object.rotation(), 0.0);
    QCOMPARE(object.getPos(), QPointF(100, 200));
    QVERIFY(object.records.isEmpty());
}

void TestPageObject::rotationIsRecordedWithThePositionAfterwards()
{
    TestObject object(QSizeF(100, 60));
    object.setRotateByPoint(180, QPointF(50, 30), true);
    QCOMPARE(object.records.size(), 1);
    QCOMPARE(object.records.first().first, 103);
    double degrees = 0;
    QPointF pos;
    QDataStream in(object.records.first().second);
    in >> degrees >> pos;
    QCOMPARE(degrees, 180.0);
    QCOMPARE(pos, QPointF(100, 60));
}

void TestPageObject::zoomIsThatOfThePagesDocument()
{
    pagehost::Document document;
    pagehost::Page *page = document.appendPage();
    auto *object = new TestObject;
    QCOMPARE(object->getCurZoomRate(), 1.0);
    page->addObject(object);
    document.setZoomRate(2.5);
    QCOMPARE(object->getCurZoomRate(), 2.5);
}

void TestPageObject::findsTheFirstVisibleView()
{
    QGraphicsView hidden;
    QGraphicsView first;
    QGraphicsView second;
    first.show();
    second.show();
    QList<QGraphicsView *> views{nullptr, &hidden, &first, &second};
    QCOMPARE(CPSRootObject::FindFirstVisibleView(views), &first);
    QList<QGraphicsView *> none{&hidden};
    QCOMPARE(CPSRootObject::FindFirstVisibleView(none), nullptr);
}

void TestPageObject::handlesCanBeDisabledAndEnabled()
{
    TestObject object;
    QVERIFY(!object.isHandleDisabled(CObjAction::ACT_ResizeTop));
    object.setHandlesDisable(CObjAction::ACT_ResizeTop, true);
    QVERIFY(object.isHandleDisabled(CObjAction::ACT_ResizeTop));
    QVERIFY(!object.isHandleDisabled(CObjAction::ACT_ResizeLeft));
    object.setHandlesDisable(CObjAction::ACT_ResizeTop, false);
    QVERIFY(!object.isHandleDisabled(CObjAction::ACT_ResizeTop));
}

void TestPageObject::penColorIsKeptAndNotifiedWhenAsked()
{
    TestObject object;
    object.setMyPenColor(QColor(1, 2, 3, 4), false);
    QCOMPARE(object.getMyPen().color(), QColor(1, 2, 3, 4));
    QVERIFY(object.records.isEmpty());
    QVERIFY(object.notifications.isEmpty());
    object.setMyPenColor(Qt::red, true);
    QCOMPARE(object.records.size(), 1);
    QCOMPARE(object.records.first().first, 106);
    QCOMPARE(recordedValue<QColor>(object.records.first().second), QColor(Qt::red));
    QCOMPARE(object.notifications, QList<int>{1002});
}

void TestPageObject::subTypeIsKept()
{
    TestObject object;
    object.setSubType(13001);
    QCOMPARE(object.getSubType(), 13001);
}

void TestPageObject::visibilityIsThatOfTheItem()
{
    TestObject object;
    QVERIFY(object.isVisible());
    object.hide();
    QVERIFY(!object.isVisible());
}

void TestPageObject::notificationsReachThePage()
{
    pagehost::Page page(nullptr);
    auto *object = new TestObject;
    page.addObject(object);
    QVector<QPair<int, QString>> heard;
    connect(&page, &pagehost::Page::objectPropertyChanged, &page,
            [&](CBaseObject *sender, int id, const QString &value) {
                QCOMPARE(sender, static_cast<CBaseObject *>(object));
                heard.append({id, value});
            });
    const quint64 before = page.revision();
    object->notifyObjPropertyChanged(105, QStringLiteral("text"));
    const QVector<QPair<int, QString>> expected{{105, QStringLiteral("text")}};
    QCOMPARE(heard, expected);
    QVERIFY(page.revision() > before);
}

void TestPageObject::replaysItsOwnActions()
{
    TestObject recorded(QSizeF(100, 60));
    recorded.CPSRootObject::setPos(QPointF(3, 4), true);
    recorded.setSize(QSizeF(50, 20), true, false);
    recorded.setRotateByPoint(30, QPointF(25, 10), true);
    recorded.setMirror(true, false, true);
    recorded.setMyPenColor(Qt::green, true);
    CPageBgProp fill(nullptr);
    fill.setFillEnable(true);
    fill.setFillColor(Qt::blue);
    recorded.setFillProp(&fill, true);
    QCOMPARE(recorded.records.size(), 6);

    TestObject replayed(QSizeF(100, 60));
    for (const auto &record : qAsConst(recorded.records)) {
        QDataStream in(record.second);
        QVERIFY(replayed.CPSRootObject::DoPlaybackActionEx(record.first, in));
    }
    QCOMPARE(replayed.getPos(), recorded.getPos());
    QCOMPARE(replayed.rotation(), 30.0);
    QCOMPARE(replayed.getClientRect(), QRectF(0, 0, 50, 20));
    QVERIFY(replayed.isMirrored() && !replayed.isFlipped());
    QCOMPARE(replayed.getMyPen().color(), QColor(Qt::green));
    QVERIFY(*replayed.getFillProp() == fill);
    QVERIFY(replayed.records.isEmpty());
}

void TestPageObject::refusesToReplayWhatItDoesNotKnow()
{
    TestObject object;
    QDataStream in(QByteArray(64, '\0'));
    for (const int id : {0, 100, 108, 1001, 1005})
        QVERIFY(!object.DoPlaybackActionEx(id, in));
    QCOMPARE(in.device()->pos(), 0);
}

void TestPageObject::refusesToReplayShortPayloads_data()
{
    QTest::addColumn<int>("action");
    for (int action = 101; action <= 107; ++action)
        QTest::addRow("action %d", action) << action;
}

void TestPageObject::refusesToReplayShortPayloads()
{
    QFETCH(int, action);
    TestObject object(QSizeF(20, 10), QPointF(5, 6));
    QDataStream in(QByteArray(1, '\1'));
    QVERIFY(!object.DoPlaybackActionEx(action, in));
    QCOMPARE(object.getPos(), QPointF(5, 6));
    QCOMPARE(object.getClientRect(), QRectF(0, 0, 20, 10));
    QVERIFY(!object.isMirrored());
}

void TestPageObject::refusesToReplayAColourOfAnUnknownKind()
{
    TestObject object;
    object.setMyPenColor(Qt::green, false);
    QDataStream in(QByteArray("\x06\xff\xff\0\0\0\0\0\0\0\0", 11));
    QVERIFY(!object.DoPlaybackActionEx(pagehost::ActionPenColored, in));
    QCOMPARE(object.getMyPen().color(), QColor(Qt::green));
}

QTEST_MAIN(TestPageObject)
#include "test_pageobject.moc"
