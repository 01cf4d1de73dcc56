// Printing into a file, by the dialog, as with a printer.

#include <board/boarddriver.h>

#include <core/notices.h>
#include <exporting/printing.h>
#include <exporting/sheetprinter.h>
#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/document.h>

#include <support/patience.h>

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProgressDialog>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>

using namespace boardtest;

namespace {

QByteArray run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        qFatal("%s failed", qPrintable(program));
    return process.readAllStandardOutput();
}

/// A board with three pages and a printer that is a file.
struct PrintDesk
{
    PrintDesk()
    {
        for (int page = 1; page < 3; ++page)
            pagehost::addPage(board.workspace().document(), page, QSizeF(1280, 720));
        board.workspace().document()->setCurrentIndex(0);
    }

    QPrintDialog *dialog() const { return board.window().findChild<QPrintDialog *>(); }
    QString file() const { return folder.filePath("printed.pdf"); }
    void ask()
    {
        board.action("Print…")->trigger();
        QVERIFY(dialog());
        // Without a printer, the file is the only choice.
        QCOMPARE(dialog()->printer()->outputFormat(), QPrinter::PdfFormat);
        part<QLineEdit>("filename")->setText(file());
    }
    /// A part of Qt's dialog.
    template<class Part> Part *part(const char *name) const
    {
        auto *found = dialog()->findChild<Part *>(name);
        if (!found)
            qFatal("The dialog has no %s", name);
        return found;
    }
    QComboBox *pagesPerSheet() const { return part<QComboBox>("pagesPerSheet"); }
    void go()
    {
        const QList<QPushButton *> buttons = dialog()->findChildren<QPushButton *>();
        for (QPushButton *button : buttons)
            if (button->text() == "&Print")
                button->click();
        QTRY_VERIFY_WITH_TIMEOUT(!dialog(), support::patience);
        settle();
    }
    /// Until what was begun is printed.
    void settle() { QTRY_VERIFY_WITH_TIMEOUT(!board.window().findChild<QProgressDialog *>(), support::patience); }
    QByteArray facts() const { return run("pdfinfo", {file()}); }
    /// A sheet at 36 pixels an inch.
    QImage sheet(int number) const
    {
        const QString picture = folder.filePath("sheet");
        run("pdftocairo", {"-png", "-r", "36", "-f", QString::number(number), "-singlefile", file(), picture});
        return QImage(picture + ".png").convertToFormat(QImage::Format_RGB32);
    }

    BoardDriver board;
    QTemporaryDir folder;
};

/// Sheets as letters of their content, in the order they are printed.
QString printedOrder(int perSheet, const std::function<void(QPrinter &)> &setUp)
{
    const QTemporaryDir folder;
    const auto printer = std::make_shared<QPrinter>();
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(folder.filePath("a.pdf"));
    setUp(*printer);
    QString order;
    QVector<board::Printable> content;
    for (const char letter : {'a', 'b', 'c'})
        content.append({QSizeF(10, 10), [&order, letter](QPainter *, const QRectF &) { order += letter; }});
    board::SheetPrinter sheets(content, perSheet, printer);
    for (int i = 0; i < sheets.sheetCount(); ++i) {
        sheets.print(i);
        order += '|';
    }
    return sheets.finish(false) ? order : QString("failed");
}

} // namespace

class TestPrinting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allPagesArePrinted();
    void onlyTheCurrentPage();
    void aRangeOfPages();
    void onlyTheSelection();
    void severalPagesOnASheet();
    void wideBoardsLieAcrossThePaper();
    void theSelectionIsOfferedOnlyWhenThereIsOne();
    void sheetsInOrder();
    void copies_data();
    void copies();
    void lastPageFirst();
    void aPrinterThatFailsIsTold();
    void anAbortedPrintLeavesNoFile();
};

void TestPrinting::allPagesArePrinted()
{
    PrintDesk t;
    t.ask();
    t.go();
    QVERIFY2(t.facts().contains("Pages:           3\n"), t.facts());
}

void TestPrinting::onlyTheCurrentPage()
{
    PrintDesk t;
    t.board.workspace().document()->setCurrentIndex(1);
    t.board.draw(rectangle, {100, 100}, {1100, 600});
    t.ask();
    t.part<QRadioButton>("printCurrentPage")->setChecked(true);
    t.go();
    QVERIFY2(t.facts().contains("Pages:           1\n"), t.facts());
    const QImage sheet = t.sheet(1);
    QVERIFY(sheet.pixelColor(sheet.width() / 2, sheet.height() / 2) != QColor(Qt::white));
}

