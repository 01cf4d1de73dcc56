// Random documents and random changes: what a document that was changed draws is what its changed text draws, and
// what is written back draws the same.

#include "svgbase/document/randomdocument.h"
#include "svgbase/svgdrawing.h"

#include <QtTest>

namespace {

/// How many documents; GLIOLOLOK_RANDOM_DOCUMENTS gives another number for a long run.
constexpr int usualDocuments = 40;
constexpr int changesOfEach = 25;
constexpr quint32 firstStart = 1000;

const QSize size(120, 100);

/// Changes of what is below a drawing, between two draws of it.
constexpr int backgrounds = 3;

QImage background(int number, QImage::Format format)
{
    QImage image(size, format);
    image.fill(number == 0 ? Qt::transparent : QColor(200, 220, 255, 120));
    if (number == 2) {
        QPainter painter(&image);
        painter.fillRect(QRect(30, 20, 25, 40), Qt::yellow);
    }
    return image;
}

QImage drawnOver(QZeSvgTinyDocument &document, QImage image)
{
    QPainter painter(&image);
    document.draw(&painter, QRectF(3, 2, size.width() - 6, size.height() - 5), 1, false);
    return image;
}

DocumentPointer loaded(const QByteArray &text)
{
    return DocumentPointer(QZeSvgTinyDocument::load(text));
}

QString firstDifference(const QImage &found, const QImage &expected)
{
    int count = 0;
    QPoint first(-1, -1);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            if (found.pixel(x, y) == expected.pixel(x, y))
                continue;
            if (++count == 1)
                first = QPoint(x, y);
        }
    }
    return QStringLiteral("%1 pixels differ, the first at %2, %3: %4 instead of %5")
        .arg(count)
        .arg(first.x())
        .arg(first.y())
        .arg(found.pixel(first), 8, 16)
        .arg(expected.pixel(first), 8, 16);
}

QString described(const RandomDocument::Change &change)
{
    if (change.kind != RandomDocument::Change::SetAttribute)
        return QStringLiteral("%1 kind %2, parent %3").arg(change.id).arg(change.kind).arg(change.parentId);
    const QString value = change.value.isNull() ? QStringLiteral("(none)") : change.value;
    return QStringLiteral("%1 %2=%3").arg(change.id, change.attribute, value);
}

QZeSvgStructureNode *structureNode(QZeSvgTinyDocument *document, QZeSvgNode *node)
{
    return node ? dynamic_cast<QZeSvgStructureNode *>(node) : document;
}

// Null pointers mean that the document knows an id no more.
bool apply(const RandomDocument::Change &change, QZeSvgTinyDocument *document)
{
    QZeSvgNode *node = document->namedNode(change.id);
    if (!node)
        return false;
    if (change.kind == RandomDocument::Change::SetAttribute) {
        node->setAttribute(change.attribute, change.value);
        return true;
    }
    if (change.kind == RandomDocument::Change::Remove) {
        structureNode(document, node->parent())->removeChild(node);
        return true;
    }
    QZeSvgStructureNode *parent = structureNode(document, document->namedNode(change.parentId));
    if (!parent)
        return false;
    if (change.kind == RandomDocument::Change::Copy)
        parent->addChild(node->clone(), change.newId);
    else
        parent->addChild(node, change.id);
    return true;
}

} // namespace

class TestRandomChanges : public QObject
{
    Q_OBJECT

private slots:
    void changedDocumentDrawsAsItsText_data();
    void changedDocumentDrawsAsItsText();
    void writtenDocumentDrawsTheSame_data();
    void writtenDocumentDrawsTheSame();
};

static void addStarts()
{
    QTest::addColumn<quint32>("start");
    bool isGiven = false;
    const int given = qEnvironmentVariableIntValue("GLIOLOLOK_RANDOM_DOCUMENTS", &isGiven);
    const quint32 documents = quint32(isGiven ? qMax(1, given) : usualDocuments);
    for (quint32 i = 0; i < documents; ++i)
        QTest::newRow(qPrintable(QString::number(firstStart + i))) << firstStart + i;
}

void TestRandomChanges::changedDocumentDrawsAsItsText_data()
{
    addStarts();
}

void TestRandomChanges::changedDocumentDrawsAsItsText()
{
    QFETCH(quint32, start);
    RandomDocument random(start);
    const DocumentPointer document = loaded(random.text());
    QVERIFY(document);
    QRandomGenerator pictures(start);
    const QImage::Format format = start % 2 ? QImage::Format_ARGB32 : QImage::Format_ARGB32_Premultiplied;
    for (int i = 0; i < changesOfEach; ++i) {
        const RandomDocument::Change change = random.change();
        QVERIFY2(apply(change, document.get()), qPrintable(described(change)));
        const DocumentPointer fresh = loaded(random.text());
        const QImage below = background(pictures.bounded(backgrounds), format);
        const QImage found = drawnOver(*document, below);
        const QImage expected = drawnOver(*fresh, below);
        if (found != expected)
            QFAIL(qPrintable(
                QStringLiteral("change %1: %2\n%3\n%4")
                    .arg(i)
                    .arg(described(change), firstDifference(found, expected), QString::fromUtf8(random.text()))));
    }
}

void TestRandomChanges::writtenDocumentDrawsTheSame_data()
{
    addStarts();
}

void TestRandomChanges::writtenDocumentDrawsTheSame()
{
    QFETCH(quint32, start);
    RandomDocument random(start);
    const DocumentPointer document = loaded(random.text());
    for (int i = 0; i < changesOfEach; ++i) {
        const RandomDocument::Change change = random.change();
        QVERIFY2(apply(change, document.get()), qPrintable(described(change)));
    }
    const QByteArray written = document->toSvg();
    const DocumentPointer again = loaded(written);
    QVERIFY2(again, written.constData());
    QVERIFY2(drawn(*document, size) == drawn(*again, size), written.constData());
    QCOMPARE(again->toSvg(), written);
}

QTEST_MAIN(TestRandomChanges)
#include "test_randomchanges.moc"
