// Instructions of each way to draw, and of the peer's, template by template. Run under callgrind by
// bench/count-instructions: counts repeat to a few in a thousand on a machine that is busy with other work.

#include "dragging.h"
#include "pageobjects.h"
#include "templates.h"

#include <svgbase/qzesvgtinydocument.h>

#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <QtWidgets/QApplication>

#include <valgrind/callgrind.h>

#include <memory>

namespace {

constexpr int side = 256;
constexpr int largeSide = 1024;
/// Work before counting begins, so that lazily made data is there; and counted work.
constexpr int warmUps = 4;
constexpr int repetitions = 4;

template<typename Work> void count(const QString &figure, const QString &who, const QString &name, Work work)
{
    for (int i = 0; i < warmUps; ++i)
        work();
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_ZERO_STATS;
    for (int i = 0; i < repetitions; ++i)
        work();
    const QByteArray line = (figure + '/' + who + '/' + name + '/' + QString::number(repetitions)).toLatin1();
    CALLGRIND_DUMP_STATS_AT(line.constData());
    CALLGRIND_STOP_INSTRUMENTATION;
}

using Own = std::unique_ptr<QZeSvgTinyDocument>;

void draw(const Own &document, QImage *image)
{
    image->fill(Qt::transparent);
    QPainter painter(image);
    document->draw(&painter, QRectF(image->rect()), 1, false);
}

void draw(QSvgRenderer *renderer, QImage *image)
{
    image->fill(Qt::transparent);
    QPainter painter(image);
    renderer->render(&painter, QRectF(image->rect()));
}

QImage canvas(int size)
{
    return QImage(size, size, QImage::Format_ARGB32_Premultiplied);
}

void countLoad(const BenchTemplate &source)
{
    count("load", "peer", source.name, [&] { QSvgRenderer renderer(neverSeen(source)); });
    count("load", "gliololok", source.name, [&] { Own(QZeSvgTinyDocument::load(neverSeen(source))); });
}

/// Every stroked node changes; the peer draws what it drew before, since it can't change a document.
void countRedraw(const QString &figure, const BenchTemplate &source, int size)
{
    QImage image = canvas(size);
    QSvgRenderer renderer(source.text);
    count(figure, "peer", source.name, [&] { draw(&renderer, &image); });
    const Own document(QZeSvgTinyDocument::load(source.text));
    double width = 1;
    count(figure, "gliololok", source.name, [&] {
        width = 3 - width;
        document->setAllStrokeWidth(width);
        draw(document, &image);
    });
}

void countAgain(const BenchTemplate &source)
{
    QImage image = canvas(side);
    QSvgRenderer renderer(source.text);
    count("again", "peer", source.name, [&] { draw(&renderer, &image); });
    const Own document(QZeSvgTinyDocument::load(source.text));
    count("again", "gliololok", source.name, [&] { draw(document, &image); });
}

/// The first node moves by a unit; the peer loads the changed text.
void countMovedNode(const BenchTemplate &source)
{
    QImage image = canvas(side);
    count("moved-node", "peer", source.name, [&] {
        QSvgRenderer renderer(neverSeen(source));
        draw(&renderer, &image);
    });
    const Own document(QZeSvgTinyDocument::load(source.text));
    const QList<QZeSvgNode *> children = document->children();
    if (children.isEmpty())
        return;
    bool moved = false;
    count("moved-node", "gliololok", source.name, [&] {
        moved = !moved;
        children.first()->setAttribute("transform", moved ? "translate(1)" : "translate(0)");
        draw(document, &image);
    });
}

/// Mouse event in, off-screen picture out; the peer loads and draws the text of how the object looks.
void countDragStep(const QString &kind)
{
    const Dragged dragged = beginDrag(kind, side);
    if (dragged.grip.isNull())
        return;
    const QString name = templateName(kind);
    QByteArray looks[2];
    for (int i = 0; i < 2; ++i) {
        dragged.moveBy(i + 1);
        looks[i] = dragged.look();
    }
    QImage image(side, side, QImage::Format_ARGB32);
    int step = 0;
    count("drag-step", "peer", name, [&] {
        step = 1 - step;
        QSvgRenderer renderer(looks[step]);
        draw(&renderer, &image);
    });
    count("drag-step", "gliololok", name, [&] {
        step = 1 - step;
        dragged.moveBy(step + 1);
    });
    sendMouse(dragged.object.get(), QEvent::GraphicsSceneMouseRelease, dragged.grip);
}

/// A shape of a file; the peer is the same shape in C++.
void countTwinDrag(const QString &kind, const QString &who, const pagehost::ObjectRegistry &registry)
{
    const Dragged dragged = beginDrag(kind, side, registry);
    if (dragged.grip.isNull())
        return;
    double step = 1;
    count("twin-drag", who, templateName(kind), [&] {
        step = 3 - step;
        dragged.moveBy(step);
    });
    sendMouse(dragged.object.get(), QEvent::GraphicsSceneMouseRelease, dragged.grip);
}

void countTwinResize(const QString &kind, const QString &who, const pagehost::ObjectRegistry &registry)
{
    const std::unique_ptr<CBaseObject> object = makeShape(kind, QSizeF(side, side), registry);
    int step = 1;
    count("twin-resize", who, templateName(kind), [&] {
        step = 3 - step;
        object->setSize(QSizeF(side + step, side), false, true);
    });
}

void countTwins(const QString &kind, const QString &who, const pagehost::ObjectRegistry &registry, bool drags,
                bool resizes)
{
    if (drags)
        countTwinDrag(kind, who, registry);
    if (resizes)
        countTwinResize(kind, who, registry);
}

} // namespace

/// The first argument, when given, is the one figure to count, the second one the name of the only template.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QString only = application.arguments().value(1);
    const QString onlyTemplate = application.arguments().value(2);
    const auto isWanted = [&](const char *figure) { return only.isEmpty() || only == QLatin1String(figure); };
    const auto isCounted = [&](const QString &name) { return onlyTemplate.isEmpty() || onlyTemplate == name; };
    const QVector<BenchTemplate> &templates = benchTemplates();
    for (const BenchTemplate &source : templates) {
        if (!isCounted(source.name))
            continue;
        if (isWanted("load"))
            countLoad(source);
        if (isWanted("redraw-256"))
            countRedraw("redraw-256", source, side);
        if (isWanted("redraw-1024"))
            countRedraw("redraw-1024", source, largeSide);
        if (isWanted("again"))
            countAgain(source);
        if (isWanted("moved-node"))
            countMovedNode(source);
    }
    const QStringList twins = twinKinds();
    for (const QString &kind : twins) {
        if (!isCounted(templateName(kind)))
            continue;
        countTwins(kind, "peer", codedTwins(), isWanted("twin-drag"), isWanted("twin-resize"));
        countTwins(kind, "gliololok", shapeRegistry(), isWanted("twin-drag"), isWanted("twin-resize"));
    }
    if (!isWanted("drag-step"))
        return 0;
    const QStringList kinds = shapeKinds();
    for (const QString &kind : kinds)
        if (isCounted(templateName(kind)))
            countDragStep(kind);
    return 0;
}
