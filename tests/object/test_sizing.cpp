#include <support/exact.h>
#include <support/listed.h>
#include <support/shapefixture.h>

#include <QtTest/QtTest>

#include <cmath>
#include <limits>

using support::exact;
using support::ShapeFixture;
using support::TestObject;
using support::twoPointTemplate;

/// Which size a page object really gets when the host asks for one.
class TestSizing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMinimumIsTheCoresInWholeUnits();
    void eachSideIsRaisedOnItsOwn();
    void withoutCoreTheMinimumIsOne();
    void theDefaultSizeIsTheCores();
    void withoutCoreTheDefaultSizeIsThirty();
    void sizesAreLimitedToTheRatio();

    void aRequestBelowTheMinimumIsRaisedBeforeTheAspect();
    void theAspectResultIsNotRaisedAgain();
    void theAspectOfTheLastSizeIsKept();
    void aNeverSizedObjectBecomesSquare();
    void theAspectFollowsEveryAppliedSize();
    void withoutAspectTheRequestIsTaken();
    void withoutCoreTheRequestIsTakenUnchanged();

    void aScaledShapeIsNeverAskedToRewrite();
    void aRewritingShapeIsToldBothSizes();
    void aRewritingShapeComesBeforeTheHost();
    void aSizeEqualWithinTheToleranceIsNotTold();
    void aChangeOfOneSideIsTold_data();
    void aChangeOfOneSideIsTold();
    void anUnchangedSizeStillRefreshesTheOutline();
    void theOutlineIsRefreshedByType_data();
    void theOutlineIsRefreshedByType();
    void theOutlineIsRefreshedWhenForced();
    void aRealResizeOfARewritingShapeRendersTwice();

    void aFinalSizeSetsRectangleDragAndBase();
    void aFinalSizeIsRecomputedFromTheDragPoints();
    void anEqualSizeWritesNoRectangle();
    void theSizeChangeIsToldWithTextThatIsEmptyButNotNull();
    void aFinalSizeTellsHostThenRendersThenNotifies();
    void theHostsFlagIsPassedOn();
    void everyAppliedSizeRendersAndNotifiesOnce_data();
    void everyAppliedSizeRendersAndNotifiesOnce();
};

namespace {

/// A loaded shape whose rewriting does nothing.
struct RewritingFixture : ShapeFixture
{
    explicit RewritingFixture(int type = 27)
        : ShapeFixture(twoPointTemplate(), type)
    {
        shape->resizeRewritesSVG = true;
        shape->keepAspectRatio = false;
        shape->onSetSize = [](QSizeF, QSizeF) {};
        load();
    }
};

} // namespace

void TestSizing::theMinimumIsTheCoresInWholeUnits()
{
    ShapeFixture fixture;
    fixture.shape->onGetMinimizeSize = [] { return QSizeF(16.7, 16.2); };
    QSizeF size(10, 100);
    fixture.object.validateSize(size);
    QCOMPARE(exact(size), exact(QSizeF(16, 100)));
    QSizeF between(16.5, 16.1);
    fixture.object.validateSize(between);
    QCOMPARE(exact(between), exact(QSizeF(16.5, 16.1)));
}

void TestSizing::eachSideIsRaisedOnItsOwn()
{
    ShapeFixture fixture;
    fixture.shape->onGetMinimizeSize = [] { return QSizeF(20, 40); };
    QSizeF low(100, 10);
    fixture.object.validateSize(low);
    QCOMPARE(exact(low), exact(QSizeF(100, 40)));
    QSizeF narrow(-3, 50);
    fixture.object.validateSize(narrow);
    QCOMPARE(exact(narrow), exact(QSizeF(20, 50)));
}

void TestSizing::withoutCoreTheMinimumIsOne()
{
    TestObject object;
    QSizeF size(0.5, 0.5);
    object.validateSize(size);
    QCOMPARE(exact(size), exact(QSizeF(1, 1)));
}

void TestSizing::theDefaultSizeIsTheCores()
{
    ShapeFixture fixture;
    fixture.shape->onGetDefaultSVGSize = [] { return QSizeF(12, 34); };
    QCOMPARE(fixture.object.getDefaultSize(), QSizeF(12, 34));
}

