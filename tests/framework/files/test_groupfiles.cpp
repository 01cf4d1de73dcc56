#include "framework/files/chunkedit.h"
#include "framework/files/filetest.h"

#include <pagehost/groups.h>

#include <QtCore/QJsonArray>

// Groups in files, whole and damaged.

using namespace pagehost;

namespace {

/// Objects 1 to 5; the group "Car" of 1, 2 and the group of 3, 4.
std::unique_ptr<Document> groupedDocument()
{
    auto document = std::make_unique<Document>();
    Page *page = document->appendPage();
    for (quint32 id = 1; id <= 5; ++id)
        setObjectId(addPlain(page, QPointF(id, 0)), id);
    page->setGroups({{1, 0, QStringLiteral("Car"), {1, 2}}, {2, 1, QString(), {3, 4}}});
    return document;
}

ObjectGroups groupsOf(const OpenResult &opened)
{
    return opened.document->page(0)->grouping().groups();
}

QVector<quint32> idsOf(const OpenResult &opened)
{
    QVector<quint32> ids;
    const QVector<CBaseObject *> objects = opened.document->page(0)->objects();
    for (const CBaseObject *object : objects)
        ids.append(isPlaceholder(object) ? 0 : objectId(object));
    return ids;
}

const QVector<quint32> allIds{1, 2, 3, 4, 5};
const char groupsText[] = "      \"groups\": [\n"
                          "        {\n"
                          "          \"group\": 1,\n"
                          "          \"members\": [1, 2],\n"
                          "          \"name\": \"Car\"\n"
                          "        },\n"
                          "        {\n"
                          "          \"group\": 2,\n"
                          "          \"members\": [3, 4],\n"
                          "          \"parent\": 1\n"
                          "        }\n"
                          "      ],\n";
const char secondGroup[] = "GRUP\0\0\0\x18";
const int secondGroupSize = 16 + 0x18;

} // namespace

class TestGroupFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { undoStack()->clear(); }

    void groupIsTheseBytes();
    void groupIsThisText();
    void groupsComeBack_data();
    void groupsComeBack();
    void pageWithoutGroupsHasNoDataOfGroups_data();
    void pageWithoutGroupsHasNoDataOfGroups();
    void groupsThatAreGoneAreNotSaved();
    void dataThatAnEarlierProgramKeptIsRead();
    void everyDamagedByteLeavesTheObjects();
    void everyDamagedCharacterLeavesTheObjects();
    void damagedMemberNameIsTold();
    void damagedGroupIsKept();
    void groupWithUnknownMemberIsReadAndKept();
    void groupsOfTheClipboardAreOfNewObjects();

private:
    FileTestRegistry m_registry;
};

void TestGroupFiles::groupIsTheseBytes()
{
    const QByteArray bytes = encodeDocument(*groupedDocument(), DocumentFormat::Binary);
    const int place = bytes.indexOf(QByteArray(secondGroup, 8));
    QVERIFY(place > 0);
    // Number 2 in group 1, without a name, of the objects 3 and 4.
    QCOMPARE(bytes.mid(place + 16, 0x18), QByteArray::fromHex("00000002"
                                                              "00000001"
                                                              "00000000"
                                                              "00000002"
                                                              "00000003"
                                                              "00000004"));
}

void TestGroupFiles::groupIsThisText()
{
    QVERIFY(encodeDocument(*groupedDocument(), DocumentFormat::Json).contains(groupsText));
}

void TestGroupFiles::groupsComeBack_data()
{
    QTest::addColumn<DocumentFormat>("format");
    QTest::newRow("binary") << DocumentFormat::Binary;
    QTest::newRow("text") << DocumentFormat::Json;
}

void TestGroupFiles::groupsComeBack()
{
    QFETCH(DocumentFormat, format);
    const QByteArray bytes = encodeDocument(*groupedDocument(), format);
    const OpenResult opened = decodeDocument(bytes, m_registry);
    QVERIFY(opened.messages.isEmpty());
    const ObjectGroups expected{{1, 0, QStringLiteral("Car"), {1, 2}}, {2, 1, QString(), {3, 4}}};
    QCOMPARE(groupsOf(opened), expected);
    QCOMPARE(encodeDocument(*opened.document, format), bytes);
}

void TestGroupFiles::pageWithoutGroupsHasNoDataOfGroups_data()
{
    groupsComeBack_data();
}

void TestGroupFiles::pageWithoutGroupsHasNoDataOfGroups()
{
    QFETCH(DocumentFormat, format);
    const auto document = groupedDocument();
    document->page(0)->setGroups({});
    const QByteArray bytes = encodeDocument(*document, format);
    QVERIFY(!bytes.contains("GRUP"));
    QVERIFY(!bytes.contains("group"));
}

void TestGroupFiles::groupsThatAreGoneAreNotSaved()
{
    const auto document = groupedDocument();
    Page *page = document->page(0);
    removeObjects(page, {page->objects().at(2)});
    const OpenResult opened = decodeDocument(encodeDocument(*document, DocumentFormat::Binary), m_registry);
    const ObjectGroups expected{{1, 0, QStringLiteral("Car"), {1, 2, 4}}};
    QCOMPARE(opened.document->page(0)->groups(), expected);
}

