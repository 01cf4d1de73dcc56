// Shapes that move on a page that somebody looks at: what plays, and what it costs.

#include <framework/editor.h>

#include <support/listed.h>
#include <support/virtualtime.h>

#include <shapekit/shape.h>
#include <shapekit/shapeobject.h>

#include <pagehost/animationplayer.h>
#include <pagehost/commands.h>
#include <pagehost/objectplugin.h>
#include <pagehost/selection.h>

#include <svgobj/csvganimate.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtTest/QtTest>

#include <memory>

namespace {

constexpr int tick = 33;         ///< milliseconds
constexpr int timerRounding = 2; ///< milliseconds that Qt's coarse timers of that interval may be late

/// A square that goes from left to right in a second, in a shape with a control point.
class Mover : public shapekit::ShapeOfType<501, shapekit::Shape::Stretched>
{
public:
    using ShapeOfType::ShapeOfType;
    QString getSVG() override
    {
        return QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 100 60'>"
                              "<rect id='figure' x='0' y='0' width='20' height='20' fill='red' stroke='black'>"
                              "<animate attributeName='x' from='0' to='80' dur='1s' repeatCount='indefinite'/>"
                              "</rect><rect id='control_1' x='46' y='26' width='8' height='8'/></svg>");
    }

    using CSVGBase::animator;
    using CSVGBase::document;
};

/// The same without motion.
class Rester : public Mover
{
public:
    using Mover::Mover;
    QString getSVG() override
    {
        return Mover::getSVG().remove(QRegularExpression(QStringLiteral("<animate[^>]*>")));
    }
};

shapekit::Kind kindOf(shapekit::CoreFactory makeCore)
{
    shapekit::Kind kind;
    kind.name = QStringLiteral("counted");
    kind.makeCore = makeCore;
    return kind;
}

const shapekit::Kind moving = kindOf(&shapekit::makeCore<Mover>);
const shapekit::Kind resting = kindOf(&shapekit::makeCore<Rester>);

/// Counts what is asked of it.
class Counted : public shapekit::ShapeObject
{
public:
    Counted(const shapekit::Kind &kind, const QPointF &pos)
        : ShapeObject(kind)
    {
        for (const QEvent::Type type : {QEvent::GraphicsSceneMousePress, QEvent::GraphicsSceneMouseRelease}) {
            QGraphicsSceneMouseEvent event(type);
            event.setButton(Qt::LeftButton);
            type == QEvent::GraphicsSceneMousePress ? mousePressEvent(&event) : mouseReleaseEvent(&event);
        }
        CPSRootObject::setPos(pos, false);
    }
    void OnQPainterDraw(QPainter *painter) override
    {
        ++(painter ? paints : renderings);
        ShapeObject::OnQPainterDraw(painter);
    }
    Mover &mover() const { return *static_cast<Mover *>(core()); }
    QTimer *timer() const { return mover().animator->findChild<QTimer *>(); }
    bool runs() const { return mover().isAnimating(); }
    void forget() { paints = renderings = 0; }

    int paints = 0;
    int renderings = 0;
};

/// A page in a view of 1000 × 800, with something that moves at its top left and its player.
struct Stage : Editor
{
    Stage()
        : object(new Counted(moving, {100, 100}))
    {
        page->addObject(object);
        player = std::make_unique<pagehost::AnimationPlayer>(&view);
        player->setPage(page);
        show();
    }
    void show()
    {
        player->settle();
        QCoreApplication::processEvents();
        view.viewport()->repaint();
    }
    Counted *object;
    std::unique_ptr<pagehost::AnimationPlayer> player;
};

} // namespace

