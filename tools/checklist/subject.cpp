#include <checklist/subject.h>

#include <checklist/filereading.h>

#include <declared/core/pluginmessage.h>
#include <declared/core/shapekind.h>

#include <shapekit/shapeobject.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLibrary>
#include <QtCore/QPluginLoader>

namespace checklist {

namespace {

/// The plug-in of one declared file.
class DeclaredFile : public pagehost::ObjectPlugin, public pagehost::MessageSource
{
public:
    DeclaredFile(const QString &path, const declared::SharedDeclaration &declaration)
        : m_path(path)
        , m_shape(declaration)
    {
    }
    QVector<pagehost::ObjectKind> objectKinds() const override
    {
        return {{m_shape.kind().id(), m_shape.kind().nameKey(), m_shape.groupKey(), m_shape.kind().rank}};
    }
    CBaseObject *createObject(const QString &kindId) const override
    {
        return kindId == m_shape.kind().id() ? new shapekit::ShapeObject(m_shape.kind()) : nullptr;
    }
    pagehost::TextTable texts(const QString &language) const override { return m_shape.texts(language); }
    /// Faults of drawing it; those of the file are with the file.
    QVector<pagehost::PluginMessage> messages() const override
    {
        QVector<pagehost::PluginMessage> messages;
        for (const declared::Message &message : m_shape.told())
            messages.append(declared::pluginMessage(message, m_path));
        return messages;
    }
    void setMessageListener(const pagehost::MessageListener &listener) override
    {
        m_shape.setListener([this, listener](const declared::Message &message) {
            if (listener)
                listener(declared::pluginMessage(message, m_path));
        });
    }

private:
    QString m_path;
    declared::ShapeKind m_shape;
};

} // namespace

Subjects::Subjects(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        m_problem = QStringLiteral("there is no %1").arg(path);
    else if (info.isDir())
        addFolder(path);
    else
        addFile(path);
}

Subjects::~Subjects() = default;

QVector<pagehost::PluginMessage> Subjects::faults() const
{
    QVector<pagehost::PluginMessage> faults = m_faults;
    for (pagehost::ObjectPlugin *plugin : m_plugins)
        if (auto *messages = dynamic_cast<pagehost::MessageSource *>(plugin))
            faults += messages->messages();
    return faults;
}

void Subjects::addFolder(const QString &path)
{
    const QFileInfoList files = QDir(path).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &file : files)
        if (QLibrary::isLibrary(file.fileName()) || isDeclaredFile(file.fileName()))
            addFile(file.filePath());
    if (m_subjects.isEmpty() && m_faults.isEmpty() && m_problem.isEmpty())
        m_problem = QStringLiteral("there is neither a plug-in nor a declared shape in %1").arg(path);
}

void Subjects::addFile(const QString &path)
{
    QLibrary::isLibrary(path) ? addPlugin(path) : addDeclared(path);
}

void Subjects::addPlugin(const QString &path)
{
    QPluginLoader loader(QFileInfo(path).absoluteFilePath());
    auto *plugin = qobject_cast<pagehost::ObjectPlugin *>(loader.instance());
    if (!plugin) {
        m_problem = QStringLiteral("%1 is no plug-in of shapes: %2").arg(path, loader.errorString());
        return;
    }
    m_plugins.append(plugin);
    const QVector<pagehost::ObjectKind> kinds = plugin->objectKinds();
    for (const pagehost::ObjectKind &kind : kinds)
        m_subjects.append({kind.id, plugin, kind.id});
}

void Subjects::addDeclared(const QString &path)
{
    const ShapeFile file = readShapeFile(path);
    m_problem = file.problem;
    m_faults += file.faults;
    if (file.problem.isEmpty() && !file.isDeclared)
        m_problem = QStringLiteral("%1 is no declared shape; its template is checked with its plug-in").arg(path);
    if (!file.declaration)
        return;
    m_declared.push_back(std::make_unique<DeclaredFile>(path, file.declaration));
    m_plugins.append(m_declared.back().get());
    m_subjects.append({shapeName(path), m_declared.back().get(), m_declared.back()->objectKinds().first().id});
}

} // namespace checklist
