#pragma once

#include <QtCore/QCommandLineParser>
#include <QtCore/QStringList>

#include <optional>

namespace shapetool {

/// Prints a message and gives the exit code of a command that could not run.
int complain(const QString &text);

/// Parses the arguments of a command; help and errors are printed. The exit code, if the command ends here.
std::optional<int> parse(QCommandLineParser &parser, const QStringList &arguments);

} // namespace shapetool
