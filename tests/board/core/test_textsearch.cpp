// Searching one text.

#include <core/textsearch.h>

#include <QtTest/QtTest>

using board::SearchOptions;
using board::TextMatch;

using Matches = QVector<TextMatch>;

Q_DECLARE_METATYPE(board::SearchOptions)
Q_DECLARE_METATYPE(Matches)

namespace {

constexpr SearchOptions plain{};
constexpr SearchOptions caseCounts{true, false};
constexpr SearchOptions words{false, true};

} // namespace

class TestTextSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matches_data();
    void matches();
    void matchesAreReplaced_data();
    void matchesAreReplaced();
};

void TestTextSearch::matches_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sought");
    QTest::addColumn<SearchOptions>("options");
    QTest::addColumn<Matches>("expected");
    QTest::newRow("nothing is sought") << "light"
                                       << "" << plain << Matches{};
    QTest::newRow("empty text") << ""
                                << "a" << plain << Matches{};
    QTest::newRow("nowhere") << "light"
                             << "dark" << plain << Matches{};
    QTest::newRow("whole text") << "light"
                                << "light" << plain << Matches{{0, 5}};
    QTest::newRow("twice") << "on and on"
                           << "on" << plain << Matches{{0, 2}, {7, 2}};
    QTest::newRow("without overlaps") << "aaaaa"
                                      << "aa" << plain << Matches{{0, 2}, {2, 2}};
    QTest::newRow("on the next line") << "a\nb"
                                      << "b" << plain << Matches{{2, 1}};
    QTest::newRow("any case") << "Light LIGHT"
                              << "light" << plain << Matches{{0, 5}, {6, 5}};
    QTest::newRow("this case") << "Light light"
                               << "light" << caseCounts << Matches{{6, 5}};
    QTest::newRow("umlaut of any case") << "Übung"
                                        << "übung" << plain << Matches{{0, 5}};
    QTest::newRow("umlaut of this case") << "Übung übung"
                                         << "übung" << caseCounts << Matches{{6, 5}};
    QTest::newRow("umlaut is no vowel") << "Äpfel"
                                        << "a" << plain << Matches{};
    QTest::newRow("umlaut of two characters is no vowel")
        << QStringLiteral("a\u0308 a") << "a" << plain << Matches{{3, 1}};
    QTest::newRow("sharp s is no double s") << "Straße"
                                            << "ss" << plain << Matches{};
    QTest::newRow("spaces count") << "a  b a b"
                                  << "a b" << plain << Matches{{5, 3}};
    QTest::newRow("no pattern") << "a.c abc"
                                << "a.c" << plain << Matches{{0, 3}};
    QTest::newRow("whole word") << "sun sunny Sun."
                                << "sun" << words << Matches{{0, 3}, {10, 3}};
    QTest::newRow("end of a word is none") << "unsun"
                                           << "sun" << words << Matches{};
    QTest::newRow("digit belongs to a word") << "x2 x"
                                             << "x" << words << Matches{{3, 1}};
    QTest::newRow("underscore belongs to a word") << "x_2 x"
                                                  << "x" << words << Matches{{4, 1}};
    QTest::newRow("umlaut belongs to a word") << "hörst hör"
                                              << "hör" << words << Matches{{6, 3}};
    QTest::newRow("umlaut before a word") << "über ber"
                                          << "ber" << words << Matches{{5, 3}};
    QTest::newRow("sign ends by itself") << "5%off"
                                         << "5%" << words << Matches{{0, 2}};
    QTest::newRow("words across spaces") << "the sun the sunny"
                                         << "the sun" << words << Matches{{0, 7}};
    QTest::newRow("match after one that is no word") << "aaa a"
                                                     << "a" << words << Matches{{4, 1}};
    // U+1D400, a letter of two halves.
    QTest::newRow("letter of two halves before")
        << QString::fromUcs4(U"\U0001D400x x") << "x" << words << Matches{{4, 1}};
    QTest::newRow("letter of two halves behind")
        << QString::fromUcs4(U"x\U0001D400 x") << "x" << words << Matches{{4, 1}};
    QTest::newRow("picture ends a word") << QString::fromUcs4(U"x\U0001F600") << "x" << words << Matches{{0, 1}};
}

void TestTextSearch::matches()
{
    QFETCH(QString, text);
    QFETCH(QString, sought);
    QFETCH(SearchOptions, options);
    QFETCH(Matches, expected);
    QVERIFY(board::matchesIn(text, sought, options) == expected);
}

void TestTextSearch::matchesAreReplaced_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Matches>("matches");
    QTest::addColumn<QString>("replacement");
    QTest::addColumn<QString>("expected");
    QTest::newRow("none") << "light" << Matches{} << "x"
                          << "light";
    QTest::newRow("all of it") << "light" << Matches{{0, 5}} << "dark"
                               << "dark";
    QTest::newRow("by more") << "a-a" << Matches{{0, 1}, {2, 1}} << "aa"
                             << "aa-aa";
    QTest::newRow("by nothing") << "on and on" << Matches{{0, 2}, {7, 2}} << ""
                                << " and ";
    QTest::newRow("in the middle") << "a b c" << Matches{{2, 1}} << "x"
                                   << "a x c";
}

void TestTextSearch::matchesAreReplaced()
{
    QFETCH(QString, text);
    QFETCH(Matches, matches);
    QFETCH(QString, replacement);
    QFETCH(QString, expected);
    QCOMPARE(board::replaced(text, matches, replacement), expected);
}

QTEST_APPLESS_MAIN(TestTextSearch)
#include "test_textsearch.moc"
