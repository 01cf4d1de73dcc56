#include <pagehost/localizer.h>

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtTest/QtTest>

using pagehost::Localizer;

namespace {

/// The localisation keys that stand as literals in the sources under a folder of the project.
QSet<QString> keysIn(const QString &folder)
{
    static const QRegularExpression literal(QStringLiteral("\"(IDS_[A-Za-z0-9_]+)\""));
    QSet<QString> keys;
    QDirIterator files(QStringLiteral(PROJECT_DIR "/") + folder, {QStringLiteral("*.cpp"), QStringLiteral("*.h")},
                       QDir::Files, QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        auto matches = literal.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext())
            keys.insert(matches.next().captured(1));
    }
    return keys;
}

} // namespace

class TestLocalizer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsInEnglish();
    void speaksGerman();
    void everyKeyOfTheSourcesHasATextInEveryLanguage();
    void missingTextFallsBackToEnglish();
    void unknownKeyNeverShowsRaw();
    void textThatIsNoKeyStays();
    void countryIsDroppedWhenItHasNoTable();
    void unknownLanguageIsEnglish();
    void laterTextsWin();
    void newLanguageCanBeAdded();
    void delegateShowsTexts();
};

void TestLocalizer::beginsInEnglish()
{
    const Localizer localizer;
    QCOMPARE(localizer.language(), QStringLiteral("en"));
    QCOMPARE(localizer.text(QStringLiteral("IDS_SVG_PENCOLOR")), QStringLiteral("Line colour"));
    QCOMPARE(localizer.text(QStringLiteral("IDS_SVG_attribute_adjust")), QStringLiteral("Change shape"));
    const QStringList languages{QStringLiteral("de"), QStringLiteral("en")};
    QCOMPARE(localizer.languages(), languages);
}

void TestLocalizer::speaksGerman()
{
    Localizer localizer;
    localizer.setLanguage(QStringLiteral("de"));
    QCOMPARE(localizer.text(QStringLiteral("IDS_SVG_FILLCOLOR")), QStringLiteral("Füllfarbe"));
}

void TestLocalizer::everyKeyOfTheSourcesHasATextInEveryLanguage()
{
    const QSet<QString> keys = keysIn(QStringLiteral("reference/framework")) + keysIn(QStringLiteral("src"));
    QVERIFY(keys.contains(QStringLiteral("IDS_UNDO_MOVE")));
    QVERIFY(keys.contains(QStringLiteral("IDS_SVG_PENSTYLE")));
    const Localizer localizer;
    for (const QString &key : keys) {
        QVERIFY2(localizer.hasText(QStringLiteral("en"), key), qPrintable(key));
        QVERIFY2(localizer.hasText(QStringLiteral("de"), key), qPrintable(key));
        QVERIFY2(!localizer.text(key).isEmpty(), qPrintable(key));
    }
}

void TestLocalizer::missingTextFallsBackToEnglish()
{
    Localizer localizer;
    localizer.addTexts(QStringLiteral("en"), {{QStringLiteral("IDS_ONLY"), QStringLiteral("only here")}});
    localizer.setLanguage(QStringLiteral("de"));
    QCOMPARE(localizer.text(QStringLiteral("IDS_ONLY")), QStringLiteral("only here"));
    QVERIFY(!localizer.hasText(QStringLiteral("de"), QStringLiteral("IDS_ONLY")));
}

void TestLocalizer::unknownKeyNeverShowsRaw()
{
    const Localizer localizer;
    QCOMPARE(localizer.text(QStringLiteral("IDS_LINE_WIDTH")), QStringLiteral("Line width"));
    QCOMPARE(localizer.text(QStringLiteral("IDS_shape")), QStringLiteral("Shape"));
    QCOMPARE(localizer.text(QStringLiteral("IDS_")), QString());
}

void TestLocalizer::textThatIsNoKeyStays()
{
    const Localizer localizer;
    QCOMPARE(localizer.text(QStringLiteral("My star_1")), QStringLiteral("My star_1"));
    QCOMPARE(localizer.text(QString()), QString());
}

void TestLocalizer::countryIsDroppedWhenItHasNoTable()
{
    Localizer localizer;
    localizer.setLanguage(QStringLiteral("de_AT"));
    QCOMPARE(localizer.language(), QStringLiteral("de"));
    localizer.addTexts(QStringLiteral("de_AT"), {{QStringLiteral("IDS_A"), QStringLiteral("Erdapfel")}});
    localizer.setLanguage(QStringLiteral("de_AT"));
    QCOMPARE(localizer.language(), QStringLiteral("de_AT"));
    QCOMPARE(localizer.text(QStringLiteral("IDS_A")), QStringLiteral("Erdapfel"));
}

void TestLocalizer::unknownLanguageIsEnglish()
{
    Localizer localizer;
    localizer.setLanguage(QStringLiteral("de"));
    localizer.setLanguage(QStringLiteral("xx_YY"));
    QCOMPARE(localizer.language(), QStringLiteral("en"));
}

void TestLocalizer::laterTextsWin()
{
    Localizer localizer;
    localizer.addTexts(QStringLiteral("en"), {{QStringLiteral("IDS_UNDO_MOVE"), QStringLiteral("Shift")}});
    QCOMPARE(localizer.text(QStringLiteral("IDS_UNDO_MOVE")), QStringLiteral("Shift"));
    QCOMPARE(localizer.text(QStringLiteral("IDS_UNDO_ROTATE")), QStringLiteral("Rotate"));
}

void TestLocalizer::newLanguageCanBeAdded()
{
    Localizer localizer;
    localizer.addTexts(QStringLiteral("fr"), {{QStringLiteral("IDS_UNDO_MOVE"), QStringLiteral("Déplacer")}});
    localizer.setLanguage(QStringLiteral("fr"));
    QCOMPARE(localizer.text(QStringLiteral("IDS_UNDO_MOVE")), QStringLiteral("Déplacer"));
    QCOMPARE(localizer.text(QStringLiteral("IDS_UNDO_ROTATE")), QStringLiteral("Rotate"));
}

void TestLocalizer::delegateShowsTexts()
{
    Localizer localizer;
    localizer.setLanguage(QStringLiteral("de"));
    const pagehost::LocalizedDelegate delegate(&localizer);
    QCOMPARE(delegate.displayText(QStringLiteral("IDS_UNDO_ROTATE"), QLocale()), QStringLiteral("Drehen"));
}

QTEST_MAIN(TestLocalizer)
#include "test_localizer.moc"
