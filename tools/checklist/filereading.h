#pragma once

#include <declared/reader/declaration.h>
#include <declared/reader/message.h>

#include <pagehost/objectplugin.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVector>

namespace checklist {

using Faults = QVector<pagehost::PluginMessage>;

/// An SVG file as an author of shapes has it: a declared shape, or the template of one in C++.
struct ShapeFile
{
    QString problem; ///< why it could not be read; empty when it was
    QByteArray bytes;
    bool isDeclared = false;
    Faults faults;
    declared::SharedDeclaration declaration; ///< null for a template, and after an error
};

/// `path` is the name in messages, too.
ShapeFile readShapeFile(const QString &path);
/// The faults of a declared shape; `declaration` receives it.
Faults declaredFaults(const QByteArray &bytes, const QString &path,
                      declared::SharedDeclaration *declaration = nullptr);
/// Whether a file has the name of a declared shape.
bool isDeclaredFile(const QString &fileName);
/// The name of a shape, from the name of its file.
QString shapeName(const QString &path);

} // namespace checklist
