#pragma once

#include <files/jsonassembly.h>

namespace pagehost {

/// Reads a text that is valid JSON from start to end, and passes its parts to the assembly.
class JsonDocumentReader
{
public:
    /// Refers to both.
    JsonDocumentReader(const QByteArray &text, JsonAssembly &assembly);

    /// False when a part of the document is inside of another one because text between them is missing.
    bool read();

private:
    using TakeMember = void (JsonDocumentReader::*)(const QByteArray &key);
    using TakeElement = void (JsonDocumentReader::*)(const QByteArray &text);

    // Each takes the part that it is named after from the cursor.
    void takeMembers(TakeMember takeMember);
    void takeDocumentMember(const QByteArray &key);
    void takePageMember(const QByteArray &key);
    void takeArray(const QByteArray &key, const char *name, TakeElement takeElement);
    void skipBrokenKey(qint64 start);
    QByteArray takeValue();

    void takeLesson(const QByteArray &text);
    void takePage(const QByteArray &text);
    void takeObject(const QByteArray &text);
    bool holdsOthers(const QByteArray &text) const;
    bool isArrayOf(const char *firstMember) const;
    bool isArrayOfLessons() const;

    QByteArray m_text;
    JsonCursor m_cursor;
    JsonAssembly &m_assembly;
    bool m_isRegular = true;
};

} // namespace pagehost
