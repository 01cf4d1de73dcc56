#pragma once

#include <svgbase/qzesvgtinydocument.h>

namespace Svg {

using Message = QZeSvgTinyDocument::Message;

/// An error of an element; none if the text is empty.
struct Problem
{
    Message::Code code = Message::Unspecified;
    QString text;
};

/// Collects messages up to the limit; beyond it, only the first of each code.
class Messages
{
public:
    void add(const Message &message);
    void warn(Message::Code code, const QString &text, qint64 line, qint64 column,
              const QString &elementId = QString());
    void fail(Message::Code code, const QString &text, qint64 line, qint64 column);
    const QVector<Message> &list() const { return m_list; }

private:
    QVector<Message> m_list;
};

} // namespace Svg
