#include "framework/files/filetest.h"

#include <support/listed.h>

#include <QtCore/QJsonArray>
#include <QtCore/QMap>

#include <algorithm>
#include <array>

// Every place of a file damaged in turn: what the damage does not touch comes back, and nothing is lost in silence.

using namespace pagehost;

namespace {

/// Where a part of the document stands in the file.
struct Range
{
    int start = 0;
    int end = 0;

    /// Whether all of it is still there when the bytes from `from` to `to` are others now. Text that is put in
    /// before or behind it does not change it.
    bool isApartFrom(int from, int to) const { return to <= start || from >= end; }
};

struct Sample
{
    QByteArray bytes;
    QMap<double, Range> objects; ///< by their x, which is a different one for each
    QMap<double, QJsonObject> states;
    QVector<Range> lessons;
    int pages = 0;
};

constexpr std::array<double, 4> places{101, 202, 303, 404};

std::unique_ptr<Document> makeDocument()
{
    auto document = std::make_unique<Document>();
    for (std::size_t number = 0; number < places.size(); ++number) {
        Page *page = number % 2 == 0 ? document->appendPage(QSizeF(400, 300)) : document->currentPage();
        TestObject *object = addPlain(page, QPointF(places[number], 7));
        object->setRotation(double(number));
        setObjectId(object, quint32(number + 1));
    }
    document->setLessons({{QStringLiteral("bytes"), lessonBytes(QStringLiteral("one"), 2)},
                          {QStringLiteral("text"), lessonText(QStringLiteral("two"), 1)}});
    document->setExtraData({{{"NEWD", "of a newer program"}}, {{QStringLiteral("author"), 1}}});
    document->page(1)->setExtraData({{}, {{QStringLiteral("grid"), QJsonArray{1, 2}}}});
    return document;
}

/// All but the stacking number: a page gives others to the objects behind a damaged one, in their order.
QJsonObject stateOf(CBaseObject *object)
{
    QJsonObject state;
    object->saveJson(state);
    state.remove(QStringLiteral("stacking"));
    state.insert(QStringLiteral("id"), double(objectId(object)));
    return state;
}

/// From each `begin` to the next `end` behind it.
QVector<Range> rangesOf(const QByteArray &bytes, const QByteArray &begin, const QByteArray &end)
{
    QVector<Range> ranges;
    for (int start = bytes.indexOf(begin); start >= 0; start = bytes.indexOf(begin, start + 1)) {
        const int last = bytes.indexOf(end, start + 1);
        ranges.append({start, last < 0 ? bytes.size() : last});
    }
    return ranges;
}

Sample sampleOf(DocumentFormat format)
{
    const std::unique_ptr<Document> document = makeDocument();
    Sample sample;
    sample.bytes = encodeDocument(*document, format);
    sample.pages = document->pageCount();
    QVector<Range> objects;
    if (format == DocumentFormat::Json) {
        objects = rangesOf(sample.bytes, "{\n          \"kind\"", "\n        }");
        sample.lessons = rangesOf(sample.bytes, "{\n      \"name\"", "\n    }");
        for (QVector<Range> *ranges : {&objects, &sample.lessons})
            for (Range &range : *ranges)
                range.end = sample.bytes.indexOf('}', range.end) + 1;
    } else {
        int offset = 8;
        while (offset < sample.bytes.size()) {
            const QByteArray tag = sample.bytes.mid(offset, 4);
            const int size = 16 + int(qFromBigEndian<quint32>(sample.bytes.constData() + offset + 4));
            if (tag == "OBJT")
                objects.append({offset, offset + size});
            else if (tag == "LESS")
                sample.lessons.append({offset, offset + size});
            offset += size;
        }
    }
    int number = 0;
    for (Page *page : support::listed(document->pages())) {
        for (CBaseObject *object : support::listed(page->objects())) {
            sample.objects.insert(object->getPos().x(), objects.value(number++));
            sample.states.insert(object->getPos().x(), stateOf(object));
        }
    }
    return sample;
}

/// Damages the bytes at a place; returns how many bytes from there on differ afterwards.
using Damage = int (*)(QByteArray &bytes, int place);

int lowestBitFlipped(QByteArray &bytes, int place)
{
    bytes[place] = char(bytes[place] ^ 1);
    return 1;
}

template<char Character> int inserted(QByteArray &bytes, int place)
{
    bytes.insert(place, Character);
    return 0;
}

template<char Character> int overwritten(QByteArray &bytes, int place)
{
    bytes[place] = Character;
    return 1;
}

template<int Count> int deleted(QByteArray &bytes, int place)
{
    const int count = std::min(Count, bytes.size() - place);
    bytes.remove(place, count);
    return count;
}

/// As much as a disk loses at once.
template<int Count> int zeroed(QByteArray &bytes, int place)
{
    const int count = std::min(Count, bytes.size() - place);
    bytes.replace(place, count, QByteArray(count, '\0'));
    return count;
}

/// The line that begins there stands there twice; nothing happens elsewhere.
int doubledLine(QByteArray &bytes, int place)
{
    if (place > 0 && bytes.at(place - 1) != '\n')
        return 0;
    const int end = bytes.indexOf('\n', place) + 1;
    bytes.insert(place, bytes.mid(place, end - place));
    return 0;
}

#ifdef __SANITIZE_ADDRESS__
constexpr int step = 11;
#else
constexpr int step = 1;
#endif
/// Saving and opening again takes longer than the rest.
constexpr int stepOfSaving = 7;

/// Whether the text, in both languages, names the arguments and no others.
bool hasPlaceForEach(const FileMessage &message)
{
    Localizer localizer;
    for (const char *language : {"en", "de"}) {
        localizer.setLanguage(QLatin1String(language));
        const QString text = localizer.text(message.textKey);
        for (int number = 1; number <= 3; ++number)
            if (text.contains(QStringLiteral("%%1").arg(number)) != (number <= message.arguments.size()))
                return false;
    }
    return true;
}

int countOfObjects(const Document &document)
{
    int count = 0;
    for (const Page *page : support::listed(document.pages()))
        count += page->objectCount();
    return count;
}

bool isValidFile(const QByteArray &bytes, DocumentFormat format)
{
    QJsonParseError error;
    QJsonDocument::fromJson(bytes, &error);
    return format == DocumentFormat::Binary || error.error == QJsonParseError::NoError;
}

} // namespace

