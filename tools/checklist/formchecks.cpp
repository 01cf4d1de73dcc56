// Promises about form and picture: template, outline, smallest size, icon, other threads, memory.

#include <checklist/check.h>
#include <checklist/randomedits.h>
#include <checklist/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <thread>

namespace checklist {

namespace {

/// Item units around lines, so that they can be hit.
constexpr double frameMargin = 8;
/// Of any channel: painting over a transparent picture and that over white rounds twice.
constexpr int roundingOfLayers = 4;

void templateIsCleanAndIsTheDefaultSize(const Subject &subject, Report &report)
{
    ShapeDriver shape(subject.plugin, subject.kindId);
    const QVector<QZeSvgTinyDocument::Message> messages = shape.document().messages();
    for (const QZeSvgTinyDocument::Message &message : messages)
        report.expect(false, QStringLiteral("line %1: %2").arg(message.line).arg(message.text));
    const QSizeF size = shape.document().viewBox().size();
    shape.createByClick();
    report.expect(shape.object().getClientRect() == QRectF(QPointF(0, 0), size),
                  QStringLiteral("a new object isn't as large as the view box"));
    const QSizeF smallest = shape.core().getMinimizeSize();
    report.expect(smallest.width() <= size.width() && smallest.height() <= size.height(),
                  QStringLiteral("the smallest size is larger than the view box"));
}

// The template shows the shape as it is drawn: in an editor, as an icon, as it looks at first.
void templateIsDrawnAsItStands(const Subject &subject, Report &report)
{
    ShapeDriver shape(subject.plugin, subject.kindId);
    const std::unique_ptr<QZeSvgTinyDocument> plain(QZeSvgTinyDocument::load(shape.core().getSVG().toUtf8()));
    if (!report.expect(plain != nullptr, QStringLiteral("the template can't be read")))
        return;
    // Painting brings the drawing up to date.
    shape.createByClick();
    shape.painted();
    for (int number = 1; number <= shape.controlPointCount(); ++number) {
        const QRectF drawn = plain->namedNode(QStringLiteral("control_%1").arg(number))->boundingRect();
        const QPointF distance = drawn.center() - shape.controlPoint(number).center();
        report.expect(distance.manhattanLength() < 0.01,
                      QStringLiteral("control_%1 stands elsewhere than in the template").arg(number));
    }
    const auto children = plain->children();
    for (const QZeSvgNode *node : children) {
        const QZeSvgNode *own = node->nodeId().isEmpty() ? nullptr : shape.document().namedNode(node->nodeId());
        const QRectF expected = node->transformedBounds();
        // Letters that change, and repeated parts, are only there once they are drawn.
        if (!own || expected.isEmpty() || node->type() == QZeSvgNode::Group)
            continue;
        const QRectF bounds = own->transformedBounds();
        const double off = (bounds.topLeft() - expected.topLeft()).manhattanLength();
        const double alsoOff = (bounds.bottomRight() - expected.bottomRight()).manhattanLength();
        report.expect(off < 0.5 && alsoOff < 0.5,
                      QStringLiteral("\"%1\" is drawn elsewhere than in the template").arg(node->nodeId()));
    }
}

/// Kinds that only tools make are in no group, and have no form until they have been drawn.
bool isMadeByClick(const Subject &subject)
{
    const QVector<pagehost::ObjectKind> kinds = subject.plugin->objectKinds();
    return std::any_of(kinds.begin(), kinds.end(), [&subject](const pagehost::ObjectKind &kind) {
        return kind.id == subject.kindId && !kind.group.isEmpty();
    });
}

void outlineHoldsTheDrawingAndTheControlPoints(const Subject &subject, Report &report)
{
    if (!isMadeByClick(subject))
        return;
    ShapeDriver shape(subject.plugin, subject.kindId);
    shape.createByDrag(QSizeF(200, 150));
    const QRectF frame = shape.object().getClientRect();
    const QPainterPath region = shape.object().shape();
    if (!report.expect(!region.isEmpty(), QStringLiteral("there is nothing to grasp")))
        return;
    report.expect(
        frame.adjusted(-frameMargin, -frameMargin, frameMargin, frameMargin).contains(region.boundingRect()),
        QStringLiteral("it can be grasped outside of its frame"));
    for (int number = 1; number <= shape.controlPointCount(); ++number)
        report.expect(region.contains(shape.seenControlPoint(number)),
                      QStringLiteral("control_%1 can't be grasped").arg(number));
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
    report.expect(missed * 5 <= painted,
                  QStringLiteral("%1 of %2 dark places can't be grasped, since they are outside of \"figure\", "
                                 "\"figure_...\" and \"area\"")
                      .arg(missed)
                      .arg(painted));
}

void smallestSizeCanBeDrawnAndLeft(const Subject &subject, Report &report)
{
    if (!isMadeByClick(subject))
        return;
    ShapeDriver shape(subject.plugin, subject.kindId);
    shape.createByClick();
    shape.select();
    const QSizeF size = shape.object().getClientRect().size();
    const QString before = shape.geometry();
    const int penWidth = shape.core().getPenWidth();
    shape.object().setSize(QSizeF(1, 1), false, true);
    const QRectF frame = shape.object().getClientRect();
    report.expect(frame.width() >= 1 && frame.height() >= 1 && frame.width() < size.width() &&
                      frame.height() < size.height(),
                  QStringLiteral("it can't be made smaller than a new one"));
    shape.core().setPenWidth(8, false);
    report.expect(!shape.painted().isNull(), QStringLiteral("it isn't drawn at its smallest size"));
    const QRectF box = shape.document().viewBox();
    for (int number = 1; number <= shape.controlPointCount(); ++number)
        report.expect(box.contains(shape.controlPoint(number).center()),
                      QStringLiteral("control_%1 leaves the smallest size").arg(number));
    shape.core().setPenWidth(penWidth, false);
    shape.object().setSize(size, false, true);
    shape.core().setPenWidth(penWidth, false);
    report.expect(shape.object().getClientRect().size() != size || shape.geometry() == before,
                  QStringLiteral("after its smallest size it has another form"));
}

void iconShowsTheShape(const Subject &subject, Report &report)
{
    constexpr int side = 24;
    ShapeDriver shape(subject.plugin, subject.kindId);
    shape.createByClick();
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
    report.expect(seen >= side, QStringLiteral("an icon of %1 × %1 shows %2 pixels").arg(side).arg(seen));
}

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

void threadPaintsWhatTheShapeShows(const Subject &subject, Report &report)
{
    ShapeDriver shape(subject.plugin, subject.kindId);
    shape.createByDrag(QSizeF(160, 120));
    shape.select();
    RandomEdits(shape, startValue).edit(10);
    shape.object().setSelected(false);
    shape.core().invalidate();
    const QImage elsewhere = shape.paintedElsewhere();
    // The off-screen picture has whole pixels, and is stretched over the rest of a pixel.
    const QSizeF size = shape.object().getClientRect().size();
    report.expect(size != size.toSize() || largestDifference(elsewhere, shape.painted()) <= roundingOfLayers,
                  QStringLiteral("another thread paints another picture"));
    QImage blank(elsewhere.size(), QImage::Format_ARGB32);
    blank.fill(Qt::white);
    report.expect(elsewhere != blank, QStringLiteral("another thread paints nothing"));
}

void threadPaintsDuringEdits(const Subject &subject, Report &report)
{
    constexpr int edits = 30;
    ShapeDriver shape(subject.plugin, subject.kindId);
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
    RandomEdits random(shape, startValue);
    for (int i = 0; i < edits || pictures < 3; ++i)
        random.edit();
    stop = true;
    worker.join();
    report.expect(shape.object().getClientRect().isValid(),
                  QStringLiteral("painting during edits spoils the shape"));
}

/// Heap in use, bytes; 0 where the allocator does not tell.
size_t heapInUse()
{
    return mallinfo2().uordblks;
}

void thousandShapesAreSmallAndLeaveNothing(const Subject &subject, Report &report)
{
    constexpr int count = 1000;
    constexpr size_t roomForEach = 64 * 1024; // the off-screen picture of an unfinished object apart
    constexpr size_t roomForAll = 512 * 1024;
    for (int i = 0; i < 10; ++i)
        delete subject.plugin->createObject(subject.kindId);
    const size_t before = heapInUse();
    QVector<CBaseObject *> objects;
    for (int i = 0; i < count; ++i)
        objects.append(subject.plugin->createObject(subject.kindId));
    const size_t during = heapInUse();
    qDeleteAll(objects);
    objects.clear();
    objects.squeeze();
    const size_t after = heapInUse();
    report.expect(during <= before + count * roomForEach,
                  QStringLiteral("an object takes %1 bytes").arg((during - before) / count));
    report.expect(after <= before + roomForAll,
                  QStringLiteral("%1 objects leave %2 bytes behind").arg(count).arg(after - before));
}

} // namespace

const QVector<Check> &formChecks()
{
    static const QVector<Check> checks{
        {"template", "the template is clean and is the default size", &templateIsCleanAndIsTheDefaultSize},
        {"template-look", "the template is drawn as it stands", &templateIsDrawnAsItStands},
        {"outline", "the outline holds the drawing and the control points",
         &outlineHoldsTheDrawingAndTheControlPoints},
        {"smallest-size", "the smallest size can be drawn and left", &smallestSizeCanBeDrawnAndLeft},
        {"icon", "an icon shows the shape", &iconShowsTheShape},
        {"thread", "a thread paints what the shape shows", &threadPaintsWhatTheShapeShows},
        {"thread-edits", "a thread paints during edits", &threadPaintsDuringEdits},
        {"memory", "a thousand shapes are small and leave nothing", &thousandShapesAreSmallAndLeaveNothing},
    };
    return checks;
}

} // namespace checklist