void TestPrinting::aRangeOfPages()
{
    PrintDesk t;
    t.ask();
    t.part<QRadioButton>("printRange")->setChecked(true);
    t.part<QSpinBox>("from")->setValue(2);
    t.part<QSpinBox>("to")->setValue(9);
    t.go();
    QVERIFY2(t.facts().contains("Pages:           2\n"), t.facts());
}

void TestPrinting::onlyTheSelection()
{
    PrintDesk t;
    t.board.draw(rectangle, {100, 100}, {200, 160});
    t.board.draw(rectangle, {600, 400}, {700, 460});
    t.ask();
    t.part<QRadioButton>("printSelection")->setChecked(true);
    t.go();
    QVERIFY2(t.facts().contains("Pages:           1\n"), t.facts());
    // As large as the sheet allows.
    const QImage sheet = t.sheet(1);
    QVERIFY(sheet.pixelColor(sheet.width() / 2, sheet.height() / 2) != QColor(Qt::white));
}

void TestPrinting::severalPagesOnASheet()
{
    PrintDesk t;
    t.ask();
    t.pagesPerSheet()->setCurrentIndex(t.pagesPerSheet()->findData(2));
    t.go();
    QVERIFY2(t.facts().contains("Pages:           2\n"), t.facts());
}

void TestPrinting::wideBoardsLieAcrossThePaper()
{
    PrintDesk t;
    t.ask();
    QCOMPARE(t.dialog()->printer()->pageLayout().orientation(), QPageLayout::Landscape);
    t.go();
    const QImage sheet = t.sheet(1);
    QVERIFY(sheet.width() > sheet.height());
}

void TestPrinting::theSelectionIsOfferedOnlyWhenThereIsOne()
{
    PrintDesk t;
    t.ask();
    QVERIFY(!t.dialog()->testOption(QAbstractPrintDialog::PrintSelection));
    t.dialog()->reject();
    QTRY_VERIFY_WITH_TIMEOUT(!t.dialog(), support::patience);
    t.board.draw(rectangle, {100, 100}, {200, 160});
    t.ask();
    QVERIFY(t.dialog()->testOption(QAbstractPrintDialog::PrintSelection));
}

void TestPrinting::sheetsInOrder()
{
    QCOMPARE(printedOrder(1, [](QPrinter &) {}), QString("a|b|c|"));
    QCOMPARE(printedOrder(2, [](QPrinter &) {}), QString("ab|c|"));
}

void TestPrinting::copies_data()
{
    QTest::addColumn<bool>("collated");
    QTest::addColumn<QString>("order");
    QTest::newRow("collated") << true << "a|b|c|a|b|c|";
    QTest::newRow("sheet by sheet") << false << "a|a|b|b|c|c|";
}

void TestPrinting::copies()
{
    QFETCH(bool, collated);
    QFETCH(QString, order);
    const auto twice = [=](QPrinter &printer) {
        printer.setCopyCount(2);
        printer.setCollateCopies(collated);
        QVERIFY(!printer.supportsMultipleCopies());
    };
    QCOMPARE(printedOrder(1, twice), order);
}

void TestPrinting::lastPageFirst()
{
    QCOMPARE(printedOrder(2, [](QPrinter &printer) { printer.setPageOrder(QPrinter::LastPageFirst); }),
             QString("c|ab|"));
}

void TestPrinting::aPrinterThatFailsIsTold()
{
    PrintDesk t;
    const auto printer = std::make_shared<QPrinter>();
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(t.folder.filePath("missing/printed.pdf"));
    auto *printing = t.board.window().findChild<board::Printing *>();
    QVERIFY(printing);
    printing->print(printer, 1);
    t.settle();
    QVERIFY(t.board.window().findChild<board::Notices *>()->findChild<QFrame *>("printNotice"));
}

void TestPrinting::anAbortedPrintLeavesNoFile()
{
    const QTemporaryDir folder;
    const auto printer = std::make_shared<QPrinter>();
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(folder.filePath("a.pdf"));
    board::SheetPrinter sheets({{QSizeF(10, 10), [](QPainter *, const QRectF &) {}}}, 1, printer);
    sheets.print(0);
    QVERIFY(!sheets.finish(true));
    QVERIFY(!QFile::exists(folder.filePath("a.pdf")));
}

QTEST_MAIN(TestPrinting)
#include "test_printing.moc"
