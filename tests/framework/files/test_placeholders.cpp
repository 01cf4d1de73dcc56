#include "framework/files/filetest.h"

#include <pagehost/application.h>
#include <pagehost/pagepainter.h>
#include <pagehost/selection.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

// Objects that cannot be made, and other parts of files that this program does not know.

using namespace pagehost;

namespace {

std::unique_ptr<Document> documentWithObject()
{
    auto document = std::make_unique<Document>();
    TestObject *object = addPlain(document->appendPage(QSizeF(400, 300)), QPointF(50, 60));
    object->setRotation(10);
    setObjectId(object, 5);
    return document;
}

CBaseObject *firstObject(const OpenResult &opened)
{
    return opened.document ? opened.document->page(0)->objects().value(0) : nullptr;
}

QByteArray json(const QByteArray &object)
{
    return "{\"format\": \"gliololok board\", \"version\": 1, \"pages\": [\n{\"page\": 1, \"objects\": [\n" +
           object + "\n]}]}";
}

} // namespace

class TestPlaceholders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { undoStack()->clear(); }

    void unknownKindKeepsItsPlaceAndBytes_data() { addFormats(); }
    void unknownKindKeepsItsPlaceAndBytes();
    void objectIsBackWhenItsPlugInIs_data() { addFormats(); }
    void objectIsBackWhenItsPlugInIs();
    void objectIsBackThroughTheOtherFormat_data() { addFormats(); }
    void objectIsBackThroughTheOtherFormat();
    void movedPlaceholderTakesItsObjectAlong_data() { addFormats(); }
    void movedPlaceholderTakesItsObjectAlong();
    void lockedPlaceholderStaysLocked();
    void placeholderIsDeletedAndComesBack();
    void placeholderIsDuplicated();
    void placeholderIsADashedBox();
    void placeholderIsLargeEnoughToSeize_data();
    void placeholderIsLargeEnoughToSeize();
    void placeholderOfNoStateIsSeen();
    void placeholderOfAPlaceThatNoPageReachesIsSeen_data();
    void placeholderOfAPlaceThatNoPageReachesIsSeen();
    void placeholderOfAHiddenObjectIsSeen_data() { addFormats(); }
    void placeholderOfAHiddenObjectIsSeen();
    void placeholderKeepsItsNewNumber_data() { addFormats(); }
    void placeholderKeepsItsNewNumber();
    void placeholderMovedBackAfterReopening_data() { addFormats(); }
    void placeholderMovedBackAfterReopening();
    void placeholderCannotBeReshaped();
    void brokenStateBecomesAPlaceholder();
    void brokenObjectKeepsItsBytes_data();
    void brokenObjectKeepsItsBytes();
    void hugeObjectBecomesAPlaceholder_data() { addFormats(); }
    void hugeObjectBecomesAPlaceholder();
    void objectsThatAreHugeTogetherBecomePlaceholders();
    void brokenJsonIsToldWithLineAndColumn();
    void valueOfTheWrongTypeIsLeftOut();
    void unknownPartsOfABinaryFileAreKept();
    void unknownPartsOfAJsonFileAreKept();
    void unknownPartsGoThroughTheOtherFormat();
    void keysMayBeEscaped();
    void keyWithAnEscapeThatIsNoneIsTold();
    void cutFileTellsWhatIsMissing();
    void newerVersionIsRefused_data();
    void newerVersionIsRefused();
    void fileThatIsNoDocumentIsRefused_data();
    void fileThatIsNoDocumentIsRefused();
    void messagesSayWhere();

private:
    void addFormats();

    FileTestRegistry m_registry;
    ObjectRegistry m_ignorant;
};

void TestPlaceholders::addFormats()
{
    QTest::addColumn<DocumentFormat>("format");
    QTest::newRow("binary") << DocumentFormat::Binary;
    QTest::newRow("json") << DocumentFormat::Json;
}

