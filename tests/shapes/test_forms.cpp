// Stress of every shape: drags of its control points under any mirroring, rotation, size and zoom, its smallest
// size, painting from another thread, and a thousand creations.

#include <shapes/randomedits.h>
#include <shapes/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <pagehost/application.h>
#include <pagehost/commands.h>
#include <pagehost/document.h>

#include <svgbase/qzesvgstructurenode.h>
#include <svgbase/qzesvgtinydocument.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

#include <malloc.h>

#include <atomic>
#include <thread>

using shapetest::RandomEdits;
using shapetest::ShapeDriver;

namespace {

constexpr unsigned startValue = 31;
constexpr double tolerance = 0.01; // item units
constexpr double frameMargin = 8;  // around lines, so that they can be hit

struct Pose
{
    const char *name;
    bool mirrored;
    bool flipped;
    double rotation;
    QSizeF factor; ///< of the usual size
    double zoom;
};

const Pose poses[] = {
    {"as it is", false, false, 0, {1, 1}, 1},
    {"mirrored", true, false, 0, {1, 1}, 1},
    {"upside down", false, true, 0, {1, 1}, 1},
    {"turned by 30 degrees", false, false, 30, {1, 1}, 1},
    {"wide", false, false, 0, {2.5, 1.25}, 1},
    {"tall and small on screen", false, false, 0, {1.1, 2.3}, 0.5},
    {"mirrored, turned by 90 degrees, twice as large on screen", true, false, 90, {1.5, 1.5}, 2},
    {"both ways mirrored, wide, turned and three times as large", true, true, 200, {2, 1.2}, 3},
};

/// Shapes that keep their points on a line or circle of their own: a drag takes these to the nearest place there.
QStringList boundPoints()
{
    return {
        QStringLiteral("clock"),
        QStringLiteral("pendulum"),
        QStringLiteral("pie"),
        QStringLiteral("protractor"),
        QStringLiteral("star"),
        QStringLiteral("declared/balance"),
        QStringLiteral("declared/fractioncircle"),
        QStringLiteral("declared/gauge"),
        QStringLiteral("declared/prism"),
        QStringLiteral("declared/ramp"),
        QStringLiteral("declared/switch"),
    };
}

/// The figures and texts of a drawing, in groups or not, without control points.
QVector<const QZeSvgNode *> partsOf(const QZeSvgStructureNode &root)
{
    QVector<const QZeSvgNode *> parts;
    for (const QZeSvgNode *node : root.children())
        if (node->type() == QZeSvgNode::Group)
            parts += partsOf(*static_cast<const QZeSvgStructureNode *>(node));
        else if (!node->nodeId().startsWith(QLatin1String("control_")))
            parts.append(node);
    return parts;
}

/// Of any channel: painting over a transparent picture and that over white rounds twice.
constexpr int roundingOfLayers = 4;

int largestDifference(const QImage &a, const QImage &b)
{
    int largest = a.size() == b.size() ? 0 : 255;
    for (int y = 0; y < a.height() && largest < 255; ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor one = a.pixelColor(x, y);
            const QColor other = b.pixelColor(x, y);
            largest = qMax(largest, qMax(qAbs(one.red() - other.red()),
                                         qMax(qAbs(one.green() - other.green()), qAbs(one.blue() - other.blue()))));
        }
    }
    return largest;
}

/// Heap in use, bytes; 0 where the allocator does not tell.
size_t heapInUse()
{
    return mallinfo2().uordblks;
}

} // namespace

class TestForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void templateIsCleanAndIsTheDefaultSize_data() { addShapeRows(); }
    void templateIsCleanAndIsTheDefaultSize();
    void linesAreAsWideAsTheyAreOnceTheyAreSaved_data() { addShapeRows(); }
    void linesAreAsWideAsTheyAreOnceTheyAreSaved();
    void templateIsDrawnAsItStands_data() { addShapeRows(); }
    void templateIsDrawnAsItStands();
    void controlPointGoesWhereItCanBeDragged_data();
    void controlPointGoesWhereItCanBeDragged();
    void someControlPointsAreFree() { QVERIFY(freeDrags >= 10); }
    void everyControlPointChangesThePicture_data() { addShapeRows(); }
    void everyControlPointChangesThePicture();
    void outlineHoldsTheDrawingAndTheControlPoints_data() { addShapeRows(); }
    void outlineHoldsTheDrawingAndTheControlPoints();
    void smallestSizeCanBeDrawnAndLeft_data() { addShapeRows(); }
    void smallestSizeCanBeDrawnAndLeft();
    void iconShowsTheShape_data() { addShapeRows(); }
    void iconShowsTheShape();
    void threadPaintsWhatTheShapeShows_data() { addShapeRows(); }
    void threadPaintsWhatTheShapeShows();
    void threadPaintsDuringEdits_data() { addShapeRows(); }
    void threadPaintsDuringEdits();
    void thousandShapesAreSmallAndLeaveNothing_data() { addShapeRows(); }
    void thousandShapesAreSmallAndLeaveNothing();

private:
    void addShapeRows();

    int freeDrags = 0; ///< drags of the table that had to end under the cursor
};

void TestForms::addShapeRows()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : shapetest::allShapeNames())
        QTest::newRow(qPrintable(name)) << name;
}

void TestForms::templateIsCleanAndIsTheDefaultSize()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    for (const QZeSvgTinyDocument::Message &message : shape.document().messages())
        QFAIL(qPrintable(QStringLiteral("line %1: %2").arg(message.line).arg(message.text)));
    const QSizeF size = shape.document().viewBox().size();
    shape.createByClick();
    QCOMPARE(shape.object().getClientRect(), QRectF(QPointF(0, 0), size));
    const QSizeF smallest = shape.core().getMinimizeSize();
    QVERIFY(smallest.width() <= size.width() && smallest.height() <= size.height());
}

/// A file keeps one pen width, a whole number of units, and loading gives it to every line that follows the pen.
void TestForms::linesAreAsWideAsTheyAreOnceTheyAreSaved()
{
    QFETCH(QString, name);
    constexpr double otherWidth = 7;
    ShapeDriver shape(name);
    const double saved = shape.core().getPenWidth();
    QVERIFY(saved != otherWidth);
    QVector<QPair<const QZeSvgNode *, double>> widths;
    for (const QZeSvgNode *part : partsOf(shape.document()))
        widths.append({part, part->strokeWidth()});
    shape.document().setAllStrokeWidth(otherWidth);
    int followers = 0;
    for (const auto &[node, width] : widths) {
        if (node->strokeWidth() != otherWidth)
            continue;
        ++followers;
        QVERIFY2(width == saved, qPrintable(QStringLiteral("%1: %2").arg(node->nodeId()).arg(width)));
    }
    QVERIFY(followers > 0 || name == QLatin1String("picture")); // which has no lines
}

void TestForms::templateIsDrawnAsItStands()
{
    // The shape draws the look of the template: the icon of an editor, the first look, the saved form.
    QFETCH(QString, name);
    ShapeDriver shape(name);
    QScopedPointer<QZeSvgTinyDocument> plain(QZeSvgTinyDocument::load(shape.core().getSVG().toUtf8()));
    QVERIFY(plain);
    for (int i = 1; i <= shape.controlPointCount(); ++i) {
        const QRectF drawn = plain->namedNode(QStringLiteral("control_%1").arg(i))->boundingRect();
        const QPointF distance = drawn.center() - shape.controlPoint(i).center();
        QVERIFY2(distance.manhattanLength() < 0.01, qPrintable(QString::number(i)));
    }
    for (const QZeSvgNode *node : plain->children()) {
        const QZeSvgNode *own = node->nodeId().isEmpty() ? nullptr : shape.document().namedNode(node->nodeId());
        if (!own)
            continue;
        const QRectF expected = node->transformedBounds();
        const QRectF bounds = own->transformedBounds();
        const QPointF off = bounds.topLeft() - expected.topLeft();
        const QPointF alsoOff = bounds.bottomRight() - expected.bottomRight();
        QVERIFY2(off.manhattanLength() < 0.5 && alsoOff.manhattanLength() < 0.5, qPrintable(node->nodeId()));
    }
}

