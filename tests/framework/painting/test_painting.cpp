#include <pagehost/page.h>
#include <pagehost/pagepainter.h>
#include <pagehost/pagescene.h>
#include <pagehost/thumbnailpainter.h>

#include "framework/testobject.h"

#include <support/listed.h>
#include <support/virtualtime.h>

#include <QtCore/QMutex>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtCore/QThread>
#include <QtTest/QtTest>

#include <atomic>

using pagehost::Page;
using pagehost::ThumbnailPainter;

namespace {

/// Milliseconds from a request to the first time that workers paint, and no further.
constexpr int untilTheFirstWindow = 14;

std::atomic<bool> g_guiThreadIsBusy{false};
std::atomic<int> g_overlaps{0};

/// Paints a picture of itself, in other threads too, and notes who asked when.
class PictureObject : public TestObject
{
public:
    PictureObject(const QSizeF &size, const QPointF &pos, const QColor &color)
        : TestObject(size, pos)
        , m_color(color)
    {
    }
    void OnQPainterDraw(QPainter *painter) override
    {
        if (!painter)
            return;
        if (g_guiThreadIsBusy && QThread::currentThread() != QCoreApplication::instance()->thread())
            ++g_overlaps;
        {
            QMutexLocker lock(&mutex);
            threads.insert(QThread::currentThreadId());
            ++pictures;
        }
        support::spend(slowness);
        painter->fillRect(getClientRect(), m_color);
    }

    int slowness = 0; ///< microseconds
    QMutex mutex;
    QSet<Qt::HANDLE> threads;
    int pictures = 0;

private:
    QColor m_color;
};

struct Pictures
{
    explicit Pictures(ThumbnailPainter &painter)
    {
        QObject::connect(&painter, &ThumbnailPainter::ready, &painter, [this](Page *page, const QImage &picture) {
            pages.append(page);
            images.append(picture);
        });
    }
    QVector<Page *> pages;
    QVector<QImage> images;
};

/// 100 × 50, red in the left half, with an object on top of the middle that is hidden.
struct SmallPage : Page
{
    SmallPage()
        : Page(nullptr, QSizeF(100, 50))
    {
        red = new PictureObject(QSizeF(50, 50), QPointF(0, 0), Qt::red);
        hidden = new PictureObject(QSizeF(100, 50), QPointF(0, 0), Qt::green);
        addObject(red);
        addObject(hidden);
        hidden->hide();
    }
    PictureObject *red;
    PictureObject *hidden;
};

} // namespace

class TestPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void imageShowsBackgroundThenObjectsInOrder();
    void imageHasThePagesSizeTimesTheScale();
    void impossibleImageSizesGiveNull_data();
    void impossibleImageSizesGiveNull();
    void hiddenObjectsAreNotPainted();
    void rotatedObjectsAreTurned();
    void objectOpacityCounts();
    void handlesAreNotPainted();
    void pageIsFittedIntoTheTargetAndClipped();
    void painterIsLeftAsItWas();
    void pictureBackgroundIsStretched();
    void disabledBackgroundLeavesTheTargetAlone();

    void thumbnailShowsThePage();
    void thumbnailKeepsTheAspectRatio();
    void thumbnailIsPaintedByOtherThreadsOnly();
    void thumbnailsArriveByThemselves();
    void emptyPageGivesItsBackground();
    void requestForAWaitingPageTakesTheNewSize();
    void changedPageIsBegunAnew();
    void deletedPageIsForgotten();
    void deletedObjectIsNotPainted();
    void manyPagesArriveOnceEach();
    void noWorkerPaintsWhileTheGuiThreadWorks();
    void nonsenseRequestsAreIgnored();
    void listenerMayAskForMore();
};

void TestPainting::imageShowsBackgroundThenObjectsInOrder()
{
    Page page(nullptr, QSizeF(100, 50));
    page.addObject(new PictureObject(QSizeF(60, 50), QPointF(0, 0), Qt::red));
    page.addObject(new PictureObject(QSizeF(20, 50), QPointF(20, 0), Qt::blue));
    const QImage image = pagehost::pageImage(&page, 1);
    QCOMPARE(image.pixelColor(10, 25), QColor(Qt::red));
    QCOMPARE(image.pixelColor(30, 25), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(50, 25), QColor(Qt::red));
    QCOMPARE(image.pixelColor(80, 25), QColor(Qt::white));
}