void TestPlaceholders::unknownKindKeepsItsPlaceAndBytes()
{
    QFETCH(DocumentFormat, format);
    const QByteArray bytes = encodeDocument(*documentWithObject(), format);
    const OpenResult opened = decodeDocument(bytes, m_ignorant);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_OBJECT_UNKNOWN")});
    QCOMPARE(opened.messages[0].page, 1);
    QCOMPARE(opened.messages[0].object, 1);
    QCOMPARE(opened.messages[0].arguments, QStringList{QStringLiteral("test.plain")});
    CBaseObject *placeholder = firstObject(opened);
    QVERIFY(isPlaceholder(placeholder));
    QCOMPARE(placeholder->getPos(), QPointF(50, 60));
    QCOMPARE(placeholder->rotation(), 10.0);
    QCOMPARE(placeholder->getClientRect(), QRectF(0, 0, 100, 60));
    QCOMPARE(kindIdOf(placeholder), QStringLiteral("test.plain"));
    QCOMPARE(encodeDocument(*opened.document, format), bytes);
}

void TestPlaceholders::objectIsBackWhenItsPlugInIs()
{
    QFETCH(DocumentFormat, format);
    const QByteArray bytes = encodeDocument(*documentWithObject(), format);
    const OpenResult ignorant = decodeDocument(bytes, m_ignorant);
    const OpenResult opened = decodeDocument(encodeDocument(*ignorant.document, format), m_registry);
    QVERIFY(!isPlaceholder(firstObject(opened)));
    QCOMPARE(objectId(firstObject(opened)), 5u);
    QCOMPARE(encodeDocument(*opened.document, format), bytes);
}

void TestPlaceholders::objectIsBackThroughTheOtherFormat()
{
    QFETCH(DocumentFormat, format);
    const DocumentFormat other = format == DocumentFormat::Json ? DocumentFormat::Binary : DocumentFormat::Json;
    const QByteArray bytes = encodeDocument(*documentWithObject(), format);
    const OpenResult ignorant = decodeDocument(bytes, m_ignorant);
    const OpenResult converted = decodeDocument(encodeDocument(*ignorant.document, other), m_ignorant);
    QVERIFY(isPlaceholder(firstObject(converted)));
    QCOMPARE(encodeDocument(*converted.document, format), bytes);
    const OpenResult opened = decodeDocument(encodeDocument(*converted.document, other), m_registry);
    QVERIFY(!isPlaceholder(firstObject(opened)));
    QCOMPARE(encodeDocument(*opened.document, format), bytes);
}

void TestPlaceholders::movedPlaceholderTakesItsObjectAlong()
{
    QFETCH(DocumentFormat, format);
    const QByteArray bytes = encodeDocument(*documentWithObject(), format);
    const OpenResult ignorant = decodeDocument(bytes, m_ignorant);
    CBaseObject *placeholder = firstObject(ignorant);
    QVERIFY(moveObjects({placeholder}, QPointF(7, -8)));
    QVERIFY(setObjectsLocked({placeholder}, true));
    const QByteArray moved = encodeDocument(*ignorant.document, format);
    const OpenResult again = decodeDocument(moved, m_ignorant);
    QCOMPARE(firstObject(again)->getPos(), QPointF(57, 52));
    QVERIFY(firstObject(again)->isLocked());
    const OpenResult opened = decodeDocument(moved, m_registry);
    QVERIFY(!isPlaceholder(firstObject(opened)));
    QCOMPARE(firstObject(opened)->getPos(), QPointF(57, 52));
    QVERIFY(firstObject(opened)->isLocked());
    undoStack()->undo();
    undoStack()->undo();
    QCOMPARE(encodeDocument(*ignorant.document, format), bytes);
}

void TestPlaceholders::lockedPlaceholderStaysLocked()
{
    const OpenResult opened =
        decodeDocument(encodeDocument(*documentWithObject(), DocumentFormat::Binary), m_ignorant);
    QVERIFY(setObjectsLocked({firstObject(opened)}, true));
    const OpenResult again = decodeDocument(encodeDocument(*opened.document, DocumentFormat::Binary), m_registry);
    QVERIFY(firstObject(again)->isLocked());
    QCOMPARE(firstObject(again)->getPos(), QPointF(50, 60));
}

