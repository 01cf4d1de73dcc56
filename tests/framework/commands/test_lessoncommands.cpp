// Changes of a document's lessons as undo steps.

#include "framework/testobject.h"

#include <pagehost/application.h>
#include <pagehost/commands.h>
#include <pagehost/documentfile.h>
#include <pagehost/lesson.h>
#include <pagehost/objectregistry.h>
#include <pagehost/page.h>

#include <QtTest/QtTest>

using namespace pagehost;

class TestLessonCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void addedLessonStandsBehindTheOthersUntilUndone();
    void removedLessonComesBackToItsPlace();
    void renamedLessonGetsItsNameBack();
    void nameStandsInTheLessonToo();
    void dataThatCannotBeReadStayWhenTheyAreRenamed();
    void cutLessonEndsWhereItWasCutUntilUndone();
    void chapterBeginsBeforeWhatHappensThenUntilUndone();
    void chapterGetsAnotherName();
    void chapterWithoutANameIsTakenAway();
    void whatChangesNothingLeavesNoStep();
    void stepsMarkTheDocumentUntilTheyAreUndone();
    void unfinishedLessonIsSavedAndNoLessonYet_data();
    void unfinishedLessonIsSavedAndNoLessonYet();

private:
    QStringList names() const;

    std::unique_ptr<Document> m_document;
};

/// Something happens after 0, 1, 2 and 3 seconds; the lesson takes 5.
static Lesson lessonOfFiveSeconds()
{
    Lesson lesson;
    lesson.title = QStringLiteral("b");
    for (int second = 0; second < 4; ++second)
        lesson.events.append({second * 1000, ZoomChanged{1.0 + second}});
    lesson.duration = 5000;
    return lesson;
}

void TestLessonCommands::init()
{
    m_document = std::make_unique<Document>();
    setCurrentDocument(m_document.get());
    m_document->appendPage();
    m_document->setLessons({{QStringLiteral("a"), "1"},
                            {QStringLiteral("b"), lessonOfFiveSeconds().toBytes()},
                            {QStringLiteral("c"), "3"}});
    undoStack()->clear();
    m_document->markSaved();
}

QStringList TestLessonCommands::names() const
{
    QStringList list;
    const QVector<LessonData> lessons = m_document->lessons();
    for (const LessonData &lesson : lessons)
        list.append(lesson.name);
    return list;
}

void TestLessonCommands::addedLessonStandsBehindTheOthersUntilUndone()
{
    QVERIFY(addLesson(m_document.get(), {QStringLiteral("d"), "4"}));
    QCOMPARE(names().join(QLatin1Char(' ')), QStringLiteral("a b c d"));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_ADD_LESSON")});
    undoStack()->undo();
    QCOMPARE(names().join(QLatin1Char(' ')), QStringLiteral("a b c"));
    undoStack()->redo();
    QCOMPARE(m_document->lessons().last().data, QByteArray("4"));
}

void TestLessonCommands::removedLessonComesBackToItsPlace()
{
    const QVector<LessonData> before = m_document->lessons();
    QVERIFY(removeLesson(m_document.get(), 1));
    QCOMPARE(names().join(QLatin1Char(' ')), QStringLiteral("a c"));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_REMOVE_LESSON")});
    undoStack()->undo();
    QVERIFY(m_document->lessons() == before);
    undoStack()->redo();
    QCOMPARE(names().join(QLatin1Char(' ')), QStringLiteral("a c"));
}

void TestLessonCommands::renamedLessonGetsItsNameBack()
{
    const QVector<LessonData> before = m_document->lessons();
    QVERIFY(renameLesson(m_document.get(), 1, QStringLiteral("Halves")));
    QCOMPARE(names().join(QLatin1Char(' ')), QStringLiteral("a Halves c"));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_RENAME_LESSON")});
    undoStack()->undo();
    QVERIFY(m_document->lessons() == before);
}

void TestLessonCommands::nameStandsInTheLessonToo()
{
    renameLesson(m_document.get(), 1, QStringLiteral("Halves"));
    Lesson expected = lessonOfFiveSeconds();
    expected.title = QStringLiteral("Halves");
    QCOMPARE(m_document->lessons().at(1).data, expected.toBytes());
}

void TestLessonCommands::dataThatCannotBeReadStayWhenTheyAreRenamed()
{
    QVERIFY(renameLesson(m_document.get(), 0, QStringLiteral("Halves")));
    QCOMPARE(m_document->lessons().at(0).data, QByteArray("1"));
}

void TestLessonCommands::cutLessonEndsWhereItWasCutUntilUndone()
{
    const QVector<LessonData> before = m_document->lessons();
    QVERIFY(cutLesson(m_document.get(), 1, 2000));
    Lesson cut;
    QVERIFY(cut.fromData(m_document->lessons().at(1).data));
    QCOMPARE(cut.duration, qint64(2000));
    QCOMPARE(cut.events.size(), 3); // what happens at the moment of the cut is kept
    QCOMPARE(cut.events.last().time, qint64(2000));
    QCOMPARE(cut.title, QStringLiteral("b"));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_CUT_LESSON")});
    undoStack()->undo();
    QVERIFY(m_document->lessons() == before);
}

