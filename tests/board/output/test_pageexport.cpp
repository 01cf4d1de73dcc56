// Files of pages and objects, step by step.

#include "drawnpage.h"

#include <output/pageexport.h>

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using board::ExportContent;
using board::ExportJob;
using board::PageFormat;

namespace {

/// The left half of any object is red.
const QByteArray redHalf =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 2 1\" preserveAspectRatio=\"none\">"
    "<rect width=\"1\" height=\"1\" fill=\"#f00\"/></svg>";
const QByteArray embeddedPicture("/Subtype /Image");

struct ExportedPage : DrawnPage
{
    ExportedPage() { plugin.look = redHalf; }

    QString path(const QString &name) const { return folder.filePath(name); }
    QByteArray read(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    board::ExportResult write(const ExportContent &content, const QString &name, PageFormat format,
                              double scale = 1) const
    {
        ExportJob job(content, {path(name)}, registry, {format, scale});
        while (!job.isDone())
            job.step();
        return job.result();
    }
    QByteArray run(const QString &program, const QStringList &arguments) const
    {
        QProcess process;
        process.start(program, arguments);
        if (!process.waitForFinished(-1) || process.exitCode() != 0)
            qFatal("%s failed", qPrintable(program));
        return process.readAllStandardOutput();
    }
    /// The first page at a pixel per scene unit.
    QImage picture(const QString &name) const
    {
        run("pdftocairo", {"-png", "-r", "96", "-singlefile", path(name), path("picture")});
        return QImage(path("picture.png")).convertToFormat(QImage::Format_RGB32);
    }

    QTemporaryDir folder;
};

/// Colours of documents may be a step of 256 off.
bool isNear(const QImage &image, int x, int y, const QColor &expected)
{
    const QColor color = image.pixelColor(x, y);
    return qAbs(color.red() - expected.red()) <= 1 && qAbs(color.green() - expected.green()) <= 1 &&
           qAbs(color.blue() - expected.blue()) <= 1;
}

} // namespace

Q_DECLARE_METATYPE(board::PageFormat)

class TestPageExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aStepWritesAPage();
    void aPdfIsWrittenWithTheLastStep();
    void pagesOfAPdfHaveTheirSizes();
    void aPdfIsNamedAfterItsFile();
    void aPdfHasOutlinesAndNoPictures();
    void aPdfShowsObjectsWhereTheyAre();
    void objectsWithoutALookArePicturesInAPdf();
    void hiddenObjectsAreNotInAPdf();
    void pageBackgroundsAreInAPdf();
    void objectsAloneAreAsLargeAsTheyArePainted_data();
    void objectsAloneAreAsLargeAsTheyArePainted();
    void objectsThatPaintNothingAreAProblem();
    void deletedPagesAreAProblem();
    void filesThatCannotBeWrittenAreAProblem();
    void namesHaveAsManyDigitsAsTheLast();
};

void TestPageExport::aStepWritesAPage()
{
    ExportedPage t;
    t.document.appendPage(QSizeF(300, 100));
    ExportJob job(board::allPages(&t.document), {t.path("a.png"), t.path("b.png")}, t.registry,
                  {PageFormat::Png, 2});
    QCOMPARE(job.stepCount(), 2);
    QVERIFY(!job.isDone());
    job.step();
    QCOMPARE(job.stepsDone(), 1);
    QCOMPARE(job.result().files, QStringList{t.path("a.png")});
    QCOMPARE(QImage(t.path("a.png")).size(), QSize(400, 200));
    QVERIFY(!QFile::exists(t.path("b.png")));
    job.step();
    QVERIFY(job.isDone());
    QCOMPARE(QImage(t.path("b.png")).size(), QSize(600, 200));
    job.step();
    QCOMPARE(job.stepsDone(), 2);
    QCOMPARE(job.result().files.size(), 2);
}

