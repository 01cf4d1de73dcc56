// Runs svgdraw as people do.

#include <support/patience.h>

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtTest>

namespace {

struct Outcome
{
    int code = -1;
    QString errors;
    QString output;
};

Outcome svgdraw(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(SVGDRAW), arguments);
    if (!process.waitForFinished(support::patience) || process.exitStatus() != QProcess::NormalExit)
        return Outcome();
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardError()),
            QString::fromUtf8(process.readAllStandardOutput())};
}

} // namespace

class TestSvgdraw : public QObject
{
    Q_OBJECT

private slots:
    void drawsIntoAPictureOfExactlyThatSize();
    void drawsAMomentOfAnAnimation();
    void printsMessagesWithTheirPlace();
    void refusesWhatIsNoSvg();
    void complainsAboutWrongArguments_data();
    void complainsAboutWrongArguments();
    void complainsAboutAFileThatIsNotThere();
    void saysWhyAPictureCannotBeWritten_data();
    void saysWhyAPictureCannotBeWritten();
    void pictureThatDoesNotFitOnTheDiskIsToldOf();
    void readsNoFurtherThanTheLibraryTakes();
    void takesATimeBeforeTheStart();
    void helpTellsTheExitCodes();
    void versionIsPrinted();

private:
    QString written(const QByteArray &text) const;
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

QString TestSvgdraw::written(const QByteArray &text) const
{
    QFile file(path("in.svg"));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        return QString();
    return file.fileName();
}

void TestSvgdraw::drawsIntoAPictureOfExactlyThatSize()
{
    const QString in = written("<svg viewBox='0 0 10 10'><rect width='10' height='10' fill='#0f0'/></svg>");
    const Outcome outcome = svgdraw({in, path("out.png"), QStringLiteral("40"), QStringLiteral("20")});
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.errors, QString());
    const QImage image(path("out.png"));
    QCOMPARE(image.size(), QSize(40, 20));
    QCOMPARE(image.pixelColor(9, 10), QColor(0, 0, 0, 0));
    QCOMPARE(image.pixelColor(10, 10), QColor(0, 255, 0));
    QCOMPARE(image.pixelColor(29, 10), QColor(0, 255, 0));
    QCOMPARE(image.pixelColor(30, 10), QColor(0, 0, 0, 0));
}

void TestSvgdraw::drawsAMomentOfAnAnimation()
{
    const QString in = written("<svg viewBox='0 0 10 10'><rect width='1' height='10' fill='#0f0'>"
                               "<animate attributeName='x' from='0' to='10' dur='2s'/></rect></svg>");
    const QStringList arguments{in, path("out.png"), QStringLiteral("10"), QStringLiteral("10")};
    QCOMPARE(svgdraw(arguments).code, 0);
    QCOMPARE(QImage(path("out.png")).pixelColor(0, 5), QColor(0, 255, 0));
    QCOMPARE(svgdraw(arguments + QStringList{QStringLiteral("1200")}).code, 0);
    QCOMPARE(QImage(path("out.png")).pixelColor(0, 5), QColor(0, 0, 0, 0));
    QCOMPARE(QImage(path("out.png")).pixelColor(6, 5), QColor(0, 255, 0));
}

void TestSvgdraw::printsMessagesWithTheirPlace()
{
    const QString in = written("<svg viewBox='0 0 10 10'>\n<rect width='10' height='10' fill='no colour'/></svg>");
    const Outcome outcome = svgdraw({in, path("out.png"), QStringLiteral("10"), QStringLiteral("10")});
    QCOMPARE(outcome.code, 0);
    QVERIFY2(outcome.errors.startsWith(in + QStringLiteral(":2:36: warning: ")), qPrintable(outcome.errors));
    QVERIFY2(outcome.errors.contains(QStringLiteral(": warning: ")), qPrintable(outcome.errors));
    QCOMPARE(outcome.errors.count(QLatin1Char('\n')), 1);
}

void TestSvgdraw::refusesWhatIsNoSvg()
{
    const QString in = written("<svg><g></svg>");
    const Outcome outcome = svgdraw({in, path("refused.png"), QStringLiteral("10"), QStringLiteral("10")});
    QCOMPARE(outcome.code, 2);
    QVERIFY2(outcome.errors.startsWith(in + QStringLiteral(":1:")), qPrintable(outcome.errors));
    QVERIFY2(outcome.errors.contains(QStringLiteral(": error: ")), qPrintable(outcome.errors));
    QVERIFY(!QFile::exists(path("refused.png")));
}

