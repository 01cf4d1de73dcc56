#include <support/exact.h>
#include <support/listed.h>
#include <support/shapefixture.h>
#include <support/streams.h>

#include <QtTest/QtTest>

#include <limits>

using support::bytesOf;
using support::exact;
using support::ShapeFixture;
using support::svgText;
using support::TestShape;
using support::twoPointTemplate;

/// Placing a control point, by a drag, by playback or by undo, and giving it another size.
class TestPlacing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noPointIsNotPlaced();
    void aPointIsPlacedByItsCorner();
    void aPlaceIsRecordedBeforeAnythingMoves();
    void withoutRecordNothingIsRecorded();
    void thePresentPlaceIsRecordedButNotUpdated();
    void aChangeBelowTheToleranceMovesNothing();
    void onlyTheChangedCoordinateIsWritten_data();
    void onlyTheChangedCoordinateIsWritten();
    void theShapesAnswerIsTheResult();
    void theShapeSeesRefreshAndFinished_data();
    void theShapeSeesRefreshAndFinished();
    void afterwardsFinishedIsSet();
    void whenNothingMovesFinishedStays();
    void theOffsetIsFromThePlaceBefore();
    void aPlaceThatIsNoneMovesNothing();
    void anEndlessCoordinateMovesNothing();
    void theToleranceItselfIsAMove();
    void withoutObjectNothingIsRecorded();

    void aSizeKeepsTheCentre();
    void aSizeIsWrittenInOrder();
    void thePresentSizeWritesNothing();
    void onlyTheWidthIsCompared();
    void theCentreIsThatOfTheRectangleBefore();
    void roundPointsAreSizedToo();
    void noPointIsNotSized();
    void aSizeSettlesAMissingViewBox();
    void aSizeNeverResizesTheObject();
};

namespace {

struct Loaded : ShapeFixture
{
    explicit Loaded(const QString &text = twoPointTemplate())
        : ShapeFixture(text)
    {
        load();
    }
    bool place(QPointF pos, bool record = false)
    {
        return shape->updateSVGControlPoint(shape->point(1), pos, true, record, true);
    }
};

QVector<recording::Call> writes()
{
    return recording::calls({"setNumericAttribute"});
}

} // namespace

void TestPlacing::noPointIsNotPlaced()
{
    Loaded fixture;
    QVERIFY(!fixture.shape->updateSVGControlPoint(nullptr, {1, 2}, true, true, true));
    QCOMPARE(recording::names(), QStringList());
}

void TestPlacing::aPointIsPlacedByItsCorner()
{
    Loaded fixture;
    fixture.place({33, 5});
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(33, 5, 8, 8)));
    QCOMPARE(exact(fixture.shape->pointRect(2)), exact(QRectF(60, 30, 8, 8)));
}

void TestPlacing::aPlaceIsRecordedBeforeAnythingMoves()
{
    Loaded fixture;
    fixture.place({33, 5}, true);
    QCOMPARE(recording::names({"RecordAction", "setNumericAttribute", "updateSVG"}),
             QStringList({"object.RecordAction", "control_1.setNumericAttribute", "control_1.setNumericAttribute",
                          "shape.updateSVG"}));
    QCOMPARE(recording::lastArguments("RecordAction"),
             QVariantList({1001, bytesOf(QString("control_1"), QPointF(33, 5))}));
}

void TestPlacing::withoutRecordNothingIsRecorded()
{
    Loaded fixture;
    fixture.place({33, 5}, false);
    QCOMPARE(recording::count("RecordAction"), 0);
}

void TestPlacing::thePresentPlaceIsRecordedButNotUpdated()
{
    Loaded fixture;
    QVERIFY(!fixture.place({10, 20}, true));
    QCOMPARE(recording::lastArguments("RecordAction"),
             QVariantList({1001, bytesOf(QString("control_1"), QPointF(10, 20))}));
    QCOMPARE(writes().size(), 0);
    QCOMPARE(recording::count("updateSVG"), 0);
}

void TestPlacing::aChangeBelowTheToleranceMovesNothing()
{
    Loaded fixture;
    fixture.shape->onUpdateNode = [](QZeSvgNode *, QPointF, bool) { return true; };
    QVERIFY(!fixture.place({10 + 9e-8, 20 - 9e-8}));
    QCOMPARE(writes().size(), 0);
    QVERIFY(fixture.place({10 + 2e-7, 20}));
    QCOMPARE(exact(fixture.shape->pointRect(1).x()), exact(10 + 2e-7));
}

