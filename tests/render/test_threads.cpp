#include "render/messagecatcher.h"

#include <support/shapefixture.h>

#include <QtGui/QPaintEngine>
#include <QtTest/QtTest>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <vector>

using support::TestShape;
using support::twoPointTemplate;

/// Painting from threads that do not own the page object: they copy the picture and touch nothing else.
class TestThreads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anotherThreadCopiesThePicture();
    void thePictureIsStretchedIntoTheClientRectangle();
    void anotherThreadCallsNeitherHostNorCore();
    void theWholeOfALyingPictureIsCopied();
    void theWholeOfAStandingPictureIsCopied();
    void beforeTheFirstRenderingNothingIsCopied();
    void aCopyIsMadeUnderTheLock();
    void aRenderingIsMadeUnderTheLock();
    void aCopyLetsTheLockGo();
    void withoutPainterAnotherThreadRenders();
    void copiesNeverSeeAHalfDrawnPicture();
};

namespace {

/// A page object whose drawing operation is the library's own, nothing logged.
class PlainObject : public CSVGObj
{
public:
    PlainObject()
        : CSVGObj(0, true, nullptr)
    {
    }
    TestShape *makeCore()
    {
        auto *core = new TestShape(this, twoPointTemplate());
        svgBase = core;
        return core;
    }
    void place(QRectF rect) { clientRect = rect; }

    using CSVGObj::cacheImage;
    using CSVGObj::cacheMutex;

    QString kindName() const override { return QStringLiteral("IDS_TEST_SHAPE"); }
    bool createSVGBase(int, bool) override { return false; }
};

/// The object's painting on a transparent picture of that size, in another thread.
QImage copyInAnotherThread(CSVGObj &object, QSize size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        QPainter painter(&image);
        object.OnQPainterDraw(&painter);
    }));
    thread->start();
    thread->wait();
    return image;
}

/// Four quarters of 1 × 1: red, green, blue, white.
QImage quarters()
{
    QImage image(2, 2, QImage::Format_ARGB32);
    image.setPixelColor(0, 0, Qt::red);
    image.setPixelColor(1, 0, Qt::green);
    image.setPixelColor(0, 1, Qt::blue);
    image.setPixelColor(1, 1, Qt::white);
    return image;
}

constexpr int pictureSide = 32;
constexpr int workerCount = 4;
constexpr int copiesWanted = 60;

/// Whether another thread could take the mutex now.
bool isFree(QMutex &mutex)
{
    bool taken = false;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        taken = mutex.tryLock();
        if (taken)
            mutex.unlock();
    }));
    thread->start();
    thread->wait();
    return taken;
}

/// Calls a function whenever an image is painted, and paints nothing.
class ImageWatch : public QPaintDevice
{
public:
    explicit ImageWatch(const std::function<void()> &watch)
        : m_engine(watch)
    {
    }
    QPaintEngine *paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        return metric == PdmWidth || metric == PdmHeight ? pictureSide : QPaintDevice::metric(metric);
    }

private:
    class Engine : public QPaintEngine
    {
    public:
        explicit Engine(const std::function<void()> &watch)
            : QPaintEngine(AllFeatures)
            , m_watch(watch)
        {
        }
        bool begin(QPaintDevice *) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState &) override {}
        void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { m_watch(); }
        void drawImage(const QRectF &, const QImage &, const QRectF &, Qt::ImageConversionFlags) override
        {
            m_watch();
        }
        Type type() const override { return User; }

    private:
        std::function<void()> m_watch;
    };
    mutable Engine m_engine;
};

/// Copies the picture a number of times and looks at what it got.
class Copier : public QThread
{
public:
    explicit Copier(CSVGObj &object)
        : m_object(object)
    {
    }
    int mixed = 0;

protected:
    void run() override
    {
        for (int i = 0; i < copiesWanted; ++i) {
            QImage image(pictureSide, pictureSide, QImage::Format_ARGB32);
            image.fill(Qt::transparent);
            {
                QPainter painter(&image);
                m_object.OnQPainterDraw(&painter);
            }
            mixed += !isOneColor(image);
            yieldCurrentThread();
        }
    }

private:
    static bool isOneColor(const QImage &image)
    {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                if (image.pixel(x, y) != image.pixel(0, 0) || qAlpha(image.pixel(x, y)) != 255)
                    return false;
        }
        return true;
    }

    CSVGObj &m_object;
};

} // namespace

void TestThreads::anotherThreadCopiesThePicture()
{
    PlainObject object;
    object.place({3, 4, 2, 2});
    object.cacheImage = quarters();
    QImage expected(10, 10, QImage::Format_ARGB32);
    expected.fill(Qt::transparent);
    QPainter painter(&expected);
    painter.drawImage(3, 4, quarters());
    painter.end();
    QCOMPARE(copyInAnotherThread(object, {10, 10}), expected);
}

void TestThreads::thePictureIsStretchedIntoTheClientRectangle()
{
    PlainObject object;
    object.place({2, 1, 6, 4});
    object.cacheImage = quarters();
    const QImage copy = copyInAnotherThread(object, {10, 10});
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 10; ++x) {
            const bool inside = x >= 2 && x < 8 && y >= 1 && y < 5;
            const QRgb expected = inside ? quarters().pixel(x < 5 ? 0 : 1, y < 3 ? 0 : 1) : 0;
            QCOMPARE(copy.pixel(x, y), expected);
        }
    }
}

