#pragma once

#include <pagehost/objectplugin.h>

#include "framework/testobject.h"

#include <QtCore/QObject>

/// Common base of the test plug-ins: kinds by id, English and German texts.
class TestPlugin : public QObject, public pagehost::ObjectPlugin
{
    Q_OBJECT
    Q_INTERFACES(pagehost::ObjectPlugin)

public:
    QVector<pagehost::ObjectKind> objectKinds() const override { return kinds; }
    CBaseObject *createObject(const QString &kindId) const override
    {
        for (const pagehost::ObjectKind &kind : kinds)
            if (kind.id == kindId)
                return new TestObject(QSizeF(12, 34));
        return nullptr;
    }
    pagehost::TextTable texts(const QString &language) const override { return tables.value(language); }

protected:
    void addKind(const char *id, const char *nameKey)
    {
        kinds.append({QString::fromLatin1(id), QString::fromLatin1(nameKey), QStringLiteral("IDS_TEST_GROUP")});
    }
    void addText(const char *language, const char *key, const char *text)
    {
        tables[QString::fromLatin1(language)].insert(QString::fromLatin1(key), QString::fromUtf8(text));
    }

    QVector<pagehost::ObjectKind> kinds;
    QMap<QString, pagehost::TextTable> tables;
};