void TestPlacing::onlyTheChangedCoordinateIsWritten_data()
{
    QTest::addColumn<QPointF>("pos");
    QTest::addColumn<QString>("written");
    QTest::addColumn<QPointF>("delta");
    QTest::newRow("x") << QPointF(13, 20 + 5e-8) << "x" << QPointF(3, 0);
    QTest::newRow("y") << QPointF(10 - 5e-8, 15) << "y" << QPointF(0, -5);
    QTest::newRow("both") << QPointF(13, 15) << "xy" << QPointF(3, -5);
}

void TestPlacing::onlyTheChangedCoordinateIsWritten()
{
    QFETCH(const QPointF, pos);
    QFETCH(const QString, written);
    QFETCH(const QPointF, delta);
    Loaded fixture;
    fixture.place(pos);
    QString names;
    for (const recording::Call &call : support::listed(writes()))
        names += call.arguments.value(0).toString();
    QCOMPARE(names, written);
    QCOMPARE(exact(recording::lastArguments("updateSVG").value(1).toPointF()), exact(delta));
}

void TestPlacing::theShapesAnswerIsTheResult()
{
    Loaded fixture;
    fixture.shape->onUpdateNode = [](QZeSvgNode *, QPointF, bool) { return true; };
    QVERIFY(fixture.place({33, 5}));
    fixture.shape->onUpdateNode = [](QZeSvgNode *, QPointF, bool) { return false; };
    QVERIFY(!fixture.place({34, 5}));
    fixture.shape->onUpdateNode = nullptr; // the base's
    QVERIFY(!fixture.place({35, 5}));
}

void TestPlacing::theShapeSeesRefreshAndFinished_data()
{
    QTest::addColumn<bool>("refresh");
    QTest::addColumn<bool>("finished");
    QTest::newRow("neither") << false << false;
    QTest::newRow("refresh") << true << false;
    QTest::newRow("finished") << false << true;
    QTest::newRow("both") << true << true;
}

void TestPlacing::theShapeSeesRefreshAndFinished()
{
    QFETCH(const bool, refresh);
    QFETCH(const bool, finished);
    Loaded fixture;
    fixture.shape->updateFinished = !finished;
    fixture.shape->updateSVGControlPoint(fixture.shape->point(2), {33, 5}, refresh, false, finished);
    QCOMPARE(recording::lastArguments("updateSVG"),
             QVariantList({"control_2", QPointF(33 - 60, 5 - 30), refresh, finished}));
}

void TestPlacing::afterwardsFinishedIsSet()
{
    Loaded fixture;
    fixture.shape->updateFinished = false;
    fixture.shape->updateSVGControlPoint(fixture.shape->point(1), {33, 5}, false, false, false);
    QVERIFY(fixture.shape->updateFinished);
}

void TestPlacing::whenNothingMovesFinishedStays()
{
    Loaded fixture;
    fixture.shape->updateFinished = false;
    fixture.place({10, 20});
    QVERIFY(!fixture.shape->updateFinished);
}

void TestPlacing::theOffsetIsFromThePlaceBefore()
{
    Loaded fixture;
    recording::svg().boundsFollow = false; // a host whose rectangles follow later
    fixture.place({33, 5});
    QCOMPARE(exact(recording::lastArguments("updateSVG").value(1).toPointF()), exact(QPointF(23, -15)));
}

void TestPlacing::aPlaceThatIsNoneMovesNothing()
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    Loaded fixture;
    QVERIFY(!fixture.place({nan, nan}));
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(10, 20, 8, 8)));
    QCOMPARE(recording::count("updateSVG"), 0);
}

void TestPlacing::anEndlessCoordinateMovesNothing()
{
    constexpr double inf = std::numeric_limits<double>::infinity();
    Loaded fixture;
    fixture.place({inf, 33});
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(10, 33, 8, 8)));
    QCOMPARE(recording::lastArguments("updateSVG").value(1), QVariant(QPointF(0, 13)));
    fixture.place({44, -inf});
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(44, 33, 8, 8)));
    QCOMPARE(recording::lastArguments("updateSVG").value(1), QVariant(QPointF(34, 0)));
}

void TestPlacing::theToleranceItselfIsAMove()
{
    Loaded fixture;
    fixture.place({0, 0});
    fixture.place({1e-7, 1e-7});
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(1e-7, 1e-7, 8, 8)));
}

