#pragma once

#include <svgbase/qzesvgtinydocument.h>

namespace Svg {

using Message = QZeSvgTinyDocument::Message;

/// Collects messages up to the limit; the rest is dropped.
class Messages
{
public:
    void add(const Message &message);
    void warn(const QString &text, qint64 line, qint64 column, const QString &elementId = QString());
    void fail(const QString &text, qint64 line, qint64 column);
    const QVector<Message> &list() const { return m_list; }

private:
    QVector<Message> m_list;
};

} // namespace Svg
