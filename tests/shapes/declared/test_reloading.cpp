// Files of shapes that change while objects are made of them.

#include "machine.h"

#include <svgbase/qzesvgtinydocument.h>
#include <svgobj/csvgbase.h>

#include <support/patience.h>

#include <QtCore/QSaveFile>
#include <QtWidgets/QGraphicsSceneMouseEvent>
#include <QtWidgets/QUndoStack>

#include <framework/cundoredo.h>
#include <pagehost/recorder.h>

#include <random>

using namespace declaredtest;

class TestReloading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_document.reset(); }

    void savedFileIsLiveInPaletteAndOnPages();
    void newFileIsOnOfferAndARemovedOneIsNot();
    void otherFilesInTheFolderChangeNothing();
    void fileIsKnownByItsShapeHoweverOftenItIsRead();
    void movedFileIsKnownByItsNewPlace();
    void ownShapesStayOwn();
    void objectsOfEarlierVersionsStayAsTheyAre();
    void pointsAndValuesStay();
    void faultyFileKeepsItsLastGoodLook();
    void faultIsGoneWithTheNextGoodFile();
    void dragGoesOnWhileTheFileIsSaved();
    void dragIsUndoneAfterTheFileHasChanged();
    void fileWithFewerPointsIsFollowed();
    void fileWithMorePointsIsFollowed();
    void fillMayMoveToThePage();
    void randomStepsAreUndoneAcrossChangesOfTheFile_data();
    void randomStepsAreUndoneAcrossChangesOfTheFile();
    void updateIsOneUndoStep();
    void updateOfAPresentObjectDoesNothing();
    void updateIsPlayed();
    void coresThatNoUndoStepNeedsAreDropped();
    void faultOfDrawingIsToldWithItsPlace();
    void faultOfAFileIsToldOnce();
    void dragOfAPointWithoutAHintIsNoFault();
    void replacedFilesAreNoticed();
    void fileThatIsWrittenWithoutAPauseIsReadAfterAQuarterOfASecond();

private:
    /// Saves the file and has it read, as the watch does a moment later.
    void save(const QByteArray &content);
    void dragTo(double x);
    double pointX() const;
    QUndoStack &stack() const { return *CUndoRedo::GetInstance()->stack(); }
    DeclaredObject *bar() const { return objectOn(*m_document); }
    QColor colourOf(QPoint pixel) const { return pictureOf(*m_document).pixelColor(pixel); }

    std::unique_ptr<Machine> m_machine;
    std::unique_ptr<pagehost::Document> m_document;
};

namespace {

const QString name = QStringLiteral("bar");
/// Lies in the bar on the page, whose corner is at (100, 100).
constexpr QPoint inside(110, 120);

} // namespace

void TestReloading::init()
{
    stack().clear();
    m_machine = std::make_unique<Machine>();
    m_machine->write(name, barFile("#ff0000"));
    m_machine->start();
    m_document = documentWithBar(*m_machine);
    stack().clear();
}

void TestReloading::save(const QByteArray &content)
{
    m_machine->write(name, content);
    m_machine->plugin().reload();
}

/// As a recorded step, with the hint that boards ask for; the bar has no frame of its own, so that a place on the
/// page is 100 more.
void TestReloading::dragTo(double x)
{
    m_document->page(0)->select({bar()});
    const auto send = [&](QEvent::Type type, QPointF pos, Qt::MouseButtons buttons) {
        QGraphicsSceneMouseEvent event(type);
        event.setScenePos(pos);
        event.setPos(bar()->mapFromScene(pos));
        event.setButton(type == QEvent::GraphicsSceneMouseMove ? Qt::NoButton : Qt::LeftButton);
        event.setButtons(buttons);
        if (type == QEvent::GraphicsSceneMousePress)
            bar()->mousePressEvent(&event);
        else if (type == QEvent::GraphicsSceneMouseMove)
            bar()->mouseMoveEvent(&event);
        else
            bar()->mouseReleaseEvent(&event);
    };
    const QPointF start = bar()->mapToScene(QPointF(pointX(), bar()->getClientRect().height() / 2));
    const QPointF end = start + QPointF(x - pointX(), 0);
    send(QEvent::GraphicsSceneMousePress, start, Qt::LeftButton);
    send(QEvent::GraphicsSceneMouseMove, end, Qt::LeftButton);
    QByteArray hint;
    QDataStream out(&hint, QIODevice::WriteOnly);
    bar()->GetSpecialProperty(pagehost::DragHint, out);
    send(QEvent::GraphicsSceneMouseRelease, end, Qt::NoButton);
}