void TestPageExport::aPdfIsWrittenWithTheLastStep()
{
    ExportedPage t;
    t.document.appendPage(QSizeF(300, 100));
    ExportJob job(board::allPages(&t.document), {t.path("a.pdf")}, t.registry, {PageFormat::Pdf, 1});
    job.step();
    QVERIFY(!QFile::exists(t.path("a.pdf")));
    job.step();
    QCOMPARE(job.result().files, QStringList{t.path("a.pdf")});
    QVERIFY(t.read("a.pdf").startsWith("%PDF-"));
}

// 96 scene units and 72 points are an inch.
void TestPageExport::pagesOfAPdfHaveTheirSizes()
{
    ExportedPage t;
    t.document.appendPage(QSizeF(400, 1200));
    t.write(board::allPages(&t.document), "a.pdf", PageFormat::Pdf);
    const QByteArray facts = t.run("pdfinfo", {"-f", "1", "-l", "2", t.path("a.pdf")});
    QVERIFY2(facts.contains("Pages:           2\n"), facts);
    QVERIFY2(facts.contains("Page    1 size:  150 x 75 pts\n"), facts);
    QVERIFY2(facts.contains("Page    2 size:  300 x 900 pts\n"), facts);
}

void TestPageExport::aPdfIsNamedAfterItsFile()
{
    ExportedPage t;
    t.write(board::allPages(&t.document), "Optics.pdf", PageFormat::Pdf);
    const QByteArray facts = t.run("pdfinfo", {t.path("Optics.pdf")});
    QVERIFY2(facts.contains("Title:           Optics\n"), facts);
}

void TestPageExport::aPdfHasOutlinesAndNoPictures()
{
    ExportedPage t;
    t.add({10, 20});
    t.write(board::allPages(&t.document), "a.pdf", PageFormat::Pdf);
    QVERIFY(!t.read("a.pdf").contains(embeddedPicture));
}

// The object of 40 x 30 is at (10, 20).
void TestPageExport::aPdfShowsObjectsWhereTheyAre()
{
    ExportedPage t;
    t.add({10, 20});
    t.write(board::allPages(&t.document), "a.pdf", PageFormat::Pdf);
    const QImage picture = t.picture("a.pdf");
    QCOMPARE(picture.size(), QSize(200, 100));
    QVERIFY(isNear(picture, 11, 21, Qt::red));
    QVERIFY(isNear(picture, 28, 48, Qt::red));
    QVERIFY(isNear(picture, 8, 35, Qt::white));
    QVERIFY(isNear(picture, 31, 35, Qt::white));
    QVERIFY(isNear(picture, 20, 18, Qt::white));
    QVERIFY(isNear(picture, 20, 51, Qt::white));
}

void TestPageExport::objectsWithoutALookArePicturesInAPdf()
{
    ExportedPage t;
    t.plugin.look.clear();
    t.add({10, 20});
    t.write(board::allPages(&t.document), "a.pdf", PageFormat::Pdf);
    QVERIFY(t.read("a.pdf").contains(embeddedPicture));
    const QImage picture = t.picture("a.pdf");
    QVERIFY(isNear(picture, 12, 22, Qt::blue));
    QVERIFY(isNear(picture, 47, 47, Qt::blue));
    QVERIFY(isNear(picture, 53, 35, Qt::white));
}

void TestPageExport::hiddenObjectsAreNotInAPdf()
{
    ExportedPage t;
    t.add({10, 20})->setVisible(false);
    t.write(board::allPages(&t.document), "a.pdf", PageFormat::Pdf);
    QVERIFY(isNear(t.picture("a.pdf"), 20, 35, Qt::white));
}

void TestPageExport::pageBackgroundsAreInAPdf()
{
    ExportedPage t;
    CPageBgProp background = t.page->background();
    background.setFillColor(QColor(0, 255, 0));
    t.page->setBackground(background);
    t.write(board::allPages(&t.document), "a.pdf", PageFormat::Pdf);
    const QImage picture = t.picture("a.pdf");
    QVERIFY(isNear(picture, 1, 1, Qt::green));
    QVERIFY(isNear(picture, 198, 98, Qt::green));
}

