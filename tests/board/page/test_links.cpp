// Links in texts: which addresses are taken, how they are made while a text is written, and what opens them.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <core/toolchoice.h>
#include <page/labeleditor.h>
#include <page/links.h>
#include <page/pageview.h>
#include <presenting/presentation.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>

#include <QtCore/QSettings>
#include <QtGui/QDesktopServices>
#include <QtTest/QtTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QUndoStack>

using namespace boardtest;

namespace {

const QString address = QStringLiteral("https://example.org/page");

/// A text "see there" at (200, 200).
struct Desk : BoardDriver
{
    Desk()
    {
        window().tools()->choose(board::Tool::Text);
        click({200, 200});
        QTest::keyClicks(editor(), QStringLiteral("see there"));
        QTest::keyClick(editor(), Qt::Key_Escape);
        text = page().objects().value(0);
    }
    board::LabelEditor *editor() const
    {
        for (auto *editor : support::listed(view().findChildren<board::LabelEditor *>()))
            if (editor->isVisible())
                return editor;
        return nullptr;
    }
    QLineEdit *field() const
    {
        for (auto *field : support::listed(view().findChildren<QLineEdit *>(QStringLiteral("linkAddress"))))
            if (field->isVisible())
                return field;
        return nullptr;
    }
    void write()
    {
        page().select({text});
        view().writeFirstLabel(false);
    }
    /// Selects "there" and gives it an address.
    void link(const QString &typed)
    {
        QTest::keyClick(editor(), Qt::Key_End);
        for (int i = 0; i < 5; ++i)
            QTest::keyClick(editor(), Qt::Key_Left, Qt::ShiftModifier);
        QTest::keyClick(editor(), Qt::Key_K, Qt::ControlModifier);
        field()->selectAll();
        QTest::keyClicks(field(), typed);
        QTest::keyClick(field(), Qt::Key_Return);
    }
    void end() { QTest::keyClick(editor(), Qt::Key_Escape); }
    QPointF inLink() const
    {
        const QRectF box = text->getClientRect();
        return text->mapToScene({box.width() * 0.75, box.height() / 2});
    }
    QPointF besideLink() const
    {
        const QRectF box = text->getClientRect();
        return text->mapToScene({box.width() * 0.1, box.height() / 2});
    }
    QString linkThere() const { return board::linkAt(*text, inLink()); }

    CBaseObject *text;
};

} // namespace

class TestLinks : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void open(const QUrl &url) { m_opened.append(url.toString()); }

private Q_SLOTS:
    void initTestCase();
    void init();
    void addressesAreCompletedAndChecked_data();
    void addressesAreCompletedAndChecked();
    void aKeyMakesALink();
    void theLinkIsOneStepWithTheLetters();
    void escapeLeavesTheLetters();
    void anAddressThatIsRefusedStaysInTheField();
    void noAddressTakesTheLinkAway();
    void lettersBehindALinkAreNoneOfIt();
    void lettersBeforeALinkPushIt();
    void controlAndAClickOpensALinkWhileWriting();
    void aClickOpensALinkWhilePresenting();
    void aClickInTheWindowOpensNothing();
    void labelsWithoutLinksLeaveTheKeyToTheWindow();

private:
    QStringList m_opened;
};

void TestLinks::initTestCase()
{
    useOwnFolders();
    for (const char *scheme : {"http", "https", "mailto", "file"})
        QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "open");
}

void TestLinks::init()
{
    QSettings().clear();
    m_opened.clear();
}

void TestLinks::addressesAreCompletedAndChecked_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *typed, const char *expected) { QTest::newRow(typed) << typed << expected; };
    row("https://example.org/a?b#c", "https://example.org/a?b#c");
    row("http://example.org", "http://example.org");
    row("HTTPS://example.org", "HTTPS://example.org");
    row("mailto:a@example.org", "mailto:a@example.org");
    row("  example.org/a ", "https://example.org/a");
    row("localhost:8080/a", "https://localhost:8080/a");
    row("a@example.org", "mailto:a@example.org");
    row("", "");
    row("file:///etc/passwd", "");
    row("javascript:alert(1)", "");
    row("ftp://example.org", "");
    row("data:text/html,x", "");
    row("https://", "");
    row("mailto:", "");
    row("two words", "");
}

void TestLinks::addressesAreCompletedAndChecked()
{
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    QCOMPARE(board::linkAddress(typed), expected);
    QCOMPARE(board::openLink(typed), !expected.isEmpty());
    QCOMPARE(m_opened.size(), expected.isEmpty() ? 0 : 1);
}

void TestLinks::aKeyMakesALink()
{
    Desk desk;
    desk.write();
    desk.link(QStringLiteral("example.org/page"));
    QVERIFY(!desk.field());
    QVERIFY(desk.editor());
    QCOMPARE(desk.linkThere(), address);
    QCOMPARE(board::linkAt(*desk.text, desk.besideLink()), QString());
    desk.end();
    QCOMPARE(desk.linkThere(), address);
    // And is there when the text is written again.
    desk.write();
    QTest::keyClick(desk.editor(), Qt::Key_End);
    QTest::keyClick(desk.editor(), Qt::Key_K, Qt::ControlModifier);
    QCOMPARE(desk.field()->text(), address);
}

