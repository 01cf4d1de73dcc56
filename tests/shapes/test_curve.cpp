// The curve: chosen functions and formulas, beside points of its own. A new one is 236 x 120 and shows -5 to 5
// across 220 and -3 to 3 along 104 document units, 8 inside of its frame.

#include <shapes/shapedriver.h>

#include <checklist/recordedactions.h>
#include <checklist/states.h>

#include <support/listed.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtGui/QPainterPath>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using shapetest::ShapeDriver;

namespace {

/// Entries of the choice of functions.
enum Function { OwnPoints, Written, Line, Parabola };
constexpr int absolute = 5;
constexpr int hyperbola = 7;
constexpr int lastFunction = 12;

struct Curve : ShapeDriver
{
    Curve()
        : ShapeDriver(QStringLiteral("curve"))
    {
        createByClick();
        select();
    }
    void set(const QString &id, const QString &value) const { checklist::answer(*this, {{id, value}}); }
    void choose(int function) const { set(QStringLiteral("idFunction"), QString::number(function)); }
    void write(const QString &formula) const
    {
        choose(Written);
        set(QStringLiteral("idFormula"), formula);
    }
    QPainterPath figure() const
    {
        painted();
        return document().namedNode(QStringLiteral("figure"))->path();
    }
    QString text() const
    {
        painted();
        return document().namedNode(QStringLiteral("figure"))->attribute(QStringLiteral("d"));
    }
    int pieces() const { return text().count(QLatin1Char('M')); }
    QJsonObject control(const QString &id) const
    {
        for (const QJsonValue &control : support::listed(checklist::settingsOf(*this)))
            if (control[QStringLiteral("id")] == id)
                return control.toObject();
        return {};
    }
    QStringList controls() const
    {
        QStringList ids;
        for (const QJsonValue &control : support::listed(checklist::settingsOf(*this)))
            ids.append(control[QStringLiteral("id")].toString());
        return ids;
    }
};

QPointF placed(double x, double y)
{
    return {8 + (x + 5) * 22, 112 - (y + 3) * 104 / 6};
}

/// Whether the line leads past the place.
bool leadsThrough(const QPainterPath &figure, QPointF place)
{
    QPainterPathStroker pen;
    pen.setWidth(1.5);
    return pen.createStroke(figure).contains(place);
}

} // namespace

class TestCurve : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewCurveHasPointsOfItsOwn();
    void aChosenFunctionIsDrawn();
    void everyChoiceDraws_data();
    void everyChoiceDraws();
    void aWrittenFormulaIsDrawn();
    void thePanelShowsTheSettingsOfTheKindOfCurve();
    void aMistakeLeavesTheLastGoodCurve();
    void aMistakeIsToldWithItsPlace();
    void aMistakeAndItsCurveAreSaved_data();
    void aMistakeAndItsCurveAreSaved();
    void undoBringsTheFormerFunctionBack();
    void theWindowIsSet();
    void endsInTheWrongOrderAreTaken();
    void polesSplitTheCurve();
    void aCurveWithoutValuesIsTakenHoldOfAnywhere();
    void pointsShowOnlyWhereTheyCount();
    void pointsComeBackAsTheyWere();
    void aLessonShowsTheFormula();
    void earlierCurvesLookTheSame();
    void monstrousTextsAreCut();
};

void TestCurve::aNewCurveHasPointsOfItsOwn()
{
    const Curve curve;
    QCOMPARE(curve.control(QStringLiteral("idFunction"))[QStringLiteral("index")].toInt(), int(OwnPoints));
    QVERIFY(curve.document().namedNode(QStringLiteral("control_1"))->isVisible());
}

void TestCurve::aChosenFunctionIsDrawn()
{
    const Curve curve;
    curve.choose(absolute);
    const QPainterPath figure = curve.figure();
    for (const double x : {-2.5, -1.0, 0.0, 0.5, 2.9})
        QVERIFY2(leadsThrough(figure, placed(x, qAbs(x))), qPrintable(QString::number(x)));
    QVERIFY(!leadsThrough(figure, placed(1, 0)));
    QCOMPARE(curve.pieces(), 1);
}

void TestCurve::everyChoiceDraws_data()
{
    QTest::addColumn<int>("function");
    for (int function = OwnPoints; function <= lastFunction; ++function)
        QTest::addRow("%d", function) << function;
}

