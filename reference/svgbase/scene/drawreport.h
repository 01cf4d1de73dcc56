#pragma once

#include "tree/message.h"
#include "tree/tree.h"

namespace Svg {

/// Parts that a drawing left out because of limits: the first of every kind.
class DrawReport
{
public:
    void add(Message::Code code, const QString &text, NodeIndex node = noNode);
    /// The same as messages, with the locations of the elements in their document.
    void appendTo(QVector<Message> *messages, const Tree &tree) const;

private:
    struct Entry
    {
        Problem problem;
        NodeIndex node;
    };
    QVector<Entry> m_entries;
};

} // namespace Svg