void TestSvgdraw::complainsAboutWrongArguments_data()
{
    QTest::addColumn<QStringList>("sizes");
    QTest::newRow("none") << QStringList();
    QTest::newRow("one") << QStringList{QStringLiteral("10")};
    QTest::newRow("zero") << QStringList{QStringLiteral("10"), QStringLiteral("0")};
    QTest::newRow("no number") << QStringList{QStringLiteral("ten"), QStringLiteral("10")};
    QTest::newRow("no time") << QStringList{QStringLiteral("10"), QStringLiteral("10"), QStringLiteral("soon")};
    QTest::newRow("less than nothing") << QStringList{QStringLiteral("-10"), QStringLiteral("10")};
    QTest::newRow("too large") << QStringList{QStringLiteral("10"), QStringLiteral("32768")};
}

void TestSvgdraw::complainsAboutWrongArguments()
{
    QFETCH(QStringList, sizes);
    const QString in = written("<svg/>");
    const Outcome outcome = svgdraw(QStringList{in, path("wrong.png")} + sizes);
    QCOMPARE(outcome.code, 1);
    QVERIFY(!outcome.errors.isEmpty());
    QVERIFY(!QFile::exists(path("wrong.png")));
}

void TestSvgdraw::complainsAboutAFileThatIsNotThere()
{
    const Outcome outcome =
        svgdraw({path("absent.svg"), path("out.png"), QStringLiteral("10"), QStringLiteral("10")});
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.errors.contains(QStringLiteral("absent.svg")), qPrintable(outcome.errors));
}

void TestSvgdraw::saysWhyAPictureCannotBeWritten_data()
{
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("reason");
    QTest::newRow("folder that is not there") << path("nowhere/out.png") << "No such file or directory";
    QTest::newRow("folder") << m_folder.path() << "directory";
}

void TestSvgdraw::saysWhyAPictureCannotBeWritten()
{
    QFETCH(QString, out);
    QFETCH(QString, reason);
    const Outcome outcome = svgdraw({written("<svg/>"), out, QStringLiteral("10"), QStringLiteral("10")});
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.errors.startsWith(QStringLiteral("svgdraw: %1 can't be written: ").arg(out)),
             qPrintable(outcome.errors));
    QVERIFY2(outcome.errors.contains(reason), qPrintable(outcome.errors));
}

/// A device that is always full takes the disk's place, and stays a device.
void TestSvgdraw::pictureThatDoesNotFitOnTheDiskIsToldOf()
{
    const QString full = QStringLiteral("/dev/full");
    const Outcome outcome = svgdraw({written("<svg/>"), full, QStringLiteral("10"), QStringLiteral("10")});
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.errors, QStringLiteral("svgdraw: /dev/full can't be written: not all of it was taken; is the "
                                            "disk full?\n"));
    QVERIFY(QFileInfo::exists(full) && !QFileInfo(full).isFile());
}

void TestSvgdraw::readsNoFurtherThanTheLibraryTakes()
{
    const Outcome outcome =
        svgdraw({QStringLiteral("/dev/zero"), path("zero.png"), QStringLiteral("10"), QStringLiteral("10")});
    QCOMPARE(outcome.code, 2);
    QVERIFY2(outcome.errors.contains(QStringLiteral("longer than 16777216 bytes")), qPrintable(outcome.errors));
}

void TestSvgdraw::takesATimeBeforeTheStart()
{
    const QString in = written("<svg viewBox='0 0 10 10'><rect width='10' height='10' fill='#0f0'/></svg>");
    const QStringList size{QStringLiteral("10"), QStringLiteral("10")};
    QCOMPARE(svgdraw(QStringList{in, path("early.png")} + size + QStringList{QStringLiteral("-50")}).code, 0);
    QCOMPARE(QImage(path("early.png")).pixelColor(5, 5), QColor(0, 255, 0));
}

void TestSvgdraw::versionIsPrinted()
{
    const Outcome outcome = svgdraw({QStringLiteral("--version")});
    QCOMPARE(outcome.code, 0);
    QVERIFY(QRegularExpression(QStringLiteral("^svgdraw \\d+\\.\\d+\\.\\d+\n$")).match(outcome.output).hasMatch());
}

void TestSvgdraw::helpTellsTheExitCodes()
{
    const Outcome outcome = svgdraw({QStringLiteral("--help")});
    QCOMPARE(outcome.code, 0);
    QVERIFY(outcome.output.contains(QStringLiteral("2 the file was refused")));
}

QTEST_MAIN(TestSvgdraw)
#include "test_svgdraw.moc"
