#include "shape/controlpointsize.h"

#include <support/exact.h>
#include <support/listed.h>
#include <support/shapefixture.h>
#include <support/streams.h>

#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using support::bytesOf;
using support::exact;
using support::inputOf;
using support::ShapeFixture;
using support::svgText;
using support::TestShape;
using support::twoPointTemplate;
using support::undoStack;

/// The document-wide pen and fill, and the control points that follow the pen width.
class TestStyling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Getters
    void gettersGiveTheDocumentsValues();
    void thePenWidthIsRoundedHalfUp_data();
    void thePenWidthIsRoundedHalfUp();
    void aPenWidthBeyondIntegersIsClamped();
    void theLargestPenWidthOfTheBaseIsEight();

    // Pen colour and style
    void aPenColourIsSetWithoutRecord();
    void aPenColourIsRecordedFirst();
    void thePresentPenColourIsRecordedAndSetAgain();
    void aPenStyleIsSetWithoutRecord();
    void aPenStyleIsRecordedFirst();
    void thePresentPenStyleIsRecordedAndSetAgain();
    void settersPushNoUndoStep();
    void settersDoNotRepaint();

    // Pen width
    void aPenWidthIsRecordedFirst();
    void aPenWidthIsSetWithoutRecord();
    void aPenWidthOutsideTheRangeIsStoredAsGiven();
    void pointsThatDoNotFollowKeepTheirSize();
    void aShapeWithoutPointsKeepsItsStoredSize();
    void theWidthOfTheFirstPointChangesNoPoint();
    void theWidthOfTheFirstPointIsComparedUnscaled();
    void onlyTheFirstPointIsCompared();
    void aThinPenGivesPointsOfEightPixels();
    void aThickPenGivesPointsOfFiftyPixels();
    void aPenInBetweenGivesPointsOfItsWidth();
    void anOddWidthHalvesAsAWholeNumber();
    void anEvenWidthKeepsTheCentre();
    void everyPointFollows();
    void roundPointsFollowToo();
    void aPointOfUnequalSidesKeepsItsCentre();
    void onlyTheWidthOfTheFirstPointIsCompared();
    void placesAreWorkedOutInOrderToTheLastBit();
    void attributesAreWrittenInOrder();
    void theRectangleIsReadAgainForY();
    void theHookComesBeforeTheStoredSize();
    void theHookOfTheBasePlacesAllPoints();
    void aShapesOwnHookReplacesThat();
    void withACountOfZeroOnlyTheSizeIsStored();
    void aCountBeyondTheTableEndsAtTheTable();
    void aZoomThatIsNoneCountsAsOne();
    void theStoredSizeIsUsedByTheNextLoad();
    void clampedSizes_data();
    void clampedSizes();

    // Fill
    void aFillIsSetAndToldToTheObject();
    void aFillOfThePresentColourIsDropped();
    void aFillThatDiffersInStyleAloneIsDropped();
    void aFillThatDiffersInAlphaAloneIsTaken();
    void aFillIsComparedWithTheDocumentsOwn();
    void aFillIsRecordedAsItsColour();
    void aFillIsSetBeforeTheObjectHears();
    void theOpacityIsTruncated();
    void theThirdArgumentIsNotUsed();
    void aFillWithoutObjectIsSet();
    void theObjectsAnswerEndsWhenColoursMatch();
    void anObjectThatNeverAgreesEndsToo();
    void aRawUpdateSetsTheFillAndNothingElse();
    void aRawUpdateDoesNotCompare();
    void aRawUpdateWithoutDocumentDoesNothing();
    void afterAnEmptiedBrushBlackIsDropped();
    void afterAnEmptiedBrushUndoOfAFillRestoresNothing();
};

namespace {

/// Two control points, 8 × 8 at (10, 20) and (60, 30), that follow the pen width.
class Following : public ShapeFixture
{
public:
    explicit Following(double zoom = 1, const QString &text = twoPointTemplate())
        : ShapeFixture(text, 27, zoom)
    {
        shape->rawControlPoints = true;
        load();
    }
};

/// A loaded shape with a red fill whose object does not answer.
class Filled : public ShapeFixture
{
public:
    Filled()
        : ShapeFixture(twoPointTemplate())
    {
        load();
        shape->document->setAllFillBrush(QBrush(Qt::red));
        recording::clear();
    }
};

} // namespace