void TestForms::controlPointGoesWhereItCanBeDragged_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("pose");
    for (const QString &name : shapetest::allShapeNames()) {
        for (int pose = 0; pose < int(std::size(poses)); ++pose)
            QTest::newRow(qPrintable(name + QStringLiteral(", ") + QLatin1String(poses[pose].name)))
                << name << pose;
    }
}

void TestForms::controlPointGoesWhereItCanBeDragged()
{
    QFETCH(QString, name);
    QFETCH(int, pose);
    const Pose &how = poses[pose];
    pagehost::Document document;
    pagehost::setCurrentDocument(&document);
    document.setZoomRate(how.zoom);
    {
        ShapeDriver shape(name);
        shape.createByClick();
        const QSizeF usual = shape.object().getClientRect().size();
        shape.object().setSize({usual.width() * how.factor.width(), usual.height() * how.factor.height()}, false,
                               true);
        if (how.mirrored)
            pagehost::mirrorObjects({&shape.object()}, true);
        if (how.flipped)
            pagehost::mirrorObjects({&shape.object()}, false);
        shape.object().setRotation(how.rotation);
        shape.select();
        shape.core().invalidate();
        for (int number = 1; number <= shape.controlPointCount(); ++number) {
            // Wherever a drag takes it: the shape says where it can be. There it goes from where it was, exactly.
            const QPointF start = shape.seenControlPoint(number);
            const QPointF way(23, -17);
            shape.core().setFlipOn(how.mirrored, how.flipped);
            const bool isFree = !boundPoints().contains(name) && shape.hasRoom(number, way);
            freeDrags += isFree;
            shape.dragTo(number, start + way);
            const QPointF end = shape.seenControlPoint(number);
            shape.undoStack().undo();
            QVERIFY(QLineF(shape.seenControlPoint(number), start).length() < tolerance);
            shape.dragTo(number, end);
            QVERIFY2(QLineF(shape.seenControlPoint(number), end).length() < tolerance,
                     qPrintable(QString::number(number)));
            // A free point goes under the cursor at once.
            QVERIFY2(!isFree || QLineF(end, start + way).length() < tolerance, qPrintable(QString::number(number)));
            shape.undoStack().undo();
        }
    }
    pagehost::setCurrentDocument(nullptr);
}

void TestForms::everyControlPointChangesThePicture()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    shape.select();
    for (int number = 1; number <= shape.controlPointCount(); ++number) {
        const QString before = shape.geometry();
        bool changed = false;
        for (const QPointF way : {QPointF(15, 9), QPointF(-15, -9), QPointF(15, -9)}) {
            shape.dragControlPoint(number, way);
            changed |= shape.geometry() != before;
        }
        QVERIFY2(changed, qPrintable(QString::number(number)));
    }
}

void TestForms::outlineHoldsTheDrawingAndTheControlPoints()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByDrag(QSizeF(200, 150));
    const QRectF frame = shape.object().getClientRect();
    const QPainterPath region = shape.object().shape();
    QVERIFY(!region.isEmpty());
    QVERIFY(frame.adjusted(-frameMargin, -frameMargin, frameMargin, frameMargin).contains(region.boundingRect()));
    for (int number = 1; number <= shape.controlPointCount(); ++number)
        QVERIFY2(region.contains(shape.seenControlPoint(number)), qPrintable(QString::number(number)));
    // Wherever much is painted, the shape can be grasped.
    const QImage picture = shape.painted();
    int painted = 0;
    int missed = 0;
    for (int y = 0; y < picture.height(); y += 2) {
        for (int x = 0; x < picture.width(); x += 2) {
            if (picture.pixelColor(x, y).lightness() > 200)
                continue;
            ++painted;
            missed += !region.contains(QPointF(x + 0.5, y + 0.5));
        }
    }
    QVERIFY2(missed * 5 <= painted, qPrintable(QStringLiteral("%1 of %2").arg(missed).arg(painted)));
}

