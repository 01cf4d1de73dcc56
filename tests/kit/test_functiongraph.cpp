// Graphs in a window from -5 to 5 and from -3 to 3, in pieces.

#include <shapekit/formula.h>
#include <shapekit/functiongraph.h>

#include <QtTest/QtTest>

#include <cmath>

using Pieces = QVector<QVector<QPointF>>;

namespace {

const QRectF window(-5, -3, 10, 6);

Pieces piecesOf(const char *text)
{
    const shapekit::Formula formula(QString::fromLatin1(text));
    return shapekit::graphPieces([&formula](double x) { return formula.at(x); }, window);
}

bool isNear(QPointF a, QPointF b, double distance = 0.01)
{
    return std::abs(a.x() - b.x()) < distance && std::abs(a.y() - b.y()) < distance;
}

int pointCount(const Pieces &pieces)
{
    int count = 0;
    for (const QVector<QPointF> &piece : pieces)
        count += piece.size();
    return count;
}

} // namespace

class TestFunctionGraph : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aGraphInsideIsOnePiece();
    void aGraphEndsAtTheEdgesOfTheWindow();
    void aGraphComesBackIntoTheWindow();
    void aPoleSplitsTheGraph();
    void aGraphBeginsWhereItHasAValue();
    void aJumpSplitsTheGraph();
    void aSteepLineIsNoJump();
    void nothingIsDrawnWithoutValues_data();
    void nothingIsDrawnWithoutValues();
    void pointsGoFromLeftToRightInsideTheWindow_data();
    void pointsGoFromLeftToRightInsideTheWindow();
    void wildGraphsAskALimitedNumberOfTimes();
    void aWindowWithoutExtentShowsNothing();
};

void TestFunctionGraph::aGraphInsideIsOnePiece()
{
    const Pieces pieces = piecesOf("sin(x)");
    QCOMPARE(pieces.size(), 1);
    QVERIFY(isNear(pieces[0].first(), {-5, std::sin(-5.0)}));
    QVERIFY(isNear(pieces[0].last(), {5, std::sin(5.0)}));
    double highest = 0;
    for (const QPointF &point : pieces[0])
        highest = std::max(highest, point.y());
    QVERIFY(highest > 0.999);
}

void TestFunctionGraph::aGraphEndsAtTheEdgesOfTheWindow()
{
    const Pieces pieces = piecesOf("x^2 - 1");
    QCOMPARE(pieces.size(), 1);
    QVERIFY(isNear(pieces[0].first(), {-2, 3}));
    QVERIFY(isNear(pieces[0].last(), {2, 3}));
}

void TestFunctionGraph::aGraphComesBackIntoTheWindow()
{
    const Pieces pieces = piecesOf("4 - x^2 / 2");
    QCOMPARE(pieces.size(), 2);
    QVERIFY(isNear(pieces[0].first(), {-std::sqrt(14.0), -3}));
    QVERIFY(isNear(pieces[0].last(), {-std::sqrt(2.0), 3}));
    QVERIFY(isNear(pieces[1].first(), {std::sqrt(2.0), 3}));
    QVERIFY(isNear(pieces[1].last(), {std::sqrt(14.0), -3}));
}

void TestFunctionGraph::aPoleSplitsTheGraph()
{
    const Pieces pieces = piecesOf("1/x");
    QCOMPARE(pieces.size(), 2);
    QVERIFY(isNear(pieces[0].last(), {-1.0 / 3, -3}));
    QVERIFY(isNear(pieces[1].first(), {1.0 / 3, 3}));
    QCOMPARE(piecesOf("1/(x - 0.777)").size(), 2);
    // Beyond the poles at -1.5 and 1.5 times pi it is above and below the window.
    QCOMPARE(piecesOf("tan(x)").size(), 3);
}

void TestFunctionGraph::aGraphBeginsWhereItHasAValue()
{
    const Pieces root = piecesOf("sqrt(x - 0.123)");
    QCOMPARE(root.size(), 1);
    QVERIFY(isNear(root[0].first(), {0.123, 0}));
    const Pieces circle = piecesOf("sqrt(4 - x^2)");
    QCOMPARE(circle.size(), 1);
    QVERIFY(isNear(circle[0].first(), {-2, 0}, 0.02));
    QVERIFY(isNear(circle[0].last(), {2, 0}, 0.02));
}

void TestFunctionGraph::aJumpSplitsTheGraph()
{
    const Pieces steps = piecesOf("floor(x) / 2");
    QCOMPARE(steps.size(), 10);
    for (const QVector<QPointF> &step : steps)
        QCOMPARE(step.first().y(), step.last().y());
    QCOMPARE(piecesOf("sgn(x)").size(), 2);
}

void TestFunctionGraph::aSteepLineIsNoJump()
{
    const Pieces pieces = piecesOf("200x");
    QCOMPARE(pieces.size(), 1);
    QVERIFY(isNear(pieces[0].first(), {-0.015, -3}));
    QVERIFY(isNear(pieces[0].last(), {0.015, 3}));
}

void TestFunctionGraph::nothingIsDrawnWithoutValues_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"sqrt(-1 - x^2)", "0/0", "100", "1/0", "-1/0", "x +"})
        QTest::newRow(text) << text;
}

void TestFunctionGraph::nothingIsDrawnWithoutValues()
{
    QFETCH(QString, text);
    QCOMPARE(piecesOf(text.toLatin1()), Pieces());
}

void TestFunctionGraph::pointsGoFromLeftToRightInsideTheWindow_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"sin(x)", "tan(x)", "1/x", "x^3", "1/sin(9x)", "floor(3x)", "sin(999x) * 9", "ln(x)", "e^(x*99)"})
        QTest::newRow(text) << text;
}

void TestFunctionGraph::pointsGoFromLeftToRightInsideTheWindow()
{
    QFETCH(QString, text);
    const Pieces pieces = piecesOf(text.toLatin1());
    QVERIFY(!pieces.isEmpty());
    double before = -5;
    for (const QVector<QPointF> &piece : pieces) {
        QVERIFY(piece.size() >= 2);
        for (const QPointF &point : piece) {
            QVERIFY(point.x() >= before && point.x() <= 5);
            QVERIFY(point.y() >= -3 - 1e-9 && point.y() <= 3 + 1e-9);
            before = point.x();
        }
    }
}

void TestFunctionGraph::wildGraphsAskALimitedNumberOfTimes()
{
    int asked = 0;
    const Pieces pieces = shapekit::graphPieces(
        [&asked](double x) {
            ++asked;
            return 9 * std::sin(1e9 * x);
        },
        window);
    QVERIFY2(asked <= 6241, qPrintable(QString::number(asked)));
    QVERIFY(pointCount(pieces) <= 2 * asked);
}

void TestFunctionGraph::aWindowWithoutExtentShowsNothing()
{
    const auto level = [](double) { return 0.0; };
    QCOMPARE(shapekit::graphPieces(level, QRectF(0, 0, 0, 6)), Pieces());
    QCOMPARE(shapekit::graphPieces(level, QRectF(0, 0, 6, 0)), Pieces());
    QCOMPARE(shapekit::graphPieces(level, QRectF(0, 0, qInf(), 6)), Pieces());
}

QTEST_APPLESS_MAIN(TestFunctionGraph)
#include "test_functiongraph.moc"