void TestStyling::gettersGiveTheDocumentsValues()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->document->setAllStrokeColor(QColor(1, 2, 3, 4));
    fixture.shape->document->setAllStrokeStyle(Qt::DotLine);
    fixture.shape->document->setAllStrokeWidth(6);
    fixture.shape->document->setAllFillBrush(QBrush(Qt::red, Qt::CrossPattern));
    QCOMPARE(fixture.shape->getPenColor(), QColor(1, 2, 3, 4));
    QCOMPARE(fixture.shape->getPenStyle(), Qt::DotLine);
    QCOMPARE(fixture.shape->getPenWidth(), 6);
    QCOMPARE(fixture.shape->getFillBrush(), QBrush(Qt::red, Qt::CrossPattern));
}

void TestStyling::thePenWidthIsRoundedHalfUp_data()
{
    QTest::addColumn<double>("stroke");
    QTest::addColumn<int>("width");
    QTest::newRow("2.5") << 2.5 << 3;
    QTest::newRow("2.49") << 2.49 << 2;
    QTest::newRow("0.5") << 0.5 << 1;
    QTest::newRow("0.4") << 0.4 << 0;
    QTest::newRow("3") << 3.0 << 3;
    QTest::newRow("truncated towards zero") << -2.4 << -1;
}

void TestStyling::thePenWidthIsRoundedHalfUp()
{
    QFETCH(double, stroke);
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->document->setAllStrokeWidth(stroke);
    QTEST(fixture.shape->getPenWidth(), "width");
}

void TestStyling::aPenWidthBeyondIntegersIsClamped()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->document->setAllStrokeWidth(1e300);
    QCOMPARE(fixture.shape->getPenWidth(), std::numeric_limits<int>::max());
    fixture.shape->document->setAllStrokeWidth(-1e300);
    QCOMPARE(fixture.shape->getPenWidth(), std::numeric_limits<int>::min());
    fixture.shape->document->setAllStrokeWidth(2147483646.0);
    QCOMPARE(fixture.shape->getPenWidth(), 2147483646);
    fixture.shape->document->setAllStrokeWidth(qQNaN());
    QCOMPARE(fixture.shape->getPenWidth(), 0);
}

void TestStyling::theLargestPenWidthOfTheBaseIsEight()
{
    const ShapeFixture fixture;
    QCOMPARE(fixture.shape->getMaxPenWidth(), 8);
}

void TestStyling::aPenColourIsSetWithoutRecord()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setPenColor(Qt::red, false);
    QCOMPARE(recording::names({"RecordAction", "setAllStrokeColor"}), QStringList("document.setAllStrokeColor"));
    QCOMPARE(fixture.shape->getPenColor(), QColor(Qt::red));
}

void TestStyling::aPenColourIsRecordedFirst()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setPenColor(Qt::red, true);
    QCOMPARE(recording::names({"RecordAction", "setAllStrokeColor"}),
             QStringList({"object.RecordAction", "document.setAllStrokeColor"}));
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({1002, bytesOf(QColor(Qt::red))}));
}

void TestStyling::thePresentPenColourIsRecordedAndSetAgain()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setPenColor(Qt::red, false);
    fixture.shape->setPenColor(Qt::red, true);
    QCOMPARE(recording::count("setAllStrokeColor"), 2);
    QCOMPARE(recording::count("RecordAction"), 1);
}

void TestStyling::aPenStyleIsSetWithoutRecord()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setPenStyle(Qt::DotLine, false);
    QCOMPARE(recording::names({"RecordAction", "setAllStrokeStyle"}), QStringList("document.setAllStrokeStyle"));
    QCOMPARE(fixture.shape->getPenStyle(), Qt::DotLine);
}

void TestStyling::aPenStyleIsRecordedFirst()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setPenStyle(Qt::DotLine, true);
    QCOMPARE(recording::names({"RecordAction", "setAllStrokeStyle"}),
             QStringList({"object.RecordAction", "document.setAllStrokeStyle"}));
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({1003, bytesOf(qint32(3))}));
}

