#pragma once

#include <declared/plugin/shapefolders.h>
#include <declared/plugin/shapewatch.h>

#include <shapekit/messagelog.h>

#include <pagehost/objectplugin.h>

#include <QtCore/QObject>

#include <memory>

namespace declared {

class ShapeLibrary;

/// The plug-in of all shapes that files declare: a kind per file.
class DeclaredPlugin : public QObject,
                       public pagehost::ObjectPlugin,
                       public pagehost::KindSource,
                       public pagehost::MessageSource
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)
    Q_INTERFACES(pagehost::ObjectPlugin)

public:
    DeclaredPlugin();
    ~DeclaredPlugin() override;

    QVector<pagehost::ObjectKind> objectKinds() const override;
    CBaseObject *createObject(const QString &kindId) const override;
    pagehost::TextTable texts(const QString &language) const override;
    /// SVG, and the icon for palettes.
    QByteArray dataOf(CBaseObject *object, const QString &mimeType) const override;

    /// SVG, plain or compressed: a drawing becomes a shape, a file that declares one the shape that it declares.
    QStringList dataTypes() const override;
    CBaseObject *createFromData(const QString &mimeType, const QByteArray &data, QString &kindId) const override;
    QString kindFamily() const override;
    void setKindsListener(const Listener &listener) override;
    QStringList faults() const override { return m_faults; }
    void addFolders(const QStringList &folders) override;
    QString kindOfFile(const QString &path) const override;
    /// Faults of files and of drawing their shapes.
    QVector<pagehost::PluginMessage> messages() const override { return m_log->messages(); }
    void setMessageListener(const pagehost::MessageListener &listener) override { m_log->setListener(listener); }

    /// Reads all files again. Objects that are made of what a file declared before follow it; not while the user
    /// drags one of them. Silent where nothing has changed.
    void reload();

private:
    void read();
    /// The file that declares a shape on offer.
    QString fileOf(const ShapeKind &shape) const;
    /// Whether a file of the user's folder declares the shape.
    bool isOwn(const ShapeKind &shape) const;
    void followFiles(const QVector<const ShapeKind *> &before);

    std::shared_ptr<ShapeLibrary> m_library;
    ShapeWatch m_watch;
    GoodFiles m_good;
    QHash<QString, QString> m_files; ///< of the shapes on offer, by the hash of their text
    QStringList m_folders;
    QStringList m_faults;
    /// Kinds live as long as their objects, and report there.
    std::shared_ptr<shapekit::MessageLog> m_log = std::make_shared<shapekit::MessageLog>();
    Listener m_listener;
};

} // namespace declared
