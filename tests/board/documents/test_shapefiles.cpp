// Files of shapes that are saved while the board is open.

#include <board/desk.h>

#include <panels/palettebutton.h>
#include <panels/palettepanel.h>

#include <pagehost/documentfile.h>

#include <support/listed.h>

#include <QtWidgets/QUndoStack>

using namespace boardtest;

class TestShapeFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useOwnFolders(); }

    void newFileIsInThePalette();
    void faultyFileIsANoticeUntilItIsMended();
    void shapesOfAnEarlierVersionAreUpdatedWithOneClick();

private:
    void save(const QString &name, const QByteArray &content);
    /// Has the files read, as a moment after they were saved.
    void look(Desk &desk) { desk.board.workspace().registry().addFolders({m_folder.path()}); }
    static bool isInPalette(Desk &desk, const QString &name);
    /// Without bars that are closed and wait to be deleted.
    static QString told(Desk &desk);

    QTemporaryDir m_folder;
};

namespace {

QByteArray fileOf(const char *name, const char *path)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:shape='urn:gliololok:shape' viewBox='0 0 100 60'>\n"
           "<shape:about name='" +
           QByteArray(name) + "'/>\n<path id='figure' fill='#fc0' stroke='#000' d='M0 0H100V60H0Z' shape:d='" +
           path + "'/>\n</svg>\n";
}

} // namespace

void TestShapeFiles::save(const QString &name, const QByteArray &content)
{
    QFile file(m_folder.filePath(name + QStringLiteral(".shape.svg")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

bool TestShapeFiles::isInPalette(Desk &desk, const QString &name)
{
    const auto *palette = desk.board.window().findChild<board::PalettePanel *>();
    for (const board::PaletteButton *button : support::listed(palette->buttons()))
        if (button->text() == name)
            return true;
    return false;
}

QString TestShapeFiles::told(Desk &desk)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return desk.notices();
}

void TestShapeFiles::newFileIsInThePalette()
{
    Desk desk;
    QVERIFY(!isInPalette(desk, QStringLiteral("Plank")));
    save(QStringLiteral("plank"), fileOf("Plank", "M0 0H{w}V{h}H0Z"));
    look(desk);
    QVERIFY(isInPalette(desk, QStringLiteral("Plank")));
    save(QStringLiteral("plank"), fileOf("Beam", "M0 0H{w}V{h}H0Z"));
    look(desk);
    QVERIFY(isInPalette(desk, QStringLiteral("Beam")));
    QVERIFY(!isInPalette(desk, QStringLiteral("Plank")));
}

void TestShapeFiles::faultyFileIsANoticeUntilItIsMended()
{
    Desk desk;
    save(QStringLiteral("door"), fileOf("Door", "M0 0H{wide}V{h}H0Z"));
    look(desk);
    const QString fault = m_folder.filePath(QStringLiteral("door.shape.svg")) + QStringLiteral(":3:");
    QVERIFY2(told(desk).contains(fault), qPrintable(told(desk)));
    QVERIFY(told(desk).contains(QStringLiteral("\"wide\"")));
    save(QStringLiteral("door"), fileOf("Door", "M0 0H{w}V{h}H0Z"));
    look(desk);
    QVERIFY(!told(desk).contains(fault));
    QVERIFY(isInPalette(desk, QStringLiteral("Door")));
}

void TestShapeFiles::shapesOfAnEarlierVersionAreUpdatedWithOneClick()
{
    Desk desk;
    save(QStringLiteral("wall"), fileOf("Wall", "M0 0H{w}V{h}H0Z"));
    look(desk);
    const QString kind = QStringLiteral("declared.wall");
    desk.board.draw(kind, {300, 200}, {500, 300});
    desk.board.draw(kind, {600, 200}, {800, 300});
    pagehost::Document &document = *desk.board.workspace().document();
    const QByteArray before = encodeDocument(document, pagehost::DocumentFormat::Binary);
    save(QStringLiteral("wall"), fileOf("Wall", "M0 0H{w}V{h / 2}H0Z"));
    look(desk);
    const QByteArray after = encodeDocument(document, pagehost::DocumentFormat::Binary);
    QVERIFY(after != before);
    QVERIFY(!told(desk).contains(QStringLiteral("version")));

    desk.board.workspace().replaceDocument(
        std::move(decodeDocument(before, desk.board.workspace().registry()).document));
    QVERIFY2(told(desk).contains(QStringLiteral("2 shapes on the pages are of another version")),
             qPrintable(told(desk)));
    // Layouts show what they get a moment later.
    QCoreApplication::processEvents();
    pagehost::Document &opened = *desk.board.workspace().document();
    desk.press(QStringLiteral("Update 2 shapes"));
    QCOMPARE(encodeDocument(opened, pagehost::DocumentFormat::Binary), after);
    QCOMPARE(desk.board.history().count(), 1);
    QVERIFY(!told(desk).contains(QStringLiteral("version")));
    desk.board.history().undo();
    QCOMPARE(encodeDocument(opened, pagehost::DocumentFormat::Binary), before);
}

QTEST_MAIN(TestShapeFiles)
#include "test_shapefiles.moc"