void TestSizing::withoutCoreTheDefaultSizeIsThirty()
{
    TestObject object;
    QCOMPARE(object.getDefaultSize(), QSizeF(30, 30));
}

void TestSizing::sizesAreLimitedToTheRatio()
{
    TestObject object;
    QCOMPARE(exact(object.limitSize({300, 300}, {200, 100})), exact(QSizeF(300, 150)));
    QCOMPARE(exact(object.limitSize({300, 100}, {200, 100})), exact(QSizeF(200, 100)));
}

void TestSizing::aRequestBelowTheMinimumIsRaisedBeforeTheAspect()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->onGetMinimizeSize = [] { return QSizeF(16.7, 16.2); };
    fixture.load();
    fixture.shape->keepAspectRatio = false;
    fixture.object.setSize({10, 100}, false, false);
    QCOMPARE(exact(fixture.object.clientRect.size()), exact(QSizeF(16, 100)));
}

void TestSizing::theAspectResultIsNotRaisedAgain()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->onGetMinimizeSize = [] { return QSizeF(16.7, 16.2); };
    fixture.place(QRectF(0, 0, 200, 100));
    fixture.load();
    fixture.object.setSize({10, 100}, false, false);
    QCOMPARE(exact(fixture.object.clientRect.size()), exact(QSizeF(16, 8)));
}

void TestSizing::theAspectOfTheLastSizeIsKept()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.place(QRectF(0, 0, 200, 100));
    fixture.load();
    fixture.object.setSize({300, 300}, false, false);
    QCOMPARE(exact(fixture.object.clientRect.size()), exact(QSizeF(300, 150)));
}

void TestSizing::aNeverSizedObjectBecomesSquare()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.object.baseSize = QSizeF(-1, -1);
    fixture.object.setSize({50, 80}, false, false);
    QCOMPARE(exact(fixture.object.clientRect.size()), exact(QSizeF(80, 80)));
}

void TestSizing::theAspectFollowsEveryAppliedSize()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.place(QRectF(0, 0, 200, 100));
    fixture.load();
    fixture.object.setSize2({90, 30}, false);
    fixture.object.setSize({60, 60}, false, false);
    QCOMPARE(exact(fixture.object.clientRect.size()), exact(QSizeF(60, 20)));
}

void TestSizing::withoutAspectTheRequestIsTaken()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.place(QRectF(0, 0, 200, 100));
    fixture.load();
    fixture.shape->keepAspectRatio = false;
    fixture.object.setSize({300, 300}, false, false);
    QCOMPARE(exact(fixture.object.clientRect.size()), exact(QSizeF(300, 300)));
}

void TestSizing::withoutCoreTheRequestIsTakenUnchanged()
{
    TestObject object;
    object.place(QRectF(0, 0, 20, 10));
    object.setSize({0.5, 0.5}, false, false);
    QCOMPARE(exact(object.clientRect.size()), exact(QSizeF(0.5, 0.5)));
    QCOMPARE(recording::lastArguments("object", "setSize"), QVariantList({QSizeF(0.5, 0.5), false, true}));
}

void TestSizing::aScaledShapeIsNeverAskedToRewrite()
{
    for (int type : {0, 27}) {
        ShapeFixture fixture(twoPointTemplate(), type);
        fixture.load();
        QVERIFY(!fixture.shape->resizeRewritesSVG);
        for (bool forceOutline : {false, true})
            fixture.object.setSize({200, 100}, false, forceOutline);
        QCOMPARE(recording::count("shape", "setSize"), 0);
        QCOMPARE(recording::count("updateOutlineRegion"), 0);
        QCOMPARE(recording::count("object", "setSize"), 2);
    }
}

void TestSizing::aRewritingShapeIsToldBothSizes()
{
    RewritingFixture fixture;
    fixture.object.setSize({160, 70}, false, false);
    QCOMPARE(recording::calls("shape", "setSize").size(), 1);
    QCOMPARE(recording::lastArguments("shape", "setSize"), QVariantList({QSizeF(100, 50), QSizeF(160, 70)}));
}

