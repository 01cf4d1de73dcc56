// Random documents and random changes: what a document that was changed draws is what its changed text draws, and
// what is written back draws the same.

#include "randomdocument.h"
#include "svgdrawing.h"

#include <QtTest>

namespace {

/// Raise these for a long run.
constexpr int documents = 60;
constexpr int changesOfEach = 25;
constexpr quint32 firstStart = 1000;

const QSize size(120, 100);

DocumentPointer loaded(const QByteArray &text)
{
    return DocumentPointer(QZeSvgTinyDocument::load(text));
}

QString described(const RandomDocument::Change &change)
{
    const QString value = change.value.isNull() ? QStringLiteral("(none)") : change.value;
    return QStringLiteral("%1 %2=%3").arg(change.id, change.attribute, value);
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
    drawn(*document, size);
    for (int i = 0; i < changesOfEach; ++i) {
        const RandomDocument::Change change = random.change();
        QZeSvgNode *node = document->namedNode(change.id);
        QVERIFY(node);
        node->setAttribute(change.attribute, change.value);
        const DocumentPointer fresh = loaded(random.text());
        if (drawn(*document, size) != drawn(*fresh, size))
            QFAIL(qPrintable(QStringLiteral("change %1: %2\n%3")
                                 .arg(i)
                                 .arg(described(change), QString::fromUtf8(random.text()))));
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
        document->namedNode(change.id)->setAttribute(change.attribute, change.value);
    }
    const QByteArray written = document->toSvg();
    const DocumentPointer again = loaded(written);
    QVERIFY2(again, written.constData());
    QVERIFY2(drawn(*document, size) == drawn(*again, size), written.constData());
    QCOMPARE(again->toSvg(), written);
}

QTEST_MAIN(TestRandomChanges)
#include "test_randomchanges.moc"
