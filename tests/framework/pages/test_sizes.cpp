#include <pagehost/commands.h>
#include <pagehost/creation.h>
#include <pagehost/objectregistry.h>
#include <pagehost/recorder.h>

#include "framework/editor.h"
#include "framework/handlepoints.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

// Objects keep a picture with a pixel to the unit: sides end at 16384, whoever asks for more.

namespace {

constexpr double longest = 16384;

/// Notes the sizes that it is asked for before its host brings them within bounds.
class AskedSizeObject : public TestObject
{
public:
    using TestObject::TestObject;

    void setSize(QSizeF size, bool flag, bool redraw) override
    {
        asked.append(size);
        TestObject::setSize(size, flag, redraw);
    }

    QList<QSizeF> asked;
};

/// Of a size that the host gives to nobody.
class LargeObject : public TestObject
{
public:
    explicit LargeObject(const QSizeF &size) { clientRect = QRectF(QPointF(0, 0), size); }
};

QByteArray streamed(double value)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << value;
    return bytes;
}

class OnlyPlugin : public pagehost::ObjectPlugin
{
public:
    QVector<pagehost::ObjectKind> objectKinds() const override
    {
        return {{QStringLiteral("test.created"), QStringLiteral("IDS_TEST_OBJECT"), {}}};
    }
    CBaseObject *createObject(const QString &) const override { return new CreatedObject; }
    pagehost::TextTable texts(const QString &) const override
    {
        return {{QStringLiteral("IDS_TEST_OBJECT"), QStringLiteral("Object")}};
    }
};

} // namespace

class TestSizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void longestSideIsTaken();
    void typedSizeEndsAtTheLongestSide();
    void draggedHandleEndsAtTheLongestSide();
    void drawnObjectEndsAtTheLongestSide();
    void propertiesEndAtTheLongestSide_data();
    void propertiesEndAtTheLongestSide();
    void playedSizeEndsAtTheLongestSide();
    void objectThatSizesItselfEndsAtTheLongestSide();
    void largerObjectsOfFilesAreBroughtToTheLongestSide();
};

void TestSizes::longestSideIsTaken()
{
    Editor editor;
    auto *object = editor.add();
    QVERIFY(pagehost::resizeObject(object, QSizeF(longest, longest)));
    QCOMPARE(object->getClientRect(), QRectF(0, 0, longest, longest));
}

void TestSizes::typedSizeEndsAtTheLongestSide()
{
    Editor editor;
    auto *object = editor.add<AskedSizeObject>();
    QVERIFY(pagehost::resizeObject(object, QSizeF(99999, 50)));
    QCOMPARE(object->getClientRect(), QRectF(0, 0, longest, 50));
    QVERIFY(pagehost::resizeObject(object, QSizeF(70, 16384.1)));
    QCOMPARE(object->getClientRect(), QRectF(0, 0, 70, longest));
    // An object that keeps its form, or rewrites its content, is never asked for more than it gets.
    QCOMPARE(object->asked, (QList<QSizeF>{{longest, 50}, {70, longest}}));
}

void TestSizes::draggedHandleEndsAtTheLongestSide()
{
    Editor editor;
    auto *object = editor.add<AskedSizeObject>(QSizeF(100, 60), QPointF(200, 200));
    object->setSelected(true);
    const QPointF handle = cornerHandle(*object, QPointF(1, 1));
    editor.drag(handle, handle + QPointF(40000, 50));
    QCOMPARE(object->getClientRect(), QRectF(0, 0, longest, 110));
    QCOMPARE(object->asked.last(), QSizeF(longest, 110));
    QCOMPARE(object->getPos(), QPointF(200, 200));
}

void TestSizes::drawnObjectEndsAtTheLongestSide()
{
    Editor editor;
    pagehost::ObjectRegistry registry;
    OnlyPlugin plugin;
    registry.addPlugin(&plugin, QStringLiteral("test"));
    pagehost::CreationTool tool(&registry);
    tool.begin(editor.page->scene(), QStringLiteral("test.created"));
    editor.drag(QPointF(500, 100), QPointF(500 - 40000, 180));
    QCOMPARE(editor.page->objectCount(), 1);
    CBaseObject *object = editor.page->objects().constFirst();
    QCOMPARE(object->getClientRect().size(), QSizeF(longest, 80));
    QCOMPARE(object->getPos(), QPointF(500 - longest, 100));
}

void TestSizes::propertiesEndAtTheLongestSide_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("width") << 2012 << QSizeF(longest, 60);
    QTest::newRow("height") << 2013 << QSizeF(100, longest);
}

void TestSizes::propertiesEndAtTheLongestSide()
{
    QFETCH(int, id);
    QFETCH(QSizeF, size);
    AskedSizeObject object;
    QByteArray bytes = streamed(1e9);
    QDataStream in(&bytes, QIODevice::ReadWrite);
    QVERIFY(object.SetAttribute(id, in, false));
    QCOMPARE(object.getClientRect().size(), size);
    QCOMPARE(object.asked.last(), size);
}

void TestSizes::playedSizeEndsAtTheLongestSide()
{
    AskedSizeObject object;
    QByteArray bytes;
    {
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out << QSizeF(1e300, 20);
    }
    QDataStream in(bytes);
    QVERIFY(object.DoPlaybackActionEx(pagehost::ActionResized, in));
    QCOMPARE(object.getClientRect().size(), QSizeF(longest, 20));
    QCOMPARE(object.asked.last(), QSizeF(longest, 20));
}

void TestSizes::objectThatSizesItselfEndsAtTheLongestSide()
{
    TestObject object;
    object.CPSRootObject::setSize(QSizeF(20000, 30000), false, false);
    QCOMPARE(object.getClientRect().size(), QSizeF(longest, longest));
    QCOMPARE(object.dragEnd, QPointF(longest, longest));
}

void TestSizes::largerObjectsOfFilesAreBroughtToTheLongestSide()
{
    TestObject object;
    QJsonObject json;
    QVERIFY(object.saveJson(json));
    json["clientRect"] = QJsonArray{0, 0, 20000, 30};
    TestObject fromText;
    QVERIFY(fromText.loadJson(json));
    QCOMPARE(fromText.getClientRect(), QRectF(0, 0, longest, 30));

    QByteArray bytes;
    {
        LargeObject large(QSizeF(40, 1e200));
        QDataStream out(&bytes, QIODevice::WriteOnly);
        QVERIFY(large.save(out));
    }
    QDataStream in(bytes);
    TestObject fromBytes;
    QVERIFY(fromBytes.load(in));
    QCOMPARE(fromBytes.getClientRect(), QRectF(0, 0, 40, longest));
}

QTEST_MAIN(TestSizes)

#include "test_sizes.moc"