void TestStyling::thePresentPenStyleIsRecordedAndSetAgain()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setPenStyle(Qt::DotLine, false);
    fixture.shape->setPenStyle(Qt::DotLine, true);
    QCOMPARE(recording::count("setAllStrokeStyle"), 2);
    QCOMPARE(recording::count("RecordAction"), 1);
}

void TestStyling::settersPushNoUndoStep()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setPenColor(Qt::red, true);
    fixture.shape->setPenStyle(Qt::DotLine, true);
    fixture.shape->setPenWidth(5, true);
    fixture.shape->setFillBrush(QBrush(Qt::green), true, true);
    QCOMPARE(undoStack().count(), 0);
}

void TestStyling::settersDoNotRepaint()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setPenColor(Qt::red, true);
    fixture.shape->setPenStyle(Qt::DotLine, true);
    fixture.shape->setPenWidth(5, true);
    QCOMPARE(recording::names({"OnQPainterDraw", "notifyObjPropertyChanged"}), QStringList());
}

void TestStyling::aPenWidthIsRecordedFirst()
{
    Following following;
    following.shape->setPenWidth(5, true);
    QCOMPARE(recording::names({"RecordAction", "setAllStrokeWidth"}),
             QStringList({"object.RecordAction", "document.setAllStrokeWidth"}));
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({1004, bytesOf(qint32(5))}));
}

void TestStyling::aPenWidthIsSetWithoutRecord()
{
    Following following;
    following.shape->setPenWidth(5, false);
    QCOMPARE(recording::count("RecordAction"), 0);
    QCOMPARE(recording::lastArguments("setAllStrokeWidth"), QVariantList({5.0}));
}

void TestStyling::aPenWidthOutsideTheRangeIsStoredAsGiven()
{
    Following following;
    following.shape->setPenWidth(80, true);
    QCOMPARE(recording::lastArguments("setAllStrokeWidth"), QVariantList({80.0}));
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({1004, bytesOf(qint32(80))}));
    following.shape->setPenWidth(-5, false);
    QCOMPARE(recording::lastArguments("setAllStrokeWidth"), QVariantList({-5.0}));
}

void TestStyling::pointsThatDoNotFollowKeepTheirSize()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setPenWidth(20, false);
    QCOMPARE(recording::count("setNumericAttribute"), 0);
    QCOMPARE(recording::calls({"updateAllControlPoints"}).size(), 1);
    QCOMPARE(recording::lastArguments("updateAllControlPoints"), QVariantList({true, true}));
    QCOMPARE(recording::count("updateAfterPenWidthChanged"), 0);
    QCOMPARE(fixture.shape->controlPointSize, 8.0);
    QCOMPARE(fixture.shape->getPenWidth(), 20);
}

void TestStyling::aShapeWithoutPointsKeepsItsStoredSize()
{
    Following following(1, svgText("0 0 100 50", "<rect id='body'/>"));
    following.shape->setPenWidth(20, false);
    QCOMPARE(recording::count("updateAllControlPoints"), 1);
    QCOMPARE(recording::lastArguments("updateAllControlPoints"), QVariantList({true, true}));
    QCOMPARE(recording::count("updateAfterPenWidthChanged"), 0);
    QCOMPARE(following.shape->controlPointSize, 8.0);
}

void TestStyling::theWidthOfTheFirstPointChangesNoPoint()
{
    Following following;
    following.shape->controlPointSize = 99;
    following.shape->setPenWidth(8, false);
    QCOMPARE(recording::count("setNumericAttribute"), 0);
    QCOMPARE(recording::count("updateAfterPenWidthChanged"), 0);
    QCOMPARE(recording::count("updateAllControlPoints"), 1);
    QCOMPARE(recording::lastArguments("updateAllControlPoints"), QVariantList({true, true}));
    QCOMPARE(following.shape->controlPointSize, 99.0);
    QCOMPARE(recording::lastArguments("setAllStrokeWidth"), QVariantList({8.0}));
}

