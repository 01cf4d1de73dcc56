#pragma once

#include <pagehost/objectplugin.h>

#include <QtCore/QObject>

#include <memory>
#include <vector>

namespace declared {

class ShapeKind;

/// The plug-in of all shapes that files declare: a kind per file. Files are read when the plug-in is loaded; what
/// is wrong with one is told on the standard error stream.
class DeclaredPlugin : public QObject, public pagehost::ObjectPlugin
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

private:
    std::vector<std::unique_ptr<ShapeKind>> m_kinds;
};

} // namespace declared
