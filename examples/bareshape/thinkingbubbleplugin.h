#pragma once

#include <pagehost/objectplugin.h>

#include <QtCore/QObject>

class ThinkingBubblePlugin : public QObject, public pagehost::ObjectPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)
    Q_INTERFACES(pagehost::ObjectPlugin)

public:
    QVector<pagehost::ObjectKind> objectKinds() const override;
    CBaseObject *createObject(const QString &kindId) const override;
    pagehost::TextTable texts(const QString &language) const override;
};
