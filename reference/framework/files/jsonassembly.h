#pragma once

#include <pagehost/page.h>

#include <files/damagedparts.h>
#include <files/documentcodec.h>
#include <files/jsoncursor.h>
#include <files/objectrecord.h>

namespace pagehost {

/// Makes a document from the parts of a JSON text, in order, and reports their faults. All texts passed are parts
/// of the whole text, so that messages can give their locations.
class JsonAssembly
{
public:
    /// Refers to all three. The new document is current from now on, during the assembly's lifetime.
    JsonAssembly(const QByteArray &text, const ObjectFactory &factory, QVector<FileMessage> &messages);
    ~JsonAssembly();
    Q_DISABLE_COPY(JsonAssembly)

    void takeDocumentMember(const QByteArray &key, const QByteArray &value);
    void takeLesson(const QByteArray &text);
    /// Of a lesson whose text is broken.
    void keepBrokenLesson(const QByteArray &text);
    /// The following members and objects belong to this page.
    void beginPage(qint64 offset);
    bool hasPage() const { return m_page != nullptr; }
    void takePageMember(const QByteArray &key, const QByteArray &value);
    /// An object as it appears in the text, whole or broken.
    void takeObject(const QByteArray &text);
    /// Text that is not part of anything. Reported, unless its fault has been.
    void keepDamaged(const QByteArray &text, qint64 offset);
    void keepToldDamage(const QByteArray &text);

    void reportSyntax(const QString &problem, qint64 offset);
    /// Of a member that is not an array of the expected kind.
    void reportType(const QByteArray &key, qint64 offset);
    void reportReadDamage(qint64 offset);

    /// The document; null, with an error, when the text has none or is of a newer version.
    std::unique_ptr<Document> finish();

private:
    bool takeRecord(const QByteArray &text, ObjectRecord &record);
    bool readRecordMember(const QByteArray &key, const QByteArray &value, ObjectRecord &record);
    void addRecord(const ObjectRecord &record, qint64 offset);
    void addLesson(const LessonData &lesson, qint64 offset);
    bool parse(const QByteArray &key, const QByteArray &value, QJsonValue &parsed);
    void readVersion(const QJsonValue &version);
    void readChunks(const QByteArray &key, const QJsonArray &chunks, ExtraData &extra, qint64 offset);
    void readAssets(const QByteArray &key, const QJsonObject &assets, qint64 offset);
    void readAsset(const QByteArray &key, const QJsonValue &bytes, qint64 offset);
    void readBackground(const QJsonObject &background, qint64 offset);
    void readSide(const QByteArray &key, const QJsonValue &side, qint64 offset);
    void finishPage();
    void reportMissing();
    void reportMissing(const QString &textKey, qint64 missing, qint64 offset);
    void report(FileMessage message, qint64 offset);
    qint64 offsetOf(const QByteArray &part) const { return part.constData() - m_text.constData(); }

    QByteArray m_text;
    LineCounter m_lines;
    const ObjectFactory &m_factory;
    QVector<FileMessage> &m_messages;
    std::unique_ptr<Document> m_document = std::make_unique<Document>();
    CurrentDocumentScope m_scope{m_document.get()};
    DamagedParts m_damaged;
    ExtraData m_documentExtra;
    QVector<LessonData> m_lessons;
    Page *m_page = nullptr;
    QSizeF m_pageSize;
    qint64 m_pageOffset = 0;
    ExtraData m_pageExtra;
    QVector<CBaseObject *> m_objects; ///< of the present page
    JsonProblem m_problem;            ///< of the present object
    int m_objectNumber = 0;           ///< on the present page, from 1
    int m_objectCount = 0;            ///< of the document
    qint64 m_objectsClaimed = 0;      ///< by the present page
    qint64 m_pagesClaimed = 0;
    qint64 m_lessonsClaimed = 0;
    double m_version = 0;
    int m_knownMembers = 0;     ///< of the document
    int m_knownPageMembers = 0; ///< of the present page
    bool m_hasFormat = false;
    bool m_hasPageNumber = false; ///< on any page
};

} // namespace pagehost