void TestPlaceholders::placeholderIsDeletedAndComesBack()
{
    const QByteArray bytes = encodeDocument(*documentWithObject(), DocumentFormat::Binary);
    const OpenResult opened = decodeDocument(bytes, m_ignorant);
    Page *page = opened.document->page(0);
    page->select(page->objects());
    QVERIFY(deleteSelection(page));
    QCOMPARE(page->objectCount(), 0);
    undoStack()->undo();
    QCOMPARE(encodeDocument(*opened.document, DocumentFormat::Binary), bytes);
}

void TestPlaceholders::placeholderIsDuplicated()
{
    const OpenResult opened =
        decodeDocument(encodeDocument(*documentWithObject(), DocumentFormat::Binary), m_ignorant);
    Page *page = opened.document->page(0);
    page->select(page->objects());
    const QVector<CBaseObject *> copies = duplicateSelection(page, &m_ignorant, QPointF(20, 30));
    QCOMPARE(copies.size(), 1);
    QVERIFY(isPlaceholder(copies[0]));
    const OpenResult back = decodeDocument(encodeDocument(*opened.document, DocumentFormat::Binary), m_registry);
    QVERIFY(!isPlaceholder(back.document->page(0)->objects().value(1)));
    QCOMPARE(back.document->page(0)->objects().value(1)->getPos(), QPointF(70, 90));
}

void TestPlaceholders::placeholderIsADashedBox()
{
    const std::unique_ptr<Document> document = documentWithObject();
    document->page(0)->objects()[0]->setRotation(0);
    const OpenResult opened = decodeDocument(encodeDocument(*document, DocumentFormat::Binary), m_ignorant);
    const QImage picture = pageImage(opened.document->page(0), 1);
    // Along the upper edge of the box, from (50, 60) to (150, 60), dashes and gaps take turns.
    int dark = 0;
    for (int x = 50; x < 150; ++x)
        dark += qGray(picture.pixel(x, 60)) < 200 ? 1 : 0;
    QVERIFY(dark > 30 && dark < 90);
    QCOMPARE(QColor(picture.pixel(48, 60)), QColor(Qt::white));
    QVERIFY(QColor(picture.pixel(53, 117)) != QColor(Qt::white));
}

void TestPlaceholders::placeholderIsLargeEnoughToSeize_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QSizeF>("expected");
    QTest::newRow("a dot") << QSizeF(0, 0) << QSizeF(16, 16);
    QTest::newRow("a thin one") << QSizeF(3, 40) << QSizeF(16, 40);
    QTest::newRow("a flat one") << QSizeF(40, 15.5) << QSizeF(40, 16);
    QTest::newRow("just as large") << QSizeF(16, 17) << QSizeF(16, 17);
}

/// And the object has its own size again when it is back.
void TestPlaceholders::placeholderIsLargeEnoughToSeize()
{
    QFETCH(QSizeF, size);
    const std::unique_ptr<Document> document = documentWithObject();
    document->page(0)->objects()[0]->setSize(size, false, false);
    const QByteArray bytes = encodeDocument(*document, DocumentFormat::Binary);
    const OpenResult opened = decodeDocument(bytes, m_ignorant);
    QTEST(firstObject(opened)->getClientRect().size(), "expected");
    QCOMPARE(encodeDocument(*opened.document, DocumentFormat::Binary), bytes);
}

/// It stands near the page's corner, where nobody has to look for it.
void TestPlaceholders::placeholderOfNoStateIsSeen()
{
    const OpenResult opened = decodeDocument(json("{\"kind\": \"test.plain\", \"data\": {\"pos\": }}"), m_registry);
    QVERIFY(isPlaceholder(firstObject(opened)));
    QCOMPARE(firstObject(opened)->getPos(), QPointF(40, 40));
    QCOMPARE(firstObject(opened)->getClientRect(), QRectF(0, 0, 160, 100));
}

