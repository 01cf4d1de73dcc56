// Shapes of a board that was saved and opened: they look, and are hit, like those that were drawn; and so are
// shapes that got another size.

#include <board/boarddriver.h>

#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/animationplayer.h>
#include <pagehost/commands.h>
#include <pagehost/documentfile.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>

#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using namespace boardtest;

namespace {

const QRectF place(300, 200, 130, 100);
/// The last one is that of a whole page in a usual window.
constexpr double zooms[] = {1, 2, 0.63};

/// Of 255: slanted edges are antialiased a little differently where a view keeps an object's picture at another
/// origin. Something missing differs by more.
constexpr int mostAtEdges = 24;
/// Largest difference of pixels that are not at an edge.
constexpr int mostInside = 2;
/// Of the pixels of a picture around a shape.
constexpr double edgePart = 0.05;
constexpr double margin = 10;

int differenceOf(QRgb one, QRgb other)
{
    return qMax(qAbs(qRed(one) - qRed(other)),
                qMax(qAbs(qGreen(one) - qGreen(other)), qAbs(qBlue(one) - qBlue(other))));
}

bool looksAlike(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return false;
    int greatest = 0;
    int different = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const int difference = differenceOf(one.pixel(x, y), other.pixel(x, y));
            greatest = qMax(greatest, difference);
            different += difference > mostInside;
        }
    }
    return greatest <= mostAtEdges && different <= edgePart * one.width() * one.height();
}

void openAgain(BoardDriver &driver)
{
    const QByteArray bytes =
        pagehost::encodeDocument(*driver.workspace().document(), pagehost::DocumentFormat::Binary);
    pagehost::OpenResult opened = pagehost::decodeDocument(bytes, driver.workspace().registry());
    driver.workspace().replaceDocument(std::move(opened.document));
}

/// The visible picture around a part of the page.
QImage picture(BoardDriver &driver, const QRectF &part)
{
    driver.hover({5, 5});
    QCoreApplication::processEvents();
    const QRectF area = part.adjusted(-margin, -margin, margin, margin);
    return driver.view().viewport()->grab(driver.view().mapFromScene(area).boundingRect()).toImage();
}

/// Where around its place a page's only object is hit, one letter per point.
QByteArray hits(const pagehost::Page &page, const QRectF &around)
{
    QByteArray found;
    for (double y = around.top() - 12; y < around.bottom() + 12; y += 5) {
        for (double x = around.left() - 12; x < around.right() + 12; x += 5)
            found += page.objectAt({x, y}) ? 'x' : '.';
        found += '\n';
    }
    return found;
}

void addKinds(BoardDriver &driver)
{
    QTest::addColumn<QString>("kind");
    const QVector<pagehost::ObjectKind> drawable = driver.drawableKinds();
    for (const pagehost::ObjectKind &kind : drawable)
        QTest::newRow(qPrintable(kind.id)) << kind.id;
}

} // namespace

class TestOpenedShapes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_driver = std::make_unique<BoardDriver>(); }
    void cleanupTestCase() { m_driver.reset(); }
    void openedShapeLooksLikeADrawnOne_data() { addKinds(*m_driver); }
    void openedShapeLooksLikeADrawnOne();
    void openedShapeIsHitLikeADrawnOne_data() { addKinds(*m_driver); }
    void openedShapeIsHitLikeADrawnOne();
    void resizedShapeIsHitWhereItIs_data() { addKinds(*m_driver); }
    void resizedShapeIsHitWhereItIs();
    void pastedShapeLooksLikeTheCopiedOne_data() { addKinds(*m_driver); }
    void pastedShapeLooksLikeTheCopiedOne();

private:
    /// An empty page, and what moves on it standing still.
    BoardDriver &emptied();
    CBaseObject *drawn(const QString &kind);

    std::unique_ptr<BoardDriver> m_driver;
};

BoardDriver &TestOpenedShapes::emptied()
{
    m_driver->workspace().replaceDocument(std::make_unique<pagehost::Document>());
    m_driver->window().animation()->setPlaying(false);
    m_driver->view().setZoom(1);
    m_driver->history().clear();
    return *m_driver;
}

