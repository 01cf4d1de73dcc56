// Numbers and edits of path data, compared with literal implementations of their rules on texts of every kind.
// GLIOLOLOK_RANDOM_TEXTS gives the number of random texts.

#include <shape/pathcomparison.h>
#include <shape/randomtext.h>

#include <QtTest/QtTest>

using comparison::numbersDifference;
using comparison::singleStretchingDifference;
using comparison::stretchingDifference;

class TestComparison : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomTexts();
    void everyTruncation_data();
    void everyTruncation();
    void randomTextsTruncated();
    void everyUtf16Unit_data();
    void everyUtf16Unit();
    void everyPairOfInterestingCharacters();
    void aMegabyte_data();
    void aMegabyte();
    void numbersOfEveryLengthAroundTheLimits();
    void startIndicesOutsideThePath_data();
    void startIndicesOutsideThePath();
};

namespace {

constexpr unsigned startValue = 20240607;
constexpr int usualTexts = 20000;
constexpr int truncatedTexts = 300;
constexpr int megabyte = 1024 * 1024 / int(sizeof(QChar));

int numberOfTexts()
{
    const int asked = qEnvironmentVariableIntValue("GLIOLOLOK_RANDOM_TEXTS");
    return asked > 0 ? asked : usualTexts;
}

/// Everything on one text; empty when all agree.
QString difference(const QString &text, const comparison::Edit &edit)
{
    return numbersDifference(text) + stretchingDifference(text, edit);
}

QString truncationDifference(const QString &text, const comparison::Edit &edit)
{
    for (int size = text.size(); size >= 0; --size) {
        QString found = difference(text.left(size), edit);
        if (!found.isEmpty())
            return found;
    }
    return QString();
}

const comparison::Edit ordinary{2, 2, 0};

QString repeated(const char *text)
{
    const QString unit = QString::fromLatin1(text);
    return QLatin1String("M0,0") + unit.repeated(megabyte / unit.size());
}

} // namespace

void TestComparison::randomTexts()
{
    RandomText random(startValue);
    const int count = numberOfTexts();
    for (int i = 0; i < count; ++i) {
        const QString text = random.next();
        const QString found = difference(text, random.nextEdit(text));
        QVERIFY2(found.isEmpty(), qPrintable(QStringLiteral("text %1: %2").arg(i).arg(found)));
    }
}

void TestComparison::everyTruncation_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("numbers") << " -12.5e-1, +7.25 .5-0.25,1e+30 1234567890.125,-";
    QTest::newRow("widths") << "M10,20h1000v5h-0.0000001h2.5l5,-3h1e5zh";
    QTest::newRow("heights") << "M-10-20v1000h5v-0.0000001l5,-3l-5-3v2l5-3z";
    QTest::newRow("lines") << "M10-20l5,3l-5,3l5-3l-5-3l1.25,-2.5l,l-l";
    QTest::newRow("surrogates") << QString(QStringLiteral("M1,2\U0001d49ch5\U0001d49cl1,\U0001d49c2v"));
}

void TestComparison::everyTruncation()
{
    QFETCH(QString, text);
    const QString found = truncationDifference(text, ordinary);
    QVERIFY2(found.isEmpty(), qPrintable(found));
}

void TestComparison::randomTextsTruncated()
{
    RandomText random(startValue + 1);
    for (int i = 0; i < truncatedTexts; ++i) {
        const QString text = random.next().left(60);
        const QString found = truncationDifference(text, random.nextEdit(text));
        QVERIFY2(found.isEmpty(), qPrintable(found));
    }
}

void TestComparison::everyUtf16Unit_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("between numbers") << "1"
                                     << "2";
    QTest::newRow("right after the letter") << "M0,0h"
                                            << "2v3";
    QTest::newRow("in a length") << "M0,0h5"
                                 << "2v3";
    QTest::newRow("in a height") << "M0,0v5"
                                 << "2h3";
    QTest::newRow("in a pair") << "M0,0l5,1"
                               << "2z";
    QTest::newRow("in a start point") << "M1,2"
                                      << "3L4,5";
}

void TestComparison::everyUtf16Unit()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    for (uint unit = 0; unit <= 0xffff; ++unit) {
        const QString found = difference(before + QChar(unit) + after, ordinary);
        QVERIFY2(found.isEmpty(), qPrintable(found));
    }
}

void TestComparison::everyPairOfInterestingCharacters()
{
    const QString characters = QStringLiteral("Mhvl09-+.,eE z") + QChar(0xd800) + QChar(0xdc00) + QChar(0);
    for (const QChar first : characters) {
        for (const QChar second : characters) {
            for (const char *path : {"", "M0,0h5", "M0,0l5", "M"}) {
                const QString text = QLatin1String(path) + first + second;
                const QString found = difference(text, ordinary) + difference(text + "1,2", ordinary);
                QVERIFY2(found.isEmpty(), qPrintable(found));
            }
        }
    }
}

void TestComparison::aMegabyte_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("digits") << QString(megabyte, QLatin1Char('7'));
    QTest::newRow("numbers") << QStringLiteral("1.5-2,").repeated(megabyte / 6);
    QTest::newRow("spaces") << QString(megabyte, QLatin1Char(' '));
    QTest::newRow("no letter after the start") << QLatin1String("M1,2") + QString(megabyte, QLatin1Char('3'));
    QTest::newRow("widths and heights") << repeated("h1v-1");
    QTest::newRow("lines") << repeated("l1,1z");
    QTest::newRow("a line without end") << QLatin1String("M0,0l") + QString(megabyte, QLatin1Char('5'));
    QTest::newRow("one piece at the end") << QString(megabyte, QLatin1Char('z')) + QLatin1String("h5v5");
}

void TestComparison::aMegabyte()
{
    QFETCH(QString, text);
    const QString found = numbersDifference(text) + singleStretchingDifference(text, ordinary);
    QVERIFY2(found.isEmpty(), qPrintable(found.left(500)));
}

void TestComparison::numbersOfEveryLengthAroundTheLimits()
{
    for (int size = 0; size <= 40; ++size) {
        const QString number(size, QLatin1Char('3'));
        for (const char *path : {"M0,0h%1v1", "M0,0v%1h1", "M0,0l%1,1z", "M0,0l1,%1z", "M0,0l1-%1z", "M0,0h-%1"}) {
            const QString found = difference(QString::fromLatin1(path).arg(number), ordinary);
            QVERIFY2(found.isEmpty(), qPrintable(found));
        }
    }
    for (int size = 245; size <= 265; ++size) {
        const QString digits(size, QLatin1Char('3'));
        for (const char *number : {"%1", "-%1", "%1.5", "%1e5", "-.%1", "%1e+5", "%1e", "1e%1", "%1."}) {
            const QString found = numbersDifference(QString::fromLatin1(number).arg(digits));
            QVERIFY2(found.isEmpty(), qPrintable(found));
        }
    }
}

void TestComparison::startIndicesOutsideThePath_data()
{
    QTest::addColumn<int>("from");
    for (int from : {std::numeric_limits<int>::min(), -1000, -17, -16, -15, -3, -1, 15, 16, 17, 1000,
                     std::numeric_limits<int>::max()})
        QTest::addRow("%d", from) << from;
}

void TestComparison::startIndicesOutsideThePath()
{
    QFETCH(int, from);
    const QString found = stretchingDifference(QStringLiteral("h1l1,1h5v-3l5,-3"), {2, 2, from});
    QVERIFY2(found.isEmpty(), qPrintable(found));
}

QTEST_MAIN(TestComparison)
#include "test_pathcomparison.moc"