void TestPlaceholders::placeholderOfAPlaceThatNoPageReachesIsSeen_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QJsonArray>("numbers");
    QTest::addColumn<QPointF>("pos");
    QTest::addColumn<QSizeF>("size");
    const QPointF corner(40, 40);
    const QSizeF plain(160, 100);
    QTest::newRow("far away") << "pos" << QJsonArray{1e101, 5} << corner << plain;
    QTest::newRow("box far away") << "clientRect" << QJsonArray{1e101, 0, 50, 30} << corner << plain;
    QTest::newRow("endless") << "clientRect" << QJsonArray{0, 0, 1e101, 30} << QPointF(50, 60) << QSizeF(16384, 30);
    QTest::newRow("beside the largest page")
        << "pos" << QJsonArray{-90000, 190000} << QPointF(-90000, 190000) << QSizeF(100, 60);
}

/// Data that are damaged may name any place. The data themselves are kept.
void TestPlaceholders::placeholderOfAPlaceThatNoPageReachesIsSeen()
{
    QFETCH(QString, member);
    QFETCH(QJsonArray, numbers);
    const std::unique_ptr<Document> document = documentWithObject();
    document->page(0)->objects()[0]->setRotation(0);
    QJsonObject file = QJsonDocument::fromJson(encodeDocument(*document, DocumentFormat::Json)).object();
    QJsonObject page = file["pages"].toArray()[0].toObject();
    QJsonObject object = page["objects"].toArray()[0].toObject();
    QJsonObject data = object["data"].toObject();
    QVERIFY(data.contains(member));
    data[member] = numbers;
    object["data"] = data;
    page["objects"] = QJsonArray{object};
    file["pages"] = QJsonArray{page};
    const OpenResult opened = decodeDocument(QJsonDocument(file).toJson(), m_ignorant);
    QVERIFY(isPlaceholder(firstObject(opened)));
    QTEST(firstObject(opened)->getPos(), "pos");
    QTEST(firstObject(opened)->getClientRect().size(), "size");
    QCOMPARE(firstObject(opened)->getClientRect().topLeft(), QPointF(0, 0));
    const QByteArray saved = encodeDocument(*opened.document, DocumentFormat::Json);
    const QJsonObject again = QJsonDocument::fromJson(saved).object()["pages"].toArray()[0].toObject();
    QCOMPARE(again["objects"].toArray()[0].toObject()["data"].toObject(), data);
}

void TestPlaceholders::placeholderOfAHiddenObjectIsSeen()
{
    QFETCH(DocumentFormat, format);
    const std::unique_ptr<Document> document = documentWithObject();
    document->page(0)->objects()[0]->hide();
    const QByteArray bytes = encodeDocument(*document, format);
    const OpenResult ignorant = decodeDocument(bytes, m_ignorant);
    QVERIFY(firstObject(ignorant)->QGraphicsItem::isVisible());
    const OpenResult opened = decodeDocument(encodeDocument(*ignorant.document, format), m_registry);
    QVERIFY(!firstObject(opened)->QGraphicsItem::isVisible());
}

void TestPlaceholders::placeholderKeepsItsNewNumber()
{
    QFETCH(DocumentFormat, format);
    const OpenResult ignorant = decodeDocument(encodeDocument(*documentWithObject(), format), m_ignorant);
    setObjectId(firstObject(ignorant), 9);
    const OpenResult opened = decodeDocument(encodeDocument(*ignorant.document, format), m_registry);
    QCOMPARE(objectId(firstObject(opened)), 9u);
}