class TestPlaying : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsSeenPlays();
    void oneRenderingPerTick();
    void neighboursAreNotPainted();
    void pictureIsNoChangeOfThePage();
    void changeOfAPlayingObjectIsTold();
    void undoneChangeOfAPlayingObjectIsTold();

    void scrolledAwayCostsNothing();
    void movedAwayCostsNothing();
    void hiddenObjectCostsNothing();
    void anotherPageCostsNothing();
    void hiddenViewCostsNothing();
    void deletedObjectCostsNothing();
    void nothingRunsAfterThePlayer();

    void pausedObjectStandsStill();
    void pausedObjectGoesOnFromWhereItWas();
    void newObjectPlays();
    void objectThatRestsIsLeftAlone();
    void playerTellsWhetherSomethingMoves();
    void pageMayGoWhileItPlays();
    void listenerMayTakeTheObjectAway();
    void propertyIsNotRecordedNorUndone();
    void cutOffPropertyChangesNothing();
};

void TestPlaying::whatIsSeenPlays()
{
    Stage stage;
    QVERIFY(stage.player->isPlaying());
    QVERIFY(stage.object->runs());
    support::pass(7);
    QCOMPARE(stage.object->mover().document->animationTime(), 0.007);
}

void TestPlaying::oneRenderingPerTick()
{
    Stage stage;
    int ticks = 0;
    QObject::connect(stage.object->timer(), &QTimer::timeout, stage.object, [&] { ++ticks; });
    stage.object->forget();
    support::pass(5 * tick + timerRounding);
    QCOMPARE(ticks, 5);
    QCOMPARE(stage.object->renderings, 5);
    QCOMPARE(stage.object->paints, 5);
}

void TestPlaying::neighboursAreNotPainted()
{
    Stage stage;
    QVector<Counted *> neighbours;
    // The first lies under the moving one, the second over it, the others around it.
    for (const QPointF &pos : {QPointF(120, 110), QPointF(90, 90), QPointF(210, 100), QPointF(100, 170)}) {
        neighbours.append(new Counted(resting, pos));
        stage.page->addObject(neighbours.last(), neighbours.size() == 1 ? 0 : -1);
    }
    stage.show();
    for (Counted *neighbour : qAsConst(neighbours)) {
        QVERIFY(neighbour->paints > 0);
        neighbour->forget();
    }
    stage.object->forget();
    support::pass(4 * tick + timerRounding);
    QCOMPARE(stage.object->paints, 4);
    for (const Counted *neighbour : qAsConst(neighbours)) {
        QCOMPARE(neighbour->paints, 0);
        QCOMPARE(neighbour->renderings, 0);
    }
}

void TestPlaying::pictureIsNoChangeOfThePage()
{
    Stage stage;
    const quint64 revision = stage.page->revision();
    QSignalSpy content(stage.page, &pagehost::Page::contentChanged);
    QSignalSpy changed(stage.page, &pagehost::Page::objectChanged);
    QSignalSpy told(stage.page, &pagehost::Page::objectPropertyChanged);
    stage.object->forget();
    support::pass(3 * tick + timerRounding);
    QCOMPARE(stage.object->renderings, 3);
    QCOMPARE(content.count(), 0);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(stage.page->revision(), revision);
    QCOMPARE(told.count(), stage.object->renderings);
    QCOMPARE(told.first().at(1).toInt(), int(CPSRootObject::AppearanceChanged));
}

void TestPlaying::changeOfAPlayingObjectIsTold()
{
    Stage stage;
    QSignalSpy changed(stage.page, &pagehost::Page::objectChanged);
    QSignalSpy content(stage.page, &pagehost::Page::contentChanged);
    stage.object->mover().setPenWidth(5, false);
    stage.object->mover().invalidate();
    QCOMPARE(changed.count(), 1);
    support::deliverEvents();
    QCOMPARE(content.count(), 1);
    QVERIFY(stage.object->runs());
}

void TestPlaying::undoneChangeOfAPlayingObjectIsTold()
{
    Stage stage;
    stage.object->SetSettingJson(QStringLiteral("{\"idOutlineColor\": \"#FF00FF00\"}"), true, true);
    QSignalSpy changed(stage.page, &pagehost::Page::objectChanged);
    undoStack()->undo();
    QVERIFY(changed.count() > 0);
    QVERIFY(stage.object->runs());
}

