// Path data text: longer pieces, another start point.

#include <support/testshape.h>

#include <QtTest/QtTest>

class TestPathStretching : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneWidth_data();
    void oneWidth();
    void oneHeight_data();
    void oneHeight();
    void allWidthsFromAnIndex_data();
    void allWidthsFromAnIndex();
    void allHeightsFromAnIndex_data();
    void allHeightsFromAnIndex();
    void allPiecesOfAMegabyteAreEdited_data();
    void allPiecesOfAMegabyteAreEdited();
    void theStartPointMoves_data();
    void theStartPointMoves();
};

namespace {

void columns()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<double>("delta");
    QTest::addColumn<QString>("result");
}

void row(const char *name, const QString &path, double delta, const QString &result)
{
    QTest::newRow(name) << path << delta << result;
}

const QString digits19 = QStringLiteral("1000000000000000000");
const QString digits29 = digits19 + QString(10, QLatin1Char('0'));

} // namespace

void TestPathStretching::oneWidth_data()
{
    columns();
    row("h", "M0,0h10v5", 2, "M0,0h12v5");
    row("h that points back", "M0,0h-10v5", 2, "M0,0h-12v5");
    row("h of length 0", "M0,0h0v5", 2, "M0,0h2v5");
    row("h without a number", "M0,0h", 2, "M0,0h2");
    row("h within the threshold points forward", "M0,0h-0.00000001", 2, "M0,0h2");
    row("h at the threshold points back", "M0,0h-0.0000001", 2, "M0,0h-2");
    row("h with text that is no number", "M0,0h5-3v2", 2, "M0,0h2v2");
    row("a colon ends a number", "M0,0h5:2", 2, "M0,0h7:2");
    row("a slash ends a number", "M0,0h5/2", 2, "M0,0h7/2");
    row("only the first h", "M0,0h1v1h1", 2, "M0,0h3v1h1");
    row("capital H is another command", "M0,0H10", 2, "M0,0H10");
    row("h at index 0 only", "h10v5", 2, "h10v5");
    row("h at index 0, another later", "h5h10", 2, "h5h10");
    row("neither h nor l", "M0,0v5", 2, "M0,0v5");
    row("l with a comma", "M0,0l5,3z", 2, "M0,0l7,3z");
    row("l with a minus", "M0,0l5-3z", 2, "M0,0l7-3z");
    row("l that points back", "M0,0l-5,3z", 2, "M0,0l-7,3z");
    row("l without a separator", "M0,0l5", 2, "M0,0l5");
    row("h before l", "M0,0l5,3h1", 2, "M0,0l5,3h3");
    row("19 characters", "M0,0h" + digits19 + "v1", 0, "M0,0h1e+18v1");
    row("20 characters", "M0,0h" + digits19 + "0v1", 0, "M0,0h" + digits19 + "0v1");
    row("29 characters after l", "M0,0l" + digits29 + ",1", 0, "M0,0l1e+28,1");
    row("30 characters after l", "M0,0l" + digits29 + "0,1", 0, "M0,0l" + digits29 + "0,1");
    row("empty", "", 2, "");
}

void TestPathStretching::oneWidth()
{
    QFETCH(QString, path);
    QFETCH(double, delta);
    support::TestShape shape(nullptr);
    QTEST(shape.changePathWidth(path, delta), "result");
}

void TestPathStretching::oneHeight_data()
{
    columns();
    row("v", "M0,0h10v5", 2, "M0,0h10v7");
    row("only the first v", "M0,0v1h1v1", 2, "M0,0v3h1v1");
    row("v that points back", "M0,0v-5h1", 2, "M0,0v-7h1");
    row("l with a comma", "M0,0l5,-3z", 2, "M0,0l5,-5z");
    row("l at the end", "M0,0l5,-3", 2, "M0,0l5,-5");
    row("v at the threshold points back", "M0,0v-0.0000001", 2, "M0,0v-2");
    row("29 characters of a pair", "M0,0l1," + digits19 + "00000000z", 0, "M0,0l1,1e+26z");
    row("30 characters of a pair", "M0,0l1," + digits19 + "000000000z", 0, "M0,0l1," + digits19 + "000000000z");
    row("v at index 0 only", "v10h5", 2, "v10h5");
    row("v at index 0, another later", "v5v10", 2, "v5v10");
    row("l with a minus between keeps it", "M0,0l5-3z", 2, "M0,0l5-5z");
    row("a pair that starts with a minus, no comma, is lost", "M0,0l-5-3z", 2, "M0,0lz");
    row("a pair without a separator is lost", "M0,0l5z", 2, "M0,0lz");
    row("l without numbers takes the letter", "M0,0lz", 2, "M0,0l");
    row("v before l", "M0,0l5,3v1", 2, "M0,0l5,3v3");
    row("neither v nor l", "M0,0h5", 2, "M0,0h5");
    row("19 characters are edited, 20 too", "M0,0v" + digits19 + "0h1", 0, "M0,0v1e+19h1");
    row("29 characters", "M0,0v" + digits29 + "h1", 0, "M0,0v1e+28h1");
    row("30 characters", "M0,0v" + digits29 + "0h1", 0, "M0,0v" + digits29 + "0h1");
}

