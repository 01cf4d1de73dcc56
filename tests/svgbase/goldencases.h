#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

/// The files of the folder "golden" and of the folders in it, known by their names alone.
namespace goldencases {

/// Names that end with \p suffix, in order.
QStringList namesWith(const QString &suffix);

/// The part of a file's name before the first dot.
QString caseOf(const QString &name);

/// Cases of all SVG files but those that only stand beside others to be compared.
QStringList all();

bool exists(const QString &name);

/// Content of the file; empty where there is none.
QByteArray contents(const QString &name);

/// Names that stand in more than one folder.
QStringList namesInSeveralFolders();

} // namespace goldencases
