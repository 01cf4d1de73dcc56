#include <pagehost/lesson.h>
#include <pagehost/lessonplayer.h>
#include <pagehost/lessonrecorder.h>
#include <pagehost/objectregistry.h>
#include <pagehost/style.h>

#include "framework/editor.h"
#include "framework/testobject.h"

#include <QtGui/QImage>

namespace {

using pagehost::FillAction;

/// Takes down what it is given to replay.
class Listener : public TestObject
{
public:
    bool DoPlaybackActionEx(int actionId, QDataStream &in) override
    {
        heard.append({actionId, in.device()->readAll()});
        return true;
    }
    QVector<QPair<int, QByteArray>> heard;
};

class Plugin : public pagehost::ObjectPlugin
{
public:
    QVector<pagehost::ObjectKind> objectKinds() const override
    {
        return {
            {QStringLiteral("test.listener"), QStringLiteral("IDS_TEST_NAME"), QStringLiteral("IDS_TEST_GROUP")}};
    }
    CBaseObject *createObject(const QString &) const override { return new Listener; }
    pagehost::TextTable texts(const QString &) const override
    {
        return {{QStringLiteral("IDS_TEST_NAME"), QStringLiteral("Name")}};
    }
};

template<typename Value> QByteArray bytesOf(const Value &value)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << value;
    return bytes;
}

QByteArray withByte(QByteArray bytes, int offset, int value)
{
    bytes[offset] = char(value);
    return bytes;
}

template<typename Gradient> QByteArray gradient(Gradient gradient)
{
    gradient.setStops({{0, Qt::yellow}, {1, Qt::blue}});
    return bytesOf(QBrush(gradient));
}

QByteArray texture()
{
    QImage image(2, 3, QImage::Format_ARGB32);
    image.fill(Qt::yellow);
    QBrush brush;
    brush.setTextureImage(image);
    return bytesOf(brush);
}

/// Style, colour, no picture, matrix.
QByteArray textureWithoutPicture()
{
    return texture().left(1 + 11) + QByteArray(4 + 72, '\0');
}

/// Actions that an object gets from a lesson in which it is filled.
QVector<QPair<int, QByteArray>> heardOf(const QByteArray &payload)
{
    Editor editor;
    Plugin plugin;
    pagehost::ObjectRegistry registry;
    registry.addPlugin(&plugin, QStringLiteral("test"));
    editor.page->addObject(registry.createObject(QStringLiteral("test.listener")));
    pagehost::LessonRecorder recorder(&registry);
    recorder.start(&editor.document);
    pagehost::Lesson lesson = recorder.stop();
    lesson.events = {{0, pagehost::ObjectActed{1, FillAction, payload}}};
    pagehost::LessonPlayer player(&registry);
    player.setLesson(lesson);
    player.playToEnd();
    return dynamic_cast<Listener &>(*player.document()->page(0)->objects().first()).heard;
}

} // namespace

/// Fills of recorded lessons, whole and damaged.
class TestLessonFills : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFillIsPlayed_data();
    void aFillIsPlayed();
    void aFillThatIsNotWholeIsPassedOver_data();
    void aFillThatIsNotWholeIsPassedOver();
};

void TestLessonFills::aFillIsPlayed_data()
{
    QTest::addColumn<QByteArray>("recorded");
    QTest::addColumn<QByteArray>("played");
    QTest::newRow("colour") << bytesOf(QColor(Qt::yellow)) << bytesOf(QBrush(Qt::yellow));
    const QVector<QPair<const char *, QByteArray>> brushes{
        {"none", bytesOf(QBrush())},
        {"solid", bytesOf(QBrush(Qt::yellow))},
        {"pattern", bytesOf(QBrush(Qt::yellow, Qt::DiagCrossPattern))},
        {"linear", gradient(QLinearGradient(1, 2, 3, 4))},
        {"radial", gradient(QRadialGradient(1, 2, 3))},
        {"conical", gradient(QConicalGradient(1, 2, 3))},
        {"no stops", bytesOf(QBrush(QLinearGradient(1, 2, 3, 4)))},
        {"texture", texture()},
        {"texture without picture", textureWithoutPicture()}};
    for (const auto &brush : brushes)
        QTest::newRow(brush.first) << brush.second << brush.second;
}

void TestLessonFills::aFillIsPlayed()
{
    QFETCH(const QByteArray, recorded);
    QFETCH(const QByteArray, played);
    QCOMPARE(heardOf(recorded), (QVector<QPair<int, QByteArray>>{{FillAction, played}}));
}

void TestLessonFills::aFillThatIsNotWholeIsPassedOver_data()
{
    QTest::addColumn<QByteArray>("recorded");
    const QByteArray solid = bytesOf(QBrush(Qt::yellow));
    const QByteArray linear = gradient(QLinearGradient(1, 2, 3, 4));
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("colour cut off") << bytesOf(QColor(Qt::yellow)).chopped(1);
    QTest::newRow("colour of no kind") << withByte(bytesOf(QColor(Qt::yellow)), 0, 9);
    QTest::newRow("solid cut off") << solid.chopped(1);
    QTest::newRow("solid with more behind") << solid + '\0';
    QTest::newRow("solid with a colour of no kind") << withByte(solid, 1, 9);
    QTest::newRow("no style that there is") << withByte(solid, 0, 18);
    QTest::newRow("gradient cut off") << linear.chopped(1);
    QTest::newRow("gradient of more stops than there are") << withByte(linear, 31, 3);
    QTest::newRow("gradient of endless stops") << withByte(linear, 28, 0x7f);
    QTest::newRow("linear gradient that says it is radial") << withByte(linear, 15, 1);
    QTest::newRow("texture cut off") << texture().chopped(1);
    QTest::newRow("texture whose picture is damaged") << withByte(texture(), 16, 0);
    QTest::newRow("texture without picture cut off") << textureWithoutPicture().chopped(1);
}

void TestLessonFills::aFillThatIsNotWholeIsPassedOver()
{
    QFETCH(const QByteArray, recorded);
    QVERIFY(heardOf(recorded).isEmpty());
}

QTEST_MAIN(TestLessonFills)
#include "test_fills.moc"
