#include "framework/lessons/classroom.h"

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>

using pagehost::Lesson;

// The code and the JSON of docs/lessons.md.

class TestLessonGuide : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void codeRecordsAndPlays();
    void jsonIsALesson();
};

void TestLessonGuide::codeRecordsAndPlays()
{
    Classroom classroom;
    pagehost::Document &document = classroom.document;
    const pagehost::ObjectRegistry &registry = shapes();
    QGraphicsView view;

    pagehost::LessonRecorder recorder(&registry);
    recorder.start(&document);
    classroom.drawArrow();
    const pagehost::Lesson lesson = recorder.stop();
    pagehost::addLesson(&document, {QStringLiteral("Fractions"), lesson.toBytes()});

    pagehost::LessonPlayer player(&registry);
    player.setLesson(lesson);
    view.setScene(player.document()->currentPage()->scene());
    player.play(); // pause(), seek(milliseconds), playToEnd()

    QCOMPARE(document.lessons().size(), 1);
    QCOMPARE(document.lessons().constFirst().name, QStringLiteral("Fractions"));
    QVERIFY(player.isPlaying());
    player.playToEnd();
    QCOMPARE(savedState(*player.document()), savedState(document));
    QCOMPARE(player.document()->currentPage()->objectCount(), 1);
}

void TestLessonGuide::jsonIsALesson()
{
    QFile file(QStringLiteral(PROJECT_DIR "/docs/lessons.md"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString block = QString::fromUtf8(file.readAll()).section(QStringLiteral("```json\n"), 1, 1);
    Lesson lesson;
    QVERIFY(lesson.fromJson(QJsonDocument::fromJson(block.section(QStringLiteral("```"), 0, 0).toUtf8()).object()));
    QCOMPARE(lesson.title, QStringLiteral("Fractions"));
    QCOMPARE(lesson.duration, qint64(3000));
    QCOMPARE(lesson.start.size(), 1);
    QCOMPARE(std::get<pagehost::ZoomChanged>(lesson.start.first()).rate, 1.0);
    QCOMPARE(lesson.events.size(), 1);
    const auto &acted = std::get<pagehost::ObjectActed>(lesson.events.first().step);
    QCOMPARE(acted.object, quint32(1));
    QCOMPARE(acted.actionId, qint32(1005));
    QCOMPARE(acted.payload, QByteArray("\0\1\377", 3));
}

QTEST_MAIN(TestLessonGuide)
#include "test_guide.moc"
