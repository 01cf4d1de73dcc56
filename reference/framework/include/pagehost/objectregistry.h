#pragma once

#include <pagehost/objectplugin.h>

#include <framework/framework_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

class CBaseObject;

namespace pagehost {

class Localizer;

/// What became of one plug-in file.
struct PluginReport
{
    QString file; ///< absolute path
    bool loaded = false;
    /// Why it was not loaded, or what of it could not be used, in English for people; empty when all is well.
    QString problem;
    QStringList kindIds; ///< kinds that it brought
};

/// The kinds of page object that plug-ins offer.
class FRAMEWORK_EXPORT ObjectRegistry
{
public:
    /// The texts of plug-ins go to `localizer`, which may be null and must otherwise outlive the registry.
    explicit ObjectRegistry(Localizer *localizer = nullptr);
    /// Plug-ins stay loaded, since objects of theirs may be alive.
    ~ObjectRegistry();
    ObjectRegistry(const ObjectRegistry &) = delete;
    ObjectRegistry &operator=(const ObjectRegistry &) = delete;

    /// Loads every library of a directory, by name, and reports on each. A directory that does not exist or cannot
    /// be read is reported as one file that was not loaded; a file that has been loaded before is passed over.
    QVector<PluginReport> loadDirectory(const QString &path);
    PluginReport loadFile(const QString &file);
    /// Registers a plug-in that is part of the program. `name` stands for its file; the plug-in must outlive the
    /// registry. Reported as loadFile() does.
    PluginReport addPlugin(ObjectPlugin *plugin, const QString &name);
    /// Everything reported so far.
    QVector<PluginReport> reports() const { return m_reports; }

    /// All kinds, in the order in which they were registered.
    QVector<ObjectKind> kinds() const { return m_kinds; }
    bool hasKind(const QString &kindId) const { return m_plugins.contains(kindId); }
    /// A kind with an empty id when it is unknown.
    ObjectKind kind(const QString &kindId) const;
    /// A new object in the creating state, tagged with its kind; null when the kind is unknown or its plug-in
    /// fails. The caller owns it.
    CBaseObject *createObject(const QString &kindId) const;

    /// MIME types that createFromData() takes: those of the plug-ins in the order in which they were registered,
    /// each type once.
    QStringList dataTypes() const;
    /// A new object in the creating state that shows `data`, tagged with its kind, from the first plug-in that
    /// makes one; null when none does. The caller owns it.
    CBaseObject *createFromData(const QString &mimeType, const QByteArray &data) const;
    /// The look of an object as data of a type (see ObjectPlugin::dataOf()), from the plug-in of its kind; empty
    /// when that cannot give it or the kind is unknown.
    QByteArray dataOf(CBaseObject *object, const QString &mimeType) const;

private:
    PluginReport add(ObjectPlugin *plugin, PluginReport report);
    QString kindProblem(const ObjectKind &kind, const TextTable &english) const;
    bool hasLoaded(const QString &file) const;
    void mergeTexts(const ObjectPlugin &plugin);

    Localizer *m_localizer;
    QVector<PluginReport> m_reports;
    QVector<ObjectKind> m_kinds;
    QVector<ObjectPlugin *> m_sources;        ///< every plug-in in use, in the order of registration
    QHash<QString, ObjectPlugin *> m_plugins; ///< by kind id
};

/// The kind that the object was created as; empty for one that no registry made.
FRAMEWORK_EXPORT QString kindIdOf(const CBaseObject *object);
/// Tags an object that no registry made.
FRAMEWORK_EXPORT void setKindId(CBaseObject *object, const QString &kindId);

} // namespace pagehost
