#include "framework/files/filetest.h"

#include <pagehost/filestamp.h>

#include <QtCore/QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

// Facts that a board keeps about the file that it has opened.

using namespace pagehost;

class TestStamps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void unchangedFileIsTheSame();
    void fileWithOtherContentsOfTheSameSizeAndTimeIsAnother();
    void copyHasTheSameContents();
    void missingFileHasNoStamp();
    void openedDocumentBringsTheStampOfItsFile();
    void savedDocumentBringsTheStampOfItsFile();
    void stampsComeBackFromTheirText();
    void damagedTextIsNoStamp();
    void otherNamesOfAFileAreCounted();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
};

void TestStamps::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QStringLiteral("lesson.board"));
    writeContents(m_file, "first");
}

void TestStamps::unchangedFileIsTheSame()
{
    const FileStamp stamp = FileStamp::of(m_file);
    QCOMPARE(stamp.size, qint64(5));
    QVERIFY(stamp.isSameFile(FileStamp::atAGlance(m_file)));
    QVERIFY(stamp.hasSameContents(FileStamp::of(m_file)));
    // Without hashes nobody knows.
    QVERIFY(!stamp.hasSameContents(FileStamp::atAGlance(m_file)));
}

void TestStamps::fileWithOtherContentsOfTheSameSizeAndTimeIsAnother()
{
    const FileStamp stamp = FileStamp::of(m_file);
    const QDateTime time = QFileInfo(m_file).lastModified();
    writeContents(m_file, "other");
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    file.close();
    QVERIFY(!stamp.hasSameContents(FileStamp::of(m_file)));
}

void TestStamps::copyHasTheSameContents()
{
    const QString copy = m_folder->filePath(QStringLiteral("copy.board"));
    QVERIFY(QFile::copy(m_file, copy));
    QVERIFY(FileStamp::of(copy).hasSameContents(FileStamp::of(m_file)));
    QVERIFY(!FileStamp::of(copy).isSameFile(FileStamp::of(m_file)));
}

void TestStamps::missingFileHasNoStamp()
{
    QVERIFY(QFile::remove(m_file));
    QVERIFY(FileStamp::of(m_file).isNull());
    QVERIFY(FileStamp::atAGlance(m_file).isNull());
    QVERIFY(!FileStamp::of(m_file).hasSameContents(FileStamp::of(m_file)));
    QVERIFY(FileStamp::of(m_folder->path()).isNull());
}

void TestStamps::openedDocumentBringsTheStampOfItsFile()
{
    const FileTestRegistry registry;
    Document document;
    document.appendPage();
    QVERIFY(saveDocument(document, m_file).saved);
    const OpenResult opened = openDocument(m_file, registry);
    QVERIFY(opened.stamp.isSameFile(FileStamp::of(m_file)));
    QVERIFY(opened.stamp.hasSameContents(FileStamp::of(m_file)));
}

void TestStamps::savedDocumentBringsTheStampOfItsFile()
{
    Document document;
    document.appendPage();
    const SaveResult saved = saveDocument(document, m_file);
    QVERIFY(saved.stamp.isSameFile(FileStamp::of(m_file)));
    QVERIFY(saved.stamp.hasSameContents(FileStamp::of(m_file)));
}

void TestStamps::stampsComeBackFromTheirText()
{
    const FileStamp stamp = FileStamp::of(m_file);
    const FileStamp back = FileStamp::fromJson(stamp.toJson());
    QVERIFY(back.isSameFile(stamp));
    QCOMPARE(back.hash, stamp.hash);
    QVERIFY(FileStamp::fromJson(FileStamp().toJson()).isNull());
}

void TestStamps::damagedTextIsNoStamp()
{
    QJsonObject text = FileStamp::of(m_file).toJson();
    text.insert(QStringLiteral("inode"), QStringLiteral("x"));
    QVERIFY(FileStamp::fromJson(text).isNull());
    QVERIFY(FileStamp::fromJson({}).isNull());
}

void TestStamps::otherNamesOfAFileAreCounted()
{
    QCOMPARE(effectsOfReplacing(m_file).otherNames, 0);
    QVERIFY(!effectsOfReplacing(m_file).changesOwner);
    QCOMPARE(::link(qPrintable(m_file), qPrintable(m_folder->filePath(QStringLiteral("second.board")))), 0);
    QCOMPARE(effectsOfReplacing(m_file).otherNames, 1);
    QCOMPARE(effectsOfReplacing(m_folder->filePath(QStringLiteral("none.board"))).otherNames, 0);
    // Folders have names for each folder in them.
    QCOMPARE(effectsOfReplacing(m_folder->path()).otherNames, 0);
}

QTEST_MAIN(TestStamps)
#include "test_stamps.moc"
