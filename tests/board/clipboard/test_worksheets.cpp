// PDFs become pages to write on, and whatever is wrong with them is told without a loss.

#include <board/boarddriver.h>
#include <board/desk.h>

#include <clipboard/pdfpages.h>
#include <core/commands.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <support/patience.h>

#include <pagehost/page.h>
#include <pagehost/pagepainter.h>

#include <framework/cbaseobject.h>

#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtGui/QDragEnterEvent>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QUndoStack>

using namespace boardtest;
using board::PdfProblem;

Q_DECLARE_METATYPE(board::PdfProblem)

class TestWorksheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void droppedPdfBecomesPagesInOneStep();
    void pagesOfAPdfComeBehindTheCurrentOne();
    void openedPdfIsAddedToTheBoard();
    void clicksPassThroughAWorksheetAndPensWriteOnIt();
    void copiedWorksheetIsSavedOnce();
    void withoutAConverterASentenceTellsWhatToInstall();
    void damagedPdfIsToldAndChangesNothing();
    void hangingConverterIsStopped();
    void pdfOfTooManyPagesIsRefused();
    void converterThatFillsTheDiskIsStopped();

private:
    QByteArray m_path;
};

namespace {

/// A4 upright, with a black square of 100 points in the upper left corner of each page.
QString writePdf(Desk &desk, int pages)
{
    QString file = desk.path("sheet.pdf");
    QPdfWriter writer(file);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(72);
    QPainter painter(&writer);
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            writer.newPage();
        painter.fillRect(0, 0, 100, 100, Qt::black);
        painter.fillRect(300, 300, 100, 100, Qt::red);
    }
    return file;
}

