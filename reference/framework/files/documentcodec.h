#pragma once

#include <pagehost/documentfile.h>
#include <pagehost/pagelimits.h>

#include <framework/iframework.h>

namespace pagehost {

class ObjectFactory;

/// Makes `document` current during its lifetime, whatever framework object the application has: page objects
/// remember the current document from when they are made.
class CurrentDocumentScope : public IFramework
{
public:
    explicit CurrentDocumentScope(IDocument *document)
        : m_document(document)
        , m_outer(SetFramework(this))
    {
    }
    ~CurrentDocumentScope() override { SetFramework(m_outer); }
    Q_DISABLE_COPY(CurrentDocumentScope)

    void colorSetting(int settingId, QColor &color, bool flag) override
    {
        m_outer->colorSetting(settingId, color, flag);
    }
    IDocument *currentDocument() override { return m_document; }
    void beginUndoGroup(const QString &titleKey) override { m_outer->beginUndoGroup(titleKey); }
    void endUndoGroup() override { m_outer->endUndoGroup(); }

private:
    IDocument *m_document;
    IFramework *m_outer;
};

/// Both formats have the same content. Writers return empty bytes and set `problem` when the document is too large;
/// readers return null and an error message for bytes of which nothing can be read.
namespace binaryformat {

QByteArray write(Document &document, FileMessage &problem);
std::unique_ptr<Document> read(const QByteArray &bytes, const ObjectFactory &factory,
                               QVector<FileMessage> &messages);

} // namespace binaryformat

namespace jsonformat {

QByteArray write(Document &document, FileMessage &problem);
std::unique_ptr<Document> read(const QByteArray &bytes, const ObjectFactory &factory,
                               QVector<FileMessage> &messages);

} // namespace jsonformat

constexpr quint32 formatVersion = 1;

FileMessage warning(const QString &textKey, const QStringList &arguments = {});
FileMessage error(const QString &textKey, const QStringList &arguments = {});
/// Above a number that people can read, one message replaces all further ones.
void addMessage(QVector<FileMessage> &messages, const FileMessage &message);

} // namespace pagehost
