#pragma once

#include "tree/plainxml.h"
#include "tree/streamxml.h"
#include "tree/treebuilder.h"

#include <QtCore/QStringList>

/// Trees and messages of both readers of XML, as lines to compare.
namespace treereading {

using namespace Svg;

inline QString described(const Node &node)
{
    QString text = QStringLiteral("%1 %2 %3 %4:%5")
                       .arg(int(node.kind))
                       .arg(node.name)
                       .arg(node.parent)
                       .arg(node.line)
                       .arg(node.column);
    for (const Attribute &attribute : node.attributes)
        text += QStringLiteral(" [%1 %2=%3]").arg(int(attribute.id)).arg(attribute.name, attribute.value.text());
    return text + QStringLiteral(" \"%1\"").arg(node.text);
}

inline QStringList described(const Tree &tree, const Messages &messages)
{
    QStringList lines;
    for (NodeIndex at = 0; at < tree.size(); ++at)
        lines.append(described(tree.node(at)));
    for (const Message &message : messages.list())
        lines.append(QStringLiteral("%1:%2 %3 %4")
                         .arg(message.line)
                         .arg(message.column)
                         .arg(message.elementId, message.text));
    return lines;
}

/// The events of Qt's reader for a text; empty if it refuses the text.
inline QStringList streamed(const QByteArray &text)
{
    Tree tree;
    Messages messages;
    return readStreamedXml(text, &tree, &messages) ? described(tree, messages) : QStringList();
}

/// The same of the plain reader.
inline QStringList plain(const QByteArray &text)
{
    Tree tree;
    Messages messages;
    TreeBuilder builder(&tree, &messages);
    return readPlainXml(QString::fromUtf8(text.constData(), text.size()), &builder) ? described(tree, messages)
                                                                                    : QStringList();
}

} // namespace treereading