double TestReloading::pointX() const
{
    QJsonObject json;
    bar()->saveJson(json);
    const double side = 8;
    return json.value(QLatin1String("SVG_PosX_1")).toDouble() + side / 2;
}

void TestReloading::savedFileIsLiveInPaletteAndOnPages()
{
    int changes = 0;
    m_machine->registry().setKindsListener([&] { ++changes; });
    m_document->page(0)->select({});
    QCOMPARE(colourOf(inside), QColor(Qt::red));
    save(barFile("#ff0000").replace("name='Bar'", "name='Rod'").replace("V{h}", "V{h / 2}"));
    QCOMPARE(changes, 1);
    QCOMPARE(m_machine->localizer().text(m_machine->registry().kind(barKind).nameKey), QStringLiteral("Rod"));
    QCOMPARE(colourOf({110, 130}), QColor(Qt::red));
    QCOMPARE(colourOf({110, 150}), QColor(Qt::white));
}

void TestReloading::newFileIsOnOfferAndARemovedOneIsNot()
{
    m_machine->write(QStringLiteral("nut"), fileOf(""));
    QVERIFY(QFile::remove(m_machine->pathOf(name)));
    m_machine->plugin().reload();
    QVERIFY(m_machine->registry().hasKind(QStringLiteral("declared.nut")));
    QVERIFY(!m_machine->registry().hasKind(barKind));
    m_document->page(0)->select({});
    QCOMPARE(colourOf(inside), QColor(Qt::red));
}

void TestReloading::otherFilesInTheFolderChangeNothing()
{
    int changes = 0;
    m_machine->registry().setKindsListener([&] { ++changes; });
    QFile notes(m_machine->pathOf(name) + QStringLiteral(".txt"));
    QVERIFY(notes.open(QIODevice::WriteOnly));
    m_machine->plugin().reload();
    QCOMPARE(changes, 0);
    save("<svg");
    QCOMPARE(changes, 1);
    m_machine->plugin().reload();
    QCOMPARE(changes, 1);
}

void TestReloading::fileIsKnownByItsShapeHoweverOftenItIsRead()
{
    for (const char *colour : {"#ff0000", "#00ff00", "#ff0000"}) {
        save(barFile(colour));
        QCOMPARE(m_machine->plugin().kindOfFile(m_machine->pathOf(name)), barKind);
    }
}

void TestReloading::movedFileIsKnownByItsNewPlace()
{
    const QByteArray text = barFile("#ff0000").replace("name='Bar'", "name='Bar' id='bar'");
    save(text);
    const QString place = m_machine->pathOf(QStringLiteral("rod"));
    int changes = 0;
    m_machine->registry().setKindsListener([&] { ++changes; });
    QVERIFY(QFile::rename(m_machine->pathOf(name), place));
    m_machine->plugin().reload();
    QCOMPARE(changes, 1);
    QCOMPARE(m_machine->plugin().kindOfFile(place), barKind);
    QCOMPARE(m_machine->plugin().kindOfFile(m_machine->pathOf(name)), QString());
}

