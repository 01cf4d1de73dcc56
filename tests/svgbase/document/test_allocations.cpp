#include "svgbase/document/allocationcount.h"
#include "svgbase/svgdrawing.h"

#include <QtTest>

// Drawing a document that did not change takes as much memory from the heap for many nodes as for few.
class TestAllocations : public QObject
{
    Q_OBJECT

private slots:
    void allocationsAreCounted();
    void unchangedDrawingAllocatesNothingPerNode_data();
    void unchangedDrawingAllocatesNothingPerNode();
};

namespace {

constexpr int few = 10;
constexpr int many = 500;
constexpr int warmUps = 3;

QString manyNodes(int count, const QString &node)
{
    QString content;
    for (int i = 0; i < count; ++i)
        content += node.arg(i % 20 * 4).arg(i / 20 % 20 * 4);
    return content;
}

void draw(QZeSvgTinyDocument &document, QImage *image, bool clipped)
{
    image->fill(Qt::transparent);
    QPainter painter(image);
    if (clipped)
        painter.setClipRect(QRect(0, 0, 99, 99));
    document.draw(&painter, QRectF(0, 0, 100, 100), 1, false);
}

long allocationsOf(const QString &content, bool clipped)
{
    const DocumentPointer document = loadContent(content);
    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    for (int i = 0; i < warmUps; ++i)
        draw(*document, &image, clipped);
    const long before = allocationCount();
    draw(*document, &image, clipped);
    return allocationCount() - before;
}

} // namespace

void TestAllocations::allocationsAreCounted()
{
    const long before = allocationCount();
    const QByteArray bytes(1000, 'x');
    const std::unique_ptr<int> number = std::make_unique<int>(bytes.size());
    QCOMPARE(allocationCount() - before, 2L);
    QCOMPARE(*number, 1000);
}

void TestAllocations::unchangedDrawingAllocatesNothingPerNode_data()
{
    QTest::addColumn<QString>("node");
    QTest::addColumn<bool>("clipped");
    const QString rect = QStringLiteral("<rect x='%1' y='%2' width='3' height='3' fill='red'/>");
    const QString line = QStringLiteral("<path d='M%1 %2h3' stroke='blue' fill='none'/>");
    const QString turned = QStringLiteral("<rect x='%1' y='%2' width='3' height='3' transform='skewX(1)'/>");
    QTest::newRow("kept picture") << rect << false;
    QTest::newRow("painted, filled") << rect << true;
    QTest::newRow("painted, stroked") << line << true;
    QTest::newRow("painted, transformed") << turned << true;
}

void TestAllocations::unchangedDrawingAllocatesNothingPerNode()
{
    QFETCH(QString, node);
    QFETCH(bool, clipped);
    QCOMPARE(allocationsOf(manyNodes(many, node), clipped), allocationsOf(manyNodes(few, node), clipped));
}

QTEST_MAIN(TestAllocations)
#include "test_allocations.moc"
