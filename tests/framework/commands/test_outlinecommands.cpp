#include <pagehost/commands.h>
#include <pagehost/objectid.h>
#include <pagehost/outline.h>

#include "framework/files/filetest.h"

// Order, groups, names and visibility as the outline changes them.

using namespace pagehost;

using Objects = QVector<CBaseObject *>;

namespace {

/// Objects A to F, bottom to top; B and C are a group, D and E another one.
struct Outlined
{
    Outlined()
    {
        for (int i = 0; i < 6; ++i)
            objects.append(addPlain(page, QPointF(110 * i, 100)));
        groupObjects(page, pick(QStringLiteral("BC")));
        groupObjects(page, pick(QStringLiteral("DE")));
        undoStack()->clear();
    }
    Objects pick(const QString &letters) const
    {
        Objects picked;
        for (const QChar letter : letters)
            picked.append(objects.at(letter.toLatin1() - 'A'));
        return picked;
    }
    /// Nested groups in brackets, bottom to top.
    QString tree(quint32 level = 0) const
    {
        QString text;
        const QVector<GroupUnit> units = page->grouping().unitsOf(level);
        for (const GroupUnit &unit : units) {
            text += unit.group == 0 ? QString(QLatin1Char(char('A' + objects.indexOf(unit.objects.first()))))
                                    : QStringLiteral("(%1)").arg(tree(unit.group));
        }
        return text;
    }
    quint32 groupOf(char letter) const { return page->grouping().groupOf(objects.at(letter - 'A')); }

    Document document;
    Page *page = document.appendPage();
    Objects objects;
};

} // namespace

class TestOutlineCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { undoStack()->clear(); }

    void objectsArePlaced_data();
    void objectsArePlaced();
    void placingIsOneStep();
    void groupIsNotPutIntoItself();
    void placingWithoutEffectLeavesNoStep();
    void renamedObjectIsSavedAndUndone();
    void renamedGroupIsUndone();
    void sameNameLeavesNoStep();
    void hiddenObjectsAreUndone();
};

void TestOutlineCommands::objectsArePlaced_data()
{
    QTest::addColumn<QString>("placed");
    QTest::addColumn<char>("group"); // of this object; 0 for the page
    QTest::addColumn<char>("lower"); // 0 for the bottom
    QTest::addColumn<QString>("tree");
    QTest::newRow("object over a group") << "A" << char(0) << 'C' << "(BC)A(DE)F";
    QTest::newRow("object to the bottom") << "F" << char(0) << char(0) << "FA(BC)(DE)";
    QTest::newRow("group over an object") << "BC" << char(0) << 'F' << "A(DE)F(BC)";
    QTest::newRow("object into a group") << "A" << 'B' << 'B' << "(BAC)(DE)F";
    QTest::newRow("object to the bottom of a group") << "F" << 'D' << char(0) << "A(BC)(FDE)";
    QTest::newRow("object out of its group") << "B" << char(0) << 'F' << "AC(DE)FB";
    QTest::newRow("object to another group") << "B" << 'D' << 'E' << "AC(DEB)F";
    QTest::newRow("group into a group") << "DE" << 'B' << 'C' << "A(BC(DE))F";
    QTest::newRow("object within its group") << "B" << 'B' << 'C' << "A(CB)(DE)F";
    QTest::newRow("above itself") << "AF" << char(0) << 'F' << "(BC)(DE)AF";
}

void TestOutlineCommands::objectsArePlaced()
{
    QFETCH(QString, placed);
    QFETCH(char, group);
    QFETCH(char, lower);
    Outlined t;
    CBaseObject *object = lower == 0 ? nullptr : t.objects.at(lower - 'A');
    QVERIFY(placeObjects(t.page, t.pick(placed), group == 0 ? 0 : t.groupOf(group), object));
    QTEST(t.tree(), "tree");
}

void TestOutlineCommands::placingIsOneStep()
{
    Outlined t;
    placeObjects(t.page, t.pick(QStringLiteral("A")), t.groupOf('D'), t.objects.at(3));
    QCOMPARE(t.tree(), QStringLiteral("(BC)(DAE)F"));
    undoStack()->undo();
    QCOMPARE(t.tree(), QStringLiteral("A(BC)(DE)F"));
    undoStack()->redo();
    QCOMPARE(t.tree(), QStringLiteral("(BC)(DAE)F"));
}

void TestOutlineCommands::groupIsNotPutIntoItself()
{
    Outlined t;
    QVERIFY(!placeObjects(t.page, t.pick(QStringLiteral("BC")), t.groupOf('B'), nullptr));
    groupObjects(t.page, t.pick(QStringLiteral("ABC")));
    QVERIFY(!placeObjects(t.page, t.pick(QStringLiteral("ABC")), t.groupOf('B'), nullptr));
    QVERIFY(!placeObjects(t.page, t.pick(QStringLiteral("A")), 99, nullptr));
    QCOMPARE(t.tree(), QStringLiteral("(A(BC))(DE)F"));
}

void TestOutlineCommands::placingWithoutEffectLeavesNoStep()
{
    Outlined t;
    QVERIFY(!placeObjects(t.page, t.pick(QStringLiteral("F")), 0, t.objects.at(4)));
    QVERIFY(!placeObjects(t.page, {}, 0, nullptr));
    QCOMPARE(undoStack()->count(), 0);
}

void TestOutlineCommands::renamedObjectIsSavedAndUndone()
{
    Outlined t;
    QVERIFY(renameObject(t.page, t.objects[0], QStringLiteral("Moon")));
    FileTestRegistry registry;
    const OpenResult opened = decodeDocument(encodeDocument(t.document, DocumentFormat::Binary), registry);
    QCOMPARE(opened.document->page(0)->objects().constFirst()->getObjName(), QStringLiteral("Moon"));
    undoStack()->undo();
    QCOMPARE(t.objects[0]->getObjName(), QString());
    undoStack()->redo();
    QCOMPARE(t.objects[0]->getObjName(), QStringLiteral("Moon"));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_RENAME")});
}

void TestOutlineCommands::renamedGroupIsUndone()
{
    Outlined t;
    const quint32 group = t.groupOf('B');
    QVERIFY(renameGroup(t.page, group, QStringLiteral("Car")));
    QCOMPARE(t.page->grouping().nameOf(group), QStringLiteral("Car"));
    undoStack()->undo();
    QCOMPARE(t.page->grouping().nameOf(group), QString());
}

void TestOutlineCommands::sameNameLeavesNoStep()
{
    Outlined t;
    QVERIFY(!renameObject(t.page, t.objects[0], QString()));
    QVERIFY(!renameGroup(t.page, t.groupOf('B'), QString()));
    QVERIFY(!renameGroup(t.page, 99, QStringLiteral("Car")));
    QCOMPARE(undoStack()->count(), 0);
}

void TestOutlineCommands::hiddenObjectsAreUndone()
{
    Outlined t;
    const Objects objects = t.pick(QStringLiteral("AB"));
    QVERIFY(setObjectsVisible(t.page, objects, false));
    QVERIFY(!objects[0]->QGraphicsItem::isVisible() && !objects[1]->QGraphicsItem::isVisible());
    QVERIFY(!setObjectsVisible(t.page, objects, false));
    undoStack()->undo();
    QVERIFY(objects[0]->QGraphicsItem::isVisible() && objects[1]->QGraphicsItem::isVisible());
}

QTEST_MAIN(TestOutlineCommands)
#include "test_outlinecommands.moc"
