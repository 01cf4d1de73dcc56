// The program from the outside: arguments, exit codes, what it prints, and the pictures that it writes.

#include <application/commandline.h>

#include <pagehost/documentfile.h>
#include <pagehost/lesson.h>
#include <pagehost/page.h>

#include <support/patience.h>

#include <QtCore/QProcess>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtTest/QtTest>

struct Outcome
{
    int code = -1;
    QString out;
    QString errors;
};

/// Runs the board without any display.
static Outcome run(const QStringList &arguments, const QString &platform = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(name);
    const QTemporaryDir runtimeFolder;
    environment.insert("XDG_RUNTIME_DIR", runtimeFolder.path());
    if (!platform.isEmpty())
        environment.insert("QT_QPA_PLATFORM", platform);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(BOARD_PROGRAM, arguments);
    Outcome outcome;
    if (!process.waitForFinished(support::patience) || process.exitStatus() != QProcess::NormalExit)
        return outcome;
    outcome.code = process.exitCode();
    outcome.out = QString::fromUtf8(process.readAllStandardOutput());
    outcome.errors = QString::fromUtf8(process.readAllStandardError());
    return outcome;
}

/// Of 255; edges of lines are smoothed a little differently. Without its shapes a page is 5 off.
static constexpr double mostDifference = 0.1;

static double meanDifference(const QImage &one, const QImage &other)
{
    if (one.size() != other.size() || one.isNull())
        return 255;
    double sum = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            sum += qAbs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y)));
    return sum / one.width() / one.height();
}

class TestProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void helpNamesEveryOption();
    void versionIsPrinted();
    void badArgumentsAreRefused_data();
    void badArgumentsAreRefused();
    void exportWritesThePages_data();
    void exportWritesThePages();
    void exportWritesTheBoardThatIsGiven();
    void exportWritesDrawings();
    void exportWritesOnePdf();
    void thumbnailShowsTheFirstPage();
    void thumbnailOfAThinPageHasAPixelAcross();
    void shapeFileIsTriedOnABlankPage();
    void playedLessonIsExported();
    void severalPlayedLessonsGetAFolderEach();
    void playingWithoutALessonFails();
    void playingADamagedLessonFails();
    void lessonIsExportedUpToItsDamage();
    void exportIntoAnImpossibleFolderFails();
    void unusablePlugInsAreReported();
    void missingPlugInFolderIsReported();
    void theFileThatIsGivenOpensInTheWindow();
    void picturesOfAllSituationsAreMadeByOneCommand();
    void optionsAreRead();
};

void TestProgram::picturesOfAllSituationsAreMadeByOneCommand()
{
    QTemporaryDir folder;
    const QString target = folder.filePath("pictures");
    const Outcome outcome =
        run({"--language", "en", "--screenshot", target, "--screenshot-state", "all"}, "offscreen");
    QCOMPARE(outcome.code, 0);
    const QStringList names = QDir(target).entryList({"*.png"});
    QCOMPARE(names.size(), 26);
    const auto sizeOf = [&](const QString &name) { return QImage(QDir(target).filePath(name)).size(); };
    QCOMPARE(sizeOf("01-first-start.png"), QSize(1366, 768));
    QCOMPARE(sizeOf("15-1024x600.png"), QSize(1024, 600));
    QCOMPARE(sizeOf("16-200-percent.png"), QSize(1920, 1080));
    // The battery's line has edges of a pixel each, though the screen has half as many pixels.
    const QImage sharp(QDir(target).filePath("16-200-percent.png"));
    int mixed = 0;
    int full = 0;
    for (int y = 910; y < 950; ++y) {
        const QColor color = sharp.pixelColor(1000, y);
        full += color == QColor(0x1f, 0x5f, 0xa8);
        mixed += color != QColor(0x1f, 0x5f, 0xa8) && color != QColor(0xfd, 0xfd, 0xfb);
    }
    QCOMPARE(full, 3);
    QCOMPARE(mixed, 2);
    // Bars are light in one theme and dark in the other.
    const auto barOf = [&](const QString &name) { return QImage(QDir(target).filePath(name)).pixelColor(600, 10); };
    QCOMPARE(barOf("03-selected.png"), QColor(0xf7, 0xf8, 0xfa));
    QCOMPARE(barOf("13-dark.png"), QColor(0x22, 0x26, 0x2d));
}

