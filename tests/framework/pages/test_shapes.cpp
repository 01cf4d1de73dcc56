#include <pagehost/commands.h>
#include <pagehost/creation.h>
#include <pagehost/localizer.h>
#include <pagehost/objectregistry.h>
#include <pagehost/pagepainter.h>
#include <pagehost/selection.h>
#include <pagehost/style.h>
#include <pagehost/thumbnailpainter.h>

#include "framework/editor.h"

#include <cmath>

// The shapes of the project on the pages of this host, through the host's base classes alone.

namespace {

pagehost::Localizer &localizer()
{
    static pagehost::Localizer instance;
    return instance;
}

pagehost::ObjectRegistry &registry()
{
    static pagehost::ObjectRegistry instance(&localizer());
    return instance;
}

struct Workshop : Editor
{
    explicit Workshop(double zoom = 1)
        : Editor(zoom)
        , tool(&registry())
    {
    }
    CBaseObject *draw(const QString &kindId, const QPointF &from, const QPointF &to)
    {
        tool.begin(page->scene(), kindId);
        drag(from, to);
        return page->objects().isEmpty() ? nullptr : page->objects().constLast();
    }
    pagehost::CreationTool tool;
};

/// Everything that an object saves: geometry, style, control points.
QByteArray stateOf(CBaseObject *object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object->save(out);
    return bytes;
}

QPointF corner(const CBaseObject *object, bool right, bool bottom)
{
    const QSizeF size = object->getClientRect().size();
    return object->mapToScene(QPointF(right ? size.width() : 0, bottom ? size.height() : 0));
}

/// Centre of the handle at a corner: 6 pixels outside along both axes.
QPointF handleAt(const CBaseObject *object, bool right, bool bottom, double zoom)
{
    const QSizeF size = object->getClientRect().size();
    const double margin = 6 / zoom;
    return object->mapToScene(
        QPointF(right ? size.width() + margin : -margin, bottom ? size.height() + margin : -margin));
}

bool isNear(const QPointF &one, const QPointF &other)
{
    return std::hypot(one.x() - other.x(), one.y() - other.y()) < 1e-6;
}

double difference(const QImage &one, const QImage &other)
{
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            sum += std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
        }
    }
    return sum / (3.0 * one.width() * one.height());
}

} // namespace

class TestShapes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void drawnFromAnyCorner_data();
    void drawnFromAnyCorner();
    void clickedShapeHasItsDefaultSize_data();
    void clickedShapeHasItsDefaultSize();
    void undoBringsBackEveryBit_data();
    void undoBringsBackEveryBit();
    void cornerStaysWhileTheOppositeIsDragged_data();
    void cornerStaysWhileTheOppositeIsDragged();
    void escapeLeavesNoTrace_data();
    void escapeLeavesNoTrace();
    void duplicateLooksTheSame_data();
    void duplicateLooksTheSame();
    void styleIsUndoable_data();
    void styleIsUndoable();
    void thumbnailLooksLikeThePage_data();
    void thumbnailLooksLikeThePage();
    void everyKindHasAName_data();
    void everyKindHasAName();

private:
    void kinds();
};

void TestShapes::initTestCase()
{
    const QVector<pagehost::PluginReport> reports = registry().loadDirectory(QStringLiteral(SHAPE_PLUGIN_DIR));
    for (const pagehost::PluginReport &report : reports)
        QVERIFY2(report.loaded && report.problem.isEmpty(), qPrintable(report.file + report.problem));
    QVERIFY(registry().kinds().size() >= 4);
}

void TestShapes::kinds()
{
    QTest::addColumn<QString>("kind");
    const QVector<pagehost::ObjectKind> all = registry().kinds();
    for (const pagehost::ObjectKind &kind : all)
        QTest::newRow(qPrintable(kind.id)) << kind.id;
}

void TestShapes::drawnFromAnyCorner_data()
{
    kinds();
}

void TestShapes::drawnFromAnyCorner()
{
    QFETCH(QString, kind);
    QSizeF first;
    for (const bool left : {false, true}) {
        for (const bool up : {false, true}) {
            Workshop workshop;
            const QPointF start(400, 350);
            const CBaseObject *object =
                workshop.draw(kind, start, start + QPointF(left ? -200 : 200, up ? -140 : 140));
            QVERIFY(object);
            QVERIFY(isNear(corner(object, left, up), start));
            QCOMPARE(object->getClientRect().topLeft(), QPointF(0, 0));
            first = first.isValid() ? first : object->getClientRect().size();
            QCOMPARE(object->getClientRect().size(), first);
        }
    }
}

void TestShapes::clickedShapeHasItsDefaultSize_data()
{
    kinds();
}

