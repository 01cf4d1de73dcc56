// Texts of the board in all its languages.

#include <application/commandline.h>
#include <core/texts.h>
#include <core/workspace.h>

#include <support/listed.h>

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtTest/QtTest>

class TestTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noKeyStandsForTwoTexts();
    void everyTranslationIsALanguage();
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void boardSpeaksTheLanguageOfTheUser_data();
    void boardSpeaksTheLanguageOfTheUser();
    void unknownLanguageHasNoTexts();
    void languagesOfTheBoardCanBeAskedFor();
};

namespace {

/// Places for values, and keys of menus, in the order of the alphabet.
QStringList marksOf(const QString &text)
{
    static const QRegularExpression mark(QStringLiteral("%\\d|&"));
    QStringList marks;
    for (auto match = mark.globalMatch(text); match.hasNext();)
        marks.append(match.next().captured());
    marks.sort();
    return marks;
}

} // namespace

void TestTexts::noKeyStandsForTwoTexts()
{
    QStringList keys;
    for (const board::TextEntry &entry : support::listed(board::textEntries()))
        keys.append(QLatin1String(entry.key));
    QVERIFY(keys.size() > 100);
    const QStringList all = keys;
    keys.removeDuplicates();
    QCOMPARE(keys, all);
}

void TestTexts::everyTranslationIsALanguage()
{
    QStringList codes{QStringLiteral("en")};
    const QStringList files = QDir(QStringLiteral(PROJECT_DIR "/board/translations")).entryList({"*.ts"});
    for (const QString &file : files)
        codes.append(QFileInfo(file).baseName());
    QVERIFY(codes.contains("de"));
    QCOMPARE(board::boardLanguages(), codes);
}

void TestTexts::everyTextIsTranslated_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &code : support::listed(board::boardLanguages()))
        QTest::newRow(qPrintable(code)) << code;
}

void TestTexts::everyTextIsTranslated()
{
    QFETCH(QString, language);
    const pagehost::TextTable texts = board::boardTexts(language);
    for (const board::TextEntry &entry : support::listed(board::textEntries())) {
        const QString text = texts.value(QLatin1String(entry.key));
        QVERIFY2(!text.isEmpty(), entry.key);
        QCOMPARE(marksOf(text), marksOf(QString::fromUtf8(entry.english)));
    }
}

void TestTexts::boardSpeaksTheLanguageOfTheUser_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("open");
    QTest::newRow("English") << "en"
                             << "Open…";
    QTest::newRow("English of Ireland") << "en_IE"
                                        << "Open…";
    QTest::newRow("German") << "de"
                            << "Öffnen…";
    QTest::newRow("German of Austria") << "de_AT"
                                       << "Öffnen…";
    QTest::newRow("language without translation") << "xx"
                                                  << "Open…";
}

void TestTexts::boardSpeaksTheLanguageOfTheUser()
{
    QFETCH(QString, language);
    QFETCH(QString, open);
    const board::Workspace workspace(language);
    QCOMPARE(workspace.text("IDS_BOARD_OPEN"), open);
}

void TestTexts::unknownLanguageHasNoTexts()
{
    QVERIFY(board::boardTexts("xx").isEmpty());
}

void TestTexts::languagesOfTheBoardCanBeAskedFor()
{
    for (const QString &code : support::listed(board::boardLanguages()))
        QCOMPARE(board::parseCommandLine({"board", "--language", code}).language, code);
    const board::Options options = board::parseCommandLine({"board", "--language", "xx"});
    QVERIFY(options.failed);
    QCOMPARE(options.message, QString("--language takes en or de, not \"xx\".\nTry --help.\n"));
}

QTEST_MAIN(TestTexts)
#include "test_texts.moc"
