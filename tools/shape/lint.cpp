// gliololok-shape lint: the faults of files, each with its place.

#include "shape/commandline.h"
#include "shape/commands.h"
#include "shape/findings.h"
#include <checklist/filereading.h>

namespace shapetool {

using namespace checklist;

int runLint(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Reads declared shapes (NAME.shape.svg) and templates of shapes in C++, and prints their "
        "faults, one per line, as\n"
        "file:line:column: severity code: text. shape-reference.md and shape-author.md list the codes; they "
        "are installed in\nshare/doc/gliololok/docs.\n\n"
        "Exit code: 0 no faults, 1 faults, 2 a file can't be read or the arguments are wrong."));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print a JSON array of objects."));
    parser.addOption(json);
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("The files to read."),
                                 QStringLiteral("FILE..."));
    if (const std::optional<int> end = parse(parser, arguments))
        return *end;
    const QStringList files = parser.positionalArguments();
    if (files.isEmpty())
        return complain(QStringLiteral("lint needs a file; --help tells more."));
    Faults faults;
    int result = Fine;
    for (const QString &path : files) {
        const ShapeFile file = readShapeFile(path);
        if (!file.problem.isEmpty())
            result = complain(file.problem);
        faults += file.faults;
    }
    print(faults, parser.isSet(json));
    return result == Fine && !faults.isEmpty() ? int(Findings) : result;
}

} // namespace shapetool