void TestPageExport::objectsAloneAreAsLargeAsTheyArePainted_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<PageFormat>("format");
    QTest::newRow("picture") << "a.png" << PageFormat::Png;
    QTest::newRow("drawing") << "a.svg" << PageFormat::Svg;
    QTest::newRow("document") << "a.pdf" << PageFormat::Pdf;
}

void TestPageExport::objectsAloneAreAsLargeAsTheyArePainted()
{
    QFETCH(QString, name);
    QFETCH(PageFormat, format);
    ExportedPage t;
    const QVector<CBaseObject *> objects{t.add({10, 20}), t.add({60, 40})};
    const board::ExportResult result = t.write({{}, objects}, name, format, 2);
    QCOMPARE(result.problems, QStringList());
    QCOMPARE(result.files, QStringList{t.path(name)});
    if (format == PageFormat::Png)
        QCOMPARE(QImage(t.path(name)).size(), QSize(180, 100));
    else if (format == PageFormat::Svg)
        QVERIFY(t.read(name).contains("width=\"90\" height=\"50\" viewBox=\"10 20 90 50\""));
    else
        // 67.5 x 37.5, but whole points.
        QVERIFY(t.run("pdfinfo", {t.path(name)}).contains("Page size:       68 x 38 pts\n"));
}

void TestPageExport::objectsThatPaintNothingAreAProblem()
{
    ExportedPage t;
    CBaseObject *object = t.add({10, 20});
    object->setVisible(false);
    const board::ExportResult result = t.write({{}, {object}}, "a.png", PageFormat::Png);
    QCOMPARE(result.files, QStringList());
    QCOMPARE(result.problems, QStringList{t.path("a.png") + " was not written: there is nothing to see."});
}

void TestPageExport::deletedPagesAreAProblem()
{
    ExportedPage t;
    const ExportContent content{{t.page, QPointer<pagehost::Page>()}, {}};
    const board::ExportResult result = t.write(content, "a.pdf", PageFormat::Pdf);
    QCOMPARE(result.problems,
             QStringList{t.path("a.pdf") + " is not complete: a page was deleted before it was written."});
    QCOMPARE(result.files, QStringList{t.path("a.pdf")});
    QVERIFY(t.run("pdfinfo", {t.path("a.pdf")}).contains("Pages:           1\n"));
}

void TestPageExport::filesThatCannotBeWrittenAreAProblem()
{
    ExportedPage t;
    for (const PageFormat format : {PageFormat::Png, PageFormat::Svg, PageFormat::Pdf}) {
        const board::ExportResult result = t.write(board::allPages(&t.document), "missing/a", format);
        QCOMPARE(result.files, QStringList());
        QCOMPARE(result.problems.size(), 1);
        QVERIFY(result.problems.first().startsWith(t.path("missing/a") + " could not be written: "));
    }
}

void TestPageExport::namesHaveAsManyDigitsAsTheLast()
{
    ExportedPage t;
    QCOMPARE(board::exportFiles(&t.document, "/a", PageFormat::Svg), QStringList{"/a/page-1.svg"});
    QCOMPARE(board::exportFiles(&t.document, "/a", PageFormat::Pdf), QStringList{"/a/pages.pdf"});
    for (int page = 2; page <= 10; ++page)
        t.document.appendPage(QSizeF(20, 10));
    const QStringList files = board::exportFiles(&t.document, "/a", PageFormat::Png);
    QCOMPARE(files.size(), 10);
    QCOMPARE(files.first(), QString("/a/page-01.png"));
    QCOMPARE(files.last(), QString("/a/page-10.png"));
}

QTEST_MAIN(TestPageExport)
#include "test_pageexport.moc"
