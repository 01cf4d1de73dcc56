// Folders of files that declare shapes.

#include "folderreading.h"
#include "shapefile.h"

#include <declared/core/iconpicture.h>
#include <declared/core/shapekind.h>

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace declared;

class TestFolders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filesBecomeKindsByTheirNames();
    void otherFilesAreLeftAlone();
    void faultyFileIsToldAndLeftOut();
    void fileThatIsTooLargeIsTold();
    void firstFolderWins();
    void textsHaveTheLanguagesOfTheFile();
    void groupMayBeATitle();
    void wordsForSearchingHaveTheirLanguages();
    void iconIsThePictureOfItsSymbol();
    void foldersComeFromTheEnvironmentFirst();

private:
    void write(const QString &name, const QByteArray &content);
    QStringList idsOf(const std::vector<std::unique_ptr<ShapeKind>> &kinds) const;

    QTemporaryDir m_folder;
    QStringList m_problems;
};

void TestFolders::write(const QString &name, const QByteArray &content)
{
    const QString path = m_folder.filePath(name);
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QStringList TestFolders::idsOf(const std::vector<std::unique_ptr<ShapeKind>> &kinds) const
{
    QStringList ids;
    for (const auto &kind : kinds)
        ids.append(kind->kind().id());
    return ids;
}

void TestFolders::filesBecomeKindsByTheirNames()
{
    write(QStringLiteral("a/nut.shape.svg"), declaredtest::fileOf(""));
    write(QStringLiteral("a/bolt.shape.svg"), declaredtest::fileOf(""));
    const auto kinds = declaredtest::readFolders({m_folder.filePath(QStringLiteral("a"))}, m_problems);
    QCOMPARE(idsOf(kinds), QStringList({QStringLiteral("declared.bolt"), QStringLiteral("declared.nut")}));
    QVERIFY(m_problems.isEmpty());
}

void TestFolders::otherFilesAreLeftAlone()
{
    write(QStringLiteral("other/drawing.svg"), "<svg/>");
    const auto kinds = declaredtest::readFolders(
        {m_folder.filePath(QStringLiteral("other")), QString(), m_folder.filePath(QStringLiteral("missing"))},
        m_problems);
    QVERIFY(kinds.empty());
    QVERIFY(m_problems.isEmpty());
}

void TestFolders::faultyFileIsToldAndLeftOut()
{
    write(QStringLiteral("faulty/bad.shape.svg"), declaredtest::fileOf("<path shape:d='M{width} 0'/>"));
    write(QStringLiteral("faulty/good.shape.svg"), declaredtest::fileOf(""));
    QStringList problems;
    const auto kinds = declaredtest::readFolders({m_folder.filePath(QStringLiteral("faulty"))}, problems);
    QCOMPARE(idsOf(kinds), QStringList({QStringLiteral("declared.good")}));
    QCOMPARE(problems, QStringList({m_folder.filePath(QStringLiteral("faulty/bad.shape.svg")) +
                                    QStringLiteral(":3:18: error C20: there is no \"width\"")}));
}

void TestFolders::fileThatIsTooLargeIsTold()
{
    write(QStringLiteral("large/large.shape.svg"), declaredtest::fileOf(QByteArray(1 << 20, ' ')));
    QStringList problems;
    QVERIFY(declaredtest::readFolders({m_folder.filePath(QStringLiteral("large"))}, problems).empty());
    QCOMPARE(problems.size(), 1);
    QVERIFY(problems.first().contains(QLatin1String("error C42")));
}

void TestFolders::firstFolderWins()
{
    write(QStringLiteral("first/nut.shape.svg"), declaredtest::fileAbout("name='Mine'", ""));
    write(QStringLiteral("second/Nut.shape.svg"), declaredtest::fileAbout("name='Theirs'", ""));
    QStringList problems;
    const auto kinds = declaredtest::readFolders(
        {m_folder.filePath(QStringLiteral("first")), m_folder.filePath(QStringLiteral("second"))}, problems);
    QCOMPARE(kinds.size(), size_t(1));
    QCOMPARE(kinds.front()->declaration().name.value(QStringLiteral("en")), QStringLiteral("Mine"));
    QCOMPARE(problems, QStringList({m_folder.filePath(QStringLiteral("second/Nut.shape.svg")) +
                                    QStringLiteral(":2:1: error C05: the id \"Nut\" is that of another file")}));
}

void TestFolders::textsHaveTheLanguagesOfTheFile()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileAbout(
        "name='Nut' name.de='Mutter' group='science'",
        "<shape:property name='size' type='choice' value='m8' title='Size'><shape:entry name='m8' title='M 8'/>"
        "</shape:property>")));
    const QMap<QString, QString> english = kind.texts(QStringLiteral("en"));
    QCOMPARE(english.value(QStringLiteral("IDS_DECLARED_NUT")), QStringLiteral("Nut"));
    QCOMPARE(english.value(QStringLiteral("IDS_DECLARED_nut_size")), QStringLiteral("Size"));
    QCOMPARE(english.value(QStringLiteral("IDS_DECLARED_nut_size_m8")), QStringLiteral("M 8"));
    QCOMPARE(english.value(QStringLiteral("IDS_SHAPEGROUP_SCIENCE")), QStringLiteral("Science"));
    QCOMPARE(kind.texts(QStringLiteral("de")).value(QStringLiteral("IDS_DECLARED_NUT")), QStringLiteral("Mutter"));
    QVERIFY(kind.texts(QStringLiteral("fr")).isEmpty());
}