void TestStyling::theWidthOfTheFirstPointIsComparedUnscaled()
{
    // At zoom 2 the points, 8 document units wide, are 16 pixels wide: 16 is no match, 8 is.
    Following following(2);
    following.shape->setPenWidth(8, false);
    QCOMPARE(recording::count("setNumericAttribute"), 0);
    following.shape->setPenWidth(16, false);
    QCOMPARE(recording::count("updateAfterPenWidthChanged"), 1);
}

void TestStyling::onlyTheFirstPointIsCompared()
{
    Following following;
    following.shape->point(2)->setNumericAttribute("width", 20);
    recording::clear();
    following.shape->setPenWidth(20, false);
    QCOMPARE(recording::count("updateAfterPenWidthChanged"), 1);
}

void TestStyling::aThinPenGivesPointsOfEightPixels()
{
    Following following(2);
    following.shape->setPenWidth(3, false);
    // The centre (14, 24) stays; 8 pixels are 4 document units at zoom 2.
    QCOMPARE(exact(following.shape->pointRect(1)), exact(QRectF(12, 22, 4, 4)));
    QCOMPARE(following.shape->point(1)->attribute("rx").toDouble(), 2.0);
    QCOMPARE(following.shape->point(1)->attribute("ry").toDouble(), 2.0);
    QCOMPARE(exact(following.shape->controlPointSize), exact(4.0));
}

void TestStyling::aThickPenGivesPointsOfFiftyPixels()
{
    Following following(2);
    following.shape->setPenWidth(80, false);
    QCOMPARE(exact(following.shape->pointRect(1)), exact(QRectF(1.5, 11.5, 25, 25)));
    QCOMPARE(following.shape->point(1)->attribute("rx").toDouble(), 12.5);
    QCOMPARE(following.shape->point(1)->attribute("ry").toDouble(), 12.5);
    QCOMPARE(exact(following.shape->controlPointSize), exact(25.0));
}

void TestStyling::aPenInBetweenGivesPointsOfItsWidth()
{
    Following following;
    following.shape->setPenWidth(20, false);
    QCOMPARE(exact(following.shape->pointRect(1)), exact(QRectF(4, 14, 20, 20)));
    QCOMPARE(following.shape->point(1)->attribute("rx").toDouble(), 10.0);
    QCOMPARE(exact(following.shape->controlPointSize), exact(20.0));
}

void TestStyling::anOddWidthHalvesAsAWholeNumber()
{
    Following following;
    following.shape->point(1)->setNumericAttribute("y", 10);
    following.shape->setPenWidth(9, false);
    QCOMPARE(exact(following.shape->pointRect(1)), exact(QRectF(10, 10, 9, 9)));
    QCOMPARE(following.shape->point(1)->attribute("rx").toDouble(), 4.0);
    QCOMPARE(following.shape->point(1)->attribute("ry").toDouble(), 4.0);
    QCOMPARE(exact(following.shape->controlPointSize), exact(9.0));
}

void TestStyling::anEvenWidthKeepsTheCentre()
{
    Following following(0.5);
    following.shape->setPenWidth(10, false);
    QCOMPARE(exact(following.shape->pointRect(2).center()), exact(QPointF(64, 34)));
    QCOMPARE(exact(following.shape->pointRect(2).size()), exact(QSizeF(20, 20)));
}

void TestStyling::everyPointFollows()
{
    Following following(1, svgText("0 0 500 50", support::controlPointsText(32)));
    following.shape->setPenWidth(20, false);
    for (int number = 1; number <= 32; ++number)
        QCOMPARE(exact(following.shape->pointRect(number)), exact(QRectF(10 * number - 6, -6, 20, 20)));
}

void TestStyling::roundPointsFollowToo()
{
    Following following(1, svgText("0 0 100 50", "<ellipse id='control_1' cx='14' cy='24' rx='4' ry='4'/>"));
    following.shape->setPenWidth(20, false);
    QCOMPARE(exact(following.shape->pointRect(1)), exact(QRectF(4, 14, 20, 20)));
}

void TestStyling::aPointOfUnequalSidesKeepsItsCentre()
{
    Following following(1, svgText("0 0 100 50", "<rect id='control_1' x='10' y='20' width='8' height='12'/>"));
    following.shape->setPenWidth(20, false);
    QCOMPARE(exact(following.shape->pointRect(1)), exact(QRectF(4, 16, 20, 20)));
}

