#include "shape/commandline.h"

#include "shape/commands.h"

#include <QtCore/QCoreApplication>

#include <cstdio>

namespace shapetool {

int complain(const QString &text)
{
    fprintf(stderr, "gliololok-shape: %s\n", qUtf8Printable(text));
    return CouldNotRun;
}

std::optional<int> parse(QCommandLineParser &parser, const QStringList &arguments)
{
    const QCommandLineOption help = parser.addHelpOption();
    QStringList own{QStringLiteral("gliololok-shape ") + arguments.first()};
    own += arguments.mid(1);
    if (!parser.parse(own))
        return complain(parser.errorText());
    if (!parser.isSet(help))
        return std::nullopt;
    // Qt names the program by its path.
    QString text = parser.helpText();
    text.replace(QStringLiteral("Usage: ") + QCoreApplication::arguments().value(0),
                 QStringLiteral("Usage: ") + own.first());
    printf("%s", qUtf8Printable(text));
    return Fine;
}

} // namespace shapetool
