#include "framework/files/filetest.h"

#include <pagehost/application.h>
#include <pagehost/creation.h>
#include <pagehost/pagepainter.h>
#include <pagehost/pagescene.h>
#include <pagehost/recorder.h>
#include <pagehost/style.h>

// Every kind of object that the project's plug-ins offer, in every state that a user can bring it into, through
// files and back.

using namespace pagehost;

namespace {

const ObjectRegistry &registry()
{
    static const std::unique_ptr<ObjectRegistry> loaded = [] {
        auto made = std::make_unique<ObjectRegistry>();
        made->loadDirectory(QStringLiteral(SHAPE_PLUGIN_DIR));
        return made;
    }();
    return *loaded;
}

CPageBgProp fillOf(CPageBgProp::FillType type)
{
    CPageBgProp fill(nullptr);
    fill.setFillEnable(true);
    fill.setFillType(type);
    fill.setFillColor(QColor(200, 100, 50));
    fill.setOpacity(130);
    fill.setGradientColor(QColor(10, 20, 30, 40));
    fill.setGradientAngle(33.3);
    fill.setPattern(Qt::Dense3Pattern);
    return fill;
}

void fillWith(CBaseObject *object, CPageBgProp::FillType type)
{
    CPageBgProp fill = fillOf(type);
    if (type == CPageBgProp::PictureFill) {
        QPixmap picture(20, 10);
        picture.fill(Qt::magenta);
        fill.setPixmap(picture);
    }
    setObjectsFill({object}, fill);
}

/// As a recorded step of a user who drags a control point; `place` in terms of the size.
void moveControlPoint(CBaseObject *object, int number, QPointF place)
{
    constexpr int controlPointMoved = 1001;
    const QSizeF size = object->getClientRect().size();
    QByteArray step;
    QDataStream out(&step, QIODevice::WriteOnly);
    out << QStringLiteral("control_%1").arg(number) << QPointF(size.width() * place.x(), size.height() * place.y());
    replayAction(object, controlPointMoved, step);
}

constexpr int mostControlPoints = 32;

/// Each to a place of its own.
void moveControlPoints(CBaseObject *object)
{
    for (int number = 1; number <= mostControlPoints; ++number)
        moveControlPoint(object, number, {0.2 + 0.019 * number, 0.7 - 0.013 * number});
}

/// Most have limits; boxes of others grow.
void moveControlPointsOut(CBaseObject *object)
{
    for (int number = 1; number <= mostControlPoints; ++number)
        moveControlPoint(object, number, {1.7, -0.63});
}

struct Mode
{
    const char *name;
    void (*apply)(CBaseObject *object);
};

void changeEverything(CBaseObject *object);

const Mode modes[] = {
    {"as drawn", [](CBaseObject *) {}},
    {"moved to a place that is no whole number",
     [](CBaseObject *object) {
         moveObjects({object}, {0.1, -1e-9});
     }},
    {"resized", [](CBaseObject *object) { resizeObject(object, QSizeF(77.7, 123.4)); }},
    {"enlarged", [](CBaseObject *object) { resizeObject(object, QSizeF(612.3, 401.9)); }},
    {"mirrored", [](CBaseObject *object) { mirrorObjects({object}, true); }},
    {"flipped", [](CBaseObject *object) { mirrorObjects({object}, false); }},
    {"rotated", [](CBaseObject *object) { rotateObjects({object}, 33.3); }},
    {"recoloured pen", [](CBaseObject *object) { setPenColor({object}, QColor(1, 2, 3, 4)); }},
    {"other pen style", [](CBaseObject *object) { setPenStyle({object}, Qt::DashDotLine); }},
    {"thick pen", [](CBaseObject *object) { setPenWidth({object}, 7); }},
    {"recoloured fill", [](CBaseObject *object) { setFill({object}, QColor(5, 6, 7)); }},
    {"no fill", [](CBaseObject *object) { setFill({object}, Qt::transparent); }},
    {"gradient fill", [](CBaseObject *object) { fillWith(object, CPageBgProp::GradientFill); }},
    {"pattern fill", [](CBaseObject *object) { fillWith(object, CPageBgProp::PatternFill); }},
    {"picture fill", [](CBaseObject *object) { fillWith(object, CPageBgProp::PictureFill); }},
    {"locked", [](CBaseObject *object) { setObjectsLocked({object}, true); }},
    {"hidden", [](CBaseObject *object) { object->hide(); }},
    {"control points moved", moveControlPoints},
    {"control points moved out of the frame", moveControlPointsOut},
    {"everything at once", changeEverything},
};

void changeEverything(CBaseObject *object)
{
    moveControlPoints(object);
    resizeObject(object, QSizeF(301.7, 199.9));
    mirrorObjects({object}, true);
    mirrorObjects({object}, false);
    rotateObjects({object}, 271.5);
    setPenColor({object}, QColor(200, 0, 0, 128));
    setPenWidth({object}, 5);
    fillWith(object, CPageBgProp::GradientFill);
    setObjectsLocked({object}, true);
}

QImage pictureOf(Page *page)
{
    QImage picture(page->size().toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    paintPage(page, &painter, page->rect());
    return picture;
}

} // namespace

class TestShapeFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { undoStack()->clear(); }
    void thereAreShapes() { QVERIFY(registry().kinds().size() >= 4); }