void TestPlaying::scrolledAwayCostsNothing()
{
    Stage stage;
    stage.setZoom(4);
    stage.show();
    QVERIFY(stage.object->runs());
    QScrollBar *bar = stage.view.verticalScrollBar();
    bar->setValue(bar->maximum());
    support::deliverEvents();
    QVERIFY(!stage.object->runs());
    QVERIFY(!stage.object->timer()->isActive());
    stage.object->forget();
    support::pass(10 * tick);
    QCOMPARE(stage.object->renderings, 0);
    QCOMPARE(stage.object->paints, 0);
    bar->setValue(bar->minimum());
    support::deliverEvents();
    QVERIFY(stage.object->runs());
    stage.object->forget();
    support::pass(2 * tick + timerRounding);
    QCOMPARE(stage.object->renderings, 2);
}

void TestPlaying::movedAwayCostsNothing()
{
    Stage stage;
    stage.object->CPSRootObject::setPos({100, 5000}, false);
    support::deliverEvents();
    QVERIFY(!stage.object->runs());
    stage.object->CPSRootObject::setPos({100, 500}, false);
    support::deliverEvents();
    QVERIFY(stage.object->runs());
}

void TestPlaying::hiddenObjectCostsNothing()
{
    Stage stage;
    stage.object->QGraphicsItem::setVisible(false);
    support::deliverEvents();
    QVERIFY(!stage.object->runs());
    stage.object->QGraphicsItem::setVisible(true);
    support::deliverEvents();
    QVERIFY(stage.object->runs());
}

void TestPlaying::anotherPageCostsNothing()
{
    Stage stage;
    pagehost::Page *other = stage.document.appendPage();
    stage.view.setScene(other->scene());
    stage.player->setPage(other);
    QVERIFY(!stage.object->runs());
    stage.object->forget();
    support::pass(10 * tick);
    QCOMPARE(stage.object->renderings, 0);
    stage.view.setScene(stage.page->scene());
    stage.player->setPage(stage.page);
    support::deliverEvents();
    QVERIFY(stage.object->runs());
}

void TestPlaying::hiddenViewCostsNothing()
{
    Stage stage;
    stage.view.hide();
    support::deliverEvents();
    QVERIFY(!stage.object->runs());
    stage.view.show();
    support::deliverEvents();
    QVERIFY(stage.object->runs());
}

void TestPlaying::deletedObjectCostsNothing()
{
    Stage stage;
    stage.page->select({stage.object});
    pagehost::deleteSelection(stage.page);
    QVERIFY(!stage.object->runs());
    QVERIFY(!stage.player->hasAnimation());
    undoStack()->undo();
    support::deliverEvents();
    QVERIFY(stage.object->runs());
}

void TestPlaying::nothingRunsAfterThePlayer()
{
    Stage stage;
    stage.player.reset();
    QVERIFY(!stage.object->runs());
}

void TestPlaying::pausedObjectStandsStill()
{
    Stage stage;
    QSignalSpy told(stage.player.get(), &pagehost::AnimationPlayer::playingChanged);
    stage.player->setPlaying(false);
    QCOMPARE(told.count(), 1);
    QVERIFY(!stage.object->runs());
    const double time = stage.object->mover().document->animationTime();
    const QImage picture = stage.view.viewport()->grab().toImage();
    stage.object->forget();
    support::pass(10 * tick);
    QCOMPARE(stage.object->renderings, 0);
    QCOMPARE(stage.object->mover().document->animationTime(), time);
    QCOMPARE(stage.view.viewport()->grab().toImage(), picture);
}

void TestPlaying::pausedObjectGoesOnFromWhereItWas()
{
    Stage stage;
    stage.object->mover().document->setAnimationTime(500);
    for (int round = 0; round < 3; ++round) {
        stage.player->setPlaying(false);
        const double time = stage.object->mover().document->animationTime();
        QCOMPARE(time, 500 + 0.007 * round);
        support::pass(1000);
        stage.player->setPlaying(true);
        QVERIFY(stage.object->runs());
        support::pass(7);
    }
}

