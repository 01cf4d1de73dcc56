#pragma once

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

/// Special properties (CPSRootObject::GetSpecialProperty(), SetSpecialProperty()) that the host uses of any object.
/// They are not part of its state: never saved, recorded or undone.
enum SpecialProperty {
    /// bool: whether the object plays its animation; off for a new object. While on, it reports every frame with
    /// AppearanceChanged; switched off, it stops where it is, and continues from there. Objects without animation
    /// lack the property.
    AnimationRuns = 2901,
    /// QRectF, item coordinates, read only: a box around everything that the object paints and can be hit at, with
    /// its editing aids while it is selected. Read when size, look or selection have changed. Without the property
    /// the host uses the region and a margin around the client rectangle.
    PaintedArea = 2902,
    /// QMap<QByteArray, QByteArray>, read only: the texts that the object is made of beside its saved data, such as
    /// the file that declares a shape, by the first 32 hexadecimal digits of their SHA-256. The object names each
    /// of these keys in its data. The host asks for them before it saves the object, and keeps them with the
    /// document.
    NeededTexts = 2903,
    /// The same, write only, of an object that nothing has been read into yet: the texts that its data name. The
    /// host tells every new object, if only of no text: an object that has been told leaves its texts to the host,
    /// any other one saves them itself.
    KnownTexts = 2904,
    /// bool: whether the object is made of the present version of the file that it comes from, which may have
    /// changed since. Setting it to true makes it so, as an undo step of its own; setting it to false does nothing.
    IsPresentVersion = 2905,
    /// QString, read only: what the drag of a part does at this moment, for the user to read ("Corner radius 12").
    /// Unknown while nothing is dragged, and to objects that have nothing to say.
    DragHint = 2906,
    /// Read only: the places where lines to other objects may end: a qint32 count, then for each its name
    /// (QString), the place (QPointF, item coordinates as they are seen) and the direction in which a line leaves
    /// it (double, degrees clockwise from the right; NaN for any).
    ConnectionPlaces = 2907,
    /// Read only: texts that users write on the page: a qint32 count, then for each its property (qint32), the text
    /// (QString), its box (QRectF, item coordinates as they are seen), the height of the font (double, item units),
    /// whether it is bold, whether it may have several lines (bool each), its colour (QColor), and its place in the
    /// box (qint32, Qt::Alignment).
    LabelPlaces = 2908,
    /// Write only: one of these texts while it is typed: its property (qint32) and the text (QString). Recorded
    /// where that is asked for, without an undo step: at the end the host puts the first text back in this way, and
    /// sets the property to the last one.
    LabelText = 2909,
    /// bool, read only: whether nothing of the object is to be seen, so that it leaves the page when the user has
    /// ended writing it. Objects without such texts lack the property.
    VanishesEmpty = 2910,
    /// Of an object that follows others, as a line does that connects two of them: a qint32 count, then for each
    /// end the number of the object that it follows (quint32, ToolPage::numberOf()), 0 for none. The object saves
    /// the numbers. The host writes others into a copy whose originals were copied along, and 0 where they were
    /// not.
    FollowedObjects = 2911,
    /// Write only: where those objects are, in the same order: a qint32 count, then for each whether it is on the
    /// page (bool), and if so its outline (QPainterPath) and its ConnectionPlaces, all in scene coordinates. The
    /// host writes it whenever one of them or the object itself has changed. The object follows unrecorded and
    /// without undo steps, and is the same whenever it is told the same.
    FollowedPlaces = 2912,
    /// QPainterPath, read only, item coordinates as they are seen: the outline where lines to other objects end.
    /// Without the property they end at the client rectangle.
    ConnectionOutline = 2913,
    /// Read only: the control points that users see on the selected object: a qint32 count, then for each its
    /// number (qint32, from 1), what it sets at present for the user to read (QString, as DragHint; may be empty),
    /// its centre, a place where a press takes it and no other, and the range of its centre (two QPointF and a
    /// QRectF, item coordinates as they are seen), and whether it moves across and down the document (bool each).
    ControlPoints = 2914,
    /// Read only: what control points that move along one way would set at the ends of their range: a qint32 count,
    /// then for each its number (qint32, as in ControlPoints) and two QString, as the hint there. Points that say
    /// nothing are left out.
    ControlPointEnds = 2915
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
