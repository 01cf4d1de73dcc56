#pragma once

#include <framework/testobject.h>

#include <pagehost/autosave.h>
#include <pagehost/commands.h>
#include <pagehost/documentfile.h>
#include <pagehost/lesson.h>
#include <pagehost/localizer.h>
#include <pagehost/objectid.h>
#include <pagehost/objectregistry.h>
#include <pagehost/page.h>

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtTest/QtTest>

/// Offers the objects of tests under kinds of their own.
class FileTestPlugin : public pagehost::ObjectPlugin
{
public:
    QVector<pagehost::ObjectKind> objectKinds() const override
    {
        return {{QStringLiteral("test.plain"), QStringLiteral("IDS_TEST_OBJECT"), QString()}};
    }
    CBaseObject *createObject(const QString &) const override { return new TestObject; }
    pagehost::TextTable texts(const QString &) const override
    {
        return {{QStringLiteral("IDS_TEST_OBJECT"), QStringLiteral("Test object")}};
    }
};

/// A registry that knows only the objects of tests.
class FileTestRegistry : public pagehost::ObjectRegistry
{
public:
    FileTestRegistry() { addPlugin(&m_plugin, QStringLiteral("test")); }

private:
    FileTestPlugin m_plugin;
};

inline TestObject *addPlain(pagehost::Page *page, const QPointF &pos)
{
    auto *object = new TestObject(QSizeF(100, 60), pos);
    pagehost::setKindId(object, QStringLiteral("test.plain"));
    page->addObject(object);
    return object;
}

/// Opens a page and turns to it `turns` times, a second apart.
inline pagehost::Lesson turningLesson(const QString &title, int turns)
{
    pagehost::Lesson lesson;
    lesson.title = title;
    lesson.start = {pagehost::PageAppeared{0, QSizeF(400, 300), "paper"}};
    for (int turn = 1; turn <= turns; ++turn)
        lesson.events.append({turn * 1000, pagehost::PageTurned{0}});
    lesson.duration = turns * 1000;
    return lesson;
}

/// Its two stored forms.
inline QByteArray lessonBytes(const QString &title, int turns = 3)
{
    return turningLesson(title, turns).toBytes();
}
inline QByteArray lessonText(const QString &title, int turns = 3)
{
    return QJsonDocument(turningLesson(title, turns).toJson()).toJson(QJsonDocument::Compact);
}

inline QByteArray contentsOf(const QString &file)
{
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

inline void writeContents(const QString &file, const QByteArray &bytes)
{
    QFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(file));
}

inline QStringList textKeys(const QVector<pagehost::FileMessage> &messages)
{
    QStringList keys;
    for (const pagehost::FileMessage &message : messages)
        keys.append(message.textKey);
    return keys;
}
