#pragma once

#include <files/jsonassembly.h>

namespace pagehost {

/// Goes over a text that is JSON throughout, from front to back, and hands its parts to the assembly.
class JsonDocumentReader
{
public:
    /// Refers to both.
    JsonDocumentReader(const QByteArray &text, JsonAssembly &assembly);

    /// False when a part of the document stands inside of another one, where text between them has gone.
    bool read();

private:
    using TakeMember = void (JsonDocumentReader::*)(const QByteArray &key);
    using TakeElement = void (JsonDocumentReader::*)(const QByteArray &text);

    // Each takes what it is named after from the cursor.
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
