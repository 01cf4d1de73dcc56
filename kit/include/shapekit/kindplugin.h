#pragma once

#include <pagehost/objectplugin.h>

namespace shapekit {

/// A plug-in of one kind of shape, which SHAPEKIT_PLUGIN defines.
class KindPlugin : public pagehost::ObjectPlugin
{
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