void TestCurve::everyChoiceDraws()
{
    QFETCH(int, function);
    const Curve curve;
    curve.choose(function);
    QCOMPARE(curve.control(QStringLiteral("idFunction"))[QStringLiteral("index")].toInt(), function);
    QVERIFY(!curve.figure().isEmpty());
    QVERIFY(QRectF(0, 0, 236, 120).contains(curve.figure().boundingRect()));
}

void TestCurve::aWrittenFormulaIsDrawn()
{
    const Curve curve;
    curve.write(QStringLiteral("y = x^2 - 3"));
    const QPainterPath figure = curve.figure();
    for (const double x : {-2.0, 0.0, 1.5})
        QVERIFY(leadsThrough(figure, placed(x, x * x - 3)));
}

void TestCurve::thePanelShowsTheSettingsOfTheKindOfCurve()
{
    const Curve curve;
    QVERIFY(curve.controls().contains(QStringLiteral("idValues")));
    QVERIFY(!curve.controls().contains(QStringLiteral("idFormula")));
    QVERIFY(!curve.controls().contains(QStringLiteral("idXFrom")));
    curve.choose(Parabola);
    QVERIFY(!curve.controls().contains(QStringLiteral("idValues")));
    QVERIFY(!curve.controls().contains(QStringLiteral("idFormula")));
    QVERIFY(curve.controls().contains(QStringLiteral("idXFrom")));
    curve.choose(Written);
    QVERIFY(curve.controls().contains(QStringLiteral("idFormula")));
}

void TestCurve::aMistakeLeavesTheLastGoodCurve()
{
    const Curve curve;
    curve.write(QStringLiteral("x^2"));
    const QString good = curve.text();
    curve.write(QStringLiteral("x^2 +"));
    QCOMPARE(curve.text(), good);
    QCOMPARE(curve.control(QStringLiteral("idFormula"))[QStringLiteral("value")].toString(),
             QStringLiteral("x^2 +"));
}

void TestCurve::aMistakeIsToldWithItsPlace()
{
    const Curve curve;
    curve.write(QStringLiteral("2 + foo"));
    const QJsonObject control = curve.control(QStringLiteral("idFormula"));
    QCOMPARE(control[QStringLiteral("arguments")].toArray(),
             (QJsonArray{QStringLiteral("5"), QStringLiteral("foo")}));
    const QString key = control[QStringLiteral("message")].toString();
    QCOMPARE(curve.plugin()->texts(QStringLiteral("en")).value(key),
             QStringLiteral("There is no “%2” (character %1)."));
    QVERIFY(!curve.plugin()->texts(QStringLiteral("de")).value(key).isEmpty());
    curve.write(QStringLiteral("2 + x"));
    QVERIFY(!curve.control(QStringLiteral("idFormula")).contains(QStringLiteral("message")));
}

void TestCurve::aMistakeAndItsCurveAreSaved_data()
{
    QTest::addColumn<bool>("isJson");
    QTest::newRow("binary") << false;
    QTest::newRow("JSON") << true;
}

void TestCurve::aMistakeAndItsCurveAreSaved()
{
    QFETCH(bool, isJson);
    const Curve curve;
    curve.write(QStringLiteral("x/2"));
    curve.write(QStringLiteral("x//2"));
    const Curve opened;
    if (isJson) {
        QJsonObject json;
        curve.object().saveJson(json);
        QVERIFY(opened.object().loadJson(json));
    } else {
        QVERIFY(checklist::open(opened, checklist::savedBytes(curve)));
    }
    QCOMPARE(opened.text(), curve.text());
    QCOMPARE(opened.control(QStringLiteral("idFormula"))[QStringLiteral("value")].toString(),
             QStringLiteral("x//2"));
}

void TestCurve::undoBringsTheFormerFunctionBack()
{
    const Curve curve;
    curve.write(QStringLiteral("x"));
    const QByteArray first = checklist::savedBytes(curve);
    const QString look = curve.text();
    curve.set(QStringLiteral("idFormula"), QStringLiteral("nonsense"));
    const QByteArray wrong = checklist::savedBytes(curve);
    curve.set(QStringLiteral("idFormula"), QStringLiteral("-x"));
    const QByteArray second = checklist::savedBytes(curve);
    curve.undoStack().undo();
    QCOMPARE(checklist::savedBytes(curve), wrong);
    QCOMPARE(curve.text(), look);
    curve.undoStack().undo();
    QCOMPARE(checklist::savedBytes(curve), first);
    curve.undoStack().redo();
    curve.undoStack().redo();
    QCOMPARE(checklist::savedBytes(curve), second);
}

