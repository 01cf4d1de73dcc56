// Copies of unsaved work: what a crash leaves is offered, told apart, and not lost by mistake.

#include <board/desk.h>

#include <pagehost/autosave.h>

#include <support/listed.h>
#include <support/patience.h>

#include <QtCore/QLocale>
#include <QtWidgets/QAction>

using namespace boardtest;

/// Leaves a copy behind as a process does that is killed.
static void leaveCopy(Desk &desk)
{
    QVERIFY(desk.board.window().recovery()->autosave().saveNow());
    const QString copy = desk.board.window().recovery()->autosave().recoveryFile();
    QVERIFY(QFile::exists(copy));
    QDir folder = QFileInfo(copy).dir();
    const QString stem = QFileInfo(copy).baseName();
    for (const QString &name : support::listed(folder.entryList({stem + "*"}, QDir::Files)))
        if (!name.endsWith(".lock"))
            QVERIFY(QFile::copy(folder.filePath(name), folder.filePath("crashed" + name.mid(stem.size()))));
}

class TestRecovery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void workOfACrashIsOfferedAndBroughtBack();
    void offersOfWorkAreToldApart();
    void workOfACrashIsDeletedAfterAQuestionOnly();
    void workOverAnOriginalThatHasChangedIsNotSavedUnasked();
    void workOverADamagedOriginalGetsANewName();
    void remainsOfAnInterruptedSaveAreClearedAwayAtTheStart();
    void workOfThisWindowIsNotOfferedToIt();
    void aFailedCopyOfTheWorkIsTold();
};

void TestRecovery::workOfACrashIsOfferedAndBroughtBack()
{
    Desk desk;
    desk.drawOne();
    leaveCopy(desk);
    desk.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(desk.objectCount(), 0);
    desk.board.window().recovery()->offer();
    QVERIFY2(desk.notices().contains("“Untitled”"), qPrintable(desk.notices()));
    desk.press("Bring back");
    QCOMPARE(desk.objectCount(), 1);
    QVERIFY(desk.board.window().isWindowModified());
    QVERIFY(desk.board.window().recovery()->autosave().recoverable().isEmpty());
}

void TestRecovery::offersOfWorkAreToldApart()
{
    Desk desk;
    desk.saveAs("lesson.board");
    desk.drawOne();
    desk.board.action("Add page")->trigger();
    leaveCopy(desk);
    const QDateTime noon(QDate(2024, 5, 6), QTime(12, 34));
    QFile copy(
        QFileInfo(desk.board.window().recovery()->autosave().recoveryFile()).dir().filePath("crashed.board"));
    QVERIFY(copy.open(QIODevice::ReadWrite));
    QVERIFY(copy.setFileTime(noon, QFileDevice::FileModificationTime));
    copy.close();
    desk.board.window().recovery()->offer();
    const QString time = QLocale("en").toString(noon, QLocale::ShortFormat);
    QVERIFY2(desk.notices().contains("“lesson.board” from " + time + ", 2 pages"), qPrintable(desk.notices()));
    // The picture of the page with the rectangle: 120 pixels of 1280 units, the rectangle from 500 to 700.
    QImage picture;
    for (const QLabel *label : support::listed(desk.board.window().notices()->findChildren<QLabel *>()))
        if (label->pixmap(Qt::ReturnByValue).width() == 120)
            picture = label->pixmap(Qt::ReturnByValue).toImage();
    QVERIFY(!picture.isNull());
    QVERIFY(picture.pixel(56, 34) != picture.pixel(10, 10));
}