void TestThreads::anotherThreadCallsNeitherHostNorCore()
{
    PlainObject object;
    object.place({0, 0, 40, 20});
    object.makeCore()->loadSVG(false);
    QVERIFY(!object.cacheImage.isNull());
    recording::clear();
    copyInAnotherThread(object, {40, 20});
    QCOMPARE(recording::names(), QStringList());
}

void TestThreads::theWholeOfALyingPictureIsCopied()
{
    PlainObject object;
    object.place({1, 1, 4, 2});
    object.cacheImage = QImage(4, 2, QImage::Format_ARGB32);
    object.cacheImage.fill(Qt::red);
    object.cacheImage.setPixelColor(3, 1, Qt::blue);
    const QImage copy = copyInAnotherThread(object, {6, 4});
    QCOMPARE(copy.copy(1, 1, 4, 2), object.cacheImage);
}

void TestThreads::theWholeOfAStandingPictureIsCopied()
{
    PlainObject object;
    object.place({1, 1, 2, 4});
    object.cacheImage = QImage(2, 4, QImage::Format_ARGB32);
    object.cacheImage.fill(Qt::red);
    object.cacheImage.setPixelColor(1, 3, Qt::blue);
    const QImage copy = copyInAnotherThread(object, {4, 6});
    QCOMPARE(copy.copy(1, 1, 2, 4), object.cacheImage);
}

void TestThreads::beforeTheFirstRenderingNothingIsCopied()
{
    PlainObject object;
    object.place({0, 0, 40, 20});
    object.makeCore();
    recording::clear();
    const MessageCatcher catcher;
    QImage transparent(40, 20, QImage::Format_ARGB32);
    transparent.fill(Qt::transparent);
    QCOMPARE(copyInAnotherThread(object, {40, 20}), transparent);
    QCOMPARE(recording::names(), QStringList());
    QCOMPARE(catcher.messages(), QStringList());
}

void TestThreads::aCopyIsMadeUnderTheLock()
{
    PlainObject object;
    object.place({0, 0, 2, 2});
    object.cacheImage = quarters();
    int copies = 0;
    bool wasFree = false;
    ImageWatch watch([&] {
        ++copies;
        wasFree = wasFree || isFree(object.cacheMutex);
    });
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        QPainter painter(&watch);
        object.OnQPainterDraw(&painter);
    }));
    thread->start();
    thread->wait();
    QCOMPARE(copies, 1);
    QVERIFY(!wasFree);
}

void TestThreads::aRenderingIsMadeUnderTheLock()
{
    recording::resetSvg();
    PlainObject object;
    object.place({0, 0, pictureSide, pictureSide});
    TestShape *core = object.makeCore();
    core->loadSVG(false);
    int drawings = 0;
    bool wasFree = false;
    recording::svg().drawHook = [&](QPainter *) {
        ++drawings;
        wasFree = wasFree || isFree(object.cacheMutex);
    };
    object.OnQPainterDraw(nullptr);
    recording::resetSvg();
    QCOMPARE(drawings, 1);
    QVERIFY(!wasFree);
    QVERIFY(isFree(object.cacheMutex));
}

void TestThreads::aCopyLetsTheLockGo()
{
    PlainObject object;
    object.place({0, 0, 2, 2});
    object.cacheImage = quarters();
    copyInAnotherThread(object, {2, 2});
    QVERIFY(object.cacheMutex.tryLock());
    object.cacheMutex.unlock();
}

void TestThreads::withoutPainterAnotherThreadRenders()
{
    PlainObject object;
    object.makeCore()->loadSVG(false);
    object.place({0, 0, 40, 20});
    recording::clear();
    const std::unique_ptr<QThread> thread(QThread::create([&] { object.OnQPainterDraw(nullptr); }));
    thread->start();
    thread->wait();
    QCOMPARE(object.cacheImage.size(), QSize(40, 20));
    QCOMPARE(recording::lastArguments("shape", "paint"), QVariantList({true}));
}

void TestThreads::copiesNeverSeeAHalfDrawnPicture()
{
    recording::resetFramework();
    recording::resetSvg();
    PlainObject object;
    object.place({0, 0, pictureSide, pictureSide});
    TestShape *core = object.makeCore();
    const std::array<QColor, 3> colors{Qt::red, Qt::green, Qt::blue};
    QColor color = colors[0];
    recording::svg().drawHook = [&color](QPainter *painter) {
        painter->fillRect(QRect(0, 0, pictureSide / 2, pictureSide), color);
        QThread::yieldCurrentThread();
        painter->fillRect(QRect(pictureSide / 2, 0, pictureSide / 2, pictureSide), color);
    };
    core->loadSVG(false); // renders for the first time

    std::vector<std::unique_ptr<Copier>> copiers;
    for (int i = 0; i < workerCount; ++i) {
        copiers.push_back(std::make_unique<Copier>(object));
        copiers.back()->start();
    }
    const auto isBusy = [](const std::unique_ptr<Copier> &copier) { return !copier->isFinished(); };
    for (int rendering = 0; std::any_of(copiers.begin(), copiers.end(), isBusy); ++rendering) {
        color = colors[rendering % colors.size()];
        object.OnQPainterDraw(nullptr);
        recording::clear();
        QThread::yieldCurrentThread();
    }
    for (const auto &copier : copiers) {
        copier->wait();
        QCOMPARE(copier->mixed, 0);
    }
    recording::resetSvg();
}

QTEST_MAIN(TestThreads)

#include "test_threads.moc"
