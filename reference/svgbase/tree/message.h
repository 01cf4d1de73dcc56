#pragma once

#include <svgbase/qzesvgtinydocument.h>

namespace Svg {

using Message = QZeSvgTinyDocument::Message;

/// What is wrong with an element; nothing while there is no text.
struct Problem
{
    Message::Code code = Message::Unspecified;
    QString text;
};

/// Collects messages up to the limit; of the rest the first with each code is kept.
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