void TestPlacing::withoutObjectNothingIsRecorded()
{
    TestShape shape(nullptr, twoPointTemplate());
    shape.loadSVG(false);
    recording::clear();
    shape.updateSVGControlPoint(shape.point(1), {33, 5}, true, true, true);
    QCOMPARE(recording::count("RecordAction"), 0);
    QCOMPARE(shape.pointRect(1), QRectF(33, 5, 8, 8));
}

void TestPlacing::aSizeKeepsTheCentre()
{
    Loaded fixture;
    fixture.shape->changeControlPointSize(fixture.shape->point(1), 20, false);
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(4, 14, 20, 20)));
    fixture.shape->changeControlPointSize(fixture.shape->point(1), 5, false);
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(11.5, 21.5, 5, 5)));
}

void TestPlacing::aSizeIsWrittenInOrder()
{
    Loaded fixture;
    fixture.shape->changeControlPointSize(fixture.shape->point(1), 20, false);
    QVariantList written;
    for (const recording::Call &call : support::listed(writes()))
        written.append(QVariant(call.arguments));
    QCOMPARE(written,
             QVariantList({QVariant(QVariantList({"x", 4.0})), QVariant(QVariantList({"y", 14.0})),
                           QVariant(QVariantList({"rx", 10.0})), QVariant(QVariantList({"ry", 10.0})),
                           QVariant(QVariantList({"width", 20.0})), QVariant(QVariantList({"height", 20.0}))}));
}

void TestPlacing::thePresentSizeWritesNothing()
{
    Loaded fixture;
    fixture.shape->changeControlPointSize(fixture.shape->point(1), 8, true);
    QCOMPARE(writes().size(), 0);
    fixture.shape->changeControlPointSize(fixture.shape->point(1), 8 + 1e-12, true); // compared exactly
    QCOMPARE(writes().size(), 6);
}

void TestPlacing::onlyTheWidthIsCompared()
{
    Loaded fixture;
    fixture.shape->point(1)->setAttribute("height", "30");
    recording::clear();
    fixture.shape->changeControlPointSize(fixture.shape->point(1), 8, false);
    QCOMPARE(writes().size(), 0);
    fixture.shape->point(1)->setAttribute("width", "30");
    fixture.shape->point(1)->setAttribute("height", "8");
    fixture.shape->changeControlPointSize(fixture.shape->point(1), 8, false);
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(21, 20, 8, 8)));
}

void TestPlacing::theCentreIsThatOfTheRectangleBefore()
{
    Loaded fixture;
    fixture.shape->point(1)->setAttribute("width", "6");
    fixture.shape->point(1)->setAttribute("height", "30");
    recording::clear();
    fixture.shape->changeControlPointSize(fixture.shape->point(1), 10, false);
    // the centre (13, 35) stays
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(8, 30, 10, 10)));
}

void TestPlacing::roundPointsAreSizedToo()
{
    Loaded fixture(svgText("0 0 100 50", "<ellipse id='control_1' cx='20' cy='30' rx='4' ry='4'/>"));
    fixture.shape->changeControlPointSize(fixture.shape->point(1), 12, false);
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(14, 24, 12, 12)));
}

void TestPlacing::noPointIsNotSized()
{
    Loaded fixture;
    fixture.shape->changeControlPointSize(nullptr, 12, true);
    QCOMPARE(recording::names(), QStringList());
}

void TestPlacing::aSizeSettlesAMissingViewBox()
{
    Loaded fixture(svgText({}, "<rect id='control_1' x='10' y='20' width='8' height='8'/>"));
    fixture.shape->document->setViewBox(QRectF());
    fixture.shape->changeControlPointSize(fixture.shape->point(1), 12, false);
    fixture.place({90, 90}); // the view box is settled by now and stays
    QCOMPARE(exact(fixture.shape->document->viewBox()), exact(QRectF(8, 18, 12, 12)));
}

void TestPlacing::aSizeNeverResizesTheObject()
{
    Loaded fixture;
    for (bool resizeOwner : {true, false})
        fixture.shape->changeControlPointSize(fixture.shape->point(1), resizeOwner ? 300 : 8, resizeOwner);
    QCOMPARE(recording::count("object", "setSize"), 0);
    QCOMPARE(recording::count("OnQPainterDraw"), 0);
    QCOMPARE(recording::count("RecordAction"), 0);
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(0, 0, 100, 50)));
}

QTEST_MAIN(TestPlacing)

#include "test_placing.moc"