void TestStyling::onlyTheWidthOfTheFirstPointIsCompared()
{
    Following following(1, svgText("0 0 100 50", "<rect id='control_1' x='10' y='20' width='8' height='12'/>"));
    following.shape->setPenWidth(12, false);
    QCOMPARE(exact(following.shape->pointRect(1)), exact(QRectF(8, 20, 12, 12)));
}

void TestStyling::placesAreWorkedOutInOrderToTheLastBit()
{
    Following following(1, svgText("0 0 100 50", "<rect id='control_1' x='0.1' y='20.3' width='8' height='8'/>"));
    following.shape->setPenWidth(3, false);
    // 0.1 + 4 − 4 is not 0.1.
    QCOMPARE(exact(following.shape->pointRect(1)), exact(QRectF(0.1 + 4.0 - 4.0, 20.3 + 4.0 - 4.0, 8, 8)));
    QVERIFY(following.shape->pointRect(1).x() < 0.1);
}

void TestStyling::attributesAreWrittenInOrder()
{
    Following following;
    following.shape->setPenWidth(20, false);
    QStringList written;
    for (const recording::Call &call : support::listed(recording::calls({"setNumericAttribute"})))
        written.append(call.object + ' ' + call.arguments.first().toString());
    QCOMPARE(written, QStringList({"control_1 x", "control_1 rx", "control_1 y", "control_1 ry", "control_1 width",
                                   "control_1 height", "control_2 x", "control_2 rx", "control_2 y", "control_2 ry",
                                   "control_2 width", "control_2 height"}));
}

void TestStyling::theRectangleIsReadAgainForY()
{
    Following following;
    following.shape->setPenWidth(20, false);
    QStringList steps;
    for (const recording::Call &call : support::listed(recording::calls({"setNumericAttribute", "boundingRect"})))
        if (call.object == "control_2")
            steps.append(call.arguments.isEmpty() ? "read" : call.arguments.first().toString());
    QCOMPARE(steps, QStringList({"read", "x", "rx", "read", "y", "ry", "width", "height"}));
}

void TestStyling::theHookComesBeforeTheStoredSize()
{
    Following following;
    following.shape->setPenWidth(20, false);
    // The hook gets the new size and still finds the old one stored.
    QCOMPARE(recording::lastArguments("updateAfterPenWidthChanged"), QVariantList({20, 8.0}));
    QCOMPARE(following.shape->controlPointSize, 20.0);
    following.shape->setPenWidth(80, false);
    QCOMPARE(recording::lastArguments("updateAfterPenWidthChanged"), QVariantList({50, 20.0}));
}

void TestStyling::theHookOfTheBasePlacesAllPoints()
{
    Following following;
    following.shape->setPenWidth(20, false);
    QCOMPARE(recording::names({"updateAfterPenWidthChanged", "updateAllControlPoints"}),
             QStringList({"shape.updateAfterPenWidthChanged", "shape.updateAllControlPoints"}));
    QCOMPARE(recording::lastArguments("updateAllControlPoints"), QVariantList({true, true}));
}

void TestStyling::aShapesOwnHookReplacesThat()
{
    Following following;
    following.shape->onUpdateAfterPenWidthChanged = [](int) {};
    following.shape->setPenWidth(20, false);
    QCOMPARE(recording::count("updateAllControlPoints"), 0);
    QCOMPARE(following.shape->controlPointSize, 20.0);
}

void TestStyling::withACountOfZeroOnlyTheSizeIsStored()
{
    Following following;
    following.shape->controlPointCount = 0;
    following.shape->setPenWidth(20, false);
    QCOMPARE(recording::count("setNumericAttribute"), 0);
    QCOMPARE(recording::lastArguments("updateAfterPenWidthChanged").constFirst().toInt(), 20);
    QCOMPARE(following.shape->controlPointSize, 20.0);
}

void TestStyling::aCountBeyondTheTableEndsAtTheTable()
{
    Following following;
    following.shape->controlPointCount = 4000000000u;
    following.shape->setPenWidth(20, false);
    QCOMPARE(recording::count("setNumericAttribute"), 12);
}

