#pragma once

#include <pagehost/document.h>
#include <pagehost/filestamp.h>

#include <framework/framework_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <memory>
#include <optional>

class CBaseObject;
class ILocalize;
class IPsPage;

/// Documents as files and page objects as clipboard data. docs/board-format.md describes both formats.
namespace pagehost {

class ObjectRegistry;

enum class DocumentFormat {
    Binary, ///< ".board"
    Json    ///< ".board.json"
};

/// Json for a name that ends in ".board.json" in any case, Binary for every other one.
FRAMEWORK_EXPORT DocumentFormat documentFormatOf(const QString &fileName);

/// A part of a file that could not be read or written.
struct FRAMEWORK_EXPORT FileMessage
{
    enum Severity {
        Warning, ///< the document is there, but not all of it as it was saved
        Error    ///< there is no document, or it was not saved
    };
    Severity severity = Warning;
    QString textKey;       ///< localisation key; its text names the arguments %1, %2 ...
    QStringList arguments; ///< file names, kinds, numbers, and what the system says
    int page = 0;          ///< from 1; 0 when it is about no particular page
    int object = 0;        ///< from 1, counted from the bottom of the page; 0 when it is about no particular object
    qint64 offset = -1;    ///< bytes from the start of the file; -1 when unknown
    int line = 0;          ///< of a JSON text, from 1; 0 for the binary format
    int column = 0;        ///< of a JSON text, from 1, counted in bytes
};

/// The message for people, in the localizer's language, with the place where it is known.
FRAMEWORK_EXPORT QString describe(const FileMessage &message, const ILocalize &localizer);

struct SaveResult
{
    bool saved = false;
    bool isConflict = false; ///< not saved, since the file was not what was expected
    FileMessage problem;     ///< of a save that failed
    FileStamp stamp;         ///< of the saved file
};

struct OpenResult
{
    /// Null when nothing could be read; the messages then say why.
    std::unique_ptr<Document> document;
    QVector<FileMessage> messages;
    FileStamp stamp; ///< of the file that the document belongs to, as it was when this was its contents
};

/// Writes the document to `file` in the format of its name. The file is replaced in one step when all of the new
/// one is safely on the disk: whatever goes wrong, and whenever, the old or the new one is there, whole. The
/// document's state (Document::isModified()) is left alone; call Document::markSaved() where the file is now the
/// document's. Owner, group and mode stay as far as the system allows (effectsOfReplacing()).
///
/// With `expected`, a file with other contents than that stamp tells of is left alone: somebody else has written
/// it. A null stamp expects that there is no file.
FRAMEWORK_EXPORT SaveResult saveDocument(Document &document, const QString &file,
                                         const std::optional<FileStamp> &expected = std::nullopt);
/// Makes `copy`, which must not be there, of a file of any kind as durably.
FRAMEWORK_EXPORT SaveResult copyFile(const QString &file, const QString &copy);
/// Reads a file of either format, told apart by content. Reads as much as can be read: an object whose kind is
/// unknown or whose data are broken becomes a placeholder that keeps its bytes. A file of a newer version is
/// refused. The undo stack is not touched, and the new document is not made the current one.
FRAMEWORK_EXPORT OpenResult openDocument(const QString &file, const ObjectRegistry &registry);

/// The contents of such a file; empty, with `problem` set when given, for a document too large for one file.
FRAMEWORK_EXPORT QByteArray encodeDocument(Document &document, DocumentFormat format,
                                           FileMessage *problem = nullptr);
FRAMEWORK_EXPORT OpenResult decodeDocument(const QByteArray &bytes, const ObjectRegistry &registry);

/// The MIME type of encodeObjects().
FRAMEWORK_EXPORT QString objectsMimeType();
/// Objects in this order, with their places on their page.
FRAMEWORK_EXPORT QByteArray encodeObjects(const QVector<CBaseObject *> &objects);
/// New objects on no page; the caller owns them. Objects that cannot be made are placeholders, as when opening.
/// Empty for bytes that are no such data; `messages` may be null. `page` is the one that they will stand on, where
/// that is known: objects remember the document that they find while they are read.
FRAMEWORK_EXPORT QVector<CBaseObject *> decodeObjects(const QByteArray &bytes, const ObjectRegistry &registry,
                                                      QVector<FileMessage> *messages = nullptr,
                                                      IPsPage *page = nullptr);

/// True for an object that stands for one that could not be made: it can be selected, moved, restacked, locked,
/// copied and deleted, and is saved with the bytes that it was read with.
FRAMEWORK_EXPORT bool isPlaceholder(const CBaseObject *object);

} // namespace pagehost

Q_DECLARE_METATYPE(pagehost::DocumentFormat)
Q_DECLARE_METATYPE(pagehost::FileMessage)