void TestReloading::ownShapesStayOwn()
{
    const QDir own(userFolder());
    QVERIFY(QDir().mkpath(own.path()));
    const QString path = own.filePath(QStringLiteral("owned.shape.svg"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(fileOf(""));
    file.close();
    m_machine->plugin().reload();
    m_machine->plugin().reload();
    const QString group = m_machine->registry().kind(QStringLiteral("declared.owned")).group;
    QVERIFY(QFile::remove(path));
    QCOMPARE(group, QString::fromLatin1(pagehost::ownGroup));
    QVERIFY(m_machine->registry().kind(barKind).group != group);
}

/// Only objects of the text that the file had go along with it.
void TestReloading::objectsOfEarlierVersionsStayAsTheyAre()
{
    const QByteArray bytes = encodeDocument(*m_document, pagehost::DocumentFormat::Binary);
    save(barFile("#00ff00"));
    const pagehost::OpenResult opened = decodeDocument(bytes, m_machine->registry());
    save(barFile("#0000ff"));
    QCOMPARE(bar()->shapeKind().declaration().hash,
             readOf(barFile("#0000ff").replace("'Bar'", "'Bar' id='bar'"))->hash);
    QCOMPARE(objectOn(*opened.document)->shapeKind().declaration().text.contains("#ff0000"), true);
    setCurrentDocument(m_document.get());
}

void TestReloading::pointsAndValuesStay()
{
    dragTo(90);
    QCOMPARE(pointX(), 90.0);
    bar()->SetSettingJson(QStringLiteral(R"({"idDeclared_parts": "7"})"), true, true);
    QJsonObject before;
    bar()->saveJson(before);
    save(barFile("#ff0000").replace("V{h}", "V{h - 1}"));
    QJsonObject after;
    bar()->saveJson(after);
    QCOMPARE(pointX(), 90.0);
    const auto declared = [](const QJsonObject &json) {
        return json.value(QLatin1String("SVG_Declared")).toObject();
    };
    QVERIFY(declared(after).value(QLatin1String("text")) != declared(before).value(QLatin1String("text")));
    QCOMPARE(declared(after).value(QLatin1String("values")), declared(before).value(QLatin1String("values")));
    before.remove(QStringLiteral("SVG_Declared"));
    after.remove(QStringLiteral("SVG_Declared"));
    QCOMPARE(after, before);
}

void TestReloading::faultyFileKeepsItsLastGoodLook()
{
    const QByteArray bytes = savedBytes(bar());
    save(barFile("#ff0000").replace("{p1.x}", "{p1.z}"));
    QCOMPARE(savedBytes(bar()), bytes);
    QVERIFY(m_machine->registry().hasKind(barKind));
    const QStringList faults = m_machine->registry().faults();
    QCOMPARE(faults.size(), 1);
    QVERIFY2(faults.first().startsWith(m_machine->pathOf(name) + QStringLiteral(":4:")),
             qPrintable(faults.first()));
}

void TestReloading::faultIsGoneWithTheNextGoodFile()
{
    save("<svg");
    QVERIFY(!m_machine->registry().faults().isEmpty());
    save(barFile("#ff0000").replace("V{h}", "V{h / 2}"));
    QCOMPARE(m_machine->registry().faults(), QStringList());
    m_document->page(0)->select({});
    QCOMPARE(colourOf({110, 150}), QColor(Qt::white));
}

void TestReloading::dragGoesOnWhileTheFileIsSaved()
{
    m_document->page(0)->select({bar()});
    const QPointF start(pointX(), bar()->getClientRect().height() / 2);
    QGraphicsSceneMouseEvent press(QEvent::GraphicsSceneMousePress);
    press.setPos(start);
    press.setScenePos(bar()->mapToScene(start));
    press.setButton(Qt::LeftButton);
    bar()->mousePressEvent(&press);
    QVERIFY(bar()->isDragged());
    const ShapeKind &before = bar()->shapeKind();
    save(barFile("#00ff00"));
    QCOMPARE(&bar()->shapeKind(), &before);
    QGraphicsSceneMouseEvent release(QEvent::GraphicsSceneMouseRelease);
    release.setPos(start);
    release.setScenePos(bar()->mapToScene(start));
    release.setButton(Qt::LeftButton);
    bar()->mouseReleaseEvent(&release);
    m_machine->plugin().reload();
    QVERIFY(&bar()->shapeKind() != &before);
}

void TestReloading::dragIsUndoneAfterTheFileHasChanged()
{
    dragTo(90);
    dragTo(40);
    save(barFile("#ff0000").replace("V{h}", "V{h / 2}"));
    stack().undo();
    QCOMPARE(pointX(), 90.0);
    stack().undo();
    QCOMPARE(pointX(), 60.0);
    stack().redo();
    stack().redo();
    QCOMPARE(pointX(), 40.0);
}

void TestReloading::fileWithFewerPointsIsFollowed()
{
    const QByteArray second = "<rect id='control_2' x='10' y='10' width='8' height='8' fill='none' "
                              "shape:range-x='8 .. w' shape:range-y='8 .. h'/>";
    save(barFile("#ff0000", "20 .. w - 8", second));
    stack().clear();
    QJsonObject json;
    bar()->saveJson(json);
    QCOMPARE(json.value(QLatin1String("SVG_ControlCount")).toInt(), 2);
    dragTo(90);
    save(barFile("#ff0000"));
    bar()->saveJson(json);
    QCOMPARE(json.value(QLatin1String("SVG_ControlCount")).toInt(), 1);
    stack().undo();
    QCOMPARE(pointX(), 60.0);
}

/// The new one stands where it does in a new shape.
void TestReloading::fileWithMorePointsIsFollowed()
{
    dragTo(90);
    save(barFile("#ff0000", "20 .. w - 8",
                 "<rect id='control_2' x='10' y='10' width='8' height='8' fill='none' shape:range-x='8 .. w' "
                 "shape:range-y='8 .. h'/>"));
    QJsonObject json;
    bar()->saveJson(json);
    QCOMPARE(json.value(QLatin1String("SVG_ControlCount")).toInt(), 2);
    QCOMPARE(json.value(QLatin1String("SVG_PosX_2")).toDouble(), 10.0);
    QCOMPARE(json.value(QLatin1String("SVG_PosY_2")).toDouble(), 10.0);
    QCOMPARE(pointX(), 90.0);
}

void TestReloading::fillMayMoveToThePage()
{
    dragTo(90);
    m_document->page(0)->select({});
    save(barFile("#ff0000").replace("name='Bar'", "name='Bar' filled='page'"));
    QCOMPARE(colourOf(inside), QColor(Qt::red));
    stack().undo();
    QCOMPARE(pointX(), 60.0);
    stack().redo();
    QCOMPARE(pointX(), 90.0);
    QCOMPARE(colourOf(inside), QColor(Qt::red));
}

void TestReloading::randomStepsAreUndoneAcrossChangesOfTheFile_data()
{
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : {1u, 2u, 3u})
        QTest::addRow("seed %u", seed) << seed;
}

/// Versions that differ in their look alone: undo brings every point and value back, whichever is the present one.
void TestReloading::randomStepsAreUndoneAcrossChangesOfTheFile()
{
    QFETCH(unsigned, seed);
    std::minstd_rand random(seed);
    const auto upTo = [&](int most) { return int(random() % unsigned(most)); };
    const auto state = [&] {
        QJsonObject json;
        bar()->saveJson(json);
        QJsonObject declared = json.value(QLatin1String("SVG_Declared")).toObject();
        declared.remove(QStringLiteral("text"));
        json[QStringLiteral("SVG_Declared")] = declared;
        return json;
    };
    QVector<QJsonObject> states{state()};
    int version = 0;
    const auto reload = [&] {
        save(barFile(qPrintable(QStringLiteral("#%1").arg(++version, 6, 10, QLatin1Char('0')))));
    };
    for (int step = 0; step < 60; ++step) {
        const int count = stack().count();
        switch (upTo(4)) {
        case 0:
            dragTo(20 + upTo(90));
            break;
        case 1:
            bar()->SetSettingJson(QStringLiteral(R"({"idDeclared_parts": "%1"})").arg(upTo(10)), true, true);
            break;
        case 2:
            pagehost::resizeObject(bar(), QSizeF(130 + upTo(100), 60 + upTo(100)));
            break;
        default:
            reload();
            break;
        }
        if (stack().count() > count)
            states.append(state());
    }
    QVERIFY(version > 5);
    QCOMPARE(states.size(), stack().count() + 1);
    for (int i = stack().count() - 1; i >= 0; --i) {
        if (upTo(5) == 0)
            reload();
        stack().undo();
        QCOMPARE(state(), states.at(i));
    }
    for (int i = 1; i < states.size(); ++i) {
        if (upTo(5) == 0)
            reload();
        stack().redo();
        QCOMPARE(state(), states.at(i));
    }
}

void TestReloading::updateIsOneUndoStep()
{
    dragTo(90);
    const QByteArray bytes = encodeDocument(*m_document, pagehost::DocumentFormat::Binary);
    save(barFile("#00ff00", "20 .. 50"));
    const pagehost::OpenResult opened = decodeDocument(bytes, m_machine->registry());
    setCurrentDocument(opened.document.get());
    stack().clear();
    DeclaredObject *object = objectOn(*opened.document);
    QVERIFY(!pagehost::isPresentVersion(*object));
    const QByteArray before = savedBytes(object);
    QVERIFY(pagehost::updateVersion({object}));
    QVERIFY(pagehost::isPresentVersion(*object));
    const QByteArray after = savedBytes(object);
    QVERIFY(after != before);
    QJsonObject json;
    object->saveJson(json);
    // Into the range, which ends at 50.
    QCOMPARE(json.value(QLatin1String("SVG_PosX_1")).toDouble() + 4, 50.0);
    QCOMPARE(stack().count(), 1);
    stack().undo();
    QCOMPARE(savedBytes(object), before);
    QVERIFY(!pagehost::isPresentVersion(*object));
    stack().redo();
    QCOMPARE(savedBytes(object), after);
    setCurrentDocument(m_document.get());
}

void TestReloading::updateOfAPresentObjectDoesNothing()
{
    const QByteArray before = savedBytes(bar());
    QVERIFY(pagehost::isPresentVersion(*bar()));
    QVERIFY(!pagehost::updateVersion({bar()}));
    QCOMPARE(stack().count(), 0);
    QCOMPARE(savedBytes(bar()), before);
}

/// A lesson brings the step about in another object of the same past.
void TestReloading::updateIsPlayed()
{
    const QByteArray bytes = encodeDocument(*m_document, pagehost::DocumentFormat::Binary);
    save(barFile("#00ff00"));
    const pagehost::OpenResult taught = decodeDocument(bytes, m_machine->registry());
    const pagehost::OpenResult learnt = decodeDocument(bytes, m_machine->registry());
    struct Sink : pagehost::ActionSink
    {
        void actionRecorded(CPSRootObject *, int id, const QByteArray &data) override
        {
            actions.append({id, data});
        }
        QVector<QPair<int, QByteArray>> actions;
    } sink;
    pagehost::ActionSink *before = pagehost::setActionSink(&sink);
    pagehost::updateVersion({objectOn(*taught.document)});
    pagehost::setActionSink(before);
    QCOMPARE(sink.actions.size(), 1);
    pagehost::replayAction(objectOn(*learnt.document), sink.actions.first().first, sink.actions.first().second);
    QCOMPARE(savedBytes(objectOn(*learnt.document)), savedBytes(objectOn(*taught.document)));
    QVERIFY(pagehost::isPresentVersion(*objectOn(*learnt.document)));
}

void TestReloading::coresThatNoUndoStepNeedsAreDropped()
{
    for (int version = 0; version < 10; ++version)
        save(barFile(qPrintable(QStringLiteral("#00000%1").arg(version))));
    // The last one may be at work when it is replaced.
    QVERIFY(bar()->formerCoreCount() <= 1);
    dragTo(90);
    for (int version = 0; version < 10; ++version)
        save(barFile(qPrintable(QStringLiteral("#11111%1").arg(version))));
    QCOMPARE(bar()->formerCoreCount(), 2);
}

void TestReloading::faultOfDrawingIsToldWithItsPlace()
{
    QStringList told;
    m_machine->registry().setProblemListener(
        [&](const pagehost::PluginReport &report) { told.append(report.problem); });
    save(barFile("#ff0000", "20 .. w - 8",
                 "<path fill='none' stroke='#000' d='M0 0' shape:d='M0 0H{9 / (parts - 3)}'/>"));
    pictureOf(*m_document);
    const QString fault = m_machine->pathOf(name) + QStringLiteral(":6:51: warning C40: the value is not finite");
    QCOMPARE(told, QStringList{fault});
    QCOMPARE(m_machine->registry().reports().constFirst().messages.last().column, 51);
}

void TestReloading::faultOfAFileIsToldOnce()
{
    QStringList told;
    m_machine->registry().setProblemListener(
        [&](const pagehost::PluginReport &report) { told.append(report.problem); });
    save(barFile("#ff0000").replace("{p1.x}", "{p1.z}"));
    QCOMPARE(m_machine->registry().faults().size(), 1);
    QCOMPARE(m_machine->registry().reports().constFirst().messages.last().told(),
             m_machine->registry().faults().constFirst());
    QCOMPARE(told, QStringList());
}

void TestReloading::dragOfAPointWithoutAHintIsNoFault()
{
    QStringList told;
    m_machine->registry().setProblemListener(
        [&](const pagehost::PluginReport &report) { told.append(report.problem); });
    // Faults are told with the next drawing.
    dragTo(90);
    dragTo(80);
    pictureOf(*m_document);
    QCOMPARE(pointX(), 80.0);
    QCOMPARE(told, QStringList());
}

/// Editors write a new file and put it in the place of the old one.
void TestReloading::replacedFilesAreNoticed()
{
    for (const char *colour : {"#00ff00", "#0000ff"}) {
        QSaveFile file(m_machine->pathOf(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(barFile(colour));
        QVERIFY(file.commit());
        QTRY_VERIFY_WITH_TIMEOUT(bar()->shapeKind().declaration().text.contains(colour), support::patience);
    }
    QVERIFY(QFile::remove(m_machine->pathOf(name)));
    QTRY_VERIFY_WITH_TIMEOUT(!m_machine->registry().hasKind(barKind), support::patience);
}

void TestReloading::fileThatIsWrittenWithoutAPauseIsReadAfterAQuarterOfASecond()
{
    ShapeWatch watch;
    for (int wait = 0; wait < 5; ++wait)
        QVERIFY(watch.tellLater());
    QVERIFY(!watch.tellLater());
    QVERIFY(!watch.tellLater());
    QCOMPARE(ShapeWatch::quietTime * ShapeWatch::mostWaits, 250);
    QSignalSpy told(&watch, &ShapeWatch::changed);
    QVERIFY(told.wait(support::patience));
    QCOMPARE(told.count(), 1);
    QVERIFY(watch.tellLater());
}

QTEST_MAIN(TestReloading)
#include "test_reloading.moc"
