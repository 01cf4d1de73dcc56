#pragma once

#include <pagehost/page.h>

#include <files/documentcodec.h>
#include <files/jsoncursor.h>
#include <files/objectrecord.h>

namespace pagehost {

/// Reads a document from front to back. Where the text is broken it goes on at the next page or object, which are
/// known by their first member ("page", "kind").
class JsonDocumentReader
{
public:
    /// Refers to all three.
    JsonDocumentReader(const QByteArray &text, const ObjectFactory &factory, QVector<FileMessage> &messages);
    ~JsonDocumentReader();
    Q_DISABLE_COPY(JsonDocumentReader)

    std::unique_ptr<Document> read();

private:
    // Each takes what it is named after from the cursor; m_isLost afterwards when the text broke off there.
    template<typename Function> void takeMembers(Function takeMember);
    template<typename Function> void takeElements(const QByteArray &key, const char *name, Function takeElement);
    bool isArrayOf(const char *firstMember) const;
    void takeDocumentMember(const QByteArray &key);
    void takePageMember(const QByteArray &key);
    void takePages();
    void takePage();
    void takeObjects();
    void takeObject();
    void takeWhatIsLeft();
    bool takeRecord(ObjectRecord &record);
    bool readRecordMember(const QByteArray &key, const QByteArray &text, ObjectRecord &record);
    QJsonValue takeValue();

    void readVersion(const QJsonValue &version);
    void readLesson(const QJsonObject &lesson);
    void readChunk(const QJsonObject &chunk, ExtraData &extra);
    void readBackground(const QJsonObject &background);
    void readSide(const QByteArray &key, const QJsonValue &side);
    void keepBroken(qint64 start, ObjectRecord record);
    void addObject(const ObjectRecord &record, qint64 offset);
    void finishPage();

    void goOnBehind(qint64 start);
    void stumble(const QString &why);
    void report(FileMessage message, qint64 offset);
    void reportType(const QByteArray &key);

    QByteArray m_text;
    JsonCursor m_cursor;
    LineCounter m_lines;
    const ObjectFactory &m_factory;
    QVector<FileMessage> &m_messages;
    std::unique_ptr<Document> m_document = std::make_unique<Document>();
    ExtraData m_documentExtra;
    QVector<LessonData> m_lessons;
    Page *m_page = nullptr;
    QSizeF m_pageSize;
    ExtraData m_pageExtra;
    QVector<CBaseObject *> m_objects; ///< of the present page
    JsonProblem m_problem;            ///< of the object that is being taken
    int m_objectNumber = 0;           ///< on the present page, from 1
    int m_objectCount = 0;            ///< of the document
    bool m_hasFormat = false;
    bool m_isNewer = false;
    /// The brackets around the cursor are not known any more.
    bool m_isLost = false;
    qint64 m_vainReading = 0; ///< bytes
};

} // namespace pagehost
