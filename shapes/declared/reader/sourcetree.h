#pragma once

#include <declared/expressions/value.h>
#include <declared/reader/message.h>

#include <QtCore/QVector>

namespace declared {

struct SourceAttribute
{
    QString name; ///< without prefix
    QString prefix;
    QString namespaceUri;
    QString value;
    int offset = 0; ///< of the value in the file
};

/// A piece of what an element holds: another element, or text.
struct SourceContent
{
    int element = -1;
    QString text;
};

struct SourceElement
{
    QString name; ///< without prefix
    QString namespaceUri;
    QVector<SourceAttribute> attributes;
    QVector<SourceContent> contents;
    int parent = -1;
    int offset = 0; ///< of its "<" in the file

    const SourceAttribute *attribute(const QString &name, const QString &namespaceUri = {}) const;
    /// The value of an attribute without namespace; empty without it.
    QString value(const char *name) const;
};

/// The elements of a file with the places where they and their attributes stand.
class SourceTree
{
public:
    /// False, with a message, for a file that isn't well formed or is beyond a limit.
    bool read(const QByteArray &bytes, QVector<Message> &messages);

    /// In document order; the first one is the root.
    const QVector<SourceElement> &elements() const { return m_elements; }
    const QString &text() const { return m_text; }
    Place placeOf(int offset) const { return declared::placeOf(m_text, offset); }
    /// The place of a character of an attribute's value; references such as "&lt;" are one character of it.
    Place placeIn(const SourceAttribute &attribute, int offset) const;

private:
    bool fail(QVector<Message> &messages, const char *code, Place place, const QString &text) const;
    bool readElements(QVector<Message> &messages);

    QString m_text;
    QVector<SourceElement> m_elements;
};

} // namespace declared
