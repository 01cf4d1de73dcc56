#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariantList>
#include <QtCore/QVector>

/// The recording host: every operation that the library calls on its host is written to one process-wide log, in
/// the order of the calls. Test shapes write their hooks to the same log, so that orders across classes can be
/// tested.
namespace recording {

/// One call. `object` is "object" for a page object, "document" for an SVG document, a node's id (its type in
/// angle brackets when it has none) for a node, "undo", "framework", "fill", "util", "views" or "json" for
/// services, and "shape" for a hook of TestShape. `operation` is the bare name of the member function.
struct Call
{
    QString object;
    QString operation;
    QVariantList arguments;
};

/// Appends a call to the log.
void log(const QString &object, const char *operation, const QVariantList &arguments = {});
/// Forgets all calls.
void clear();
/// All calls since the last clear(), oldest first.
QVector<Call> calls();
/// The calls whose operation is one of `operations` (all objects), oldest first.
QVector<Call> calls(const QStringList &operations);
/// The calls of `operation` on `object`, oldest first.
QVector<Call> calls(const QString &object, const QString &operation);
/// How often `operation` was called, on any object or on `object` alone.
int count(const QString &operation);
int count(const QString &object, const QString &operation);
/// The arguments of the last call of `operation`; an empty list when there was none.
QVariantList lastArguments(const QString &operation);
QVariantList lastArguments(const QString &object, const QString &operation);
/// The names ("object.operation") of the calls whose operation is listed, oldest first. With an empty list, of all.
QStringList names(const QStringList &operations = {});

} // namespace recording