void TestPainting::imageHasThePagesSizeTimesTheScale()
{
    Page page(nullptr, QSizeF(100, 50));
    QCOMPARE(pagehost::pageImage(&page, 1).size(), QSize(100, 50));
    QCOMPARE(pagehost::pageImage(&page, 2.5).size(), QSize(250, 125));
    QCOMPARE(pagehost::pageImage(&page, 0.01).size(), QSize(1, 1));
}

void TestPainting::impossibleImageSizesGiveNull_data()
{
    QTest::addColumn<double>("scale");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative") << -1.0;
    QTest::newRow("not a number") << qQNaN();
    QTest::newRow("infinite") << qInf();
    QTest::newRow("too many pixels") << 300.0;
    QTest::newRow("far too many pixels") << 1e300;
}

void TestPainting::impossibleImageSizesGiveNull()
{
    QFETCH(double, scale);
    Page page(nullptr, QSizeF(100, 50));
    QVERIFY(pagehost::pageImage(&page, scale).isNull());
}

void TestPainting::hiddenObjectsAreNotPainted()
{
    SmallPage page;
    QCOMPARE(pagehost::pageImage(&page, 1).pixelColor(80, 25), QColor(Qt::white));
    QCOMPARE(page.hidden->pictures, 0);
}

void TestPainting::rotatedObjectsAreTurned()
{
    Page page(nullptr, QSizeF(100, 100));
    auto *object = new PictureObject(QSizeF(80, 20), QPointF(10, 40), Qt::red);
    page.addObject(object);
    object->setRotateByPoint(90, QPointF(40, 10), false);
    const QImage image = pagehost::pageImage(&page, 1);
    QCOMPARE(image.pixelColor(50, 15), QColor(Qt::red));
    QCOMPARE(image.pixelColor(50, 85), QColor(Qt::red));
    QCOMPARE(image.pixelColor(15, 50), QColor(Qt::white));
}

void TestPainting::objectOpacityCounts()
{
    SmallPage page;
    page.red->setOpacity(0.5);
    const QColor color = pagehost::pageImage(&page, 1).pixelColor(25, 25);
    QCOMPARE(color.red(), 255);
    QVERIFY(qAbs(color.green() - 128) <= 1);
}

void TestPainting::handlesAreNotPainted()
{
    SmallPage page;
    const QImage before = pagehost::pageImage(&page, 1);
    page.red->setSelected(true);
    QCOMPARE(pagehost::pageImage(&page, 1), before);
}