void TestProgram::helpNamesEveryOption()
{
    const Outcome outcome = run({"--help"});
    QCOMPARE(outcome.code, 0);
    for (const char *option : {"--plugins", "--export", "--format", "--scale", "--thumbnail", "--thumbnail-size",
                               "--demo", "--language", "--dark", "--play", "--help"})
        QVERIFY2(outcome.out.contains(option), option);
}

void TestProgram::versionIsPrinted()
{
    static const QRegularExpression line("^gliololok-board \\d+\\.\\d+\\.\\d+\n$");
    const Outcome outcome = run({"--version"});
    QCOMPARE(outcome.code, 0);
    QVERIFY(line.match(outcome.out).hasMatch());
}

void TestProgram::badArgumentsAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("words");
    QTest::newRow("unknown option") << QStringList{"--colour"} << "colour";
    QTest::newRow("two files") << QStringList{"one.board", "two.board"} << "two.board";
    QTest::newRow("format") << QStringList{"--export", "x", "--format", "gif"} << "--format";
    QTest::newRow("file that is not there") << QStringList{"nowhere.board", "--export", "x"} << "nowhere.board";
    QTest::newRow("scale 0") << QStringList{"--export", "x", "--scale", "0"} << "--scale";
    QTest::newRow("scale nan") << QStringList{"--export", "x", "--scale", "nan"} << "--scale";
    QTest::newRow("scale 1e999") << QStringList{"--export", "x", "--scale", "1e999"} << "--scale";
    QTest::newRow("language") << QStringList{"--language", "xx"} << "xx";
    QTest::newRow("thumbnail of 15") << QStringList{"a.board", "--thumbnail", "x", "--thumbnail-size", "15"}
                                     << "--thumbnail-size";
    QTest::newRow("thumbnail of 4097") << QStringList{"a.board", "--thumbnail", "x", "--thumbnail-size", "4097"}
                                       << "--thumbnail-size";
    QTest::newRow("thumbnail of no number")
        << QStringList{"a.board", "--thumbnail", "x", "--thumbnail-size", "big"} << "big";
    QTest::newRow("thumbnail of nothing") << QStringList{"--thumbnail", "x"} << "--thumbnail";
    QTest::newRow("thumbnail of a file that is not there")
        << QStringList{"nowhere.board", "--thumbnail", "x"} << "nowhere.board";
    QTest::newRow("shape that is not there")
        << QStringList{"nowhere.shape.svg", "--thumbnail", "x"} << "nowhere.shape.svg: there is no shape";
    QTest::newRow("export without a folder") << QStringList{"--export"} << "export";
    QTest::newRow("export to nothing") << QStringList{"--export", ""} << "--export";
}

void TestProgram::badArgumentsAreRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, words);
    const Outcome outcome = run(arguments);
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.errors.contains(words), qPrintable(outcome.errors));
    QCOMPARE(outcome.out, QString());
}

void TestProgram::exportWritesThePages_data()
{
    QTest::addColumn<QString>("scale");
    QTest::addColumn<QSize>("size");
    QTest::newRow("full") << "1" << QSize(1280, 720);
    QTest::newRow("half") << "0.5" << QSize(640, 360);
    QTest::newRow("double") << "2" << QSize(2560, 1440);
}

void TestProgram::exportWritesThePages()
{
    QFETCH(QString, scale);
    QFETCH(QSize, size);
    QTemporaryDir folder;
    const QString target = folder.filePath("new/pages");
    const Outcome outcome = run({"--export", target, "--scale", scale});
    QCOMPARE(outcome.code, 0);
    const QStringList printed = outcome.out.split('\n', Qt::SkipEmptyParts);
    QCOMPARE(printed, (QStringList{target + "/page-1.png", target + "/page-2.png", target + "/page-3.png"}));
    for (const QString &file : printed) {
        const QImage picture(file);
        QCOMPARE(picture.size(), size);
        QSet<QRgb> colors;
        for (int y = 0; y < picture.height(); y += 5)
            for (int x = 0; x < picture.width(); x += 5)
                colors.insert(picture.pixel(x, y));
        // Paper, and fills and outlines of several shapes.
        QVERIFY2(colors.size() > 8, qPrintable(file));
    }
}

void TestProgram::exportWritesTheBoardThatIsGiven()
{
    QTemporaryDir folder;
    pagehost::Document document;
    for (int i = 0; i < 3; ++i)
        document.appendPage(QSizeF(200, 100));
    for (const QString &name : {QString("pages.board"), QString("pages.board.json")}) {
        QVERIFY(pagehost::saveDocument(document, folder.filePath(name)).saved);
        const Outcome outcome = run({folder.filePath(name), "--export", folder.filePath("out"), "--scale", "2"});
        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.out.split('\n', Qt::SkipEmptyParts).size(), 3);
        QCOMPARE(QImage(folder.filePath("out/page-3.png")).size(), QSize(400, 200));
    }
}