void TestPlaceholders::placeholderMovedBackAfterReopening()
{
    QFETCH(DocumentFormat, format);
    const QByteArray bytes = encodeDocument(*documentWithObject(), format);
    const OpenResult ignorant = decodeDocument(bytes, m_ignorant);
    QVERIFY(moveObjects({firstObject(ignorant)}, QPointF(7, -8)));
    const OpenResult again = decodeDocument(encodeDocument(*ignorant.document, format), m_ignorant);
    QCOMPARE(firstObject(again)->getPos(), QPointF(57, 52));
    QVERIFY(moveObjects({firstObject(again)}, QPointF(-7, 8)));
    QCOMPARE(encodeDocument(*again.document, format), bytes);
}

void TestPlaceholders::placeholderCannotBeReshaped()
{
    const OpenResult opened =
        decodeDocument(encodeDocument(*documentWithObject(), DocumentFormat::Binary), m_ignorant);
    CBaseObject *placeholder = firstObject(opened);
    for (const OperationType operation : {OperationResize, OperationRotate, OperationMirror})
        QVERIFY(!placeholder->canDo(operation));
    for (const OperationType operation : {OperationMove, OperationDelete, OperationCopy, OperationReorder})
        QVERIFY(placeholder->canDo(operation));
}

/// A rotation that is no number, which no user can make.
void TestPlaceholders::brokenStateBecomesAPlaceholder()
{
    const std::unique_ptr<Document> document = documentWithObject();
    document->page(0)->objects()[0]->setRotation(std::numeric_limits<double>::infinity());
    for (const DocumentFormat format : {DocumentFormat::Binary, DocumentFormat::Json}) {
        const QByteArray bytes = encodeDocument(*document, format);
        const OpenResult opened = decodeDocument(bytes, m_registry);
        QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_OBJECT_BROKEN")});
        QVERIFY(isPlaceholder(firstObject(opened)));
        QCOMPARE(encodeDocument(*opened.document, format), bytes);
    }
}

void TestPlaceholders::brokenObjectKeepsItsBytes_data()
{
    QTest::addColumn<DocumentFormat>("format");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("kept");
    // The rotation, 10 as a double, becomes one that is no number.
    const QByteArray rotation = QByteArray::fromHex("4024000000000000");
    const QByteArray noNumber = QByteArray::fromHex("7ff8000000000000");
    QByteArray binary = encodeDocument(*documentWithObject(), DocumentFormat::Binary);
    QCOMPARE(binary.count(rotation), 1);
    binary.replace(rotation, noNumber);
    QTest::newRow("binary") << DocumentFormat::Binary << binary << noNumber;
    const QByteArray object = "{\"kind\": \"test.plain\", \"data\": {\"pos\": }}";
    QTest::newRow("json that is none") << DocumentFormat::Json << json(object) << object;
    const QByteArray data = "{\"pos\": [1, 2, 3], \"rotation\": \"ten\"}";
    QTest::newRow("json of wrong types")
        << DocumentFormat::Json << json("{\"kind\": \"test.plain\", \"data\": " + data + "}")
        << QByteArray("\"ten\"");
}

/// However often and in whatever format the file is saved meanwhile.
void TestPlaceholders::brokenObjectKeepsItsBytes()
{
    QFETCH(DocumentFormat, format);
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, kept);
    const DocumentFormat other = format == DocumentFormat::Json ? DocumentFormat::Binary : DocumentFormat::Json;
    const OpenResult opened = decodeDocument(file, m_registry);
    QVERIFY(isPlaceholder(firstObject(opened)));
    const QByteArray saved = encodeDocument(*opened.document, format);
    QVERIFY(saved.contains(kept) || saved.contains(kept.toBase64()));

    const OpenResult again = decodeDocument(saved, m_registry);
    QVERIFY(isPlaceholder(firstObject(again)));
    QVERIFY(!again.messages.isEmpty());
    QCOMPARE(encodeDocument(*again.document, format), saved);

    const OpenResult converted = decodeDocument(encodeDocument(*again.document, other), m_registry);
    QVERIFY(isPlaceholder(firstObject(converted)));
    QVERIFY(!converted.messages.isEmpty());
    QCOMPARE(encodeDocument(*converted.document, format), saved);
}

