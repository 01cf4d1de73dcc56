#include <pagehost/commands.h>
#include <pagehost/creation.h>
#include <pagehost/objectregistry.h>
#include <pagehost/style.h>

#include "editor.h"

#include <QtGui/QScreen>

// Views keep a picture of every object. Whatever happens to an object, the view must show what it would show
// without.

namespace {

pagehost::ObjectRegistry &registry()
{
    static pagehost::ObjectRegistry instance;
    return instance;
}

/// Slanted edges are antialiased a little differently at another origin (14 was the most that was seen); something
/// missing or left behind differs by more than 100.
constexpr int rounding = 24;

int greatestDifference(const QImage &one, const QImage &other)
{
    int greatest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            greatest = qMax(greatest, qAbs(qRed(a) - qRed(b)));
            greatest = qMax(greatest, qAbs(qGreen(a) - qGreen(b)));
            greatest = qMax(greatest, qAbs(qBlue(a) - qBlue(b)));
        }
    }
    return greatest;
}

/// An object of a kind, drawn and selected, in a view that has shown it.
struct Shown : Editor
{
    explicit Shown(const QString &kindId)
    {
        pagehost::CreationTool tool(&registry());
        tool.begin(page->scene(), kindId);
        drag(QPointF(200, 150), QPointF(420, 300));
        object = page->objects().first();
        picture(view);
    }
    /// Without the edges, where scroll bars come and go.
    static QImage picture(QGraphicsView &view) { return view.viewport()->grab(QRect(0, 0, 900, 700)).toImage(); }
    /// The view's picture against one that uses no kept picture; afterwards a picture is kept again.
    bool isTrue()
    {
        QCoreApplication::processEvents();
        const QImage kept = picture(view);
        object->setCacheMode(QGraphicsItem::NoCache);
        const QImage painted = picture(view);
        object->setCacheMode(QGraphicsItem::DeviceCoordinateCache);
        picture(view);
        return greatestDifference(kept, painted) <= rounding;
    }
    /// What stands in the window, of which each change has repainted a part, against the window painted as a whole
    /// without kept pictures.
    bool leavesNoTraces()
    {
        QCoreApplication::processEvents();
        const QImage parts = window();
        object->setCacheMode(QGraphicsItem::NoCache);
        view.viewport()->update();
        QCoreApplication::processEvents();
        const QImage whole = window();
        object->setCacheMode(QGraphicsItem::DeviceCoordinateCache);
        return greatestDifference(parts, whole) <= rounding;
    }
    QImage window() const
    {
        return QGuiApplication::primaryScreen()->grabWindow(view.winId(), 0, 0, 900, 700).toImage();
    }
    CBaseObject *object;
};

} // namespace

class TestKeptPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyChangeShows_data();
    void everyChangeShows();
    void aThickPenLeavesNoTraces_data();
    void aThickPenLeavesNoTraces();
    void controlPointsGoWhenEditingEnds();
    void anUntouchedObjectIsNotPaintedAgain();
};

void TestKeptPictures::initTestCase()
{
    const QVector<pagehost::PluginReport> reports = registry().loadDirectory(QStringLiteral(SHAPE_PLUGIN_DIR));
    QVERIFY(!reports.isEmpty());
}

void TestKeptPictures::everyChangeShows_data()
{
    QTest::addColumn<QString>("kind");
    const QVector<pagehost::ObjectKind> kinds = registry().kinds();
    for (const pagehost::ObjectKind &kind : kinds) {
        QTest::newRow(qPrintable(kind.id)) << kind.id;
    }
}

void TestKeptPictures::everyChangeShows()
{
    QFETCH(QString, kind);
    Shown shown(kind);
    const QVector<CBaseObject *> objects{shown.object};
    QVERIFY(shown.isTrue());
    pagehost::setFill(objects, QColor(20, 160, 90));
    QVERIFY2(shown.isTrue(), "another fill");
    pagehost::setPenColor(objects, QColor(200, 10, 10));
    QVERIFY2(shown.isTrue(), "another pen colour");
    pagehost::setPenWidth(objects, 5);
    QVERIFY2(shown.isTrue(), "another pen width");
    shown.page->select({});
    QVERIFY2(shown.isTrue(), "not selected");
    pagehost::mirrorObjects(objects, true);
    QVERIFY2(shown.isTrue(), "mirrored");
    pagehost::moveObjects(objects, QPointF(31, -17));
    QVERIFY2(shown.isTrue(), "moved");
    pagehost::resizeObject(shown.object, QSizeF(150, 130));
    QVERIFY2(shown.isTrue(), "resized");
    pagehost::rotateObjects(objects, 30);
    QVERIFY2(shown.isTrue(), "turned");
    shown.setZoom(1.5);
    QVERIFY2(shown.isTrue(), "zoomed");
    shown.setZoom(1);
    while (undoStack()->canUndo()) {
        const QString step = undoStack()->undoText();
        undoStack()->undo();
        QVERIFY2(shown.isTrue(), qPrintable("undone: " + step));
    }
}

void TestKeptPictures::aThickPenLeavesNoTraces_data()
{
    everyChangeShows_data();
}

void TestKeptPictures::aThickPenLeavesNoTraces()
{
    QFETCH(QString, kind);
    constexpr int thick = 30;
    Shown shown(kind);
    const QVector<CBaseObject *> objects{shown.object};
    QVERIFY2(shown.leavesNoTraces(), "drawn");
    pagehost::setPenWidth(objects, thick);
    QVERIFY2(shown.leavesNoTraces(), "thick pen");
    pagehost::resizeObject(shown.object, QSizeF(300, 240));
    QVERIFY2(shown.leavesNoTraces(), "larger");
    shown.page->select({});
    QVERIFY2(shown.leavesNoTraces(), "not selected");
    pagehost::resizeObject(shown.object, QSizeF(90, 70));
    QVERIFY2(shown.leavesNoTraces(), "smaller");
    pagehost::rotateObjects(objects, 40);
    QVERIFY2(shown.leavesNoTraces(), "turned");
    pagehost::moveObjects(objects, QPointF(-60, 45));
    QVERIFY2(shown.leavesNoTraces(), "moved");
    while (undoStack()->canUndo()) {
        const QString step = undoStack()->undoText();
        undoStack()->undo();
        QVERIFY2(shown.leavesNoTraces(), qPrintable("undone: " + step));
    }
}

void TestKeptPictures::controlPointsGoWhenEditingEnds()
{
    Shown shown(QStringLiteral("shapes.blockarrow"));
    const QPoint onControlPoint(208, 225);
    const QPoint onFill(260, 225);
    const QImage editing = Shown::picture(shown.view);
    QCOMPARE(editing.pixelColor(onControlPoint), QColor(Qt::white));
    shown.document.setDocumentState(1);
    QCoreApplication::processEvents();
    const QImage presenting = Shown::picture(shown.view);
    QCOMPARE(presenting.pixelColor(onControlPoint), editing.pixelColor(onFill));
    shown.document.setDocumentState(0);
    QCoreApplication::processEvents();
    QCOMPARE(Shown::picture(shown.view), editing);
}

void TestKeptPictures::anUntouchedObjectIsNotPaintedAgain()
{
    Editor editor;
    auto *object = editor.add();
    Shown::picture(editor.view);
    const int before = object->paints;
    QVERIFY(before > 0);
    Shown::picture(editor.view);
    QCOMPARE(object->paints, before);
    object->CPSRootObject::update();
    Shown::picture(editor.view);
    QCOMPARE(object->paints, before + 1);
}

QTEST_MAIN(TestKeptPictures)

#include "test_keptpictures.moc"
