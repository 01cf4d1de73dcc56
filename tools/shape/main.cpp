// Helps authors of shapes: a command line of commands.

#include "shape/commandline.h"
#include "shape/commands.h"

#include <QtWidgets/QApplication>

#include <algorithm>
#include <cstdio>

namespace {

using namespace shapetool;

struct Command
{
    const char *name;
    const char *arguments;
    const char *summary;
    int (*run)(const QStringList &arguments);
};

const Command commands[] = {
    {"new", "NAME [--cpp] [--from DRAWING] [--dir DIR]", "Writes a shape to begin with.", &runNew},
    {"lint", "FILE... [--json]", "Tells the faults of declared shapes and templates.", &runLint},
    {"look", "FILE...", "Writes the declared look into files of shapes.", &runLook},
    {"check", "FILE|PLUGIN|DIR... [--only CHECK] [--json]", "Checks the promises that every shape keeps.",
     &runCheck},
    {"preview", "FILE [--png OUT] [--sheet OUT]", "Shows a shape, or draws it into a picture.", &runPreview},
    {"import", "DIR|FILE... --group NAME --into DIR", "Makes shapes of SVG icons.", &runImport},
};

QString usage()
{
    QString text = QStringLiteral("Usage: gliololok-shape COMMAND [arguments]\n\nCommands:\n");
    for (const Command &command : commands)
        text +=
            QStringLiteral("  %1 %2\n      %3\n")
                .arg(QLatin1String(command.name), QLatin1String(command.arguments), QLatin1String(command.summary));
    return text +
           QStringLiteral(
               "\n\"gliololok-shape COMMAND --help\" tells more about a command, \"gliololok-shape --version\"\n"
               "the version. How a shape is made is told by shape-author.md and shape-reference.md,\n"
               "installed in share/doc/gliololok/docs.\n\n"
               "Exit codes: 0 all is well, 1 there are findings, 2 the command could not run.\n");
}

/// Only a preview in a window needs a display.
bool needsDisplay(const QStringList &arguments)
{
    return arguments.value(1) == QLatin1String("preview") &&
           std::none_of(arguments.begin(), arguments.end(), [](const QString &argument) {
               return argument.startsWith(QLatin1String("--png")) ||
                      argument.startsWith(QLatin1String("--sheet")) || argument == QLatin1String("--help");
           });
}

/// Qt's messages about its environment are of no interest.
void keepQuiet(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        fprintf(stderr, "gliololok-shape: %s\n", qUtf8Printable(text));
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    if (!needsDisplay(arguments) && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(keepQuiet);
    const QApplication application(argc, argv);
    const QString name = arguments.value(1);
    if (name == QLatin1String("--help") || name == QLatin1String("-h") || name == QLatin1String("help")) {
        printf("%s", qUtf8Printable(usage()));
        return Fine;
    }
    if (name == QLatin1String("--version") || name == QLatin1String("-v")) {
        printf("gliololok-shape " SHAPETOOL_VERSION "\n");
        return Fine;
    }
    for (const Command &command : commands)
        if (name == QLatin1String(command.name))
            return command.run(arguments.mid(1));
    return complain(name.isEmpty() ? usage()
                                   : QStringLiteral("there is no command \"%1\"; --help lists them").arg(name));
}