/// A picture of it would take more memory than there is.
void TestPlaceholders::hugeObjectBecomesAPlaceholder()
{
    QFETCH(DocumentFormat, format);
    Document document;
    addPlain(document.appendPage(), QPointF(0, 0))->setSize(QSizeF(8192, 8192), false, false);
    addPlain(document.page(0), QPointF(0, 0))->setSize(QSizeF(8193, 8192), false, false);
    const OpenResult opened = decodeDocument(encodeDocument(document, format), m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_OBJECT_TOO_LARGE")});
    QCOMPARE(opened.messages[0].object, 2);
    QVERIFY(!isPlaceholder(opened.document->page(0)->objects().value(0)));
    QVERIFY(isPlaceholder(opened.document->page(0)->objects().value(1)));
}

/// Pictures of sixteen of them take 4 GiB.
void TestPlaceholders::objectsThatAreHugeTogetherBecomePlaceholders()
{
    constexpr int count = 18;
    constexpr int withRoom = 16;
    Document document;
    Page *page = document.appendPage();
    for (int index = 0; index < count; ++index)
        addPlain(page, QPointF(0, 0))->setSize(QSizeF(8192, 8192), false, false);
    const OpenResult opened = decodeDocument(encodeDocument(document, DocumentFormat::Binary), m_registry);
    const QString tooLarge = QStringLiteral("IDS_FILE_OBJECT_TOO_LARGE");
    QCOMPARE(textKeys(opened.messages), QStringList({tooLarge, tooLarge}));
    const QVector<CBaseObject *> objects = opened.document->page(0)->objects();
    QCOMPARE(objects.size(), count);
    for (int index = 0; index < count; ++index)
        QCOMPARE(isPlaceholder(objects[index]), index >= withRoom);
}

void TestPlaceholders::brokenJsonIsToldWithLineAndColumn()
{
    QJsonObject data;
    TestObject().saveJson(data);
    const QByteArray whole =
        "{\"kind\": \"test.plain\", \"data\": " + QJsonDocument(data).toJson(QJsonDocument::Compact) + "}";
    // The second object stands on line 4 and lacks a value; column 41 is behind the "}" that comes instead.
    const QByteArray bytes = json(whole + ",\n{\"kind\": \"test.plain\", \"data\": {\"pos\": }},\n" + whole);
    const OpenResult opened = decodeDocument(bytes, m_registry);
    QVERIFY(opened.document);
    const QVector<CBaseObject *> objects = opened.document->page(0)->objects();
    QCOMPARE(objects.size(), 3);
    QVERIFY(isPlaceholder(objects[1]));
    const FileMessage message = opened.messages.value(0);
    QCOMPARE(message.textKey, QStringLiteral("IDS_FILE_SYNTAX"));
    QCOMPARE(message.page, 1);
    QCOMPARE(message.object, 2);
    QCOMPARE(message.line, 4);
    QCOMPARE(message.column, 41);
    // Its text comes out of the next file as it went in.
    const QByteArray saved = encodeDocument(*opened.document, DocumentFormat::Json);
    QVERIFY(saved.contains(QByteArray("{\"kind\": \"test.plain\", \"data\": {\"pos\": }}").toBase64()));
}

void TestPlaceholders::valueOfTheWrongTypeIsLeftOut()
{
    const OpenResult opened = decodeDocument(
        "{\"format\": \"gliololok board\", \"version\": 1, \"pages\": [{\"page\": 1, \"objects\": 7}]}",
        m_registry);
    QVERIFY(opened.document);
    QCOMPARE(opened.document->pageCount(), 1);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_WRONG_TYPE")});
    QCOMPARE(opened.messages[0].arguments, QStringList{QStringLiteral("objects")});
}

void TestPlaceholders::unknownPartsOfABinaryFileAreKept()
{
    const std::unique_ptr<Document> document = documentWithObject();
    const ExtraData ofDocument{{{"NEWD", "of the document"}}, {}};
    const ExtraData ofPage{{{"NEWP", "of the page"}, {"NEWP", ""}}, {}};
    document->setExtraData(ofDocument);
    document->page(0)->setExtraData(ofPage);
    const QByteArray bytes = encodeDocument(*document, DocumentFormat::Binary);
    const OpenResult opened = decodeDocument(bytes, m_registry);
    QVERIFY(opened.messages.isEmpty());
    QVERIFY(opened.document->extraData() == ofDocument);
    QVERIFY(opened.document->page(0)->extraData() == ofPage);
    QCOMPARE(encodeDocument(*opened.document, DocumentFormat::Binary), bytes);
}

void TestPlaceholders::unknownPartsOfAJsonFileAreKept()
{
    QJsonObject fill;
    Document().appendPage()->background().saveJson(fill);
    const QByteArray background = QJsonDocument(fill).toJson();
    const QByteArray bytes = "{\"format\": \"gliololok board\", \"version\": 1, \"author\": {\"age\": 41},\n"
                             "\"pages\": [{\"page\": 1, \"width\": 400, \"height\": 300, \"background\": " +
                             background + ", \"grid\": [1, 2.5, null], \"objects\": []}]}";
    const OpenResult opened = decodeDocument(bytes, m_registry);
    QVERIFY(opened.messages.isEmpty());
    const QJsonObject saved =
        QJsonDocument::fromJson(encodeDocument(*opened.document, DocumentFormat::Json)).object();
    QCOMPARE(saved.value(QLatin1String("author")).toObject(), (QJsonObject{{QStringLiteral("age"), 41}}));
    const QJsonObject page = saved.value(QLatin1String("pages")).toArray().at(0).toObject();
    QCOMPARE(page.value(QLatin1String("grid")).toArray(), (QJsonArray{1, 2.5, QJsonValue::Null}));
}

void TestPlaceholders::unknownPartsGoThroughTheOtherFormat()
{
    const std::unique_ptr<Document> document = documentWithObject();
    const ExtraData extra{{{"NEWD", QByteArray("\x00\xff", 2)}},
                          {{QStringLiteral("author"), QStringLiteral("Ä")},
                           {QStringLiteral("a \"quoted\" \\ key"), 1},
                           {QStringLiteral("behind zero") + QChar(0) + QLatin1Char('a'), 2},
                           {QStringLiteral("behind zero") + QChar(0) + QLatin1Char('b'), 3}}};
    document->setExtraData(extra);
    document->page(0)->setExtraData(extra);
    for (const DocumentFormat format : {DocumentFormat::Binary, DocumentFormat::Json}) {
        const OpenResult opened = decodeDocument(encodeDocument(*document, format), m_registry);
        QVERIFY(opened.document->extraData() == extra);
        QVERIFY(opened.document->page(0)->extraData() == extra);
    }
}

void TestPlaceholders::keysMayBeEscaped()
{
    const OpenResult opened =
        decodeDocument("{\"\\u0066ormat\": \"gliololok board\", \"version\": 1, \"\\u00c4\": 1,\n"
                       "\"p\\u0061ges\": [{\"page\": 1, \"objects\": []}, {\"page\": 2}]}",
                       m_registry);
    QVERIFY(opened.messages.isEmpty());
    QCOMPARE(opened.document->pageCount(), 2);
    QCOMPARE(opened.document->extraData().members, (QJsonObject{{QStringLiteral("Ä"), 1}}));
}

void TestPlaceholders::keyWithAnEscapeThatIsNoneIsTold()
{
    const OpenResult opened = decodeDocument(
        "{\"format\": \"gliololok board\", \"version\": 1,\n\"\\u00g0\": 1, \"pages\": [{\"page\": 1}]}",
        m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_SYNTAX")});
    QCOMPARE(opened.messages[0].line, 2);
    QCOMPARE(opened.document->pageCount(), 1);
}

void TestPlaceholders::cutFileTellsWhatIsMissing()
{
    const std::unique_ptr<Document> document = documentWithObject();
    document->appendPage();
    const QByteArray bytes = encodeDocument(*document, DocumentFormat::Binary);
    const OpenResult withoutObject = decodeDocument(bytes.left(bytes.indexOf("OBJT")), m_registry);
    QCOMPARE(textKeys(withoutObject.messages),
             QStringList({QStringLiteral("IDS_FILE_OBJECTS_MISSING"), QStringLiteral("IDS_FILE_PAGES_MISSING"),
                          QStringLiteral("IDS_FILE_ENDS_EARLY")}));
    QCOMPARE(withoutObject.messages[0].arguments, QStringList{QStringLiteral("1")});
    QCOMPARE(withoutObject.messages[1].arguments, QStringList{QStringLiteral("1")});
    const OpenResult withoutPage = decodeDocument(bytes.left(bytes.lastIndexOf("PAGE")), m_registry);
    QCOMPARE(textKeys(withoutPage.messages),
             QStringList({QStringLiteral("IDS_FILE_PAGES_MISSING"), QStringLiteral("IDS_FILE_ENDS_EARLY")}));
    QVERIFY(firstObject(withoutPage));
}

void TestPlaceholders::newerVersionIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    // Signature; "VERS", 8 bytes, checksums; version 2, 1 page.
    QTest::newRow("binary") << QByteArray::fromHex("894252440d0a1a0a"
                                                   "564552530000000868e5bc9fb0b94eef"
                                                   "0000000200000001");
    QTest::newRow("json") << QByteArray("{\"format\": \"gliololok board\", \"version\": 2, \"pages\": []}");
    QTest::newRow("json, version last")
        << QByteArray("{\"format\": \"gliololok board\", \"pages\": [{\"page\": 1}], \"version\": 2}");
}

void TestPlaceholders::newerVersionIsRefused()
{
    QFETCH(QByteArray, bytes);
    const OpenResult opened = decodeDocument(bytes, m_registry);
    QVERIFY(!opened.document);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_NEWER_VERSION")});
    QCOMPARE(opened.messages[0].severity, FileMessage::Error);
    QCOMPARE(describe(opened.messages[0], Localizer()),
             QStringLiteral("The file is of version 2, made by a newer program. This one reads up to version 1."));
}

void TestPlaceholders::fileThatIsNoDocumentIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("Dear reader");
    QTest::newRow("other json") << QByteArray("{\"name\": \"board\", \"version\": \"1.0\"}");
    QTest::newRow("other json with pages") << QByteArray("{\"pages\": [{\"width\": 3}]}");
    QTest::newRow("json array") << QByteArray("[1, 2]");
    QTest::newRow("picture") << QByteArray("\x89PNG\r\n\x1a\n");
    QTest::newRow("zeros") << QByteArray(100000, '\0');
}

void TestPlaceholders::fileThatIsNoDocumentIsRefused()
{
    QFETCH(QByteArray, bytes);
    const OpenResult opened = decodeDocument(bytes, m_registry);
    QVERIFY(!opened.document);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_NO_DOCUMENT")});
}

void TestPlaceholders::messagesSayWhere()
{
    FileMessage message;
    message.textKey = QStringLiteral("IDS_FILE_OBJECT_UNKNOWN");
    message.arguments = QStringList{QStringLiteral("%1 & co")};
    message.page = 2;
    message.object = 3;
    message.offset = 99;
    Localizer localizer;
    QCOMPARE(
        describe(message, localizer),
        QStringLiteral("No plug-in knows the kind \"%1 & co\"; a placeholder keeps the object. (page 2, object 3, "
                       "byte 99)"));
    message.line = 4;
    message.column = 5;
    localizer.setLanguage(QStringLiteral("de"));
    QCOMPARE(
        describe(message, localizer),
        QStringLiteral("Kein Plug-in kennt die Art „%1 & co“; ein Platzhalter bewahrt das Objekt auf. (Seite 2, "
                       "Objekt 3, Zeile 4, Spalte 5)"));
}

QTEST_MAIN(TestPlaceholders)
#include "test_placeholders.moc"