void TestShapes::clickedShapeHasItsDefaultSize()
{
    QFETCH(QString, kind);
    Workshop workshop;
    workshop.tool.begin(workshop.page->scene(), kind);
    workshop.click(QPointF(300, 200));
    QCOMPARE(workshop.page->objectCount(), 1);
    CBaseObject *object = workshop.page->objects().constFirst();
    QCOMPARE(object->getPos(), QPointF(300, 200));
    QVERIFY(object->getClientRect().width() >= 10 && object->getClientRect().height() >= 10);
    QVERIFY(object->isCreateFinished());
    QVERIFY(object->isSelected());
    QCOMPARE(undoStack()->count(), 1);
}

void TestShapes::undoBringsBackEveryBit_data()
{
    kinds();
}

void TestShapes::undoBringsBackEveryBit()
{
    QFETCH(QString, kind);
    Workshop workshop;
    CBaseObject *object = workshop.draw(kind, QPointF(300, 250), QPointF(503, 391));
    QVector<QByteArray> states{stateOf(object)};
    const auto note = [&] {
        states.append(stateOf(object));
        QCOMPARE(undoStack()->count(), states.size());
        QVERIFY(states.last() != states.at(states.size() - 2));
    };
    for (const double degrees : {0.0, 37.0}) {
        if (degrees != 0) {
            pagehost::rotateObjects({object}, degrees);
            note();
        }
        for (const bool mirrored : {false, true}) {
            if (mirrored) {
                pagehost::mirrorObjects({object}, true);
                note();
            }
            const QPointF handle = handleAt(object, true, true, 1);
            const QPointF way = QTransform().rotate(degrees).map(QPointF(47, 61));
            workshop.drag(handle, handle + way);
            note();
            const QPointF other = handleAt(object, false, false, 1);
            workshop.drag(other, other + QTransform().rotate(degrees).map(QPointF(31, 29)));
            note();
            pagehost::moveObjects({object}, QPointF(0.1, -0.3));
            note();
        }
    }
    for (int i = states.size() - 2; i >= 0; --i) {
        undoStack()->undo();
        QVERIFY2(stateOf(object) == states[i], qPrintable(QStringLiteral("undone to %1").arg(i)));
    }
    for (int i = 1; i < states.size(); ++i) {
        undoStack()->redo();
        QVERIFY2(stateOf(object) == states[i], qPrintable(QStringLiteral("redone to %1").arg(i)));
    }
}

void TestShapes::cornerStaysWhileTheOppositeIsDragged_data()
{
    kinds();
}

void TestShapes::cornerStaysWhileTheOppositeIsDragged()
{
    QFETCH(QString, kind);
    for (const double zoom : {0.5, 1.0, 1.5}) {
        for (const double degrees : {0.0, 30.0, 90.0}) {
            for (const bool mirrored : {false, true}) {
                Workshop workshop(zoom);
                CBaseObject *object = workshop.draw(kind, QPointF(250, 200), QPointF(450, 340));
                object->setRotateByPoint(degrees, object->getClientRect().center(), false);
                object->setMirror(mirrored, false, false);
                const QPointF fixed = corner(object, false, false);
                const double width = object->getClientRect().width();
                const QPointF handle = handleAt(object, true, true, zoom);
                workshop.drag(handle, handle + QTransform().rotate(degrees).map(QPointF(60, 60)));
                QVERIFY(object->getClientRect().width() > width + 10);
                QVERIFY(isNear(corner(object, false, false), fixed));
                QCOMPARE(object->rotation(), degrees);
            }
        }
    }
}

void TestShapes::escapeLeavesNoTrace_data()
{
    kinds();
}

