// The texts of declared shapes, in documents and inside of objects.

#include "machine.h"

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QJsonArray>
#include <QtCore/QtEndian>

using namespace declaredtest;
using pagehost::DocumentFormat;

class TestTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void canonicalTextDeclaresTheSameShape_data();
    void canonicalTextDeclaresTheSameShape();
    void layoutOfTheFileMakesNoDifference();
    void blanksInTextsStay();
    void boardOpensOnAMachineThatLacksTheShape_data() { addFormats(); }
    void boardOpensOnAMachineThatLacksTheShape();
    void boardKeepsTheLookThatItWasMadeWith();
    void onlyAnotherVersionIsDrawnAndTold();
    void shapeThatNobodyKnowsIsAPlaceholder();
    void panelsKnowTheTitlesOfShapesFromDocuments();
    void objectKeepsItsTextWhereTheHostDoesNot();
    void damagedTextInsideAnObjectIsRefused();
    void membersOfNewerProgramsStay();
    void lookOfAPageFilledVersionCanBeTaken();

private:
    static void addFormats();
};

namespace {

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QImage lookOf(const Declaration &declaration)
{
    const std::unique_ptr<QZeSvgTinyDocument> document(QZeSvgTinyDocument::load(declaration.templateText));
    QImage picture(200, 200, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    document->drawFitted(&painter, QRectF(0, 0, 200, 200));
    return picture;
}

QByteArray withoutTexts(QByteArray bytes)
{
    const int start = bytes.indexOf("ASST");
    const int size = int(qFromBigEndian<quint32>(bytes.constData() + start + 4));
    return bytes.remove(start, 16 + size);
}

QStringList keysOf(const QVector<pagehost::FileMessage> &messages)
{
    QStringList keys;
    for (const pagehost::FileMessage &message : messages)
        keys.append(message.textKey);
    return keys;
}

} // namespace

void TestTexts::addFormats()
{
    QTest::addColumn<DocumentFormat>("format");
    QTest::newRow("binary") << DocumentFormat::Binary;
    QTest::newRow("JSON") << DocumentFormat::Json;
}

void TestTexts::canonicalTextDeclaresTheSameShape_data()
{
    QTest::addColumn<QString>("path");
    for (const QString &folder : {QStringLiteral(EXAMPLE_FOLDER), QStringLiteral(SHAPE_FOLDER)}) {
        const QFileInfoList files = shapeFilesIn(folder);
        QVERIFY(!files.isEmpty());
        for (const QFileInfo &file : files)
            QTest::newRow(qPrintable(file.fileName())) << file.absoluteFilePath();
    }
}

void TestTexts::canonicalTextDeclaresTheSameShape()
{
    QFETCH(QString, path);
    const QString name = QFileInfo(path).fileName().section(QLatin1Char('.'), 0, 0);
    const SharedDeclaration shape = readShape(contentsOf(path), name);
    QVERIFY(shape);
    QVector<Message> messages;
    const SharedDeclaration again = readShape(shape->text, QStringLiteral("other"), &messages);
    QVERIFY2(again, messages.isEmpty() ? "" : qPrintable(messages.first().told(path)));
    QCOMPARE(again->id, shape->id);
    QCOMPARE(again->text, shape->text);
    QCOMPARE(again->hash, shape->hash);
    QCOMPARE(again->hash, hashOf(shape->text));
    QCOMPARE(lookOf(*again), lookOf(*shape));
}

void TestTexts::layoutOfTheFileMakesNoDifference()
{
    const QByteArray other = QByteArray(barFile("#f00"))
                                 .replace(">\n<", ">  <!-- a remark -->\n\n <")
                                 .replace("fill='#f00' stroke='#000'", "stroke='#000'\n fill='#f00'");
    QCOMPARE(readOf(other)->hash, readOf(barFile("#f00"))->hash);
    QVERIFY(readOf(barFile("#f01"))->hash != readOf(barFile("#f00"))->hash);
}

void TestTexts::blanksInTextsStay()
{
    const auto textOf = [](const QByteArray &text) { return readOf(fileOf(text))->text; };
    QVERIFY(textOf("<text>a\n <tspan>b</tspan> <tspan>c</tspan></text>")
                .contains("<text>a <tspan>b</tspan> <tspan>c</tspan></text>"));
    QVERIFY(textOf("<text xml:space='preserve'>a  b</text>").contains(">a  b</text>"));
}

void TestTexts::boardOpensOnAMachineThatLacksTheShape()
{
    QFETCH(DocumentFormat, format);
    Machine mine;
    mine.write(QStringLiteral("bar"), barFile("#f00"));
    mine.start();
    const auto document = documentWithBar(mine);
    document->page(0)->select({});
    const QImage picture = pictureOf(*document);
    const QByteArray bytes = encodeDocument(*document, format);
    Machine theirs;
    theirs.start();
    QVERIFY(!theirs.registry().hasKind(barKind));
    const pagehost::OpenResult opened = decodeDocument(bytes, theirs.registry());
    QCOMPARE(keysOf(opened.messages), QStringList());
    QVERIFY(objectOn(*opened.document));
    setCurrentDocument(opened.document.get());
    QCOMPARE(pictureOf(*opened.document), picture);
    QCOMPARE(encodeDocument(*opened.document, format), bytes);
    QVERIFY(!theirs.registry().hasKind(barKind));
}

void TestTexts::boardKeepsTheLookThatItWasMadeWith()
{
    Machine mine;
    mine.write(QStringLiteral("bar"), barFile("#f00"));
    mine.start();
    const auto document = documentWithBar(mine);
    const QByteArray bytes = encodeDocument(*document, DocumentFormat::Binary);
    Machine theirs;
    theirs.write(QStringLiteral("bar"), barFile("#00f"));
    theirs.start();
    const pagehost::OpenResult opened = decodeDocument(bytes, theirs.registry());
    QCOMPARE(keysOf(opened.messages), QStringList());
    QCOMPARE(encodeDocument(*opened.document, DocumentFormat::Binary), bytes);
}

void TestTexts::onlyAnotherVersionIsDrawnAndTold()
{
    Machine mine;
    mine.write(QStringLiteral("bar"), barFile("#f00"));
    mine.start();
    const auto document = documentWithBar(mine);
    const QByteArray bytes = withoutTexts(encodeDocument(*document, DocumentFormat::Binary));
    Machine theirs;
    theirs.write(QStringLiteral("bar"), barFile("#00f"));
    theirs.start();
    const pagehost::OpenResult opened = decodeDocument(bytes, theirs.registry());
    QCOMPARE(keysOf(opened.messages), QStringList({QStringLiteral("IDS_FILE_OBJECT_VERSION")}));
    QVERIFY(objectOn(*opened.document)->shapeKind().declaration().text.contains("#00f"));
}

void TestTexts::shapeThatNobodyKnowsIsAPlaceholder()
{
    Machine mine;
    mine.write(QStringLiteral("bar"), barFile("#f00"));
    mine.start();
    const auto document = documentWithBar(mine);
    const QByteArray bytes = withoutTexts(encodeDocument(*document, DocumentFormat::Binary));
    Machine theirs;
    theirs.start();
    const pagehost::OpenResult opened = decodeDocument(bytes, theirs.registry());
    QVERIFY(pagehost::isPlaceholder(opened.document->page(0)->objects().value(0)));
    QCOMPARE(keysOf(opened.messages), QStringList({QStringLiteral("IDS_FILE_OBJECT_UNKNOWN")}));
    QCOMPARE(encodeDocument(*opened.document, DocumentFormat::Binary), bytes);
}

void TestTexts::panelsKnowTheTitlesOfShapesFromDocuments()
{
    Machine mine;
    mine.write(QStringLiteral("bar"),
               barFile("#f00", "20 .. w", "<shape:property name='n' type='switch' value='yes' title='Glass'/>"));
    mine.start();
    const auto document = documentWithBar(mine);
    const QByteArray bytes = encodeDocument(*document, DocumentFormat::Binary);
    Machine theirs;
    theirs.start();
    const pagehost::OpenResult opened = decodeDocument(bytes, theirs.registry());
    QCOMPARE(theirs.localizer().text(QStringLiteral("IDS_DECLARED_bar_n")), QStringLiteral("Glass"));
    QCOMPARE(theirs.localizer().text(objectOn(*opened.document)->kindName()), QStringLiteral("Bar"));
}

void TestTexts::objectKeepsItsTextWhereTheHostDoesNot()
{
    Machine mine;
    mine.write(QStringLiteral("bar"), barFile("#f00"));
    mine.start();
    const std::unique_ptr<CBaseObject> object(mine.plugin().createObject(barKind));
    const QByteArray bytes = savedBytes(object.get());
    QVERIFY(bytes.contains("\"inline\":"));
    Machine theirs;
    theirs.start();
    const std::unique_ptr<CBaseObject> opened(theirs.plugin().createObject(barKind));
    QDataStream in(bytes);
    QVERIFY(opened->load(in));
    QVERIFY(in.atEnd());
    QCOMPARE(savedBytes(opened.get()), bytes);
    QJsonObject json;
    object->saveJson(json);
    const std::unique_ptr<CBaseObject> fromJson(theirs.plugin().createObject(barKind));
    QVERIFY(fromJson->loadJson(json));
    QCOMPARE(savedBytes(fromJson.get()), bytes);
}

void TestTexts::damagedTextInsideAnObjectIsRefused()
{
    Machine mine;
    mine.write(QStringLiteral("bar"), barFile("#f00"));
    mine.start();
    const std::unique_ptr<CBaseObject> object(mine.plugin().createObject(barKind));
    QJsonObject json;
    object->saveJson(json);
    Machine theirs;
    theirs.start();
    QJsonObject saved = json.value(QLatin1String("SVG_Declared")).toObject();
    for (const char *text : {"", "AAAA", "/////w==", "AAAAAw=="}) {
        saved[QStringLiteral("inline")] = QLatin1String(text);
        json[QStringLiteral("SVG_Declared")] = saved;
        const std::unique_ptr<CBaseObject> opened(theirs.plugin().createObject(barKind));
        QVERIFY(!opened->loadJson(json));
    }
}

void TestTexts::membersOfNewerProgramsStay()
{
    Machine mine;
    mine.write(QStringLiteral("bar"), barFile("#f00"));
    mine.start();
    const std::unique_ptr<CBaseObject> object(mine.plugin().createObject(barKind));
    QJsonObject json;
    object->saveJson(json);
    QJsonObject saved = json.value(QLatin1String("SVG_Declared")).toObject();
    saved[QStringLiteral("glow")] = QJsonArray{1, 2};
    json[QStringLiteral("SVG_Declared")] = saved;
    QVERIFY(object->loadJson(json));
    QJsonObject again;
    object->saveJson(again);
    QCOMPARE(again.value(QLatin1String("SVG_Declared")).toObject(), saved);
}

/// The page object fills one version, and the document the other.
void TestTexts::lookOfAPageFilledVersionCanBeTaken()
{
    Machine mine;
    mine.write(QStringLiteral("bar"), barFile("#f00"));
    mine.start();
    const auto document = documentWithBar(mine);
    const QByteArray bytes = withoutTexts(encodeDocument(*document, DocumentFormat::Binary));
    Machine theirs;
    theirs.write(QStringLiteral("bar"), barFile("#f00").replace("name='Bar'", "name='Bar' filled='page'"));
    theirs.start();
    const pagehost::OpenResult opened = decodeDocument(bytes, theirs.registry());
    QVERIFY(objectOn(*opened.document));
    setCurrentDocument(opened.document.get());
    opened.document->page(0)->select({});
    QCOMPARE(pictureOf(*opened.document).pixelColor(110, 120), QColor(Qt::red));
}

QTEST_MAIN(TestTexts)
#include "test_texts.moc"