void TestRecovery::workOfACrashIsDeletedAfterAQuestionOnly()
{
    Desk desk;
    desk.drawOne();
    leaveCopy(desk);
    QCOMPARE(desk.board.window().recovery()->autosave().recoverable().size(), 1);
    desk.board.window().recovery()->offer();
    desk.press("Delete…");
    QVERIFY(desk.isAsked());
    desk.press("Cancel");
    QCOMPARE(desk.board.window().recovery()->autosave().recoverable().size(), 1);
    QTRY_VERIFY_WITH_TIMEOUT(!desk.isAsked(), support::patience);
    // It is still offered.
    desk.press("Delete…");
    desk.press("Delete for ever");
    QVERIFY(desk.board.window().recovery()->autosave().recoverable().isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(desk.notices(), QString(), support::patience);
    QCOMPARE(desk.objectCount(), 1);
}

void TestRecovery::workOverAnOriginalThatHasChangedIsNotSavedUnasked()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.board");
    desk.board.draw(arrow, {100, 100}, {200, 200});
    leaveCopy(desk);
    QVERIFY(desk.documents().openNow(desk.path("lesson.board")));
    desk.board.key(Qt::Key_A, Qt::ControlModifier);
    desk.board.key(Qt::Key_Delete);
    desk.board.key(Qt::Key_S, Qt::ControlModifier);
    const QByteArray newer = desk.contents("lesson.board");
    desk.board.window().recovery()->offer();
    desk.press("Bring back");
    QCOMPARE(desk.objectCount(), 2);
    QCOMPARE(desk.documents().name(), QString("lesson.board"));
    QVERIFY2(desk.notices().contains("“lesson.board” was changed by somebody else"), qPrintable(desk.notices()));
    desk.board.key(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(desk.isAsked());
    QCOMPARE(desk.contents("lesson.board"), newer);
    desk.press("Save both");
    QCOMPARE(desk.contents("lesson.board"), newer);
    QCOMPARE(desk.documents().name(), QString("lesson 2.board"));
}

void TestRecovery::workOverADamagedOriginalGetsANewName()
{
    Desk desk;
    desk.openDamaged();
    desk.drawOne();
    leaveCopy(desk);
    desk.documents().createNew();
    desk.press("Don't save");
    desk.board.window().recovery()->offer();
    desk.press("Bring back");
    QCOMPARE(desk.documents().name(), QString("half.board"));
    desk.documents().save();
    QCOMPARE(desk.board.window().findChild<QFileDialog *>()->findChild<QLineEdit *>()->text(),
             QString("half (repaired).board"));
}

void TestRecovery::remainsOfAnInterruptedSaveAreClearedAwayAtTheStart()
{
    Desk desk;
    desk.drawOne();
    desk.saveAs("lesson.board");
    const QString remains = desk.path(".00000000-0000-4000-8000-000000000000.unfinished-board");
    QFile file(remains);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QFile settings(QSettings().fileName() + ".a1B2c3");
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.close();
    desk.board.window().recovery()->offer();
    QVERIFY(!QFile::exists(remains));
    QVERIFY(!settings.exists());
    QVERIFY(QFile::exists(desk.path("lesson.board")));
    QVERIFY(QFile::exists(QSettings().fileName()));
}

void TestRecovery::workOfThisWindowIsNotOfferedToIt()
{
    Desk desk;
    desk.drawOne();
    QVERIFY(desk.board.window().recovery()->autosave().saveNow());
    desk.board.window().recovery()->offer();
    QCOMPARE(desk.notices(), QString());
}

void TestRecovery::aFailedCopyOfTheWorkIsTold()
{
    Desk desk;
    desk.drawOne();
    pagehost::Autosave &autosave = desk.board.window().recovery()->autosave();
    QVERIFY(autosave.saveNow());
    desk.board.draw(arrow, {100, 100}, {200, 200});
    QVERIFY(QFile::remove(autosave.recoveryFile()));
    QVERIFY(QDir().mkpath(autosave.recoveryFile())); // a folder in its way
    QVERIFY(!autosave.saveNow());
    QVERIFY2(desk.notices().contains("could not be put aside in case of a crash"), qPrintable(desk.notices()));
    QVERIFY(desk.notices().contains(autosave.folder()));
    QCOMPARE(desk.objectCount(), 2);
    QVERIFY(QDir().rmdir(autosave.recoveryFile()));
    QVERIFY(autosave.saveNow());
}

QTEST_MAIN(TestRecovery)
#include "test_recovery.moc"