Q_DECLARE_METATYPE(Damage)

class TestEveryDamage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsNotTouchedComesBackAndTheRestIsTold_data();
    void whatIsNotTouchedComesBackAndTheRestIsTold();

private:
    QString problemAfter(const Sample &sample, DocumentFormat format, Damage damage, int place) const;
    QString lossIn(const OpenResult &opened, const Sample &sample, int from, int to) const;
    QString savingProblem(const OpenResult &opened, DocumentFormat format) const;

    FileTestRegistry m_registry;
};

void TestEveryDamage::whatIsNotTouchedComesBackAndTheRestIsTold_data()
{
    QTest::addColumn<DocumentFormat>("format");
    QTest::addColumn<Damage>("damage");
    const auto row = [](const char *name, Damage damage, bool isForText = false) {
        const QByteArray json = QByteArray("json, ") + name;
        const QByteArray binary = QByteArray("binary, ") + name;
        QTest::newRow(json.constData()) << DocumentFormat::Json << damage;
        if (!isForText)
            QTest::newRow(binary.constData()) << DocumentFormat::Binary << damage;
    };
    row("lowest bit flipped", lowestBitFlipped);
    row("a byte deleted", deleted<1>);
    row("a hole of 300 bytes", deleted<300>);
    row("a brace put in", inserted<'{'>);
    row("a closing brace put in", inserted<'}'>);
    row("a quote put in", inserted<'"'>);
    row("a line break put in", inserted<'\n'>);
    row("a closing brace in its place", overwritten<'}'>);
    row("a zeroed sector", zeroed<512>);
    row("a line twice", doubledLine, true);
}

