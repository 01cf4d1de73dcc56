#include <support/heap.h>
#include <support/shapefixture.h>

#include <QtTest/QtTest>

using support::heapBytesInUse;
using support::ShapeFixture;
using support::twoPointTemplate;

/// Objects release all of their memory: many lifetimes, regions, outlines and property lists leave nothing behind.
class TestMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLifeLeavesNothingBehind();
    void aRegionReplacesTheLast();
    void anOutlineReplacesTheLast();
    void propertyItemsReplaceTheLast();
};

namespace {

constexpr int warmUps = 200; // caches that fill once
constexpr int rounds = 1000;
/// The allocator keeps some freed blocks at hand, which come to 16 bytes a round; whatever is lost is larger than
/// this.
constexpr qint64 bytesAllowed = rounds * 32;

template<typename Action> qint64 growth(Action action)
{
    for (int i = 0; i < warmUps; ++i)
        action();
    recording::clear();
    const qint64 before = heapBytesInUse();
    for (int i = 0; i < rounds; ++i)
        action();
    recording::clear();
    return heapBytesInUse() - before;
}

struct Outlined : ShapeFixture
{
    Outlined()
        : ShapeFixture(twoPointTemplate())
    {
        shape->keepOutlineRegion = true;
        load();
        shape->updateOutlineRegion();
    }
};

} // namespace

void TestMemory::aLifeLeavesNothingBehind()
{
    const qint64 grown = growth([] {
        Outlined fixture;
        fixture.object.paints = true;
        fixture.object.OnQPainterDraw(nullptr);
        fixture.object.regenRegionShape(nullptr);
        fixture.shape->animator = new CSVGAnimate(nullptr, fixture.shape);
        fixture.shape->animator->startAnimate();
        fixture.shape->animator->stopAnimate();
    });
    QVERIFY2(grown < bytesAllowed, QByteArray::number(grown));
}

void TestMemory::aRegionReplacesTheLast()
{
    Outlined fixture;
    const qint64 grown = growth([&] {
        fixture.object.regenRegionShape(nullptr);
        recording::clear();
    });
    QVERIFY2(grown < bytesAllowed, QByteArray::number(grown));
}

void TestMemory::anOutlineReplacesTheLast()
{
    Outlined fixture;
    const qint64 grown = growth([&] {
        fixture.shape->updateOutlineRegion();
        recording::clear();
    });
    QVERIFY2(grown < bytesAllowed, QByteArray::number(grown));
}

void TestMemory::propertyItemsReplaceTheLast()
{
    Outlined fixture;
    const qint64 grown = growth([&] {
        fixture.shape->initPropItems();
        recording::clear();
    });
    QVERIFY2(grown < bytesAllowed, QByteArray::number(grown));
}

QTEST_MAIN(TestMemory)

#include "test_memory.moc"
