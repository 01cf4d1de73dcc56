// Shapes that are opened: what that paints.

#include <shapekit/shape.h>
#include <shapekit/shapeobject.h>

#include <QtCore/QBuffer>
#include <QtCore/QJsonObject>
#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QGraphicsSceneMouseEvent>

namespace {

const shapekit::Text numberText("Number", "Zahl");

/// Asks to be painted anew whenever it reads something, as shapes do whose template changes with their data.
class Eager : public shapekit::ShapeOfType<27>
{
public:
    using ShapeOfType::ShapeOfType;
    QString getSVG() override
    {
        return QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 40 40'>"
                              "<rect id='figure' x='4' y='4' width='32' height='32' fill='red' stroke='black'/>"
                              "<rect id='control_1' x='16' y='16' width='8' height='8'/></svg>");
    }

protected:
    void propertyChanged(const shapekit::Property *property) override
    {
        ShapeOfType::propertyChanged(property);
        invalidate();
    }
    void draw() override {}

private:
    shapekit::WholeNumber number{this, numberText, 5, 1, 9};
};

shapekit::Kind eagerKind()
{
    shapekit::Kind kind;
    kind.name = QStringLiteral("eager");
    kind.makeCore = &shapekit::makeCore<Eager>;
    return kind;
}

const shapekit::Kind eager = eagerKind();

/// Counts the pictures that are made of it.
class Counted : public shapekit::ShapeObject
{
public:
    Counted()
        : ShapeObject(eager)
    {
    }
    void beginPaint(QPainter *painter) override
    {
        pictures += painter->isActive() ? 1 : 0;
        ShapeObject::beginPaint(painter);
    }
    void create()
    {
        for (const QEvent::Type type : {QEvent::GraphicsSceneMousePress, QEvent::GraphicsSceneMouseRelease}) {
            QGraphicsSceneMouseEvent event(type);
            event.setButton(Qt::LeftButton);
            type == QEvent::GraphicsSceneMousePress ? mousePressEvent(&event) : mouseReleaseEvent(&event);
        }
    }
    QImage picture() const { return cacheImage; }
    QByteArray saved()
    {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        save(out);
        return bytes;
    }
    void open(const QByteArray &bytes)
    {
        QDataStream in(bytes);
        load(in);
    }

    int pictures = 0;
};

} // namespace

class TestOpening : public QObject
{
    Q_OBJECT

private slots:
    void anOpenedShapeMakesOnePicture();
    void anOpenedShapeOfTextMakesOnePicture();
    void aShapeThatTakesOtherDataShowsThem();
};

void TestOpening::anOpenedShapeMakesOnePicture()
{
    Counted original;
    original.create();
    Counted opened;
    opened.open(original.saved());
    QCOMPARE(opened.pictures, 1);
    QVERIFY(!original.picture().isNull());
    QCOMPARE(opened.picture(), original.picture());
}

void TestOpening::anOpenedShapeOfTextMakesOnePicture()
{
    Counted original;
    original.create();
    QJsonObject json;
    original.saveJson(json);
    Counted opened;
    opened.loadJson(json);
    QCOMPARE(opened.pictures, 1);
    QCOMPARE(opened.picture(), original.picture());
}

void TestOpening::aShapeThatTakesOtherDataShowsThem()
{
    Counted original;
    original.create();
    original.core()->setPenColor(Qt::blue, false);
    original.OnQPainterDraw(nullptr);
    Counted other;
    other.create();
    QVERIFY(other.picture() != original.picture());
    other.open(original.saved());
    QCOMPARE(other.picture(), original.picture());
}

QTEST_MAIN(TestOpening)
#include "test_opening.moc"