void TestLinks::theLinkIsOneStepWithTheLetters()
{
    Desk desk;
    const int steps = desk.history().count();
    desk.write();
    desk.link(address);
    QTest::keyClick(desk.editor(), Qt::Key_Home);
    QTest::keyClicks(desk.editor(), QStringLiteral("I "));
    desk.end();
    QCOMPARE(desk.history().count(), steps + 1);
    QCOMPARE(board::labelsOf(*desk.text).at(0).text, QStringLiteral("I see there"));
    desk.history().undo();
    QCOMPARE(board::labelsOf(*desk.text).at(0).text, QStringLiteral("see there"));
    QCOMPARE(desk.linkThere(), QString());
    desk.history().redo();
    QCOMPARE(desk.linkThere(), address);
}

void TestLinks::escapeLeavesTheLetters()
{
    Desk desk;
    const int steps = desk.history().count();
    desk.write();
    QTest::keyClick(desk.editor(), Qt::Key_K, Qt::ControlModifier);
    QTest::keyClicks(desk.field(), address);
    QTest::keyClick(desk.field(), Qt::Key_Escape);
    QVERIFY(!desk.field());
    QVERIFY(desk.editor());
    desk.end();
    QCOMPARE(desk.linkThere(), QString());
    QCOMPARE(desk.history().count(), steps);
}

void TestLinks::anAddressThatIsRefusedStaysInTheField()
{
    Desk desk;
    desk.write();
    desk.link(QStringLiteral("file:///etc/passwd"));
    QVERIFY(desk.field());
    QCOMPARE(desk.field()->text(), QStringLiteral("file:///etc/passwd"));
    QCOMPARE(desk.linkThere(), QString());
}

void TestLinks::noAddressTakesTheLinkAway()
{
    Desk desk;
    desk.write();
    desk.link(address);
    QTest::keyClick(desk.editor(), Qt::Key_K, Qt::ControlModifier);
    QCOMPARE(desk.field()->text(), address);
    desk.field()->clear();
    QTest::keyClick(desk.field(), Qt::Key_Return);
    QCOMPARE(desk.linkThere(), QString());
    desk.end();
    QCOMPARE(desk.linkThere(), QString());
}

void TestLinks::lettersBehindALinkAreNoneOfIt()
{
    Desk desk;
    desk.write();
    desk.link(address);
    QTest::keyClick(desk.editor(), Qt::Key_End);
    QTest::keyClicks(desk.editor(), QStringLiteral(" and everywhere else"));
    desk.end();
    const QRectF box = desk.text->getClientRect();
    QCOMPARE(board::linkAt(*desk.text, desk.text->mapToScene({box.width() * 0.9, box.height() / 2})), QString());
    QCOMPARE(board::linkAt(*desk.text, desk.text->mapToScene({box.width() * 0.25, box.height() / 2})), address);
}

void TestLinks::lettersBeforeALinkPushIt()
{
    Desk desk;
    desk.write();
    desk.link(address);
    QTest::keyClick(desk.editor(), Qt::Key_Home);
    QTest::keyClicks(desk.editor(), QStringLiteral("we all can "));
    desk.end();
    const QRectF box = desk.text->getClientRect();
    QCOMPARE(board::linkAt(*desk.text, desk.text->mapToScene({box.width() * 0.6, box.height() / 2})), QString());
    QCOMPARE(board::linkAt(*desk.text, desk.text->mapToScene({box.width() * 0.95, box.height() / 2})), address);
}

void TestLinks::controlAndAClickOpensALinkWhileWriting()
{
    Desk desk;
    desk.write();
    desk.link(address);
    QTextCursor cursor = desk.editor()->textCursor();
    cursor.setPosition(6);
    const QPoint place = desk.editor()->cursorRect(cursor).center();
    QWidget *viewport = desk.editor()->viewport();
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(m_opened, QStringList());
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::ControlModifier, place);
    QCOMPARE(m_opened, QStringList{address});
}

void TestLinks::aClickOpensALinkWhilePresenting()
{
    Desk desk;
    desk.write();
    desk.link(address);
    desk.end();
    desk.key(Qt::Key_F5);
    board::PageView &stage = *desk.window().presentation()->stage()->view();
    const auto clickAt = [&stage](const QPointF &place) {
        QTest::mouseClick(stage.viewport(), Qt::LeftButton, Qt::NoModifier, stage.mapFromScene(place));
    };
    clickAt(desk.besideLink());
    QCOMPARE(m_opened, QStringList());
    clickAt(desk.inLink());
    QCOMPARE(m_opened, QStringList{address});
}

void TestLinks::aClickInTheWindowOpensNothing()
{
    Desk desk;
    desk.write();
    desk.link(address);
    desk.end();
    desk.click(desk.inLink());
    QCOMPARE(m_opened, QStringList());
    QVERIFY(desk.text->isSelected());
}

void TestLinks::labelsWithoutLinksLeaveTheKeyToTheWindow()
{
    Desk desk;
    CBaseObject *table = desk.draw(QStringLiteral("shapes.table"), {500, 300}, {700, 420});
    desk.page().select({table});
    desk.view().writeFirstLabel(false);
    QVERIFY(desk.editor());
    QTest::keyClick(desk.editor(), Qt::Key_K, Qt::ControlModifier);
    QVERIFY(!desk.field());
}

QTEST_MAIN(TestLinks)
#include "test_links.moc"