CBaseObject *TestOpenedShapes::drawn(const QString &kind)
{
    CBaseObject *object = emptied().draw(kind, place.topLeft(), place.bottomRight());
    m_driver->page().select({});
    return object;
}

void TestOpenedShapes::openedShapeLooksLikeADrawnOne()
{
    QFETCH(QString, kind);
    CBaseObject *object = drawn(kind);
    const QRectF around = m_driver->placeOf(object);
    CPageBgProp gradient(nullptr);
    gradient.setFillEnable(true);
    gradient.setFillType(CPageBgProp::GradientFill);
    gradient.setFillColor(QColor(200, 40, 40));
    gradient.setGradientColor(QColor(250, 220, 80));
    // Of the colour that it has already.
    pagehost::setFill({object}, gradient.fillColor());
    const QImage plain = picture(*m_driver, around);
    pagehost::setObjectsFill({object}, gradient);
    if (pagehost::styleOf(object).hasFill)
        QVERIFY(!looksAlike(picture(*m_driver, around), plain));
    pagehost::resizeObject(object, object->getClientRect().size() * 1.2);
    for (const double zoom : zooms) {
        m_driver->view().setZoom(zoom);
        m_driver->view().centerOn(place.center());
        const QImage before = picture(*m_driver, around);
        openAgain(*m_driver);
        m_driver->view().setZoom(zoom);
        m_driver->view().centerOn(place.center());
        QVERIFY2(looksAlike(picture(*m_driver, around), before), qPrintable(QString("zoom %1").arg(zoom)));
    }
}

void TestOpenedShapes::openedShapeIsHitLikeADrawnOne()
{
    QFETCH(QString, kind);
    const QRectF around = m_driver->placeOf(drawn(kind));
    const QByteArray before = hits(m_driver->page(), around);
    QVERIFY(before.contains('x') && before.contains('.'));
    openAgain(*m_driver);
    QCOMPARE(hits(m_driver->page(), around), before);
}

void TestOpenedShapes::resizedShapeIsHitWhereItIs()
{
    QFETCH(QString, kind);
    CBaseObject *object = drawn(kind);
    const QByteArray small = hits(m_driver->page(), m_driver->placeOf(object));
    const QSizeF size = object->getClientRect().size();
    pagehost::resizeObject(object, size * 2);
    const QRectF around = m_driver->placeOf(object);
    const QByteArray resized = hits(m_driver->page(), around);
    openAgain(*m_driver);
    QCOMPARE(resized, hits(m_driver->page(), around));
    QVERIFY(resized != small);
    // Something of it is hit in the half that came with the new size.
    const QList<QByteArray> rows = resized.split('\n');
    QVERIFY(rows.mid(rows.size() * 6 / 10).join().contains('x'));
}

void TestOpenedShapes::pastedShapeLooksLikeTheCopiedOne()
{
    QFETCH(QString, kind);
    CBaseObject *object = drawn(kind);
    CPageBgProp gradient(nullptr);
    gradient.setFillEnable(true);
    gradient.setFillType(CPageBgProp::GradientFill);
    gradient.setOpacity(180);
    pagehost::setObjectsFill({object}, gradient);
    const auto pictureOf = [&](CBaseObject *shown) { return picture(*m_driver, m_driver->placeOf(shown)); };
    m_driver->page().select({object});
    m_driver->key(Qt::Key_C, Qt::ControlModifier);
    m_driver->key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_driver->page().objectCount(), 2);
    CBaseObject *pasted = m_driver->page().objects().last();
    m_driver->page().select({});
    // Alone at the same place, since edges depend on where the pixels are.
    const QPointF pos = object->getPos();
    const QImage copied = [&] {
        pasted->setPos(pos + QPointF(400, 200), false);
        return pictureOf(object);
    }();
    object->setPos(pos + QPointF(400, 200), false);
    pasted->setPos(pos, false);
    QVERIFY(looksAlike(pictureOf(pasted), copied));
}

QTEST_MAIN(TestOpenedShapes)
#include "test_openedshapes.moc"
