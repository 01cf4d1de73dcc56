// gliololok-shape import: SVG icons become declared shapes.

#include "shape/commandline.h"
#include "shape/commands.h"
#include "shape/drawing.h"
#include "shape/textfile.h"
#include <checklist/filereading.h>

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>
#include <QtCore/QSet>

#include <cstdio>

namespace shapetool {

using namespace checklist;

namespace {

QStringList svgFilesOf(const QStringList &arguments)
{
    QStringList files;
    for (const QString &argument : arguments) {
        if (!QFileInfo(argument).isDir()) {
            files.append(argument);
            continue;
        }
        QStringList found;
        QDirIterator entries(argument, {QStringLiteral("*.svg")}, QDir::Files, QDirIterator::Subdirectories);
        while (entries.hasNext())
            found.append(entries.next());
        found.sort();
        files += found;
    }
    return files;
}

/// The words of a file name: "arrow-left_2" gives "Arrow left 2".
QString titleOf(const QString &path)
{
    QString title = shapeName(path);
    for (QChar &character : title)
        if (!character.isLetterOrNumber())
            character = QLatin1Char(' ');
    title = title.simplified();
    if (!title.isEmpty())
        title[0] = title.at(0).toUpper();
    return title;
}

/// Letters and digits that no other shape of this run has.
QString freeName(const QString &path, QSet<QString> &taken)
{
    QString name;
    const QString written = shapeName(path);
    for (const QChar character : written)
        if (character.unicode() < 128 && character.isLetterOrNumber())
            name += character.toLower();
    if (name.isEmpty() || !name.at(0).isLetter())
        name.prepend(QLatin1String("icon"));
    QString free = name;
    for (int number = 2; taken.contains(free); ++number)
        free = name + QStringLiteral("x%1").arg(number);
    taken.insert(free);
    return free;
}

} // namespace

int runImport(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Makes a declared shape of every SVG file, those in folders included. Files that are there already are\n"
        "not overwritten.\n\nExit code: 0 all became shapes, 1 some did not, 2 none was tried."));
    const QCommandLineOption group(QStringLiteral("group"), QStringLiteral("The group of the palette."),
                                   QStringLiteral("NAME"));
    const QCommandLineOption into(QStringLiteral("into"), QStringLiteral("The folder to write into."),
                                  QStringLiteral("DIR"));
    parser.addOptions({group, into});
    parser.addPositionalArgument(QStringLiteral("DIR|FILE"), QStringLiteral("The icons."),
                                 QStringLiteral("DIR|FILE..."));
    if (const std::optional<int> end = parse(parser, arguments))
        return *end;
    const QStringList files = svgFilesOf(parser.positionalArguments());
    if (!parser.isSet(group) || !parser.isSet(into) || files.isEmpty())
        return complain(QStringLiteral("import needs icons, --group and --into."));
    const QDir folder(parser.value(into));
    if (!QDir().mkpath(folder.path()))
        return complain(QStringLiteral("%1 can't be made").arg(folder.path()));
    QSet<QString> taken;
    int made = 0;
    for (const QString &path : files) {
        const DrawnShape shape = shapeOfDrawing(path, titleOf(path), parser.value(group));
        QString problem = shape.problem;
        if (problem.isEmpty()) {
            const QString target = folder.filePath(freeName(path, taken) + QStringLiteral(".shape.svg"));
            const Faults faults = declaredFaults(shape.text, target);
            problem = faults.isEmpty()
                          ? writeNewFile(target, shape.text)
                          : QStringLiteral("%1 can't become a shape: %2").arg(path, faults.first().told());
        }
        problem.isEmpty() ? ++made : complain(problem);
    }
    printf("%d of %d icons became shapes\n", made, files.size());
    return made == files.size() ? Fine : Findings;
}

} // namespace shapetool