void TestEveryDamage::whatIsNotTouchedComesBackAndTheRestIsTold()
{
    QFETCH(DocumentFormat, format);
    QFETCH(Damage, damage);
    const Sample sample = sampleOf(format);
    QCOMPARE(sample.objects.size(), int(places.size()));
    QCOMPARE(sample.lessons.size(), 2);
    QStringList problems;
    for (int place = 0; place < sample.bytes.size(); place += step) {
        const QString problem = problemAfter(sample, format, damage, place);
        if (!problem.isEmpty())
            problems.append(QStringLiteral("%1: %2").arg(place).arg(problem));
    }
    QVERIFY2(problems.isEmpty(),
             qPrintable(QStringLiteral("%1 places\n").arg(problems.size()) + problems.mid(0, 20).join('\n')));
}

QString TestEveryDamage::problemAfter(const Sample &sample, DocumentFormat format, Damage damage, int place) const
{
    QByteArray bytes = sample.bytes;
    const int length = damage(bytes, place);
    const OpenResult opened = decodeDocument(bytes, m_registry);
    if (!opened.document) {
        // A digit of the version became a higher one: nothing tells that from a newer program's file.
        const bool isNewer = textKeys(opened.messages) == QStringList{QStringLiteral("IDS_FILE_NEWER_VERSION")};
        return isNewer ? QString() : QStringLiteral("not opened");
    }
    QString loss = lossIn(opened, sample, place, place + length);
    if (!loss.isEmpty())
        return loss;
    if (format == DocumentFormat::Binary && bytes != sample.bytes && opened.messages.isEmpty())
        return QStringLiteral("not told");
    for (const FileMessage &message : opened.messages)
        if (!hasPlaceForEach(message))
            return QStringLiteral("%1 has other places for its arguments").arg(message.textKey);
    return place % stepOfSaving == 0 ? savingProblem(opened, format) : QString();
}

QString TestEveryDamage::lossIn(const OpenResult &opened, const Sample &sample, int from, int to) const
{
    QVector<QJsonObject> found;
    for (const Page *page : support::listed(opened.document->pages()))
        for (CBaseObject *object : support::listed(page->objects()))
            found.append(isPlaceholder(object) ? QJsonObject() : stateOf(object));
    for (auto object = sample.objects.begin(); object != sample.objects.end(); ++object) {
        const int times = found.count(sample.states.value(object.key()));
        if (object->isApartFrom(from, to) && times != 1)
            return QStringLiteral("object at %1 is there %2 times").arg(object.key()).arg(times);
    }
    const QVector<LessonData> lessons = opened.document->lessons();
    const QVector<LessonData> expected = makeDocument()->lessons();
    for (int i = 0; i < expected.size(); ++i)
        if (sample.lessons[i].isApartFrom(from, to) && lessons.count(expected[i]) != 1)
            return QStringLiteral("lesson %1 is gone").arg(i);
    if (!opened.messages.isEmpty())
        return {};
    const bool isAllThere = countOfObjects(*opened.document) == sample.objects.size() && lessons.size() == 2 &&
                            opened.document->pageCount() == sample.pages &&
                            !opened.document->extraData().members.isEmpty() &&
                            opened.document->extraData().chunks.size() == 1;
    return isAllThere ? QString() : QStringLiteral("lost without a message");
}

QString TestEveryDamage::savingProblem(const OpenResult &opened, DocumentFormat format) const
{
    const QByteArray saved = encodeDocument(*opened.document, format);
    if (!isValidFile(saved, format))
        return QStringLiteral("saved file is not valid");
    const OpenResult again = decodeDocument(saved, m_registry);
    if (!again.document || encodeDocument(*again.document, format) != saved)
        return QStringLiteral("saved file has other content");
    return {};
}

QTEST_MAIN(TestEveryDamage)
#include "test_everydamage.moc"
