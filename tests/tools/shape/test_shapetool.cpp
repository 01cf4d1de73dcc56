// The command line tool for authors of shapes, run as they run it.

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtTest/QtTest>

namespace {

struct Run
{
    int exitCode;
    QString output;
    QString errors;
};

Run run(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(SHAPETOOL), arguments);
    if (!process.waitForFinished(-1))
        return {-1, {}, process.errorString()};
    const int exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return {exitCode, QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QByteArray misspelled = "<svg xmlns='http://www.w3.org/2000/svg' xmlns:shape='urn:gliololok:shape' "
                              "viewBox='0 0 40 40'>\n<shape:about name='A' filed='page'/>\n"
                              "<path id='figure' stroke='black' stroke-width='2' d='M9 9H30V30Z'/></svg>";
const QByteArray icon =
    "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 16' fill='none' stroke='currentColor'>"
    "<path d='M2 8H14M8 2V14'/></svg>";

} // namespace

class TestShapeTool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void helpListsTheCommands();
    void everyCommandExplainsItself_data();
    void everyCommandExplainsItself();
    void unknownCommandCouldNotRun();
    void manPageAndCompletionNameEveryCommand();
    void lintPointsAtTheAttribute();
    void lintReadsTemplatesToo();
    void lintGivesJson();
    void lintOfAMissingFileCouldNotRun();
    void lookIsWrittenIntoTheFile();
    void newShapeIsFineAtOnce();
    void newShapeOverwritesNothing();
    void newShapeShowsADrawing();
    void newProjectHasATemplateWithoutFaults();
    void badNamesAreRefused_data();
    void badNamesAreRefused();
    void examplesKeepEveryPromise_data();
    void examplesKeepEveryPromise();
    void shapesOfTheBoardHaveNoFaults();
    void iconsBecomeShapes();
    void everyIconOfAFolderPaints();
    void idsOfIconsMeanNothing();
    void iconOfOneColourTakesThePen();
    void iconThatIsNoSvgIsLeftOut();
    void previewDrawsAPicture();
    void previewDrawsASheet();
    void pictureOfTheGuideIsThatOfItsShape();
    void checkFindsPlantedFaults_data();
    void checkFindsPlantedFaults();
    void checkOfNothingCouldNotRun();

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    QMap<QString, QStringList> m_found; ///< checks that found something, by kind
    int m_checkedCode = -1;
};

void TestShapeTool::helpListsTheCommands()
{
    const Run help = run({QStringLiteral("--help")});
    QCOMPARE(help.exitCode, 0);
    for (const char *command : {"new", "lint", "look", "check", "preview", "import"})
        QVERIFY2(help.output.contains(QStringLiteral("\n  %1 ").arg(QLatin1String(command))), command);
}

void TestShapeTool::everyCommandExplainsItself_data()
{
    QTest::addColumn<QString>("command");
    for (const char *command : {"new", "lint", "look", "check", "preview", "import"})
        QTest::newRow(command) << QString::fromLatin1(command);
}

void TestShapeTool::everyCommandExplainsItself()
{
    QFETCH(QString, command);
    const Run help = run({command, QStringLiteral("--help")});
    QCOMPARE(help.exitCode, 0);
    QVERIFY(help.output.startsWith(QStringLiteral("Usage: gliololok-shape ") + command));
    QVERIFY(help.output.contains(QLatin1String("Exit code: 0")));
    const Run nothing = run({command});
    QCOMPARE(nothing.exitCode, 2);
    QVERIFY(nothing.errors.startsWith(QLatin1String("gliololok-shape: ") + command));
    QCOMPARE(run({command, QStringLiteral("--nonsense")}).exitCode, 2);
}

void TestShapeTool::unknownCommandCouldNotRun()
{
    QCOMPARE(run({QStringLiteral("lnit")}).exitCode, 2);
    QCOMPARE(run({}).exitCode, 2);
}