void TestProgram::exportWritesDrawings()
{
    QTemporaryDir folder;
    QCOMPARE(run({"--export", folder.path()}).code, 0);
    const Outcome outcome = run({"--export", folder.path(), "--format", "svg"});
    QCOMPARE(outcome.code, 0);
    const QStringList pages{folder.filePath("page-1"), folder.filePath("page-2"), folder.filePath("page-3")};
    QCOMPARE(outcome.out, pages.join(".svg\n") + ".svg\n");
    // Drawn again, the drawings look like the pictures.
    QVector<double> differences;
    for (const QString &page : pages) {
        const QString drawn = page + "-drawn.png";
        QCOMPARE(QProcess::execute(SVG_PROGRAM, {page + ".svg", drawn, "1280", "720"}), 0);
        differences.append(meanDifference(QImage(page + ".png"), QImage(drawn)));
    }
    // The second page has nothing but turned shapes, most of them dashed, so it counts together with the plain
    // ones.
    const double ofAllKinds = (differences.at(0) + differences.at(1)) / 2;
    QVERIFY2(ofAllKinds < mostDifference, qPrintable(QString::number(ofAllKinds)));
    QVERIFY2(differences.at(2) < mostDifference, qPrintable(QString::number(differences.at(2))));
}

void TestProgram::exportWritesOnePdf()
{
    QTemporaryDir folder;
    QCOMPARE(run({"--export", folder.path()}).code, 0);
    const Outcome outcome = run({"--export", folder.path(), "--format", "pdf"});
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.out, folder.filePath("pages.pdf") + "\n");
    // A pixel per scene unit, drawn by another program.
    QCOMPARE(QProcess::execute("pdftocairo", {"-png", "-r", "96", outcome.out.trimmed(), folder.filePath("drawn")}),
             0);
    for (const int page : {1, 2, 3}) {
        const QImage drawn(folder.filePath(QString("drawn-%1.png").arg(page)));
        QCOMPARE(drawn.size(), QSize(1280, 720));
        const double difference = meanDifference(QImage(folder.filePath(QString("page-%1.png").arg(page))), drawn);
        QVERIFY2(difference < 2, qPrintable(QString("%1: %2").arg(page).arg(difference)));
    }
}

/// A board with a page of one colour and another page.
static QString boardOfColor(const QTemporaryDir &folder, const QSizeF &size, const QColor &color)
{
    pagehost::Document document;
    pagehost::Page *page = document.appendPage(size);
    CPageBgProp background(page);
    background.setFillEnable(true);
    background.setFillType(CPageBgProp::SolidFill);
    background.setFillColor(color);
    page->setBackground(background);
    document.appendPage(QSizeF(50, 300));
    const QString file = folder.filePath("first.board");
    return pagehost::saveDocument(document, file).saved ? file : QString();
}

void TestProgram::thumbnailShowsTheFirstPage()
{
    const QTemporaryDir folder;
    const QString file = boardOfColor(folder, {200, 100}, QColor(0, 100, 200));
    const QString target = folder.filePath("thumbnail.png");
    QCOMPARE(run({file, "--thumbnail", target}).code, 0);
    QCOMPARE(QImage(target).size(), QSize(256, 128));
    QCOMPARE(QImage(target).pixelColor(128, 64), QColor(0, 100, 200));
    // An earlier one is replaced.
    const Outcome outcome = run({file, "--thumbnail", target, "--thumbnail-size", "64"});
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.out + outcome.errors, QString());
    QCOMPARE(QImage(target).size(), QSize(64, 32));
    const Outcome impossible = run({file, "--thumbnail", folder.filePath("nowhere/thumbnail.png")});
    QCOMPARE(impossible.code, 1);
    QVERIFY2(impossible.errors.contains("nowhere/thumbnail.png"), qPrintable(impossible.errors));
}

void TestProgram::thumbnailOfAThinPageHasAPixelAcross()
{
    const QTemporaryDir folder;
    const QString file = boardOfColor(folder, {2000, 1}, Qt::white);
    const QString target = folder.filePath("thumbnail.png");
    QCOMPARE(run({file, "--thumbnail", target, "--thumbnail-size", "16"}).code, 0);
    QCOMPARE(QImage(target).size(), QSize(16, 1));
}

