#pragma once

#include <QtCore/QStringList>

/// The commands of gliololok-shape. Each takes its arguments, the command's name first, and gives the exit code.
namespace shapetool {

enum ExitCode {
    Fine = 0,
    Findings = 1,
    /// Wrong arguments, or a file that can't be read or written.
    CouldNotRun = 2
};

int runCheck(const QStringList &arguments);
int runLint(const QStringList &arguments);
int runLook(const QStringList &arguments);
int runNew(const QStringList &arguments);
int runImport(const QStringList &arguments);
int runPreview(const QStringList &arguments);

} // namespace shapetool