void TestStyling::aZoomThatIsNoneCountsAsOne()
{
    for (double zoom : {0.0, qQNaN(), qInf(), -2.0, 1e-310}) {
        Following following;
        following.shape->zoomRate = zoom;
        following.shape->setPenWidth(20, false);
        QCOMPARE(exact(following.shape->pointRect(1)), exact(QRectF(4, 14, 20, 20)));
        QCOMPARE(following.shape->controlPointSize, 20.0);
    }
}

void TestStyling::theStoredSizeIsUsedByTheNextLoad()
{
    Following following;
    following.shape->setPenWidth(20, false);
    following.shape->point(1)->setNumericAttribute("width", 8);
    following.shape->loadSVG(false);
    QCOMPARE(following.shape->pointRect(1).width(), 20.0);
}

void TestStyling::clampedSizes_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("pixels");
    QTest::newRow("negative") << -5 << 8;
    QTest::newRow("zero") << 0 << 8;
    QTest::newRow("below") << 7 << 8;
    QTest::newRow("least") << 8 << 8;
    QTest::newRow("between") << 9 << 9;
    QTest::newRow("most") << 50 << 50;
    QTest::newRow("above") << 51 << 50;
}

void TestStyling::clampedSizes()
{
    QFETCH(int, width);
    QTEST(controlPointPixels(width), "pixels");
}

void TestStyling::aFillIsSetAndToldToTheObject()
{
    Filled filled;
    const QBrush brush(QColor(10, 20, 30, 128), Qt::Dense4Pattern);
    filled.shape->setFillBrush(brush, false, true);
    QCOMPARE(filled.shape->document->getAllFillBrush(), brush);
    QCOMPARE(recording::lastArguments("CPageBgProp"), QVariantList({false}));
    // Colour, opacity, enabled, fill type, following the page, record.
    QCOMPARE(recording::lastArguments("object", "setFillProp"),
             QVariantList({QColor(10, 20, 30), 128, true, 1, false, false}));
    QCOMPARE(recording::count("RecordAction"), 0);
}

void TestStyling::aFillOfThePresentColourIsDropped()
{
    Filled filled;
    filled.shape->setFillBrush(QBrush(Qt::red), true, true);
    QCOMPARE(recording::names(), QStringList("shape.setFillBrush"));
}

void TestStyling::aFillThatDiffersInStyleAloneIsDropped()
{
    Filled filled;
    filled.shape->setFillBrush(QBrush(Qt::red, Qt::CrossPattern), true, true);
    QCOMPARE(recording::names(), QStringList("shape.setFillBrush"));
    QCOMPARE(filled.shape->getFillBrush(), QBrush(Qt::red));
}

void TestStyling::aFillThatDiffersInAlphaAloneIsTaken()
{
    Filled filled;
    filled.shape->setFillBrush(QBrush(QColor(255, 0, 0, 254)), false, true);
    QCOMPARE(recording::count("setAllFillBrush"), 1);
}

void TestStyling::aFillIsComparedWithTheDocumentsOwn()
{
    Filled filled;
    filled.shape->onGetFillBrush = [] { return QBrush(Qt::green); };
    filled.shape->setFillBrush(QBrush(Qt::red), false, true);
    QCOMPARE(recording::count("setAllFillBrush"), 0);
    filled.shape->setFillBrush(QBrush(Qt::green), false, true);
    QCOMPARE(recording::count("setAllFillBrush"), 1);
}

void TestStyling::aFillIsRecordedAsItsColour()
{
    Filled filled;
    filled.shape->setFillBrush(QBrush(QColor(10, 20, 30, 128), Qt::CrossPattern), true, true);
    QCOMPARE(recording::count("RecordAction"), 1);
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({1005, bytesOf(QColor(10, 20, 30, 128))}));
}

void TestStyling::aFillIsSetBeforeTheObjectHears()
{
    Filled filled;
    filled.shape->setFillBrush(QBrush(Qt::green), true, true);
    QCOMPARE(recording::names({"RecordAction", "setAllFillBrush", "setFillProp"}),
             QStringList({"object.RecordAction", "document.setAllFillBrush", "object.setFillProp"}));
}

