#include <pagehost/objectregistry.h>

#include <framework/cbaseobject.h>

#include <pagehost/localizer.h>

#include <plugins/guarded.h>

#include <QtCore/QDataStream>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonObject>
#include <QtCore/QLibrary>
#include <QtCore/QPluginLoader>
#include <QtCore/QRegularExpression>
#include <QtCore/QVersionNumber>

#include <algorithm>
#include <memory>

namespace pagehost {

namespace {

/// Key of an object's kind in the data of its graphics item.
constexpr int kindIdData = 0x6b696e64;
/// Key that marks objects made by a plug-in.
constexpr int givenData = 0x67697665;
/// Most kinds accepted from one plug-in.
constexpr int mostKinds = 1000;
/// Characters; files store the length of an id in two bytes.
constexpr int longestKindId = 200;
/// Characters of the problems of one plug-in: repeated ones need no more.
constexpr int longestProblem = 2000;

PluginReport failure(PluginReport report, const QString &problem)
{
    report.problem = problem;
    return report;
}

void addProblem(PluginReport &report, const QString &problem)
{
    report.problem += report.problem.isEmpty() ? problem : QStringLiteral("; ") + problem;
}

QString quoted(const char *operation, const QString &argument)
{
    return QStringLiteral("%1(\"%2\")").arg(QLatin1String(operation), argument);
}

bool isKindId(const QString &id)
{
    static const QRegularExpression form(QStringLiteral("\\A[A-Za-z0-9]+(\\.[A-Za-z0-9]+)*\\z"));
    return id.size() <= longestKindId && form.match(id).hasMatch();
}

/// Checks the interface id of a library: its name and, after a space, the version that it was built against.
QString interfaceProblem(const QString &iid)
{
    const QString wanted = QStringLiteral(PAGEHOST_OBJECTPLUGIN_INTERFACE);
    const QString name = iid.section(QLatin1Char(' '), 0, 0);
    if (name != wanted)
        return QStringLiteral("it implements \"%1\", not \"%2\"").arg(iid, wanted);
    return versionProblem(iid.section(QLatin1Char(' '), 1), QStringLiteral(PAGEHOST_VERSION));
}

} // namespace

ObjectRegistry::ObjectRegistry(Localizer *localizer)
    : m_localizer(localizer)
{
}

ObjectRegistry::~ObjectRegistry()
{
    for (const Source &source : qAsConst(m_sources))
        if (source.kinds)
            source.kinds->setKindsListener({});
    for (MessageSource *messages : qAsConst(m_messageSources))
        messages->setMessageListener({});
}

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
    for (const QFileInfo &file : files)
        if (QLibrary::isLibrary(file.fileName()) && !hasLoaded(file.absoluteFilePath()))
            reports.append(loadFile(file.absoluteFilePath()));
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
    return load(report.file, report);
}

PluginReport ObjectRegistry::load(const QString &file, PluginReport report)
{
    QPluginLoader loader(file);
    const QString iid = loader.metaData().value(QLatin1String("IID")).toString();
    const QString problem = iid.isEmpty() ? QString() : interfaceProblem(iid);
    QObject *root = nullptr;
    QString thrown;
    if (!problem.isEmpty())
        report = failure(report, problem);
    else if (!loader.load())
        report = failure(report, loader.errorString());
    else if (!guarded(QStringLiteral("its constructor"), thrown, [&] { root = loader.instance(); }))
        report = failure(report, thrown);
    else if (auto *plugin = qobject_cast<ObjectPlugin *>(root))
        return add(plugin, report);
    else
        report = failure(report, QStringLiteral("its root object is no plug-in for page objects"));
    m_reports.append(report);
    return report;
}

PluginReport ObjectRegistry::addPlugin(ObjectPlugin *plugin, const QString &name)
{
    PluginReport report;
    report.file = name;
    if (plugin)
        return add(plugin, report);
    report = failure(report, QStringLiteral("there is no plug-in"));
    m_reports.append(report);
    return report;
}

/// The report is in the list from the start, where every problem is added to it.
PluginReport ObjectRegistry::add(ObjectPlugin *plugin, PluginReport report)
{
    Source source{plugin, m_reports.size(), nullptr, {}, nullptr, {}};
    m_reports.append(report);
    TextTable english;
    QVector<ObjectKind> offered;
    if (!run(source, QStringLiteral("texts(\"en\")"), [&] { english = plugin->texts(QStringLiteral("en")); }) ||
        !run(source, QStringLiteral("objectKinds()"), [&] { offered = plugin->objectKinds(); }))
        return m_reports.at(source.report);
    source.kinds = dynamic_cast<KindSource *>(plugin);
    // Files may bring kinds and their texts later.
    if (english.isEmpty() && !source.kinds) {
        addProblem(source, QStringLiteral("it has no English texts"));
        return m_reports.at(source.report);
    }
    if (offered.size() > mostKinds) {
        addProblem(source, QStringLiteral("it offers more than %1 kinds of object").arg(mostKinds));
        return m_reports.at(source.report);
    }
    if (source.kinds)
        followKinds(source);
    source.tools = dynamic_cast<ToolPlugin *>(plugin);
    if (source.tools)
        run(source, QStringLiteral("toolRoles()"), [&] { source.roles = source.tools->toolRoles(); });
    takeKinds(source, offered, english);
    PluginReport &told = m_reports[source.report];
    if (told.kindIds.isEmpty() && !source.kinds) {
        pagehost::addProblem(told, QStringLiteral("it offers no kind of object that can be used"));
        return told;
    }
    listenTo(source);
    told.loaded = true;
    m_sources.append(source);
    mergeTexts(source);
    return m_reports.at(source.report);
}