void TestPainting::pageIsFittedIntoTheTargetAndClipped()
{
    Page page(nullptr, QSizeF(100, 50));
    page.addObject(new PictureObject(QSizeF(400, 400), QPointF(-100, -100), Qt::red));
    QImage image(200, 200, QImage::Format_ARGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    // 200 × 100 in the middle.
    pagehost::paintPage(&page, &painter, image.rect());
    QCOMPARE(image.pixelColor(100, 48), QColor(Qt::black));
    QCOMPARE(image.pixelColor(100, 52), QColor(Qt::red));
    QCOMPARE(image.pixelColor(2, 148), QColor(Qt::red));
    QCOMPARE(image.pixelColor(100, 152), QColor(Qt::black));
}

void TestPainting::painterIsLeftAsItWas()
{
    SmallPage page;
    QImage image(20, 20, QImage::Format_ARGB32);
    QPainter painter(&image);
    painter.setPen(Qt::blue);
    painter.translate(1, 2);
    pagehost::paintPage(&page, &painter, QRectF(0, 0, 20, 20));
    QCOMPARE(painter.pen().color(), QColor(Qt::blue));
    QCOMPARE(painter.transform(), QTransform::fromTranslate(1, 2));
    QVERIFY(!painter.hasClipping());
    pagehost::paintPage(&page, &painter, QRectF());
    QCOMPARE(page.red->pictures, 1);
}

void TestPainting::pictureBackgroundIsStretched()
{
    Page page(nullptr, QSizeF(100, 50));
    QPixmap picture(2, 1);
    picture.fill(Qt::red);
    CPageBgProp background = page.background();
    background.setFillType(CPageBgProp::PictureFill);
    background.setPixmap(picture);
    page.setBackground(background);
    const QImage image = pagehost::pageImage(&page, 1);
    QCOMPARE(image.pixelColor(1, 1), QColor(Qt::red));
    QCOMPARE(image.pixelColor(98, 48), QColor(Qt::red));
}

void TestPainting::disabledBackgroundLeavesTheTargetAlone()
{
    Page page(nullptr, QSizeF(100, 50));
    CPageBgProp background = page.background();
    background.setFillEnable(false);
    page.setBackground(background);
    QCOMPARE(pagehost::pageImage(&page, 1).pixelColor(50, 25).alpha(), 0);
}

void TestPainting::thumbnailShowsThePage()
{
    SmallPage page;
    ThumbnailPainter painter;
    const Pictures pictures(painter);
    painter.request(&page, QSize(50, 25));
    QVERIFY(!painter.isIdle());
    painter.finish();
    QVERIFY(painter.isIdle());
    QCOMPARE(pictures.pages, QVector<Page *>{&page});
    const QImage image = pictures.images.first();
    QCOMPARE(image.size(), QSize(50, 25));
    QCOMPARE(image.pixelColor(12, 12), QColor(Qt::red));
    QCOMPARE(image.pixelColor(40, 12), QColor(Qt::white));
}

void TestPainting::thumbnailKeepsTheAspectRatio()
{
    SmallPage page;
    ThumbnailPainter painter;
    const Pictures pictures(painter);
    painter.request(&page, QSize(60, 60));
    painter.finish();
    QCOMPARE(pictures.images.first().size(), QSize(60, 30));
}

void TestPainting::thumbnailIsPaintedByOtherThreadsOnly()
{
    SmallPage page;
    ThumbnailPainter painter;
    painter.request(&page, QSize(50, 25));
    painter.finish();
    QCOMPARE(page.red->pictures, 1);
    QVERIFY(!page.red->threads.contains(QThread::currentThreadId()));
}

void TestPainting::thumbnailsArriveByThemselves()
{
    SmallPage page;
    ThumbnailPainter painter;
    const Pictures pictures(painter);
    painter.request(&page, QSize(50, 25));
    support::pass(untilTheFirstWindow);
    QCOMPARE(pictures.pages.size(), 1);
    QVERIFY(painter.isIdle());
}

void TestPainting::emptyPageGivesItsBackground()
{
    Page page(nullptr, QSizeF(100, 50));
    ThumbnailPainter painter;
    const Pictures pictures(painter);
    painter.request(&page, QSize(10, 5));
    painter.finish();
    QCOMPARE(pictures.images.first().pixelColor(5, 2), QColor(Qt::white));
}

void TestPainting::requestForAWaitingPageTakesTheNewSize()
{
    SmallPage page;
    ThumbnailPainter painter;
    const Pictures pictures(painter);
    painter.request(&page, QSize(50, 25));
    painter.request(&page, QSize(20, 10));
    painter.finish();
    QCOMPARE(pictures.images.size(), 1);
    QCOMPARE(pictures.images.first().size(), QSize(20, 10));
}

void TestPainting::changedPageIsBegunAnew()
{
    Page page(nullptr, QSizeF(100, 50));
    for (int i = 0; i < 20; ++i) {
        auto *object = new PictureObject(QSizeF(50, 50), QPointF(0, 0), Qt::red);
        object->slowness = 2000;
        page.addObject(object);
    }
    ThumbnailPainter painter;
    const Pictures pictures(painter);
    painter.request(&page, QSize(50, 25));
    auto *first = static_cast<PictureObject *>(page.objects().constFirst());
    support::pass(untilTheFirstWindow);
    QCOMPARE(first->pictures, 1);
    QVERIFY(pictures.images.isEmpty());
    for (CBaseObject *object : support::listed(page.objects()))
        object->CPSRootObject::setPos(QPointF(50, 0), false);
    painter.finish();
    QCOMPARE(first->pictures, 2);
    QCOMPARE(pictures.images.size(), 1);
    QCOMPARE(pictures.images.first().pixelColor(12, 12), QColor(Qt::white));
    QCOMPARE(pictures.images.first().pixelColor(37, 12), QColor(Qt::red));
}

void TestPainting::deletedPageIsForgotten()
{
    auto *page = new SmallPage;
    ThumbnailPainter painter;
    const Pictures pictures(painter);
    painter.request(page, QSize(50, 25));
    delete page;
    painter.finish();
    QVERIFY(painter.isIdle());
    QVERIFY(pictures.pages.isEmpty());
}

void TestPainting::deletedObjectIsNotPainted()
{
    Page page(nullptr, QSizeF(100, 50));
    QVector<QPointer<CBaseObject>> objects;
    for (int i = 0; i < 30; ++i) {
        auto *object = new PictureObject(QSizeF(5, 50), QPointF(0, 0), Qt::red);
        object->slowness = 1000;
        page.addObject(object);
        objects.append(object);
    }
    ThumbnailPainter painter;
    const Pictures pictures(painter);
    painter.request(&page, QSize(50, 25));
    support::pass(untilTheFirstWindow);
    QCOMPARE(static_cast<PictureObject *>(objects.first().data())->pictures, 1);
    for (const auto &object : qAsConst(objects))
        page.removeObject(object);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!objects.last());
    painter.finish();
    QCOMPARE(pictures.images.size(), 1);
    QCOMPARE(pictures.images.first().pixelColor(1, 12), QColor(Qt::white));
}

