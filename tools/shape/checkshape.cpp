// gliololok-shape check: the promises that every shape keeps.

#include "shape/commandline.h"
#include "shape/commands.h"
#include "shape/findings.h"

#include <checklist/check.h>
#include <checklist/shapedriver.h>

#include <algorithm>
#include <cstdio>

namespace shapetool {

namespace {

Faults findingsOf(const Subject &subject, const Check &check)
{
    Report report;
    check.run(subject, report);
    Faults findings;
    for (const QString &finding : report.findings())
        findings.append(
            {pagehost::PluginMessage::Error, QLatin1String(check.name), subject.name, 0, 0, QString(), finding});
    return findings;
}

bool makesAnObject(const Subject &subject)
{
    return ShapeDriver(subject.plugin, subject.kindId).hasCore();
}

Faults findingsOf(const Subject &subject, const QStringList &wanted)
{
    if (!makesAnObject(subject))
        return {{pagehost::PluginMessage::Error, QStringLiteral("object"), subject.name, 0, 0, QString(),
                 QStringLiteral("the plug-in makes no shape of this kind")}};
    Faults findings;
    const QVector<Check> checks = allChecks();
    for (const Check &check : checks)
        if (wanted.isEmpty() || wanted.contains(QLatin1String(check.name)))
            findings += findingsOf(subject, check);
    return findings;
}

QString listOfChecks()
{
    QString list = QStringLiteral("Checks:\n");
    const QVector<Check> checks = allChecks();
    for (const Check &check : checks)
        list += QStringLiteral("  %1 %2\n").arg(QLatin1String(check.name), -16).arg(QLatin1String(check.promise));
    return list;
}

/// The names that are no checks.
QStringList unknownOf(QStringList names)
{
    const QVector<Check> checks = allChecks();
    for (const Check &check : checks)
        names.removeAll(QLatin1String(check.name));
    return names;
}

} // namespace

int runCheck(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral(
            "Runs the checklist of shapes over a declared shape (NAME.shape.svg), a plug-in, or a folder of both.\n"
            "Findings are printed one per line, as shape: error CHECK: text.\n\nExit code: 0 all promises are "
            "kept, 1 findings, 2 nothing could be checked.\n\n") +
        listOfChecks());
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print a JSON array of objects."));
    const QCommandLineOption only(QStringLiteral("only"), QStringLiteral("Run one check; may be given again."),
                                  QStringLiteral("CHECK"));
    parser.addOptions({json, only});
    parser.addPositionalArgument(QStringLiteral("FILE|PLUGIN|DIR"), QStringLiteral("What to check."),
                                 QStringLiteral("FILE|PLUGIN|DIR..."));
    if (const std::optional<int> end = parse(parser, arguments))
        return *end;
    const QStringList unknown = unknownOf(parser.values(only));
    if (parser.positionalArguments().isEmpty() || !unknown.isEmpty())
        return complain(unknown.isEmpty() ? QStringLiteral("check needs a file; --help tells more.")
                                          : QStringLiteral("there is no check \"%1\"").arg(unknown.first()));
    Faults findings;
    const QStringList paths = parser.positionalArguments();
    for (const QString &path : paths) {
        const Subjects subjects(path);
        if (!subjects.problem().isEmpty())
            return complain(subjects.problem());
        for (const Subject &subject : subjects.all())
            findings += findingsOf(subject, parser.values(only));
        findings += subjects.faults();
    }
    print(findings, parser.isSet(json));
    return findings.isEmpty() ? Fine : Findings;
}

} // namespace shapetool