void TestSizing::aRewritingShapeComesBeforeTheHost()
{
    RewritingFixture fixture(26);
    QSizeF duringRewrite;
    fixture.shape->onSetSize = [&](QSizeF, QSizeF) { duringRewrite = fixture.object.clientRect.size(); };
    fixture.object.setSize({160, 70}, false, false);
    QCOMPARE(duringRewrite, QSizeF(100, 50));
    QCOMPARE(recording::names({"setSize", "updateOutlineRegion", "OnQPainterDraw", "notifyObjPropertyChanged"}),
             QStringList({"shape.setSize", "shape.updateOutlineRegion", "object.setSize", "object.OnQPainterDraw",
                          "object.notifyObjPropertyChanged"}));
}

void TestSizing::aSizeEqualWithinTheToleranceIsNotTold()
{
    RewritingFixture fixture;
    fixture.object.setSize({100 + 9e-8, 50 - 9e-8}, false, false);
    QCOMPARE(recording::count("shape", "setSize"), 0);
    QCOMPARE(exact(fixture.object.clientRect.size()), exact(QSizeF(100 + 9e-8, 50 - 9e-8)));
}

void TestSizing::aChangeOfOneSideIsTold_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("wider") << QSizeF(100 + 2e-7, 50);
    QTest::newRow("narrower") << QSizeF(100 - 2e-7, 50);
    QTest::newRow("higher") << QSizeF(100, 50 + 2e-7);
    QTest::newRow("lower") << QSizeF(100, 50 - 2e-7);
}

void TestSizing::aChangeOfOneSideIsTold()
{
    QFETCH(const QSizeF, size);
    RewritingFixture fixture;
    fixture.object.setSize(size, false, false);
    QCOMPARE(recording::count("shape", "setSize"), 1);
}

void TestSizing::anUnchangedSizeStillRefreshesTheOutline()
{
    RewritingFixture fixture(26);
    fixture.object.setSize({100, 50}, false, false);
    QCOMPARE(recording::names({"setSize", "updateOutlineRegion", "OnQPainterDraw", "notifyObjPropertyChanged"}),
             QStringList({"shape.updateOutlineRegion", "object.setSize", "object.OnQPainterDraw",
                          "object.notifyObjPropertyChanged"}));
}

void TestSizing::theOutlineIsRefreshedByType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("refreshes");
    QTest::newRow("0") << 0 << 1;
    QTest::newRow("26") << 26 << 1;
    QTest::newRow("1000") << 1000 << 1;
    QTest::newRow("27") << 27 << 0;
    QTest::newRow("999") << 999 << 0;
    QTest::newRow("1001") << 1001 << 0;
}

void TestSizing::theOutlineIsRefreshedByType()
{
    QFETCH(const int, type);
    QFETCH(const int, refreshes);
    RewritingFixture fixture(type);
    fixture.object.setSize({160, 70}, false, false);
    QCOMPARE(recording::count("updateOutlineRegion"), refreshes);
}

void TestSizing::theOutlineIsRefreshedWhenForced()
{
    RewritingFixture fixture(27);
    fixture.object.setSize({160, 70}, false, true);
    QCOMPARE(recording::count("updateOutlineRegion"), 1);
}

void TestSizing::aRealResizeOfARewritingShapeRendersTwice()
{
    RewritingFixture fixture;
    fixture.shape->onSetSize = nullptr; // the base's, which moves the control points
    fixture.object.setSize({160, 70}, false, false);
    QCOMPARE(recording::count("OnQPainterDraw"), 2);
    QCOMPARE(recording::count("notifyObjPropertyChanged"), 2);
    for (const recording::Call &call : support::listed(recording::calls("object", "notifyObjPropertyChanged")))
        QCOMPARE(call.arguments, QVariantList({105, ""}));
}

void TestSizing::aFinalSizeSetsRectangleDragAndBase()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.place(QRectF(3, 4, 10, 10));
    fixture.load();
    fixture.object.dragStart = QPointF(77, 88);
    fixture.object.setSize2({120, 60}, false);
    QCOMPARE(exact(fixture.object.dragStart), exact(QPointF(3, 4)));
    QCOMPARE(exact(fixture.object.dragEnd), exact(QPointF(123, 64)));
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(3, 4, 120, 60)));
    QCOMPARE(exact(fixture.object.baseSize), exact(QSizeF(120, 60)));
}