void drop(BoardDriver &board, const QString &file)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file)});
    const QPoint pos = board.view().viewport()->rect().center();
    QDragEnterEvent enter(pos, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(board.view().viewport(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent event(pos, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(board.view().viewport(), &event);
}

pagehost::Document &document(Desk &desk)
{
    return *desk.board.workspace().document();
}

void waitForPages(Desk &desk, int count)
{
    QTRY_COMPARE_WITH_TIMEOUT(document(desk).pageCount(), count, support::patience);
}

/// Programs of these texts stand in for those that read PDFs.
struct StandIns
{
    StandIns(const QByteArray &info, const QByteArray &drawing)
    {
        write(QStringLiteral("pdfinfo"), info);
        write(QStringLiteral("pdftocairo"), drawing);
        qputenv("PATH", folder.path().toLocal8Bit() + ":/usr/bin:/bin");
    }
    void write(const QString &name, const QByteArray &text) const
    {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n" + text + "\n");
        file.close();
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    QTemporaryDir folder;
};

PdfProblem problemOf(board::PdfPages &pages)
{
    QSignalSpy failed(&pages, &board::PdfPages::failed);
    QSignalSpy converted(&pages, &board::PdfPages::converted);
    pages.convert(QStringLiteral("any.pdf"));
    if (failed.isEmpty())
        failed.wait(support::patience);
    if (failed.isEmpty() || !converted.isEmpty())
        qFatal("no problem was found");
    return failed.first().first().value<PdfProblem>();
}

} // namespace

void TestWorksheets::init()
{
    m_path = qgetenv("PATH");
    qRegisterMetaType<board::PdfProblem>("board::PdfProblem");
}

void TestWorksheets::cleanup()
{
    qputenv("PATH", m_path);
}

void TestWorksheets::droppedPdfBecomesPagesInOneStep()
{
    Desk desk;
    drop(desk.board, writePdf(desk, 2));
    waitForPages(desk, 2);
    QCOMPARE(document(desk).currentIndex(), 0);
    const QVector<pagehost::Page *> pages = document(desk).pages();
    for (pagehost::Page *page : pages) {
        // 595 × 842 points; scene units are 96 an inch.
        QVERIFY(qAbs(page->size().width() - 793.7) < 1 && qAbs(page->size().height() - 1122.5) < 1);
        const CBaseObject *sheet = page->objects().value(0);
        QVERIFY(sheet && sheet->isLocked());
        QVERIFY(qAbs(sheet->getClientRect().width() - page->size().width()) < 2);
        const QImage picture = pagehost::pageImage(page, 1);
        QCOMPARE(picture.pixelColor(60, 60), QColor(Qt::black));
        QCOMPARE(picture.pixelColor(465, 465), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(300, 60), QColor(Qt::white));
    }
    QCOMPARE(desk.board.history().count(), 1);
    QVERIFY(desk.notices().isEmpty());
    desk.board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(document(desk).pageCount(), 1);
    QCOMPARE(desk.board.page().objectCount(), 0);
    desk.board.key(Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(document(desk).pageCount(), 2);
}

void TestWorksheets::pagesOfAPdfComeBehindTheCurrentOne()
{
    Desk desk;
    desk.board.draw(rectangle, {300, 200}, {420, 280});
    const pagehost::Page *drawn = &desk.board.page();
    drop(desk.board, writePdf(desk, 1));
    waitForPages(desk, 2);
    QCOMPARE(document(desk).page(0), drawn);
    QCOMPARE(drawn->objectCount(), 1);
    QCOMPARE(document(desk).currentIndex(), 1);
}

void TestWorksheets::openedPdfIsAddedToTheBoard()
{
    Desk desk;
    QVERIFY(desk.documents().openNow(writePdf(desk, 2)));
    waitForPages(desk, 2);
    QVERIFY(desk.documents().file().isEmpty());
}

void TestWorksheets::clicksPassThroughAWorksheetAndPensWriteOnIt()
{
    Desk desk;
    drop(desk.board, writePdf(desk, 2));
    waitForPages(desk, 2);
    desk.board.view().fitPage();
    desk.board.click({60, 60});
    QCOMPARE(desk.board.selection(), QVector<CBaseObject *>());
    desk.board.drag({20, 20}, {700, 900});
    QCOMPARE(desk.board.selection(), QVector<CBaseObject *>());
    desk.board.key(Qt::Key_P);
    desk.board.drag({60, 60}, {300, 300});
    QCOMPARE(desk.board.page().objectCount(), 2);
}

void TestWorksheets::copiedWorksheetIsSavedOnce()
{
    Desk desk;
    drop(desk.board, writePdf(desk, 1));
    QTRY_COMPARE_WITH_TIMEOUT(desk.board.page().objectCount(), 1, support::patience);
    desk.saveAs("one.board");
    desk.board.window().commands()->action(board::Command::DuplicatePage)->trigger();
    QCOMPARE(document(desk).pageCount(), 2);
    desk.saveAs("two.board");
    QCOMPARE(document(desk).assets().keys().size(), 1);
    QVERIFY(desk.documents().openNow(desk.path("two.board")));
    QCOMPARE(pagehost::pageImage(document(desk).page(1), 1).pixelColor(60, 60), QColor(Qt::black));
}

void TestWorksheets::withoutAConverterASentenceTellsWhatToInstall()
{
    Desk desk;
    const QTemporaryDir nothing;
    qputenv("PATH", nothing.path().toLocal8Bit());
    drop(desk.board, writePdf(desk, 1));
    QTRY_VERIFY_WITH_TIMEOUT(desk.notices().contains("install “poppler-utils”"), support::patience);
    QCOMPARE(document(desk).pageCount(), 1);
    QCOMPARE(desk.board.history().count(), 0);
}

void TestWorksheets::damagedPdfIsToldAndChangesNothing()
{
    Desk desk;
    QFile file(desk.path("bad.pdf"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("%PDF-1.4 and then nothing");
    file.close();
    drop(desk.board, file.fileName());
    QTRY_VERIFY_WITH_TIMEOUT(desk.notices().contains("“bad.pdf” could not be read"), support::patience);
    QCOMPARE(document(desk).pageCount(), 1);
    QCOMPARE(desk.board.history().count(), 0);
}

void TestWorksheets::hangingConverterIsStopped()
{
    const StandIns programs("echo 'Pages: 1'", "exec tail -f /dev/null");
    board::PdfPages pages;
    pages.setTimeLimit(1000);
    QCOMPARE(problemOf(pages), PdfProblem::TooSlow);
    QVERIFY(!pages.isConverting());
}

void TestWorksheets::pdfOfTooManyPagesIsRefused()
{
    const StandIns programs("echo 'Pages: 101'", "exit 1");
    board::PdfPages pages;
    QCOMPARE(problemOf(pages), PdfProblem::TooManyPages);
}

void TestWorksheets::converterThatFillsTheDiskIsStopped()
{
    const StandIns programs("echo 'Pages: 1'", "for out; do :; done; exec head -c 80000000 /dev/zero > \"$out\"");
    board::PdfPages pages;
    QCOMPARE(problemOf(pages), PdfProblem::Unreadable);
}

QTEST_MAIN(TestWorksheets)
#include "test_worksheets.moc"