void TestPlaying::newObjectPlays()
{
    Stage stage;
    auto *second = new Counted(moving, {300, 300});
    stage.page->addObject(second);
    support::deliverEvents();
    QVERIFY(second->runs());
    stage.player->setPlaying(false);
    auto *third = new Counted(moving, {300, 500});
    stage.page->addObject(third);
    stage.show();
    QVERIFY(!third->runs());
}

void TestPlaying::objectThatRestsIsLeftAlone()
{
    const Counted rester(resting, {});
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    QVERIFY(!rester.mover().GetSpecialProperty(pagehost::AnimationRuns, out));
    QVERIFY(bytes.isEmpty());
    const QByteArray on(1, 1);
    QDataStream in(on);
    QVERIFY(!rester.mover().SetSpecialProperty(pagehost::AnimationRuns, in, false));
    QVERIFY(!rester.runs());
}

void TestPlaying::playerTellsWhetherSomethingMoves()
{
    Stage stage;
    QVERIFY(stage.player->hasAnimation());
    QSignalSpy told(stage.player.get(), &pagehost::AnimationPlayer::hasAnimationChanged);
    stage.page->addObject(new Counted(moving, {300, 300}));
    QCOMPARE(told.count(), 0);
    stage.page->removeObject(stage.object);
    QCOMPARE(told.count(), 0);
    stage.page->removeObject(stage.page->objects().constFirst());
    QCOMPARE(told.count(), 1);
    QVERIFY(!stage.player->hasAnimation());
    stage.page->addObject(new Counted(resting, {0, 0}));
    QVERIFY(!stage.player->hasAnimation());
}

void TestPlaying::pageMayGoWhileItPlays()
{
    Stage stage;
    auto other = std::make_unique<pagehost::Document>();
    pagehost::Page *page = other->appendPage();
    page->addObject(new Counted(moving, {100, 100}));
    stage.view.setScene(page->scene());
    stage.player->setPage(page);
    stage.show();
    other.reset();
    stage.view.setScene(stage.page->scene());
    stage.player->setPage(stage.page);
    support::deliverEvents();
    QVERIFY(stage.object->runs());
    QVERIFY(stage.player->hasAnimation());
}

void TestPlaying::listenerMayTakeTheObjectAway()
{
    Stage stage;
    stage.player->setPlaying(false);
    stage.page->addObject(new Counted(moving, {300, 300}));
    QObject::connect(stage.page, &pagehost::Page::objectPropertyChanged, stage.player.get(),
                     [&](CBaseObject *object) {
                         for (CBaseObject *each : support::listed(stage.page->objects()))
                             if (each != object)
                                 stage.page->removeObject(each);
                     });
    stage.player->setPlaying(true);
    QCOMPARE(stage.page->objectCount(), 1);
    QVERIFY(static_cast<Counted *>(stage.page->objects().constFirst())->runs());
}

void TestPlaying::propertyIsNotRecordedNorUndone()
{
    undoStack()->clear();
    const Counted mover(moving, {});
    const QByteArray on(1, 1);
    QDataStream in(on);
    QVERIFY(mover.mover().SetSpecialProperty(pagehost::AnimationRuns, in, true));
    QVERIFY(mover.runs());
    QCOMPARE(undoStack()->count(), 0);
}

void TestPlaying::cutOffPropertyChangesNothing()
{
    const Counted mover(moving, {});
    const QByteArray on(1, 1);
    QDataStream in(on);
    mover.mover().SetSpecialProperty(pagehost::AnimationRuns, in, false);
    QDataStream empty(QByteArray{});
    mover.mover().SetSpecialProperty(pagehost::AnimationRuns, empty, false);
    QVERIFY(mover.runs());
}

QTEST_MAIN(TestPlaying)
#include "test_playing.moc"