    void savedTwiceGivesTheSameBytes_data() { addRows(); }
    void savedTwiceGivesTheSameBytes();
    void bothFormatsOpenToEqualPages_data() { addRows(); }
    void bothFormatsOpenToEqualPages();
    void openedShapeLooksTheSame_data() { addRows(); }
    void openedShapeLooksTheSame();
    void zoomOfTheViewMakesNoDifference_data() { addKinds(); }
    void zoomOfTheViewMakesNoDifference();
    void everyObjectIsSavedWithTheZoomThatItFollowed();

private:
    void addKinds();
    void addRows();
    std::unique_ptr<Document> documentOf(const QString &kind, int mode);
};

void TestShapeFiles::addKinds()
{
    QTest::addColumn<QString>("kind");
    const QVector<ObjectKind> kinds = registry().kinds();
    for (const ObjectKind &kind : kinds)
        QTest::newRow(qPrintable(kind.id)) << kind.id;
}

void TestShapeFiles::addRows()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("mode");
    const QVector<ObjectKind> kinds = registry().kinds();
    for (const ObjectKind &kind : kinds)
        for (int mode = 0; mode < int(std::size(modes)); ++mode)
            QTest::addRow("%s, %s", qPrintable(kind.id), modes[mode].name) << kind.id << mode;
}

std::unique_ptr<Document> TestShapeFiles::documentOf(const QString &kind, int mode)
{
    auto document = std::make_unique<Document>();
    setCurrentDocument(document.get());
    Page *page = document->appendPage(QSizeF(900, 700));
    CreationTool tool(&registry());
    CBaseObject *object = tool.createAt(page->scene(), kind, QPointF(200, 100));
    modes[mode].apply(object);
    return document;
}

void TestShapeFiles::savedTwiceGivesTheSameBytes()
{
    QFETCH(QString, kind);
    QFETCH(int, mode);
    const std::unique_ptr<Document> document = documentOf(kind, mode);
    for (const DocumentFormat format : {DocumentFormat::Binary, DocumentFormat::Json}) {
        const QByteArray bytes = encodeDocument(*document, format);
        const OpenResult opened = decodeDocument(bytes, registry());
        QCOMPARE(textKeys(opened.messages), QStringList());
        QVERIFY(!isPlaceholder(opened.document->page(0)->objects().value(0)));
        QCOMPARE(encodeDocument(*opened.document, format), bytes);
    }
}

void TestShapeFiles::bothFormatsOpenToEqualPages()
{
    QFETCH(QString, kind);
    QFETCH(int, mode);
    const std::unique_ptr<Document> document = documentOf(kind, mode);
    const OpenResult one = decodeDocument(encodeDocument(*document, DocumentFormat::Binary), registry());
    const OpenResult other = decodeDocument(encodeDocument(*document, DocumentFormat::Json), registry());
    for (const DocumentFormat format : {DocumentFormat::Binary, DocumentFormat::Json})
        QCOMPARE(encodeDocument(*one.document, format), encodeDocument(*other.document, format));
}

void TestShapeFiles::openedShapeLooksTheSame()
{
    QFETCH(QString, kind);
    QFETCH(int, mode);
    const std::unique_ptr<Document> document = documentOf(kind, mode);
    document->page(0)->select({});
    const QImage picture = pictureOf(document->page(0));
    for (const DocumentFormat format : {DocumentFormat::Binary, DocumentFormat::Json}) {
        const OpenResult opened = decodeDocument(encodeDocument(*document, format), registry());
        setCurrentDocument(opened.document.get());
        QCOMPARE(pictureOf(opened.document->page(0)), picture);
    }
}

/// Control points keep their size on screen, and a file holds their corners.
void TestShapeFiles::zoomOfTheViewMakesNoDifference()
{
    QFETCH(QString, kind);
    const std::unique_ptr<Document> document = documentOf(kind, 0);
    CBaseObject *object = document->page(0)->objects().first();
    moveControlPoints(object);
    document->page(0)->select({});
    const QImage picture = pictureOf(document->page(0));
    for (const double zoom : {0.4, 2.0}) {
        document->setZoomRate(zoom);
        pictureOf(document->page(0));
        for (const DocumentFormat format : {DocumentFormat::Binary, DocumentFormat::Json}) {
            const QByteArray bytes = encodeDocument(*document, format);
            const OpenResult opened = decodeDocument(bytes, registry());
            QCOMPARE(opened.document->zoomRate(), 1.0);
            QCOMPARE(encodeDocument(*opened.document, format), bytes);
            setCurrentDocument(opened.document.get());
            QCOMPARE(pictureOf(opened.document->page(0)), picture);
            setCurrentDocument(document.get());
        }
    }
}

/// Objects on pages that are not shown do not follow the zoom.
void TestShapeFiles::everyObjectIsSavedWithTheZoomThatItFollowed()
{
    const std::unique_ptr<Document> document = documentOf(QStringLiteral("shapes.polygon"), 0);
    Page *second = document->appendPage(QSizeF(900, 700));
    CreationTool(&registry()).createAt(second->scene(), QStringLiteral("shapes.polygon"), QPointF(200, 100));
    const QImage picture = pictureOf(document->page(0));
    QCOMPARE(pictureOf(second), picture);
    document->setZoomRate(4);
    second->select({});
    pictureOf(second);
    const OpenResult opened = decodeDocument(encodeDocument(*document, DocumentFormat::Binary), registry());
    setCurrentDocument(opened.document.get());
    QCOMPARE(pictureOf(opened.document->page(0)), picture);
    QCOMPARE(pictureOf(opened.document->page(1)), picture);
}

QTEST_MAIN(TestShapeFiles)
#include "test_shapefiles.moc"
