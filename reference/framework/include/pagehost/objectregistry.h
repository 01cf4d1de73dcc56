#pragma once

#include <pagehost/objectplugin.h>
#include <pagehost/pagetool.h>

#include <framework/framework_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <functional>
#include <memory>

class CBaseObject;

namespace pagehost {

class Localizer;

/// Result of loading one plug-in file.
struct PluginReport
{
    QString file;        ///< absolute path
    bool loaded = false; ///< whether its kinds can be used
    /// Why it was not loaded, or which part of it could not be used, in English for people; empty without a
    /// problem.
    QString problem;
    QStringList kindIds; ///< kinds that it offers
    /// Faults of files that it makes objects of; their texts are part of `problem`.
    QVector<PluginMessage> messages = {};
};

/// The kinds of page objects that plug-ins offer.
class FRAMEWORK_EXPORT ObjectRegistry
{
public:
    /// Texts of plug-ins are added to `localizer`, which may be null and must otherwise outlive the registry.
    explicit ObjectRegistry(Localizer *localizer = nullptr);
    /// Plug-ins stay loaded, since some of their objects may still exist.
    ~ObjectRegistry();
    ObjectRegistry(const ObjectRegistry &) = delete;
    ObjectRegistry &operator=(const ObjectRegistry &) = delete;

    /// Loads every library of a directory, by name, and reports on each. A directory that does not exist or cannot
    /// be read is reported as one file that was not loaded; files loaded before are skipped.
    QVector<PluginReport> loadDirectory(const QString &path);
    /// Loads one library and reports on it.
    PluginReport loadFile(const QString &file);
    /// Registers a plug-in that is part of the program. `name` replaces the file's name; the plug-in must outlive
    /// the registry. Reports like loadFile().
    PluginReport addPlugin(ObjectPlugin *plugin, const QString &name);
    /// All reports so far. Later failures of a plug-in are added to its report.
    QVector<PluginReport> reports() const { return m_reports; }
    /// Called with a loaded plug-in whose report has got another problem.
    void setProblemListener(const std::function<void(const PluginReport &)> &listener) { m_listener = listener; }

    /// Called when the kinds of a plug-in that come from files have changed: others, other looks, other faults.
    void setKindsListener(const std::function<void()> &listener) { m_kindsListener = listener; }
    /// Of files that cannot be used (KindSource::faults()).
    QStringList faults() const;
    /// Folders in which plug-ins look for files first, those that are loaded later, too.
    void addFolders(const QStringList &folders);
    /// The id of the kind that a file declares (KindSource::kindOfFile()); empty when there is none.
    QString kindOfFile(const QString &path) const;

    /// All kinds, in order of registration.
    QVector<ObjectKind> kinds() const { return m_kinds; }
    /// Whether the kind is on offer.
    bool hasKind(const QString &kindId) const { return m_plugins.contains(kindId); }
    /// Whether an object of that kind can be made, which may be on offer no more.
    bool canMake(const QString &kindId) const { return sourceOf(kindId).plugin != nullptr; }
    /// A kind with an empty id when it is unknown.
    ObjectKind kind(const QString &kindId) const;
    /// A new object in the creating state, tagged with its kind; null when the kind is unknown or its plug-in
    /// fails. The caller owns it.
    CBaseObject *createObject(const QString &kindId) const;

    /// Runs code of a kind's plug-in. False when it throws: the plug-in's report then has `operation` and the
    /// exception.
    bool run(const QString &kindId, const QString &operation, const std::function<void()> &work) const;

    /// MIME types that createFromData() accepts: those of the plug-ins in order of registration, each once.
    QStringList dataTypes() const;
    /// A new object in the creating state that shows `data`, tagged with its kind, from the first plug-in that
    /// makes one; null when none does. The caller owns it.
    CBaseObject *createFromData(const QString &mimeType, const QByteArray &data) const;
    /// The look of an object as data of a type (see ObjectPlugin::dataOf()) from its kind's plug-in; empty when
    /// that cannot give it or the kind is unknown.
    QByteArray dataOf(CBaseObject *object, const QString &mimeType) const;

    /// Whether a plug-in has a tool for the role.
    bool hasTool(ToolRole role) const;
    /// A tool of the first plug-in that has one for the role; null without one. `page` must outlive it.
    std::unique_ptr<PageTool> createTool(ToolRole role, ToolPage *page) const;

private:
    struct Source
    {
        ObjectPlugin *plugin = nullptr;
        int report = -1;             ///< its index in m_reports
        KindSource *kinds = nullptr; ///< null for plug-ins whose kinds never change
        QString family;              ///< KindSource::kindFamily(); empty for other plug-ins
        ToolPlugin *tools = nullptr; ///< null for plug-ins without tools
        QVector<ToolRole> roles;
    };

    PluginReport load(const QString &file, PluginReport report);
    void takeKinds(const Source &source, const QVector<ObjectKind> &offered, const TextTable &english);
    void followKinds(Source &source);
    void refresh(ObjectPlugin *plugin, KindSource::Change change);
    PluginReport add(ObjectPlugin *plugin, PluginReport report);
    QString kindProblem(const ObjectKind &kind, const TextTable &english) const;
    bool hasLoaded(const QString &file) const;
    void mergeTexts(const Source &source);
    bool run(const Source &source, const QString &operation, const std::function<void()> &work) const;
    void listenTo(const Source &source);
    void addMessage(const Source &source, const PluginMessage &message) const;
    void addProblem(const Source &source, const QString &problem) const;
    Source sourceOf(const QString &kindId) const;
    CBaseObject *taken(const Source &source, const QString &operation, CBaseObject *object,
                       const QString &kindId) const;

    Localizer *m_localizer;
    mutable QVector<PluginReport> m_reports;
    std::function<void(const PluginReport &)> m_listener;
    std::function<void()> m_kindsListener;
    QStringList m_folders;
    QVector<ObjectKind> m_kinds;
    QVector<Source> m_sources;        ///< every plug-in in use, in order of registration
    QHash<QString, Source> m_plugins; ///< by kind id
    QVector<MessageSource *> m_messageSources;
};

/// Tells a new object of texts by key (KnownTexts).
FRAMEWORK_EXPORT void tellTexts(CBaseObject &object, const QMap<QByteArray, QByteArray> &texts);

/// Why a plug-in built against one version of the library cannot be used with another, in English for people; empty
/// when it can: the major versions are the same, and the plug-in's is no newer. A plug-in without a version is
/// older than this rule.
FRAMEWORK_EXPORT QString versionProblem(const QString &builtAgainst, const QString &present);

/// The kind that the object was created as; empty unless a registry made it.
FRAMEWORK_EXPORT QString kindIdOf(const CBaseObject *object);
/// Tags an object that no registry made.
FRAMEWORK_EXPORT void setKindId(CBaseObject *object, const QString &kindId);

} // namespace pagehost

Q_DECLARE_METATYPE(pagehost::PluginReport)
