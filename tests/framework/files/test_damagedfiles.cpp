#include "framework/files/filetest.h"

#include <pagehost/application.h>
#include <pagehost/pagescene.h>

#include <random>

// Files that something has happened to: nothing crashes or hangs, what is whole is shown, and what is not is told.

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

/// Damaged files per format and way of damage, of which there are ten. GLIOLOLOK_DAMAGED_FILES=1000 makes it 10,000
/// files.
int fileCount()
{
    constexpr int usualCount = 100;
    const int wanted = qEnvironmentVariableIntValue("GLIOLOLOK_DAMAGED_FILES");
    return wanted > 0 ? wanted : usualCount;
}

CBaseObject *makeShape(const QString &kind, const QPointF &pos)
{
    CBaseObject *object = registry().createObject(kind);
    for (const QEvent::Type type : {QEvent::GraphicsSceneMousePress, QEvent::GraphicsSceneMouseRelease}) {
        QGraphicsSceneMouseEvent event(type);
        event.setButton(Qt::LeftButton);
        event.setPos(type == QEvent::GraphicsSceneMousePress ? QPointF(0, 0) : QPointF(40, 30));
        event.setScenePos(event.pos());
        type == QEvent::GraphicsSceneMousePress ? object->mousePressEvent(&event)
                                                : object->mouseReleaseEvent(&event);
    }
    object->CPSRootObject::setPos(pos, false);
    return object;
}

/// One page with two objects of neighbouring kinds, one with three, a lesson and a picture.
std::unique_ptr<Document> document(int number)
{
    auto made = std::make_unique<Document>();
    setCurrentDocument(made.get());
    const QVector<ObjectKind> kinds = registry().kinds();
    for (int index = 0; index < 5; ++index) {
        Page *page = index == 0 || index == 2 ? made->appendPage(QSizeF(300, 200)) : made->currentPage();
        page->addObject(makeShape(kinds[(number + index) % kinds.size()].id, QPointF(50 * index, 10)));
    }
    CPageBgProp background(nullptr);
    background.setFillEnable(true);
    background.setFillType(CPageBgProp::PictureFill);
    QPixmap picture(4, 4);
    picture.fill(Qt::green);
    background.setPixmap(picture);
    made->page(0)->setBackground(background);
    made->setLessons({{QStringLiteral("lesson"), QByteArray("{\"steps\":[1,2]}")}});
    return made;
}

int wholeObjects(const Document &document)
{
    int count = 0;
    const QVector<Page *> pages = document.pages();
    for (const Page *page : pages) {
        const QVector<CBaseObject *> objects = page->objects();
        count += int(std::count_if(objects.begin(), objects.end(),
                                   [](const CBaseObject *object) { return !isPlaceholder(object); }));
    }
    return count;
}

using Random = std::mt19937;

int upTo(Random &random, int limit)
{
    return std::uniform_int_distribution<int>(0, limit)(random);
}

void truncate(QByteArray &bytes, Random &random)
{
    bytes.truncate(upTo(random, bytes.size() - 1));
}

void flipByte(QByteArray &bytes, Random &random)
{
    char &byte = bytes.data()[upTo(random, bytes.size() - 1)];
    byte = char(byte ^ (1 + upTo(random, 254)));
}

void blowUpCount(QByteArray &bytes, Random &random)
{
    constexpr quint32 counts[] = {0x7fffffff, 0x7ffffffe, 0xffffffff, 0x80000000, 0x00ffffff, 0x40000000};
    const quint32 count = counts[upTo(random, int(std::size(counts)) - 1)];
    qToBigEndian(count, bytes.data() + upTo(random, bytes.size() - 4));
}

void loseBytes(QByteArray &bytes, Random &random)
{
    const int start = upTo(random, bytes.size() - 1);
    bytes.remove(start, 1 + upTo(random, 40));
}

void repeatBytes(QByteArray &bytes, Random &random)
{
    const int start = upTo(random, bytes.size() - 1);
    bytes.insert(upTo(random, bytes.size()), bytes.mid(start, 1 + upTo(random, 400)));
}

/// Puts something else in the place of one value of a JSON text.
void changeType(QByteArray &bytes, Random &random)
{
    const QByteArray values[] = {"null",
                                 "true",
                                 "{}",
                                 "[]",
                                 "\"text\"",
                                 "1e999",
                                 "-1e308",
                                 "9223372036854775807",
                                 "2147483648",
                                 "-1",
                                 "[[[[1]]]]",
                                 "",
                                 "{\"kind\": 1}",
                                 QByteArray(2000, '[') + QByteArray(2000, ']'),
                                 QByteArray(2000, '['),
                                 QByteArray("{\"a\":").repeated(2000)};
    const int colon = bytes.indexOf(": ", upTo(random, bytes.size() - 1));
    const int start = colon < 0 ? bytes.indexOf(": ") + 2 : colon + 2;
    int end = start;
    while (end < bytes.size() && bytes.at(end) != ',' && bytes.at(end) != '\n')
        ++end;
    bytes.replace(start, end - start, values[upTo(random, int(std::size(values)) - 1)]);
}

using Damage = void (*)(QByteArray &bytes, Random &random);

} // namespace

Q_DECLARE_METATYPE(Damage)

class TestDamagedFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { setCurrentDocument(nullptr); }

    void randomDamageIsSurvived_data();
    void randomDamageIsSurvived();
    void everyChangedByteOfABinaryFileIsNoticed();
    void everyChangedByteLosesAtMostOneObject();
    void cutBinaryFileShowsAllObjectsBeforeTheCut();
    void cutJsonFileShowsAllObjectsBeforeTheCut();
};