void TestShapeTool::manPageAndCompletionNameEveryCommand()
{
    const QByteArray manual = read(QStringLiteral(TOOL_FOLDER "/gliololok-shape.1"));
    const QByteArray completion = read(QStringLiteral(TOOL_FOLDER "/completion.bash"));
    for (const char *command : {"new", "lint", "look", "check", "preview", "import"}) {
        QVERIFY2(manual.contains(QByteArray("\n.B ") + command + '\n'), command);
        QVERIFY2(completion.contains(QByteArray("    ") + command + ')'), command);
    }
}

void TestShapeTool::lintPointsAtTheAttribute()
{
    const QString file = path(QStringLiteral("misspelled.shape.svg"));
    write(file, misspelled);
    const Run lint = run({QStringLiteral("lint"), file});
    QCOMPARE(lint.exitCode, 1);
    QCOMPARE(lint.output.section(QLatin1Char('\n'), 0, 0),
             file +
                 QStringLiteral(
                     ":2:30: error C04: there is no attribute \"filed\" of \"about\" (did you mean \"filled\"?)"));
}

void TestShapeTool::lintReadsTemplatesToo()
{
    const QString file = path(QStringLiteral("template.svg"));
    write(file, "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 9'>\n<path keps='fill'/></svg>");
    const Run lint = run({QStringLiteral("lint"), file});
    QCOMPARE(lint.exitCode, 1);
    QCOMPARE(lint.output,
             file +
                 QStringLiteral(":2:13: warning K03: there is no attribute \"keps\" (did you mean \"keeps\"?)\n"));
}

void TestShapeTool::lintGivesJson()
{
    const QString file = path(QStringLiteral("misspelled.shape.svg"));
    write(file, misspelled);
    const Run lint = run({QStringLiteral("lint"), QStringLiteral("--json"), file});
    QCOMPARE(lint.exitCode, 1);
    const QJsonObject first = QJsonDocument::fromJson(lint.output.toUtf8()).array().first().toObject();
    QCOMPARE(first[QStringLiteral("file")].toString(), file);
    QCOMPARE(first[QStringLiteral("line")].toInt(), 2);
    QCOMPARE(first[QStringLiteral("column")].toInt(), 30);
    QCOMPARE(first[QStringLiteral("severity")].toString(), QStringLiteral("error"));
    QCOMPARE(first[QStringLiteral("code")].toString(), QStringLiteral("C04"));
}

void TestShapeTool::lintOfAMissingFileCouldNotRun()
{
    const Run lint = run({QStringLiteral("lint"), path(QStringLiteral("nowhere.shape.svg"))});
    QCOMPARE(lint.exitCode, 2);
    QVERIFY(lint.errors.contains(QLatin1String("nowhere.shape.svg can't be read")));
}

void TestShapeTool::lookIsWrittenIntoTheFile()
{
    const QString file = path(QStringLiteral("unseen.shape.svg"));
    const QByteArray text =
        "<svg xmlns='http://www.w3.org/2000/svg' xmlns:shape='urn:gliololok:shape' viewBox='0 0 60 40'>"
        "<shape:about name='Box'/><path id='figure' stroke='#000' stroke-width='2' d='M9 9' "
        "shape:d='M1 1H{w - 1}V{h - 1}H1Z'/></svg>";
    write(file, text);
    QCOMPARE(run({QStringLiteral("lint"), file}).exitCode, 1);
    QCOMPARE(run({QStringLiteral("look"), file}).output, file + QLatin1Char('\n'));
    QCOMPARE(read(file), QByteArray(text).replace("M9 9", "M1 1H59V39H1Z"));
    QCOMPARE(run({QStringLiteral("lint"), file}).exitCode, 0);
    QCOMPARE(run({QStringLiteral("look"), file}).output, QString());
    write(file, misspelled);
    QCOMPARE(run({QStringLiteral("look"), file}).exitCode, 1);
    QCOMPARE(read(file), misspelled);
    QCOMPARE(run({QStringLiteral("look"), path(QStringLiteral("nowhere.shape.svg"))}).exitCode, 2);
}

