#include "scene/drawreport.h"

#include <algorithm>

namespace Svg {

void DrawReport::add(Message::Code code, const QString &text, NodeIndex node)
{
    const auto hasCode = [code](const Entry &entry) { return entry.problem.code == code; };
    if (std::none_of(m_entries.begin(), m_entries.end(), hasCode))
        m_entries.append({{code, text}, node});
}

void DrawReport::appendTo(QVector<Message> *messages, const Tree &tree) const
{
    for (const Entry &entry : m_entries) {
        Message message;
        message.code = entry.problem.code;
        message.text = entry.problem.text;
        if (entry.node != noNode && entry.node < tree.size()) {
            const Node &node = tree.node(entry.node);
            message.line = node.line;
            message.column = node.column;
            message.elementId = node.attributes.value(AttributeId::Id);
        }
        messages->append(message);
    }
}

} // namespace Svg
