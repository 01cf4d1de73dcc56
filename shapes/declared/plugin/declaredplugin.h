#pragma once

#include <declared/plugin/shapefolders.h>
#include <declared/plugin/shapewatch.h>

#include <pagehost/objectplugin.h>

#include <QtCore/QObject>

#include <memory>

namespace declared {

class ShapeLibrary;

/// The plug-in of all shapes that files declare: a kind per file.
class DeclaredPlugin : public QObject, public pagehost::ObjectPlugin, public pagehost::KindSource
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

    /// Reads all files again. Objects that are made of what a file declared before follow it; not while the user
    /// drags one of them.
    void reload();

private:
    void read();
    void followFiles(const QVector<const ShapeKind *> &before);

    std::shared_ptr<ShapeLibrary> m_library;
    ShapeWatch m_watch;
    GoodFiles m_good;
    QStringList m_folders;
    QStringList m_faults;
    Listener m_listener;
};

} // namespace declared
