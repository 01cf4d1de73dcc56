#pragma once

#include <pagehost/specialproperty.h>
#include <pagehost/version.h>

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtCore/QtPlugin>

#include <functional>

class CBaseObject;

namespace pagehost {

/// The palette group of basic shapes, which precedes all others.
constexpr char basicGroup[] = "IDS_SHAPEGROUP_BASIC";
/// Localisation key of the palette group of shapes that users have made, which applications show last.
constexpr char ownGroup[] = "IDS_SHAPEGROUP_OWN";

/// A PNG picture for palettes (ObjectPlugin::dataOf()); empty where palettes show the look of a new object.
constexpr char iconType[] = "image/x-gliololok-icon";

/// A kind of page object that a plug-in offers.
struct ObjectKind
{
    QString id;      ///< stable and unique, saved in documents; letters, digits and '.' ("shapes.arrow")
    QString nameKey; ///< localisation key of the name; with "_WORDS" appended, of search words, if any
    /// Localisation key of the palette group; empty for kinds that only tools and files make.
    QString group;
    /// Place in its group by use, beginning with 1; 0 for kinds that follow by name.
    int rank = 0;
};

/// Texts by localisation key.
using TextTable = QMap<QString, QString>;

/// The interface of plug-ins for page objects. An exception that leaves one of these operations counts as nothing
/// given, and is named in the plug-in's report. It needs no metadata file:
///
///     class ArrowPlugin : public QObject, public pagehost::ObjectPlugin {
///         Q_OBJECT
///         Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)
///         Q_INTERFACES(pagehost::ObjectPlugin)
///     ...
class ObjectPlugin
{
public:
    virtual ~ObjectPlugin() = default;
    /// The offered kinds, in palette order.
    virtual QVector<ObjectKind> objectKinds() const = 0;
    /// A new object of that kind in the creating state, owned by the caller; null for an unknown id.
    virtual CBaseObject *createObject(const QString &kindId) const = 0;
    /// The plug-in's texts in a language ("en", "de", ...); empty for a language that it lacks. English is
    /// required.
    virtual TextTable texts(const QString &language) const = 0;

    /// @name Data of other programs
    /// Optional operations of a plug-in: creating objects from pasted or dropped data, and exporting the look of
    /// its objects.
    /// @{

    /// MIME types that createFromData() accepts, preferred ones first ("image/svg+xml", "image/png").
    virtual QStringList dataTypes() const { return {}; }
    /// A new object that shows `data`, in the creating state, owned by the caller; `kindId` becomes its kind, one
    /// of objectKinds(). A press and a release at one point give it the natural size of the data. Null for data
    /// that cannot be read and for types that are not among dataTypes(); never more than one object.
    virtual CBaseObject *createFromData(const QString &mimeType, const QByteArray &data, QString &kindId) const
    {
        Q_UNUSED(mimeType)
        Q_UNUSED(data)
        Q_UNUSED(kindId)
        return nullptr;
    }
    /// The look of an object of one of this plug-in's kinds as a complete document of that type, as large as its
    /// client rectangle (scene units) and without mirroring, position and rotation; empty when it cannot be given.
    virtual QByteArray dataOf(CBaseObject *object, const QString &mimeType) const
    {
        Q_UNUSED(object)
        Q_UNUSED(mimeType)
        return {};
    }
    /// @}
};

/// A plug-in whose kinds come from files.
class KindSource
{
public:
    /// Extent of a change.
    enum Change {
        TextsChanged, ///< texts() has further ones
        KindsChanged  ///< kinds, their looks, texts or faults have changed
    };
    /// Hears of changes.
    using Listener = std::function<void(Change change)>;

    virtual ~KindSource() = default;
    /// With what the ids of all its kinds begin ("declared."). The plug-in makes an object of any such id, on offer
    /// or not: what it is like may come with KnownTexts.
    virtual QString kindFamily() const = 0;
    /// `listener` is notified of every change; an empty one of none.
    virtual void setKindsListener(const Listener &listener) = 0;
    /// Files that cannot be used, a line each, in English for people: "star.shape.svg:14:22: error C20: ...".
    virtual QStringList faults() const = 0;
    /// Looks for files in further folders, before all others.
    virtual void addFolders(const QStringList &folders) = 0;
    /// The id of the kind that a file declares; empty when the file cannot be used, or is in none of the folders.
    virtual QString kindOfFile(const QString &path) const = 0;
};

/// A fault of a file that a plug-in makes objects of, or of their drawing.
struct PluginMessage
{
    /// How bad a fault is: with an error there is no object, or not all of it.
    enum Severity { Warning, Error };

    /// "star.shape.svg:14:22: error C07: ...", without the line where that is unknown.
    QString told() const
    {
        const QString place = line > 0 ? QStringLiteral(":%1:%2").arg(line).arg(column) : QString();
        const QString kind = severity == Error ? QStringLiteral("error") : QStringLiteral("warning");
        return QStringLiteral("%1%2: %3 %4: %5").arg(file, place, kind, code, text);
    }

    Severity severity = Warning; ///< how bad it is
    QString code;                ///< of a documented list of the plug-in: "K03"
    QString file;                ///< its name, without a folder
    qint64 line = 0;             ///< from 1; 0 when it is unknown
    qint64 column = 0;           ///< from 1; 0 when it is unknown
    QString element;             ///< id of the element, if it has one
    QString text;                ///< in English for people
};

/// Hears of faults.
using MessageListener = std::function<void(const PluginMessage &)>;

/// A second interface, optional for plug-ins: faults of what they make objects of.
class MessageSource
{
public:
    virtual ~MessageSource() = default;
    /// Everything found so far.
    virtual QVector<PluginMessage> messages() const = 0;
    /// `listener` is notified of every message that follows; an empty one of none.
    virtual void setMessageListener(const MessageListener &listener) = 0;
};

} // namespace pagehost

/// Identifies the interface to Qt's plug-in system.
#define PAGEHOST_OBJECTPLUGIN_INTERFACE "gliololok.pagehost.ObjectPlugin/2"
/// The same with the version of the library that a plug-in is built against. Plug-ins of an older version with the
/// same major number are loaded, those of a newer version are not.
#define PAGEHOST_OBJECTPLUGIN_IID PAGEHOST_OBJECTPLUGIN_INTERFACE " " PAGEHOST_VERSION
Q_DECLARE_INTERFACE(pagehost::ObjectPlugin, PAGEHOST_OBJECTPLUGIN_INTERFACE)