void TestStyling::theOpacityIsTruncated()
{
    Filled filled;
    QColor color(10, 20, 30);
    color.setAlphaF(0.999); // 254.7 of 255
    filled.object.onSetFillProp = [&](CPageBgProp *prop, bool) { QCOMPARE(prop->opacity(), 254); };
    filled.shape->setFillBrush(QBrush(color), false, true);
    QCOMPARE(recording::count("CSVGObj::setFillProp"), 1);
}

void TestStyling::theThirdArgumentIsNotUsed()
{
    Filled filled;
    filled.shape->setFillBrush(QBrush(Qt::green), false, false);
    QCOMPARE(recording::count("object", "setFillProp"), 1);
}

void TestStyling::aFillWithoutObjectIsSet()
{
    TestShape shape(nullptr, twoPointTemplate());
    shape.loadSVG(false);
    shape.document->setAllFillBrush(QBrush(Qt::red));
    recording::clear();
    shape.setFillBrush(QBrush(Qt::green), false, true);
    QCOMPARE(shape.getFillBrush(), QBrush(Qt::green));
    QCOMPARE(recording::count("setFillProp"), 0);
}

void TestStyling::theObjectsAnswerEndsWhenColoursMatch()
{
    Filled filled;
    filled.shape->setFillBrush(QBrush(Qt::green, Qt::CrossPattern), true, true);
    // The object answers with the same colour, which the shape drops.
    QCOMPARE(recording::count("shape", "setFillBrush"), 2);
    QCOMPARE(recording::lastArguments("shape", "setFillBrush"), QVariantList({QBrush(Qt::green), false, true}));
    QCOMPARE(recording::count("setAllFillBrush"), 1);
    QCOMPARE(recording::count("RecordAction"), 1);
}

void TestStyling::anObjectThatNeverAgreesEndsToo()
{
    Filled filled;
    int answers = 0;
    filled.object.onSetFillProp = [&](CPageBgProp *, bool) {
        ++answers;
        filled.shape->setFillBrush(QBrush(QColor(answers % 256, answers / 256 % 256, 9)), false, true);
    };
    filled.shape->setFillBrush(QBrush(Qt::green), false, true);
    QVERIFY2(answers < 1000, qPrintable(QString::number(answers)));
    // The bound is one of nesting: the next change is told again.
    const int before = answers;
    filled.shape->setFillBrush(QBrush(Qt::blue), false, true);
    QVERIFY(answers > before);
}

void TestStyling::aRawUpdateSetsTheFillAndNothingElse()
{
    Filled filled;
    filled.shape->updateBrush(QBrush(Qt::green));
    QCOMPARE(recording::names(), QStringList("document.setAllFillBrush"));
    QCOMPARE(filled.shape->getFillBrush(), QBrush(Qt::green));
}

void TestStyling::aRawUpdateDoesNotCompare()
{
    Filled filled;
    const QBrush patterned(Qt::red, Qt::CrossPattern);
    filled.shape->updateBrush(patterned);
    QCOMPARE(filled.shape->getFillBrush(), patterned);
}

void TestStyling::aRawUpdateWithoutDocumentDoesNothing()
{
    const ShapeFixture fixture(twoPointTemplate());
    fixture.shape->updateBrush(QBrush(Qt::green));
    QCOMPARE(recording::names(), QStringList());
}

void TestStyling::afterAnEmptiedBrushBlackIsDropped()
{
    // An empty brush has the colour opaque black.
    Filled filled;
    filled.shape->updateBrush(QBrush());
    filled.shape->setFillBrush(QBrush(Qt::black), true, true);
    QCOMPARE(filled.shape->getFillBrush(), QBrush());
    QCOMPARE(recording::count("RecordAction"), 0);
}

void TestStyling::afterAnEmptiedBrushUndoOfAFillRestoresNothing()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->propFillEnabled = true;
    fixture.load();
    fixture.shape->document->setAllFillBrush(QBrush(Qt::red));
    fixture.shape->updateBrush(QBrush());
    fixture.shape->setInnerProperty(5005, inputOf(QBrush(Qt::green)), false, true);
    undoStack().undo();
    QCOMPARE(fixture.shape->getFillBrush(), QBrush());
}

QTEST_MAIN(TestStyling)
#include "test_styling.moc"