/// Programs without groups write chunks as the member "chunks", and members as the chunk "JSON".
void TestGroupFiles::dataThatAnEarlierProgramKeptIsRead()
{
    const auto document = groupedDocument();
    document->page(0)->setGroups({});
    const QByteArray group = QByteArray::fromHex("00000002"
                                                 "00000000"
                                                 "00000000"
                                                 "00000002"
                                                 "00000003"
                                                 "00000004");
    document->page(0)->setExtraData({{{"GRUP", group}}, {}});
    OpenResult opened = decodeDocument(encodeDocument(*document, DocumentFormat::Json), m_registry);
    const ObjectGroups second{{2, 0, QString(), {3, 4}}};
    QCOMPARE(groupsOf(opened), second);
    QVERIFY(opened.document->page(0)->extraData().isEmpty());

    const QJsonArray json{QJsonObject{{QStringLiteral("group"), 2}, {QStringLiteral("members"), QJsonArray{3, 4}}}};
    document->page(0)->setExtraData({{}, {{QStringLiteral("groups"), json}}});
    opened = decodeDocument(encodeDocument(*document, DocumentFormat::Binary), m_registry);
    QCOMPARE(groupsOf(opened), second);
    QVERIFY(opened.document->page(0)->extraData().isEmpty());
    QVERIFY(opened.messages.isEmpty());
}

void TestGroupFiles::everyDamagedByteLeavesTheObjects()
{
    const QByteArray whole = encodeDocument(*groupedDocument(), DocumentFormat::Binary);
    const int place = whole.indexOf(QByteArray(secondGroup, 8));
    for (int i = place; i < place + secondGroupSize; ++i) {
        QByteArray bytes = whole;
        bytes[i] = char(bytes[i] ^ 0x20);
        const OpenResult opened = decodeDocument(bytes, m_registry);
        QVERIFY2(opened.document && !opened.messages.isEmpty(), qPrintable(QString::number(i)));
        QCOMPARE(idsOf(opened), allIds);
        QCOMPARE(groupsOf(opened).value(0).name, QStringLiteral("Car"));
    }
}

void TestGroupFiles::everyDamagedCharacterLeavesTheObjects()
{
    const QByteArray whole = encodeDocument(*groupedDocument(), DocumentFormat::Json);
    const int place = whole.indexOf(groupsText);
    QVERIFY(place > 0);
    for (int i = place; i < place + int(sizeof groupsText) - 1; ++i) {
        for (const char damage : {'#', '"', '{', ']', '\n'}) {
            QByteArray text = whole;
            text[i] = damage;
            const OpenResult opened = decodeDocument(text, m_registry);
            QVERIFY2(opened.document, qPrintable(QString::number(i)));
            if (idsOf(opened) != allIds)
                QFAIL(qPrintable(QStringLiteral("%1 at %2").arg(QLatin1Char(damage)).arg(i - place)));
        }
    }
}

void TestGroupFiles::damagedMemberNameIsTold()
{
    QByteArray text = encodeDocument(*groupedDocument(), DocumentFormat::Json);
    text.replace("\"groups\"", "\"gr?ups\"");
    const OpenResult opened = decodeDocument(text, m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_GROUPS_DAMAGED")});
    QCOMPARE(groupsOf(opened).size(), 2);
}

void TestGroupFiles::damagedGroupIsKept()
{
    QByteArray text = encodeDocument(*groupedDocument(), DocumentFormat::Json);
    text.replace("\"members\": [3, 4]", "\"members\": [3, -4]");
    const OpenResult opened = decodeDocument(text, m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_GROUPS_DAMAGED")});
    QCOMPARE(groupsOf(opened).size(), 1);
    QCOMPARE(idsOf(opened), allIds);
    const QJsonArray kept = opened.document->page(0)->extraData().members.value(QLatin1String("damaged")).toArray();
    QCOMPARE(QByteArray::fromBase64(kept.at(0).toString().toLatin1()),
             QByteArray("{\"groups\":[{\"group\":2,\"members\":[3,-4],\"parent\":1}]}"));
}

void TestGroupFiles::groupWithUnknownMemberIsReadAndKept()
{
    QByteArray text = encodeDocument(*groupedDocument(), DocumentFormat::Json);
    text.replace("\"parent\": 1", "\"pa?ent\": 1");
    const OpenResult opened = decodeDocument(text, m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_GROUPS_DAMAGED")});
    const ObjectGroups expected{{1, 0, QStringLiteral("Car"), {1, 2}}, {2, 0, QString(), {3, 4}}};
    QCOMPARE(groupsOf(opened), expected);
}

void TestGroupFiles::groupsOfTheClipboardAreOfNewObjects()
{
    const auto document = groupedDocument();
    Page *page = document->page(0);
    const QByteArray bytes = encodeObjects(page->objects().mid(1, 3));
    ObjectGroups groups;
    const QVector<CBaseObject *> copies = decodeObjects(bytes, m_registry, nullptr, page, &groups);
    const ObjectGroups expected{{1, 0, QStringLiteral("Car"), {6}}, {2, 1, QString(), {7, 8}}};
    QCOMPARE(groups, expected);
    QCOMPARE(objectId(copies[0]), 6u);
    qDeleteAll(copies);
}

QTEST_MAIN(TestGroupFiles)
#include "test_groupfiles.moc"
