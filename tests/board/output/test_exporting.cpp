// Writing the pages as pictures and drawings from the menu: nothing that is there is replaced unasked.

#include <board/boarddriver.h>

#include <core/actions.h>
#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/document.h>

#include <support/patience.h>

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

using namespace boardtest;

namespace {

const QByteArray somebodysWork("somebody's work");
const QByteArray pngMark("\x89PNG");

/// A board with two pages, and a folder to write them to.
struct ExportDesk
{
    ExportDesk() { pagehost::addPage(board.workspace().document(), 1, QSizeF(200, 100)); }

    QString path(const QString &name) const { return folder.filePath(name); }
    void write(const QString &name, const QByteArray &data) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(data), qint64(data.size()));
    }
    QByteArray read(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }
    /// Chooses the folder in the dialog that the action opens.
    void exportWith(QAction *action)
    {
        action->trigger();
        auto *dialog = board.window().findChild<QFileDialog *>();
        QVERIFY(dialog);
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        auto *line = dialog->findChild<QLineEdit *>();
        line->setText(folder.path());
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_VERIFY_WITH_TIMEOUT(!board.window().findChild<QFileDialog *>(), support::patience);
    }
    void exportPictures() { exportWith(board.window().actions()->exportPages); }
    void exportDrawings() { exportWith(board.window().actions()->exportSvg); }
    QMessageBox *question() const { return board.window().findChild<QMessageBox *>(); }
    void answer(const QString &text)
    {
        QPushButton *button = board.button(text);
        QVERIFY(button);
        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(!question(), support::patience);
    }

    BoardDriver board;
    QTemporaryDir folder;
};

} // namespace

class TestExporting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picturesGoToAnEmptyFolderUnasked();
    void picturesAreReplacedOnlyWhenTheUserAgrees();
    void returnOnTheQuestionReplacesNothing();
    void theQuestionNamesTheFiles();
    void filesOfOtherNamesAreNoQuestion();
    void drawingsAskToo();
    void cancellingTheFolderWritesNothing();
};

void TestExporting::picturesGoToAnEmptyFolderUnasked()
{
    ExportDesk t;
    t.exportPictures();
    QVERIFY(!t.question());
    QCOMPARE(t.files(), (QStringList{"page-1.png", "page-2.png"}));
    QCOMPARE(QImage(t.path("page-2.png")).size(), QSize(200, 100));
}

void TestExporting::picturesAreReplacedOnlyWhenTheUserAgrees()
{
    ExportDesk t;
    t.write("page-2.png", somebodysWork);
    t.exportPictures();
    QVERIFY(t.question());
    QCOMPARE(t.files(), QStringList{"page-2.png"});
    t.answer("Cancel");
    QCOMPARE(t.files(), QStringList{"page-2.png"});
    QCOMPARE(t.read("page-2.png"), somebodysWork);
    t.exportPictures();
    t.answer("Replace");
    QCOMPARE(t.files(), (QStringList{"page-1.png", "page-2.png"}));
    QVERIFY(t.read("page-2.png").startsWith(pngMark));
}

void TestExporting::returnOnTheQuestionReplacesNothing()
{
    ExportDesk t;
    t.write("page-1.png", somebodysWork);
    t.exportPictures();
    QVERIFY(t.question());
    QVERIFY(QTest::qWaitForWindowActive(t.question()));
    QTest::keyClick(t.question(), Qt::Key_Return);
    QTRY_VERIFY_WITH_TIMEOUT(!t.question(), support::patience);
    QCOMPARE(t.files(), QStringList{"page-1.png"});
    QCOMPARE(t.read("page-1.png"), somebodysWork);
}

void TestExporting::theQuestionNamesTheFiles()
{
    ExportDesk t;
    t.write("page-1.png", somebodysWork);
    t.exportPictures();
    QCOMPARE(t.question()->text(), QString("“page-1.png” exists already. Replace it?"));
    t.answer("Cancel");
    t.write("page-2.png", somebodysWork);
    t.exportPictures();
    QCOMPARE(t.question()->text(), QString("2 files exist already. Replace them?"));
    QCOMPARE(t.question()->informativeText(), QString("page-1.png\npage-2.png"));
    t.answer("Cancel");
    // Two digits from ten pages on: other names.
    for (int page = 2; page < 12; ++page)
        pagehost::addPage(t.board.workspace().document(), page, QSizeF(20, 10));
    for (int page = 1; page <= 12; ++page)
        t.write(QString("page-%1.png").arg(page, 2, 10, QChar('0')), somebodysWork);
    t.exportPictures();
    QCOMPARE(t.question()->text(), QString("12 files exist already. Replace them?"));
    QCOMPARE(t.question()->informativeText(),
             QString("page-01.png\npage-02.png\npage-03.png\npage-04.png\npage-05.png\npage-06.png\n"
                     "page-07.png\npage-08.png\nand 4 more"));
}

void TestExporting::filesOfOtherNamesAreNoQuestion()
{
    ExportDesk t;
    t.write("page-3.png", somebodysWork);
    t.write("page-1.svg", somebodysWork);
    t.exportPictures();
    QVERIFY(!t.question());
    QCOMPARE(t.files(), (QStringList{"page-1.png", "page-1.svg", "page-2.png", "page-3.png"}));
    QCOMPARE(t.read("page-1.svg"), somebodysWork);
}

void TestExporting::drawingsAskToo()
{
    ExportDesk t;
    t.write("page-1.svg", somebodysWork);
    t.exportDrawings();
    QVERIFY(t.question());
    t.answer("Cancel");
    QCOMPARE(t.read("page-1.svg"), somebodysWork);
    t.exportDrawings();
    t.answer("Replace");
    QVERIFY(t.read("page-1.svg").contains("<svg"));
}

void TestExporting::cancellingTheFolderWritesNothing()
{
    ExportDesk t;
    t.board.window().actions()->exportPages->trigger();
    auto *dialog = t.board.window().findChild<QFileDialog *>();
    QVERIFY(dialog);
    dialog->setDirectory(t.folder.path());
    dialog->reject();
    QTRY_VERIFY_WITH_TIMEOUT(!t.board.window().findChild<QFileDialog *>(), support::patience);
    QVERIFY(!t.question());
    QCOMPARE(t.files(), QStringList());
}

QTEST_MAIN(TestExporting)
#include "test_exporting.moc"