void TestShapeTool::newShapeIsFineAtOnce()
{
    QCOMPARE(
        run({QStringLiteral("new"), QStringLiteral("Mine"), QStringLiteral("--dir"), path(QStringLiteral("new"))})
            .exitCode,
        0);
    const QString file = path(QStringLiteral("new/Mine.shape.svg"));
    const Run lint = run({QStringLiteral("lint"), file});
    QCOMPARE(lint.output, QString());
    QCOMPARE(lint.exitCode, 0);
    const Run check = run({QStringLiteral("check"), file});
    QCOMPARE(check.output, QString());
    QCOMPARE(check.exitCode, 0);
}

void TestShapeTool::newShapeOverwritesNothing()
{
    const QString file = path(QStringLiteral("kept.shape.svg"));
    write(file, "mine");
    const Run second =
        run({QStringLiteral("new"), QStringLiteral("kept"), QStringLiteral("--dir"), m_folder.path()});
    QCOMPARE(second.exitCode, 2);
    QVERIFY(second.errors.contains(QLatin1String("kept.shape.svg is there already")));
    QCOMPARE(read(file), QByteArray("mine"));
}

void TestShapeTool::newShapeShowsADrawing()
{
    write(path(QStringLiteral("plus.svg")), icon);
    QCOMPARE(run({QStringLiteral("new"), QStringLiteral("Plus"), QStringLiteral("--from"),
                  path(QStringLiteral("plus.svg")), QStringLiteral("--dir"), m_folder.path()})
                 .exitCode,
             0);
    const QByteArray shape = read(path(QStringLiteral("Plus.shape.svg")));
    QVERIFY(shape.contains("viewBox=\"0 0 120 120\""));
    QVERIFY(shape.contains("M2 8H14M8 2V14"));
    const Run lint = run({QStringLiteral("lint"), path(QStringLiteral("Plus.shape.svg"))});
    QCOMPARE(lint.output, QString());
}

void TestShapeTool::newProjectHasATemplateWithoutFaults()
{
    QCOMPARE(run({QStringLiteral("new"), QStringLiteral("nut"), QStringLiteral("--cpp"), QStringLiteral("--dir"),
                  m_folder.path()})
                 .exitCode,
             0);
    QVERIFY(
        read(path(QStringLiteral("nut/CMakeLists.txt"))).contains("gliololok_add_shape(nut template.svg nut.cpp)"));
    QVERIFY(read(path(QStringLiteral("nut/nut.cpp"))).contains("SHAPEKIT_PLUGIN(Nut, "));
    QCOMPARE(run({QStringLiteral("lint"), path(QStringLiteral("nut/template.svg"))}).exitCode, 0);
}

void TestShapeTool::badNamesAreRefused_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"", "1st", "my shape", "../up", "a/b", "größe"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void TestShapeTool::badNamesAreRefused()
{
    QFETCH(QString, name);
    const QString folder = path(QStringLiteral("names"));
    QCOMPARE(run({QStringLiteral("new"), name, QStringLiteral("--dir"), folder}).exitCode, 2);
    QVERIFY(!QDir(folder).exists());
}

void TestShapeTool::examplesKeepEveryPromise_data()
{
    QTest::addColumn<QString>("file");
    const QFileInfoList files =
        QDir(QStringLiteral(EXAMPLE_FOLDER)).entryInfoList({QStringLiteral("*.shape.svg")}, QDir::Files);
    QVERIFY(files.size() >= 10);
    for (const QFileInfo &file : files)
        QTest::newRow(qPrintable(file.fileName())) << file.filePath();
}

/// Shapes as authors make them, without C++.
void TestShapeTool::examplesKeepEveryPromise()
{
    QFETCH(QString, file);
    QVERIFY(read(file).count('\n') <= 60);
    const Run lint = run({QStringLiteral("lint"), file});
    QCOMPARE(lint.output, QString());
    QCOMPARE(lint.exitCode, 0);
    const Run check = run({QStringLiteral("check"), file});
    QCOMPARE(check.output, QString());
    QCOMPARE(check.exitCode, 0);
}