void TestSizing::aFinalSizeIsRecomputedFromTheDragPoints()
{
    TestObject object;
    // Doubles near 1e16 are even numbers: the end point at +3 becomes +4.
    object.place(QRectF(1e16, 0, 10, 10));
    object.setSize2({3, 5}, false);
    QCOMPARE(exact(object.dragEnd), exact(QPointF(1e16 + 4, 5)));
    QCOMPARE(exact(object.baseSize), exact(QSizeF(4, 5)));
    QCOMPARE(recording::lastArguments("object", "setSize"), QVariantList({QSizeF(3, 5), false, true}));
}

/// 0 and -0 are equal, but not the same bits: who writes one over the other is seen.
void TestSizing::anEqualSizeWritesNoRectangle()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.place({0, 0, -0.0, 50});
    fixture.load();
    fixture.object.setSize2({0.0, 50}, false);
    QVERIFY(std::signbit(fixture.object.clientRect.width()));
    QVERIFY(!std::signbit(fixture.object.baseSize.width()));
    fixture.object.setSize2({std::numeric_limits<double>::min(), 50}, false);
    QCOMPARE(exact(fixture.object.clientRect.width()), exact(std::numeric_limits<double>::min()));
}

void TestSizing::theSizeChangeIsToldWithTextThatIsEmptyButNotNull()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.object.setSize2({60, 30}, false);
    const QVariantList told = recording::lastArguments("notifyObjPropertyChanged");
    QCOMPARE(told, QVariantList({105, QString("")}));
    QVERIFY(!told[1].toString().isNull());
}

void TestSizing::aFinalSizeTellsHostThenRendersThenNotifies()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.object.setSize2({120, 60}, false);
    QCOMPARE(recording::names(),
             QStringList({"object.setSize", "object.OnQPainterDraw", "object.notifyObjPropertyChanged"}));
    QCOMPARE(recording::lastArguments("object", "setSize"), QVariantList({QSizeF(120, 60), false, true}));
    QCOMPARE(recording::lastArguments("OnQPainterDraw"), QVariantList({false}));
    QCOMPARE(recording::lastArguments("notifyObjPropertyChanged"), QVariantList({105, ""}));
}

void TestSizing::theHostsFlagIsPassedOn()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    for (bool rewrites : {false, true}) {
        fixture.shape->resizeRewritesSVG = rewrites;
        for (bool flag : {false, true}) {
            fixture.object.setSize({200, 100}, flag, false);
            QCOMPARE(recording::lastArguments("object", "setSize"), QVariantList({QSizeF(200, 100), flag, true}));
        }
    }
    TestObject coreless;
    coreless.setSize({200, 100}, true, false);
    QCOMPARE(recording::lastArguments("object", "setSize"), QVariantList({QSizeF(200, 100), true, true}));
}

void TestSizing::everyAppliedSizeRendersAndNotifiesOnce_data()
{
    QTest::addColumn<bool>("hasCore");
    QTest::addColumn<bool>("rewrites");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("no core, changed") << false << false << QSizeF(20, 20);
    QTest::newRow("no core, same") << false << false << QSizeF(100, 50);
    QTest::newRow("scaled, changed") << true << false << QSizeF(200, 100);
    QTest::newRow("scaled, same") << true << false << QSizeF(100, 50);
    QTest::newRow("rewriting, same") << true << true << QSizeF(100, 50);
}

void TestSizing::everyAppliedSizeRendersAndNotifiesOnce()
{
    QFETCH(const bool, hasCore);
    QFETCH(const bool, rewrites);
    QFETCH(const QSizeF, size);
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->resizeRewritesSVG = rewrites;
    fixture.load();
    if (!hasCore) {
        delete fixture.object.svgBase;
        fixture.object.svgBase = nullptr;
        recording::clear();
    }
    fixture.object.setSize(size, false, false);
    QCOMPARE(recording::count("OnQPainterDraw"), 1);
    QCOMPARE(recording::count("notifyObjPropertyChanged"), 1);
    QCOMPARE(recording::lastArguments("notifyObjPropertyChanged"), QVariantList({105, ""}));
}

QTEST_MAIN(TestSizing)

#include "test_sizing.moc"
