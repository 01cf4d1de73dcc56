#pragma once

#include <pagehost/version.h>

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtCore/QtPlugin>

class CBaseObject;

namespace pagehost {

/// The palette group of what everybody draws, which comes before all others.
constexpr char basicGroup[] = "IDS_SHAPEGROUP_BASIC";

/// A picture for palettes instead of the look of a new object, PNG (ObjectPlugin::dataOf()); empty where the look
/// is the picture.
constexpr char iconType[] = "image/x-gliololok-icon";

/// One kind of page object that a plug-in offers.
struct ObjectKind
{
    QString id;      ///< stable and unique, kept in documents; letters, digits and '.' ("shapes.arrow")
    QString nameKey; ///< localisation key of the name; with "_WORDS" behind it, of words to search it by, if any
    QString group;   ///< localisation key of the palette group
};

/// Special properties (CPSRootObject::GetSpecialProperty(), SetSpecialProperty()) that the host has for all
/// objects. They are no part of what an object is: never saved, recorded or undone.
enum SpecialProperty {
    /// bool: whether the object plays what moves in it; off for a new object. While it plays, it tells of every
    /// picture with AppearanceChanged; switched off, it stands still where it was, and goes on from there. An
    /// object
    /// in which nothing moves does not know the property.
    AnimationRuns = 2901,
    /// QRectF, item coordinates, read only: a box around everything that the object paints and can be hit at,
    /// editing aids included while it is selected. It is asked for when size, look or selection have changed. For
    /// an object that does not know the property the host guesses: a margin around the client rectangle, and the
    /// region.
    PaintedArea = 2902
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
    /// The kinds on offer, in palette order.
    virtual QVector<ObjectKind> objectKinds() const = 0;
    /// A new object of that kind in the creating state, owned by the caller; null for an unknown id.
    virtual CBaseObject *createObject(const QString &kindId) const = 0;
    /// The plug-in's texts in a language ("en", "de", ...); empty for a language that it does not have. English
    /// must be there.
    virtual TextTable texts(const QString &language) const = 0;

    /// @name Data of other programs
    /// Optional operations of a plug-in: creating objects from pasted or dropped data, and exporting the look of
    /// its objects.
    /// @{

    /// MIME types that createFromData() takes, most wanted first ("image/svg+xml", "image/png").
    virtual QStringList dataTypes() const { return {}; }
    /// A new object that shows `data`, in the creating state, owned by the caller; `kindId` becomes its kind, one
    /// of objectKinds(). A press and a release at one point finish it in the natural size of what it shows. Null
    /// for data that cannot be read and for types that are not among dataTypes(); never more than one object.
    virtual CBaseObject *createFromData(const QString &mimeType, const QByteArray &data, QString &kindId) const
    {
        Q_UNUSED(mimeType)
        Q_UNUSED(data)
        Q_UNUSED(kindId)
        return nullptr;
    }
    /// The look of an object of one of this plug-in's kinds as a complete document of that type, as large as its
    /// client rectangle (scene units) and without mirroring, place and rotation; empty when it cannot be given.
    virtual QByteArray dataOf(CBaseObject *object, const QString &mimeType) const
    {
        Q_UNUSED(object)
        Q_UNUSED(mimeType)
        return {};
    }
    /// @}
};

} // namespace pagehost

/// Identifies the interface to Qt's plug-in system.
#define PAGEHOST_OBJECTPLUGIN_INTERFACE "gliololok.pagehost.ObjectPlugin/2"
/// The same with the version of the library that a plug-in is built against. A plug-in of an older version with the
/// same major number is loaded, one of a newer version is not.
#define PAGEHOST_OBJECTPLUGIN_IID PAGEHOST_OBJECTPLUGIN_INTERFACE " " PAGEHOST_VERSION
Q_DECLARE_INTERFACE(pagehost::ObjectPlugin, PAGEHOST_OBJECTPLUGIN_INTERFACE)
