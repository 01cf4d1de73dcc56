// Numbers of path data: the scanner, the list parser and the writer.

#include <support/testobject.h>
#include <svgobj/csvgbase.h>

#include <QtTest/QtTest>

#include <cmath>

class TestPathNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNumberIsReadUpToTheFirstCharacterThatIsNoPartOfIt_data();
    void aNumberIsReadUpToTheFirstCharacterThatIsNoPartOfIt();
    void aNullPointerGivesZero();
    void aLoneMinusIsNegativeZero();
    void aMinusBeforeAnExponentAloneIsLost();
    void aNumberOf300DigitsIsReadAsTwo();
    void listsAreReadUpToWhatCannotStartANumber_data();
    void listsAreReadUpToWhatCannotStartANumber();
    void aNullPointerGivesNoNumbers();
    void numbersAreWritten_data();
    void numbersAreWritten();
};

void TestPathNumbers::aNumberIsReadUpToTheFirstCharacterThatIsNoPartOfIt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("consumed");
    QTest::newRow("exponent, then a letter") << "12.5e-1x" << 1.25 << 7;
    QTest::newRow("plus") << "+7" << 7.0 << 2;
    QTest::newRow("no digit before the point") << "-.5" << -0.5 << 3;
    QTest::newRow("exponent without digits") << "1e" << 1.0 << 2;
    QTest::newRow("exponent with a sign only") << "1e+" << 1.0 << 3;
    QTest::newRow("capital exponent") << "2E3" << 2000.0 << 3;
    QTest::newRow("exponent alone") << "-e3" << 0.0 << 3;
    QTest::newRow("point alone") << "." << 0.0 << 1;
    QTest::newRow("nothing") << "" << 0.0 << 0;
    QTest::newRow("letter") << "x1" << 0.0 << 0;
    QTest::newRow("nine digits") << "123456789" << 123456789.0 << 9;
    QTest::newRow("ten digits") << "1234567890" << 1234567890.0 << 10;
    QTest::newRow("ten characters with sign and point") << "-12345.678" << -12345.678 << 10;
    QTest::newRow("two points") << "1.5.6" << 1.5 << 3;
    QTest::newRow("plus and minus") << "+-5" << 0.0 << 1;
    QTest::newRow("too large") << "1e999" << HUGE_VAL << 5;
    QTest::newRow("too large and negative") << "-1e999" << -HUGE_VAL << 6;
    QTest::newRow("too small") << "1e-999" << 0.0 << 6;
}

void TestPathNumbers::aNumberIsReadUpToTheFirstCharacterThatIsNoPartOfIt()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    QFETCH(int, consumed);
    const QChar *position = text.constData();
    const double result = toDouble(position);
    QVERIFY2(result == value, qPrintable(QString::number(result, 'g', 17)));
    QCOMPARE(int(position - text.constData()), consumed);
}

void TestPathNumbers::aNullPointerGivesZero()
{
    const QChar *position = nullptr;
    QVERIFY(toDouble(position) == 0.0);
    QVERIFY(!position);
}

void TestPathNumbers::aLoneMinusIsNegativeZero()
{
    const QString text = QStringLiteral("-");
    const QChar *position = text.constData();
    const double value = toDouble(position);
    QVERIFY(value == 0.0);
    QVERIFY(std::signbit(value));
}

void TestPathNumbers::aMinusBeforeAnExponentAloneIsLost()
{
    const QString text = QStringLiteral("-e3");
    const QChar *position = text.constData();
    const double value = toDouble(position);
    QVERIFY(value == 0.0);
    QVERIFY(!std::signbit(value));
}

void TestPathNumbers::aNumberOf300DigitsIsReadAsTwo()
{
    const QString text(300, QLatin1Char('1'));
    const QChar *position = text.constData();
    QVERIFY(toDouble(position) == QString(255, QLatin1Char('1')).toDouble());
    QCOMPARE(int(position - text.constData()), 255);
    QVERIFY(toDouble(position) == QString(45, QLatin1Char('1')).toDouble());
    QCOMPARE(int(position - text.constData()), 300);
}

void TestPathNumbers::listsAreReadUpToWhatCannotStartANumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<double>>("numbers");
    QTest::addColumn<int>("consumed");
    QTest::newRow("commas and blanks") << "  1, 2,3 ,4" << QVector<double>{1, 2, 3, 4} << 11;
    QTest::newRow("a sign separates") << "10,20 30-40" << QVector<double>{10, 20, 30, -40} << 11;
    QTest::newRow("two commas") << "1,,2" << QVector<double>{1} << 2;
    QTest::newRow("command letter first") << "M1 2" << QVector<double>{} << 0;
    QTest::newRow("command letter later") << "1 2L3" << QVector<double>{1, 2} << 3;
    QTest::newRow("two points") << "1.5.6" << QVector<double>{1.5, 0.6} << 5;
    QTest::newRow("plus and minus") << "+-5" << QVector<double>{0, -5} << 3;
    QTest::newRow("Unicode spaces") << QString(QStringLiteral("1\u00a02\u00853")) << QVector<double>{1, 2, 3} << 5;
    QTest::newRow("empty") << "" << QVector<double>{} << 0;
}

void TestPathNumbers::listsAreReadUpToWhatCannotStartANumber()
{
    QFETCH(QString, text);
    QFETCH(QVector<double>, numbers);
    QFETCH(int, consumed);
    support::TestShape shape(nullptr);
    const QChar *position = text.constData();
    QCOMPARE(shape.parseNumbersList(position), numbers);
    QCOMPARE(int(position - text.constData()), consumed);
}

void TestPathNumbers::aNullPointerGivesNoNumbers()
{
    support::TestShape shape(nullptr);
    const QChar *position = nullptr;
    QVERIFY(shape.parseNumbersList(position).isEmpty());
}

void TestPathNumbers::numbersAreWritten_data()
{
    QTest::addColumn<QVector<double>>("numbers");
    QTest::addColumn<QString>("text");
    QTest::newRow("only positive numbers are separated") << QVector<double>{1, -2, 3.5} << "1-2,3.5";
    QTest::newRow("six digits") << QVector<double>{0.1234567} << "0.123457";
    QTest::newRow("none") << QVector<double>{} << "";
    QTest::newRow("zero gets no separator") << QVector<double>{5, 0} << "50";
    QTest::newRow("negative zero gets none either") << QVector<double>{5, -0.0} << "50";
    QTest::newRow("at the threshold") << QVector<double>{5, 1e-7} << "5,1e-07";
    QTest::newRow("below the threshold") << QVector<double>{5, 1e-8} << "51e-08";
}

void TestPathNumbers::numbersAreWritten()
{
    QFETCH(QVector<double>, numbers);
    QFETCH(QString, text);
    support::TestShape shape(nullptr);
    QCOMPARE(shape.numbersToString(numbers), text);
}

QTEST_MAIN(TestPathNumbers)
#include "test_pathnumbers.moc"
