#pragma once

#include <pagehost/objectplugin.h>

#include <QtCore/QObject>

namespace shapekit {

/// The plug-in of a shape: offers the one kind that the shape's source file defines. It is compiled into each
/// shape.
class ShapePlugin : public QObject, public pagehost::ObjectPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)
    Q_INTERFACES(pagehost::ObjectPlugin)

public:
    QVector<pagehost::ObjectKind> objectKinds() const override;
    CBaseObject *createObject(const QString &kindId) const override;
    pagehost::TextTable texts(const QString &language) const override;
    QStringList dataTypes() const override;
    CBaseObject *createFromData(const QString &mimeType, const QByteArray &data, QString &kindId) const override;
    /// SVG alone.
    QByteArray dataOf(CBaseObject *object, const QString &mimeType) const override;
};

} // namespace shapekit