void TestForms::smallestSizeCanBeDrawnAndLeft()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    shape.select();
    const QSizeF size = shape.object().getClientRect().size();
    const QString before = shape.geometry();
    shape.object().setSize(QSizeF(1, 1), false, true);
    const QRectF frame = shape.object().getClientRect();
    QVERIFY(frame.width() >= 1 && frame.height() >= 1);
    QVERIFY(frame.width() < size.width() && frame.height() < size.height());
    shape.core().setPenWidth(8, false);
    QVERIFY(!shape.painted().isNull());
    const QRectF box = shape.document().viewBox();
    for (int number = 1; number <= shape.controlPointCount(); ++number)
        QVERIFY2(box.contains(shape.controlPoint(number).center()), qPrintable(QString::number(number)));
    shape.core().setPenWidth(2, false);
    shape.object().setSize(size, false, true);
    shape.core().setPenWidth(2, false);
    if (shape.object().getClientRect().size() == size)
        QCOMPARE(shape.geometry(), before);
}

void TestForms::iconShowsTheShape()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    constexpr int side = 24;
    const QSizeF size = shape.object().getClientRect().size().scaled(QSizeF(side, side), Qt::KeepAspectRatio);
    shape.object().setSize(size, false, true);
    const QSizeF real = shape.object().getClientRect().size();
    QImage picture(side, side, QImage::Format_ARGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = qMin(1.0, side / qMax(real.width(), real.height()));
    painter.scale(scale, scale);
    shape.object().OnQPainterDraw(&painter);
    painter.end();
    int seen = 0;
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            seen += picture.pixelColor(x, y) != QColor(Qt::white);
    QVERIFY2(seen >= side, qPrintable(QString::number(seen)));
}

void TestForms::threadPaintsWhatTheShapeShows()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByDrag(QSizeF(160, 120));
    shape.select();
    RandomEdits(shape, startValue).edit(10);
    shape.object().setSelected(false);
    shape.core().invalidate();
    // The off-screen picture has whole pixels, and is stretched over the rest of a pixel.
    const QSizeF size = shape.object().getClientRect().size();
    if (size == size.toSize())
        QVERIFY(largestDifference(shape.paintedElsewhere(), shape.painted()) <= roundingOfLayers);
    QImage blank(shape.object().getClientRect().size().toSize(), QImage::Format_ARGB32);
    blank.fill(Qt::white);
    QVERIFY(shape.paintedElsewhere() != blank);
}

void TestForms::threadPaintsDuringEdits()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByDrag(QSizeF(90, 70));
    shape.select();
    std::atomic<bool> stop{false};
    std::atomic<int> pictures{0};
    std::thread worker([&] {
        QImage picture(90, 70, QImage::Format_ARGB32);
        while (!stop) {
            QPainter painter(&picture);
            shape.object().OnQPainterDraw(&painter);
            ++pictures;
        }
    });
    RandomEdits edits(shape, startValue);
    for (int i = 0; i < 30 || pictures < 3; ++i)
        edits.edit();
    stop = true;
    worker.join();
    QVERIFY(pictures >= 3);
}

void TestForms::thousandShapesAreSmallAndLeaveNothing()
{
    QFETCH(QString, name);
    constexpr int count = 1000;
    constexpr size_t roomForEach = 64 * 1024; // the off-screen picture of an unfinished object apart
    constexpr size_t roomForAll = 512 * 1024;
    ShapeDriver shape(name);
    const QString kind = shapetest::kindOf(name);
    for (int i = 0; i < 10; ++i)
        delete shape.plugin()->createObject(kind);
    const size_t before = heapInUse();
    QVector<CBaseObject *> objects;
    for (int i = 0; i < count; ++i)
        objects.append(shape.plugin()->createObject(kind));
    const size_t during = heapInUse();
    qDeleteAll(objects);
    objects.clear();
    objects.squeeze();
    const size_t after = heapInUse();
    QVERIFY2(during <= before + count * roomForEach, qPrintable(QString::number((during - before) / count)));
    QVERIFY2(after <= before + roomForAll, qPrintable(QString::number(after - before)));
    std::printf("%-18s %6.1f KB for each\n", qPrintable(name), double(during - before) / count / 1024);
}

QTEST_MAIN(TestForms)
#include "test_forms.moc"
