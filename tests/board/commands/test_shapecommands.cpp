// Letters that draw the most usual shapes.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <window/mainwindow.h>

#include <pagehost/objectregistry.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <QtTest/QtTest>

using namespace boardtest;
using board::Command;

class TestShapeCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { useOwnFolders(); }
    void letterDrawsAShape_data();
    void letterDrawsAShape();
    void shapeThatNobodyHasCannotBeChosen();
};

void TestShapeCommands::letterDrawsAShape_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("kind");
    QTest::newRow("R") << int(Qt::Key_R) << rectangle;
    QTest::newRow("O") << int(Qt::Key_O) << "shapes.ellipse";
    QTest::newRow("A") << int(Qt::Key_A) << arrow;
}

void TestShapeCommands::letterDrawsAShape()
{
    QFETCH(int, key);
    QFETCH(QString, kind);
    BoardDriver board;
    board.key(static_cast<Qt::Key>(key));
    board.drag({300, 200}, {420, 280});
    QCOMPARE(board.page().objectCount(), 1);
    QCOMPARE(pagehost::kindIdOf(board.only()), kind);
    QCOMPARE(board.placeOf(board.only()), QRectF(300, 200, 120, 80));
}

void TestShapeCommands::shapeThatNobodyHasCannotBeChosen()
{
    board::Workspace workspace("en");
    const board::MainWindow window(&workspace);
    QVERIFY(!window.commands()->isPerformed(Command::Ellipse));
}

QTEST_MAIN(TestShapeCommands)
#include "test_shapecommands.moc"