void ObjectRegistry::takeKinds(const Source &source, const QVector<ObjectKind> &offered, const TextTable &english)
{
    PluginReport &told = m_reports[source.report];
    for (const ObjectKind &kind : offered) {
        const QString problem = kindProblem(kind, english);
        if (!problem.isEmpty()) {
            pagehost::addProblem(told, problem);
            continue;
        }
        m_kinds.append(kind);
        m_plugins.insert(kind.id, source);
        told.kindIds.append(kind.id);
    }
}

void ObjectRegistry::followKinds(Source &source)
{
    run(source, QStringLiteral("kindFamily()"), [&] {
        source.family = source.kinds->kindFamily();
        if (!m_folders.isEmpty())
            source.kinds->addFolders(m_folders);
        source.kinds->setKindsListener(
            [this, plugin = source.plugin](KindSource::Change change) { refresh(plugin, change); });
    });
}

/// All kinds of the plug-in stand behind those of others from then on.
void ObjectRegistry::refresh(ObjectPlugin *plugin, KindSource::Change change)
{
    const auto found = std::find_if(m_sources.begin(), m_sources.end(),
                                    [&](const Source &source) { return source.plugin == plugin; });
    if (found == m_sources.end())
        return;
    const Source source = *found;
    mergeTexts(source);
    if (change == KindSource::TextsChanged)
        return;
    QVector<ObjectKind> offered;
    TextTable english;
    run(source, QStringLiteral("objectKinds()"), [&] {
        offered = plugin->objectKinds();
        english = plugin->texts(QStringLiteral("en"));
    });
    const auto isOfPlugin = [&](const ObjectKind &kind) { return m_plugins.value(kind.id).plugin == plugin; };
    m_kinds.erase(std::remove_if(m_kinds.begin(), m_kinds.end(), isOfPlugin), m_kinds.end());
    for (const QString &id : qAsConst(m_reports[source.report].kindIds))
        m_plugins.remove(id);
    m_reports[source.report].kindIds.clear();
    takeKinds(source, offered, english);
    if (m_kindsListener)
        m_kindsListener();
}

QStringList ObjectRegistry::faults() const
{
    QStringList faults;
    for (const Source &source : m_sources)
        if (source.kinds)
            run(source, QStringLiteral("faults()"), [&] { faults += source.kinds->faults(); });
    return faults;
}

void ObjectRegistry::addFolders(const QStringList &folders)
{
    m_folders += folders;
    for (const Source &source : qAsConst(m_sources))
        if (source.kinds)
            run(source, QStringLiteral("addFolders()"), [&] { source.kinds->addFolders(folders); });
}

QString ObjectRegistry::kindOfFile(const QString &path) const
{
    QString kindId;
    for (const Source &source : m_sources)
        if (kindId.isEmpty() && source.kinds)
            run(source, QStringLiteral("kindOfFile()"), [&] { kindId = source.kinds->kindOfFile(path); });
    return kindId;
}

void ObjectRegistry::listenTo(const Source &source)
{
    auto *messages = dynamic_cast<MessageSource *>(source.plugin);
    if (!messages)
        return;
    m_messageSources.append(messages);
    run(source, QStringLiteral("messages()"), [&] {
        const QVector<PluginMessage> present = messages->messages();
        for (const PluginMessage &message : present)
            addMessage(source, message);
        messages->setMessageListener([this, source](const PluginMessage &message) { addMessage(source, message); });
    });
}

void ObjectRegistry::addMessage(const Source &source, const PluginMessage &message) const
{
    m_reports[source.report].messages.append(message);
    // Those of files are told by faults(), as long as the file has them.
    if (!source.kinds || !source.kinds->faults().contains(message.told()))
        addProblem(source, message.told());
}

bool ObjectRegistry::run(const QString &kindId, const QString &operation, const std::function<void()> &work) const
{
    return run(sourceOf(kindId), operation, work);
}

bool ObjectRegistry::run(const Source &source, const QString &operation, const std::function<void()> &work) const
{
    QString problem;
    if (guarded(operation, problem, work))
        return true;
    addProblem(source, problem);
    return false;
}

void ObjectRegistry::addProblem(const Source &source, const QString &problem) const
{
    if (!source.plugin)
        return;
    PluginReport &report = m_reports[source.report];
    if (report.problem.contains(problem) || report.problem.size() > longestProblem)
        return;
    pagehost::addProblem(report, problem);
    if (report.loaded && m_listener)
        m_listener(report);
}

