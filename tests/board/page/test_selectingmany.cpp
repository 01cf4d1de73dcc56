// Selecting many shapes at once: one selection, one signal, and one look at each shape by the panel in front.

#include <board/boarddriver.h>
#include <board/hands.h>

#include <core/actions.h>
#include <page/pageview.h>
#include <panels/outlinepanel.h>
#include <panels/properties/propertypanel.h>
#include <panels/settings/settingspanel.h>
#include <panels/stylepanel.h>
#include <window/drawer.h>
#include <window/mainwindow.h>

#include <pagehost/objectplugin.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>

#include <QtCore/QDataStream>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QLabel>
#include <QtWidgets/QUndoStack>

using namespace boardtest;

namespace {

constexpr int shapes = 12;
/// Of the panel: the settings, and those of letters.
constexpr int partsThatLook = 2;
constexpr int ownId = 6001;

/// Counts how often somebody asks what it is like.
class AskedObject : public CBaseObject
{
public:
    AskedObject()
        : CBaseObject(1, true, nullptr, nullptr)
    {
        CBaseObject::setSize(QSizeF(40, 30), false, false);
        attributeIds = {ownId};
    }
    QString kindName() const override { return QStringLiteral("IDS_TEST_ASKED"); }
    bool GetSettingJson(QString &) override
    {
        ++settingsAsked;
        return false;
    }
    bool GetAttribute(int id, QDataStream &out) override
    {
        propertyAsked += id == ownId ? 1 : 0;
        styleAsked += id == ownId ? 0 : 1;
        return CBaseObject::GetAttribute(id, out);
    }

    int settingsAsked = 0;
    int propertyAsked = 0;
    int styleAsked = 0;
};

class AskedPlugin : public pagehost::ObjectPlugin
{
public:
    QVector<pagehost::ObjectKind> objectKinds() const override
    {
        return {{QStringLiteral("test.asked"), QStringLiteral("IDS_TEST_ASKED"), {}}};
    }
    CBaseObject *createObject(const QString &) const override { return new AskedObject; }
    pagehost::TextTable texts(const QString &) const override { return {{"IDS_TEST_ASKED", "Asked"}}; }
};

/// Shapes in a row on the page, one of the panels in front, and nothing asked yet.
struct Crowd
{
    explicit Crowd(QWidget *(*panelOf)(board::MainWindow &))
    {
        board.workspace().registry().addPlugin(&plugin, "test");
        board.window().raisePanel(panelOf(board.window()));
        for (int i = 0; i < shapes; ++i) {
            CBaseObject *object = board.workspace().registry().createObject("test.asked");
            object->CPSRootObject::setPos(QPointF(100 + 60 * i, 200), false);
            board.page().addObject(object);
        }
        QCoreApplication::processEvents();
        QObject::connect(&board.page(), &pagehost::Page::selectionChanged, &board.page(),
                         [this] { ++signalCount; });
        forget();
    }
    QVector<AskedObject *> objects() const
    {
        QVector<AskedObject *> all;
        for (CBaseObject *object : support::listed(board.page().objects()))
            all.append(static_cast<AskedObject *>(object));
        return all;
    }
    void forget()
    {
        signalCount = 0;
        for (AskedObject *object : support::listed(objects()))
            object->settingsAsked = object->propertyAsked = object->styleAsked = 0;
    }
    /// How often each was asked, where all were asked equally often; -1 else.
    int each(int AskedObject::*count) const
    {
        const QVector<AskedObject *> all = objects();
        const bool alike = std::all_of(all.begin(), all.end(),
                                       [&](AskedObject *one) { return one->*count == all.first()->*count; });
        return alike ? all.first()->*count : -1;
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        board.view().setFocus();
        hands->key(&board.view(), key, modifiers);
    }
    void selectAll() { key(Qt::Key_A, Qt::ControlModifier); }
    QWidget *viewport() const { return board.view().viewport(); }
    QPoint at(const QPointF &pos) const { return board.view().mapFromScene(pos); }
    void moveTo(const QPointF &pos) { hands->move(viewport(), at(pos), Qt::LeftButton, Qt::NoModifier); }

    AskedPlugin plugin;
    BoardDriver board;
    /// Quicker than the event loop turns.
    std::unique_ptr<Hands> hands = sentHands();
    int signalCount = 0;
};

QWidget *stylePanel(board::MainWindow &window)
{
    return window.findChild<board::StylePanel *>();
}

QWidget *outlinePanel(board::MainWindow &window)
{
    return window.findChild<board::OutlinePanel *>();
}

QWidget *settingsPanel(board::MainWindow &window)
{
    return window.settings();
}

QWidget *propertyPanel(board::MainWindow &window)
{
    return window.properties();
}

} // namespace

class TestSelectingMany : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selectAllIsOneSignalAndOneLookAtEachShape();
    void onlyPartsOfThePanelThatAreSeenLook();
    void aKeyThatIsReleasedLaterIsNoSecondLook();
    void styleOfEachShapeIsLookedAtOnce();
    void theBandIsOneLookAtEachShapeHoweverOftenItMoves();
    void duplicatingIsOneSignalAndOneLookAtEachCopy();
    void deletingAllIsOneSignalAndNoLook();
    void aPartThatComesToTheFrontShowsTheSelection();
    void deleteRightAfterSelectAllDeletes();
};

