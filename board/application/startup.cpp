#include "application/startup.h"

#include "application/commandline.h"
#include "application/demopages.h"
#include "application/screenshot.h"
#include "application/shapefile.h"
#include "core/pluginfolders.h"
#include "core/toolchoice.h"
#include "core/windowmemory.h"
#include "core/workspace.h"
#include "documents/documentcontroller.h"
#include "documents/recovery.h"
#include "lessons/lessoncontroller.h"
#include "lessons/lessonexport.h"
#include "look/motion.h"
#include "look/theme.h"
#include "output/pageexport.h"
#include "presenting/presentation.h"
#include "window/mainwindow.h"
#include "window/shapefolder.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QTextStream>
#include <QtCore/QTranslator>
#include <QtGui/QIcon>
#include <QtWidgets/QApplication>

namespace board {

namespace {

QStringList argumentList(int argc, char **argv)
{
    QStringList list;
    for (int i = 0; i < argc; ++i)
        list.append(QString::fromLocal8Bit(argv[i]));
    return list;
}

/// The parser asks the application object for the program's name.
Options optionsOf(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return parseCommandLine(argumentList(argc, argv));
}

int showText(const Options &options)
{
    QTextStream(options.failed ? stderr : stdout) << options.message;
    return options.failed ? 1 : 0;
}

void setUpScreens(const Options &options)
{
    const bool needsWindow = options.action == Options::OpenWindow || options.action == Options::TakeScreenshot;
    if (!needsWindow && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

/// Texts of Qt's own dialogs, where the system has them.
void installQtTexts(QApplication &application, const QString &language)
{
    auto *translator = new QTranslator(&application);
    if (translator->load(QStringLiteral("qtbase_") + language,
                         QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(translator);
}

void printProblem(const pagehost::PluginReport &report)
{
    QTextStream(stderr) << pluginProblemText(report) << '\n';
}

void printProblems(const Workspace &workspace)
{
    const QVector<pagehost::PluginReport> problems = workspace.pluginProblems();
    for (const pagehost::PluginReport &report : problems)
        printProblem(report);
    const QStringList faults = workspace.registry().faults();
    for (const QString &fault : faults)
        QTextStream(stderr) << fault << '\n';
    QObject::connect(&workspace, &Workspace::pluginProblemFound, &workspace, printProblem);
}

/// False, and told, when there is no such shape.
bool tryShape(Workspace &workspace, const QString &file)
{
    const bool isPlaced = placeShapeOf(file, workspace);
    if (!isPlaced)
        QTextStream(stderr) << file << ": there is no shape that can be used\n";
    return isPlaced;
}

/// False when nothing of the file could be read.
bool loadFile(Workspace &workspace, const QString &file)
{
    if (isShapeFile(file))
        return tryShape(workspace, file);
    pagehost::OpenResult result = pagehost::openDocument(QFileInfo(file).absoluteFilePath(), workspace.registry());
    QTextStream errors(stderr);
    for (const pagehost::FileMessage &message : qAsConst(result.messages))
        errors << pagehost::describe(message, workspace.localizer()) << '\n';
    if (!result.document)
        return false;
    workspace.replaceDocument(std::move(result.document));
    return true;
}

int exportAll(Workspace &workspace, const Options &options)
{
    if (options.file.isEmpty())
        fillWithDemo(workspace);
    else if (!loadFile(workspace, options.file))
        return 1;
    QTextStream out(stdout);
    QTextStream errors(stderr);
    const ExportFormat look{options.format, options.scale};
    const ExportResult result =
        options.play ? exportLessons(workspace, options.exportFolder, look)
                     : exportPages(workspace.document(), workspace.registry(), options.exportFolder, look);
    for (const QString &file : result.files)
        out << file << '\n';
    for (const QString &problem : result.problems)
        errors << problem << '\n';
    return result.files.isEmpty() || !result.problems.isEmpty() ? 1 : 0;
}

int makeThumbnail(Workspace &workspace, const Options &options)
{
    if (!loadFile(workspace, options.file))
        return 1;
    const QString problem =
        writeThumbnail(workspace.document()->page(0), options.thumbnailFile, options.thumbnailSize);
    if (!problem.isEmpty())
        QTextStream(stderr) << problem << '\n';
    return problem.isEmpty() ? 0 : 1;
}

int openWindow(Workspace &workspace, const Options &options)
{
    if (options.demo)
        fillWithDemo(workspace);
    MainWindow window(&workspace);
    restoreWindow(&window);
    window.show();
    if (isShapeFile(options.file))
        tryShape(workspace, options.file);
    else if (!options.file.isEmpty())
        window.documents()->openNow(options.file);
    else if (!options.demo)
        window.tools()->choose(Tool::Pen);
    window.recovery()->offer();
    if (options.play)
        window.lessons()->playOrPause();
    if (options.present)
        window.presentation()->start();
    const int code = QApplication::exec();
    rememberWindow(&window);
    return code;
}

int work(Workspace &workspace, const Options &options)
{
    switch (options.action) {
    case Options::ExportPages:
        return exportAll(workspace, options);
    case Options::WriteThumbnail:
        return makeThumbnail(workspace, options);
    case Options::TakeScreenshot:
        return takeScreenshot(workspace, options.screenshotState, options.screenshotFile, options.file) ? 0 : 1;
    default:
        return openWindow(workspace, options);
    }
}

/// Pictures don't depend on who takes them.
Theme themeFor(const Options &options)
{
    const bool isSeen = options.action == Options::OpenWindow;
    if (isSeen && remembersHighContrast() && !options.dark)
        return Theme::HighContrast;
    return options.dark || (isSeen && remembersDarkColors()) ? Theme::Dark : Theme::Light;
}

} // namespace

int runBoard(int argc, char **argv)
{
    const Options options = optionsOf(argc, argv);
    if (options.action == Options::ShowText)
        return showText(options);

    setUpScreens(options);
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("gliololok"));
    QApplication::setApplicationName(QStringLiteral("gliololok-board"));
    QApplication::setDesktopFileName(QStringLiteral("org.gliololok.Board"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("org.gliololok.Board")));
    QApplication::setApplicationVersion(QStringLiteral(BOARD_VERSION));
    applyTheme(themeFor(options));
    setMotionReduced(remembersReducedMotion());

    Workspace workspace(options.language.isEmpty() ? QLocale::system().name() : options.language);
    if (QLocale(workspace.localizer().language()).textDirection() == Qt::RightToLeft)
        QApplication::setLayoutDirection(Qt::RightToLeft);
    workspace.registry().addFolders(options.shapeFolders);
    // Only folders that are there can be watched.
    QDir().mkpath(userShapeFolder());
    // Before Qt speaks the user's language: problems are told in English throughout.
    workspace.loadPlugins(defaultPluginFolders() + options.pluginFolders);
    printProblems(workspace);
    installQtTexts(application, workspace.localizer().language());
    return work(workspace, options);
}

} // namespace board