void TestCurve::theWindowIsSet()
{
    const Curve curve;
    curve.choose(Line);
    curve.set(QStringLiteral("idXFrom"), QStringLiteral("0"));
    curve.set(QStringLiteral("idXTo"), QStringLiteral("2"));
    curve.set(QStringLiteral("idYFrom"), QStringLiteral("0"));
    curve.set(QStringLiteral("idYTo"), QStringLiteral("2"));
    QCOMPARE(curve.figure().boundingRect(), QRectF(8, 8, 220, 104));
}

void TestCurve::endsInTheWrongOrderAreTaken()
{
    const Curve curve;
    curve.choose(Parabola);
    curve.set(QStringLiteral("idXFrom"), QStringLiteral("2"));
    curve.set(QStringLiteral("idXTo"), QStringLiteral("1"));
    const QString look = curve.text();
    curve.set(QStringLiteral("idXFrom"), QStringLiteral("1"));
    curve.set(QStringLiteral("idXTo"), QStringLiteral("2"));
    QCOMPARE(curve.text(), look);
    curve.set(QStringLiteral("idXTo"), QStringLiteral("1"));
    QVERIFY(!curve.figure().isEmpty());
}

void TestCurve::polesSplitTheCurve()
{
    const Curve curve;
    curve.choose(hyperbola);
    QCOMPARE(curve.pieces(), 2);
    curve.write(QStringLiteral("sqrt(x^2 - 1)"));
    QCOMPARE(curve.pieces(), 2);
}

void TestCurve::aCurveWithoutValuesIsTakenHoldOfAnywhere()
{
    const Curve curve;
    curve.write(QStringLiteral("sqrt(-1)"));
    QCOMPARE(curve.text(), QString());
    QVERIFY(curve.object().shape().contains(QPointF(60, 30)));
    curve.write(QStringLiteral("x"));
    curve.painted();
    QVERIFY(!curve.object().shape().contains(QPointF(60, 30)));
}

void TestCurve::pointsShowOnlyWhereTheyCount()
{
    const Curve curve;
    curve.choose(Parabola);
    curve.painted();
    for (int number = 1; number <= curve.controlPointCount(); ++number)
        QVERIFY(!curve.document().namedNode(QStringLiteral("control_%1").arg(number))->isVisible());
    curve.choose(OwnPoints);
    curve.painted();
    QVERIFY(curve.document().namedNode(QStringLiteral("control_7"))->isVisible());
}

void TestCurve::pointsComeBackAsTheyWere()
{
    Curve curve;
    curve.dragControlPoint(3, QPointF(0, 21));
    const QString before = curve.text();
    curve.choose(Parabola);
    curve.object().setSize(QSizeF(300, 200), false, false);
    // A press where a point was takes none.
    curve.dragControlPoint(3, QPointF(0, -30));
    curve.object().setSize(QSizeF(236, 120), false, false);
    curve.choose(OwnPoints);
    QCOMPARE(curve.text(), before);
}

void TestCurve::aLessonShowsTheFormula()
{
    const Curve curve;
    const Curve pupils;
    const checklist::RecordedActions lesson;
    curve.write(QStringLiteral("cos(2x)"));
    for (const auto &action : lesson.actions) {
        QDataStream in(action.second);
        QVERIFY(pupils.core().DoPlaybackActionEx(action.first, in));
    }
    QCOMPARE(pupils.text(), curve.text());
    QCOMPARE(checklist::savedBytes(pupils), checklist::savedBytes(curve));
}

void TestCurve::earlierCurvesLookTheSame()
{
    Curve curve;
    curve.dragControlPoint(5, QPointF(0, 17));
    QJsonObject json;
    curve.object().saveJson(json);
    for (const char *later : {"SVG_Function", "SVG_Formula", "SVG_XFrom", "SVG_XTo", "SVG_YFrom", "SVG_YTo"}) {
        QVERIFY2(json.contains(QLatin1String(later)), later);
        json.remove(QLatin1String(later));
    }
    const Curve opened;
    QVERIFY(opened.object().loadJson(json));
    QCOMPARE(opened.text(), curve.text());
    QCOMPARE(opened.geometry(), curve.geometry());
}

void TestCurve::monstrousTextsAreCut()
{
    const Curve curve;
    curve.write(QStringLiteral("x"));
    const QString look = curve.text();
    curve.write(QString(1 << 20, QLatin1Char('(')));
    QCOMPARE(curve.text(), look);
    QVERIFY(checklist::savedBytes(curve).size() < 8000);
}

QTEST_MAIN(TestCurve)
#include "test_curve.moc"
