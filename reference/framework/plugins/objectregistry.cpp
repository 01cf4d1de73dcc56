#include <pagehost/objectregistry.h>

#include <framework/cbaseobject.h>

#include <pagehost/localizer.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonObject>
#include <QtCore/QLibrary>
#include <QtCore/QPluginLoader>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <memory>

namespace pagehost {

namespace {

/// Where an object keeps its kind among the data of its graphics item.
constexpr int kindIdData = 0x6b696e64;

PluginReport failure(PluginReport report, const QString &problem)
{
    report.problem = problem;
    return report;
}

void addProblem(PluginReport &report, const QString &problem)
{
    report.problem += report.problem.isEmpty() ? problem : QStringLiteral("; ") + problem;
}

bool isKindId(const QString &id)
{
    static const QRegularExpression form(QStringLiteral("\\A[A-Za-z0-9]+(\\.[A-Za-z0-9]+)*\\z"));
    return form.match(id).hasMatch();
}

} // namespace

ObjectRegistry::ObjectRegistry(Localizer *localizer)
    : m_localizer(localizer)
{
}

ObjectRegistry::~ObjectRegistry() = default;

QVector<PluginReport> ObjectRegistry::loadDirectory(const QString &path)
{
    const QDir directory(path);
    if (!directory.exists() || !directory.isReadable()) {
        PluginReport missing{directory.absolutePath(), false, QStringLiteral("the directory cannot be read"), {}};
        m_reports.append(missing);
        return {missing};
    }
    QVector<PluginReport> reports;
    const QFileInfoList files = directory.entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        if (QLibrary::isLibrary(file.fileName()) && !hasLoaded(file.absoluteFilePath())) {
            reports.append(loadFile(file.absoluteFilePath()));
        }
    }
    return reports;
}

bool ObjectRegistry::hasLoaded(const QString &file) const
{
    const QString canonical = QFileInfo(file).canonicalFilePath();
    return std::any_of(m_reports.begin(), m_reports.end(), [&](const PluginReport &report) {
        return report.loaded && QFileInfo(report.file).canonicalFilePath() == canonical;
    });
}

PluginReport ObjectRegistry::loadFile(const QString &file)
{
    PluginReport report;
    report.file = QFileInfo(file).absoluteFilePath();
    QPluginLoader loader(report.file);
    const QString iid = loader.metaData().value(QLatin1String("IID")).toString();
    const QString wantedIid = QStringLiteral(PAGEHOST_OBJECTPLUGIN_IID);
    if (!iid.isEmpty() && iid != wantedIid) {
        report = failure(report, QStringLiteral("it implements \"%1\", not \"%2\"").arg(iid, wantedIid));
    } else if (!loader.load()) {
        report = failure(report, loader.errorString());
    } else if (auto *plugin = qobject_cast<ObjectPlugin *>(loader.instance())) {
        report = add(plugin, report);
    } else {
        report = failure(report, QStringLiteral("its root object is no plug-in for page objects"));
    }
    m_reports.append(report);
    return report;
}

PluginReport ObjectRegistry::addPlugin(ObjectPlugin *plugin, const QString &name)
{
    PluginReport report;
    report.file = name;
    report = plugin ? add(plugin, report) : failure(report, QStringLiteral("there is no plug-in"));
    m_reports.append(report);
    return report;
}

PluginReport ObjectRegistry::add(ObjectPlugin *plugin, PluginReport report)
{
    const TextTable english = plugin->texts(QStringLiteral("en"));
    if (english.isEmpty()) {
        return failure(report, QStringLiteral("it has no English texts"));
    }
    const QVector<ObjectKind> offered = plugin->objectKinds();
    for (const ObjectKind &kind : offered) {
        const QString problem = kindProblem(kind, english);
        if (!problem.isEmpty()) {
            addProblem(report, problem);
            continue;
        }
        m_kinds.append(kind);
        m_plugins.insert(kind.id, plugin);
        report.kindIds.append(kind.id);
    }
    if (report.kindIds.isEmpty()) {
        addProblem(report, QStringLiteral("it offers no kind of object that can be used"));
        return report;
    }
    report.loaded = true;
    m_sources.append(plugin);
    mergeTexts(*plugin);
    return report;
}

QString ObjectRegistry::kindProblem(const ObjectKind &kind, const TextTable &english) const
{
    if (!isKindId(kind.id)) {
        return QStringLiteral("\"%1\" is no kind id (letters, digits and dots)").arg(kind.id);
    }
    if (hasKind(kind.id)) {
        return QStringLiteral("the kind \"%1\" exists already").arg(kind.id);
    }
    if (!english.contains(kind.nameKey)) {
        return QStringLiteral("the kind \"%1\" has no English name (\"%2\")").arg(kind.id, kind.nameKey);
    }
    return {};
}

void ObjectRegistry::mergeTexts(const ObjectPlugin &plugin)
{
    if (!m_localizer) {
        return;
    }
    const QStringList languages = m_localizer->languages();
    for (const QString &language : languages) {
        m_localizer->addTexts(language, plugin.texts(language));
    }
}

ObjectKind ObjectRegistry::kind(const QString &kindId) const
{
    for (const ObjectKind &kind : m_kinds) {
        if (kind.id == kindId) {
            return kind;
        }
    }
    return {};
}

CBaseObject *ObjectRegistry::createObject(const QString &kindId) const
{
    const ObjectPlugin *plugin = m_plugins.value(kindId);
    CBaseObject *object = plugin ? plugin->createObject(kindId) : nullptr;
    if (object) {
        setKindId(object, kindId);
    }
    return object;
}

QStringList ObjectRegistry::dataTypes() const
{
    QStringList types;
    for (const ObjectPlugin *plugin : m_sources) {
        types += plugin->dataTypes();
    }
    types.removeDuplicates();
    return types;
}

CBaseObject *ObjectRegistry::createFromData(const QString &mimeType, const QByteArray &data) const
{
    for (const ObjectPlugin *plugin : m_sources) {
        if (!plugin->dataTypes().contains(mimeType)) {
            continue;
        }
        QString kindId;
        std::unique_ptr<CBaseObject> object(plugin->createFromData(mimeType, data, kindId));
        if (object && m_plugins.value(kindId) == plugin) {
            setKindId(object.get(), kindId);
            return object.release();
        }
    }
    return nullptr;
}

QByteArray ObjectRegistry::dataOf(CBaseObject *object, const QString &mimeType) const
{
    const ObjectPlugin *plugin = m_plugins.value(kindIdOf(object));
    return plugin ? plugin->dataOf(object, mimeType) : QByteArray();
}

QString kindIdOf(const CBaseObject *object)
{
    return object ? object->data(kindIdData).toString() : QString();
}

void setKindId(CBaseObject *object, const QString &kindId)
{
    object->setData(kindIdData, kindId);
}

} // namespace pagehost
