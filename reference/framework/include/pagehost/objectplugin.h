#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtCore/QtPlugin>

class CBaseObject;

namespace pagehost {

/// One kind of page object that a plug-in offers.
struct ObjectKind
{
    QString id;      ///< stable and unique, kept in documents; letters, digits and '.' ("shapes.arrow")
    QString nameKey; ///< localisation key of the name shown in the palette
    QString group;   ///< localisation key of the palette group
};

/// Texts by localisation key.
using TextTable = QMap<QString, QString>;

/// What a plug-in for page objects implements. It needs no metadata file:
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
};

} // namespace pagehost

#define PAGEHOST_OBJECTPLUGIN_IID "gliololok.pagehost.ObjectPlugin/1"
Q_DECLARE_INTERFACE(pagehost::ObjectPlugin, PAGEHOST_OBJECTPLUGIN_IID)
