#pragma once

#include <shapekit/shapekit_global.h>

#include <pagehost/objectplugin.h>

#include <QtCore/QVector>

namespace shapekit {

struct Kind;

/// The faults of a shape's template, in the order of their lines; `file` is its name in the messages. Codes are
/// listed in docs/shape-author.md.
SHAPEKIT_EXPORT QVector<pagehost::PluginMessage> templateFaults(const QString &text, const QString &file);
/// Reports the faults of a kind's template.
SHAPEKIT_EXPORT void checkTemplate(const Kind &kind);
/// Reports, once for each id, that no node of a kind's template has an id that the shape asks for; at the place of
/// the node that was most likely meant.
SHAPEKIT_EXPORT void reportUnknownNode(const Kind &kind, const QString &id);

} // namespace shapekit