/// A shape that fills its frame with a colour.
static QString fullShapeIn(const QTemporaryDir &folder, const char *color)
{
    QFile file(folder.filePath("full.shape.svg"));
    const QString svg = QString("<svg xmlns='http://www.w3.org/2000/svg' xmlns:shape='urn:gliololok:shape' "
                                "viewBox='0 0 120 80'><shape:about name='Full' id='colored'/>"
                                "<path id='figure' fill='%1' stroke='%1' d='M0 0H120V80H0Z'/></svg>")
                            .arg(color);
    return file.open(QIODevice::WriteOnly) && file.write(svg.toUtf8()) > 0 ? file.fileName() : QString();
}

void TestProgram::shapeFileIsTriedOnABlankPage()
{
    const QTemporaryDir folder;
    const QString file = fullShapeIn(folder, "#0064c8");
    QCOMPARE(run({file, "--export", folder.path()}).code, 0);
    const QImage page(folder.filePath("page-1.png"));
    const QPoint middle = page.rect().center();
    QCOMPARE(page.pixelColor(middle), QColor(0, 100, 200));
    QCOMPARE(page.pixelColor(middle - QPoint(58, 38)), QColor(0, 100, 200));
    QCOMPARE(page.pixelColor(middle + QPoint(58, 38)), QColor(0, 100, 200));
    QCOMPARE(page.pixelColor(middle - QPoint(64, 44)), QColor(Qt::white));
    QCOMPARE(page.pixelColor(middle + QPoint(64, 44)), QColor(Qt::white));
}

/// A lesson in which pages of a size appear, in a document whose own page is another.
static pagehost::LessonData pagesLesson(const QString &name, int pages, const QSizeF &size)
{
    pagehost::Lesson lesson;
    lesson.title = name;
    lesson.start = {pagehost::ZoomChanged{1}, pagehost::PageAppeared{0, QSizeF(50, 50), {}}};
    for (int i = 1; i < pages; ++i)
        lesson.events.append({i * 100, pagehost::PageAppeared{i, size, {}}});
    lesson.events.append({pages * 100, pagehost::PageResized{0, size}});
    lesson.duration = pages * 100;
    return {name, lesson.toBytes()};
}

static QString boardWith(const QTemporaryDir &folder, const QVector<pagehost::LessonData> &lessons)
{
    pagehost::Document document;
    document.appendPage(QSizeF(300, 300));
    document.setLessons(lessons);
    const QString file = folder.filePath("lesson.board");
    return pagehost::saveDocument(document, file).saved ? file : QString();
}

void TestProgram::playedLessonIsExported()
{
    QTemporaryDir folder;
    const QString file = boardWith(folder, {pagesLesson("Pages", 3, {120, 80})});
    const QString target = folder.filePath("pages");
    const Outcome outcome = run({"--play", file, "--export", target});
    QCOMPARE(outcome.errors, QString());
    QCOMPARE(outcome.code, 0);
    const QStringList files{target + "/page-1.png", target + "/page-2.png", target + "/page-3.png"};
    QCOMPARE(outcome.out.split('\n', Qt::SkipEmptyParts), files);
    for (const QString &page : files)
        QCOMPARE(QImage(page).size(), QSize(120, 80));
    QCOMPARE(QDir(target).entryList(QDir::Files).size(), 3);
}

void TestProgram::severalPlayedLessonsGetAFolderEach()
{
    QTemporaryDir folder;
    const QString file = boardWith(folder, {pagesLesson("One", 1, {60, 40}), pagesLesson("Two", 2, {40, 60})});
    const QString target = folder.filePath("pages");
    const Outcome outcome = run({"--play", file, "--export", target, "--format", "svg"});
    QCOMPARE(outcome.code, 0);
    const QStringList files{target + "/lesson-1/page-1.svg", target + "/lesson-2/page-1.svg",
                            target + "/lesson-2/page-2.svg"};
    QCOMPARE(outcome.out.split('\n', Qt::SkipEmptyParts), files);
    for (const QString &written : files)
        QVERIFY2(QFileInfo(written).size() > 0, qPrintable(written));
}

void TestProgram::playingWithoutALessonFails()
{
    QTemporaryDir folder;
    const Outcome outcome = run({"--play", boardWith(folder, {}), "--export", folder.filePath("pages")});
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.out, QString());
    QVERIFY2(outcome.errors.contains("no lesson"), qPrintable(outcome.errors));
    QVERIFY(!QFileInfo::exists(folder.filePath("pages")));
}