void TestDamagedFiles::randomDamageIsSurvived_data()
{
    QTest::addColumn<DocumentFormat>("format");
    QTest::addColumn<Damage>("damage");
    QTest::newRow("binary, cut off") << DocumentFormat::Binary << Damage(truncate);
    QTest::newRow("binary, a byte changed") << DocumentFormat::Binary << Damage(flipByte);
    QTest::newRow("binary, a count blown up") << DocumentFormat::Binary << Damage(blowUpCount);
    QTest::newRow("binary, bytes lost") << DocumentFormat::Binary << Damage(loseBytes);
    QTest::newRow("binary, bytes repeated") << DocumentFormat::Binary << Damage(repeatBytes);
    QTest::newRow("json, cut off") << DocumentFormat::Json << Damage(truncate);
    QTest::newRow("json, a byte changed") << DocumentFormat::Json << Damage(flipByte);
    QTest::newRow("json, a value of another type") << DocumentFormat::Json << Damage(changeType);
    QTest::newRow("json, bytes lost") << DocumentFormat::Json << Damage(loseBytes);
    QTest::newRow("json, bytes repeated") << DocumentFormat::Json << Damage(repeatBytes);
}

/// Whatever could be read can be saved, and what is saved opens to the same again.
void TestDamagedFiles::randomDamageIsSurvived()
{
    QFETCH(DocumentFormat, format);
    QFETCH(Damage, damage);
    Random random(20240607);
    const int kindCount = registry().kinds().size();
    QVector<QByteArray> files;
    for (int number = 0; number < kindCount; ++number)
        files.append(encodeDocument(*document(number), format));
    for (int round = 0; round < fileCount(); ++round) {
        QByteArray bytes = files.at(round % files.size());
        const QByteArray whole = bytes;
        damage(bytes, random);
        const OpenResult opened = decodeDocument(bytes, registry());
        const bool mustTell = format == DocumentFormat::Binary && bytes != whole;
        QVERIFY2(!mustTell || !opened.messages.isEmpty(), qPrintable(QString::number(round)));
        QVERIFY(opened.document || !opened.messages.isEmpty());
        if (!opened.document || round % 10 != 0)
            continue;
        const QByteArray saved = encodeDocument(*opened.document, format);
        const OpenResult again = decodeDocument(saved, registry());
        QVERIFY(again.document);
        const QByteArray savedAgain = encodeDocument(*again.document, format);
        // Text has no checksums: values that no object can have may settle once.
        QVERIFY(savedAgain == saved || format == DocumentFormat::Json);
        const OpenResult third = decodeDocument(savedAgain, registry());
        QCOMPARE(encodeDocument(*third.document, format), savedAgain);
    }
}

void TestDamagedFiles::everyChangedByteOfABinaryFileIsNoticed()
{
    Document document;
    document.appendPage();
    document.setLessons({{QStringLiteral("lesson"), QByteArray("bytes")}});
    const QByteArray whole = encodeDocument(document, DocumentFormat::Binary);
    for (int place = 0; place < whole.size(); ++place) {
        QByteArray bytes = whole;
        bytes[place] = char(bytes[place] ^ 0x20);
        QVERIFY2(!decodeDocument(bytes, registry()).messages.isEmpty(), qPrintable(QString::number(place)));
    }
}

void TestDamagedFiles::everyChangedByteLosesAtMostOneObject()
{
    FileTestRegistry plain;
    for (const DocumentFormat format : {DocumentFormat::Binary, DocumentFormat::Json}) {
        Document document;
        for (int pages = 0; pages < 2; ++pages) {
            Page *page = document.appendPage();
            addPlain(page, QPointF(1, 2));
            addPlain(page, QPointF(3, 4));
        }
        const QByteArray whole = encodeDocument(document, format);
        for (int place = 0; place < whole.size(); ++place) {
            QByteArray bytes = whole;
            bytes[place] = char(bytes[place] ^ 0x02);
            const OpenResult opened = decodeDocument(bytes, plain);
            if (!opened.document) {
                // The digit of the version is another one.
                QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_NEWER_VERSION")});
                continue;
            }
            QVERIFY2(wholeObjects(*opened.document) >= 3, qPrintable(QString::number(place)));
        }
    }
}

void TestDamagedFiles::cutBinaryFileShowsAllObjectsBeforeTheCut()
{
    const QByteArray whole = encodeDocument(*document(0), DocumentFormat::Binary);
    for (int size = 0; size < whole.size(); size += 19) {
        const QByteArray bytes = whole.left(size);
        const OpenResult opened = decodeDocument(bytes, registry());
        QVERIFY(!opened.messages.isEmpty());
        // The beginning of the next object shows that this one is complete.
        const int begun = bytes.count("OBJT");
        QVERIFY((opened.document ? wholeObjects(*opened.document) : 0) >= begun - 1);
    }
}

void TestDamagedFiles::cutJsonFileShowsAllObjectsBeforeTheCut()
{
    const QByteArray whole = encodeDocument(*document(0), DocumentFormat::Json);
    for (int size = 1; size < whole.size() - 1; size += 101) {
        const QByteArray bytes = whole.left(size);
        const OpenResult opened = decodeDocument(bytes, registry());
        QVERIFY(!opened.messages.isEmpty());
        const int begun = bytes.count("\"kind\"");
        QVERIFY((opened.document ? wholeObjects(*opened.document) : 0) >= begun - 1);
    }
}

QTEST_MAIN(TestDamagedFiles)
#include "test_damagedfiles.moc"