void TestShapes::escapeLeavesNoTrace()
{
    QFETCH(QString, kind);
    Workshop workshop;
    CBaseObject *object = workshop.draw(kind, QPointF(250, 200), QPointF(450, 340));
    const QByteArray before = stateOf(object);
    const QRectF rect = object->getClientRect();
    // Handles, the body and whatever control points there are: drags from a grid of places, each cancelled.
    for (double x = -6; x <= rect.width() + 6; x += 9) {
        for (double y = -6; y <= rect.height() + 6; y += 9) {
            object->setSelected(true);
            workshop.press(object->mapToScene(QPointF(x, y)));
            workshop.moveTo(object->mapToScene(QPointF(x + 25, y + 17)));
            workshop.moveTo(object->mapToScene(QPointF(x, y)));
            workshop.pressKey(Qt::Key_Escape);
            workshop.release(object->mapToScene(QPointF(x, y)));
            QVERIFY2(stateOf(object) == before, qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
            QCOMPARE(undoStack()->count(), 1);
        }
    }
}

void TestShapes::duplicateLooksTheSame_data()
{
    kinds();
}

void TestShapes::duplicateLooksTheSame()
{
    QFETCH(QString, kind);
    Workshop workshop;
    CBaseObject *object = workshop.draw(kind, QPointF(100, 100), QPointF(300, 240));
    pagehost::setPenColor({object}, QColor(200, 30, 60));
    pagehost::rotateObjects({object}, 30);
    const QVector<CBaseObject *> copies = pagehost::duplicateSelection(workshop.page, &registry(), QPointF(400, 0));
    QCOMPARE(copies.size(), 1);
    const QImage image = pagehost::pageImage(workshop.page, 1);
    const QImage original = image.copy(50, 50, 350, 300);
    QVERIFY(difference(original, QImage(original.size(), QImage::Format_ARGB32)) > 1);
    QVERIFY2(difference(original, image.copy(450, 50, 350, 300)) < 0.05,
             qPrintable(QString::number(difference(original, image.copy(450, 50, 350, 300)))));
}

void TestShapes::styleIsUndoable_data()
{
    kinds();
}

void TestShapes::styleIsUndoable()
{
    QFETCH(QString, kind);
    Workshop workshop;
    CBaseObject *object = workshop.draw(kind, QPointF(100, 100), QPointF(300, 240));
    const pagehost::ObjectStyle before = pagehost::styleOf(object);
    const QColor color(12, 34, 56);
    if (before.hasPenColor) {
        QVERIFY(pagehost::setPenColor({object}, color));
        QCOMPARE(pagehost::styleOf(object).penColor, color);
        undoStack()->undo();
        QCOMPARE(pagehost::styleOf(object).penColor, before.penColor);
    }
    if (before.hasFill) {
        QVERIFY(pagehost::setFill({object}, color));
        QCOMPARE(pagehost::styleOf(object).fill.color(), color);
        undoStack()->undo();
        QCOMPARE(pagehost::styleOf(object).fill.color(), before.fill.color());
    }
    if (before.hasPenWidth) {
        QVERIFY(pagehost::setPenWidth({object}, before.maxPenWidth));
        QCOMPARE(pagehost::styleOf(object).penWidth, before.maxPenWidth);
        undoStack()->undo();
        QCOMPARE(pagehost::styleOf(object).penWidth, before.penWidth);
    }
    // A picture has the look that it has.
    QVERIFY(kind == QStringLiteral("shapes.picture") || before.hasPenColor || before.hasFill ||
            before.hasPenWidth || before.hasPenStyle);
}

void TestShapes::thumbnailLooksLikeThePage_data()
{
    kinds();
}

void TestShapes::thumbnailLooksLikeThePage()
{
    QFETCH(QString, kind);
    Workshop workshop;
    CBaseObject *object = workshop.draw(kind, QPointF(200, 150), QPointF(800, 550));
    object->setSelected(false);
    object->setMirror(true, false, false);
    object->setRotateByPoint(20, object->getClientRect().center(), false);
    pagehost::ThumbnailPainter painter;
    QImage thumbnail;
    connect(&painter, &pagehost::ThumbnailPainter::ready,
            [&](pagehost::Page *, const QImage &picture) { thumbnail = picture; });
    painter.request(workshop.page, QSize(320, 180));
    painter.finish();
    const QImage direct = pagehost::pageImage(workshop.page, 0.25);
    QCOMPARE(thumbnail.size(), direct.size());
    QImage white(direct.size(), QImage::Format_ARGB32);
    white.fill(Qt::white);
    const double ink = difference(direct, white); // a thin line is little
    const double missed = difference(thumbnail, direct);
    QVERIFY(ink > 0.1);
    QVERIFY2(missed < qMin(2.0, ink / 2), qPrintable(QStringLiteral("%1 of %2").arg(missed).arg(ink)));
}

void TestShapes::everyKindHasAName_data()
{
    kinds();
}

void TestShapes::everyKindHasAName()
{
    QFETCH(QString, kind);
    const std::unique_ptr<CBaseObject> object(registry().createObject(kind));
    QVERIFY(object);
    QVERIFY(localizer().hasText(QStringLiteral("en"), object->kindName()));
    QVERIFY(localizer().hasText(QStringLiteral("en"), registry().kind(kind).nameKey));
    // Kinds that only tools make have no group.
    const QString group = registry().kind(kind).group;
    const QStringList withoutGroup{QStringLiteral("shapes.ink"), QStringLiteral("shapes.line"),
                                   QStringLiteral("shapes.text")};
    QCOMPARE(group.isEmpty(), withoutGroup.contains(kind));
    QVERIFY(group.isEmpty() || localizer().hasText(QStringLiteral("en"), group));
}

QTEST_MAIN(TestShapes)
#include "test_shapes.moc"