void TestProgram::playingADamagedLessonFails()
{
    QTemporaryDir folder;
    const QString file = boardWith(folder, {{"Broken", "no lesson"}, pagesLesson("Whole", 1, {60, 40})});
    const Outcome outcome = run({"--play", file, "--export", folder.filePath("pages")});
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.errors.contains("Broken"), qPrintable(outcome.errors));
    // The other one is there all the same.
    QCOMPARE(outcome.out, folder.filePath("pages/lesson-2/page-1.png") + '\n');
}

/// With the page that came last in the part that is left.
void TestProgram::lessonIsExportedUpToItsDamage()
{
    QTemporaryDir folder;
    pagehost::LessonData lesson = pagesLesson("Pages", 2, {120, 80});
    lesson.data.chop(1);
    const QString target = folder.filePath("pages");
    const Outcome outcome = run({"--play", boardWith(folder, {lesson}), "--export", target});
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.errors.contains("The lesson \"Pages\" is damaged and ends early."),
             qPrintable(outcome.errors));
    // Without the event that gives the first page its new size.
    QCOMPARE(QImage(target + "/page-1.png").size(), QSize(50, 50));
    QCOMPARE(QImage(target + "/page-2.png").size(), QSize(120, 80));
}

void TestProgram::exportIntoAnImpossibleFolderFails()
{
    QTemporaryDir folder;
    QFile file(folder.filePath("taken"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const Outcome outcome = run({"--export", folder.filePath("taken/pages")});
    QCOMPARE(outcome.code, 1);
    QVERIFY(outcome.errors.contains("taken/pages"));
    QCOMPARE(outcome.out, QString());
}

void TestProgram::unusablePlugInsAreReported()
{
    QTemporaryDir folder;
    QFile broken(folder.filePath("broken.so"));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("this is no library");
    broken.close();
    const Outcome outcome = run({"--plugins", folder.path(), "--export", folder.filePath("pages")});
    // The shapes that could be loaded are there all the same.
    QCOMPARE(outcome.code, 0);
    const QStringList lines = outcome.errors.split('\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 1);
    const QString start = QString("The plug-in %1 could not be loaded: ").arg(folder.filePath("broken.so"));
    QVERIFY2(lines.first().startsWith(start), qPrintable(lines.first()));
    QVERIFY(lines.first().size() > start.size() + 5);
}

void TestProgram::missingPlugInFolderIsReported()
{
    QTemporaryDir folder;
    const Outcome outcome = run({"--plugins", folder.filePath("nowhere"), "--export", folder.filePath("pages")});
    QCOMPARE(outcome.code, 0);
    QVERIFY2(outcome.errors.contains(folder.filePath("nowhere")), qPrintable(outcome.errors));
}

void TestProgram::theFileThatIsGivenOpensInTheWindow()
{
    const QTemporaryDir folder;
    pagehost::Document document;
    document.appendPage(QSizeF(200, 100));
    const QString file = folder.filePath("lesson.board");
    QVERIFY(pagehost::saveDocument(document, file).saved);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("XDG_CONFIG_HOME", folder.path());
    environment.insert("XDG_DATA_HOME", folder.path());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(BOARD_PROGRAM, {file});
    // The opened file is offered again.
    const QString settings = folder.filePath("gliololok/gliololok-board.conf");
    QTRY_COMPARE_WITH_TIMEOUT(QSettings(settings, QSettings::IniFormat).value("recentFiles").toStringList(),
                              QStringList{file}, support::patience);
    QCOMPARE(process.state(), QProcess::Running);
    process.kill();
    QVERIFY(process.waitForFinished(support::patience));
}

void TestProgram::optionsAreRead()
{
    const board::Options options = board::parseCommandLine(
        {"board", "--plugins", "a", "--plugins", "b", "--demo", "--dark", "--language", "de", "--scale", "1.5"});
    QCOMPARE(options.action, board::Options::OpenWindow);
    QCOMPARE(options.pluginFolders, (QStringList{"a", "b"}));
    QVERIFY(options.demo && options.dark);
    QCOMPARE(options.language, QString("de"));
    QCOMPARE(options.scale, 1.5);
    QCOMPARE(board::parseCommandLine({"board", "--export", "x"}).action, board::Options::ExportPages);
    QCOMPARE(board::parseCommandLine({"board", "--shapes", "/a", "/b/nut.shape.svg"}).shapeFolders,
             (QStringList{"/b", "/a"}));
}

QTEST_MAIN(TestProgram)
#include "test_program.moc"
