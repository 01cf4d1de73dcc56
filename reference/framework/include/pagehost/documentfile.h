#pragma once

#include <pagehost/document.h>
#include <pagehost/filestamp.h>
#include <pagehost/groups.h>

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

/// The two formats of files.
enum class DocumentFormat {
    Binary, ///< ".board"
    Json    ///< ".board.json"
};

/// Json for a name that ends in ".board.json" in any case, else Binary.
FRAMEWORK_EXPORT DocumentFormat documentFormatOf(const QString &fileName);

/// A problem of a file that was read or written.
struct FRAMEWORK_EXPORT FileMessage
{
    /// How bad a problem is.
    enum Severity {
        Warning, ///< the document exists, but without everything that was saved
        Error    ///< there is no document, or it was not saved
    };
    Severity severity = Warning; ///< how bad it is
    QString textKey;             ///< localisation key; its text names the arguments %1, %2 ...
    QStringList arguments;       ///< file names, kinds, numbers, and the system's own messages
    int page = 0;                ///< from 1; 0 when it concerns no particular page
    int object = 0;              ///< from 1, from the bottom of the page; 0 when it concerns no particular object
    qint64 offset = -1;          ///< bytes from the start of the file; -1 when unknown
    int line = 0;                ///< of a JSON text, from 1; 0 for the binary format
    int column = 0;              ///< of a JSON text, from 1, in bytes
};

/// The message for people, in the localizer's language, with its location where known.
FRAMEWORK_EXPORT QString describe(const FileMessage &message, const ILocalize &localizer);

/// Result of saving.
struct SaveResult
{
    bool saved = false;      ///< whether the file has the new contents
    bool isConflict = false; ///< not saved, since the file differs from the expected one
    FileMessage problem;     ///< of a failed save
    FileStamp stamp;         ///< of the saved file
};

/// Result of opening.
struct OpenResult
{
    /// Null when nothing could be read; the messages then say why.
    std::unique_ptr<Document> document;
    QVector<FileMessage> messages; ///< everything that was left out, or the reason why there is no document
    FileStamp stamp;               ///< of the document's file when it had these contents
};

/// Writes the document to `file` in the format of its name. The new file replaces the old one in one step once it
/// is safely on the disk: whenever anything goes wrong, either the old or the new file is there, whole. The
/// document's state (Document::isModified()) stays as it is; call Document::markSaved() when the file is the
/// document's from now on. Owner, group and mode stay as far as the system allows (effectsOfReplacing()). With
/// `expected`, a file whose contents differ from that stamp's is left alone (changedMeanwhile); a null stamp
/// expects that there is no file.
FRAMEWORK_EXPORT SaveResult saveDocument(Document &document, const QString &file,
                                         const std::optional<FileStamp> &expected = std::nullopt);
/// Copies a file of any kind to `copy`, which must not exist, as durably.
FRAMEWORK_EXPORT SaveResult copyFile(const QString &file, const QString &copy);
/// Reads a file of either format, told apart by content. Reads as much as possible: an object of unknown kind or
/// with broken data becomes a placeholder that keeps its bytes. A file of a newer version is refused. The undo
/// stack is not touched, and the new document does not become the current one.
FRAMEWORK_EXPORT OpenResult openDocument(const QString &file, const ObjectRegistry &registry);

/// The contents of such a file; empty, with `problem` set when given, for a document too large for one file.
FRAMEWORK_EXPORT QByteArray encodeDocument(Document &document, DocumentFormat format,
                                           FileMessage *problem = nullptr);
/// Reads contents as openDocument() reads those of a file.
FRAMEWORK_EXPORT OpenResult decodeDocument(const QByteArray &bytes, const ObjectRegistry &registry);

/// The MIME type of encodeObjects().
FRAMEWORK_EXPORT QString objectsMimeType();
/// Objects in this order, with their positions on their page and their groups there.
FRAMEWORK_EXPORT QByteArray encodeObjects(const QVector<CBaseObject *> &objects);
/// New objects on no page, owned by the caller. Objects that cannot be made are placeholders, as in a file. Empty
/// for bytes that are no such data; `messages` may be null. `page` is the one that they will be added to, if known:
/// objects cache the document that they find while they are read. `groups`, which may be null, gets those that the
/// objects were in; their members are new objects, which have numbers then. Without the page's document there are
/// none.
FRAMEWORK_EXPORT QVector<CBaseObject *> decodeObjects(const QByteArray &bytes, const ObjectRegistry &registry,
                                                      QVector<FileMessage> *messages = nullptr,
                                                      IPsPage *page = nullptr, ObjectGroups *groups = nullptr);

/// True for a placeholder of an object that could not be made. It can be selected, moved, restacked, locked, copied
/// and deleted, and is saved with the bytes that it was read from.
FRAMEWORK_EXPORT bool isPlaceholder(const CBaseObject *object);

} // namespace pagehost

Q_DECLARE_METATYPE(pagehost::DocumentFormat)
Q_DECLARE_METATYPE(pagehost::FileMessage)