void TestFolders::groupMayBeATitle()
{
    const ShapeKind kind(declaredtest::readOf(
        declaredtest::fileAbout("name='Nut' group='My tools' group.de='Meine Werkzeuge'", "")));
    QCOMPARE(kind.texts(QStringLiteral("en")).value(kind.groupKey()), QStringLiteral("My tools"));
    QCOMPARE(kind.texts(QStringLiteral("de")).value(kind.groupKey()), QStringLiteral("Meine Werkzeuge"));
}

void TestFolders::wordsForSearchingHaveTheirLanguages()
{
    const ShapeKind kind(
        declaredtest::readOf(declaredtest::fileAbout("name='Nut' words='bolt, hex' words.de='Sechskant'", "")));
    QCOMPARE(kind.texts(QStringLiteral("en")).value(QStringLiteral("IDS_DECLARED_NUT_WORDS")),
             QStringLiteral("bolt, hex"));
    QCOMPARE(kind.texts(QStringLiteral("de")).value(QStringLiteral("IDS_DECLARED_NUT_WORDS")),
             QStringLiteral("Sechskant"));
}

void TestFolders::iconIsThePictureOfItsSymbol()
{
    const SharedDeclaration shape = declaredtest::readOf(
        declaredtest::fileAbout("name='Nut' icon='small'",
                                "<symbol id='small' viewBox='0 0 20 10'><rect width='10' height='10' fill='#f00'/>"
                                "<rect x='10' width='10' height='10' fill='#00f'/></symbol>"));
    QVERIFY(shape);
    const QImage picture = QImage::fromData(iconPicture(shape->icon), "PNG");
    QCOMPARE(picture.size(), QSize(256, 128));
    QCOMPARE(picture.pixelColor(60, 60), QColor(255, 0, 0));
    QCOMPARE(picture.pixelColor(200, 60), QColor(0, 0, 255));
    QVERIFY(iconPicture(QByteArray()).isEmpty());
}

void TestFolders::foldersComeFromTheEnvironmentFirst()
{
    qputenv("GLIOLOLOK_SHAPES", "/first:/second");
    const QStringList folders = shapeFolders();
    QCOMPARE(folders.size(), 4);
    QCOMPARE(folders.mid(0, 2), QStringList({QStringLiteral("/first"), QStringLiteral("/second")}));
    QVERIFY(folders.at(2).endsWith(QLatin1String("/shapes")));
    qunsetenv("GLIOLOLOK_SHAPES");
    QCOMPARE(shapeFolders().size(), 2);
}

QTEST_MAIN(TestFolders)
#include "test_folders.moc"