ObjectRegistry::Source ObjectRegistry::sourceOf(const QString &kindId) const
{
    const auto found = m_plugins.constFind(kindId);
    if (found != m_plugins.constEnd())
        return *found;
    const auto isOfFamily = [&](const Source &source) {
        return !source.family.isEmpty() && kindId.startsWith(source.family);
    };
    const auto family = std::find_if(m_sources.begin(), m_sources.end(), isOfFamily);
    return family == m_sources.end() ? Source{} : *family;
}

QString ObjectRegistry::kindProblem(const ObjectKind &kind, const TextTable &english) const
{
    if (!isKindId(kind.id))
        return QStringLiteral("\"%1\" is no kind id (letters, digits and dots)").arg(kind.id);
    if (hasKind(kind.id))
        return QStringLiteral("the kind \"%1\" exists already").arg(kind.id);
    if (!english.contains(kind.nameKey))
        return QStringLiteral("the kind \"%1\" has no English name (\"%2\")").arg(kind.id, kind.nameKey);
    return {};
}

void ObjectRegistry::mergeTexts(const Source &source)
{
    if (!m_localizer)
        return;
    const QStringList languages = m_localizer->languages();
    for (const QString &language : languages) {
        TextTable texts;
        run(source, quoted("texts", language), [&] { texts = source.plugin->texts(language); });
        m_localizer->addTexts(language, texts);
    }
}

ObjectKind ObjectRegistry::kind(const QString &kindId) const
{
    for (const ObjectKind &kind : m_kinds)
        if (kind.id == kindId)
            return kind;
    return {};
}

CBaseObject *ObjectRegistry::createObject(const QString &kindId) const
{
    const Source source = sourceOf(kindId);
    if (!source.plugin)
        return nullptr;
    const QString operation = quoted("createObject", kindId);
    CBaseObject *object = nullptr;
    run(source, operation, [&] { object = source.plugin->createObject(kindId); });
    return taken(source, operation, object, kindId);
}

/// Null for an object that already has an owner: it was returned before, or put on a page.
CBaseObject *ObjectRegistry::taken(const Source &source, const QString &operation, CBaseObject *object,
                                   const QString &kindId) const
{
    if (!object)
        return nullptr;
    if (object->scene() || object->data(givenData).toBool()) {
        addProblem(source, QStringLiteral("%1 gave an object that is in use").arg(operation));
        return nullptr;
    }
    object->setData(givenData, true);
    setKindId(object, kindId);
    run(source, QStringLiteral("SetSpecialProperty()"), [&] { tellTexts(*object, {}); });
    return object;
}

QStringList ObjectRegistry::dataTypes() const
{
    QStringList types;
    for (const Source &source : m_sources)
        run(source, QStringLiteral("dataTypes()"), [&] { types += source.plugin->dataTypes(); });
    types.removeDuplicates();
    return types;
}

CBaseObject *ObjectRegistry::createFromData(const QString &mimeType, const QByteArray &data) const
{
    const QString operation = quoted("createFromData", mimeType);
    for (const Source &source : m_sources) {
        QString kindId;
        CBaseObject *made = nullptr;
        run(source, operation, [&] {
            if (source.plugin->dataTypes().contains(mimeType))
                made = source.plugin->createFromData(mimeType, data, kindId);
        });
        std::unique_ptr<CBaseObject> object(taken(source, operation, made, kindId));
        if (object && sourceOf(kindId).plugin == source.plugin)
            return object.release();
    }
    return nullptr;
}

QByteArray ObjectRegistry::dataOf(CBaseObject *object, const QString &mimeType) const
{
    const Source source = sourceOf(kindIdOf(object));
    QByteArray data;
    if (source.plugin)
        run(source, quoted("dataOf", mimeType), [&] { data = source.plugin->dataOf(object, mimeType); });
    return data;
}

bool ObjectRegistry::hasTool(ToolRole role) const
{
    return std::any_of(m_sources.begin(), m_sources.end(),
                       [role](const Source &source) { return source.roles.contains(role); });
}

std::unique_ptr<PageTool> ObjectRegistry::createTool(ToolRole role, ToolPage *page) const
{
    std::unique_ptr<PageTool> tool;
    for (const Source &source : m_sources)
        if (!tool && source.roles.contains(role))
            run(source, QStringLiteral("createTool()"), [&] { tool.reset(source.tools->createTool(role, page)); });
    return tool;
}

void tellTexts(CBaseObject &object, const QMap<QByteArray, QByteArray> &texts)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << texts;
    QDataStream in(bytes);
    object.SetSpecialProperty(KnownTexts, in, false);
}

QString versionProblem(const QString &builtAgainst, const QString &present)
{
    const QVersionNumber theirs = QVersionNumber::fromString(builtAgainst);
    const QVersionNumber ours = QVersionNumber::fromString(present);
    if (builtAgainst.isEmpty() || (theirs.majorVersion() == ours.majorVersion() && theirs <= ours))
        return {};
    return QStringLiteral("it was built against version %1 of the library, this is version %2")
        .arg(builtAgainst, present);
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