/// "1000: Roots", for each chapter, and the number of other events before it.
static QStringList chaptersOf(const LessonData &data)
{
    Lesson lesson;
    lesson.fromData(data.data);
    QStringList chapters;
    int others = 0;
    for (const LessonEvent &event : qAsConst(lesson.events))
        if (const auto *chapter = std::get_if<ChapterBegan>(&event.step))
            chapters.append(QStringLiteral("%1: %2 after %3").arg(event.time).arg(chapter->name).arg(others));
        else
            ++others;
    return chapters;
}

void TestLessonCommands::chapterBeginsBeforeWhatHappensThenUntilUndone()
{
    const QVector<LessonData> before = m_document->lessons();
    QVERIFY(setChapter(m_document.get(), 1, 2000, QStringLiteral("Roots")));
    QVERIFY(setChapter(m_document.get(), 1, 5000, QStringLiteral("End")));
    QVERIFY(setChapter(m_document.get(), 1, 0, QStringLiteral("Start")));
    QCOMPARE(chaptersOf(m_document->lessons().at(1)),
             QStringList({"0: Start after 0", "2000: Roots after 2", "5000: End after 4"}));
    QCOMPARE(stepTexts(), QStringList({"IDS_UNDO_CHAPTER", "IDS_UNDO_CHAPTER", "IDS_UNDO_CHAPTER"}));
    undoStack()->setIndex(0);
    QVERIFY(m_document->lessons() == before);
}

void TestLessonCommands::chapterGetsAnotherName()
{
    QVERIFY(setChapter(m_document.get(), 1, 2000, QStringLiteral("Roots")));
    QVERIFY(setChapter(m_document.get(), 1, 2000, QStringLiteral("Powers")));
    QCOMPARE(chaptersOf(m_document->lessons().at(1)), QStringList{"2000: Powers after 2"});
}

void TestLessonCommands::chapterWithoutANameIsTakenAway()
{
    const QVector<LessonData> before = m_document->lessons();
    QVERIFY(setChapter(m_document.get(), 1, 2000, QStringLiteral("Roots")));
    QVERIFY(setChapter(m_document.get(), 1, 2000, QString()));
    QVERIFY(m_document->lessons() == before);
}

void TestLessonCommands::whatChangesNothingLeavesNoStep()
{
    QVERIFY(!setChapter(m_document.get(), 1, 1000, QString()));
    QVERIFY(!setChapter(m_document.get(), 1, -1, QStringLiteral("x")));
    QVERIFY(!setChapter(m_document.get(), 1, 5001, QStringLiteral("x")));
    QVERIFY(!setChapter(m_document.get(), 0, 0, QStringLiteral("x"))); // no lesson that can be read
    QVERIFY(!setChapter(m_document.get(), 3, 0, QStringLiteral("x")));
    QVERIFY(!removeLesson(m_document.get(), 3));
    QVERIFY(!removeLesson(m_document.get(), -1));
    QVERIFY(!renameLesson(m_document.get(), 0, QStringLiteral("a")));
    QVERIFY(!renameLesson(m_document.get(), 3, QStringLiteral("x")));
    QVERIFY(!cutLesson(m_document.get(), 1, 5000));
    QVERIFY(!cutLesson(m_document.get(), 1, -1));
    QVERIFY(!cutLesson(m_document.get(), 0, 0)); // no lesson that can be read
    QVERIFY(!cutLesson(m_document.get(), 3, 0));
    QCOMPARE(undoStack()->count(), 0);
    QCOMPARE(names().join(QLatin1Char(' ')), QStringLiteral("a b c"));
}

void TestLessonCommands::stepsMarkTheDocumentUntilTheyAreUndone()
{
    const quint64 revision = m_document->revision();
    removeLesson(m_document.get(), 0);
    QVERIFY(m_document->isModified());
    QVERIFY(m_document->revision() > revision); // so that a copy of unsaved work is made
    undoStack()->undo();
    QVERIFY(!m_document->isModified());
}

void TestLessonCommands::unfinishedLessonIsSavedAndNoLessonYet_data()
{
    QTest::addColumn<DocumentFormat>("format");
    QTest::newRow("binary") << DocumentFormat::Binary;
    QTest::newRow("json") << DocumentFormat::Json;
}

void TestLessonCommands::unfinishedLessonIsSavedAndNoLessonYet()
{
    QFETCH(DocumentFormat, format);
    const ObjectRegistry registry;
    m_document->setUnfinishedLesson({QStringLiteral("so far"), "4"});
    QVERIFY(m_document->isModified());
    QCOMPARE(names().join(QLatin1Char(' ')), QStringLiteral("a b c"));
    const OpenResult opened = decodeDocument(encodeDocument(*m_document, format), registry);
    QCOMPARE(opened.document->lessons().size(), 4);
    QCOMPARE(opened.document->lessons().last().name, QStringLiteral("so far"));
    m_document->markSaved();
    m_document->setUnfinishedLesson({QStringLiteral("so far"), "4"});
    QVERIFY(!m_document->isModified()); // nothing has come
    m_document->setUnfinishedLesson({});
    QCOMPARE(decodeDocument(encodeDocument(*m_document, format), registry).document->lessons().size(), 3);
}

QTEST_MAIN(TestLessonCommands)
#include "test_lessoncommands.moc"