void TestSelectingMany::selectAllIsOneSignalAndOneLookAtEachShape()
{
    Crowd t(settingsPanel);
    t.selectAll();
    QCOMPARE(t.board.selection().size(), shapes);
    QCOMPARE(t.signalCount, 1);
    QCOMPARE(t.each(&AskedObject::settingsAsked), 0);
    QCoreApplication::processEvents();
    QCOMPARE(t.each(&AskedObject::settingsAsked), partsThatLook);
    t.selectAll();
    QCoreApplication::processEvents();
    QCOMPARE(t.signalCount, 1);
    QCOMPARE(t.each(&AskedObject::settingsAsked), partsThatLook);
}

void TestSelectingMany::onlyPartsOfThePanelThatAreSeenLook()
{
    Crowd folded(settingsPanel);
    folded.selectAll();
    QCoreApplication::processEvents();
    QCOMPARE(folded.each(&AskedObject::settingsAsked), partsThatLook);
    QCOMPARE(folded.each(&AskedObject::propertyAsked), 0);
    Crowd unfolded(propertyPanel);
    unfolded.selectAll();
    QCoreApplication::processEvents();
    QCOMPARE(unfolded.each(&AskedObject::propertyAsked), 1);
    Crowd closed(settingsPanel);
    closed.board.window().panel()->setOpen(false);
    closed.selectAll();
    QCoreApplication::processEvents();
    // Once, by the bar at the selection.
    QCOMPARE(closed.each(&AskedObject::settingsAsked), 1);
    QCOMPARE(closed.each(&AskedObject::propertyAsked), 0);
}

void TestSelectingMany::aKeyThatIsReleasedLaterIsNoSecondLook()
{
    Crowd t(settingsPanel);
    t.board.window().panel()->setOpen(false);
    QTest::keyPress(&t.board.view(), Qt::Key_A, Qt::ControlModifier);
    QCoreApplication::processEvents();
    QCOMPARE(t.each(&AskedObject::settingsAsked), 1);
    QTest::keyRelease(&t.board.view(), Qt::Key_A, Qt::ControlModifier);
    QCoreApplication::processEvents();
    QCOMPARE(t.each(&AskedObject::settingsAsked), 1);
}

/// A look at the style asks for several properties; one shape alone is looked at once.
void TestSelectingMany::styleOfEachShapeIsLookedAtOnce()
{
    Crowd style(stylePanel);
    style.selectAll();
    QCoreApplication::processEvents();
    const int asked = style.each(&AskedObject::styleAsked);
    QVERIFY(asked > 0);
    style.board.page().select({});
    QCoreApplication::processEvents();
    style.forget();
    style.board.page().select({style.objects().constFirst()});
    QCoreApplication::processEvents();
    QCOMPARE(style.objects().constFirst()->styleAsked, asked);
}

void TestSelectingMany::theBandIsOneLookAtEachShapeHoweverOftenItMoves()
{
    Crowd t(settingsPanel);
    t.hands->press(t.viewport(), t.at({80, 180}), Qt::NoModifier);
    for (const QPointF &pos : {QPointF(500, 220), QPointF(1000, 260), QPointF(990, 255), QPointF(1010, 255)})
        t.moveTo(pos);
    QCOMPARE(t.board.selection().size(), shapes);
    QCoreApplication::processEvents();
    QCOMPARE(t.each(&AskedObject::settingsAsked), partsThatLook);
    const int soFar = t.signalCount;
    t.moveTo({1000, 250});
    t.hands->release(t.viewport(), t.at({1000, 250}), Qt::NoModifier);
    QCoreApplication::processEvents();
    QCOMPARE(t.signalCount, soFar);
    QCOMPARE(t.each(&AskedObject::settingsAsked), partsThatLook);
}

void TestSelectingMany::duplicatingIsOneSignalAndOneLookAtEachCopy()
{
    Crowd t(settingsPanel);
    t.selectAll();
    QCoreApplication::processEvents();
    t.forget();
    t.key(Qt::Key_D, Qt::ControlModifier);
    QCoreApplication::processEvents();
    QCOMPARE(t.signalCount, 1);
    const QVector<AskedObject *> all = t.objects();
    QCOMPARE(all.size(), 2 * shapes);
    for (int i = 0; i < all.size(); ++i)
        QCOMPARE(all[i]->settingsAsked, i < shapes ? 0 : partsThatLook);
}

void TestSelectingMany::deletingAllIsOneSignalAndNoLook()
{
    Crowd t(settingsPanel);
    const QVector<AskedObject *> all = t.objects();
    t.selectAll();
    QCoreApplication::processEvents();
    t.forget();
    t.key(Qt::Key_Delete);
    QCoreApplication::processEvents();
    QCOMPARE(t.board.page().objectCount(), 0);
    QCOMPARE(t.signalCount, 1);
    for (const AskedObject *object : all)
        QCOMPARE(object->settingsAsked, 0);
    t.signalCount = 0;
    t.board.history().undo();
    QCOMPARE(t.board.selection().size(), shapes);
    QCOMPARE(t.signalCount, 1);
}

void TestSelectingMany::aPartThatComesToTheFrontShowsTheSelection()
{
    Crowd t(outlinePanel);
    t.selectAll();
    QCoreApplication::processEvents();
    QCOMPARE(t.each(&AskedObject::settingsAsked), 0);
    t.board.window().raisePanel(settingsPanel(t.board.window()));
    // Painting finds that it is out of date.
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QCOMPARE(t.each(&AskedObject::settingsAsked), partsThatLook);
}

/// Keys may come faster than the event loop turns.
void TestSelectingMany::deleteRightAfterSelectAllDeletes()
{
    Crowd t(stylePanel);
    t.selectAll();
    QVERIFY(t.board.window().actions()->remove->isEnabled());
    t.board.window().actions()->remove->trigger();
    QCOMPARE(t.board.page().objectCount(), 0);
}

QTEST_MAIN(TestSelectingMany)
#include "test_selectingmany.moc"