void TestPainting::manyPagesArriveOnceEach()
{
    std::vector<std::unique_ptr<SmallPage>> pages;
    ThumbnailPainter painter;
    painter.setWorkerCount(3);
    const Pictures pictures(painter);
    QSet<Page *> expected;
    for (int i = 0; i < 20; ++i) {
        pages.push_back(std::make_unique<SmallPage>());
        expected.insert(pages.back().get());
        painter.request(pages.back().get(), QSize(50, 25));
    }
    painter.finish();
    QCOMPARE(pictures.pages.size(), 20);
    QCOMPARE(QSet<Page *>(pictures.pages.begin(), pictures.pages.end()), expected);
}

void TestPainting::noWorkerPaintsWhileTheGuiThreadWorks()
{
    Page page(nullptr, QSizeF(100, 50));
    for (int i = 0; i < 50; ++i) {
        auto *object = new PictureObject(QSizeF(5, 50), QPointF(0, 0), Qt::red);
        object->slowness = 500;
        page.addObject(object);
    }
    ThumbnailPainter painter;
    const Pictures pictures(painter);
    g_overlaps = 0;
    QTimer work;
    connect(&work, &QTimer::timeout, [] {
        g_guiThreadIsBusy = true;
        QThread::yieldCurrentThread();
        g_guiThreadIsBusy = false;
    });
    work.start(1);
    painter.request(&page, QSize(50, 25));
    QVERIFY(support::passUntil([&] { return pictures.images.size() == 1; }));
    QCOMPARE(g_overlaps.load(), 0);
}

void TestPainting::nonsenseRequestsAreIgnored()
{
    SmallPage page;
    ThumbnailPainter painter;
    painter.request(nullptr, QSize(50, 25));
    painter.request(&page, QSize(0, 25));
    painter.request(&page, QSize());
    QVERIFY(painter.isIdle());
}

void TestPainting::listenerMayAskForMore()
{
    SmallPage page;
    ThumbnailPainter painter;
    int count = 0;
    connect(&painter, &ThumbnailPainter::ready, &painter, [&](Page *ready) {
        if (++count < 3)
            painter.request(ready, QSize(10, 5));
    });
    painter.request(&page, QSize(50, 25));
    painter.finish();
    QCOMPARE(count, 3);
}

QTEST_MAIN(TestPainting)
#include "test_painting.moc"
