// Writing the pages as pictures and drawings from the menu: nothing that is there is replaced unasked.

#include <board/boarddriver.h>

#include <core/mnemonics.h>
#include <core/notices.h>
#include <documents/documentcontroller.h>
#include <exporting/exportdialog.h>
#include <panels/fields/numberfield.h>
#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/document.h>
#include <pagehost/documentfile.h>
#include <pagehost/page.h>

#include <support/patience.h>

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QProgressDialog>
#include <QtWidgets/QPushButton>

using namespace boardtest;

namespace {

const QByteArray somebodysWork("somebody's work");
const QByteArray pngMark("\x89PNG");

/// A board with two pages, and a folder to write them to.
struct ExportDesk
{
    ExportDesk()
    {
        pagehost::addPage(board.workspace().document(), 1, QSizeF(200, 100));
        board.workspace().document()->setCurrentIndex(0);
    }

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
    board::ExportDialog *dialog() const { return board.window().findChild<board::ExportDialog *>(); }
    /// Opens the dialog and presses these of its buttons.
    void ask(const QStringList &texts)
    {
        board.action("Export…")->trigger();
        QVERIFY(dialog());
        QVERIFY(activate(*dialog()));
        for (const QString &text : texts)
            press(text);
    }
    void press(const QString &text)
    {
        const QList<QAbstractButton *> buttons = dialog()->findChildren<QAbstractButton *>();
        for (QAbstractButton *button : buttons)
            if (board::withoutMnemonic(button->text()) == text)
                return QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
        QFAIL(qPrintable("There is no button " + text));
    }
    void go()
    {
        press("Export");
        QTRY_VERIFY_WITH_TIMEOUT(!dialog(), support::patience);
    }
    QFileDialog *fileDialog() const { return board.window().findChild<QFileDialog *>(); }
    /// Types the name into the file dialog that waits.
    void type(const QString &name)
    {
        QVERIFY(fileDialog());
        QVERIFY(activate(*fileDialog()));
        auto *line = fileDialog()->findChild<QLineEdit *>();
        line->setText(name);
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_VERIFY_WITH_TIMEOUT(!fileDialog(), support::patience);
        settle();
    }
    /// The file that is offered, which is not taken.
    QString suggestion(const QStringList &choices)
    {
        ask(choices);
        go();
        const QString name = fileDialog()->findChild<QLineEdit *>()->text();
        const QString file = fileDialog()->directory().filePath(name);
        fileDialog()->reject();
        const bool isClosed = QTest::qWaitFor([this] { return !fileDialog(); }, support::patience);
        return isClosed ? file : QString();
    }
    /// Until what was begun is written.
    void settle() { QTRY_VERIFY_WITH_TIMEOUT(!board.window().findChild<QProgressDialog *>(), support::patience); }
    void exportAll(const QString &format)
    {
        ask({"All pages", format});
        go();
        type(folder.path());
    }
    void exportPictures() { exportAll("Picture (PNG)"); }
    void exportDrawings() { exportAll("Drawing (SVG)"); }
    QMessageBox *question() const { return board.window().findChild<QMessageBox *>(); }
    void answer(const QString &text)
    {
        QPushButton *button = board.button(text);
        QVERIFY(button);
        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(!question(), support::patience);
        settle();
    }
    QString pixels() const { return dialog()->findChild<QLabel *>("exportPixels")->text(); }
    board::NumberField *field(const QString &name) const
    {
        const QList<board::NumberField *> fields = dialog()->findChildren<board::NumberField *>();
        for (board::NumberField *field : fields)
            if (field->accessibleName() == name)
                return field;
        return nullptr;
    }
    void typeInto(const QString &name, const QString &text)
    {
        board::NumberField *number = field(name);
        QVERIFY(number);
        QApplication::setActiveWindow(dialog());
        number->setFocus();
        number->selectAll();
        QTest::keyClicks(number, text);
        QTest::keyClick(number, Qt::Key_Tab);
    }
    /// Texts of the notices.
    QStringList notices() const
    {
        QStringList texts;
        const QList<QLabel *> labels = board.window().findChild<board::Notices *>()->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            if (!label->text().isEmpty())
                texts.append(label->text());
        return texts;
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
    void cancellingTheDialogAsksForNoFile();
    void thisPageGoesToOneFile();
    void namesGetTheirSuffix_data();
    void namesGetTheirSuffix();
    void oneFileIsReplacedOnlyWhenTheUserAgrees();
    void allPagesGoIntoOnePdf();
    void selectedObjectsGoAlone();
    void pointsOfASelectedShapeAreInNoPicture();
    void theSelectionIsOfferedFirst();
    void nothingSelectedCannotBeExported();
    void widthAndPercentFollowEachOther();
    void widthsBecomePixels();
    void sizesBeyondPicturesAreLimited();
    void drawingsHaveNoSizeInPixels();
    void theFileIsNamedAfterTheBoardAndThePage();
    void whatWasWrittenIsTold();
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
    QVERIFY(activate(*t.question()));
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
    t.ask({"All pages", "Picture (PNG)"});
    t.go();
    auto *dialog = t.fileDialog();
    QVERIFY(dialog);
    dialog->setDirectory(t.folder.path());
    dialog->reject();
    QTRY_VERIFY_WITH_TIMEOUT(!t.board.window().findChild<QFileDialog *>(), support::patience);
    QVERIFY(!t.question());
    QCOMPARE(t.files(), QStringList());
}

void TestExporting::cancellingTheDialogAsksForNoFile()
{
    ExportDesk t;
    t.ask({});
    t.press("Cancel");
    QTRY_VERIFY_WITH_TIMEOUT(!t.dialog(), support::patience);
    QVERIFY(!t.fileDialog());
}

void TestExporting::thisPageGoesToOneFile()
{
    ExportDesk t;
    t.ask({"This page", "Picture (PNG)"});
    t.go();
    t.type(t.path("mine.png"));
    QCOMPARE(t.files(), QStringList{"mine.png"});
    QCOMPARE(QImage(t.path("mine.png")).size(), t.board.page().size().toSize());
}

void TestExporting::namesGetTheirSuffix_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("written");
    QTest::newRow("none") << "Drawing (SVG)"
                          << "mine"
                          << "mine.svg";
    QTest::newRow("its own") << "Drawing (SVG)"
                             << "mine.SVG"
                             << "mine.SVG";
    QTest::newRow("a dot") << "Document (PDF)"
                           << "lesson 2.3"
                           << "lesson 2.3.pdf";
    QTest::newRow("another one") << "Picture (PNG)"
                                 << "mine.pdf"
                                 << "mine.pdf.png";
}

void TestExporting::namesGetTheirSuffix()
{
    QFETCH(QString, format);
    QFETCH(QString, typed);
    QFETCH(QString, written);
    ExportDesk t;
    t.ask({"This page", format});
    t.go();
    t.type(t.path(typed));
    QCOMPARE(t.files(), QStringList{written});
}

void TestExporting::oneFileIsReplacedOnlyWhenTheUserAgrees()
{
    ExportDesk t;
    t.write("mine.pdf", somebodysWork);
    t.ask({"All pages", "Document (PDF)"});
    t.go();
    t.type(t.path("mine"));
    QVERIFY(t.question());
    t.answer("Cancel");
    QCOMPARE(t.read("mine.pdf"), somebodysWork);
    t.ask({"All pages", "Document (PDF)"});
    t.go();
    t.type(t.path("mine"));
    t.answer("Replace");
    QVERIFY(t.read("mine.pdf").startsWith("%PDF-"));
}

void TestExporting::allPagesGoIntoOnePdf()
{
    ExportDesk t;
    t.ask({"All pages", "Document (PDF)"});
    t.go();
    t.type(t.path("all.pdf"));
    QCOMPARE(t.files(), QStringList{"all.pdf"});
    QVERIFY(t.read("all.pdf").contains("/Count 2"));
}

void TestExporting::selectedObjectsGoAlone()
{
    ExportDesk t;
    t.board.draw(rectangle, {100, 100}, {200, 160});
    t.board.draw(rectangle, {300, 100}, {400, 160});
    t.board.click({350, 130});
    t.ask({"Selected objects", "Picture (PNG)"});
    t.go();
    t.type(t.path("one.png"));
    const QImage picture(t.path("one.png"));
    // The outline reaches half of its width beyond the box.
    QVERIFY2(qAbs(picture.width() - 100) <= 4 && qAbs(picture.height() - 60) <= 4,
             qPrintable(QString("%1 x %2").arg(picture.width()).arg(picture.height())));
    QVERIFY(picture.hasAlphaChannel());
}

void TestExporting::pointsOfASelectedShapeAreInNoPicture()
{
    ExportDesk t;
    t.board.draw(rectangle, {100, 100}, {300, 220});
    QCOMPARE(t.board.selection().size(), 1);
    t.ask({"Selected objects", "Picture (PNG)"});
    t.go();
    t.type(t.path("selected.png"));
    t.ask({"This page", "Picture (PNG)"});
    t.go();
    t.type(t.path("page.png"));
    t.board.click({400, 300});
    QVERIFY(t.board.selection().isEmpty());
    t.ask({"This page", "Picture (PNG)"});
    t.go();
    t.type(t.path("unselected.png"));
    QCOMPARE(QImage(t.path("page.png")), QImage(t.path("unselected.png")));
    // The inside has one colour, also where the point of the corners is.
    const QImage shape(t.path("selected.png"));
    for (int y = 10; y < 110; ++y)
        for (int x = 10; x < 190; ++x)
            QCOMPARE(shape.pixelColor(x, y), shape.pixelColor(100, 60));
}

void TestExporting::theSelectionIsOfferedFirst()
{
    ExportDesk t;
    t.ask({});
    QCOMPARE(t.dialog()->choice().scope, board::ExportScope::CurrentPage);
    t.press("Cancel");
    QTRY_VERIFY_WITH_TIMEOUT(!t.dialog(), support::patience);
    t.board.draw(rectangle, {100, 100}, {200, 160});
    t.ask({});
    QCOMPARE(t.dialog()->choice().scope, board::ExportScope::Selection);
}

void TestExporting::nothingSelectedCannotBeExported()
{
    ExportDesk t;
    t.ask({"Selected objects"});
    QCOMPARE(t.dialog()->choice().scope, board::ExportScope::CurrentPage);
}

void TestExporting::widthAndPercentFollowEachOther()
{
    ExportDesk t;
    const QSizeF page = t.board.page().size();
    QCOMPARE(page, QSizeF(1280, 720));
    t.ask({"This page", "Picture (PNG)"});
    QCOMPARE(t.pixels(), QString("1280 × 720 pixels"));
    t.typeInto("Size", "200");
    QCOMPARE(t.field("Width")->value(), 2560.0);
    QCOMPARE(t.pixels(), QString("2560 × 1440 pixels"));
    t.typeInto("Width", "1920");
    QCOMPARE(t.field("Size")->value(), 150.0);
    QCOMPARE(t.pixels(), QString("1920 × 1080 pixels"));
    QCOMPARE(t.dialog()->choice().format.scale, 1.5);
}

void TestExporting::widthsBecomePixels()
{
    ExportDesk t;
    t.ask({"This page", "Picture (PNG)"});
    t.typeInto("Width", "640");
    t.go();
    t.type(t.path("small.png"));
    QCOMPARE(QImage(t.path("small.png")).size(), QSize(640, 360));
}

void TestExporting::sizesBeyondPicturesAreLimited()
{
    ExportDesk t;
    t.ask({"This page", "Picture (PNG)"});
    t.typeInto("Width", "20000");
    QCOMPARE(t.field("Size")->value(), 1563.0);
    QCOMPARE(t.dialog()->choice().format.scale, 15.625);
    t.typeInto("Size", "1");
    QCOMPARE(t.field("Width")->value(), 64.0);
}

void TestExporting::drawingsHaveNoSizeInPixels()
{
    ExportDesk t;
    t.ask({"This page", "Drawing (SVG)"});
    QVERIFY(!t.field("Width")->isEnabled());
    QVERIFY(!t.field("Size")->isEnabled());
    QCOMPARE(t.pixels(), QString("Sharp at any size"));
    t.press("Picture (PNG)");
    QVERIFY(t.field("Width")->isEnabled());
    QCOMPARE(t.pixels(), QString("1280 × 720 pixels"));
}

void TestExporting::theFileIsNamedAfterTheBoardAndThePage()
{
    ExportDesk t;
    const pagehost::SaveResult saved =
        pagehost::saveDocument(*t.board.workspace().document(), t.path("Optics.board"));
    QVERIFY(saved.saved);
    QVERIFY(t.board.window().documents()->openNow(t.path("Optics.board")));
    t.board.workspace().document()->setCurrentIndex(1);
    QCOMPARE(t.suggestion({"This page", "Picture (PNG)"}), t.path("Optics-2.png"));
    QCOMPARE(t.suggestion({"All pages", "Document (PDF)"}), t.path("Optics.pdf"));
}

void TestExporting::whatWasWrittenIsTold()
{
    ExportDesk t;
    t.exportPictures();
    QCOMPARE(t.notices(), QStringList{"2 files written to " + t.folder.path()});
    t.ask({"All pages", "Document (PDF)"});
    t.go();
    t.type(t.path("all.pdf"));
    QCOMPARE(t.notices(), QStringList{"Written to " + t.path("all.pdf")});
}

QTEST_MAIN(TestExporting)
#include "test_exporting.moc"
