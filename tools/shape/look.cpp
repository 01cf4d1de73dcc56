// gliololok-shape look: writes the look that a file declares into the file, for programs that know no declarations.

#include "shape/commandline.h"
#include "shape/commands.h"
#include "shape/findings.h"

#include <checklist/filereading.h>

#include <declared/core/declaredlook.h>
#include <declared/core/shapekind.h>

#include <QtCore/QSaveFile>

#include <algorithm>
#include <cstdio>

namespace shapetool {

using namespace checklist;

namespace {

/// The reason if the file could not be written.
QString overwrite(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return isWritten ? QString() : QStringLiteral("%1 can't be written: %2").arg(path, file.errorString());
}

int writeLook(const QString &path)
{
    const ShapeFile file = readShapeFile(path);
    if (!file.problem.isEmpty())
        return complain(file.problem);
    if (!file.declaration) {
        print(file.faults, false);
        return file.faults.isEmpty() ? complain(QStringLiteral("%1 declares no shape").arg(path)) : int(Findings);
    }
    const QByteArray written = declared::withDeclaredLook(declared::ShapeKind(file.declaration), file.bytes);
    if (written == file.bytes)
        return Fine;
    const QString problem = overwrite(path, written);
    if (!problem.isEmpty())
        return complain(problem);
    printf("%s\n", qUtf8Printable(path));
    return Fine;
}

} // namespace

int runLook(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Writes the look that the expressions of declared shapes give a new shape into their files, "
        "where \"lint\"\ntells that another one is drawn there. Prints the files that have "
        "changed; all else in them stays.\n\n"
        "Exit code: 0 every file has its look, 1 a file has errors, 2 one can't be read or written."));
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("Declared shapes."),
                                 QStringLiteral("FILE..."));
    if (const std::optional<int> end = parse(parser, arguments))
        return *end;
    const QStringList files = parser.positionalArguments();
    if (files.isEmpty())
        return complain(QStringLiteral("look needs a file; --help tells more."));
    int result = Fine;
    for (const QString &path : files)
        result = std::max(result, writeLook(path));
    return result;
}

} // namespace shapetool
