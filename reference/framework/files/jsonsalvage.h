#pragma once

#include <files/jsonassembly.h>
#include <files/jsonmarks.h>

namespace pagehost {

/// Passes the recognisable parts of a broken JSON text to the assembly: whole objects and lessons at any place, the
/// rest of broken ones, members of pages and of the document. All other text is kept unchanged.
class JsonSalvage
{
public:
    /// Refers to both.
    JsonSalvage(const QByteArray &text, JsonAssembly &assembly);

    void read();

private:
    enum class Context { Document, Page };

    /// Returns the end of the mark's part, before `limit`.
    qint64 take(const JsonMark &mark, qint64 limit);
    void readLoose(qint64 from, qint64 to);
    /// Returns the start of the next one.
    qint64 readNext(qint64 from, qint64 to);
    qint64 endOfValue(qint64 from, qint64 to);
    void readMember(const QByteArray &key, const QByteArray &value, Context context);
    void takeStructure(char character);
    void addUnread(qint64 from, qint64 to);
    void keepUnread();

    QByteArray slice(qint64 from, qint64 to) const;
    bool isStructure(qint64 from, qint64 to) const;
    qint64 endOfBroken(qint64 start, qint64 limit, int indentation) const;
    bool isFirstOnLine(qint64 place, int indentation) const;

    QByteArray m_text;
    JsonAssembly &m_assembly;
    bool m_isOwnLayout;
    Context m_context = Context::Document;
    qint64 m_unreadStart = 0; ///< of text that nothing has been made of yet
    qint64 m_unreadEnd = 0;
    qint64 m_vainReading = 0; ///< bytes
};

} // namespace pagehost