void TestPathStretching::oneHeight()
{
    QFETCH(QString, path);
    QFETCH(double, delta);
    support::TestShape shape(nullptr);
    QTEST(shape.changePathHeight(path, delta), "result");
}

void TestPathStretching::allWidthsFromAnIndex_data()
{
    columns();
    row("a piece right behind ends the search", "M0,0h10h20", 2, "M0,0h12h20");
    row("pieces with something between", "M0,0h10v5h20", 2, "M0,0h12v5h22");
    row("indices are not corrected for a shorter number", "M0,0h1000v5h20", -995, "M0,0h5v5h20");
    row("l pieces", "M0,0l1,1l1,1", 2, "M0,0l3,1l3,1");
}

void TestPathStretching::allWidthsFromAnIndex()
{
    QFETCH(QString, path);
    QFETCH(double, delta);
    support::TestShape shape(nullptr);
    QTEST(shape.changePathWidth(path, delta, 0), "result");
    QCOMPARE(shape.changePathWidth(QStringLiteral("M0,0h1v1h1"), 2, 6), QStringLiteral("M0,0h1v1h3"));
}

void TestPathStretching::allHeightsFromAnIndex_data()
{
    columns();
    row("pieces with something between", "M0,0v10h5v-20", 2, "M0,0v12h5v-22");
    row("pairs", "M0,0l5,1h1l5,-1", 2, "M0,0l5,3h1l5,-3");
    row("a lost pair counts as edited", "M0,0l-1-1h1l5,1", 2, "M0,0lh1l5,1");
}

void TestPathStretching::allHeightsFromAnIndex()
{
    QFETCH(QString, path);
    QFETCH(double, delta);
    support::TestShape shape(nullptr);
    QTEST(shape.changePathHeight(path, delta, 0), "result");
    QCOMPARE(shape.changePathHeight(QStringLiteral("M0,0v1h1v1"), 2, 6), QStringLiteral("M0,0v1h1v3"));
}

void TestPathStretching::allPiecesOfAMegabyteAreEdited_data()
{
    QTest::addColumn<QString>("piece");
    QTest::addColumn<QString>("wider");
    QTest::addColumn<QString>("higher");
    QTest::newRow("single lengths") << "h1v-1"
                                    << "h3v-1"
                                    << "h1v-3";
    QTest::newRow("lines") << "l1,1z"
                           << "l3,1z"
                           << "l1,3z";
    QTest::newRow("numbers that become longer") << "h9v9"
                                                << "h11v9"
                                                << "h9v11";
    QTest::newRow("letters that are not pieces") << "H1V1"
                                                 << "H1V1"
                                                 << "H1V1";
}

void TestPathStretching::allPiecesOfAMegabyteAreEdited()
{
    QFETCH(QString, piece);
    QFETCH(QString, wider);
    QFETCH(QString, higher);
    const QString start = QStringLiteral("M0,0");
    const int count = 1024 * 1024 / int(sizeof(QChar)) / piece.size();
    const QString path = start + piece.repeated(count);
    support::TestShape shape(nullptr);
    QVERIFY(shape.changePathWidth(path, 2, 0) == start + wider.repeated(count));
    QVERIFY(shape.changePathHeight(path, 2, 0) == start + higher.repeated(count));
}

void TestPathStretching::theStartPointMoves_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QPointF>("offset");
    QTest::addColumn<QString>("result");
    QTest::newRow("y becomes negative") << "M10,20L30,40" << QPointF(1, -25) << "M11-5L30,40";
    QTest::newRow("no comma, nothing to do") << "M-10-20L0,0" << QPointF(0, 0) << "M-10-20L0,0";
    QTest::newRow("y becomes positive") << "M10-20L0,0" << QPointF(0, 25) << "M10,5L0,0";
    QTest::newRow("negative is exact") << "M0,0L1,1" << QPointF(0, -1e-8) << "M0-1e-08L1,1";
    QTest::newRow("blanks do not separate") << "M10 20L30,40" << QPointF(1, 1) << "M1,41";
    QTest::newRow("start point only") << "M1,2" << QPointF(1, 1) << "M2,3";
    QTest::newRow("no separator") << "M5" << QPointF(1, 1) << "M5";
    QTest::newRow("M only") << "M" << QPointF(1, 1) << "M";
    QTest::newRow("no M") << "m1,2" << QPointF(1, 1) << "m1,2";
    QTest::newRow("empty") << "" << QPointF(1, 1) << "";
}

void TestPathStretching::theStartPointMoves()
{
    QFETCH(QString, path);
    QFETCH(QPointF, offset);
    support::TestShape shape(nullptr);
    QTEST(shape.changePathBeginPoint(path, offset.x(), offset.y()), "result");
}

QTEST_MAIN(TestPathStretching)
#include "test_pathstretching.moc"