void TestShapeTool::shapesOfTheBoardHaveNoFaults()
{
    QStringList files;
    QDirIterator found(QStringLiteral(SHAPE_FOLDER),
                       {QStringLiteral("*.shape.svg"), QStringLiteral("template.svg")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (found.hasNext())
        files.append(found.next());
    QVERIFY(files.size() >= 50);
    const Run lint = run(QStringList{QStringLiteral("lint")} + files);
    QCOMPARE(lint.output, QString());
    QCOMPARE(lint.errors, QString());
    QCOMPARE(lint.exitCode, 0);
}

void TestShapeTool::everyIconOfAFolderPaints()
{
    constexpr int count = 40;
    QDir().mkpath(path(QStringLiteral("many")));
    for (int i = 0; i < count; ++i) {
        const QByteArray style = i % 2 ? "fill='currentColor'" : "fill='none' stroke='#123456' stroke-width='3'";
        write(path(QStringLiteral("many/icon%1.svg").arg(i)),
              "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24' " + style + "><path d='M3 " +
                  QByteArray::number(3 + i % 12) + "H21V21H3Z'/></svg>");
    }
    const Run imported =
        run({QStringLiteral("import"), path(QStringLiteral("many")), QStringLiteral("--group"),
             QStringLiteral("Many"), QStringLiteral("--into"), path(QStringLiteral("manyshapes"))});
    QCOMPARE(imported.output, QStringLiteral("40 of 40 icons became shapes\n"));
    const Run check = run({QStringLiteral("check"), QStringLiteral("--only"), QStringLiteral("icon"),
                           path(QStringLiteral("manyshapes"))});
    QCOMPARE(check.output, QString());
    QCOMPARE(check.exitCode, 0);
}

void TestShapeTool::idsOfIconsMeanNothing()
{
    QDir().mkpath(path(QStringLiteral("ids")));
    write(path(QStringLiteral("ids/icon.svg")),
          "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24'><text id='label_1' x='2' y='20'>A</text>"
          "<rect id='control_1' width='9' height='9'/><rect id='figure' x='12' width='9' height='9'/></svg>");
    const Run imported = run({QStringLiteral("import"), path(QStringLiteral("ids")), QStringLiteral("--group"),
                              QStringLiteral("G"), QStringLiteral("--into"), path(QStringLiteral("idshapes"))});
    QCOMPARE(imported.output, QStringLiteral("1 of 1 icons became shapes\n"));
    const QByteArray shape = read(path(QStringLiteral("idshapes/icon.shape.svg")));
    for (const char *id : {"drawn_label_1", "drawn_control_1", "drawn_figure"})
        QVERIFY2(shape.contains(QByteArray("id=\"") + id + '"'), id);
}

void TestShapeTool::iconsBecomeShapes()
{
    QDir().mkpath(path(QStringLiteral("icons/sub")));
    write(path(QStringLiteral("icons/arrow-left.svg")), icon);
    write(path(QStringLiteral("icons/sub/arrow_left.svg")), icon);
    write(path(QStringLiteral("icons/2x.svg")), icon);
    const Run imported = run({QStringLiteral("import"), path(QStringLiteral("icons")), QStringLiteral("--group"),
                              QStringLiteral("Signs"), QStringLiteral("--into"), path(QStringLiteral("shapes"))});
    QCOMPARE(imported.errors, QString());
    QCOMPARE(imported.output, QStringLiteral("3 of 3 icons became shapes\n"));
    QCOMPARE(imported.exitCode, 0);
    const QStringList files = QDir(path(QStringLiteral("shapes"))).entryList(QDir::Files, QDir::Name);
    QCOMPARE(files, (QStringList{QStringLiteral("arrowleft.shape.svg"), QStringLiteral("arrowleftx2.shape.svg"),
                                 QStringLiteral("icon2x.shape.svg")}));
    const QByteArray shape = read(path(QStringLiteral("shapes/arrowleft.shape.svg")));
    QVERIFY(shape.contains("name=\"Arrow left\""));
    QVERIFY(shape.contains("group=\"Signs\""));
    QVERIFY(shape.contains("sizing=\"stretch\""));
    for (const QString &file : files)
        QCOMPARE(run({QStringLiteral("lint"), path(QStringLiteral("shapes/") + file)}).output, QString());
}

void TestShapeTool::iconOfOneColourTakesThePen()
{
    QDir().mkpath(path(QStringLiteral("colours")));
    write(path(QStringLiteral("colours/one.svg")), icon);
    write(path(QStringLiteral("colours/two.svg")), "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 "
                                                   "16'><path fill='red' stroke='blue' d='M2 8H14'/></svg>");
    run({QStringLiteral("import"), path(QStringLiteral("colours")), QStringLiteral("--group"), QStringLiteral("G"),
         QStringLiteral("--into"), path(QStringLiteral("coloured"))});
    const QByteArray one = read(path(QStringLiteral("coloured/one.shape.svg")));
    QVERIFY(one.contains("shape:stroke=\"{pen}\""));
    QVERIFY(!one.contains("shape:keeps"));
    const QByteArray two = read(path(QStringLiteral("coloured/two.shape.svg")));
    QVERIFY(two.contains("shape:keeps=\"fill stroke\""));
    QVERIFY(!two.contains("{pen}"));
}

void TestShapeTool::iconThatIsNoSvgIsLeftOut()
{
    QDir().mkpath(path(QStringLiteral("mixed")));
    write(path(QStringLiteral("mixed/good.svg")), icon);
    write(path(QStringLiteral("mixed/bad.svg")), "<svg><g></svg>");
    const Run imported = run({QStringLiteral("import"), path(QStringLiteral("mixed")), QStringLiteral("--group"),
                              QStringLiteral("G"), QStringLiteral("--into"), path(QStringLiteral("mixedshapes"))});
    QCOMPARE(imported.exitCode, 1);
    QCOMPARE(imported.output, QStringLiteral("1 of 2 icons became shapes\n"));
    QVERIFY(imported.errors.contains(QLatin1String("mixed/bad.svg:1:")));
    QVERIFY(QFile::exists(path(QStringLiteral("mixedshapes/good.shape.svg"))));
    QVERIFY(!QFile::exists(path(QStringLiteral("mixedshapes/bad.shape.svg"))));
}

void TestShapeTool::previewDrawsAPicture()
{
    const QString file = path(QStringLiteral("drawn.shape.svg"));
    write(file, "<svg xmlns='http://www.w3.org/2000/svg' xmlns:shape='urn:gliololok:shape' viewBox='0 0 60 40'>"
                "<shape:about name='Box'/><rect id='figure' width='60' height='40' fill='#ff0000' "
                "shape:width='{w}' shape:height='{h}'/></svg>");
    QCOMPARE(
        run({QStringLiteral("preview"), file, QStringLiteral("--png"), path(QStringLiteral("drawn.png"))}).exitCode,
        0);
    const QImage picture(path(QStringLiteral("drawn.png")));
    // A margin of 12 pixels around the frame.
    QCOMPARE(picture.size(), QSize(84, 64));
    QCOMPARE(picture.pixelColor(5, 5), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(42, 32), QColor(Qt::red));
    QCOMPARE(run({QStringLiteral("preview"), file, QStringLiteral("--png"), path(QStringLiteral("no/where.png"))})
                 .exitCode,
             2);
    write(file, misspelled);
    QCOMPARE(
        run({QStringLiteral("preview"), file, QStringLiteral("--png"), path(QStringLiteral("drawn.png"))}).exitCode,
        1);
}

void TestShapeTool::previewDrawsASheet()
{
    const QString plugin = QStringLiteral(FAULTY_SHAPES);
    QCOMPARE(run({QStringLiteral("preview"), plugin, QStringLiteral("--sheet"), path(QStringLiteral("sheet.png"))})
                 .exitCode,
             0);
    // Five columns of sizes; rows of sizes, mirrored forms and the extremes of one control point, 184 pixels each.
    QCOMPARE(QImage(path(QStringLiteral("sheet.png"))).size(), QSize(5 * 184, 3 * 184));
}

/// docs/images/refresh draws it anew.
void TestShapeTool::pictureOfTheGuideIsThatOfItsShape()
{
    const QByteArray guide = read(QStringLiteral(EXAMPLE_FOLDER "/../../docs/shape-author.md"));
    QVERIFY(guide.contains("(images/tag.png)"));
    const QString snippet =
        QString::fromUtf8(guide).section(QStringLiteral("```xml\n"), 1, 1).section(QStringLiteral("```"), 0, 0);
    write(path(QStringLiteral("tag.shape.svg")), snippet.toUtf8());
    const Run check = run({QStringLiteral("check"), path(QStringLiteral("tag.shape.svg"))});
    QCOMPARE(check.output, QString());
    QCOMPARE(run({QStringLiteral("preview"), path(QStringLiteral("tag.shape.svg")), QStringLiteral("--sheet"),
                  path(QStringLiteral("tag.png"))})
                 .exitCode,
             0);
    const QImage drawn(path(QStringLiteral("tag.png")));
    const QImage shown(QStringLiteral(EXAMPLE_FOLDER "/../../docs/images/tag.png"));
    QVERIFY(!shown.isNull());
    QCOMPARE(drawn, shown.convertToFormat(drawn.format()));
}

void TestShapeTool::checkFindsPlantedFaults_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("check");
    const auto row = [](const char *name, const char *kind, const char *check) {
        QTest::newRow(name) << QString::fromLatin1(kind) << QString::fromLatin1(check);
    };
    row("draws nothing", "nothing", "icon");
    row("a number that isn't finite", "notfinite", "dragging");
    row("leaves its frame", "escaping", "dragging");
    row("stands beside the mouse", "beside", "dragging");
    row("ignores its control point", "ignoring", "dragging-effect");
    row("depends on what was drawn before", "remembering", "dragging-memory");
    row("isn't drawn as its template", "differing", "template-look");
    row("doesn't save its property", "forgetting", "answers");
    row("can't be undone", "undoless", "answers");
    row("has no English text", "german", "settings");
#ifndef __SANITIZE_ADDRESS__
    // The sanitizer's own allocator doesn't count what is in use, and would report the loss itself.
    row("loses memory", "leaking", "memory");
#endif
    row("uses a node that isn't there", "unknown/template.svg", "K04");
    if (m_checkedCode >= 0)
        return;
    const Run check = run({QStringLiteral("check"), QStringLiteral("--json"), QStringLiteral(FAULTY_SHAPES)});
    m_checkedCode = check.exitCode;
    const QJsonArray findings = QJsonDocument::fromJson(check.output.toUtf8()).array();
    for (const QJsonValue &finding : findings)
        m_found[finding.toObject()[QStringLiteral("file")].toString()].append(
            finding.toObject()[QStringLiteral("code")].toString());
}

void TestShapeTool::checkFindsPlantedFaults()
{
    QFETCH(QString, kind);
    QFETCH(QString, check);
    QCOMPARE(m_checkedCode, 1);
    QVERIFY2(m_found.value(kind).contains(check), qPrintable(m_found.value(kind).join(QLatin1Char(' '))));
    QCOMPARE(m_found.value(QStringLiteral("sound")), QStringList());
}

void TestShapeTool::checkOfNothingCouldNotRun()
{
    QDir().mkpath(path(QStringLiteral("empty")));
    QCOMPARE(run({QStringLiteral("check"), path(QStringLiteral("empty"))}).exitCode, 2);
    QCOMPARE(run({QStringLiteral("check"), path(QStringLiteral("nowhere"))}).exitCode, 2);
    QCOMPARE(
        run({QStringLiteral("check"), QStringLiteral("--only"), QStringLiteral("magic"), m_folder.path()}).exitCode,
        2);
    write(path(QStringLiteral("plain.svg")), icon);
    QCOMPARE(run({QStringLiteral("check"), path(QStringLiteral("plain.svg"))}).exitCode, 2);
}

QTEST_GUILESS_MAIN(TestShapeTool)
#include "test_shapetool.moc"
